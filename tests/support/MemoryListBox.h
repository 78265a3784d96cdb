// A list of texts in memory that behaves like the list and edit field of a drop-down combo box, for tests without window.
#pragma once
#include <afx.h>
#include <cstddef>
#include <functional>
#include <vector>

/// Answers as the platform's combo box does: -1 for a failure, a selection that moves with its item, an exact search that
/// begins behind the start index, wraps to the top and comes to the start index last, blind to case (accented letters too).
class MemoryListBox
{
public:
    int GetCount() const { return static_cast<int>(m_items.size()); }
    int GetCurSel() const { return m_selected; }
    CString GetEditText() const { return m_edit; }
    CString GetItemText(int index) const { return holds(index) ? m_items[at(index)] : CString(); }

    int FindStringExact(int start, const wchar_t* text) const
    {
        const int first = start < 0 || start >= GetCount() ? 0 : start + 1;
        for (int i = 0; i < GetCount(); ++i)
        {
            const int index = (first + i) % GetCount();
            if (m_items[at(index)].CompareNoCase(text) == 0)
                return index;
        }
        return -1;
    }

    int AddString(const wchar_t* text) { return InsertString(-1, text); }
    int InsertString(int index, const wchar_t* text)
    {
        const int position = index == -1 ? GetCount() : index;
        if (refuseInsertions || position < 0 || position > GetCount())
            return -1;
        m_items.insert(m_items.begin() + position, CString(text));
        if (position <= m_selected)
            ++m_selected;
        return position;
    }
    int DeleteString(unsigned int index)
    {
        if (refuseDeletions || index >= m_items.size())
            return -1;
        const int position = static_cast<int>(index);
        m_items.erase(m_items.begin() + position);
        if (position == m_selected)
            m_selected = -1;
        else if (position < m_selected)
            --m_selected;
        return GetCount();
    }
    void ResetContent()
    {
        m_items.clear();
        SetCurSel(-1);
    }
    void SetCurSel(int index)
    {
        m_selected = holds(index) ? index : -1;
        m_edit = GetItemText(m_selected);
    }
    bool TellValidated()
    {
        ++told;
        return !onValidated || onValidated();
    }

    /// What the user types; the selection goes, as it does when an edit field is changed.
    void Type(const wchar_t* text)
    {
        m_selected = -1;
        m_edit = text;
    }

    bool refuseInsertions = false;     ///< as a list out of memory does
    bool refuseDeletions = false;      ///< as no list does on its own
    int told = 0;                      ///< how often the parent heard of a valid text
    std::function<bool()> onValidated; ///< the parent's handler; false: it ended the control

private:
    static std::size_t at(int index) { return static_cast<std::size_t>(index); }
    bool holds(int index) const { return index >= 0 && index < GetCount(); }

    std::vector<CString> m_items;
    CString m_edit;
    int m_selected = -1;
};
