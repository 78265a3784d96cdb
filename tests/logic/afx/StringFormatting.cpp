// CString::Format: a table of conversions, and format strings that make no sense.
#include <afx.h>

#include <climits>
#include <cmath>
#include <initializer_list>
#include <limits>

#include "Raises.h"

namespace
{

// Through FormatV, so that the compiler does not judge the odd format strings below.
CString formatted(LPCWSTR format, ...)
{
    CString text;
    va_list args;
    va_start(args, format);
    text.FormatV(format, args);
    va_end(args);
    return text;
}

struct Row
{
    CString formatted;
    const wchar_t* expected;
};

void check(std::initializer_list<Row> rows)
{
    for (const Row& row : rows)
        EXPECT_EQ(row.formatted, row.expected);
}

} // namespace

TEST(StringFormatting, plain_text_and_percent)
{
    check({
        {formatted(L"abc"), L"abc"},
        {formatted(L"100%%"), L"100%"},
        {formatted(L""), L""},
        {formatted(nullptr), L""},
    });
}

TEST(StringFormatting, signed_integers)
{
    check({
        {formatted(L"%d", 0), L"0"},
        {formatted(L"%d", -42), L"-42"},
        {formatted(L"%i", INT_MIN), L"-2147483648"},
        {formatted(L"%d", INT_MAX), L"2147483647"},
        {formatted(L"%+d", 5), L"+5"},
        {formatted(L"% d", 5), L" 5"},
        {formatted(L"%+d", -5), L"-5"},
    });
}

TEST(StringFormatting, width_and_flags)
{
    check({
        {formatted(L"[%5d]", 42), L"[   42]"},
        {formatted(L"[%-5d]", 42), L"[42   ]"},
        {formatted(L"[%05d]", 42), L"[00042]"},
        {formatted(L"[%05d]", -42), L"[-0042]"},
        {formatted(L"[%-05d]", 42), L"[42   ]"},
        {formatted(L"[%+05d]", 42), L"[+0042]"},
        {formatted(L"[%1d]", 4200), L"[4200]"},
        {formatted(L"[%*d]", 5, 42), L"[   42]"},
        {formatted(L"[%*d]", -5, 42), L"[42   ]"},
    });
}

TEST(StringFormatting, integer_precision)
{
    check({
        {formatted(L"%.3d", 7), L"007"},
        {formatted(L"[%6.3d]", 7), L"[   007]"},
        {formatted(L"[%06.3d]", 7), L"[   007]"}, // a precision switches the zeros off
        {formatted(L"[%.0d]", 0), L"[]"},
        {formatted(L"%.*d", 4, 7), L"0007"},
        {formatted(L"%.*d", -1, 7), L"7"},
    });
}

TEST(StringFormatting, unsigned_and_other_bases)
{
    check({
        {formatted(L"%u", 4294967295U), L"4294967295"},
        {formatted(L"%x %X %o", 255, 255, 8), L"ff FF 10"},
        {formatted(L"%#x %#X %#o", 255, 255, 8), L"0xff 0XFF 010"},
        {formatted(L"%#x", 0), L"0"},
        {formatted(L"%08x", 0xBEEF), L"0000beef"},
        {formatted(L"%#08x", 0xBEEF), L"0x00beef"},
        {formatted(L"%x", -1), L"ffffffff"},
    });
}

TEST(StringFormatting, size_prefixes)
{
    check({
        {formatted(L"%I64d", LLONG_MIN), L"-9223372036854775808"},
        {formatted(L"%lld", LLONG_MAX), L"9223372036854775807"},
        {formatted(L"%I64u", ULLONG_MAX), L"18446744073709551615"},
        {formatted(L"%I64x", 0x123456789ABCDEFULL), L"123456789abcdef"},
        {formatted(L"%zu", static_cast<std::size_t>(5000000000U)), L"5000000000"},
        {formatted(L"%Iu", static_cast<std::size_t>(5000000000U)), L"5000000000"},
        {formatted(L"%I32d", -3), L"-3"},
        {formatted(L"%hd", 65537), L"1"},
        {formatted(L"%hu", 65535), L"65535"},
        {formatted(L"%hhd", 257), L"1"},
    });
}

TEST(StringFormatting, a_long_has_32_bits)
{
    check({
        {formatted(L"%ld", static_cast<LONG>(-7)), L"-7"},
        {formatted(L"%lu", static_cast<DWORD>(4000000000U)), L"4000000000"},
        {formatted(L"%lX", static_cast<COLORREF>(0x00FF8000)), L"FF8000"},
    });
}

TEST(StringFormatting, wide_and_narrow_texts)
{
    check({
        {formatted(L"%s", L"wide"), L"wide"},
        {formatted(L"%S", "narrow"), L"narrow"},
        {formatted(L"%hs", "narrow"), L"narrow"},
        {formatted(L"%hS", "narrow"), L"narrow"},
        {formatted(L"%ls", L"wide"), L"wide"},
        {formatted(L"%lS", L"wide"), L"wide"},
        {formatted(L"%ws", L"wide"), L"wide"},
        {formatted(L"%s", static_cast<LPCWSTR>(nullptr)), L"(null)"},
        {formatted(L"%S", static_cast<LPCSTR>(nullptr)), L"(null)"},
    });
}

TEST(StringFormatting, text_width_and_precision)
{
    check({
        {formatted(L"[%6s]", L"ab"), L"[    ab]"},
        {formatted(L"[%-6s]", L"ab"), L"[ab    ]"},
        {formatted(L"[%.2s]", L"abcdef"), L"[ab]"},
        {formatted(L"[%5.2S]", "abcdef"), L"[   ab]"},
        {formatted(L"[%.*s]", 3, L"abcdef"), L"[abc]"},
        {formatted(L"[%.0s]", L"abc"), L"[]"},
    });
    const wchar_t unterminated[2] = {L'x', L'y'};
    EXPECT_EQ(formatted(L"%.2s", unterminated), L"xy");
}

TEST(StringFormatting, a_string_object_is_its_text)
{
    CString name(L"name");
    CString text;
    text.Format(L"<%s>", name.GetString());
    EXPECT_EQ(text, L"<name>");
}

TEST(StringFormatting, characters)
{
    EXPECT_EQ(formatted(L"%c%c", L'a', L'b'), L"ab");
    EXPECT_EQ(formatted(L"%C", 'a'), L"a");
    EXPECT_EQ(formatted(L"%hc", 0xE9), CString(static_cast<wchar_t>(0xE9)));
    EXPECT_EQ(formatted(L"[%3c]", L'x'), L"[  x]");
    EXPECT_EQ(formatted(L"[%-3c]", L'x'), L"[x  ]");
    EXPECT_EQ(formatted(L"a%cb", 0).GetLength(), 3);
}

TEST(StringFormatting, pointers_are_sixteen_digits)
{
    EXPECT_EQ(formatted(L"%p", reinterpret_cast<void*>(static_cast<std::uintptr_t>(0xABC))), L"0000000000000ABC");
    EXPECT_EQ(formatted(L"%p", nullptr), L"0000000000000000");
}

TEST(StringFormatting, fixed_point)
{
    check({
        {formatted(L"%f", 1.5), L"1.500000"},
        {formatted(L"%.2f", 3.14159), L"3.14"},
        {formatted(L"%.0f", 3.0), L"3"},
        {formatted(L"%#.0f", 3.0), L"3."},
        {formatted(L"%.3f", 0.00123), L"0.001"},
        {formatted(L"%.1f", 0.04), L"0.0"},
        {formatted(L"%.1f", 0.96), L"1.0"},
        {formatted(L"%.2f", 999.996), L"1000.00"},
        {formatted(L"[%8.2f]", -1.5), L"[   -1.50]"},
        {formatted(L"[%08.2f]", -1.5), L"[-0001.50]"},
        {formatted(L"%+.1f", 2.0), L"+2.0"},
        {formatted(L"%f", 0.0), L"0.000000"},
        {formatted(L"%.1f", -0.0), L"-0.0"},
        {formatted(L"%.0f", 1e22), L"10000000000000000000000"},
    });
}

TEST(StringFormatting, halves_go_away_from_zero)
{
    check({
        {formatted(L"%.0f", 0.5), L"1"},
        {formatted(L"%.0f", 1.5), L"2"},
        {formatted(L"%.0f", 2.5), L"3"},
        {formatted(L"%.0f", -2.5), L"-3"},
        {formatted(L"%.2f", 0.125), L"0.13"},
        {formatted(L"%.1e", 2.25), L"2.3e+000"},
        {formatted(L"%.2g", 0.125), L"0.13"},
        {formatted(L"%.2f", 1.005), L"1.00"}, // the nearest double lies below
    });
}

TEST(StringFormatting, exponents_have_three_digits)
{
    check({
        {formatted(L"%e", 12345.678), L"1.234568e+004"},
        {formatted(L"%.2E", 0.00012), L"1.20E-004"},
        {formatted(L"%.0e", 5.0), L"5e+000"},
        {formatted(L"%e", 0.0), L"0.000000e+000"},
        {formatted(L"%.1e", 9.96), L"1.0e+001"},
        {formatted(L"%.3e", 1e300), L"1.000e+300"},
    });
}

TEST(StringFormatting, general_notation)
{
    check({
        {formatted(L"%g", 100000.0), L"100000"},
        {formatted(L"%g", 1000000.0), L"1e+006"},
        {formatted(L"%g", 0.0001), L"0.0001"},
        {formatted(L"%g", 0.00001), L"1e-005"},
        {formatted(L"%g", 1.5), L"1.5"},
        {formatted(L"%g", 0.0), L"0"},
        {formatted(L"%#g", 1.5), L"1.50000"},
        {formatted(L"%.3g", 1234.5), L"1.23e+003"},
        {formatted(L"%.0g", 2.0), L"2"},
        {formatted(L"%G", 1e-10), L"1E-010"},
        {formatted(L"%.17g", 0.1), L"0.10000000000000001"},
        {formatted(L"%g", 999999.5), L"1e+006"},
    });
}

TEST(StringFormatting, infinity_and_not_a_number)
{
    const double infinity = std::numeric_limits<double>::infinity();
    check({
        {formatted(L"%f", infinity), L"1.#INF00"},
        {formatted(L"%f", -infinity), L"-1.#INF00"},
        {formatted(L"%g", infinity), L"1.#INF"},
        {formatted(L"%f", std::numeric_limits<double>::quiet_NaN()), L"1.#QNAN0"},
    });
}

TEST(StringFormatting, extreme_numbers)
{
    const CString largest = formatted(L"%.0f", std::numeric_limits<double>::max());
    EXPECT_EQ(largest.GetLength(), 309);
    EXPECT_EQ(largest.Left(17), L"17976931348623157");
    const CString smallest = formatted(L"%.1074f", std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(smallest.GetLength(), 1076);
    EXPECT_EQ(smallest.Right(1), L"5");
    EXPECT_EQ(formatted(L"%.3e", std::numeric_limits<double>::denorm_min()), L"4.941e-324");
}

TEST(StringFormatting, long_double_is_read_as_such)
{
    EXPECT_EQ(formatted(L"%.2Lf %d", 2.5L, 7), L"2.50 7");
}

TEST(StringFormatting, many_arguments_in_order)
{
    EXPECT_EQ(formatted(L"%d %s %.1f %c %S %I64d %d %.1f %s", 1, L"two", 3.0, L'4', "five", 6LL, 7, 8.0, L"nine"),
              L"1 two 3.0 4 five 6 7 8.0 nine");
}

TEST(StringFormatting, unknown_conversions_are_written_as_they_are)
{
    check({
        {formatted(L"%y"), L"y"},
        {formatted(L"a%"), L"a"},
        {formatted(L"a%-08.3"), L"a"},
        {formatted(L"%l"), L""},
        {formatted(L"%5%"), L"%"},
        {formatted(L"%1$d"), L"$d"},
        {formatted(L"% "), L""},
    });
}

TEST(StringFormatting, the_counting_conversion_writes_nowhere)
{
    int target = 7;
    EXPECT_EQ(formatted(L"ab%nc%d", &target, 3), L"abc3");
    EXPECT_EQ(target, 7);
}

TEST(StringFormatting, endless_widths_are_held)
{
    EXPECT_EQ(formatted(L"%999999999999999d", 1).GetLength(), 65535);
    EXPECT_EQ(formatted(L"%.2147483647d", 1).GetLength(), 65535);
    EXPECT_EQ(formatted(L"%*d", INT_MIN, 1).GetLength(), 65535);
    EXPECT_EQ(formatted(L"%.*f", INT_MAX, 1.0).GetLength(), 65537);
    EXPECT_EQ(formatted(L"%-999999s|", L"x").GetLength(), 65536);
}

TEST(StringFormatting, append_format_keeps_what_is_there)
{
    CString a(L"a=");
    a.AppendFormat(L"%d", 1);
    a.AppendFormat(L",%s", L"b");
    EXPECT_EQ(a, L"a=1,b");
    a.AppendFormat(L"");
    EXPECT_EQ(a, L"a=1,b");
}

#ifdef _WIN32
TEST(StringFormatting, agrees_with_the_system_formatting)
{
    wchar_t buffer[512];
    for (const wchar_t* format : {L"%f", L"%.0f", L"%.2f", L"%e", L"%.3e", L"%g", L"%.3g", L"%.10g", L"%12.4f",
                                  L"%-12.4e|", L"%+g", L"%#g", L"%08.2f"})
    {
        for (const double value :
             {0.0, 1.0, -1.5, 0.5, 2.5, 0.125, 1e-10, 123456.789, 999999.5, 1e15, 1e22, -0.0001, 3e-5})
        {
            _snwprintf(buffer, 512, format, value);
            EXPECT_EQ(formatted(format, value), buffer) << value;
        }
    }
    for (const wchar_t* format : {L"%d", L"%5d", L"%-5d|", L"%05d", L"%+d", L"%.3d", L"%x", L"%#x", L"%X", L"%o",
                                  L"%#o", L"%u", L"%08x", L"%hd", L"%ld", L"% d"})
    {
        for (const int value : {0, 1, -1, 42, 65537, 2147483647})
        {
            _snwprintf(buffer, 512, format, value);
            EXPECT_EQ(formatted(format, value), buffer) << value;
        }
    }
}
#endif
