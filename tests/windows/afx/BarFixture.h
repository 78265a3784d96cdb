// A frame on the stack, and bars that say how big they are.
#pragma once
#include <afxext.h>

#include <functional>

#include "Fixture.h"

/// A frame without a border, so that its client area has the size that it is made with.
class CBarFrame : public CFrameWnd
{
public:
    int wasDone = 0;
    bool enableDo = true;
    int layouts = 0;

    explicit CBarFrame(CSize size = CSize(300, 200))
    {
        Create(nullptr, L"bars", WS_POPUP | WS_CLIPCHILDREN, CRect(CPoint(100, 100), size));
    }
    ~CBarFrame() override { DestroyWindow(); }
    void RecalcLayout(BOOL notify = TRUE) override
    {
        ++layouts;
        CFrameWnd::RecalcLayout(notify);
    }
    void setBorder(const CRect& border) { m_rectBorder = border; }

protected:
    void PostNcDestroy() override {} // on the stack
    afx_msg void OnDo() { ++wasDone; }
    afx_msg void OnUpdateDo(CCmdUI* ui) { ui->Enable(enableDo); }
    afx_msg void OnUpdateCheck(CCmdUI* ui) { ui->SetCheck(1); }
    DECLARE_MESSAGE_MAP()
};

/// A bar with a thickness; without stretching it is 100 long.
class CStrip : public CControlBar
{
public:
    int thickness = 0;
    std::function<void()> onMeasure;
    int updates = 0;
    CFrameWnd* updatedFor = nullptr;
    BOOL disabling = FALSE;
    bool* deleted = nullptr;

    ~CStrip() override
    {
        if (deleted != nullptr)
            *deleted = true;
    }
    bool make(CWnd& parent, DWORD style, int thick, UINT id)
    {
        thickness = thick;
        SetBarStyle(style);
        return Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &parent, id) != FALSE;
    }
    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override
    {
        const int length = stretch ? 32767 : 100;
        const CSize size = horizontal ? CSize(length, thickness) : CSize(thickness, length);
        if (const auto measure = onMeasure) // a copy: it may delete the bar
            measure();
        return size;
    }
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override
    {
        ++updates;
        updatedFor = target;
        disabling = disableIfNoHandler;
    }
    using CControlBar::WindowProc;
    int count(int items) { return m_nCount = items; }
    bool hasTips() const { return (m_nFlags & WF_TOOLTIPS) != 0; }
};

/// The place of a child in its parent's client area.
inline CRect placeOf(const CWnd& child)
{
    CRect place;
    child.GetWindowRect(&place);
    child.GetParent()->ScreenToClient(&place);
    return place;
}
