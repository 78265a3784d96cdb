// Hosts that end the frame while the platform's tree or header tells of something that cannot be called off.
#include <gtest/gtest.h>
#include "FrameHost.h"

namespace
{
HTREEITEM firstRow(OpenFrame& frame)
{
    return frame.m_tree.GetRootItem();
}

HTREEITEM secondRow(OpenFrame& frame)
{
    return frame.m_tree.GetNextSiblingItem(firstRow(frame));
}

/// Where something of the tree is, packed as a message has it.
LPARAM placeOf(OpenFrame& frame, HTREEITEM row)
{
    CRect place;
    frame.m_tree.GetItemRect(row, &place, TRUE);
    return MAKELPARAM(place.left + 2, place.CenterPoint().y);
}

void paint(CWnd& window)
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

const Cause ofTheTree[] = {
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
void pressDivider(OpenFrame& frame, UINT pressed)
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

const Cause ofTheHeader[] = {
    {"a divider begins to move", HDN_BEGINTRACKW, [](OpenFrame& f) { pressDivider(f, WM_LBUTTONDOWN); }},
    {"a divider was moved", HDN_ENDTRACKW, [](OpenFrame& f) { pressDivider(f, WM_LBUTTONDOWN); }},
    {"a divider is clicked twice", HDN_DIVIDERDBLCLICKW, [](OpenFrame& f) { pressDivider(f, WM_LBUTTONDBLCLK); }},
    {"a column is about to change", HDN_ITEMCHANGINGW, [](OpenFrame& f) { f.setColumnWidth(0, 77); }},
    {"the header is painted", NM_CUSTOMDRAW, [](OpenFrame& f) { paint(f.header()); }},
};

/// The host ends the frame at the first such notification of the child with that id.
void endIn(const Cause& cause, UINT_PTR child)
{
    FrameHost host(IDD_FRAME_HOST, true);
    OpenFrame& frame = host.usual();
    frame.addColumns(2, 120);
    frame.addRows(3);
    frame.m_tree.InsertItem(L"below", firstRow(frame), TVI_LAST);
    frame.m_tree.SelectItem(firstRow(frame));
    host.GetDlgItem(IDC_OTHER)->SetFocus();
    const HWND window = child == CKxTreeListFrame::ID_TREE ? frame.m_tree.m_hWnd : frame.header().m_hWnd;
    bool wasThere = false;
    host.onHear = [&](const HeardByHost& one)
    {
        if (host.frame == nullptr || one.message != WM_NOTIFY || one.code != cause.code ||
            reinterpret_cast<const NMHDR*>(one.lParam)->idFrom != child)
            return;
        host.frame.reset();
        wasThere = ::IsWindow(window) != FALSE;
    };
    cause.act(frame);
    EXPECT_EQ(nullptr, host.frame) << cause.what << ": it was not told";
    EXPECT_TRUE(wasThere) << cause.what << ": the control still works with its window";
    EXPECT_FALSE(::IsWindow(window)) << cause.what << ": the window ends behind that";
    EXPECT_EQ(nullptr, host.GetDlgItem(IDC_FRAME)) << cause.what;
}
} // namespace

TEST(EndedInNotification, of_the_tree)
{
    for (const Cause& cause : ofTheTree)
        endIn(cause, CKxTreeListFrame::ID_TREE);
}

TEST(EndedInNotification, of_the_header)
{
    for (const Cause& cause : ofTheHeader)
        endIn(cause, CKxTreeListFrame::ID_HEADER);
}

TEST(EndedInNotification, the_window_alone_and_the_frame_is_used_again)
{
    FrameHost host;
    OpenFrame frame;
    for (int round = 0; round < 3; ++round)
    {
        ASSERT_TRUE(frame.Create(L"KORVELTREELISTCTRL", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &host, 9));
        frame.Initialize();
        frame.addColumns(1, 90);
        frame.addRows(2);
        const HWND tree = frame.m_tree.m_hWnd;
        host.onHear = [&](const HeardByHost& one)
        {
            if (one.message == WM_NOTIFY && one.code == static_cast<UINT>(TVN_SELCHANGEDW))
                frame.DestroyWindow();
        };
        frame.m_tree.SelectItem(secondRow(frame));
        EXPECT_EQ(nullptr, frame.m_hWnd);
        EXPECT_EQ(nullptr, frame.m_tree.m_hWnd);
        EXPECT_EQ(nullptr, frame.header().m_hWnd);
        EXPECT_FALSE(::IsWindow(tree));
    }
}

TEST(EndedInNotification, with_an_open_editor)
{
    FrameHost host(IDD_FRAME_HOST, true);
    OpenFrame& frame = host.usual();
    frame.addColumns(1, 200);
    frame.addRows(2);
    const HWND tree = frame.m_tree.m_hWnd;
    const HWND edit = frame.openEditor(CRect(0, 0, 50, 18)).m_hWnd;
    host.onHear = [&](const HeardByHost& one)
    {
        if (one.message == WM_NOTIFY && one.code == static_cast<UINT>(TVN_SELCHANGEDW))
            host.frame.reset();
    };
    frame.m_tree.SelectItem(secondRow(frame));
    EXPECT_EQ(nullptr, host.frame);
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_FALSE(::IsWindow(tree));
}
