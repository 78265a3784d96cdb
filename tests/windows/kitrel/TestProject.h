// The test program as a module that files texts, and a dialog made from its templates.
#pragma once
#include <afxwin.h>
#include <string>

inline constexpr wchar_t c_testProject[] = L"TESTS";

extern "C" __declspec(dllexport) const wchar_t* getModulePromptsProjectName();

/// A modeless dialog out of a template of the test program, shown.
class CTestDialog : public CDialog
{
public:
    explicit CTestDialog(UINT id)
    {
        Create(MAKEINTRESOURCE(id), nullptr);
        ShowWindow(SW_SHOW);
    }
    ~CTestDialog() override
    {
        if (m_hWnd)
            DestroyWindow();
    }
    CTestDialog(const CTestDialog&) = delete;
    CTestDialog& operator=(const CTestDialog&) = delete;

    std::wstring caption() const { return textOf(m_hWnd); }
    std::wstring text(int id) const { return textOf(::GetDlgItem(m_hWnd, id)); }
    HWND item(int id) const { return ::GetDlgItem(m_hWnd, id); }

private:
    static std::wstring textOf(HWND window)
    {
        wchar_t buffer[200] = L"";
        ::GetWindowTextW(window, buffer, 200);
        return buffer;
    }
};
