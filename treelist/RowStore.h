// The records of a tree list's rows: where they live, and which addresses are records at all.
#pragma once

#include <afx.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "oxa/Export.h"
#include "oxa/treelist/KxTreeListRow.h"

namespace treelist
{

/// Makes and destroys records, and tells a living record of its own from any other number, so that a node with a foreign
/// parameter, or with the record of a destroyed row, is a node without a record.
///
/// A destroyed record keeps its place until `Reclaim`. Kept on purpose: records that nobody destroyed outlive the store, and
/// stay until the process ends.
class OXA_API RowStore
{
public:
    RowStore();
    ~RowStore();
    RowStore(const RowStore&) = delete;
    RowStore& operator=(const RowStore&) = delete;

    /// A new record with the fields of `row`.
    CKxTreeListRow* Create(const CKxTreeListRow& row);
    /// How much room the texts of the next record may need, in characters: rows of a list are much alike. Moderate in any case.
    int UsualLength() const;
    /// The record at that address; null when no living record of this store is there.
    CKxTreeListRow* Find(LPARAM address) const;
    /// Empties and forgets a record. Anything else is left alone.
    void Destroy(LPARAM address);
    /// All records that have a rank.
    void DestroyRanked();
    std::vector<CKxTreeListRow*> Ranked() const;
    /// Gives the memory of destroyed records back. For the moment when no node points at one any more.
    void Reclaim();

    enum : std::uint32_t
    {
        c_nLargestRank = (1U << 30) - 1
    };
    /// A place in some order, kept beside each record of a store: 0 until one is set, `c_nLargestRank` at most.
    static void SetRank(CKxTreeListRow& row, std::uint32_t rank);
    static std::uint32_t Rank(const CKxTreeListRow& row);
    /// A mark beside each record. Answers whether it was set.
    static bool SetMark(CKxTreeListRow& row, bool mark);

    std::size_t LivingCount() const { return m_living; }
    static LPARAM AddressOf(const CKxTreeListRow* row) { return reinterpret_cast<LPARAM>(row); }

private:
    struct Place;
    struct Block
    {
        std::unique_ptr<Place[]> places;
        std::size_t size = 0;
        std::size_t used = 0;
        std::size_t living = 0;
    };
    using Blocks = std::vector<Block>;

    static Blocks& Left();
    const Block* BlockOf(std::uintptr_t address) const;
    Place* PlaceOf(LPARAM address) const;
    void Destroy(const Block& block, Place& place);
    Block& BlockWithRoom();
    void LeaveLiving();

    Blocks m_blocks;           ///< by address
    std::uintptr_t m_open = 0; ///< the block that takes the next record
    const Place* m_newest = nullptr;
    std::size_t m_nextSize;
    std::size_t m_living = 0;
};

} // namespace treelist
