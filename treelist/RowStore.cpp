// The records of a tree list's rows: where they live, and which addresses are records at all.
#include "RowStore.h"

#include <algorithm>
#include <iterator>

namespace treelist
{

namespace
{
constexpr std::size_t firstSize = 16;
constexpr std::size_t largestSize = 1024;
constexpr int mostRoom = 127;
} // namespace

/// A base, so that what is known beside the record takes the room that is left behind its last field.
struct RowStore::Place : CKxTreeListRow
{
    Place() : CKxTreeListRow(0), rank(0), marked(0), living(0) {}

    std::uint32_t rank : 30;
    std::uint32_t marked : 1;
    std::uint32_t living : 1;
};

RowStore::RowStore() : m_nextSize(firstSize) {}

RowStore::~RowStore()
{
    LeaveLiving();
}

RowStore::Blocks& RowStore::Left()
{
    static Blocks* const left = new Blocks; // never destroyed
    return *left;
}

void RowStore::LeaveLiving()
{
    const auto hasLiving = [](const Block& block) { return block.living != 0; };
    std::copy_if(std::make_move_iterator(m_blocks.begin()), std::make_move_iterator(m_blocks.end()),
                 std::back_inserter(Left()), hasLiving);
    m_blocks.clear();
}

const RowStore::Block* RowStore::BlockOf(std::uintptr_t address) const
{
    const auto behind = std::upper_bound(m_blocks.begin(), m_blocks.end(), address,
                                         [](std::uintptr_t sought, const Block& block)
                                         { return sought < reinterpret_cast<std::uintptr_t>(block.places.get()); });
    return behind == m_blocks.begin() ? nullptr : &*std::prev(behind);
}

RowStore::Place* RowStore::PlaceOf(LPARAM address) const
{
    const auto sought = static_cast<std::uintptr_t>(address);
    const Block* const block = BlockOf(sought);
    if (block == nullptr)
        return nullptr;
    const std::uintptr_t offset = sought - reinterpret_cast<std::uintptr_t>(block->places.get());
    const std::size_t index = offset / sizeof(Place);
    if (offset % sizeof(Place) != 0 || index >= block->used || block->places[index].living == 0)
        return nullptr;
    return &block->places[index];
}

RowStore::Block& RowStore::BlockWithRoom()
{
    if (m_open != 0)
    {
        auto* const open = const_cast<Block*>(BlockOf(m_open));
        if (open->used < open->size)
            return *open;
    }
    Block fresh;
    fresh.places = std::make_unique<Place[]>(m_nextSize);
    fresh.size = m_nextSize;
    m_nextSize = std::min(m_nextSize * 2, largestSize);
    const auto address = reinterpret_cast<std::uintptr_t>(fresh.places.get());
    const auto behind = std::upper_bound(m_blocks.begin(), m_blocks.end(), address,
                                         [](std::uintptr_t sought, const Block& block)
                                         { return sought < reinterpret_cast<std::uintptr_t>(block.places.get()); });
    Block& placed = *m_blocks.insert(behind, std::move(fresh));
    m_open = address;
    return placed;
}

CKxTreeListRow* RowStore::Create(const CKxTreeListRow& row)
{
    Block& block = BlockWithRoom();
    Place& place = block.places[block.used];
    static_cast<CKxTreeListRow&>(place) = row;
    place.living = 1;
    ++block.used;
    ++block.living;
    ++m_living;
    m_newest = &place;
    return &place;
}

int RowStore::UsualLength() const
{
    return m_newest == nullptr ? 0 : std::min(m_newest->texts.GetLength(), mostRoom);
}

CKxTreeListRow* RowStore::Find(LPARAM address) const
{
    return PlaceOf(address);
}

void RowStore::Destroy(const Block& block, Place& place)
{
    static_cast<CKxTreeListRow&>(place) = CKxTreeListRow(0);
    place.living = 0;
    --const_cast<Block&>(block).living;
    --m_living;
}

void RowStore::Destroy(LPARAM address)
{
    if (Place* const place = PlaceOf(address))
        Destroy(*BlockOf(static_cast<std::uintptr_t>(address)), *place);
}

void RowStore::DestroyRanked()
{
    for (const Block& block : m_blocks)
        for (std::size_t i = 0; i < block.used; ++i)
            if (block.places[i].living != 0 && block.places[i].rank != 0)
                Destroy(block, block.places[i]);
}

std::vector<CKxTreeListRow*> RowStore::Ranked() const
{
    std::vector<CKxTreeListRow*> ranked;
    ranked.reserve(m_living);
    for (const Block& block : m_blocks)
        for (std::size_t i = 0; i < block.used; ++i)
            if (block.places[i].living != 0 && block.places[i].rank != 0)
                ranked.push_back(&block.places[i]);
    return ranked;
}

void RowStore::Reclaim()
{
    LeaveLiving();
    m_open = 0;
    m_newest = nullptr;
    m_nextSize = firstSize;
    m_living = 0;
}

void RowStore::SetRank(CKxTreeListRow& row, std::uint32_t rank)
{
    static_cast<Place&>(row).rank = rank & c_nLargestRank;
}

std::uint32_t RowStore::Rank(const CKxTreeListRow& row)
{
    return static_cast<const Place&>(row).rank;
}

bool RowStore::SetMark(CKxTreeListRow& row, bool mark)
{
    auto& place = static_cast<Place&>(row);
    const bool before = place.marked != 0;
    place.marked = mark ? 1 : 0;
    return before;
}

} // namespace treelist
