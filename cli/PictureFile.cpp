// Reads whole files; writes as the bytes come.
#include "cli/PictureFile.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <memory>
#include <string_view>
#include "cli/Ppm.h"
#include "oxa/images/KxGifImage.h"

namespace
{
using Path = std::filesystem::path;

constexpr std::size_t longestInput = std::size_t{1} << 30; // more than any picture that the library takes has need of
constexpr unsigned long largestGifSide = 65535;

bool isStandardStream(const Path& path)
{
    return path == "-";
}

std::string shown(const Path& path)
{
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

std::string outputName(const Path& path)
{
    return isStandardStream(path) ? "standard output" : shown(path);
}

Bytes readAll(std::FILE* file, const std::string& name)
{
    Bytes bytes;
    Bytes part(65536);
    while (const std::size_t got = std::fread(part.data(), 1, part.size(), file))
    {
        if (got > longestInput - bytes.size())
            throw PictureError(name, "it is too long");
        bytes.insert(bytes.end(), part.begin(), part.begin() + static_cast<std::ptrdiff_t>(got));
    }
    if (std::ferror(file) != 0)
        throw PictureError(name, "it cannot be read");
    return bytes;
}

Bytes readInput(const Path& path, const std::string& name)
{
    if (isStandardStream(path))
        return readAll(stdin, name);
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored))
        throw PictureError(name, "it is a folder");
#ifdef _WIN32
    const std::unique_ptr<std::FILE, decltype(&std::fclose)> file(_wfopen(path.c_str(), L"rb"), &std::fclose);
#else
    const std::unique_ptr<std::FILE, decltype(&std::fclose)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
#endif
    if (!file)
        throw PictureError(name, "it cannot be opened");
    return readAll(file.get(), name);
}

/// Lets the encoder write straight into a stream of the system.
class EncoderTarget : public CKxMemFile
{
public:
    explicit EncoderTarget(std::ostream& stream) : m_stream(stream) {}

    std::size_t Write(const void* buffer, std::size_t size, std::size_t count) override
    {
        m_stream.write(static_cast<const char*>(buffer), static_cast<std::streamsize>(size * count));
        return count;
    }
    bool PutC(unsigned char c) override
    {
        m_stream.put(static_cast<char>(c));
        return true;
    }

private:
    std::ostream& m_stream;
};

void writePicture(CKxGifImage& image, PictureFormat format, std::ostream& stream, const std::string& name)
{
    if (format == PictureFormat::Ppm)
        Ppm::Write(image, stream);
    else
    {
        EncoderTarget target(stream);
        if (!image.Encode(&target))
            throw PictureError(name, "there is not enough memory to write it");
    }
    if (!stream.flush())
        throw PictureError(name, "it cannot be written");
}

/// The format that the ending of a name stands for.
PictureFormat formatOf(const Path& path, PictureFormat usual)
{
    std::string ending = shown(path.extension());
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    if (ending == ".gif")
        return PictureFormat::Gif;
    if (ending == ".ppm" || ending == ".pnm")
        return PictureFormat::Ppm;
    return usual;
}

/// Why a GIF stream was not decoded.
std::string whyNot(const CKxGifImage& image, long frame)
{
    const long frames = image.GetNumFrames();
    if (frames == 0)
        return "it has no frame";
    if (frame >= frames)
        return "it has " + std::to_string(frames) + (frames == 1 ? " frame" : " frames") + ", counted from 0";
    return "it is too large, or empty";
}
} // namespace

std::string PictureFile::InputName(const Path& path)
{
    return isStandardStream(path) ? "standard input" : shown(path);
}

PictureFormat PictureFile::Read(const Path& path, long frame, CKxGifImage& image)
{
    const std::string name = InputName(path);
    Bytes bytes = readInput(path, name);
    if (Ppm::Recognises(bytes))
    {
        const std::string why = frame == 0 ? Ppm::Read(bytes, image) : "a PPM picture has 1 frame, counted from 0";
        if (!why.empty())
            throw PictureError(name, why);
        return PictureFormat::Ppm;
    }
    const std::string_view gif = "GIF8";
    if (!std::equal(gif.begin(), gif.end(), bytes.begin(),
                    bytes.begin() + std::min<std::ptrdiff_t>(std::ssize(bytes), 4)))
        throw PictureError(name, "it is neither a GIF nor a PPM picture");
    image.SetFrame(frame);
    if (!image.Decode(bytes.data(), static_cast<unsigned long>(bytes.size())) || !image.IsValid())
        throw PictureError(name, whyNot(image, frame));
    return PictureFormat::Gif;
}

void PictureFile::Write(const Path& path, PictureFormat usual, CKxGifImage& image)
{
    const std::string name = outputName(path);
    const PictureFormat format = formatOf(path, usual);
    if (format == PictureFormat::Gif && std::max(image.GetWidth(), image.GetHeight()) > largestGifSide)
        throw PictureError(name, "a GIF picture is at most 65535 pixels wide and high");
    if (isStandardStream(path))
        return writePicture(image, format, std::cout, name);
    std::ofstream file(path, std::ios::binary);
    if (!file)
        throw PictureError(name, "it cannot be created");
    writePicture(image, format, file, name);
}
