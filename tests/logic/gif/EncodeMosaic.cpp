// True-colour images: tiles of 17 by 15 with a palette each, in which every pixel keeps its colour.
#include "EncoderFixture.h"

namespace
{
GifStream mosaicOf(CKxGifImage& image)
{
    return GifStream(plain::encoded(image));
}

Bytes entry(const GifBlock& tile, std::size_t index)
{
    const auto at = tile.table.begin() + static_cast<std::ptrdiff_t>(index * 3);
    return Bytes(at, at + 3);
}

/// The pixels of a tile whose codes are all single pixels: no pair comes twice.
std::vector<int> pixelsOf(const GifBlock& tile)
{
    const std::vector<int> codes = plain::codesOf(tile.data, tile.minimumCodeSize);
    return std::vector<int>(codes.begin() + 1, codes.end() - 1);
}

/// A colour by its channels, as the pixel operations take it.
unsigned long colour(unsigned red, unsigned green, unsigned blue)
{
    return red | green << 8 | blue << 16;
}

std::string boxes(const GifStream& stream)
{
    std::string text;
    for (const GifBlock& tile : stream.frames())
        text += std::to_string(tile.left) + "," + std::to_string(tile.top) + " " + std::to_string(tile.width) + "x" +
                std::to_string(tile.height) + "; ";
    return text;
}
} // namespace

TEST(EncodeMosaic, the_header_has_no_table)
{
    CKxGifImage image(17, 15, 24);
    const GifStream stream = mosaicOf(image);
    EXPECT_EQ(stream.flags, 0x11);
    EXPECT_EQ(stream.background, 0);
    EXPECT_EQ(stream.aspectRatio, 0);
    EXPECT_TRUE(stream.table.empty());
}

TEST(EncodeMosaic, tiles_cover_the_picture_from_the_top_left)
{
    struct Row
    {
        unsigned long width;
        unsigned long height;
        const char* boxes;
    };
    const Row rows[] = {
        {17, 15, "0,0 17x15; "},
        {18, 15, "0,0 17x15; 17,0 1x15; "},
        {17, 16, "0,0 17x15; 0,15 17x1; "},
        {1, 1, "0,0 1x1; "},
        {36, 31,
         "0,0 17x15; 17,0 17x15; 34,0 2x15; 0,15 17x15; 17,15 17x15; 34,15 2x15; 0,30 17x1; 17,30 17x1; "
         "34,30 2x1; "},
    };
    for (const Row& row : rows)
    {
        CKxGifImage image(row.width, row.height, 24);
        EXPECT_EQ(boxes(mosaicOf(image)), row.boxes);
    }
}

TEST(EncodeMosaic, each_tile_has_a_control_block_and_a_table_of_256)
{
    CKxGifImage image(18, 15, 24);
    image.SetComment("hall");
    image.SetDisposalMethod(3);
    image.SetFrameDelay(50);
    const GifStream stream = mosaicOf(image);
    std::vector<int> labels;
    for (const GifBlock& block : stream.blocks)
        labels.push_back(block.label);
    EXPECT_EQ(labels, (std::vector<int>{0xFE, 0xF9, ',', 0xF9, ','}));
    for (const GifBlock& control : stream.ofLabel(0xF9))
        EXPECT_EQ(control.data,
                  (Bytes{0, 0, 0, 0xFF})); // the tile's own: the image's delay and disposal are not written
    for (const GifBlock& tile : stream.frames())
    {
        EXPECT_EQ(tile.flags, 0x87);
        EXPECT_EQ(tile.minimumCodeSize, 8);
    }
}

TEST(EncodeMosaic, a_pixel_has_the_entry_of_its_place_counted_from_the_bottom_left)
{
    CKxGifImage image(17, 2, 24);
    for (long x = 0; x < 17; ++x)
    {
        image.SetPixelColor(x, 0, colour(static_cast<unsigned>(x) + 1, 0, 0)); // the bottom row: entries 1 to 17
        image.SetPixelColor(x, 1, colour(0, static_cast<unsigned>(x) + 1, 0)); // the top row: entries 18 to 34
    }
    const GifBlock tile = mosaicOf(image).frames().at(0);
    EXPECT_EQ(entry(tile, 0), (Bytes{0, 0, 0}));
    EXPECT_EQ(entry(tile, 1), (Bytes{1, 0, 0}));
    EXPECT_EQ(entry(tile, 17), (Bytes{17, 0, 0}));
    EXPECT_EQ(entry(tile, 18), (Bytes{0, 1, 0}));
    EXPECT_EQ(entry(tile, 34), (Bytes{0, 17, 0}));
    const std::vector<int> pixels = pixelsOf(tile); // the top row first
    ASSERT_EQ(pixels.size(), 34U);
    EXPECT_EQ(pixels[0], 18);
    EXPECT_EQ(pixels[16], 34);
    EXPECT_EQ(pixels[17], 1);
    EXPECT_EQ(pixels[33], 17);
}

TEST(EncodeMosaic, equal_pixels_share_the_lowest_entry_and_black_is_entry_0)
{
    CKxGifImage image(4, 1, 24);
    image.SetPixelColor(0, 0, colour(9, 9, 9));
    image.SetPixelColor(1, 0, colour(0, 0, 0));
    image.SetPixelColor(2, 0, colour(9, 9, 9));
    image.SetPixelColor(3, 0, colour(9, 9, 8));
    const GifBlock tile = mosaicOf(image).frames().at(0);
    EXPECT_EQ(pixelsOf(tile), (std::vector<int>{1, 0, 1, 4}));
    EXPECT_EQ(entry(tile, 3), (Bytes{9, 9, 9})); // the entry of its place, unused
}

TEST(EncodeMosaic, the_transparent_colour_is_entry_0)
{
    CKxGifImage image(3, 1, 24);
    image.SetTransIndex(0);
    image.SetTransColor({30, 20, 10, 99}); // red 10, green 20, blue 30
    image.SetPixelColor(0, 0, colour(1, 2, 3));
    image.SetPixelColor(1, 0, colour(10, 20, 30));
    image.SetPixelColor(2, 0, colour(0, 0, 0));
    const GifStream stream = mosaicOf(image);
    EXPECT_EQ(stream.ofLabel(0xF9).at(0).data, (Bytes{1, 0, 0, 0}));
    const GifBlock tile = stream.frames().at(0);
    EXPECT_EQ(entry(tile, 0), (Bytes{10, 20, 30}));
    EXPECT_EQ(pixelsOf(tile), (std::vector<int>{1, 0, 3}));
}

TEST(EncodeMosaic, an_index_below_minus_1_is_not_transparent)
{
    CKxGifImage image(1, 1, 24);
    image.SetTransIndex(-2);
    image.SetTransColor({1, 1, 1, 0});
    const GifStream stream = mosaicOf(image);
    EXPECT_EQ(stream.ofLabel(0xF9).at(0).data, (Bytes{0, 0, 0, 0xFF}));
    EXPECT_EQ(entry(stream.frames().at(0), 0), (Bytes{0, 0, 0}));
}

TEST(EncodeMosaic, a_narrow_tile_finds_black_in_an_entry_that_it_never_writes)
{
    // Two pixels wide: entries 1 and 2, then 18 and 19. Entry 3 stays black and lies below 18.
    CKxGifImage image(2, 2, 24);
    image.SetTransIndex(0);
    image.SetTransColor({5, 5, 5, 0});
    image.SetPixelColor(0, 0, colour(1, 1, 1));
    image.SetPixelColor(1, 0, colour(2, 2, 2));
    image.SetPixelColor(0, 1, colour(0, 0, 0));
    image.SetPixelColor(1, 1, colour(3, 3, 3));
    EXPECT_EQ(pixelsOf(mosaicOf(image).frames().at(0)), (std::vector<int>{3, 19, 1, 2}));
}

TEST(EncodeMosaic, a_tile_of_the_same_size_keeps_the_table_of_the_one_before)
{
    // Two tiles of 17 x 1 in a column cannot be; two of 1 x 15 beside tiles of 17 x 15 are made anew, as the size changes.
    CKxGifImage image(34, 1, 24);
    for (long x = 0; x < 17; ++x)
        image.SetPixelColor(x, 0, colour(100, 100, static_cast<unsigned>(x)));
    for (long x = 17; x < 34; ++x)
        image.SetPixelColor(x, 0, colour(200, 200, 200));
    const std::vector<GifBlock> tiles = mosaicOf(image).frames();
    EXPECT_EQ(entry(tiles.at(0), 17), (Bytes{100, 100, 16}));
    EXPECT_EQ(entry(tiles.at(1), 17), (Bytes{200, 200, 200}));
    EXPECT_EQ(plain::codesOf(tiles.at(1).data, 8).at(1), 1); // not an entry that the first tile left
}

TEST(EncodeMosaic, the_image_itself_is_left_alone)
{
    ExposedEncoder image;
    plain::drawRandom(image, 40, 40, 24, {300, 2}, 8);
    image.m_graphicControl = {0x1F, 7, 3};
    image.SetOffset(5, 6);
    const plain::Picture before = plain::pictureOf(image);
    EXPECT_FALSE(plain::encoded(image).empty());
    EXPECT_EQ(plain::pictureOf(image).colours, before.colours);
    EXPECT_EQ(image.m_graphicControl.flags, 0x1F);
    EXPECT_EQ(int{image.m_graphicControl.delay}, 7);
    long x = 0;
    long y = 0;
    image.GetOffset(&x, &y);
    EXPECT_EQ(x, 5);
    EXPECT_EQ(y, 6);
}
