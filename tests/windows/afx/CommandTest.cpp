// Commands: routes, ranges, updates, exceptions on the way.
#include "Fixture.h"
#include "ids.h"
#include "support/AnswerModal.h"

#include <stdexcept>

namespace
{
class CCommands : public CTop
{
public:
    bool enableDo = true;
    bool routeOn = false;
    bool thenDestroy = false;
    int wasDone = 0;

protected:
    afx_msg void OnDo()
    {
        ++wasDone;
        log.push_back(L"do");
        if (thenDestroy)
            DestroyWindow();
    }
    afx_msg void OnRange(UINT id) { log.push_back(text(L"range %u", id)); }
    afx_msg BOOL OnEx(UINT id)
    {
        log.push_back(text(L"ex %u", id));
        if (thenDestroy)
            DestroyWindow();
        return FALSE;
    }
    afx_msg BOOL OnExRange(UINT id)
    {
        log.push_back(text(L"ex range %u", id));
        return TRUE;
    }
    afx_msg void OnUpdateDo(CCmdUI* ui)
    {
        ui->Enable(enableDo);
        if (routeOn)
            ui->ContinueRouting();
    }
    afx_msg void OnUpdateCheck(CCmdUI* ui) { ui->SetCheck(1); }
    afx_msg void OnUpdateText(CCmdUI* ui) { ui->SetText(L"New text"); }
    afx_msg void OnUpdateRange(CCmdUI* ui) { log.push_back(text(L"update %u", ui->m_nID)); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCommands, CTop)
    // void OnDo()
    ON_COMMAND(ID_TEST_DO, &CCommands::OnDo)
    // void OnRange(UINT)
    ON_COMMAND_RANGE(100, 102, &CCommands::OnRange)
    // BOOL OnEx(UINT)
    ON_COMMAND_EX(200, &CCommands::OnEx)
    ON_COMMAND_EX_RANGE(300, 302, &CCommands::OnExRange)
    // void OnUpdateDo(CCmdUI*)
    ON_UPDATE_COMMAND_UI(ID_TEST_DO, &CCommands::OnUpdateDo)
    ON_UPDATE_COMMAND_UI(ID_TEST_CHECK, &CCommands::OnUpdateCheck)
    ON_UPDATE_COMMAND_UI(ID_TEST_TEXT, &CCommands::OnUpdateText)
    ON_UPDATE_COMMAND_UI_RANGE(100, 102, &CCommands::OnUpdateRange)
END_MESSAGE_MAP()

class CThrowing : public CTop
{
public:
    enum class What
    {
        none,
        framework,
        user,
        memory,
        standard
    };
    What what = What::none;
    BOOL onCreate = FALSE;

protected:
    afx_msg LRESULT OnMine(WPARAM, LPARAM)
    {
        raise();
        return 1;
    }
    afx_msg void OnDo() { raise(); }
    afx_msg void OnPaint() { raise(); }
    afx_msg int OnCreate(LPCREATESTRUCT cs)
    {
        if (onCreate)
            raise();
        return CWnd::OnCreate(cs);
    }
    DECLARE_MESSAGE_MAP()

private:
    void raise() const
    {
        switch (what)
        {
        case What::framework:
            AfxThrowNotSupportedException();
        case What::user:
            AfxThrowUserException();
        case What::memory:
            AfxThrowMemoryException();
        case What::standard:
            throw std::runtime_error("plain words");
        default:
            break;
        }
    }
};

BEGIN_MESSAGE_MAP(CThrowing, CTop)
    // LRESULT OnMine(WPARAM, LPARAM)
    ON_MESSAGE(WM_APP + 3, &CThrowing::OnMine)
    ON_COMMAND(ID_TEST_DO, &CThrowing::OnDo)
    ON_WM_PAINT()
    ON_WM_CREATE()
END_MESSAGE_MAP()

CMenu& menuOf(CMenu& menu, UINT id)
{
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, id, L"Item");
    return menu;
}

UINT stateOf(CMenu& menu)
{
    return ::GetMenuState(menu.m_hMenu, 0, MF_BYPOSITION);
}
} // namespace

TEST(Commands, menu_command_reaches_its_handler)
{
    CCommands wnd;
    ASSERT_TRUE(wnd.make());
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, ID_TEST_DO), 1);
    EXPECT_EQ(wnd.wasDone, 1);
}

TEST(Commands, disabled_command_is_not_carried_out)
{
    CCommands wnd;
    ASSERT_TRUE(wnd.make());
    wnd.enableDo = false;
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, ID_TEST_DO), 1);
    EXPECT_EQ(wnd.wasDone, 0);
}

TEST(Commands, ranges_get_their_id)
{
    CCommands wnd;
    ASSERT_TRUE(wnd.make());
    wnd.SendMessage(WM_COMMAND, 101);
    wnd.SendMessage(WM_COMMAND, 302);
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, 103), 0) << "outside";
    EXPECT_EQ(wnd.log, (Log{L"update 101", L"range 101", L"ex range 302"}));
}

TEST(Commands, extended_handler_that_says_no_leaves_the_command_unhandled)
{
    CCommands wnd;
    ASSERT_TRUE(wnd.make());
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, 200), 0);
    EXPECT_EQ(wnd.log, Log{L"ex 200"});
}

TEST(Commands, zero_is_no_command)
{
    CCommands wnd;
    ASSERT_TRUE(wnd.make());
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, 0), 0);
}

TEST(Commands, handler_may_destroy_its_window)
{
    CCommands wnd;
    ASSERT_TRUE(wnd.make());
    wnd.thenDestroy = true;
    wnd.SendMessage(WM_COMMAND, ID_TEST_DO);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    ASSERT_TRUE(wnd.make());
    wnd.SendMessage(WM_COMMAND, 200); // destroys, and says that it did not handle the command
    EXPECT_EQ(wnd.m_hWnd, nullptr);
}

TEST(Commands, somebody_can_ask_who_would_handle_it)
{
    CCommands wnd;
    AFX_CMDHANDLERINFO info = {};
    EXPECT_TRUE(wnd.OnCmdMsg(ID_TEST_DO, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &wnd);
    EXPECT_EQ(wnd.wasDone, 0);
    EXPECT_FALSE(wnd.OnCmdMsg(ID_TEST_NOBODY, CN_COMMAND, nullptr, &info));
}

TEST(UpdateUI, menu_item_is_greyed_by_its_handler)
{
    CCommands wnd;
    CMenu menu;
    CCmdUI ui;
    ui.m_pMenu = &menuOf(menu, ID_TEST_DO);
    ui.m_nID = ID_TEST_DO;
    wnd.enableDo = false;
    EXPECT_TRUE(ui.DoUpdate(&wnd, TRUE));
    EXPECT_NE(stateOf(menu) & MF_GRAYED, 0U);
    wnd.enableDo = true;
    ui.DoUpdate(&wnd, TRUE);
    EXPECT_EQ(stateOf(menu) & MF_GRAYED, 0U);
}

TEST(UpdateUI, item_nobody_handles_is_greyed_when_asked)
{
    CCommands wnd;
    CMenu menu;
    CCmdUI ui;
    ui.m_pMenu = &menuOf(menu, ID_TEST_NOBODY);
    ui.m_nID = ID_TEST_NOBODY;
    EXPECT_FALSE(ui.DoUpdate(&wnd, FALSE));
    EXPECT_EQ(stateOf(menu) & MF_GRAYED, 0U);
    ui.DoUpdate(&wnd, TRUE);
    EXPECT_NE(stateOf(menu) & MF_GRAYED, 0U);
}

TEST(UpdateUI, check_and_text_reach_the_menu)
{
    CCommands wnd;
    CMenu menu;
    CCmdUI ui;
    ui.m_pMenu = &menuOf(menu, ID_TEST_CHECK);
    ui.m_nID = ID_TEST_CHECK;
    ui.DoUpdate(&wnd, FALSE);
    EXPECT_NE(stateOf(menu) & MF_CHECKED, 0U);
    ui.m_nID = ID_TEST_TEXT;
    ui.DoUpdate(&wnd, FALSE);
    wchar_t shown[32] = {};
    ::GetMenuString(menu.m_hMenu, 0, shown, 32, MF_BYPOSITION);
    EXPECT_STREQ(shown, L"New text");
}

TEST(UpdateUI, handler_that_routes_on_counts_as_unhandled)
{
    CCommands wnd;
    CMenu menu;
    CCmdUI ui;
    ui.m_pMenu = &menuOf(menu, ID_TEST_DO);
    ui.m_nID = ID_TEST_DO;
    wnd.routeOn = true;
    EXPECT_FALSE(ui.DoUpdate(&wnd, FALSE));
}

TEST(UpdateUI, push_buttons_of_a_window_follow_their_commands)
{
    CCommands wnd;
    CChild handled;
    CChild unhandled;
    CChild edit;
    ASSERT_TRUE(wnd.make());
    ASSERT_TRUE(handled.make(wnd, ID_TEST_DO, L"BUTTON") && unhandled.make(wnd, ID_TEST_NOBODY, L"BUTTON") &&
                edit.make(wnd, ID_TEST_APP, L"EDIT"));
    wnd.UpdateDialogControls(&wnd, TRUE);
    EXPECT_TRUE(handled.IsWindowEnabled());
    EXPECT_FALSE(unhandled.IsWindowEnabled());
    EXPECT_TRUE(edit.IsWindowEnabled()) << "only push buttons are greyed for want of a handler";
}

TEST(Exceptions, user_exception_ends_in_the_window_procedure_silently)
{
    CThrowing wnd;
    ASSERT_TRUE(wnd.make());
    wnd.what = CThrowing::What::user;
    const AnswerModal answer(IDOK);
    EXPECT_EQ(wnd.SendMessage(WM_APP + 3), 0);
    EXPECT_EQ(AnswerModal::seen(), L"");
}

TEST(Exceptions, framework_exception_is_told_and_the_message_answers_zero)
{
    CThrowing wnd;
    ASSERT_TRUE(wnd.make());
    wnd.what = CThrowing::What::framework;
    const AnswerModal answer(IDOK);
    EXPECT_EQ(wnd.SendMessage(WM_APP + 3), 0);
    EXPECT_NE(AnswerModal::seen(), L"");
}

TEST(Exceptions, menu_command_that_raised_counts_as_handled)
{
    CThrowing wnd;
    ASSERT_TRUE(wnd.make());
    wnd.what = CThrowing::What::user;
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, ID_TEST_DO), TRUE);
}

TEST(Exceptions, painting_that_raised_does_not_come_again_at_once)
{
    CThrowing wnd;
    ASSERT_TRUE(wnd.make(WS_POPUP | WS_VISIBLE));
    wnd.what = CThrowing::What::memory;
    wnd.Invalidate();
    wnd.UpdateWindow();
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr));
}

TEST(Exceptions, creation_that_raised_makes_no_window)
{
    CThrowing wnd;
    wnd.what = CThrowing::What::memory;
    wnd.onCreate = TRUE;
    EXPECT_FALSE(wnd.make());
    EXPECT_EQ(wnd.m_hWnd, nullptr);
}

TEST(Exceptions, standard_exception_is_told_with_its_words)
{
    CThrowing wnd;
    ASSERT_TRUE(wnd.make());
    wnd.what = CThrowing::What::standard;
    const AnswerModal answer(IDOK);
    EXPECT_EQ(wnd.SendMessage(WM_APP + 3), 0);
    EXPECT_NE(AnswerModal::seen().find(L"plain words"), std::wstring::npos);
}
