// The cases of the tree list that run over a tree in memory, with the real control in a real frame.
#include "TreeListHost.h"
#include "support/TreeListCases.h"
#include "support/TreeListSortCases.h"

namespace
{
/// The real control, driven by its own operations.
class RealTreeList
{
public:
    using Node = HTREEITEM;

    static Node Root() { return TVI_ROOT; }
    static Node Before() { return TVI_FIRST; }
    static Node Behind() { return TVI_LAST; }

    Node InsertItem(const wchar_t* text, Node parent, Node after) { return Tree().InsertItem(text, parent, after); }
    Node InsertItem(const wchar_t* text, int image, int selectedImage, Node parent, Node after)
    {
        return Tree().InsertItem(text, image, selectedImage, parent, after);
    }
    BOOL SetItemText(Node node, int column, const wchar_t* text) { return Tree().SetItemText(node, column, text); }
    CString GetItemText(Node node, int column) { return Tree().GetItemText(node, column); }
    BOOL SetItemValue(Node node, int column, double value) { return Tree().SetItemValue(node, column, value); }
    double GetItemValue(Node node, int column) { return Tree().GetItemValue(node, column); }
    BOOL SetItemData(Node node, unsigned long data) { return Tree().SetItemData(node, data); }
    std::uint64_t GetItemData(Node node) { return Tree().GetItemData(node); }
    BOOL SetItemBold(Node node, int bold) { return Tree().SetItemBold(node, bold, FALSE); }
    int GetItemCount() { return Tree().GetItemCount(); }
    Node CopyItem(Node node, Node parent, Node after) { return Tree().CopyItem(node, parent, after); }
    Node MoveItem(Node node, Node parent, Node after) { return Tree().MoveItem(node, parent, after); }
    Node MoveItemAndChildren(Node node, Node parent, Node after, bool resetScroll)
    {
        return Tree().MoveItemAndChildren(node, parent, after, resetScroll);
    }
    BOOL DeleteItem(Node node) { return Tree().DeleteItem(node); }
    BOOL DeleteAllItems() { return Tree().DeleteAllItems(); }
    void MemDeleteAllItems(Node first) { Tree().MemDeleteAllItems(first); }
    BOOL SortItems(int column, BOOL ascending, Node parent) { return Tree().SortItems(column, ascending, parent); }
    void SortTree(int column, int ascending, Node first) { m_host.frame->SortTree(column, ascending, first); }

    Node First() { return Tree().GetRootItem(); }
    Node Next(Node node) { return Tree().GetNextSiblingItem(node); }
    Node FirstChild(Node node) { return Tree().GetChildItem(node); }
    int NodeCount() { return static_cast<int>(Tree().GetCount()); }
    int Image(Node node)
    {
        int image = -1;
        int selected = -1;
        Tree().GetItemImage(node, image, selected);
        return image;
    }
    LPARAM Param(Node node) { return static_cast<LPARAM>(Tree().CTreeCtrl::GetItemData(node)); }
    void SetParam(Node node, LPARAM param) { Tree().CTreeCtrl::SetItemData(node, static_cast<DWORD_PTR>(param)); }
    Node InsertForeign(LPARAM param, Node parent)
    {
        return Tree().CTreeCtrl::InsertItem(TVIF_PARAM | TVIF_TEXT, L"foreign", 0, 0, 0, 0, param, parent, TVI_LAST);
    }
    /// As the control tells a record: a node whose word can be written has one.
    const CKxTreeListRow* Row(Node node)
    {
        const bool has = Tree().SetItemData(node, static_cast<unsigned long>(Tree().GetItemData(node))) != FALSE;
        return has ? reinterpret_cast<const CKxTreeListRow*>(Param(node)) : nullptr;
    }

    static inline const COLORREF textColor = ::GetSysColor(COLOR_WINDOWTEXT);

private:
    CKxTreeListViewCtrl& Tree() { return m_host.tree(); }

    TreeListHost m_host;
};
} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(OverTheRealControl, TreeListCases, RealTreeList);
INSTANTIATE_TYPED_TEST_SUITE_P(OverTheRealControl, TreeListSorts, RealTreeList);
