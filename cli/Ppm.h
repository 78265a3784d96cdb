// Portable pixmaps: three numbers a pixel. Reads them as text (P3, "plain") and as bytes (P6), writes text.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

class CKxGifImage;

using Bytes = std::vector<std::uint8_t>;

struct Ppm
{
    /// Whether the first bytes are those of a pixmap.
    static bool Recognises(const Bytes& bytes);
    /// Makes `image` a 24-bit one. Returns why that failed, with `image` empty; or nothing.
    static std::string Read(const Bytes& bytes, CKxGifImage& image);
    /// The picture as text with 255 as its largest value. Transparent pixels have the colour of their palette entry.
    static void Write(const CKxGifImage& image, std::ostream& stream);
};
