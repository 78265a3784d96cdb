// The balloon's window: creation with its region, painting, tools and hiding.
#include "oxa/tooltips/KxToolTip2.h"

#include <memory>

#include "BalloonShape.h"
#include "Hiding.h"
#include "SelectedObject.h"

namespace
{
constexpr INT_PTR toolBlock = 10;
constexpr UINT_PTR hideTimer = 10;
constexpr COLORREF paleYellow = 0xE6FFFF;
constexpr int regionFailed = ERROR;
constexpr wchar_t regionError[] = L"ERROR in Combining Region";

bool unite(CRgn& whole, const CRect& start, CRgn& tail, CRgn& body)
{
    return whole.CreateRectRgn(start.left, start.top, start.right, start.bottom) &&
           whole.CombineRgn(&tail, &body, RGN_OR) != regionFailed;
}

bool endsTip(UINT message)
{
    switch (message)
    {
    case WM_NCLBUTTONDOWN:
    case WM_NCRBUTTONDOWN:
    case WM_KEYDOWN:
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
        return true;
    default:
        return false;
    }
}

CRect clientRect(const CWnd& window)
{
    CRect client;
    window.GetClientRect(&client);
    return client;
}
} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(KxToolTip2, CWnd)
    // void OnPaint()
    ON_WM_PAINT()
    // int OnCreate(LPCREATESTRUCT)
    ON_WM_CREATE()
    // void OnLButtonDown(UINT, CPoint)
    ON_WM_LBUTTONDOWN()
    // void OnKillFocus(CWnd*)
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()
// clang-format on

KxToolTip2::KxToolTip2()
    : className(AfxRegisterWndClass(0)), ownerHandle(nullptr), textRect(0, 0, 0, 0), tools(toolBlock), width(180),
      height(80), bkColor(paleYellow), frameColor(0), textColor(0), fontHeight(14), fontName(L"Arial"),
      leftOriented(true)
{
}

KxToolTip2::~KxToolTip2()
{
    if (GetSafeHwnd() != nullptr)
        KillTimer(hideTimer);
    freeTools();
}

BOOL KxToolTip2::Create(CWnd* parent)
{
    if (GetSafeHwnd() != nullptr || parent == nullptr)
        return FALSE;
    ownerHandle = parent->GetSafeHwnd();
    if (!CreateEx(0, className, nullptr, WS_POPUP, 0, 0, width, height, ownerHandle, nullptr))
        return FALSE;
    SetOwner(parent);
    return TRUE;
}

void KxToolTip2::AddTool(CWnd* window, CString tipText, CPoint point, unsigned long color)
{
    if (window == nullptr)
        return;
    auto record = std::make_unique<Tool>(Tool{tipText, color, point});
    void*& slot = tools[window->GetSafeHwnd()];
    delete static_cast<Tool*>(slot);
    slot = record.release();
}

void KxToolTip2::ShowToolTip(HWND window)
{
    void* found = nullptr;
    if (!hideIfShown() || !tools.Lookup(window, found))
        return;
    const Tool& tool = *static_cast<const Tool*>(found);
    text = tool.text;
    textColor = tool.color;
    Show(tool.point.x, tool.point.y);
}

void KxToolTip2::Hide()
{
    hideIfShown();
}

bool KxToolTip2::hideIfShown()
{
    return GetSafeHwnd() == nullptr || !IsWindowVisible() || hideWindow(*this);
}

void KxToolTip2::SetWidth(int pixels)
{
    width = pixels;
}

void KxToolTip2::SetHeight(int pixels)
{
    height = pixels;
}

void KxToolTip2::SetLeftOriented(bool left)
{
    leftOriented = left;
}

void KxToolTip2::setTimer(unsigned int milliseconds)
{
    if (GetSafeHwnd() != nullptr)
        SetTimer(hideTimer, milliseconds, nullptr);
}

void KxToolTip2::RelayEvent(MSG* message)
{
    if (message != nullptr && endsTip(message->message))
        Hide();
}

BOOL KxToolTip2::PreTranslateMessage(MSG* message)
{
    if (message == nullptr)
        return FALSE;
    const bool timer = message->message == WM_TIMER; // kept on purpose: whichever timer it is
    if (timer && GetSafeHwnd() != nullptr)
        KillTimer(hideTimer);
    if ((timer || endsTip(message->message)) && !hideIfShown())
        return FALSE;
    return CWnd::PreTranslateMessage(message);
}

CString KxToolTip2::GetTextLabel() const
{
    return text;
}

void KxToolTip2::OnPaint()
{
    CPaintDC dc(this);
    CRgn shape;
    if (!unite(shape, BalloonShape::of(clientRect(*this), leftOriented).start, tailRgn, bodyRgn))
    {
        AfxMessageBox(regionError);
        return;
    }
    CBrush background(bkColor);
    CBrush frame(frameColor);
    dc.FillRgn(&shape, &background);
    dc.FrameRgn(&shape, &frame, 1, 1);

    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(textColor);
    const SelectedObject selectedFont(dc, font);
    CRect room = textRect;
    const unsigned int flags = BalloonShape::textFlags(dc.GetTextExtent(text).cx, room.Width());
    dc.DrawText(text, &room, flags);
}

int KxToolTip2::OnCreate(LPCREATESTRUCT create)
{
    if (CWnd::OnCreate(create) == -1)
        return -1;
    BalloonShape shape = BalloonShape::of(clientRect(*this), leftOriented);
    textRect = shape.text;

    // The objects of an earlier window, when the balloon is made again.
    bodyRgn.DeleteObject();
    tailRgn.DeleteObject();
    windowRgn.DeleteObject();
    font.DeleteObject();

    const CRect& body = shape.body;
    bodyRgn.CreateRoundRectRgn(body.left, body.top, body.right, body.bottom, BalloonShape::cornerSize,
                               BalloonShape::cornerSize);
    tailRgn.CreatePolygonRgn(shape.tail, BalloonShape::tailPoints, ALTERNATE);
    // The window owns the region that it is given, so it gets a copy of ours.
    CRgn given;
    if (!unite(windowRgn, shape.start, tailRgn, bodyRgn) || !given.CreateRectRgn(0, 0, 0, 0) ||
        given.CopyRgn(&windowRgn) == regionFailed)
    {
        AfxMessageBox(regionError);
        return -1;
    }
    if (SetWindowRgn(static_cast<HRGN>(given.GetSafeHandle()), TRUE))
        given.Detach();
    font.CreateFont(fontHeight, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, fontName);
    return 0;
}

void KxToolTip2::OnLButtonDown(UINT flags, CPoint point)
{
    if (hideIfShown())
        CWnd::OnLButtonDown(flags, point);
}

void KxToolTip2::OnKillFocus(CWnd* newWindow)
{
    CWnd::OnKillFocus(newWindow);
}

void KxToolTip2::Show(int x, int y)
{
    const HWND window = GetSafeHwnd();
    if (window == nullptr)
        return;
    const CSize screen(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));
    const CPoint place = BalloonShape::place(CPoint(x, y), CSize(width, height), screen, leftOriented);
    ::SetWindowPos(window, HWND_TOP, place.x, place.y, width, height, SWP_NOACTIVATE);
    ::ShowWindow(window, SW_SHOW);
}

void KxToolTip2::freeTools()
{
    for (POSITION at = tools.GetStartPosition(); at != nullptr;)
    {
        void* window = nullptr;
        void* record = nullptr;
        tools.GetNextAssoc(at, window, record);
        delete static_cast<Tool*>(record);
    }
    tools.RemoveAll();
}
