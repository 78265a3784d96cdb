// The application, threads, the pump, frames, tool tips.
#include "Fixture.h"
#include "ids.h"
#include "support/AnswerModal.h"
#include "support/RealInput.h"

#include <memory>

namespace
{
class CTestFrame : public CFrameWnd
{
public:
    static bool alive;
    int wasDone = 0;

    CTestFrame() { alive = true; }
    ~CTestFrame() override { alive = false; }

protected:
    afx_msg void OnDo() { ++wasDone; }
    DECLARE_MESSAGE_MAP()
};
bool CTestFrame::alive = false;

BEGIN_MESSAGE_MAP(CTestFrame, CFrameWnd)
    // void OnDo()
    ON_COMMAND(ID_TEST_DO, &CTestFrame::OnDo)
END_MESSAGE_MAP()

class CFilter : public CTop
{
public:
    UINT wanted = 0;
    int asked = 0;
    BOOL PreTranslateMessage(MSG* message) override
    {
        ++asked;
        return message->message == wanted || CWnd::PreTranslateMessage(message);
    }
};

class CPumpThread : public CWinThread
{
    DECLARE_DYNCREATE(CPumpThread)
public:
    static volatile LONG got;
    BOOL InitInstance() override { return TRUE; }

protected:
    afx_msg void OnTold(WPARAM wParam, LPARAM)
    {
        ::InterlockedExchange(&got, static_cast<LONG>(wParam));
        ::PostQuitMessage(6);
    }
    DECLARE_MESSAGE_MAP()
};
volatile LONG CPumpThread::got = 0;
IMPLEMENT_DYNCREATE(CPumpThread, CWinThread)
BEGIN_MESSAGE_MAP(CPumpThread, CWinThread)
    // void OnTold(WPARAM, LPARAM)
    ON_THREAD_MESSAGE(WM_APP + 9, &CPumpThread::OnTold)
END_MESSAGE_MAP()

/// Sets the application's main window for the length of a test.
class MainWnd
{
public:
    explicit MainWnd(CWnd* wnd) { AfxGetApp()->m_pMainWnd = wnd; }
    ~MainWnd() { AfxGetApp()->m_pMainWnd = nullptr; }
    MainWnd(const MainWnd&) = delete;
    MainWnd& operator=(const MainWnd&) = delete;
};
} // namespace

TEST(App, knows_itself_and_its_module)
{
    ASSERT_NE(AfxGetApp(), nullptr);
    EXPECT_EQ(AfxGetThread(), AfxGetApp());
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandle(nullptr));
    EXPECT_EQ(AfxGetApp()->m_hInstance, ::GetModuleHandle(nullptr));
    EXPECT_STREQ(AfxGetAppName(), L"win-afx");
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
}

TEST(App, message_box_carries_its_name_and_text)
{
    const AnswerModal answer(IDNO);
    EXPECT_EQ(AfxMessageBox(L"Shall we?", MB_YESNO), IDNO);
    EXPECT_EQ(AnswerModal::seen().substr(0, 8), L"win-afx|");
    EXPECT_NE(AnswerModal::seen().find(L"Shall we?"), std::wstring::npos);
}

TEST(App, message_box_takes_a_string_id)
{
    const AnswerModal answer(IDOK);
    EXPECT_EQ(AfxMessageBox(IDS_PLAIN), IDOK);
    EXPECT_NE(AnswerModal::seen().find(L"plain"), std::wstring::npos);
}

TEST(App, exception_reports_its_message)
{
    const AnswerModal answer(IDOK);
    CNotSupportedException exception;
    EXPECT_EQ(exception.ReportError(), IDOK);
    EXPECT_NE(AnswerModal::seen(), L"");
}

TEST(App, loads_standard_cursors_and_icons)
{
    EXPECT_EQ(AfxGetApp()->LoadStandardCursor(IDC_WAIT), ::LoadCursor(nullptr, IDC_WAIT));
    EXPECT_EQ(AfxGetApp()->LoadStandardIcon(IDI_WARNING), ::LoadIcon(nullptr, IDI_WARNING));
    EXPECT_EQ(AfxGetApp()->LoadIcon(9999U), nullptr);
}

TEST(App, keeps_profile_data_in_the_registry)
{
    CWinApp* app = AfxGetApp();
    app->SetRegistryKey(L"Oxa framework test");
    EXPECT_TRUE(app->WriteProfileInt(L"Part", L"Number", -7));
    EXPECT_EQ(static_cast<int>(app->GetProfileInt(L"Part", L"Number", 1)), -7);
    EXPECT_EQ(app->GetProfileInt(L"Part", L"Missing", 9), 9U);
    EXPECT_TRUE(app->WriteProfileString(L"Part", L"Text", L"some words"));
    EXPECT_EQ(app->GetProfileString(L"Part", L"Text"), L"some words");
    EXPECT_TRUE(app->WriteProfileString(L"Part", L"Text", nullptr));
    EXPECT_EQ(app->GetProfileString(L"Part", L"Text", L"none"), L"none");
    BYTE bytes[] = {1, 0, 255};
    EXPECT_TRUE(app->WriteProfileBinary(L"Part", L"Bytes", bytes, 3));
    LPBYTE read = nullptr;
    UINT count = 0;
    ASSERT_TRUE(app->GetProfileBinary(L"Part", L"Bytes", &read, &count));
    const std::unique_ptr<BYTE[]> owned(read);
    ASSERT_EQ(count, 3U);
    EXPECT_EQ(read[2], 255);
    EXPECT_TRUE(app->WriteProfileString(L"Part", nullptr, nullptr)) << "a null entry deletes the section";
    EXPECT_EQ(app->GetProfileInt(L"Part", L"Number", 3), 3U);
}

TEST(App, wait_cursor_nests)
{
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
    {
        const CWaitCursor outer;
        {
            CWaitCursor inner;
            ::SetCursor(::LoadCursor(nullptr, IDC_CROSS));
            inner.Restore();
            EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_WAIT));
        }
        EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_WAIT));
    }
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_ARROW));
}

TEST(App, end_of_the_main_window_ends_the_pump)
{
    auto* frame = new CTestFrame;
    ASSERT_TRUE(frame->Create(nullptr, L"main"));
    const MainWnd main(frame);
    EXPECT_EQ(AfxGetMainWnd(), frame);
    frame->PostMessage(WM_CLOSE);
    EXPECT_EQ(AfxGetApp()->Run(), 0);
    EXPECT_FALSE(CTestFrame::alive) << "a frame deletes itself";
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
}

TEST(App, without_a_main_window_the_pump_ends_at_once)
{
    EXPECT_EQ(AfxGetApp()->Run(), 0);
}

TEST(App, repeated_move_of_the_mouse_is_no_reason_to_idle)
{
    MSG move = {};
    move.message = WM_MOUSEMOVE;
    move.pt = {12345, 3};
    EXPECT_TRUE(AfxIsIdleMessage(&move));
    EXPECT_FALSE(AfxIsIdleMessage(&move));
    MSG paint = {};
    paint.message = WM_PAINT;
    EXPECT_FALSE(AfxIsIdleMessage(&paint));
}

TEST(PreTranslate, window_and_its_parents_are_asked_in_turn)
{
    CFilter top;
    CFilter child;
    ASSERT_TRUE(top.make(WS_OVERLAPPEDWINDOW));
    ASSERT_TRUE(child.CreateEx(0, L"STATIC", L"", WS_CHILD, CRect(0, 0, 5, 5), &top, 4));
    MSG message = {};
    message.hwnd = child.m_hWnd;
    message.message = WM_APP;
    EXPECT_FALSE(AfxPreTranslateMessage(&message));
    EXPECT_EQ(child.asked, 1);
    EXPECT_EQ(top.asked, 1);
    child.wanted = WM_APP;
    EXPECT_TRUE(AfxPreTranslateMessage(&message));
    EXPECT_EQ(top.asked, 1) << "the child took it";
    child.wanted = 0;
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(child.m_hWnd, &message));
    EXPECT_EQ(top.asked, 1) << "the walk stops where it was told to";
}

TEST(PreTranslate, main_window_is_asked_for_windows_outside_its_tree)
{
    CFilter main;
    CFilter other;
    ASSERT_TRUE(main.make(WS_OVERLAPPEDWINDOW) && other.make());
    {
        const MainWnd set(&main);
        MSG message = {};
        message.hwnd = other.m_hWnd;
        message.message = WM_APP;
        AfxPreTranslateMessage(&message);
    }
    EXPECT_EQ(other.asked, 1);
    EXPECT_EQ(main.asked, 1);
}

TEST(Frame, loads_menu_title_and_accelerators_of_one_id)
{
    auto* frame = new CTestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME));
    CString title;
    frame->GetWindowText(title);
    EXPECT_EQ(title, L"Frame title");
    ASSERT_NE(frame->GetMenu(), nullptr);
    EXPECT_NE(frame->GetDefaultAccelerator(), nullptr);
    EXPECT_TRUE(frame->IsFrameWnd());
    frame->DestroyWindow();
    EXPECT_FALSE(CTestFrame::alive);
}

TEST(Frame, accelerator_key_becomes_its_command)
{
    auto* frame = new CTestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME));
    frame->ShowWindow(SW_SHOW);
    frame->SetForegroundWindow();
    const MainWnd main(frame);
    press('K', VK_CONTROL);
    EXPECT_TRUE(pumpUntil([&] { return frame->wasDone != 0; }));
    EXPECT_EQ(frame->wasDone, 1);
    AfxGetApp()->m_pMainWnd = nullptr;
    frame->DestroyWindow();
}

TEST(Frame, opening_its_menu_greys_what_nobody_handles)
{
    auto* frame = new CTestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME));
    const HMENU file = ::GetSubMenu(::GetMenu(frame->m_hWnd), 0);
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(file), 0);
    EXPECT_EQ(::GetMenuState(file, ID_TEST_DO, MF_BYCOMMAND) & MF_GRAYED, 0U);
    EXPECT_NE(::GetMenuState(file, ID_TEST_NOBODY, MF_BYCOMMAND) & MF_GRAYED, 0U);
    frame->DestroyWindow();
}

TEST(Frame, is_found_from_its_children)
{
    auto* frame = new CTestFrame;
    ASSERT_TRUE(frame->Create(nullptr, L"main"));
    {
        CChild child;
        CChild grandchild;
        ASSERT_TRUE(child.make(*frame) && grandchild.make(child));
        EXPECT_EQ(grandchild.GetParentFrame(), frame);
        EXPECT_EQ(grandchild.GetTopLevelFrame(), frame);
    }
    frame->DestroyWindow();
}

TEST(Frame, unknown_menu_makes_no_frame)
{
    auto* frame = new CTestFrame;
    EXPECT_FALSE(
        frame->Create(nullptr, L"main", WS_OVERLAPPEDWINDOW, CFrameWnd::rectDefault, nullptr, MAKEINTRESOURCE(9999)));
    EXPECT_FALSE(CTestFrame::alive) << "a frame that could not be made deletes itself too";
}

TEST(Threads, worker_runs_and_ends)
{
    static volatile LONG ran = 0;
    CWinThread* thread = AfxBeginThread(
        [](LPVOID param) -> UINT
        {
            ::InterlockedExchange(&ran, static_cast<LONG>(reinterpret_cast<INT_PTR>(param)));
            return AfxGetThread() != nullptr ? 4U : 5U;
        },
        reinterpret_cast<LPVOID>(11), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    thread->m_bAutoDelete = FALSE;
    const std::unique_ptr<CWinThread> owned(thread);
    thread->ResumeThread();
    ASSERT_EQ(::WaitForSingleObject(thread->m_hThread, 5000), static_cast<DWORD>(WAIT_OBJECT_0));
    DWORD exitCode = 0;
    ::GetExitCodeThread(thread->m_hThread, &exitCode);
    EXPECT_EQ(exitCode, 4U);
    EXPECT_EQ(ran, 11);
}

TEST(Threads, user_interface_thread_gets_its_messages)
{
    CWinThread* thread = AfxBeginThread(RUNTIME_CLASS(CPumpThread), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    thread->m_bAutoDelete = FALSE;
    const std::unique_ptr<CWinThread> owned(thread);
    thread->ResumeThread();
    EXPECT_TRUE(waitFor([&] { return thread->PostThreadMessage(WM_APP + 9, 33, 0) != FALSE; }));
    ASSERT_EQ(::WaitForSingleObject(thread->m_hThread, 5000), static_cast<DWORD>(WAIT_OBJECT_0));
    EXPECT_EQ(CPumpThread::got, 33);
    DWORD exitCode = 0;
    ::GetExitCodeThread(thread->m_hThread, &exitCode);
    EXPECT_EQ(exitCode, 6U);
}

TEST(Threads, class_that_is_no_thread_is_refused)
{
    EXPECT_EQ(AfxBeginThread(RUNTIME_CLASS(CWnd)), nullptr);
    EXPECT_EQ(AfxBeginThread(static_cast<CRuntimeClass*>(nullptr)), nullptr);
    EXPECT_EQ(AfxBeginThread(static_cast<AFX_THREADPROC>(nullptr), nullptr), nullptr);
}

TEST(ToolTips, hit_test_answers_the_child_under_the_point)
{
    CTop top;
    CChild child;
    ASSERT_TRUE(top.make(WS_POPUP | WS_VISIBLE));
    ASSERT_TRUE(child.make(top, 31, L"BUTTON", WS_CHILD | WS_VISIBLE));
    TOOLINFO info = {};
    info.cbSize = sizeof info;
    EXPECT_EQ(top.OnToolHitTest(CPoint(5, 5), &info), 31);
    EXPECT_EQ(info.uId, reinterpret_cast<UINT_PTR>(child.m_hWnd));
    EXPECT_EQ(info.lpszText, LPSTR_TEXTCALLBACK);
    EXPECT_EQ(top.OnToolHitTest(CPoint(150, 90), nullptr), -1);
}

TEST(ToolTips, moving_over_a_child_adds_it_as_a_tool)
{
    CTop top;
    CChild child;
    ASSERT_TRUE(top.make(WS_POPUP | WS_VISIBLE));
    ASSERT_TRUE(child.make(top, 31, L"BUTTON", WS_CHILD | WS_VISIBLE));
    EXPECT_TRUE(top.EnableToolTips());
    MSG move = {};
    move.hwnd = child.m_hWnd;
    move.message = WM_MOUSEMOVE;
    move.pt = {5, 5};
    AfxPreTranslateMessage(&move);
    HWND tip = nullptr;
    while ((tip = ::FindWindowEx(nullptr, tip, TOOLTIPS_CLASS, nullptr)) != nullptr)
        if (::GetWindow(tip, GW_OWNER) == top.m_hWnd)
            break;
    ASSERT_NE(tip, nullptr);
    EXPECT_EQ(::SendMessage(tip, TTM_GETTOOLCOUNT, 0, 0), 1);
    top.EnableToolTips(FALSE);
    EXPECT_FALSE(::IsWindow(tip));
}
