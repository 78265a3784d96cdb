// Hosts that end the control while it speaks to them, take its items away, flood it, or never give it a unit.
#include <gtest/gtest.h>
#include <bit>
#include <limits>
#include <random>
#include "UnitHost.h"

namespace
{
void typeDirectly(UnitHost& host, const wchar_t* text)
{
    host.metre->SetWindowText(text);
    host.notify(*host.metre, CBN_EDITCHANGE);
}

/// What makes the control send a message, so that it has code to run behind the sending.
struct Trigger
{
    const char* name;
    UINT sent;
    void (*pull)(UnitHost& host, HWND combo);
};

const Trigger triggers[] = {
    {"focus", WM_KX_UNIT_FOCUS, [](UnitHost&, HWND combo) { ::SendMessageW(combo, WM_SETFOCUS, 0, 0); }},
    {"click_into_the_edit_field", WM_KX_UNIT_FOCUS,
     [](UnitHost&, HWND combo) { ::SendMessageW(combo, WM_PARENTNOTIFY, WM_LBUTTONDOWN, 0); }},
    {"character", WM_CHAR, [](UnitHost&, HWND combo) { ::SendMessageW(combo, WM_CHAR, L'1', 1); }},
    {"key", WM_KEYDOWN, [](UnitHost&, HWND combo) { ::SendMessageW(combo, WM_KEYDOWN, VK_DOWN, 1); }},
    {"click_at_the_origin", WM_LBUTTONDOWN,
     [](UnitHost&, HWND combo) { ::SendMessageW(combo, WM_LBUTTONDOWN, MK_LBUTTON, 0); }},
    {"lost_focus", WM_KX_UNIT_VALIDATED,
     [](UnitHost& host, HWND combo) {
         ::SendMessageW(host.m_hWnd, WM_COMMAND, MAKEWPARAM(IDC_METRE, CBN_KILLFOCUS), reinterpret_cast<LPARAM>(combo));
     }},
};

class HostThatEndsTheControl : public testing::TestWithParam<Trigger>
{
protected:
    HostThatEndsTheControl()
    {
        host.metre->AddValueSI(1.0);
        typeDirectly(host, L"1.5");
        host.heard.clear();
    }
    /// The host does `what` inside its handler, once.
    void when(UINT message, const std::function<void()>& what)
    {
        host.onHear = [this, message, what](const Heard& one)
        {
            if (one.message == message && !done)
            {
                done = true;
                what();
            }
        };
    }

    UnitHost host;
    bool done = false;
};

TEST_P(HostThatEndsTheControl, may_destroy_its_window)
{
    const HWND window = host.metre->m_hWnd;
    when(GetParam().sent, [this] { host.metre->DestroyWindow(); });
    GetParam().pull(host, window);
    EXPECT_TRUE(done);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(host.metre->m_hWnd, nullptr);
    EXPECT_EQ(host.metre->values().size(), 1U) << "nothing was committed to a window that is gone";
}

TEST_P(HostThatEndsTheControl, may_delete_it)
{
    const HWND window = host.metre->m_hWnd;
    when(GetParam().sent, [this] { host.metre.reset(); });
    GetParam().pull(host, window);
    EXPECT_TRUE(done);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_P(HostThatEndsTheControl, may_detach_it)
{
    const HWND window = host.metre->m_hWnd;
    when(GetParam().sent, [this] { host.metre->UnsubclassWindow(); });
    GetParam().pull(host, window);
    EXPECT_TRUE(done);
    EXPECT_TRUE(::IsWindow(window));
    EXPECT_EQ(host.metre->values().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(InEveryMessage, HostThatEndsTheControl, testing::ValuesIn(triggers),
                         [](const testing::TestParamInfo<Trigger>& trigger) { return trigger.param.name; });

class HostileHost : public testing::Test
{
protected:
    UnitHost host;
};

TEST_F(HostileHost, may_empty_the_control_and_change_its_unit_while_it_hears_of_the_value)
{
    host.metre->AddValueSI(1.0);
    host.onHear = [this](const Heard& one)
    {
        if (one.message != WM_KX_UNIT_VALIDATED)
            return;
        host.metre->ResetContent();
        CKxUnit millimetres(1, 3, 0, L'.', 1.0, 1);
        host.metre->SetDefaultValues(nullptr, 0, 0.0, millimetres, 0.0, 0.0);
    };
    typeDirectly(host, L"1500");
    host.notify(*host.metre, CBN_KILLFOCUS);
    EXPECT_EQ(host.metre->shown(), L"[1500 mm*]");
    EXPECT_EQ(host.metre->GetValueSI(), 1.5);
}

TEST_F(HostileHost, may_take_items_by_messages_of_its_own)
{
    for (int i = 0; i < 5; ++i)
        host.metre->AddValueSI(i);
    while (host.metre->SendMessage(CB_DELETESTRING, 0, 0) > 0)
    {
    }
    double value = -77.0;
    EXPECT_EQ(host.metre->GetValueSI(0, value), 0);
    EXPECT_EQ(value, -77.0);
    typeDirectly(host, L"8");
    host.notify(*host.metre, CBN_KILLFOCUS);
    EXPECT_EQ(host.metre->editText(), L"8.000 m");
    host.metre->SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"foreign"));
    host.metre->CComboBox::SetCurSel(1);
    host.notify(*host.metre, CBN_SELENDOK);
    EXPECT_TRUE(std::isfinite(host.metre->GetValueSI()));
}

TEST_F(HostileHost, may_add_items_that_have_no_value)
{
    for (int i = 0; i < 3; ++i)
        host.metre->SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"foreign"));
    host.metre->CComboBox::SetCurSel(2);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(host.metre->GetValueSI()), 0xDF2192E9EE706E4AULL);
    double value = -77.0;
    EXPECT_EQ(host.metre->GetValueSI(2, value), 0);
    host.notify(*host.metre, CBN_SELENDOK);
    EXPECT_TRUE(host.metre->values().empty());
    EXPECT_EQ(host.metre->InsertString(2, L"4 m"), 2) << "behind the values there is no place for its value";
    EXPECT_TRUE(host.metre->values().empty());
    EXPECT_EQ(host.metre->DeleteString(1), 3);
}

TEST_F(HostileHost, may_never_give_a_unit)
{
    OpenUnitCombo bare;
    bare.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 80, 100), &host, 4000);
    bare.AddValueSI(1.0);
    EXPECT_LT(bare.AddString(L"1"), 0);
    EXPECT_LT(bare.InsertString(0, L"1"), 0);
    int index = 77;
    EXPECT_EQ(bare.FindValueSI(1.0, index), 0);
    EXPECT_EQ(index, -1);
    bare.SetWindowText(L"5");
    host.notify(bare, CBN_EDITCHANGE);
    host.notify(bare, CBN_KILLFOCUS);
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 0);
    EXPECT_EQ(bare.editText(), L"5");
    host.notify(bare, CBN_SELENDOK);
    EXPECT_FALSE(bare.isChanged());
    EXPECT_EQ(bare.GetCount(), 0);
    EXPECT_LT(bare.DeleteString(0), 0);
    bare.ResetContent();
    EXPECT_EQ(bare.GetUnit(), nullptr);
}

TEST_F(HostileHost, may_use_a_control_that_has_no_window)
{
    OpenUnitCombo windowless;
    CKxUnit unit = MetreUnit();
    windowless.SetDefaultValues(nullptr, 0, 1.0, unit, 2.0, -2.0);
    windowless.AddValueSI(1.0);
    EXPECT_LT(windowless.AddString(L"1"), 0);
    EXPECT_LT(windowless.InsertString(-1, L"1"), 0);
    EXPECT_LT(windowless.DeleteString(0), 0);
    int index = 77;
    EXPECT_EQ(windowless.FindValueSI(1.0, index), 0);
    double value = -77.0;
    EXPECT_EQ(windowless.GetValueSI(0, value), 0);
    EXPECT_EQ(windowless.GetValueSI(), -1.7976931348623157e+150);
    windowless.UpdateControlValue();
    windowless.ClearControl();
    windowless.ResetContent();
    windowless.AddFormatToolTip(L"nowhere");
    EXPECT_TRUE(windowless.values().empty());
}

TEST_F(HostileHost, may_ask_for_odd_tips)
{
    const std::wstring longText(100000, L'x');
    host.metre->AddFormatToolTip(CString(longText.c_str()));
    host.metre->AddFormatToolTip(CString());
    const wchar_t withNul[] = {L'a', 0, 0xD800};
    host.metre->AddFormatToolTip(CString(withNul, 3));
    EXPECT_TRUE(::IsWindow(host.metre->tip().m_hWnd));
}

TEST_F(HostileHost, may_flood_the_control)
{
    std::mt19937 random(20240601); // a fixed seed
    for (int i = 0; i < 20000; ++i)
    {
        const auto roll = random();
        switch (roll % 9)
        {
        case 0:
            host.metre->SendMessage(WM_CHAR, roll & 0xFFFF, roll);
            break;
        case 1:
            host.metre->SendMessage(WM_KEYDOWN, roll & 0xFFFF, roll);
            break;
        case 2:
            host.notify(*host.metre, static_cast<WORD>(roll >> 8));
            break;
        case 3:
            host.notify(*host.metre, CBN_EDITCHANGE);
            break;
        case 4:
            host.notify(*host.metre, CBN_KILLFOCUS);
            break;
        case 5:
            host.notify(*host.metre, CBN_SELENDOK);
            break;
        case 6:
            host.metre->SetWindowText(std::to_wstring(roll % 50).c_str());
            break;
        case 7:
            host.metre->SendMessage(WM_PARENTNOTIFY, roll, roll);
            break;
        default:
            host.metre->CComboBox::SetCurSel(static_cast<int>(roll % 5) - 1);
            break;
        }
        host.heard.clear();
    }
    EXPECT_LE(host.metre->GetCount(), 1) << "one typed item at most";
    EXPECT_EQ(host.metre->values().size(), static_cast<std::size_t>(host.metre->GetCount()));
}

TEST_F(HostileHost, may_call_with_any_index)
{
    host.metre->AddValueSI(1.0);
    double value = -77.0;
    for (const int index : {-1, -2, 1, 70000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
    {
        EXPECT_EQ(host.metre->GetValueSI(index, value), 0) << index;
        if (index != -1 && index != 1)
        {
            EXPECT_LT(host.metre->InsertString(index, L"2"), 0) << index;
        }
        EXPECT_LT(host.metre->DeleteString(static_cast<unsigned int>(index)), 0) << index;
    }
    EXPECT_EQ(value, -77.0);
    EXPECT_EQ(host.metre->shown(), L"1.000 m");
}
} // namespace
