// What the smart combo box asks of the combo box in it and of the window around it.
#pragma once

#include <afx.h>

#include <concepts>
#include <string>
#include "kitrel/KxUnit.h"

namespace smartcombo
{

/// The combo box. Indices count from 0; a negative answer is a failure or "none".
template <typename Combo>
concept ComboBox = requires(Combo& combo, const Combo& reader, int index, unsigned int position, const wchar_t* text)
{
    {
        combo.AddString(text)
        } -> std::same_as<int>;
    {
        reader.KeepsSorted()
        } -> std::same_as<bool>; // whether AddString puts an item where the order of the search keys sends it
    {
        combo.AppendString(text)
        } -> std::same_as<int>; // at the end, whatever the order
    combo.SetRedraw(true);      // between false and true nothing of the list is painted
    {
        combo.DeleteString(position)
        } -> std::same_as<int>;
    combo.ResetContent();
    {
        combo.SetCurSel(index)
        } -> std::same_as<int>;
    {
        reader.GetCurSel()
        } -> std::same_as<int>;
    {
        reader.GetItemText(index)
        } -> std::same_as<CString>;
    // Both searches begin behind `index`, wrap to the top, and are blind to case; neither ever finds the empty text.
    {
        reader.FindString(index, text)
        } -> std::same_as<int>; // an item that begins with the text
    {
        reader.FindStringExact(index, text)
        } -> std::same_as<int>;
    // Equal for two texts when the exact search takes one for the other; empty for a text that it never finds. A sorted
    // combo box has its items in the order of their keys.
    {
        reader.SearchKey(text)
        } -> std::same_as<std::wstring>;
    {
        reader.GetEditText()
        } -> std::same_as<CString>;
    combo.SetEditText(text);
    combo.SetEditSel(index, index); // first character, and the one behind the last; -1 as first takes the mark off
};

/// The window around the combo box, with the parent behind it. Whoever is told, asked or given the focus may end the
/// control meanwhile: an operation that answers bool says whether the control survived.
template <typename Owner>
concept Window = requires(Owner& owner, UINT message, LPARAM index, int number, unsigned int prompt)
{
    {
        owner.Tell(message)
        } -> std::same_as<bool>; // a message to the parent, without arguments
    {
        owner.TellButton(index)
        } -> std::same_as<bool>; // WM_KX_SMART_BUTTONSEL with the index of the button
    {
        owner.ButtonHasChange(number)
        } -> std::same_as<bool>; // the virtual operation
    {
        owner.GetUnit()
        } -> std::same_as<CKxUnit*>; // the virtual operation; null: none
    {
        owner.IsThere()
        } -> std::same_as<bool>; // whether the control survived the virtual operation before
    {
        owner.ShowMessage(prompt, prompt)
        } -> std::same_as<bool>; // a message box: text and title, prompts of the library
    {
        owner.Ask(prompt, prompt, number)
        } -> std::same_as<bool>; // a question; `number` becomes 1 for yes and 0 for no
    {
        owner.FocusCombo()
        } -> std::same_as<bool>;
    owner.ReleaseAddButton();    // takes the default look off "+"
    owner.ReleaseDeleteButton(); // the same for "-"
    owner.EmptyTitle();          // the text of the control's own window
    owner.SelectButton(number);  // the picker shows the button and is painted anew
};

/// Prompts of the library.
inline constexpr unsigned int additionTitle = 22008;
inline constexpr unsigned int deletionTitle = 22009;
inline constexpr unsigned int deletionQuestion = 22010;
inline constexpr unsigned int refusal = 22011;

/// What the combo box answers when there is no such item.
inline constexpr int none = -1;

} // namespace smartcombo
