// What the platform's tree is in the middle of, and which nodes it goes on with behind that.
#include "TreeWork.h"

#include <algorithm>

namespace treelist
{

bool IsAtOrBelow(const CTreeCtrl& tree, HTREEITEM node, HTREEITEM above)
{
    if (above == TVI_ROOT)
        return true;
    while (node != nullptr && node != TVI_ROOT && node != above)
        node = tree.GetParentItem(node);
    return node != nullptr && node == above;
}

TreeWork::Hold TreeWork::HoldOf(const NMHDR& notification)
{
    Hold hold;
    switch (notification.code)
    {
    case NM_CUSTOMDRAW:
    case TVN_GETDISPINFOW:
    case TVN_SETDISPINFOW:
        hold.all = true;
        break;
    case TVN_DELETEITEMW:
        hold.nodes[0] = reinterpret_cast<const NMTREEVIEWW&>(notification).itemOld.hItem;
        hold.all = hold.removes = true;
        break;
    case TVN_SELCHANGEDW:
        if (!m_holds.empty())
            m_holds.back() = Hold{{}, m_holds.back().all, false};
        break;
    case TVN_SELCHANGINGW:
    case TVN_ITEMEXPANDINGW:
    case TVN_ITEMEXPANDEDW:
    case TVN_BEGINDRAGW:
    case TVN_BEGINRDRAGW:
    case TVN_SINGLEEXPAND:
        hold.nodes[0] = reinterpret_cast<const NMTREEVIEWW&>(notification).itemNew.hItem;
        hold.nodes[1] = reinterpret_cast<const NMTREEVIEWW&>(notification).itemOld.hItem;
        break;
    case TVN_BEGINLABELEDITW:
    case TVN_ENDLABELEDITW:
        hold.nodes[0] = reinterpret_cast<const NMTVDISPINFOW&>(notification).item.hItem;
        break;
    default:
        break;
    }
    return hold;
}

bool TreeWork::MayRemove(const CTreeCtrl& tree, HTREEITEM node) const
{
    return std::none_of(m_holds.begin(), m_holds.end(),
                        [&](const Hold& hold) {
                            return hold.all || IsAtOrBelow(tree, hold.nodes[0], node) ||
                                   IsAtOrBelow(tree, hold.nodes[1], node);
                        });
}

bool TreeWork::MayEmpty(const CTreeCtrl& tree, HTREEITEM node) const
{
    const auto isBelow = [&](HTREEITEM held) { return held != node && IsAtOrBelow(tree, held, node); };
    return std::none_of(m_holds.begin(), m_holds.end(),
                        [&](const Hold& hold) { return hold.all || isBelow(hold.nodes[0]) || isBelow(hold.nodes[1]); });
}

bool TreeWork::Stays(const CTreeCtrl& tree, HTREEITEM node) const
{
    return std::none_of(m_holds.begin(), m_holds.end(),
                        [&](const Hold& hold) { return hold.removes && IsAtOrBelow(tree, node, hold.nodes[0]); });
}

bool TreeWork::Holds() const
{
    return std::any_of(m_holds.begin(), m_holds.end(),
                       [](const Hold& hold)
                       { return hold.all || hold.nodes[0] != nullptr || hold.nodes[1] != nullptr; });
}

bool TreeWork::Removes() const
{
    return std::any_of(m_holds.begin(), m_holds.end(), [](const Hold& hold) { return hold.removes; });
}

} // namespace treelist
