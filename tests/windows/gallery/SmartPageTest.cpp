// The gallery's page of the smart combo box, worked by mouse and keys.
#include "gallery/PageSmart.h"
#include "GalleryHost.h"
#include "gallery/resource.h"
#include "oxa/formats/KxSmartComboBox.h"
#include "support/AnswerModal.h"

namespace
{
enum Entry : int
{
    section = 1750,
    bolt = 1751,
    free_ = IDC_SMART_FREE
};

class SmartPage : public testing::Test
{
protected:
    CKxSmartComboBox& entry(int id) { return *static_cast<CKxSmartComboBox*>(host.page.GetDlgItem(id)); }
    HWND part(int id, int child) { return ::GetDlgItem(host.control(id), child); }
    HWND combo(int id) { return part(id, CKxSmartComboBox::ID_COMBO); }
    HWND field(int id)
    {
        COMBOBOXINFO parts = {};
        parts.cbSize = sizeof parts;
        ::GetComboBoxInfo(combo(id), &parts);
        return parts.hwndItem;
    }
    void clickPart(int id, int child) { click(centreOf(part(id, child))); }
    void clickAdd(int id) { clickPart(id, CKxSmartComboBox::ID_ADD); }
    void clickDelete(int id) { clickPart(id, CKxSmartComboBox::ID_DELETE); }
    /// Clicks into the field, marks what stands there, and types over it.
    void type(int id, const wchar_t* text)
    {
        click(centreOf(field(id)));
        key(VK_HOME);
        key(VK_END, {VK_SHIFT});
        key(VK_DELETE);
        typeText(text);
    }
    /// Goes through the list by keys to the value at an index.
    void pick(int id, int index)
    {
        click(centreOf(field(id)));
        key(VK_F4);
        for (int i = 0; i < 20; ++i)
            key(VK_UP);
        for (int i = 0; i < index; ++i)
            key(VK_DOWN);
        key(VK_RETURN);
    }
    std::wstring values(int id)
    {
        CStringList list;
        int index = 0;
        entry(id).GetStringCombo(list, index, 0, 0);
        std::wstring all;
        for (POSITION place = list.GetHeadPosition(); place != nullptr;)
            all += (all.empty() ? L"" : L" | ") + std::wstring(list.GetNext(place));
        return all;
    }
    std::wstring shown(int id)
    {
        CString text;
        entry(id).GetSelectText(text);
        return std::wstring(text);
    }
    /// Whether what the page says beside an entry becomes this; the lines are divided by " / ".
    testing::AssertionResult says(int id, const std::wstring& wanted)
    {
        std::wstring said;
        const auto same = [&]
        {
            said.clear();
            for (const wchar_t ch : host.text(id))
                said += ch == L'\n' ? std::wstring(L" / ") : ch == L'\r' ? std::wstring() : std::wstring(1, ch);
            return said == wanted;
        };
        if (waitFor(same))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << std::string(said.begin(), said.end());
    }

    PageHost<CPageSmart> host;
};

const wchar_t* const refusal = L"Ajout d'un \u00e9l\u00e9ment|Saisie invalide : format non respect\u00e9 !";
} // namespace

TEST_F(SmartPage, begins_with_a_section_a_bolt_and_remarks)
{
    EXPECT_EQ(values(section), L"HEA-200 | HEB-300 | IPE200 | IPE240 | L100x10");
    EXPECT_EQ(values(bolt), L"M16x060-8.8 | M20x080-8.8 | M24x100-A.9");
    EXPECT_EQ(values(free_), L"galvanised | on site | Painted twice");
    EXPECT_TRUE(says(IDC_SMART_SECTION_STATE, L"under IPE[(N)3] / 5 values, selected: none / not touched"));
    EXPECT_TRUE(says(IDC_SMART_BOLT_STATE, L"under M[(N)2]x[(N)3]-[(A)3] / 3 values, selected: none / not touched"));
    EXPECT_TRUE(says(IDC_SMART_FREE_STATE, L"free of format / 3 values, selected: none / not touched"));
}

TEST_F(SmartPage, adds_what_was_typed_and_tells_its_state_live)
{
    type(free_, L"Bored");
    EXPECT_TRUE(says(IDC_SMART_FREE_STATE, L"free of format / 3 values, selected: none / touched by the user"));
    clickAdd(free_);
    EXPECT_EQ(values(free_), L"Bored | galvanised | on site | Painted twice");
    EXPECT_TRUE(says(IDC_SMART_FREE_STATE, L"free of format / 4 values, selected: 0 / touched by the user"));
    type(bolt, L"M30x120-8.8");
    clickAdd(bolt);
    EXPECT_EQ(values(bolt), L"M16x060-8.8 | M20x080-8.8 | M24x100-A.9 | M30x120-8.8");
    type(section, L"IPE300");
    clickAdd(section);
    EXPECT_EQ(values(section), L"HEA-200 | HEB-300 | IPE200 | IPE240 | IPE300 | L100x10");
}

TEST_F(SmartPage, refuses_a_bolt_that_does_not_fit)
{
    type(bolt, L"M3");
    const AnswerModal answered(IDOK);
    clickAdd(bolt);
    EXPECT_EQ(AnswerModal::count(), 1);
    EXPECT_EQ(AnswerModal::seen(), refusal);
    EXPECT_EQ(values(bolt), L"M16x060-8.8 | M20x080-8.8 | M24x100-A.9");
    EXPECT_EQ(shown(bolt), L"M3") << "it stays for correction";
}

TEST_F(SmartPage, deletes_the_picked_value_when_the_question_is_answered_by_yes)
{
    pick(free_, 1);
    EXPECT_EQ(shown(free_), L"on site");
    EXPECT_TRUE(says(IDC_SMART_FREE_STATE, L"free of format / 3 values, selected: 1 / touched by the user"));
    for (const int answer : {IDNO, IDYES})
    {
        const AnswerModal answered(answer);
        clickDelete(free_);
        EXPECT_EQ(AnswerModal::count(), 1);
        EXPECT_EQ(AnswerModal::seen(), L"Suppression d'un \u00e9l\u00e9ment|Etes-vous s\u00fbr de vouloir supprimer ?");
        EXPECT_EQ(values(free_),
                  answer == IDYES ? L"galvanised | Painted twice" : L"galvanised | on site | Painted twice");
    }
    EXPECT_TRUE(says(IDC_SMART_FREE_STATE, L"free of format / 2 values, selected: none / touched by the user"));
}

TEST_F(SmartPage, shows_the_pictures_of_each_mode)
{
    const struct
    {
        int button;
        bool picker;
        bool left;
        bool right;
        int edge; ///< of the combo box
        int clicks;
    } rows[] = {
        {IDC_SMART_ICON, false, true, false, 20, 1},   {IDC_SMART_BITMAP, false, true, false, 20, 1},
        {IDC_SMART_DOUBLE, false, true, true, 40, 2},  {IDC_SMART_NONE, false, false, false, 0, 0},
        {IDC_SMART_PICKER, true, false, false, 44, 0},
    };
    for (const auto& row : rows)
    {
        host.clickOn(row.button);
        EXPECT_EQ(part(section, CKxSmartComboBox::ID_PICKER) != nullptr, row.picker);
        EXPECT_EQ(part(section, CKxSmartComboBox::ID_LEFT_BITMAP) != nullptr, row.left);
        EXPECT_EQ(part(section, CKxSmartComboBox::ID_RIGHT_BITMAP) != nullptr, row.right);
        CRect place;
        ::GetWindowRect(combo(section), &place);
        entry(section).ScreenToClient(&place);
        EXPECT_EQ(place.left, row.edge) << row.button;
        for (const int child : {CKxSmartComboBox::ID_LEFT_BITMAP, CKxSmartComboBox::ID_RIGHT_BITMAP})
            if (part(section, child) != nullptr)
                clickPart(section, child);
        std::wstring state = row.picker ? L"under IPE[(N)3]" : L"free of format";
        state += L" / 5 values, selected: none / not touched";
        if (row.clicks != 0)
            state += L", picture clicked: " + std::to_wstring(row.clicks);
        EXPECT_TRUE(says(IDC_SMART_SECTION_STATE, state)) << row.button;
    }
}

TEST_F(SmartPage, moves_the_section_under_the_format_of_the_chosen_picture)
{
    CRect face;
    ::GetWindowRect(part(section, CKxSmartComboBox::ID_PICKER), &face);
    moveTo({face.left + 7, face.CenterPoint().y});
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    moveTo({face.left + 40, face.bottom + 14}); // the second of two columns
    pumpFor(30);
    mouseButton(MOUSEEVENTF_LEFTUP);
    EXPECT_TRUE(says(IDC_SMART_SECTION_STATE, L"under HE[(C)1]-[(N)3] / 5 values, selected: none / not touched"));
    EXPECT_EQ(shown(section), L"HE#-###");
}

TEST_F(SmartPage, hides_and_disables_what_its_boxes_say)
{
    host.clickOn(IDC_SMART_BUTTONS);
    for (const int id : {section + 0, bolt + 0, free_ + 0})
        EXPECT_FALSE(::IsWindowVisible(part(id, CKxSmartComboBox::ID_ADD))) << id;
    host.clickOn(IDC_SMART_BUTTONS);
    for (const int id : {section + 0, bolt + 0, free_ + 0})
        EXPECT_TRUE(::IsWindowVisible(part(id, CKxSmartComboBox::ID_ADD))) << id;
    host.clickOn(IDC_SMART_ENABLED);
    for (const int id : {section + 0, bolt + 0, free_ + 0})
    {
        EXPECT_FALSE(::IsWindowEnabled(combo(id))) << id;
        EXPECT_TRUE(::IsWindowEnabled(part(id, CKxSmartComboBox::ID_DELETE))) << "left alone";
    }
    host.clickOn(IDC_SMART_ENABLED);
    host.clickOn(IDC_SMART_ADD_ONLY);
    EXPECT_TRUE(::IsWindowEnabled(part(free_, CKxSmartComboBox::ID_ADD)));
    EXPECT_FALSE(::IsWindowEnabled(part(free_, CKxSmartComboBox::ID_DELETE)));
}

TEST_F(SmartPage, adds_by_picking_only_while_that_is_on)
{
    type(bolt, L"M30x120-8.8");
    pick(bolt, 0);
    EXPECT_EQ(values(bolt), L"M16x060-8.8 | M20x080-8.8 | M24x100-A.9 | M30x120-8.8");
    host.clickOn(IDC_SMART_AUTO_ADD);
    type(bolt, L"M12x040-8.8");
    pick(bolt, 1);
    EXPECT_EQ(values(bolt), L"M16x060-8.8 | M20x080-8.8 | M24x100-A.9 | M30x120-8.8");
}

TEST_F(SmartPage, takes_ten_thousand_values_more_and_frees_and_clears_its_entries)
{
    host.clickOn(IDC_SMART_MANY);
    EXPECT_TRUE(says(IDC_SMART_FREE_STATE, L"free of format / 10003 values, selected: none / not touched"));
    host.clickOn(IDC_SMART_FREE_FORMAT);
    EXPECT_TRUE(says(IDC_SMART_BOLT_STATE, L"free of format / 3 values, selected: none / not touched"));
    type(bolt, L"any");
    host.clickOn(IDC_SMART_CLEAR);
    EXPECT_TRUE(says(IDC_SMART_BOLT_STATE, L"free of format / 3 values, selected: none / not touched"));
}

TEST_F(SmartPage, keeps_the_order_of_adding_until_it_is_told_to_sort)
{
    host.clickOn(IDC_SMART_SORTED);
    type(free_, L"Bored");
    clickAdd(free_);
    EXPECT_EQ(values(free_), L"galvanised | on site | Painted twice | Bored");
    host.clickOn(IDC_SMART_SORT);
    EXPECT_EQ(values(free_), L"Bored | Painted twice | galvanised | on site") << "by character code";
}
