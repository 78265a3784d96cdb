// The order of remembered values: where a value goes in a list of texts, and how a whole list is sorted.
#include "RememberedValues.h"

#include <algorithm>
#include <cwchar>
#include <numeric>
#include <utility>
#include <kx/CaseFold.h>

namespace
{
bool isBelowWithoutCase(const CString& a, const CString& b)
{
    return a.CompareNoCase(b) < 0;
}

/// A value with the form in which it is compared without regard to case.
struct Folded
{
    explicit Folded(CString&& text) : key(text.GetString()), value(std::move(text))
    {
        for (wchar_t& ch : key)
            ch = kx::foldLower(ch);
    }

    std::wstring key;
    CString value;
};

void sortWithoutCase(std::vector<CString>& values)
{
    std::vector<Folded> folded;
    folded.reserve(values.size());
    for (CString& value : values)
        folded.emplace_back(std::move(value));
    std::stable_sort(folded.begin(), folded.end(), [](const Folded& a, const Folded& b) { return a.key < b.key; });
    std::transform(folded.begin(), folded.end(), values.begin(), [](Folded& one) { return std::move(one.value); });
}

void append(CStringList& list, const std::vector<CString>& values)
{
    for (const CString& value : values)
        list.AddTail(value);
}
} // namespace

void RememberedValues::Insert(CStringList& list, const CString& value, bool sorted)
{
    POSITION place = sorted ? list.GetHeadPosition() : nullptr;
    while (place != nullptr && !isBelowWithoutCase(value, list.GetAt(place)))
        list.GetNext(place);
    if (place != nullptr)
        list.InsertBefore(place, value);
    else
        list.AddTail(value);
}

// One step along the list per round: the walk goes one way only, as the order of the list sends it.
void RememberedValues::InsertElement(POSITION position, CStringList& list, const CString& value)
{
    for (;;)
    {
        const int order = value.Compare(list.GetAt(position));
        if (order == 0)
            return;
        POSITION neighbour = position;
        if (order > 0)
            list.GetNext(neighbour);
        else
            list.GetPrev(neighbour);
        const int beyond = neighbour == nullptr ? -order : value.Compare(list.GetAt(neighbour));
        if (order > 0 && beyond < 0)
        {
            list.InsertAfter(position, value);
            return;
        }
        if (order < 0 && beyond > 0)
        {
            list.InsertBefore(position, value);
            return;
        }
        position = neighbour;
    }
}

// Values that come in order go in at the tail, at which the search for each begins.
void RememberedValues::Sort(const CStringList& values, CStringList& sorted)
{
    std::vector<CString> texts = Copy(values);
    std::stable_sort(texts.begin(), texts.end(), [](const CString& a, const CString& b) { return a.Compare(b) < 0; });
    sorted.RemoveAll();
    for (const CString& text : texts)
    {
        if (sorted.IsEmpty())
            sorted.AddTail(text);
        else
            InsertElement(sorted.GetTailPosition(), sorted, text);
    }
}

// A value goes behind the items that it equals without regard to case, so the order is that of a stable sort.
void RememberedValues::Fill(CStringList& list, std::vector<CString> values, bool sorted)
{
    if (sorted)
        sortWithoutCase(values);
    list.RemoveAll();
    append(list, values);
}

std::vector<std::size_t> RememberedValues::Order(const std::vector<std::wstring>& keys)
{
    std::vector<std::size_t> order(keys.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&keys](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    return order;
}

std::vector<std::size_t> RememberedValues::FirstEqual(const std::vector<std::wstring>& keys,
                                                      const std::vector<std::size_t>& order)
{
    std::vector<std::size_t> first(keys.size());
    std::size_t head = 0;
    for (std::size_t i = 0; i < order.size(); ++i)
    {
        if (keys[order[head]] != keys[order[i]])
            head = i;
        first[order[i]] = order[head];
    }
    return first;
}

std::vector<CString> RememberedValues::Copy(const CStringList& list)
{
    std::vector<CString> texts;
    texts.reserve(static_cast<std::size_t>(list.GetCount()));
    for (POSITION place = list.GetHeadPosition(); place != nullptr;)
        texts.push_back(list.GetNext(place));
    return texts;
}

void RememberedValues::Assign(CStringList& target, const CStringList& source)
{
    Fill(target, Copy(source), false);
}

void RememberedValues::Append(CStringList& target, const CStringList& source)
{
    append(target, Copy(source));
}
