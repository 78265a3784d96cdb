// What makes the platform's tree or header tell of itself.
#pragma once
#include "FrameHost.h"

inline HTREEITEM firstRow(OpenFrame& frame)
{
    return frame.m_tree.GetRootItem();
}

inline HTREEITEM secondRow(OpenFrame& frame)
{
    return frame.m_tree.GetNextSiblingItem(firstRow(frame));
}

/// Where something of the tree is, packed as a message has it.
inline LPARAM placeOf(OpenFrame& frame, HTREEITEM row)
{
    CRect place;
    frame.m_tree.GetItemRect(row, &place, TRUE);
    return MAKELPARAM(place.left + 2, place.CenterPoint().y);
}

inline void paint(CWnd& window)
{
    window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

/// What makes a control tell of itself.
struct Cause
{
    const char* what;
    UINT code;
    void (*act)(OpenFrame& frame);
};

inline const Cause ofTheTree[] = {
    {"a row is about to be selected", TVN_SELCHANGINGW, [](OpenFrame& f) { f.m_tree.SelectItem(secondRow(f)); }},
    {"a row is selected", TVN_SELCHANGEDW, [](OpenFrame& f) { f.m_tree.SelectItem(secondRow(f)); }},
    {"a row is selected by a click", TVN_SELCHANGEDW,
     [](OpenFrame& f) { f.m_tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, placeOf(f, secondRow(f))); }},
    {"a row is selected by a key", TVN_SELCHANGEDW, [](OpenFrame& f) { f.m_tree.SendMessage(WM_KEYDOWN, VK_DOWN, 1); }},
    {"a key is pressed", TVN_KEYDOWN, [](OpenFrame& f) { f.m_tree.SendMessage(WM_KEYDOWN, VK_DOWN, 1); }},
    {"a row is about to expand", TVN_ITEMEXPANDINGW, [](OpenFrame& f) { f.m_tree.Expand(firstRow(f), TVE_EXPAND); }},
    {"a row has expanded", TVN_ITEMEXPANDEDW, [](OpenFrame& f) { f.m_tree.Expand(firstRow(f), TVE_EXPAND); }},
    {"all rows expand", TVN_ITEMEXPANDEDW, [](OpenFrame& f) { f.ExpandTree(); }},
    {"a row is deleted", TVN_DELETEITEMW, [](OpenFrame& f) { f.m_tree.DeleteItem(firstRow(f)); }},
    {"all rows are deleted", TVN_DELETEITEMW, [](OpenFrame& f) { f.m_tree.DeleteAllItems(); }},
    {"a row is moved", TVN_DELETEITEMW, [](OpenFrame& f) { f.m_tree.MoveItem(secondRow(f), TVI_ROOT, TVI_FIRST); }},
    {"a row and its children are moved", TVN_DELETEITEMW,
     [](OpenFrame& f) { f.m_tree.MoveItemAndChildren(firstRow(f), TVI_ROOT, TVI_LAST, true); }},
    {"the tree gets the focus", NM_SETFOCUS, [](OpenFrame& f) { f.m_tree.SetFocus(); }},
    {"the tree loses the focus", NM_KILLFOCUS,
     [](OpenFrame& f)
     {
         f.m_tree.SetFocus();
         f.GetParent()->SetFocus();
     }},
    {"the tree is painted", NM_CUSTOMDRAW, [](OpenFrame& f) { paint(f.m_tree); }},
    {"a label is about to be edited", TVN_BEGINLABELEDITW, [](OpenFrame& f) { f.m_tree.EditLabel(firstRow(f)); }},
    {"a row is clicked twice", NM_DBLCLK,
     [](OpenFrame& f) { f.m_tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, placeOf(f, firstRow(f))); }},
};

/// One item of the header is pressed, moved by some pixels, and let go.
inline void pressDivider(OpenFrame& frame, UINT pressed)
{
    CRect place;
    frame.header().GetItemRect(0, &place);
    const CWnd& header = frame.header();
    const HWND window = header.m_hWnd; // what follows may end the frame
    const int y = place.CenterPoint().y;
    ::SendMessage(window, pressed, MK_LBUTTON, MAKELPARAM(place.right - 1, y));
    ::SendMessage(window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(place.right + 20, y));
    ::SendMessage(window, WM_LBUTTONUP, 0, MAKELPARAM(place.right + 20, y));
}

inline const Cause ofTheHeader[] = {
    {"a divider begins to move", HDN_BEGINTRACKW, [](OpenFrame& f) { pressDivider(f, WM_LBUTTONDOWN); }},
    {"a divider was moved", HDN_ENDTRACKW, [](OpenFrame& f) { pressDivider(f, WM_LBUTTONDOWN); }},
    {"a divider is clicked twice", HDN_DIVIDERDBLCLICKW, [](OpenFrame& f) { pressDivider(f, WM_LBUTTONDBLCLK); }},
    {"a column is about to change", HDN_ITEMCHANGINGW, [](OpenFrame& f) { f.setColumnWidth(0, 77); }},
    {"the header is painted", NM_CUSTOMDRAW, [](OpenFrame& f) { paint(f.header()); }},
};
