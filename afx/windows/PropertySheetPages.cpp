// The pages of a property sheet, and what its buttons and texts are told.
#include <afxcmn.h>
#include <afxdlgs.h>

#include <algorithm>

#include "StillThere.h"
#include "TempWnd.h"

void CPropertySheet::AddPage(CPropertyPage* page)
{
    if (page == nullptr || page->m_pSheet != nullptr || (m_hWnd != nullptr && !page->isReady()))
        return;
    if (m_hWnd != nullptr)
    {
        const PROPSHEETPAGE record = page->record();
        const HPROPSHEETPAGE handle = ::CreatePropertySheetPage(&record);
        if (handle == nullptr)
            return;
        page->m_bFirstSetActive = TRUE;
        const kx::StillThere here(*this);
        const bool added = SendMessage(PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(handle)) != 0;
        if (!here)
            return;
        if (!added)
        {
            ::DestroyPropertySheetPage(handle);
            return;
        }
    }
    m_pages.push_back(page);
    page->m_pSheet = this;
}

void CPropertySheet::RemovePage(CPropertyPage* page)
{
    RemovePage(GetPageIndex(page));
}

void CPropertySheet::RemovePage(int index)
{
    CPropertyPage* const page = GetPage(index);
    if (page == nullptr)
        return;
    page->m_pSheet = nullptr;
    m_pages.erase(m_pages.begin() + index);
    if (m_hWnd != nullptr)
        SendMessage(PSM_REMOVEPAGE, static_cast<WPARAM>(index));
}

CPropertyPage* CPropertySheet::GetPage(int index) const
{
    return index >= 0 && index < GetPageCount() ? m_pages[static_cast<size_t>(index)] : nullptr;
}

int CPropertySheet::GetPageIndex(const CPropertyPage* page) const
{
    const auto found = std::find(m_pages.begin(), m_pages.end(), page);
    return found != m_pages.end() ? static_cast<int>(found - m_pages.begin()) : -1;
}

int CPropertySheet::GetActiveIndex() const
{
    if (m_hWnd == nullptr)
        return static_cast<int>(m_psh.nStartPage);
    return static_cast<int>(::SendMessage(GetTabControl()->GetSafeHwnd(), TCM_GETCURSEL, 0, 0));
}

CPropertyPage* CPropertySheet::GetActivePage() const
{
    return m_hWnd != nullptr ? GetPage(GetActiveIndex()) : nullptr;
}

BOOL CPropertySheet::SetActivePage(int index)
{
    if (GetPage(index) == nullptr)
        return FALSE;
    if (m_hWnd != nullptr)
        return static_cast<BOOL>(SendMessage(PSM_SETCURSEL, static_cast<WPARAM>(index)));
    m_psh.nStartPage = static_cast<UINT>(index);
    return TRUE;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* page)
{
    return SetActivePage(GetPageIndex(page));
}

CTabCtrl* CPropertySheet::GetTabControl() const
{
    return kxWndFromHandle<CTabCtrl>(reinterpret_cast<HWND>(::SendMessage(m_hWnd, PSM_GETTABCONTROL, 0, 0)));
}

void CPropertySheet::SetTitle(LPCTSTR text, UINT style)
{
    m_strCaption = text;
    m_psh.dwFlags = (m_psh.dwFlags & ~static_cast<DWORD>(PSH_PROPTITLE)) | (style & PSH_PROPTITLE);
    if (m_hWnd != nullptr)
        SendMessage(PSM_SETTITLE, style & PSH_PROPTITLE, reinterpret_cast<LPARAM>(m_strCaption.GetString()));
}

void CPropertySheet::SetWizardButtons(DWORD flags)
{
    if (m_hWnd != nullptr)
        SendMessage(PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(flags));
}

void CPropertySheet::SetFinishText(LPCTSTR text)
{
    if (m_hWnd != nullptr)
        SendMessage(PSM_SETFINISHTEXT, 0, reinterpret_cast<LPARAM>(text));
}

BOOL CPropertySheet::PressButton(int button)
{
    if (m_hWnd == nullptr)
        return FALSE;
    switch (button) // the loop's answer, where the press ends it
    {
    case PSBTN_OK:
        m_nModalResult = IDOK;
        break;
    case PSBTN_FINISH:
        m_nModalResult = ID_WIZFINISH;
        break;
    case PSBTN_CANCEL:
        m_nModalResult = IDCANCEL;
        break;
    default:
        break;
    }
    SendMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(button));
    return TRUE;
}
