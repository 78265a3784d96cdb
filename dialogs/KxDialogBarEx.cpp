// The window side of the dialog bar: initialisation by a posted message, the painted background, disabled children.
#include "oxa/dialogs/KxDialogBarEx.h"

#include <algorithm>
#include <vector>

#include "BarColors.h"

namespace
{
constexpr UINT initMessage = WM_USER + 1;
constexpr UINT backgroundBitmap = 22041;
constexpr int classNameLength = 100;

/// One buffer for all bars: they live on one thread.
wchar_t sharedClassName[classNameLength];

/// A bitmap in a memory context, and the one before it back at the end.
class SelectedBitmap
{
public:
    SelectedBitmap(CDC& dc, const CBitmap& bitmap)
        : m_dc(dc.m_hDC), m_before(::SelectObject(m_dc, bitmap.GetSafeHandle()))
    {
    }
    ~SelectedBitmap()
    {
        if (m_before != nullptr)
            ::SelectObject(m_dc, m_before);
    }
    SelectedBitmap(const SelectedBitmap&) = delete;
    SelectedBitmap& operator=(const SelectedBitmap&) = delete;
    explicit operator bool() const { return m_before != nullptr; }

private:
    HDC m_dc;
    HGDIOBJ m_before;
};

/// Makes a scratch context, and deletes it at the end.
class ScratchContext
{
public:
    ScratchContext(CDC& scratch, CDC* like) : m_scratch(scratch)
    {
        m_scratch.DeleteDC(); // no other holds one: a bar paints one piece at a time
        m_made = m_scratch.CreateCompatibleDC(like);
    }
    ~ScratchContext() { m_scratch.DeleteDC(); }
    ScratchContext(const ScratchContext&) = delete;
    ScratchContext& operator=(const ScratchContext&) = delete;
    explicit operator bool() const { return m_made; }

private:
    CDC& m_scratch;
    bool m_made;
};

/// Makes a bitmap of a rectangle's size over again. A bitmap has one pixel at least, also for an empty rectangle.
bool makeOver(CBitmap& bitmap, CDC* like, const CRect& place)
{
    bitmap.DeleteObject();
    return bitmap.CreateCompatibleBitmap(like, std::max(place.Width(), 1), std::max(place.Height(), 1));
}

std::vector<HWND> childrenOf(HWND parent)
{
    std::vector<HWND> children;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

// By handles alone: what is disabled may end its neighbours, its parent and the bar with them.
void disableAll(HWND parent, unsigned int propertyId, unsigned int helpId)
{
    for (const HWND child : childrenOf(parent))
    {
        if (::GetAncestor(child, GA_PARENT) != parent ||
            BarRules::IsSpared(static_cast<unsigned int>(::GetDlgCtrlID(child)), propertyId, helpId))
            continue;
        ::EnableWindow(child, FALSE);
        disableAll(child, propertyId, helpId);
    }
}
} // namespace

bool CKxDialogBarEx::m_bOverwriteStyle = false;
CBitmap CKxDialogBarEx::m_bkBitmap;
CSize CKxDialogBarEx::m_sizeBkBitmap(0, 0);
CBrush CKxDialogBarEx::m_bkBrush;
CBrush CKxDialogBarEx::m_bkBrushDisabled;

IMPLEMENT_DYNAMIC(CKxDialogBarEx, CDialogBar)

BEGIN_MESSAGE_MAP(CKxDialogBarEx, CDialogBar)
    // int OnCreate(LPCREATESTRUCT)
    ON_WM_CREATE()
    // HBRUSH OnCtlColor(CDC*, CWnd*, UINT)
    ON_WM_CTLCOLOR()
    // BOOL OnEraseBkgnd(CDC*)
    ON_WM_ERASEBKGND()
    // LRESULT InitDialogBarHandler(WPARAM, LPARAM)
    ON_MESSAGE(initMessage, &CKxDialogBarEx::InitDialogBarHandler)
END_MESSAGE_MAP()

CKxDialogBarEx::CKxDialogBarEx()
{
    if (m_bkBrush.m_hObject == nullptr)
        m_bkBrush.CreateSolidBrush(BarColors::paleBlue);
    if (m_bkBrushDisabled.m_hObject == nullptr)
        m_bkBrushDisabled.CreateSolidBrush(::GetSysColor(COLOR_BTNFACE));
}

CKxDialogBarEx::~CKxDialogBarEx()
{
    m_bAutoDelete = FALSE;
    CKxDialogBarEx::DestroyWindow(); // while the brushes that its controls were given still live
}

// ---- Initialisation

int CKxDialogBarEx::OnCreate(LPCREATESTRUCT cs)
{
    if (CControlBar::OnCreate(cs) == -1)
        return -1;
    PostMessage(initMessage);
    return 0;
}

LRESULT CKxDialogBarEx::InitDialogBarHandler(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    const HWND self = m_hWnd;
    InitDialogBar();
    if (FromHandlePermanent(self) == this) // else it ended the bar, and perhaps the object
        InitToolTips();
    return 0;
}

void CKxDialogBarEx::InitDialogBar()
{
    OnInitDialogBar();
}

void CKxDialogBarEx::InitToolTips() {}

void CKxDialogBarEx::OnInitDialogBar()
{
    UpdateData(FALSE);
}

bool CKxDialogBarEx::IsDlgBarDisabled()
{
    return false;
}

void CKxDialogBarEx::UpdateDialogBar()
{
    OnInitDialogBar();
}

void CKxDialogBarEx::InitDlgBarFinished()
{
    if (IsDlgBarDisabled())
        DisableChildren(this);
}

void CKxDialogBarEx::SetPropertyId(unsigned int id)
{
    m_nPropertyId = id;
}

void CKxDialogBarEx::SetHelpId(unsigned int id)
{
    m_nHelpId = id;
}

void CKxDialogBarEx::DisableChildren(CWnd* parent)
{
    disableAll(parent->GetSafeHwnd(), m_nPropertyId, m_nHelpId);
}

BOOL CKxDialogBarEx::PreTranslateMessage(MSG* message)
{
    return CControlBar::PreTranslateMessage(message);
}

// ---- The painted look

void CKxDialogBarEx::SetOvewriteStyle()
{
    LPCTSTR const name = MAKEINTRESOURCE(backgroundBitmap);
    HBITMAP const bitmap = ::LoadBitmap(AfxFindResourceHandle(name, RT_BITMAP), name);
    if (!m_bkBitmap.Attach(bitmap))
    {
        ::DeleteObject(bitmap); // the one from an earlier call stays
        return;
    }
    BITMAP record = {};
    m_bOverwriteStyle = true;
    m_bkBitmap.GetObject(sizeof record, &record);
    m_sizeBkBitmap = CSize(record.bmWidth, record.bmHeight);
}

void CKxDialogBarEx::PaintBackground(CWnd* wnd, CDC* dc)
{
    if (!m_bOverwriteStyle || dc == nullptr || wnd->GetSafeHwnd() == nullptr)
        return;
    CRect client;
    wnd->GetClientRect(&client);
    const CRect place = BarRules::Background(client);
    CDC source;
    if (!source.CreateCompatibleDC(dc))
        return;
    if (const SelectedBitmap selected(source, m_bkBitmap); selected)
        dc->StretchBlt(place.left, place.top, place.Width(), place.Height(), &source, 0, 0, m_sizeBkBitmap.cx,
                       m_sizeBkBitmap.cy, SRCCOPY);
}

BOOL CKxDialogBarEx::OnEraseBkgnd(CDC* dc)
{
    if (m_bOverwriteStyle)
        PaintBackground(this, dc);
    else
        CDialogBar::OnEraseBkgnd(dc);
    return TRUE;
}

HBRUSH CKxDialogBarEx::OnCtlColor(CDC* dc, CWnd* wnd, unsigned int ctlColor)
{
    HWND const control = wnd->GetSafeHwnd();
    if (dc == nullptr || control == nullptr || ::GetClassName(control, sharedClassName, classNameLength) == 0)
        return CControlBar::OnCtlColor(dc, wnd, ctlColor);
    const bool isButton = wnd->IsKindOf(RUNTIME_CLASS(CButton));
    const BarColors colors =
        BarColors::Of(ctlColor, wnd->IsWindowEnabled(), m_bOverwriteStyle, isButton, sharedClassName);
    HBRUSH brush = nullptr;
    if (colors.brush == BarBrush::Pale)
        brush = m_bkBrush;
    else if (colors.brush == BarBrush::Disabled)
        brush = m_bkBrushDisabled;
    else if (colors.brush == BarBrush::Pattern)
        brush = patternBrush(dc, wnd);
    if (brush == nullptr)
        return CControlBar::OnCtlColor(dc, wnd, ctlColor);
    dc->SetTextColor(::GetSysColor(colors.textColor));
    if (colors.ground == BarColors::Ground::PaleBlue)
        dc->SetBkColor(BarColors::paleBlue);
    else if (colors.ground == BarColors::Ground::Highlight)
        dc->SetBkColor(::GetSysColor(COLOR_HIGHLIGHT));
    else
        dc->SetBkMode(TRANSPARENT);
    return brush;
}

// Null where there is no memory for the pictures.
HBRUSH CKxDialogBarEx::patternBrush(CDC* dc, CWnd* wnd)
{
    GetClientRect(&m_rectClient);
    wnd->GetWindowRect(&m_rectCtrl);
    ScreenToClient(&m_rectCtrl);
    const ScratchContext back(m_dcBack, dc);
    const ScratchContext piece(m_dcCtrl, dc);
    if (!back || !piece || !makeOver(m_bmpBack, dc, m_rectClient) || !makeOver(m_bmpCtrl, dc, m_rectCtrl))
        return nullptr;
    const SelectedBitmap barPicture(m_dcBack, m_bmpBack);
    const SelectedBitmap controlPicture(m_dcCtrl, m_bmpCtrl);
    m_dcBack.IntersectClipRect(&m_rectCtrl); // the rest of the picture is not looked at
    PaintBackground(this, &m_dcBack);
    const CRect place = m_rectCtrl;
    m_dcCtrl.BitBlt(0, 0, place.Width(), place.Height(), &m_dcBack, place.left, place.top, SRCCOPY);
    m_brushCtrl.DeleteObject();
    m_brushCtrl.CreatePatternBrush(&m_bmpCtrl);
    return m_brushCtrl;
}
