// What a host can do to the control at the wrong moment, and values as no user types them.
#include <gtest/gtest.h>
#include "SmartHost.h"
#include "support/Pixels.h"

namespace
{
/// Something that makes the control tell its parent.
struct Cause
{
    const char* what;
    UINT message;
    void (*act)(SmartHost& host);
};

/// A notification of the combo box as the platform sends it.
void notify(SmartHost& host, WORD code)
{
    const HWND combo = host.combo().m_hWnd;
    ::SendMessageW(host.smart->m_hWnd, WM_COMMAND, MAKEWPARAM(1008, code), reinterpret_cast<LPARAM>(combo));
}

const Cause causes[] = {
    {"a picked button", 1029, [](SmartHost& host) { host.smart->SendMessage(0x405, 1009, 0); }},
    {"an addition", 1030,
     [](SmartHost& host)
     {
         host.smart->SetFormat(L"[(N)2]");
         host.combo().SetCurSel(1);
         host.combo().SetWindowText(L"12");
         notify(host, CBN_SELCHANGE);
     }},
    {"a picked item", 1031, [](SmartHost& host) { host.pick(1); }},
    {"a confirmed item", 1032, [](SmartHost& host) { host.pick(1); }},
    {"a confirmed item by key", 1032,
     [](SmartHost& host)
     {
         host.combo().SetFocus();
         SmartHost::press(VK_DOWN);
     }},
    {"an edited text", 1033,
     [](SmartHost& host)
     {
         click(host.fieldPoint());
         typeText(L"x");
     }},
};

class SmartEnding : public testing::TestWithParam<Cause>
{
protected:
    void run(const std::function<void(SmartHost&)>& end)
    {
        SmartHost host;
        host.remember(L"A B");
        host.alternatives(L"[(N)2]");
        host.smart->SetAutoAddOnSelChange(GetParam().message == 1030 ? 1 : 0);
        bool ended = false;
        host.onHear = [&](const Heard& one)
        {
            if (one.message != GetParam().message || ended)
                return;
            ended = true;
            end(host);
        };
        GetParam().act(host);
        host.onHear = nullptr;
        pumpFor(20);
        EXPECT_TRUE(ended) << GetParam().what;
        EXPECT_EQ(host.m_hWnd != nullptr && ::GetDlgItem(host.m_hWnd, IDC_SMART) != nullptr, false);
    }
};
} // namespace

TEST_P(SmartEnding, the_control_may_go_inside_the_message)
{
    run([](SmartHost& host) { host.smart->DestroyWindow(); });
}

TEST_P(SmartEnding, the_object_may_be_deleted_inside_the_message)
{
    run([](SmartHost& host) { delete host.smart; });
}

TEST_P(SmartEnding, the_parent_may_go_inside_the_message)
{
    run([](SmartHost& host) { host.DestroyWindow(); });
}

INSTANTIATE_TEST_SUITE_P(Messages, SmartEnding, testing::ValuesIn(causes));

TEST(SmartHostile, the_parent_may_go_while_a_question_or_a_refusal_is_open)
{
    for (const bool question : {true, false})
    {
        SmartHost host;
        host.remember(L"A B");
        host.smart->SetCurSel(1);
        if (!question)
        {
            host.smart->SetFormat(L"[(N)1]-[(N)1]");
            host.fillFormat(L"1");
            host.combo().SetWindowText(L"1-#");
        }
        const UINT_PTR timer = ::SetTimer(host.m_hWnd, 7, 200,
                                          [](HWND window, UINT, UINT_PTR id, DWORD)
                                          {
                                              ::KillTimer(window, id);
                                              ::DestroyWindow(window);
                                          });
        ASSERT_NE(timer, 0U);
        host.smart->SendMessage(WM_COMMAND, question ? 1007 : 1006, 0);
        EXPECT_EQ(host.m_hWnd, nullptr) << "it came back although all had gone";
    }
}

TEST(SmartHostile, bad_formats_are_survived_in_every_operation)
{
    const wchar_t* const formats[] = {L"",        L"(",        L"[",      L"[(",           L"[(N",
                                      L"[(N)",    L"[(N)]",    L"[(N)0]", L"[(N)-3]",      L"[(N)x",
                                      L"[(a-)2]", L"[(z-a)2]", L"x",      L"[(N)2][(A)3]", L"lit"};
    for (const wchar_t* const format : formats)
    {
        SmartHost host;
        CStringList list;
        list.AddTail(format);
        list.AddTail(L"");
        list.AddTail(format);
        const auto survives = [&](const std::function<void()>& operation)
        {
            try
            {
                operation();
            }
            catch (CException* exception) // a format without any element
            {
                exception->Delete();
            }
            ASSERT_TRUE(::IsWindow(host.smart->m_hWnd));
        };
        CString text;
        bool valid = false;
        int number = 0;
        survives([&] { host.smart->SetListFilterString(list); });
        survives([&] { host.smart->SetFormat(format); });
        survives([&] { host.smart->SetStringCombo(list); });
        survives([&] { host.smart->SetBitmapFormatList(list, IDB_TILES, 3, L"a;;b", 1); });
        survives([&] { host.smart->ResetSelectText(); });
        survives([&] { host.smart->ValidFreeFormat(L"12", 1); });
        survives([&] { host.smart->GetSelectText(text, valid); });
        survives([&] { host.smart->getPatternAndValidate(text); });
        survives([&] { host.smart->GetText(text, 1, number, number); });
        survives([&] { host.smart->SetCurSel(-1); });
        survives([&] { host.smart->SortCombo(); });
        survives([&] { host.smart->UpdateBitmapFromText(); });
        host.smart->SetAutoAddOnSelChange(1);
        const AnswerModal answered(IDOK);
        notify(host, CBN_SELCHANGE);
        host.smart->SendMessage(WM_COMMAND, 1006, 0);
        host.smart->SendMessage(WM_COMMAND, 1007, 0);
        host.smart->SendMessage(0x405, 1009, 1);
        EXPECT_TRUE(::IsWindow(host.smart->m_hWnd)) << format;
    }
}

TEST(SmartHostile, numbers_of_any_size_are_taken)
{
    const int numbers[] = {INT_MIN, -2, -1, 0, 1, 3, 1000, INT_MAX};
    SmartHost host;
    host.remember(L"A B");
    for (const int number : numbers)
    {
        CStringList formats;
        fillList(formats, L"[(C)1] [(N)2]");
        host.smart->DeleteStringCombo(static_cast<unsigned int>(number) | 0x80000000U);
        host.smart->SetCurSel(number);
        host.smart->SetVisibleAddDelete(number);
        host.smart->SetBitmapFormatList(formats, static_cast<unsigned int>(number), number, L";", number);
        host.smart->SetBitmapOnly(static_cast<unsigned int>(number));
        host.smart->SetDoubleBitmap(formats, static_cast<unsigned int>(number), static_cast<unsigned int>(number));
        host.smart->SendMessage(0x405, 0, number);
        host.smart->SetSort(number);
        host.smart->SetVariant(number);
        SmartHost::pump();
        EXPECT_TRUE(::IsWindow(host.smart->m_hWnd)) << number;
    }
    EXPECT_NE(host.data().list.Find(L"A"), nullptr);
    EXPECT_NE(host.data().list.Find(L"B"), nullptr);
}

TEST(SmartHostile, commands_and_notifications_from_nobody_are_taken)
{
    SmartHost host;
    for (const int id : {0, 1006, 1007, 1008, 1009, 1037, 1038, 0xFFFF})
        for (int code = 0; code < 16; ++code)
            host.smart->SendMessage(WM_COMMAND, MAKEWPARAM(id, code), 0);
    for (const UINT message : {WM_CTLCOLOREDIT, WM_CTLCOLORSTATIC, WM_CTLCOLORLISTBOX, WM_CTLCOLORBTN})
        host.smart->SendMessage(message, 0, 0);
    EXPECT_TRUE(::IsWindow(host.smart->m_hWnd));
}

TEST(SmartHostile, a_control_without_any_size_is_taken)
{
    SmartHost host;
    for (const CSize size : {CSize(0, 0), CSize(1, 1), CSize(30000, 1), CSize(5, 30000)})
    {
        host.smart->SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        CStringList formats;
        fillList(formats, L"[(C)1]");
        host.smart->SetBitmapFormatList(formats, IDB_TILES, 3, CString(), 0);
        host.smart->SetVisibleAddDelete(0);
        host.smart->SetVisibleAddDelete(1);
        SmartHost::pump();
    }
    EXPECT_TRUE(::IsWindow(host.smart->m_hWnd));
}

TEST(SmartHostile, values_of_a_million_characters_are_kept)
{
    SmartHost host;
    const CString longText(L'7', 1000000);
    host.smart->AddStringCombo(longText);
    host.smart->AddStringCombo(longText);
    ASSERT_EQ(host.data().list.GetCount(), 1);
    EXPECT_EQ(host.combo().GetLBTextLen(0), 1000000);
    CStringList values;
    values.AddTail(longText);
    values.AddTail(longText);
    host.smart->SetStringCombo(values);
    host.smart->SortCombo();
    EXPECT_EQ(host.data().list.GetHead(), longText);
    EXPECT_EQ(host.smart->ValidFreeFormat(longText, 1), 0);
    host.smart->DeleteStringCombo(longText);
    EXPECT_EQ(host.combo().GetCount(), 0);
}

TEST(SmartHostile, empty_texts_in_every_list_are_kept)
{
    SmartHost host;
    CStringList list;
    for (int i = 0; i < 3; ++i)
        list.AddTail(L"");
    host.smart->SetStringCombo(list);
    EXPECT_EQ(host.combo().GetCount(), 3) << "the search never finds the empty text";
    host.smart->AddStringCombo(L"");
    EXPECT_EQ(host.data().list.GetCount(), 4);
    host.smart->SortCombo();
    EXPECT_EQ(host.combo().GetCount(), 1) << "sorting drops equal ones";
    CStringList fetched;
    host.smart->GetListFilterString(fetched);
    EXPECT_TRUE(fetched.IsEmpty());
}

TEST(SmartHostile, values_may_be_replaced_while_their_list_is_open)
{
    SmartHost host;
    host.remember(L"A B C D E F");
    host.combo().SetFocus();
    SmartHost::press(VK_F4);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(::GetComboBoxInfo(host.combo().m_hWnd, &info));
    ASSERT_TRUE(waitFor([&] { return ::IsWindowVisible(info.hwndList) != FALSE; }));
    host.remember(L"X Y");
    SmartHost::pump(20);
    CWnd& list = *CWnd::FromHandle(info.hwndList);
    const Pixels painted(list);
    list.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_EQ(painted.difference(Pixels(list)), "") << "the new values show";
    SmartHost::press(VK_DOWN);
    SmartHost::press(VK_RETURN);
    EXPECT_EQ(host.shown(), L"[X] Y / X Y / X");
}

TEST(SmartHostile, a_hidden_combo_box_stays_hidden_when_values_are_replaced)
{
    SmartHost host;
    host.combo().ShowWindow(SW_HIDE);
    host.remember(L"A B");
    EXPECT_EQ(host.combo().GetStyle() & WS_VISIBLE, 0U);
    host.combo().ShowWindow(SW_SHOW);
    EXPECT_EQ(host.shown(), L"A B / A B / ");
}

// ---- Many values

namespace
{
/// Each number once, in disorder.
void fillMany(CStringList& values, int count)
{
    for (int i = 0; i < count; ++i)
    {
        CString text;
        text.Format(L"%d", static_cast<int>(static_cast<long long>(i) * 7919 % count));
        values.AddTail(text);
    }
}

void expectMany(int count)
{
    SmartHost host;
    CStringList values;
    fillMany(values, count);
    host.smart->SetStringCombo(values);
    EXPECT_EQ(host.combo().GetCount(), count);
    EXPECT_EQ(host.data().list.GetCount(), count);
    EXPECT_EQ(host.data().list.GetHead(), L"0");
    EXPECT_EQ(host.smart->SetCurSel(CString(L"777")), 0);
    host.smart->SortCombo();
    CString selected;
    host.smart->GetSelectText(selected);
    EXPECT_EQ(selected, L"777");
    EXPECT_EQ(host.combo().GetCount(), count);
}
} // namespace

TEST(SmartHostile, a_thousand_values_are_filled_and_sorted)
{
    expectMany(1000);
}

TEST(SmartHostile, ten_thousand_values_are_filled_and_sorted)
{
    expectMany(10000);
}

TEST(SmartHostile, a_hundred_thousand_values_are_filled_and_sorted)
{
    expectMany(100000);
}
