// The field with a unit in a real dialog: exchange both ways, refusals, limits, a change of the working unit.
#include <gtest/gtest.h>

#include "BeamDialog.h"
#include "kitrel/KxPrompts.h"
#include "support/AnswerModal.h"

BEGIN_MESSAGE_MAP(CBeamDialog, CDialog)
    // void OnSpanChanged()
    ON_EN_CHANGE(IDC_SPAN, &CBeamDialog::OnSpanChanged)
END_MESSAGE_MAP()

namespace
{
/// The words of the message boxes, without their caption.
std::wstring told()
{
    const std::wstring& seen = AnswerModal::seen();
    return seen.substr(seen.find(L'|') + 1);
}
} // namespace

TEST(UnitCtrl, the_dialog_shows_its_values_and_gets_them_back_exactly)
{
    constexpr double exact = 2.000123456789;
    CBeamDialog dialog(exact);
    EXPECT_EQ(L"2.000 m", dialog.span.text());
    EXPECT_EQ(L"0.250 m", dialog.depth.text());
    dialog.focusOn(IDC_SPAN);
    dialog.press(VK_TAB);
    dialog.press(VK_RETURN);
    EXPECT_EQ(1, dialog.accepted);
    EXPECT_EQ(exact, dialog.spanSI) << "looked at, not typed";
    EXPECT_EQ(0.25, dialog.depth.GetValueSI());
    dialog.spanSI = 1.5;
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(L"1.500 m", dialog.span.text());
}

TEST(UnitCtrl, what_is_typed_is_read_in_any_unit)
{
    const struct
    {
        const wchar_t* keys;
        double value;
    } rows[] = {{L"2.5", 2.5}, {L"250 cm", 2.5}, {L"2,25", 2.25}, {L"5'", 1.524}, {L"1.2+0.3", 1.5}};
    CBeamDialog dialog;
    for (const auto& row : rows)
    {
        dialog.accepted = 0;
        dialog.enter(IDC_SPAN, row.keys);
        EXPECT_EQ(row.keys, dialog.span.text());
        EXPECT_DOUBLE_EQ(row.value, dialog.span.GetValueSI()) << "before it is taken over";
        dialog.press(VK_RETURN);
        EXPECT_EQ(1, dialog.accepted);
        EXPECT_DOUBLE_EQ(row.value, dialog.spanSI);
    }
}

TEST(UnitCtrl, a_text_that_is_not_understood_is_refused_and_stays_for_correction)
{
    CBeamDialog dialog;
    dialog.enter(IDC_SPAN, L"2.5x");
    const AnswerModal answer(IDOK);
    dialog.press(VK_RETURN);
    EXPECT_EQ(1, AnswerModal::count());
    EXPECT_EQ(L"« 2.5x » n'est pas une valeur en m.\nLa valeur doit être comprise entre 1.000 m et 3.000 m.", told());
    EXPECT_EQ(0, dialog.accepted);
    EXPECT_EQ(2.0, dialog.spanSI);
    EXPECT_EQ(2.0, dialog.span.GetValueSI());
    EXPECT_EQ(L"2.5x", dialog.span.text());
    EXPECT_TRUE(dialog.hasFocus(IDC_SPAN));
    EXPECT_TRUE(dialog.span.allSelected());
    dialog.press(VK_END);
    dialog.press(VK_BACK);
    dialog.press(VK_RETURN);
    EXPECT_EQ(1, dialog.accepted) << "corrected";
    EXPECT_EQ(2.5, dialog.spanSI);
    EXPECT_EQ(1, AnswerModal::count());
}

TEST(UnitCtrl, a_value_out_of_the_limits_is_refused_with_the_limits_in_the_working_unit)
{
    CBeamDialog dialog;
    const AnswerModal answer(IDOK);
    dialog.enter(IDC_SPAN, L"3.5");
    dialog.press(VK_RETURN);
    EXPECT_EQ(L"La valeur doit être comprise entre 1.000 m et 3.000 m.", told());
    dialog.span.SetUnit(millimetres());
    dialog.press(VK_RETURN);
    EXPECT_EQ(L"La valeur doit être comprise entre 1000 mm et 3000 mm.", told()) << "3.5 mm";
    EXPECT_EQ(0, dialog.accepted);
    EXPECT_EQ(L"3.5", dialog.span.text());
    EXPECT_EQ(2.0, dialog.span.GetValueSI());
    dialog.enter(IDC_SPAN, L"3000");
    dialog.press(VK_RETURN);
    EXPECT_EQ(1, dialog.accepted);
    EXPECT_EQ(3.0, dialog.spanSI);
}

TEST(UnitCtrl, only_the_first_refused_field_is_told)
{
    CBeamDialog dialog;
    dialog.enter(IDC_DEPTH, L"x");
    dialog.enter(IDC_SPAN, L"9");
    dialog.focusOn(IDC_NOTE);
    const AnswerModal answer(IDOK);
    dialog.press(VK_RETURN);
    EXPECT_EQ(1, AnswerModal::count());
    EXPECT_TRUE(dialog.hasFocus(IDC_SPAN));
    dialog.type(L"2");
    dialog.press(VK_RETURN);
    EXPECT_EQ(2, AnswerModal::count());
    EXPECT_TRUE(dialog.hasFocus(IDC_DEPTH));
    EXPECT_EQ(2.0, dialog.spanSI);
    EXPECT_EQ(0, dialog.accepted);
}

TEST(UnitCtrl, leaving_the_field_judges_nothing_and_changes_nothing)
{
    CBeamDialog dialog;
    dialog.enter(IDC_SPAN, L"2.34567");
    const AnswerModal answer(IDOK);
    dialog.press(VK_TAB);
    EXPECT_TRUE(dialog.hasFocus(IDC_DEPTH));
    EXPECT_EQ(L"2.34567", dialog.span.text());
    dialog.type(L"abc");
    dialog.press(VK_TAB);
    EXPECT_TRUE(dialog.hasFocus(IDC_NOTE));
    EXPECT_EQ(L"abc", dialog.depth.text());
    dialog.press(VK_ESCAPE);
    EXPECT_EQ(1, dialog.cancelled);
    EXPECT_EQ(0, AnswerModal::count());
}

TEST(UnitCtrl, an_emptied_field_and_the_bare_unit_leave_the_value)
{
    CBeamDialog dialog;
    dialog.focusOn(IDC_SPAN);
    dialog.press(VK_DELETE);
    EXPECT_EQ(L"", dialog.span.text());
    dialog.press(VK_RETURN);
    EXPECT_EQ(1, dialog.accepted);
    EXPECT_EQ(2.0, dialog.spanSI);
    dialog.enter(IDC_SPAN, L"m");
    dialog.press(VK_RETURN);
    EXPECT_EQ(2, dialog.accepted);
    EXPECT_EQ(2.0, dialog.spanSI);
}

TEST(UnitCtrl, a_change_of_the_working_unit_takes_the_typed_value_along)
{
    CBeamDialog dialog;
    dialog.enter(IDC_SPAN, L"2.5");
    dialog.span.SetUnit(millimetres());
    EXPECT_EQ(L"2500 mm", dialog.span.text());
    EXPECT_EQ(2.5, dialog.span.GetValueSI());
    dialog.span.SetUnit(metres(1));
    EXPECT_EQ(L"2.5 m", dialog.span.text());
    dialog.enter(IDC_SPAN, L"nothing");
    dialog.span.SetUnit(millimetres());
    EXPECT_EQ(L"nothing", dialog.span.text()) << "for correction";
    EXPECT_EQ(2.5, dialog.span.GetValueSI());
}

TEST(UnitCtrl, a_change_in_the_unit_inside_shows_when_the_messages_come)
{
    CBeamDialog dialog(2.0004);
    dialog.focusOn(IDC_SPAN);
    dialog.span.GetUnit()->SetPrecision(5);
    dialog.pump();
    EXPECT_EQ(L"2.00040 m", dialog.span.text());
    EXPECT_TRUE(dialog.span.allSelected()) << "as the keyboard left it";
    dialog.span.GetUnit()->SetRange(3);
    EXPECT_EQ(2.0004, dialog.span.GetValueSI()) << "also before it shows";
    dialog.pump();
    EXPECT_EQ(L"2000.40000 mm", dialog.span.text());
    dialog.type(L"1500");
    dialog.span.GetUnit()->SetPrecision(0);
    dialog.pump();
    EXPECT_EQ(L"1500", dialog.span.text()) << "typed";
}

TEST(UnitCtrl, changes_of_the_text_are_trapped_and_told_to_the_dialog)
{
    CBeamDialog dialog;
    dialog.enter(IDC_SPAN, L"2.5");
    EXPECT_EQ(3, dialog.span.trapped);
    EXPECT_EQ(3, dialog.changes);
    dialog.span.ModifyValueSI(1.5);
    EXPECT_EQ(3, dialog.span.trapped) << "its own change";
    EXPECT_EQ(4, dialog.changes) << "as any edit field tells it";
}

TEST(UnitCtrl, a_host_without_exchange_takes_the_value_over_itself)
{
    CBeamDialog dialog;
    dialog.enter(IDC_SPAN, L"7");
    EXPECT_FALSE(dialog.span.IsTextAccepted());
    EXPECT_EQ(L"La valeur doit être comprise entre 1.000 m et 3.000 m.", std::wstring(dialog.span.GetRefusalText()));
    dialog.focusOn(IDC_NOTE);
    const AnswerModal answer(IDOK);
    EXPECT_FALSE(dialog.span.UpdateValueSI());
    EXPECT_EQ(1, AnswerModal::count());
    EXPECT_TRUE(dialog.hasFocus(IDC_SPAN));
    EXPECT_TRUE(dialog.span.allSelected());
    dialog.type(L"2.75");
    EXPECT_TRUE(dialog.span.UpdateValueSI());
    EXPECT_EQ(L"2.75", dialog.span.text());
    EXPECT_TRUE(dialog.span.GetRefusalText().IsEmpty());
    dialog.span.ShowValue();
    EXPECT_EQ(L"2.750 m", dialog.span.text());
}

TEST(UnitCtrl, the_remembered_text_is_the_one_shown_and_a_host_may_write_it)
{
    CBeamDialog dialog(2.000123);
    EXPECT_EQ(L"2.000 m", std::wstring(dialog.span.m_strText));
    dialog.span.ModifyValueSI(1.2345678);
    EXPECT_EQ(L"1.235 m", std::wstring(dialog.span.m_strText));
    dialog.span.m_strText = L"1.2345678";
    EXPECT_EQ(1.2345678, dialog.span.GetValueSI()) << "not read from the rounded text";
    dialog.enter(IDC_SPAN, L"2.5");
    EXPECT_TRUE(dialog.span.UpdateValueSI());
    EXPECT_EQ(L"2.5", std::wstring(dialog.span.m_strText));
}

TEST(UnitCtrl, the_messages_name_what_there_is_to_name)
{
    const double none = std::numeric_limits<double>::infinity();
    CKxUnit numbers(10, 0, 1, L'.', 1.0, 1);
    CKxUnit lengths = metres(1);
    const struct
    {
        CKxUnit& unit;
        double minimum, maximum;
        const wchar_t* text;
        const wchar_t* message;
    } rows[] = {
        {lengths, 1.0, none, L"0", L"La valeur doit être supérieure ou égale à 1.0 m."},
        {lengths, -none, 2.0, L"3", L"La valeur doit être inférieure ou égale à 2.0 m."},
        {lengths, -none, none, L"?", L"« ? » n'est pas une valeur en m."},
        {numbers, -none, none, L"a%1b", L"« a%1b » n'est pas un nombre."},
        {numbers, 0.0, none, L"a", L"« a » n'est pas un nombre.\nLa valeur doit être supérieure ou égale à 0.0."},
    };
    CBeamDialog dialog;
    for (const auto& row : rows)
    {
        dialog.span.SetDefaultValues(&dialog, IDC_SPAN, 1.0, row.unit, row.minimum, row.maximum);
        dialog.span.SetWindowText(row.text);
        EXPECT_EQ(row.message, std::wstring(dialog.span.GetRefusalText()));
    }
}

TEST(UnitCtrl, it_is_an_edit_field_known_by_its_class)
{
    CKxUnitCtrl control(1);
    EXPECT_TRUE(control.IsKindOf(RUNTIME_CLASS(CEdit)));
    EXPECT_EQ(CKxUnitCtrl::GetThisClass(), control.GetRuntimeClass());
    ASSERT_NE(nullptr, control.GetUnit());
    EXPECT_EQ(0.0, control.GetValueSI()) << "without a window";
}

TEST(UnitCtrl, values_that_were_set_before_there_is_a_window_are_shown_in_it)
{
    CBeamDialog dialog;
    CKxUnitCtrl control;
    CKxUnit unit = metres(2);
    control.SetDefaultValues(nullptr, 0, 1.239, unit, 0.0, 5.0);
    EXPECT_EQ(1.239, control.GetValueSI());
    ASSERT_TRUE(control.SubclassDlgItem(IDC_NOTE, &dialog));
    dialog.pump();
    EXPECT_EQ(L"1.24 m", textOf(control));
    EXPECT_EQ(1.239, control.GetValueSI());
    CKxUnitCtrl created;
    created.SetDefaultValues(nullptr, 0, 2.5, unit, 0.0, 5.0);
    ASSERT_TRUE(created.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &dialog, 900));
    dialog.pump();
    EXPECT_EQ(L"2.50 m", textOf(created));
}
