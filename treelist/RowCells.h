// The cells of a row, packed into one text: how one of them is read and written.
#pragma once

#include <afx.h>

#include <string_view>

#include "oxa/Export.h"

namespace treelist
{

struct OXA_API RowCells
{
    enum : int
    {
        /// The longest packed text that a write makes, in characters.
        c_nLongestRow = 1 << 26
    };

    /// The cell, inside `packed`. Empty for a negative column and for one that is not there.
    static std::wstring_view View(std::wstring_view packed, wchar_t separator, int column);
    static CString Read(const CString& packed, wchar_t separator, int column);

    /// Replaces one cell; a row with too few cells is filled up with empty ones. A negative column changes nothing. False,
    /// and nothing is changed, when the row would get longer than `c_nLongestRow`.
    /// Kept on purpose: when the separator that opens the cell is the very first character, what stands before the cell is
    /// dropped, and the text lands in cell 0. A last cell that is empty is dropped by a write to the cell before it.
    static bool Write(CString& packed, wchar_t separator, int column, const wchar_t* text);

    /// Cuts the first cell off `rest` and answers it.
    static std::wstring_view Next(std::wstring_view& rest, wchar_t separator);

    static std::wstring_view ViewOf(const CString& text)
    {
        return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
    }
};

} // namespace treelist
