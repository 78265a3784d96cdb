// Edit fields and scroll bars.
#include "Support.h"

namespace
{
const CRect place(10, 10, 210, 90);

class CLines : public CEdit
{
public:
    explicit CLines(CWnd& parent, const wchar_t* text = L"one\r\ntwo\r\nthree")
    {
        Create(WS_CHILD | WS_VISIBLE | ES_MULTILINE | ES_AUTOVSCROLL, place, &parent, 5);
        SetWindowText(text);
    }
};
} // namespace

TEST(Edit, selection_both_ways)
{
    CParentWindow parent;
    CLines edit(parent, L"0123456789");
    edit.SetSel(2, 5);
    int start = 0;
    int end = 0;
    edit.GetSel(start, end);
    EXPECT_EQ(2, start);
    EXPECT_EQ(5, end);
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(2, 5)), edit.GetSel());
    edit.SetSel(0, -1);
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(0, 10)), edit.GetSel());
    edit.SetSel(static_cast<DWORD>(MAKELONG(3, 4)));
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(3, 4)), edit.GetSel());
    edit.SetSel(1000, 2000);
    edit.GetSel(start, end);
    EXPECT_EQ(10, start);
    EXPECT_EQ(10, end);
}

TEST(Edit, replacing_and_undoing)
{
    CParentWindow parent;
    CLines edit(parent, L"abc");
    edit.SetSel(1, 2);
    edit.ReplaceSel(L"XYZ", TRUE);
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(L"aXYZc", plain(text));
    EXPECT_TRUE(edit.CanUndo());
    EXPECT_TRUE(edit.Undo());
    edit.GetWindowText(text);
    EXPECT_EQ(L"abc", plain(text));
    edit.EmptyUndoBuffer();
    EXPECT_FALSE(edit.CanUndo());
}

TEST(Edit, lines_are_counted_and_read)
{
    CParentWindow parent;
    CLines edit(parent);
    EXPECT_EQ(3, edit.GetLineCount());
    EXPECT_EQ(5, edit.LineIndex(1));
    EXPECT_EQ(-1, edit.LineIndex(99));
    EXPECT_EQ(2, edit.LineFromChar(11));
    EXPECT_EQ(3, edit.LineLength(5));
    wchar_t line[10] = {};
    EXPECT_EQ(5, edit.GetLine(2, line, 10));
    EXPECT_EQ(0, ::wcsncmp(L"three", line, 5));
    EXPECT_EQ(2, edit.GetLine(2, line, 2));
    EXPECT_EQ(0, edit.GetLine(99, line, 10));
    EXPECT_EQ(0, edit.GetLine(2, line, 0));
    EXPECT_EQ(0, edit.GetLine(2, nullptr, 10));
}

TEST(Edit, modified_read_only_limit_password)
{
    CParentWindow parent;
    CLines edit(parent);
    EXPECT_FALSE(edit.GetModify());
    edit.SetModify();
    EXPECT_TRUE(edit.GetModify());
    EXPECT_TRUE(edit.SetReadOnly());
    EXPECT_TRUE((edit.GetStyle() & ES_READONLY) != 0);
    edit.SetLimitText(7);
    EXPECT_EQ(7U, edit.GetLimitText());
    edit.LimitText(9);
    EXPECT_EQ(9U, edit.GetLimitText());
    CEdit password;
    ASSERT_TRUE(password.Create(WS_CHILD | ES_PASSWORD, place, &parent, 6));
    password.SetPasswordChar(L'#');
    EXPECT_EQ(L'#', password.GetPasswordChar());
}

TEST(Edit, places_of_characters)
{
    CParentWindow parent;
    CLines edit(parent);
    const CPoint second = edit.PosFromChar(5);
    const CPoint first = edit.PosFromChar(0);
    EXPECT_EQ(first.x, second.x);
    EXPECT_LT(first.y, second.y);
    EXPECT_EQ(5, LOWORD(edit.CharFromPos(CPoint(second.x + 1, second.y + 1))));
    EXPECT_EQ(1, HIWORD(edit.CharFromPos(CPoint(second.x + 1, second.y + 1))));
    EXPECT_EQ(CPoint(-1, -1), edit.PosFromChar(1000));
}

TEST(Edit, margins_rectangles_and_scrolling)
{
    CParentWindow parent;
    CLines edit(parent, L"1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11\r\n12");
    edit.SetMargins(4, 6);
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(4, 6)), edit.GetMargins());
    edit.SetMargins(0, 0);
    CRect inner;
    edit.SetRect(CRect(5, 5, 100, 60));
    edit.GetRect(&inner);
    EXPECT_EQ(CPoint(5, 5), inner.TopLeft());
    EXPECT_EQ(100, inner.right);
    EXPECT_LE(inner.bottom, 60); // the control may cut it to whole lines
    EXPECT_GT(inner.bottom, 40);
    EXPECT_EQ(0, edit.GetFirstVisibleLine());
    edit.LineScroll(2);
    EXPECT_EQ(2, edit.GetFirstVisibleLine());
    edit.GetRect(nullptr);
    EXPECT_TRUE(edit.SetTabStops(16));
}

TEST(Edit, clipboard)
{
    CParentWindow parent;
    CLines edit(parent, L"abc");
    edit.SetSel(0, 2);
    edit.Copy();
    edit.SetSel(3, 3);
    edit.Paste();
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(L"abcab", plain(text));
    edit.SetSel(0, 3);
    edit.Cut();
    edit.GetWindowText(text);
    EXPECT_EQ(L"ab", plain(text));
    edit.SetSel(0, 1);
    edit.Clear();
    edit.GetWindowText(text);
    EXPECT_EQ(L"b", plain(text));
}

TEST(Edit, cue_banner)
{
    CParentWindow parent;
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, place, &parent, 5));
    EXPECT_TRUE(edit.SetCueBanner(L"type here"));
    wchar_t text[32] = {};
    EXPECT_TRUE(edit.GetCueBanner(text, 32));
    EXPECT_STREQ(L"type here", text);
}

TEST(Edit, takes_real_keys)
{
    CParentWindow parent;
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, place, &parent, 5));
    parent.SetForegroundWindow();
    edit.SetFocus();
    typeText(L"12é");
    ASSERT_TRUE(waitFor([&] { return edit.GetWindowTextLength() == 3; }));
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(L"12é", plain(text));
}

TEST(ScrollBar, position_and_range)
{
    CParentWindow parent;
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, CRect(0, 0, 200, 17), &parent, 5));
    bar.SetScrollRange(10, 50);
    int low = 0;
    int high = 0;
    bar.GetScrollRange(&low, &high);
    EXPECT_EQ(10, low);
    EXPECT_EQ(50, high);
    bar.SetScrollPos(20);
    EXPECT_EQ(20, bar.SetScrollPos(30));
    EXPECT_EQ(30, bar.GetScrollPos());
    bar.SetScrollPos(99);
    EXPECT_EQ(50, bar.GetScrollPos());
}

TEST(ScrollBar, records_fill_in_their_size)
{
    CParentWindow parent;
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, CRect(0, 0, 17, 200), &parent, 5));
    SCROLLINFO info = {};
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = 99;
    info.nPage = 10;
    info.nPos = 5;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    SCROLLINFO read = {};
    EXPECT_TRUE(bar.GetScrollInfo(&read));
    EXPECT_EQ(99, read.nMax);
    EXPECT_EQ(10U, read.nPage);
    EXPECT_EQ(5, read.nPos);
    EXPECT_EQ(90, bar.GetScrollLimit());
    info.fMask = SIF_PAGE;
    info.nPage = 1;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    EXPECT_EQ(99, bar.GetScrollLimit());
    info.nPage = 0;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    EXPECT_EQ(100, bar.GetScrollLimit()) << "without a page: one more than the upper end";
    EXPECT_FALSE(bar.SetScrollInfo(nullptr));
    EXPECT_FALSE(bar.GetScrollInfo(nullptr));
    EXPECT_TRUE(bar.EnableScrollBar(ESB_DISABLE_BOTH));
}
