// The one-line tip's window: fonts, timer, drawing and place.
#include "oxa/tooltips/ToolTip2.h"

#include "HeldInt.h"
#include "Hiding.h"
#include "LineTip.h"
#include "SelectedObject.h"

namespace
{
constexpr UINT_PTR closeTimer = 1001;
constexpr DWORD tipStyle = WS_POPUP | WS_CHILD | WS_CLIPSIBLINGS;
constexpr BYTE tipPitchAndFamily = 80;
constexpr UINT placeFlags = SWP_NOACTIVATE | SWP_SHOWWINDOW | SWP_NOOWNERZORDER;

static_assert(tipStyle == 0xC4000000 && placeFlags == 592);

void makeFont(CFont& font, int height, int weight)
{
    font.DeleteObject(); // that of an earlier window, when the tip is made again
    font.CreateFont(height, 0, 0, 0, weight, 0, 0, 0, 0, 0, 0, PROOF_QUALITY, tipPitchAndFamily, L"MS Sans Serif");
}

// An empty text is as high as its font.
CSize extent(CDC& dc, const CFont& font, const CString& text)
{
    const SelectedObject selected(dc, font);
    if (!text.IsEmpty())
        return dc.GetTextExtent(text);
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    return CSize(0, metrics.tmHeight);
}

void drawFrame(CDC& dc, CSize size)
{
    CBrush background(::GetSysColor(COLOR_INFOBK));
    CPen border(PS_SOLID, 0, RGB(0, 0, 0));
    const SelectedObject selectedBrush(dc, background);
    const SelectedObject selectedPen(dc, border);
    dc.Rectangle(0, 0, size.cx, size.cy);
}

void writeText(CDC& dc, const CFont& font, CPoint at, const CString& text)
{
    const SelectedObject selected(dc, font);
    dc.TextOut(at.x, at.y, text);
}
} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CToolTip2, CWnd)
    // void OnPaint()
    ON_WM_PAINT()
    // void OnTimer(UINT_PTR)
    ON_WM_TIMER()
END_MESSAGE_MAP()
// clang-format on

CToolTip2::CToolTip2()
    : timerId(closeTimer), displayTime(3000), parent(nullptr), shown(0), point(0, 0), fontHeight(25),
      parentHandle(nullptr)
{
}

CToolTip2::~CToolTip2() = default; // here, so that the module exports it

BOOL CToolTip2::Create(CWnd* parentWindow)
{
    if (GetSafeHwnd() != nullptr || parentWindow == nullptr)
        return FALSE;
    parent = parentWindow;
    parentHandle = parentWindow->GetSafeHwnd();
    shown = 0; // an earlier window may have gone while it was shown
    makeFont(normalFont, fontHeight, FW_NORMAL);
    makeFont(boldFont, fontHeight, FW_BOLD);
    return CreateEx(0, nullptr, nullptr, tipStyle, 0, 0, 0, 0, parentHandle, nullptr);
}

void CToolTip2::SetText(const CString& newText)
{
    text = newText;
    text.TrimRight();
}

void CToolTip2::SetHeight(int pixels)
{
    fontHeight = pixels;
}

void CToolTip2::setDisplayTime(int milliseconds)
{
    displayTime = milliseconds;
}

int CToolTip2::Show(const CPoint& at)
{
    if (text.IsEmpty() || shown != 0 || GetSafeHwnd() == nullptr || !::IsWindow(parentHandle))
        return 0;
    OnStartTimer();
    point = at;
    shown = 1;
    DisplayToolTip(point);
    return 1;
}

void CToolTip2::Close()
{
    closeAlive();
}

bool CToolTip2::closeAlive()
{
    if (GetSafeHwnd() != nullptr && !hideWindow(*this))
        return false;
    shown = 0;
    OnStopTimer();
    return true;
}

void CToolTip2::OnStartTimer()
{
    if (GetSafeHwnd() != nullptr)
        timerId = SetTimer(closeTimer, static_cast<UINT>(displayTime), nullptr);
}

void CToolTip2::OnStopTimer()
{
    if (GetSafeHwnd() != nullptr)
        KillTimer(timerId);
}

void CToolTip2::OnPaint()
{
    const CPaintDC dc(this);
    DisplayToolTip(point);
}

void CToolTip2::OnTimer(UINT_PTR id)
{
    OnStopTimer();
    if (closeAlive())
        CWnd::OnTimer(id);
}

void CToolTip2::DisplayToolTip(const CPoint& at)
{
    const LineTipText parts = LineTipText::split(text);
    CClientDC dc(this);
    const CSize leftSize = extent(dc, normalFont, parts.left);
    const CSize rightSize = extent(dc, boldFont, parts.right);
    CSize total = LineTipLayout::sum(leftSize, rightSize);
    dc.LPtoDP(&total);
    const LineTipLayout layout = LineTipLayout::of(at, leftSize, total);

    dc.SetBkMode(TRANSPARENT);
    drawFrame(dc, layout.frame);
    dc.SetTextColor(::GetSysColor(COLOR_INFOTEXT));
    dc.SetTextAlign(0);
    writeText(dc, normalFont, layout.left, parts.left);
    writeText(dc, boldFont, layout.right, parts.right);

    if (!::IsWindow(parentHandle))
        return; // the parent has gone: the tip stays where it is
    CRect place = layout.bounds;
    CWnd::FromHandle(parentHandle)->ClientToScreen(&place);
    SetWindowPos(&wndTop, heldInt(place.left + LineTipLayout::shift), heldInt(place.top + LineTipLayout::shift),
                 layout.frame.cx, layout.frame.cy, placeFlags);
}
