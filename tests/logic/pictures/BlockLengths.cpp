// What a block is taken for, and how long it is taken to be.
#include <gtest/gtest.h>

#include "BlockFixture.h"

namespace
{
using recipe::Bytes;

struct BlockCase
{
    const char* what;
    Bytes bytes;
    GIFBlockTypes type;
    int length;
};

Bytes imageWith(int flags, std::size_t table, const Bytes& rest)
{
    Bytes bytes = {',', 0, 0, 0, 0, 1, 0, 1, 0, static_cast<std::uint8_t>(flags)};
    bytes.insert(bytes.end(), table, 9);
    bytes.insert(bytes.end(), rest.begin(), rest.end());
    return bytes;
}

TEST(BlockLengths, each_type_has_its_length)
{
    const BlockCase cases[] = {
        {"nothing", {}, BLOCK_UNKNOWN, -1},
        {"a zero", {0}, BLOCK_UNKNOWN, -1},
        {"an introducer alone", {'!'}, BLOCK_UNKNOWN, -1},
        {"an unknown extension", {'!', 0x42, 1, 1, 0}, BLOCK_UNKNOWN, -1},
        {"a trailer", {';'}, BLOCK_TRAILER, 1},
        {"a control block", {'!', 0xF9, 4, 0, 0, 0, 0, 0}, BLOCK_CONTROLEXT, 8},
        {"a control block that claims more", {'!', 0xF9, 200, 0, 0, 0, 0, 0}, BLOCK_CONTROLEXT, 8},
        {"a comment without text", {'!', 0xFE, 0}, BLOCK_COMMENT, 3},
        {"a comment of two sub-blocks", {'!', 0xFE, 2, 'a', 'b', 1, 'c', 0}, BLOCK_COMMENT, 8},
        {"application data", {'!', 0xFF, 11, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 3, 1, 0, 0, 0}, BLOCK_APPEXT, 19},
        {"application data of another head size", {'!', 0xFF, 2, 1, 1, 0}, BLOCK_APPEXT, 15},
        {"plain text", {'!', 1, 12, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 2, 'h', 'i', 0}, BLOCK_PLAINTEXT, 19},
        {"an image", smallImage, BLOCK_IMAGE, 15},
        {"an image with a table of 2", imageWith(0x80, 6, {2, 1, 5, 0}), BLOCK_IMAGE, 20},
        {"an image with a table of 256", imageWith(0x87, 768, {8, 0}), BLOCK_IMAGE, 780},
        {"an image whose table bit is not set", imageWith(0x07, 0, {8, 0}), BLOCK_IMAGE, 12},
        {"an image with other flags", imageWith(0x78, 0, {8, 0}), BLOCK_IMAGE, 12},
    };
    for (const BlockCase& each : cases)
    {
        const BlockWalk walk(bare().raw(each.bytes));
        EXPECT_EQ(walk.walker.GetNextBlock(), each.type) << each.what;
        EXPECT_EQ(walk.walker.GetNextBlockLen(), each.length) << each.what;
    }
}

// The byte that is missing is a zero, and so ends the row of sub-blocks.
TEST(BlockLengths, what_lies_beyond_the_stream_counts_and_is_zero)
{
    const BlockCase cases[] = {
        {"a comment without its terminator", {'!', 0xFE, 2, 'a', 'b'}, BLOCK_COMMENT, 6},
        {"a comment that claims more", {'!', 0xFE, 200, 'a', 'b'}, BLOCK_COMMENT, 204},
        {"a comment cut behind its label", {'!', 0xFE}, BLOCK_COMMENT, 3},
        {"application data cut in its head", {'!', 0xFF, 11, 1}, BLOCK_APPEXT, 15},
        {"plain text cut in its head", {'!', 1, 12, 1}, BLOCK_PLAINTEXT, 16},
        {"a control block cut short", {'!', 0xF9, 4}, BLOCK_CONTROLEXT, 8},
        {"an image cut before its flags", {',', 1, 1}, BLOCK_IMAGE, 12},
        {"an image cut in its table", imageWith(0x87, 5, {}), BLOCK_IMAGE, 780},
        {"an image without code size", imageWith(0, 0, {}), BLOCK_IMAGE, 12},
    };
    for (const BlockCase& each : cases)
    {
        BlockWalk walk(bare().raw(each.bytes));
        EXPECT_EQ(walk.walker.GetNextBlock(), each.type) << each.what;
        EXPECT_EQ(walk.walker.GetNextBlockLen(), each.length) << each.what;
        EXPECT_FALSE(walk.walker.SkipNextBlock()) << each.what;
        EXPECT_EQ(walk.walker.ReadOffset(), 13U) << each.what;
    }
}

TEST(BlockLengths, a_block_that_ends_with_the_stream_is_stepped_over)
{
    BlockWalk walk(bare().raw({'!', 0xFE, 2, 'a', 'b', 0}));
    EXPECT_TRUE(walk.walker.SkipNextBlock());
    EXPECT_EQ(walk.walker.ReadOffset(), 19U);
    EXPECT_FALSE(walk.walker.SkipNextBlock());
}

TEST(BlockLengths, a_trailer_is_stepped_over_as_a_block)
{
    BlockWalk walk(bare().trailer().trailer());
    EXPECT_TRUE(walk.walker.SkipNextBlock());
    EXPECT_TRUE(walk.walker.SkipNextBlock());
    EXPECT_FALSE(walk.walker.SkipNextBlock());
}

TEST(BlockLengths, sub_blocks_may_be_measured_from_anywhere)
{
    const BlockWalk walk(bare().raw({3, 7, 7, 7, 1, 9, 0, 5}));
    EXPECT_EQ(walk.walker.GetSubBlocksLen(13), 7);
    EXPECT_EQ(walk.walker.GetSubBlocksLen(17), 3);
    EXPECT_EQ(walk.walker.GetSubBlocksLen(19), 1);
    EXPECT_EQ(walk.walker.GetSubBlocksLen(20), 7); // 5 bytes and a terminator, all but one beyond the stream
    EXPECT_EQ(walk.walker.GetSubBlocksLen(21), 1);
    EXPECT_EQ(walk.walker.GetSubBlocksLen(0xFFFFFFFF), 1);
}

TEST(BlockLengths, the_walk_begins_behind_the_global_table)
{
    struct TableCase
    {
        std::size_t colours;
        unsigned offset;
    };
    for (const TableCase& each : {TableCase{0, 13}, TableCase{2, 19}, TableCase{4, 25}, TableCase{8, 37},
                                  TableCase{16, 61}, TableCase{128, 397}, TableCase{256, 781}})
    {
        BlockWalk walk(recipe::GifBuilder(3, 2, std::vector<recipe::Rgb>(each.colours)).raw(smallImage));
        EXPECT_EQ(walk.walker.ReadOffset(), each.offset);
        EXPECT_TRUE(walk.walker.SkipNextBlock());
        EXPECT_EQ(walk.walker.ReadOffset(), each.offset + 15);
        walk.walker.ResetDataPointer();
        EXPECT_EQ(walk.walker.ReadOffset(), each.offset);
    }
}

TEST(BlockLengths, without_data_there_is_nothing)
{
    GifBlockWalker empty;
    GifBlockWalker null(nullptr, 1000);
    for (GifBlockWalker* walker : {&empty, &null})
    {
        GifFrameBlock frame;
        EXPECT_EQ(walker->GetNextBlock(), BLOCK_UNKNOWN);
        EXPECT_EQ(walker->GetNextBlockLen(), -1);
        EXPECT_FALSE(walker->SkipNextBlock());
        EXPECT_FALSE(walker->SkipNextGraphicBlock());
        EXPECT_FALSE(walker->FindNextGraphicBlock(frame));
        EXPECT_EQ(walker->Screen().width, 0);
    }
}

TEST(GifScreen, the_first_three_bytes_decide_what_a_gif_is)
{
    const auto isGif = [](const std::string& text)
    {
        const Bytes bytes(text.begin(), text.end());
        return GifBlockWalker::IsGif(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    };
    EXPECT_TRUE(isGif("GIF89a"));
    EXPECT_TRUE(isGif("GIF87a"));
    EXPECT_TRUE(isGif("GIF42x"));
    EXPECT_TRUE(isGif("GIF"));
    EXPECT_FALSE(isGif("GI"));
    EXPECT_FALSE(isGif(""));
    EXPECT_FALSE(isGif("gif89a"));
    EXPECT_FALSE(isGif("\x89PNG"));
    EXPECT_FALSE(GifBlockWalker::IsGif(nullptr, 6));
}

TEST(GifScreen, size_and_background_colour_come_from_the_descriptor_and_the_table)
{
    Bytes bytes = recipe::GifBuilder(0x1234, 0xFFFE, {{1, 2, 3}, {0x10, 0x20, 0x30}}).bytes();
    bytes[11] = 1;
    GifScreen screen = BlockWalk(bytes).walker.Screen();
    EXPECT_EQ(screen.width, 0x1234);
    EXPECT_EQ(screen.height, 0xFFFE);
    EXPECT_TRUE(screen.hasTable);
    EXPECT_EQ(screen.background, 0x302010U);

    bytes[11] = 2; // beyond the table: the stream's next bytes, then zeros
    bytes.push_back(0x77);
    screen = BlockWalk(bytes).walker.Screen();
    EXPECT_EQ(screen.background, 0x77U);

    bytes[10] = 0x07; // no table
    screen = BlockWalk(bytes).walker.Screen();
    EXPECT_FALSE(screen.hasTable);
    EXPECT_EQ(screen.background, 0U);
}

TEST(GifScreen, a_stream_cut_in_its_descriptor_reads_as_zeros)
{
    const GifScreen screen = BlockWalk(Bytes{'G', 'I', 'F', '8', '9', 'a', 5}).walker.Screen();
    EXPECT_EQ(screen.width, 5);
    EXPECT_EQ(screen.height, 0);
    EXPECT_FALSE(screen.hasTable);
}
} // namespace
