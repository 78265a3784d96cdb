// The edit field that hands its keys and clicks on: what the field takes, what the owner hears, and in which order.
#include <gtest/gtest.h>
#include <memory>
#include "DropHost.h"
#include "oxa/dropdowns/KxEdit.h"
#include "support/MessageRecorder.h"

namespace
{
constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL;

class WatchedEdit : public testing::Test
{
protected:
    WatchedEdit() : field(std::make_unique<CKxEdit>())
    {
        field->Create(style, CRect(20, 20, 220, 44), &host, 7);
        field->SetFocus();
        pumpFor(10);
        host.heard.clear();
    }
    DropHost host;
    std::unique_ptr<CKxEdit> field;
};

TEST_F(WatchedEdit, takes_typed_characters_before_the_owner_hears_of_them)
{
    std::vector<std::wstring> seen;
    host.onHear = [&](const Heard& one)
    {
        if (one.message == WM_CHAR)
            seen.push_back(textOf(*field));
    };
    typeText(L"abc");
    EXPECT_EQ(seen, (std::vector<std::wstring>{L"a", L"ab", L"abc"}));
    EXPECT_EQ(host.characters(), L"abc");
}

TEST_F(WatchedEdit, does_not_take_a_forbidden_character_but_tells_of_it)
{
    field->SetNotAllowedChars(L"*?");
    typeText(L"a*b?c");
    EXPECT_EQ(textOf(*field), L"abc");
    EXPECT_EQ(host.characters(), L"a*b?c");
}

struct Forbidden
{
    const wchar_t* characters;
    const wchar_t* typed;
    const wchar_t* taken;
};

TEST_F(WatchedEdit, forbids_each_character_for_itself)
{
    const Forbidden rows[] = {
        {L"", L"aA*", L"aA*"},         {L"a", L"aA*", L"A*"},         {L"xyz", L"xayz", L"a"}, {L" ", L"1 2", L"12"},
        {L"\u00E9", L"e\u00E9", L"e"}, {L"\u20AC", L"\u20AC5", L"5"}, {L"aaa", L"aba", L"b"},
    };
    for (const Forbidden& row : rows)
    {
        field->SetWindowText(L"");
        field->SetNotAllowedChars(row.characters);
        typeText(row.typed);
        EXPECT_EQ(textOf(*field), row.taken) << testing::PrintToString(std::wstring(row.characters));
    }
}

TEST_F(WatchedEdit, may_forbid_the_key_that_deletes_backwards)
{
    typeText(L"ab");
    field->SetNotAllowedChars(L"\b");
    key(VK_BACK);
    EXPECT_EQ(textOf(*field), L"ab");
    field->SetNotAllowedChars(L"");
    key(VK_BACK);
    EXPECT_EQ(textOf(*field), L"a");
}

TEST_F(WatchedEdit, takes_pasted_characters_that_are_forbidden_to_type)
{
    field->SetNotAllowedChars(L"*");
    field->ReplaceSel(L"2*3");
    EXPECT_EQ(textOf(*field), L"2*3");
}

TEST_F(WatchedEdit, moves_its_caret_before_the_owner_hears_of_the_key)
{
    field->SetWindowText(L"abcd");
    field->SetSel(4, 4);
    std::vector<DWORD> seen;
    host.onHear = [&](const Heard& one)
    {
        if (one.message == WM_KEYDOWN)
            seen.push_back(LOWORD(field->GetSel()));
    };
    key(VK_LEFT);
    key(VK_HOME);
    EXPECT_EQ(seen, (std::vector<DWORD>{3, 0}));
    ASSERT_EQ(host.heard.size(), 2U);
    EXPECT_EQ(host.heard[0].wParam, static_cast<WPARAM>(VK_LEFT));
    EXPECT_EQ(LOWORD(host.heard[0].lParam), 1) << "the repeat count";
}

TEST_F(WatchedEdit, tells_of_a_click_first_with_its_flags_and_no_place)
{
    host.SetFocus();
    HWND focusWhenHeard = field->m_hWnd;
    host.onHear = [&](const Heard&) { focusWhenHeard = ::GetFocus(); };
    click(centreOf(field->m_hWnd));
    EXPECT_EQ(host.heard, (std::vector<Heard>{{WM_LBUTTONDOWN, MK_LBUTTON, 0}}));
    EXPECT_EQ(focusWhenHeard, host.m_hWnd) << "before the field's own part";
    EXPECT_EQ(::GetFocus(), field->m_hWnd) << "behind it";
}

TEST_F(WatchedEdit, hands_on_what_it_got_letter_for_letter)
{
    constexpr LPARAM flags = (0x1234 << 16) | 3; // the repeat count below
    for (const UINT message : {WM_CHAR, WM_KEYDOWN, WM_SYSCHAR})
        field->SendMessage(message, L'7', flags);
    field->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(12, 5));
    field->SendMessage(WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(host.heard, (std::vector<Heard>{{WM_CHAR, L'7', flags},
                                              {WM_KEYDOWN, L'7', flags},
                                              {WM_SYSCHAR, L'7', flags},
                                              {WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, 0}}));
}

TEST_F(WatchedEdit, tells_its_owner_instead_of_its_parent)
{
    DropHost owner;
    field->SetOwner(&owner);
    host.SetForegroundWindow();
    field->SetFocus();
    host.heard.clear();
    typeText(L"x");
    EXPECT_EQ(owner.characters(), L"x");
    EXPECT_EQ(host.characters(), L"");
}

TEST_F(WatchedEdit, clears_itself_in_four_steps)
{
    field->SetWindowText(L"some text");
    field->SetModify(TRUE);
    MessageRecorder recorder(field->m_hWnd, [](UINT message)
                             { return message == WM_CLEAR || (message >= EM_GETSEL && message <= EM_SETMODIFY); });
    field->ClearControl();
    EXPECT_EQ(recorder.all(), (std::vector<RecordedMessage>{{177, 0, -1}, {183, 0, 0}, {771, 0, 0}, {185, 0, 0}}));
    EXPECT_EQ(textOf(*field), L"");
    EXPECT_FALSE(field->GetModify());
}

TEST_F(WatchedEdit, gives_a_cleared_text_back)
{
    typeText(L"text");
    field->ClearControl();
    EXPECT_TRUE(field->Undo());
    EXPECT_EQ(textOf(*field), L"text");
}

TEST_F(WatchedEdit, keeps_the_flags_of_its_host)
{
    EXPECT_FALSE(field->GetVariant());
    EXPECT_EQ(field->GetVisibility(), 1);
    field->SetVariant(true);
    field->SetVisibility(-5);
    EXPECT_TRUE(field->GetVariant());
    EXPECT_EQ(field->GetVisibility(), -5);
    field->SetVariant(false);
    EXPECT_FALSE(field->GetVariant());
}

TEST_F(WatchedEdit, takes_the_colours_of_its_parent)
{
    constexpr COLORREF paleBlue = 0x00F6DBC9;
    CBrush pale(paleBlue);
    host.colours = static_cast<HBRUSH>(pale.GetSafeHandle());
    field->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_GT(pixelsOf(field->m_hWnd, paleBlue), 198 * 20);
}

// ---- Owners with surprises

TEST_F(WatchedEdit, drops_what_its_owner_gives_back)
{
    host.onHear = [this](const Heard& one) { field->SendMessage(one.message, one.wParam, one.lParam); };
    typeText(L"ab");
    EXPECT_EQ(textOf(*field), L"ab") << "taken once";
    EXPECT_EQ(host.characters(), L"ab") << "told once";
    host.heard.clear();
    key(VK_HOME);
    click(centreOf(field->m_hWnd));
    EXPECT_EQ(host.heard.size(), 2U);
}

TEST_F(WatchedEdit, ends_a_circle_of_owners)
{
    CKxEdit other;
    other.Create(style, CRect(20, 60, 220, 84), &host, 8);
    other.SetOwner(field.get());
    field->SetOwner(&other);
    typeText(L"a");
    EXPECT_EQ(textOf(*field), L"a");
    EXPECT_EQ(textOf(other), L"a") << "the owner is an edit field too";
    field->SetOwner(field.get());
    typeText(L"b");
    EXPECT_EQ(textOf(*field), L"ab");
}

TEST_F(WatchedEdit, has_no_owner_left_when_that_is_gone)
{
    {
        DropHost owner;
        field->SetOwner(&owner);
    }
    field->SendMessage(WM_CHAR, L'x', 1);
    EXPECT_EQ(textOf(*field), L"x");
    EXPECT_TRUE(host.heard.empty());
}

TEST_F(WatchedEdit, may_be_destroyed_deleted_or_lose_its_parent_in_each_message)
{
    for (const UINT message : {WM_CHAR, WM_KEYDOWN, WM_SYSCHAR, WM_LBUTTONDOWN})
    {
        for (int how = 0; how < 3; ++how)
        {
            DropHost other;
            auto mortal = std::make_unique<CKxEdit>();
            mortal->Create(style, CRect(20, 20, 220, 44), &other, 7);
            const HWND window = mortal->m_hWnd;
            other.onHear = [&](const Heard& one)
            {
                if (one.message != message || !::IsWindow(window))
                    return;
                endControl(how, mortal, other);
            };
            ::SendMessageW(window, message, L'a', 1);
            EXPECT_FALSE(::IsWindow(window)) << message << " " << how;
            EXPECT_EQ(::GetCapture(), nullptr) << message << " " << how;
        }
    }
}

TEST_F(WatchedEdit, may_lose_its_parent_while_its_text_changes)
{
    for (const int code : {EN_UPDATE, EN_CHANGE, EN_SETFOCUS, EN_KILLFOCUS})
    {
        DropHost other;
        CKxEdit mortal;
        mortal.Create(style, CRect(20, 20, 220, 44), &other, 7);
        other.onCommand = [&](int heard)
        {
            if (heard == code)
                other.DestroyWindow();
        };
        mortal.SetFocus();
        if (mortal.m_hWnd != nullptr)
            typeText(L"a");
        if (other.m_hWnd != nullptr)
            other.SetFocus();
        EXPECT_EQ(mortal.m_hWnd, nullptr) << code;
        mortal.ClearControl();
    }
}

TEST_F(WatchedEdit, may_end_while_it_clears_itself)
{
    typeText(L"text");
    host.onCommand = [this](int code)
    {
        if (code == EN_CHANGE)
            field.reset();
    };
    field->ClearControl();
    EXPECT_EQ(field, nullptr);
}

TEST_F(WatchedEdit, holds_a_million_characters)
{
    const std::wstring million(1 << 20, L'w');
    field->SetLimitText(0);
    field->SetWindowText(million.c_str());
    field->SetNotAllowedChars(million.c_str());
    field->SetSel(0, 0);
    typeText(L"wx");
    EXPECT_EQ(field->GetWindowTextLength(), (1 << 20) + 1);
    EXPECT_EQ(host.characters(), L"wx");
    field->ClearControl();
    EXPECT_EQ(textOf(*field), L"");
}

TEST_F(WatchedEdit, has_no_window_and_does_nothing)
{
    CKxEdit none;
    none.ClearControl();
    none.SetNotAllowedChars(CString());
    EXPECT_EQ(none.m_hWnd, nullptr);
}

TEST_F(WatchedEdit, never_forbids_the_null_character)
{
    field->SetNotAllowedChars(CString(L'\0', 3));
    field->SendMessage(WM_CHAR, 0, 1);
    EXPECT_EQ(host.heardOf(WM_CHAR).size(), 1U);
    typeText(L"a");
    EXPECT_EQ(textOf(*field), L"a");
}

void useOnce(CKxEdit& field, DropHost& host, int)
{
    field.Create(style, CRect(20, 20, 220, 44), &host, 7);
    field.SetNotAllowedChars(L"*");
    field.SetFocus();
    field.UpdateWindow();
    field.SendMessage(WM_CHAR, L'a', 1);
    field.SendMessage(WM_CHAR, L'*', 1);
    field.ClearControl();
}

TEST(WatchedEditLifetime, two_thousand_fields_leave_no_handle)
{
    expectTwoThousandLivesLeaveNoHandle<CKxEdit>(useOnce);
}
} // namespace
