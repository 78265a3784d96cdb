// The three closed character classes of the format grammar, and the signs that feet-and-inches numbers add to digits.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

/// Which characters a format's types let pass. A character is in no class unless one of these strings holds it.
namespace CharacterClasses
{
enum Class : std::uint8_t
{
    Digit = 1,
    FeetAndInches = 2, ///< apostrophe, double quote and dash
    Letter = 4,
    Wide = 8,
    LetterButX = 16 ///< a letter group refuses the small "x" and takes the capital: kept on purpose
};

inline constexpr std::wstring_view digits = L"0123456789";
inline constexpr std::wstring_view feetAndInches = L"'\"-";
// à é è ç ù ê ô ï î: a closed list, whatever the locale says.
inline constexpr std::wstring_view letters = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                             L"\u00e0\u00e9\u00e8\u00e7\u00f9\u00ea\u00f4\u00ef\u00ee";
// à â ä é è ê ë ï î ö ô ù û ü ç, then signs with ² £ µ ° the blank and ø; no double quote.
inline constexpr std::wstring_view wide = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"
                                          L"\u00e0\u00e2\u00e4\u00e9\u00e8\u00ea\u00eb\u00ef\u00ee\u00f6\u00f4"
                                          L"\u00f9\u00fb\u00fc\u00e7./-+*_()'\\:;!?\u00b2,%&#{[|`@]=}$\u00a3"
                                          L"\u00b5\u00b0 \u00f8";

/// True when part stands in the string of a class as it is; the empty text does.
constexpr bool holds(std::wstring_view characters, std::wstring_view part)
{
    return characters.find(part) != std::wstring_view::npos;
}
constexpr bool isNumeric(std::wstring_view part, bool architectural)
{
    return holds(digits, part) || (architectural && holds(feetAndInches, part));
}
constexpr bool isCharacter(std::wstring_view part)
{
    return holds(letters, part);
}
constexpr bool isAlphaNumeric(std::wstring_view part)
{
    return holds(wide, part);
}

constexpr std::array<std::uint8_t, 256> makeTable()
{
    std::array<std::uint8_t, 256> classes{};
    const auto add = [&classes](std::wstring_view characters, unsigned sort)
    {
        for (const wchar_t ch : characters)
            classes[static_cast<std::size_t>(ch)] =
                static_cast<std::uint8_t>(classes[static_cast<std::size_t>(ch)] | sort);
    };
    add(digits, Digit);
    add(feetAndInches, FeetAndInches);
    add(letters, Letter | LetterButX);
    add(wide, Wide);
    classes[L'x'] = static_cast<std::uint8_t>(classes[L'x'] & ~LetterButX);
    return classes;
}

inline constexpr std::array<std::uint8_t, 256> table = makeTable();

/// The classes of one character, as a sum of the numbers above.
constexpr unsigned of(wchar_t ch)
{
    const auto code = static_cast<std::uint32_t>(ch);
    return code < table.size() ? table[code] : 0U;
}

/// The test of one character: against classes, or without any by character code against a range.
constexpr bool passes(wchar_t ch, unsigned classes, wchar_t low, wchar_t high)
{
    if (classes != 0)
        return (of(ch) & classes) != 0;
    const auto code = static_cast<std::uint32_t>(ch);
    return static_cast<std::uint32_t>(low) <= code && code <= static_cast<std::uint32_t>(high);
}
} // namespace CharacterClasses
