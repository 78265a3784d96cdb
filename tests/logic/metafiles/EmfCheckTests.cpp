// Which enhanced metafiles are refused: the file as a whole, and records of one size.
#include <gtest/gtest.h>

#include "MetafileVerdict.h"
#include "images/PictureData.h"

namespace
{
using recipe::EmfBuilder;

std::vector<unsigned char> withNumber(std::size_t at, std::uint32_t value)
{
    std::vector<unsigned char> file = EmfBuilder().record(28).bytes();
    recipe::putNumber(file, at, value, 4);
    return file;
}

TEST(EmfCheck, other_formats_and_nothing_are_not_judged)
{
    EXPECT_TRUE(MetafileCheck::isSound(nullptr, 0));
    EXPECT_TRUE(MetafileCheck::isSound(nullptr, 100));
    EXPECT_TRUE(isSound({}));
    EXPECT_TRUE(isSound({1, 0, 0}));
    EXPECT_TRUE(isSound({'G', 'I', 'F', '8', '9', 'a', 0, 0}));
    EXPECT_TRUE(isSound({2, 0, 0, 0, 88, 0, 0, 0}));
}

TEST(EmfCheck, the_shortest_one_passes_as_a_picture_file_too)
{
    const std::vector<unsigned char> file = EmfBuilder().bytes();
    EXPECT_TRUE(isSound(file));
    EXPECT_TRUE(PictureData::isWhole(file.data(), file.size()));
    EXPECT_FALSE(PictureData::isWhole(file.data(), file.size() - 1));
}

TEST(EmfCheck, bytes_behind_the_end_are_nobodys)
{
    std::vector<unsigned char> file = EmfBuilder().bytes();
    file.insert(file.end(), {1, 2, 3});
    EXPECT_TRUE(isSound(file));
}

TEST(EmfCheck, every_shorter_file_is_refused)
{
    const std::vector<unsigned char> file = EmfBuilder().record(28).bytes();
    for (std::size_t size = 4; size < file.size(); ++size)
        EXPECT_FALSE(isSound({file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size)})) << size;
}

TEST(EmfCheck, a_header_that_lies_is_refused)
{
    struct Row
    {
        const char* what;
        std::size_t at;
        std::uint32_t value;
    };
    const Row rows[] = {{"another kind", 0, 2},
                        {"header too short", 4, 84},
                        {"header of no size", 4, 0},
                        {"header beyond the file", 4, 0xFFFFFFFC},
                        {"no signature", 40, 0x464D4521},
                        {"too few bytes", 48, 112},
                        {"too many bytes", 48, 120},
                        {"no bytes", 48, 0},
                        {"all bytes there are", 48, 0xFFFFFFFF},
                        {"a record too few", 52, 2},
                        {"a record too many", 52, 4},
                        {"description beyond the header", 60, 1000},
                        {"description far away", 64, 0xFFFFFFFF},
                        {"no device pixels across", 72, 0},
                        {"no device pixels down", 76, 0},
                        {"no millimetres across", 80, 0},
                        {"negative millimetres down", 84, 0xFFFFFFFF},
                        {"frame without width", 32, 0},
                        {"frame upside down", 36, 0x80000000},
                        {"a record of no size", 92, 0},
                        {"a record of half a head", 92, 4},
                        {"a record of no whole longs", 92, 9},
                        {"a record beyond the end", 92, 32},
                        {"a second header", 88, 1},
                        {"a kind that is none", 88, 0},
                        {"a kind behind the last", 88, 123},
                        {"a kind far behind", 88, 0xFFFFFFFF},
                        {"palette beyond the end", 104, 1},
                        {"another last size", 112, 16}};
    EXPECT_TRUE(isSound(withNumber(92, 8)));
    for (const Row& row : rows)
        EXPECT_FALSE(isSound(withNumber(row.at, row.value))) << row.what;
}

TEST(EmfCheck, records_of_one_size_are_refused_when_they_are_shorter)
{
    struct Row
    {
        std::uint32_t kind;
        std::uint32_t size;
    };
    const Row rows[] = {{9, 16},  {10, 16}, {11, 16}, {12, 16}, {13, 16}, {15, 20},  {16, 12},  {17, 12},  {18, 12},
                        {19, 12}, {20, 12}, {21, 12}, {22, 12}, {23, 32}, {24, 12},  {25, 12},  {26, 16},  {27, 16},
                        {29, 24}, {30, 24}, {31, 24}, {32, 24}, {35, 32}, {36, 36},  {41, 28},  {42, 24},  {43, 24},
                        {44, 32}, {45, 40}, {46, 40}, {47, 40}, {53, 24}, {54, 16},  {55, 40},  {57, 12},  {58, 12},
                        {62, 24}, {63, 24}, {64, 24}, {67, 12}, {98, 12}, {104, 48}, {109, 16}, {115, 12}, {120, 16}};
    for (const Row& row : rows)
    {
        const std::vector<unsigned char> body(row.size - 8);
        EXPECT_TRUE(isSound(EmfBuilder().record(row.kind, body).bytes())) << row.kind;
        const std::vector<unsigned char> shorter(row.size - 12);
        EXPECT_FALSE(isSound(EmfBuilder().record(row.kind, shorter).bytes())) << row.kind;
    }
    for (const std::uint32_t kind : {28U, 33U, 52U, 59U, 60U, 61U, 65U, 66U, 68U})
        EXPECT_TRUE(isSound(EmfBuilder().record(kind).bytes())) << kind;
    for (const std::uint32_t kind : {69U, 107U, 117U})
        EXPECT_FALSE(isSound(EmfBuilder().record(kind, std::vector<unsigned char>(120)).bytes())) << kind;
}

TEST(EmfCheck, only_states_that_the_file_saved_are_taken_back)
{
    const auto back = [](std::uint32_t count) { return recipe::MetafileBytes().longs({count}).bytes(); };
    constexpr std::uint32_t one = 0xFFFFFFFF;
    constexpr std::uint32_t two = 0xFFFFFFFE;
    EXPECT_TRUE(isSound(EmfBuilder().record(33).record(34, back(one)).bytes()));
    EXPECT_TRUE(isSound(EmfBuilder().record(33).record(33).record(34, back(two)).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(34, back(one)).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(33).record(34, back(two)).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(33).record(34, back(one)).record(34, back(one)).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(33).record(34, back(1)).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(33).record(34, back(0)).bytes()));
}
} // namespace
