// A real combo box in a window of its own, which tests use as they use the one in memory.
#pragma once
#include <afxwin.h>
#include "formats/SmartComboAccess.h"
#include "support/RealInput.h"

/// The window and the combo box, which come before what looks at them.
class RealComboWindow
{
protected:
    RealComboWindow()
    {
        m_popup.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, CRect(20, 20, 240, 240), nullptr, 0);
        create(0);
    }
    ~RealComboWindow()
    {
        m_box.DestroyWindow();
        m_popup.DestroyWindow();
    }
    void create(DWORD sorted)
    {
        m_box.DestroyWindow();
        m_box.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | CBS_DROPDOWN | CBS_AUTOHSCROLL | CBS_HASSTRINGS |
                         sorted,
                     CRect(0, 0, 200, 200), &m_popup, 1008);
    }

    CWnd m_popup;
    CComboBox m_box;
};

class RealComboBox : private RealComboWindow, public SmartComboAccess
{
public:
    /// Sorts or not, as an empty combo box that is made anew.
    class Sorting
    {
    public:
        explicit Sorting(RealComboBox& box) : m_box(box) {}
        Sorting& operator=(bool sorted)
        {
            m_box.create(sorted ? CBS_SORT : 0);
            return *this;
        }

    private:
        RealComboBox& m_box;
    };

    RealComboBox() : SmartComboAccess(m_box), keepSorted(*this) {}

    int GetCount() const { return m_box.GetCount(); }
    int AddString(const wchar_t* text) { return refuseInsertions ? -1 : SmartComboAccess::AddString(text); }
    int AppendString(const wchar_t* text) { return refuseInsertions ? -1 : SmartComboAccess::AppendString(text); }
    void SetEditSel(int first, int end)
    {
        markFirst = first;
        markEnd = end;
        SmartComboAccess::SetEditSel(first, end);
    }
    CComboBox& control() { return m_box; }

    /// The user marks what stands in the field and types over it.
    void Type(const wchar_t* text)
    {
        if (GetForegroundWindow() != m_popup.m_hWnd)
            m_popup.SetForegroundWindow();
        m_box.SetFocus();
        m_box.SetEditSel(0, -1);
        key(VK_DELETE);
        typeText(text);
    }

    Sorting keepSorted;
    bool refuseInsertions = false;
    int markFirst = -1;
    int markEnd = -1;
};
