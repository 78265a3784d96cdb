// Dialog bars: the controls of a dialog template in a control bar.
#include <afxext.h>

IMPLEMENT_DYNAMIC(CDialogBar, CControlBar)

BEGIN_MESSAGE_MAP(CDialogBar, CControlBar)
    // LRESULT HandleInitDialog(WPARAM, LPARAM)
    ON_MESSAGE(WM_INITDIALOG, &CDialogBar::HandleInitDialog)
END_MESSAGE_MAP()

CDialogBar::CDialogBar() = default;

CDialogBar::~CDialogBar()
{
    m_bAutoDelete = FALSE;
    CDialogBar::DestroyWindow(); // while the object still is a dialog bar
}

BOOL CDialogBar::Create(CWnd* parent, UINT templateId, UINT style, UINT id)
{
    return Create(parent, MAKEINTRESOURCE(templateId), style, id);
}

BOOL CDialogBar::Create(CWnd* parent, LPCTSTR templateName, UINT style, UINT id)
{
    HINSTANCE module = AfxFindResourceHandle(templateName, RT_DIALOG);
    if (m_hWnd != nullptr || parent->GetSafeHwnd() == nullptr ||
        ::FindResource(module, templateName, RT_DIALOG) == nullptr)
        return FALSE;
    m_dwStyle = style & CBRS_ALL;
    m_lpszTemplateName = templateName;
    AfxHookWindowCreate(this);
    HWND wnd = ::CreateDialogParam(module, templateName, parent->m_hWnd, AfxDlgProc, 0);
    if (!AfxUnhookWindowCreate())
    {
        PostNcDestroy();
        return FALSE;
    }
    // Ended on the way? Then the object may be gone too.
    if (wnd == nullptr || FromHandlePermanent(wnd) != this)
        return FALSE;
    SetDlgCtrlID(static_cast<int>(id));
    CRect rect;
    GetWindowRect(&rect);
    m_sizeDefault = rect.Size();
    ModifyStyle(0, WS_CLIPSIBLINGS);
    if (!ExecuteDlgInit(templateName))
        return FALSE;
    if (FromHandlePermanent(wnd) != this)
        return FALSE;
    return SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

LRESULT CDialogBar::HandleInitDialog(WPARAM, LPARAM)
{
    Default();
    return FALSE; // the focus stays where it is
}

CSize CDialogBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    constexpr LONG whole = 32767;
    if (!stretch)
        return m_sizeDefault;
    return {horizontal ? whole : m_sizeDefault.cx, horizontal ? m_sizeDefault.cy : whole};
}

void CDialogBar::OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler)
{
    UpdateDialogControls(target, disableIfNoHandler);
}
