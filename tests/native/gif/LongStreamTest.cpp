// A walk over a stream of more than 2 GiB: lengths that an int holds, and those that it does not.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <vector>
#include "oxa/images/GifBlockWalker.h"

namespace
{
constexpr std::size_t piece = std::size_t{1} << 20;
constexpr std::size_t twoGigabytes = std::size_t{1} << 31;

/// One comment from the start, of sub-blocks of 255 bytes, beyond 2 GiB. All pieces but the first and the last two are the
/// same memory.
class LongStream
{
public:
    LongStream()
    {
        void* const room =
            mmap(nullptr, Size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (room == MAP_FAILED)
            return;
        m_bytes = static_cast<std::uint8_t*>(room);
        const std::vector<char> full(piece, '\xFF');
        const int file = memfd_create("sub-blocks", 0);
        bool whole = file >= 0 && write(file, full.data(), piece) == static_cast<ssize_t>(piece);
        for (std::size_t at = piece; whole && at < twoGigabytes - piece; at += piece)
            whole = mmap(m_bytes + at, piece, PROT_READ, MAP_SHARED | MAP_FIXED, file, 0) != MAP_FAILED;
        close(file);
        std::memset(m_bytes, 0xFF, piece);
        std::memset(m_bytes + twoGigabytes - piece, 0xFF, piece);
        std::memcpy(m_bytes, "GIF89a\1\0\1\0\0\0\0!\xFE", SubBlocksAt);
        m_whole = whole;
    }
    LongStream(const LongStream&) = delete;
    LongStream& operator=(const LongStream&) = delete;
    ~LongStream()
    {
        if (m_bytes != nullptr)
            munmap(m_bytes, Size);
    }

    /// The length of the last sub-block, which begins 241 bytes before 2 GiB; zeros follow.
    void setLast(std::uint8_t count) { m_bytes[twoGigabytes - 241] = count; }
    std::uint8_t* bytes() { return m_bytes; }
    bool isWhole() const { return m_whole; }

    static constexpr std::size_t Size = twoGigabytes + piece;
    static constexpr std::uint32_t CommentAt = 13;
    static constexpr std::uint32_t SubBlocksAt = 15;

private:
    std::uint8_t* m_bytes = nullptr;
    bool m_whole = false;
};

TEST(LongStream, lengths_count_up_to_what_an_int_holds)
{
    LongStream stream;
    ASSERT_TRUE(stream.isWhole());
    // 255 bytes short of 2 GiB in whole sub-blocks, the last one with its size byte, and the zero
    struct Row
    {
        std::uint8_t last;
        std::int32_t subBlocks;
        std::int32_t comment; // two bytes more
    };
    for (const Row& row :
         {Row{251, 0x7FFFFFFD, 0x7FFFFFFF}, Row{252, 0x7FFFFFFE, 0}, Row{253, 0x7FFFFFFF, 0}, Row{254, 0, 0}})
    {
        stream.setLast(row.last);
        GifBlockWalker walker(stream.bytes(), static_cast<std::uint32_t>(LongStream::Size));
        EXPECT_EQ(walker.GetSubBlocksLen(LongStream::SubBlocksAt), row.subBlocks) << int{row.last};
        EXPECT_EQ(walker.GetNextBlockLen(), row.comment) << int{row.last};
        EXPECT_EQ(walker.SkipNextBlock(), row.comment != 0) << int{row.last};
    }
}

TEST(LongStream, a_frame_beyond_2_gigabytes_is_found)
{
    LongStream stream;
    ASSERT_TRUE(stream.isWhole());
    stream.setLast(251);
    const std::uint32_t imageAt = LongStream::CommentAt + 0x7FFFFFFF;
    const std::uint8_t image[] = {',', 3, 0, 4, 0, 5, 0, 6, 0, 0, 2, 1, 7, 0, ';'};
    std::memcpy(stream.bytes() + imageAt, image, sizeof image);
    GifBlockWalker walker(stream.bytes(), static_cast<std::uint32_t>(LongStream::Size));
    GifFrameBlock frame;
    ASSERT_TRUE(walker.FindNextGraphicBlock(frame));
    EXPECT_EQ(frame.start, imageAt);
    EXPECT_EQ(frame.length, 14U);
    EXPECT_EQ(frame.cx, 5);
    EXPECT_EQ(frame.y, 4);
    EXPECT_EQ(walker.ReadOffset(), imageAt + 14);
    EXPECT_FALSE(walker.FindNextGraphicBlock(frame));
    std::vector<std::uint8_t> whole(walker.AssembledSize(GifFrameBlock{imageAt, 14}));
    ASSERT_EQ(whole.size(), 13U + 14 + 1);
    walker.Assemble(GifFrameBlock{imageAt, 14}, whole.data());
    EXPECT_EQ(std::memcmp(whole.data() + 13, image, sizeof image), 0);
}
} // namespace
