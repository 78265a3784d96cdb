// What the platform's tree is in the middle of, and which nodes it goes on with behind that.
#pragma once

#include <afxcmn.h>

#include <memory>
#include <vector>

namespace treelist
{

/// The platform's tree tells of what it does in the middle of doing it, and goes on with nodes that it had found before. What a
/// host may do to those meanwhile is put off or refused; all else is done at once.
class TreeWork
{
public:
    /// One thing that the tree does, or tells.
    struct Hold
    {
        HTREEITEM nodes[2] = {}; ///< it goes on with these
        bool all = false;        ///< it goes on with any node
        bool removes = false;    ///< the first node, with all below; the root stands for all
    };

    /// Lasts as long as the tree does that. The control may end meanwhile.
    class Scope
    {
    public:
        Scope(std::shared_ptr<TreeWork> work, const Hold& hold) : m_work(std::move(work))
        {
            m_work->m_holds.push_back(hold);
        }
        ~Scope() { m_work->m_holds.pop_back(); }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        std::shared_ptr<TreeWork> m_work;
    };

    /// What goes on while a notification is told. A new selection is told when the tree is done with the nodes that it was about,
    /// and with those that it removes.
    Hold HoldOf(const NMHDR& notification);

    bool MayRemove(const CTreeCtrl& tree, HTREEITEM node) const;
    /// Whether all that is below a node may go.
    bool MayEmpty(const CTreeCtrl& tree, HTREEITEM node) const;
    /// Whether a node is not on its way out already: null and the root stand for the top level.
    bool Stays(const CTreeCtrl& tree, HTREEITEM node) const;
    bool Holds() const;
    bool Removes() const;

    /// Nodes that go when the tree is at rest.
    std::vector<HTREEITEM> leaving;
    bool leavesAll = false; ///< all that were there are among them

private:
    std::vector<Hold> m_holds;
};

/// Whether `node` is `above` or lies below it; the root is above all.
bool IsAtOrBelow(const CTreeCtrl& tree, HTREEITEM node, HTREEITEM above);

} // namespace treelist
