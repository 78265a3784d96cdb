// The node that was worked on last, and what is known of it: a row is filled cell by cell, and the platform's tree may search
// for a node each time that it is asked about one.
#pragma once

#include <afxcmn.h>

#include <utility>

namespace treelist
{

/// Knows the parameter of one node, and whether the node, or all of the tree, is to be painted anew in any case. Who changes
/// nodes or paints them tells.
class RecentNode
{
public:
    void Remember(HTREEITEM node, LPARAM param, bool isToBePainted)
    {
        m_node = node;
        m_param = param;
        m_isToBePainted = isToBePainted;
    }
    /// Nodes come or go, or get other parameters.
    void Forget()
    {
        Remember(nullptr, 0, false);
        m_isAllToBePainted = false;
    }
    void Painted() { m_isToBePainted = m_isAllToBePainted = false; }
    /// False when that was told already, and nothing was painted or taken away since.
    bool LetAllBePainted() { return !std::exchange(m_isAllToBePainted, true); }

    bool Is(HTREEITEM node) const { return node != nullptr && node == m_node; }
    LPARAM Param() const { return m_param; }
    /// Whether writing that parameter would change nothing, on the screen neither.
    bool NeedsNothing(HTREEITEM node, LPARAM param) const { return Is(node) && m_param == param && m_isToBePainted; }

private:
    HTREEITEM m_node = nullptr;
    LPARAM m_param = 0;
    bool m_isToBePainted = false;
    bool m_isAllToBePainted = false;
};

} // namespace treelist
