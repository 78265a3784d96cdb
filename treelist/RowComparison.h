// How two rows compare by the texts of one column, and how a list of rows is put in that order.
#pragma once

#include <afx.h>

#include <cstdint>
#include <string_view>
#include <vector>

#include "oxa/Export.h"

namespace treelist
{

/// What the comparison needs of a text, worked out once.
struct SortKey
{
    std::wstring_view text;       ///< borrowed
    std::size_t prefixLength = 0; ///< up to the first digit; the whole text when there is none
    double inches = 0.0;
    int number = 0;        ///< of the first run of digits, held at the largest int
    bool isLength = false; ///< understood as feet and inches
    bool hasDigits = false;
};

struct OXA_API RowComparison
{
    static SortKey KeyOf(std::wstring_view text);
    /// Below 0, 0 or above 0. No strict order: lengths have a tolerance, and descending (`ascending` 0) only turns a result
    /// of exactly 1 or -1 around.
    static int Compare(const SortKey& a, const SortKey& b, bool ascending);
    /// The difference of the first two characters that differ, A to Z taken as a to z, the end as 0.
    static int CompareBlindToCase(std::wstring_view a, std::wstring_view b);

    /// The positions of the keys in sorted order; keys that compare equal keep theirs. The result is that of inserting one
    /// key after the other behind the last one that is not above it, for up to `c_nLongestInsertion` keys whatever the
    /// comparison answers, beyond that wherever it is an order.
    static std::vector<std::uint32_t> Order(const std::vector<SortKey>& keys, bool ascending);

    enum : unsigned
    {
        c_nLongestInsertion = 128
    };
};

} // namespace treelist
