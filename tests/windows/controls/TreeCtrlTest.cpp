// Tree views.
#include "Support.h"
#include "resource.h"

#include <memory>

namespace
{
class CPlants : public CTreeCtrl
{
public:
    explicit CPlants(CWnd& parent, DWORD style = 0)
    {
        Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | style, CRect(10, 10, 250, 250),
               &parent, 5);
        trees = InsertItem(L"trees");
        oak = InsertItem(L"oak", trees);
        ash = InsertItem(L"ash", trees);
        flowers = InsertItem(L"flowers");
    }
    HTREEITEM trees = nullptr;
    HTREEITEM oak = nullptr;
    HTREEITEM ash = nullptr;
    HTREEITEM flowers = nullptr;
};

int CALLBACK byDataDescending(LPARAM one, LPARAM other, LPARAM)
{
    return static_cast<int>(other - one);
}
} // namespace

TEST(Tree, items_are_found_from_one_another)
{
    CParentWindow parent;
    CPlants tree(parent);
    EXPECT_EQ(4U, tree.GetCount());
    EXPECT_EQ(tree.trees, tree.GetRootItem());
    EXPECT_EQ(tree.oak, tree.GetChildItem(tree.trees));
    EXPECT_EQ(tree.ash, tree.GetNextSiblingItem(tree.oak));
    EXPECT_EQ(tree.oak, tree.GetPrevSiblingItem(tree.ash));
    EXPECT_EQ(tree.trees, tree.GetParentItem(tree.ash));
    EXPECT_EQ(nullptr, tree.GetParentItem(tree.trees));
    EXPECT_EQ(nullptr, tree.GetChildItem(tree.flowers));
    EXPECT_TRUE(tree.ItemHasChildren(tree.trees));
    EXPECT_FALSE(tree.ItemHasChildren(tree.oak));
}

TEST(Tree, texts_of_any_length)
{
    CParentWindow parent;
    CPlants tree(parent);
    EXPECT_EQ(L"oak", plain(tree.GetItemText(tree.oak)));
    EXPECT_TRUE(tree.SetItemText(tree.oak, L"quercus"));
    EXPECT_EQ(L"quercus", plain(tree.GetItemText(tree.oak)));
    const std::wstring longer(100000, L'q');
    EXPECT_TRUE(tree.SetItemText(tree.oak, longer.c_str()));
    EXPECT_EQ(longer, plain(tree.GetItemText(tree.oak)));
    EXPECT_TRUE(tree.GetItemText(nullptr).IsEmpty());
    for (const std::size_t length : {253U, 254U, 255U, 256U, 511U, 512U})
    {
        const std::wstring text(length, L'x');
        tree.SetItemText(tree.ash, text.c_str());
        EXPECT_EQ(length, static_cast<std::size_t>(tree.GetItemText(tree.ash).GetLength()));
    }
}

TEST(Tree, data_states_images)
{
    CParentWindow parent;
    CPlants tree(parent);
    EXPECT_TRUE(tree.SetItemData(tree.oak, 0x1234567890ULL));
    EXPECT_EQ(0x1234567890ULL, tree.GetItemData(tree.oak));
    EXPECT_EQ(0U, tree.GetItemData(nullptr));
    EXPECT_TRUE(tree.SetItemState(tree.oak, TVIS_BOLD, TVIS_BOLD));
    EXPECT_EQ(static_cast<UINT>(TVIS_BOLD), tree.GetItemState(tree.oak, TVIS_BOLD));
    EXPECT_EQ(0U, tree.GetItemState(tree.ash, TVIS_BOLD));
    EXPECT_TRUE(tree.SetItemImage(tree.oak, 1, 2));
    int image = 0;
    int selected = 0;
    EXPECT_TRUE(tree.GetItemImage(tree.oak, image, selected));
    EXPECT_EQ(1, image);
    EXPECT_EQ(2, selected);
    EXPECT_FALSE(tree.GetItemImage(nullptr, image, selected));
}

TEST(Tree, expanding_selecting_and_rectangles)
{
    CParentWindow parent;
    CPlants tree(parent);
    CRect rect;
    EXPECT_FALSE(tree.GetItemRect(tree.oak, &rect, FALSE)) << "its parent is closed";
    EXPECT_TRUE(tree.Expand(tree.trees, TVE_EXPAND));
    EXPECT_TRUE(tree.GetItemRect(tree.oak, &rect, TRUE));
    CRect row;
    EXPECT_TRUE(tree.GetItemRect(tree.oak, &row, FALSE));
    EXPECT_GT(row.Width(), rect.Width());
    EXPECT_GE(rect.left, row.left);
    UINT flags = 0;
    EXPECT_EQ(tree.oak, tree.HitTest(rect.CenterPoint(), &flags));
    EXPECT_TRUE((flags & TVHT_ONITEMLABEL) != 0);
    EXPECT_EQ(nullptr, tree.HitTest(CPoint(5, 200)));
    EXPECT_TRUE(tree.SelectItem(tree.oak));
    EXPECT_EQ(tree.oak, tree.GetSelectedItem());
    EXPECT_TRUE(tree.SelectDropTarget(tree.ash));
    EXPECT_EQ(tree.ash, tree.GetDropHilightItem());
    EXPECT_EQ(tree.trees, tree.GetFirstVisibleItem());
    EXPECT_EQ(tree.oak, tree.GetNextVisibleItem(tree.trees));
    EXPECT_EQ(tree.trees, tree.GetPrevVisibleItem(tree.oak));
    EXPECT_FALSE(tree.GetItemRect(nullptr, &rect, TRUE));
    EXPECT_FALSE(tree.GetItemRect(tree.oak, nullptr, TRUE));
}

TEST(Tree, checks)
{
    CParentWindow parent;
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), &parent, 5));
    tree.ModifyStyle(0, TVS_CHECKBOXES);
    HTREEITEM const item = tree.InsertItem(L"item");
    EXPECT_FALSE(tree.GetCheck(item));
    EXPECT_TRUE(tree.SetCheck(item));
    EXPECT_TRUE(tree.GetCheck(item));
    EXPECT_TRUE(tree.SetCheck(item, FALSE));
    EXPECT_FALSE(tree.GetCheck(item));
}

TEST(Tree, sorting_by_name_and_by_data)
{
    CParentWindow parent;
    CPlants tree(parent);
    EXPECT_TRUE(tree.SortChildren(tree.trees));
    EXPECT_EQ(tree.ash, tree.GetChildItem(tree.trees));
    tree.SetItemData(tree.ash, 1);
    tree.SetItemData(tree.oak, 2);
    TVSORTCB order = {tree.trees, byDataDescending, 0};
    EXPECT_TRUE(tree.SortChildrenCB(&order));
    EXPECT_EQ(tree.oak, tree.GetChildItem(tree.trees));
    EXPECT_FALSE(tree.SortChildrenCB(nullptr));
}

TEST(Tree, deleting)
{
    CParentWindow parent;
    CPlants tree(parent);
    EXPECT_TRUE(tree.DeleteItem(tree.trees));
    EXPECT_EQ(1U, tree.GetCount());
    EXPECT_TRUE(tree.DeleteAllItems());
    EXPECT_EQ(0U, tree.GetCount());
    EXPECT_EQ(nullptr, tree.GetRootItem());
}

TEST(Tree, labels_are_edited)
{
    CParentWindow parent;
    CPlants tree(parent, TVS_EDITLABELS);
    parent.SetForegroundWindow();
    tree.SetFocus();
    CEdit* const edit = tree.EditLabel(tree.trees);
    ASSERT_NE(nullptr, edit);
    EXPECT_TRUE(edit->IsKindOf(RUNTIME_CLASS(CEdit)));
    EXPECT_EQ(edit, tree.GetEditControl());
    CString text;
    edit->GetWindowText(text);
    EXPECT_EQ(L"trees", plain(text));
    EXPECT_TRUE(tree.EndEditLabelNow(TRUE));
    EXPECT_EQ(nullptr, tree.GetEditControl());
}

TEST(Tree, image_lists_and_drag_images)
{
    CParentWindow parent;
    CPlants tree(parent);
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 8, 1, RGB(255, 0, 255)));
    EXPECT_EQ(nullptr, tree.SetImageList(&images, TVSIL_NORMAL));
    EXPECT_EQ(&images, tree.GetImageList(TVSIL_NORMAL));
    const std::unique_ptr<CImageList> drag(tree.CreateDragImage(tree.trees));
    ASSERT_NE(nullptr, drag);
    EXPECT_EQ(drag.get(), CImageList::FromHandlePermanent(*drag)) << "the caller owns it";
    EXPECT_EQ(&images, tree.SetImageList(nullptr, TVSIL_NORMAL));
}

TEST(Tree, settings)
{
    CParentWindow parent;
    CPlants tree(parent);
    tree.SetIndent(31);
    EXPECT_EQ(31U, tree.GetIndent());
    tree.SetItemHeight(30);
    EXPECT_EQ(30, tree.GetItemHeight());
    tree.SetBkColor(green);
    EXPECT_EQ(green, tree.GetBkColor());
    EXPECT_EQ(green, tree.SetBkColor(red));
    tree.SetTextColor(blue);
    EXPECT_EQ(blue, tree.GetTextColor());
    tree.SetLineColor(red);
    EXPECT_EQ(red, tree.GetLineColor());
    tree.SetInsertMarkColor(red);
    EXPECT_EQ(red, tree.GetInsertMarkColor());
    EXPECT_TRUE(tree.SetInsertMark(tree.oak));
    EXPECT_GT(tree.GetVisibleCount(), 1U);
    EXPECT_NE(nullptr, tree.GetToolTips());
}

TEST(Tree, inserting_with_everything)
{
    CParentWindow parent;
    CPlants tree(parent);
    HTREEITEM const item = tree.InsertItem(TVIF_TEXT | TVIF_PARAM | TVIF_STATE, L"elm", 0, 0, TVIS_BOLD, TVIS_BOLD, 77,
                                           tree.trees, tree.oak);
    EXPECT_EQ(item, tree.GetNextSiblingItem(tree.oak));
    EXPECT_EQ(77U, tree.GetItemData(item));
    HTREEITEM const with_image = tree.InsertItem(L"yew", 1, 2, tree.trees, TVI_FIRST);
    EXPECT_EQ(with_image, tree.GetChildItem(tree.trees));
    EXPECT_EQ(nullptr, tree.InsertItem(static_cast<LPTVINSERTSTRUCT>(nullptr)));
}
