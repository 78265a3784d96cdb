// How the control comes to be: by its class in a dialog template, by an object of the host; its children and their places.
#include <gtest/gtest.h>
#include "SmartHost.h"

namespace
{
std::wstring classOf(HWND window)
{
    wchar_t name[64] = {};
    ::GetClassNameW(window, name, 64);
    return name;
}

/// DEFAULT_GUI_FONT's height and 4, the height of a field.
int fieldHeight()
{
    LOGFONT font = {};
    ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
    return std::abs(font.lfHeight) + 4;
}

/// A control of the host's own class.
class DerivedSmart : public CKxSmartComboBox
{
public:
    explicit DerivedSmart(int* ended = nullptr) : m_ended(ended) {}
    ~DerivedSmart() override
    {
        if (m_ended != nullptr)
            ++*m_ended;
    }
    BOOL createIn(CWnd& parent)
    {
        CKxSmartComboBox::RegisterWndClass(AfxGetInstanceHandle());
        return Create(L"CKXSMARTCOMBOBOX", L"derived", WS_CHILD | WS_VISIBLE, CRect(10, 110, 160, 140), &parent, 3000);
    }

private:
    int* m_ended;
};
} // namespace

TEST(SmartCreation, the_class_is_registered_for_the_whole_process_and_once)
{
    EXPECT_TRUE(CKxSmartComboBox::RegisterWndClass(AfxGetInstanceHandle()));
    EXPECT_TRUE(CKxSmartComboBox::RegisterWndClass(AfxGetInstanceHandle())) << "it is there";
    WNDCLASSW known = {};
    ASSERT_TRUE(::GetClassInfoW(AfxGetInstanceHandle(), L"CKXSMARTCOMBOBOX", &known));
    EXPECT_EQ(known.style, static_cast<UINT>(CS_GLOBALCLASS));
    EXPECT_EQ(known.hbrBackground, nullptr);
    EXPECT_EQ(known.hIcon, nullptr);
    EXPECT_EQ(known.hCursor, nullptr);
    EXPECT_EQ(known.cbClsExtra + known.cbWndExtra, 0);
}

TEST(SmartCreation, a_template_needs_no_other_code)
{
    SmartHost host;
    EXPECT_EQ(CWnd::FromHandlePermanent(host.smart->m_hWnd), host.smart);
    CString title;
    host.smart->GetWindowText(title);
    EXPECT_EQ(title, L"title");
}

TEST(SmartCreation, children_stand_at_their_places_with_their_styles)
{
    SmartHost host;
    const int right = host.clientWidth();
    const int h = fieldHeight();
    const struct
    {
        int id;
        const wchar_t* className;
        const wchar_t* text;
        LONG_PTR style;
        CRect place;
    } rows[] = {
        {1006, L"Button", L"+", 0x50010000, {right - 14, 2, right - 2, (h + 6) / 2}},
        {1007, L"Button", L"-", 0x50010000, {right - 14, (h + 6) / 2, right - 2, h + 4}},
    };
    for (const auto& row : rows)
    {
        const HWND child = host.child(row.id);
        ASSERT_NE(child, nullptr) << row.id;
        wchar_t text[8] = {};
        ::GetWindowTextW(child, text, 8);
        EXPECT_EQ(classOf(child), row.className);
        EXPECT_STREQ(text, row.text);
        EXPECT_EQ(::GetWindowLongPtrW(child, GWL_STYLE), row.style);
        EXPECT_EQ(host.childPlace(row.id), row.place);
    }
    ASSERT_EQ(host.child(1008), host.combo().m_hWnd);
    constexpr DWORD ownAffair =
        WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_VSCROLL; // the platform moves the last to the list
    EXPECT_EQ(host.combo().GetStyle() & ~ownAffair, 0x50010242U | CBS_SORT);
    EXPECT_EQ(host.childPlace(1008).TopLeft(), CPoint(0, 0));
    EXPECT_EQ(host.childPlace(1008).right, right);
    EXPECT_EQ(host.combo().GetFont()->m_hObject, ::GetStockObject(DEFAULT_GUI_FONT));
    EXPECT_EQ(host.child(1009), nullptr);
    EXPECT_EQ(host.child(1037), nullptr);
    EXPECT_EQ(host.child(1038), nullptr);
}

TEST(SmartCreation, the_field_is_as_high_as_one_of_the_same_item_height)
{
    SmartHost host;
    CComboBox other;
    other.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 100, 200), &host, 3000);
    other.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    other.SetItemHeight(-1, static_cast<UINT>(fieldHeight()));
    EXPECT_EQ(host.combo().GetItemHeight(-1), other.GetItemHeight(-1));
}

TEST(SmartCreation, an_unsorted_control_has_an_unsorted_combo_box)
{
    SmartHost host;
    auto* const derived = new DerivedSmart;
    derived->SetSort(0);
    ASSERT_TRUE(derived->createIn(host));
    EXPECT_EQ(OpenSmartCombo::combo(*derived).GetStyle() & CBS_SORT, 0U);
    derived->AddStringCombo(L"b");
    derived->AddStringCombo(L"a");
    CString first;
    OpenSmartCombo::combo(*derived).GetLBText(0, first);
    EXPECT_EQ(first, L"b");
}

TEST(SmartCreation, an_object_of_the_host_is_deleted_with_its_window)
{
    int ended = 0;
    {
        SmartHost host;
        auto* const first = new DerivedSmart(&ended);
        ASSERT_TRUE(first->createIn(host));
        EXPECT_FALSE(first->createIn(host)) << "it has its window";
        first->DestroyWindow();
        EXPECT_EQ(ended, 1);
        auto* const second = new DerivedSmart(&ended);
        ASSERT_TRUE(second->createIn(host));
        second->AddStringCombo(L"a");
        EXPECT_EQ(second->SetCurSel(0), 0);
    }
    EXPECT_EQ(ended, 2);
}

TEST(SmartCreation, an_object_of_the_host_may_be_deleted_before_its_window)
{
    int ended = 0;
    SmartHost host;
    auto* const derived = new DerivedSmart(&ended);
    ASSERT_TRUE(derived->createIn(host));
    derived->SetBitmapOnly(IDI_BOLT);
    derived->AddFormatToolTip(L"tip");
    const HWND window = derived->m_hWnd;
    delete derived;
    EXPECT_EQ(ended, 1);
    EXPECT_FALSE(::IsWindow(window));
}

TEST(SmartCreation, what_the_system_does_may_end_at_the_systems_procedure)
{
    SmartHost host;
    auto* const derived = new DerivedSmart;
    ASSERT_TRUE(derived->createIn(host));
    for (int again = 0; again < 2; ++again)
    {
        derived->SetAddressProcToNull();
        derived->SetWindowText(L"by the system");
        CString text;
        derived->GetWindowText(text);
        EXPECT_EQ(text, L"by the system");
    }
    host.smart->SetAddressProcToNull();
    host.smart->SetWindowText(L"this one too");
}

TEST(SmartCreation, another_object_that_subclasses_the_window_gets_its_messages)
{
    SmartHost host;
    CWnd other;
    CWnd* const control = host.smart;
    ASSERT_TRUE(other.SubclassWindow(control->m_hWnd));
    other.SetWindowText(L"subclassed");
    CString text;
    other.GetWindowText(text);
    EXPECT_EQ(text, L"subclassed");
    other.UnsubclassWindow();
    delete control; // the window had become the other object's
    host.smart = nullptr;
}

TEST(SmartCreation, a_parent_that_is_missing_makes_no_control)
{
    int ended = 0;
    CWnd nobody;
    EXPECT_FALSE((new DerivedSmart(&ended))->createIn(nobody));
    EXPECT_EQ(ended, 1) << "the object goes with the window that never was";
}

TEST(SmartCreation, without_a_window_everything_is_quiet)
{
    CKxSmartComboBox control;
    CStringList list;
    fillList(list, L"[(N)2]");
    int index = 0;
    control.SetFormat(L"[(N)2]");
    EXPECT_EQ(control.GetFormat(), L"[(N)2]");
    control.GetStringCombo(list, index, 1, 1);
    control.SetVisibleAddDelete(0);
    control.SetVisibleAddDelete(1);
    control.SetEnableAddDelete(1, 0);
    EXPECT_FALSE(control.EnableWindow(0));
    control.SetFormatToolTip(L"tip");
    control.AddFormatToolTip(L"tip");
    control.SetVariant(3);
    EXPECT_EQ(control.GetVariant(), 3);
    EXPECT_EQ(control.GetCurSel(), -1);
    EXPECT_EQ(control.SetCurSel(0), -1);
    control.SetNoBitmap();
    control.SetBitmapOnly(IDI_BOLT);
    fillList(list, L"[(N)2]");
    control.SetBitmapFormatList(list, IDB_TILES, 3, CString(), 0);
    EXPECT_EQ(control.m_hWnd, nullptr);
}

TEST(SmartCreation, the_owners_words_are_kept)
{
    SmartHost host;
    CKxSmartComboBox& smart = *host.smart;
    EXPECT_EQ(smart.GetUppercase(), 1);
    EXPECT_EQ(smart.GetSort(), 1);
    EXPECT_EQ(smart.GetVariant(), 0);
    EXPECT_EQ(smart.GetVisibility(), 0);
    EXPECT_EQ(smart.GetActivateButton(), 1);
    EXPECT_EQ(smart.GetCurrentBitmap(), 0xFFFFFFFFU);
    EXPECT_EQ(smart.GetMask(), L"");
    EXPECT_EQ(smart.GetUnit(), nullptr);
    smart.SetUppercase(0);
    smart.SetMask(L"mask");
    smart.SetVisibility(5);
    smart.SetVariant(7);
    EXPECT_EQ(smart.GetUppercase(), 0);
    EXPECT_EQ(smart.GetMask(), L"mask");
    EXPECT_EQ(smart.GetVisibility(), 5);
    EXPECT_EQ(smart.GetVariant(), 7);
    EXPECT_TRUE(::GetUpdateRect(smart.m_hWnd, nullptr, FALSE)) << "the variant paints the control anew";
}
