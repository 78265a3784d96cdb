// The frame of the tree list: sizes, the horizontal bar, scrolling. What is to be set is said in ScrollRules.h.
#include "ScrollRules.h"

#include <algorithm>

#include "../frame/Surviving.h"
#include "BusyWindow.h"
#include "RecentNode.h"
#include "oxa/treelist/KxTreeListFrame.h"

using treelist::Measures;
using treelist::Range;
using treelist::ScrollCode;

namespace
{
constexpr UINT keepOrder = SWP_NOZORDER | SWP_NOACTIVATE;

static_assert(static_cast<unsigned>(ScrollCode::lineLeft) == SB_LINELEFT &&
              static_cast<unsigned>(ScrollCode::lineRight) == SB_LINERIGHT &&
              static_cast<unsigned>(ScrollCode::pageLeft) == SB_PAGELEFT &&
              static_cast<unsigned>(ScrollCode::pageRight) == SB_PAGERIGHT &&
              static_cast<unsigned>(ScrollCode::thumbPosition) == SB_THUMBPOSITION &&
              static_cast<unsigned>(ScrollCode::thumbTrack) == SB_THUMBTRACK &&
              static_cast<unsigned>(ScrollCode::left) == SB_LEFT &&
              static_cast<unsigned>(ScrollCode::right) == SB_RIGHT);

CSize clientSize(const CWnd& window)
{
    CRect client;
    ::GetClientRect(window.m_hWnd, &client);
    return client.Size();
}

CSize outerSize(const CWnd& window)
{
    CRect place;
    ::GetWindowRect(window.m_hWnd, &place);
    return place.Size();
}

// Every insertion of a row comes by here, so that nothing is set twice.
void resize(const CWnd& window, int width, int height)
{
    if (outerSize(window) == CSize(std::max(width, 0), std::max(height, 0)))
        return;
    ::SetWindowPos(window.m_hWnd, nullptr, 0, 0, width, height, SWP_NOMOVE | keepOrder);
}

int upperEnd(HWND window, int bar)
{
    int low = 0;
    int high = 0;
    ::GetScrollRange(window, bar, &low, &high);
    return high;
}
} // namespace

// A tree that hides its bar may leave the range as it was.
BOOL CKxTreeListFrame::VerticalScrollVisible()
{
    const bool shown = m_tree.m_hWnd != nullptr && (m_tree.GetStyle() & WS_VSCROLL) != 0;
    return shown && upperEnd(m_tree.m_hWnd, SB_VERT) != 0;
}

BOOL CKxTreeListFrame::HorizontalScrollVisible()
{
    return upperEnd(m_scrollBar.m_hWnd, SB_CTL) != 0;
}

int CKxTreeListFrame::StretchWidth(int a, int b)
{
    return treelist::StretchWidth(a, b);
}

Measures CKxTreeListFrame::Measure() const
{
    Measures now;
    now.frame = clientSize(*this);
    now.headerHeight = clientSize(m_tree.m_header).cy;
    now.barHeight = clientSize(m_scrollBar).cy;
    now.treeWidth = clientSize(m_tree).cx;
    now.total = m_tree.GetColumnsWidth();
    now.verticalBarWidth = ::GetSystemMetrics(SM_CXVSCROLL);
    return now;
}

// ---- Setting one thing

void CKxTreeListFrame::ShowBar(bool show)
{
    const DWORD style = m_scrollBar.GetStyle();
    if (((style & WS_DISABLED) == 0) != show)
        m_scrollBar.EnableWindow(show);
    if (((style & WS_VISIBLE) != 0) != show)
        m_scrollBar.ShowWindow(show ? SW_SHOWNA : SW_HIDE);
}

void CKxTreeListFrame::SetBarRange(int low, int high)
{
    Range now;
    m_scrollBar.GetScrollRange(&now.low, &now.high);
    if (now != Range{low, high})
        m_scrollBar.SetScrollRange(low, high);
}

void CKxTreeListFrame::PutHeader(int width)
{
    CKxHeaderCtrl& header = m_tree.m_header;
    const CRect wanted(CPoint(m_tree.m_horizontalOffset, 0), CSize(width, clientSize(header).cy));
    CRect place;
    header.GetWindowRect(&place);
    ScreenToClient(&place);
    if (place != wanted || (header.GetStyle() & WS_VISIBLE) == 0)
        header.SetWindowPos(nullptr, wanted.left, wanted.top, wanted.Width(), wanted.Height(),
                            keepOrder | SWP_SHOWWINDOW);
}

void CKxTreeListFrame::ShowFromTheLeft(const Measures& now)
{
    m_tree.m_horizontalOffset = 0;
    PaintTreeAnew();
    PutHeader(treelist::HeaderWidthAtRest(now));
}

// Every insertion of a row comes by here, so that the tree is not told twice.
void CKxTreeListFrame::PaintTreeAnew()
{
    if (m_tree.m_recent->LetAllBePainted())
        m_tree.Invalidate();
}

void CKxTreeListFrame::CancelEdit()
{
    if (m_tree.m_pEdit == nullptr)
        return;
    m_tree.SetEditState(EDIT_STATE_CANCEL);
    m_tree.ProcessEditNotification();
}

// ---- Recalculation

CKxTreeListFrame::BarInputs CKxTreeListFrame::ReadInputs(bool barShown)
{
    BarInputs inputs;
    inputs.frame = clientSize(*this);
    inputs.columns = m_tree.GetColumnsWidth();
    inputs.offset = m_tree.m_horizontalOffset;
    inputs.barShown = barShown;
    inputs.besideBar = barShown && VerticalScrollVisible() ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
    inputs.messages = treelist::BusyWindow::ChangingMessages();
    return inputs;
}

bool CKxTreeListFrame::IsSettled()
{
    return m_settled && *m_settled == ReadInputs(m_settled->barShown);
}

void CKxTreeListFrame::ResetScrollBar()
{
    if (m_tree.m_hWnd == nullptr)
        return;
    if (IsSettled())
    {
        if (!m_settled->barShown)
            PaintTreeAnew();
        CancelEdit();
        return;
    }
    const Surviving here(*this);
    const Measures now = Measure();
    const bool shown = !treelist::FitsWithoutBar(now);
    const BarInputs before = ReadInputs(shown);
    ShowBar(shown);
    if (!here)
        return;
    const CSize tree = treelist::TreeSize(now, shown);
    resize(m_tree, tree.cx, tree.cy);
    if (shown)
        resize(m_scrollBar, treelist::BarWidth(now, VerticalScrollVisible()), now.barHeight);
    SetBarRange(0, treelist::UpperEnd(now));
    if (shown)
        FollowHeader();
    else
        ShowFromTheLeft(now);
    m_settled = before == ReadInputs(shown) ? std::optional<BarInputs>(before) : std::nullopt;
    CancelEdit();
}

void CKxTreeListFrame::FollowHeader()
{
    CRect header;
    m_tree.m_header.GetWindowRect(&header);
    ScreenToClient(&header);
    m_tree.m_horizontalOffset = header.left;
    const int position = treelist::Difference(0, header.left);
    if (m_scrollBar.GetScrollPos() != position)
        m_scrollBar.SetScrollPos(position);
}

void CKxTreeListViewCtrl::ResetVertScrollBar()
{
    auto* const frame = dynamic_cast<CKxTreeListFrame*>(CWnd::FromHandlePermanent(::GetParent(m_hWnd)));
    if (frame != nullptr && &frame->m_tree == this)
        frame->ResetVertical();
}

void CKxTreeListFrame::ResetVertical()
{
    const Surviving here(*this);
    const Measures now = Measure();
    const CSize tree = treelist::TreeSize(now, HorizontalScrollVisible() != FALSE);
    resize(m_tree, tree.cx, tree.cy);
    Range range;
    m_scrollBar.GetScrollRange(&range.low, &range.high);
    const treelist::VerticalReset reset =
        treelist::ResetVertical(now, range, HorizontalScrollVisible() != FALSE, VerticalScrollVisible() != FALSE);
    if (reset.barShown)
        ShowBar(*reset.barShown);
    if (!here)
        return;
    if (reset.barWidth)
        resize(m_scrollBar, *reset.barWidth, now.barHeight);
    if (reset.treeHeight)
        resize(m_tree, now.frame.cx, *reset.treeHeight);
    if (reset.range)
        SetBarRange(reset.range->low, reset.range->high);
    if (reset.toTheLeftEnd)
        ShowFromTheLeft(now);
}

void CKxTreeListFrame::OnHeaderChanged()
{
    if (m_recalculationHeld)
        return;
    const Surviving here(*this);
    const int oldTotal = m_tree.GetColumnsWidth();
    m_tree.RecalcColumnsWidth();
    ResetScrollBar();
    if (!here || m_tree.m_hWnd == nullptr)
        return;
    const auto offset = treelist::OffsetAfterChange(oldTotal, Measure(), m_scrollBar.GetScrollPos(), ScrollLimit());
    if (offset)
    {
        m_tree.m_horizontalOffset = *offset;
        m_tree.m_header.SetWindowPos(nullptr, *offset, 0, 0, 0, SWP_NOSIZE | keepOrder);
    }
    m_tree.Invalidate();
}

// ---- Size and place

void CKxTreeListFrame::PlaceChildren(bool repaint)
{
    const CSize frame = clientSize(*this);
    const treelist::Placement place =
        treelist::Place(frame, clientSize(m_tree.m_header).cy, clientSize(m_scrollBar).cy);
    resize(m_tree.m_header, place.header.cx, place.header.cy);
    resize(m_tree, place.tree.cx, place.tree.cy);
    if (repaint)
        m_scrollBar.MoveWindow(&place.bar);
    else
        m_scrollBar.SetWindowPos(nullptr, place.bar.left, place.bar.top, place.bar.Width(), place.bar.Height(),
                                 keepOrder);
}

void CKxTreeListFrame::OnSize(UINT type, int cx, int cy)
{
    const Surviving here(*this);
    CWnd::OnSize(type, cx, cy);
    if (!here || m_tree.m_hWnd == nullptr)
        return;
    PlaceChildren(true);
    const Measures now = Measure();
    const treelist::Resized resized = treelist::Resize(now);
    ShowBar(resized.barShown);
    if (!here)
        return;
    resize(m_tree, now.frame.cx, resized.treeHeight);
    if (resized.barWidth)
        resize(m_scrollBar, *resized.barWidth, now.barHeight);
    SetBarRange(0, resized.upperEnd);
    ResetVertical();
}

void CKxTreeListFrame::OnMove(int x, int y)
{
    const Surviving here(*this);
    CWnd::OnMove(x, y);
    if (!here || m_tree.m_hWnd == nullptr)
        return;
    PlaceChildren(false);
    ResetVertical();
}

// ---- Scrolling

// With a page of 0 the framework's limit is the upper end plus 1.
int CKxTreeListFrame::ScrollLimit()
{
    return treelist::Difference(m_scrollBar.GetScrollLimit(), 1);
}

/// Where the thumb is: the message has room for 16 bits of it alone.
UINT CKxTreeListFrame::ThumbOf(UINT pos)
{
    constexpr UINT inMessage = 0xFFFF;
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    if (!m_scrollBar.GetScrollInfo(&info, SIF_TRACKPOS))
        return pos;
    const auto tracked = static_cast<UINT>(info.nTrackPos);
    return (tracked & inMessage) == pos ? tracked : pos;
}

void CKxTreeListFrame::OnHScroll(UINT code, UINT pos, CScrollBar* bar)
{
    const Surviving here(*this);
    if (bar == &m_scrollBar && m_tree.m_hWnd != nullptr)
    {
        const int current = m_scrollBar.GetScrollPos();
        ScrollTo(current, treelist::ScrollPosition(static_cast<ScrollCode>(code), ThumbOf(pos), current, ScrollLimit(),
                                                   clientSize(m_tree).cx));
    }
    if (here)
        CWnd::OnHScroll(code, pos, bar);
}

void CKxTreeListFrame::ScrollTo(int current, int position)
{
    const Surviving here(*this);
    m_scrollBar.SetScrollPos(position);
    m_tree.m_horizontalOffset = treelist::Difference(0, position);
    if (m_tree.m_pEdit != nullptr)
        m_tree.m_pEdit->ShowWindow(SW_HIDE);
    if (!here)
        return;
    const int shift = treelist::Difference(current, position);
    CRect client;
    m_tree.GetClientRect(&client);
    m_tree.ScrollWindow(shift, 0, &client, &client);
    ShiftEdit(shift);
    const Measures now = Measure();
    PutHeader(treelist::HeaderWidth(now.total, now.treeWidth, now.frame.cx));
}

void CKxTreeListFrame::ShiftEdit(int shift)
{
    CEdit* const edit = m_tree.m_pEdit;
    if (edit == nullptr)
        return;
    CRect place;
    edit->GetWindowRect(&place);
    m_tree.ScreenToClient(&place);
    place.OffsetRect(shift, 0);
    edit->SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(), keepOrder | SWP_SHOWWINDOW);
    edit->UpdateWindow();
}
