// The order of remembered values: where a value goes in a list of texts, and how a whole list is sorted.
#pragma once

#include <afxcoll.h>

#include <cstddef>
#include <string>
#include <vector>
#include "oxa/Export.h"

struct OXA_API RememberedValues
{
    /// Puts a value before the first item that it compares below without regard to case, or at the tail; always at the
    /// tail when the list is not sorted.
    static void Insert(CStringList& list, const CString& value, bool sorted);

    /// Puts a value into a list that is in the order of character codes, beginning to look at `position`, which is a
    /// place of the list. An equal value is in already, and is dropped.
    static void InsertElement(POSITION position, CStringList& list, const CString& value);

    /// The same as InsertElement of each value in turn, from the head on, into a list that begins with the first value.
    /// Takes n log n comparisons.
    static void Sort(const CStringList& values, CStringList& sorted);

    /// Replaces the items by what Insert of each value in turn makes of an empty list. Takes n log n comparisons.
    static void Fill(CStringList& list, std::vector<CString> values, bool sorted);

    /// The places of the keys in ascending order of the keys; equal ones in the order in which they come. Takes n log n
    /// comparisons.
    static std::vector<std::size_t> Order(const std::vector<std::wstring>& keys);

    /// For each key the place of the first one that equals it; `order` is what Order answers for the keys.
    static std::vector<std::size_t> FirstEqual(const std::vector<std::wstring>& keys,
                                               const std::vector<std::size_t>& order);

    static std::vector<CString> Copy(const CStringList& list);

    /// Replaces the items of `target` by those of `source`, which may be the same list.
    static void Assign(CStringList& target, const CStringList& source);

    /// Adds the items of `source`, which may be the same list, behind those of `target`.
    static void Append(CStringList& target, const CStringList& source);
};
