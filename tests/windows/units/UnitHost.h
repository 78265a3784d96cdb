// A real dialog with unit combo boxes, what it hears from them, and a user at its keyboard.
#pragma once
#include <afxwin.h>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>
#include "kitrel/KxUnit.h"
#include "oxa/units/KxComboBoxUnit.h"
#include "support/HostLoop.h"
#include "unit_dialog_ids.h"

inline CKxUnit MetreUnit()
{
    return CKxUnit(1, 0, 3, L'.', 1.0, 1);
}

inline CKxUnit FeetUnit()
{
    CKxUnit feet(1, 5, 2, L'.', 1.0, 1);
    feet.SetUnitFormat(UNITFORMAT_ARCHITECTURAL);
    return feet;
}

/// The control, with its data open to the tests.
class OpenUnitCombo : public CKxComboBoxUnit
{
public:
    std::vector<double>& values() { return m_values; }
    bool isPermanent(int index) const { return m_permanent.at(static_cast<std::size_t>(index)); }
    bool isChanged() const { return m_bEditChanged != 0; }
    CKxToolTip& tip() { return m_toolTip; }
    HWND editField() const { return ::GetWindow(m_hWnd, GW_CHILD); }

    std::wstring editText() const
    {
        CString text;
        GetWindowText(text);
        return std::wstring(text);
    }
    std::wstring itemText(int index) const
    {
        CString text;
        GetLBText(index, text);
        return std::wstring(text);
    }
    /// The whole list as one text, a star behind a typed item, brackets around the selected one.
    std::wstring shown() const
    {
        std::wstring all;
        for (int i = 0; i < GetCount(); ++i)
        {
            const std::wstring item = itemText(i) + (isPermanent(i) ? L"" : L"*");
            all += (i == 0 ? L"" : L" | ") + (i == GetCurSel() ? L"[" + item + L"]" : item);
        }
        return all;
    }
};

struct Heard
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool operator==(const Heard&) const = default;
};

/// The host's dialog: the first field has the focus, and the messages of its controls are written down.
class UnitHost : public CDialog, public HostLoop
{
public:
    UnitHost()
        : metre(std::make_unique<OpenUnitCombo>()), feet(std::make_unique<OpenUnitCombo>()),
          droplist(std::make_unique<OpenUnitCombo>())
    {
        if (!Create(IDD_UNIT_HOST))
            throw std::runtime_error("the host dialog could not be created");
        SetForegroundWindow();
        pump();
        focusOn(IDC_BEFORE);
        heard.clear();
    }
    ~UnitHost() override { DestroyWindow(); }

    std::unique_ptr<OpenUnitCombo> metre, feet, droplist;
    std::vector<Heard> heard;                 ///< unit messages, keys and clicks that reached the dialog window itself
    std::function<void(const Heard&)> onHear; ///< runs inside the handler
    int closed = 0;                           ///< how often Enter or Escape reached the dialog

    int count(UINT message) const
    {
        int n = 0;
        for (const Heard& one : heard)
            n += one.message == message ? 1 : 0;
        return n;
    }

    void focusOn(int id)
    {
        GetDlgItem(id)->SetFocus();
        pump();
    }

    /// A notification of a control, as the platform sends it.
    void notify(const CWnd& control, WORD code)
    {
        SendMessage(WM_COMMAND, MAKEWPARAM(control.GetDlgCtrlID(), code), reinterpret_cast<LPARAM>(control.m_hWnd));
    }

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        attach(*metre, IDC_METRE, MetreUnit());
        attach(*feet, IDC_FEET, FeetUnit());
        attach(*droplist, IDC_DROPLIST, MetreUnit());
        return TRUE;
    }
    void OnOK() override { ++closed; }
    void OnCancel() override { ++closed; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_KX_UNIT_FOCUS || message == WM_KX_UNIT_VALIDATED || message == WM_CHAR ||
            message == WM_KEYDOWN || message == WM_LBUTTONDOWN)
        {
            heard.push_back({message, wParam, lParam});
            if (onHear)
                onHear(Heard{message, wParam, lParam});
        }
        return CDialog::WindowProc(message, wParam, lParam);
    }

private:
    void attach(OpenUnitCombo& combo, UINT id, CKxUnit unit)
    {
        combo.SubclassDlgItem(id, this);
        combo.SetDefaultValues(this, id, 0.0, unit, 0.0, 0.0);
    }
};
