// info, frame and reduce: reads the arguments, and has the image class do the work.
#include "cli/GifTool.h"

#include <cctype>
#include <charconv>
#include <exception>
#include <iostream>
#include <new>
#include <string>
#include "cli/PictureFile.h"
#include "oxa/images/KxGifImage.h"

namespace
{
using Path = std::filesystem::path;
using Arguments = std::vector<Path>;

constexpr const char* usage = "usage: oxa-gif info FILE | frame N FILE OUT | reduce BITS [--diffuse] FILE OUT (BITS "
                              "1, 4 or 8; GIF or PPM; - is a standard stream)";

class UsageError : public std::exception
{
};

void require(bool good)
{
    if (!good)
        throw UsageError();
}

long numberOf(const Path& argument)
{
    const std::u8string spelled = argument.u8string();
    const std::string text(spelled.begin(), spelled.end());
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    require(error == std::errc() && end == text.data() + text.size() && number >= 0);
    return number;
}

/// Text that does a terminal no harm: what would move its cursor becomes a question mark.
std::string harmless(std::string text)
{
    for (char& letter : text)
        if (std::iscntrl(static_cast<unsigned char>(letter)) != 0)
            letter = '?';
    return text;
}

/// The comment of a GIF stream. It should be plain ASCII, and is shown as far as it is.
std::string commentOf(const CKxGifImage& image)
{
    char comment[256] = {};
    image.GetComment(comment);
    std::string text = comment;
    for (char& letter : text)
        if (letter < ' ' || letter > '~')
            letter = '?';
    return text;
}

void printGif(const CKxGifImage& image)
{
    std::cout << "frames: " << image.GetNumFrames() << "\nloops: " << image.GetLoops()
              << "\ndelay: " << image.GetFrameDelay() << "\ndisposal: " << image.GetDisposalMethod()
              << "\ntransparent: ";
    if (image.IsTransparent())
        std::cout << image.GetTransIndex();
    else
        std::cout << "none";
    std::cout << "\ncomment: " << commentOf(image) << '\n';
}

/// Size and depth of the first frame, and what a GIF stream says of it.
void info(const Arguments& arguments)
{
    require(arguments.size() == 2);
    CKxGifImage image;
    const PictureFormat format = PictureFile::Read(arguments[1], 0, image);
    std::cout << "format: " << (format == PictureFormat::Gif ? "GIF" : "PPM") << "\nwidth: " << image.GetWidth()
              << "\nheight: " << image.GetHeight() << "\nbits: " << image.GetBpp() << '\n';
    if (format == PictureFormat::Gif)
        printGif(image);
}

/// One frame, composed over those before it.
void frame(const Arguments& arguments)
{
    require(arguments.size() == 4);
    const long number = numberOf(arguments[1]);
    CKxGifImage image;
    PictureFile::Read(arguments[2], number, image);
    PictureFile::Write(arguments[3], PictureFormat::Ppm, image);
}

void reduce(Arguments arguments)
{
    const bool diffuse = arguments.size() > 2 && arguments[2] == "--diffuse";
    if (diffuse)
        arguments.erase(arguments.begin() + 2);
    require(arguments.size() == 4);
    const long bits = numberOf(arguments[1]);
    require(bits == 1 || bits == 4 || bits == 8);
    CKxGifImage image;
    PictureFile::Read(arguments[2], 0, image);
    const long depth = image.GetBpp();
    if (bits > depth)
        throw PictureError(PictureFile::InputName(arguments[2]), "it has " + std::to_string(depth) +
                                                                     (depth == 1 ? " bit" : " bits") +
                                                                     " per pixel, fewer than asked for");
    if (!image.DecreaseBpp(static_cast<unsigned long>(bits), diffuse, nullptr, 0))
        throw std::bad_alloc();
    if (bits != depth)
        image.SetTransIndex(-1); // the index belonged to the palette before
    PictureFile::Write(arguments[3], PictureFormat::Gif, image);
}

void carryOut(const Arguments& arguments)
{
    require(!arguments.empty());
    if (arguments[0] == "info")
        info(arguments);
    else if (arguments[0] == "frame")
        frame(arguments);
    else if (arguments[0] == "reduce")
        reduce(arguments);
    else if (arguments[0] == "--help")
        std::cout << usage << '\n';
    else
        throw UsageError();
    if (!std::cout.flush())
        throw PictureError("standard output", "it cannot be written");
}
} // namespace

GifTool::Status GifTool::Run(const std::vector<std::filesystem::path>& arguments)
try
{
    carryOut(arguments);
    return Done;
}
catch (const UsageError&)
{
    std::cerr << "oxa-gif: " << usage << '\n';
    return WrongUsage;
}
catch (const std::bad_alloc&)
{
    std::cerr << "oxa-gif: not enough memory\n";
    return Failed;
}
catch (const std::exception& error)
{
    std::cerr << "oxa-gif: " << harmless(error.what()) << '\n';
    return Failed;
}
