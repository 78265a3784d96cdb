// Control bars: styles, colours, border lines, and the ways of messages between a bar, its controls and its frame.
#include <afxext.h>

#include "StillThere.h"

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    // int OnCreate(LPCREATESTRUCT)
    ON_WM_CREATE()
    // void OnPaint()
    ON_WM_PAINT()
    // HBRUSH OnCtlColor(CDC*, CWnd*, UINT)
    ON_WM_CTLCOLOR()
    // void OnWindowPosChanged(WINDOWPOS*)
    ON_WM_WINDOWPOSCHANGED()
    // LRESULT OnSizeParent(WPARAM, LPARAM)
    ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
    // LRESULT OnIdleUpdateCmdUI(WPARAM, LPARAM)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
    // LRESULT OnInitialUpdate(WPARAM, LPARAM)
    ON_MESSAGE(WM_INITIALUPDATE, &CControlBar::OnInitialUpdate)
END_MESSAGE_MAP()

namespace
{
bool isOwnersMessage(UINT message)
{
    switch (message)
    {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return true;
    default:
        return false;
    }
}

bool isCtlColor(UINT message)
{
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}
} // namespace

CControlBar::CControlBar() = default;

CControlBar::~CControlBar()
{
    m_bAutoDelete = FALSE; // the object is on its way already
    CControlBar::DestroyWindow();
}

void CControlBar::SetBarStyle(DWORD style)
{
    if (m_hWnd != nullptr)
    {
        if (((m_dwStyle ^ style) & CBRS_TOOLTIPS) != 0)
            EnableToolTips((style & CBRS_TOOLTIPS) != 0);
        if (((m_dwStyle ^ style) & (CBRS_BORDER_ANY | CBRS_BORDER_3D)) != 0)
            Invalidate();
    }
    m_dwStyle = style;
}

void CControlBar::SetBorders(int left, int top, int right, int bottom)
{
    m_cxLeftBorder = left;
    m_cyTopBorder = top;
    m_cxRightBorder = right;
    m_cyBottomBorder = bottom;
}

void CControlBar::SetBorders(LPCRECT borders)
{
    if (borders != nullptr)
        SetBorders(borders->left, borders->top, borders->right, borders->bottom);
}

CFrameWnd* CControlBar::GetDockingFrame() const
{
    return GetParentFrame();
}

// ---- Life

BOOL CControlBar::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!CWnd::PreCreateWindow(cs))
        return FALSE;
    cs.style |= WS_CLIPSIBLINGS;
    return TRUE;
}

int CControlBar::OnCreate(LPCREATESTRUCT cs)
{
    if (CWnd::OnCreate(cs) == -1)
        return -1;
    if ((m_dwStyle & CBRS_TOOLTIPS) != 0)
        EnableToolTips(TRUE);
    return 0;
}

void CControlBar::PostNcDestroy()
{
    if (m_bAutoDelete)
        delete this;
}

// ---- Messages

// What the bar does not know itself is the owner's.
LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!isOwnersMessage(message))
        return CWnd::WindowProc(message, wParam, lParam);
    const kx::StillThere here(*this);
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result) || !here)
        return result;
    CWnd* owner = GetOwner();
    return owner != nullptr && owner->m_hWnd != m_hWnd ? owner->SendMessage(message, wParam, lParam) : 0;
}

BOOL CControlBar::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    // The accelerators of the frames come first: the dialog keys would take them.
    const kx::StillThere here(*this);
    for (HWND above = GetOwner()->GetSafeHwnd(); above != nullptr;)
    {
        CWnd* owner = FromHandlePermanent(above);
        if (owner != nullptr && owner != this && owner->PreTranslateMessage(message))
            return TRUE;
        if (!here)
            return FALSE;
        above = ::IsWindow(above) ? FromHandle(above)->GetParentFrame()->GetSafeHwnd() : nullptr;
    }
    return PreTranslateInput(message);
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM)
{
    const kx::StillThere here(*this);
    showPending();
    if (!here || (GetStyle() & WS_VISIBLE) == 0)
        return 0;
    auto* target = dynamic_cast<CFrameWnd*>(GetOwner());
    if (target == nullptr)
        target = GetParentFrame();
    if (target != nullptr)
        OnUpdateCmdUI(target, static_cast<BOOL>(wParam));
    return 0;
}

LRESULT CControlBar::OnInitialUpdate(WPARAM, LPARAM)
{
    return OnIdleUpdateCmdUI(TRUE, 0);
}

// ---- Painting

HBRUSH CControlBar::OnCtlColor(CDC* dc, CWnd* wnd, UINT ctlColor)
{
    const bool asked = isCtlColor(GetCurrentMessage()->message); // else somebody called this function
    const kx::StillThere here(*this);
    LRESULT result = 0;
    if (asked && wnd != nullptr && wnd->SendChildNotifyLastMsg(&result))
        return reinterpret_cast<HBRUSH>(result);
    if (!here)
        return nullptr;
    if (ctlColor == CTLCOLOR_BTN || ctlColor == CTLCOLOR_DLG || ctlColor == CTLCOLOR_STATIC)
    {
        if (dc != nullptr)
        {
            dc->SetBkColor(::GetSysColor(COLOR_BTNFACE));
            dc->SetTextColor(::GetSysColor(COLOR_BTNTEXT));
        }
        return ::GetSysColorBrush(COLOR_BTNFACE);
    }
    return asked ? reinterpret_cast<HBRUSH>(Default()) : nullptr;
}

void CControlBar::OnPaint()
{
    CPaintDC dc(this);
    if (IsVisible())
        DoPaint(&dc);
}

void CControlBar::DoPaint(CDC* dc)
{
    CRect rect;
    GetClientRect(&rect);
    DrawBorders(dc, rect);
}

void CControlBar::DrawBorders(CDC* dc, CRect& rect)
{
    const bool thick = (m_dwStyle & CBRS_BORDER_3D) != 0;
    const auto line = [&](DWORD border, UINT edge)
    {
        if ((m_dwStyle & border) == 0 || dc == nullptr)
            return;
        // A dark line, with a light one inside of it where the border is to look raised.
        dc->DrawEdge(&rect, thick ? EDGE_ETCHED : BDR_SUNKENOUTER, edge | BF_ADJUST | (thick ? 0U : BF_FLAT));
    };
    line(CBRS_BORDER_TOP, BF_TOP);
    line(CBRS_BORDER_BOTTOM, BF_BOTTOM);
    line(CBRS_BORDER_LEFT, BF_LEFT);
    line(CBRS_BORDER_RIGHT, BF_RIGHT);
}
