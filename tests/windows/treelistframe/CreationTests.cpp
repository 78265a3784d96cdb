// The window class, the three children, the flags.
#include <gtest/gtest.h>
#include "FrameHost.h"

namespace
{
CSize textExtentA(CWnd& window, CFont* font)
{
    CClientDC dc(&window);
    CFont* const before = dc.SelectObject(font);
    const CSize extent = dc.GetTextExtent(L"A", 1);
    dc.SelectObject(before);
    return extent;
}
} // namespace

TEST(TreeListClass, is_registered_for_dialog_templates)
{
    CKxTreeListFrame::RegisterClassW();
    CKxTreeListFrame::RegisterClassW(); // again: nothing happens
    WNDCLASSW record = {};
    ASSERT_TRUE(::GetClassInfoW(::GetModuleHandleW(L"Oxa10.dll"), L"KORVELTREELISTCTRL", &record));
    EXPECT_EQ(UINT{CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_GLOBALCLASS}, record.style);
    EXPECT_EQ(nullptr, record.hCursor);
    EXPECT_EQ(static_cast<HBRUSH>(::GetStockObject(LTGRAY_BRUSH)), record.hbrBackground);
    EXPECT_EQ(::GetModuleHandleW(L"Oxa10.dll"), record.hInstance);
}

TEST(TreeListClass, a_window_without_a_frame_object_does_what_the_system_does)
{
    CKxTreeListFrame::RegisterClassW();
    const HWND window =
        ::CreateWindowW(L"KORVELTREELISTCTRL", L"text", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(nullptr, window);
    wchar_t text[8] = {};
    EXPECT_EQ(4, ::GetWindowTextW(window, text, 8));
    ::DestroyWindow(window);
}

TEST(TreeListFrame, attaches_to_a_dialog_item)
{
    FrameHost host;
    EXPECT_EQ(1, host.attached);
    OpenFrame other;
    EXPECT_EQ(0, other.SubclassDlgItem(4711, &host)) << "there is no such item";
    EXPECT_EQ(nullptr, other.m_tree.m_hWnd);
}

TEST(TreeListFrame, creates_header_tree_and_bar)
{
    FrameHost host;
    OpenFrame& frame = *host.frame;
    EXPECT_EQ(frame.header().m_hWnd, ::GetDlgItem(frame, 337));
    EXPECT_EQ(frame.m_tree.m_hWnd, ::GetDlgItem(frame, 373));
    EXPECT_EQ(frame.bar().m_hWnd, ::GetDlgItem(frame, 377));
    EXPECT_EQ(0x50000006U, frame.header().GetStyle());
    EXPECT_EQ(DWORD{WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS},
              frame.m_tree.GetStyle() & ~DWORD{WS_CLIPSIBLINGS});
    EXPECT_EQ(0x58000002U, frame.bar().GetStyle());
}

TEST(TreeListFrame, places_the_children_at_first)
{
    FrameHost host;
    OpenFrame& frame = *host.frame;
    CRect window;
    frame.GetWindowRect(&window);
    const int textHeight = textExtentA(frame, host.GetFont()).cy;
    EXPECT_TRUE(frame.placeOf(frame.header()) == CRect(-1, -1, window.Width(), textHeight + 3));
    const int bottom = window.Height() - ::GetSystemMetrics(SM_CYHSCROLL) - 4;
    EXPECT_TRUE(frame.placeOf(frame.m_tree) == CRect(0, textHeight + 4, window.Width() - 4, bottom));
    const CRect bar = frame.placeOf(frame.bar());
    EXPECT_EQ(CPoint(0, bottom), bar.TopLeft());
    EXPECT_EQ(window.Width() - 4 - ::GetSystemMetrics(SM_CXVSCROLL), bar.Width());
    EXPECT_LE(bar.Height(), ::GetSystemMetrics(SM_CYHSCROLL) + 1) << "a bar takes the system's height";
}

TEST(TreeListFrame, the_header_has_a_copy_of_the_dialogs_font)
{
    FrameHost host;
    LOGFONT ofDialog = {};
    LOGFONT ofHeader = {};
    host.GetFont()->GetLogFont(&ofDialog);
    host.frame->header().GetFont()->GetLogFont(&ofHeader);
    EXPECT_NE(host.GetFont()->m_hObject, host.frame->header().GetFont()->m_hObject);
    EXPECT_EQ(ofDialog.lfHeight, ofHeader.lfHeight);
    EXPECT_STREQ(ofDialog.lfFaceName, ofHeader.lfFaceName);
}

TEST(TreeListFrame, stands_in_a_dialog_without_a_font)
{
    FrameHost host(IDD_FONTLESS_HOST);
    EXPECT_EQ(1, host.attached);
    EXPECT_GT(host.frame->headerHeight(), 4);
    host.frame->addColumns(1, 50);
    host.frame->addRows(1);
}

TEST(TreeListFrame, has_a_list_of_sort_images_without_images)
{
    FrameHost host;
    CImageList* const own = host.frame->header().SetSortImageList(nullptr);
    ASSERT_NE(nullptr, own);
    EXPECT_EQ(0, own->GetImageCount());
}

TEST(TreeListFrame, initialised_again_changes_nothing)
{
    FrameHost host;
    const HWND tree = host.frame->m_tree.m_hWnd;
    host.frame->Initialize();
    EXPECT_EQ(tree, host.frame->m_tree.m_hWnd);
    OpenFrame nowhere;
    nowhere.Initialize();
    EXPECT_EQ(nullptr, nowhere.m_tree.m_hWnd);
}

TEST(TreeListFrame, operations_without_a_window_do_nothing)
{
    OpenFrame frame;
    frame.ResetScrollBar();
    frame.m_tree.ResetVertScrollBar();
    frame.ExpandTree();
    frame.SortTree(0, 1, nullptr);
    EXPECT_FALSE(frame.VerticalScrollVisible());
    EXPECT_FALSE(frame.HorizontalScrollVisible());
    EXPECT_EQ(nullptr, frame.GetElementItemByString(L"x"));
    EXPECT_EQ(nullptr, frame.m_tree.m_hWnd);
}

TEST(TreeListFrame, can_be_created_without_a_template)
{
    CKxTreeListFrame::RegisterClassW();
    FrameHost host;
    OpenFrame frame;
    ASSERT_TRUE(frame.Create(L"KORVELTREELISTCTRL", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &host, 99));
    EXPECT_EQ(nullptr, frame.m_tree.m_hWnd);
    frame.Initialize();
    EXPECT_NE(nullptr, frame.m_tree.m_hWnd);
}

TEST(TreeListFlags, begin_without_editing_and_with_sorting)
{
    const CKxTreeListFrame frame;
    EXPECT_FALSE(frame.GetCanModifyLabels());
    EXPECT_TRUE(frame.GetCanSortTree());
}

TEST(TreeListFlags, before_the_tree_exists_the_flag_takes_the_argument)
{
    CKxTreeListFrame frame;
    frame.SetCanModifyLabels(true);
    EXPECT_TRUE(frame.GetCanModifyLabels());
    EXPECT_TRUE(frame.m_tree.GetCanModifyLabels());
    frame.SetCanModifyLabels(false);
    EXPECT_FALSE(frame.GetCanModifyLabels());
    EXPECT_FALSE(frame.m_tree.GetCanModifyLabels());
}

TEST(TreeListFlags, a_tree_that_is_created_modifiable_has_its_styles)
{
    FrameHost host(IDD_FRAME_HOST, true);
    EXPECT_EQ(DWORD{TVS_EDITLABELS | WS_TABSTOP}, host.frame->m_tree.GetStyle() & (TVS_EDITLABELS | WS_TABSTOP));
}

TEST(TreeListFlags, later_the_style_follows_and_the_flag_follows_the_style)
{
    FrameHost host;
    OpenFrame& frame = *host.frame;
    frame.SetCanModifyLabels(true);
    EXPECT_TRUE((frame.m_tree.GetStyle() & TVS_EDITLABELS) != 0);
    EXPECT_TRUE((frame.m_tree.GetStyle() & WS_TABSTOP) == 0) << "that one is given at creation alone";
    EXPECT_TRUE(frame.GetCanModifyLabels());
    EXPECT_TRUE(frame.m_tree.GetCanModifyLabels());
    frame.SetCanModifyLabels(false);
    EXPECT_TRUE((frame.m_tree.GetStyle() & TVS_EDITLABELS) == 0);
    EXPECT_FALSE(frame.GetCanModifyLabels());
    EXPECT_FALSE(frame.m_tree.GetCanModifyLabels());
}

TEST(TreeListFlags, sorting_can_be_switched)
{
    CKxTreeListFrame frame;
    frame.SetEnableTreeSort(false);
    EXPECT_FALSE(frame.GetCanSortTree());
    frame.SetEnableTreeSort(true);
    EXPECT_TRUE(frame.GetCanSortTree());
}

TEST(TreeListFrame, stretches_widths)
{
    CKxTreeListFrame frame;
    EXPECT_EQ(200, frame.StretchWidth(100, 100));
    EXPECT_EQ(100, frame.StretchWidth(99, 100));
    EXPECT_EQ(7, frame.StretchWidth(7, 0));
}
