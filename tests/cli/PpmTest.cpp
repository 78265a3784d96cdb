// Pixmaps, good and damaged, straight into an image and out of one.
#include <gtest/gtest.h>

#include <sstream>
#include "cli/Ppm.h"
#include "oxa/images/KxGifImage.h"

namespace
{
using namespace std::string_literals;

Bytes bytesOf(const std::string& text)
{
    return Bytes(text.begin(), text.end());
}

std::string written(const CKxGifImage& image)
{
    std::ostringstream text;
    Ppm::Write(image, text);
    return text.str();
}

/// What a picture is read as, written again; or why it is not read.
std::string through(const std::string& picture)
{
    CKxGifImage image;
    const std::string why = Ppm::Read(bytesOf(picture), image);
    return why.empty() ? written(image) : why;
}
} // namespace

TEST(Ppm, all_forms_are_read)
{
    const std::string pixels = "P3\n2 2\n255\n1 2 3 250 251 252\n0 0 0 9 8 7\n";
    EXPECT_EQ(through("P3 2 2 255  1 2 3  250 251 252  0 0 0  9 8 7"), pixels);
    EXPECT_EQ(through("P3# one\n#two\n 2 # three\n2\r\n255\n1 2 3\t250 251 252 # four\n0 0 0 9 8 7 and more"), pixels);
    EXPECT_EQ(through("P6 2 2 255\n\x01\x02\x03\xFA\xFB\xFC"s + "\0\0\0\x09\x08\x07"s), pixels);
    EXPECT_EQ(through("P6 2 2 65535\n\x01\x01\x02\x02\x03\x03\xFA\xFA\xFB\xFB\xFC\xFC"s +
                      "\0\0\0\0\0\0\x09\x09\x08\x08\x07\x07"s),
              pixels);
}

TEST(Ppm, samples_are_stretched_to_255)
{
    // 0, 1, 7 and 15 of 15 are 0, 17, 119 and 255; the half of 2 is 127.5, which is rounded up.
    EXPECT_EQ(through("P3 2 1 15 0 1 7 15 0 0"), "P3\n2 1\n255\n0 17 119 255 0 0\n");
    EXPECT_EQ(through("P3 1 1 2 0 1 2"), "P3\n1 1\n255\n0 128 255\n");
    EXPECT_EQ(through("P3 1 1 1 0 1 1"), "P3\n1 1\n255\n0 255 255\n");
}

TEST(Ppm, a_line_of_text_has_at_most_five_pixels)
{
    CKxGifImage image(11, 1, 24);
    image.Clear(255);
    const std::string white = "255 255 255";
    const std::string line = white + " " + white + " " + white + " " + white + " " + white + "\n";
    EXPECT_EQ(written(image), "P3\n11 1\n255\n" + line + line + white + "\n");
}

TEST(Ppm, an_indexed_picture_is_written_in_its_colours_top_row_first)
{
    CKxGifImage image(2, 2, 1);
    image.SetPaletteColor(0, 1, 2, 3);
    image.SetPaletteColor(1, 40, 50, 60);
    image.SetPixelIndex(1, 1, 1);
    EXPECT_EQ(written(image), "P3\n2 2\n255\n1 2 3 40 50 60\n1 2 3 1 2 3\n");
}

TEST(Ppm, what_is_damaged_is_told)
{
    const char* const header = "its PPM header is damaged";
    const char* const values = "its PPM header says what cannot be";
    const char* const size = "it is too large";
    const char* const early = "its pixels end too early";
    const char* const pixels = "its pixels are damaged";
    const std::pair<std::string, const char*> rows[] = {
        {"P3", header},
        {"P3 1 x", header},
        {"P31 1 255 1 2 3", header},
        {"P3 -1 1 255 1 2 3", header},
        {"P3 1 1", header},
        {"P3 1 1 255", early},
        {"P3 1 1 255x 1 2 3", pixels},
        {"P6 1 1 255#\nabc", header},
        {"P3 1 1 #", header},
        {"P6 0 1 255\n", values},
        {"P6 1 0 255\n", values},
        {"P6 1 1 0\nabc", values},
        {"P6 1 1 65536\nabcdef", values},
        {"P6 1 99999999999999999999999999 255\n", header}, // more than 64 bits
        {"P6 1 18446744073709551617 255\nabc", header},    // 1, taken in 64 bits
        {"P6 4294967297 1 255\nabc", header},              // 1, taken in 32 bits
        {"P6 65536 65536 255\n", size},                    // 0, taken in 32 bits
        {"P6 999999999 999999999 255\n", size},
        {"P6 16384 16385 255\n", size},
        {"P6 16384 16384 255\n", early},
        {"P3 16384 16384 255\n1 2 3", early},
        {"P6 1 1 255\nab", early},
        {"P6 1 1 255", early},
        {"P6 1 1 65535\nabcde", early},
        {"P6 1 1 7\nabc", pixels},
        {"P3 1 1 255 1 2", early},
        {"P3 1 1 255 1 2     ", pixels},
        {"P3 1 1 255 1 2 x", pixels},
        {"P3 1 1 255 1 2 256", pixels},
        {"P3 1 1 255 1 2 99999999999999999999", pixels},
    };
    for (const auto& [picture, why] : rows)
        EXPECT_EQ(through(picture), why) << picture;
}

TEST(Ppm, every_prefix_and_every_flipped_bit_gives_a_picture_or_a_reason)
{
    const std::string seeds[] = {"P3 2 2 255 1 2 3 250 251 252 0 0 0 9 8 7", "P3#c\n3 1 9\n1 2 3 4 5 6 7 8 9",
                                 "P6 2 2 255\n\x01\x02\x03\xFA\xFB\xFC\x0A\x20\x30\x09\x08\x07",
                                 "P6 1 1 65535\n\x01\x02\x03\x04\x05\x06"};
    const auto expectEither = [](const Bytes& bytes)
    {
        CKxGifImage image;
        if (!Ppm::Recognises(bytes))
            return;
        const std::string why = Ppm::Read(bytes, image);
        EXPECT_EQ(why.empty(), image.IsValid()) << std::string(bytes.begin(), bytes.end());
    };
    for (const std::string& seed : seeds)
    {
        for (std::size_t length = 0; length <= seed.size(); ++length)
            expectEither(bytesOf(seed.substr(0, length)));
        for (std::size_t bit = 0; bit < seed.size() * 8; ++bit)
        {
            Bytes bytes = bytesOf(seed);
            bytes[bit / 8] = static_cast<std::uint8_t>(bytes[bit / 8] ^ 1U << bit % 8);
            expectEither(bytes);
        }
    }
}
