// Finding a row of the tree list by its cells, and adding it where there is none: over any tree with rows of cells.
#pragma once

#include <afx.h>

#include <concepts>

namespace treelist
{

/// What the search asks of a tree. A node that is false is none; `TopNode` stands above the top level.
template <typename Tree>
concept CellTree = requires(Tree& tree, typename Tree::Node node, int column, double value, const CString& text)
{
    {
        tree.FirstChild(node)
        } -> std::same_as<typename Tree::Node>;
    {
        tree.NextSibling(node)
        } -> std::same_as<typename Tree::Node>;
    {
        tree.Cell(node, column)
        } -> std::same_as<CString>;
    {
        tree.Value(node)
        } -> std::same_as<double>;
    {
        tree.FormatValue(value, column)
        } -> std::same_as<CString>;
    {
        tree.Append(node, text)
        } -> std::same_as<typename Tree::Node>; // below `node`, with that cell 0
    tree.SetCell(node, column, text);
    tree.SetValue(node, column, value);
};

/// The first child of `parent` that `fits`; none when there is none.
template <CellTree Tree, typename Fits> typename Tree::Node FindChild(Tree& tree, typename Tree::Node parent, Fits fits)
{
    for (typename Tree::Node node = tree.FirstChild(parent); node; node = tree.NextSibling(node))
        if (fits(node))
            return node;
    return {};
}

template <CellTree Tree>
typename Tree::Node FindChildByText(Tree& tree, typename Tree::Node parent, const CString& text)
{
    return FindChild(tree, parent, [&](typename Tree::Node node) { return tree.Cell(node, 0) == text; });
}

/// The child with that name in cell 0 and that number in cell 1, added when there is none.
template <CellTree Tree>
typename Tree::Node FindOrAdd(Tree& tree, typename Tree::Node parent, const CString& name, int value)
{
    CString number;
    number.Format(L"%d", value);
    const auto found =
        FindChild(tree, parent,
                  [&](typename Tree::Node node) { return tree.Cell(node, 0) == name && tree.Cell(node, 1) == number; });
    if (found)
        return found;
    const auto added = tree.Append(parent, name);
    if (added) // else there may be no tree any more
        tree.SetCell(added, 1, number);
    return added;
}

/// Two row values are the same when they are no farther apart than 1e-10, whatever their size.
inline bool SameValue(double a, double b)
{
    return (a - b) * (a - b) <= 1e-20;
}

/// The child with that name in cell 0 and that value, added when there is none. The text of cell 1 plays no part.
template <CellTree Tree>
typename Tree::Node FindOrAdd(Tree& tree, typename Tree::Node parent, const CString& name, double value)
{
    const auto found = FindChild(tree, parent,
                                 [&](typename Tree::Node node)
                                 { return tree.Cell(node, 0) == name && SameValue(value, tree.Value(node)); });
    if (found)
        return found;
    const auto added = tree.Append(parent, name);
    if (!added)
        return added;
    tree.SetCell(added, 1, tree.FormatValue(value, 1));
    tree.SetValue(added, 1, value);
    return added;
}

} // namespace treelist
