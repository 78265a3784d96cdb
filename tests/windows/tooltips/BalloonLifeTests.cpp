// The balloon's lifetimes, and calls that a careful host would not make.
#include "oxa/tooltips/KxToolTip2.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <memory>
#include <vector>

#include "TipHost.h"
#include "support/LeakCounters.h"

namespace
{
// A host's balloon that goes with its window.
class SelfDeletingBalloon : public KxToolTip2
{
public:
    explicit SelfDeletingBalloon(int& counter) : deleted(counter) {}
    SelfDeletingBalloon(const SelfDeletingBalloon&) = delete;
    SelfDeletingBalloon& operator=(const SelfDeletingBalloon&) = delete;
    ~SelfDeletingBalloon() override { ++deleted; }

protected:
    void PostNcDestroy() override { delete this; }

private:
    int& deleted;
};

// The blocks that the process has taken from its heaps.
int heapBlockCount()
{
    HANDLE heaps[64];
    const DWORD heapCount = std::min<DWORD>(::GetProcessHeaps(64, heaps), 64);
    int blocks = 0;
    for (DWORD i = 0; i < heapCount; ++i)
    {
        PROCESS_HEAP_ENTRY entry = {};
        ::HeapLock(heaps[i]);
        while (::HeapWalk(heaps[i], &entry))
            blocks += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
        ::HeapUnlock(heaps[i]);
    }
    return blocks;
}

void useBalloonOnce(CWnd& host)
{
    KxToolTip2 tip;
    tip.Create(&host);
    tip.AddTool(&host, L"first", CPoint(300, 400), 0);
    tip.AddTool(&host, L"second", CPoint(300, 400), 0);
    tip.ShowToolTip(host.m_hWnd);
    tip.setTimer(60000);
    tip.UpdateWindow();
}
} // namespace

TEST(BalloonLife, every_call_before_create_is_harmless)
{
    KxToolTip2 tip;
    TipHost host;
    tip.Hide();
    tip.setTimer(10);
    tip.ShowToolTip(host.m_hWnd);
    tip.AddTool(&host, L"filed early", CPoint(300, 400), 0);
    tip.ShowToolTip(host.m_hWnd);
    MSG message = {};
    message.message = WM_TIMER;
    EXPECT_FALSE(tip.PreTranslateMessage(&message));
    EXPECT_EQ(nullptr, tip.m_hWnd);
    EXPECT_TRUE(tip.GetTextLabel() == L"filed early");
    ASSERT_TRUE(tip.Create(&host));
    tip.ShowToolTip(host.m_hWnd);
    EXPECT_TRUE(tip.IsWindowVisible());
}

TEST(BalloonLife, a_null_window_gets_no_tool)
{
    KxToolTip2 tip;
    TipHost host;
    ASSERT_TRUE(tip.Create(&host));
    tip.AddTool(nullptr, L"nobody", CPoint(300, 400), 0);
    tip.ShowToolTip(nullptr);
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST(BalloonLife, a_parent_without_a_window_makes_a_balloon_without_an_owner_window)
{
    CWnd notCreated;
    KxToolTip2 tip;
    ASSERT_TRUE(tip.Create(&notCreated));
    EXPECT_EQ(nullptr, ::GetWindow(tip.m_hWnd, GW_OWNER));
}

TEST(BalloonLife, a_destroyed_parent_takes_the_window_along)
{
    KxToolTip2 tip;
    {
        TipHost host;
        ASSERT_TRUE(tip.Create(&host));
        tip.AddTool(&host, L"text", CPoint(300, 400), 0);
        tip.ShowToolTip(host.m_hWnd);
    }
    EXPECT_EQ(nullptr, tip.m_hWnd);
    tip.Hide();
    tip.setTimer(10);
    TipHost next;
    tip.AddTool(&next, L"again", CPoint(300, 400), 0);
    ASSERT_TRUE(tip.Create(&next));
    tip.ShowToolTip(next.m_hWnd);
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_EQ(&next, tip.GetOwner());
}

TEST(BalloonLife, a_balloon_made_again_has_the_new_shape)
{
    TipHost host;
    KxToolTip2 tip;
    ASSERT_TRUE(tip.Create(&host));
    tip.DestroyWindow();
    tip.SetWidth(240);
    ASSERT_TRUE(tip.Create(&host));
    HRGN region = ::CreateRectRgn(0, 0, 0, 0);
    ::GetWindowRgn(tip.m_hWnd, region);
    EXPECT_TRUE(::PtInRegion(region, 230, 35));
    ::DeleteObject(region);
}

TEST(BalloonLife, a_creation_message_that_comes_twice_leaves_the_balloon_whole)
{
    TipHost host;
    KxToolTip2 tip;
    ASSERT_TRUE(tip.Create(&host));
    CREATESTRUCTW create = {};
    tip.SendMessage(WM_CREATE, 0, reinterpret_cast<LPARAM>(&create));
    tip.AddTool(&host, L"text", CPoint(300, 400), 0);
    tip.ShowToolTip(host.m_hWnd);
    tip.UpdateWindow();
    EXPECT_TRUE(tip.IsWindowVisible());
}

TEST(BalloonLife, sizes_of_nothing_and_less_make_an_empty_balloon)
{
    TipHost host;
    for (const int size : {0, -1, INT_MIN})
    {
        KxToolTip2 tip;
        tip.SetWidth(size);
        tip.SetHeight(size);
        tip.AddTool(&host, L"text", CPoint(300, 400), 0);
        if (tip.Create(&host))
        {
            tip.ShowToolTip(host.m_hWnd);
            tip.UpdateWindow();
        }
        EXPECT_TRUE(tip.GetTextLabel().IsEmpty() || tip.GetTextLabel() == L"text");
    }
}

TEST(BalloonLife, points_at_the_ends_of_the_number_range_are_placed_on_the_screen)
{
    TipHost host;
    KxToolTip2 tip;
    ASSERT_TRUE(tip.Create(&host));
    tip.AddTool(&host, L"text", CPoint(INT_MAX, INT_MAX), 0);
    tip.ShowToolTip(host.m_hWnd);
    const int width = ::GetSystemMetrics(SM_CXSCREEN);
    const int height = ::GetSystemMetrics(SM_CYSCREEN);
    EXPECT_TRUE(windowRect(tip) == CRect(width - 180, height - 80, width, height));
    tip.AddTool(&host, L"text", CPoint(INT_MIN, INT_MIN), 0);
    tip.ShowToolTip(host.m_hWnd);
    EXPECT_TRUE(windowRect(tip) == CRect(0, -80, 180, 0));
}

TEST(BalloonLife, the_balloon_frees_replaced_tools_and_at_its_end_all_others)
{
    TipHost host;
    CWnd button;
    ASSERT_TRUE(makeButton(button, host, 7));
    const auto file = [&](KxToolTip2& tip, int times)
    {
        for (int i = 0; i < times; ++i)
        {
            tip.AddTool(&host, CString(L'a', 100), CPoint(i, i), 0);
            tip.AddTool(&button, CString(L'b', 100), CPoint(i, i), 0);
        }
    };
    KxToolTip2 replacing;
    file(replacing, 1);
    const int before = heapBlockCount();
    file(replacing, 1000);
    for (int i = 0; i < 1000; ++i)
    {
        KxToolTip2 ending;
        file(ending, 1);
    }
    EXPECT_LT(heapBlockCount() - before, 500); // one record lost each time would be 1000 and more
}

TEST(BalloonLife, the_window_gets_a_copy_of_the_region_so_that_no_region_is_deleted_twice)
{
    TipHost host;
    std::vector<HRGN> others;
    others.reserve(500);
    {
        KxToolTip2 tip;
        ASSERT_TRUE(tip.Create(&host));
        for (int i = 0; i < 500; ++i) // takes the handles that were freed on the way
            others.push_back(::CreateRectRgn(0, 0, 1, 1));
    }
    for (HRGN region : others)
    {
        EXPECT_EQ(static_cast<DWORD>(OBJ_REGION), ::GetObjectType(region));
        ::DeleteObject(region);
    }
}

TEST(BalloonLife, a_lost_block_is_seen_by_the_count_of_blocks)
{
    const int before = heapBlockCount();
    std::vector<std::unique_ptr<CString>> kept;
    kept.reserve(1000);
    for (int i = 0; i < 1000; ++i)
        kept.push_back(std::make_unique<CString>(L'a', 100));
    EXPECT_GE(heapBlockCount() - before, 1000);
}

TEST(BalloonLife, a_derived_balloon_may_delete_itself_with_its_window)
{
    int deleted = 0;
    {
        TipHost host;
        auto* tip = new SelfDeletingBalloon(deleted);
        ASSERT_TRUE(tip->Create(&host));
        tip->AddTool(&host, L"text", CPoint(300, 400), 0);
        tip->ShowToolTip(host.m_hWnd);
        EXPECT_EQ(0, deleted);
    }
    EXPECT_EQ(1, deleted);
}

TEST(BalloonLife, a_balloon_may_die_while_it_is_shown)
{
    TipHost host;
    HWND window = nullptr;
    {
        KxToolTip2 tip;
        ASSERT_TRUE(tip.Create(&host));
        tip.AddTool(&host, L"text", CPoint(300, 400), 0);
        tip.ShowToolTip(host.m_hWnd);
        tip.setTimer(60000);
        window = tip.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(window));
}

TEST(BalloonLife, two_hundred_balloons_leave_no_object_behind)
{
    TipHost host;
    useBalloonOnce(host);
    pumpFor(0);
    const int objects = gdiObjectCount();
    const int windows = windowCount();
    for (int i = 0; i < 200; ++i)
        useBalloonOnce(host);
    pumpFor(0);
    EXPECT_EQ(objects, gdiObjectCount());
    EXPECT_EQ(windows, windowCount());
}

TEST(BalloonLife, five_hundred_paints_leave_no_object_behind)
{
    TipHost host;
    KxToolTip2 tip;
    ASSERT_TRUE(tip.Create(&host));
    tip.AddTool(&host, L"This length is measured from the axis of the beam", CPoint(300, 400), 0);
    tip.ShowToolTip(host.m_hWnd);
    tip.UpdateWindow();
    const int objects = gdiObjectCount();
    for (int i = 0; i < 500; ++i)
    {
        tip.Invalidate();
        tip.UpdateWindow();
    }
    EXPECT_EQ(objects, gdiObjectCount());
}
