// The page of the tree list.
#include "PageTree.h"
#include "BuildingRows.h"
#include "TreePictures.h"
#include "resource.h"
#include "support/RealInput.h"
#include <array>

namespace
{
constexpr int manyRows = 5000;
constexpr int lengthFamily = 1;
constexpr unsigned long boldMark = 1; // in the row's data word; its color stands in the bits above
constexpr std::array rowColors = {RGB(0, 0, 0), RGB(170, 30, 30), RGB(20, 120, 60), RGB(150, 90, 0)};

struct LengthUnit
{
    const wchar_t* name;
    unsigned int index, precision;
    enumUNITFORMAT format;
};

constexpr std::array lengthUnits = {
    LengthUnit{L"Metres", 0, 3, UNITFORMAT_DECIMAL},
    LengthUnit{L"Millimetres", 3, 0, UNITFORMAT_DECIMAL},
    LengthUnit{L"Feet and inches", 5, 4, UNITFORMAT_ARCHITECTURAL},
};
} // namespace

LRESULT CToldTreeList::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (onMessage && (message == WM_KX_TREELIST_CLICK_BEFORE || message == WM_KX_TREELIST_CLICK_AFTER))
        onMessage(message, wParam, lParam);
    return CKxTreeListFrame::WindowProc(message, wParam, lParam);
}

BEGIN_MESSAGE_MAP(CPageTree, CPage)
    // void OnBuilding()
    ON_BN_CLICKED(IDC_TREE_BUILDING, &CPageTree::OnBuilding)
    // void OnMany()
    ON_BN_CLICKED(IDC_TREE_MANY, &CPageTree::OnMany)
    // void OnBold()
    ON_BN_CLICKED(IDC_TREE_BOLD, &CPageTree::OnBold)
    // void OnColor()
    ON_BN_CLICKED(IDC_TREE_COLOR, &CPageTree::OnColor)
    // void OnUp()
    ON_BN_CLICKED(IDC_TREE_UP, &CPageTree::OnUp)
    // void OnDown()
    ON_BN_CLICKED(IDC_TREE_DOWN, &CPageTree::OnDown)
    // void OnNextStorey()
    ON_BN_CLICKED(IDC_TREE_NEXT_STOREY, &CPageTree::OnNextStorey)
    // void OnDelete()
    ON_BN_CLICKED(IDC_TREE_DELETE, &CPageTree::OnDelete)
    // void OnModifiable()
    ON_BN_CLICKED(IDC_TREE_MODIFIABLE, &CPageTree::OnModifiable)
    // void OnTreeSort()
    ON_BN_CLICKED(IDC_TREE_SORT, &CPageTree::OnTreeSort)
    // void OnUnit()
    ON_CBN_SELCHANGE(IDC_TREE_UNIT, &CPageTree::OnUnit)
    // void OnSelectionChanged(NMHDR*, LRESULT*)
    ON_NOTIFY(TVN_SELCHANGED, CKxTreeListFrame::ID_TREE, &CPageTree::OnSelectionChanged)
    // LRESULT OnCellWritten(WPARAM, LPARAM)
    ON_MESSAGE(WM_KX_TREELIST_EDIT_AFTER, &CPageTree::OnCellWritten)
END_MESSAGE_MAP()

CPageTree::CPageTree() : CPage(IDD_PAGE_TREE, L"Tree list")
{
    CKxTreeListFrame::RegisterClassW();
}

BOOL CPageTree::OnInitDialog()
{
    CPage::OnInitDialog();
    m_list.onMessage = [this](UINT message, WPARAM wParam, LPARAM lParam) { logMessage(message, wParam, lParam); };
    m_list.SubclassDlgItem(IDC_TREE_LIST, this);
    prepareTree();
    CheckDlgButton(IDC_TREE_MODIFIABLE, BST_CHECKED);
    CheckDlgButton(IDC_TREE_SORT, BST_CHECKED);
    for (const LengthUnit& unit : lengthUnits)
        SendDlgItemMessage(IDC_TREE_UNIT, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(unit.name));
    SendDlgItemMessage(IDC_TREE_UNIT, CB_SETCURSEL, 0);
    chooseUnit(0);
    OnBuilding();
    return TRUE;
}

void CPageTree::prepareTree()
{
    CKxTreeListViewCtrl& tree = m_list.m_tree;
    tree.SetUnitManager(&m_units);
    m_list.SetCanModifyLabels(true); // first: the columns' settings ask for it
    building::addColumns(tree);
    tree.SetColumnEditStyle(building::lengthColumn, lengthFamily);
    for (const int column : {building::sectionColumn, building::lengthColumn, building::countColumn})
        tree.SetCanEditColumn(column, true);
    makeRowPictures(m_rowPictures);
    tree.SetImageList(&m_rowPictures, TVSIL_NORMAL);
    makeSortPictures(m_sortPictures);
    m_list.GetHeaderCtrl().SetSortImageList(&m_sortPictures);
}

// ---- Rows

void CPageTree::OnBuilding()
{
    building::fill(m_list);
    showState();
}

void CPageTree::OnMany()
{
    building::addMany(m_list, manyRows);
    showState();
}

void CPageTree::OnBold()
{
    CKxTreeListViewCtrl& tree = m_list.m_tree;
    HTREEITEM const row = tree.GetSelectedItem();
    const auto data = static_cast<unsigned long>(tree.GetItemData(row)) ^ boldMark;
    if (tree.SetItemData(row, data))
        tree.SetItemBold(row, (data & boldMark) != 0, TRUE);
}

void CPageTree::OnColor()
{
    CKxTreeListViewCtrl& tree = m_list.m_tree;
    HTREEITEM const row = tree.GetSelectedItem();
    const auto data = static_cast<unsigned long>(tree.GetItemData(row));
    const unsigned long color = (data / 2 + 1) % rowColors.size();
    if (tree.SetItemData(row, color * 2 + (data & boldMark)))
        tree.SetItemColor(row, rowColors[color], TRUE);
}

void CPageTree::move(HTREEITEM parent, HTREEITEM after)
{
    CKxTreeListViewCtrl& tree = m_list.m_tree;
    HTREEITEM const row = tree.GetSelectedItem();
    HTREEITEM const above = tree.GetParentItem(row);
    const bool open = (tree.GetItemState(row, TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
    HTREEITEM const moved = tree.MoveItemAndChildren(row, parent == nullptr ? TVI_ROOT : parent, after, true);
    if (moved == nullptr)
        return;
    if (open)
        tree.Expand(moved, TVE_EXPAND);
    tree.SelectItem(moved);
    building::weigh(tree, above);
    building::weigh(tree, tree.GetParentItem(moved));
    showState();
}

void CPageTree::OnUp()
{
    CKxTreeListViewCtrl& tree = m_list.m_tree;
    HTREEITEM const row = tree.GetSelectedItem();
    HTREEITEM const before = row == nullptr ? nullptr : tree.GetPrevSiblingItem(row);
    if (before == nullptr)
        return;
    HTREEITEM const after = tree.GetPrevSiblingItem(before);
    move(tree.GetParentItem(row), after == nullptr ? TVI_FIRST : after);
}

void CPageTree::OnDown()
{
    CKxTreeListViewCtrl& tree = m_list.m_tree;
    HTREEITEM const row = tree.GetSelectedItem();
    HTREEITEM const next = row == nullptr ? nullptr : tree.GetNextSiblingItem(row);
    if (next != nullptr)
        move(tree.GetParentItem(row), next);
}

void CPageTree::OnNextStorey()
{
    CKxTreeListViewCtrl& tree = m_list.m_tree;
    HTREEITEM const row = tree.GetSelectedItem();
    HTREEITEM const storey = row == nullptr ? nullptr : tree.GetParentItem(row);
    if (storey == nullptr || tree.GetParentItem(storey) != nullptr)
        return; // only members stand in a storey
    HTREEITEM const next = tree.GetNextSiblingItem(storey);
    if (next != nullptr)
        move(next, TVI_LAST);
}

void CPageTree::OnDelete()
{
    CKxTreeListViewCtrl& tree = m_list.m_tree;
    HTREEITEM const row = tree.GetSelectedItem();
    if (row == nullptr)
        return;
    HTREEITEM const above = tree.GetParentItem(row);
    tree.DeleteItem(row);
    building::weigh(tree, above);
    tree.ResetVertScrollBar();
    showState();
}

// ---- Switches

void CPageTree::OnModifiable()
{
    m_list.SetCanModifyLabels(IsDlgButtonChecked(IDC_TREE_MODIFIABLE) == BST_CHECKED);
}

void CPageTree::OnTreeSort()
{
    m_list.SetEnableTreeSort(IsDlgButtonChecked(IDC_TREE_SORT) == BST_CHECKED);
}

void CPageTree::OnUnit()
{
    chooseUnit(static_cast<int>(SendDlgItemMessage(IDC_TREE_UNIT, CB_GETCURSEL)));
    CKxTreeListViewCtrl& tree = m_list.m_tree;
    m_list.ResetScrollBar(); // an open edit still has the unit before
    tree.SetRedraw(FALSE);
    building::forEach(tree, nullptr,
                      [&](HTREEITEM row)
                      {
                          if (tree.GetParentItem(row) != nullptr)
                              tree.SetItemValue(row, building::lengthColumn, tree.GetItemValue(row, 0));
                      });
    tree.SetRedraw(TRUE);
    tree.Invalidate();
}

void CPageTree::chooseUnit(int index)
{
    if (index < 0 || index >= static_cast<int>(lengthUnits.size()))
        return;
    const LengthUnit& chosen = lengthUnits[static_cast<size_t>(index)];
    CKxUnit unit(lengthFamily, chosen.index, chosen.precision, L'.', 1.0, 1);
    unit.SetUnitFormat(chosen.format);
    m_units.SetVisUnit(lengthFamily, unit);
}

// ---- What the list tells

void CPageTree::OnSelectionChanged(NMHDR* /*notification*/, LRESULT* result)
{
    *result = 0;
    showState();
}

LRESULT CPageTree::OnCellWritten(WPARAM wParam, LPARAM /*lParam*/)
{
    building::weigh(m_list.m_tree, *reinterpret_cast<const HTREEITEM*>(wParam));
    ++m_written;
    showState();
    return 0;
}

void CPageTree::showState()
{
    CKxTreeListViewCtrl& tree = m_list.m_tree;
    HTREEITEM const row = tree.GetSelectedItem();
    CString text;
    text.Format(L"rows: %u   |   cells written: %d   |   %s", tree.GetCount(), m_written,
                row == nullptr ? L"no row selected" : static_cast<LPCTSTR>(L"selected: " + tree.GetItemText(row, 0)));
    SetDlgItemText(IDC_TREE_STATE, text);
}

// ---- Pictures

CPoint CPageTree::cellPoint(HTREEITEM row, int column)
{
    CKxTreeListViewCtrl& tree = m_list.m_tree;
    CRect place;
    tree.GetItemRect(row, &place, TRUE);
    int x = column == 0 ? place.left + 10 : 0;
    for (int i = 0; i < column; ++i)
        x += tree.GetColumnWidth(i);
    CPoint point(column == 0 ? x : x + tree.GetColumnWidth(column) / 2, place.CenterPoint().y);
    tree.ClientToScreen(&point);
    return point;
}

void CPageTree::walk(const TakePicture& take)
{
    CKxTreeListViewCtrl& tree = m_list.m_tree;
    take(L"1-building");
    HTREEITEM const storey = tree.GetRootItem();
    HTREEITEM const member = tree.GetNextSiblingItem(tree.GetChildItem(storey));
    tree.Expand(member, TVE_EXPAND);
    click(cellPoint(member, building::nameColumn));
    click(cellPoint(member, building::lengthColumn));
    key(VK_END, {VK_SHIFT});
    typeText(L"2.5+1.25");
    take(L"2-editing-a-length");
    click(cellPoint(storey, building::sectionColumn));
    take(L"3-written");
    CRect heading;
    m_list.GetHeaderCtrl().GetItemRect(building::weightColumn, &heading);
    m_list.GetHeaderCtrl().ClientToScreen(&heading);
    click(heading.CenterPoint());
    click(heading.CenterPoint());
    take(L"4-sorted-by-weight");
    HTREEITEM const second = tree.GetChildItem(tree.GetRootItem());
    tree.SelectItem(second);
    for (const int id : {IDC_TREE_BOLD, IDC_TREE_COLOR, IDC_TREE_DOWN})
        click(middleOf(id));
    tree.SelectItem(tree.GetRootItem());
    take(L"5-bold-colored-moved");
    SendDlgItemMessage(IDC_TREE_UNIT, CB_SETCURSEL, 2);
    OnUnit();
    click(middleOf(IDC_TREE_MANY));
    tree.EnsureVisible(tree.GetChildItem(m_list.GetElementItemByString(L"Site store")));
    take(L"6-thousands-in-feet");
    HDITEM wider = {};
    wider.mask = HDI_WIDTH;
    wider.cxy = 330;
    m_list.GetHeaderCtrl().SetItem(building::nameColumn, &wider);
    m_list.SendMessage(WM_HSCROLL, SB_RIGHT,
                       reinterpret_cast<LPARAM>(m_list.GetDlgItem(CKxTreeListFrame::ID_SCROLL_BAR)->m_hWnd));
    take(L"7-scrolled");
}
