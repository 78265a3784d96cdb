// Which 16-bit metafiles are refused: the file as a whole, and its records.
#include <gtest/gtest.h>

#include "MetafileVerdict.h"

namespace
{
using recipe::bitmapHeader;
using recipe::MetafileBytes;
using recipe::WmfBuilder;
using Body = std::vector<unsigned char>;

constexpr std::size_t recordHead = 6;

TEST(WmfCheck, the_shortest_one_passes_with_its_place_and_without)
{
    EXPECT_TRUE(isSound(WmfBuilder().bytes()));
    EXPECT_TRUE(isSound(WmfBuilder().bare()));
}

TEST(WmfCheck, bytes_behind_the_end_are_nobodys)
{
    Body file = WmfBuilder().record(0x0035).bytes();
    file.insert(file.end(), {1, 2, 3});
    EXPECT_TRUE(isSound(file));
}

TEST(WmfCheck, every_shorter_file_is_refused)
{
    const Body file = WmfBuilder().record(0x0035).bytes();
    for (std::size_t size = 4; size < file.size(); ++size)
        EXPECT_FALSE(isSound({file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size)})) << size;
}

TEST(WmfCheck, a_header_that_lies_is_refused)
{
    struct Row
    {
        const char* what;
        std::size_t at;
        std::uint32_t value;
        std::size_t size;
    };
    const Row rows[] = {{"no units in an inch", 14, 0, 2},
                        {"another kind", 22, 3, 2},
                        {"another header size", 24, 8, 2},
                        {"another version", 26, 0x200, 2},
                        {"longer than the file", 28, 1000, 4},
                        {"much longer", 28, 0x80000004, 4},
                        {"a record longer than the longest", 34, 2, 4},
                        {"a record of no size", 40, 0, 4},
                        {"a record of no head", 40, 2, 4},
                        {"a record beyond the end", 40, 7, 4},
                        {"a record far beyond the end", 40, 0x80000003, 4},
                        {"a kind that is none", 44, 0x0036, 2},
                        {"a kind of the greatest number", 44, 0xFFFF, 2}};
    for (const Row& row : rows)
    {
        Body file = WmfBuilder().record(0x0035).bytes();
        recipe::putNumber(file, row.at, row.value, row.size);
        EXPECT_FALSE(isSound(file)) << row.what;
    }
}

TEST(WmfCheck, records_of_one_size_are_refused_when_they_are_shorter)
{
    struct Row
    {
        std::uint32_t kind;
        std::size_t words;
    };
    const Row rows[] = {{0x0102, 4},  {0x0103, 4},  {0x0104, 4},  {0x0106, 4}, {0x0107, 4}, {0x0108, 4}, {0x012E, 4},
                        {0x0139, 4},  {0x0149, 4},  {0x0201, 5},  {0x0209, 5}, {0x020A, 5}, {0x020B, 5}, {0x020C, 5},
                        {0x020D, 5},  {0x020E, 5},  {0x020F, 5},  {0x0211, 5}, {0x0213, 5}, {0x0214, 5}, {0x0220, 5},
                        {0x0231, 5},  {0x02FA, 8},  {0x0410, 7},  {0x0412, 7}, {0x0415, 7}, {0x0416, 7}, {0x0418, 7},
                        {0x0419, 7},  {0x041B, 7},  {0x041F, 7},  {0x0548, 8}, {0x061C, 9}, {0x061D, 9}, {0x0817, 11},
                        {0x081A, 11}, {0x0830, 11}, {0x0922, 12}, {0x0940, 12}};
    for (const Row& row : rows)
    {
        const std::size_t size = row.words * 2 - recordHead;
        EXPECT_TRUE(isSound(WmfBuilder().record(row.kind, Body(size)).bytes())) << row.kind;
        EXPECT_FALSE(isSound(WmfBuilder().record(row.kind, Body(size - 2)).bytes())) << row.kind;
    }
    // bitmaps of one kind of device
    for (const std::uint32_t kind : {0x0922U, 0x0B23U, 0x01F9U})
        EXPECT_FALSE(isSound(WmfBuilder().record(kind, Body(100)).bytes())) << kind;
}

/// `front` stands before the record.
void expectCases(const std::vector<RecordCase>& cases, const WmfBuilder& front = {})
{
    for (const RecordCase& each : cases)
    {
        EXPECT_TRUE(isSound(WmfBuilder(front).record(each.kind, each.body).bytes())) << each.what;
        for (const Damage& damage : each.damages)
        {
            Body body = each.body;
            recipe::putNumber(body, damage.at - recordHead, damage.value, 2);
            EXPECT_FALSE(isSound(WmfBuilder(front).record(each.kind, body).bytes()))
                << each.what << " with " << damage.value << " at " << damage.at;
        }
        Body shorter(each.body);
        shorter.resize(each.body.size() - 2);
        EXPECT_FALSE(isSound(WmfBuilder(front).record(each.kind, shorter).bytes())) << each.what << ", shorter";
    }
}

MetafileBytes words(std::initializer_list<std::uint32_t> values)
{
    return MetafileBytes().words(values);
}

TEST(WmfRecord, points_characters_and_entries_lie_within)
{
    const Body font = words({12, 0, 0, 0, 400, 0, 0, 0, 0}).words({0x4142, 0x0043}).bytes();
    expectCases(
        {{"polygon", 0x0324, words({2, 1, 1, 5, 5}).bytes(), {{6, 3}, {6, 0xFFFF}}},
         {"polyline", 0x0325, words({2, 1, 1, 5, 5}).bytes(), {{6, 3}, {6, 0xFFFF}}},
         {"poly polygon",
          0x0538,
          words({2, 1, 2, 1, 1, 2, 2, 3, 3}).bytes(),
          {{6, 3}, {6, 0xFFFF}, {8, 2}, {8, 0xFFFF}, {10, 3}, {10, 0xFFFF}}},
         {"text", 0x0521, words({3, 0x4142, 0x43, 5, 5}).bytes(), {{6, 5}, {6, 0xFFFF}}},
         {"long text", 0x0A32, words({5, 5, 3, 0, 0x4142, 0x43}).bytes(), {{10, 5}, {10, 0xFFFF}, {12, 2}}},
         {"text in a rectangle", 0x0A32, words({5, 5, 2, 4, 0, 0, 9, 9, 0x4142}).bytes(), {{10, 3}, {10, 0xFFFF}}},
         {"font", 0x02FB, font, {{26, 0x0143}}},
         {"palette", 0x00F7, words({0x300, 1, 0, 0}).bytes(), {{8, 2}, {8, 0xFFFF}}},
         {"set entries", 0x0037, words({0, 1, 0, 0}).bytes(), {{8, 2}, {8, 0xFFFF}}},
         {"animate entries", 0x0436, words({0, 1, 0, 0}).bytes(), {{8, 2}, {8, 0xFFFF}}},
         {"escape", 0x0626, words({15, 4, 0, 0}).bytes(), {{8, 5}, {8, 0xFFFF}}},
         {"brush", 0x02FC, words({0, 0, 0, 0}).bytes(), {{6, 3}, {6, 6}, {6, 0xFFFF}}}});
}

TEST(WmfRecord, a_name_that_fills_its_place_needs_no_zero)
{
    Body name(18 + 32, 'A');
    EXPECT_TRUE(isSound(WmfBuilder().record(0x02FB, name).bytes()));
    name.resize(18 + 30, 'A');
    EXPECT_FALSE(isSound(WmfBuilder().record(0x02FB, name).bytes()));
}

TEST(WmfRecord, a_region_names_its_edges_twice)
{
    const Body body = words({0, 6, 0, 0, 24, 1, 2, 0, 0, 9, 9}).words({2, 0, 9, 0, 9, 2}).bytes();
    expectCases({{"region", 0x06FF, body, {{16, 2}, {16, 0xFFFF}, {28, 1}, {28, 4}, {28, 0xFFFF}, {38, 4}}}});
}

TEST(WmfRecord, bitmaps_lie_within)
{
    const auto twoPixels = [](MetafileBytes front) { return front.add(bitmapHeader(2, 1, 24)).zeros(8).bytes(); };
    const auto damages = [](std::size_t at) -> std::vector<Damage>
    {
        return {{at, 39},     {at, 0xFFFF}, {at + 2, 1},       {at + 4, 3},  {at + 4, 0},    {at + 6, 0x7FFF},
                {at + 8, 2},  {at + 8, 0},  {at + 10, 0x8000}, {at + 12, 0}, {at + 12, 65},  {at + 14, 31},
                {at + 14, 7}, {at + 16, 1}, {at + 16, 4},      {at + 32, 1}, {at + 32, 257}, {at + 34, 0x4000}};
    };
    expectCases({{"block", 0x0940, twoPixels(MetafileBytes().zeros(16)), damages(22)},
                 {"stretched block", 0x0B41, twoPixels(MetafileBytes().zeros(20)), damages(26)},
                 {"stretched bitmap", 0x0F43, twoPixels(MetafileBytes().zeros(22)), damages(28)},
                 {"pattern brush", 0x0142, twoPixels(words({5, 0})), damages(10)},
                 {"bitmap to device",
                  0x0D33,
                  twoPixels(words({0, 1, 0, 0, 0, 1, 2, 0, 0})),
                  {{6, 3}, {8, 2}, {8, 0xFFFF}, {10, 1}, {10, 0xFFFF}, {24, 39}, {28, 3}, {56, 1}}}});
    EXPECT_FALSE(isSound(WmfBuilder().record(0x0B41, Body(22)).bytes())); // a stretched block has its bitmap
}

TEST(WmfRecord, handles_lie_in_the_table)
{
    const std::vector<Damage> beyond = {{6, 2}, {6, 0xFFFF}};
    std::vector<RecordCase> cases;
    for (const std::uint32_t kind : {0x012AU, 0x012BU, 0x012CU, 0x012DU, 0x01F0U, 0x0234U})
        cases.push_back({"of one object", kind, words({1}).bytes(), beyond});
    cases.push_back({"fill region", 0x0228, words({1, 0}).bytes(), {{6, 2}, {8, 2}, {8, 0xFFFF}}});
    cases.push_back(
        {"frame region", 0x0429, words({1, 0, 1, 1}).bytes(), {{6, 2}, {8, 2}, {10, 0x8001}, {12, 0xFFFF}}});
    expectCases(cases);
}

TEST(WmfRecord, no_more_objects_are_made_than_the_table_holds)
{
    const Body pen(10);
    const WmfBuilder full = WmfBuilder().record(0x02FA, pen).record(0x02FA, pen);
    EXPECT_TRUE(isSound(full.bytes()));
    EXPECT_FALSE(isSound(WmfBuilder(full).record(0x02FA, pen).bytes()));
    const WmfBuilder room = WmfBuilder(full).record(0x01F0, words({0}).bytes());
    EXPECT_TRUE(isSound(WmfBuilder(room).record(0x02FA, pen).bytes()));
    EXPECT_FALSE(isSound(WmfBuilder(room).record(0x02FA, pen).record(0x02FA, pen).bytes()));
    // deleted twice is one place
    const WmfBuilder twice = WmfBuilder(room).record(0x01F0, words({0}).bytes());
    EXPECT_FALSE(isSound(WmfBuilder(twice).record(0x02FA, pen).record(0x02FA, pen).bytes()));
}

TEST(WmfRecord, only_states_that_the_file_saved_are_taken_back)
{
    const auto back = [](std::uint32_t which) { return words({which}).bytes(); };
    const WmfBuilder saved = WmfBuilder().record(0x001E).record(0x001E);
    for (const std::uint32_t which : {0xFFFFU, 0xFFFEU, 1U, 2U})
        EXPECT_TRUE(isSound(WmfBuilder(saved).record(0x0127, back(which)).bytes())) << which;
    for (const std::uint32_t which : {0xFFFDU, 0U, 3U, 0x8000U})
        EXPECT_FALSE(isSound(WmfBuilder(saved).record(0x0127, back(which)).bytes())) << which;
    EXPECT_FALSE(isSound(WmfBuilder().record(0x0127, back(0xFFFF)).bytes()));
}
} // namespace
