// A list of texts in memory that behaves like the list and edit field of a drop-down combo box, for tests without window.
#pragma once
#include <afx.h>
#include <algorithm>
#include <cstddef>
#include <cwchar>
#include <functional>
#include <string>
#include <vector>
#include <kx/CaseFold.h>

/// Answers as the platform's combo box does: -1 for a failure, a selection that moves with its item, searches that begin
/// behind the start index, wrap to the top and come to the start index last, blind to case (accented letters too), and
/// never find the empty text. A prefix also finds an item in brackets, without its bracket.
class MemoryListBox
{
public:
    int GetCount() const { return static_cast<int>(m_items.size()); }
    int GetCurSel() const { return m_selected; }
    CString GetEditText() const { return m_edit; }
    CString GetItemText(int index) const { return holds(index) ? m_items[at(index)] : CString(); }

    int FindStringExact(int start, const wchar_t* text) const
    {
        return find(start, text, [text](const CString& item) { return item.CompareNoCase(text) == 0; });
    }
    int FindString(int start, const wchar_t* text) const
    {
        const std::size_t length = std::wcslen(text);
        const auto begins = [text, length](const wchar_t* item) { return kx::compareFolded(item, text, length) == 0; };
        return find(start, text,
                    [&begins](const wchar_t* item) {
                        return begins(item) ||
                               (item[0] == L'[' && (begins(item + 1) || (item[1] == L'-' && begins(item + 2))));
                    });
    }
    /// Equal for texts that the exact search takes for each other.
    std::wstring SearchKey(const wchar_t* text) const
    {
        std::wstring key = text;
        for (wchar_t& ch : key)
            ch = kx::foldLower(ch);
        return key;
    }

    int AddString(const wchar_t* text) { return InsertString(keepSorted ? sortedPlace(text) : -1, text); }
    int AppendString(const wchar_t* text) { return InsertString(-1, text); }
    bool KeepsSorted() const { return keepSorted; }
    void SetRedraw(bool redraw) { isPainted = redraw; }
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
    int SetCurSel(int index)
    {
        m_selected = holds(index) ? index : -1;
        m_edit = GetItemText(m_selected);
        return m_selected;
    }
    /// The selection stays.
    void SetEditText(const wchar_t* text) { m_edit = text; }
    void SetEditSel(int first, int end)
    {
        markFirst = first;
        markEnd = end;
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

    bool refuseInsertions = false; ///< as a list out of memory does
    bool refuseDeletions = false;  ///< as no list does on its own
    bool keepSorted = false;       ///< as CBS_SORT does
    bool isPainted = true;         ///< false between SetRedraw(false) and SetRedraw(true)
    int markFirst = -1;            ///< the marked characters of the edit field
    int markEnd = -1;
    int told = 0;                      ///< how often the parent heard of a valid text
    std::function<bool()> onValidated; ///< the parent's handler; false: it ended the control

private:
    static std::size_t at(int index) { return static_cast<std::size_t>(index); }
    bool holds(int index) const { return index >= 0 && index < GetCount(); }

    template <typename Test> int find(int start, const wchar_t* text, const Test& test) const
    {
        const int count = text[0] == L'\0' ? 0 : GetCount();
        const int first = start < 0 || start >= count ? 0 : start + 1;
        for (int i = 0; i < count; ++i)
        {
            const int index = (first + i) % count;
            if (test(m_items[at(index)]))
                return index;
        }
        return -1;
    }
    int sortedPlace(const wchar_t* text) const
    {
        const auto place = std::upper_bound(m_items.begin(), m_items.end(), CString(text),
                                            [](const CString& a, const CString& b) { return a.CompareNoCase(b) < 0; });
        return static_cast<int>(place - m_items.begin());
    }

    std::vector<CString> m_items;
    CString m_edit;
    int m_selected = -1;
};
