// The cells of a row, packed into one text: how one of them is read and written.
#include "RowCells.h"

#include <algorithm>
#include <cwchar>

namespace treelist
{

namespace
{

constexpr std::size_t nowhere = std::wstring_view::npos;

/// Where a cell begins, or how many separators are missing until there is one.
struct CellStart
{
    std::size_t position = 0;
    int missing = 0;
};

CellStart FindCell(std::wstring_view packed, wchar_t separator, int column)
{
    CellStart start;
    for (start.missing = column; start.missing > 0; --start.missing)
    {
        const std::size_t found = packed.find(separator, start.position);
        if (found == nowhere)
            return start;
        start.position = found + 1;
    }
    return start;
}

/// Appends a number of separators and a text, where there is room for them. The text may stand in `packed` itself.
bool AppendInPlace(CString& packed, std::size_t separators, wchar_t separator, std::wstring_view text)
{
    const auto length = static_cast<std::size_t>(packed.GetLength());
    const auto most = std::min(static_cast<std::size_t>(packed.GetAllocLength()), std::size_t{RowCells::c_nLongestRow});
    const std::size_t room = std::max(most, length) - length;
    if (text.size() > room || separators > room - text.size())
        return false;
    if (separators + text.size() == 0)
        return true;
    wchar_t* to = packed.GetBufferSetLength(static_cast<int>(length + separators + text.size())) + length;
    to = std::wmemset(to, separator, separators) + separators;
    text.copy(to, text.size());
    return true;
}

/// Joins three texts, the middle one being a number of separators and a text.
bool Join(CString& packed, std::wstring_view before, std::size_t separators, wchar_t separator, std::wstring_view text,
          std::wstring_view behind)
{
    constexpr std::size_t longest = RowCells::c_nLongestRow;
    if (text.size() > longest || separators > longest ||
        before.size() + separators + text.size() + behind.size() > longest)
        return false;
    const std::size_t length = before.size() + separators + text.size() + behind.size();
    CString joined;
    wchar_t* to = joined.GetBufferSetLength(static_cast<int>(length));
    to += before.copy(to, before.size());
    to = std::wmemset(to, separator, separators) + separators;
    to += text.copy(to, text.size());
    behind.copy(to, behind.size());
    packed = joined;
    return true;
}

} // namespace

std::wstring_view RowCells::View(std::wstring_view packed, wchar_t separator, int column)
{
    if (column < 0)
        return {};
    const CellStart start = FindCell(packed, separator, column);
    if (start.missing > 0)
        return {};
    packed.remove_prefix(start.position);
    return Next(packed, separator);
}

CString RowCells::Read(const CString& packed, wchar_t separator, int column)
{
    const std::wstring_view cell = View(ViewOf(packed), separator, column);
    return cell.empty() ? CString() : CString(cell.data(), static_cast<int>(cell.size()));
}

std::wstring_view RowCells::Next(std::wstring_view& rest, wchar_t separator)
{
    const std::size_t end = rest.find(separator);
    const std::wstring_view cell = rest.substr(0, end);
    rest.remove_prefix(end == nowhere ? rest.size() : end + 1);
    return cell;
}

bool RowCells::Write(CString& packed, wchar_t separator, int column, const wchar_t* text)
{
    if (column < 0)
        return true;
    const std::wstring_view written = text == nullptr ? std::wstring_view() : std::wstring_view(text);
    const std::wstring_view old = ViewOf(packed);
    const CellStart start = FindCell(old, separator, column);
    const auto missing = static_cast<std::size_t>(start.missing);
    if (missing > 0 || old.empty())
        return AppendInPlace(packed, missing, separator, written) || Join(packed, old, missing, separator, written, {});
    // A separator at position 0 counts as none, on purpose: what stands before the cell is dropped.
    const std::size_t prefix = start.position > 1 ? start.position : 0;
    const std::size_t end = old.find(separator, start.position);
    // A closing separator without anything behind it is dropped, on purpose.
    const bool more = end != nowhere && end + 1 < old.size();
    return Join(packed, old.substr(0, prefix), 0, separator, written, more ? old.substr(end) : std::wstring_view());
}

} // namespace treelist
