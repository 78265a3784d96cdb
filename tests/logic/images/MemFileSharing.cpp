// Whose the buffer of a stream is: detaching, callers' buffers, copies.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include "oxa/images/KxGifImage.h"
#include "oxa/images/KxMemFile.h"

namespace
{
std::string content(CKxMemFile& file)
{
    std::string text(static_cast<std::size_t>(file.Size()), '\0');
    const long position = file.Tell();
    file.Seek(0, 0);
    file.Read(text.data(), 1, text.size());
    file.Seek(position, 0);
    return text;
}

CKxMemFile written(const char* text)
{
    CKxMemFile file;
    file.Open();
    file.Write(text, 1, std::strlen(text));
    return file;
}
} // namespace

TEST(MemFileSharing, a_detached_buffer_outlives_the_stream_and_is_freed_by_the_caller)
{
    unsigned char* buffer = nullptr;
    {
        CKxMemFile file = written("abc");
        buffer = file.GetBuffer(true);
        file.Close(); // not the stream's any more: stays
        EXPECT_EQ(file.Size(), 3);
    }
    EXPECT_EQ(std::memcmp(buffer, "abc", 3), 0);
    CKxGifImage().FreeMemory(buffer);
    CKxGifImage().FreeMemory(nullptr);
}

TEST(MemFileSharing, a_detached_buffer_may_be_given_back)
{
    CKxMemFile file = written("abc");
    unsigned char* const buffer = file.GetBuffer(true);
    EXPECT_EQ(file.GetBuffer(false), buffer);
    file.Close();
    EXPECT_EQ(file.Size(), -1);
}

TEST(MemFileSharing, a_buffer_may_be_detached_twice)
{
    unsigned char* buffer = nullptr;
    {
        CKxMemFile file = written("abc");
        buffer = file.GetBuffer(true);
        EXPECT_EQ(file.GetBuffer(true), buffer);
    }
    EXPECT_EQ(std::memcmp(buffer, "abc", 3), 0);
    CKxGifImage().FreeMemory(buffer);
}

TEST(MemFileSharing, growing_after_detaching_leaves_the_detached_buffer_alone)
{
    CKxMemFile file = written("abc");
    unsigned char* const buffer = file.GetBuffer(true);
    const std::string more(5000, 'x');
    EXPECT_EQ(file.Write(more.data(), 1, 5000), 5000U);
    EXPECT_NE(file.GetBuffer(false), buffer);
    EXPECT_EQ(content(file), "abc" + more);
    EXPECT_EQ(std::memcmp(buffer, "abc", 3), 0);
    std::free(buffer);
}

TEST(MemFileSharing, growing_over_a_callers_buffer_leaves_it_alone)
{
    unsigned char buffer[4] = {'a', 'b', 'c', 'd'};
    CKxMemFile file(buffer, 4);
    file.Seek(2, 0);
    EXPECT_EQ(file.Write("12345", 1, 5), 5U);
    EXPECT_EQ(content(file), "ab12345");
    EXPECT_NE(file.GetBuffer(false), buffer);
    EXPECT_EQ(std::memcmp(buffer, "abcd", 4), 0);
    EXPECT_TRUE(file.Close()); // its own one now
    EXPECT_EQ(file.Size(), -1);
}

TEST(MemFileSharing, a_callers_buffer_is_never_freed)
{
    unsigned char buffer[3] = {1, 2, 3};
    CKxMemFile file(buffer, 3);
    EXPECT_EQ(file.GetBuffer(false), buffer); // counts as owned from here on
    EXPECT_TRUE(file.Close());
    EXPECT_EQ(file.Size(), -1);
    EXPECT_EQ(buffer[2], 3);
}

TEST(MemFileSharing, copies_have_their_own_position_and_size)
{
    CKxMemFile first = written("abc");
    CKxMemFile second(first);
    EXPECT_EQ(second.Tell(), 3);
    EXPECT_EQ(second.Size(), 3);
    second.Write("de", 1, 2);
    EXPECT_EQ(second.Size(), 5);
    EXPECT_EQ(first.Size(), 3);
    EXPECT_EQ(first.Tell(), 3);
}

TEST(MemFileSharing, a_write_through_a_copy_is_read_by_the_other)
{
    CKxMemFile first = written("abc");
    CKxMemFile second;
    second = first;
    second.Seek(1, 0);
    second.PutC('x');
    EXPECT_EQ(content(first), "axc");
    EXPECT_EQ(first.GetBuffer(false), second.GetBuffer(false));
}

TEST(MemFileSharing, a_write_after_growth_is_read_by_the_other_too)
{
    CKxMemFile first = written("abc");
    CKxMemFile second(first);
    const std::string more(100000, 'x');
    second.Write(more.data(), 1, more.size());
    second.Seek(0, 0);
    second.PutC('z');
    EXPECT_EQ(content(first), "zbc");
    first.Write("de", 1, 2); // within the capacity that it knows
    EXPECT_EQ(content(second), "zbcde" + std::string(99998, 'x'));
}

TEST(MemFileSharing, a_copy_with_the_smaller_capacity_does_not_shrink_the_buffer)
{
    CKxMemFile first = written("abc");
    CKxMemFile second(first);
    second.Seek(100000, 0);
    second.PutC('!');
    const std::string more(5000, 'y');
    EXPECT_EQ(first.Write(more.data(), 1, more.size()), 5000U);
    EXPECT_EQ(content(first), "abc" + more);
    EXPECT_EQ(content(second).back(), '!');
    EXPECT_EQ(content(second).substr(0, 4), "abcy");
}

TEST(MemFileSharing, each_copy_stays_usable_when_the_other_goes)
{
    auto first = std::make_unique<CKxMemFile>(written("abc"));
    CKxMemFile second(*first);
    first->Close();
    EXPECT_EQ(first->Size(), -1);
    EXPECT_EQ(content(second), "abc");
    first.reset();
    second.PutC('d');
    EXPECT_EQ(content(second), "abcd");
}

TEST(MemFileSharing, a_buffer_detached_through_one_copy_is_freed_by_neither)
{
    unsigned char* buffer = nullptr;
    {
        CKxMemFile first = written("abc");
        CKxMemFile second(first);
        buffer = first.GetBuffer(true);
        second.Close();
        EXPECT_EQ(second.Size(), -1);
        EXPECT_EQ(content(first), "abc");
    }
    EXPECT_EQ(buffer[0], 'a');
    std::free(buffer);
}

TEST(MemFileSharing, looking_at_the_buffer_through_one_copy_does_not_take_it_back)
{
    unsigned char* buffer = nullptr;
    {
        CKxMemFile first = written("abc");
        CKxMemFile second(first);
        buffer = first.GetBuffer(true);
        EXPECT_EQ(second.GetBuffer(false), buffer);
    }
    EXPECT_EQ(buffer[0], 'a');
    std::free(buffer);
}

TEST(MemFileSharing, assignment_to_itself_changes_nothing)
{
    CKxMemFile file = written("abc");
    CKxMemFile& same = file;
    file = same;
    EXPECT_EQ(content(file), "abc");
}
