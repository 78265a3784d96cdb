// Dialogs: modal with real keys, modeless, first contents, data exchange.
#include "Fixture.h"
#include "ids.h"
#include "support/AnswerModal.h"

#include <functional>

namespace
{
class CData : public CDialog
{
public:
    explicit CData(CWnd* parent = nullptr) : CDialog(IDD_DATA, parent) {}
    CData(UINT id, CWnd* parent) : CDialog(id, parent) {}

    CString text = L"12";
    int number = 12;
    bool asNumber = false;
    int check = 1;
    int radio = 2;
    int listIndex = 1;
    CString combo = L"blue";
    int scroll = 30;
    CEdit edit;
    Log log;
    std::function<void()> onInit;
    std::function<void()> onTimer;
    using CWnd::m_nModalResult;

    BOOL OnInitDialog() override
    {
        log.push_back(L"init");
        const BOOL result = CDialog::OnInitDialog();
        GetDlgItem(IDC_SCROLL)->SetScrollRange(SB_CTL, 0, 100);
        if (onInit)
            onInit();
        if (onTimer)
            SetTimer(1, 10, nullptr);
        SetTimer(2, 20000, nullptr); // so that a test that fails does not hang
        return result;
    }

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        DDX_Control(exchange, IDC_TEXT, edit);
        if (asNumber)
        {
            DDX_Text(exchange, IDC_TEXT, number);
            DDV_MinMaxInt(exchange, number, 10, 20);
        }
        else
        {
            DDX_Text(exchange, IDC_TEXT, text);
            DDV_MaxChars(exchange, text, 5);
        }
        DDX_Check(exchange, IDC_CHECK, check);
        DDX_Radio(exchange, IDC_RADIO1, radio);
        DDX_LBIndex(exchange, IDC_LIST, listIndex);
        DDX_CBString(exchange, IDC_COMBO, combo);
        DDX_Scroll(exchange, IDC_SCROLL, scroll);
    }
    void OnOK() override
    {
        log.push_back(L"ok");
        CDialog::OnOK();
    }
    void OnCancel() override
    {
        log.push_back(L"cancel");
        if (m_nFlags & WF_MODALLOOP)
            CDialog::OnCancel();
        else
            DestroyWindow();
    }
    afx_msg void OnTimer(UINT_PTR id)
    {
        if (id == 1 && !isReadyForKeys())
            return; // the next tick comes
        KillTimer(id);
        if (id == 2)
            EndDialog(-99);
        else if (onTimer)
            onTimer();
    }
    bool isReadyForKeys()
    {
        if (!IsWindowVisible())
            return false;
        if (::GetForegroundWindow() == m_hWnd)
            return true;
        SetForegroundWindow();
        return false;
    }
    afx_msg void OnTextChanged() { log.push_back(L"changed"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CData, CDialog)
    ON_WM_TIMER()
    // void OnTextChanged()
    ON_EN_CHANGE(IDC_TEXT, &CData::OnTextChanged)
END_MESSAGE_MAP()

CString itemText(CWnd& dialog, int id)
{
    CString text;
    dialog.GetDlgItemText(id, text);
    return text;
}

class Modeless : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(dialog.Create(IDD_DATA)); }
    CData dialog;
};
} // namespace

TEST(ModalDialog, return_key_ends_it_with_ok_and_the_typed_text)
{
    CData dialog;
    dialog.onTimer = []
    {
        for (const WORD letter : {'A', 'B', 'C'})
            press(letter);
        press(VK_RETURN);
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.text, L"abc");
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModalDialog, escape_key_ends_it_with_cancel_and_keeps_the_variables)
{
    CData dialog;
    dialog.onTimer = []
    {
        for (const WORD letter : {'A', 'B', 'C'})
            press(letter);
        press(VK_ESCAPE);
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.text, L"12");
    EXPECT_EQ(dialog.log.back(), L"cancel");
}

TEST(ModalDialog, tab_key_moves_the_focus)
{
    CData dialog;
    HWND first = nullptr;
    HWND second = nullptr;
    dialog.onTimer = [&]
    {
        if (first == nullptr)
        {
            first = ::GetFocus();
            press(VK_TAB);
        }
        else if (::GetFocus() != first)
        {
            second = ::GetFocus();
            press(VK_ESCAPE);
            return;
        }
        dialog.SetTimer(1, 10, nullptr);
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_NE(first, nullptr);
    EXPECT_NE(second, nullptr);
}

TEST(ModalDialog, ending_in_the_first_moment_never_shows_it)
{
    CData dialog;
    dialog.onInit = [&] { dialog.EndDialog(77); };
    EXPECT_EQ(dialog.DoModal(), 77);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModalDialog, disables_its_parent_while_it_runs)
{
    CTop parent;
    ASSERT_TRUE(parent.make(WS_OVERLAPPEDWINDOW | WS_VISIBLE));
    CData dialog(&parent);
    bool enabled = true;
    dialog.onTimer = [&]
    {
        enabled = parent.IsWindowEnabled() != FALSE;
        dialog.EndDialog(5);
    };
    EXPECT_EQ(dialog.DoModal(), 5);
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST(ModalDialog, can_run_twice)
{
    CData dialog;
    dialog.onTimer = [&] { dialog.EndDialog(8); };
    EXPECT_EQ(dialog.DoModal(), 8);
    EXPECT_EQ(dialog.DoModal(), 8);
}

TEST(ModalDialog, unknown_template_gives_minus_one)
{
    CData dialog(9999, nullptr);
    EXPECT_EQ(dialog.DoModal(), -1);
}

TEST(ModalDialog, quit_message_ends_it_and_goes_on_to_the_outer_loop)
{
    CData dialog;
    dialog.onTimer = [] { ::PostQuitMessage(3); };
    EXPECT_EQ(dialog.DoModal(), -1);
    MSG message = {};
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE) && message.message != WM_QUIT)
        ::DispatchMessage(&message);
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 3U);
}

TEST(ModalDialog, escape_leaves_a_multiline_edit_without_a_cancel_button)
{
    class CMultiline : public CDialog
    {
    public:
        CMultiline() : CDialog(IDD_MULTILINE) {}
        BOOL OnInitDialog() override
        {
            SetTimer(1, 10,
                     [](HWND wnd, UINT, UINT_PTR id, DWORD)
                     {
                         ::KillTimer(wnd, id);
                         press(VK_ESCAPE);
                     });
            return CDialog::OnInitDialog();
        }
    };
    CMultiline dialog;
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ModalDialog, refused_value_keeps_it_open_until_it_is_right)
{
    CData dialog;
    dialog.asNumber = true;
    int messages = 0;
    dialog.onTimer = [&]
    {
        {
            const AnswerModal answer(IDOK);
            dialog.SetDlgItemText(IDC_TEXT, L"5");
            dialog.SendMessage(WM_COMMAND, IDOK);
            messages += AnswerModal::seen().find(L"between 10 and 20") != std::wstring::npos;
            EXPECT_EQ(::GetFocus(), dialog.GetDlgItem(IDC_TEXT)->m_hWnd);
            dialog.SetDlgItemText(IDC_TEXT, L"five");
            dialog.SendMessage(WM_COMMAND, IDOK);
            messages += AnswerModal::seen().find(L"Please enter an integer.") != std::wstring::npos;
        }
        dialog.SetDlgItemText(IDC_TEXT, L" 15 ");
        dialog.SendMessage(WM_COMMAND, IDOK);
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(messages, 2);
    EXPECT_EQ(dialog.number, 15);
}

TEST_F(Modeless, fills_its_items_from_the_variables)
{
    EXPECT_EQ(itemText(dialog, IDC_TEXT), L"12");
    EXPECT_EQ(dialog.IsDlgButtonChecked(IDC_CHECK), static_cast<UINT>(BST_CHECKED));
    EXPECT_EQ(dialog.GetCheckedRadioButton(IDC_RADIO1, IDC_RADIO3), IDC_RADIO3);
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_LIST, LB_GETCURSEL), 1);
    EXPECT_EQ(itemText(dialog, IDC_COMBO), L"blue");
}

TEST_F(Modeless, has_the_first_contents_of_its_lists)
{
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_LIST, LB_GETCOUNT), 2);
    wchar_t entry[16] = {};
    dialog.SendDlgItemMessage(IDC_LIST, LB_GETTEXT, 1, reinterpret_cast<LPARAM>(entry));
    EXPECT_STREQ(entry, L"two");
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_COMBO, CB_GETCOUNT), 1);
}

TEST_F(Modeless, reads_its_items_into_the_variables)
{
    dialog.SetDlgItemText(IDC_TEXT, L"new");
    dialog.CheckDlgButton(IDC_CHECK, BST_UNCHECKED);
    dialog.CheckRadioButton(IDC_RADIO1, IDC_RADIO3, IDC_RADIO2);
    dialog.SendDlgItemMessage(IDC_LIST, LB_SETCURSEL, 0);
    dialog.SetDlgItemText(IDC_COMBO, L"green");
    dialog.GetDlgItem(IDC_SCROLL)->SetScrollPos(SB_CTL, 44);
    EXPECT_TRUE(dialog.UpdateData());
    EXPECT_EQ(dialog.text, L"new");
    EXPECT_EQ(dialog.check, 0);
    EXPECT_EQ(dialog.radio, 1);
    EXPECT_EQ(dialog.listIndex, 0);
    EXPECT_EQ(dialog.combo, L"green");
    EXPECT_EQ(dialog.scroll, 44);
}

TEST_F(Modeless, binds_control_objects_once)
{
    const HWND edit = dialog.edit.m_hWnd;
    EXPECT_NE(edit, nullptr);
    EXPECT_EQ(dialog.GetDlgItem(IDC_TEXT), &dialog.edit);
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.edit.m_hWnd, edit);
}

TEST_F(Modeless, filling_causes_no_notifications)
{
    dialog.log.clear();
    dialog.text = L"other";
    dialog.UpdateData(FALSE);
    EXPECT_TRUE(dialog.log.empty());
    dialog.SetDlgItemText(IDC_TEXT, L"typed");
    EXPECT_EQ(dialog.log, Log{L"changed"});
}

TEST_F(Modeless, limits_the_edits_length)
{
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_TEXT, EM_GETLIMITTEXT), 5);
}

TEST_F(Modeless, missing_item_is_told_and_reading_fails)
{
    ::DestroyWindow(dialog.GetDlgItem(IDC_CHECK)->m_hWnd);
    const AnswerModal answer(IDOK);
    EXPECT_FALSE(dialog.UpdateData());
    EXPECT_NE(AnswerModal::seen(), L"");
}

TEST_F(Modeless, knows_its_default_button)
{
    EXPECT_EQ(LOWORD(dialog.GetDefID()), IDOK);
    dialog.SetDefID(IDCANCEL);
    EXPECT_EQ(LOWORD(dialog.GetDefID()), IDCANCEL);
}

TEST_F(Modeless, maps_dialog_units)
{
    CRect rect(0, 0, 4, 8);
    dialog.MapDialogRect(rect);
    EXPECT_GT(rect.Width(), 4);
    EXPECT_GT(rect.Height(), 8);
}

TEST_F(Modeless, moves_the_focus_among_its_items)
{
    dialog.ShowWindow(SW_SHOW);
    dialog.GotoDlgCtrl(dialog.GetDlgItem(IDC_TEXT));
    EXPECT_EQ(CWnd::GetFocus(), &dialog.edit);
    dialog.NextDlgCtrl();
    EXPECT_EQ(::GetFocus(), dialog.GetDlgItem(IDC_CHECK)->m_hWnd);
    dialog.PrevDlgCtrl();
    EXPECT_EQ(CWnd::GetFocus(), &dialog.edit);
}

TEST_F(Modeless, keys_are_the_dialogs_before_they_are_dispatched)
{
    dialog.ShowWindow(SW_SHOW);
    dialog.GotoDlgCtrl(dialog.GetDlgItem(IDC_TEXT));
    MSG message = {};
    message.hwnd = dialog.edit.m_hWnd;
    message.message = WM_KEYDOWN;
    message.wParam = VK_TAB;
    message.lParam = 1;
    EXPECT_TRUE(AfxPreTranslateMessage(&message));
    EXPECT_EQ(::GetFocus(), dialog.GetDlgItem(IDC_CHECK)->m_hWnd);
}

TEST_F(Modeless, cancel_ends_it)
{
    dialog.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.edit.m_hWnd, nullptr);
}

TEST(DialogInMemory, template_can_come_from_memory)
{
    const HRSRC found = ::FindResource(nullptr, MAKEINTRESOURCE(IDD_MULTILINE), RT_DIALOG);
    const auto* bytes = static_cast<LPCDLGTEMPLATE>(::LockResource(::LoadResource(nullptr, found)));
    CDialog modeless;
    EXPECT_TRUE(modeless.CreateIndirect(bytes));
    EXPECT_NE(modeless.GetDlgItem(IDC_TEXT), nullptr);
    CDialog none;
    EXPECT_FALSE(none.CreateIndirect(static_cast<LPCDLGTEMPLATE>(nullptr)));
}

TEST(DialogPlace, dialog_without_a_place_is_centred_over_its_owner)
{
    CTop owner;
    ASSERT_TRUE(owner.make(WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 100, 700, 600)));
    CData dialog;
    ASSERT_TRUE(dialog.Create(IDD_DATA, &owner));
    CRect rect;
    dialog.GetWindowRect(rect);
    EXPECT_NEAR(rect.CenterPoint().x, 400, 1);
    EXPECT_NEAR(rect.CenterPoint().y, 350, 1);
    dialog.DestroyWindow();
}
