// The values of a smart combo box and the format that it is under, over any combo box.
#pragma once

#include <cstddef>
#include <numeric>
#include <string>
#include <utility>
#include <vector>
#include "RememberedValues.h"
#include "SmartComboConcept.h"
#include "oxa/formats/KxSemantic.h"
#include "oxa/formats/SmartComboData.h"

/// Values go into the combo box and into the control's own list; a difference between the two is not repaired.
template <smartcombo::ComboBox Combo> class SmartComboValues
{
public:
    SmartComboValues(SmartComboData& data, Combo& combo) : m_data(data), m_combo(combo) {}

    // ---- The format

    /// Throws CInvalidArgException when the format has no element, as the empty one; the elements are gone then.
    void SetFormat(CString format)
    {
        m_data.formatText = std::move(format);
        ResetSelectText();
    }
    void SetFormatEmpty()
    {
        m_data.formatText.Empty();
        m_combo.SetEditText(L"");
    }
    void ResetSelectText()
    {
        CreateFormat();
        ShowFormat();
    }
    void GetFeatureFormat(CString& separator, CList<int, int>& values)
    {
        CKxSemantic semantic;
        CString formatText = m_data.formatText;
        semantic.CheckSyntax(formatText);
        semantic.GetFeatureFormat(m_data.format, separator, values);
    }
    void SetListFilterString(const CStringList& filters)
    {
        const std::vector<CString> copy = RememberedValues::Copy(filters);
        RememberedValues::Fill(m_data.filterList, copy, false);
        RememberedValues::Fill(m_data.formatList, copy, false);
    }
    void GetListFilterString(CStringList& filters) const { RememberedValues::Append(filters, m_data.filterList); }

    // ---- Values

    void AddStringCombo(const CString& value)
    {
        if (m_combo.FindStringExact(smartcombo::none, value) != smartcombo::none)
            return;
        m_combo.AddString(value);
        RememberedValues::Insert(m_data.list, value, m_data.sort != 0);
    }
    void DeleteStringCombo(unsigned int index)
    {
        const CString text = m_combo.GetItemText(static_cast<int>(index));
        if (m_combo.DeleteString(index) >= 0)
            Forget(text);
    }
    /// The case of the text counts for the list, and not for the combo box: kept on purpose.
    void DeleteStringCombo(const CString& text)
    {
        const int index = Find(text, true);
        if (index == smartcombo::none)
            return;
        m_combo.DeleteString(static_cast<unsigned int>(index));
        Forget(text);
    }
    void ResetContent()
    {
        m_combo.ResetContent();
        m_data.list.RemoveAll();
    }
    void SetStringCombo(const CStringList& values)
    {
        std::vector<CString> copy = RememberedValues::Copy(values);
        ResetContent();
        AddAll(std::move(copy));
        if (!m_data.formatText.IsEmpty())
            CreateFormat();
        ShowFormat();
    }
    void SortCombo()
    {
        const bool selected = m_combo.GetCurSel() != smartcombo::none;
        const CString kept = selected ? m_combo.GetEditText() : CString();
        CStringList sorted;
        RememberedValues::Sort(m_data.list, sorted);
        SetStringCombo(sorted);
        if (selected)
            SetCurSel(kept);
    }

    // ---- Selection and text

    int GetCurSel() const { return m_combo.GetCurSel(); }
    int SetCurSel(const CString& text)
    {
        const int index = Find(text, true);
        if (index == smartcombo::none)
            return smartcombo::none;
        m_combo.SetCurSel(index);
        return 0;
    }
    void GetSelectText(CString& text) const
    {
        text = m_combo.GetEditText();
        text.TrimRight(L' ');
    }
    void SetSelectText(const CString& text) { m_combo.SetEditText(text); }
    void ClearControl()
    {
        m_data.formatText.Empty();
        m_combo.SetCurSel(smartcombo::none);
        m_data.visibility = 0;
    }

protected:
    void CreateFormat()
    {
        CKxSemantic semantic;
        CString formatText = m_data.formatText;
        semantic.CheckSyntax(formatText); // a bad format goes on with the nodes that it has
        m_data.format.DeleteFormat();
        semantic.CreateListFormat(m_data.format);
        m_data.format.SetModified(0);
    }
    void ShowFormat() { m_combo.SetEditText(m_data.format.CreateEditFormat()); }

    int Find(const CString& text, bool whole = false) const
    {
        return whole ? m_combo.FindStringExact(smartcombo::none, text) : m_combo.FindString(smartcombo::none, text);
    }
    static CString Unmasked(const CString& text) { return CKxSemantic().GetStringUnMasked(text); }

    SmartComboData& m_data;
    Combo& m_combo;

private:
    void Forget(const CString& text)
    {
        if (const POSITION place = m_data.list.Find(text))
            m_data.list.RemoveAt(place);
    }

    /// Nothing of the list is painted while there is one.
    class Unpainted
    {
    public:
        explicit Unpainted(Combo& combo) : m_combo(combo) { m_combo.SetRedraw(false); }
        ~Unpainted() { m_combo.SetRedraw(true); }
        Unpainted(const Unpainted&) = delete;
        Unpainted& operator=(const Unpainted&) = delete;

    private:
        Combo& m_combo;
    };

    std::vector<std::wstring> SearchKeys(const std::vector<CString>& values) const
    {
        std::vector<std::wstring> keys;
        keys.reserve(values.size());
        for (const CString& value : values)
            keys.push_back(m_combo.SearchKey(value));
        return keys;
    }

    // The same as AddStringCombo of each value into the empty control, without a search through the combo box for each. A
    // sorted combo box gets them in its order, each at the end: it would search and shift for those that come in disorder.
    void AddAll(std::vector<CString> values)
    {
        const std::vector<std::wstring> keys = SearchKeys(values);
        std::vector<std::size_t> order = RememberedValues::Order(keys);
        const std::vector<std::size_t> first = RememberedValues::FirstEqual(keys, order);
        if (!m_combo.KeepsSorted())
            std::iota(order.begin(), order.end(), std::size_t{0});
        std::vector<bool> present(values.size());
        std::vector<bool> added(values.size());
        {
            const Unpainted whileItGrows(m_combo);
            for (const std::size_t i : order)
            {
                added[i] = !present[first[i]];
                if (added[i])
                    present[first[i]] = m_combo.AppendString(values[i]) >= 0 && !keys[i].empty();
            }
        }
        std::size_t kept = 0;
        for (std::size_t i = 0; i < values.size(); ++i)
            if (added[i])
                std::swap(values[kept++], values[i]);
        values.resize(kept);
        RememberedValues::Fill(m_data.list, std::move(values), m_data.sort != 0);
    }
};
