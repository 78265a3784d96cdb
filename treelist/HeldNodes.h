// Which nodes a tree goes on with behind what it is telling of, and what may be done to nodes meanwhile.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

namespace treelist
{

/// Whether `node` is `above` or lies below it; what stands for the top level is above all.
template <typename Tree> bool IsAtOrBelow(const Tree& tree, typename Tree::Node node, typename Tree::Node above)
{
    if (above && !tree.AsParent(above))
        return true;
    while (node && node != above)
        node = tree.Parent(node);
    return static_cast<bool>(node);
}

/// What a tree is in the middle of, the innermost last.
template <typename Node> class HeldNodes
{
public:
    /// One thing that the tree does, or tells.
    struct Hold
    {
        Node nodes[2] = {};   ///< it goes on with these
        bool all = false;     ///< it goes on with any node
        bool removes = false; ///< the first node, with all below; what stands for the top level is all
    };

    void Begin(const Hold& hold) { m_holds.push_back(hold); }
    void End() { m_holds.pop_back(); }
    /// The innermost is done with the nodes that it was about, and with those that it removes.
    void DoneWithNodes()
    {
        if (!m_holds.empty())
            m_holds.back() = Hold{{}, m_holds.back().all, false};
    }

    template <typename Tree> bool MayRemove(const Tree& tree, Node node) const
    {
        return NoneOf(
            [&](const Hold& hold)
            { return hold.all || IsAtOrBelow(tree, hold.nodes[0], node) || IsAtOrBelow(tree, hold.nodes[1], node); });
    }
    /// Whether all that is below a node may go.
    template <typename Tree> bool MayEmpty(const Tree& tree, Node node) const
    {
        const auto isBelow = [&](Node held) { return held != node && IsAtOrBelow(tree, held, node); };
        return NoneOf([&](const Hold& hold) { return hold.all || isBelow(hold.nodes[0]) || isBelow(hold.nodes[1]); });
    }
    /// Whether a node is not on its way out already.
    template <typename Tree> bool Stays(const Tree& tree, Node node) const
    {
        return NoneOf([&](const Hold& hold) { return hold.removes && IsAtOrBelow(tree, node, hold.nodes[0]); });
    }
    bool Holds() const
    {
        return !NoneOf([](const Hold& hold) { return hold.all || hold.nodes[0] || hold.nodes[1]; });
    }
    bool Removes() const
    {
        return !NoneOf([](const Hold& hold) { return hold.removes; });
    }

private:
    template <typename Test> bool NoneOf(const Test& test) const
    {
        return std::none_of(m_holds.begin(), m_holds.end(), test);
    }

    std::vector<Hold> m_holds;
};

} // namespace treelist
