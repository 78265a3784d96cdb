// A stable sort that stays inside its range whatever the comparison answers.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace treelist
{

/// Inserts each item of [begin, end) behind the last one before it that is not above it.
template <typename Item, typename Compare>
void InsertInOrder(std::vector<Item>& items, std::size_t begin, std::size_t end, const Compare& compare)
{
    for (std::size_t next = begin; next < end; ++next)
    {
        const Item item = items[next];
        std::size_t place = next;
        for (; place > begin && compare(items[place - 1], item) > 0; --place)
            items[place] = items[place - 1];
        items[place] = item;
    }
}

/// Merges the neighbours [begin, middle) and [middle, end) of `from` into the same places of `to`.
template <typename Item, typename Compare>
void MergeRuns(const std::vector<Item>& from, std::vector<Item>& to, std::size_t begin, std::size_t middle,
               std::size_t end, const Compare& compare)
{
    std::size_t left = begin;
    std::size_t right = middle;
    for (std::size_t place = begin; place < end; ++place)
    {
        const bool takeRight = left == middle || (right < end && compare(from[left], from[right]) > 0);
        to[place] = takeRight ? from[right++] : from[left++];
    }
}

/// `compare` answers above 0 when its first argument belongs behind its second. Up to `longestInsertion` items are sorted by
/// insertion alone.
template <typename Item, typename Compare>
void StableSort(std::vector<Item>& items, std::size_t longestInsertion, const Compare& compare)
{
    constexpr std::size_t shortRun = 16;
    const std::size_t count = items.size();
    const std::size_t firstRun = count <= longestInsertion ? std::max<std::size_t>(count, 1) : shortRun;
    for (std::size_t begin = 0; begin < count; begin += firstRun)
        InsertInOrder(items, begin, std::min(begin + firstRun, count), compare);
    std::vector<Item> other(firstRun < count ? count : 0);
    for (std::size_t run = firstRun; run < count; run *= 2)
    {
        for (std::size_t begin = 0; begin < count; begin += 2 * run)
            MergeRuns(items, other, begin, std::min(begin + run, count), std::min(begin + 2 * run, count), compare);
        std::swap(items, other);
    }
}

} // namespace treelist
