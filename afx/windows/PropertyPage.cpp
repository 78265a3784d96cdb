// A page of a property sheet: what the sheet tells it, and what it tells the sheet.
#include <afxdlgs.h>

#include "StillThere.h"

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

CPropertyPage::CPropertyPage()
{
    Construct(static_cast<LPCTSTR>(nullptr));
}

CPropertyPage::CPropertyPage(UINT templateId, UINT captionId, DWORD)
{
    Construct(templateId, captionId);
}

CPropertyPage::CPropertyPage(LPCTSTR templateName, UINT captionId, DWORD)
{
    Construct(templateName, captionId);
}

CPropertyPage::~CPropertyPage()
{
    if (m_pSheet != nullptr)
        m_pSheet->RemovePage(this);
}

void CPropertyPage::Construct(UINT templateId, UINT captionId)
{
    Construct(MAKEINTRESOURCE(templateId), captionId);
}

void CPropertyPage::Construct(LPCTSTR templateName, UINT captionId)
{
    m_lpszTemplateName = templateName;
    m_nIDHelp = IS_INTRESOURCE(templateName) ? LOWORD(reinterpret_cast<UINT_PTR>(templateName)) : 0;
    m_psp = {};
    m_psp.dwSize = sizeof m_psp;
    m_psp.dwFlags = PSP_USECALLBACK;
    m_psp.pszTemplate = templateName;
    m_psp.pfnDlgProc = AfxDlgProc;
    m_psp.pfnCallback = &CPropertyPage::onPage;
    if (captionId != 0 && m_strCaption.LoadString(captionId))
        m_psp.dwFlags |= PSP_USETITLE;
}

// The page's window is the next one that is made.
UINT CALLBACK CPropertyPage::onPage(HWND, UINT message, LPPROPSHEETPAGE page)
{
    if (message == PSPCB_CREATE)
        AfxHookWindowCreate(reinterpret_cast<CPropertyPage*>(page->lParam));
    return TRUE;
}

BOOL CPropertyPage::isReady() const
{
    if ((m_psp.dwFlags & PSP_DLGINDIRECT) != 0)
        return m_psp.pResource != nullptr;
    HINSTANCE module = AfxFindResourceHandle(m_psp.pszTemplate, RT_DIALOG);
    return m_psp.pszTemplate != nullptr && ::FindResource(module, m_psp.pszTemplate, RT_DIALOG) != nullptr;
}

PROPSHEETPAGE CPropertyPage::record()
{
    PROPSHEETPAGE made = m_psp;
    made.lParam = reinterpret_cast<LPARAM>(this);
    made.hInstance = AfxFindResourceHandle(m_psp.pszTemplate, RT_DIALOG);
    if (!m_strCaption.IsEmpty())
        made.pszTitle = m_strCaption;
    return made;
}

void CPropertyPage::SetModified(BOOL changed)
{
    if (m_hWnd != nullptr)
        ::SendMessage(::GetParent(m_hWnd), changed ? PSM_CHANGED : PSM_UNCHANGED, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CPropertyPage::CancelToClose()
{
    if (m_hWnd != nullptr)
        ::SendMessage(::GetParent(m_hWnd), PSM_CANCELTOCLOSE, 0, 0);
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam)
{
    return m_hWnd != nullptr ? ::SendMessage(::GetParent(m_hWnd), PSM_QUERYSIBLINGS, wParam, lParam) : 0;
}

BOOL CPropertyPage::OnSetActive()
{
    if (m_bFirstSetActive)
        m_bFirstSetActive = FALSE; // OnInitDialog has shown the data
    else
        UpdateData(FALSE);
    return TRUE;
}

BOOL CPropertyPage::OnKillActive()
{
    return UpdateData();
}

BOOL CPropertyPage::OnApply()
{
    OnOK();
    return TRUE;
}

void CPropertyPage::OnReset()
{
    OnCancel();
}

BOOL CPropertyPage::OnQueryCancel()
{
    return TRUE;
}

LRESULT CPropertyPage::OnWizardBack()
{
    return 0;
}

LRESULT CPropertyPage::OnWizardNext()
{
    return 0;
}

BOOL CPropertyPage::OnWizardFinish()
{
    return TRUE;
}

void CPropertyPage::OnOK() {}

void CPropertyPage::OnCancel() {}

void CPropertyPage::EndDialog(int result)
{
    if (m_pSheet != nullptr)
        m_pSheet->EndDialog(result);
}

// The dialog keys are the sheet's, so that Tab goes on to its buttons.
BOOL CPropertyPage::PreTranslateMessage(MSG* message)
{
    return CWnd::PreTranslateMessage(message);
}

// The map may take the notification before the operations are asked.
BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    const kx::StillThere here(*this);
    if (CDialog::OnNotify(wParam, lParam, result) || !here)
        return TRUE;
    if (header == nullptr || header->hwndFrom != ::GetParent(m_hWnd))
        return FALSE;
    switch (header->code)
    {
    case PSN_SETACTIVE:
        *result = OnSetActive() ? 0 : -1;
        return TRUE;
    case PSN_KILLACTIVE:
        *result = OnKillActive() ? FALSE : TRUE;
        return TRUE;
    case PSN_APPLY:
        *result = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        return TRUE;
    case PSN_RESET:
        OnReset();
        return TRUE;
    case PSN_QUERYCANCEL:
        *result = OnQueryCancel() ? FALSE : TRUE;
        return TRUE;
    case PSN_WIZBACK:
        *result = OnWizardBack();
        return TRUE;
    case PSN_WIZNEXT:
        *result = OnWizardNext();
        return TRUE;
    case PSN_WIZFINISH:
        *result = OnWizardFinish() ? FALSE : TRUE;
        return TRUE;
    case PSN_HELP:
        SendMessage(WM_COMMAND, ID_HELP);
        return TRUE;
    default:
        return FALSE;
    }
}
