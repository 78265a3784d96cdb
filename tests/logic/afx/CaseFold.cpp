// The locale-free case folding.
#include "kx/CaseFold.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace
{

unsigned lower(unsigned code)
{
    return static_cast<unsigned>(kx::foldLower(static_cast<wchar_t>(code)));
}

unsigned upper(unsigned code)
{
    return static_cast<unsigned>(kx::foldUpper(static_cast<wchar_t>(code)));
}

struct Pair
{
    unsigned code;
    unsigned folded;
};

void checkLower(std::initializer_list<Pair> pairs)
{
    for (const Pair& pair : pairs)
        EXPECT_EQ(lower(pair.code), pair.folded) << pair.code;
}

void checkUpper(std::initializer_list<Pair> pairs)
{
    for (const Pair& pair : pairs)
        EXPECT_EQ(upper(pair.code), pair.folded) << pair.code;
}

} // namespace

TEST(CaseFold, ascii_letters)
{
    checkLower({
        {'A', 'a'},
        {'Z', 'z'},
        {'@', '@'},
        {'[', '['},
    });
    checkUpper({
        {'a', 'A'},
        {'{', '{'},
    });
}

TEST(CaseFold, latin_1_letters_but_not_the_signs_between_them)
{
    checkLower({
        {0xC0, 0xE0},
        {0xDE, 0xFE},
        {0xD7, 0xD7}, // multiplication sign
        {0xDF, 0xDF}, // sharp s has no single partner
        {0x178, 0xFF},
    });
    checkUpper({
        {0xF7, 0xF7}, // division sign
        {0xDF, 0xDF},
        {0xB5, 0xB5}, // micro sign
        {0xFF, 0x178},
    });
}

TEST(CaseFold, latin_extended_a)
{
    checkLower({
        {0x100, 0x101},
        {0x101, 0x101},
        {0x152, 0x153}, // oe
        {0x139, 0x13A},
        {0x13A, 0x13A},
        {0x147, 0x148},
        {0x160, 0x161},
        {0x17D, 0x17E},
        {0x132, 0x133},
    });
    for (const unsigned alone : {0x130U, 0x131U, 0x138U, 0x149U, 0x17FU})
    {
        EXPECT_EQ(lower(alone), alone);
        EXPECT_EQ(upper(alone), alone);
    }
}

TEST(CaseFold, greek)
{
    checkLower({
        {0x391, 0x3B1},
        {0x3A9, 0x3C9},
        {0x3AB, 0x3CB},
        {0x386, 0x3AC},
        {0x388, 0x3AD},
        {0x38A, 0x3AF},
        {0x38C, 0x3CC},
        {0x38E, 0x3CD},
        {0x38F, 0x3CE},
    });
    checkUpper({
        {0x3C2, 0x3C2}, // final sigma
        {0x3C3, 0x3A3},
    });
}

TEST(CaseFold, cyrillic)
{
    checkLower({
        {0x410, 0x430},
        {0x42F, 0x44F},
        {0x401, 0x451},
        {0x40F, 0x45F},
        {0x490, 0x491},
        {0x4C0, 0x4CF},
        {0x4C1, 0x4C2},
    });
    checkUpper({
        {0x451, 0x401},
    });
}

TEST(CaseFold, folding_twice_changes_nothing_more)
{
    for (unsigned code = 0; code < 0x10000; ++code)
    {
        EXPECT_EQ(lower(lower(code)), lower(code)) << code;
    }
}

TEST(CaseFold, every_changed_letter_comes_back)
{
    for (unsigned code = 0; code < 0x10000; ++code)
    {
        if (lower(code) != code)
        {
            EXPECT_EQ(upper(lower(code)), code);
        }
        if (upper(code) != code)
        {
            EXPECT_EQ(lower(upper(code)), code);
        }
    }
}

TEST(CaseFold, other_characters_stay)
{
    for (const unsigned code : {0x30U, 0xA0U, 0x2022U, 0x4E2DU, 0xD800U, 0xFFFFU})
    {
        EXPECT_EQ(lower(code), code);
        EXPECT_EQ(upper(code), code);
    }
}

TEST(CaseFold, comparing_texts)
{
    const struct
    {
        const wchar_t *one, *other;
        int order;
    } rows[] = {{L"AbC", L"aBc", 0}, {L"a", L"B", -1},  {L"C", L"b", 1},
                {L"ab", L"a", 1},    {nullptr, L"", 0}, {nullptr, L"a", -1}};
    for (const auto& row : rows)
        EXPECT_EQ(kx::compareFolded(row.one, row.other), row.order);
}

TEST(CaseFold, comparing_the_first_characters_of_texts)
{
    const struct
    {
        const wchar_t *one, *other;
        int count, order;
    } rows[] = {{L"ABx", L"aby", 2, 0}, {L"ABx", L"aby", 3, -1}, {L"ab", L"AB", 100, 0}, {L"x", L"y", 0, 0}};
    for (const auto& row : rows)
        EXPECT_EQ(kx::compareFolded(row.one, row.other, row.count), row.order) << row.count;
}
