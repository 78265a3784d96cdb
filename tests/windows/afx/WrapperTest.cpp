// Thin wrappers: the forms with framework types, and what they do without a window.
#include "Fixture.h"

namespace
{
int cleanCalls = 0;

class CInner : public CChild
{
protected:
    afx_msg LRESULT OnAsked(WPARAM, LPARAM)
    {
        ++cleanCalls;
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CInner, CChild)
    // LRESULT OnAsked(WPARAM, LPARAM)
    ON_MESSAGE(WM_APP + 20, &CInner::OnAsked)
END_MESSAGE_MAP()

template <class Base> class CTemplated : public Base
{
public:
    int got = 0;

protected:
    afx_msg LRESULT OnAsked(WPARAM wParam, LPARAM)
    {
        got = static_cast<int>(wParam);
        return 1;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_TEMPLATE_MESSAGE_MAP(CTemplated, Base, Base)
    // LRESULT OnAsked(WPARAM, LPARAM)
    ON_MESSAGE(WM_APP + 21, &CTemplated<Base>::OnAsked)
END_MESSAGE_MAP()
} // namespace

TEST(Wrappers, text_goes_in_and_out_whole)
{
    CTop wnd;
    ASSERT_TRUE(wnd.make());
    const CString words(L'w', 3000);
    wnd.SetWindowText(words);
    CString read;
    wnd.GetWindowText(read);
    EXPECT_EQ(read, words);
    wchar_t buffer[4] = {};
    EXPECT_EQ(wnd.GetWindowText(buffer, 4), 3);
    EXPECT_EQ(wnd.GetWindowText(nullptr, 4), 0);
}

TEST(Wrappers, same_text_is_not_set_again)
{
    CTop parent;
    CChild edit;
    ASSERT_TRUE(parent.make() && edit.make(parent, 3, L"EDIT"));
    edit.SetWindowText(L"same");
    edit.SendMessage(EM_SETSEL, 2, 2);
    AfxSetWindowText(edit.m_hWnd, L"same");
    EXPECT_EQ(LOWORD(edit.SendMessage(EM_GETSEL)), 2) << "the caret stayed";
    AfxSetWindowText(edit.m_hWnd, L"other");
    EXPECT_EQ(LOWORD(edit.SendMessage(EM_GETSEL)), 0);
}

TEST(Wrappers, styles_change_and_say_so)
{
    CTop wnd;
    ASSERT_TRUE(wnd.make());
    EXPECT_TRUE(wnd.ModifyStyle(0, WS_BORDER, SWP_FRAMECHANGED));
    EXPECT_NE(wnd.GetStyle() & WS_BORDER, 0U);
    EXPECT_FALSE(wnd.ModifyStyle(0, WS_BORDER)) << "nothing to change";
    EXPECT_TRUE(wnd.ModifyStyleEx(0, WS_EX_TOOLWINDOW));
    EXPECT_TRUE(CWnd::ModifyStyle(wnd.m_hWnd, WS_BORDER, 0, 0));
}

TEST(Wrappers, rectangles_move_between_windows)
{
    CTop parent;
    CChild child;
    ASSERT_TRUE(parent.make(WS_POPUP, CRect(100, 50, 300, 150)) && child.make(parent));
    child.MoveWindow(CRect(10, 20, 40, 50));
    CRect rect;
    child.GetWindowRect(rect);
    EXPECT_EQ(rect, CRect(110, 70, 140, 100));
    parent.ScreenToClient(rect);
    EXPECT_EQ(rect, CRect(10, 20, 40, 50));
    parent.ClientToScreen(rect);
    EXPECT_EQ(rect.TopLeft(), CPoint(110, 70));
    CPoint point(1, 2);
    child.MapWindowPoints(&parent, &point, 1);
    EXPECT_EQ(point, CPoint(11, 22));
}

TEST(Wrappers, child_is_centred_in_its_parent)
{
    CTop parent;
    CChild child;
    ASSERT_TRUE(parent.make(WS_POPUP, CRect(0, 0, 200, 100)) && child.make(parent));
    child.MoveWindow(0, 0, 50, 20);
    child.CenterWindow();
    CRect rect;
    child.GetWindowRect(rect);
    EXPECT_EQ(rect, CRect(75, 40, 125, 60));
}

TEST(Wrappers, font_is_the_one_that_was_set)
{
    CTop parent;
    CChild edit;
    CFont font;
    ASSERT_TRUE(parent.make() && edit.make(parent, 3, L"EDIT"));
    font.CreatePointFont(100, L"Tahoma");
    edit.SetFont(&font);
    EXPECT_EQ(edit.GetFont(), &font);
    edit.SetFont(nullptr);
}

TEST(Wrappers, device_context_is_borrowed_and_given_back)
{
    CTop wnd;
    ASSERT_TRUE(wnd.make());
    CDC* dc = wnd.GetDC();
    ASSERT_NE(dc, nullptr);
    EXPECT_NE(dc->GetSafeHdc(), nullptr);
    EXPECT_EQ(wnd.ReleaseDC(dc), 1);
}

TEST(Wrappers, items_are_reached_by_id)
{
    CTop parent;
    CChild edit;
    ASSERT_TRUE(parent.make() && edit.make(parent, 3, L"EDIT"));
    parent.SetDlgItemInt(3, static_cast<UINT>(-5));
    BOOL good = FALSE;
    EXPECT_EQ(static_cast<int>(parent.GetDlgItemInt(3, &good)), -5);
    EXPECT_TRUE(good);
    parent.SetDlgItemText(3, L"words");
    CString text;
    EXPECT_EQ(parent.GetDlgItemText(3, text), 5);
    EXPECT_EQ(text, L"words");
    EXPECT_EQ(parent.GetDlgItemText(99, text), 0);
    EXPECT_EQ(text, L"");
    EXPECT_EQ(edit.SetDlgCtrlID(8), 3);
    EXPECT_EQ(parent.GetDlgItem(8), &edit);
}

TEST(Wrappers, scroll_limit_leaves_a_page)
{
    CTop wnd;
    ASSERT_TRUE(wnd.make(WS_POPUP | WS_VSCROLL));
    SCROLLINFO info = {};
    info.fMask = SIF_ALL;
    info.nMax = 99;
    info.nPage = 10;
    info.nPos = 20;
    EXPECT_TRUE(wnd.SetScrollInfo(SB_VERT, &info));
    EXPECT_EQ(wnd.GetScrollPos(SB_VERT), 20);
    EXPECT_EQ(wnd.GetScrollLimit(SB_VERT), 90);
    info.fMask = SIF_PAGE;
    info.nPage = 0;
    EXPECT_TRUE(wnd.SetScrollInfo(SB_VERT, &info));
    EXPECT_EQ(wnd.GetScrollLimit(SB_VERT), 100) << "without a page: one more than the upper end";
}

TEST(Wrappers, descendants_are_told_deep_or_shallow)
{
    CTop top;
    CInner child;
    CInner grandchild;
    ASSERT_TRUE(top.make() && child.make(top) && grandchild.make(child));
    cleanCalls = 0;
    top.SendMessageToDescendants(WM_APP + 20, 0, 0, FALSE);
    EXPECT_EQ(cleanCalls, 1);
    top.SendMessageToDescendants(WM_APP + 20);
    EXPECT_EQ(cleanCalls, 3);
    ::CreateWindowW(L"STATIC", L"", WS_CHILD, 0, 0, 1, 1, top.m_hWnd, nullptr, nullptr, nullptr);
    top.SendMessageToDescendants(WM_APP + 20, 0, 0, TRUE, TRUE);
    EXPECT_EQ(cleanCalls, 5);
}

TEST(Wrappers, template_class_has_a_message_map)
{
    CTemplated<CTop> wnd;
    ASSERT_TRUE(wnd.make());
    EXPECT_EQ(wnd.SendMessage(WM_APP + 21, 6), 1);
    EXPECT_EQ(wnd.got, 6);
}

TEST(Wrappers, object_without_a_window_fails_plainly)
{
    CWnd none;
    CString text(L"old");
    CRect rect(1, 2, 3, 4);
    none.GetWindowText(text);
    EXPECT_EQ(text, L"");
    none.SetWindowText(L"x");
    none.GetClientRect(rect);
    none.Invalidate();
    EXPECT_FALSE(none.UpdateData());
    EXPECT_FALSE(none.DestroyWindow());
    EXPECT_FALSE(none.IsWindowVisible());
    EXPECT_EQ(none.GetParent(), nullptr);
    EXPECT_EQ(none.GetParentFrame(), nullptr);
    EXPECT_EQ(none.GetTopLevelParent(), nullptr);
    EXPECT_EQ(none.GetDlgItem(3), nullptr);
    EXPECT_EQ(none.SendMessage(WM_GETTEXTLENGTH), 0);
    EXPECT_EQ(none.UnsubclassWindow(), nullptr);
    EXPECT_EQ(none.Detach(), nullptr);
}
