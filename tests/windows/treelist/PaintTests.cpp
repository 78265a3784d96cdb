// What the tree list looks like, by its pixels. Pictures go to the folder that OXA_PICTURES names.
#include <gtest/gtest.h>
#include <cstdlib>
#include "TreeListHost.h"
#include "support/LeakCounters.h"
#include "support/Screenshot.h"

namespace
{
constexpr COLORREF red = RGB(255, 0, 0);

const COLORREF window = ::GetSysColor(COLOR_WINDOW);
const COLORREF windowText = ::GetSysColor(COLOR_WINDOWTEXT);
const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
const COLORREF highlightText = ::GetSysColor(COLOR_HIGHLIGHTTEXT);

/// The pixels of one colour.
struct Ink
{
    int count = 0;
    CRect bounds; ///< of all of them
};

class TreeListPaint : public testing::Test
{
protected:
    TreeListPaint()
    {
        // A face that is drawn without greys, so that text colours can be told exactly.
        m_font.CreateFont(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                          NONANTIALIASED_QUALITY, DEFAULT_PITCH, L"Tahoma");
        tree.SetFont(&m_font);
    }

    void AddColumns()
    {
        tree.InsertColumn(0, L"Left", 0, 120, 0);
        tree.InsertColumn(1, L"Right", 1, 100, 0);
        tree.InsertColumn(2, L"Centre", 2, 100, 0);
    }
    HTREEITEM AddRow(const wchar_t* left, const wchar_t* right, const wchar_t* centre)
    {
        HTREEITEM const row = host.add(left);
        tree.SetItemText(row, 1, right);
        tree.SetItemText(row, 2, centre);
        return row;
    }
    CRect RowRect(HTREEITEM row)
    {
        CRect rect;
        tree.GetItemRect(row, &rect, FALSE);
        return rect;
    }
    void Draw()
    {
        if (!host.IsWindowVisible())
        {
            HTREEITEM const selected = tree.GetSelectedItem();
            host.show();
            tree.SelectItem(selected); // the platform's tree selects a row when it gets the focus
        }
        tree.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        host.pump(10);
    }
    COLORREF PixelAt(int x, int y)
    {
        CClientDC dc(&tree);
        return dc.GetPixel(x, y);
    }
    Ink InkOf(const CRect& area, COLORREF colour)
    {
        CClientDC dc(&tree);
        Ink ink;
        for (int y = area.top; y < area.bottom; ++y)
        {
            for (int x = area.left; x < area.right; ++x)
            {
                if (dc.GetPixel(x, y) != colour)
                    continue;
                const CRect pixel(x, y, x + 1, y + 1);
                ink.bounds = ink.count == 0 ? pixel : ink.bounds | pixel;
                ++ink.count;
            }
        }
        return ink;
    }
    /// The part of a row between two x, without the line that the focus rectangle takes.
    Ink InkIn(HTREEITEM row, int left, int right, COLORREF colour)
    {
        const CRect rect = RowRect(row);
        return InkOf(CRect(left, rect.top + 1, right, rect.bottom - 1), colour);
    }
    int WidthOf(const wchar_t* text, bool bold = false)
    {
        CClientDC dc(&tree);
        CFont font;
        LOGFONT description = {};
        m_font.GetLogFont(&description);
        description.lfWeight = bold ? 700 : description.lfWeight;
        font.CreateFontIndirect(&description);
        CFont* const old = dc.SelectObject(&font);
        const int width = dc.GetTextExtent(text).cx;
        dc.SelectObject(old);
        return width;
    }
    void Save(const wchar_t* name)
    {
        const wchar_t* const folder = _wgetenv(L"OXA_PICTURES");
        if (folder != nullptr)
        {
            EXPECT_TRUE(saveWindowPng(host.m_hWnd, (std::wstring(folder) + L"\\" + name).c_str()));
        }
    }

    TreeListHost host{CSize(420, 300)};
    CKxTreeListViewCtrl& tree = host.tree();

private:
    CFont m_font;
};

TEST_F(TreeListPaint, texts_stand_left_right_and_in_the_middle_of_their_columns)
{
    AddColumns();
    HTREEITEM const row = AddRow(L"MM", L"MM", L"MM");
    Draw();
    CRect text;
    tree.GetItemRect(row, &text, TRUE);
    const Ink left = InkIn(row, 0, 120, windowText);
    const Ink right = InkIn(row, 120, 220, windowText);
    const Ink centre = InkIn(row, 220, 320, windowText);
    ASSERT_GT(left.count, 10);
    EXPECT_NEAR(left.bounds.left, text.left + 2, 2);
    EXPECT_NEAR(right.bounds.right, 220 - 4, 3) << "four pixels of margin, and what the character leaves free";
    EXPECT_NEAR(centre.bounds.CenterPoint().x, 220 + 48, 2) << "the middle of 96 pixels";
    EXPECT_EQ(left.count, right.count);
    EXPECT_EQ(left.count, centre.count);
    Save(L"treelist-aligned.png");
}

TEST_F(TreeListPaint, the_selected_row_is_filled_as_wide_as_the_columns)
{
    AddColumns();
    HTREEITEM const a = AddRow(L"a", L"b", L"c");
    HTREEITEM const b = AddRow(L"d", L"e", L"f");
    tree.SelectItem(a);
    Draw();
    CRect text;
    tree.GetItemRect(a, &text, TRUE);
    const int y = RowRect(a).CenterPoint().y;
    EXPECT_EQ(PixelAt(text.left - 1, y) == highlight, false);
    EXPECT_EQ(PixelAt(text.left + 1, y), highlight);
    EXPECT_EQ(PixelAt(318, y), highlight);
    EXPECT_EQ(PixelAt(320, y), window) << "the total width of the columns is 320";
    EXPECT_GT(InkIn(a, 120, 320, highlightText).count, 5) << "texts in the colour for it";
    EXPECT_EQ(InkIn(a, 130, 310, windowText).count, 0);
    EXPECT_EQ(InkIn(b, 0, 400, highlight).count, 0);
    EXPECT_GT(InkIn(b, 120, 320, windowText).count, 5);
    Save(L"treelist-selected.png");
}

TEST_F(TreeListPaint, a_focus_rectangle_surrounds_the_selected_row)
{
    AddColumns();
    HTREEITEM const a = AddRow(L"a", L"b", L"c");
    tree.SelectItem(a);
    Draw();
    const CRect row = RowRect(a);
    const int broken = 150 - InkOf(CRect(150, row.top, 300, row.top + 1), highlight).count;
    EXPECT_GT(broken, 50) << "every other pixel of the first line is inverted";
}

TEST_F(TreeListPaint, a_drop_target_looks_selected)
{
    AddColumns();
    HTREEITEM const a = AddRow(L"a", L"b", L"c");
    tree.SetItemState(a, TVIS_DROPHILITED, TVIS_DROPHILITED);
    Draw();
    EXPECT_EQ(PixelAt(200, RowRect(a).CenterPoint().y), highlight);
}

TEST_F(TreeListPaint, a_bold_row_has_more_ink_and_its_neighbour_none_of_it)
{
    AddColumns();
    HTREEITEM const a = AddRow(L"MMM", L"x", L"x");
    HTREEITEM const b = AddRow(L"MMM", L"x", L"x");
    Draw();
    const int plain = InkIn(a, 60, 120, windowText).count + InkIn(a, 0, 60, windowText).count;
    EXPECT_TRUE(tree.SetItemBold(a, TRUE, TRUE));
    Draw();
    const int bold = InkIn(a, 0, 120, windowText).count;
    EXPECT_GT(bold, plain + 5);
    EXPECT_EQ(InkIn(b, 0, 120, windowText).count, plain);
    EXPECT_TRUE(tree.SetItemBold(a, FALSE, TRUE));
    Draw();
    EXPECT_EQ(InkIn(a, 0, 120, windowText).count, plain);
}

TEST_F(TreeListPaint, a_row_has_its_own_text_colour_unless_it_is_selected)
{
    AddColumns();
    HTREEITEM const a = AddRow(L"MM", L"MM", L"MM");
    HTREEITEM const b = AddRow(L"MM", L"MM", L"MM");
    EXPECT_TRUE(tree.SetItemColor(a, red, TRUE));
    Draw();
    EXPECT_GT(InkIn(a, 120, 320, red).count, 10);
    EXPECT_EQ(InkIn(a, 120, 320, windowText).count, 0);
    EXPECT_EQ(InkIn(b, 0, 320, red).count, 0);
    tree.SelectItem(a);
    Draw();
    EXPECT_EQ(InkIn(a, 0, 320, red).count, 0);
}

TEST_F(TreeListPaint, a_selected_bold_row_is_bold_in_the_colour_for_it_and_the_next_row_is_not)
{
    AddColumns();
    HTREEITEM const a = AddRow(L"MM", L"MMM", L"MM");
    HTREEITEM const b = AddRow(L"MM", L"MMM", L"MM");
    tree.SelectItem(a);
    Draw();
    const int plain = InkIn(a, 120, 220, highlightText).count;
    const int below = InkIn(b, 120, 220, windowText).count;
    EXPECT_TRUE(tree.SetItemBold(a, TRUE, TRUE));
    EXPECT_TRUE(tree.SetItemColor(a, red, TRUE));
    Draw();
    EXPECT_GT(InkIn(a, 120, 220, highlightText).count, plain + 3);
    EXPECT_EQ(InkIn(a, 0, 320, red).count, 0);
    EXPECT_EQ(InkIn(b, 120, 220, windowText).count, below);
}

TEST_F(TreeListPaint, a_text_that_is_too_long_is_cut_in_every_alignment)
{
    tree.InsertColumn(0, L"Name", 0, 120, 0);
    for (const int format : {0, 1, 2})
        tree.InsertColumn(format + 1, L"Long", format, 60, 0);
    HTREEITEM const a = host.add(L"a");
    for (int column = 1; column <= 3; ++column)
        tree.SetItemText(a, column, L"MMMMMMMMMMMMMMMM");
    Draw();
    const int ink = InkIn(a, 120, 180, windowText).count;
    ASSERT_GT(ink, 10);
    for (int column = 1; column <= 3; ++column)
    {
        const Ink cell = InkIn(a, 60 + 60 * column, 120 + 60 * column, windowText);
        EXPECT_EQ(cell.count, ink) << column;
        EXPECT_LE(cell.bounds.right, 120 + 60 * column - 4) << column << ": four pixels stay free";
    }
    EXPECT_EQ(InkIn(a, 300, 400, windowText).count, 0);
}

TEST_F(TreeListPaint, a_changed_cell_is_painted_without_being_asked)
{
    AddColumns();
    HTREEITEM const a = AddRow(L"a", L"", L"");
    Draw();
    EXPECT_EQ(InkIn(a, 120, 220, windowText).count, 0);
    tree.SetItemText(a, 1, L"MM");
    host.pump(20);
    EXPECT_GT(InkIn(a, 120, 220, windowText).count, 10);
}

TEST_F(TreeListPaint, a_text_that_is_too_long_ends_in_three_points)
{
    tree.InsertColumn(0, L"Name", 0, 120, 0);
    tree.InsertColumn(1, L"Long", 0, 60, 0);
    HTREEITEM const a = host.add(L"a");
    HTREEITEM const b = host.add(L"b");
    tree.SetItemText(a, 1, L"MMMMMMMMMMMMMMMM");
    Draw();
    int shown = 16;
    while (WidthOf(std::wstring(static_cast<std::size_t>(shown), L'M').c_str()) > 60 - 8)
        --shown;
    tree.SetItemText(b, 1, (std::wstring(static_cast<std::size_t>(shown - 1), L'M') + L"...").c_str());
    Draw();
    const Ink cut = InkIn(a, 120, 180, windowText);
    const Ink same = InkIn(b, 120, 180, windowText);
    ASSERT_GT(cut.count, 10);
    EXPECT_EQ(cut.count, same.count);
    EXPECT_EQ(cut.bounds.right, same.bounds.right);
    EXPECT_EQ(InkIn(a, 180, 400, windowText).count, 0) << "nothing runs over";
}

TEST_F(TreeListPaint, narrow_columns_show_points_or_nothing)
{
    tree.InsertColumn(0, L"Name", 0, 120, 0);
    tree.InsertColumn(1, L"a", 0, 8, 0);
    tree.InsertColumn(2, L"b", 0, 4, 0);
    tree.InsertColumn(3, L"c", 0, 0, 0);
    HTREEITEM const a = host.add(L"a");
    for (int column = 1; column < 4; ++column)
        tree.SetItemText(a, column, L"MMM");
    Draw();
    EXPECT_GT(InkIn(a, 120, 128, windowText).count, 0);
    EXPECT_LE(InkIn(a, 120, 128, windowText).count, 3) << "only points";
    EXPECT_EQ(InkIn(a, 128, 400, windowText).count, 0);
}

TEST_F(TreeListPaint, scrolled_columns_are_painted_further_left)
{
    AddColumns();
    HTREEITEM const a = AddRow(L"a", L"MM", L"MM");
    tree.SelectItem(a);
    OpenTree::offset(tree) = -100;
    Draw();
    const int y = RowRect(a).CenterPoint().y;
    EXPECT_EQ(PixelAt(218, y), highlight) << "320 columns wide, 100 scrolled";
    EXPECT_EQ(PixelAt(221, y), window);
    const Ink right = InkIn(a, 20, 120, highlightText);
    EXPECT_NEAR(right.bounds.right, 120 - 4, 3);
}

TEST_F(TreeListPaint, without_columns_only_the_background_is_left)
{
    HTREEITEM const a = host.add(L"MMMM");
    tree.SelectItem(a);
    Draw();
    const CRect row = RowRect(a);
    EXPECT_EQ(InkOf(CRect(0, 1, 400, 100), window).count, 400 * 99)
        << "kept on purpose: the tree itself is painted over";
    EXPECT_GT(row.Height(), 0);
}

TEST_F(TreeListPaint, a_thousand_columns_are_painted_where_they_are)
{
    for (int column = 0; column < 1000; ++column)
        tree.InsertColumn(column, L"c", 0, 40, 0);
    HTREEITEM const a = host.add(L"a");
    tree.SetItemText(a, 999, L"M");
    tree.SetItemText(a, 998, L"");
    OpenTree::offset(tree) = -39800; // columns 995 to 999 are at 0 to 200
    Draw();
    EXPECT_GT(InkIn(a, 160, 200, windowText).count, 3);
    EXPECT_EQ(InkIn(a, 0, 160, windowText).count, 0);
}

TEST_F(TreeListPaint, a_node_without_a_record_has_no_text)
{
    AddColumns();
    HTREEITEM const node =
        tree.CTreeCtrl::InsertItem(TVIF_TEXT | TVIF_PARAM, L"MMMM", 0, 0, 0, 0, 12345, TVI_ROOT, TVI_LAST);
    Draw();
    CRect text;
    tree.GetItemRect(node, &text, TRUE);
    EXPECT_EQ(InkIn(node, text.left, 400, windowText).count, 0);
    tree.SelectItem(node);
    Draw();
    EXPECT_EQ(PixelAt(300, RowRect(node).CenterPoint().y), highlight);
}

TEST_F(TreeListPaint, a_deep_row_does_not_reach_into_the_second_column)
{
    AddColumns();
    HTREEITEM node = TVI_ROOT;
    for (int level = 0; level < 10; ++level)
    {
        node = host.add(L"MMMM", node);
        tree.SetItemText(node, 1, L"MM");
    }
    for (HTREEITEM open = tree.GetRootItem(); open != nullptr; open = tree.GetChildItem(open))
        tree.Expand(open, TVE_EXPAND);
    Draw();
    CRect text;
    tree.GetItemRect(node, &text, TRUE);
    ASSERT_GT(text.left, 120);
    EXPECT_EQ(InkIn(node, 120, 180, windowText).count, 0);
    EXPECT_GT(InkIn(node, 190, 220, windowText).count, 10);
    Save(L"treelist-deep.png");
}

TEST_F(TreeListPaint, a_text_of_a_million_characters_is_painted)
{
    AddColumns();
    HTREEITEM const a = AddRow(L"a", std::wstring(1000000, L'M').c_str(), L"M");
    Draw();
    EXPECT_GT(InkIn(a, 120, 220, windowText).count, 10);
    EXPECT_GT(InkIn(a, 220, 320, windowText).count, 3);
}

TEST_F(TreeListPaint, the_open_editor_is_not_painted_over)
{
    host.frame->SetCanModifyLabels(true);
    AddColumns();
    tree.SetCanEditColumn(1, true);
    HTREEITEM const a = AddRow(L"a", L"MM", L"c");
    tree.SelectItem(a);
    Draw();
    host.clickRow(a, 170);
    ASSERT_NE(host.editor(), nullptr);
    Draw();
    EXPECT_EQ(InkIn(a, 124, 216, highlight).count, 0) << "the editor's own white stands there";
    EXPECT_EQ(PixelAt(300, RowRect(a).CenterPoint().y), highlight);
    Save(L"treelist-editor.png");
}

TEST_F(TreeListPaint, a_cell_may_be_drawn_anywhere)
{
    CClientDC screen(&tree);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 100, 20);
    CBitmap* const old = memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, 100, 20, red);
    tree.DrawItemText(&memory, L"", CRect(0, 0, 100, 20), 100, 0);
    tree.DrawItemText(&memory, L"MM", CRect(0, 0, 100, 20), 4, 0);
    tree.DrawItemText(nullptr, L"MM", CRect(0, 0, 100, 20), 100, 0);
    int changed = 0;
    const auto count = [&]
    {
        changed = 0;
        for (int x = 0; x < 100; ++x)
        {
            for (int y = 0; y < 20; ++y)
                changed += memory.GetPixel(x, y) != red ? 1 : 0;
        }
        return changed;
    };
    EXPECT_EQ(count(), 0);
    tree.DrawItemText(&memory, L"MM", CRect(0, 0, 1, 20), 100, 1);
    EXPECT_GT(count(), 10) << "the width counts, not the rectangle's right edge";
    memory.SelectObject(old);
}

TEST_F(TreeListPaint, painted_a_thousand_times_leaves_nothing)
{
    AddColumns();
    AddRow(L"a", L"b", L"c");
    tree.SetItemBold(tree.GetRootItem(), TRUE, TRUE);
    tree.SelectItem(tree.GetRootItem());
    Draw();
    const int before = gdiObjectCount();
    for (int round = 0; round < 1000; ++round)
        tree.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_EQ(gdiObjectCount(), before);
}
} // namespace
