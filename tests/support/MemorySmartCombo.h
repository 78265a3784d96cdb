// A smart combo box over a combo box in memory or a real one, with a record of whom it told, asked and gave the focus.
#pragma once
#include <functional>
#include <memory>
#include <string>
#include "formats/SmartComboButtons.h"
#include "support/MemoryListBox.h"

/// The window around it. A Box answers as MemoryListBox does.
template <class Box> class SmartWindowOver
{
public:
    /// What ends with the control.
    struct Control
    {
        SmartComboData data;
        Box combo;
    };

    // ---- What the logic asks of the window
    bool Tell(UINT message)
    {
        switch (message)
        {
        case WM_KX_SMART_ADDING:
            return happened(L"adding");
        case WM_KX_SMART_SELCHANGE:
            return happened(L"selchange");
        case WM_KX_SMART_SELENDOK:
            return happened(L"selendok");
        case WM_KX_SMART_EDITUPDATE:
            return happened(L"editupdate");
        default:
            return happened(L"unknown message " + std::to_wstring(message));
        }
    }
    bool TellButton(LPARAM index) { return happened(L"buttonsel " + std::to_wstring(index)); }
    bool ButtonHasChange(int bitmap) { return happened(L"has change " + std::to_wstring(bitmap)); }
    CKxUnit* GetUnit()
    {
        if (endsAtUnit-- == 0)
            control.reset();
        return unit.get();
    }
    bool IsThere() const { return control != nullptr; }
    bool ShowMessage(unsigned int text, unsigned int title)
    {
        return happened(L"message " + std::to_wstring(text) + L" " + std::to_wstring(title));
    }
    bool Ask(unsigned int text, unsigned int title, int& yes)
    {
        yes = answer;
        return happened(L"ask " + std::to_wstring(text) + L" " + std::to_wstring(title));
    }
    bool FocusCombo() { return happened(L"focus"); }
    void ReleaseAddButton() { noted(L"release +"); }
    void ReleaseDeleteButton() { noted(L"release -"); }
    void EmptyTitle() { noted(L"no title"); }
    void SelectButton(int index) { noted(L"button " + std::to_wstring(index)); }

    std::wstring events;           ///< what happened, in order
    std::unique_ptr<CKxUnit> unit; ///< what GetUnit of a derived class gives
    int answer = 1;                ///< to the question whether to delete
    int endsAt = -1;               ///< the event at which the control comes to its end, counted from 0
    int endsAtUnit = -1;           ///< the question for the unit at which it does
    std::function<void()> onEvent; ///< what the parent does meanwhile
    std::unique_ptr<Control> control = std::make_unique<Control>();

private:
    void noted(const std::wstring& event) { events += (events.empty() ? L"" : L", ") + event; }
    bool happened(const std::wstring& event)
    {
        noted(event);
        if (onEvent)
            onEvent();
        if (endsAt-- == 0)
            control.reset();
        return control != nullptr;
    }
};

template <class Box> class SmartComboOver : public SmartWindowOver<Box>
{
    using Window = SmartWindowOver<Box>;

public:
    using Logic = SmartComboButtons<Box, Window>;
    using Window::control;

    /// One call of the control: use the object that this answers for one operation only.
    Logic call() { return Logic(control->data, control->combo, *this); }
    SmartComboData& data() { return control->data; }
    Box& combo() { return control->combo; }

    /// Items of the combo box, the selected one in brackets / the control's own list / the edit field.
    std::wstring shown()
    {
        std::wstring all;
        for (int i = 0; i < combo().GetCount(); ++i)
        {
            const std::wstring item = wide(combo().GetItemText(i));
            all += (i == 0 ? L"" : L" ") + (i == combo().GetCurSel() ? L"[" + item + L"]" : item);
        }
        return all + L" / " + joined(data().list) + L" / " + wide(combo().GetEditText());
    }
    static std::wstring joined(const CStringList& list)
    {
        std::wstring all;
        for (POSITION place = list.GetHeadPosition(); place != nullptr;)
        {
            all += wide(list.GetNext(place));
            all += place != nullptr ? L" " : L"";
        }
        return all;
    }
    static std::wstring wide(const CString& text)
    {
        return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
    }
    /// Fills a list from texts that blanks divide.
    static void fill(CStringList& list, const std::wstring& texts)
    {
        list.RemoveAll();
        std::size_t start = 0;
        while (start < texts.size())
        {
            const std::size_t end = std::min(texts.find(L' ', start), texts.size());
            list.AddTail(CString(texts.c_str() + start, static_cast<int>(end - start)));
            start = end + 1;
        }
    }
};

using MemorySmartCombo = SmartComboOver<MemoryListBox>;
