// The page of pictures walks its states by keys, clicks and the real file dialog.
#include "PagePictures.h"
#include "resource.h"
#include "support/RealInput.h"

namespace
{
/// Carries out what a user does in the next modal dialog, as soon as it stands.
class DialogUser
{
public:
    explicit DialogUser(std::function<void()> user)
    {
        s_user = std::move(user);
        s_main = GetForegroundWindow();
        s_timer = SetTimer(nullptr, 0, 150, look);
    }
    ~DialogUser() { KillTimer(nullptr, s_timer); }
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;

private:
    static void CALLBACK look(HWND, UINT, UINT_PTR, DWORD)
    {
        const HWND active = GetActiveWindow();
        if (!s_user || !active || active == s_main || !IsWindowVisible(active))
            return;
        const auto user = std::move(s_user);
        s_user = nullptr;
        user();
    }
    inline static std::function<void()> s_user;
    inline static HWND s_main = nullptr;
    inline static UINT_PTR s_timer = 0;
};

/// A key that the dialog's own loop takes.
void press(WORD code)
{
    INPUT inputs[2] = {};
    inputs[0].type = inputs[1].type = INPUT_KEYBOARD;
    inputs[0].ki.wVk = inputs[1].ki.wVk = code;
    inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(2, inputs, sizeof *inputs);
}

CString temporaryFile(const wchar_t* name)
{
    CString path;
    GetTempPathW(MAX_PATH, path.GetBuffer(MAX_PATH + 1));
    path.ReleaseBuffer();
    return path + name;
}
} // namespace

void CPagePictures::walk(const TakePicture& take)
{
    const auto idle = [this] { return !busy(); };
    const auto sample = [&](int number)
    {
        m_samples.SetFocus();
        m_samples.SetCurSel(number - 1);
        key(VK_DOWN);
        waitFor(idle, 60000);
        pumpFor(100);
    };
    take(L"1-nothing-open");

    const auto typed = [](const CString& path)
    {
        typeText(path);
        press(VK_RETURN);
    };
    {
        const DialogUser user(
            [&]
            {
                take(L"2-file-dialog");
                typed(L"landscape.bmp");
            });
        click(middleOf(IDC_OPEN_PICTURE));
        waitFor(idle, 60000);
    }
    take(L"3-true-colour");

    const auto reduce = [&](int bits, bool diffuse)
    {
        for (int i = 0; i < m_bits.GetCount(); ++i)
            if (static_cast<int>(m_bits.GetItemData(i)) == bits)
                m_bits.SetCurSel(i);
        if ((IsDlgButtonChecked(IDC_DIFFUSE) == BST_CHECKED) != diffuse)
            click(middleOf(IDC_DIFFUSE));
        click(middleOf(IDC_REDUCE));
        waitFor(idle, 60000);
        pumpFor(100);
    };
    reduce(8, false);
    take(L"4-eight-bits");
    reduce(4, true);
    take(L"5-four-bits-diffused");
    const CString saved = temporaryFile(L"landscape copy.gif");
    DeleteFileW(saved);
    {
        const DialogUser user([&] { typed(saved); });
        click(middleOf(IDC_SAVE_GIF));
        waitFor(idle, 60000);
    }
    take(L"6-saved");
    reduce(1, true);
    take(L"7-one-bit-diffused");

    sample(1);
    take(L"8-drawing");
    sample(2);
    take(L"9-animation");
    m_list.SetFocus();
    for (int i = 0; i < 4; ++i)
        key(VK_DOWN);
    waitFor(idle, 60000);
    take(L"10-fifth-frame");

    sample(3);
    m_bits.SetCurSel(0);
    if (IsDlgButtonChecked(IDC_DIFFUSE) != BST_CHECKED)
        click(middleOf(IDC_DIFFUSE));
    click(middleOf(IDC_REDUCE));
    waitFor([this] { return !busy() || m_work.percent() >= 10; }, 60000);
    take(L"11-working");
    click(middleOf(IDC_CANCEL_WORK));
    waitFor(idle, 60000);
    take(L"12-cancelled");

    const CString notes = temporaryFile(L"notes.txt");
    const char text[] = "These are notes, and no picture.";
    writeFile(notes, reinterpret_cast<const unsigned char*>(text), sizeof text - 1);
    {
        const DialogUser user([&] { typed(notes); });
        click(middleOf(IDC_OPEN_PICTURE));
        waitFor(idle, 60000);
    }
    take(L"13-not-a-picture");
    DeleteFileW(notes);
    DeleteFileW(saved);
}
