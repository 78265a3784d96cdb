// How two rows compare by the texts of one column, and how a list of rows is put in that order.
#include "RowComparison.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "StableSort.h"
#include "kitrel/KxImperialLength.h"

namespace treelist
{

namespace
{

constexpr std::wstring_view digits = L"0123456789";

/// The number of a run of digits; no digits are 0.
int NumberOf(std::wstring_view text)
{
    constexpr int largest = std::numeric_limits<int>::max();
    int number = 0;
    for (const wchar_t character : text)
    {
        if (character < L'0' || character > L'9')
            break;
        const int digit = static_cast<int>(character - L'0');
        if (number > (largest - digit) / 10)
            return largest;
        number = number * 10 + digit;
    }
    return number;
}

/// A character as a number, A to Z as a to z.
std::int64_t Folded(wchar_t character)
{
    const auto code = static_cast<std::int64_t>(character);
    return code >= 'A' && code <= 'Z' ? code + ('a' - 'A') : code;
}

int HeldInInt(std::int64_t value)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

/// The tolerance depends on `y` alone.
int CompareLengths(double x, double y)
{
    const double tolerance = 1e-10 + 1e-10 * std::fabs(y);
    if (x > y + tolerance)
        return 1;
    return y - tolerance > x ? -1 : 0;
}

/// As texts with a number in them.
int CompareTexts(const SortKey& a, const SortKey& b)
{
    const bool byNumber = (a.hasDigits || b.hasDigits) && a.number != b.number && a.prefixLength == b.prefixLength &&
                          a.text.substr(0, a.prefixLength) == b.text.substr(0, b.prefixLength);
    if (byNumber)
        return a.number > b.number ? 1 : -1;
    return RowComparison::CompareBlindToCase(a.text, b.text);
}

} // namespace

SortKey RowComparison::KeyOf(std::wstring_view text)
{
    SortKey key;
    key.text = text;
    const std::size_t digit = text.find_first_of(digits);
    key.hasDigits = digit != std::wstring_view::npos;
    key.prefixLength = key.hasDigits ? digit : text.size();
    key.number = NumberOf(text.substr(key.prefixLength));
    const CString terminated(text.data(), HeldInInt(static_cast<std::int64_t>(text.size())));
    key.isLength = CKxImperialLength::ImperialStr2Inches(terminated, IMPERIAL_LENGTH_ANY, key.inches);
    return key;
}

int RowComparison::Compare(const SortKey& a, const SortKey& b, bool ascending)
{
    const int result = a.isLength && b.isLength ? CompareLengths(a.inches, b.inches) : CompareTexts(a, b);
    // Only exactly 1 and -1 are turned around, on purpose: a larger difference of characters passes as it is.
    return !ascending && (result == 1 || result == -1) ? -result : result;
}

int RowComparison::CompareBlindToCase(std::wstring_view a, std::wstring_view b)
{
    const std::size_t shared = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < shared; ++i)
    {
        const std::int64_t difference = Folded(a[i]) - Folded(b[i]);
        if (difference != 0)
            return HeldInInt(difference);
    }
    if (a.size() == b.size())
        return 0;
    return HeldInInt(a.size() > shared ? Folded(a[shared]) : -Folded(b[shared]));
}

std::vector<std::uint32_t> RowComparison::Order(const std::vector<SortKey>& keys, bool ascending)
{
    std::vector<std::uint32_t> order(keys.size());
    std::iota(order.begin(), order.end(), 0U);
    StableSort(order, c_nLongestInsertion,
               [&](std::uint32_t a, std::uint32_t b) { return Compare(keys[a], keys[b], ascending); });
    return order;
}

} // namespace treelist
