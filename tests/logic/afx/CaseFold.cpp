// The locale-free case folding.
#include "kx/CaseFold.h"

#include <gtest/gtest.h>

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

} // namespace

TEST(CaseFold, ascii_letters)
{
    EXPECT_EQ(lower('A'), unsigned{'a'});
    EXPECT_EQ(lower('Z'), unsigned{'z'});
    EXPECT_EQ(lower('@'), unsigned{'@'});
    EXPECT_EQ(lower('['), unsigned{'['});
    EXPECT_EQ(upper('a'), unsigned{'A'});
    EXPECT_EQ(upper('{'), unsigned{'{'});
}

TEST(CaseFold, latin_1_letters_but_not_the_signs_between_them)
{
    EXPECT_EQ(lower(0xC0), 0xE0U);
    EXPECT_EQ(lower(0xDE), 0xFEU);
    EXPECT_EQ(lower(0xD7), 0xD7U); // multiplication sign
    EXPECT_EQ(upper(0xF7), 0xF7U); // division sign
    EXPECT_EQ(lower(0xDF), 0xDFU); // sharp s has no single partner
    EXPECT_EQ(upper(0xDF), 0xDFU);
    EXPECT_EQ(upper(0xB5), 0xB5U); // micro sign
    EXPECT_EQ(lower(0x178), 0xFFU);
    EXPECT_EQ(upper(0xFF), 0x178U);
}

TEST(CaseFold, latin_extended_a)
{
    EXPECT_EQ(lower(0x100), 0x101U);
    EXPECT_EQ(lower(0x101), 0x101U);
    EXPECT_EQ(lower(0x152), 0x153U); // oe
    EXPECT_EQ(lower(0x139), 0x13AU);
    EXPECT_EQ(lower(0x13A), 0x13AU);
    EXPECT_EQ(lower(0x147), 0x148U);
    EXPECT_EQ(lower(0x160), 0x161U);
    EXPECT_EQ(lower(0x17D), 0x17EU);
    EXPECT_EQ(lower(0x132), 0x133U);
    for (const unsigned alone : {0x130U, 0x131U, 0x138U, 0x149U, 0x17FU})
    {
        EXPECT_EQ(lower(alone), alone);
        EXPECT_EQ(upper(alone), alone);
    }
}

TEST(CaseFold, greek)
{
    EXPECT_EQ(lower(0x391), 0x3B1U);
    EXPECT_EQ(lower(0x3A9), 0x3C9U);
    EXPECT_EQ(lower(0x3AB), 0x3CBU);
    EXPECT_EQ(lower(0x386), 0x3ACU);
    EXPECT_EQ(lower(0x388), 0x3ADU);
    EXPECT_EQ(lower(0x38A), 0x3AFU);
    EXPECT_EQ(lower(0x38C), 0x3CCU);
    EXPECT_EQ(lower(0x38E), 0x3CDU);
    EXPECT_EQ(lower(0x38F), 0x3CEU);
    EXPECT_EQ(upper(0x3C2), 0x3C2U); // final sigma
    EXPECT_EQ(upper(0x3C3), 0x3A3U);
}

TEST(CaseFold, cyrillic)
{
    EXPECT_EQ(lower(0x410), 0x430U);
    EXPECT_EQ(lower(0x42F), 0x44FU);
    EXPECT_EQ(lower(0x401), 0x451U);
    EXPECT_EQ(lower(0x40F), 0x45FU);
    EXPECT_EQ(lower(0x490), 0x491U);
    EXPECT_EQ(lower(0x4C0), 0x4CFU);
    EXPECT_EQ(lower(0x4C1), 0x4C2U);
    EXPECT_EQ(upper(0x451), 0x401U);
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
    EXPECT_EQ(kx::compareFolded(L"AbC", L"aBc"), 0);
    EXPECT_EQ(kx::compareFolded(L"a", L"B"), -1);
    EXPECT_EQ(kx::compareFolded(L"C", L"b"), 1);
    EXPECT_EQ(kx::compareFolded(L"ab", L"a"), 1);
    EXPECT_EQ(kx::compareFolded(nullptr, L""), 0);
    EXPECT_EQ(kx::compareFolded(nullptr, L"a"), -1);
    EXPECT_EQ(kx::compareFolded(L"ABx", L"aby", 2), 0);
    EXPECT_EQ(kx::compareFolded(L"ABx", L"aby", 3), -1);
    EXPECT_EQ(kx::compareFolded(L"ab", L"AB", 100), 0);
    EXPECT_EQ(kx::compareFolded(L"x", L"y", 0), 0);
}
