// The control on a dialog bar, whose colours its children take.
#include <gtest/gtest.h>
#include <memory>
#include "SmartHost.h"
#include "oxa/dialogs/KxDialogBarEx.h"

namespace
{
/// A frame on the stack.
class BarFrame : public CFrameWnd
{
public:
    BarFrame() { Create(nullptr, L"bars", WS_POPUP | WS_VISIBLE, CRect(60, 60, 460, 260)); }
    ~BarFrame() override { DestroyWindow(); }

protected:
    void PostNcDestroy() override {}
};

class SmartOnBar : public testing::Test
{
protected:
    SmartOnBar()
    {
        CKxSmartComboBox::RegisterWndClass(AfxGetInstanceHandle());
        bar->Create(&frame, IDD_SMART_BAR, CBRS_TOP, 9000);
        pumpFor(10);
    }
    static HBRUSH brushFor(CWnd& control)
    {
        CClientDC dc(&control);
        return reinterpret_cast<HBRUSH>(
            control.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC),
                                reinterpret_cast<LPARAM>(::GetDlgItem(control.m_hWnd, CKxSmartComboBox::ID_COMBO))));
    }
    static HBRUSH paleBlue() { return static_cast<HBRUSH>(CKxDialogBarEx::m_bkBrush.GetSafeHandle()); }

    BarFrame frame;
    std::unique_ptr<CKxDialogBarEx> bar = std::make_unique<CKxDialogBarEx>();
};
} // namespace

TEST_F(SmartOnBar, takes_the_colours_of_the_bar)
{
    CWnd* const control = bar->GetDlgItem(IDC_SMART);
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(brushFor(*control), paleBlue());
}

TEST_F(SmartOnBar, takes_them_from_the_parent_of_its_parent_too)
{
    CWnd between;
    between.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 30), bar.get(), 1);
    auto* const inner = new CKxSmartComboBox;
    ASSERT_TRUE(inner->Create(L"CKXSMARTCOMBOBOX", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 90, 25), &between, 2));
    EXPECT_EQ(brushFor(*inner), paleBlue());
}

TEST_F(SmartOnBar, has_the_systems_colours_elsewhere)
{
    SmartHost host;
    EXPECT_NE(brushFor(*host.smart), paleBlue());
    EXPECT_EQ(brushFor(*host.smart), ::GetSysColorBrush(COLOR_WINDOW));
}

TEST_F(SmartOnBar, asks_no_bar_that_has_gone)
{
    CWnd* const control = bar->GetDlgItem(IDC_SMART);
    SmartHost elsewhere;
    control->SetParent(&elsewhere);
    bar.reset();
    EXPECT_EQ(brushFor(*control), ::GetSysColorBrush(COLOR_WINDOW));
}
