// Small streams, each for one thing that a walk over the blocks can meet.
#pragma once

#include <string>
#include <utility>
#include <vector>
#include "support/GifSeeds.h"

namespace recipe
{
/// The 12 bytes of a plain text block that say where and in which colours its letters stand.
inline const Bytes textGrid = {0, 0, 0, 0, 8, 0, 8, 0, 8, 8, 1, 0};

inline GifBuilder& plainText(GifBuilder& builder, const Bytes& letters)
{
    return builder.text("!\x01").byte(12).raw(textGrid).blocks(letters);
}

inline std::vector<Seed> blockSeeds()
{
    const std::vector<Rgb> two = greys(2);
    const Place dot{0, 0, 1, 1};
    std::vector<Seed> seeds;
    const auto add = [&](std::string name, const GifBuilder& builder) {
        seeds.push_back({std::move(name), builder.bytes()});
    };
    const auto frame = [&](GifBuilder& builder) -> GifBuilder& { return builder.frame(dot, 2, {1}); };
    const auto start = [&] { return GifBuilder(3, 2, two); };
    GifBuilder b = start();

    add("no_block", start());
    add("trailer_alone", start().trailer());
    add("one_image", frame(b = start()).trailer());
    add("two_images", frame(frame(b = start())).trailer());
    add("no_trailer", frame(frame(b = start())));
    add("controls", frame(frame((b = start()).control(2, 5)).control(3, 10)).trailer());
    add("two_controls_in_a_row", frame((b = start()).control(2, 5).control(3, 10)).trailer());
    add("comment_between", frame((b = start()).control(1, 5).comment("between")).trailer());
    add("comment_between_at_the_end", frame((b = start()).control(1, 5).comment("between")));
    add("three_blocks_between",
        frame((b = start()).control(1, 5).comment("a").application("ELEVENBYTES", {1, 2}).comment("b")).trailer());
    add("control_then_trailer", frame(b = start()).control(2, 5).trailer());
    add("control_then_unknown", frame(frame(b = start()).control(2, 5).byte(0x77)).trailer());
    add("control_then_nothing", frame(b = start()).control(2, 5));
    add("blocks_before", frame((b = start()).application("NETSCAPE2.0", {1, 0, 0}).comment("first")).trailer());
    add("unknown_between_frames", frame(frame(b = start()).byte(0)).trailer());
    add("unknown_extension", frame((b = start()).text("!\x42").blocks({1, 2, 3})).trailer());
    add("plain_text", plainText(b = start(), {'h', 'i'}).trailer());
    add("plain_text_and_image", frame(plainText((b = start()).control(2, 7), {'h', 'i'})).trailer());
    add("plain_text_without_letters", frame(plainText(b = start(), {})).trailer());
    add("empty_comment", frame((b = start()).comment("")).trailer());
    add("long_comment", frame((b = start()).comment(std::string(300, 'x'))).trailer());
    add("local_tables", (b = GifBuilder(3, 2))
                            .frame({0, 0, 2, 1, false, greys(4)}, 2, {1, 3})
                            .frame({1, 1, 1, 1, true, greys(256)}, 8, {200})
                            .trailer());
    add("no_table", frame(b = GifBuilder(3, 2)).trailer());
    add("whole_table", frame(b = GifBuilder(3, 2, greys(256))).trailer());
    add("control_of_another_size", frame((b = start()).text("!\xF9\x06").raw({8, 9, 0, 0, 1, 1, 0})).trailer());
    add("image_of_sub_blocks_without_end", (b = start()).descriptor(dot).byte(2).openBlocks({1, 2, 3, 4}, 2));
    add("sub_block_beyond_the_end", (b = start()).descriptor(dot).byte(2).byte(200).raw({1, 2, 3}));
    add("table_beyond_the_end", (b = GifBuilder(3, 2, {}, 0x87)).raw({1, 2, 3}));
    add("local_table_beyond_the_end", (b = start()).text(",").raw({0, 0, 0, 0, 1, 0, 1, 0, 0x87}).raw({1, 2, 3}));
    return seeds;
}
} // namespace recipe
