// A real combo box as the smart combo box's logic sees it.
#pragma once

#include <afxwin.h>

#include <string>
#include "SmartComboConcept.h"

/// A combo box without window answers as one that fails and has no text.
class SmartComboAccess
{
public:
    explicit SmartComboAccess(CComboBox& combo) : m_combo(combo) {}

    int AddString(const wchar_t* text) { return HasWindow() ? m_combo.AddString(text) : smartcombo::none; }
    int AppendString(const wchar_t* text) { return HasWindow() ? m_combo.InsertString(-1, text) : smartcombo::none; }
    bool KeepsSorted() const { return HasWindow() && (m_combo.GetStyle() & CBS_SORT) != 0; }
    void SetRedraw(bool redraw)
    {
        if (HasWindow())
            m_combo.SetRedraw(redraw ? TRUE : FALSE);
    }
    int DeleteString(unsigned int position) { return HasWindow() ? m_combo.DeleteString(position) : smartcombo::none; }
    void ResetContent()
    {
        if (HasWindow())
            m_combo.ResetContent();
    }
    int SetCurSel(int index) { return HasWindow() ? m_combo.SetCurSel(index) : smartcombo::none; }
    int GetCurSel() const { return HasWindow() ? m_combo.GetCurSel() : smartcombo::none; }
    CString GetItemText(int index) const
    {
        CString text;
        if (HasWindow())
            m_combo.GetLBText(index, text);
        return text;
    }
    int FindString(int index, const wchar_t* text) const
    {
        return HasWindow() ? m_combo.FindString(index, text) : smartcombo::none;
    }
    int FindStringExact(int index, const wchar_t* text) const
    {
        return HasWindow() ? m_combo.FindStringExact(index, text) : smartcombo::none;
    }
    /// The platform's sort key, by the locale in which the combo box compares.
    std::wstring SearchKey(const wchar_t* text) const
    {
        constexpr DWORD rules = LCMAP_SORTKEY | NORM_IGNORECASE;
        if (*text == L'\0')
            return {};
        const LCID locale = HasWindow() ? m_combo.GetLocale() : LOCALE_USER_DEFAULT;
        std::string bytes(shortKey, '\0');
        int size = ::LCMapStringW(locale, rules, text, -1, reinterpret_cast<wchar_t*>(bytes.data()), shortKey);
        if (size == 0)
        {
            size = ::LCMapStringW(locale, rules, text, -1, nullptr, 0);
            bytes.resize(static_cast<std::size_t>(size < 0 ? 0 : size));
            size = ::LCMapStringW(locale, rules, text, -1, reinterpret_cast<wchar_t*>(bytes.data()), size);
        }
        if (size <= 0)
            return text; // no key: equal to itself alone
        return {bytes.begin(), bytes.begin() + size};
    }

    CString GetEditText() const
    {
        CString text;
        if (HasWindow())
            m_combo.GetWindowText(text);
        return text;
    }
    void SetEditText(const wchar_t* text)
    {
        if (HasWindow())
            m_combo.SetWindowText(text);
    }
    /// A place that the message has no room for stands for the end of the text.
    void SetEditSel(int first, int end)
    {
        if (HasWindow())
            m_combo.SetEditSel(first > lastPlace ? lastPlace : first, end > lastPlace ? -1 : end);
    }

private:
    enum : int
    {
        shortKey = 256,    ///< bytes; enough for most texts
        lastPlace = 0x7FFF ///< the message carries two places of 16 bits
    };

    bool HasWindow() const { return m_combo.m_hWnd != nullptr; }

    CComboBox& m_combo;
};

static_assert(smartcombo::ComboBox<SmartComboAccess>);
