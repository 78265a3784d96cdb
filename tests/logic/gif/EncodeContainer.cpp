// The blocks of a written stream: header, graphic control, comment, descriptor, trailer.
#include "EncoderFixture.h"

namespace
{
GifStream streamOf(CKxGifImage& image)
{
    const Bytes bytes = plain::encoded(image);
    return GifStream(bytes);
}

GifBlock controlOf(CKxGifImage& image)
{
    return streamOf(image).ofLabel(0xF9).at(0);
}

/// Names of the blocks in order: C control, T comment, A application, F frame.
std::string order(const GifStream& stream)
{
    std::string names;
    for (const GifBlock& block : stream.blocks)
        names += block.label == 0xF9 ? 'C' : block.label == 0xFE ? 'T' : block.label == ',' ? 'F' : 'A';
    return names;
}
} // namespace

TEST(EncodeContainer, one_pixel_of_one_bit_is_43_bytes)
{
    CKxGifImage image(1, 1, 1);
    image.SetPaletteColor(0, 10, 20, 30);
    image.SetPaletteColor(1, 40, 50, 60);
    // clang-format off
    const Bytes expected{
        'G', 'I', 'F', '8', '9', 'a',  1, 0,  1, 0,  0x80,  0,  0,
        10, 20, 30,  40, 50, 60,
        0x21, 0xF9, 4,  0,  0, 0,  0xFF,  0,
        ',',  0, 0,  0, 0,  1, 0,  1, 0,  0,
        2,  2, 0x44, 0x01,  0, // codes of 3 bits: 4 (clear), 0, 5 (end)
        ';'};
    // clang-format on
    EXPECT_EQ(plain::encoded(image), expected);
}

TEST(EncodeContainer, the_header_says_depth_and_table_size_in_two_places)
{
    struct Row
    {
        unsigned long depth;
        int flags;
        std::size_t tableBytes;
        int minimumCodeSize;
    };
    for (const Row& row : {Row{1, 0x80, 6, 2}, Row{4, 0xE3, 48, 4}, Row{8, 0xE7, 768, 8}})
    {
        CKxGifImage image(300, 2, row.depth);
        const GifStream stream = streamOf(image);
        EXPECT_EQ(stream.signature, "GIF89a");
        EXPECT_EQ(stream.width, 300);
        EXPECT_EQ(stream.height, 2);
        EXPECT_EQ(stream.flags, row.flags);
        EXPECT_EQ(stream.background, 0);
        EXPECT_EQ(stream.aspectRatio, 0);
        EXPECT_EQ(stream.table.size(), row.tableBytes);
        EXPECT_EQ(stream.frames().at(0).minimumCodeSize, row.minimumCodeSize);
    }
}

TEST(EncodeContainer, the_table_is_the_palette_in_red_green_blue)
{
    CKxGifImage image(2, 2, 4);
    image.SetPaletteColor(0, 1, 2, 3, 4);
    image.SetPaletteColor(15, 0xA0, 0xB0, 0xC0, 0xD0);
    const Bytes table = streamOf(image).table;
    EXPECT_EQ(Bytes(table.begin(), table.begin() + 3), (Bytes{1, 2, 3}));
    EXPECT_EQ(Bytes(table.end() - 3, table.end()), (Bytes{0xA0, 0xB0, 0xC0}));
}

TEST(EncodeContainer, sizes_above_16_bits_are_cut)
{
    CKxGifImage image(65536 + 3, 1, 1);
    const GifStream stream = streamOf(image);
    EXPECT_EQ(stream.width, 3);
    EXPECT_EQ(stream.frames().at(0).width, 3);
}

TEST(EncodeContainer, an_opaque_image_has_a_graphic_control_block_too)
{
    CKxGifImage image(3, 3, 8);
    const GifBlock control = controlOf(image);
    EXPECT_EQ(control.subBlocks, std::vector<std::size_t>{4});
    EXPECT_EQ(control.data, (Bytes{0, 0, 0, 0xFF}));
}

TEST(EncodeContainer, the_graphic_control_block_carries_transparency_disposal_and_delay)
{
    struct Row
    {
        long transparent;
        int disposal;
        unsigned long delay;
        Bytes expected;
    };
    const Row rows[] = {
        {0, 0, 0, {0x01, 0, 0, 0}},
        {7, 2, 10, {0x09, 10, 0, 7}},
        {255, 7, 0xFFFF, {0x1D, 0xFF, 0xFF, 255}},
        {-1, 8 + 3, 0x12345, {0x0C, 0x45, 0x23, 0xFF}}, // low bits of disposal and delay
        {-5, 0, 0, {0x01, 0, 0, 0xFB}},                 // every index but -1 sets the flag
        {0x0A07, 1, 1, {0x05, 1, 0, 0x07}},             // low byte of the index
        {-1, -1, 0, {0x1C, 0, 0, 0xFF}},
    };
    for (const Row& row : rows)
    {
        CKxGifImage image(1, 1, 8);
        image.SetTransIndex(row.transparent);
        image.SetDisposalMethod(row.disposal);
        image.SetFrameDelay(row.delay);
        EXPECT_EQ(controlOf(image).data, row.expected);
    }
}

TEST(EncodeContainer, encoding_rewrites_the_graphic_control_block_of_the_object)
{
    ExposedEncoder image(2, 1, 4);
    image.m_graphicControl = {0xFF, 1, 2};
    image.SetTransIndex(9);
    image.SetDisposalMethod(1);
    image.SetFrameDelay(300);
    EXPECT_FALSE(plain::encoded(image).empty());
    EXPECT_EQ(image.m_graphicControl.flags, 0x05);
    EXPECT_EQ(int{image.m_graphicControl.delay}, 300);
    EXPECT_EQ(image.m_graphicControl.transparentIndex, 9);
}

TEST(EncodeContainer, a_comment_is_one_block_of_at_most_255_bytes_before_the_frame)
{
    CKxGifImage image(2, 2, 1);
    EXPECT_EQ(order(streamOf(image)), "CF");

    image.SetComment("span");
    EXPECT_EQ(order(streamOf(image)), "CTF");
    EXPECT_EQ(streamOf(image).ofLabel(0xFE).at(0).data, (Bytes{'s', 'p', 'a', 'n'}));

    image.SetComment(std::string(300, 'x').c_str());
    const GifBlock comment = streamOf(image).ofLabel(0xFE).at(0);
    EXPECT_EQ(comment.subBlocks, std::vector<std::size_t>{255});
    EXPECT_EQ(comment.data, Bytes(255, 'x'));
}

TEST(EncodeContainer, the_loop_count_is_not_saved)
{
    CKxGifImage image(2, 2, 1);
    image.SetLoops(7);
    EXPECT_EQ(order(streamOf(image)), "CF");
}

TEST(EncodeContainer, the_frame_stands_at_the_offset_without_table_and_not_interlaced)
{
    CKxGifImage image(5, 4, 8);
    image.SetOffset(0x10203, -2);
    const GifBlock frame = streamOf(image).frames().at(0);
    EXPECT_EQ(frame.left, 0x0203);
    EXPECT_EQ(frame.top, 0xFFFE);
    EXPECT_EQ(frame.width, 5);
    EXPECT_EQ(frame.height, 4);
    EXPECT_EQ(frame.flags, 0);
}

TEST(EncodeContainer, encoding_leaves_pixels_and_palette_and_gives_the_same_bytes_again)
{
    CKxGifImage image;
    plain::drawRandom(image, 50, 20, 8, {256, 4}, 5);
    const Bytes first = plain::encoded(image);
    const plain::Picture before = plain::pictureOf(image);
    EXPECT_EQ(plain::encoded(image), first);
    EXPECT_EQ(plain::pictureOf(image).indexes, before.indexes);
    EXPECT_EQ(plain::pictureOf(image).palette, before.palette);
}

TEST(EncodeTarget, a_stream_is_written_from_its_position_on)
{
    CKxGifImage image(1, 1, 1);
    OpenStream file;
    ASSERT_EQ(file.Write("abc", 1, 3), 3U);
    ASSERT_TRUE(image.Encode(&file));
    Bytes expected = plain::encoded(image);
    expected.insert(expected.begin(), {'a', 'b', 'c'});
    EXPECT_EQ(file.bytes(), expected);
}

TEST(EncodeTarget, a_null_stream_or_an_empty_image_is_refused)
{
    ExposedEncoder image(1, 1, 1);
    EXPECT_FALSE(image.Encode(static_cast<CKxMemFile*>(nullptr)));
    EXPECT_TRUE(image.EncodeSafeCheck(nullptr));

    ExposedEncoder empty;
    OpenStream file;
    EXPECT_FALSE(empty.Encode(&file));
    EXPECT_TRUE(empty.EncodeSafeCheck(&file));
    EXPECT_FALSE(image.EncodeSafeCheck(&file));
    EXPECT_EQ(file.Size(), 0);
}

TEST(EncodeTarget, a_stream_that_is_not_open_takes_nothing)
{
    CKxGifImage image(1, 1, 1);
    CKxMemFile closed;
    EXPECT_TRUE(image.Encode(&closed)); // lost writes are not noticed
    EXPECT_EQ(closed.Size(), -1);
}

TEST(EncodeTarget, a_pointer_takes_a_block_of_its_own)
{
    CKxGifImage image(3, 2, 4);
    unsigned char* buffer = nullptr;
    long size = 0;
    ASSERT_TRUE(image.Encode(buffer, size));
    EXPECT_EQ(Bytes(buffer, buffer + size), plain::encoded(image));
    image.FreeMemory(buffer);
}

TEST(EncodeTarget, a_pointer_that_is_not_null_is_left_alone)
{
    CKxGifImage image(3, 2, 4);
    unsigned char mine = 77;
    unsigned char* buffer = &mine;
    long size = 123;
    EXPECT_FALSE(image.Encode(buffer, size));
    EXPECT_EQ(buffer, &mine);
    EXPECT_EQ(mine, 77);
    EXPECT_EQ(size, 123);
}

TEST(EncodeTarget, a_pointer_stays_null_for_an_empty_image)
{
    CKxGifImage empty;
    unsigned char* buffer = nullptr;
    long size = 123;
    EXPECT_FALSE(empty.Encode(buffer, size));
    EXPECT_EQ(buffer, nullptr);
    EXPECT_EQ(size, 123);
}

TEST(EncodeTarget, an_array_is_emptied_first)
{
    CByteArray data;
    data.SetSize(5000);
    CKxGifImage empty;
    EXPECT_FALSE(empty.Encode(data));
    EXPECT_EQ(data.GetSize(), 0);

    data.SetSize(5000);
    CKxGifImage image(1, 1, 1);
    EXPECT_TRUE(image.Encode(data));
    EXPECT_EQ(data.GetSize(), 43);
    EXPECT_EQ(data[0], 'G');
    EXPECT_EQ(data[42], ';');
}
