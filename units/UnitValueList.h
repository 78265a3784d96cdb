// The values of the unit combo box over any list of texts: SI values in step with the items, commit, the one typed item.
#pragma once

#include <afx.h>

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "kitrel/KxUnit.h"
#include "UnitText.h"

namespace unitvalues
{

/// What the values ask of a list. Indices count from 0; a negative answer is a failure or "none".
template <typename List>
concept ListReader = requires(const List& list, int index, const wchar_t* text)
{
    {
        list.GetCount()
        } -> std::same_as<int>;
    {
        list.GetCurSel()
        } -> std::same_as<int>;
    {
        list.FindStringExact(index, text)
        } -> std::same_as<int>; // begins behind `index` and comes to it last; blind to case
    {
        list.GetEditText()
        } -> std::same_as<CString>;
    {
        list.GetItemText(index)
        } -> std::same_as<CString>;
};

template <typename List>
concept ListBox = ListReader<List> && requires(List& list, int index, unsigned int position, const wchar_t* text)
{
    {
        list.AddString(text)
        } -> std::same_as<int>;
    {
        list.InsertString(index, text)
        } -> std::same_as<int>; // -1 is the end
    {
        list.DeleteString(position)
        } -> std::same_as<int>;
    list.ResetContent();
    list.SetCurSel(index);
    // Tells the parent that a valid text is being committed; false when the control did not survive that.
    {
        list.TellValidated()
        } -> std::same_as<bool>;
};

/// The data of the control that the values work on.
struct Fields
{
    CKxUnit*& unit;
    bool& variant;
    std::vector<double>& values;
    std::vector<bool>& permanent;
    int& editChanged;
};

/// The no-value constant: the digits of the largest double, with the exponent cut to 150.
inline constexpr double noValue = std::bit_cast<double>(std::uint64_t{0xDF2192E9EE706E4A});

/// What the list answers when it fails.
inline constexpr int listError = -1;

inline bool IsIndexBelow(int index, std::size_t size)
{
    return index >= 0 && static_cast<std::size_t>(index) < size;
}

template <ListReader List> int ValueAt(const List& list, const std::vector<double>& values, int index, double& value)
{
    if (index < 0 || index >= list.GetCount() || !IsIndexBelow(index, values.size()))
        return 0;
    value = values[static_cast<std::size_t>(index)];
    return 1;
}

template <ListReader List> double SelectedValue(const List& list, const std::vector<double>& values)
{
    const int selected = list.GetCurSel();
    return IsIndexBelow(selected, values.size()) ? values[static_cast<std::size_t>(selected)] : noValue;
}

template <ListReader List> int FindValue(const List& list, const CKxUnit* unit, double value, int& index)
{
    // Start index 0 is meant: the search begins at item 1, and item 0 comes last.
    index = unit == nullptr ? listError : list.FindStringExact(0, UnitText::Canonical(*unit, value));
    return index >= 0 ? 1 : 0;
}

template <ListBox List> void AddValue(List& list, const Fields& fields, double value)
{
    if (fields.unit == nullptr)
        return;
    if (list.AddString(UnitText::Canonical(*fields.unit, value)) != listError)
    {
        fields.values.push_back(value);
        fields.permanent.push_back(true);
    }
}

template <ListBox List> int AddText(List& list, const Fields& fields, const wchar_t* text)
{
    if (fields.unit == nullptr)
        return listError;
    const wchar_t* const shown = text == nullptr ? L"" : text;
    const int index = list.AddString(shown);
    if (index >= 0)
    {
        fields.values.push_back(UnitText::Read(*fields.unit, shown));
        fields.permanent.push_back(true);
    }
    return index;
}

template <ListBox List> int InsertText(List& list, const Fields& fields, int index, const wchar_t* text)
{
    if (fields.unit == nullptr)
        return listError;
    const wchar_t* const shown = text == nullptr ? L"" : text;
    const int inserted = list.InsertString(index, shown);
    // -1 asks the list for the end: the values follow it there.
    const int position = index < 0 ? inserted : index;
    if (inserted >= 0 && static_cast<std::size_t>(position) <= fields.values.size())
    {
        fields.values.insert(fields.values.begin() + position, UnitText::Read(*fields.unit, shown));
        fields.permanent.insert(fields.permanent.begin() + position, true);
    }
    return inserted;
}

template <ListBox List> int Delete(List& list, const Fields& fields, unsigned int index)
{
    const int left = list.DeleteString(index);
    if (left >= 0 && index < fields.values.size())
    {
        const auto offset = static_cast<std::ptrdiff_t>(index);
        fields.values.erase(fields.values.begin() + offset);
        fields.permanent.erase(fields.permanent.begin() + offset);
    }
    return left;
}

template <ListBox List> void Reset(List& list, const Fields& fields)
{
    list.ResetContent();
    fields.values.clear();
    fields.permanent.clear();
}

/// Finds the canonical text, or adds it as the typed item. Answers its index; negative when the list refused it.
template <ListBox List> int FindOrAddTyped(List& list, const Fields& fields, double value)
{
    int index = listError;
    if (FindValue(list, fields.unit, value, index) != 0)
    {
        // A permanent item keeps its text and its flag, and takes the fresh value.
        if (IsIndexBelow(index, fields.values.size()))
            fields.values[static_cast<std::size_t>(index)] = value;
        return index;
    }
    index = AddText(list, fields, UnitText::Canonical(*fields.unit, value));
    if (IsIndexBelow(index, fields.permanent.size()))
        fields.permanent[static_cast<std::size_t>(index)] = false;
    return index;
}

/// Removes every typed item but the selected one.
template <ListBox List> void SweepTyped(List& list, const Fields& fields, int selected)
{
    for (int i = 0; i < list.GetCount(); ++i)
    {
        const bool typed = IsIndexBelow(i, fields.permanent.size()) && !fields.permanent[static_cast<std::size_t>(i)];
        if (!typed || i == selected || Delete(list, fields, static_cast<unsigned int>(i)) < 0)
            continue;
        if (selected > i)
            --selected;
        --i;
    }
}

/// Commits the edit field.
template <ListBox List> void Commit(List& list, const Fields& fields)
{
    if (fields.unit == nullptr)
        return;
    fields.editChanged = 0;
    CString text = list.GetEditText();
    if (UnitText::MayBeNumber(text))
    {
        fields.variant = false;
        // The parent hears of it before the list changes, and may end the control or take its values away meanwhile.
        if (!list.TellValidated() || fields.unit == nullptr)
            return;
    }
    else
    {
        text.Empty(); // silently: the value of the empty text takes its place
    }
    const int selected = FindOrAddTyped(list, fields, UnitText::Read(*fields.unit, text));
    list.SetCurSel(selected < 0 ? listError : selected); // a refused item clears the selection
    SweepTyped(list, fields, selected);
}

/// The user confirmed an item: from now on its value is what its text says, and a pending edit is dropped.
template <ListReader List> void TakeSelection(const List& list, const Fields& fields)
{
    fields.editChanged = 0;
    const int selected = list.GetCurSel();
    if (fields.unit != nullptr && IsIndexBelow(selected, fields.values.size()))
        fields.values[static_cast<std::size_t>(selected)] = UnitText::Read(*fields.unit, list.GetItemText(selected));
}

} // namespace unitvalues
