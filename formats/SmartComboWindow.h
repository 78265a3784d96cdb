// The window of a smart combo box as its logic sees it: the parent, the message boxes, the focus, the buttons.
#pragma once

#include "SmartComboAccess.h"
#include "SmartComboButtons.h"
#include "oxa/formats/KxSmartComboBox.h"

/// Does not touch the control any more once it has gone.
class SmartComboWindow
{
public:
    explicit SmartComboWindow(CKxSmartComboBox& control) : m_control(control), m_handle(control.m_hWnd) {}

    bool Tell(UINT message) { return Send(message, 0, 0); }
    bool TellButton(LPARAM index)
    {
        const WPARAM id = m_handle == nullptr ? 0 : static_cast<WPARAM>(m_control.GetDlgCtrlID());
        return Send(WM_KX_SMART_BUTTONSEL, id, index);
    }
    bool ButtonHasChange(int bitmap);
    CKxUnit* GetUnit() { return m_control.GetUnit(); }
    bool IsThere() const { return m_handle == nullptr || CWnd::FromHandlePermanent(m_handle) == &m_control; }
    bool ShowMessage(unsigned int text, unsigned int title);
    bool Ask(unsigned int text, unsigned int title, int& yes);
    bool FocusCombo();
    void ReleaseAddButton();
    void ReleaseDeleteButton();
    void EmptyTitle();
    void SelectButton(int index);

private:
    bool Send(UINT message, WPARAM wParam, LPARAM lParam);

    CKxSmartComboBox& m_control;
    HWND m_handle;
};

static_assert(smartcombo::Window<SmartComboWindow>);

/// One call of the logic: SmartComboCall(*this)->SortCombo().
struct SmartComboCall
{
    explicit SmartComboCall(CKxSmartComboBox& control)
        : m_combo(control.m_combo), m_window(control), m_logic(control.m_data, m_combo, m_window)
    {
    }
    SmartComboButtons<SmartComboAccess, SmartComboWindow>* operator->() { return &m_logic; }

private:
    SmartComboAccess m_combo;
    SmartComboWindow m_window;
    SmartComboButtons<SmartComboAccess, SmartComboWindow> m_logic;
};
