// Records of enhanced metafiles with counts, offsets and handles: each is right, and wrong in every way by hand.
#include <gtest/gtest.h>

#include "MetafileVerdict.h"

namespace
{
using recipe::bitmapHeader;
using recipe::EmfBuilder;
using recipe::MetafileBytes;
using Body = std::vector<unsigned char>;

constexpr std::uint32_t much = 0xFFFFFFFF;
constexpr std::uint32_t twiceIsFour = 0x80000002; // overflows to 4 when doubled in 32 bits
constexpr std::uint32_t wraps8 = 0x20000001;      // times 8 overflows to 8
constexpr std::uint32_t wraps4 = 0x40000001;      // times 4 overflows to 4
constexpr std::size_t recordHead = 8;

MetafileBytes bounds()
{
    return MetafileBytes().longs({0, 0, 99, 99});
}

void expectCases(const std::vector<RecordCase>& cases)
{
    for (const RecordCase& each : cases)
    {
        EXPECT_TRUE(isSound(EmfBuilder().record(each.kind, each.body).bytes())) << each.what;
        for (const Damage& damage : each.damages)
        {
            Body body = each.body;
            recipe::putNumber(body, damage.at - recordHead, damage.value, 4);
            EXPECT_FALSE(isSound(EmfBuilder().record(each.kind, body).bytes()))
                << each.what << " with " << damage.value << " at " << damage.at;
        }
        Body shorter(each.body);
        shorter.resize(each.body.size() - 4);
        EXPECT_FALSE(isSound(EmfBuilder().record(each.kind, shorter).bytes())) << each.what << ", shorter";
    }
}

TEST(EmfRecord, points_lie_within)
{
    const Body two = bounds().longs({2, 1, 1, 5, 5}).bytes();
    const Body two16 = bounds().longs({2, 0x10001, 0x50005}).bytes();
    const std::vector<Damage> counts = {{24, 3}, {24, wraps8}, {24, much}};
    const std::vector<Damage> counts16 = {{24, 3}, {24, wraps4}, {24, much}};
    expectCases({{"poly bezier", 2, two, counts},
                 {"polygon", 3, two, counts},
                 {"polyline", 4, two, counts},
                 {"poly bezier to", 5, two, counts},
                 {"polyline to", 6, two, counts},
                 {"poly bezier 16", 85, two16, counts16},
                 {"polygon 16", 86, two16, counts16},
                 {"polyline 16", 87, two16, counts16},
                 {"poly bezier to 16", 88, two16, counts16},
                 {"polyline to 16", 89, two16, counts16}});
    const Body drawn = bounds().longs({2, 1, 1, 5, 5, 0x0206}).bytes(); // two types, filled up
    const Body drawn16 = bounds().longs({2, 0x10001, 0x50005, 0x0206}).bytes();
    expectCases(
        {{"poly draw", 56, drawn, {{24, 3}, {24, much}}}, {"poly draw 16", 92, drawn16, {{24, 3}, {24, much}}}});
}

TEST(EmfRecord, polygons_and_their_points_lie_within)
{
    const Body body = bounds().longs({2, 3, 1, 2, 1, 1, 2, 2, 3, 3}).bytes();
    const Body body16 = bounds().longs({2, 3, 1, 2, 0x10001, 0x20002, 0x30003}).bytes();
    const std::vector<Damage> damages = {{24, 3},    {24, much}, {24, wraps4}, {28, 4},   {28, 2},
                                         {28, much}, {32, 2},    {36, 3},      {36, much}};
    expectCases({{"poly polyline", 7, body, damages},
                 {"poly polygon", 8, body, damages},
                 {"poly polyline 16", 90, body16, damages},
                 {"poly polygon 16", 91, body16, damages}});
}

TEST(EmfRecord, gradients_name_corners_that_are_there)
{
    const Body corners = bounds().longs({2, 1, 0}).zeros(32).longs({0, 1}).bytes();
    const Body triangle = bounds().longs({3, 1, 2}).zeros(48).longs({0, 1, 2}).bytes();
    expectCases({{"gradient",
                  118,
                  corners,
                  {{24, 3}, {24, much}, {28, 2}, {28, much}, {32, 2}, {32, 3}, {68, 2}, {72, 2}, {72, much}}},
                 {"gradient triangle", 118, triangle, {{24, 4}, {28, 2}, {32, 3}, {32, much}, {84, 3}, {92, much}}}});
}

TEST(EmfRecord, handles_lie_in_the_table)
{
    const std::vector<Damage> own = {{8, 0}, {8, 4}, {8, much}};
    const std::vector<Damage> any = {{8, 0}, {8, 4}, {8, 0x80000020}, {8, much}};
    expectCases(
        {{"select", 37, MetafileBytes().longs({3}).bytes(), any},
         {"select a stock object", 37, MetafileBytes().longs({0x80000005}).bytes(), any},
         {"delete", 40, MetafileBytes().longs({1}).bytes(), own},
         {"select palette", 48, MetafileBytes().longs({0x8000000F}).bytes(), any},
         {"resize palette", 51, MetafileBytes().longs({1, 4}).bytes(), own},
         {"pen", 38, MetafileBytes().longs({1, 0, 1, 0, 0}).bytes(), own},
         {"brush", 39, MetafileBytes().longs({1, 0, 0, 0}).bytes(), {{8, 0}, {8, 4}, {12, 3}, {12, 6}, {12, much}}},
         {"font", 82, MetafileBytes().longs({3}).zeros(92).bytes(), own},
         {"select color space", 100, MetafileBytes().longs({3}).bytes(), any},
         {"delete color space", 101, MetafileBytes().longs({3}).bytes(), own},
         {"palette correction", 111, MetafileBytes().longs({3, 0, 0, 0}).bytes(), any},
         {"color space of bytes", 99, MetafileBytes().longs({3}).zeros(328).bytes(), own},
         {"color space", 122, MetafileBytes().longs({3}).zeros(596).bytes(), own}});
}

TEST(EmfRecord, palette_entries_lie_within)
{
    expectCases(
        {{"palette", 49, MetafileBytes().longs({1, 0x20300, 0, 0}).bytes(), {{8, 0}, {12, 0x30300}, {12, 0xFFFF0300}}},
         {"set entries",
          50,
          MetafileBytes().longs({1, 0, 1, 0}).bytes(),
          {{8, 0}, {16, 2}, {16, wraps4}, {16, much}}}});
}

TEST(EmfRecord, pens_of_more_than_a_line_lie_within)
{
    const Body dashes = MetafileBytes().longs({1, 0, 0, 0, 0, 0x10007, 3, 0, 0, 0, 2, 4, 5}).bytes();
    expectCases({{"extended pen",
                  95,
                  dashes,
                  {{8, 0}, {8, 4}, {16, 4}, {36, 3}, {36, 6}, {36, much}, {48, 3}, {48, wraps4}, {48, much}}}});
    EXPECT_TRUE(
        isSound(EmfBuilder().record(95, MetafileBytes().longs({1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0}).bytes()).bytes()));
}

TEST(EmfRecord, texts_and_their_distances_lie_within)
{
    const Body text16 = bounds().longs({1, 0, 0, 5, 5, 2, 76, 0, 0, 0, 0, 0, 80, 0x00420041, 6, 6}).bytes();
    const Body text = bounds().longs({1, 0, 0, 5, 5, 4, 76, 0, 0, 0, 0, 0, 0, 0x44434241}).bytes();
    expectCases(
        {{"text",
          84,
          text16,
          {{44, 3}, {44, twiceIsFour}, {44, much}, {48, 89}, {48, much}, {52, 0x2000}, {72, 81}, {72, 88}, {72, much}}},
         {"text of bytes", 83, text, {{44, 5}, {44, much}, {48, 77}, {48, much}, {72, 68}, {72, much}}}});
    const Body row16 = bounds().longs({1, 0, 0, 1, 5, 5, 2, 80, 0, 0, 0, 0, 0, 84, 0x00420041, 6, 6}).bytes();
    expectCases({{"texts", 97, row16, {{36, 2}, {36, much}, {48, 3}, {48, much}, {52, 100}, {76, 88}, {76, much}}}});
    const Body row = bounds().longs({1, 0, 0, 1, 5, 5, 4, 80, 0, 0, 0, 0, 0, 0, 0x44434241}).bytes();
    expectCases({{"texts of bytes", 96, row, {{36, 2}, {36, 0x06666667}, {48, 5}, {52, 81}}}});
    const Body small = MetafileBytes().longs({5, 5, 2, 0, 1, 0, 0, 0, 0, 9, 9, 0x00420041}).bytes();
    const Body smallest = MetafileBytes().longs({5, 5, 4, 0x300, 1, 0, 0, 0x44434241}).bytes();
    expectCases({{"small text", 108, small, {{16, 3}, {16, twiceIsFour}, {16, much}}},
                 {"small text of bytes", 108, smallest, {{16, 5}, {16, much}, {20, 0x100}, {20, 0x200}}}});
}

TEST(EmfRecord, bytes_lie_within)
{
    const std::vector<Damage> count = {{8, 5}, {8, much}};
    const std::vector<Damage> counts = {{12, 5}, {12, much}, {16, 4}, {16, much}};
    expectCases(
        {{"comment", 70, MetafileBytes().longs({4, 0}).bytes(), count},
         {"escape", 106, MetafileBytes().longs({1, 4, 0}).bytes(), {{12, 5}, {12, much}}},
         {"drawing escape", 105, MetafileBytes().longs({1, 4, 0}).bytes(), {{12, 5}, {12, much}}},
         {"escape of a driver", 110, MetafileBytes().longs({1, 4, 4, 0, 0}).bytes(), {{12, 5}, {12, much}, {16, 5}}},
         {"color profile", 113, MetafileBytes().longs({1, 4, 0, 0}).bytes(), counts},
         {"color profile of bytes", 112, MetafileBytes().longs({1, 4, 0, 0}).bytes(), counts},
         {"color matching", 121, MetafileBytes().longs({1, 0, 4, 0, 0}).bytes(), {{16, 5}, {20, much}}},
         {"linked fonts", 119, MetafileBytes().longs({1, 0, 0}).bytes(), {{8, 2}, {8, wraps8}}},
         {"drawing in space", 102, MetafileBytes().longs({4, 0}).bytes(), count},
         {"bounded drawing in space", 103, bounds().longs({4, 0}).bytes(), {{24, 5}, {24, much}}}});
}

TEST(EmfRecord, regions_lie_within)
{
    const auto with = [](MetafileBytes front) { return front.longs({32, 1, 1, 16, 0, 0, 9, 9, 0, 0, 9, 9}).bytes(); };
    expectCases(
        {{"fill",
          71,
          with(bounds().longs({48, 1})),
          {{24, 47}, {24, 52}, {24, much}, {28, 0}, {28, 4}, {28, much}, {32, 28}, {36, 2}, {40, 2}, {40, much}}},
         {"frame", 72, with(bounds().longs({48, 1, 1, 1})), {{24, 47}, {24, 52}, {28, 4}, {40, 36}, {48, 2}}},
         {"invert", 73, with(bounds().longs({48})), {{24, 31}, {24, 52}, {28, 0}, {36, 2}, {36, 0x10000001}}},
         {"paint", 74, with(bounds().longs({48})), {{24, 31}, {24, 52}, {36, 2}}},
         {"clip", 75, with(MetafileBytes().longs({48, 1})), {{8, 47}, {8, 52}, {8, 0}, {24, 2}}}});
    EXPECT_TRUE(isSound(EmfBuilder().record(75, MetafileBytes().longs({0, 5}).bytes()).bytes())); // no clip region
    EXPECT_FALSE(isSound(EmfBuilder().record(75, MetafileBytes().longs({0, 1}).bytes()).bytes()));
}

/// Two true-colour pixels, 8 bytes, behind a header that stands at `at`.
MetafileBytes twoPixels(MetafileBytes front)
{
    return front.add(bitmapHeader(2, 1, 24)).zeros(8);
}

/// What may not become of that bitmap: its place is told from `place` on, it stands at `at`.
std::vector<Damage> bitmapDamages(std::size_t place, std::size_t at)
{
    const auto header = static_cast<std::uint32_t>(at);
    return {{place, header + 12}, {place, much},      {place + 4, 36},
            {place + 4, 52},      {place + 4, much},  {place + 8, header + 44},
            {place + 8, much},    {place + 12, 4},    {place + 12, 12},
            {place + 12, much},   {at, 39},           {at, 125},
            {at, much},           {at + 4, 3},        {at + 4, 0},
            {at + 4, 0x7FFFFFFF}, {at + 8, 2},        {at + 8, 0},
            {at + 8, 0x80000000}, {at + 12, 0x70001}, {at + 12, 0x1000001},
            {at + 16, 1},         {at + 16, 4},       {at + 32, 1},
            {at + 32, 257},       {at + 32, wraps4},  {at + 32, much}};
}

TEST(EmfRecord, bitmaps_with_their_colours_and_pixels_lie_within)
{
    const auto source = [](std::uint32_t at) { return MetafileBytes().zeros(24).longs({0, 0, at, 40, at + 40, 8}); };
    const auto front = bounds().longs({0, 0, 2, 1, 0x00CC0020, 0, 0}).bytes();
    const auto block = [&](std::uint32_t at) { return MetafileBytes().add(front).add(source(at).bytes()); };
    const std::vector<unsigned char> noMask(28);
    expectCases(
        {{"block", 76, twoPixels(block(100)).bytes(), bitmapDamages(84, 100)},
         {"stretched block", 77, twoPixels(block(108).longs({2, 1})).bytes(), bitmapDamages(84, 108)},
         {"masked block", 78, twoPixels(block(128).add(noMask)).bytes(), bitmapDamages(84, 128)},
         {"blended block", 114, twoPixels(block(108).longs({2, 1})).bytes(), bitmapDamages(84, 108)},
         {"transparent block", 116, twoPixels(block(108).longs({2, 1})).bytes(), bitmapDamages(84, 108)},
         {"parallelogram", 79,
          twoPixels(bounds().zeros(40).add(source(140).bytes()).add(std::vector<unsigned char>(28))).bytes(),
          bitmapDamages(96, 140)},
         {"stretched bitmap", 81,
          twoPixels(bounds().longs({0, 0, 0, 0, 2, 1, 80, 40, 120, 8, 0, 0x00CC0020, 2, 1})).bytes(),
          bitmapDamages(48, 80)},
         {"bitmap to device",
          80,
          twoPixels(bounds().longs({0, 0, 0, 0, 2, 1, 76, 40, 116, 8, 0, 0, 1})).bytes(),
          {{48, 88}, {52, 36}, {56, 117}, {60, 4}, {64, 3}, {68, 1}, {68, much}, {72, 2}, {72, much}, {80, 3}}},
         {"mono brush", 93, twoPixels(MetafileBytes().longs({1, 0, 32, 40, 72, 8})).bytes(), bitmapDamages(16, 32)},
         {"pattern brush", 94, twoPixels(MetafileBytes().longs({1, 0, 32, 40, 72, 8})).bytes(),
          bitmapDamages(16, 32)}});
}

// The platform's player has ended the program over a blended block with the usage of indices.
TEST(EmfRecord, pixels_to_be_copied_have_colours)
{
    for (std::uint32_t usage = 0; usage < 4; ++usage)
    {
        MetafileBytes body = bounds();
        body.longs({0, 0, 2, 1, 0, 0, 0}).zeros(24).longs({0, usage, 108, 40, 148, 8, 2, 1});
        EXPECT_EQ(isSound(EmfBuilder().record(114, twoPixels(body).bytes()).bytes()), usage < 2) << usage;
    }
}

TEST(EmfRecord, a_block_without_a_bitmap_passes)
{
    const Body fill = bounds().longs({0, 0, 9, 9, 0x00F00021, 0, 0}).zeros(48).bytes();
    EXPECT_EQ(fill.size() + recordHead, 100U);
    EXPECT_TRUE(isSound(EmfBuilder().record(76, fill).bytes()));
}

TEST(EmfRecord, colour_tables_lie_within_by_their_depth_and_usage)
{
    struct Row
    {
        const char* what;
        std::uint32_t bits;
        std::uint32_t colors;
        std::uint32_t compression;
        std::uint32_t packedSize;
        std::uint32_t usage;
        std::uint32_t table; // bytes that must be there
        std::uint32_t pixels;
    };
    const Row rows[] = {{"1 bit", 1, 0, 0, 0, 0, 8, 4},
                        {"4 bits", 4, 0, 0, 0, 0, 64, 4},
                        {"8 bits", 8, 0, 0, 0, 0, 1024, 4},
                        {"8 bits, 3 colours", 8, 3, 0, 0, 0, 12, 4},
                        {"8 bits, words", 8, 0, 0, 0, 1, 512, 4},
                        {"8 bits, indices", 8, 0, 0, 0, 2, 0, 4},
                        {"16 bits", 16, 0, 0, 0, 0, 0, 4},
                        {"16 bits with masks", 16, 0, 3, 0, 0, 12, 4},
                        {"32 bits, masks, colours", 32, 2, 3, 0, 0, 20, 8},
                        {"runs", 8, 2, 1, 4, 0, 8, 4},
                        {"short runs", 4, 2, 2, 8, 0, 8, 8}};
    for (const Row& row : rows)
    {
        const auto file = [&](std::uint32_t table, std::uint32_t pixels)
        {
            MetafileBytes body = bounds();
            body.longs({0, 0, 0, 0, 2, 1, 80, 40 + table, 80 + 40 + table, pixels, row.usage, 0, 2, 1});
            body.add(bitmapHeader(2, 1, row.bits, row.colors, row.compression, row.packedSize)).zeros(table + pixels);
            return EmfBuilder().record(81, body.bytes()).bytes();
        };
        EXPECT_TRUE(isSound(file(row.table, row.pixels))) << row.what;
        EXPECT_FALSE(isSound(file(row.table, row.pixels - 4))) << row.what;
        if (row.table > 0)
        {
            EXPECT_FALSE(isSound(file(row.table - 4, row.pixels))) << row.what;
        }
    }
}

TEST(EmfRecord, transformations_are_of_finite_numbers)
{
    constexpr std::uint32_t one = 0x3F800000;
    const std::vector<Damage> damages = {{8, 0x7F800000}, {12, 0xFF800000}, {20, 0x7FC00000}, {28, much}};
    expectCases(
        {{"set", 35, MetafileBytes().longs({one, 0, 0, one, 0, 0}).bytes(), damages},
         {"change", 36, MetafileBytes().longs({one, 0, 0, one, 0, 0, 2}).bytes(), damages},
         {"angle arc", 41, MetafileBytes().longs({50, 50, 10, 0, one}).bytes(), {{20, much}, {24, 0x7F800000}}}});
}
} // namespace
