// Where rows and cells are painted.
#include <gtest/gtest.h>
#include <climits>
#include "treelist/RowLayout.h"

namespace
{
using treelist::CellPlace;
using treelist::Columns;

Columns ColumnsOf(std::initializer_list<treelist::ColumnLook> looks)
{
    Columns columns;
    columns.looks = looks;
    for (const treelist::ColumnLook& look : looks)
        columns.total += look.width;
    return columns;
}

const CRect full(0, 32, 400, 48);

CRect AreaOf(int textLeft, const Columns& columns)
{
    return treelist::RowArea(CRect(textLeft, 30, textLeft + 3, 50), full, columns);
}

std::vector<CellPlace> AllPlaces(int textLeft, const Columns& columns)
{
    return treelist::CellPlaces(AreaOf(textLeft, columns), columns, INT_MIN, INT_MAX);
}

TEST(RowArea, runs_from_the_text_to_the_last_column)
{
    EXPECT_EQ(AreaOf(20, ColumnsOf({{100, 0}, {50, 0}})), CRect(20, 32, 150, 48));
    EXPECT_EQ(AreaOf(20, ColumnsOf({{100, 0}})), CRect(20, 32, 100, 48));
}

TEST(RowArea, begins_at_the_second_column_at_the_latest)
{
    EXPECT_EQ(AreaOf(130, ColumnsOf({{100, 0}, {50, 0}})), CRect(100, 32, 150, 48)) << "a deep row";
    EXPECT_EQ(AreaOf(130, ColumnsOf({{100, 0}})), CRect(130, 32, 100, 48)) << "one column alone does not hold it";
}

TEST(RowArea, is_empty_without_columns)
{
    EXPECT_TRUE(AreaOf(20, Columns()).IsRectEmpty());
}

TEST(StripBehindFirst, covers_the_client_area_but_for_its_first_line)
{
    const CRect client(0, 0, 400, 300);
    EXPECT_EQ(treelist::StripBehindFirst(client, ColumnsOf({{100, 0}, {50, 0}})), CRect(100, 1, 500, 301));
    EXPECT_EQ(treelist::StripBehindFirst(client, Columns()), CRect(0, 1, 400, 301));
}

void ExpectPlace(const CellPlace& place, int column, CRect rect, int width, int align)
{
    EXPECT_EQ(place.column, column);
    EXPECT_EQ(place.rect, rect);
    EXPECT_EQ(place.width, width);
    EXPECT_EQ(place.align, align);
}

TEST(CellPlaces, stand_side_by_side_the_first_behind_the_tree)
{
    const auto places = AllPlaces(20, ColumnsOf({{100, 0}, {50, 1}, {30, 2}}));
    ASSERT_EQ(places.size(), 3U);
    ExpectPlace(places[0], 0, CRect(22, 32, 100, 48), 78, 0);
    ExpectPlace(places[1], 1, CRect(100, 32, 150, 48), 50, 1);
    ExpectPlace(places[2], 2, CRect(150, 32, 180, 48), 30, 2);
}

TEST(CellPlaces, of_a_deep_row_have_no_room_in_the_first_column)
{
    const auto places = AllPlaces(300, ColumnsOf({{100, 1}, {50, 0}}));
    ASSERT_EQ(places.size(), 2U);
    ExpectPlace(places[0], 0, CRect(102, 32, 100, 48), -2, 1);
    ExpectPlace(places[1], 1, CRect(100, 32, 150, 48), 50, 0);
}

TEST(CellPlaces, without_columns_are_one_that_has_no_room)
{
    const auto places = AllPlaces(20, Columns());
    ASSERT_EQ(places.size(), 1U);
    ExpectPlace(places[0], 0, CRect(22, 32, 0, 48), -22, 0);
}

TEST(CellPlaces, outside_what_is_painted_are_left_out)
{
    Columns columns;
    columns.looks.assign(1000, {10, 0});
    columns.total = 10000;
    const auto places = treelist::CellPlaces(AreaOf(2, columns), columns, 5000, 5020);
    ASSERT_EQ(places.size(), 2U);
    ExpectPlace(places[0], 500, CRect(5000, 32, 5010, 48), 10, 0);
    ExpectPlace(places[1], 501, CRect(5010, 32, 5020, 48), 10, 0);
}

TEST(CellPlaces, of_columns_wider_than_the_coordinates_stay_inside_them)
{
    const Columns columns = {{{INT_MAX, 0}, {INT_MAX, 0}, {INT_MAX, 0}}, INT_MAX};
    const auto places = AllPlaces(0, columns);
    ASSERT_FALSE(places.empty());
    for (const CellPlace& place : places)
        EXPECT_LE(place.rect.left, place.rect.right);
}
} // namespace
