// How texts are cut to their cells, measured with a font whose characters are all 6 pixels wide.
#include <gtest/gtest.h>
#include <climits>
#include <string>
#include "treelist/CellText.h"

namespace
{
constexpr int characterWidth = 6;

struct Measured
{
    int calls = 0;
    int longest = 0;
};

/// The text of a cell of that width.
std::wstring Shown(const wchar_t* text, int width, Measured* measured = nullptr)
{
    const auto measure = [measured](const wchar_t*, int count)
    {
        if (measured != nullptr)
        {
            ++measured->calls;
            measured->longest = std::max(measured->longest, count);
        }
        return count * characterWidth;
    };
    const int right = width > INT_MAX - 10 ? INT_MAX : 10 + width;
    return std::wstring(treelist::DrawCell(text, CRect(10, 0, right, 16), width, 0, measure).text);
}

TEST(CellText, that_is_too_long_ends_in_three_points)
{
    const struct
    {
        const wchar_t* text;
        int width; // 8 of it are margins
        const wchar_t* shown;
    } cases[] = {{L"abcdef", 44, L"abcdef"},    // 36 pixels of room
                 {L"abcdef", 43, L"abcd..."},   // 35: five characters fit, and one more goes
                 {L"abcdefg", 44, L"abcde..."}, // one character too long: two fewer
                 {L"abcdef", 20, L"a..."},      // two characters fit
                 {L"abcdef", 14, L"..."},       // one fits
                 {L"abcdef", 13, L"..."},       // none fits
                 {L"abcdef", 8, L"..."},        // no room for characters, 4 pixels to draw in
                 {L"abcdef", 5, L"..."},        // 1 pixel to draw in
                 {L"abcdef", 4, L""},           // nothing to draw in
                 {L"abcdef", 0, L""},
                 {L"abcdef", -100, L""},
                 {L"abcdef", INT_MIN, L""},
                 {L"a", 14, L"a"},
                 {L"a", 13, L"..."},
                 {L"", 100, L""},
                 {L"", 5, L""},
                 {L"abcdef", INT_MAX, L"abcdef"}};
    for (const auto& c : cases)
        EXPECT_EQ(Shown(c.text, c.width), c.shown) << CStringA(c.text) << " in " << c.width;
}

TEST(CellText, is_cut_where_cutting_from_the_end_stops)
{
    const std::wstring text(700, L'm');
    for (int width = 0; width < 4300; width += 7)
    {
        // Character by character: cut while longer than the room, then one more.
        int count = 700;
        while (count > 0 && count * characterWidth > width - 8)
            --count;
        const std::wstring expected =
            count == 700 ? text : text.substr(0, static_cast<std::size_t>(std::max(count - 1, 0))) + L"...";
        ASSERT_EQ(Shown(text.c_str(), width), width > 4 ? expected : L"") << width;
    }
}

TEST(CellText, of_a_million_characters_is_measured_only_as_far_as_it_is_shown)
{
    Measured measured;
    const std::wstring text(1000000, L'm');
    EXPECT_EQ(Shown(text.c_str(), 128, &measured), std::wstring(19, L'm') + L"...");
    EXPECT_LE(measured.longest, 32);
    EXPECT_LE(measured.calls, 12);
}

TEST(CellText, that_fits_is_measured_once)
{
    Measured measured;
    EXPECT_EQ(Shown(L"a short text", 200, &measured), L"a short text");
    EXPECT_EQ(measured.calls, 1);
}

TEST(CellDrawing, leaves_four_pixels_at_the_right_and_follows_the_alignment)
{
    const auto measure = [](const wchar_t*, int count) { return count * characterWidth; };
    const struct
    {
        int align;
        UINT format;
    } cases[] = {{0, DT_SINGLELINE | DT_VCENTER},
                 {1, DT_SINGLELINE | DT_VCENTER | DT_RIGHT},
                 {2, DT_SINGLELINE | DT_VCENTER | DT_CENTER},
                 {3, DT_SINGLELINE | DT_VCENTER | DT_RIGHT},
                 {-1, DT_SINGLELINE | DT_VCENTER | DT_RIGHT}};
    for (const auto& c : cases)
    {
        const treelist::CellDrawing drawing = treelist::DrawCell(L"a", CRect(30, 5, 999, 21), 50, c.align, measure);
        EXPECT_EQ(drawing.format, c.format) << c.align;
        EXPECT_EQ(drawing.rect, CRect(30, 5, 76, 21)) << "the width counts, not the right edge that was given";
    }
}

TEST(CellDrawing, holds_at_the_ends_of_the_coordinates)
{
    const auto measure = [](const wchar_t*, int count) { return count * characterWidth; };
    EXPECT_EQ(treelist::DrawCell(L"a", CRect(INT_MAX - 1, 0, 0, 16), INT_MAX, 0, measure).rect.right, INT_MAX);
    EXPECT_EQ(treelist::DrawCell(L"a", CRect(INT_MIN, 0, 0, 16), INT_MIN, 0, measure).text, L"");
}
} // namespace
