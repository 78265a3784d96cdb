// Reads the texts that are filed for a dialog or menu template.
#include "kitrel/KxPromptText.h"
#include <string>

namespace
{
constexpr char32_t c_replacement = 0xFFFD;

void append(std::wstring& out, char32_t code)
{
    if (sizeof(wchar_t) == 2 && code > 0xFFFF)
    {
        out += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
        out += static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
    }
    else
    {
        out += static_cast<wchar_t>(code);
    }
}

/// One character of UTF-8 at `at`, which moves behind it; what is malformed counts as one bad byte.
char32_t nextCharacter(const unsigned char* bytes, std::size_t size, std::size_t& at)
{
    const unsigned char lead = bytes[at++];
    if (lead < 0x80)
        return lead;
    const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    constexpr char32_t smallest[] = {0, 0x80, 0x800, 0x10000};
    if (lead < 0xC2 || lead > 0xF4 || more > size - at)
        return c_replacement;
    char32_t code = lead & (0x3FU >> more);
    for (std::size_t i = 0; i < more; ++i)
    {
        if ((bytes[at + i] & 0xC0) != 0x80)
            return c_replacement;
        code = code << 6 | (bytes[at + i] & 0x3FU);
    }
    if (code < smallest[more] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
        return c_replacement;
    at += more;
    return code;
}

bool isBlank(wchar_t c)
{
    return c == L' ' || c == L'\t' || c == L'\r';
}

std::wstring trimmed(const std::wstring& text)
{
    std::size_t first = 0, last = text.size();
    while (first < last && isBlank(text[first]))
        ++first;
    while (last > first && isBlank(text[last - 1]))
        --last;
    return text.substr(first, last - first);
}

std::wstring unescaped(const std::wstring& text)
{
    std::wstring out;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] != L'\\' || i + 1 == text.size())
        {
            out += text[i];
            continue;
        }
        const wchar_t c = text[++i];
        if (c == L'n')
            out += L'\n';
        else if (c == L't')
            out += L'\t';
        else if (c == L'"' || c == L'\\')
            out += c;
        else
            (out += L'\\') += c;
    }
    return out;
}

/// The key of a line: `caption` or a decimal number that no control id exceeds by being too long.
bool readKey(const std::wstring& text, unsigned int& key)
{
    if (text == L"caption")
    {
        key = KxPromptText::c_caption;
        return true;
    }
    if (text.empty() || text.size() > 9)
        return false;
    key = 0;
    for (const wchar_t c : text)
    {
        if (c < L'0' || c > L'9')
            return false;
        key = key * 10 + static_cast<unsigned int>(c - L'0');
    }
    return true;
}
} // namespace

KxPromptText::KxPromptText(const void* text, std::size_t size)
{
    const CString all = decode(text, size);
    int start = 0;
    while (start < all.GetLength())
    {
        const int end = all.Find(L'\n', start);
        const int stop = end < 0 ? all.GetLength() : end;
        readLine(all.Mid(start, stop - start));
        start = stop + 1;
    }
}

void KxPromptText::readLine(const CString& line)
{
    const std::wstring text(static_cast<const wchar_t*>(line), static_cast<std::size_t>(line.GetLength()));
    const std::size_t sign = text.find(L'=');
    unsigned int key = 0;
    if (sign == std::wstring::npos || !readKey(trimmed(text.substr(0, sign)), key) || find(key))
        return;
    std::wstring value = trimmed(text.substr(sign + 1));
    if (value.size() >= 2 && value.front() == L'"' && value.back() == L'"')
        value = value.substr(1, value.size() - 2);
    value = unescaped(value);
    m_entries.push_back({key, CString(value.data(), static_cast<int>(value.size()))});
}

const CString* KxPromptText::find(unsigned int key) const
{
    for (const Entry& entry : m_entries)
        if (entry.key == key)
            return &entry.text;
    return nullptr;
}

CString KxPromptText::decode(const void* text, std::size_t size)
{
    const auto* bytes = static_cast<const unsigned char*>(text);
    std::wstring out;
    for (std::size_t at = 0; bytes && at < size;)
        append(out, nextCharacter(bytes, size, at));
    if (!out.empty() && out.front() == 0xFEFF)
        out.erase(0, 1);
    return {out.data(), static_cast<int>(out.size())};
}
