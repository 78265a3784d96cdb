// Progress bars, spin buttons and sliders.
#pragma once
#include "kx/ToolTipCtrl.h"

/// A progress bar.
class KXAFX_API CProgressCtrl : public CWnd
{
    DECLARE_DYNAMIC(CProgressCtrl)
public:
    CProgressCtrl();
    ~CProgressCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
    void GetRange(int& nLower, int& nUpper);
    int GetPos();
    /// Setters answer with what was set before.
    int SetPos(int nPos);
    int OffsetPos(int nPos);
    int SetStep(int nStep);
    int StepIt();
    COLORREF SetBarColor(COLORREF clrBar);
    COLORREF SetBkColor(COLORREF clrNew);
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval);
};

/// A pair of arrows that changes a number, often that of a buddy window.
class KXAFX_API CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)
public:
    CSpinButtonCtrl();
    ~CSpinButtonCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL SetAccel(int nAccel, UDACCEL* pAccel);
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const;
    int SetBase(int nBase);
    UINT GetBase() const;
    CWnd* SetBuddy(CWnd* pWndBuddy);
    CWnd* GetBuddy() const;
    int SetPos(int nPos);
    /// High word: 0 where the position was read.
    int GetPos() const;
    int SetPos32(int nPos);
    int GetPos32(LPBOOL lpbError = nullptr) const;
    void SetRange(short nLower, short nUpper);
    /// Low word: the upper limit; high word: the lower one.
    DWORD GetRange() const;
    void GetRange(int& lower, int& upper) const;
    void SetRange32(int nLower, int nUpper);
    void GetRange32(int& lower, int& upper) const;
};

/// A slider.
class KXAFX_API CSliderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSliderCtrl)
public:
    CSliderCtrl();
    ~CSliderCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetLineSize() const;
    int SetLineSize(int nSize);
    int GetPageSize() const;
    int SetPageSize(int nSize);
    int GetRangeMax() const;
    int GetRangeMin() const;
    void GetRange(int& nMin, int& nMax) const;
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE);
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE);
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE);
    void GetSelection(int& nMin, int& nMax) const;
    void SetSelection(int nMin, int nMax);
    void ClearSel(BOOL bRedraw = FALSE);
    void GetChannelRect(LPRECT lprc) const;
    void GetThumbRect(LPRECT lprc) const;
    int GetThumbLength() const;
    void SetThumbLength(int nLength);
    int GetPos() const;
    void SetPos(int nPos);
    void VerifyPos();
    UINT GetNumTics() const;
    DWORD* GetTicArray() const;
    int GetTic(int nTic) const;
    int GetTicPos(int nTic) const;
    BOOL SetTic(int nTic);
    void SetTicFreq(int nFreq);
    void ClearTics(BOOL bRedraw = FALSE);
    CWnd* GetBuddy(BOOL fLocation = TRUE) const;
    CWnd* SetBuddy(CWnd* pWndBuddy, BOOL fLocation = TRUE);
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    int SetTipSide(int nLocation);
};
