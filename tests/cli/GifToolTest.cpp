// oxa-gif as scripts call it: results, exit status, and the line on standard error.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include "Process.h"
#include "support/GifBuilder.h"
#include "support/PlainPicture.h"

namespace
{
using namespace std::string_literals;

Outcome tool(const std::vector<std::string>& arguments, const std::string& input = {})
{
    return runProgram(OXA_GIF_TOOL, arguments, input);
}

std::string text(const std::vector<std::uint8_t>& bytes)
{
    return std::string(bytes.begin(), bytes.end());
}

/// Two frames of three by two pixels: the second draws its pixels of index 1 and 2 over the first.
std::string twoFrames()
{
    const std::vector<recipe::Rgb> four{{0, 0, 0}, {255, 0, 0}, {0, 255, 0}, {1, 2, 3}};
    return text(recipe::GifBuilder(3, 2, four)
                    .application("NETSCAPE2.0", {1, 5, 0})
                    .comment("two\nframes")
                    .control(1, 10)
                    .frame({0, 0, 3, 2}, 2, {3, 3, 3, 0, 0, 0})
                    .control(1, 20, 0)
                    .frame({1, 0, 2, 2}, 2, {1, 0, 0, 2})
                    .trailer()
                    .bytes());
}

std::string repeated(const std::string& word, int times)
{
    std::string all;
    while (times-- > 0)
        all += word;
    return all;
}

/// A frame without pixels on a screen without pixels.
std::string emptyFrame()
{
    return text(recipe::GifBuilder(0, 0, {{0, 0, 0}, {1, 1, 1}}).frame({0, 0, 0, 0}, 2, {}).trailer().bytes());
}

/// A few bytes that claim 65,535 by 65,535 pixels.
std::string hugeFrame()
{
    return text(
        recipe::GifBuilder(65535, 65535, {{0, 0, 0}, {1, 1, 1}}).frame({0, 0, 65535, 65535}, 2, {1}).trailer().bytes());
}

const std::string rgbPicture = "P3\n2 2\n255\n1 2 3 250 251 252\n0 0 0 9 8 7\n";

void readInto(CKxGifImage& image, std::string bytes)
{
    ASSERT_TRUE(image.Decode(reinterpret_cast<unsigned char*>(bytes.data()), static_cast<unsigned long>(bytes.size())));
}

/// A 24-bit picture of soft colours, as P6.
std::string slopes()
{
    std::string bytes = "P6 40 30 255\n";
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
        {
            bytes += static_cast<char>(x * 6);
            bytes += static_cast<char>(y * 8);
            bytes += static_cast<char>((x + y) * 3);
        }
    return bytes;
}

std::unique_ptr<CKxGifImage> drawnSlopes()
{
    auto image = std::make_unique<CKxGifImage>(40, 30, 24);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
            image->SetPixelColor(x, 29 - y, RGB(x * 6, y * 8, (x + y) * 3));
    return image;
}
} // namespace

TEST(GifTool, info_tells_of_a_gif)
{
    const TestFolder folder;
    folder.write("a.gif", twoFrames());
    const Outcome outcome = tool({"info", folder.path("a.gif")});
    EXPECT_EQ(outcome.output, "format: GIF\nwidth: 3\nheight: 2\nbits: 4\nframes: 2\nloops: 5\ndelay: 10\ndisposal: 1\n"
                              "transparent: 0\ncomment: two?frames\n");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST(GifTool, info_tells_of_a_ppm_on_standard_input)
{
    const Outcome outcome = tool({"info", "-"}, rgbPicture);
    EXPECT_EQ(outcome.output, "format: PPM\nwidth: 2\nheight: 2\nbits: 24\n");
    EXPECT_EQ(outcome.status, 0);
}

TEST(GifTool, a_frame_comes_out_as_red_green_and_blue)
{
    const TestFolder folder;
    folder.write("a.gif", twoFrames());
    const Outcome first = tool({"frame", "0", folder.path("a.gif"), "-"});
    EXPECT_EQ(first.output, "P3\n3 2\n255\n1 2 3 1 2 3 1 2 3\n0 0 0 0 0 0 0 0 0\n");
    EXPECT_EQ(first.status, 0);
    const Outcome second = tool({"frame", "1", "-", folder.path("b.ppm")}, twoFrames());
    EXPECT_EQ(second.status, 0);
    EXPECT_EQ(second.output, "");
    EXPECT_EQ(folder.read("b.ppm"), "P3\n3 2\n255\n1 2 3 255 0 0 1 2 3\n0 0 0 0 0 0 0 255 0\n");
}

TEST(GifTool, the_ending_of_the_name_says_the_format)
{
    const TestFolder folder;
    folder.write("a.gif", twoFrames());
    EXPECT_EQ(tool({"frame", "1", folder.path("a.gif"), folder.path("b.gif")}).status, 0);
    CKxGifImage image;
    readInto(image, folder.read("b.gif"));
    EXPECT_EQ(image.GetNumFrames(), 1);
    EXPECT_EQ(image.GetPixelIndex(1, 1), 1);

    EXPECT_EQ(tool({"reduce", "8", "-", folder.path("c.ppm")}, rgbPicture).status, 0);
    EXPECT_EQ(folder.read("c.ppm").substr(0, 2), "P3");
    EXPECT_EQ(tool({"reduce", "8", "-", folder.path("c.PNM")}, rgbPicture).status, 0);
    EXPECT_EQ(folder.read("c.PNM").substr(0, 2), "P3");
    EXPECT_EQ(tool({"frame", "0", "-", folder.path("c.GIF")}, rgbPicture).status, 0);
    EXPECT_EQ(folder.read("c.GIF").substr(0, 6), "GIF89a");
    EXPECT_EQ(tool({"reduce", "8", "-", folder.path("d")}, rgbPicture).status, 0);
    EXPECT_EQ(folder.read("d").substr(0, 6), "GIF89a");
}

TEST(GifTool, reduction_is_that_of_the_library)
{
    for (const int bits : {1, 4, 8})
        for (const bool diffuse : {false, true})
        {
            std::vector<std::string> arguments{"reduce", std::to_string(bits), "-", "-"};
            if (diffuse)
                arguments.insert(arguments.begin() + 2, "--diffuse");
            const Outcome outcome = tool(arguments, slopes());
            const std::unique_ptr<CKxGifImage> image = drawnSlopes();
            ASSERT_TRUE(image->DecreaseBpp(static_cast<unsigned long>(bits), diffuse, nullptr, 0));
            EXPECT_TRUE(outcome.output == text(plain::encoded(*image))) << bits << (diffuse ? " diffused" : "");
            EXPECT_EQ(outcome.status, 0);
        }
}

TEST(GifTool, a_transparent_index_goes_with_its_palette)
{
    const std::vector<recipe::Rgb> four{{0, 0, 0}, {255, 0, 0}, {0, 255, 0}, {1, 2, 3}};
    const std::string picture =
        text(recipe::GifBuilder(2, 1, four).control(0, 0, 2).frame({0, 0, 2, 1}, 2, {1, 2}).trailer().bytes());
    CKxGifImage image;
    readInto(image, tool({"reduce", "4", "-", "-"}, picture).output); // four colours are four bits here
    EXPECT_EQ(image.GetTransIndex(), 2);
    CKxGifImage reduced;
    readInto(reduced, tool({"reduce", "1", "-", "-"}, picture).output);
    EXPECT_EQ(reduced.GetTransIndex(), -1);
}

TEST(GifTool, what_cannot_be_done_is_one_line_and_status_1)
{
    struct Row
    {
        std::vector<std::string> arguments;
        std::string input;
        std::string errors;
    };
    const Row rows[] = {
        {{"info", "/no/such/file"}, "", "/no/such/file: it cannot be opened"},
        {{"info", "/no/such\nfile"}, "", "/no/such?file: it cannot be opened"},
        {{"info", "/"}, "", "/: it is a folder"},
        {{"info", "-"}, "", "standard input: it is neither a GIF nor a PPM picture"},
        {{"info", "-"}, "P", "standard input: it is neither a GIF nor a PPM picture"},
        {{"info", "-"}, "GIF", "standard input: it is neither a GIF nor a PPM picture"},
        {{"info", "-"}, "BM67", "standard input: it is neither a GIF nor a PPM picture"},
        {{"info", "-"}, "GIF89a", "standard input: it has no frame"},
        {{"info", "-"}, twoFrames().substr(0, 60), "standard input: it has no frame"},
        {{"info", "-"}, emptyFrame(), "standard input: it is too large, or empty"},
        {{"info", "-"}, hugeFrame(), "standard input: it is too large, or empty"},
        {{"info", "-"}, "P6 16000 16000 255\n", "standard input: its pixels end too early"},
        {{"frame", "0", "-", "-"}, "P6 1 99999999999999999999 255\n", "standard input: its PPM header is damaged"},
        {{"reduce", "8", "-", "-"}, "P3 1 1 255 1 2 256", "standard input: its pixels are damaged"},
        {{"frame", "2", "-", "-"}, twoFrames(), "standard input: it has 2 frames, counted from 0"},
        {{"frame", "1", "-", "-"}, rgbPicture, "standard input: a PPM picture has 1 frame, counted from 0"},
        {{"frame", "0", "-", "/no/such/folder/a.gif"}, twoFrames(), "/no/such/folder/a.gif: it cannot be created"},
        {{"frame", "0", "-", "/"}, twoFrames(), "/: it cannot be created"},
        {{"reduce", "8", "-", "-"}, twoFrames(), "standard input: it has 4 bits per pixel, fewer than asked for"},
        {{"reduce", "1", "-", "-"},
         "P3 65536 1 255" + repeated(" 0", 3 * 65536),
         "standard output: a GIF picture is at most 65535 pixels wide and high"},
    };
    for (const Row& row : rows)
    {
        const Outcome outcome = tool(row.arguments, row.input);
        EXPECT_EQ(outcome.errors, "oxa-gif: " + row.errors + "\n");
        EXPECT_EQ(outcome.output, "") << row.errors;
        EXPECT_EQ(outcome.status, 1) << row.errors;
    }
}

TEST(GifTool, a_failure_before_the_writing_leaves_the_target_alone)
{
    const TestFolder folder;
    folder.write("out.gif", "mine");
    EXPECT_EQ(tool({"reduce", "8", "-", folder.path("out.gif")}, "no picture").status, 1);
    EXPECT_EQ(folder.read("out.gif"), "mine");
    EXPECT_EQ(tool({"frame", "7", "-", folder.path("new.ppm")}, twoFrames()).status, 1);
    EXPECT_FALSE(folder.has("new.ppm"));
}

TEST(GifTool, a_file_can_be_reduced_into_itself)
{
    const TestFolder folder;
    folder.write("a.gif", text(plain::encoded(*drawnSlopes())));
    EXPECT_EQ(tool({"reduce", "4", folder.path("a.gif"), folder.path("a.gif")}).status, 0);
    EXPECT_EQ(tool({"info", folder.path("a.gif")}).output,
              "format: GIF\nwidth: 40\nheight: 30\nbits: 4\nframes: 1\nloops: 0\ndelay: 0\ndisposal: 0\n"
              "transparent: none\ncomment: \n");
}

#ifndef _WIN32
TEST(GifTool, a_full_disk_is_noticed)
{
    const Outcome outcome = runProgram(OXA_GIF_TOOL, {"frame", "0", "-", "-"}, rgbPicture, "/dev/full");
    EXPECT_EQ(outcome.errors, "oxa-gif: standard output: it cannot be written\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(runProgram(OXA_GIF_TOOL, {"info", "-"}, rgbPicture, "/dev/full").status, 1);
    EXPECT_EQ(runProgram(OXA_GIF_TOOL, {"--help"}, {}, "/dev/full").status, 1);
    const Outcome file = tool({"reduce", "8", "-", "/dev/full"}, rgbPicture);
    EXPECT_EQ(file.errors, "oxa-gif: /dev/full: it cannot be written\n");
    EXPECT_EQ(file.status, 1);
}

TEST(GifTool, a_pipe_without_a_reader_is_noticed)
{
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"frame", "0", "-", "-"}, {"reduce", "8", "-", "-"}, {"info", "-"}})
    {
        const Outcome outcome = runIntoClosedPipe(OXA_GIF_TOOL, arguments, rgbPicture);
        EXPECT_EQ(outcome.errors, "oxa-gif: standard output: it cannot be written\n");
        EXPECT_EQ(outcome.status, 1);
    }
}
#endif

TEST(GifTool, wrong_arguments_are_one_line_and_status_2)
{
    const std::vector<std::string> rows[] = {
        {},
        {""},
        {"show", "a.gif"},
        {"info"},
        {"info", "a", "b"},
        {"frame", "0", "a"},
        {"frame", "-1", "a", "b"},
        {"frame", "x", "a", "b"},
        {"frame", "1x", "a", "b"},
        {"frame", "", "a", "b"},
        {"frame", "99999999999", "a", "b"},
        {"frame", "0", "a", "b", "c"},
        {"reduce", "8", "a"},
        {"reduce", "2", "a", "b"},
        {"reduce", "24", "a", "b"},
        {"reduce", "8", "--diffuse", "a"},
        {"reduce", "8", "a", "b", "--diffuse"},
        {"reduce", "8", "--diffuse", "--diffuse", "a", "b"},
        {"reduce", "8", "--other", "a", "b"},
    };
    for (const std::vector<std::string>& arguments : rows)
    {
        const Outcome outcome = tool(arguments, twoFrames());
        EXPECT_EQ(outcome.errors.substr(0, 15), "oxa-gif: usage:");
        EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1);
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(outcome.status, 2);
    }
}

TEST(GifTool, help_is_no_error)
{
    const Outcome outcome = tool({"--help"});
    EXPECT_EQ(outcome.output.substr(0, 6), "usage:");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.status, 0);
}
