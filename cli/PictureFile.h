// Pictures in files and in the standard streams, as GIF or PPM.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

class CKxGifImage;

/// What could not be done, and with which file.
class PictureError : public std::runtime_error
{
public:
    PictureError(const std::string& name, const std::string& why) : std::runtime_error(name + ": " + why) {}
};

enum class PictureFormat
{
    Gif,
    Ppm,
};

/// Files by their path; `-` is standard input or output. Everything that fails throws a PictureError.
struct PictureFile
{
    /// Reads one frame, counted from 0; a PPM picture has only the first. What the file is its first bytes say.
    static PictureFormat Read(const std::filesystem::path& path, long frame, CKxGifImage& image);
    /// The format is that of the name's ending, or else `usual`.
    static void Write(const std::filesystem::path& path, PictureFormat usual, CKxGifImage& image);

    /// How messages call a file to read.
    static std::string InputName(const std::filesystem::path& path);
};
