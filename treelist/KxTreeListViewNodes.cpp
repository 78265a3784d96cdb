// The tree of the tree list: what happens to the nodes, by whomever, and what is known of them from it.
#include "NativeTree.h"
#include "TreeWork.h"

using treelist::NativeTree;
using treelist::RowStore;

LRESULT CKxTreeListViewCtrl::OnInsertNode(WPARAM, LPARAM lParam)
{
    const auto* const wanted = reinterpret_cast<const TVINSERTSTRUCT*>(lParam);
    if (wanted == nullptr)
        return Default();
    if (m_work->Removes() && !m_work->Stays(NativeTree(*this), wanted->hParent)) // nothing new below what goes
    {
        m_known->RecordWithoutNode();
        return 0;
    }
    const HTREEITEM parent = NativeTree::AsParent(wanted->hParent);
    const bool behindAll = wanted->hInsertAfter == TVI_LAST;
    const bool hasParam = (wanted->item.mask & TVIF_PARAM) != 0;
    CKxTreeListRow* const row = hasParam ? m_rows->Find(wanted->item.lParam) : nullptr;
    const std::uint32_t rank = m_known->TakeRanks(1, RowStore::c_nLargestRank);
    if (row == nullptr || RowStore::Rank(*row) != 0) // no record, or one that hangs on a node already
        m_known->Distrust();
    else
        RowStore::SetRank(*row, rank);
    const std::uint64_t steps = m_known->Steps();
    const Surviving here(*this);
    const LRESULT node = Default();
    if (!here)
        return node;
    if (!behindAll || m_known->Steps() != steps) // or a host did something meanwhile
        m_known->Shuffled(parent);
    if (node == 0)
        m_known->RecordWithoutNode();
    else if (m_known->GetsChild(parent))
        m_known->HasParentBelow(GetParentItem(parent));
    return node;
}

/// A node gets another parameter, or goes with what is collapsed. Forgotten twice: a host may ask about it meanwhile.
LRESULT CKxTreeListViewCtrl::ForgetNode()
{
    const Surviving here(*this);
    m_recent->Forget();
    const LRESULT result = Default();
    if (here)
        m_recent->Forget();
    return result;
}

LRESULT CKxTreeListViewCtrl::RemoveNow()
{
    const Surviving here(*this);
    m_known->Removed(); // twice too
    const LRESULT result = ForgetNode();
    if (here)
        m_known->Removed();
    return result;
}

LRESULT CKxTreeListViewCtrl::OnSetNode(WPARAM, LPARAM lParam)
{
    const auto* const item = reinterpret_cast<const TVITEM*>(lParam);
    const bool setsParam = item != nullptr && (item->mask & TVIF_PARAM) != 0;
    if (setsParam && (!m_recent->Is(item->hItem) || m_recent->Param() != item->lParam))
        m_known->Distrust();
    return ForgetNode();
}

LRESULT CKxTreeListViewCtrl::SortNodes(HTREEITEM parent, bool below)
{
    if (m_work->Removes())
        return FALSE;
    const Surviving here(*this);
    const LRESULT result = Default();
    if (!here)
        return result;
    m_known->Shuffled(NativeTree::AsParent(parent));
    if (below)
        m_known->Distrust();
    return result;
}

LRESULT CKxTreeListViewCtrl::OnSortNodesByLabel(WPARAM wParam, LPARAM lParam)
{
    return SortNodes(reinterpret_cast<HTREEITEM>(lParam), wParam != 0);
}

LRESULT CKxTreeListViewCtrl::OnSortNodesByHost(WPARAM wParam, LPARAM lParam)
{
    const auto* const sort = reinterpret_cast<const TVSORTCB*>(lParam);
    return sort == nullptr ? Default() : SortNodes(sort->hParent, wParam != 0);
}
