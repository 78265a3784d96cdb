// What the logic of a smart combo box asks of its window.
#include "SmartComboWindow.h"

#include "kitrel/KxPrompts.h"
#include "oxa/frame/ModulePrompts.h"

namespace
{
CString prompt(unsigned int id)
{
    return KxPrompts::getPrompt(id, getModulePromptsProjectName(), 0);
}

void release(CButton& button)
{
    if (button.m_hWnd != nullptr)
        button.SendMessage(BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
}
} // namespace

bool SmartComboWindow::Send(UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd* const parent = m_handle == nullptr ? nullptr : m_control.GetParent();
    if (parent != nullptr)
        parent->SendMessage(message, wParam, lParam);
    return IsThere();
}

bool SmartComboWindow::ButtonHasChange(int bitmap)
{
    m_control.ButtonHasChange(bitmap);
    return IsThere();
}

bool SmartComboWindow::ShowMessage(unsigned int text, unsigned int title)
{
    if (m_handle != nullptr)
        m_control.MessageBox(prompt(text), prompt(title), MB_OK);
    return IsThere();
}

bool SmartComboWindow::Ask(unsigned int text, unsigned int title, int& yes)
{
    yes = m_handle != nullptr && m_control.MessageBox(prompt(text), prompt(title), MB_YESNO) == IDYES ? 1 : 0;
    return IsThere();
}

bool SmartComboWindow::FocusCombo()
{
    if (m_control.m_combo.m_hWnd != nullptr)
        m_control.m_combo.SetFocus();
    return IsThere();
}

void SmartComboWindow::ReleaseAddButton()
{
    release(m_control.m_addButton);
}

void SmartComboWindow::ReleaseDeleteButton()
{
    release(m_control.m_deleteButton);
}

void SmartComboWindow::EmptyTitle()
{
    if (m_handle != nullptr)
        m_control.SetWindowText(L"");
}

void SmartComboWindow::SelectButton(int index)
{
    m_control.m_buttonCombo.SetSelectedItem(index);
    if (m_control.m_buttonCombo.m_hWnd != nullptr)
        m_control.m_buttonCombo.Invalidate();
}
