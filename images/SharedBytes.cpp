// Blocks of bytes that several objects may hold together.
#include "oxa/images/SharedBytes.h"

#include <cstdlib>
#include <cstring>
#include <new>

SharedBytes::Block::Block(unsigned char* theBytes, std::size_t theSize, Owner theOwner)
    : bytes(theBytes), size(theSize), owner(theOwner)
{
}

SharedBytes::Block::~Block()
{
    if (owner == Owner::Holders)
        std::free(bytes);
}

SharedBytes SharedBytes::Hold(unsigned char* bytes, std::size_t size, Owner owner)
{
    SharedBytes result;
    if (!bytes)
        return result;
    try
    {
        result.m_block = std::make_shared<Block>(bytes, size, owner);
    }
    catch (const std::bad_alloc&)
    {
        if (owner == Owner::Holders)
            std::free(bytes);
    }
    return result;
}

SharedBytes SharedBytes::Allocate(std::size_t size)
{
    return Hold(static_cast<unsigned char*>(std::calloc(size, 1)), size, Owner::Holders);
}

SharedBytes SharedBytes::AllocateUnset(std::size_t size)
{
    return Hold(static_cast<unsigned char*>(std::malloc(size)), size, Owner::Holders);
}

SharedBytes SharedBytes::Borrow(unsigned char* bytes, std::size_t size)
{
    return Hold(bytes, size, Owner::Lender);
}

bool SharedBytes::Grow(std::size_t size)
{
    if (m_block && m_block->owner == Owner::Holders)
    {
        if (size <= m_block->size)
            return true;
        auto* bytes = static_cast<unsigned char*>(std::realloc(m_block->bytes, size));
        if (!bytes)
            return false;
        std::memset(bytes + m_block->size, 0, size - m_block->size);
        m_block->bytes = bytes;
        m_block->size = size;
        return true;
    }
    SharedBytes own = Allocate(size < Size() ? Size() : size);
    if (!own)
        return false;
    if (m_block)
        std::memcpy(own.Get(), Get(), Size());
    *this = own;
    return true;
}

void SharedBytes::GiveAway()
{
    if (m_block && m_block->owner == Owner::Holders)
        m_block->owner = Owner::Receiver;
}

void SharedBytes::TakeBack()
{
    if (m_block && m_block->owner == Owner::Receiver)
        m_block->owner = Owner::Holders;
}
