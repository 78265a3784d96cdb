// Creation and destruction of the unit combo box leave nothing behind.
#include <gtest/gtest.h>
#include "UnitHost.h"
#include "support/LeakCounters.h"

namespace
{
constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN;

void useOnce(CWnd& parent, int round)
{
    CKxComboBoxUnit combo;
    combo.Create(style, CRect(0, 0, 80, 100), &parent, 4000);
    CKxUnit unit = MetreUnit();
    combo.SetDefaultValues(&parent, 4000, 0.0, unit, 0.0, 0.0);
    combo.AddValueSI(1.0 + round);
    combo.SetWindowText(L"1.5");
    combo.UpdateControlValue();
    combo.AddFormatToolTip(L"tip");
    if (round % 2 == 0)
        combo.DestroyWindow(); // else the destructor does it
}

TEST(UnitComboLifetime, a_thousand_controls_leave_no_window_and_no_drawing_object)
{
    UnitHost host;
    for (int i = 0; i < 10; ++i)
        useOnce(host, i);
    host.pump();
    const int windows = windowCount(), objects = gdiObjectCount();
    for (int i = 0; i < 1000; ++i)
        useOnce(host, i);
    host.pump();
    EXPECT_EQ(windowCount(), windows);
    EXPECT_EQ(gdiObjectCount(), objects);
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
