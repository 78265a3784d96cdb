// The rows of the tree list over any tree of nodes: records on the nodes' parameters, cells, copies, moves, sorting.
#pragma once

#include <afx.h>

#include <algorithm>
#include <concepts>
#include <utility>
#include <vector>

#include "HeldNodes.h"
#include "KnownNodes.h"
#include "RowCells.h"
#include "RowComparison.h"
#include "RowStore.h"
#include "SortWalk.h"

namespace treelist
{

/// What a node has beside its place, as the platform's tree takes and gives it.
struct NodeBlock
{
    unsigned mask = 0;
    int image = 0;
    int selectedImage = 0;
    unsigned state = 0;
    unsigned stateMask = 0;
    LPARAM param = 0;
};

/// What the rows ask of a tree. A node that is false is none.
template <typename Tree>
concept NodeTree = SiblingTree<Tree> && requires(Tree& tree, const Tree& reading, typename Tree::Node node,
                                                 NodeBlock& block, LPARAM param, int (*compare)(LPARAM, LPARAM))
{
    {
        reading.First()
        } -> std::same_as<typename Tree::Node>;
    {
        reading.Parent(node)
        } -> std::same_as<typename Tree::Node>; // none for a top-level node, and for what is no node
    {
        reading.Last()
        } -> std::same_as<typename Tree::Node>; // as `after`: behind all children
    {
        reading.AsParent(node)
        } -> std::same_as<typename Tree::Node>; // none for what stands for the top level
    {
        reading.Known()
        } -> std::same_as<KnownNodes<typename Tree::Node>&>; // told of all that happens to nodes, by whomever
    {
        reading.Param(node)
        } -> std::same_as<LPARAM>; // 0 for what is no node
    {
        tree.SetParam(node, param)
        } -> std::same_as<BOOL>; // draws the node anew
    {
        reading.ReadForCopy(node, block)
        } -> std::same_as<bool>; // images and parameter, not the state
    {
        tree.Insert(block, node, node)
        } -> std::same_as<typename Tree::Node>; // parent, after
    {
        tree.Remove(node)
        } -> std::same_as<BOOL>; // with everything below; a host may hear of it
    {
        reading.Lives()
        } -> std::same_as<bool>; // false once a host ended the tree; nothing else may be asked then, nor the store
    {
        reading.MayMove(node, node)
        } -> std::same_as<
            bool>; // false while the tree is in the middle of something with the node, or with the new parent
    {
        tree.ReadyForRow()
        } -> std::same_as<bool>; // recalculates the scroll bars; false when the tree did not survive that
    {
        tree.Sort(node, compare)
        } -> std::same_as<BOOL>;
};

/// The operations on rows. Borrows what it works on.
template <NodeTree Tree> class TreeRows
{
public:
    using Node = typename Tree::Node;

    TreeRows(Tree tree, RowStore& store) : m_tree(std::move(tree)), m_store(store) {}

    /// The record of a node; null when it has none.
    CKxTreeListRow* RowOf(Node node) const { return m_store.Find(m_tree.Param(node)); }

    /// `count` goes up, and the scroll bars are recalculated, before the node exists.
    Node Insert(NodeBlock block, const CKxTreeListRow& row, int& count, Node parent, Node after)
    {
        block.param = RowStore::AddressOf(m_store.Create(row));
        ++count;
        return m_tree.ReadyForRow() ? m_tree.Insert(block, parent, after) : Node{};
    }

    /// Lets `change(record)` change a record and rewrites the node's parameter. 0 when there is no record.
    template <typename Change> BOOL Rewrite(Node node, const Change& change)
    {
        CKxTreeListRow* const row = RowOf(node);
        if (row == nullptr || !change(*row))
            return FALSE;
        return m_tree.SetParam(node, RowStore::AddressOf(row));
    }

    BOOL SetCell(Node node, int column, const wchar_t* text)
    {
        return Rewrite(node,
                       [&](CKxTreeListRow& row) { return RowCells::Write(row.texts, row.separator, column, text); });
    }

    CString Cell(Node node, int column) const
    {
        const CKxTreeListRow* const row = RowOf(node);
        return row == nullptr ? CString() : RowCells::Read(row->texts, row->separator, column);
    }

    BOOL SetValue(Node node, int column, double value, const wchar_t* text)
    {
        return Rewrite(node,
                       [&](CKxTreeListRow& row)
                       {
                           row.value = value;
                           return RowCells::Write(row.texts, row.separator, column, text);
                       });
    }

    /// Removes one node, not its records. 0 when it has none.
    BOOL Delete(Node node, int& count)
    {
        if (RowOf(node) == nullptr)
            return FALSE;
        --count;
        return m_tree.Remove(node);
    }

    Node Copy(Node node, Node parent, Node after)
    {
        NodeBlock block;
        return !m_tree.HasChildren(node) && ReadWithCopy(node, block) ? m_tree.Insert(block, parent, after) : Node{};
    }

    Node Move(Node node, int& count, Node parent, Node after)
    {
        NodeBlock block;
        if (m_tree.HasChildren(node) || IsAtOrBelow(m_tree, parent, node) || IsAtOrBelow(m_tree, after, node) ||
            !m_tree.MayMove(node, parent) || !ReadWithCopy(node, block))
            return {};
        Delete(node, count);
        return m_tree.Lives() ? m_tree.Insert(block, parent, after) : Node{};
    }

    /// Children keep their order. What has no record is left behind and goes with its parent.
    Node MoveWithChildren(Node node, int& count, Node parent, Node after)
    {
        if (!m_tree.HasChildren(node))
            return Move(node, count, parent, after);
        if (IsAtOrBelow(m_tree, parent, node) || IsAtOrBelow(m_tree, after, node) || !m_tree.MayMove(node, parent))
            return {};
        const Node moved = InsertCopy(node, parent, after);
        if (moved)
            MoveChildren(node, moved, count);
        return m_tree.Lives() ? moved : Node{};
    }

    /// Destroys the records of the sibling chain from `first` and of everything below. The nodes keep their parameters, which
    /// are no records any more.
    void DestroyRecords(Node first)
    {
        if (!first)
            return;
        KnownNodes<Node>& known = m_tree.Known();
        if (first == m_tree.First() && known.EveryRecordHasNode())
            m_store.DestroyRanked();
        else
            DestroyOneByOne(first);
        known.Distrust();
    }

    /// Sorts the children of `parent` (none: the top level).
    BOOL SortChildren(Node parent, int column, bool ascending)
    {
        const Node above = m_tree.AsParent(parent);
        std::vector<CKxTreeListRow*> rows;
        std::vector<std::uint32_t> ranks;
        if (m_tree.Known().RanksTell(above))
        {
            const BOOL done = CollectByRank(above, rows, ranks);
            if (rows.empty())
                return done; // fewer than two children
        }
        else if (!CollectOneByOne(above, rows, ranks))
            return m_tree.Sort(above, [&](LPARAM a, LPARAM b)
                               { return ComparePlainly(m_store.Find(a), m_store.Find(b), column, ascending); });
        RankRows(rows, ranks, column, ascending);
        const BOOL done = m_tree.Sort(above, CompareRanks);
        if (m_tree.Lives())
            m_tree.Known().StandByRank(above);
        return done;
    }

    /// By keys worked out for this one comparison. No record compares as an empty one.
    static int ComparePlainly(const CKxTreeListRow* a, const CKxTreeListRow* b, int column, bool ascending)
    {
        return RowComparison::Compare(KeyOf(a, column), KeyOf(b, column), ascending);
    }

private:
    static SortKey KeyOf(const CKxTreeListRow* row, int column)
    {
        return RowComparison::KeyOf(row == nullptr
                                        ? std::wstring_view()
                                        : RowCells::View(RowCells::ViewOf(row->texts), row->separator, column));
    }

    static int CompareRanks(LPARAM a, LPARAM b)
    {
        const std::uint32_t left = RowStore::Rank(*reinterpret_cast<const CKxTreeListRow*>(a));
        const std::uint32_t right = RowStore::Rank(*reinterpret_cast<const CKxTreeListRow*>(b));
        return left == right ? 0 : left < right ? -1 : 1;
    }

    /// The children of a node whose ranks tell how they stand, and those ranks. None for fewer than two children.
    BOOL CollectByRank(Node parent, std::vector<CKxTreeListRow*>& rows, std::vector<std::uint32_t>& ranks)
    {
        BOOL done = FALSE;
        if (!parent && m_tree.Known().EveryRecordIsOnTop())
            rows = m_store.Ranked();
        if (rows.size() < 2)
            done = CollectBySort(parent, rows);
        const auto inFront = [](const CKxTreeListRow* a, const CKxTreeListRow* b)
        { return RowStore::Rank(*a) < RowStore::Rank(*b); };
        if (!std::is_sorted(rows.begin(), rows.end(), inFront))
            std::sort(rows.begin(), rows.end(), inFront);
        ranks.reserve(rows.size());
        for (const CKxTreeListRow* const row : rows)
            ranks.push_back(RowStore::Rank(*row));
        return done;
    }

    /// A sort that moves no child sees all of them.
    BOOL CollectBySort(Node parent, std::vector<CKxTreeListRow*>& rows)
    {
        rows.clear();
        const auto see = [&rows](LPARAM param)
        {
            auto& row = *reinterpret_cast<CKxTreeListRow*>(param);
            if (!RowStore::SetMark(row, true))
                rows.push_back(&row);
        };
        const BOOL done = m_tree.Sort(parent,
                                      [&see](LPARAM a, LPARAM b)
                                      {
                                          see(a);
                                          see(b);
                                          return CompareRanks(a, b);
                                      });
        for (CKxTreeListRow* const row : rows)
            RowStore::SetMark(*row, false);
        return done;
    }

    /// The same for any node, with ranks that are new. False when a child has no record, and without children: the tree itself
    /// knows whether there is such a node.
    bool CollectOneByOne(Node parent, std::vector<CKxTreeListRow*>& rows, std::vector<std::uint32_t>& ranks)
    {
        for (Node node = parent ? m_tree.FirstChild(parent) : m_tree.First(); node; node = m_tree.Next(node))
        {
            rows.push_back(RowOf(node));
            if (rows.back() == nullptr)
                return false;
        }
        const auto count = static_cast<std::uint32_t>(rows.size());
        std::uint32_t rank = m_tree.Known().TakeRanks(count, RowStore::c_nLargestRank);
        ranks.reserve(rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i)
            ranks.push_back(rank++);
        return !rows.empty();
    }

    /// Keys are worked out once a row, and the tree itself sorts by the ranks that they gave.
    static void RankRows(const std::vector<CKxTreeListRow*>& rows, const std::vector<std::uint32_t>& ranks, int column,
                         bool ascending)
    {
        std::vector<SortKey> keys;
        keys.reserve(rows.size());
        for (const CKxTreeListRow* row : rows)
            keys.push_back(KeyOf(row, column));
        auto rank = ranks.begin();
        for (const std::uint32_t place : RowComparison::Order(keys, ascending))
            RowStore::SetRank(*rows[place], *rank++);
    }

    void DestroyOneByOne(Node first)
    {
        std::vector<Node> open{first};
        while (!open.empty())
        {
            const Node node = open.back();
            open.pop_back();
            if (!node)
                continue;
            m_store.Destroy(m_tree.Param(node));
            open.push_back(m_tree.Next(node));
            if (m_tree.HasChildren(node))
                open.push_back(m_tree.FirstChild(node));
        }
    }

    /// What is to be inserted for a copy of `node`: its images, and a record with the same fields.
    bool ReadWithCopy(Node node, NodeBlock& block)
    {
        const CKxTreeListRow* const row = RowOf(node);
        if (row == nullptr || !m_tree.ReadForCopy(node, block))
            return false;
        block.param = RowStore::AddressOf(m_store.Create(*row));
        return true;
    }

    Node InsertCopy(Node node, Node parent, Node after)
    {
        NodeBlock block;
        return ReadWithCopy(node, block) ? m_tree.Insert(block, parent, after) : Node{};
    }

    /// A node whose children are on their way below `to`.
    struct Moving
    {
        Node from;
        Node to;
        Node child;
    };

    /// Moves the children of `node` and what is below them, depth first, and removes each node behind its last child.
    void MoveChildren(Node node, Node moved, int& count)
    {
        std::vector<Moving> open{{node, moved, m_tree.FirstChild(node)}};
        while (!open.empty() && m_tree.Lives())
        {
            Moving& innermost = open.back();
            const Node child = innermost.child;
            if (!child)
            {
                Delete(innermost.from, count);
                open.pop_back();
                continue;
            }
            innermost.child = m_tree.Next(child);
            if (!m_tree.HasChildren(child))
                Move(child, count, innermost.to, m_tree.Last());
            else if (const Node next = InsertCopy(child, innermost.to, m_tree.Last()))
                open.push_back({child, next, m_tree.FirstChild(child)});
        }
    }

    Tree m_tree;
    RowStore& m_store;
};

} // namespace treelist
