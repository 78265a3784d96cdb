// How much memory a growing stream holds.
#include <gtest/gtest.h>
#include <vector>
#include "oxa/images/KxMemFile.h"

namespace
{
struct ExposedFile : CKxMemFile
{
    std::size_t held() const { return m_pData.Size(); }
};
} // namespace

TEST(MemFileGrowth, many_small_writes_hold_at_most_half_as_much_again)
{
    ExposedFile file;
    ASSERT_TRUE(file.Open());
    const std::vector<unsigned char> piece(1000, 7);
    for (std::size_t written = 0; written < 2000000; written += piece.size())
    {
        ASSERT_EQ(file.Write(piece.data(), 1, piece.size()), piece.size());
        ASSERT_LE(file.held(), 4096 + (written + piece.size() + 4096) * 3 / 2);
    }
    EXPECT_EQ(file.Size(), 2000000);
}
