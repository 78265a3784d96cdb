// CString::Format: the usual Windows wide formatting, the same on every platform.
#include "kx/String.h"

#include <cstdarg>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <string>

#include "FormatNumber.h"
#include "kx/StringA.h"

namespace
{

// Widths and precisions are held at this, so that no format string asks for endless memory.
constexpr int maxField = 65535;

enum class Size
{
    none,
    charSize,  // hh
    shortSize, // h
    longSize,  // l, w: wide text; a long has 32 bits
    wide64,    // ll, I64, j
    pointer,   // I, z, t
    longDouble // L
};

struct Arguments
{
    va_list list;
};

class Formatter
{
public:
    Formatter(LPCWSTR format, va_list args) : m_at(format != nullptr ? format : L"") { va_copy(m_args.list, args); }
    ~Formatter() { va_end(m_args.list); }
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;

    CString run()
    {
        while (*m_at != L'\0')
        {
            const wchar_t* const start = m_at;
            while (*m_at != L'\0' && *m_at != L'%')
            {
                ++m_at;
            }
            m_out.Append(start, static_cast<int>(m_at - start));
            if (*m_at == L'%')
            {
                ++m_at;
                conversion();
            }
        }
        return m_out;
    }

private:
    // Behind a '%'. An unknown conversion character is written as it is; a '%' at the end writes nothing.
    void conversion()
    {
        m_spec = kx::FormatSpec();
        flags();
        m_spec.width = number(true);
        if (*m_at == L'.')
        {
            ++m_at;
            m_spec.precision = number(false);
        }
        const Size size = sizePrefix();
        if (*m_at == L'\0')
        {
            return;
        }
        const wchar_t ch = *m_at++;
        m_spec.conversion = static_cast<unsigned>(ch) < 0x80 ? static_cast<char>(ch) : '\0';
        convert(ch, size);
    }

    void flags()
    {
        for (;; ++m_at)
        {
            switch (*m_at)
            {
            case L'-':
                m_spec.left = true;
                break;
            case L'+':
                m_spec.plus = true;
                break;
            case L' ':
                m_spec.blank = true;
                break;
            case L'#':
                m_spec.alternate = true;
                break;
            case L'0':
                m_spec.zero = true;
                break;
            default:
                return;
            }
        }
    }

    // Digits or '*'. A negative width from an argument means "left"; a negative precision counts as not given.
    int number(bool isWidth)
    {
        int value = 0;
        if (*m_at == L'*')
        {
            ++m_at;
            value = va_arg(m_args.list, int);
            if (value < 0)
            {
                m_spec.left = m_spec.left || isWidth;
                value = !isWidth ? -1 : (value < -maxField ? maxField : -value);
            }
            return value > maxField ? maxField : value;
        }
        for (; *m_at >= L'0' && *m_at <= L'9'; ++m_at)
        {
            value = value > maxField ? value : value * 10 + static_cast<int>(*m_at - L'0');
        }
        return value > maxField ? maxField : value;
    }

    bool skip(const wchar_t* text)
    {
        const std::size_t length = std::wcslen(text);
        if (std::wcsncmp(m_at, text, length) != 0)
        {
            return false;
        }
        m_at += length;
        return true;
    }

    Size sizePrefix()
    {
        static constexpr struct
        {
            const wchar_t* text;
            Size size;
        } prefixes[] = {{L"I64", Size::wide64},  {L"I32", Size::longSize}, {L"I", Size::pointer},
                        {L"hh", Size::charSize}, {L"h", Size::shortSize},  {L"ll", Size::wide64},
                        {L"l", Size::longSize},  {L"w", Size::longSize},   {L"L", Size::longDouble},
                        {L"z", Size::pointer},   {L"t", Size::pointer},    {L"j", Size::wide64}};
        for (const auto& prefix : prefixes)
        {
            if (skip(prefix.text))
            {
                return prefix.size;
            }
        }
        return Size::none;
    }

    void convert(wchar_t ch, Size size)
    {
        switch (ch)
        {
        case L'd':
        case L'i':
            signedInteger(size);
            break;
        case L'u':
        case L'o':
        case L'x':
        case L'X':
            put(kx::integerText(unsignedArgument(size), false, m_spec));
            break;
        case L'e':
        case L'E':
        case L'f':
        case L'F':
        case L'g':
        case L'G':
            put(kx::floatText(size == Size::longDouble ? static_cast<double>(va_arg(m_args.list, long double))
                                                       : va_arg(m_args.list, double),
                              m_spec));
            break;
        case L'p':
            pointer();
            break;
        case L's':
        case L'S':
            text(isNarrow(size, ch == L'S'));
            break;
        case L'c':
        case L'C':
            character(isNarrow(size, ch == L'C'));
            break;
        case L'n': // never writes through an argument
            static_cast<void>(va_arg(m_args.list, void*));
            break;
        default:
            m_out.AppendChar(ch);
            break;
        }
    }

    // Lower-case conversions are wide and upper-case ones narrow; h and l overrule.
    static bool isNarrow(Size size, bool upper)
    {
        if (size == Size::shortSize || size == Size::charSize)
        {
            return true;
        }
        return upper && size == Size::none;
    }

    std::uint64_t unsignedArgument(Size size)
    {
        switch (size)
        {
        case Size::wide64:
            return va_arg(m_args.list, unsigned long long);
        case Size::pointer:
            return va_arg(m_args.list, std::size_t);
        case Size::charSize:
            return static_cast<unsigned char>(va_arg(m_args.list, unsigned));
        case Size::shortSize:
            return static_cast<unsigned short>(va_arg(m_args.list, unsigned));
        default:
            return va_arg(m_args.list, unsigned);
        }
    }

    void signedInteger(Size size)
    {
        const std::uint64_t bits = unsignedArgument(size);
        std::int64_t value = 0;
        switch (size)
        {
        case Size::wide64:
        case Size::pointer:
            value = static_cast<std::int64_t>(bits);
            break;
        case Size::charSize:
            value = static_cast<std::int8_t>(bits);
            break;
        case Size::shortSize:
            value = static_cast<std::int16_t>(bits);
            break;
        default:
            value = static_cast<std::int32_t>(bits);
            break;
        }
        const auto unsignedValue = static_cast<std::uint64_t>(value);
        put(kx::integerText(value < 0 ? 0U - unsignedValue : unsignedValue, value < 0, m_spec));
    }

    // Sixteen upper-case hexadecimal digits.
    void pointer()
    {
        m_spec.precision = 16;
        m_spec.conversion = 'X';
        m_spec.alternate = false;
        put(kx::integerText(reinterpret_cast<std::uintptr_t>(va_arg(m_args.list, void*)), false, m_spec));
    }

    void character(bool narrow)
    {
        const int code = va_arg(m_args.list, int);
        if (narrow)
        {
            const char byte = static_cast<char>(code);
            const CString wide(byte);
            padded(wide.GetString(), 1);
        }
        else
        {
            const auto wide = static_cast<wchar_t>(code);
            padded(&wide, 1);
        }
    }

    void text(bool narrow)
    {
        if (narrow)
        {
            narrowText(va_arg(m_args.list, const char*));
            return;
        }
        const wchar_t* text = va_arg(m_args.list, const wchar_t*);
        text = text != nullptr ? text : L"(null)";
        int length = 0; // never reads behind the precision: the text need not be terminated then
        while ((m_spec.precision < 0 || length < m_spec.precision) && text[length] != L'\0')
        {
            ++length;
        }
        padded(text, length);
    }

    void narrowText(const char* text)
    {
        text = text != nullptr ? text : "(null)";
        int length = 0;
        while ((m_spec.precision < 0 || length < m_spec.precision) && text[length] != '\0')
        {
            ++length;
        }
        const CString wide = kx::widen(text, length);
        padded(wide, wide.GetLength());
    }

    void repeat(wchar_t ch, int count)
    {
        if (count > 0)
        {
            m_out.Append(CString(ch, count));
        }
    }

    void padded(const wchar_t* text, int length)
    {
        const wchar_t fill = m_spec.zero && !m_spec.left ? L'0' : L' ';
        if (!m_spec.left)
        {
            repeat(fill, m_spec.width - length);
        }
        m_out.Append(text, length);
        if (m_spec.left)
        {
            repeat(fill, m_spec.width - length);
        }
    }

    void put(const kx::NumberText& number)
    {
        const CString prefix(number.prefix.c_str());
        const CString body(number.body.c_str());
        const int fill = m_spec.width - prefix.GetLength() - body.GetLength();
        const bool zeros = m_spec.zero && !m_spec.left && number.zerosAllowed;
        if (!m_spec.left && !zeros)
        {
            repeat(L' ', fill);
        }
        m_out += prefix;
        if (zeros)
        {
            repeat(L'0', fill);
        }
        m_out += body;
        if (m_spec.left)
        {
            repeat(L' ', fill);
        }
    }

    const wchar_t* m_at;
    Arguments m_args;
    kx::FormatSpec m_spec;
    CString m_out;
};

} // namespace

void CString::FormatV(LPCWSTR pszFormat, va_list args)
{
    *this = Formatter(pszFormat, args).run(); // arguments may point into the old text
}

void CString::AppendFormatV(LPCWSTR pszFormat, va_list args)
{
    Append(Formatter(pszFormat, args).run());
}

void CString::Format(LPCWSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    try
    {
        FormatV(pszFormat, args);
    }
    catch (...)
    {
        va_end(args);
        throw;
    }
    va_end(args);
}

void CString::AppendFormat(LPCWSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    try
    {
        AppendFormatV(pszFormat, args);
    }
    catch (...)
    {
        va_end(args);
        throw;
    }
    va_end(args);
}
