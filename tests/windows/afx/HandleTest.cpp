// Which object stands for which window.
#include "Fixture.h"

#include <thread>

TEST(Handles, null_handle_has_no_object)
{
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(nullptr), nullptr);
}

TEST(Handles, created_window_is_found_as_its_own_object)
{
    CTop top;
    ASSERT_TRUE(top.make());
    EXPECT_EQ(CWnd::FromHandle(top.m_hWnd), &top);
    EXPECT_EQ(CWnd::FromHandlePermanent(top.m_hWnd), &top);
}

TEST(Handles, foreign_window_gets_a_temporary_object_and_no_permanent_one)
{
    CWnd* desktop = CWnd::GetDesktopWindow();
    ASSERT_NE(desktop, nullptr);
    EXPECT_EQ(desktop->m_hWnd, ::GetDesktopWindow());
    EXPECT_EQ(CWnd::FromHandlePermanent(::GetDesktopWindow()), nullptr);
    EXPECT_EQ(CWnd::FromHandle(::GetDesktopWindow()), desktop) << "the same one until the thread is idle";
}

TEST(Handles, idle_time_deletes_temporary_objects_but_not_their_windows)
{
    const HWND wnd = ::CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(CWnd::FromHandle(wnd), nullptr);
    AfxGetApp()->OnIdle(0);
    AfxGetApp()->OnIdle(1);
    EXPECT_TRUE(::IsWindow(wnd));
    ::DestroyWindow(wnd);
}

TEST(Handles, locked_maps_keep_temporary_objects)
{
    CWnd* before = CWnd::FromHandle(::GetDesktopWindow());
    AfxLockTempMaps();
    AfxGetApp()->OnIdle(1);
    EXPECT_EQ(CWnd::FromHandle(::GetDesktopWindow()), before);
    EXPECT_FALSE(AfxUnlockTempMaps());
}

TEST(Handles, deleted_object_leaves_no_entry_and_no_window)
{
    HWND wnd = nullptr;
    {
        CTop top;
        ASSERT_TRUE(top.make());
        wnd = top.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(wnd));
    EXPECT_EQ(CWnd::FromHandlePermanent(wnd), nullptr);
}

TEST(Handles, detached_object_leaves_its_window_alive)
{
    HWND wnd = nullptr;
    {
        CTop top;
        ASSERT_TRUE(top.make());
        wnd = top.Detach();
        EXPECT_EQ(top.m_hWnd, nullptr);
        EXPECT_EQ(CWnd::FromHandlePermanent(wnd), nullptr);
    }
    EXPECT_TRUE(::IsWindow(wnd));
    ::DestroyWindow(wnd);
}

TEST(Handles, attached_window_is_found_but_not_subclassed)
{
    const HWND wnd = ::CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    const LONG_PTR procedure = ::GetWindowLongPtr(wnd, GWLP_WNDPROC);
    CWnd object;
    EXPECT_TRUE(object.Attach(wnd));
    EXPECT_EQ(CWnd::FromHandle(wnd), &object);
    EXPECT_EQ(::GetWindowLongPtr(wnd, GWLP_WNDPROC), procedure);
    EXPECT_FALSE(object.Attach(::GetDesktopWindow())) << "it has a window already";
    EXPECT_TRUE(object.DestroyWindow());
    EXPECT_EQ(object.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(wnd), nullptr);
}

TEST(Handles, attaching_null_fails)
{
    CWnd object;
    EXPECT_FALSE(object.Attach(nullptr));
}

TEST(Handles, safe_handle_of_a_null_object_is_null)
{
    CWnd* volatile none = nullptr;
    CWnd* object = none;
    EXPECT_EQ(object->GetSafeHwnd(), nullptr);
}

TEST(Handles, another_thread_finds_a_temporary_object_only)
{
    CTop top;
    ASSERT_TRUE(top.make());
    const HWND wnd = top.m_hWnd;
    bool permanent = true;
    bool temporary = false;
    std::thread other(
        [&]
        {
            permanent = CWnd::FromHandlePermanent(wnd) != nullptr;
            CWnd* found = CWnd::FromHandle(wnd);
            temporary = found != nullptr && found != &top;
        });
    other.join();
    EXPECT_FALSE(permanent);
    EXPECT_TRUE(temporary);
}

TEST(Handles, owner_is_the_parent_until_one_is_set)
{
    CTop top;
    CTop other;
    CChild child;
    ASSERT_TRUE(top.make() && other.make() && child.make(top));
    EXPECT_EQ(child.GetOwner(), &top);
    child.SetOwner(&other);
    EXPECT_EQ(child.GetOwner(), &other);
    EXPECT_EQ(child.GetParent(), &top);
    child.SetOwner(nullptr);
    EXPECT_EQ(child.GetOwner(), &top);
}

TEST(Handles, parents_and_owners_are_told_apart)
{
    CTop top;
    CChild child;
    CChild grandchild;
    ASSERT_TRUE(top.make(WS_OVERLAPPEDWINDOW) && child.make(top) && grandchild.make(child));
    EXPECT_EQ(grandchild.GetTopLevelParent(), &top);
    EXPECT_EQ(grandchild.GetParentOwner(), &top);
    EXPECT_EQ(grandchild.GetParentFrame(), nullptr);
    EXPECT_EQ(top.GetDescendantWindow(7), &grandchild) << "the deepest window with the id";
}

TEST(Handles, comparison_goes_by_handle)
{
    CTop top;
    ASSERT_TRUE(top.make());
    CWnd alias;
    alias.m_hWnd = top.m_hWnd;
    EXPECT_TRUE(alias == top);
    alias.m_hWnd = nullptr;
    EXPECT_TRUE(alias != top);
}

TEST(Handles, special_places_in_the_order_have_their_handles)
{
    EXPECT_EQ(CWnd::wndTop.m_hWnd, HWND_TOP);
    EXPECT_EQ(CWnd::wndBottom.m_hWnd, HWND_BOTTOM);
    EXPECT_EQ(CWnd::wndTopMost.m_hWnd, HWND_TOPMOST);
    EXPECT_EQ(CWnd::wndNoTopMost.m_hWnd, HWND_NOTOPMOST);
}
