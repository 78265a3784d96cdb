// Unit texts: every text gives a finite value, and what is printed reads back to the same text.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <string>

#include "kitrel/KxImperialLength.h"
#include "kitrel/KxUnit.h"

namespace
{

constexpr size_t c_headSize = 16;
constexpr size_t c_longText = 20000;

void require(bool good, const char* what)
{
    if (good)
        return;
    std::fprintf(stderr, "fuzz_units: %s\n", what);
    std::abort();
}

// The bytes in front of the text: unit, way of printing, and a value.
struct Head
{
    std::uint8_t family, range, precision, format, separator, symbolAndZeros, longest, repeat;
    double value;
};
static_assert(sizeof(Head) == c_headSize);

std::wstring textOf(const std::uint8_t* data, size_t size)
{
    static constexpr std::uint32_t special[] = {0xB5,   0x3BC,  0xB0,   0xBA,   0xB2,   0xB7,   0x22C5, 0x2030,
                                                0x2032, 0x2033, 0x2019, 0x201D, 0x2212, 0xA0,   0x202F, 0xB1,
                                                0x2248, 0xD800, 0xDFFF, 0xFFFF, 0x100,  0x2028, 0xFEFF, 0xE9};
    std::wstring text;
    for (size_t i = 0; i < size; ++i)
        text += static_cast<wchar_t>(data[i] < 0x80 ? data[i] : special[data[i] % (sizeof special / sizeof *special)]);
    return text;
}

struct Printing
{
    int symbol;
    int zeros;
    unsigned int longest;
};

std::wstring print(const CKxUnit& unit, double value, const Printing& how, int valueIsSI = 1)
{
    wchar_t buffer[CKxUnit::c_nTextSize];
    const CString text = unit.Double2String(buffer, value, how.symbol, L"%.*f", how.zeros, valueIsSI, how.longest);
    require(std::wcslen(buffer) < CKxUnit::c_nTextSize, "a text is longer than promised");
    require(text == buffer, "the buffer and the result differ");
    return buffer;
}

void printReadPrint(const CKxUnit& unit, double value, const Printing& how, int valueIsSI)
{
    std::wstring first = print(unit, value, how, valueIsSI);
    int ok = -1;
    const double read = unit.String2Double(first.data(), &ok, 1);
    require(ok == 1, "a printed text is not understood");
    require(std::isfinite(read), "a printed text reads as no finite value");
    require(print(unit, read, how) == first, "print, read, print changes the text");
}

double readFinite(const CKxUnit& unit, const std::wstring& text)
{
    int ok = -1;
    const double value = unit.String2Double(CString(text.c_str(), static_cast<int>(text.size())), &ok, 1);
    require(ok == 0 || ok == 1, "the flag is neither 0 nor 1");
    require(std::isfinite(value) && std::fabs(value) <= 1e290, "a value beyond the limits");
    require(ok == 1 || value == 0.0, "a text that is not understood has a value");
    require(std::isfinite(unit.String2Double(CString(text.c_str(), static_cast<int>(text.size())), nullptr, 0)),
            "a value in the unit is not finite");
    return value;
}

void cutMarks(unsigned int family, const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    CString cut(text.c_str(), length);
    CKxUnit::EliminateUnitsSymbol(family, cut);
    const std::wstring kept(cut.GetString(), static_cast<size_t>(cut.GetLength()));
    require(text.compare(0, kept.size(), kept) == 0, "cutting a symbol changed more than the end");
    CKxUnit::EliminatePrecision(cut);
    require(cut.GetLength() <= length, "cutting a tolerance made the text longer");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size)
{
    if (size < c_headSize)
        return 0;
    Head head;
    std::memcpy(&head, data, sizeof head);
    const std::wstring text = textOf(data + c_headSize, size - c_headSize);

    const bool ownFactor = head.format >= 0xE0;
    CKxUnit unit(head.family % 24, head.range % 13, head.precision, static_cast<wchar_t>(head.separator),
                 ownFactor ? head.value : 1.0, ownFactor ? 0 : 1);
    unit.SetPrecision(head.precision % 15);
    unit.SetUnitFormat(static_cast<enumUNITFORMAT>(head.format % 4));
    const Printing how{head.symbolAndZeros & 1, head.symbolAndZeros & 2, head.longest};

    printReadPrint(unit, readFinite(unit, text), how, 1);
    printReadPrint(unit, head.value, how, head.symbolAndZeros & 4);
    cutMarks(head.family, text);

    double inches = 0.0;
    CKxImperialLength::ImperialStr2Inches(text.c_str(), static_cast<enumIMPERIAL_LENGTH_TYPE>(head.range % 8), inches);
    require(std::isfinite(inches), "inches are not finite");

    // The same text over and over: a reader that is not linear would not come back.
    if (head.repeat == 0xA5 && !text.empty())
    {
        std::wstring longText;
        while (longText.size() < c_longText)
            longText += text;
        readFinite(unit, longText);
        cutMarks(head.family, longText);
    }
    return 0;
}
