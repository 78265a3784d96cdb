// A real dialog with two fields with units, their variables, and a user at its keyboard.
#pragma once
#include <afxwin.h>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "kitrel/KxUnitCtrl.h"
#include "resource.h"
#include "support/HostLoop.h"

inline CKxUnit metres(unsigned int precision = 3)
{
    return CKxUnit(1, 0, precision, L'.', 1.0, 1);
}
inline CKxUnit millimetres()
{
    return CKxUnit(1, 3, 0, L'.', 1.0, 1);
}

inline std::wstring textOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

/// A field that counts the changes that it traps.
class CCountingField : public CKxUnitCtrl
{
public:
    int trapped = 0;
    std::wstring text() const { return textOf(*this); }
    bool allSelected() const
    {
        int start = 0;
        int end = 0;
        GetSel(start, end);
        return start == 0 && end == GetWindowTextLength();
    }
    void OnEnChangeTrapped() override { ++trapped; }
};

/// The span is exchanged with a variable, in SI; the depth with its control alone.
class CBeamDialog : public CDialog, public HostLoop
{
public:
    explicit CBeamDialog(double initialSpan = 2.0) : spanSI(initialSpan)
    {
        if (!Create(IDD_BEAM))
            throw std::runtime_error("the dialog could not be created");
        SetForegroundWindow();
        pump();
        changes = 0;
        span.trapped = 0;
    }
    ~CBeamDialog() override { DestroyWindow(); }

    CCountingField span;
    CCountingField depth;
    double spanSI;
    int accepted = 0;  ///< OK with values that were accepted
    int cancelled = 0; ///< by Escape or the button
    int changes = 0;   ///< EN_CHANGE of the span

    void focusOn(int id)
    {
        SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(::GetDlgItem(m_hWnd, id)), TRUE);
        pump();
    }
    bool hasFocus(int id) const { return ::GetFocus() == ::GetDlgItem(m_hWnd, id); }

    /// The user goes into the field by the keyboard, and what stood there is replaced.
    void enter(int id, const wchar_t* text)
    {
        focusOn(id);
        type(text);
    }

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        CDialog::DoDataExchange(exchange);
        DDX_UnitValue(exchange, IDC_SPAN, span, spanSI);
        DDX_UnitCtrl(exchange, IDC_DEPTH, depth, L"%.*f");
    }
    BOOL OnInitDialog() override
    {
        CKxUnit unit = metres();
        span.SetDefaultValues(this, IDC_SPAN, 0.0, unit, 1.0, 3.0);
        depth.SetDefaultValues(this, IDC_DEPTH, 0.25, unit, 0.0, 1.0);
        return CDialog::OnInitDialog();
    }
    void OnOK() override { accepted += UpdateData(TRUE) != FALSE; }
    void OnCancel() override { ++cancelled; }
    afx_msg void OnSpanChanged() { ++changes; }
    DECLARE_MESSAGE_MAP()
};
