// What is known of columns beside the header, and how numbers become texts.
#include <gtest/gtest.h>
#include <climits>
#include "oxa/treelist/ColumnTables.h"
#include "treelist/ValueText.h"

namespace
{
using treelist::ColumnTables;
using treelist::ValueText;

ColumnTables ThreeColumns()
{
    ColumnTables columns;
    for (int i = 0; i < 3; ++i)
        columns.Append();
    columns.SetOpen(true);
    return columns;
}

TEST(ColumnTables, a_fresh_column_is_not_edited_and_has_no_unit)
{
    const ColumnTables columns = ThreeColumns();
    for (int column = -1; column < 4; ++column)
    {
        EXPECT_FALSE(columns.CanEdit(column));
        EXPECT_FALSE(columns.HasUnit(column));
    }
}

TEST(ColumnTables, closed_they_take_nothing_and_let_nothing_be_edited)
{
    ColumnTables columns = ThreeColumns();
    columns.SetCanEdit(0, true);
    columns.SetStyle(0, 2);
    columns.SetOpen(false);
    EXPECT_FALSE(columns.CanEdit(0));
    columns.SetCanEdit(1, true);
    columns.SetStyle(1, 2);
    columns.SetStyle(0, -1);
    EXPECT_TRUE(columns.HasUnit(0)) << "styles are read while closed";
    columns.SetOpen(true);
    EXPECT_TRUE(columns.CanEdit(0)) << "what was written before is there again";
    EXPECT_FALSE(columns.CanEdit(1));
    EXPECT_FALSE(columns.HasUnit(1));
}

TEST(ColumnTables, columns_outside_are_left_alone)
{
    ColumnTables columns = ThreeColumns();
    for (const int column : {INT_MIN, -1, 3, INT_MAX})
    {
        columns.SetCanEdit(column, true);
        columns.SetStyle(column, 1);
        EXPECT_FALSE(columns.CanEdit(column));
        EXPECT_FALSE(columns.HasUnit(column));
        EXPECT_EQ(columns.UnitFamily(column), 0U);
    }
}

TEST(ColumnTables, a_style_of_1_or_more_is_a_unit)
{
    ColumnTables columns = ThreeColumns();
    const struct
    {
        int style;
        bool unit;
    } cases[] = {{INT_MIN, false}, {-1, false}, {0, false}, {1, true}, {21, true}, {INT_MAX, true}};
    for (const auto& c : cases)
    {
        columns.SetStyle(1, c.style);
        EXPECT_EQ(columns.HasUnit(1), c.unit) << c.style;
    }
}

TEST(ColumnTables, the_first_column_with_a_unit_that_can_be_edited_is_found)
{
    ColumnTables columns = ThreeColumns();
    EXPECT_EQ(columns.FirstEditedUnit(-1), -1);
    columns.SetCanEdit(0, true); // no unit
    columns.SetStyle(1, 1);      // not edited
    EXPECT_EQ(columns.FirstEditedUnit(7), 7);
    columns.SetCanEdit(2, true);
    columns.SetStyle(2, 4);
    EXPECT_EQ(columns.FirstEditedUnit(7), 2);
    columns.SetCanEdit(1, true);
    EXPECT_EQ(columns.FirstEditedUnit(7), 1);
}

TEST(ValueText, without_a_unit_has_two_decimals_and_five_characters_at_least)
{
    CKxUnitManager manager;
    ColumnTables columns = ThreeColumns();
    columns.SetStyle(1, 1);
    EXPECT_EQ(ValueText::Format(3.5, 0, columns, &manager), L" 3.50");
    EXPECT_EQ(ValueText::Format(3.5, 1, columns, nullptr), L" 3.50") << "no unit manager";
    EXPECT_EQ(ValueText::Format(-12.345, 0, columns, &manager), L"-12.35") << "halves away from zero";
    EXPECT_EQ(ValueText::Format(0.0, 9, columns, &manager), L" 0.00");
    EXPECT_EQ(ValueText::Format(1234567.0, -1, columns, &manager), L"1234567.00");
    EXPECT_EQ(ValueText::Format(1e300, INT_MIN, columns, &manager).GetLength(), 304) << "301 digits, a point, two";
}

TEST(ValueText, with_a_unit_is_the_text_of_the_working_unit)
{
    CKxUnitManager manager;
    CKxUnit centimetres(1, 2, 1, L'.', 1.0, 1);
    manager.SetVisUnit(1, centimetres);
    ColumnTables columns = ThreeColumns();
    columns.SetStyle(1, 1);
    EXPECT_EQ(ValueText::Format(1.5, 1, columns, &manager), L"150.0 cm");
    columns.SetOpen(false);
    EXPECT_EQ(ValueText::Format(1.5, 1, columns, &manager), L"150.0 cm") << "closed tables still say the unit";
    EXPECT_EQ(ValueText::Format(1.5, 0, columns, &manager), L" 1.50");
}
} // namespace
