// Sorting a tree of rows level by level: which nodes the walk visits.
#pragma once

#include <concepts>
#include <vector>

namespace treelist
{

/// What the walk asks of a tree. A node that is false is none.
template <typename Tree>
concept SiblingTree = requires(const Tree& tree, typename Tree::Node node)
{
    {
        tree.Next(node)
        } -> std::same_as<typename Tree::Node>;
    {
        tree.FirstChild(node)
        } -> std::same_as<typename Tree::Node>;
    {
        tree.HasChildren(node)
        } -> std::same_as<bool>;
    {
        tree.MayHaveParentsBeside(node)
        } -> std::same_as<bool>; // false: the node is known to stand on a level where none has children
};

/// Calls `sortChildren(node)` for each node with children of the sibling chain from `first`, and for the levels below.
/// Kept on purpose: the first child is taken before its level is sorted, and the walk below goes on from that node's new
/// place, so that the subtrees of children sorted in front of it are not visited.
template <SiblingTree Tree, typename SortChildren>
void WalkAndSort(const Tree& tree, typename Tree::Node first, const SortChildren& sortChildren)
{
    std::vector<typename Tree::Node> open; // where the walk goes on, the innermost level last
    const auto goOnFrom = [&](typename Tree::Node node)
    {
        if (node && tree.MayHaveParentsBeside(node))
            open.push_back(node);
    };
    goOnFrom(first);
    while (!open.empty())
    {
        const typename Tree::Node node = open.back();
        open.pop_back();
        if (!node)
            continue;
        if (!tree.HasChildren(node))
        {
            open.push_back(tree.Next(node));
            continue;
        }
        const typename Tree::Node child = tree.FirstChild(node);
        sortChildren(node);
        open.push_back(tree.Next(node));
        goOnFrom(child);
    }
}

} // namespace treelist
