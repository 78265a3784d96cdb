// The platform's tree control as the rows of the tree list ask for it.
#pragma once

#include <afxcmn.h>

#include "../frame/Surviving.h"
#include "RecentNode.h"
#include "TreeRows.h"
#include "oxa/treelist/KxTreeListFrame.h"

namespace treelist
{

/// Borrows the control. Its operations are those of the platform's tree, not the control's own. Once the control has gone, by
/// what a host did in a notification, it is a tree without nodes that takes nothing.
class NativeTree
{
public:
    using Node = HTREEITEM;

    explicit NativeTree(const CKxTreeListViewCtrl& tree) : m_tree(const_cast<CKxTreeListViewCtrl*>(&tree)), m_here(tree)
    {
    }

    /// Whether the control is still there, with its window.
    bool Lives() const { return static_cast<bool>(m_here); }

    static bool IsNode(Node node)
    {
        return node != nullptr && node != TVI_ROOT && node != TVI_FIRST && node != TVI_LAST && node != TVI_SORT;
    }

    /// None for what stands for the top level.
    static Node AsParent(Node parent) { return parent == TVI_ROOT ? nullptr : parent; }
    KnownNodes<Node>& Known() const { return *m_tree->m_known; }
    bool MayHaveParentsBeside(Node node) const { return Known().MayHaveParentBelow(Parent(node)); }

    Node First() const { return m_tree->GetRootItem(); }
    Node Next(Node node) const { return IsNode(node) ? m_tree->GetNextSiblingItem(node) : nullptr; }
    Node FirstChild(Node node) const { return IsNode(node) ? m_tree->GetChildItem(node) : nullptr; }
    Node Parent(Node node) const { return IsNode(node) ? m_tree->GetParentItem(node) : nullptr; }
    Node Last() const { return TVI_LAST; }
    bool HasChildren(Node node) const { return IsNode(node) && m_tree->ItemHasChildren(node); }

    LPARAM Param(Node node) const
    {
        if (!IsNode(node))
            return 0;
        RecentNode& recent = *m_tree->m_recent;
        if (recent.Is(node))
            return recent.Param();
        const auto param = static_cast<LPARAM>(m_tree->CTreeCtrl::GetItemData(node));
        if (param != 0) // else there may be no such node
            recent.Remember(node, param, false);
        return param;
    }
    BOOL SetParam(Node node, LPARAM param)
    {
        if (m_tree->m_recent->NeedsNothing(node, param))
            return TRUE;
        if (!IsNode(node) || !m_tree->CTreeCtrl::SetItemData(node, static_cast<DWORD_PTR>(param)))
            return FALSE;
        Redraw(node);
        m_tree->m_recent->Remember(node, param, true);
        return TRUE;
    }

    bool ReadForCopy(Node node, NodeBlock& block) const
    {
        TVITEM item = {};
        item.hItem = node;
        item.mask = TVIF_IMAGE | TVIF_PARAM | TVIF_STATE | TVIF_SELECTEDIMAGE;
        if (!IsNode(node) || !m_tree->GetItem(&item))
            return false;
        block.mask = TVIF_TEXT | item.mask;
        block.image = item.iImage;
        block.selectedImage = item.iSelectedImage;
        block.state = item.state;
        block.stateMask = 0; // neither expanded nor selected
        return true;
    }
    /// The label is the empty text.
    Node Insert(const NodeBlock& block, Node parent, Node after)
    {
        const Node node = m_tree->CTreeCtrl::InsertItem(block.mask, L"", block.image, block.selectedImage, block.state,
                                                        block.stateMask, block.param, parent, after);
        if ((block.mask & TVIF_PARAM) != 0 && node != nullptr && Lives())
            m_tree->m_recent->Remember(node, block.param, true); // the platform paints what it inserts
        return node;
    }
    BOOL Remove(Node node) { return IsNode(node) && m_tree->CTreeCtrl::DeleteItem(node); }

    bool MayMove(Node node, Node parent) const { return m_tree->MayMove(node, parent); }

    bool ReadyForRow()
    {
        CKxTreeListFrame* const frame = Frame();
        if (frame == nullptr)
            return true;
        frame->ResetScrollBar();
        return Lives();
    }

    template <typename Compare> BOOL Sort(Node parent, const Compare& compare)
    {
        TVSORTCB sort = {};
        sort.hParent = parent == nullptr ? TVI_ROOT : parent;
        sort.lpfnCompare = [](LPARAM a, LPARAM b, LPARAM context)
        { return (*reinterpret_cast<const Compare*>(context))(a, b); };
        sort.lParam = reinterpret_cast<LPARAM>(&compare);
        return m_tree->SortChildrenCB(&sort);
    }

    /// The parent, when it is a tree list's frame.
    CKxTreeListFrame* Frame() const
    {
        return dynamic_cast<CKxTreeListFrame*>(CWnd::FromHandlePermanent(::GetParent(m_tree->GetSafeHwnd())));
    }

private:
    /// Not every platform draws a node anew when only its parameter was written.
    void Redraw(Node node)
    {
        CRect row;
        if (m_tree->GetItemRect(node, &row, FALSE))
            m_tree->InvalidateRect(&row);
    }

    CKxTreeListViewCtrl* m_tree;
    Surviving m_here;
};

} // namespace treelist
