// A frame with a dialog bar at its top, what the bar does, and its data open to the tests.
#pragma once
#include <afxext.h>

#include <functional>
#include <memory>
#include <string>

#include "oxa/dialogs/KxDialogBarEx.h"
#include "resource.h"
#include "support/RealInput.h"

/// Writes down which of its operations are called, in order.
class OpenBar : public CKxDialogBarEx
{
public:
    std::string calls;
    bool disabled = false;
    bool* deleted = nullptr;
    std::function<void()> onInit;

    ~OpenBar() override
    {
        if (deleted != nullptr)
            *deleted = true;
    }
    void InitDialogBar() override
    {
        calls += "InitDialogBar ";
        if (const auto init = onInit)
            init();
        else
            CKxDialogBarEx::InitDialogBar();
    }
    void InitToolTips() override { calls += "InitToolTips "; }
    void OnInitDialogBar() override
    {
        calls += "OnInitDialogBar ";
        CKxDialogBarEx::OnInitDialogBar();
    }
    bool IsDlgBarDisabled() override
    {
        calls += "IsDlgBarDisabled ";
        return disabled;
    }
    void DoDataExchange(CDataExchange* exchange) override { calls += exchange->m_bSaveAndValidate ? "save " : "fill "; }
    HBRUSH handedOut() const { return static_cast<HBRUSH>(m_brushCtrl.GetSafeHandle()); }
    bool holdsContexts() const { return m_dcBack.GetSafeHdc() != nullptr || m_dcCtrl.GetSafeHdc() != nullptr; }
};

/// A frame without a border, on the stack.
class BarFrame : public CFrameWnd
{
public:
    BarFrame() { Create(nullptr, L"bars", WS_POPUP | WS_CLIPCHILDREN, CRect(60, 60, 660, 360)); }
    ~BarFrame() override { DestroyWindow(); }

protected:
    void PostNcDestroy() override {}
};

/// Keeps the painted look off or on while it lives, whatever the tests before did: nothing in the library turns it off.
class Look
{
public:
    explicit Look(bool painted)
    {
        if (painted)
            CKxDialogBarEx::SetOvewriteStyle();
        CKxDialogBarEx::m_bOverwriteStyle = painted;
    }
    ~Look() { CKxDialogBarEx::m_bOverwriteStyle = false; }
    Look(const Look&) = delete;
    Look& operator=(const Look&) = delete;
};

/// A shown frame with the bar of every kind of control, initialised.
struct BarHost
{
    BarFrame frame;
    OpenBar bar;

    explicit BarHost(UINT templateId = IDD_PALE_BAR, DWORD style = CBRS_TOP)
    {
        made = bar.Create(&frame, templateId, style, templateId) != FALSE;
        frame.RecalcLayout();
        frame.ShowWindow(SW_SHOW);
        frame.SetForegroundWindow();
        pumpFor(0);
    }
    CWnd& item(int id) const { return *bar.GetDlgItem(id); }
    CRect placeOf(int id) const
    {
        CRect place;
        item(id).GetWindowRect(&place);
        bar.ScreenToClient(&place);
        return place;
    }
    void repaint() { bar.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW); }

    bool made;
};

inline COLORREF shownAt(CWnd& window, int x, int y)
{
    const CClientDC dc(&window);
    return ::GetPixel(dc.GetSafeHdc(), x, y);
}

/// What a control on a bar is answered.
struct Answer
{
    HBRUSH brush;
    COLORREF text, ground;
    int mode;
};

/// Asks as a control does, by its message.
inline Answer ask(CWnd& bar, UINT kind, HWND control)
{
    CDC dc;
    CBitmap paper; // of the screen's colours: a new memory context is black and white
    CClientDC screen(nullptr);
    dc.CreateCompatibleDC(&screen);
    paper.CreateCompatibleBitmap(&screen, 1, 1);
    const HGDIOBJ before = ::SelectObject(dc.m_hDC, paper.m_hObject);
    dc.SetTextColor(RGB(1, 2, 3));
    dc.SetBkColor(RGB(4, 5, 6));
    dc.SetBkMode(OPAQUE);
    const LRESULT brush = bar.SendMessage(WM_CTLCOLORMSGBOX + kind, reinterpret_cast<WPARAM>(dc.m_hDC),
                                          reinterpret_cast<LPARAM>(control));
    ::SelectObject(dc.m_hDC, before);
    return {reinterpret_cast<HBRUSH>(brush), dc.GetTextColor(), dc.GetBkColor(), dc.GetBkMode()};
}

/// The colour of a solid brush; CLR_INVALID for another one.
inline COLORREF colorOf(HBRUSH brush)
{
    LOGBRUSH record = {};
    if (::GetObject(brush, sizeof record, &record) == 0 || record.lbStyle != BS_SOLID)
        return CLR_INVALID;
    return record.lbColor;
}

/// What a brush paints, from its own origin.
class BrushPicture
{
public:
    BrushPicture(HBRUSH brush, CSize size)
    {
        m_dc.CreateCompatibleDC(nullptr);
        m_bitmap.Attach(::CreateBitmap(size.cx, size.cy, 1, 32, nullptr));
        m_before = ::SelectObject(m_dc.m_hDC, m_bitmap.m_hObject);
        const RECT all = {0, 0, size.cx, size.cy};
        ::FillRect(m_dc.m_hDC, &all, brush);
    }
    ~BrushPicture() { ::SelectObject(m_dc.m_hDC, m_before); }
    BrushPicture(const BrushPicture&) = delete;
    BrushPicture& operator=(const BrushPicture&) = delete;
    COLORREF at(int x, int y) const { return ::GetPixel(m_dc.m_hDC, x, y); }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_before = nullptr;
};

inline COLORREF brushPixel(HBRUSH brush, int x, int y)
{
    return BrushPicture(brush, CSize(x + 1, y + 1)).at(x, y);
}
