// Two slow judges of format texts, written apart from the library: one that knows only what formats accept, and one
// that goes through the documented steps on plain strings.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <kx/CaseFold.h>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace reference
{
/// One element of a format, as a test writes it down: kind 'F' (fixed), 'O' (open) or 'S' (separator).
struct Element
{
    char kind;
    std::wstring text;
    long long count;
};
using Format = std::vector<Element>;

inline bool contains(const std::wstring& list, wchar_t ch)
{
    return list.find(ch) != std::wstring::npos;
}

/// Whether a type lets a character pass; in architectural mode the signs of feet and inches are digits.
inline bool ofType(const std::wstring& type, wchar_t ch, bool architectural = false)
{
    const bool digit = ch >= L'0' && ch <= L'9';
    const bool letter = (ch >= L'a' && ch <= L'z') || (ch >= L'A' && ch <= L'Z');
    if (type == L"N")
        return digit || (architectural && contains(L"'\"-", ch));
    if (type == L"C") // à é è ç ù ê ô ï î
        return (letter && ch != L'x') || contains(L"\u00e0\u00e9\u00e8\u00e7\u00f9\u00ea\u00f4\u00ef\u00ee", ch);
    if (type == L"A") // then â ä ë ö û ü ² £ µ ° ø
        return digit || letter || contains(L"\u00e0\u00e9\u00e8\u00e7\u00f9\u00ea\u00f4\u00ef\u00ee", ch) ||
               contains(L"\u00e2\u00e4\u00eb\u00f6\u00fb\u00fc\u00b2\u00a3\u00b5\u00b0\u00f8", ch) ||
               contains(L"./-+*_()'\\:;!?,%&#{[|`@]=}$ ", ch);
    const auto code = [](wchar_t any) { return static_cast<std::uint32_t>(any); };
    return code(ch) >= code(type.front()) && code(ch) <= code(type.back());
}

/// The format string that says the same.
inline std::wstring spelled(const Format& format)
{
    std::wstring text;
    for (const Element& element : format)
        text += element.kind == 'S'
                    ? element.text
                    : L"[(" + element.text + L")" +
                          (element.kind == 'O' ? std::wstring(L"x") : std::to_wstring(element.count)) + L"]";
    return text;
}

/// What a format accepts, for formats whose separators begin with a character outside the group before and hold
/// none that lets the last character of that group pass: any number of characters up to the count in each group, at
/// least one in a last group that has a separator before it, all separators whole. Tried in every possible way.
inline bool accepts(const Format& format, const std::wstring& text, std::size_t element = 0, std::size_t i = 0)
{
    if (element == format.size())
        return i == text.size();
    const Element& current = format[element];
    if (current.kind == 'S')
        return text.compare(i, current.text.size(), current.text) == 0 &&
               accepts(format, text, element + 1, i + current.text.size());
    const bool last = element + 1 == format.size();
    for (std::size_t length = last && element > 0 ? 1 : 0;; ++length)
    {
        if (current.kind == 'F' && static_cast<long long>(length) > current.count)
            return false;
        if (length > 0 && (i + length > text.size() || !ofType(current.text, text[i + length - 1])))
            return false;
        if (accepts(format, text, element + 1, i + length))
            return true;
    }
}

/// The documented steps of the judgement, read off one by one. In architectural mode isNumber judges feet and inches.
class StepJudge
{
public:
    using IsNumber = std::function<bool(const std::wstring&)>;

    explicit StepJudge(const Format& format, IsNumber isNumber = {}) : m_format(format), m_isNumber(std::move(isNumber))
    {
    }

    bool judge(const std::wstring& text)
    {
        if (m_format.empty())
            throw std::invalid_argument("no elements");
        const auto length = static_cast<long long>(text.size());
        m_current = 0;
        m_type = m_format[0].text;
        m_kind = m_format[0].kind;
        long long limit = countOf(m_format[0]);
        long long i = 0;
        long long run = 0;
        const auto runIsNumber = [&] {
            return !m_isNumber ||
                   m_isNumber(text.substr(static_cast<std::size_t>(i - run), static_cast<std::size_t>(run)));
        };
        while (i < length)
        {
            const wchar_t ch = text[static_cast<std::size_t>(i)];
            if (!(m_kind != 'S' && ofType(m_type, ch, m_isNumber != nullptr)))
            {
                if (m_kind != 'S')
                    moveOn();
                if (none())
                    return false;
                const std::wstring s = current().text;
                const long long n = countOf(current());
                if (lower(text.substr(static_cast<std::size_t>(i), static_cast<std::size_t>(n))) != lower(s))
                    return false;
                moveOn();
                if (none() || i >= length - n)
                    return false;
                m_type = current().text;
                m_kind = current().kind;
                limit = m_kind == 'O' ? 0 : i + countOf(current()) + n;
                if (m_kind == 'O')
                {
                    if (run > 0 && !runIsNumber())
                        return false;
                    run = 0;
                }
                i += n;
                continue;
            }
            if (limit == 0)
            {
                if (i + 1 == length)
                    moveOn();
                ++i;
                run += m_type == L"N" ? 1 : 0;
                if (m_type == L"N" && i == length && !runIsNumber())
                    return false;
                continue;
            }
            if (i + 1 > limit)
                return false;
            if (i + 1 == limit && limit > length - 1)
            {
                moveOn();
                if (none())
                    return i + 1 == length;
                m_type = current().text;
                continue;
            }
            if (i + 1 == length && m_current + 1 < m_format.size())
                return false;
            ++i;
        }
        return none() || m_current + 1 == m_format.size();
    }

private:
    static long long countOf(const Element& element)
    {
        return element.kind == 'S'   ? static_cast<long long>(element.text.size())
               : element.kind == 'O' ? 0
                                     : element.count;
    }
    static std::wstring lower(std::wstring text)
    {
        for (wchar_t& ch : text)
            ch = kx::foldLower(ch);
        return text;
    }
    bool none() const { return m_current >= m_format.size(); }
    const Element& current() const { return m_format[m_current]; }
    void moveOn()
    {
        if (none())
            throw std::invalid_argument("past the end");
        ++m_current;
    }

    const Format& m_format;
    IsNumber m_isNumber;
    std::size_t m_current = 0;
    std::wstring m_type;
    char m_kind = ' ';
};
} // namespace reference
