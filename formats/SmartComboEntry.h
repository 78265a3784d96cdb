// What becomes of a typed text in a smart combo box: judged by the formats, added, refused, and what the parent hears.
#pragma once

#include "SmartComboValues.h"
#include "oxa/formats/SmartComboMessages.h"

/// An object of this class serves one call: once somebody has ended the control, it touches nothing any more.
template <smartcombo::ComboBox Combo, smartcombo::Window Owner> class SmartComboEntry : public SmartComboValues<Combo>
{
    using Values = SmartComboValues<Combo>;

public:
    SmartComboEntry(SmartComboData& data, Combo& combo, Owner& owner) : Values(data, combo), m_owner(owner) {}

    using Values::GetSelectText;
    using Values::SetCurSel;

    /// The new text of the field is judged by the formats, and so may join the list, also the empty one of index -1.
    int SetCurSel(int index)
    {
        const int result = m_combo.SetCurSel(index);
        ValidFreeFormat(m_combo.GetEditText(), 0);
        return result;
    }
    void GetSelectText(CString& text, bool& valid)
    {
        GetSelectText(text);
        text = Unmasked(text);
        valid = ValidFreeFormat(text, 0) != 0;
    }

    /// Answers true also for a text that fits no format: kept on purpose.
    bool getPatternAndValidate(CString& text)
    {
        bool valid = false;
        GetSelectText(text, valid);
        return true;
    }

    /// 1 when one of the formats of the list accepts the text, else 0. The text joins the values then, whatever `apply` is;
    /// with `apply` the control moves under that format.
    int ValidFreeFormat(const CString& text, int apply)
    {
        const CKxUnit* const unit = m_owner.GetUnit();
        m_alive = m_alive && m_owner.IsThere();
        if (!m_alive)
            return 0;
        CKxSemantic architectural;
        const bool isArchitectural = unit != nullptr && unit->GetType() != UNITTYPE_METRIC;
        if (isArchitectural)
            architectural.SetUseArchitecturalFormat(true, *unit);
        const auto count = static_cast<std::size_t>(m_data.formatList.GetCount());
        std::size_t index = 0;
        for (POSITION place = m_data.formatList.GetHeadPosition(); place != nullptr; ++index)
        {
            CString format = m_data.formatList.GetNext(place);
            if (isArchitectural)
                architectural.CheckSyntax(format); // a bad format goes on with the nodes that it has
            const CKxSemantic& semantic = isArchitectural ? architectural : m_data.readings.At(index, count, format);
            if (semantic.ValidAdd(text) != 0)
            {
                Accept(text, format, apply);
                return 1;
            }
        }
        return 0;
    }

    /// With `validate` the text of the field is added first.
    void GetStringCombo(CStringList& out, int& index, int validate, int message)
    {
        if (validate != 0)
            AddInListFormat(index, message);
        if (m_alive)
            RememberedValues::Assign(out, m_data.list);
    }

    void GetText(CString& text, int validate, int& valid, int& toggled)
    {
        text = Unmasked(m_combo.GetEditText());
        if (!m_data.formatText.IsEmpty())
        {
            valid = m_data.format.ValidAdd() == 1 ? 1 : 0;
            if (valid != 0)
                AddStringCombo(text);
            return;
        }
        toggled = toggled == 0 ? 1 : 0; // on every call, whatever the caller wants: kept on purpose
        if (validate != 0)
            valid = TakeFree(text);
    }

    /// Adds the text of the field, unless the elements of the format are partly filled only. Answers 0 for a text that was
    /// refused; `index` becomes that of the text in the combo box.
    int AddInListFormat(int& index, int message)
    {
        CString text;
        GetSelectText(text);
        const CString value = Unmasked(text);
        int result = 1;
        if (m_data.formatText.IsEmpty())
            AddFree(value, index);
        else if (m_data.format.ValidAdd() == 1)
            AddFormatted(value, index);
        else
        {
            index = Find(text); // with its placeholders
            result = IsRefused(index) ? 0 : 1;
            if (result == 0 && message != 0)
                ShowRefusal();
        }
        if (m_alive)
            m_alive = m_owner.FocusCombo();
        if (m_alive)
            m_owner.ReleaseAddButton();
        return result;
    }

    /// An item was picked. The field still holds the text that stood there before: with automatic adding it is added.
    void OnSelchangeCombo()
    {
        m_data.visibility = 1;
        if (m_data.autoAdd == 0 || !AddPending())
            Tell(WM_KX_SMART_SELCHANGE);
    }
    void OnSelchangeOkCombo()
    {
        m_data.visibility = 1;
        Tell(WM_KX_SMART_SELENDOK);
    }
    void OnEditUpdate()
    {
        m_data.visibility = 1;
        Tell(WM_KX_SMART_EDITUPDATE);
    }

    /// The picker shows the button of this format.
    void SetButtonSelection(const CString& format)
    {
        int index = 0;
        for (POSITION place = m_data.formatList.GetHeadPosition(); place != nullptr; ++index)
        {
            if (m_data.formatList.GetNext(place) == format)
            {
                m_owner.SelectButton(index);
                return;
            }
        }
    }

    using Values::AddStringCombo;
    using Values::SetFormat;
    using Values::SetFormatEmpty;
    using Values::SetSelectText;
    using Values::SortCombo;

protected:
    using Values::CreateFormat;
    using Values::Find;
    using Values::m_combo;
    using Values::m_data;
    using Values::Unmasked;

    void Tell(UINT message)
    {
        if (m_alive)
            m_alive = m_owner.Tell(message);
    }

    Owner& m_owner;
    bool m_alive = true; ///< false: the control is gone, with the data and the combo box

private:
    void Accept(const CString& text, const CString& format, int apply)
    {
        AddStringCombo(text);
        if (apply == 0)
            return;
        SetFormat(format);
        if (m_data.bitmapMode == BITMAPMODE_PICKER)
            SetButtonSelection(format);
    }

    int FitsList(const CString& text, int withoutList)
    {
        return m_data.formatList.IsEmpty() ? withoutList : ValidFreeFormat(text, 0);
    }

    int TakeFree(const CString& text)
    {
        if (ValidFreeFormat(text, 1) == 0)
            return 0;
        CString characters = text;
        m_data.format.SetString(characters);
        AddStringCombo(text);
        SetFormatEmpty();
        SetSelectText(text);
        return 1;
    }

    void AddSorted(const CString& value)
    {
        AddStringCombo(value);
        if (m_data.sort != 0)
            SortCombo();
    }

    void AddFree(const CString& value, int& index)
    {
        const int valid = FitsList(value, 1);
        if (!m_alive)
            return;
        index = Find(value);
        if (index == smartcombo::none && valid != 0)
            AddStringCombo(value);
        if (m_data.sort != 0)
            SortCombo(); // also when nothing was added
        index = Find(value);
        SetCurSel(index);
    }
    void AddFormatted(const CString& value, int& index)
    {
        AddSorted(value);
        index = Find(value);
        SetCurSel(index);
        if (m_alive)
            CreateFormat();
    }

    bool IsRefused(int found) const { return m_data.format.IsEmpty() == 0 && found == smartcombo::none; }
    void ShowRefusal() { m_alive = m_owner.ShowMessage(smartcombo::refusal, smartcombo::additionTitle); }

    // ---- Picking an item

    /// Answers whether the parent heard that the text is being added.
    bool AddPending()
    {
        const CString text = Unmasked(m_combo.GetEditText());
        const int selected = m_combo.GetCurSel();
        if (text.IsEmpty())
        {
            SetCurSel(selected);
            return false;
        }
        return m_data.formatText.IsEmpty() ? AddPendingFree(text, selected) : AddPendingFormatted(text, selected);
    }

    bool AddPendingFree(const CString& text, int selected)
    {
        const int valid = FitsList(text, 0);
        return m_alive && Find(text) == smartcombo::none && valid != 0 && (AddTold(text, selected), true);
    }

    bool AddPendingFormatted(const CString& text, int selected)
    {
        CKxSemantic semantic;
        CString formatText = m_data.formatText;
        semantic.CheckSyntax(formatText);
        const int found = Find(text);
        if (semantic.ValidAdd(text) == 0 || found != smartcombo::none)
        {
            ShowSelected(selected);
            return false;
        }
        AddTold(text, selected);
        if (!m_alive)
            return true;
        const CString shown = Unmasked(m_combo.GetEditText());
        ValidFreeFormat(shown, 1);
        if (!m_alive)
            return true;
        SetSelectText(shown);
        MarkFrom(shown);
        return true;
    }

    /// Tells the parent and adds; the item that was selected stays so.
    void AddTold(const CString& text, int selected)
    {
        Tell(WM_KX_SMART_ADDING);
        if (m_alive)
            m_alive = m_owner.ButtonHasChange(static_cast<int>(m_data.currentBitmap));
        if (!m_alive)
            return;
        AddSorted(text);
        SetCurSel(selected >= Find(text) ? selected + 1 : selected);
    }

    /// Nothing is added: the picked item is shown, and refused when the elements of the format hold something else.
    void ShowSelected(int selected)
    {
        SetCurSel(selected);
        if (!m_alive)
            return;
        CString text;
        GetSelectText(text);
        ValidFreeFormat(text, 0);
        if (!m_alive)
            return;
        m_data.format.UpdateFormat(text);
        MarkFrom(text);
        if (IsRefused(Find(text)))
            ShowRefusal();
    }

    void MarkFrom(const CString& text) { m_combo.SetEditSel(m_data.format.GetFirstGroup(0), text.GetLength()); }
};
