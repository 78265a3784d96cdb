// A numeric field without its window: what a text in it says, what looking at it keeps, what a refusal names.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "UnitSupport.h"
#include "kitrel/KxUnitField.h"

namespace
{
using Entry = KxUnitField::Entry;

constexpr double c_infinity = std::numeric_limits<double>::infinity();
constexpr double c_notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double c_farLimit = 1.7976931348623157e+150;
constexpr double c_nearZero = 1.797693134862316e-150;

std::wstring plain(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

KxUnitField fieldOf(const CKxUnit& unit, double value = 0.0, double minimum = -c_infinity, double maximum = c_infinity)
{
    KxUnitField field;
    field.unit() = unit;
    field.setLimits(minimum, maximum);
    field.setValue(value);
    field.show();
    return field;
}

Entry entryOf(const KxUnitField& field, const wchar_t* text)
{
    return field.read(CString(text)).entry;
}

double valueOf(const KxUnitField& field, const wchar_t* text)
{
    return field.read(CString(text)).value;
}
} // namespace

TEST(UnitField, texts_are_read_through_the_unit)
{
    const struct
    {
        const wchar_t* text;
        double value;
    } rows[] = {
        {L"2.5", 2.5},    {L"2,5", 2.5},       {L"25 cm", 0.25},        {L"  7  ", 7.0},
        {L"-3", -3.0},    {L"1'-6\"", 0.4572}, {L"1.2+0.3", 1.5},       {L"7\r\n", 7.0},
        {L"\t7 m ", 7.0}, {L"1e3", 1000.0},    {L"\u00A07\u202F", 7.0},
    };
    const KxUnitField field = fieldOf(makeUnit(lengths, metre), 1.0);
    for (const auto& row : rows)
    {
        EXPECT_EQ(Entry::value, entryOf(field, row.text)) << row.text;
        EXPECT_DOUBLE_EQ(row.value, valueOf(field, row.text)) << row.text;
    }
}

TEST(UnitField, a_text_that_is_not_understood_leaves_the_value)
{
    const KxUnitField field = fieldOf(makeUnit(lengths, metre), 1.25);
    for (const wchar_t* text : {L"abc", L"1 2", L"5 kg", L"--", L"1.2.3", L"5 m m", L"M"})
    {
        EXPECT_EQ(Entry::notUnderstood, entryOf(field, text)) << text;
        EXPECT_EQ(1.25, valueOf(field, text)) << text;
    }
}

TEST(UnitField, an_empty_text_and_the_name_of_the_unit_are_no_entry)
{
    KxUnitField field = fieldOf(makeUnit(lengths, millimetre, 0), 1.25, 1.0, 2.0);
    for (const wchar_t* text : {L"", L"   ", L"\r\n", L"mm", L" mm "})
    {
        EXPECT_EQ(Entry::nothing, entryOf(field, text)) << text;
        EXPECT_EQ(1.25, valueOf(field, text)) << text;
        EXPECT_TRUE(field.takeOver(CString(text))) << text;
        EXPECT_EQ(1.25, field.value()) << text;
        EXPECT_EQ(L"1250 mm", plain(field.shownText())) << "the text last shown stays";
    }
    EXPECT_EQ(Entry::notUnderstood, entryOf(field, L"m")) << "the name of another unit";
}

TEST(UnitField, looking_at_a_value_keeps_all_its_digits)
{
    constexpr double exact = 1.23456789012345;
    KxUnitField field = fieldOf(makeUnit(lengths, metre, 2), exact);
    EXPECT_EQ(L"1.23 m", plain(field.shownText()));
    EXPECT_EQ(exact, valueOf(field, L"1.23 m"));
    EXPECT_TRUE(field.takeOver(L"1.23 m"));
    EXPECT_EQ(exact, field.value());
    EXPECT_EQ(1.23, valueOf(field, L"1.23")) << "typed: a blank less is another text";
}

TEST(UnitField, a_typed_value_keeps_its_digits_when_it_is_taken_over_and_shown)
{
    KxUnitField field = fieldOf(makeUnit(lengths, metre, 2));
    EXPECT_TRUE(field.takeOver(L"4.56789"));
    EXPECT_EQ(4.56789, field.value());
    EXPECT_EQ(L"4.56789", plain(field.shownText())) << "what stands in the window";
    EXPECT_EQ(L"4.57 m", plain(field.show()));
    EXPECT_EQ(4.56789, valueOf(field, L"4.57 m"));
}

TEST(UnitField, a_changed_unit_counts_for_what_is_typed_and_not_for_what_is_shown)
{
    KxUnitField field = fieldOf(makeUnit(lengths, metre, 3), 1.5);
    field.unit().SetRange(millimetre);
    EXPECT_EQ(1.5, valueOf(field, L"1.500 m"));
    EXPECT_EQ(0.007, valueOf(field, L"7"));
    EXPECT_EQ(L"1500.000 mm", plain(field.show()));
    EXPECT_EQ(1.5, valueOf(field, L"1500.000 mm"));
}

TEST(UnitField, limits_refuse_what_is_typed_and_leave_the_value)
{
    const KxUnitField field = fieldOf(makeUnit(lengths, metre), 2.0, 1.0, 3.0);
    const struct
    {
        const wchar_t* text;
        Entry entry;
        double value;
    } rows[] = {
        {L"1", Entry::value, 1.0},        {L"3", Entry::value, 3.0},          {L"0.999", Entry::tooSmall, 2.0},
        {L"3.001", Entry::tooLarge, 2.0}, {L"99.9 cm", Entry::tooSmall, 2.0}, {L"300 cm", Entry::value, 3.0},
        {L"1e200", Entry::tooLarge, 2.0}, {L"-1", Entry::tooSmall, 2.0},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(row.entry, entryOf(field, row.text)) << row.text;
        EXPECT_DOUBLE_EQ(row.value, valueOf(field, row.text)) << row.text;
    }
}

TEST(UnitField, limits_are_as_wide_as_a_conversion_is_inexact)
{
    const KxUnitField field = fieldOf(makeUnit(lengths, metre), 1.0, 1.0, 1000.0);
    EXPECT_TRUE(field.allows(1.0 - 1.9e-10)) << "1e-10 + 1e-10 * 1";
    EXPECT_FALSE(field.allows(1.0 - 2.1e-10));
    EXPECT_TRUE(field.allows(1000.0 + 1.0e-7)) << "1e-10 + 1e-10 * 1000";
    EXPECT_FALSE(field.allows(1000.0 + 1.01e-7));
    const KxUnitField positive = fieldOf(makeUnit(lengths, metre), 0.0, c_nearZero, c_farLimit);
    EXPECT_TRUE(positive.allows(0.0)) << "a lower limit just above 0 lets 0 pass";
    EXPECT_FALSE(positive.allows(-0.001));
}

TEST(UnitField, a_value_of_the_program_is_not_limited_until_it_is_asked_for_as_an_entry)
{
    KxUnitField field = fieldOf(makeUnit(lengths, metre), 5.0, 1.0, 3.0);
    EXPECT_EQ(5.0, field.value());
    EXPECT_EQ(Entry::tooLarge, entryOf(field, L"5.000 m")) << "untouched, and still out of the limits";
    EXPECT_EQ(5.0, valueOf(field, L"5.000 m"));
    EXPECT_FALSE(field.takeOver(L"5.000 m"));
    EXPECT_EQ(5.0, field.value());
}

TEST(UnitField, limits_in_the_wrong_order_are_exchanged)
{
    const KxUnitField field = fieldOf(makeUnit(lengths, metre), 2.0, 3.0, 1.0);
    EXPECT_EQ(1.0, field.minimum());
    EXPECT_EQ(3.0, field.maximum());
    EXPECT_TRUE(field.allows(2.0));
}

TEST(UnitField, a_limit_that_is_no_number_is_no_limit)
{
    const struct
    {
        double minimum, maximum, keptMinimum, keptMaximum;
    } rows[] = {
        {c_notANumber, 3.0, -c_infinity, 3.0},
        {1.0, c_notANumber, 1.0, c_infinity},
        {c_notANumber, c_notANumber, -c_infinity, c_infinity},
        {-c_infinity, c_infinity, -c_infinity, c_infinity},
        {c_infinity, -c_infinity, -c_infinity, c_infinity},
        {c_infinity, 3.0, -c_infinity, 3.0},
        {1.0, -c_infinity, 1.0, c_infinity},
    };
    for (const auto& row : rows)
    {
        KxUnitField field;
        field.setLimits(row.minimum, row.maximum);
        EXPECT_EQ(row.keptMinimum, field.minimum());
        EXPECT_EQ(row.keptMaximum, field.maximum());
        EXPECT_TRUE(field.allows(2.0));
    }
}

TEST(UnitField, values_that_are_no_numbers_become_numbers)
{
    KxUnitField field = fieldOf(makeUnit(lengths, metre));
    field.setValue(c_notANumber);
    EXPECT_EQ(0.0, field.value());
    field.setValue(c_infinity);
    EXPECT_EQ(1e290, field.value());
    field.setValue(-c_infinity);
    EXPECT_EQ(-1e290, field.value());
    EXPECT_FALSE(field.allows(c_notANumber));
    EXPECT_FALSE(field.allows(c_infinity));
}

TEST(UnitField, a_refusal_names_the_limits_in_the_working_unit)
{
    const struct
    {
        const char* what;
        CKxUnit unit;
        double minimum, maximum;
        const wchar_t* text;
        const wchar_t* minimumText;
        const wchar_t* maximumText;
    } rows[] = {
        {"metres", makeUnit(lengths, metre, 3), 1.0, 3.0, L"9", L"1.000 m", L"3.000 m"},
        {"millimetres", makeUnit(lengths, millimetre, 0), 1.0, 3.0, L"1", L"1000 mm", L"3000 mm"},
        {"feet and inches", architectural(4), 0.3048, 0.4572, L"9'", L"1'-0\"", L"1'-6\""},
        {"Celsius", makeUnit(temperatures, 1, 1), 273.15, 373.15, L"200", L"0.0 \u00B0C", L"100.0 \u00B0C"},
        {"a limit finer than the decimals", makeUnit(lengths, metre, 1), 0.04, 2.0, L"9", L"0.04 m", L"2.0 m"},
        {"a limit that would round up", makeUnit(lengths, metre, 2), 0.0, 0.996, L"9", L"0.00 m", L"0.996 m"},
        {"no lower limit", makeUnit(lengths, metre, 1), -c_infinity, 2.0, L"9", L"", L"2.0 m"},
        {"no upper limit", makeUnit(lengths, metre, 1), 1.0, c_infinity, L"0", L"1.0 m", L""},
        {"a far upper limit", makeUnit(lengths, metre, 3), c_nearZero, c_farLimit, L"-1", L"0.000 m", L""},
        {"a far upper limit that refused", makeUnit(lengths, metre, 3), c_nearZero, c_farLimit, L"1e200", L"0.000 m",
         L"1.7976931348623e+150 m"},
        {"far limits on both ends", makeUnit(lengths, metre, 3), -c_farLimit, c_farLimit, L"-1e200",
         L"-1.7976931348623e+150 m", L""},
    };
    for (const auto& row : rows)
    {
        const KxUnitField field = fieldOf(row.unit, 0.0, row.minimum, row.maximum);
        ASSERT_TRUE(field.read(CString(row.text)).isRefused()) << row.what;
        const KxUnitField::Refusal refusal = field.refusalOf(CString(row.text));
        EXPECT_TRUE(refusal.understood) << row.what;
        EXPECT_EQ(row.minimumText, plain(refusal.minimum)) << row.what;
        EXPECT_EQ(row.maximumText, plain(refusal.maximum)) << row.what;
    }
}

TEST(UnitField, a_limit_that_is_named_can_be_typed)
{
    const CKxUnit units[] = {makeUnit(lengths, metre, 0), makeUnit(lengths, inch, 1), engineering(1),
                             makeUnit(forces, 6, 0)};
    for (const CKxUnit& unit : units)
        for (const double limit : {0.0, 0.1, 1.0 / 3.0, 12345.678, 1e-7, -0.7})
        {
            const KxUnitField field = fieldOf(unit, 0.0, limit, limit + 1000.0);
            const KxUnitField::Refusal refusal = field.refusalOf(L"?");
            EXPECT_EQ(Entry::value, field.read(refusal.minimum).entry) << plain(refusal.minimum).c_str();
            EXPECT_EQ(Entry::value, field.read(refusal.maximum).entry) << plain(refusal.maximum).c_str();
        }
}

TEST(UnitField, a_refusal_of_what_was_not_understood_quotes_it_and_names_the_near_limits)
{
    const KxUnitField field = fieldOf(makeUnit(lengths, metre, 1), 0.0, 1.0, 3.0);
    const KxUnitField::Refusal refusal = field.refusalOf(L"  a\r\nb\tc ");
    EXPECT_FALSE(refusal.understood);
    EXPECT_EQ(L"a  b c", plain(refusal.quoted));
    EXPECT_EQ(L"1.0 m", plain(refusal.minimum));
    EXPECT_EQ(L"3.0 m", plain(refusal.maximum));
    const KxUnitField free = fieldOf(makeUnit(lengths, metre, 1), 0.0, -c_farLimit, c_farLimit);
    EXPECT_TRUE(free.refusalOf(L"abc").minimum.IsEmpty());
    EXPECT_TRUE(free.refusalOf(L"abc").maximum.IsEmpty());
}

TEST(UnitField, a_long_text_is_quoted_from_its_start)
{
    const KxUnitField field = fieldOf(makeUnit(lengths, metre));
    EXPECT_EQ(std::wstring(40, L'x'), plain(field.refusalOf(CString(L'x', 40)).quoted));
    EXPECT_EQ(std::wstring(40, L'x') + L'\u2026', plain(field.refusalOf(CString(L'x', 41)).quoted));
    CString pair(L'x', 39);
    pair += wchar_t{0xD83D};
    pair += wchar_t{0xDE00};
    EXPECT_EQ(std::wstring(39, L'x') + L'\u2026', plain(field.refusalOf(pair).quoted)) << "no half of a pair";
}

TEST(UnitField, a_text_of_a_million_characters_is_read_and_refused)
{
    constexpr int length = 1 << 20;
    KxUnitField field = fieldOf(makeUnit(lengths, metre), 1.0);
    CString digits(L'9', length);
    EXPECT_EQ(1e290, field.read(digits).value) << "held";
    EXPECT_TRUE(field.takeOver(digits));
    field.setLimits(0.0, 10.0);
    EXPECT_EQ(Entry::tooLarge, field.read(digits).entry);
    EXPECT_EQ(Entry::notUnderstood, field.read(CString(L'x', length)).entry);
    EXPECT_EQ(Entry::nothing, field.read(CString(L' ', length)).entry);
    EXPECT_EQ(7.0, field.read(CString(L' ', length) + L"7").value);
    EXPECT_EQ(41, field.refusalOf(digits + L"x").quoted.GetLength());
}

TEST(UnitField, a_field_without_symbol_shows_the_bare_number)
{
    KxUnitField field(false);
    field.setValue(2.5);
    EXPECT_EQ(L"2.500", plain(field.show()));
    EXPECT_EQ(2.5, valueOf(field, L"2.500"));
    field.setLimits(0.0, 1.0);
    EXPECT_EQ(L"1.000 m", plain(field.refusalOf(L"2").maximum)) << "a message says the unit at all times";
}
