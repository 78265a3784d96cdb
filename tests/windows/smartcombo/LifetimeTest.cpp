// Creation, use and destruction of the control leave no window, no drawing object and no other handle behind.
#include <gtest/gtest.h>
#include "SmartHost.h"
#include "support/HandleBalance.h"

namespace
{
/// A control with everything that it can have.
void useOnce(CWnd& parent, int round)
{
    auto* const smart = new CKxSmartComboBox;
    ASSERT_TRUE(
        smart->Create(L"CKXSMARTCOMBOBOX", L"", WS_CHILD | WS_VISIBLE, CRect(10, 110, 160, 140), &parent, 3000));
    CStringList formats;
    fillList(formats, L"[(C)1] [(N)2] [(A)3]");
    switch (round % 4)
    {
    case 0:
        smart->SetBitmapFormatList(formats, IDB_TILES, 3, L"one;two;three", 1);
        break;
    case 1:
        smart->SetBitmapOnly(IDI_BOLT);
        break;
    case 2:
        smart->SetDoubleBitmap(formats, IDI_BOLT, IDB_MASKED);
        break;
    default:
        smart->SetNoBitmap();
        break;
    }
    smart->AddFormatToolTip(L"tip");
    smart->AddStringCombo(L"12");
    smart->SetCurSel(0);
    smart->UpdateWindow();
    smart->SetVisibleAddDelete(0);
    smart->SetVisibleAddDelete(1);
    if (round % 3 == 0)
        delete smart;
    else
        smart->DestroyWindow(); // and deletes it
}
} // namespace

TEST(SmartLifetime, two_thousand_controls_leave_no_handle)
{
    SmartHost host;
    expectNoHandleLeft(2000, [&](int round) { useOnce(host, round); });
}

TEST(SmartLifetime, dialogs_with_the_control_leave_no_handle)
{
    const auto use = []
    {
        SmartHost host;
        host.remember(L"A B");
        host.combo().ShowDropDown(TRUE);
    };
    expectNoHandleLeft(20, [&](int) { use(); });
}
