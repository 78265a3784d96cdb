// What the buttons of a smart combo box do: "+", "-" and the bitmap picker.
#pragma once

#include "SmartComboEntry.h"

template <smartcombo::ComboBox Combo, smartcombo::Window Owner>
class SmartComboButtons : public SmartComboEntry<Combo, Owner>
{
    using Entry = SmartComboEntry<Combo, Owner>;
    using Entry::m_alive;
    using Entry::m_combo;
    using Entry::m_data;
    using Entry::m_owner;

public:
    using Entry::Entry;

    void OnButtonAdd()
    {
        int index = smartcombo::none;
        if (m_combo.GetEditText().IsEmpty())
            m_owner.ReleaseAddButton();
        else
            Entry::AddInListFormat(index, 1);
    }

    void OnButtonDelete()
    {
        const int selected = m_combo.GetCurSel();
        m_alive = m_owner.FocusCombo();
        if (m_alive && selected != smartcombo::none)
            DeleteAsked(static_cast<unsigned int>(selected));
        if (m_alive)
            m_owner.ReleaseDeleteButton();
    }

    /// A button of the picker was chosen; `index` may be any number.
    void OnButtonSelChanged(LPARAM index)
    {
        UseFormat(index);
        m_alive = m_owner.TellButton(index);
        if (m_alive)
            m_alive = m_owner.FocusCombo();
    }

    int UpdateBitmapFromText()
    {
        const CString text = m_combo.GetEditText();
        if (Entry::ValidFreeFormat(text, 0) != 1)
            return 0;
        Entry::SetCurSel(text);
        return 1;
    }

    /// The formats of the picker's buttons, and the one to begin with; an index outside the list leaves the format alone.
    /// Answers false, and does nothing, for an empty list.
    bool TakePickerFormats(const CStringList& formats, int selected)
    {
        if (formats.IsEmpty())
            return false;
        m_data.bitmapMode = BITMAPMODE_PICKER;
        RememberedValues::Assign(m_data.formatList, formats);
        UseFormat(selected);
        m_data.selectedFormat = selected;
        return true;
    }

    /// Formats that come with bitmap buttons go behind those that are there.
    void TakeButtonFormats(const CStringList& formats, BitmapMode mode)
    {
        m_data.bitmapMode = mode;
        RememberedValues::Append(m_data.formatList, formats);
    }

private:
    void UseFormat(INT_PTR index)
    {
        if (const POSITION place = m_data.formatList.FindIndex(index))
            Entry::SetFormat(m_data.formatList.GetAt(place));
    }

    void DeleteAsked(unsigned int selected)
    {
        int answer = 0;
        m_alive = m_owner.Ask(smartcombo::deletionQuestion, smartcombo::deletionTitle, answer);
        if (!m_alive || answer == 0)
            return;
        Entry::DeleteStringCombo(selected);
        m_owner.EmptyTitle();
        if (!m_data.formatText.IsEmpty())
            Entry::ResetSelectText();
    }
};
