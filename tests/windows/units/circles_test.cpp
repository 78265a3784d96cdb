// Hosts that send the control back what it told them: the messages end, and other messages still get through.
#include <gtest/gtest.h>
#include "UnitHost.h"

namespace
{
class MessageCircles : public testing::Test
{
protected:
    /// The host answers each message of this number by `what`, as often as it comes.
    void always(UINT message, const std::function<void(const Heard&)>& what)
    {
        host.onHear = [message, what](const Heard& one)
        {
            if (one.message == message)
                what(one);
        };
    }
    void pendingText(const wchar_t* text)
    {
        host.metre->SetWindowText(text);
        host.notify(*host.metre, CBN_EDITCHANGE);
    }

    UnitHost host;
};

TEST_F(MessageCircles, two_controls_that_own_each_other_pass_each_message_once)
{
    host.metre->SetOwner(host.feet.get());
    host.feet->SetOwner(host.metre.get());
    host.metre->SetVisibility(0);
    host.feet->SetVisibility(0);
    host.metre->SendMessage(WM_CHAR, L'7', 1);
    EXPECT_EQ(host.feet->GetVisibility(), 1) << "the other one got the character";
    host.feet->SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(host.metre->GetVisibility(), 1) << "the other one got the key";
    host.metre->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, 0);
    host.metre->SendMessage(WM_LBUTTONUP, 0, 0);
    EXPECT_TRUE(::IsWindow(host.metre->m_hWnd));
    EXPECT_EQ(host.count(WM_CHAR) + host.count(WM_KEYDOWN) + host.count(WM_LBUTTONDOWN), 0);
}

TEST_F(MessageCircles, a_ring_of_owners_behind_the_control_ends_too)
{
    host.droplist->SetOwner(host.metre.get());
    host.metre->SetOwner(host.feet.get());
    host.feet->SetOwner(host.metre.get());
    host.feet->SetVisibility(0);
    host.droplist->SendMessage(WM_CHAR, L'7', 1);
    EXPECT_EQ(host.feet->GetVisibility(), 1);
}

TEST_F(MessageCircles, an_owner_that_sends_a_message_back_gets_it_once)
{
    always(WM_CHAR, [this](const Heard& one) { host.metre->SendMessage(one.message, one.wParam, one.lParam); });
    host.metre->SendMessage(WM_CHAR, L'7', 1);
    EXPECT_EQ(host.count(WM_CHAR), 1);
    host.metre->SendMessage(WM_CHAR, L'7', 1);
    EXPECT_EQ(host.count(WM_CHAR), 2) << "the next character is passed on again";
}

TEST_F(MessageCircles, an_owner_that_sends_another_message_meanwhile_gets_that_one_too)
{
    always(WM_CHAR,
           [this](const Heard& one)
           {
               if (one.wParam == L'7')
                   host.metre->SendMessage(WM_CHAR, L'8', 1);
               host.metre->SendMessage(WM_KEYDOWN, VK_DOWN, 1);
           });
    host.metre->SendMessage(WM_CHAR, L'7', 1);
    EXPECT_EQ(host.heard,
              (std::vector<Heard>{
                  {WM_CHAR, L'7', 1}, {WM_CHAR, L'8', 1}, {WM_KEYDOWN, VK_DOWN, 1}, {WM_KEYDOWN, VK_DOWN, 1}}));
}

TEST_F(MessageCircles, a_parent_may_commit_while_it_hears_of_the_value_and_read_it_at_once)
{
    double read = -77.0;
    always(WM_KX_UNIT_VALIDATED,
           [this, &read](const Heard&)
           {
               host.metre->UpdateControlValue();
               read = host.metre->GetValueSI();
           });
    host.metre->AddValueSI(1.0);
    pendingText(L"1.5");
    host.notify(*host.metre, CBN_KILLFOCUS);
    EXPECT_EQ(read, 1.5);
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 1);
    EXPECT_EQ(host.metre->shown(), L"1.000 m | [1.500 m*]");
    EXPECT_EQ(host.metre->GetValueSI(), 1.5);
}

TEST_F(MessageCircles, a_parent_may_type_another_value_and_commit_it_while_it_hears_of_one)
{
    always(WM_KX_UNIT_VALIDATED,
           [this](const Heard&)
           {
               pendingText(L"2");
               host.notify(*host.metre, CBN_KILLFOCUS);
           });
    pendingText(L"1.5");
    host.notify(*host.metre, CBN_KILLFOCUS);
    EXPECT_EQ(host.metre->shown(), L"[1.500 m*]") << "the value that was being committed comes last";
    EXPECT_EQ(host.metre->values().size(), 1U);
}

TEST_F(MessageCircles, another_control_tells_its_value_while_the_parent_hears_of_one)
{
    always(WM_KX_UNIT_VALIDATED,
           [this](const Heard&)
           {
               if (host.count(WM_KX_UNIT_VALIDATED) > 1)
                   return;
               host.feet->SetWindowText(L"1'-6\"");
               host.feet->UpdateControlValue();
           });
    pendingText(L"1.5");
    host.notify(*host.metre, CBN_KILLFOCUS);
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 2);
    EXPECT_EQ(host.feet->shown(), L"[1'-6\"*]");
    EXPECT_EQ(host.metre->shown(), L"[1.500 m*]");
}

TEST_F(MessageCircles, a_parent_may_give_the_focus_back_while_it_hears_of_it)
{
    always(WM_KX_UNIT_FOCUS,
           [this](const Heard&)
           {
               host.metre->SendMessage(WM_SETFOCUS, 0, 0);
               host.metre->SendMessage(WM_PARENTNOTIFY, WM_LBUTTONDOWN, 0);
           });
    host.metre->SetFocus();
    UnitHost::pump();
    EXPECT_EQ(host.count(WM_KX_UNIT_FOCUS), 1);
    EXPECT_EQ(::GetFocus(), host.metre->editField());
}
} // namespace
