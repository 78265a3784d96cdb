// Hosts that change rows while the platform's tree tells of something: no such change may break the tree.
#include <gtest/gtest.h>
#include <functional>
#include <string>
#include <utility>
#include "NotificationCauses.h"

namespace
{
/// The row that a notification of the tree is about; the first one where it names none.
HTREEITEM toldRow(OpenFrame& frame, const NMHDR& notification)
{
    HTREEITEM row = nullptr;
    const UINT code = notification.code;
    if (code == static_cast<UINT>(TVN_GETDISPINFOW) || code == static_cast<UINT>(TVN_BEGINLABELEDITW))
        row = reinterpret_cast<const NMTVDISPINFOW&>(notification).item.hItem;
    else if (code == static_cast<UINT>(TVN_DELETEITEMW))
        row = reinterpret_cast<const NMTREEVIEWW&>(notification).itemOld.hItem;
    else if (code <= static_cast<UINT>(TVN_SELCHANGINGA) && code >= static_cast<UINT>(TVN_ITEMEXPANDEDW))
        row = reinterpret_cast<const NMTREEVIEWW&>(notification).itemNew.hItem;
    return row == nullptr ? firstRow(frame) : row;
}

/// What the host does with the row.
struct Change
{
    const char* what;
    void (*act)(OpenFrame& frame, HTREEITEM row);
};

const Change changes[] = {
    {"deletes the row", [](OpenFrame& f, HTREEITEM row) { f.m_tree.DeleteItem(row); }},
    {"deletes what is above the row",
     [](OpenFrame& f, HTREEITEM row)
     {
         HTREEITEM const above = f.m_tree.GetParentItem(row);
         f.m_tree.DeleteItem(above == nullptr ? row : above);
     }},
    {"deletes the next row",
     [](OpenFrame& f, HTREEITEM row) { f.m_tree.DeleteItem(f.m_tree.GetNextSiblingItem(row)); }},
    {"deletes the first row", [](OpenFrame& f, HTREEITEM) { f.m_tree.DeleteItem(0); }},
    {"deletes the second row", [](OpenFrame& f, HTREEITEM) { f.m_tree.DeleteItem(secondRow(f)); }},
    {"deletes the row by a message",
     [](OpenFrame& f, HTREEITEM row) { f.m_tree.SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(row)); }},
    {"deletes all", [](OpenFrame& f, HTREEITEM) { f.m_tree.DeleteAllItems(); }},
    {"deletes all by a message", [](OpenFrame& f, HTREEITEM) { f.m_tree.CTreeCtrl::DeleteAllItems(); }},
    {"destroys the records", [](OpenFrame& f, HTREEITEM row) { f.m_tree.MemDeleteAllItems(row); }},
    {"inserts below the row", [](OpenFrame& f, HTREEITEM row) { f.m_tree.InsertItem(L"new", row, TVI_LAST); }},
    {"inserts behind the row",
     [](OpenFrame& f, HTREEITEM row) { f.m_tree.InsertItem(L"new", f.m_tree.GetParentItem(row), row); }},
    {"copies the row", [](OpenFrame& f, HTREEITEM row) { f.m_tree.CopyItem(row, TVI_ROOT, TVI_FIRST); }},
    {"copies a row below the row",
     [](OpenFrame& f, HTREEITEM row) { f.m_tree.CopyItem(f.m_tree.GetNextSiblingItem(secondRow(f)), row, TVI_FIRST); }},
    {"moves the row", [](OpenFrame& f, HTREEITEM row) { f.m_tree.MoveItem(row, TVI_ROOT, TVI_FIRST); }},
    {"moves the row and its children",
     [](OpenFrame& f, HTREEITEM row) { f.m_tree.MoveItemAndChildren(row, TVI_ROOT, TVI_LAST, true); }},
    {"moves the second row below the row",
     [](OpenFrame& f, HTREEITEM row) { f.m_tree.MoveItem(secondRow(f), row, TVI_LAST); }},
    {"sorts", [](OpenFrame& f, HTREEITEM) { f.m_tree.SortItems(0, FALSE, nullptr); }},
    {"sorts all levels", [](OpenFrame& f, HTREEITEM) { f.SortTree(0, 0, firstRow(f)); }},
    {"expands the row", [](OpenFrame& f, HTREEITEM row) { f.m_tree.Expand(row, TVE_EXPAND); }},
    {"expands all", [](OpenFrame& f, HTREEITEM) { f.ExpandTree(); }},
    {"collapses the row", [](OpenFrame& f, HTREEITEM row) { f.m_tree.Expand(row, TVE_COLLAPSE); }},
    {"collapses and resets the row",
     [](OpenFrame& f, HTREEITEM row) { f.m_tree.Expand(row, TVE_COLLAPSE | TVE_COLLAPSERESET); }},
    {"collapses and resets the first row",
     [](OpenFrame& f, HTREEITEM) { f.m_tree.Expand(firstRow(f), TVE_COLLAPSE | TVE_COLLAPSERESET); }},
    {"selects the row", [](OpenFrame& f, HTREEITEM row) { f.m_tree.SelectItem(row); }},
    {"selects the first row", [](OpenFrame& f, HTREEITEM) { f.m_tree.SelectItem(firstRow(f)); }},
    {"selects nothing", [](OpenFrame& f, HTREEITEM) { f.m_tree.SelectItem(nullptr); }},
    {"edits the row", [](OpenFrame& f, HTREEITEM row) { f.m_tree.EditLabel(row); }},
    {"finds or adds a row",
     [](OpenFrame& f, HTREEITEM row)
     {
         f.InsertItemIfNecessary(row, L"new", 3);
         f.InsertItemIfNecessary(nullptr, L"new", 2.5);
     }},
    {"adds a column", [](OpenFrame& f, HTREEITEM) { f.m_tree.InsertColumn(0, L"new", 0, 300, 0); }},
    {"writes a cell", [](OpenFrame& f, HTREEITEM row) { f.m_tree.SetItemText(row, 1, L"new"); }},
    {"changes editing", [](OpenFrame& f, HTREEITEM) { f.SetCanModifyLabels(!f.GetCanModifyLabels()); }},
    {"paints", [](OpenFrame& f, HTREEITEM) { paint(f.m_tree); }},
};

const Cause furtherCauses[] = {
    {"a row is collapsed by a key", TVN_ITEMEXPANDINGW,
     [](OpenFrame& f)
     {
         f.m_tree.Expand(firstRow(f), TVE_EXPAND);
         f.m_tree.SendMessage(WM_KEYDOWN, VK_SUBTRACT, 1);
     }},
    {"a row has been collapsed by a key", TVN_ITEMEXPANDEDW,
     [](OpenFrame& f)
     {
         f.m_tree.Expand(firstRow(f), TVE_EXPAND);
         f.m_tree.SendMessage(WM_KEYDOWN, VK_SUBTRACT, 1);
     }},
    {"a row is expanded by a key", TVN_ITEMEXPANDINGW,
     [](OpenFrame& f) { f.m_tree.SendMessage(WM_KEYDOWN, VK_ADD, 1); }},
    {"a row is collapsed and reset", TVN_DELETEITEMW,
     [](OpenFrame& f)
     {
         f.m_tree.Expand(firstRow(f), TVE_EXPAND);
         f.m_tree.Expand(firstRow(f), TVE_COLLAPSE | TVE_COLLAPSERESET);
     }},
    {"all rows are deleted by a message", TVN_DELETEITEMW, [](OpenFrame& f) { f.m_tree.CTreeCtrl::DeleteAllItems(); }},
    {"an image is asked for", TVN_GETDISPINFOW,
     [](OpenFrame& f)
     {
         f.m_tree.InsertItem(L"asks", I_IMAGECALLBACK, I_IMAGECALLBACK, TVI_ROOT, TVI_FIRST);
         paint(f.m_tree);
     }},
    {"an image is asked for by a copy", TVN_GETDISPINFOW,
     [](OpenFrame& f)
     {
         HTREEITEM const row = f.m_tree.InsertItem(L"asks", I_IMAGECALLBACK, I_IMAGECALLBACK, TVI_ROOT, TVI_FIRST);
         f.m_tree.CopyItem(row, TVI_ROOT, TVI_LAST);
     }},
    {"a selected row is deleted", TVN_SELCHANGEDW,
     [](OpenFrame& f)
     {
         f.m_tree.SelectItem(secondRow(f));
         f.m_tree.DeleteItem(secondRow(f));
     }},
    {"the row above the selection is collapsed and reset", TVN_DELETEITEMW,
     [](OpenFrame& f)
     {
         f.m_tree.Expand(firstRow(f), TVE_EXPAND);
         f.m_tree.SelectItem(f.m_tree.GetChildItem(firstRow(f)));
         f.m_tree.Expand(firstRow(f), TVE_COLLAPSE | TVE_COLLAPSERESET);
     }},
    {"a row is clicked", TVN_SELCHANGINGW,
     [](OpenFrame& f) { f.m_tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, placeOf(f, secondRow(f))); }},
    {"the right button is pressed", NM_RCLICK,
     [](OpenFrame& f)
     {
         const HWND window = f.m_tree.m_hWnd;
         ::PostMessage(window, WM_RBUTTONUP, 0, placeOf(f, secondRow(f)));
         ::SendMessage(window, WM_RBUTTONDOWN, MK_RBUTTON, placeOf(f, secondRow(f)));
     }},
};

/// The number of nodes below a row, or of all; each must be where its neighbours say.
UINT countBelow(const CKxTreeListViewCtrl& tree, HTREEITEM parent)
{
    UINT count = 0;
    HTREEITEM before = nullptr;
    for (HTREEITEM node = parent == nullptr ? tree.GetRootItem() : tree.GetChildItem(parent);
         node != nullptr && count < 1000; node = tree.GetNextSiblingItem(node))
    {
        EXPECT_EQ(parent, tree.GetParentItem(node));
        EXPECT_EQ(before, tree.GetPrevSiblingItem(node));
        count += 1 + countBelow(tree, node);
        before = node;
    }
    return count;
}

/// Whether the frame goes on as any other.
void expectSound(OpenFrame& frame)
{
    CKxTreeListViewCtrl& tree = frame.m_tree;
    EXPECT_EQ(tree.GetCount(), countBelow(tree, nullptr));
    HTREEITEM const row = tree.InsertItem(L"later", TVI_ROOT, TVI_FIRST);
    ASSERT_NE(nullptr, row);
    EXPECT_NE(nullptr, tree.InsertItem(L"below", row, TVI_LAST));
    tree.Expand(row, TVE_EXPAND);
    tree.SelectItem(row);
    EXPECT_EQ(row, tree.GetSelectedItem());
    paint(frame.m_tree);
    EXPECT_NE(0, tree.DeleteItem(row));
    EXPECT_NE(0, tree.DeleteAllItems());
    EXPECT_EQ(0U, tree.GetCount());
}

class ChangedInNotification : public testing::TestWithParam<Cause>
{
};

/// The host does that at each such notification.
void meet(const Cause& cause, const Change& change)
{
    SCOPED_TRACE(std::string(cause.what) + ": the host " + change.what);
    FrameHost host(IDD_FRAME_HOST, true);
    OpenFrame& frame = host.usual();
    frame.addColumns(2, 120);
    frame.addRows(4);
    HTREEITEM const below = frame.m_tree.InsertItem(L"below", firstRow(frame), TVI_LAST);
    frame.m_tree.InsertItem(L"beside", firstRow(frame), TVI_LAST);
    frame.m_tree.InsertItem(L"deep", below, TVI_LAST);
    frame.m_tree.SelectItem(firstRow(frame));
    host.GetDlgItem(IDC_OTHER)->SetFocus();
    constexpr int deepest = 2; // what the host does makes the tree tell of more
    constexpr int most = 30;
    int told = 0;
    int depth = 0;
    host.onHear = [&](const HeardByHost& one)
    {
        if (one.message != WM_NOTIFY || one.code != cause.code || depth > deepest || told > most)
            return;
        const NMHDR& notification = *reinterpret_cast<const NMHDR*>(one.lParam);
        if (notification.idFrom != CKxTreeListFrame::ID_TREE)
            return;
        ++told;
        ++depth;
        change.act(frame, toldRow(frame, notification));
        --depth;
    };
    cause.act(frame);
    pumpFor(0);
    host.onHear = nullptr;
    EXPECT_GT(told, 0) << "it was not told";
    expectSound(frame);
}

std::string nameOf(const testing::TestParamInfo<Cause>& one)
{
    std::string name = one.param.what;
    for (char& character : name)
        character = character == ' ' ? '_' : character;
    return name;
}
} // namespace

TEST_P(ChangedInNotification, leaves_a_sound_tree)
{
    for (const Change& change : changes)
        meet(GetParam(), change);
}

INSTANTIATE_TEST_SUITE_P(OfTheTree, ChangedInNotification, testing::ValuesIn(ofTheTree), nameOf);
INSTANTIATE_TEST_SUITE_P(Further, ChangedInNotification, testing::ValuesIn(furtherCauses), nameOf);

// ---- What is put off, what is refused, and what is done at once

namespace
{
/// Two columns, four rows, two below the first one.
class PutOff : public testing::Test
{
protected:
    PutOff()
    {
        frame.addColumns(2, 120);
        frame.addRows(4);
        for (const wchar_t* text : {L"x", L"y"})
            tree.InsertItem(text, firstRow(frame), TVI_LAST);
    }
    /// Does that at the first such notification.
    void at(UINT code, const std::function<void()>& act)
    {
        host.onHear = [this, code, act](const HeardByHost& one)
        {
            if (one.message == WM_NOTIFY && one.code == code && !std::exchange(m_told, true))
                act();
        };
    }

    FrameHost host{IDD_FRAME_HOST, true};
    OpenFrame& frame = host.usual();
    CKxTreeListViewCtrl& tree = frame.m_tree;

private:
    bool m_told = false;
};
} // namespace

TEST_F(PutOff, a_row_that_expands_goes_when_it_has_expanded)
{
    HTREEITEM const row = firstRow(frame);
    at(TVN_ITEMEXPANDINGW,
       [&]
       {
           EXPECT_TRUE(tree.DeleteItem(row));
           EXPECT_EQ(row, firstRow(frame)) << "still there";
           EXPECT_EQ(5, tree.GetItemCount());
           EXPECT_EQ(nullptr, tree.MoveItemAndChildren(row, TVI_ROOT, TVI_LAST, false));
       });
    tree.Expand(row, TVE_EXPAND);
    EXPECT_EQ(L"row 001 row 002 row 003", frame.rows());
    EXPECT_EQ(5, tree.GetItemCount());
}

TEST_F(PutOff, the_rows_below_one_that_expands_are_replaced_at_once)
{
    HTREEITEM const row = firstRow(frame);
    at(TVN_ITEMEXPANDINGW,
       [&]
       {
           while (HTREEITEM const child = tree.GetChildItem(row))
               tree.DeleteItem(child);
           EXPECT_NE(nullptr, tree.InsertItem(L"fresh", row, TVI_LAST));
       });
    tree.Expand(row, TVE_EXPAND);
    EXPECT_NE(0U, tree.GetItemState(row, TVIS_EXPANDED));
    EXPECT_TRUE(tree.GetItemText(tree.GetChildItem(row), 0) == L"fresh");
    EXPECT_EQ(5U, tree.GetCount());
}

TEST_F(PutOff, a_list_is_made_anew_when_a_row_was_selected)
{
    at(TVN_SELCHANGEDW,
       [&]
       {
           EXPECT_TRUE(tree.DeleteAllItems());
           EXPECT_EQ(0U, tree.GetCount()) << "at once";
           frame.addRows(2);
       });
    tree.SelectItem(secondRow(frame));
    EXPECT_EQ(L"row 000 row 001", frame.rows());
}

TEST_F(PutOff, a_list_made_anew_while_it_is_painted_keeps_its_new_rows)
{
    at(static_cast<UINT>(NM_CUSTOMDRAW),
       [&]
       {
           EXPECT_TRUE(tree.DeleteAllItems());
           EXPECT_NE(nullptr, tree.InsertItem(L"new", TVI_ROOT, TVI_LAST));
       });
    paint(tree);
    EXPECT_EQ(L"new", frame.rows());
    EXPECT_EQ(1U, tree.GetCount());
}

TEST_F(PutOff, the_delete_key_deletes_the_selected_row_and_selects_the_next)
{
    tree.SelectItem(secondRow(frame));
    at(TVN_KEYDOWN, [&] { EXPECT_TRUE(tree.DeleteItem(tree.GetSelectedItem())); });
    tree.SendMessage(WM_KEYDOWN, VK_DELETE, 1);
    EXPECT_EQ(L"row 000 row 002 row 003", frame.rows());
    EXPECT_TRUE(tree.GetItemText(tree.GetSelectedItem(), 0) == L"row 002");
}

TEST_F(PutOff, a_row_that_is_deleted_gets_no_new_ones_and_is_not_deleted_twice)
{
    HTREEITEM const row = firstRow(frame);
    at(TVN_DELETEITEMW,
       [&]
       {
           EXPECT_EQ(nullptr, tree.InsertItem(L"new", row, TVI_LAST));
           EXPECT_FALSE(tree.SortItems(0, TRUE, nullptr));
           EXPECT_FALSE(tree.Expand(row, TVE_EXPAND));
           EXPECT_FALSE(tree.SelectItem(row));
           EXPECT_FALSE(tree.DeleteItem(row));
           EXPECT_TRUE(tree.DeleteItem(secondRow(frame))) << "another one goes later";
           EXPECT_NE(nullptr, tree.InsertItem(L"elsewhere", TVI_ROOT, TVI_LAST));
       });
    EXPECT_TRUE(tree.DeleteItem(row));
    EXPECT_EQ(L"row 002 row 003 elsewhere", frame.rows());
}

TEST_F(PutOff, a_collapse_that_takes_the_edited_row_away_ends_its_edit)
{
    tree.SetCanEditColumn(0, true);
    HTREEITEM const row = firstRow(frame);
    HTREEITEM const child = tree.GetChildItem(row);
    tree.Expand(row, TVE_EXPAND);
    tree.SelectItem(child);
    frame.openEditor(CRect(0, 0, 50, 18)).SetWindowText(L"typed");
    OpenTree::beginEdit(tree, child);
    tree.Expand(row, TVE_COLLAPSE | TVE_COLLAPSERESET);
    EXPECT_TRUE(tree.ProcessEditNotification());
    EXPECT_EQ(nullptr, frame.edit());
    EXPECT_EQ(L"row 000 row 001 row 002 row 003", frame.rows()) << "not into the row above";
    EXPECT_EQ(0, host.count(WM_KX_TREELIST_EDIT_BEFORE));
}
