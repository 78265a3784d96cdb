// A window that holds one page of the gallery, and files for it to open.
#pragma once
#include "gallery/Page.h"
#include "support/RealInput.h"

#include <cwchar>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using Bytes = std::vector<unsigned char>;

/// A page, shown in a top-level window.
template <class Page> class PageHost
{
public:
    PageHost()
    {
        m_window.CreateEx(0, AfxRegisterWndClass(0, nullptr, GetSysColorBrush(COLOR_BTNFACE)), L"gallery",
                          WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPCHILDREN, 20, 20, 760, 560, nullptr, nullptr);
        page.createIn(&m_window, nullptr);
        page.SetWindowPos(nullptr, 0, 0, 740, 500, SWP_NOZORDER);
        page.ShowWindow(SW_SHOW);
        m_window.SetForegroundWindow();
        pumpFor(50);
    }
    ~PageHost() { m_window.DestroyWindow(); }
    PageHost(const PageHost&) = delete;
    PageHost& operator=(const PageHost&) = delete;

    HWND control(int id) const { return ::GetDlgItem(page.m_hWnd, id); }
    std::wstring text(int id) const
    {
        CString text;
        page.GetDlgItemText(id, text);
        return std::wstring(text);
    }
    bool enabled(int id) const { return ::IsWindowEnabled(control(id)) != FALSE; }
    void clickOn(int id) { click(centreOf(control(id))); }

private:
    CWnd m_window; // outlives the page's window

public:
    Page page;
};

/// A folder of files that goes away with the object.
class Folder
{
public:
    Folder() : m_path(std::filesystem::temp_directory_path() / L"gallery files")
    {
        std::filesystem::create_directories(m_path);
    }
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    CString path(const wchar_t* name) const { return CString((m_path / name).c_str()); }
    CString write(const wchar_t* name, const Bytes& bytes) const
    {
        std::ofstream file(m_path / name, std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        return path(name);
    }

private:
    std::filesystem::path m_path;
};

inline Bytes contentOf(const CString& path)
{
    std::ifstream file(std::filesystem::path(path.GetString()), std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(file), {});
}
