// The stream in memory: opening, reading, writing, positions.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstring>
#include <string>
#include <vector>
#include "oxa/images/KxMemFile.h"

namespace
{
class ExposedFile : public CKxMemFile
{
public:
    using CKxMemFile::Alloc;
    using CKxMemFile::CKxMemFile;
    using CKxMemFile::Free;
    using CKxMemFile::m_bOwnsData;
    using CKxMemFile::m_nCapacity;
    using CKxMemFile::m_nLogicalSize;
    using CKxMemFile::m_nPosition;
};

std::vector<unsigned char> bytes(std::size_t count)
{
    std::vector<unsigned char> result(count);
    for (std::size_t i = 0; i < count; ++i)
        result[i] = static_cast<unsigned char>(i % 251 + 1);
    return result;
}
} // namespace

TEST(MemFile, over_a_null_buffer_is_closed)
{
    CKxMemFile file;
    unsigned char single = 7;
    EXPECT_EQ(file.Size(), -1);
    EXPECT_EQ(file.Tell(), -1);
    EXPECT_TRUE(file.Eof());
    EXPECT_EQ(file.Error(), -1);
    EXPECT_EQ(file.GetC(), -1);
    EXPECT_FALSE(file.PutC(1));
    EXPECT_FALSE(file.Flush());
    EXPECT_FALSE(file.Seek(0, 0));
    EXPECT_EQ(file.Read(&single, 1, 1), 0U);
    EXPECT_EQ(file.Write(&single, 1, 1), 0U);
    EXPECT_EQ(file.GetBuffer(false), nullptr);
    EXPECT_TRUE(file.Close());
    EXPECT_EQ(single, 7);
}

TEST(MemFile, over_a_null_buffer_with_a_size_is_closed_too)
{
    ExposedFile file(nullptr, 100);
    EXPECT_EQ(file.Size(), -1);
    EXPECT_TRUE(file.m_bOwnsData);
    EXPECT_EQ(file.m_nLogicalSize, 100U);
    EXPECT_EQ(file.m_nCapacity, 100U);
}

TEST(MemFile, over_a_buffer_is_open_at_the_start_and_does_not_own)
{
    unsigned char buffer[5] = {10, 20, 30, 40, 50};
    ExposedFile file(buffer, 5);
    EXPECT_EQ(file.Size(), 5);
    EXPECT_EQ(file.Tell(), 0);
    EXPECT_FALSE(file.Eof());
    EXPECT_EQ(file.Error(), 0);
    EXPECT_TRUE(file.Flush());
    EXPECT_FALSE(file.m_bOwnsData);
    EXPECT_EQ(file.m_nCapacity, 5U);
    EXPECT_TRUE(file.Close()); // not owned: stays open
    EXPECT_EQ(file.Size(), 5);
    EXPECT_EQ(file.GetC(), 10);
}

TEST(MemFile, opens_once)
{
    ExposedFile file;
    EXPECT_TRUE(file.Open());
    EXPECT_EQ(file.Size(), 0);
    EXPECT_EQ(file.m_nCapacity, 0U); // one byte is allocated, none counted
    EXPECT_TRUE(file.m_bOwnsData);
    ASSERT_TRUE(file.PutC(9));
    unsigned char* const buffer = file.GetBuffer(false);
    EXPECT_FALSE(file.Open());
    EXPECT_EQ(file.GetBuffer(false), buffer);
    EXPECT_EQ(file.Size(), 1);
    EXPECT_EQ(file.Tell(), 1);
}

TEST(MemFile, does_not_open_over_a_buffer)
{
    unsigned char buffer[3] = {1, 2, 3};
    CKxMemFile file(buffer, 3);
    EXPECT_FALSE(file.Open());
    EXPECT_EQ(file.Size(), 3);
}

TEST(MemFile, closing_keeps_position_and_capacity_and_opening_resets_them)
{
    ExposedFile file;
    file.Open();
    file.Write(bytes(4096).data(), 1, 4096);
    file.Close();
    EXPECT_EQ(file.Size(), -1);
    EXPECT_EQ(file.m_nLogicalSize, 0U);
    EXPECT_EQ(file.m_nPosition, 4096);
    EXPECT_EQ(file.m_nCapacity, 8192U);
    EXPECT_FALSE(file.PutC(1));
    EXPECT_TRUE(file.Open());
    EXPECT_EQ(file.Tell(), 0);
    EXPECT_EQ(file.m_nCapacity, 0U);
}

TEST(MemFile, freeing_closes)
{
    ExposedFile file;
    file.Open();
    file.Free();
    EXPECT_EQ(file.Size(), -1);
}

TEST(MemFile, freeing_calls_the_close_of_a_derived_class)
{
    struct Counting : ExposedFile
    {
        int closed = 0;
        bool Close() override
        {
            ++closed;
            return ExposedFile::Close();
        }
    } file;
    file.Free();
    EXPECT_EQ(file.closed, 1);
}

TEST(MemFile, capacity_is_the_next_multiple_of_4096_strictly_above)
{
    struct Row
    {
        std::size_t written;
        unsigned long capacity;
    };
    for (const Row& row : {Row{1, 4096}, Row{4095, 4096}, Row{4096, 8192}, Row{4097, 8192}, Row{8192, 12288}})
    {
        ExposedFile file;
        file.Open();
        EXPECT_EQ(file.Write(bytes(row.written).data(), 1, row.written), row.written);
        EXPECT_EQ(file.m_nCapacity, row.capacity) << row.written;
        EXPECT_EQ(file.Size(), static_cast<long>(row.written));
    }
}

TEST(MemFile, a_stream_that_is_full_to_its_capacity_does_not_grow)
{
    ExposedFile file;
    file.Open();
    file.Write(bytes(4095).data(), 1, 4095);
    file.PutC(1);
    EXPECT_EQ(file.Size(), 4096);
    EXPECT_EQ(file.m_nCapacity, 4096U);
    file.PutC(1);
    EXPECT_EQ(file.m_nCapacity, 8192U);
}

TEST(MemFile, alloc_up_to_the_capacity_does_nothing)
{
    ExposedFile file;
    file.Open();
    file.Alloc(1);
    EXPECT_EQ(file.m_nCapacity, 4096U);
    unsigned char* const buffer = file.GetBuffer(false);
    file.Alloc(4096);
    EXPECT_EQ(file.m_nCapacity, 4096U);
    EXPECT_EQ(file.GetBuffer(false), buffer);
    EXPECT_EQ(file.Size(), 0);
}

TEST(MemFile, alloc_opens_a_closed_stream_with_zeros)
{
    ExposedFile file(nullptr, 3);
    file.Alloc(4);
    EXPECT_EQ(file.Size(), 3);
    EXPECT_EQ(file.GetC(), 0);
    EXPECT_EQ(file.GetC(), 0);
    EXPECT_EQ(file.GetC(), 0);
    EXPECT_EQ(file.GetC(), -1);
}

TEST(MemFile, a_failing_alloc_leaves_the_stream_as_it_was)
{
    ExposedFile file;
    file.Open();
    file.PutC(5);
    EXPECT_FALSE(file.Alloc(0xFFFFFFFFUL));
    EXPECT_FALSE(file.Alloc(0xFFFFEFFFUL));
    EXPECT_EQ(file.m_nCapacity, 4096U);
    EXPECT_TRUE(file.m_bOwnsData);
    file.Seek(INT_MAX, 0);
    EXPECT_EQ(file.Write("ab", 1, 2), 0U); // would end beyond the last position
    EXPECT_TRUE(file.PutC(6));             // true whenever there is a buffer
    EXPECT_EQ(file.Tell(), INT_MAX);
    EXPECT_EQ(file.Size(), 1);
    file.Seek(0, 0);
    EXPECT_EQ(file.GetC(), 5);
}

TEST(MemFile, writes_and_reads_back)
{
    CKxMemFile file;
    file.Open();
    const auto data = bytes(20000);
    EXPECT_EQ(file.Write(data.data(), 100, 200), 200U);
    EXPECT_TRUE(file.Eof());
    EXPECT_EQ(file.Error(), 0);
    file.Seek(0, 0);
    std::vector<unsigned char> back(20000);
    EXPECT_EQ(file.Read(back.data(), 200, 100), 100U);
    EXPECT_EQ(back, data);
}

TEST(MemFile, overwriting_does_not_change_the_size)
{
    unsigned char buffer[4] = {1, 2, 3, 4};
    CKxMemFile file(buffer, 4);
    file.Seek(1, 0);
    EXPECT_EQ(file.Write("xy", 1, 2), 2U);
    EXPECT_EQ(file.Size(), 4);
    EXPECT_EQ(file.Tell(), 3);
    EXPECT_EQ(buffer[0], 1);
    EXPECT_EQ(buffer[1], 'x');
    EXPECT_EQ(buffer[2], 'y');
    EXPECT_EQ(buffer[3], 4);
}

TEST(MemFile, a_record_that_is_cut_short_is_copied_and_not_counted)
{
    auto data = bytes(20);
    unsigned char back[20] = {};
    CKxMemFile file(data.data(), 20);
    file.Seek(13, 0);
    EXPECT_EQ(file.Read(back, 13, 1), 0U);
    EXPECT_EQ(std::memcmp(back, data.data() + 13, 7), 0);
    EXPECT_EQ(back[7], 0);
    EXPECT_EQ(file.Tell(), 20);
    file.Seek(13, 0);
    EXPECT_EQ(file.Read(back, 1, 13), 7U);
    file.Seek(13, 0);
    EXPECT_EQ(file.Read(back, 3, 4), 2U); // seven bytes: two records of three, and one byte
    EXPECT_EQ(file.Tell(), 20);
}

TEST(MemFile, reads_nothing_for_null_or_a_product_of_zero)
{
    auto data = bytes(20);
    unsigned char back[20] = {};
    CKxMemFile file(data.data(), 20);
    EXPECT_EQ(file.Read(nullptr, 1, 1), 0U);
    EXPECT_EQ(file.Read(back, 0, 5), 0U);
    EXPECT_EQ(file.Read(back, 5, 0), 0U);
    EXPECT_EQ(file.Write(nullptr, 1, 1), 0U);
    EXPECT_EQ(file.Write(back, 0, 5), 0U);
    EXPECT_EQ(file.Write(back, 5, 0), 0U);
    EXPECT_EQ(file.Tell(), 0);
}

TEST(MemFile, takes_the_product_of_size_and_count_in_32_bits)
{
    auto data = bytes(300000);
    std::vector<unsigned char> back(300000);
    CKxMemFile file(data.data(), 300000);
    EXPECT_EQ(file.Read(back.data(), 0x10000, 0x10000), 0U); // 2^32: nothing
    EXPECT_EQ(file.Tell(), 0);
    EXPECT_EQ(file.Read(back.data(), 0x10000, 0x10001), 1U); // 2^32 + 65,536: one record
    EXPECT_EQ(file.Tell(), 0x10000);

    CKxMemFile target;
    target.Open();
    EXPECT_EQ(target.Write(data.data(), 0x10000, 0x10000), 0U);
    EXPECT_EQ(target.Write(data.data(), 0x10000, 0x10001), 0x10001U); // the count, though 65,536 bytes went
    EXPECT_EQ(target.Size(), 0x10000);
}

TEST(MemFile, a_size_wider_than_32_bits_reads_its_low_half_and_counts_no_record)
{
    if constexpr (sizeof(size_t) > 4)
    {
        auto data = bytes(20);
        unsigned char back[20] = {};
        CKxMemFile file(data.data(), 20);
        EXPECT_EQ(file.Read(back, (size_t{1} << 32) + 5, 1), 0U);
        EXPECT_EQ(file.Tell(), 5);
    }
}

TEST(MemFile, seeks_from_start_position_and_size)
{
    struct Row
    {
        long offset;
        int origin;
        bool done;
        long position; // from 2 of 5
    };
    const Row rows[] = {
        {3, 0, true, 3},
        {-10, 0, true, 0},
        {1, 1, true, 3},
        {-1, 1, true, 1},
        {-9, 1, true, 0},
        {0, 2, true, 5},
        {10, 2, true, 15},
        {-6, 2, true, 0},
        {0, 3, false, 2},
        {0, -1, false, 2},
        {INT_MAX, 1, true, INT_MAX},
        {INT_MAX, 2, true, INT_MAX},
        {LONG_MAX, 2, true, INT_MAX},
        {LONG_MIN, 2, true, 0},
        {LONG_MIN, 1, true, 0},
    };
    for (const Row& row : rows)
    {
        unsigned char buffer[5] = {};
        CKxMemFile file(buffer, 5);
        file.Seek(2, 0);
        EXPECT_EQ(file.Seek(row.offset, row.origin), row.done) << row.offset << " from " << row.origin;
        EXPECT_EQ(file.Tell(), row.position) << row.offset << " from " << row.origin;
    }
}

TEST(MemFile, beyond_the_size_is_an_error_until_something_is_written_there)
{
    ExposedFile file;
    file.Open();
    file.Write("12345", 1, 5);
    EXPECT_TRUE(file.Seek(10, 2));
    EXPECT_EQ(file.Tell(), 15);
    EXPECT_TRUE(file.Eof());
    EXPECT_EQ(file.Error(), 1);
    EXPECT_EQ(file.GetC(), -1);
    EXPECT_TRUE(file.PutC('x'));
    EXPECT_EQ(file.Size(), 16);
    EXPECT_EQ(file.Error(), 0);
    file.Seek(0, 0);
    char back[16] = {};
    EXPECT_EQ(file.Read(back, 1, 16), 16U);
    EXPECT_EQ(std::string(back, 16), std::string("12345\0\0\0\0\0\0\0\0\0\0x", 16));
}

TEST(MemFile, bytes_that_growth_adds_are_zero)
{
    CKxMemFile file;
    file.Open();
    file.Seek(100000, 0);
    file.PutC(1);
    EXPECT_EQ(file.Size(), 100001);
    const unsigned char* const buffer = file.GetBuffer(false);
    for (int i = 0; i < 100000; ++i)
        ASSERT_EQ(buffer[i], 0) << i;
    EXPECT_EQ(buffer[100000], 1);
}

TEST(MemFile, gets_bytes_as_0_to_255)
{
    unsigned char buffer[3] = {0, 128, 255};
    CKxMemFile file(buffer, 3);
    EXPECT_EQ(file.GetC(), 0);
    EXPECT_EQ(file.GetC(), 128);
    EXPECT_EQ(file.GetC(), 255);
    EXPECT_TRUE(file.Eof());
    EXPECT_EQ(file.GetC(), -1);
    EXPECT_EQ(file.Tell(), 3);
}

TEST(MemFile, may_be_written_from_its_own_bytes_while_it_grows)
{
    CKxMemFile file;
    file.Open();
    const auto data = bytes(4000);
    file.Write(data.data(), 1, 4000);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(file.Write(file.GetBuffer(false), 1, 4000), 4000U);
    ASSERT_EQ(file.Size(), 36000);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(std::memcmp(file.GetBuffer(false) + i * 4000, data.data(), 4000), 0) << i;
}

TEST(MemFile, a_size_above_the_last_position_counts_up_to_it)
{
    unsigned char buffer[1] = {};
    CKxMemFile file(buffer, ULONG_MAX);
    EXPECT_EQ(file.Size(), INT_MAX);
}
