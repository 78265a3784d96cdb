// The stream in memory.
#include <gtest/gtest.h>
#include "oxa/images/KxMemFile.h"

TEST(MemFile, over_a_null_buffer_is_closed)
{
    CKxMemFile file;
    EXPECT_EQ(file.Size(), -1);
    EXPECT_EQ(file.Tell(), -1);
    EXPECT_TRUE(file.Eof());
    EXPECT_EQ(file.Error(), -1);
}
