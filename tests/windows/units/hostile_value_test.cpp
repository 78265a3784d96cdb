// Texts, numbers and units that no sensible host or user gives the control, and keys and pastes at odd moments.
#include <gtest/gtest.h>
#include <bit>
#include <cmath>
#include <limits>
#include "UnitHost.h"
#include "kitrel/KxUnitManager.h"

namespace
{
constexpr std::size_t megabyte = 1U << 20; // characters, of two bytes each

/// A control whose window text is what the test says: the platform's edit field needs hours for a text of a megabyte.
class ToldTextCombo : public OpenUnitCombo
{
public:
    std::wstring told;
    bool telling = false;
    LRESULT toldLength = -1; ///< what the window claims of the length; -1: the truth

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (telling && message == WM_GETTEXTLENGTH)
            return toldLength >= 0 ? toldLength : static_cast<LRESULT>(told.size());
        if (telling && message == WM_GETTEXT && wParam > 0)
        {
            const std::size_t count = std::min(told.size(), static_cast<std::size_t>(wParam - 1));
            auto* const target = reinterpret_cast<wchar_t*>(lParam);
            std::copy_n(told.data(), count, target);
            target[count] = 0;
            return static_cast<LRESULT>(count);
        }
        return OpenUnitCombo::WindowProc(message, wParam, lParam);
    }
};

class HostileValue : public testing::Test
{
protected:
    HostileValue()
    {
        CKxUnit unit = MetreUnit();
        combo.Create(WS_CHILD | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL, CRect(0, 0, 150, 150), &host, 4000);
        combo.SetDefaultValues(&host, 4000, 0.0, unit, 0.0, 0.0);
    }
    void commit(const std::wstring& text)
    {
        combo.told = text;
        combo.telling = true;
        combo.UpdateControlValue();
        combo.telling = false;
    }
    void expectStep() { EXPECT_EQ(combo.values().size(), static_cast<std::size_t>(combo.GetCount())); }

    UnitHost host;
    ToldTextCombo combo;
};

TEST_F(HostileValue, typed_texts_of_a_megabyte_are_read_whole)
{
    commit(L"1." + std::wstring(megabyte, L'0') + L"5");
    EXPECT_EQ(combo.shown(), L"[1.000 m*]");
    commit(std::wstring(megabyte, L'0') + L"2");
    EXPECT_EQ(combo.shown(), L"[2.000 m*]");
    commit(L"3" + std::wstring(megabyte, L' ') + L"cm");
    EXPECT_EQ(combo.shown(), L"[0.030 m*]");
    commit(std::wstring(megabyte, L'x') + L"5");
    EXPECT_EQ(combo.shown(), L"[0.000 m*]") << "refused by its first character";
    std::wstring sum = L"1";
    while (sum.size() < megabyte)
        sum += L"-1+1";
    commit(sum);
    EXPECT_EQ(combo.shown(), L"[1.000 m*]");
    std::wstring feet = L"1";
    for (int i = 0; i < 349525; ++i)
        feet += L"'-1";
    commit(feet);
    // A foot less 349,523 feet less a foot joined to an inch: 349,523 times 0.3048 m and 0.0254 m.
    EXPECT_EQ(combo.shown(), L"[-106534.636 m*]");
    EXPECT_EQ(combo.values().size(), 1U);
}

TEST_F(HostileValue, items_of_a_megabyte_are_taken_and_deleted)
{
    const std::wstring zeros = L"1." + std::wstring(megabyte, L'0');
    EXPECT_EQ(combo.AddString(zeros.c_str()), 0);
    EXPECT_EQ(combo.InsertString(0, zeros.c_str()), 0);
    double value = -77.0;
    EXPECT_EQ(combo.GetValueSI(1, value), 1);
    EXPECT_EQ(value, 1.0);
    EXPECT_EQ(combo.itemText(1), zeros);
    EXPECT_EQ(combo.DeleteString(0), 1);
    EXPECT_EQ(combo.DeleteString(0), 0);
    expectStep();
}

TEST_F(HostileValue, a_text_with_a_terminator_inside_counts_up_to_it_in_the_list_and_as_a_whole_in_the_shape_test)
{
    EXPECT_EQ(combo.AddString(L"1\0 2"), 0);
    EXPECT_EQ(combo.shown(), L"1");
    const wchar_t inside[] = {L'+', 0, L'5'};
    EXPECT_EQ(combo.ValidateValue(CString(inside, 3)), 1);
    EXPECT_EQ(combo.ValidateValue(CString(inside, 2)), 0) << "no digit";
    commit(std::wstring(inside, 3));
    expectStep();
    EXPECT_TRUE(std::isfinite(combo.GetValueSI()));
}

TEST_F(HostileValue, a_window_that_lies_about_the_length_of_its_text_does_no_harm)
{
    for (const LRESULT claimed : {LRESULT{0}, LRESULT{1}, LRESULT{3}, LRESULT{5000}})
    {
        combo.toldLength = claimed;
        commit(L"1.25");
        expectStep();
        EXPECT_TRUE(std::isfinite(combo.GetValueSI())) << claimed;
    }
    EXPECT_EQ(combo.shown(), L"[1.250 m*]") << "the last one claimed more than there was";
}

TEST_F(HostileValue, numbers_that_are_none_are_kept_and_shown_as_what_the_unit_makes_of_them)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const double tiny = std::numeric_limits<double>::denorm_min();
    for (const double value : {nan, tiny, -tiny, -0.0, infinity})
        combo.AddValueSI(value);
    EXPECT_EQ(combo.itemText(0), L"0.000 m");
    EXPECT_EQ(combo.itemText(1), L"0.000 m");
    EXPECT_EQ(combo.itemText(2), L"0.000 m") << "no negative nothing";
    EXPECT_EQ(combo.itemText(3), L"0.000 m");
    EXPECT_EQ(combo.itemText(4), L"1e+290 m");
    double held = 0.0;
    EXPECT_EQ(combo.GetValueSI(0, held), 1);
    EXPECT_TRUE(std::isnan(held));
    EXPECT_EQ(combo.GetValueSI(4, held), 1);
    EXPECT_EQ(held, infinity);
    combo.SetCurSel(1);
    EXPECT_EQ(combo.GetValueSI(), tiny);
    int index = -77;
    EXPECT_EQ(combo.FindValueSI(nan, index), 1);
    EXPECT_EQ(index, 1) << "the first behind item 0 that prints alike";
    EXPECT_EQ(combo.FindValueSI(-infinity, index), 0);
    EXPECT_EQ(index, -1);
    combo.SetCurSel(4);
    host.notify(combo, CBN_SELENDOK);
    EXPECT_EQ(combo.GetValueSI(), 1e290);
}

TEST_F(HostileValue, typed_numbers_beyond_every_limit_are_held)
{
    commit(L"1e999999999999");
    EXPECT_EQ(combo.shown(), L"[1e+290 m*]");
    commit(L"-1e999");
    EXPECT_EQ(combo.shown(), L"[-1e+290 m*]");
    commit(L"1e-999");
    EXPECT_EQ(combo.shown(), L"[0.000 m*]");
    commit(L"5e-324");
    EXPECT_EQ(combo.shown(), L"[0.000 m*]");
}

TEST_F(HostileValue, units_of_families_that_do_not_exist_count_without_dimension)
{
    for (const unsigned int family : {0U, 22U, 4711U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
    {
        CKxUnit odd(family, 0xFFFFFFFFU, 2, L'\0', std::numeric_limits<double>::quiet_NaN(), 0);
        combo.ResetContent();
        combo.SetDefaultValues(nullptr, 0xFFFFFFFFU, std::numeric_limits<double>::quiet_NaN(), odd, 1.0, -1.0);
        EXPECT_EQ(combo.GetUnit()->GetIDUnit(), 10U) << family;
        combo.AddValueSI(1.5);
        commit(L"2,25");
        EXPECT_EQ(combo.shown(), L"1.50 | [2.25*]") << family;
        combo.GetUnit()->SetIdUnit(family);
        combo.GetUnit()->SetRange(family);
        combo.GetUnit()->SetUnitFormat(static_cast<enumUNITFORMAT>(family));
        combo.GetUnit()->SetPrecision(family);
        commit(L"3");
        expectStep();
        EXPECT_EQ(combo.GetValueSI(), 3.0) << family;
    }
}

TEST_F(HostileValue, the_unit_held_outlives_the_working_units_and_is_not_changed_by_them)
{
    auto working = std::make_unique<CKxUnitManager>(true);
    CKxUnit length = working->GetVisUnit(1);
    length.SetPrecision(2);
    combo.SetDefaultValues(nullptr, 0, 0.0, length, 0.0, 0.0);
    CKxUnit feet = FeetUnit();
    working->SetVisUnit(1, feet);
    commit(L"1.5");
    EXPECT_EQ(combo.shown(), L"[1.50 m*]");
    working.reset();
    commit(L"2.5");
    EXPECT_EQ(combo.shown(), L"[2.50 m*]");
}

TEST_F(HostileValue, selections_outside_the_list_have_no_value)
{
    combo.AddValueSI(1.0);
    for (const int index : {1, 2, 70000, -2, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
    {
        combo.SetCurSel(index);
        EXPECT_EQ(combo.GetCurSel(), -1) << index;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(combo.GetValueSI()), 0xDF2192E9EE706E4AULL) << index;
        host.notify(combo, CBN_SELENDOK);
    }
    combo.SetCurSel(0);
    EXPECT_EQ(combo.GetValueSI(), 1.0);
}

TEST_F(HostileValue, an_owner_drawn_list_without_texts_does_no_harm)
{
    OpenUnitCombo drawn;
    drawn.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED, CRect(0, 0, 80, 100), &host, 4001);
    CKxUnit unit = MetreUnit();
    drawn.SetDefaultValues(&host, 4001, 0.0, unit, 0.0, 0.0);
    drawn.AddValueSI(1.0);
    EXPECT_EQ(drawn.AddString(L"2"), 1);
    int index = -77;
    drawn.FindValueSI(1.0, index);
    drawn.SetCurSel(0);
    host.notify(drawn, CBN_SELENDOK);
    EXPECT_TRUE(std::isfinite(drawn.GetValueSI()));
    drawn.UpdateControlValue();
    EXPECT_EQ(drawn.values().size(), static_cast<std::size_t>(drawn.GetCount()));
    EXPECT_GE(drawn.DeleteString(0), 0);
    drawn.ResetContent();
    EXPECT_TRUE(drawn.values().empty());
}

TEST_F(HostileValue, a_sorted_list_against_the_advice_does_no_harm)
{
    OpenUnitCombo sorted;
    sorted.Create(WS_CHILD | CBS_DROPDOWN | CBS_SORT, CRect(0, 0, 80, 100), &host, 4001);
    CKxUnit unit = MetreUnit();
    sorted.SetDefaultValues(&host, 4001, 0.0, unit, 0.0, 0.0);
    for (const double value : {3.0, 1.0, 2.0})
        sorted.AddValueSI(value);
    sorted.SetWindowText(L"0.5");
    sorted.UpdateControlValue();
    EXPECT_EQ(sorted.values().size(), static_cast<std::size_t>(sorted.GetCount()));
}
} // namespace
