// A property sheet's life: construction, the modal loop, the window beside its parent, its messages.
#include <afxcmn.h>
#include <afxdlgs.h>

#include <algorithm>
#include <cstring>

#include "EndLater.h"
#include "ModalOwner.h"
#include "StillThere.h"

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    // LRESULT HandleInitDialog(WPARAM, LPARAM)
    ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
    // void OnClose()
    ON_WM_CLOSE()
END_MESSAGE_MAP()

namespace
{
/// What the sheet that this thread is making is to look like; the system's callback has no place for it.
thread_local const DWORD* wantedStyles = nullptr;
thread_local PFNPROPSHEETCALLBACK hostsCallback = nullptr;

// Style and extended style stand in both kinds of templates, in another order.
void setStyles(LPARAM dialogTemplate, const DWORD* styles)
{
    auto* bytes = reinterpret_cast<BYTE*>(dialogTemplate);
    WORD start[2] = {};
    memcpy(start, bytes, sizeof start);
    const bool extended = start[0] == 1 && start[1] == 0xFFFF;
    DWORD font = 0;
    memcpy(&font, bytes + (extended ? 12 : 0), sizeof font);
    const DWORD style =
        (styles[0] & ~static_cast<DWORD>(DS_SETFONT)) | (font & DS_SETFONT); // what follows depends on it
    memcpy(bytes + (extended ? 12 : 0), &style, sizeof style);
    memcpy(bytes + (extended ? 8 : 4), &styles[1], sizeof styles[1]);
}

// With these messages the system's sheet makes pages and tells them what happens, and goes on when they have answered.
bool tellsPages(UINT message, WPARAM wParam)
{
    switch (message)
    {
    case WM_INITDIALOG:
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_CLOSE:
        return true;
    case WM_SYSCOMMAND:
        return (wParam & 0xFFF0) == SC_CLOSE;
    default:
        return message >= PSM_SETCURSEL && message <= PSM_SETHEADERSUBTITLEW;
    }
}

int CALLBACK onSheet(HWND wnd, UINT message, LPARAM lParam)
{
    if (message == PSCB_PRECREATE && wantedStyles != nullptr)
        setStyles(lParam, wantedStyles);
    return hostsCallback != nullptr ? hostsCallback(wnd, message, lParam) : 0;
}
} // namespace

// ---- Construction

CPropertySheet::CPropertySheet()
{
    Construct(L"");
}

CPropertySheet::CPropertySheet(UINT captionId, CWnd* parent, UINT selectPage)
{
    Construct(captionId, parent, selectPage);
}

CPropertySheet::CPropertySheet(LPCTSTR caption, CWnd* parent, UINT selectPage)
{
    Construct(caption, parent, selectPage);
}

CPropertySheet::CPropertySheet(UINT captionId, CWnd* parent, UINT selectPage, HBITMAP watermark, HPALETTE palette,
                               HBITMAP header)
{
    Construct(captionId, parent, selectPage);
    setPictures(watermark, palette, header);
}

CPropertySheet::CPropertySheet(LPCTSTR caption, CWnd* parent, UINT selectPage, HBITMAP watermark, HPALETTE palette,
                               HBITMAP header)
{
    Construct(caption, parent, selectPage);
    setPictures(watermark, palette, header);
}

CPropertySheet::~CPropertySheet()
{
    for (CPropertyPage* page : m_pages)
        page->m_pSheet = nullptr;
    if (!CPropertySheet::DestroyWindow())
        UnsubclassWindow(); // it ends later, alone
}

void CPropertySheet::Construct(UINT captionId, CWnd* parent, UINT selectPage)
{
    CString caption;
    if (captionId != 0)
        caption.LoadString(captionId);
    Construct(caption.GetString(), parent, selectPage);
}

void CPropertySheet::Construct(LPCTSTR caption, CWnd* parent, UINT selectPage)
{
    m_strCaption = caption;
    m_pParentWnd = parent;
    m_hParent = parent->GetSafeHwnd();
    m_psh = {};
    m_psh.dwSize = sizeof m_psh;
    m_psh.dwFlags = PSH_PROPSHEETPAGE;
    m_psh.nStartPage = selectPage;
}

void CPropertySheet::setPictures(HBITMAP watermark, HPALETTE palette, HBITMAP header)
{
    if (watermark != nullptr)
        m_psh.dwFlags |= PSH_USEHBMWATERMARK | PSH_WATERMARK;
    if (palette != nullptr)
        m_psh.dwFlags |= PSH_USEHPLWATERMARK;
    if (header != nullptr)
        m_psh.dwFlags |= PSH_USEHBMHEADER | PSH_HEADER;
    m_psh.hbmWatermark = watermark;
    m_psh.hplWatermark = palette;
    m_psh.hbmHeader = header;
}

// ---- Making and running

HWND CPropertySheet::parentWindow() const
{
    if (m_hParent != nullptr) // its object may have gone since
        return ::IsWindow(m_hParent) ? m_hParent : nullptr;
    return m_pParentWnd->GetSafeHwnd();
}

// Null when no window came to be, or when it ended on the way.
HWND CPropertySheet::makeWindow(HWND owner, const DWORD* styles)
{
    std::vector<PROPSHEETPAGE> records;
    for (CPropertyPage* page : m_pages)
    {
        if (!page->isReady())
            return nullptr;
        page->m_bFirstSetActive = TRUE;
        records.push_back(page->record());
    }
    if (m_hWnd != nullptr || records.empty())
        return nullptr;
    PROPSHEETHEADER header = m_psh;
    header.dwFlags |= PSH_PROPSHEETPAGE | PSH_MODELESS | PSH_USECALLBACK;
    header.hwndParent = owner;
    header.hInstance = AfxGetInstanceHandle();
    header.pszCaption = m_strCaption;
    header.nPages = static_cast<UINT>(records.size());
    header.nStartPage = std::min(m_psh.nStartPage, header.nPages - 1);
    header.ppsp = records.data();
    header.pfnCallback = onSheet;
    wantedStyles = styles;
    hostsCallback = (m_psh.dwFlags & PSH_USECALLBACK) != 0 ? m_psh.pfnCallback : nullptr;
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL;
    AfxHookWindowCreate(this);
    const auto wnd = reinterpret_cast<HWND>(::PropertySheet(&header));
    AfxUnhookWindowCreate();
    wantedStyles = nullptr;
    hostsCallback = nullptr;
    const bool made = reinterpret_cast<INT_PTR>(wnd) > 0;
    return made && !kx::endsNow(wnd) && FromHandlePermanent(wnd) == this ? wnd : nullptr;
}

INT_PTR CPropertySheet::DoModal()
{
    if (m_hWnd != nullptr)
        return -1;
    m_nModalResult = -1;
    HWND top = nullptr;
    const HWND owner = GetSafeOwner_(parentWindow(), &top);
    m_bModeless = FALSE;
    {
        kx::Disabled disabled(owner);
        if (makeWindow(owner, nullptr) != nullptr)
            showModal();
        disabled.end();
        if (owner != nullptr && m_hWnd != nullptr && ::GetActiveWindow() == m_hWnd)
            ::SetActiveWindow(owner);
    }
    DestroyWindow();
    if (top != nullptr && ::IsWindow(top))
        ::EnableWindow(top, TRUE);
    return m_nModalResult;
}

void CPropertySheet::showModal()
{
    if ((m_nFlags & WF_CONTINUEMODAL) == 0)
        return; // ended while it was made
    try
    {
        RunModalLoop((GetStyle() & DS_NOIDLEMSG) != 0 ? MLF_SHOWONIDLE | MLF_NOIDLEMSG : MLF_SHOWONIDLE);
    }
    catch (CException* exception)
    {
        exception->Delete();
        m_nModalResult = -1;
    }
    if (m_hWnd != nullptr) // hidden before the owner comes alive, so that the right window gets the focus
        ShowWindow(SW_HIDE);
}

BOOL CPropertySheet::Create(CWnd* parent, DWORD style, DWORD exStyle)
{
    if (style == static_cast<DWORD>(-1))
        style = DS_MODALFRAME | DS_CONTEXTHELP | WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE;
    const DWORD styles[2] = {style, exStyle};
    m_bModeless = TRUE;
    return makeWindow(parent->GetSafeHwnd(), styles) != nullptr;
}

// The sheet of the system takes its own page away when it is through.
BOOL CPropertySheet::ContinueModal()
{
    return CWnd::ContinueModal() && SendMessage(PSM_GETCURRENTPAGEHWND) != 0;
}

void CPropertySheet::EndDialog(int result)
{
    EndModalLoop(result);
    if (m_bModeless)
        DestroyWindow();
}

// ---- Messages

LRESULT CPropertySheet::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!tellsPages(message, wParam))
        return CWnd::DefWindowProc(message, wParam, lParam);
    const kx::AtWork atWork(m_hWnd);
    return CWnd::DefWindowProc(message, wParam, lParam);
}

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM)
{
    return OnInitDialog();
}

BOOL CPropertySheet::OnInitDialog()
{
    const kx::StillThere here(*this);
    const auto answer = static_cast<BOOL>(Default()); // makes the first page, which may end the sheet
    if (!here)
        return FALSE;
    if (CTabCtrl* tabs = m_bStacked ? nullptr : GetTabControl())
        tabs->ModifyStyle(TCS_MULTILINE, TCS_SINGLELINE);
    if (m_bModeless && !IsWizard())
        hideButtons();
    return answer;
}

// The sheet ends where its buttons began.
void CPropertySheet::hideButtons()
{
    CRect rest;
    GetWindowRect(&rest);
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP})
    {
        const HWND button = ::GetDlgItem(m_hWnd, id);
        if (button == nullptr)
            continue;
        CRect place;
        ::GetWindowRect(button, &place);
        rest.bottom = std::min(rest.bottom, place.top);
        ::ShowWindow(button, SW_HIDE);
        ::EnableWindow(button, FALSE);
    }
    SetWindowPos(nullptr, 0, 0, rest.Width(), rest.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const HWND self = m_hWnd;
    if (CWnd::OnCommand(wParam, lParam) || FromHandlePermanent(self) != this)
        return TRUE;
    // The button that ends the loop is the answer.
    if (HIWORD(wParam) == BN_CLICKED)
        m_nModalResult = LOWORD(wParam);
    return FALSE;
}

BOOL CPropertySheet::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    return CWnd::OnCmdMsg(id, code, extra, info) || kx::routeToOwner(*this, id, code, extra, info);
}

void CPropertySheet::OnClose()
{
    m_nModalResult = IDCANCEL;
    if (m_bModeless)
        DestroyWindow();
    else
        Default();
}

BOOL CPropertySheet::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    // Ctrl with Tab, Page Up and Page Down walks through the pages.
    const bool walks = message->wParam == VK_TAB || message->wParam == VK_PRIOR || message->wParam == VK_NEXT;
    if (message->message == WM_KEYDOWN && walks && ::GetKeyState(VK_CONTROL) < 0 &&
        SendMessage(PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(message)) != 0)
        return TRUE;
    return PreTranslateInput(message);
}
