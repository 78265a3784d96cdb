// The notifications of tree views: reflected to the control, refused, passed on; drawing by custom draw.
#include "Support.h"

#include <algorithm>
#include <string>
#include <vector>

namespace
{
constexpr UINT treeId = 5;
using Steps = std::vector<std::wstring>;
Steps steps; // written by the tree and its parent, in the order of the calls

class CHost : public CParentWindow
{
protected:
    afx_msg void OnSelChanged(NMHDR*, LRESULT* result)
    {
        steps.push_back(L"parent selchanged");
        *result = 0;
    }
    afx_msg void OnTreeClick(NMHDR*, LRESULT* result)
    {
        steps.push_back(L"parent click");
        *result = 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CHost, CParentWindow)
    // void OnSelChanged(NMHDR*, LRESULT*)
    ON_NOTIFY(TVN_SELCHANGED, treeId, &CHost::OnSelChanged)
    ON_NOTIFY(NM_CLICK, treeId, &CHost::OnTreeClick)
END_MESSAGE_MAP()

class CFiles : public CTreeCtrl
{
public:
    explicit CFiles(CWnd& parent, DWORD style = TVS_EDITLABELS)
    {
        Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS | style,
               CRect(10, 10, 250, 250), &parent, treeId);
        folder = InsertItem(L"folder");
        file = InsertItem(L"file", folder);
        other = InsertItem(L"other");
        parent.SetForegroundWindow();
        SetFocus();
        steps.clear();
    }
    HTREEITEM folder = nullptr;
    HTREEITEM file = nullptr;
    HTREEITEM other = nullptr;
    bool refuse = false; // selecting, expanding, editing
    bool acceptLabel = true;
    bool clickTaken = false;
    HTREEITEM painted = nullptr; // on red
    int paintedItems = 0;

    void clickOn(HTREEITEM item)
    {
        CRect rect;
        GetItemRect(item, &rect, TRUE);
        ClientToScreen(&rect);
        click(rect.CenterPoint());
    }

protected:
    afx_msg void OnSelChanging(NMHDR* header, LRESULT* result)
    {
        const auto& change = *reinterpret_cast<NMTREEVIEW*>(header);
        steps.push_back(L"selchanging to " + plain(GetItemText(change.itemNew.hItem)));
        *result = refuse;
    }
    afx_msg BOOL OnSelChanged(NMHDR* header, LRESULT* result)
    {
        const auto& change = *reinterpret_cast<NMTREEVIEW*>(header);
        steps.push_back(L"selchanged from " + plain(GetItemText(change.itemOld.hItem)));
        *result = 0;
        return FALSE; // for the parent too
    }
    afx_msg void OnItemExpanding(NMHDR* header, LRESULT* result)
    {
        const auto& change = *reinterpret_cast<NMTREEVIEW*>(header);
        steps.push_back(change.action == TVE_EXPAND ? L"expanding" : L"collapsing");
        *result = refuse;
    }
    afx_msg void OnItemExpanded(NMHDR*, LRESULT* result)
    {
        steps.push_back(L"expanded");
        *result = 0;
    }
    afx_msg void OnBeginLabelEdit(NMHDR* header, LRESULT* result)
    {
        const auto& edited = *reinterpret_cast<NMTVDISPINFO*>(header);
        steps.push_back(L"begin edit of " + plain(GetItemText(edited.item.hItem)));
        *result = refuse;
    }
    afx_msg void OnEndLabelEdit(NMHDR* header, LRESULT* result)
    {
        const auto& edited = *reinterpret_cast<NMTVDISPINFO*>(header);
        steps.push_back(edited.item.pszText == nullptr ? L"edit cancelled"
                                                       : L"edited to " + std::wstring(edited.item.pszText));
        *result = acceptLabel;
    }
    afx_msg void OnDeleteItem(NMHDR* header, LRESULT* result)
    {
        const auto& change = *reinterpret_cast<NMTREEVIEW*>(header);
        steps.push_back(L"deleted " + std::to_wstring(change.itemOld.lParam));
        *result = 0;
    }
    afx_msg void OnGetDispInfo(NMHDR* header, LRESULT* result)
    {
        auto& asked = *reinterpret_cast<NMTVDISPINFO*>(header);
        if ((asked.item.mask & TVIF_TEXT) != 0)
            ::lstrcpynW(asked.item.pszText, L"on demand", asked.item.cchTextMax);
        *result = 0;
    }
    afx_msg void OnKeyPressed(NMHDR* header, LRESULT* result)
    {
        const auto& pressed = *reinterpret_cast<NMTVKEYDOWN*>(header);
        steps.push_back(L"key " + std::to_wstring(pressed.wVKey));
        *result = 0;
    }
    afx_msg BOOL OnClick(NMHDR*, LRESULT* result)
    {
        steps.push_back(L"click");
        *result = 0;
        return clickTaken;
    }
    afx_msg void OnDoubleClick(NMHDR*, LRESULT* result)
    {
        steps.push_back(L"double click");
        *result = 0;
    }
    afx_msg void OnRightClick(NMHDR*, LRESULT* result)
    {
        steps.push_back(L"right click");
        *result = 0;
    }
    afx_msg void OnSetFocusNotified(NMHDR*, LRESULT* result)
    {
        steps.push_back(L"focus");
        *result = 0;
    }
    afx_msg void OnKillFocusNotified(NMHDR*, LRESULT* result)
    {
        steps.push_back(L"no focus");
        *result = 0;
    }
    afx_msg void OnCustomDraw(NMHDR* header, LRESULT* result)
    {
        auto& draw = *reinterpret_cast<NMTVCUSTOMDRAW*>(header);
        *result = CDRF_DODEFAULT;
        if (draw.nmcd.dwDrawStage == CDDS_PREPAINT)
            *result = CDRF_NOTIFYITEMDRAW;
        if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT)
            return;
        ++paintedItems;
        if (reinterpret_cast<HTREEITEM>(draw.nmcd.dwItemSpec) == painted)
            draw.clrTextBk = red;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CFiles, CTreeCtrl)
    // void OnNotification(NMHDR*, LRESULT*)
    ON_NOTIFY_REFLECT(TVN_SELCHANGING, &CFiles::OnSelChanging)
    // BOOL OnNotification(NMHDR*, LRESULT*)
    ON_NOTIFY_REFLECT_EX(TVN_SELCHANGED, &CFiles::OnSelChanged)
    ON_NOTIFY_REFLECT(TVN_ITEMEXPANDING, &CFiles::OnItemExpanding)
    ON_NOTIFY_REFLECT(TVN_ITEMEXPANDED, &CFiles::OnItemExpanded)
    ON_NOTIFY_REFLECT(TVN_BEGINLABELEDIT, &CFiles::OnBeginLabelEdit)
    ON_NOTIFY_REFLECT(TVN_ENDLABELEDIT, &CFiles::OnEndLabelEdit)
    ON_NOTIFY_REFLECT(TVN_DELETEITEM, &CFiles::OnDeleteItem)
    ON_NOTIFY_REFLECT(TVN_GETDISPINFO, &CFiles::OnGetDispInfo)
    ON_NOTIFY_REFLECT(TVN_KEYDOWN, &CFiles::OnKeyPressed)
    ON_NOTIFY_REFLECT_EX(NM_CLICK, &CFiles::OnClick)
    ON_NOTIFY_REFLECT(NM_DBLCLK, &CFiles::OnDoubleClick)
    ON_NOTIFY_REFLECT(NM_RCLICK, &CFiles::OnRightClick)
    ON_NOTIFY_REFLECT(NM_SETFOCUS, &CFiles::OnSetFocusNotified)
    ON_NOTIFY_REFLECT(NM_KILLFOCUS, &CFiles::OnKillFocusNotified)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &CFiles::OnCustomDraw)
END_MESSAGE_MAP()

class TreeNotifications : public testing::Test
{
protected:
    CHost host;
    CFiles tree{host};
};
} // namespace

TEST_F(TreeNotifications, a_click_selects_and_the_parent_hears_what_the_tree_lets_through)
{
    tree.SelectItem(tree.folder);
    steps.clear();
    tree.clickOn(tree.other);
    EXPECT_EQ(steps, (Steps{L"click", L"parent click", L"selchanging to other", L"selchanged from folder",
                            L"parent selchanged"}));
}

TEST_F(TreeNotifications, a_taken_click_does_not_reach_the_parent)
{
    tree.clickTaken = true;
    tree.clickOn(tree.other);
    EXPECT_EQ(0, std::count(steps.begin(), steps.end(), L"parent click"));
    EXPECT_EQ(1, std::count(steps.begin(), steps.end(), L"click"));
}

TEST_F(TreeNotifications, a_refused_selection_stays)
{
    tree.SelectItem(tree.folder);
    tree.refuse = true;
    steps.clear();
    EXPECT_FALSE(tree.SelectItem(tree.other));
    EXPECT_EQ(tree.folder, tree.GetSelectedItem());
    EXPECT_EQ(steps, Steps{L"selchanging to other"});
}

TEST_F(TreeNotifications, keys_expand_and_collapse)
{
    tree.SelectItem(tree.folder);
    steps.clear();
    key(VK_RIGHT);
    EXPECT_EQ(steps, (Steps{L"key 39", L"expanding", L"expanded"}));
    EXPECT_NE(0U, tree.GetItemState(tree.folder, TVIS_EXPANDED));
    steps.clear();
    key(VK_LEFT);
    EXPECT_EQ(steps, (Steps{L"key 37", L"collapsing", L"expanded"}));
    EXPECT_EQ(0U, tree.GetItemState(tree.folder, TVIS_EXPANDED));
}

TEST_F(TreeNotifications, a_refused_expansion_changes_nothing)
{
    tree.SelectItem(tree.folder);
    tree.refuse = true;
    key(VK_RIGHT);
    EXPECT_EQ(0U, tree.GetItemState(tree.folder, TVIS_EXPANDED));
    EXPECT_EQ(0, std::count(steps.begin(), steps.end(), L"expanded"));
}

TEST_F(TreeNotifications, a_refused_label_edit_opens_no_field)
{
    tree.refuse = true;
    EXPECT_EQ(nullptr, tree.EditLabel(tree.other));
    EXPECT_EQ(nullptr, tree.GetEditControl());
    EXPECT_EQ(steps, Steps{L"begin edit of other"});
}

TEST_F(TreeNotifications, a_typed_label_is_kept_when_the_tree_accepts_it)
{
    ASSERT_NE(nullptr, tree.EditLabel(tree.folder));
    steps.clear();
    typeText(L"box");
    key(VK_RETURN);
    EXPECT_EQ(1, std::count(steps.begin(), steps.end(), L"edited to box"));
    EXPECT_EQ(L"box", plain(tree.GetItemText(tree.folder)));

    tree.acceptLabel = false;
    ASSERT_NE(nullptr, tree.EditLabel(tree.folder));
    typeText(L"crate");
    key(VK_RETURN);
    EXPECT_EQ(L"box", plain(tree.GetItemText(tree.folder)));
}

TEST_F(TreeNotifications, escape_cancels_a_label_edit)
{
    ASSERT_NE(nullptr, tree.EditLabel(tree.folder));
    steps.clear();
    typeText(L"box");
    key(VK_ESCAPE);
    EXPECT_EQ(1, std::count(steps.begin(), steps.end(), L"edit cancelled"));
    EXPECT_EQ(L"folder", plain(tree.GetItemText(tree.folder)));
    EXPECT_EQ(nullptr, tree.GetEditControl());
}

TEST_F(TreeNotifications, each_deleted_item_is_told_with_its_data)
{
    tree.SetItemData(tree.folder, 1);
    tree.SetItemData(tree.file, 2);
    tree.SetItemData(tree.other, 3);
    tree.SelectItem(nullptr);
    steps.clear();
    tree.DeleteItem(tree.folder);
    std::sort(steps.begin(), steps.end());
    EXPECT_EQ(steps, (Steps{L"deleted 1", L"deleted 2"}));
    steps.clear();
    tree.DeleteAllItems();
    EXPECT_EQ(steps, Steps{L"deleted 3"});
}

TEST_F(TreeNotifications, texts_on_demand_come_from_the_tree_itself)
{
    HTREEITEM const item = tree.InsertItem(LPSTR_TEXTCALLBACK);
    EXPECT_EQ(L"on demand", plain(tree.GetItemText(item)));
}

TEST_F(TreeNotifications, double_and_right_clicks_and_the_focus)
{
    CRect rect;
    tree.GetItemRect(tree.other, &rect, TRUE);
    const LPARAM at = MAKELPARAM(rect.CenterPoint().x, rect.CenterPoint().y);
    steps.clear();
    tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, at);
    EXPECT_EQ(1, std::count(steps.begin(), steps.end(), L"double click"));
    tree.ClientToScreen(&rect);
    steps.clear();
    click(rect.CenterPoint(), true);
    EXPECT_EQ(1, std::count(steps.begin(), steps.end(), L"right click"));
    steps.clear();
    host.SetFocus();
    tree.SetFocus();
    EXPECT_EQ(steps, (Steps{L"no focus", L"focus"}));
}

TEST_F(TreeNotifications, custom_draw_paints_one_row_on_its_own_colour)
{
    tree.painted = tree.other;
    tree.SelectItem(nullptr);
    tree.paintedItems = 0;
    tree.RedrawWindow();
    EXPECT_EQ(2, tree.paintedItems) << "folder is closed";
    CClientDC dc(&tree);
    CRect rect;
    ASSERT_TRUE(tree.GetItemRect(tree.other, &rect, TRUE));
    EXPECT_EQ(red, dc.GetPixel(rect.left + 1, rect.top + 1));
    ASSERT_TRUE(tree.GetItemRect(tree.folder, &rect, TRUE));
    EXPECT_EQ(::GetSysColor(COLOR_WINDOW), dc.GetPixel(rect.left + 1, rect.top + 1));
}

TEST_F(TreeNotifications, hit_tests_tell_the_part_of_the_row)
{
    CRect label;
    ASSERT_TRUE(tree.GetItemRect(tree.folder, &label, TRUE));
    const int middle = label.CenterPoint().y;
    CRect client;
    tree.GetClientRect(&client);
    const struct
    {
        CPoint at;
        UINT flags;
        HTREEITEM item;
    } rows[] = {
        {label.CenterPoint(), TVHT_ONITEMLABEL, tree.folder},
        {CPoint(label.right + 10, middle), TVHT_ONITEMRIGHT, tree.folder},
        {CPoint(label.left - static_cast<int>(tree.GetIndent()) / 2, middle), TVHT_ONITEMBUTTON, tree.folder},
        {CPoint(label.left, client.bottom - 1), TVHT_NOWHERE, nullptr},
        {CPoint(label.left, client.bottom + 20), TVHT_BELOW, nullptr},
        {CPoint(client.right + 20, middle), TVHT_TORIGHT, nullptr},
        {CPoint(-20, middle), TVHT_TOLEFT, nullptr},
        {CPoint(label.left, -20), TVHT_ABOVE, nullptr},
    };
    for (const auto& row : rows)
    {
        UINT flags = 0;
        EXPECT_EQ(row.item, tree.HitTest(row.at, &flags)) << row.at.x << ',' << row.at.y;
        EXPECT_EQ(row.flags, flags) << row.at.x << ',' << row.at.y;
    }
}

TEST_F(TreeNotifications, the_visible_rows_are_walked_and_scrolled_to)
{
    for (int i = 0; i < 100; ++i)
        tree.InsertItem(std::to_wstring(i).c_str());
    CRect client;
    tree.GetClientRect(&client);
    EXPECT_EQ(static_cast<UINT>(client.Height() / tree.GetItemHeight()), tree.GetVisibleCount());
    HTREEITEM last = tree.GetRootItem();
    while (tree.GetNextSiblingItem(last) != nullptr)
        last = tree.GetNextSiblingItem(last);
    EXPECT_TRUE(tree.EnsureVisible(last));
    CRect rect;
    ASSERT_TRUE(tree.GetItemRect(last, &rect, FALSE));
    EXPECT_LE(rect.bottom, client.bottom);
    EXPECT_EQ(last, tree.GetLastVisibleItem());
    EXPECT_TRUE(tree.SelectSetFirstVisible(tree.other));
    EXPECT_EQ(tree.other, tree.GetFirstVisibleItem());
    UINT rows = 1;
    for (HTREEITEM row = tree.GetFirstVisibleItem(); (row = tree.GetNextVisibleItem(row)) != nullptr;)
        ++rows;
    EXPECT_EQ(101U, rows) << "other and all behind it, whether they fit or not";
}
