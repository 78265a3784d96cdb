// A control of the host's own class: which of its operations are called, in which state, and what it may do in them.
#include <gtest/gtest.h>
#include "SmartHost.h"

namespace
{
class DerivedSmart : public CKxSmartComboBox
{
public:
    explicit DerivedSmart(CWnd& parent)
    {
        Create(L"CKXSMARTCOMBOBOX", L"", WS_CHILD | WS_VISIBLE, CRect(10, 110, 210, 140), &parent, 3000);
    }
    void BitmapButtonClick() override { note(); }
    void LeftBitmapButtonClick() override { note(); }
    void RightBitmapButtonClick() override { note(); }
    LRESULT OnButtonSelChanged(WPARAM wParam, LPARAM index) override
    {
        chosen = index;
        return 5 + CKxSmartComboBox::OnButtonSelChanged(wParam, index);
    }
    CKxUnit* GetUnit() override
    {
        if (--endsAtUnit == 0)
            DestroyWindow();
        return nullptr;
    }
    CString helpPath() const { return m_helpPath; }
    CString whatsThisHelpPath() const { return m_whatsThisHelpPath; }
    int bitmapSet() const { return m_bitmapSet; }

    std::function<void(DerivedSmart&, int code)> onCode; ///< before what the class does with a notification
    LPARAM chosen = -1;
    int endsAtUnit = 0;
    int inState = 0;    ///< calls under the module state of the host
    int outOfState = 0; ///< under another one

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        const Here here{m_hWnd, this};
        if (onCode && LOWORD(wParam) == ID_COMBO)
            onCode(*this, HIWORD(wParam));
        return here.is() ? CKxSmartComboBox::OnCommand(wParam, lParam) : TRUE;
    }

private:
    struct Here
    {
        HWND window;
        CWnd* object;
        bool is() const { return CWnd::FromHandlePermanent(window) == object; }
    };
    void note() { ++(AfxGetModuleState() == AfxGetAppModuleState() ? inState : outOfState); }
};
} // namespace

TEST(DerivedSmart, clicks_on_pictures_run_under_the_module_state_of_the_host)
{
    AFX_MODULE_STATE other;
    SmartHost host;
    for (const int mode : {2, 3})
    {
        auto* const derived = new DerivedSmart(host);
        CStringList none;
        if (mode == 2)
            derived->SetBitmapOnly(IDI_BOLT);
        else
            derived->SetDoubleBitmap(none, IDI_BOLT, IDB_MASKED);
        AFX_MODULE_STATE* const before = AfxSetModuleState(&other);
        derived->SendMessage(WM_COMMAND, CKxSmartComboBox::ID_LEFT_BITMAP, 0);
        derived->SendMessage(WM_COMMAND, CKxSmartComboBox::ID_RIGHT_BITMAP, 0);
        EXPECT_EQ(AfxGetModuleState(), &other) << "as it was";
        AfxSetModuleState(before);
        EXPECT_EQ(derived->inState, 2);
        EXPECT_EQ(derived->outOfState, 0);
        derived->DestroyWindow();
    }
}

TEST(DerivedSmart, a_chosen_picture_goes_through_the_operation_of_the_host)
{
    SmartHost host;
    auto* const derived = new DerivedSmart(host);
    CStringList formats;
    fillList(formats, L"[(C)1] [(N)2]");
    derived->SetBitmapFormatList(formats, IDB_TILES, 2, CString(), 0);
    EXPECT_EQ(derived->SendMessage(0x405, 1009, 1), 5);
    EXPECT_EQ(derived->chosen, 1);
    EXPECT_EQ(derived->GetFormat(), L"[(N)2]");
    EXPECT_EQ(host.heard, (std::vector<Heard>{{1029, 3000, 1}}));
}

TEST(DerivedSmart, paths_of_help_and_the_mark_of_the_pictures_are_kept_for_it)
{
    SmartHost host;
    CStringList formats, none;
    fillList(formats, L"[(C)1]");
    const std::function<void(CKxSmartComboBox&)> operations[] = {
        [&](CKxSmartComboBox& one) { one.SetBitmapFormatList(formats, IDB_TILES, 1, CString(), 0); },
        [](CKxSmartComboBox& one) { one.SetBitmapOnly(IDI_BOLT); },
        [&](CKxSmartComboBox& one) { one.SetBitmapOnly(none, IDB_MASKED); },
        [&](CKxSmartComboBox& one) { one.SetDoubleBitmap(none, IDI_BOLT, IDB_MASKED); },
        [](CKxSmartComboBox& one) { one.SetNoBitmap(); },
    };
    for (const auto& operation : operations)
    {
        auto* const derived = new DerivedSmart(host);
        EXPECT_EQ(derived->bitmapSet(), 0);
        operation(*derived);
        EXPECT_EQ(derived->bitmapSet(), 1);
        derived->SetHelpPath(L"help");
        derived->SetWhatsThisHelpPath(L"what");
        EXPECT_EQ(derived->helpPath(), L"help");
        EXPECT_EQ(derived->whatsThisHelpPath(), L"what");
        derived->DestroyWindow();
    }
}

TEST(DerivedSmart, the_question_for_the_unit_may_end_the_control)
{
    SmartHost host;
    CStringList formats;
    fillList(formats, L"[(C)1]-[(C)1] [(N)1]-[(N)1]");
    const std::function<void(CKxSmartComboBox&)> operations[] = {
        [](CKxSmartComboBox& one) { one.SendMessage(WM_COMMAND, 1006, 0); },
        [](CKxSmartComboBox& one)
        {
            const auto combo = reinterpret_cast<LPARAM>(::GetDlgItem(one.m_hWnd, 1008));
            one.SendMessage(WM_COMMAND, MAKEWPARAM(1008, CBN_SELCHANGE), combo);
        },
        [](CKxSmartComboBox& one) { one.ValidFreeFormat(L"1-2", 1); },
        [](CKxSmartComboBox& one) { one.SetCurSel(0); },
        [](CKxSmartComboBox& one) { one.UpdateBitmapFromText(); },
        [](CKxSmartComboBox& one)
        {
            CString text;
            int valid = 0, toggled = 0;
            one.GetText(text, 1, valid, toggled);
        },
        [](CKxSmartComboBox& one)
        {
            CStringList out;
            int index = 0;
            one.GetStringCombo(out, index, 1, 1);
        },
    };
    for (const auto& operation : operations)
    {
        auto* const derived = new DerivedSmart(host);
        const HWND window = derived->m_hWnd;
        derived->SetListFilterString(formats);
        derived->AddStringCombo(L"A");
        derived->SetAutoAddOnSelChange(1);
        derived->SetSelectText(L"1-2");
        derived->endsAtUnit = 1;
        operation(*derived);
        EXPECT_FALSE(::IsWindow(window));
    }
}

TEST(DerivedSmart, any_notification_of_the_combo_box_may_end_the_control)
{
    const int codes[] = {CBN_SETFOCUS,   CBN_DROPDOWN,   CBN_SELENDOK,  CBN_CLOSEUP,     CBN_SELCHANGE,
                         CBN_EDITUPDATE, CBN_EDITCHANGE, CBN_KILLFOCUS, CBN_SELENDCANCEL};
    for (const int wanted : codes)
    {
        SmartHost host;
        auto* const derived = new DerivedSmart(host);
        const HWND window = derived->m_hWnd;
        derived->AddStringCombo(L"A");
        derived->AddStringCombo(L"B");
        derived->onCode = [&](DerivedSmart& one, int code)
        {
            if (code == wanted)
                one.DestroyWindow();
        };
        const auto isThere = [&] { return ::IsWindow(window) != FALSE; };
        const std::function<void()> steps[] = {
            [&] { ::SetFocus(::GetDlgItem(window, 1008)); },
            [] { typeText(L"x"); },
            [] { SmartHost::press(VK_F4); },
            [] { SmartHost::press(VK_DOWN); },
            [] { SmartHost::press(VK_RETURN); },
            [&] { ::SetFocus(host.GetDlgItem(IDC_AFTER)->m_hWnd); },
        };
        for (const auto& step : steps)
            if (isThere())
                step();
        SmartHost::pump(20);
        EXPECT_FALSE(isThere()) << wanted;
    }
}
