// The property sheet that can take its OK button away.
#include "oxa/dialogs/KxPropertySheet.h"

#include "../frame/Surviving.h"
#include "BarColors.h"

BEGIN_MESSAGE_MAP(CKxPropertySheet, CPropertySheet)
    // void OnKeyDown(UINT, UINT, UINT), the default
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

CKxPropertySheet::CKxPropertySheet() = default;

CKxPropertySheet::CKxPropertySheet(unsigned int caption, CWnd* parent, unsigned int selectPage)
    : CPropertySheet(caption, parent, selectPage)
{
}

CKxPropertySheet::CKxPropertySheet(const wchar_t* caption, CWnd* parent, unsigned int selectPage)
    : CPropertySheet(caption, parent, selectPage)
{
}

CKxPropertySheet::CKxPropertySheet(unsigned int caption, CWnd* parent, unsigned int selectPage, HBITMAP watermark,
                                   HPALETTE palette, HBITMAP header)
    : CPropertySheet(caption, parent, selectPage, watermark, palette, header)
{
}

CKxPropertySheet::CKxPropertySheet(const wchar_t* caption, CWnd* parent, unsigned int selectPage, HBITMAP watermark,
                                   HPALETTE palette, HBITMAP header)
    : CPropertySheet(caption, parent, selectPage, watermark, palette, header)
{
}

CKxPropertySheet::~CKxPropertySheet() = default;

void CKxPropertySheet::SetProtectionDisabled(bool disabled)
{
    m_bProtectionDisabled = disabled;
}

void CKxPropertySheet::DisablePropertySheet()
{
    m_bDisabled = true;
}

bool CKxPropertySheet::IsPropertySheetDisabled()
{
    return false;
}

BOOL CKxPropertySheet::OnInitDialog()
{
    const Surviving here(*this);
    CPropertySheet::OnInitDialog();
    if (!here)
        return TRUE; // the first page ended the sheet
    // The virtual is asked only where its answer counts.
    if (m_bProtectionDisabled || !SheetRules::DisablesOk(false, m_bDisabled, m_bDisabled || IsPropertySheetDisabled()))
        return TRUE;
    if (CWnd* ok = GetDlgItem(IDOK))
        ok->EnableWindow(FALSE);
    return TRUE;
}

BOOL CKxPropertySheet::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN)
        message->wParam = SheetRules::Key(VK_RETURN, IsPropertySheetDisabled());
    return CPropertySheet::PreTranslateMessage(message);
}
