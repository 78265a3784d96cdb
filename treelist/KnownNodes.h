// What is known of the nodes of a tree without asking it: the platform's tree may search for a node each time that it is asked
// about one, so that asking about all of them is not for large trees.
#pragma once

#include <cstdint>
#include <unordered_set>

namespace treelist
{

/// Whether the ranks of the rows tell how the children of a node stand, where the tree can have nodes with children at all, and
/// whether each record hangs on a node. Who puts in, sorts, changes or removes nodes tells. Of nodes that were told of as
/// another's doing nothing is known until the tree is empty. The top level is that of a false node.
template <typename Node> class KnownNodes
{
public:
    // ---- What is told

    /// No node is left.
    void Emptied()
    {
        const std::uint64_t steps = m_steps + 1;
        *this = KnownNodes();
        m_steps = steps;
    }
    /// Another changes nodes, or records are destroyed while their nodes stay.
    void Distrust() { m_trusted = false; }
    void RecordWithoutNode() { m_everyRecordHasNode = false; }
    /// Nodes go, with what is below them. Another node may get the handle of one that went.
    void Removed()
    {
        m_everyRecordHasNode = false;
        m_parents.clear();
    }
    /// Some order, of which the ranks do not know.
    void Shuffled(Node parent) { m_shuffled.insert(parent); }
    void StandByRank(Node parent)
    {
        ++m_steps;
        m_shuffled.erase(parent);
    }
    /// True for the first child: what is above `parent` is asked for then, and told by `HasParentBelow`.
    bool GetsChild(Node parent)
    {
        m_isFlat = m_isFlat && !parent;
        return parent && m_parents.insert(parent).second;
    }
    void HasParentBelow(Node node) { m_aboveParents.insert(node); }

    // ---- Ranks

    /// The next `count` ranks, above all that were given, from the one answered on. 0, and distrust, when there are no more.
    std::uint32_t TakeRanks(std::uint32_t count, std::uint32_t largest)
    {
        if (count > largest - m_lastRank)
        {
            Distrust();
            return 0;
        }
        ++m_steps;
        const std::uint32_t first = m_lastRank + 1;
        m_lastRank += count;
        return first;
    }
    /// Gets higher whenever ranks are given or put in another order: by it, who puts in a node knows whether a host did more
    /// meanwhile.
    std::uint64_t Steps() const { return m_steps; }

    // ---- What is known

    /// Whether each child has a living record of its own, and the lower rank stands in front.
    bool RanksTell(Node parent) const { return m_trusted && !m_shuffled.contains(parent); }
    bool MayHaveParentBelow(Node node) const { return !m_trusted || m_aboveParents.contains(node); }
    /// Whether all living records with a rank hang on nodes.
    bool EveryRecordHasNode() const { return m_trusted && m_everyRecordHasNode; }
    /// The same for nodes of the top level.
    bool EveryRecordIsOnTop() const { return EveryRecordHasNode() && m_isFlat; }

private:
    bool m_trusted = true;
    bool m_everyRecordHasNode = true;
    bool m_isFlat = true;
    std::uint32_t m_lastRank = 0;
    std::uint64_t m_steps = 0;
    std::unordered_set<Node> m_shuffled;
    std::unordered_set<Node> m_parents;      ///< some of the nodes with children: those told of since nodes went
    std::unordered_set<Node> m_aboveParents; ///< all nodes with a child that has children, and perhaps others
};

} // namespace treelist
