// The smallest host: a dialog with one length field.
#include <afxwin.h>
#include "kitrel/KxUnit.h"
#include "oxa/units/KxComboBoxUnit.h"

class CSpanDialog : public CDialog
{
public:
    CSpanDialog() : CDialog(1) {}
    double m_span = 0.0; // metres

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        m_field.SubclassDlgItem(100, this);
        CKxUnit metres(1, 0, 3, L'.', 1.0, 1); // family 1 (lengths), its unit 0 (metres), three decimals
        m_field.SetDefaultValues(this, 100, 0.0, metres, 0.0, 0.0);
        m_field.AddValueSI(6.25); // values cross the border in SI
        m_field.SetCurSel(0);     // shown at first
        return TRUE;
    }
    void OnOK() override
    {
        m_field.UpdateControlValue(); // Enter does not leave the field, so commit it here
        m_span = m_field.GetValueSI();
        CDialog::OnOK();
    }

private:
    CKxComboBoxUnit m_field;
};

class CFirstHost : public CWinApp
{
    BOOL InitInstance() override
    {
        CSpanDialog dialog;
        if (dialog.DoModal() == IDOK)
        {
            CString text;
            text.Format(L"The span is %g metres.", dialog.m_span);
            AfxMessageBox(text);
        }
        return FALSE; // nothing more to do
    }
} theApp;
