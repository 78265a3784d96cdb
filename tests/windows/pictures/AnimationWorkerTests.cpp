// CPictureEx: its worker, which must always be gone when it shall be, whatever happens to the window meanwhile.
#include "AnimationHost.h"

#include <tlhelp32.h>

#include <algorithm>
#include <iterator>
#include <memory>

#include "support/Guarded.h"
#include "support/LeakCounters.h"

namespace
{
constexpr int shortest = 5;    // a twentieth of a second
constexpr int longest = 65535; // eleven minutes

Movie flicker()
{
    return Movie().timed(Movie::Red, 1, shortest).timed(Movie::Blue, 2, shortest).timed(Movie::Green, 3, shortest);
}

constexpr COLORREF flickerColors[] = {red, blue, green, grey}; // grey: between two rounds

Movie standing()
{
    return Movie().image(Movie::Red).image(Movie::Blue);
}

int threadCount()
{
    const HANDLE all = ::CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    int count = 0;
    for (BOOL more = ::Thread32First(all, &entry); more; more = ::Thread32Next(all, &entry))
        count += entry.th32OwnerProcessID == ::GetCurrentProcessId() ? 1 : 0;
    ::CloseHandle(all);
    return count;
}

/// A handle of one's own to the worker.
class WorkerProbe
{
public:
    explicit WorkerProbe(const OpenPicture& picture)
    {
        ::DuplicateHandle(::GetCurrentProcess(), picture.worker(), ::GetCurrentProcess(), &m_thread, 0, FALSE,
                          DUPLICATE_SAME_ACCESS);
    }
    WorkerProbe(const WorkerProbe&) = delete;
    WorkerProbe& operator=(const WorkerProbe&) = delete;
    ~WorkerProbe() { ::CloseHandle(m_thread); }

    bool hasEnded(DWORD bound = 0) const { return ::WaitForSingleObject(m_thread, bound) == WAIT_OBJECT_0; }
    void suspend() const { ::SuspendThread(m_thread); }
    void resume() const { ::ResumeThread(m_thread); }

private:
    HANDLE m_thread = nullptr;
};

TEST(PictureExWorker, stop_ends_the_thread_and_gives_its_handle_back)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(standing()));
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(0, 0, red));
    const WorkerProbe worker(stand.picture);
    EXPECT_FALSE(worker.hasEnded());
    stand.picture.Stop();
    EXPECT_TRUE(worker.hasEnded());
    EXPECT_EQ(stand.picture.worker(), nullptr);
    stand.picture.Stop();
    EXPECT_FALSE(stand.picture.IsPlaying());
}

TEST(PictureExWorker, a_second_draw_starts_no_second_thread)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(flicker()));
    stand.picture.Draw();
    const HANDLE first = stand.picture.worker();
    const int threads = threadCount();
    for (int i = 0; i < 20; ++i)
        EXPECT_FALSE(stand.picture.Draw());
    EXPECT_EQ(stand.picture.worker(), first);
    EXPECT_EQ(threadCount(), threads);
    EXPECT_TRUE(stand.picture.IsPlaying());
}

TEST(PictureExWorker, stop_straight_after_draw)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(standing()));
    for (int i = 0; i < 300; ++i)
    {
        stand.picture.Draw();
        EXPECT_TRUE(stand.picture.IsPlaying());
        stand.picture.Stop();
        ASSERT_FALSE(stand.picture.IsPlaying());
        ASSERT_EQ(stand.picture.worker(), nullptr);
    }
    stand.picture.Draw();
    EXPECT_TRUE(stand.shows(0, 0, red));
}

TEST(PictureExWorker, a_load_while_it_plays_begins_anew)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(flicker()));
    stand.picture.Draw();
    const WorkerProbe worker(stand.picture);
    ASSERT_TRUE(stand.picture.Load(Movie(20, 10).image(Movie::Blue, {0, 0, 20, 10}).trailer()));
    EXPECT_TRUE(worker.hasEnded());
    EXPECT_FALSE(stand.picture.IsPlaying());
    EXPECT_TRUE(stand.picture.Draw());
    EXPECT_TRUE(stand.shows(19, 9, blue));
}

TEST(PictureExWorker, a_failed_load_while_it_plays_stops_it)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(flicker()));
    stand.picture.Draw();
    const WorkerProbe worker(stand.picture);
    EXPECT_FALSE(stand.picture.Load(resourceBytes(IDP_BROKEN)));
    EXPECT_TRUE(worker.hasEnded());
    EXPECT_EQ(stand.at(0, 0), yellow);
}

TEST(PictureExWorker, the_end_of_the_window_stops_it)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(flicker()));
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(0, 0, red));
    const WorkerProbe worker(stand.picture);
    EXPECT_TRUE(stand.picture.DestroyWindow());
    EXPECT_TRUE(worker.hasEnded());
    EXPECT_FALSE(stand.picture.IsPlaying());
    EXPECT_TRUE(stand.picture.IsAnimatedGIF()); // the picture stays loaded

    stand.picture.Draw(); // without a window it plays for nobody
    EXPECT_TRUE(stand.picture.IsPlaying());
    pumpFor(200);
    stand.picture.Stop();

    stand.picture.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 20, 18, 26), &stand.host);
    stand.picture.Draw();
    EXPECT_TRUE(stand.shows(0, 0, red));
    EXPECT_TRUE(stand.shows(0, 0, blue));
}

TEST(PictureExWorker, the_end_of_the_parent_stops_it)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(flicker()));
    stand.picture.Draw();
    const WorkerProbe worker(stand.picture);
    stand.host.DestroyWindow();
    EXPECT_TRUE(worker.hasEnded());
}

TEST(PictureExWorker, the_end_of_the_object_stops_it)
{
    PictureHost host;
    auto picture = std::make_unique<Guarded<OpenPicture>>();
    picture->Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 20, 18, 26), &host);
    ASSERT_TRUE(picture->Load(flicker()));
    picture->Draw();
    pumpFor(120);
    const WorkerProbe worker(*picture);
    picture.reset();
    EXPECT_TRUE(worker.hasEnded());
    pumpFor(60);
}

TEST(PictureExWorker, a_detached_window_may_end_while_it_plays)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(flicker()));
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(0, 0, red));
    const HWND window = stand.picture.UnsubclassWindow();
    ::DestroyWindow(window);
    pumpFor(200);
    EXPECT_TRUE(stand.picture.IsPlaying());
    stand.picture.Stop();
    EXPECT_FALSE(stand.picture.IsPlaying());
}

TEST(PictureExWorker, several_play_side_by_side)
{
    PictureHost host;
    OpenPicture pictures[6];
    for (int i = 0; i < 6; ++i)
    {
        pictures[i].Create(L"", WS_CHILD | WS_VISIBLE, CRect(10 * i, 0, 10 * i + 8, 6), &host);
        ASSERT_TRUE(pictures[i].Load(flicker()));
        pictures[i].Draw();
    }
    for (OpenPicture& picture : pictures)
    {
        EXPECT_TRUE(waitFor([&] { return shownAt(picture, 3, 3) == blue; }));
        EXPECT_TRUE(waitFor([&] { return shownAt(picture, 3, 3) == green; }));
    }
    pictures[2].Stop();
    for (OpenPicture& picture : pictures)
        EXPECT_EQ(picture.IsPlaying(), &picture != &pictures[2]);
}

// The worker is held fast, as a platform that does not come back would hold it.
TEST(PictureExWorker, a_worker_that_does_not_come_back_is_left_to_itself)
{
    PictureHost host;
    auto picture = std::make_unique<Guarded<OpenPicture>>();
    picture->Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 20, 18, 26), &host);
    ASSERT_TRUE(picture->Load(standing()));
    picture->Draw();
    ASSERT_TRUE(waitFor([&] { return shownAt(*picture, 0, 0) == red; }));
    pumpFor(50); // into its long wait
    const WorkerProbe worker(*picture);
    worker.suspend();
    picture->Stop();
    EXPECT_FALSE(worker.hasEnded());
    EXPECT_FALSE(picture->IsPlaying());
    picture->Draw(); // none beside it
    EXPECT_FALSE(picture->IsPlaying());
    worker.resume();
    ASSERT_TRUE(worker.hasEnded(5000));
    picture->Draw(); // it is gone: a new one plays
    EXPECT_TRUE(picture->IsPlaying());
    EXPECT_TRUE(waitFor([&] { return shownAt(*picture, 0, 0) == red; }));
    pumpFor(50);

    const WorkerProbe second(*picture);
    second.suspend();
    picture.reset();
    EXPECT_FALSE(second.hasEnded());
    second.resume();
    EXPECT_TRUE(second.hasEnded(5000)); // and has touched nothing of the object
}

TEST(PictureExWorker, paints_in_between_show_no_other_pixels)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(flicker()));
    stand.picture.SetBkColor(grey);
    stand.picture.Draw();
    int seen[4] = {};
    for (int i = 0; i < 3000; ++i)
    {
        stand.picture.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        for (const CPoint& at : {CPoint(0, 0), CPoint(7, 5)})
        {
            const COLORREF shown = shownAt(stand.picture, at.x, at.y);
            const COLORREF* const known = std::find(std::begin(flickerColors), std::end(flickerColors), shown);
            ASSERT_NE(known, std::end(flickerColors)) << std::hex << shown;
            ++seen[known - flickerColors];
        }
        if (i % 100 == 0)
            stand.picture.SetBkColor(grey);
        pumpFor(0);
    }
    EXPECT_GT(seen[0], 0);
    EXPECT_GT(seen[1], 0);
    EXPECT_GT(seen[2], 0);
    EXPECT_TRUE(stand.picture.IsPlaying());
}

/// Loads another picture in the middle of a paint.
class LoadsWhenPainted : public OpenPicture
{
public:
    int paints = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_PAINT && ++paints % 3 == 0)
        {
            Load(flicker());
            Draw();
        }
        return OpenPicture::WindowProc(message, wParam, lParam);
    }
};

TEST(PictureExWorker, may_be_loaded_within_a_paint)
{
    PictureStand<LoadsWhenPainted> stand;
    ASSERT_TRUE(stand.picture.Load(flicker()));
    stand.picture.Draw();
    EXPECT_TRUE(waitFor([&] { return stand.picture.paints > 60; }, 20000));
    EXPECT_TRUE(stand.picture.IsPlaying());
}

/// Loads another picture when the first one gives it its size.
class LoadsWhenSized : public OpenPicture
{
public:
    bool armed = false;
    BOOL inner = FALSE;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_SIZE && armed)
        {
            armed = false;
            inner = Load(Movie(30, 20).timed(Movie::Green, 1, longest, {0, 0, 30, 20}).image(Movie::Red).trailer());
            Draw();
        }
        return OpenPicture::WindowProc(message, wParam, lParam);
    }
};

TEST(PictureExWorker, a_load_within_a_load_wins)
{
    PictureStand<LoadsWhenSized> stand;
    const int before = gdiObjectCount();
    stand.picture.armed = true;
    EXPECT_FALSE(stand.picture.Load(flicker()));
    EXPECT_TRUE(stand.picture.inner);
    EXPECT_TRUE(stand.picture.IsPlaying());
    EXPECT_EQ(CSize(stand.picture.GetSize()), CSize(30, 20));
    EXPECT_TRUE(stand.shows(29, 19, green));
    stand.picture.UnLoad();
    EXPECT_LE(gdiObjectCount(), before + 2); // but for what the first paint makes
}

TEST(PictureExWorker, a_thousand_rounds_leave_nothing_behind)
{
    PictureStand<> stand;
    const recipe::Bytes movie = flicker().bytes();
    const recipe::Bytes still = Movie().image(Movie::Red).trailer().bytes();
    const TemporaryFile file(L"rounds.gif", &movie);
    const auto round = [&](int i)
    {
        switch (i % 5)
        {
        case 0:
            stand.picture.Load(static_cast<LPCTSTR>(file.path));
            break;
        case 1:
            stand.picture.Load(still);
            break;
        case 2:
            stand.picture.Load(MAKEINTRESOURCE(IDP_QUARTERS), L"BINARY");
            break;
        default:
            stand.picture.Load(movie);
            break;
        }
        stand.picture.Draw();
        if (i % 50 == 0)
            pumpFor(70);
        stand.host.repaint();
        stand.picture.Stop();
        if (i % 3 != 0)
            stand.picture.UnLoad();
    };
    for (int i = 0; i < 30; ++i)
        round(i);
    stand.picture.UnLoad();
    const int objects = gdiObjectCount();
    const int handles = kernelHandleCount();
    const int threads = threadCount();
    for (int i = 0; i < 1000; ++i)
        round(i);
    stand.picture.UnLoad();
    EXPECT_EQ(gdiObjectCount(), objects);
    EXPECT_NEAR(kernelHandleCount(), handles, 5);
    EXPECT_EQ(threadCount(), threads);
}

TEST(PictureExWorker, hundred_windows_come_and_go_while_they_play)
{
    PictureHost host;
    const auto round = [&]
    {
        OpenPicture picture;
        picture.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 20, 18, 26), &host);
        ASSERT_TRUE(picture.Load(flicker()));
        picture.Draw();
        pumpFor(3);
    };
    for (int i = 0; i < 10; ++i)
        round();
    const int objects = gdiObjectCount();
    const int handles = kernelHandleCount();
    const int windows = windowCount();
    for (int i = 0; i < 100; ++i)
        round();
    EXPECT_EQ(gdiObjectCount(), objects);
    EXPECT_NEAR(kernelHandleCount(), handles, 5);
    EXPECT_EQ(windowCount(), windows);
}
} // namespace
