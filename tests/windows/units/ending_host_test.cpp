// Hosts that end the control or the whole dialog inside any notification that a user's keys and clicks bring about.
#include <gtest/gtest.h>
#include "UnitHost.h"

namespace
{
/// A host that does something inside its handler of one notification, once: before or behind the control's own part.
class EndingHost : public UnitHost
{
public:
    WORD code = 0;
    bool early = false;
    bool done = false;
    std::function<void()> act;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const bool now = message == WM_COMMAND && LOWORD(wParam) == IDC_METRE && HIWORD(wParam) == code && act && !done;
        if (now && early)
        {
            done = true;
            act();
        }
        return UnitHost::WindowProc(message, wParam, lParam);
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        const BOOL taken = UnitHost::OnCommand(wParam, lParam);
        if (LOWORD(wParam) == IDC_METRE && HIWORD(wParam) == code && act && !done)
        {
            done = true;
            act();
        }
        return taken;
    }
};

struct Notification
{
    const char* name;
    WORD code;
    void (*cause)(EndingHost& host);
};

/// The second item of the open list, picked by a real click.
void pickByClick(EndingHost& host)
{
    host.press(VK_F4);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    if (host.metre->m_hWnd == nullptr || !::GetComboBoxInfo(host.metre->m_hWnd, &info))
        return;
    RECT second = {};
    ::SendMessageW(info.hwndList, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&second));
    ::MapWindowPoints(info.hwndList, nullptr, reinterpret_cast<POINT*>(&second), 2);
    click({(second.left + second.right) / 2, (second.top + second.bottom) / 2});
}

const Notification notifications[] = {
    {"focus_taken", CBN_SETFOCUS, [](EndingHost& host) { host.press(VK_TAB); }},
    {"edit_update", CBN_EDITUPDATE, [](EndingHost& host) { host.press(VK_TAB), host.type(L"1.5"); }},
    {"edit_change", CBN_EDITCHANGE, [](EndingHost& host) { host.press(VK_TAB), host.type(L"1.5"); }},
    {"focus_lost", CBN_KILLFOCUS, [](EndingHost& host) { host.press(VK_TAB), host.type(L"1.5"), host.press(VK_TAB); }},
    {"list_opened", CBN_DROPDOWN, [](EndingHost& host) { host.press(VK_TAB), host.press(VK_F4); }},
    {"list_closed", CBN_CLOSEUP, [](EndingHost& host) { host.press(VK_TAB), host.press(VK_F4), host.press(VK_F4); }},
    {"selection_changed", CBN_SELCHANGE, [](EndingHost& host) { host.press(VK_TAB), host.press(VK_DOWN); }},
    {"selection_confirmed", CBN_SELENDOK, [](EndingHost& host) { host.press(VK_TAB), pickByClick(host); }},
    {"selection_dropped", CBN_SELENDCANCEL,
     [](EndingHost& host) { host.press(VK_TAB), host.press(VK_F4), host.press(VK_TAB); }},
};

class EveryNotification : public testing::TestWithParam<std::tuple<Notification, bool>>
{
protected:
    EveryNotification()
    {
        host.metre->AddValueSI(1.0);
        host.metre->AddValueSI(2.0);
        host.code = std::get<0>(GetParam()).code;
        host.early = std::get<1>(GetParam());
    }
    void cause(const std::function<void()>& act)
    {
        host.act = act;
        std::get<0>(GetParam()).cause(host);
        UnitHost::pump(20);
        EXPECT_TRUE(host.done);
    }

    EndingHost host;
};

TEST_P(EveryNotification, may_destroy_the_control)
{
    cause([this] { host.metre->DestroyWindow(); });
    EXPECT_EQ(host.metre->m_hWnd, nullptr);
    EXPECT_TRUE(::IsWindow(host.m_hWnd));
}

TEST_P(EveryNotification, may_delete_the_control)
{
    cause([this] { host.metre.reset(); });
    EXPECT_EQ(host.GetDlgItem(IDC_METRE), nullptr);
    EXPECT_TRUE(::IsWindow(host.m_hWnd));
}

TEST_P(EveryNotification, may_destroy_the_dialog)
{
    cause([this] { host.DestroyWindow(); });
    EXPECT_EQ(host.m_hWnd, nullptr);
    EXPECT_EQ(host.metre->m_hWnd, nullptr);
    EXPECT_EQ(host.metre->GetValueSI(), -1.7976931348623157e+150);
}

TEST_P(EveryNotification, may_empty_the_list_and_change_the_unit)
{
    cause(
        [this]
        {
            host.metre->ResetContent();
            CKxUnit feet = FeetUnit();
            host.metre->SetDefaultValues(nullptr, 0, 0.0, feet, 0.0, 0.0);
        });
    EXPECT_EQ(host.metre->values().size(), static_cast<std::size_t>(host.metre->GetCount()));
    EXPECT_LE(host.metre->GetCount(), 1);
}

INSTANTIATE_TEST_SUITE_P(OfTheControl, EveryNotification,
                         testing::Combine(testing::ValuesIn(notifications), testing::Bool()),
                         [](const auto& one)
                         {
                             return std::string(std::get<0>(one.param).name) +
                                    (std::get<1>(one.param) ? "_before_the_control" : "_behind_the_control");
                         });

class EndingDialog : public testing::Test
{
protected:
    UnitHost host;
};

TEST_F(EndingDialog, inside_the_message_of_the_focus_ends_the_control_too)
{
    host.onHear = [this](const Heard& one)
    {
        if (one.message == WM_KX_UNIT_FOCUS && host.m_hWnd != nullptr)
            host.DestroyWindow();
    };
    host.press(VK_TAB);
    EXPECT_EQ(host.m_hWnd, nullptr);
    EXPECT_EQ(host.metre->m_hWnd, nullptr);
}

TEST_F(EndingDialog, inside_the_message_of_a_click_into_the_edit_field_ends_the_control_too)
{
    host.focusOn(IDC_METRE);
    host.onHear = [this](const Heard& one)
    {
        if (one.message == WM_KX_UNIT_FOCUS && host.m_hWnd != nullptr)
            host.DestroyWindow();
    };
    click(centreOf(host.metre->editField()));
    EXPECT_TRUE(waitFor([this] { return host.m_hWnd == nullptr; }));
    EXPECT_EQ(host.metre->m_hWnd, nullptr);
}

TEST_F(EndingDialog, inside_the_message_of_a_typed_value_commits_nothing)
{
    host.onHear = [this](const Heard& one)
    {
        if (one.message == WM_KX_UNIT_VALIDATED)
            host.DestroyWindow();
    };
    host.press(VK_TAB);
    host.type(L"1.5");
    host.press(VK_TAB);
    EXPECT_EQ(host.m_hWnd, nullptr);
    EXPECT_EQ(host.metre->m_hWnd, nullptr);
    EXPECT_TRUE(host.metre->values().empty());
}

TEST_F(EndingDialog, inside_a_key_or_character_of_a_drop_down_list_ends_the_control_too)
{
    for (const UINT message : {WM_KEYDOWN, WM_CHAR})
    {
        UnitHost other;
        other.focusOn(IDC_DROPLIST);
        other.onHear = [&other, message](const Heard& one)
        {
            if (one.message == message && other.m_hWnd != nullptr)
                other.DestroyWindow();
        };
        other.droplist->SendMessage(message, L'2', 1);
        EXPECT_EQ(other.m_hWnd, nullptr);
        EXPECT_EQ(other.droplist->m_hWnd, nullptr);
    }
}
} // namespace
