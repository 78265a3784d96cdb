// Extension blocks: control, comment, application, and what is wrong with them.
#include <gtest/gtest.h>

#include "DecoderFixture.h"

namespace
{
using namespace giftest;
using recipe::Bytes;
using recipe::GifBuilder;

GifBuilder begun()
{
    return GifBuilder(2, 1, primaries());
}

GifBuilder& ended(GifBuilder& builder)
{
    return builder.frame(at(0, 0, 2, 1), 2, {1, 2}).trailer();
}

std::string commentOf(const CKxGifImage& image)
{
    char text[256] = {};
    image.GetComment(text);
    return text;
}

TEST(GifExtension, a_control_block_gives_transparency_delay_and_disposal)
{
    GifBuilder builder = begun();
    builder.control(5, 0x1234, 2);
    CKxGifImage image;
    ASSERT_TRUE(decode(image, ended(builder)));
    EXPECT_EQ(image.GetTransIndex(), 2);
    EXPECT_EQ(image.GetFrameDelay(), 0x1234U);
    EXPECT_EQ(image.GetDisposalMethod(), 5);
}

TEST(GifExtension, a_control_block_without_the_flag_leaves_the_earlier_transparent_index)
{
    GifBuilder builder = begun();
    builder.control(0, 1, 3).control(1, 2);
    CKxGifImage image;
    ASSERT_TRUE(decode(image, ended(builder)));
    EXPECT_EQ(image.GetTransIndex(), 3);
    EXPECT_EQ(image.GetFrameDelay(), 2U);
    ASSERT_TRUE(decode(image, GifBuilder(2, 1, primaries()).frame(at(0, 0, 2, 1), 2, {1, 2})));
    EXPECT_EQ(image.GetTransIndex(), 3) << "so does a stream without any";
}

TEST(GifExtension, a_comment_of_200_bytes_reads_back_and_its_second_block_is_skipped)
{
    const std::string first(200, 'c');
    GifBuilder builder = begun();
    builder.text("!\xFE").byte(200).text(first).byte(6).text("second").byte(0);
    CKxGifImage image;
    ASSERT_TRUE(decode(image, ended(builder)));
    EXPECT_EQ(commentOf(image), first);
}

TEST(GifExtension, a_comment_of_255_bytes_is_whole_and_terminated)
{
    GifBuilder builder = begun();
    builder.comment(std::string(255, 'x'));
    OpenGifImage image;
    ASSERT_TRUE(decode(image, ended(builder)));
    EXPECT_EQ(std::string(image.m_comment), std::string(255, 'x'));
}

TEST(GifExtension, a_later_comment_takes_the_place_of_the_earlier)
{
    GifBuilder builder = begun();
    builder.comment("a long first comment").comment("short");
    CKxGifImage image;
    ASSERT_TRUE(decode(image, ended(builder)));
    EXPECT_EQ(commentOf(image), "short");
}

TEST(GifExtension, a_comment_that_is_cut_keeps_the_bytes_that_came)
{
    OpenGifImage image;
    image.SetComment("something longer than that");
    Bytes bytes = Bytes{0xFE, 10, 'f', 'o', 'u', 'r'};
    CKxMemFile file(bytes.data(), static_cast<unsigned long>(bytes.size()));
    EXPECT_FALSE(image.DecodeExtension(&file));
    EXPECT_STREQ(image.m_comment, "four");
}

TEST(GifExtension, a_comment_without_a_byte_is_a_failed_read)
{
    GifBuilder builder = begun();
    builder.comment("");
    CKxGifImage image;
    ASSERT_TRUE(decode(image, ended(builder)));
    EXPECT_EQ(image.GetNumFrames(), 1) << "the counting pass goes on behind it";
    EXPECT_EQ(entryOf(image, 1), 0U) << "the other pass does not: what was counted is left";
    EXPECT_EQ(rowsOf(image), Rows{"12"});
}

TEST(GifExtension, the_loop_count_is_taken_from_any_application)
{
    for (const char* name : {"NETSCAPE2.0", "ANIMEXTS1.0", "elevenbytes"})
    {
        GifBuilder builder = begun();
        builder.application(name, {1, 7, 1});
        CKxGifImage image;
        ASSERT_TRUE(decode(image, ended(builder)));
        EXPECT_EQ(image.GetLoops(), 263) << name;
    }
}

struct LoopCase
{
    Bytes data;
    long loops;
};

TEST(GifExtension, the_loop_count_needs_a_block_of_at_least_three_bytes)
{
    for (const LoopCase& row : {LoopCase{{1, 7, 1}, 263}, {{1, 7}, 42}, {{1}, 42}, {{9, 2, 0, 8, 8}, 2}})
    {
        GifBuilder builder = begun();
        builder.application("NETSCAPE2.0", row.data);
        CKxGifImage image;
        image.SetLoops(42);
        ASSERT_TRUE(decode(image, ended(builder)));
        EXPECT_EQ(image.GetLoops(), row.loops);
    }
}

struct FailureCase
{
    const char* what;
    Bytes block; // behind the '!'
    bool good;
};

TEST(GifExtension, what_fails_and_what_does_not)
{
    const std::vector<FailureCase> rows{
        {"nothing at all", {}, false},
        {"an unknown label and its blocks", {0x01, 2, 9, 9, 1, 9, 0}, true},
        {"an unknown label without terminator", {0x01, 2, 9, 9}, false},
        {"a control block", {0xF9, 4, 0, 0, 0, 0, 0}, true},
        {"a control block of three", {0xF9, 3, 0, 0, 0, 0}, false},
        {"a control block of five", {0xF9, 5, 0, 0, 0, 0, 0, 0}, false},
        {"a control block of two, cut to them", {0xF9, 2, 0, 0}, false}, // then no terminator
        {"a control block without size", {0xF9}, false},
        {"a comment", {0xFE, 1, 'c', 0}, true},
        {"an empty comment", {0xFE, 0}, false},
        {"a comment without size", {0xFE}, false},
        {"an application of ten letters", {0xFF, 10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 0}, false},
        {"an application whose name is cut", {0xFF, 11, 0, 0}, false},
        {"an application without data", {0xFF, 11, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, false},
        {"an application that ends behind its name", {0xFF, 11, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, false},
        {"an application of one byte", {0xFF, 11, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 5, 0}, true},
    };
    for (const FailureCase& row : rows)
    {
        Bytes bytes = row.block;
        bytes.reserve(1);
        CKxMemFile file(bytes.data(), static_cast<unsigned long>(bytes.size()));
        OpenGifImage image;
        EXPECT_EQ(image.DecodeExtension(&file), row.good) << row.what;
    }
    OpenGifImage image;
    EXPECT_FALSE(image.DecodeExtension(nullptr));
}

TEST(GifExtension, a_control_block_of_five_ends_the_decode_with_what_has_been_read)
{
    GifBuilder builder = begun();
    builder.frame(at(0, 0, 2, 1), 2, {1, 2});
    builder.text("!\xF9\x05").byte(1).word(5).byte(2).byte(0).byte(0);
    builder.frame(at(0, 0, 1, 1), 2, {3}).trailer();
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder, 1));
    EXPECT_EQ(image.GetNumFrames(), 2);
    EXPECT_EQ(rowsOf(image), Rows{"12"});
    EXPECT_EQ(entryOf(image, 1), 0xFF0000U);
}
} // namespace
