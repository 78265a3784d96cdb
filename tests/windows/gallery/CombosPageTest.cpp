// The page of the combo box family: its controls in all states, and what it shows of them.
#include "GalleryHost.h"
#include "gallery/PageCombos.h"
#include "gallery/resource.h"
#include "support/AnswerModal.h"

namespace
{
class CombosHost : public PageHost<CPageCombos>
{
public:
    bool says(int id, const wchar_t* part) const
    {
        return waitFor([&] { return text(id).find(part) != std::wstring::npos; });
    }
    int count(int id) const { return static_cast<int>(::SendMessageW(control(id), CB_GETCOUNT, 0, 0)); }
    int selected(int id) const { return static_cast<int>(::SendMessageW(control(id), CB_GETCURSEL, 0, 0)); }
};
} // namespace

TEST(CombosPage, fills_its_lists_by_column)
{
    CombosHost host;
    const struct
    {
        int first;
        int counts[4];
    } rows[] = {
        {IDC_COMBOS_COMBO_ENABLED, {7, 7, 0, 500}},
        {IDC_COMBOS_IMAGES_ENABLED, {10, 10, 0, 10}},
        {IDC_COMBOS_BITMAPS_ENABLED, {5, 5, 0, 60}},
        {IDC_COMBOS_COLORS_ENABLED, {10, 10, 0, 25}},
    };
    for (const auto& row : rows)
    {
        for (int column = 0; column < 4; ++column)
        {
            EXPECT_EQ(host.count(row.first + column), row.counts[column]) << row.first << " " << column;
            EXPECT_EQ(host.enabled(row.first + column), column != 1) << row.first << " " << column;
        }
    }
}

TEST(CombosPage, shows_what_its_controls_hand_on)
{
    CombosHost host;
    ::SetFocus(host.control(IDC_COMBOS_EDIT_EMPTY));
    typeText(L"a*");
    EXPECT_EQ(host.text(IDC_COMBOS_EDIT_EMPTY), L"a");
    EXPECT_TRUE(host.says(IDC_COMBOS_HEARD, L"WM_CHAR, 0x2A (*)"));
    host.clickOn(IDC_COMBOS_EDIT_ENABLED);
    EXPECT_TRUE(host.says(IDC_COMBOS_HEARD, L"WM_LBUTTONDOWN, 0x1"));
}

TEST(CombosPage, shows_the_state_of_its_first_column_and_clears_it)
{
    CombosHost host;
    EXPECT_TRUE(host.says(IDC_COMBOS_STATE, L"\"Column C1\"; \"IPE 240\"; part 3; line 3; colour 0 of 9"));
    host.clickOn(IDC_COMBOS_CLEAR);
    EXPECT_TRUE(host.says(IDC_COMBOS_STATE, L"\"\"; \"\"; part -1; line -1; colour -1 of 9"));
}

/// Opens a list by a click on its field and picks its second row by another.
void pickSecondRow(const CombosHost& host, int id)
{
    HWND field = host.control(id);
    if (const auto inner = reinterpret_cast<HWND>(::SendMessageW(field, CBEM_GETCOMBOCONTROL, 0, 0)))
        field = inner;
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(::GetComboBoxInfo(field, &info)) << id;
    CRect button(info.rcButton);
    ::MapWindowPoints(field, nullptr, reinterpret_cast<POINT*>(&button), 2);
    click(button.CenterPoint());
    ASSERT_TRUE(waitFor([&] { return ::IsWindowVisible(info.hwndList) != FALSE; })) << id;
    CRect row;
    ::SendMessageW(info.hwndList, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&row));
    ::MapWindowPoints(info.hwndList, nullptr, reinterpret_cast<POINT*>(&row), 2);
    click(row.CenterPoint());
    EXPECT_FALSE(::IsWindowVisible(info.hwndList)) << id;
}

TEST(CombosPage, picks_by_the_mouse_in_each_of_its_lists)
{
    CombosHost host;
    for (const int id :
         {IDC_COMBOS_COMBO_ENABLED, IDC_COMBOS_IMAGES_ENABLED, IDC_COMBOS_BITMAPS_ENABLED, IDC_COMBOS_COLORS_ENABLED})
    {
        pickSecondRow(host, id);
        EXPECT_EQ(host.selected(id), 1) << id;
    }
    EXPECT_TRUE(host.says(IDC_COMBOS_STATE, L"\"HEB 300\"; part 1; line 1; colour 1 of 9: red 0, green 255, blue 0"));
}

TEST(CombosPage, disables_and_enables_its_first_column)
{
    CombosHost host;
    const int column[] = {IDC_COMBOS_EDIT_ENABLED, IDC_COMBOS_COMBO_ENABLED, IDC_COMBOS_IMAGES_ENABLED,
                          IDC_COMBOS_BITMAPS_ENABLED, IDC_COMBOS_COLORS_ENABLED};
    for (const bool on : {false, true})
    {
        host.clickOn(IDC_COMBOS_ENABLED);
        for (const int id : column)
            EXPECT_EQ(host.enabled(id), on) << id;
    }
}

TEST(CombosPage, opens_the_colour_dialog_and_keeps_the_first_colour_when_it_is_cancelled)
{
    CombosHost host;
    AnswerModal answer(IDCANCEL);
    ::SendMessageW(host.control(IDC_COMBOS_COLORS_ENABLED), CB_SETCURSEL, 8, 0);
    ::SetFocus(host.control(IDC_COMBOS_COLORS_ENABLED));
    key(VK_DOWN);
    EXPECT_EQ(host.selected(IDC_COMBOS_COLORS_ENABLED), 0);
}
