// Which blocks make up a frame, what is told about it, and the stream that it becomes.
#include <gtest/gtest.h>

#include "BlockFixture.h"

namespace
{
using recipe::Bytes;
using recipe::GifBuilder;

Bytes joined(std::initializer_list<Bytes> parts)
{
    Bytes all;
    for (const Bytes& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

const Bytes control = {'!', 0xF9, 4, 0x0D, 0x2C, 0x01, 0, 0}; // disposal 3, transparent, 300 hundredths
const Bytes comment = {'!', 0xFE, 3, 'a', 'b', 'c', 0};
const Bytes text = {'!', 1, 12, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 2, 'h', 'i', 0};
const Bytes trailer = {';'};
const Bytes unknown = {0x55};
const Bytes none = {};
const Bytes head = bare().bytes();

TEST(FrameWalk, counts_images_and_plain_texts_with_and_without_a_control_block)
{
    struct CountCase
    {
        const char* what;
        Bytes blocks;
        int frames;
        unsigned offset; // where the walk stands then, behind the first 13 bytes
    };
    const CountCase cases[] = {
        {"nothing", none, 0, 0},
        {"a trailer", trailer, 0, 0},
        {"an unknown byte", unknown, 0, 0},
        {"an image", smallImage, 1, 15},
        {"an image and a trailer", joined({smallImage, trailer}), 1, 15},
        {"an image behind a comment", joined({comment, smallImage}), 1, 22},
        {"a plain text", text, 1, 19},
        {"three", joined({smallImage, control, text, smallImage}), 3, 57},
        {"two control blocks in a row", joined({control, control, smallImage}), 1, 31},
        {"a comment behind the control block", joined({control, comment, smallImage}), 1, 30},
        {"a control block alone", control, 0, 8},
        {"a control block and a trailer", joined({smallImage, control, trailer}), 1, 23},
        {"a control block and an unknown byte", joined({smallImage, control, unknown, smallImage}), 1, 23},
        {"a trailer between images", joined({smallImage, trailer, smallImage}), 1, 15},
        {"an unknown byte between images", joined({smallImage, unknown, smallImage}), 1, 15},
    };
    for (const CountCase& each : cases)
    {
        BlockWalk walk(bare().raw(each.blocks));
        EXPECT_EQ(walk.frames(), each.frames) << each.what;
        EXPECT_EQ(walk.walker.ReadOffset(), 13 + each.offset) << each.what;
    }
}

TEST(FrameWalk, ends_at_a_block_that_runs_beyond_the_stream)
{
    const Bytes cut(smallImage.begin(), smallImage.end() - 1);
    const Bytes longText = {'!', 0xFE, 9, 'a'};
    EXPECT_EQ(BlockWalk(bare().raw(smallImage).raw(cut)).frames(), 1);
    EXPECT_EQ(BlockWalk(bare().raw(smallImage).raw(control).raw(cut)).frames(), 1);
    EXPECT_EQ(BlockWalk(bare().raw(smallImage).raw(longText)).frames(), 1);
    EXPECT_EQ(BlockWalk(bare().raw(smallImage).raw(control).raw(longText)).frames(), 1);
    EXPECT_EQ(BlockWalk(bare().raw(smallImage).raw({'!', 0xF9, 4, 0, 0})).frames(), 1);
    BlockWalk walk(bare().raw(control).raw(cut));
    EXPECT_EQ(walk.nextStream(), none);
}

TEST(FrameWalk, a_bare_image_becomes_a_stream_and_waits_for_ever)
{
    BlockWalk walk(bare().raw(comment).raw(smallImage).trailer());
    walk.frame.disposal = 5;
    EXPECT_EQ(walk.nextStream(), joined({head, smallImage, trailer}));
    EXPECT_EQ(walk.frame.delay, 0xFFFFFFFFU);
    EXPECT_EQ(walk.frame.disposal, 0U);
    EXPECT_EQ(walk.frame.x, 1);
    EXPECT_EQ(walk.frame.y, 0);
    EXPECT_EQ(walk.frame.cx, 2);
    EXPECT_EQ(walk.frame.cy, 1);
    EXPECT_EQ(walk.nextStream(), none);
}

TEST(FrameWalk, a_control_block_gives_delay_and_disposal_and_stands_in_the_stream)
{
    BlockWalk walk(bare().raw(control).raw(smallImage).raw(smallImage).trailer());
    EXPECT_EQ(walk.nextStream(), joined({head, control, smallImage, trailer}));
    EXPECT_EQ(walk.frame.delay, 300U);
    EXPECT_EQ(walk.frame.disposal, 3U);
    EXPECT_EQ(walk.nextStream(), joined({head, smallImage, trailer}));
    EXPECT_EQ(walk.frame.delay, 0xFFFFFFFFU);
    EXPECT_EQ(walk.frame.disposal, 0U);
}

TEST(FrameWalk, disposal_is_three_bits_of_the_flags)
{
    for (int flags = 0; flags < 256; ++flags)
    {
        BlockWalk walk(bare().text("!\xF9\x04").byte(flags).word(1).byte(0).byte(0).raw(smallImage));
        ASSERT_TRUE(walk.walker.FindNextGraphicBlock(walk.frame));
        EXPECT_EQ(walk.frame.disposal, static_cast<std::uint32_t>(flags >> 2 & 7)) << flags;
    }
}

TEST(FrameWalk, the_global_table_goes_into_each_stream)
{
    const GifBuilder start(3, 2, {{1, 2, 3}, {4, 5, 6}});
    BlockWalk walk(GifBuilder(start).raw(smallImage).raw(control).raw(smallImage).trailer());
    EXPECT_EQ(walk.nextStream(), joined({start.bytes(), smallImage, trailer}));
    EXPECT_EQ(walk.nextStream(), joined({start.bytes(), control, smallImage, trailer}));
}

TEST(FrameWalk, a_plain_text_sets_neither_size_nor_place)
{
    BlockWalk walk(bare().raw(control).raw(text).trailer());
    walk.frame.cx = 11;
    walk.frame.cy = 12;
    walk.frame.x = 13;
    walk.frame.y = 14;
    EXPECT_EQ(walk.nextStream(), joined({head, control, text, trailer}));
    EXPECT_EQ(walk.frame.cx, 11);
    EXPECT_EQ(walk.frame.cy, 12);
    EXPECT_EQ(walk.frame.x, 13);
    EXPECT_EQ(walk.frame.y, 14);
    EXPECT_EQ(walk.frame.delay, 300U);
}

// 8 of control, 15 of the image behind the comment, 15 of the image itself: 38 bytes from the control block on, of which
// control, comment and image are 30, and the other 8 are what follows.
TEST(FrameWalk, a_block_between_control_and_image_counts_as_one_more_image)
{
    BlockWalk walk(bare().raw(control).raw(comment).raw(smallImage).raw(control).raw(smallImage).trailer());
    EXPECT_EQ(walk.nextStream(), joined({head, control, comment, smallImage, control, trailer}));
    EXPECT_EQ(walk.nextStream(), joined({head, control, smallImage, trailer}));
    EXPECT_EQ(walk.nextStream(), none);
}

TEST(FrameWalk, what_is_copied_beyond_the_stream_is_zero)
{
    BlockWalk walk(bare().raw(control).raw(comment).raw(smallImage).trailer());
    EXPECT_EQ(walk.nextStream(), joined({head, control, comment, smallImage, trailer, Bytes(7), trailer}));
}

// 8 of control, then 8 of the second control and 15 of the image behind the comment, then the image's 15 once more.
TEST(FrameWalk, of_several_blocks_between_the_first_one_does_not_count)
{
    BlockWalk walk(bare().raw(control).raw(comment).raw(control).raw(smallImage).raw(Bytes(20, ';')));
    const Bytes rest(46 - 8 - 7 - 8 - 15, ';');
    EXPECT_EQ(walk.nextStream(), joined({head, control, comment, control, smallImage, rest, trailer}));
    EXPECT_EQ(walk.frame.delay, 300U);
}

// The image is 12 bytes, less than the comment: 8 + 12 + 12 bytes end inside it.
TEST(FrameWalk, a_block_between_that_is_longer_cuts_the_image)
{
    const Bytes longComment = {'!', 0xFE, 12, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 0};
    const Bytes shortImage = {',', 0, 0, 0, 0, 1, 0, 1, 0, 0, 2, 0};
    BlockWalk walk(bare().raw(control).raw(longComment).raw(shortImage).trailer());
    const Bytes cut(shortImage.begin(), shortImage.begin() + 8);
    EXPECT_EQ(walk.nextStream(), joined({head, control, longComment, cut, trailer}));
}

TEST(FrameWalk, a_control_block_without_an_image_ends_the_walk)
{
    for (const Bytes& behind : {none, trailer, unknown, comment})
    {
        BlockWalk walk(bare().raw(smallImage).raw(control).raw(behind));
        EXPECT_NE(walk.nextStream(), none);
        EXPECT_EQ(walk.nextStream(), none);
        EXPECT_EQ(walk.nextStream(), none);
    }
}

TEST(FrameWalk, a_screen_that_is_cut_is_filled_up_with_zeros)
{
    BlockWalk walk(Bytes{'G', 'I', 'F', '8', '9', 'a', 1, 0, 1, 0, 0x80, 0, 0, 9});
    EXPECT_EQ(walk.walker.ReadOffset(), 19U);
    EXPECT_EQ(walk.nextStream(), none);
    const GifFrameBlock made{};
    Bytes stream(walk.walker.AssembledSize(made), 0x5A);
    walk.walker.Assemble(made, stream.data());
    EXPECT_EQ(stream, (Bytes{'G', 'I', 'F', '8', '9', 'a', 1, 0, 1, 0, 0x80, 0, 0, 9, 0, 0, 0, 0, 0, ';'}));
}
} // namespace
