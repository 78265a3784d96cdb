// Parents and owners that are missing, foreign, or gone.
#include <gtest/gtest.h>
#include "UnitHost.h"

namespace
{
class UnitComboFamily : public testing::Test
{
protected:
    void sendEverything(CWnd& combo)
    {
        combo.SendMessage(WM_CHAR, L'7', 1);
        combo.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
        combo.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, 0);
        combo.SendMessage(WM_LBUTTONUP, 0, 0);
        combo.SendMessage(WM_PARENTNOTIFY, WM_LBUTTONDOWN, 0);
        combo.SendMessage(WM_SETFOCUS, 0, 0);
    }

    UnitHost host;
};

TEST_F(UnitComboFamily, an_owner_that_is_gone_hears_nothing_and_does_no_harm)
{
    {
        CWnd gone;
        gone.CreateEx(0, L"STATIC", L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
        host.metre->SetOwner(&gone);
        gone.DestroyWindow();
    }
    sendEverything(*host.metre);
    EXPECT_EQ(host.count(WM_CHAR), 0) << "the parent is not the owner";
    EXPECT_EQ(host.count(WM_KX_UNIT_FOCUS), 3) << "the click gives the focus, its event, the focus";
}

TEST_F(UnitComboFamily, a_null_owner_makes_the_parent_the_owner_again)
{
    host.metre->SetOwner(host.feet.get());
    host.metre->SetOwner(nullptr);
    host.metre->SendMessage(WM_CHAR, L'7', 1);
    EXPECT_EQ(host.heard, (std::vector<Heard>{{WM_CHAR, L'7', 1}}));
}

TEST_F(UnitComboFamily, a_top_level_control_without_parent_keeps_its_values)
{
    OpenUnitCombo lone;
    lone.CreateEx(0, L"COMBOBOX", L"", WS_POPUP | CBS_DROPDOWN, CRect(0, 0, 80, 100), nullptr, 0);
    ASSERT_NE(lone.m_hWnd, nullptr);
    CKxUnit unit = MetreUnit();
    lone.SetDefaultValues(nullptr, 0, 0.0, unit, 0.0, 0.0);
    sendEverything(lone);
    lone.AddValueSI(1.0);
    lone.SetWindowText(L"1.5");
    lone.UpdateControlValue();
    EXPECT_EQ(lone.shown(), L"1.000 m | [1.500 m*]");
    EXPECT_TRUE(host.heard.empty());
}

TEST_F(UnitComboFamily, a_control_that_loses_its_parent_keeps_its_values)
{
    host.metre->SetParent(nullptr);
    host.metre->SetWindowText(L"1.5");
    host.metre->UpdateControlValue();
    EXPECT_EQ(host.metre->shown(), L"[1.500 m*]");
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 0) << "the old parent is none any more";
    host.metre->SetParent(&host);
    host.metre->UpdateControlValue();
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 1);
}

TEST_F(UnitComboFamily, a_parent_that_the_framework_does_not_know_hears_the_messages_too)
{
    static int focus, validated;
    focus = validated = 0;
    const HWND parent =
        ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr);
    ::SetWindowLongPtrW(parent, GWLP_WNDPROC,
                        reinterpret_cast<LONG_PTR>(static_cast<WNDPROC>(
                            [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT
                            {
                                focus += message == WM_KX_UNIT_FOCUS && lParam == 4000 ? 1 : 0;
                                validated += message == WM_KX_UNIT_VALIDATED ? 1 : 0;
                                return ::DefWindowProcW(window, message, wParam, lParam);
                            })));
    {
        OpenUnitCombo combo;
        combo.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 80, 100), CWnd::FromHandle(parent), 4000);
        CKxUnit unit = MetreUnit();
        combo.SetDefaultValues(nullptr, 0, 0.0, unit, 0.0, 0.0);
        combo.SendMessage(WM_PARENTNOTIFY, WM_LBUTTONDOWN, 0);
        combo.SetWindowText(L"1.5");
        combo.UpdateControlValue();
        EXPECT_EQ(combo.shown(), L"[1.500 m*]");
        ::DestroyWindow(parent);
        EXPECT_EQ(combo.m_hWnd, nullptr);
    }
    EXPECT_EQ(focus, 1);
    EXPECT_EQ(validated, 1);
}
} // namespace
