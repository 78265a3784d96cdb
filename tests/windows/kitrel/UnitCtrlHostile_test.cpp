// The field with a unit under hosts that ask for the impossible, flood it, or end it while it speaks to them.
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>

#include "BeamDialog.h"
#include "kitrel/KxUnitManager.h"
#include "support/AnswerModal.h"
#include "support/LeakCounters.h"

namespace
{
constexpr double c_infinity = std::numeric_limits<double>::infinity();
constexpr double c_notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr UINT c_end = WM_APP + 1;

/// A window that edits one value in place, as a tree list does, and hears what the editor says.
class CInPlaceHost : public CWnd
{
public:
    CInPlaceHost()
    {
        CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS), L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 400, 200,
                 nullptr, nullptr);
        SetForegroundWindow();
    }
    ~CInPlaceHost() override { DestroyWindow(); }

    std::unique_ptr<CKxUnitCtrl> editor;
    bool endsAtChange = false;

    void open(const wchar_t* text, CKxUnit unit = metres())
    {
        constexpr DWORD style = 0x50810084; // a bordered, visible child of several lines that scrolls sideways
        editor = std::make_unique<CKxUnitCtrl>(1);
        ASSERT_TRUE(editor->CEdit::Create(style, CRect(10, 10, 150, 30), this, 1));
        editor->SetDefaultValues(this, 1, 0.0, unit, 1.797693134862316e-150, 1.7976931348623157e+150);
        editor->SetWindowText(text);
    }

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        if (editor)
            DDX_UnitCtrl(exchange, 1, *editor, L"%.*f");
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (endsAtChange && HIWORD(wParam) == EN_CHANGE)
        {
            endsAtChange = false;
            editor.reset();
        }
        return CWnd::OnCommand(wParam, lParam);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != c_end)
            return CWnd::WindowProc(message, wParam, lParam);
        editor.reset();
        if (wParam != 0)
            DestroyWindow();
        return 0;
    }
};

/// A field whose text is as long as a test wants: an edit field needs time by the square of a line of digits.
class CFloodedField : public CKxUnitCtrl
{
public:
    CString flood;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (flood.IsEmpty() || (message != WM_GETTEXT && message != WM_GETTEXTLENGTH))
            return CKxUnitCtrl::WindowProc(message, wParam, lParam);
        if (message == WM_GETTEXTLENGTH)
            return flood.GetLength();
        ::lstrcpynW(reinterpret_cast<wchar_t*>(lParam), flood, static_cast<int>(wParam));
        return ::lstrlenW(reinterpret_cast<const wchar_t*>(lParam));
    }
};
} // namespace

TEST(UnitCtrlInPlace, a_text_that_the_host_put_there_is_read)
{
    CInPlaceHost host;
    host.open(L"3.500 m");
    EXPECT_TRUE(host.UpdateData(TRUE));
    EXPECT_EQ(3.5, host.editor->GetValueSI());
    EXPECT_EQ(L"m", std::wstring(host.editor->GetUnit()->GetName()));
}

TEST(UnitCtrlInPlace, an_empty_text_and_the_bare_unit_pass_the_exchange)
{
    CInPlaceHost host;
    for (const wchar_t* text : {L"", L"m"})
    {
        host.open(text);
        EXPECT_TRUE(host.UpdateData(TRUE)) << text;
        EXPECT_EQ(text, textOf(*host.editor));
    }
}

TEST(UnitCtrlInPlace, a_refused_text_stays_with_the_focus)
{
    CInPlaceHost host;
    host.open(L"3.500 m");
    host.editor->SetWindowText(L"-5");
    const AnswerModal answer(IDOK);
    EXPECT_FALSE(host.UpdateData(TRUE));
    EXPECT_EQ(1, AnswerModal::count());
    EXPECT_NE(std::wstring::npos, AnswerModal::seen().find(L"La valeur doit être supérieure ou égale à 0.000 m."));
    EXPECT_EQ(L"-5", textOf(*host.editor));
    EXPECT_EQ(host.editor->m_hWnd, ::GetFocus());
    host.editor->SetWindowText(L"0");
    EXPECT_TRUE(host.UpdateData(TRUE)) << "a lower limit just above 0 lets 0 pass";
}

TEST(UnitCtrlInPlace, a_posted_key_becomes_the_first_character)
{
    CInPlaceHost host;
    host.open(L"3.500 m");
    host.editor->PostMessage(WM_KEYDOWN, '5', 1);
    CBeamDialog::pump();
    EXPECT_EQ(L"53.500 m", textOf(*host.editor));
    EXPECT_EQ(53.5, host.editor->GetValueSI());
}

TEST(UnitCtrlInPlace, a_line_end_behind_the_number_does_not_count)
{
    CInPlaceHost host;
    host.open(L"7\r\n");
    EXPECT_EQ(7.0, host.editor->GetValueSI());
}

TEST(UnitCtrlInPlace, the_unit_manager_may_go_during_the_edit)
{
    auto manager = std::make_unique<CKxUnitManager>(true);
    CInPlaceHost host;
    host.open(L"3.500 m", manager->GetVisUnit(1));
    manager.reset();
    host.editor->SetWindowText(L"2.25");
    EXPECT_TRUE(host.UpdateData(TRUE));
    EXPECT_EQ(2.25, host.editor->GetValueSI());
}

TEST(UnitCtrlHostile, a_text_of_a_million_characters_is_refused_and_kept)
{
    constexpr int length = 1 << 20;
    CInPlaceHost host;
    CFloodedField field;
    CKxUnit unit = metres();
    ASSERT_TRUE(field.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 150, 30), &host, 1));
    field.SetDefaultValues(&host, 1, 2.0, unit, 1.0, 3.0);
    for (const wchar_t c : {L'9', L'x', L'-', L'\''})
    {
        field.flood = CString(c, length);
        const AnswerModal answer(IDOK);
        EXPECT_FALSE(field.UpdateValueSI()) << static_cast<int>(c);
        EXPECT_EQ(1, AnswerModal::count()) << static_cast<int>(c);
        EXPECT_LT(AnswerModal::seen().size(), 200U) << static_cast<int>(c);
        EXPECT_EQ(2.0, field.GetValueSI()) << static_cast<int>(c);
    }
    field.flood = CString(L' ', length) + L"2.5";
    EXPECT_TRUE(field.UpdateValueSI());
    EXPECT_EQ(2.5, field.GetValueSI());
}

TEST(UnitCtrlHostile, a_long_text_in_a_real_field_is_refused_and_kept)
{
    CBeamDialog dialog;
    const std::wstring text(2000, L'x');
    dialog.span.SetWindowText(text.c_str());
    const AnswerModal answer(IDOK);
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(1, AnswerModal::count());
    EXPECT_EQ(text, dialog.span.text());
    EXPECT_EQ(2.0, dialog.span.GetValueSI());
}

TEST(UnitCtrlHostile, values_and_limits_that_are_no_numbers)
{
    CBeamDialog dialog;
    dialog.span.ModifyValueSI(c_notANumber);
    EXPECT_EQ(L"0.000 m", dialog.span.text());
    EXPECT_EQ(0.0, dialog.span.GetValueSI());
    double minimum = 0.0;
    double maximum = 0.0;
    dialog.span.ModifyMinMaxSI(c_notANumber, c_notANumber);
    dialog.span.GetMinMaxSI(minimum, maximum);
    EXPECT_EQ(-c_infinity, minimum);
    EXPECT_EQ(c_infinity, maximum);
    dialog.span.ModifyValueSI(c_infinity);
    EXPECT_EQ(1e290, dialog.span.GetValueSI());
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(1e290, dialog.spanSI);
    dialog.spanSI = c_notANumber;
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(L"0.000 m", dialog.span.text());
}

TEST(UnitCtrlHostile, reversed_limits_are_exchanged)
{
    CBeamDialog dialog;
    dialog.span.ModifyMinMaxSI(3.0, 1.0);
    double minimum = 0.0;
    double maximum = 0.0;
    dialog.span.GetMinMaxSI(minimum, maximum);
    EXPECT_EQ(1.0, minimum);
    EXPECT_EQ(3.0, maximum);
    dialog.span.SetWindowText(L"2");
    EXPECT_TRUE(dialog.span.IsTextAccepted());
}

TEST(UnitCtrlHostile, its_own_unit_may_be_given_to_it)
{
    CBeamDialog dialog;
    dialog.span.SetDefaultValues(&dialog, IDC_SPAN, 1.5, *dialog.span.GetUnit(), 0.0, 100.0);
    EXPECT_EQ(L"1.500 m", dialog.span.text());
    dialog.span.SetUnit(*dialog.span.GetUnit());
    EXPECT_EQ(L"1.500 m", dialog.span.text());
}

TEST(UnitCtrlHostile, an_item_that_does_not_exist_leaves_the_control_without_window)
{
    CBeamDialog dialog;
    CKxUnitCtrl control;
    CKxUnit unit = metres();
    control.SetDefaultValues(&dialog, 4711, 1.5, unit, 0.0, 2.0);
    EXPECT_EQ(nullptr, control.m_hWnd);
    EXPECT_EQ(1.5, control.GetValueSI());
    EXPECT_TRUE(control.IsTextAccepted());
    EXPECT_TRUE(control.UpdateValueSI());
    control.SetUnit(millimetres());
    control.ShowValue();
    EXPECT_EQ(1.5, control.GetValueSI());
}

TEST(UnitCtrlHostile, a_parent_that_ends_the_editor_when_it_hears_of_a_change)
{
    const struct
    {
        const char* what;
        std::function<void(CKxUnitCtrl&)> change;
    } rows[] = {
        {"value", [](CKxUnitCtrl& editor) { editor.ModifyValueSI(2.0); }},
        {"unit", [](CKxUnitCtrl& editor) { editor.SetUnit(millimetres()); }},
        {"shown", [](CKxUnitCtrl& editor) { editor.ShowValue(); }},
        {"typed", [](CKxUnitCtrl& editor) { editor.SendMessage(WM_CHAR, '5', 1); }},
    };
    for (const auto& row : rows)
    {
        CInPlaceHost host;
        host.editor = std::make_unique<CKxUnitCtrl>(1);
        host.editor->Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 150, 30), &host, 1); // one line: it tells every change
        host.editor->ModifyValueSI(1.0);
        host.endsAtChange = true;
        row.change(*host.editor);
        EXPECT_EQ(nullptr, host.editor) << row.what;
        EXPECT_EQ(nullptr, ::GetDlgItem(host.m_hWnd, 1)) << row.what;
    }
}

TEST(UnitCtrlHostile, a_host_that_ends_the_editor_or_itself_under_the_message)
{
    for (const WPARAM itself : {WPARAM{0}, WPARAM{1}})
        for (const bool exchange : {true, false})
        {
            CInPlaceHost host;
            host.open(L"abc");
            const AnswerModal answer(IDOK);
            host.PostMessage(c_end, itself, 0); // comes while the message box is open
            EXPECT_FALSE(exchange ? host.UpdateData(TRUE) : host.editor->UpdateValueSI());
            EXPECT_EQ(1, AnswerModal::count());
            EXPECT_EQ(nullptr, host.editor);
            EXPECT_EQ(itself != 0, host.m_hWnd == nullptr);
        }
}

TEST(UnitCtrlHostile, two_thousand_editors_leave_nothing_behind)
{
    CInPlaceHost host;
    host.open(L"1");
    host.editor.reset();
    const int objects = gdiObjectCount();
    const int windows = windowCount();
    const int handles = kernelHandleCount();
    for (int i = 0; i < 2000; ++i)
    {
        host.open(L"3.500 m");
        host.UpdateData(TRUE);
        host.editor.reset();
    }
    EXPECT_EQ(objects, gdiObjectCount());
    EXPECT_EQ(windows, windowCount());
    EXPECT_EQ(handles, kernelHandleCount());
}
