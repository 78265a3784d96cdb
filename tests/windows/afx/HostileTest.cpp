// Hosts that do what they should not: objects that end in their own notifications, records that are missing, handlers
// that throw what nobody expects.
#include "Fixture.h"
#include "ids.h"
#include "support/AnswerModal.h"
#include "support/Guarded.h"
#include "support/LeakCounters.h"

#include <functional>
#include <memory>
#include <stdexcept>
#include <thread>
#include <utility>

namespace
{
/// A control that does something of its own with what comes back to it, and then lets the parent have it too.
class CMeddler : public CChild
{
public:
    std::function<void()> act;

protected:
    afx_msg BOOL OnReflectedNotify(NMHDR*, LRESULT*)
    {
        meddle();
        return FALSE;
    }
    afx_msg BOOL OnReflectedClick()
    {
        meddle();
        return FALSE;
    }
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        if (message == WM_COMMAND || message == WM_NOTIFY)
            return CChild::OnChildNotify(message, wParam, lParam, result);
        meddle();
        return FALSE;
    }
    DECLARE_MESSAGE_MAP()

private:
    void meddle()
    {
        if (const auto once = std::exchange(act, nullptr))
            once();
    }
};

BEGIN_MESSAGE_MAP(CMeddler, CChild)
    // BOOL OnReflectedNotify(NMHDR*, LRESULT*)
    ON_NOTIFY_REFLECT_EX(NM_CLICK, &CMeddler::OnReflectedNotify)
    // BOOL OnReflectedClick()
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &CMeddler::OnReflectedClick)
END_MESSAGE_MAP()

/// A parent on the heap with a control that deletes it in the middle of a notification.
struct DoomedParent
{
    Guarded<CTop>* parent = new Guarded<CTop>;
    CMeddler control;
    HWND handle = nullptr;

    DoomedParent()
    {
        EXPECT_TRUE(parent->make());
        EXPECT_TRUE(control.make(*parent));
        handle = parent->m_hWnd;
        control.act = [this]
        {
            delete parent;
            parent = nullptr;
        };
    }
    ~DoomedParent() { delete parent; }
    DoomedParent(const DoomedParent&) = delete;
    DoomedParent& operator=(const DoomedParent&) = delete;

    void send(UINT message, WPARAM wParam, const void* record)
    {
        ::SendMessageW(handle, message, wParam, reinterpret_cast<LPARAM>(record));
        EXPECT_EQ(parent, nullptr) << message;
        EXPECT_EQ(control.m_hWnd, nullptr) << message;
        EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr) << message;
    }
};

class CThrower : public CTop
{
public:
    std::function<void()> act;

protected:
    afx_msg LRESULT OnMine(WPARAM, LPARAM)
    {
        act();
        return 1;
    }
    afx_msg void OnDo() { log.push_back(L"do"); }
    afx_msg void OnClicked() { log.push_back(L"clicked"); }
    afx_msg void OnNcDestroy()
    {
        if (act)
            act();
        CTop::OnNcDestroy();
    }
    void DoDataExchange(CDataExchange*) override { act(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CThrower, CTop)
    // LRESULT OnMine(WPARAM, LPARAM)
    ON_MESSAGE(WM_APP + 3, &CThrower::OnMine)
    // void OnClicked()
    ON_BN_CLICKED(7, &CThrower::OnClicked)
    // void OnNcDestroy()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

class CThrowingDialog : public CDialog
{
public:
    CThrowingDialog() : CDialog(IDD_DATA) {}
    BOOL OnInitDialog() override { throw std::runtime_error("not today"); }
};
} // namespace

TEST(Hostile, a_notification_may_end_the_parent_although_its_control_lets_it_through)
{
    DoomedParent doomed;
    NMHDR header = {doomed.control.m_hWnd, 7, static_cast<UINT>(NM_CLICK)};
    doomed.send(WM_NOTIFY, 7, &header);
}

TEST(Hostile, a_command_may_end_the_parent_although_its_control_lets_it_through)
{
    DoomedParent doomed;
    doomed.send(WM_COMMAND, MAKEWPARAM(7, BN_CLICKED), doomed.control.m_hWnd);
}

TEST(Hostile, drawing_and_measuring_may_end_the_parent)
{
    {
        DoomedParent doomed;
        DRAWITEMSTRUCT item = {};
        item.hwndItem = doomed.control.m_hWnd;
        doomed.send(WM_DRAWITEM, 7, &item);
    }
    {
        DoomedParent doomed;
        MEASUREITEMSTRUCT item = {};
        item.CtlID = 7;
        doomed.send(WM_MEASUREITEM, 7, &item);
    }
    {
        DoomedParent doomed;
        DELETEITEMSTRUCT item = {};
        item.hwndItem = doomed.control.m_hWnd;
        doomed.send(WM_DELETEITEM, 7, &item);
    }
    {
        DoomedParent doomed;
        COMPAREITEMSTRUCT item = {};
        item.hwndItem = doomed.control.m_hWnd;
        doomed.send(WM_COMPAREITEM, 7, &item);
    }
}

TEST(Hostile, colours_scrolling_and_keys_may_end_the_parent)
{
    const HDC dc = ::GetDC(nullptr);
    for (const UINT message : {WM_CTLCOLOREDIT, WM_CTLCOLORSTATIC, WM_CTLCOLORBTN})
    {
        DoomedParent doomed;
        doomed.send(message, reinterpret_cast<WPARAM>(dc), doomed.control.m_hWnd);
    }
    for (const UINT message : {WM_HSCROLL, WM_VSCROLL, WM_VKEYTOITEM, WM_CHARTOITEM})
    {
        DoomedParent doomed;
        doomed.send(message, MAKEWPARAM(SB_LINEDOWN, 0), doomed.control.m_hWnd);
    }
    {
        DoomedParent doomed;
        doomed.send(WM_PARENTNOTIFY, MAKEWPARAM(WM_CREATE, 7), doomed.control.m_hWnd);
    }
    ::ReleaseDC(nullptr, dc);
}

TEST(Hostile, a_message_without_its_record_is_harmless)
{
    CTop wnd;
    ASSERT_TRUE(wnd.make());
    for (const UINT message :
         {WM_DRAWITEM, WM_MEASUREITEM, WM_DELETEITEM, WM_COMPAREITEM, WM_NOTIFY, WM_COMMAND, WM_CTLCOLOR,
          WM_CTLCOLOREDIT, WM_HSCROLL, WM_VKEYTOITEM, WM_PARENTNOTIFY, WM_SETTINGCHANGE})
        for (const UINT base : {0U, WM_REFLECT_BASE})
        {
            wnd.SendMessage(base + message);
            EXPECT_TRUE(::IsWindow(wnd.m_hWnd)) << message;
        }
}

TEST(Hostile, an_exception_of_any_type_ends_in_the_window_procedure)
{
    CThrower wnd;
    ASSERT_TRUE(wnd.make());
    wnd.act = [] { throw 5; };
    {
        const AnswerModal answer(IDOK);
        EXPECT_EQ(wnd.SendMessage(WM_APP + 3), 0);
        EXPECT_NE(AnswerModal::seen().find(L"An unknown error has occurred."), std::wstring::npos);
    }
    wnd.act = [] {};
    EXPECT_EQ(wnd.SendMessage(WM_APP + 3), 1);
}

TEST(Hostile, an_exception_at_the_end_of_a_window_leaves_no_handle_in_its_object)
{
    CThrower wnd;
    ASSERT_TRUE(wnd.make());
    const HWND handle = wnd.m_hWnd;
    wnd.act = [] { AfxThrowUserException(); };
    wnd.DestroyWindow();
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    wnd.act = nullptr;
    EXPECT_TRUE(wnd.make()) << "the object can be used again";
}

TEST(Hostile, data_exchange_that_throws_does_not_lock_the_window_out_for_good)
{
    CThrower wnd;
    CChild button;
    ASSERT_TRUE(wnd.make());
    ASSERT_TRUE(button.make(wnd));
    wnd.act = [] { throw std::runtime_error("half way"); };
    EXPECT_THROW(wnd.UpdateData(), std::runtime_error);
    notifyCommand(wnd, button, BN_CLICKED);
    EXPECT_EQ(wnd.log, Log{L"clicked"});
    wnd.act = nullptr;
}

TEST(Hostile, a_dialog_that_throws_as_it_begins_is_told_and_can_be_closed)
{
    CThrowingDialog dialog;
    {
        const AnswerModal answer(IDOK);
        EXPECT_TRUE(dialog.Create(IDD_DATA, nullptr));
        EXPECT_NE(AnswerModal::seen().find(L"not today"), std::wstring::npos);
    }
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(Hostile, a_window_of_another_thread_survives_its_object)
{
    CTop host;
    ASSERT_TRUE(host.make());
    HWND handle = nullptr;
    {
        auto wnd = std::make_unique<Guarded<CTop>>();
        ASSERT_TRUE(wnd->make());
        handle = wnd->m_hWnd;
        std::thread([&wnd] { wnd.reset(); }).join();
    }
    EXPECT_TRUE(::IsWindow(handle));
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    EXPECT_EQ(::SendMessageW(handle, WM_GETTEXTLENGTH, 0, 0), 3) << "it answers without an object";
    ::DestroyWindow(handle);
}

TEST(Hostile, five_thousand_windows_leave_nothing_behind)
{
    CTop host;
    ASSERT_TRUE(host.make());
    const auto cycle = [&host]
    {
        CChild child;
        EXPECT_TRUE(child.make(host));
        child.GetParent();
        CWnd::FromHandle(::GetDesktopWindow());
    };
    cycle();
    const int windows = windowCount();
    const int objects = gdiObjectCount();
    for (int i = 0; i < 5000; ++i)
        cycle();
    EXPECT_EQ(windows, windowCount());
    EXPECT_EQ(objects, gdiObjectCount());
}
