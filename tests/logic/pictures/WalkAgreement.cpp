// The walk against its plain form: every stream of the recipes, every prefix of it, every flipped bit.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>

#include "support/GifBlockJudge.h"
#include "support/GifBlockSeeds.h"

namespace
{
using recipe::Bytes;
using recipe::Seed;

std::vector<Seed> seeds()
{
    std::vector<Seed> all = recipe::blockSeeds();
    for (const Seed& seed : recipe::allSeeds())
        if (seed.bytes.size() < 4096)
            all.push_back(seed);
    return all;
}

/// Judges a copy that ends where the bytes end.
void expectAgreement(const Bytes& bytes, std::size_t length, const std::string& what)
{
    static GifBlockJudge judge;
    const std::unique_ptr<std::uint8_t[]> copy(new std::uint8_t[length]);
    std::copy_n(bytes.begin(), length, copy.get());
    const char* difference = judge.judge(copy.get(), length);
    ASSERT_EQ(difference, nullptr) << what << ": " << difference;
}

TEST(WalkAgreement, every_seed)
{
    for (const Seed& seed : seeds())
        ASSERT_NO_FATAL_FAILURE(expectAgreement(seed.bytes, seed.bytes.size(), seed.name));
}

TEST(WalkAgreement, every_prefix_of_every_seed)
{
    for (const Seed& seed : seeds())
        for (std::size_t length = 0; length < seed.bytes.size(); ++length)
            ASSERT_NO_FATAL_FAILURE(
                expectAgreement(seed.bytes, length, seed.name + " cut to " + std::to_string(length)));
}

TEST(WalkAgreement, every_flipped_bit_of_every_seed)
{
    for (const Seed& seed : seeds())
    {
        Bytes bytes = seed.bytes;
        for (std::size_t bit = 0; bit < bytes.size() * 8; ++bit)
        {
            const auto flip = static_cast<std::uint8_t>(1 << bit % 8);
            bytes[bit / 8] ^= flip;
            ASSERT_NO_FATAL_FAILURE(
                expectAgreement(bytes, bytes.size(), seed.name + " with bit " + std::to_string(bit)));
            bytes[bit / 8] ^= flip;
        }
    }
}

TEST(WalkAgreement, the_plain_form_knows_the_miscounted_block)
{
    const Bytes bytes = recipe::GifBuilder(3, 2).control(1, 5).comment("abc").frame({}, 2, {1}).trailer().bytes();
    plain::GifBlocks blocks;
    blocks.read(bytes.data(), bytes.size());
    ASSERT_EQ(blocks.blocks().size(), 4U);
    ASSERT_EQ(blocks.frames().size(), 1U);
    EXPECT_EQ(blocks.frames()[0].length, 8 + 2 * blocks.blocks()[2].length);
}
} // namespace
