// Small GIF streams, each for one thing that a reader can meet: good ones and damaged ones.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>
#include "support/GifBuilder.h"

namespace recipe
{
struct Seed
{
    std::string name{};
    Bytes bytes{};
};

/// Pixels of a fixed pattern, all below `colours`; the same for the same numbers.
inline Bytes noise(std::size_t count, int colours, std::uint32_t seed = 1)
{
    Bytes pixels;
    for (std::size_t i = 0; i < count; ++i)
    {
        seed = seed * 1664525U + 1013904223U;
        pixels.push_back(static_cast<std::uint8_t>((seed >> 24) % static_cast<std::uint32_t>(colours)));
    }
    return pixels;
}

/// Runs of one index each, of 1 to `longest` pixels.
inline Bytes runs(std::size_t count, int colours, std::uint32_t longest = 40)
{
    Bytes pixels;
    const Bytes lengths = noise(count, 256, 77);
    const Bytes indexes = noise(count, colours, 99);
    for (std::size_t i = 0; pixels.size() < count; ++i)
        pixels.insert(pixels.end(), std::min(count - pixels.size(), std::size_t{lengths[i] % longest + 1}), indexes[i]);
    return pixels;
}

inline std::vector<Seed> goodSeeds()
{
    const std::vector<Rgb> two = greys(2);
    const std::vector<Rgb> four = greys(4);
    const std::vector<Rgb> sixteen = greys(16);
    const std::vector<Rgb> full = greys(256);
    const std::vector<Rgb> thirtyTwo = greys(32);
    std::vector<Seed> seeds;
    const auto add = [&](std::string name, const GifBuilder& builder) {
        seeds.push_back({std::move(name), builder.bytes()});
    };
    add("one_pixel", GifBuilder(1, 1, two).frame({}, 2, {1}).trailer());
    add("one_bit", GifBuilder(19, 7, two).frame({0, 0, 19, 7}, 2, runs(133, 2)).trailer());
    add("four_colours", GifBuilder(9, 9, four).frame({0, 0, 9, 9}, 2, noise(81, 4)).trailer());
    add("sixteen_colours", GifBuilder(13, 11, sixteen).frame({0, 0, 13, 11}, 4, noise(143, 16)).trailer());
    add("full_table", GifBuilder(10, 9, full).frame({0, 0, 10, 9}, 8, noise(90, 256)).trailer());
    add("runs", GifBuilder(60, 50, four).frame({0, 0, 60, 50}, 2, runs(3000, 4)).trailer());
    add("flat", GifBuilder(64, 64, two).frame({0, 0, 64, 64}, 2, Bytes(4096, 1)).trailer());
    add("no_trailer", GifBuilder(4, 4, four).frame({0, 0, 4, 4}, 2, noise(16, 4)));
    for (const int height : {1, 2, 3, 4, 5, 8, 9, 16, 17})
        add("interlaced_" + std::to_string(height),
            GifBuilder(5, height, four)
                .frame({0, 0, 5, height, true}, 2, noise(static_cast<std::size_t>(5 * height), 4))
                .trailer());
    add("transparent_over", GifBuilder(8, 6, four)
                                .control(1, 10)
                                .frame({0, 0, 8, 6}, 2, noise(48, 4))
                                .control(0, 20, 2)
                                .frame({1, 1, 6, 4}, 2, noise(24, 4, 5))
                                .trailer());
    add("interlaced_transparent_over", GifBuilder(8, 9, four)
                                           .frame({0, 0, 8, 9}, 2, noise(72, 4))
                                           .control(0, 20, 1)
                                           .frame({2, 1, 6, 8, true}, 2, noise(48, 4, 5))
                                           .trailer());
    for (int disposal = 0; disposal < 4; ++disposal)
        add("disposal_" + std::to_string(disposal), GifBuilder(7, 5, four)
                                                        .control(disposal, 3, 3)
                                                        .frame({0, 0, 7, 5}, 2, noise(35, 4))
                                                        .control(0, 4)
                                                        .frame({2, 2, 3, 2}, 2, noise(6, 4, 9))
                                                        .control(disposal, 5, 0)
                                                        .frame({0, 1, 2, 2}, 2, noise(4, 4, 3))
                                                        .trailer());
    add("tables_change", GifBuilder(6, 6, four)
                             .frame({0, 0, 6, 6}, 2, noise(36, 4))
                             .frame({1, 0, 3, 3, false, sixteen}, 4, noise(9, 16))
                             .frame({2, 2, 3, 3}, 4, noise(9, 16, 4))
                             .frame({0, 3, 5, 3, false, two}, 2, noise(15, 2))
                             .trailer());
    add("no_table", GifBuilder(6, 6, {}, 2).frame({0, 0, 6, 6}, 3, noise(36, 8)).trailer());
    add("tiles", GifBuilder(10, 8)
                     .control(0, 0, 0)
                     .frame({0, 0, 6, 5, false, sixteen}, 4, noise(30, 16))
                     .control(0, 0)
                     .frame({6, 0, 4, 5, false, four}, 2, noise(20, 4))
                     .frame({0, 5, 6, 3, true, thirtyTwo}, 5, noise(18, 32))
                     .frame({6, 5, 4, 3}, 5, noise(12, 32, 8))
                     .trailer());
    add("transparent_tiles", GifBuilder(4, 4)
                                 .frame({0, 0, 2, 2, false, four}, 2, {0, 1, 2, 3})
                                 .control(0, 7, 2)
                                 .frame({2, 2, 2, 2, false, four}, 2, {3, 2, 1, 0})
                                 .trailer());
    add("extensions", GifBuilder(3, 3, two)
                          .application("NETSCAPE2.0", {1, 7, 1})
                          .comment("Grey on grey")
                          .text("!\x01")
                          .blocks({12, 0, 0, 0, 0, 1, 1, 2, 2, 3, 3, 4, 5, 'h', 'i'})
                          .frame({0, 0, 3, 3}, 2, noise(9, 2))
                          .trailer());
    add("short_blocks", GifBuilder(9, 9, four).frame({0, 0, 9, 9}, 2, noise(81, 4), 1).trailer());
    add("table_full", GifBuilder(99, 99, full).frame({0, 0, 99, 99}, 8, noise(9801, 256)).trailer());
    add("table_full_no_clear", GifBuilder(160, 90, sixteen)
                                   .descriptor({0, 0, 160, 90})
                                   .byte(4)
                                   .blocks(packed(4, lzwCodes(4, noise(14400, 5), WhenFull::GoOn)))
                                   .trailer());
    return seeds;
}

/// Each is named after what is wrong with it.
inline std::vector<Seed> hostileSeeds()
{
    const std::vector<Rgb> four = greys(4);
    const std::vector<Rgb> thirtyTwo = greys(32);
    std::vector<Seed> seeds;
    const auto add = [&](std::string name, const GifBuilder& builder) {
        seeds.push_back({std::move(name), builder.bytes()});
    };
    const auto ofCodes = [&](const std::vector<int>& codes)
    {
        return GifBuilder(6, 4, four)
            .frame({0, 0, 6, 4}, 2, noise(24, 4))
            .frameOfCodes({0, 0, 6, 4}, 2, codes)
            .frame({1, 1, 2, 2}, 2, {3, 2, 1, 0})
            .trailer();
    };
    add("code_above_the_next_free", ofCodes({4, 1, 7, 3, 2, 1, 5}));
    add("prefix_chain_in_a_circle", ofCodes({4, 1, 7, 3, 1, 7, 2, 5}));
    add("prefix_that_is_no_entry_yet", ofCodes({4, 1, 2, 3, 15, 1, 9, 8, 5}));
    add("no_clear_code_at_all", ofCodes({6, 1, 2, 6, 3, 7, 5}));
    add("entry_before_the_clear_code", ofCodes({4, 1, 2, 3, 4, 1, 7, 7, 2, 7, 6, 5}));
    add("clear_codes_in_a_row", ofCodes({4, 4, 4, 1, 2, 4, 4, 3, 5}));
    add("free_code_behind_a_clear_code", ofCodes({4, 7, 1, 2, 6, 5}));
    add("end_code_at_once", ofCodes({5}));
    add("end_code_behind_the_clear_code", ofCodes({4, 5}));
    add("more_pixels_than_the_frame", ofCodes(lzwCodes(2, noise(60, 4))));
    add("no_end_code", GifBuilder(6, 4, four)
                           .frameOfCodes({0, 0, 6, 4}, 2, {4, 1, 2, 3, 6, 1, 1})
                           .frame({1, 1, 2, 2}, 2, {3, 2, 1, 0})
                           .trailer());
    add("terminator_inside_a_code", GifBuilder(6, 4, four)
                                        .frameOfCodes({0, 0, 6, 4}, 2, {4, 1, 2, 3, 6, 1})
                                        .comment("behind it")
                                        .frame({1, 1, 2, 2}, 2, {3, 2, 1, 0})
                                        .trailer());
    add("end_code_before_the_last_block", GifBuilder(6, 4, four)
                                              .descriptor({0, 0, 6, 4})
                                              .byte(2)
                                              .openBlocks(packed(2, {4, 1, 2, 5}))
                                              .blocks({',', 0, ',', 1, 2})
                                              .frame({1, 1, 2, 2}, 2, {3, 2, 1, 0})
                                              .trailer());
    for (const int size : {0, 1, 9, 10, 12, 255})
        add("code_size_" + std::to_string(size), GifBuilder(3, 2, four)
                                                     .descriptor({0, 0, 3, 2})
                                                     .byte(size)
                                                     .blocks({0x84, 0x51, 0x0A, 0x33})
                                                     .frame({0, 0, 2, 2}, 2, {3, 2, 1, 0})
                                                     .trailer());
    add("code_size_8_for_4_colours", GifBuilder(5, 5, four).frame({0, 0, 5, 5}, 8, noise(25, 256)).trailer());
    add("code_size_9", GifBuilder(9, 8, thirtyTwo).frame({0, 0, 9, 8}, 9, noise(72, 256)).trailer());
    add("frame_wider_than_the_screen",
        GifBuilder(4, 4, four).frame({0, 0, 5, 4}, 2, noise(20, 4)).frame({0, 0, 4, 4}, 2, noise(16, 4)).trailer());
    add("frame_far_outside", GifBuilder(4, 4, four)
                                 .frame({60000, 60000, 4, 4}, 2, noise(16, 4))
                                 .frame({0, 0, 4, 4}, 2, noise(16, 4))
                                 .trailer());
    add("frame_without_width", GifBuilder(4, 4, four)
                                   .frame({0, 0, 0, 4}, 2, noise(16, 4))
                                   .frame({0, 0, 4, 4}, 2, noise(16, 4))
                                   .frame({4, 0, 0, 2, true}, 2, noise(5, 4))
                                   .trailer());
    add("frame_without_height", GifBuilder(4, 4, four)
                                    .frame({0, 0, 4, 0}, 2, noise(16, 4))
                                    .frame({0, 0, 4, 4}, 2, noise(16, 4))
                                    .frame({0, 0, 4, 0, true}, 2, noise(9, 4))
                                    .trailer());
    add("screen_of_nothing", GifBuilder(0, 0, four).frame({0, 0, 0, 0}, 2, {1, 2}).trailer());
    add("screen_without_height",
        GifBuilder(5, 0, four).frame({0, 0, 3, 0}, 2, {1, 2}).frame({1, 0, 3, 0, true}, 2, {1, 2, 3, 0}).trailer());
    add("indexes_beyond_the_palette", GifBuilder(6, 4, four)
                                          .control(2, 0, 200)
                                          .frame({0, 0, 6, 4}, 5, noise(24, 32))
                                          .control(2, 0, 255)
                                          .frame({1, 0, 5, 4}, 8, noise(20, 256))
                                          .trailer());
    add("control_block_of_five", GifBuilder(3, 2, four)
                                     .frame({0, 0, 3, 2}, 2, noise(6, 4))
                                     .text("!\xF9\x05")
                                     .byte(1)
                                     .word(5)
                                     .byte(2)
                                     .byte(0)
                                     .byte(0)
                                     .frame({0, 0, 2, 2}, 2, noise(4, 4))
                                     .trailer());
    add("control_block_of_three",
        GifBuilder(3, 2, four).text("!\xF9\x03").byte(1).word(5).byte(0).frame({0, 0, 3, 2}, 2, noise(6, 4)).trailer());
    add("empty_comment", GifBuilder(3, 2, four).comment("").frame({0, 0, 3, 2}, 2, noise(6, 4)).trailer());
    add("application_of_ten", GifBuilder(3, 2, four)
                                  .text("!\xFF\x0Ashort name")
                                  .blocks({1, 2, 3})
                                  .frame({0, 0, 3, 2}, 2, noise(6, 4))
                                  .trailer());
    add("loose_bytes", GifBuilder(3, 2, four)
                           .text("xyz,!;")
                           .byte(0)
                           .byte(0)
                           .frame({0, 0, 3, 2}, 2, noise(6, 4))
                           .text("garbage;")
                           .byte(0)
                           .frame({0, 0, 2, 2}, 2, noise(4, 4))
                           .trailer());
    add("truncated_raster", GifBuilder(9, 9, four)
                                .frameOfCodes({0, 0, 9, 9}, 2, {4, 1, 2, 3, 3, 2, 1, 0, 1, 2, 3, 3, 2, 2, 5})
                                .control(0, 0, 0)
                                .frameOfCodes({2, 2, 7, 7, true}, 2, {4, 1, 2, 3, 3, 2, 1, 0, 1, 2, 3, 3, 2, 2, 5})
                                .trailer());
    add("tiles_of_which_one_is_cut", GifBuilder(6, 6)
                                         .frame({0, 0, 3, 3, false, four}, 2, noise(9, 4))
                                         .frameOfCodes({3, 3, 3, 3, false, four}, 2, {4, 1, 2, 3, 3, 5})
                                         .trailer());
    return seeds;
}

inline std::vector<Seed> allSeeds()
{
    std::vector<Seed> seeds = goodSeeds();
    for (Seed& seed : hostileSeeds())
        seeds.push_back(std::move(seed));
    return seeds;
}
} // namespace recipe
