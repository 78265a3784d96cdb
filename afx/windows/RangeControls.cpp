// Progress bars, spin buttons, sliders.
#include <afxcmn.h>

#include "CommonParts.h"

using kx::ask;
using kx::createCommon;

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)

CProgressCtrl::CProgressCtrl() = default;

CProgressCtrl::~CProgressCtrl()
{
    DestroyWindow();
}

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_PROGRESS_CLASS, PROGRESS_CLASS, 0, dwStyle, rect, pParentWnd, nID);
}

BOOL CProgressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_PROGRESS_CLASS, PROGRESS_CLASS, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

void CProgressCtrl::SetRange(short nLower, short nUpper)
{
    ask(m_hWnd, PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper));
}

void CProgressCtrl::SetRange32(int nLower, int nUpper)
{
    ask(m_hWnd, PBM_SETRANGE32, nLower, nUpper);
}

void CProgressCtrl::GetRange(int& nLower, int& nUpper)
{
    PBRANGE range = {};
    ask(m_hWnd, PBM_GETRANGE, FALSE, &range);
    nLower = range.iLow;
    nUpper = range.iHigh;
}

int CProgressCtrl::GetPos()
{
    return ask<int>(m_hWnd, PBM_GETPOS);
}

int CProgressCtrl::SetPos(int nPos)
{
    return ask<int>(m_hWnd, PBM_SETPOS, nPos);
}

int CProgressCtrl::OffsetPos(int nPos)
{
    return ask<int>(m_hWnd, PBM_DELTAPOS, nPos);
}

int CProgressCtrl::SetStep(int nStep)
{
    return ask<int>(m_hWnd, PBM_SETSTEP, nStep);
}

int CProgressCtrl::StepIt()
{
    return ask<int>(m_hWnd, PBM_STEPIT);
}

COLORREF CProgressCtrl::SetBarColor(COLORREF clrBar)
{
    return ask<COLORREF>(m_hWnd, PBM_SETBARCOLOR, 0, clrBar);
}

COLORREF CProgressCtrl::SetBkColor(COLORREF clrNew)
{
    return ask<COLORREF>(m_hWnd, PBM_SETBKCOLOR, 0, clrNew);
}

BOOL CProgressCtrl::SetMarquee(BOOL fMarqueeMode, int nInterval)
{
    return ask<BOOL>(m_hWnd, PBM_SETMARQUEE, fMarqueeMode, nInterval);
}

CSpinButtonCtrl::CSpinButtonCtrl() = default;

CSpinButtonCtrl::~CSpinButtonCtrl()
{
    DestroyWindow();
}

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_UPDOWN_CLASS, UPDOWN_CLASS, 0, dwStyle, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_UPDOWN_CLASS, UPDOWN_CLASS, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::SetAccel(int nAccel, UDACCEL* pAccel)
{
    return pAccel != nullptr && nAccel >= 0 && ask<BOOL>(m_hWnd, UDM_SETACCEL, nAccel, pAccel);
}

UINT CSpinButtonCtrl::GetAccel(int nAccel, UDACCEL* pAccel) const
{
    return pAccel == nullptr || nAccel < 0 ? 0 : ask<UINT>(m_hWnd, UDM_GETACCEL, nAccel, pAccel);
}

int CSpinButtonCtrl::SetBase(int nBase)
{
    return ask<int>(m_hWnd, UDM_SETBASE, nBase);
}

UINT CSpinButtonCtrl::GetBase() const
{
    return ask<UINT>(m_hWnd, UDM_GETBASE);
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy)
{
    return CWnd::FromHandle(ask<HWND>(m_hWnd, UDM_SETBUDDY, pWndBuddy->GetSafeHwnd()));
}

CWnd* CSpinButtonCtrl::GetBuddy() const
{
    return CWnd::FromHandle(ask<HWND>(m_hWnd, UDM_GETBUDDY));
}

int CSpinButtonCtrl::SetPos(int nPos)
{
    return static_cast<short>(ask<int>(m_hWnd, UDM_SETPOS, 0, MAKELPARAM(nPos, 0)));
}

int CSpinButtonCtrl::GetPos() const
{
    return ask<int>(m_hWnd, UDM_GETPOS);
}

int CSpinButtonCtrl::SetPos32(int nPos)
{
    return ask<int>(m_hWnd, UDM_SETPOS32, 0, nPos);
}

int CSpinButtonCtrl::GetPos32(LPBOOL lpbError) const
{
    return ask<int>(m_hWnd, UDM_GETPOS32, 0, lpbError);
}

void CSpinButtonCtrl::SetRange(short nLower, short nUpper)
{
    ask(m_hWnd, UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower));
}

DWORD CSpinButtonCtrl::GetRange() const
{
    return ask<DWORD>(m_hWnd, UDM_GETRANGE);
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const
{
    const DWORD range = GetRange();
    lower = static_cast<short>(HIWORD(range));
    upper = static_cast<short>(LOWORD(range));
}

void CSpinButtonCtrl::SetRange32(int nLower, int nUpper)
{
    ask(m_hWnd, UDM_SETRANGE32, nLower, nUpper);
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const
{
    ask(m_hWnd, UDM_GETRANGE32, &lower, &upper);
}

CSliderCtrl::CSliderCtrl() = default;

CSliderCtrl::~CSliderCtrl()
{
    DestroyWindow();
}

BOOL CSliderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_BAR_CLASSES, TRACKBAR_CLASS, 0, dwStyle, rect, pParentWnd, nID);
}

BOOL CSliderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_BAR_CLASSES, TRACKBAR_CLASS, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

int CSliderCtrl::GetLineSize() const
{
    return ask<int>(m_hWnd, TBM_GETLINESIZE);
}

int CSliderCtrl::SetLineSize(int nSize)
{
    return ask<int>(m_hWnd, TBM_SETLINESIZE, 0, nSize);
}

int CSliderCtrl::GetPageSize() const
{
    return ask<int>(m_hWnd, TBM_GETPAGESIZE);
}

int CSliderCtrl::SetPageSize(int nSize)
{
    return ask<int>(m_hWnd, TBM_SETPAGESIZE, 0, nSize);
}

int CSliderCtrl::GetRangeMax() const
{
    return ask<int>(m_hWnd, TBM_GETRANGEMAX);
}

int CSliderCtrl::GetRangeMin() const
{
    return ask<int>(m_hWnd, TBM_GETRANGEMIN);
}

void CSliderCtrl::GetRange(int& nMin, int& nMax) const
{
    nMin = GetRangeMin();
    nMax = GetRangeMax();
}

void CSliderCtrl::SetRangeMin(int nMin, BOOL bRedraw)
{
    ask(m_hWnd, TBM_SETRANGEMIN, bRedraw, nMin);
}

void CSliderCtrl::SetRangeMax(int nMax, BOOL bRedraw)
{
    ask(m_hWnd, TBM_SETRANGEMAX, bRedraw, nMax);
}

void CSliderCtrl::SetRange(int nMin, int nMax, BOOL bRedraw)
{
    SetRangeMin(nMin, bRedraw);
    SetRangeMax(nMax, bRedraw);
}

void CSliderCtrl::GetSelection(int& nMin, int& nMax) const
{
    nMin = ask<int>(m_hWnd, TBM_GETSELSTART);
    nMax = ask<int>(m_hWnd, TBM_GETSELEND);
}

void CSliderCtrl::SetSelection(int nMin, int nMax)
{
    ask(m_hWnd, TBM_SETSELSTART, FALSE, nMin);
    ask(m_hWnd, TBM_SETSELEND, TRUE, nMax);
}

void CSliderCtrl::ClearSel(BOOL bRedraw)
{
    ask(m_hWnd, TBM_CLEARSEL, bRedraw);
}

void CSliderCtrl::GetChannelRect(LPRECT lprc) const
{
    ask(m_hWnd, TBM_GETCHANNELRECT, 0, lprc);
}

void CSliderCtrl::GetThumbRect(LPRECT lprc) const
{
    ask(m_hWnd, TBM_GETTHUMBRECT, 0, lprc);
}

int CSliderCtrl::GetThumbLength() const
{
    return ask<int>(m_hWnd, TBM_GETTHUMBLENGTH);
}

void CSliderCtrl::SetThumbLength(int nLength)
{
    ask(m_hWnd, TBM_SETTHUMBLENGTH, nLength);
}

int CSliderCtrl::GetPos() const
{
    return ask<int>(m_hWnd, TBM_GETPOS);
}

void CSliderCtrl::SetPos(int nPos)
{
    ask(m_hWnd, TBM_SETPOS, TRUE, nPos);
}

void CSliderCtrl::VerifyPos()
{
    ask(m_hWnd, TBM_SETPOS, FALSE, 0);
}

UINT CSliderCtrl::GetNumTics() const
{
    return ask<UINT>(m_hWnd, TBM_GETNUMTICS);
}

DWORD* CSliderCtrl::GetTicArray() const
{
    return ask<DWORD*>(m_hWnd, TBM_GETPTICS);
}

int CSliderCtrl::GetTic(int nTic) const
{
    return ask<int>(m_hWnd, TBM_GETTIC, nTic);
}

int CSliderCtrl::GetTicPos(int nTic) const
{
    return ask<int>(m_hWnd, TBM_GETTICPOS, nTic);
}

BOOL CSliderCtrl::SetTic(int nTic)
{
    return ask<BOOL>(m_hWnd, TBM_SETTIC, 0, nTic);
}

void CSliderCtrl::SetTicFreq(int nFreq)
{
    ask(m_hWnd, TBM_SETTICFREQ, nFreq);
}

void CSliderCtrl::ClearTics(BOOL bRedraw)
{
    ask(m_hWnd, TBM_CLEARTICS, bRedraw);
}

CWnd* CSliderCtrl::GetBuddy(BOOL fLocation) const
{
    return CWnd::FromHandle(ask<HWND>(m_hWnd, TBM_GETBUDDY, fLocation));
}

CWnd* CSliderCtrl::SetBuddy(CWnd* pWndBuddy, BOOL fLocation)
{
    return CWnd::FromHandle(ask<HWND>(m_hWnd, TBM_SETBUDDY, fLocation, pWndBuddy->GetSafeHwnd()));
}

CToolTipCtrl* CSliderCtrl::GetToolTips() const
{
    return kxWndFromHandle<CToolTipCtrl>(ask<HWND>(m_hWnd, TBM_GETTOOLTIPS));
}

void CSliderCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    ask(m_hWnd, TBM_SETTOOLTIPS, pWndTip->GetSafeHwnd());
}

int CSliderCtrl::SetTipSide(int nLocation)
{
    return ask<int>(m_hWnd, TBM_SETTIPSIDE, nLocation);
}
