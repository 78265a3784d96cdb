// A user at the control: types, adds, deletes, picks; and what the parent hears of it, message by message.
#include <gtest/gtest.h>
#include "SmartHost.h"

namespace
{
const Heard adding = {1030, 0, 0};
const Heard selchange = {1031, 0, 0};
const Heard selendok = {1032, 0, 0};
const Heard editupdate = {1033, 0, 0};

bool hasFocus(HWND window)
{
    return ::GetFocus() == window || ::GetParent(::GetFocus()) == window;
}
} // namespace

TEST(SmartUser, types_a_value_and_adds_it_by_a_click_on_plus)
{
    SmartHost host;
    host.remember(L"B D");
    host.type(L"C");
    host.clickAdd();
    EXPECT_EQ(host.shown(), L"B [C] D / B C D / C");
    EXPECT_TRUE(hasFocus(host.combo().m_hWnd)) << "back from the button";
    EXPECT_EQ(::GetWindowLongPtrW(host.child(1006), GWL_STYLE) & BS_TYPEMASK, BS_PUSHBUTTON);
    host.type(L"c");
    host.clickAdd();
    EXPECT_EQ(host.shown(), L"B [C] D / B C D / C") << "there in another case";
}

TEST(SmartUser, adds_by_keys_alone)
{
    SmartHost host;
    host.press(VK_TAB); // from the field before
    ASSERT_TRUE(hasFocus(host.combo().m_hWnd));
    typeText(L"B");
    host.press(VK_TAB);
    ASSERT_TRUE(hasFocus(host.child(1006)));
    host.press(VK_SPACE);
    EXPECT_EQ(host.shown(), L"[B] / B / B");
    EXPECT_TRUE(hasFocus(host.combo().m_hWnd));
    host.press(VK_TAB);
    host.press(VK_TAB);
    ASSERT_TRUE(hasFocus(host.child(1007)));
    host.press(VK_TAB);
    EXPECT_TRUE(hasFocus(host.GetDlgItem(IDC_AFTER)->m_hWnd));
}

TEST(SmartUser, plus_on_an_empty_field_adds_nothing)
{
    SmartHost host;
    host.remember(L"A");
    host.clickAdd();
    EXPECT_EQ(host.shown(), L"A / A / ");
    EXPECT_TRUE(host.heard.empty());
}

TEST(SmartUser, deletes_by_minus_after_a_question)
{
    for (const int answer : {IDNO, IDYES})
    {
        SmartHost host;
        host.remember(L"A B C");
        host.smart->SetCurSel(1);
        {
            const AnswerModal answered(answer);
            host.clickDelete();
            EXPECT_EQ(AnswerModal::count(), 1);
            EXPECT_EQ(AnswerModal::seen(),
                      L"Suppression d'un \u00e9l\u00e9ment|Etes-vous s\u00fbr de vouloir supprimer ?");
        }
        CString title;
        host.smart->GetWindowText(title);
        EXPECT_EQ(host.shown(), answer == IDYES ? L"A C / A C / B" : L"A [B] C / A B C / B");
        EXPECT_EQ(title, answer == IDYES ? L"" : L"title");
        EXPECT_TRUE(hasFocus(host.combo().m_hWnd));
        EXPECT_TRUE(host.heard.empty());
    }
}

TEST(SmartUser, deletes_nothing_and_is_not_asked_without_a_selection)
{
    SmartHost host;
    host.remember(L"A B");
    const AnswerModal answered(IDYES);
    host.clickDelete();
    EXPECT_EQ(AnswerModal::count(), 0);
    EXPECT_EQ(host.shown(), L"A B / A B / ");
}

TEST(SmartUser, sees_fresh_placeholders_behind_a_deletion_under_a_format)
{
    SmartHost host;
    host.smart->SetFormat(L"[(N)2]");
    host.remember(L"12 34");
    host.smart->SetCurSel(0);
    const AnswerModal answered(IDYES);
    host.clickDelete();
    EXPECT_EQ(host.shown(), L"34 / 34 / ##");
}

TEST(SmartUser, is_told_of_a_refused_text)
{
    SmartHost host;
    host.remember(L"A");
    host.smart->SetFormat(L"[(N)1]-[(N)1]");
    host.type(L"1-#");
    host.fillFormat(L"1"); // half of the format
    {
        const AnswerModal answered(IDOK);
        host.clickAdd();
        EXPECT_EQ(AnswerModal::count(), 1);
        EXPECT_EQ(AnswerModal::seen(), L"Ajout d'un \u00e9l\u00e9ment|Saisie invalide : format non respect\u00e9 !");
    }
    EXPECT_EQ(host.shown(), L"A / A / 1-#") << "the text stays for correction";
    EXPECT_TRUE(hasFocus(host.combo().m_hWnd));
    CStringList out;
    int index = 0;
    const AnswerModal answered(IDOK);
    host.smart->GetStringCombo(out, index, 1, 0);
    EXPECT_EQ(AnswerModal::count(), 0) << "no message was wanted";
    EXPECT_EQ(index, -1);
    EXPECT_EQ(out.GetCount(), 1);
}

TEST(SmartUser, presses_escape_and_clicks_beside_the_field_to_come_back_to_it)
{
    SmartHost host;
    host.smart->SendMessage(WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_FALSE(hasFocus(host.combo().m_hWnd));
    host.smart->SendMessage(WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_TRUE(hasFocus(host.combo().m_hWnd));
    host.GetDlgItem(IDC_AFTER)->SetFocus();
    host.smart->SetFocus();
    EXPECT_TRUE(hasFocus(host.combo().m_hWnd));
    host.GetDlgItem(IDC_AFTER)->SetFocus();
    host.smart->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 1));
    EXPECT_TRUE(hasFocus(host.combo().m_hWnd));
}

// ---- What the parent hears

namespace
{
struct Story
{
    const char* what;
    const wchar_t* values;
    const wchar_t* alternatives;
    const wchar_t* format; ///< null: free
    int autoAdd;
    const wchar_t* typed; ///< null: nothing
    int picked;           ///< -1: nothing
    std::vector<Heard> heard;
    const wchar_t* shown;
};

const wchar_t* const two = L"[(N)2]";

const Story stories[] = {
    {"typing", L"A B", L"", nullptr, 1, L"xy", -1, {editupdate, editupdate}, L"A B / A B / xy"},
    {"picking without automatic adding", L"A B", L"", two, 0, nullptr, 1, {selendok, selchange}, L"A [B] / A B / B"},
    {"typed text is lost without it",
     L"A B",
     L"",
     two,
     0,
     L"12",
     1,
     {editupdate, editupdate, selendok, selchange},
     L"A [B] / A B / B"},
    {"typed text is added with it",
     L"A B",
     L"",
     two,
     1,
     L"12",
     1,
     {editupdate, editupdate, selendok, adding},
     L"12 A [B] / 12 A B / B"},
    {"a text that does not fit is not",
     L"A B",
     L"",
     two,
     1,
     L"ab",
     0,
     {editupdate, editupdate, selendok, selchange},
     L"[A] B / A B / A"},
    {"one that is there is not",
     L"12 B",
     L"",
     two,
     1,
     L"12",
     1,
     {editupdate, editupdate, selendok, selchange},
     L"12 [B] / 12 B / B"},
    {"free with an alternative: joins without the parent's knowledge",
     L"A B",
     two,
     nullptr,
     1,
     L"12",
     1,
     {editupdate, editupdate, selendok, selchange},
     nullptr},
    {"free without alternatives: is not added",
     L"A B",
     L"",
     nullptr,
     1,
     L"12",
     1,
     {editupdate, editupdate, selendok, selchange},
     L"A [B] / A B / B"},
};
} // namespace

TEST(SmartUser, is_followed_by_the_parent_message_by_message)
{
    for (const Story& story : stories)
    {
        SmartHost host;
        host.alternatives(story.alternatives);
        if (story.format != nullptr)
            host.smart->SetFormat(story.format);
        host.remember(story.values);
        host.smart->SetAutoAddOnSelChange(story.autoAdd);
        if (story.typed != nullptr)
        {
            click(host.fieldPoint());
            host.combo().SetEditSel(0, -1);
            host.heard.clear();
            typeText(story.typed);
        }
        if (story.picked >= 0)
            host.pick(story.picked);
        EXPECT_EQ(host.heard, story.heard) << story.what;
        EXPECT_EQ(host.smart->GetVisibility(), 1) << story.what;
        if (story.shown != nullptr)
        {
            EXPECT_EQ(host.shown(), story.shown) << story.what;
        }
    }
}

TEST(SmartUser, walks_through_the_list_by_keys)
{
    SmartHost host;
    host.remember(L"A B");
    host.combo().SetFocus();
    host.press(VK_DOWN);
    host.press(VK_DOWN);
    EXPECT_EQ(host.heard, (std::vector<Heard>{selendok, selchange, selendok, selchange}));
    EXPECT_EQ(host.shown(), L"A [B] / A B / B");
}

TEST(SmartUser, has_touched_the_control_before_the_parent_hears_of_it)
{
    SmartHost host;
    host.remember(L"A B");
    int touched = 0;
    host.onHear = [&](const Heard&)
    {
        touched += host.smart->GetVisibility();
        host.smart->SetVisibility(0);
    };
    host.type(L"x");
    host.pick(1);
    EXPECT_EQ(touched, static_cast<int>(host.heard.size()));
    host.smart->SetVisibility(1);
    host.smart->ClearControl();
    EXPECT_EQ(host.smart->GetVisibility(), 0);
    EXPECT_EQ(host.shown(), L"A B / A B / ");
}

TEST(SmartUser, opens_the_list_at_its_full_height_also_when_the_control_was_resized)
{
    SmartHost host;
    host.remember(L"A B C D");
    host.smart->SetWindowPos(nullptr, 0, 0, 120, 30, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(host.childPlace(1008).right, 120);
    EXPECT_EQ(host.childPlace(1008).left, 0);
    host.pick(3);
    EXPECT_EQ(host.shown(), L"A B C [D] / A B C D / D");
}
