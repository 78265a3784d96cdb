// Cells with units, edited in place: what is typed, what is refused, what the host hears, what stays.
#include "UnitColumns.h"

TEST_F(UnitColumns, a_click_on_the_selected_row_opens_the_unit_editor_with_the_cells_text)
{
    clickCell(beam, lengthColumn);
    ASSERT_NE(nullptr, unitEditor());
    EXPECT_EQ(L"2.500 m", editorText());
    EXPECT_TRUE(editorHasFocus());
    EXPECT_EQ(2.5, unitEditor()->GetValueSI());
    EXPECT_EQ(L"m", std::wstring(unitEditor()->GetUnit()->GetName()));
}

TEST_F(UnitColumns, a_typed_length_is_written_in_the_working_unit)
{
    edit(beam, lengthColumn);
    overtype(L"3.25");
    press(VK_RETURN);
    EXPECT_EQ(nullptr, host.editor());
    EXPECT_EQ(L"3.250 m", host.cell(beam, lengthColumn));
    EXPECT_EQ(3.25, tree.GetItemValue(beam, lengthColumn));
    EXPECT_EQ(host.heard, (std::vector<Heard>{before(beam, lengthColumn), after(beam, lengthColumn)}));
    EXPECT_EQ(L"4.000 m", host.cell(post, lengthColumn));
}

TEST_F(UnitColumns, a_length_may_be_typed_in_any_unit)
{
    const struct
    {
        const wchar_t* keys;
        const wchar_t* cell;
        double value;
    } rows[] = {
        {L"250 cm", L"2.500 m", 2.5},  {L"1,5", L"1.500 m", 1.5},         {L"5'", L"1.524 m", 1.524},
        {L"1.2+0.3", L"1.500 m", 1.5}, {L"1'-6\"", L"0.457 m", 0.4572},   {L"  7  ", L"7.000 m", 7.0},
        {L"0", L"0.000 m", 0.0},       {L"1.23456", L"1.235 m", 1.23456},
    };
    for (const auto& row : rows)
    {
        edit(beam, lengthColumn);
        overtype(row.keys);
        press(VK_RETURN);
        EXPECT_EQ(nullptr, host.editor()) << row.keys;
        EXPECT_EQ(row.cell, host.cell(beam, lengthColumn)) << row.keys;
        EXPECT_DOUBLE_EQ(row.value, tree.GetItemValue(beam, lengthColumn)) << row.keys;
    }
}

TEST_F(UnitColumns, a_cell_of_another_family_is_read_in_its_own_unit)
{
    edit(post, massColumn);
    EXPECT_EQ(L"", editorText());
    EXPECT_EQ(L"kg", std::wstring(unitEditor()->GetUnit()->GetName()));
    type(L"2 t");
    press(VK_RETURN);
    EXPECT_EQ(L"2000.00 kg", host.cell(post, massColumn));
    EXPECT_EQ(2000.0, tree.GetItemValue(post, massColumn));
    EXPECT_EQ(L"4.000 m", host.cell(post, lengthColumn));
}

TEST_F(UnitColumns, a_length_behind_an_empty_name_is_written_twice_and_lands_in_both_cells)
{
    tree.SetItemText(beam, nameColumn, L"");
    ASSERT_EQ(L"", host.cell(beam, nameColumn));
    ASSERT_EQ(L"2.500 m", host.cell(beam, lengthColumn));
    edit(beam, lengthColumn);
    overtype(L"3");
    press(VK_RETURN);
    EXPECT_EQ(3.0, tree.GetItemValue(beam, lengthColumn));
    EXPECT_EQ(L"3.000 m", host.cell(beam, nameColumn)) << "kept on purpose: the first write drops the empty cell";
    EXPECT_EQ(L"3.000 m", host.cell(beam, lengthColumn));
}

TEST_F(UnitColumns, a_plain_column_between_them_takes_any_text)
{
    edit(beam, noteColumn);
    EXPECT_EQ(nullptr, unitEditor());
    type(L"abc");
    press(VK_RETURN);
    EXPECT_EQ(L"abc", host.cell(beam, noteColumn));
    EXPECT_EQ(2.5, tree.GetItemValue(beam, noteColumn));
}

TEST_F(UnitColumns, a_text_that_is_not_understood_keeps_editor_focus_and_cell)
{
    edit(beam, lengthColumn);
    overtype(L"2.5x");
    const AnswerModal answer(IDOK);
    press(VK_RETURN);
    EXPECT_EQ(1, AnswerModal::count());
    EXPECT_EQ(L"« 2.5x » n'est pas une valeur en m.\nLa valeur doit être supérieure ou égale à 0.000 m.", told());
    EXPECT_EQ(L"2.5x", editorText());
    EXPECT_TRUE(editorHasFocus());
    EXPECT_EQ(L"2.500 m", host.cell(beam, lengthColumn));
    EXPECT_TRUE(host.heard.empty());
    type(L"6"); // the refused text is selected: the next key replaces it
    press(VK_RETURN);
    EXPECT_EQ(nullptr, host.editor());
    EXPECT_EQ(L"6.000 m", host.cell(beam, lengthColumn));
}

TEST_F(UnitColumns, a_refused_value_keeps_the_selection_when_another_row_is_clicked)
{
    edit(beam, lengthColumn);
    overtype(L"-5");
    {
        const AnswerModal answer(IDOK);
        clickCell(post, nameColumn);
        EXPECT_EQ(1, AnswerModal::count());
        EXPECT_EQ(L"La valeur doit être supérieure ou égale à 0.000 m.", told());
    }
    EXPECT_EQ(beam, tree.GetSelectedItem());
    EXPECT_EQ(L"-5", editorText());
    EXPECT_TRUE(editorHasFocus());
    EXPECT_TRUE(host.heard.empty());
    overtype(L"5");
    clickCell(post, nameColumn);
    EXPECT_EQ(nullptr, host.editor());
    EXPECT_EQ(post, tree.GetSelectedItem());
    EXPECT_EQ(L"5.000 m", host.cell(beam, lengthColumn));
    EXPECT_EQ(host.heard, (std::vector<Heard>{before(beam, lengthColumn), after(beam, lengthColumn)}));
}

TEST_F(UnitColumns, a_refused_value_keeps_the_editor_when_the_empty_part_is_clicked)
{
    edit(beam, lengthColumn);
    overtype(L"x");
    const AnswerModal answer(IDOK);
    CRect client;
    tree.GetClientRect(&client);
    CPoint point(client.left + 30, client.bottom - 10);
    tree.ClientToScreen(&point);
    click(point);
    pump();
    EXPECT_EQ(1, AnswerModal::count());
    EXPECT_EQ(L"x", editorText());
    EXPECT_TRUE(editorHasFocus());
    EXPECT_EQ(beam, tree.GetSelectedItem());
}

TEST_F(UnitColumns, the_limits_are_named_in_the_working_unit)
{
    CKxUnit millimetres(lengthFamily, 3, 0, L'.', 1.0, 1);
    manager->SetVisUnit(lengthFamily, millimetres);
    edit(beam, lengthColumn);
    overtype(L"-1");
    const AnswerModal answer(IDOK);
    press(VK_RETURN);
    EXPECT_EQ(L"La valeur doit être supérieure ou égale à 0 mm.", told());
    overtype(L"1e200");
    press(VK_RETURN);
    EXPECT_EQ(L"La valeur doit être comprise entre 0 mm et 1.7976931348623e+153 mm.", told());
    EXPECT_EQ(2, AnswerModal::count());
    overtype(L"1500");
    press(VK_RETURN);
    EXPECT_EQ(L"1500 mm", host.cell(beam, lengthColumn));
    EXPECT_EQ(1.5, tree.GetItemValue(beam, lengthColumn));
}

TEST_F(UnitColumns, escape_leaves_a_refused_cell_as_it_was)
{
    edit(beam, lengthColumn);
    overtype(L"abc");
    const AnswerModal answer(IDOK);
    press(VK_RETURN);
    press(VK_ESCAPE);
    EXPECT_EQ(1, AnswerModal::count());
    EXPECT_EQ(nullptr, host.editor());
    EXPECT_EQ(L"2.500 m", host.cell(beam, lengthColumn));
    EXPECT_EQ(2.5, tree.GetItemValue(beam, lengthColumn));
    EXPECT_TRUE(host.heard.empty());
}

TEST_F(UnitColumns, an_emptied_editor_and_the_bare_unit_write_nothing)
{
    tree.SetItemValue(beam, lengthColumn, 1.23456);
    for (const wchar_t* text : {L"", L"   ", L"m", L" m "})
    {
        host.heard.clear();
        edit(beam, lengthColumn);
        overtype(text);
        press(VK_RETURN);
        EXPECT_EQ(nullptr, host.editor()) << text;
        EXPECT_EQ(L"1.235 m", host.cell(beam, lengthColumn)) << text;
        EXPECT_EQ(1.23456, tree.GetItemValue(beam, lengthColumn)) << text;
        EXPECT_EQ(host.heard, std::vector<Heard>{before(beam, lengthColumn)}) << text;
    }
}

TEST_F(UnitColumns, a_digit_opens_the_first_unit_column_and_becomes_its_first_character)
{
    press('7');
    ASSERT_NE(nullptr, unitEditor());
    EXPECT_EQ(L"72.500 m", editorText());
    press(VK_RETURN);
    EXPECT_EQ(L"72.500 m", host.cell(beam, lengthColumn));
    EXPECT_EQ(72.5, tree.GetItemValue(beam, lengthColumn));
    EXPECT_EQ(L"", host.cell(beam, massColumn));
}

TEST_F(UnitColumns, a_cell_that_was_only_looked_at_keeps_its_text)
{
    edit(beam, lengthColumn);
    clickCell(post, nameColumn);
    EXPECT_EQ(nullptr, host.editor());
    EXPECT_EQ(post, tree.GetSelectedItem());
    EXPECT_EQ(L"2.500 m", host.cell(beam, lengthColumn));
    EXPECT_EQ(2.5, tree.GetItemValue(beam, lengthColumn));
}

TEST_F(UnitColumns, a_negative_value_of_the_program_can_be_left_by_escape_alone)
{
    tree.SetItemValue(beam, lengthColumn, -3.0); // the limits of an editor are above zero, on purpose
    edit(beam, lengthColumn);
    EXPECT_EQ(L"-3.000 m", editorText());
    const AnswerModal answer(IDOK);
    press(VK_RETURN);
    EXPECT_EQ(1, AnswerModal::count());
    ASSERT_NE(nullptr, host.editor());
    press(VK_ESCAPE);
    EXPECT_EQ(nullptr, host.editor());
    EXPECT_EQ(-3.0, tree.GetItemValue(beam, lengthColumn));
}

TEST_F(UnitColumns, a_host_that_closes_the_tree_is_held_by_a_refused_value)
{
    edit(beam, lengthColumn);
    overtype(L"two");
    {
        const AnswerModal answer(IDOK);
        EXPECT_FALSE(tree.GetCanUpdateCloseTree());
        EXPECT_EQ(1, AnswerModal::count());
    }
    ASSERT_NE(nullptr, host.editor());
    overtype(L"2");
    EXPECT_TRUE(tree.GetCanUpdateCloseTree());
    EXPECT_EQ(nullptr, host.editor());
    EXPECT_EQ(L"2.000 m", host.cell(beam, lengthColumn));
}

TEST_F(UnitColumns, leaving_the_window_neither_judges_nor_closes)
{
    edit(beam, lengthColumn);
    overtype(L"abc");
    const AnswerModal answer(IDOK);
    host.SetFocus();
    pump();
    EXPECT_EQ(0, AnswerModal::count());
    EXPECT_EQ(L"abc", editorText());
}

TEST_F(UnitColumns, the_working_unit_may_change_while_the_host_hears_of_the_commit)
{
    edit(beam, lengthColumn);
    overtype(L"3");
    host.onHear = [&](const Heard& heard)
    {
        CKxUnit millimetres(lengthFamily, 3, 0, L'.', 1.0, 1);
        if (heard.message == 0x435)
            manager->SetVisUnit(lengthFamily, millimetres);
    };
    press(VK_RETURN);
    EXPECT_EQ(L"3000 mm", host.cell(beam, lengthColumn)) << "typed in metres, written in the new unit";
    EXPECT_EQ(3.0, tree.GetItemValue(beam, lengthColumn));
}

TEST_F(UnitColumns, the_host_may_end_its_unit_manager_during_an_edit)
{
    edit(beam, lengthColumn);
    overtype(L"3 m");
    manager.reset();
    press(VK_RETURN);
    EXPECT_EQ(nullptr, host.editor());
    EXPECT_EQ(L" 3.00", host.cell(beam, lengthColumn)) << "without a manager a number has no unit";
    EXPECT_EQ(3.0, tree.GetItemValue(beam, lengthColumn));
    clickCell(beam, lengthColumn);
    EXPECT_NE(nullptr, host.editor());
    EXPECT_EQ(nullptr, unitEditor()) << "a plain editor";
}

namespace
{
std::function<void()> meanwhile; // what the host does while the message box is open

/// Runs `act` by a timer of the host, and closes the box behind it.
void doUnderTheMessage(CWnd& host, const std::function<void()>& act)
{
    meanwhile = act;
    host.SetTimer(1, 50,
                  [](HWND window, UINT, UINT_PTR id, DWORD)
                  {
                      ::KillTimer(window, id);
                      const HWND box = ::FindWindowW(L"#32770", nullptr);
                      meanwhile();
                      meanwhile = nullptr;
                      ::PostMessageW(box, WM_COMMAND, IDOK, 0);
                  });
}
} // namespace

TEST_F(UnitColumns, a_host_that_ends_the_edit_or_the_row_under_the_message_of_a_refusal)
{
    const std::function<void()> acts[] = {
        [this] { tree.FreeEditControl(); },
        [this] { host.add(L"new"); },
        [this] { tree.DeleteItem(beam); },
    };
    for (const auto& act : acts)
    {
        edit(beam, lengthColumn);
        overtype(L"abc");
        doUnderTheMessage(host, act);
        press(VK_RETURN);
        EXPECT_TRUE(waitFor([] { return !meanwhile; }));
        tree.FreeEditControl();
        EXPECT_EQ(nullptr, host.editor());
        EXPECT_TRUE(host.heard.empty());
    }
}
