// The decoder against the plain reader: every seed, every prefix of it, every flipped bit.
#include <gtest/gtest.h>

#include "support/GifJudge.h"
#include "support/GifSeeds.h"

namespace
{
using recipe::Bytes;
using recipe::Seed;

/// The first and the last frame of a stream, in the same image. `what` is only called when they do not agree.
template <class What> void expectAgreement(GifJudge& judge, const Bytes& bytes, const What& what)
{
    ASSERT_EQ(judge.decode(bytes, 0), "") << what();
    const long last = judge.image.GetNumFrames() - 1;
    if (last <= 0)
        return;
    ASSERT_EQ(judge.decode(bytes, last), "") << what() << ", frame " << last;
}

TEST(DecodeAgreement, every_seed)
{
    for (const Seed& seed : recipe::allSeeds())
    {
        GifJudge judge;
        for (long frame = -1; frame < 6; ++frame)
            ASSERT_EQ(judge.decode(seed.bytes, frame), "") << seed.name << ", frame " << frame;
    }
}

TEST(DecodeAgreement, every_prefix_of_every_seed)
{
    for (const Seed& seed : recipe::allSeeds())
    {
        if (seed.bytes.size() >= 4096)
            continue;
        GifJudge judge;
        for (std::size_t length = 0; length < seed.bytes.size(); ++length)
        {
            const Bytes prefix(seed.bytes.begin(), seed.bytes.begin() + static_cast<std::ptrdiff_t>(length));
            ASSERT_NO_FATAL_FAILURE(
                expectAgreement(judge, prefix, [&] { return seed.name + " cut to " + std::to_string(length); }));
        }
    }
}

TEST(DecodeAgreement, every_flipped_bit_of_every_seed)
{
    for (const Seed& seed : recipe::allSeeds())
    {
        if (seed.bytes.size() >= 4096)
            continue;
        GifJudge judge;
        Bytes bytes = seed.bytes;
        for (std::size_t bit = 0; bit < bytes.size() * 8; ++bit)
        {
            bytes[bit / 8] = static_cast<std::uint8_t>(bytes[bit / 8] ^ (1 << bit % 8));
            ASSERT_NO_FATAL_FAILURE(
                expectAgreement(judge, bytes, [&] { return seed.name + " with bit " + std::to_string(bit); }));
            bytes[bit / 8] = static_cast<std::uint8_t>(bytes[bit / 8] ^ (1 << bit % 8));
        }
    }
}

// Tables, control block and comment of one decode are there in the next.
TEST(DecodeAgreement, one_image_for_all_seeds)
{
    GifJudge judge;
    for (int round = 0; round < 2; ++round)
        for (const Seed& seed : recipe::allSeeds())
            for (long frame = 0; frame < 3; ++frame)
                ASSERT_EQ(judge.decode(seed.bytes, frame), "") << seed.name << ", frame " << frame;
}
} // namespace
