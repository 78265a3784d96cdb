// Frame 0 of streams that gifsicle and ImageMagick write, as the decoder and as giflib read it.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>
#include "GiflibFrame.h"
#include "oxa/images/KxGifImage.h"

namespace
{
class FirstFrame : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string pattern = testing::TempDir() + "gifpeersXXXXXX";
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        m_folder = pattern + "/";
    }
    void TearDown() override { std::filesystem::remove_all(m_folder); }

    std::string path(const std::string& name) const { return m_folder + name; }

    void run(const std::string& command)
    {
        ASSERT_EQ(std::system(("cd " + m_folder + " && " + command).c_str()), 0) << command;
    }

    /// A picture of slopes, squares and grain.
    void writePicture(const std::string& name, int width, int height, int seed)
    {
        std::ofstream out(path(name), std::ios::binary);
        out << "P6\n" << width << ' ' << height << "\n255\n";
        std::uint32_t state = static_cast<std::uint32_t>(seed);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
            {
                state = state * 1664525U + 1013904223U;
                const int grain = static_cast<int>(state >> 29);
                const bool square = (x / 9 + y / 7 + seed) % 4 == 0;
                out.put(static_cast<char>(square ? 250 : (x * 255 / width + grain) & 255));
                out.put(static_cast<char>(square ? 30 * seed : (y * 255 / height + grain) & 255));
                out.put(static_cast<char>((x + y + seed * 40) & 255));
            }
    }

    void expectAgreement(const std::string& name)
    {
        const peers::FirstFrame expected = peers::readWithGiflib(path(name));
        ASSERT_FALSE(expected.indexes.empty()) << name;
        std::ifstream in(path(name), std::ios::binary);
        std::vector<unsigned char> bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        CKxGifImage image;
        ASSERT_TRUE(image.Decode(bytes.data(), bytes.size())) << name;
        EXPECT_EQ(image.GetNumFrames(), expected.frames) << name;
        ASSERT_EQ(image.GetWidth(), static_cast<unsigned long>(expected.screenWidth)) << name;
        ASSERT_EQ(image.GetHeight(), static_cast<unsigned long>(expected.screenHeight)) << name;
        for (int y = 0; y < expected.height; ++y)
            for (int x = 0; x < expected.width; ++x)
            {
                const std::uint8_t index = expected.indexes[static_cast<std::size_t>(y * expected.width + x)];
                const long column = expected.left + x;
                const long row = expected.screenHeight - 1 - expected.top - y;
                ASSERT_EQ(image.GetPixelIndex(column, row), index) << name << ' ' << x << ' ' << y;
                const RGBQUAD colour = image.GetPixelColor(column, row);
                ASSERT_EQ(colour.rgbRed, expected.colours[index].Red) << name << ' ' << x << ' ' << y;
                ASSERT_EQ(colour.rgbGreen, expected.colours[index].Green) << name;
                ASSERT_EQ(colour.rgbBlue, expected.colours[index].Blue) << name;
            }
    }

    std::string m_folder{};
};

TEST_F(FirstFrame, pictures_of_2_to_256_colours_by_imagemagick)
{
    writePicture("picture.ppm", 131, 97, 1);
    for (const int colours : {2, 4, 5, 16, 17, 256})
        for (const char* option : {"", "-interlace GIF"})
        {
            ASSERT_NO_FATAL_FAILURE(
                run("convert picture.ppm -colors " + std::to_string(colours) + " " + option + " o.gif"));
            ASSERT_NO_FATAL_FAILURE(expectAgreement("o.gif")) << colours << option;
        }
}

TEST_F(FirstFrame, sizes_from_one_pixel_up_by_imagemagick)
{
    for (const int width : {1, 2, 7, 9, 255, 1000})
    {
        writePicture("picture.ppm", width, 2003 / width + 1, width);
        for (const char* option : {"", "-interlace GIF"})
        {
            ASSERT_NO_FATAL_FAILURE(run(std::string("convert picture.ppm ") + option + " o.gif"));
            ASSERT_NO_FATAL_FAILURE(expectAgreement("o.gif")) << width << option;
        }
    }
}

TEST_F(FirstFrame, black_and_white_and_transparent_pictures_by_imagemagick)
{
    writePicture("picture.ppm", 200, 150, 3);
    ASSERT_NO_FATAL_FAILURE(run("convert picture.ppm -monochrome mono.gif"));
    ASSERT_NO_FATAL_FAILURE(expectAgreement("mono.gif"));
    ASSERT_NO_FATAL_FAILURE(run("convert picture.ppm -colors 20 -transparent '#fa5a00' -fuzz 20% see.gif"));
    ASSERT_NO_FATAL_FAILURE(expectAgreement("see.gif"));
    ASSERT_NO_FATAL_FAILURE(run("convert -size 640x480 gradient:red-blue slope.gif"));
    ASSERT_NO_FATAL_FAILURE(expectAgreement("slope.gif"));
    ASSERT_NO_FATAL_FAILURE(run("convert -size 640x480 plasma:fractal -seed 7 noise.gif"));
    ASSERT_NO_FATAL_FAILURE(expectAgreement("noise.gif"));
}

TEST_F(FirstFrame, pictures_and_animations_by_gifsicle)
{
    for (int i = 0; i < 6; ++i)
    {
        const std::string number = std::to_string(i);
        writePicture("p" + number + ".ppm", 160, 120, i + 1);
        ASSERT_NO_FATAL_FAILURE(run("convert p" + number + ".ppm -colors 200 p" + number + ".gif"));
    }
    for (const char* options : {"", "-i", "-O1", "-O2", "-O3", "-k 16", "-k 2", "-i -k 4", "--no-conserve-memory -O2",
                                "--comment hello --delay 7 --loop=3"})
    {
        ASSERT_NO_FATAL_FAILURE(run(std::string("gifsicle ") + options + " p0.gif > one.gif 2>/dev/null"));
        ASSERT_NO_FATAL_FAILURE(expectAgreement("one.gif")) << options;
        ASSERT_NO_FATAL_FAILURE(run(std::string("gifsicle ") + options + " p?.gif > all.gif 2>/dev/null"));
        ASSERT_NO_FATAL_FAILURE(expectAgreement("all.gif")) << options;
    }
}
} // namespace
