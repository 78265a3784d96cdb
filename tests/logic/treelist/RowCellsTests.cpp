// How one cell of a packed row is read and written.
#include <gtest/gtest.h>
#include <climits>
#include <random>
#include <string>
#include "treelist/RowCells.h"

namespace
{
using treelist::RowCells;
constexpr wchar_t pilcrow = 182;

/// Rows are written with a bar for the separator.
std::wstring Packed(std::wstring text)
{
    for (wchar_t& character : text)
        character = character == L'|' ? pilcrow : character;
    return text;
}

std::wstring Written(const wchar_t* row, int column, const wchar_t* text)
{
    CString packed(Packed(row).c_str());
    EXPECT_TRUE(RowCells::Write(packed, pilcrow, column, text));
    std::wstring result(packed);
    for (wchar_t& character : result)
        character = character == pilcrow ? L'|' : character;
    return result;
}

std::wstring ReadCell(const wchar_t* row, int column)
{
    return std::wstring(RowCells::Read(CString(Packed(row).c_str()), pilcrow, column));
}

TEST(RowCellsRead, gives_what_stands_between_two_separators)
{
    struct
    {
        const wchar_t* row;
        int column;
        const wchar_t* cell;
    } const cases[] = {{L"", 0, L""},        {L"", 1, L""},           {L"a", 0, L"a"},     {L"a", 1, L""},
                       {L"a", INT_MAX, L""}, {L"a|b|c", 0, L"a"},     {L"a|b|c", 1, L"b"}, {L"a|b|c", 2, L"c"},
                       {L"a|b|c", 3, L""},   {L"|v", 0, L""},         {L"|v", 1, L"v"},    {L"a||c", 1, L""},
                       {L"a||c", 2, L"c"},   {L"a|b|", 2, L""},       {L"|||", 3, L""},    {L"abc|def", 0, L"abc"},
                       {L"a|b|c", -1, L""},  {L"a|b|c", INT_MIN, L""}};
    for (const auto& c : cases)
        EXPECT_EQ(ReadCell(c.row, c.column), c.cell) << CStringA(c.row) << " cell " << c.column;
}

TEST(RowCellsWrite, replaces_one_cell)
{
    struct
    {
        const wchar_t* row;
        int column;
        const wchar_t* text;
        const wchar_t* result;
    } const cases[] = {// the row has the cell
                       {L"", 0, L"x", L"x"},
                       {L"a", 0, L"x", L"x"},
                       {L"a|b|c", 0, L"y", L"y|b|c"},
                       {L"a|b|c", 1, L"y", L"a|y|c"},
                       {L"a|b|c", 2, L"y", L"a|b|y"},
                       {L"a||c", 1, L"y", L"a|y|c"},
                       {L"a|b|c", 1, L"", L"a||c"},
                       {L"a|b|c", 0, L"", L"|b|c"},
                       {L"|v", 0, L"x", L"x|v"},
                       // the row has too few cells
                       {L"a", 3, L"x", L"a|||x"},
                       {L"", 2, L"x", L"||x"},
                       {L"a|b|c", 4, L"x", L"a|b|c||x"},
                       {L"a", 2, L"", L"a||"},
                       // the separator that opens the cell is the first character: the prefix is dropped
                       {L"|v", 1, L"w", L"w"},
                       {L"|v|z", 1, L"w", L"w|z"},
                       {L"|", 1, L"w", L"w"},
                       {L"||z", 1, L"w", L"w|z"},
                       {L"|v|z", 2, L"w", L"|v|w"},
                       {L"||", 2, L"w", L"||w"},
                       // an empty last cell goes when the one before it is written
                       {L"a|b|", 1, L"y", L"a|y"},
                       {L"a|", 0, L"y", L"y"},
                       {L"|", 0, L"y", L"y"},
                       {L"a|b||", 1, L"y", L"a|y||"},
                       // a text with separators
                       {L"a|b", 0, L"x\u00b6y", L"x|y|b"},
                       // no column
                       {L"a|b", -1, L"x", L"a|b"},
                       {L"a|b", INT_MIN, L"x", L"a|b"}};
    for (const auto& c : cases)
        EXPECT_EQ(Written(c.row, c.column, c.text), c.result) << CStringA(c.row) << " cell " << c.column;
}

TEST(RowCellsWrite, a_null_text_is_an_empty_one)
{
    EXPECT_EQ(Written(L"a|b|c", 1, nullptr), L"a||c");
    EXPECT_EQ(Written(L"a", 1, nullptr), L"a|");
}

TEST(RowCellsWrite, takes_a_text_out_of_the_row_itself)
{
    CString packed(L"abc\u00b6d");
    EXPECT_TRUE(RowCells::Write(packed, pilcrow, 1, packed.GetString() + 1));
    EXPECT_EQ(packed, L"abc\u00b6bc\u00b6d");
}

TEST(RowCellsWrite, leaves_copies_of_the_row_alone)
{
    CString packed(L"a\u00b6b");
    const CString copy = packed;
    RowCells::Write(packed, pilcrow, 0, L"x");
    EXPECT_EQ(copy, L"a\u00b6b");
}

TEST(RowCellsWrite, appends_where_there_is_room)
{
    CString packed(L"a");
    packed.Preallocate(40);
    const wchar_t* const place = packed.GetString();
    EXPECT_TRUE(RowCells::Write(packed, pilcrow, 2, L"bc"));
    EXPECT_EQ(packed, L"a\u00b6\u00b6bc");
    EXPECT_TRUE(RowCells::Write(packed, pilcrow, 3, packed.GetString()));
    EXPECT_EQ(packed, L"a\u00b6\u00b6bc\u00b6a\u00b6\u00b6bc") << "a text out of the row itself";
    EXPECT_EQ(packed.GetString(), place) << "no new buffer";
    CString copy = packed;
    EXPECT_TRUE(RowCells::Write(copy, pilcrow, 6, L"d"));
    EXPECT_EQ(packed, L"a\u00b6\u00b6bc\u00b6a\u00b6\u00b6bc");
    EXPECT_EQ(copy, L"a\u00b6\u00b6bc\u00b6a\u00b6\u00b6bc\u00b6d");
}

TEST(RowCellsWrite, refuses_what_gets_longer_than_a_row_may_be)
{
    CString packed(L"a");
    EXPECT_FALSE(RowCells::Write(packed, pilcrow, INT_MAX, L"x"));
    EXPECT_FALSE(RowCells::Write(packed, pilcrow, RowCells::c_nLongestRow, L""));
    EXPECT_EQ(packed, L"a");
}

TEST(RowCellsWrite, a_row_may_be_exactly_as_long_as_that)
{
    CString packed(L"a");
    EXPECT_FALSE(RowCells::Write(packed, pilcrow, RowCells::c_nLongestRow - 1, L"x"));
    packed.Preallocate(RowCells::c_nLongestRow + 10);
    EXPECT_FALSE(RowCells::Write(packed, pilcrow, RowCells::c_nLongestRow - 1, L"x")) << "though there is room";
    EXPECT_TRUE(RowCells::Write(packed, pilcrow, RowCells::c_nLongestRow - 1, L""));
    EXPECT_EQ(packed.GetLength(), RowCells::c_nLongestRow);
}

TEST(RowCellsWrite, a_thousand_columns_keep_their_texts)
{
    CString packed(L"0");
    for (int column = 1; column < 1000; ++column)
        ASSERT_TRUE(RowCells::Write(packed, pilcrow, column, std::to_wstring(column).c_str()));
    for (int column = 999; column >= 0; --column)
        ASSERT_EQ(std::wstring(RowCells::Read(packed, pilcrow, column)), std::to_wstring(column));
    ASSERT_TRUE(RowCells::Write(packed, pilcrow, 500, L"new"));
    EXPECT_EQ(RowCells::Read(packed, pilcrow, 499), L"499");
    EXPECT_EQ(RowCells::Read(packed, pilcrow, 500), L"new");
    EXPECT_EQ(RowCells::Read(packed, pilcrow, 501), L"501");
}

TEST(RowCellsNext, cuts_cell_after_cell_off)
{
    std::wstring_view rest = L"a|bc||d";
    EXPECT_EQ(RowCells::Next(rest, L'|'), L"a");
    EXPECT_EQ(RowCells::Next(rest, L'|'), L"bc");
    EXPECT_EQ(RowCells::Next(rest, L'|'), L"");
    EXPECT_EQ(RowCells::Next(rest, L'|'), L"d");
    EXPECT_EQ(RowCells::Next(rest, L'|'), L"");
    EXPECT_EQ(RowCells::Next(rest, L'|'), L"");
}

/// Character by character, as the reading is described.
std::wstring ReadByCharacter(const std::wstring& packed, int column)
{
    std::wstring cell;
    int separators = 0;
    for (std::size_t i = 0; i < packed.size() && separators <= column; ++i)
    {
        if (packed[i] == pilcrow)
            ++separators;
        else if (separators == column)
            cell += packed[i];
    }
    return separators < column ? L"" : cell;
}

/// Character by character, as the writing is described.
std::wstring WriteByCharacter(const std::wstring& packed, int column, const std::wstring& text)
{
    std::size_t i = 0, last = 0;
    int n = 0;
    for (; n <= column && i < packed.size(); ++i)
    {
        if (packed[i] != pilcrow)
            continue;
        if (n != column)
            last = i;
        ++n;
    }
    if (n < column)
        return packed + std::wstring(static_cast<std::size_t>(column - n), pilcrow) + text;
    const std::wstring prefix = last != 0 ? packed.substr(0, last) + pilcrow : L"";
    return prefix + text + (i < packed.size() ? pilcrow + packed.substr(i) : L"");
}

TEST(RowCellsAgainstCharacters, random_rows_read_and_write_alike)
{
    std::mt19937 random(20240611); // a fixed seed
    for (int round = 0; round < 20000; ++round)
    {
        std::wstring row, text;
        for (auto length = random() % 9; length > 0; --length)
            row += random() % 2 == 0 ? pilcrow : L'a';
        for (auto length = random() % 3; length > 0; --length)
            text += random() % 4 == 0 ? pilcrow : L'x';
        const int column = static_cast<int>(random() % 8);
        CString packed(row.c_str());
        packed.Preallocate(static_cast<int>(random() % 20));
        ASSERT_EQ(std::wstring(RowCells::Read(packed, pilcrow, column)), ReadByCharacter(row, column));
        ASSERT_TRUE(RowCells::Write(packed, pilcrow, column, text.c_str()));
        ASSERT_EQ(std::wstring(packed), WriteByCharacter(row, column, text)) << round;
    }
}
} // namespace
