// Creation and destruction of the unit combo box leave nothing behind.
#include <gtest/gtest.h>
#include "UnitHost.h"
#include "support/HandleBalance.h"

namespace
{
constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN;

void setAndCommit(CKxComboBoxUnit& combo, CWnd& parent, int round)
{
    combo.Create(style, CRect(0, 0, 80, 100), &parent, 4000);
    CKxUnit unit = MetreUnit();
    combo.SetDefaultValues(&parent, 4000, 0.0, unit, 0.0, 0.0);
    combo.SetDefaultValues(&parent, 4000, 0.0, *combo.GetUnit(), 0.0, 0.0);
    combo.AddValueSI(1.0 + round);
    combo.SetWindowText(L"1.5");
    combo.UpdateControlValue();
    combo.AddFormatToolTip(L"tip");
}

void useOnce(CWnd& parent, int round)
{
    CKxComboBoxUnit combo;
    setAndCommit(combo, parent, round);
    if (round % 2 == 0)
        combo.DestroyWindow(); // else the destructor does it
}

void useByUser(CWnd& parent, int round)
{
    CKxComboBoxUnit combo;
    setAndCommit(combo, parent, round);
    combo.SetFocus();
    combo.UpdateWindow();
    combo.ShowDropDown(TRUE);
    UnitHost::type(L"2");
    if (round % 2 == 0)
        combo.ShowDropDown(FALSE); // else it is open when it ends
}

void expectNoTrace(void (*use)(CWnd& parent, int round), int rounds)
{
    UnitHost host;
    expectNoHandleLeft(rounds, [&](int round) { use(host, round); });
}

TEST(UnitComboLifetime, a_thousand_controls_leave_no_handle)
{
    expectNoTrace(useOnce, 1000);
}

TEST(UnitComboLifetime, controls_that_end_with_focus_and_open_list_leave_no_handle)
{
    expectNoTrace(useByUser, 50);
}

TEST(UnitComboLifetime, a_control_that_never_got_a_window_leaves_nothing)
{
    {
        CKxComboBoxUnit first;
    }
    const int windows = windowCount(), objects = gdiObjectCount();
    for (int i = 0; i < 100; ++i)
    {
        CKxComboBoxUnit combo;
    }
    EXPECT_EQ(windowCount(), windows);
    EXPECT_EQ(gdiObjectCount(), objects);
}

TEST(UnitComboLifetime, the_counters_see_handles_that_were_planted)
{
    const int handles = kernelHandleCount(), others = menuAndIconCount();
    std::vector<HANDLE> events;
    for (int i = 0; i < 100; ++i)
        events.push_back(::CreateEventW(nullptr, FALSE, FALSE, nullptr));
    const HMENU menu = ::CreatePopupMenu();
    EXPECT_EQ(kernelHandleCount(), handles + 100);
    EXPECT_EQ(menuAndIconCount(), others + 1);
    for (const HANDLE one : events)
        ::CloseHandle(one);
    ::DestroyMenu(menu);
    EXPECT_EQ(kernelHandleCount(), handles);
    EXPECT_EQ(menuAndIconCount(), others);
}

TEST(UnitComboLifetime, the_counters_see_a_control_that_lives)
{
    UnitHost host;
    const int windows = windowCount();
    CKxComboBoxUnit combo;
    combo.Create(style, CRect(0, 0, 80, 100), &host, 4000);
    EXPECT_GE(windowCount(), windows + 3) << "the combo box, its edit field, its tip";
}

TEST(UnitComboLifetime, the_control_may_end_before_its_dialog_and_after_it)
{
    auto after = std::make_unique<OpenUnitCombo>();
    {
        UnitHost host;
        host.metre->AddFormatToolTip(L"tip");
        host.metre.swap(after); // the dialog's window goes first
        host.feet.reset();      // the control goes first
        EXPECT_EQ(host.GetDlgItem(IDC_FEET), nullptr);
    }
    EXPECT_EQ(after->m_hWnd, nullptr);
    EXPECT_NE(after->GetUnit(), nullptr);
    after.reset();
}

TEST(UnitComboLifetime, a_focused_control_may_end_with_a_change_pending)
{
    UnitHost host;
    host.focusOn(IDC_METRE);
    host.type(L"1.5");
    host.heard.clear();
    host.metre.reset();
    UnitHost::pump();
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 0);
    EXPECT_EQ(host.GetDlgItem(IDC_METRE), nullptr);
}
} // namespace
