// A block of bytes from malloc that several objects may hold together, and that is freed once.
#pragma once

#include <cstddef>
#include <memory>
#include "oxa/Export.h"

/// A byte pointer that knows whose the bytes are.
///
/// Copies hold the same block: a write through one is seen by the other, and so is a new address after `Grow`. The last
/// holder frees the block, unless it was borrowed or given away. An empty object is a null pointer.
class OXA_API SharedBytes
{
public:
    SharedBytes() = default;

    /// `size` bytes of 0, from malloc; empty when the memory cannot be had.
    static SharedBytes Allocate(std::size_t size);
    /// The same without a value: for a caller who writes every byte before anybody reads one.
    static SharedBytes AllocateUnset(std::size_t size);
    /// Somebody else's bytes: never freed, never reallocated.
    static SharedBytes Borrow(unsigned char* bytes, std::size_t size);

    unsigned char* Get() const { return m_block ? m_block->bytes : nullptr; }
    operator unsigned char*() const { return Get(); }
    /// The bytes of the block, which may be more than were asked for.
    std::size_t Size() const { return m_block ? m_block->size : 0; }

    /// Makes room for `size` bytes; those behind the old end are 0. All holders see the new address; a block that is not
    /// its holders' to reallocate (borrowed, given away) is copied instead, for this holder alone. False, and nothing
    /// changed, when the memory cannot be had.
    bool Grow(std::size_t size);
    /// From now on somebody else frees the block.
    void GiveAway();
    /// The holders free the block again, if it was theirs before `GiveAway`.
    void TakeBack();
    void Reset() { m_block.reset(); }

private:
    enum class Owner
    {
        Holders,
        Receiver, // it was ours once, and came from malloc
        Lender,
    };
    struct Block
    {
        unsigned char* bytes;
        std::size_t size;
        Owner owner;

        Block(unsigned char* theBytes, std::size_t theSize, Owner theOwner);
        ~Block();
        Block(const Block&) = delete;
        Block& operator=(const Block&) = delete;
    };

    static SharedBytes Hold(unsigned char* bytes, std::size_t size, Owner owner);

    std::shared_ptr<Block> m_block;
};
