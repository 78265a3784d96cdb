// A real dialog with a smart combo box by its window class, what it hears from it, and a user at its keyboard and mouse.
#pragma once
#include <afxwin.h>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>
#include "oxa/formats/KxSmartComboBox.h"
#include "smart_dialog_ids.h"
#include "support/AnswerModal.h"
#include "support/RealInput.h"

/// The control, with its data open to the tests.
class OpenSmartCombo : public CKxSmartComboBox
{
public:
    static SmartComboData& data(CKxSmartComboBox& control) { return control.*&OpenSmartCombo::m_data; }
    static CComboBox& combo(CKxSmartComboBox& control) { return control.*&OpenSmartCombo::m_combo; }
    static CKxToolTip& tip(CKxSmartComboBox& control) { return control.*&OpenSmartCombo::m_toolTip; }
    static CKxButtonCombo& picker(CKxSmartComboBox& control) { return control.*&OpenSmartCombo::m_buttonCombo; }
};

struct Heard
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool operator==(const Heard&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Heard& one)
{
    return out << one.message << "(" << one.wParam << ", " << one.lParam << ")";
}

inline void fillList(CStringList& list, const std::wstring& texts)
{
    list.RemoveAll();
    std::size_t start = 0;
    while (start < texts.size())
    {
        const std::size_t end = std::min(texts.find(L' ', start), texts.size());
        list.AddTail(CString(texts.c_str() + start, static_cast<int>(end - start)));
        start = end + 1;
    }
}

/// The host's dialog: the first field has the focus, and the messages of the control are written down.
class SmartHost : public CDialog
{
public:
    SmartHost()
    {
        CKxSmartComboBox::RegisterWndClass(AfxGetInstanceHandle());
        if (!Create(IDD_SMART_HOST))
            throw std::runtime_error("the host dialog could not be created");
        SetForegroundWindow();
        pump();
        GetDlgItem(IDC_BEFORE)->SetFocus();
        smart = dynamic_cast<CKxSmartComboBox*>(GetDlgItem(IDC_SMART));
        if (smart == nullptr)
            throw std::runtime_error("there is no control");
        heard.clear();
    }
    ~SmartHost() override { DestroyWindow(); }

    CKxSmartComboBox* smart = nullptr;        ///< owned by its window
    std::vector<Heard> heard;                 ///< messages of the control
    std::function<void(const Heard&)> onHear; ///< runs inside the handler

    SmartComboData& data() { return OpenSmartCombo::data(*smart); }
    CComboBox& combo() { return OpenSmartCombo::combo(*smart); }
    HWND child(int id) const { return ::GetDlgItem(smart->m_hWnd, id); }
    CRect childPlace(int id) const
    {
        CRect place;
        ::GetWindowRect(child(id), &place);
        smart->ScreenToClient(&place);
        return place;
    }
    int clientWidth() const
    {
        CRect client;
        smart->GetClientRect(&client);
        return client.right;
    }

    void remember(const std::wstring& values)
    {
        CStringList list;
        fillList(list, values);
        smart->SetStringCombo(list);
    }
    void alternatives(const std::wstring& formats)
    {
        CStringList list;
        fillList(list, formats);
        smart->SetListFilterString(list);
    }
    /// Puts characters on the places of the current format, as an owner that follows the typing does.
    void fillFormat(const wchar_t* characters)
    {
        CString text = characters;
        data().format.SetString(text);
    }

    /// Items of the combo box, the selected one in brackets / the control's own list / the edit field.
    std::wstring shown()
    {
        std::wstring all;
        for (int i = 0; i < combo().GetCount(); ++i)
        {
            CString text;
            combo().GetLBText(i, text);
            const std::wstring item(text);
            all += (i == 0 ? L"" : L" ") + (i == combo().GetCurSel() ? L"[" + item + L"]" : item);
        }
        all += L" / ";
        const CStringList& list = data().list;
        for (POSITION place = list.GetHeadPosition(); place != nullptr;)
        {
            all += std::wstring(list.GetNext(place));
            all += place != nullptr ? L" " : L"";
        }
        CString edit;
        combo().GetWindowText(edit);
        return all + L" / " + std::wstring(edit);
    }

    // ---- The user

    /// What the host's own loop does with the messages that wait.
    static void pump(DWORD milliseconds = 0)
    {
        const DWORD start = GetTickCount();
        do
        {
            MSG message;
            while (PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE))
                AfxGetThread()->PumpMessage();
            if (milliseconds != 0)
                MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
        } while (GetTickCount() - start < milliseconds);
    }
    static void press(WORD code, std::initializer_list<WORD> modifiers = {})
    {
        sendKey(code, modifiers);
        pump(10);
    }
    /// Clicks into the field, marks what stands there and types over it.
    void type(const wchar_t* text)
    {
        click(fieldPoint());
        press(VK_HOME);
        press(VK_END, {VK_SHIFT});
        press(VK_DELETE);
        typeText(text);
    }
    POINT fieldPoint() { return centreOf(::GetWindow(combo().m_hWnd, GW_CHILD)); }
    void clickAdd() { click(centreOf(child(CKxSmartComboBox::ID_ADD))); }
    void clickDelete() { click(centreOf(child(CKxSmartComboBox::ID_DELETE))); }
    /// Opens the list by its key and picks an item by the mouse.
    void pick(int index)
    {
        combo().SetFocus();
        press(VK_F4);
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        ::GetComboBoxInfo(combo().m_hWnd, &info);
        waitFor([&] { return ::IsWindowVisible(info.hwndList) != FALSE; });
        RECT item = {};
        ::SendMessageW(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
        ::MapWindowPoints(info.hwndList, nullptr, reinterpret_cast<POINT*>(&item), 2);
        click({(item.left + item.right) / 2, (item.top + item.bottom) / 2});
    }

protected:
    void OnOK() override {}
    void OnCancel() override {}
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message >= WM_KX_SMART_BUTTONSEL && message <= WM_KX_SMART_EDITUPDATE)
        {
            heard.push_back({message, wParam, lParam});
            if (onHear)
                onHear(Heard{message, wParam, lParam});
        }
        return CDialog::WindowProc(message, wParam, lParam);
    }
};
