// The main window.
#include "MainDialog.h"
#include "resource.h"
#include "support/RealInput.h"
#include "support/Screenshot.h"
#include <algorithm>

namespace
{
constexpr int listWidth = 110; // pixels at 96 dpi
constexpr int logHeight = 170;
constexpr int gap = 7;
} // namespace

BEGIN_MESSAGE_MAP(CMainDialog, CDialog)
    // void OnSize(UINT type, int cx, int cy)
    ON_WM_SIZE()
    // void OnSelectPage()
    ON_LBN_SELCHANGE(IDC_PAGES, &CMainDialog::OnSelectPage)
END_MESSAGE_MAP()

CMainDialog::CMainDialog() : m_pages(makePages()) {}

bool CMainDialog::open(const CString& page)
{
    if (!Create(MAKEINTRESOURCE(IDD_MAIN), nullptr))
        return false;
    int first = 0;
    for (size_t i = 0; i < m_pages.size(); ++i)
        if (m_pages[i]->title().CompareNoCase(page) == 0)
            first = static_cast<int>(i);
    showPage(first);
    ShowWindow(SW_SHOW);
    return true;
}

BOOL CMainDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_list.SubclassDlgItem(IDC_PAGES, this);
    m_log.SubclassDlgItem(IDC_LOG, this);
    m_log.prepare();
    for (const auto& page : m_pages)
    {
        page->createIn(this, &m_log);
        // Behind the list in tab order, before the log.
        page->SetWindowPos(&m_list, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        m_list.AddString(page->title());
    }
    CRect work;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const int width = std::min(work.Width(), 860), height = std::min(work.Height(), 700);
    SetWindowPos(nullptr, work.left + (work.Width() - width) / 2, work.top + (work.Height() - height) / 2, width,
                 height, SWP_NOZORDER | SWP_NOACTIVATE);
    arrange();
    return FALSE; // the page takes the focus
}

void CMainDialog::OnSize(UINT type, int cx, int cy)
{
    CDialog::OnSize(type, cx, cy);
    arrange();
}

void CMainDialog::arrange()
{
    if (!m_log.m_hWnd)
        return;
    CRect r;
    GetClientRect(&r);
    r.DeflateRect(gap, gap);
    const int split = std::max<int>(r.top, r.bottom - logHeight);
    m_list.MoveWindow(r.left, r.top, listWidth, split - gap - r.top);
    m_log.MoveWindow(r.left, split, r.Width(), r.bottom - split);
    for (const auto& page : m_pages)
        if (page->m_hWnd)
            page->MoveWindow(r.left + listWidth + gap, r.top, std::max(0, r.Width() - listWidth - gap),
                             split - gap - r.top);
}

void CMainDialog::showPage(int index)
{
    if (index < 0 || index >= static_cast<int>(m_pages.size()) || index == m_current)
        return;
    if (m_current >= 0)
        m_pages[static_cast<size_t>(m_current)]->ShowWindow(SW_HIDE);
    m_current = index;
    m_list.SetCurSel(index);
    m_pages[static_cast<size_t>(index)]->ShowWindow(SW_SHOW);
}

void CMainDialog::OnSelectPage()
{
    showPage(m_list.GetCurSel());
}

void CMainDialog::OnCancel()
{
    // The close button comes here; Escape does too, and is ignored.
    if (GetKeyState(VK_ESCAPE) >= 0)
        DestroyWindow();
}

void CMainDialog::PostNcDestroy()
{
    PostQuitMessage(0);
}

bool CMainDialog::saveShots(const CString& folder)
{
    bool ok = m_log.writeTo(folder + L"\\messages.log");
    for (size_t i = 0; i < m_pages.size(); ++i)
    {
        showPage(static_cast<int>(i));
        CPage& page = *m_pages[i];
        page.SetFocus();
        SetForegroundWindow();
        pumpFor(100);
        CString stem = page.title();
        stem.MakeLower();
        page.walk(
            [&](const wchar_t* state)
            {
                pumpFor(60);
                ok = saveWindowWithPopupsPng(m_hWnd, folder + L"\\" + stem + L"-" + state + L".png") && ok;
            });
    }
    return ok;
}
