// Asks for the verdict on bytes that end where they end.
#pragma once

#include <memory>
#include <vector>

#include "images/MetafileCheck.h"
#include "support/MetafileBuilder.h"

inline bool isSound(const std::vector<unsigned char>& bytes)
{
    const std::vector<unsigned char> exact(bytes.begin(),
                                           bytes.end()); // so that a sanitizer sees a read behind the end
    return MetafileCheck::isSound(exact.data(), exact.size());
}

/// A number in a record, and what it must not be.
struct Damage
{
    std::size_t at; // from the start of the record
    std::uint32_t value;
};

/// A record with counts, offsets or handles, as it is right, and what makes it wrong.
struct RecordCase
{
    const char* what;
    std::uint32_t kind;
    std::vector<unsigned char> body;
    std::vector<Damage> damages;
};
