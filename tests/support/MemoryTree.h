// A tree of plain nodes in memory that behaves like the platform's tree control.
#pragma once
#include <deque>
#include <functional>
#include <list>
#include "oxa/treelist/ColumnTables.h"
#include "treelist/TreeRows.h"
#include "treelist/ValueText.h"

struct MemoryNode
{
    treelist::NodeBlock block;
    bool alive = false;
    MemoryNode* parent = nullptr;
    MemoryNode* previous = nullptr;
    MemoryNode* next = nullptr;
    MemoryNode* firstChild = nullptr;
    MemoryNode* lastChild = nullptr;
};

/// The nodes. A handle of a removed node is known as such: nothing is freed before the tree itself.
class MemoryNodes
{
public:
    MemoryNodes() { m_root.alive = true; }
    MemoryNodes(const MemoryNodes&) = delete;
    MemoryNodes& operator=(const MemoryNodes&) = delete;

    /// As `parent`, and as `after`: what the platform's constants say. None of them is a node.
    static MemoryNode* Root() { return Special(0); }
    static MemoryNode* First() { return Special(1); }
    static MemoryNode* Last() { return Special(2); }
    static bool IsNode(const MemoryNode* node) { return node != nullptr && !IsSpecial(node) && node->alive; }

    MemoryNode* Top() { return &m_root; }
    const MemoryNode* Top() const { return &m_root; }
    MemoryNode* PlaceOf(MemoryNode* node) { return node == nullptr || node == Root() ? &m_root : node; }

    MemoryNode* Insert(const treelist::NodeBlock& block, MemoryNode* parent, MemoryNode* after)
    {
        MemoryNode* const above = PlaceOf(parent);
        if (IsSpecial(above) || !above->alive)
            return nullptr;
        MemoryNode& node = m_nodes.emplace_back();
        node.block = block;
        node.alive = true;
        Link(node, *above, PreviousOf(*above, after));
        ++count;
        return &node;
    }

    bool Remove(MemoryNode* node)
    {
        if (!IsNode(node))
            return false;
        Unlink(*node);
        std::list<MemoryNode*> open{node};
        for (; !open.empty(); open.pop_front())
        {
            MemoryNode& dead = *open.front();
            for (MemoryNode* child = dead.firstChild; child != nullptr; child = child->next)
                open.push_back(child);
            dead.alive = false;
            --count;
        }
        return true;
    }

    template <typename Compare> void Sort(MemoryNode& parent, const Compare& compare)
    {
        std::list<MemoryNode*> children;
        for (MemoryNode* child = parent.firstChild; child != nullptr; child = child->next)
            children.push_back(child);
        children.sort([&](const MemoryNode* a, const MemoryNode* b)
                      { return compare(a->block.param, b->block.param) < 0; });
        parent.firstChild = parent.lastChild = nullptr;
        for (MemoryNode* child : children)
            Link(*child, parent, parent.lastChild);
    }

    int count = 0;
    treelist::KnownNodes<MemoryNode*> known;

private:
    static MemoryNode* Special(int index)
    {
        static MemoryNode specials[3];
        return &specials[index];
    }
    static bool IsSpecial(const MemoryNode* node) { return node == Root() || node == First() || node == Last(); }

    static MemoryNode* PreviousOf(MemoryNode& parent, MemoryNode* after)
    {
        if (after == First())
            return nullptr;
        return IsNode(after) && after->parent == &parent ? after : parent.lastChild;
    }
    static void Link(MemoryNode& node, MemoryNode& parent, MemoryNode* previous)
    {
        node.parent = &parent;
        node.previous = previous;
        node.next = previous == nullptr ? parent.firstChild : previous->next;
        (node.previous == nullptr ? parent.firstChild : node.previous->next) = &node;
        (node.next == nullptr ? parent.lastChild : node.next->previous) = &node;
    }
    static void Unlink(MemoryNode& node)
    {
        (node.previous == nullptr ? node.parent->firstChild : node.previous->next) = node.next;
        (node.next == nullptr ? node.parent->lastChild : node.next->previous) = node.previous;
    }

    MemoryNode m_root;
    std::deque<MemoryNode> m_nodes;
};

/// The nodes as the rows of the tree list ask for them.
class MemoryTree
{
public:
    using Node = MemoryNode*;

    explicit MemoryTree(MemoryNodes& nodes) : m_nodes(&nodes) {}

    Node First() const { return m_nodes->Top()->firstChild; }
    Node Next(Node node) const { return MemoryNodes::IsNode(node) ? node->next : nullptr; }
    Node FirstChild(Node node) const { return MemoryNodes::IsNode(node) ? node->firstChild : nullptr; }
    Node Parent(Node node) const
    {
        return MemoryNodes::IsNode(node) && node->parent != m_nodes->Top() ? node->parent : nullptr;
    }
    Node Last() const { return MemoryNodes::Last(); }
    bool HasChildren(Node node) const { return FirstChild(node) != nullptr; }
    static Node AsParent(Node parent) { return parent == MemoryNodes::Root() ? nullptr : parent; }
    treelist::KnownNodes<Node>& Known() const { return m_nodes->known; }
    bool MayHaveParentsBeside(Node node) const { return Known().MayHaveParentBelow(Parent(node)); }
    LPARAM Param(Node node) const { return MemoryNodes::IsNode(node) ? node->block.param : 0; }
    BOOL SetParam(Node node, LPARAM param)
    {
        if (!MemoryNodes::IsNode(node))
            return FALSE;
        node->block.param = param;
        return TRUE;
    }
    bool ReadForCopy(Node node, treelist::NodeBlock& block) const
    {
        if (!MemoryNodes::IsNode(node))
            return false;
        block = node->block;
        block.state = 0;
        return true;
    }
    /// Of a row that has a record of its own.
    Node Insert(const treelist::NodeBlock& block, Node parent, Node after)
    {
        auto& row = *reinterpret_cast<CKxTreeListRow*>(block.param);
        treelist::RowStore::SetRank(row, Known().TakeRanks(1, treelist::RowStore::c_nLargestRank));
        const Node node = m_nodes->Insert(block, parent, after);
        if (after != Last())
            Known().Shuffled(AsParent(parent));
        if (node == nullptr)
            Known().RecordWithoutNode();
        else if (Known().GetsChild(AsParent(parent)))
            Known().HasParentBelow(Parent(parent));
        return node;
    }
    BOOL Remove(Node node)
    {
        const bool removed = m_nodes->Remove(node);
        Known().Removed();
        if (onRemove)
            m_lives = onRemove();
        return removed ? TRUE : FALSE;
    }
    bool Lives() const { return m_lives; }
    bool MayMove(Node, Node) const { return true; }
    bool ReadyForRow() const { return !onReadyForRow || onReadyForRow(); }
    template <typename Compare> BOOL Sort(Node parent, const Compare& compare)
    {
        m_nodes->Sort(*m_nodes->PlaceOf(parent), compare);
        return TRUE;
    }

    std::function<bool()> onReadyForRow;
    std::function<bool()> onRemove; ///< false when the tree does not survive that

private:
    MemoryNodes* m_nodes;
    bool m_lives = true;
};

/// The rows over nodes in memory, with the operations that the control has.
class MemoryTreeList
{
public:
    using Node = MemoryNode*;

    static Node Root() { return MemoryNodes::Root(); }
    static Node Before() { return MemoryNodes::First(); }
    static Node Behind() { return MemoryNodes::Last(); }

    Node InsertItem(const wchar_t* text, Node parent, Node after) { return InsertItem(text, 0, 0, parent, after); }
    Node InsertItem(const wchar_t* text, int image, int selectedImage, Node parent, Node after)
    {
        CKxTreeListRow row(textColor);
        treelist::RowCells::Write(row.texts, row.separator, 0, text);
        treelist::NodeBlock block;
        block.image = image;
        block.selectedImage = selectedImage;
        return Rows().Insert(block, row, m_itemCount, parent, after);
    }
    BOOL SetItemText(Node node, int column, const wchar_t* text) { return Rows().SetCell(node, column, text); }
    CString GetItemText(Node node, int column) { return Rows().Cell(node, column); }
    BOOL SetItemValue(Node node, int column, double value)
    {
        return Rows().SetValue(node, column, value, FormatValue(value, column));
    }
    double GetItemValue(Node node, int)
    {
        const CKxTreeListRow* const row = Rows().RowOf(node);
        return row == nullptr ? 0.0 : row->value;
    }
    CString FormatValue(double value, int column)
    {
        return treelist::ValueText::Format(value, column, columns, unitManager);
    }
    BOOL SetItemData(Node node, std::uint32_t data)
    {
        return Rows().Rewrite(node,
                              [data](CKxTreeListRow& row)
                              {
                                  row.data = data;
                                  return true;
                              });
    }
    std::uint64_t GetItemData(Node node)
    {
        const CKxTreeListRow* const row = Rows().RowOf(node);
        return row == nullptr ? 0 : row->data;
    }
    BOOL SetItemBold(Node node, int bold)
    {
        return Rows().Rewrite(node,
                              [bold](CKxTreeListRow& row)
                              {
                                  row.bold = bold;
                                  return true;
                              });
    }
    int GetItemCount() const { return m_itemCount; }
    Node CopyItem(Node node, Node parent, Node after) { return Rows().Copy(node, parent, after); }
    Node MoveItem(Node node, Node parent, Node after) { return Rows().Move(node, m_itemCount, parent, after); }
    Node MoveItemAndChildren(Node node, Node parent, Node after, bool)
    {
        return Rows().MoveWithChildren(node, m_itemCount, parent, after);
    }
    BOOL DeleteItem(Node node) { return Rows().Delete(node, m_itemCount); }
    BOOL DeleteAllItems()
    {
        MemDeleteAllItems(Tree().First());
        while (Tree().First() != nullptr)
            Tree().Remove(Tree().First());
        store.Reclaim();
        nodes.known.Emptied();
        return TRUE;
    }
    void MemDeleteAllItems(Node first) { Rows().DestroyRecords(first); }
    BOOL SortItems(int column, BOOL ascending, Node parent)
    {
        return Rows().SortChildren(parent, column, ascending != 0);
    }
    void SortTree(int column, int ascending, Node first)
    {
        treelist::WalkAndSort(Tree(), first, [&](Node node) { SortItems(column, ascending, node); });
    }

    // What a test sees and does behind the rows' back.
    Node First() { return Tree().First(); }
    Node Next(Node node) { return Tree().Next(node); }
    Node FirstChild(Node node) { return Tree().FirstChild(node); }
    int NodeCount() const { return nodes.count; }
    int Image(Node node) const { return node->block.image; }
    LPARAM Param(Node node) { return Tree().Param(node); }
    void SetParam(Node node, LPARAM param)
    {
        nodes.known.Distrust();
        Tree().SetParam(node, param);
    }
    Node InsertForeign(LPARAM param, Node parent)
    {
        treelist::NodeBlock block;
        block.param = param;
        nodes.known.Distrust();
        return nodes.Insert(block, parent, Behind());
    }
    const CKxTreeListRow* Row(Node node) { return Rows().RowOf(node); }

    static constexpr COLORREF textColor = RGB(1, 2, 3);
    treelist::ColumnTables columns;
    CKxUnitManager* unitManager = nullptr;
    MemoryNodes nodes;
    treelist::RowStore store;
    std::function<bool()> onReadyForRow;
    std::function<bool()> onRemove;

private:
    MemoryTree Tree()
    {
        MemoryTree tree(nodes);
        tree.onReadyForRow = onReadyForRow;
        tree.onRemove = onRemove;
        return tree;
    }
    treelist::TreeRows<MemoryTree> Rows() { return {Tree(), store}; }

    int m_itemCount = 0;
};
