// The tree of the tree list: changes of nodes, while the platform's tree is at work or at rest.
#include "BusyWindow.h"
#include "NativeTree.h"
#include "TreeWork.h"

#include <algorithm>

using treelist::IsAtOrBelow;
using treelist::NativeTree;
using treelist::TreeWork;

namespace
{

bool isTop(HTREEITEM node)
{
    return node == nullptr || node == TVI_ROOT;
}

bool isNode(const CTreeCtrl& tree, HTREEITEM node)
{
    TVITEM item = {};
    item.mask = TVIF_HANDLE;
    item.hItem = node;
    return !isTop(node) && tree.GetItem(&item);
}

/// Whether a row above is collapsed.
bool isHidden(const CTreeCtrl& tree, HTREEITEM node)
{
    for (node = tree.GetParentItem(node); node != nullptr; node = tree.GetParentItem(node))
    {
        if ((tree.GetItemState(node, TVIS_EXPANDED) & TVIS_EXPANDED) == 0)
            return true;
    }
    return false;
}

CKxTreeListViewCtrl* treeOf(HWND window)
{
    return dynamic_cast<CKxTreeListViewCtrl*>(CWnd::FromHandlePermanent(window));
}

} // namespace

void CKxTreeListViewCtrl::WatchWork()
{
    treelist::BusyWindow::Owner owner = {};
    owner.leave = [](HWND window)
    {
        if (CKxTreeListViewCtrl* const tree = treeOf(window))
            tree->LeaveBusyWindow();
    };
    owner.rest = [](HWND window)
    {
        if (CKxTreeListViewCtrl* const tree = treeOf(window))
            tree->RemoveLeaving();
    };
    treelist::BusyWindow::Watch(m_hWnd, owner);
}

// ---- Nodes that go

LRESULT CKxTreeListViewCtrl::OnDeleteNode(WPARAM, LPARAM lParam)
{
    const auto node = reinterpret_cast<HTREEITEM>(lParam);
    if (!m_work->Holds() || !treelist::BusyWindow::IsBusy(m_hWnd))
        return Remove(isTop(node) ? TVI_ROOT : node);
    if (isTop(node))
        return RemoveAllThatMayGo();
    if (!isNode(*this, node))
        return FALSE;
    return m_work->MayRemove(NativeTree(*this), node) ? Remove(node) : PutOff(node);
}

LRESULT CKxTreeListViewCtrl::Remove(HTREEITEM node)
{
    EndEditOf(node);
    std::erase_if(m_work->leaving, [&](HTREEITEM other) { return IsAtOrBelow(NativeTree(*this), other, node); });
    TreeWork::Hold hold;
    hold.nodes[0] = node;
    hold.all = hold.removes = true;
    const TreeWork::Scope working(m_work, hold);
    return RemoveNow();
}

/// A row that goes takes its edit along: what is committed later finds its row gone.
void CKxTreeListViewCtrl::EndEditOf(HTREEITEM node)
{
    if (IsAtOrBelow(NativeTree(*this), m_editedItem, node))
        m_editedItem = nullptr;
}

/// The node goes when the tree is at rest.
LRESULT CKxTreeListViewCtrl::PutOff(HTREEITEM node)
{
    const std::vector<HTREEITEM>& leaving = m_work->leaving;
    const bool leaves = std::any_of(leaving.begin(), leaving.end(),
                                    [&](HTREEITEM other) { return IsAtOrBelow(NativeTree(*this), node, other); });
    if (leaves || !m_work->Stays(NativeTree(*this), node) || !treelist::BusyWindow::CallAtRest(m_hWnd))
        return FALSE;
    EndEditOf(node);
    m_work->leaving.push_back(node);
    return TRUE;
}

/// What is at the top level now goes, at once or at rest; rows that are inserted behind this call stay.
LRESULT CKxTreeListViewCtrl::RemoveAllThatMayGo()
{
    std::vector<HTREEITEM> nodes;
    for (HTREEITEM node = GetRootItem(); node != nullptr; node = GetNextSiblingItem(node))
        nodes.push_back(node);
    const Surviving here(*this);
    const std::shared_ptr<TreeWork> work = m_work;
    work->leavesAll = true;
    for (HTREEITEM node : nodes)
    {
        if (here && isNode(*this, node))
            SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(node));
    }
    work->leavesAll = !work->leaving.empty();
    return TRUE;
}

void CKxTreeListViewCtrl::RemoveLeaving()
{
    const Surviving here(*this);
    const std::shared_ptr<TreeWork> work = m_work;
    while (here && !work->leaving.empty())
    {
        const HTREEITEM node = work->leaving.front();
        if (work->leavesAll && IsAtOrBelow(NativeTree(*this), GetSelectedItem(), node))
            SelectItem(nullptr); // else one row after the other is selected
        if (!here || work->leaving.empty() || work->leaving.front() != node)
            continue;
        work->leaving.erase(work->leaving.begin());
        if (isNode(*this, node))
            SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(node));
    }
    work->leavesAll = false;
}

// ---- Other changes

/// Collapsing with a reset takes away what is below the row.
LRESULT CKxTreeListViewCtrl::OnExpandNode(WPARAM wParam, LPARAM lParam)
{
    const auto node = reinterpret_cast<HTREEITEM>(lParam);
    const bool resets = (wParam & TVE_COLLAPSERESET) != 0;
    if (m_work->Removes() || (resets && !m_work->MayEmpty(NativeTree(*this), node)))
        return FALSE;
    TreeWork::Hold hold;
    hold.nodes[0] = node;
    hold.all = hold.removes = resets;
    if (resets)
    {
        const auto isBelow = [&](HTREEITEM other)
        { return other != node && IsAtOrBelow(NativeTree(*this), other, node); };
        if (isBelow(m_editedItem))
            m_editedItem = nullptr;
        std::erase_if(m_work->leaving, isBelow);
    }
    const TreeWork::Scope working(m_work, hold);
    return resets ? RemoveNow() : ForgetNode();
}

/// To show a node the tree expands all above it.
LRESULT CKxTreeListViewCtrl::OnShowNode(WPARAM, LPARAM lParam)
{
    TreeWork::Hold hold;
    hold.nodes[0] = reinterpret_cast<HTREEITEM>(lParam);
    if (m_work->Removes() && (!m_work->Stays(NativeTree(*this), hold.nodes[0]) || isHidden(*this, hold.nodes[0])))
        return FALSE;
    const TreeWork::Scope working(m_work, hold);
    return Default();
}

bool CKxTreeListViewCtrl::MayMove(HTREEITEM node, HTREEITEM parent) const
{
    return m_work->MayRemove(NativeTree(*this), node) && m_work->Stays(NativeTree(*this), parent);
}
