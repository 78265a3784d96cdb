// The ANSI code page: the system's on Windows, 1252 elsewhere.
#include "kx/StringA.h"

namespace kx
{

#ifdef _WIN32

CString widen(const char* bytes, int length)
{
    CString result;
    if (bytes != nullptr && length > 0)
    {
        const int needed = ::MultiByteToWideChar(CP_ACP, 0, bytes, length, nullptr, 0);
        ::MultiByteToWideChar(CP_ACP, 0, bytes, length, result.GetBufferSetLength(needed), needed);
    }
    return result;
}

std::string narrow(const wchar_t* text, int length)
{
    std::string result;
    if (text != nullptr && length > 0)
    {
        const int needed = ::WideCharToMultiByte(CP_ACP, 0, text, length, nullptr, 0, nullptr, nullptr);
        result.resize(static_cast<std::size_t>(needed));
        ::WideCharToMultiByte(CP_ACP, 0, text, length, result.data(), needed, nullptr, nullptr);
    }
    return result;
}

#else

namespace
{

// What the bytes 0x80 to 0x9F mean in code page 1252; the unused ones keep their number.
constexpr wchar_t upperControls[32] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                       0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                       0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                       0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char toByte(wchar_t ch) noexcept
{
    for (int i = 0; i < 32; ++i)
    {
        if (upperControls[i] == ch)
        {
            return static_cast<char>(0x80 + i);
        }
    }
    const bool direct = ch >= 0 && (ch < 0x80 || (ch >= 0xA0 && ch < 0x100));
    return direct ? static_cast<char>(ch) : '?';
}

} // namespace

CString widen(const char* bytes, int length)
{
    CString result;
    if (bytes != nullptr && length > 0)
    {
        wchar_t* const text = result.GetBufferSetLength(length);
        for (int i = 0; i < length; ++i)
        {
            const auto byte = static_cast<unsigned char>(bytes[i]);
            text[i] = byte >= 0x80 && byte < 0xA0 ? upperControls[byte - 0x80] : static_cast<wchar_t>(byte);
        }
    }
    return result;
}

std::string narrow(const wchar_t* text, int length)
{
    std::string result;
    for (int i = 0; text != nullptr && i < length; ++i)
    {
        result += toByte(text[i]);
    }
    return result;
}

#endif

} // namespace kx
