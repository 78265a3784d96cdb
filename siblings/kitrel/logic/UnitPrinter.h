// How a value is written as a text: decimal numbers, feet and inches.
#pragma once

#include <cstddef>
#include <string_view>

namespace kitrel
{

/// Largest precisions that are written.
inline constexpr unsigned int c_mostDecimals = 12;
inline constexpr unsigned int c_finestFraction = 8; // 1/256
/// From here on a length is written as inches with an exponent.
inline constexpr double c_longestFeetAndInches = 1e11;

struct PrintingRules
{
    unsigned int precision = 3;
    wchar_t separator = L'.';
    bool fillZeros = true;
    unsigned int longestFixed = 50;
};

/// A text that grows up to a fixed size; what goes beyond it is left out.
class TextWriter
{
public:
    static constexpr size_t c_size = 255;

    void add(wchar_t c) noexcept
    {
        if (m_length < c_size)
            m_text[m_length++] = c;
    }
    void add(std::wstring_view text) noexcept
    {
        for (const wchar_t c : text)
            add(c);
    }
    void addZeros(size_t count) noexcept
    {
        for (size_t i = 0; i < count; ++i)
            add(L'0');
    }
    std::wstring_view view() const noexcept { return {m_text, m_length}; }

private:
    wchar_t m_text[c_size];
    size_t m_length = 0;
};

/// The number alone, without a symbol. `value` is finite.
void printDecimal(TextWriter& out, double value, const PrintingRules& rules);

/// `1'-6 1/2"`: feet, inches and a reduced fraction; the precision is a power of two.
void printArchitectural(TextWriter& out, double inches, const PrintingRules& rules);

/// `1'-6.50"`: feet and decimal inches.
void printEngineering(TextWriter& out, double inches, const PrintingRules& rules);

} // namespace kitrel
