// Which colours and brush a control on a dialog bar takes, and what a disabled bar or sheet takes away.
#include "dialogs/BarColors.h"

#include <gtest/gtest.h>

namespace
{
using Ground = BarColors::Ground;

const BarColors base{};
const BarColors pale{BarBrush::Pale, COLOR_WINDOWTEXT, Ground::PaleBlue};
const BarColors grey{BarBrush::Disabled, COLOR_GRAYTEXT, Ground::Highlight};
const BarColors piece{BarBrush::Pattern, COLOR_WINDOWTEXT, Ground::Transparent};
const BarColors greyPiece{BarBrush::Pattern, COLOR_GRAYTEXT, Ground::Transparent};
} // namespace

TEST(BarColors, go_by_kind_state_look_and_class)
{
    const struct
    {
        unsigned int kind;
        bool isButton;
        const wchar_t* className;
        BarColors plain;   ///< the look is off
        BarColors painted; ///< the look is on
        BarColors plainDisabled;
        BarColors paintedDisabled;
    } rows[] = {
        {0, false, L"#32770", pale, pale, grey, grey},
        {1, false, L"Edit", pale, pale, grey, grey},
        {2, false, L"ComboLBox", pale, pale, grey, grey},
        {2, true, L"Button", pale, pale, grey, grey},
        {3, true, L"Button", base, base, base, base},  // CTLCOLOR_BTN
        {4, false, L"#32770", base, base, base, base}, // CTLCOLOR_DLG
        {5, false, L"ScrollBar", base, base, base, base},
        {6, false, L"Static", base, piece, base, greyPiece},
        {6, false, L"sTATIC", base, piece, base, greyPiece},
        {6, false, L"BUTTON", base, piece, base, greyPiece},
        {6, true, L"MyOwnButton", base, piece, base, greyPiece},
        {6, false, L"Edit", base, base, base, base}, // a read-only edit field
        {6, false, L"StaticPicture", base, base, base, base},
        {6, false, L"", base, base, base, base},
        {6, false, nullptr, base, base, base, base},
        {7, true, L"Button", base, base, base, base},
        {0xFFFFFFFF, true, L"Button", base, base, base, base},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(BarColors::Of(row.kind, true, false, row.isButton, row.className), row.plain) << row.kind;
        EXPECT_EQ(BarColors::Of(row.kind, true, true, row.isButton, row.className), row.painted) << row.kind;
        EXPECT_EQ(BarColors::Of(row.kind, false, false, row.isButton, row.className), row.plainDisabled) << row.kind;
        EXPECT_EQ(BarColors::Of(row.kind, false, true, row.isButton, row.className), row.paintedDisabled) << row.kind;
    }
}

TEST(BarColors, the_pale_blue_has_the_parts_201_219_246)
{
    EXPECT_EQ(GetRValue(BarColors::paleBlue), 201);
    EXPECT_EQ(GetGValue(BarColors::paleBlue), 219);
    EXPECT_EQ(GetBValue(BarColors::paleBlue), 246);
}

TEST(BarRules, the_background_fills_the_client_area)
{
    EXPECT_TRUE(BarRules::Background(CRect(0, 0, 640, 29)) == CRect(0, 0, 640, 29));
    EXPECT_TRUE(BarRules::Background(CRect(10, 5, 100, 50)) == CRect(10, 5, 110, 55)) << "right is the width";
}

TEST(BarRules, a_disabled_bar_spares_groups_without_id_and_two_controls)
{
    const struct
    {
        unsigned int id;
        bool spared;
    } rows[] = {{0, true}, {12, true}, {34, true}, {1, false}, {0xFFFF, false}, {0xFFFFFFFF, false}};
    for (const auto& row : rows)
        EXPECT_EQ(BarRules::IsSpared(row.id, 12, 34), row.spared) << row.id;
    EXPECT_FALSE(BarRules::IsSpared(12, 0, 0));
}

TEST(SheetRules, ok_goes_unless_the_protection_is_off)
{
    const struct
    {
        bool protectionDisabled;
        bool disabled;
        bool sheetDisabled;
        bool goes;
    } rows[] = {
        {false, false, false, false}, {false, true, false, true}, {false, false, true, true}, {false, true, true, true},
        {true, false, false, false},  {true, true, false, false}, {true, false, true, false}, {true, true, true, false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(SheetRules::DisablesOk(row.protectionDisabled, row.disabled, row.sheetDisabled), row.goes);
}

TEST(SheetRules, enter_counts_as_the_clear_key_in_a_disabled_sheet)
{
    EXPECT_EQ(SheetRules::Key(13, true), 12U);
    EXPECT_EQ(SheetRules::Key(13, false), 13U);
    EXPECT_EQ(SheetRules::Key(27, true), 27U);
}
