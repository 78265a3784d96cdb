// The record behind one row of the tree list.
#pragma once

#include <afx.h>

#include <cstdint>

/// What the tree list knows of a row, beside its place among the other rows. The control creates the record and hangs it on
/// the node's parameter (`TVIF_PARAM`); it belongs to the control.
///
/// A plain value: a copy has all six fields.
struct CKxTreeListRow
{
    enum : wchar_t
    {
        /// Stands between two cells: the pilcrow.
        SEPARATOR = 182
    };

    /// A row without cells, in that text colour.
    explicit CKxTreeListRow(COLORREF textColor) : color(textColor) {}
#ifdef _WIN32
    /// A row without cells, in the system's colour of window texts.
    CKxTreeListRow() : CKxTreeListRow(::GetSysColor(COLOR_WINDOWTEXT)) {}
#endif

    /// All cells in column order, `separator` between them, without an escape: a text that holds the separator is two
    /// cells when it is read again. Closing cells that were never written are not there.
    CString texts;
    double value = 0.0;            ///< one number a row, not one a column
    std::uint64_t data = 0;        ///< the caller's word
    wchar_t separator = SEPARATOR; ///< never changed
    std::int32_t bold = 0;         ///< non-zero: painted in bold
    COLORREF color;                ///< of the text while the row is not selected
};
