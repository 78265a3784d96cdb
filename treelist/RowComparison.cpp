// How two rows compare by the texts of one column, and how a list of rows is put in that order.
#include "RowComparison.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <unordered_map>

#include "StableSort.h"
#include "kitrel/KxImperialLength.h"

namespace treelist
{

namespace
{

constexpr bool IsDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

/// The number of a run of digits; no digits are 0.
int NumberOf(std::wstring_view text)
{
    constexpr int largest = std::numeric_limits<int>::max();
    int number = 0;
    for (const wchar_t character : text)
    {
        if (!IsDigit(character))
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

/// Turns exactly 1 and -1 around, on purpose: a larger difference of characters passes as it is.
int Directed(int result, bool ascending)
{
    return !ascending && (result == 1 || result == -1) ? -result : result;
}

/// Whether no text that starts like this one can be a length: a number stands first there, behind blanks and a sign.
bool StartsLikeNoLength(std::wstring_view text)
{
    const std::int64_t first = text.empty() ? 'a' : Folded(text.front());
    return first >= 'a' && first <= 'z';
}

/// What most comparisons of a sort need, side by side: the key's text is far away in memory.
struct SortItem
{
    enum : int
    {
        startLength = 8,
        laneBits = 8,
        largestLane = 0xFF
    };

    std::uint64_t word = 0;   ///< of a length its inches; else the start of the text, folded, a lane a character
    std::uint64_t next = 0;   ///< what follows on the start, in the same way
    std::uint32_t place = 0;  ///< of the key
    std::uint32_t prefix = 0; ///< the same number for the same prefix
    int number = 0;
    bool isLength = false;
    bool hasDigits = false;
    bool hasStart = false; ///< the words hold a start, of which no character was too large for its lane, or 0
};

/// The characters from `begin` on; those behind the end are 0.
std::uint64_t TakeLanes(SortItem& item, std::wstring_view text, std::size_t begin)
{
    std::uint64_t word = 0;
    for (std::size_t i = begin; i < begin + SortItem::startLength; ++i)
    {
        word <<= SortItem::laneBits;
        if (i >= text.size())
            continue;
        const std::int64_t folded = Folded(text[i]);
        item.hasStart = item.hasStart && folded > 0 && folded <= SortItem::largestLane;
        word |= static_cast<std::uint64_t>(folded) & SortItem::largestLane;
    }
    return word;
}

void TakeStart(SortItem& item, std::wstring_view text)
{
    item.hasStart = true;
    item.word = TakeLanes(item, text, 0);
    item.next = TakeLanes(item, text, SortItem::startLength);
}

std::vector<SortItem> ItemsOf(const std::vector<SortKey>& keys)
{
    std::unordered_map<std::wstring_view, std::uint32_t> prefixes;
    std::vector<SortItem> items(keys.size());
    for (std::uint32_t place = 0; place < keys.size(); ++place)
    {
        const SortKey& key = keys[place];
        SortItem& item = items[place];
        item.place = place;
        item.number = key.number;
        item.isLength = key.isLength;
        item.hasDigits = key.hasDigits;
        item.prefix = prefixes.try_emplace(key.text.substr(0, key.prefixLength), place).first->second;
        if (key.isLength)
            item.word = std::bit_cast<std::uint64_t>(key.inches);
        else
            TakeStart(item, key.text);
    }
    return items;
}

/// The difference of the first lanes that differ.
int CompareStarts(std::uint64_t a, std::uint64_t b)
{
    constexpr int lane = SortItem::laneBits;
    const int shift = (63 - std::countl_zero(a ^ b)) / lane * lane;
    return static_cast<int>((a >> shift) & SortItem::largestLane) -
           static_cast<int>((b >> shift) & SortItem::largestLane);
}

/// The answer of `RowComparison::Compare`, from the texts only where the items do not tell it.
int CompareItems(const SortItem& a, const SortItem& b, const std::vector<SortKey>& keys)
{
    if (a.isLength && b.isLength)
        return CompareLengths(std::bit_cast<double>(a.word), std::bit_cast<double>(b.word));
    if (a.prefix == b.prefix && a.number != b.number && (a.hasDigits || b.hasDigits))
        return a.number > b.number ? 1 : -1;
    if (a.hasStart && b.hasStart)
    {
        if (a.word != b.word)
            return CompareStarts(a.word, b.word);
        if (a.next != b.next)
            return CompareStarts(a.next, b.next);
        if ((a.next & SortItem::largestLane) == 0)
            return 0; // both end here
    }
    return RowComparison::CompareBlindToCase(keys[a.place].text, keys[b.place].text);
}

} // namespace

SortKey RowComparison::KeyOf(std::wstring_view text)
{
    SortKey key;
    key.text = text;
    key.prefixLength = static_cast<std::size_t>(std::find_if(text.begin(), text.end(), IsDigit) - text.begin());
    key.hasDigits = key.prefixLength < text.size();
    key.number = NumberOf(text.substr(key.prefixLength));
    if (StartsLikeNoLength(text))
        return key;
    const CString terminated(text.data(), HeldInInt(static_cast<std::int64_t>(text.size())));
    key.isLength = CKxImperialLength::ImperialStr2Inches(terminated, IMPERIAL_LENGTH_ANY, key.inches);
    return key;
}

int RowComparison::Compare(const SortKey& a, const SortKey& b, bool ascending)
{
    const int result = a.isLength && b.isLength ? CompareLengths(a.inches, b.inches) : CompareTexts(a, b);
    return Directed(result, ascending);
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
    std::vector<SortItem> items = ItemsOf(keys);
    StableSort(items, c_nLongestInsertion,
               [&](const SortItem& a, const SortItem& b) { return Directed(CompareItems(a, b, keys), ascending); });
    std::vector<std::uint32_t> order;
    order.reserve(items.size());
    for (const SortItem& item : items)
        order.push_back(item.place);
    return order;
}

} // namespace treelist
