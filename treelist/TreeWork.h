// What the platform's tree is in the middle of, and which nodes it goes on with behind that.
#pragma once

#include <afxcmn.h>

#include <memory>
#include <vector>

#include "HeldNodes.h"

namespace treelist
{

/// The platform's tree tells of what it does in the middle of doing it, and goes on with nodes that it had found before. What a
/// host may do to those meanwhile is put off or refused; all else is done at once.
class TreeWork : public HeldNodes<HTREEITEM>
{
public:
    /// Lasts as long as the tree does that. The control may end meanwhile.
    class Scope
    {
    public:
        Scope(std::shared_ptr<TreeWork> work, const Hold& hold) : m_work(std::move(work)) { m_work->Begin(hold); }
        ~Scope() { m_work->End(); }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        std::shared_ptr<TreeWork> m_work;
    };

    /// What goes on while a notification is told. A new selection is told when the tree is done with the nodes that it was about,
    /// and with those that it removes.
    Hold HoldOf(const NMHDR& notification);

    /// Nodes that go when the tree is at rest.
    std::vector<HTREEITEM> leaving;
    bool leavesAll = false; ///< all that were there are among them
};

} // namespace treelist
