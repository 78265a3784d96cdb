// The list at the bottom.
#include "MessageLog.h"
#include "MessageNames.h"
#include <string>

namespace
{
constexpr int maximumLines = 2000; // a message flood must not slow the gallery down

CString timeOfDay()
{
    SYSTEMTIME now;
    GetLocalTime(&now);
    CString text;
    text.Format(L"%02d:%02d:%02d.%03d", now.wHour, now.wMinute, now.wSecond, now.wMilliseconds);
    return text;
}
} // namespace

CMessageLog::~CMessageLog()
{
    if (m_file != INVALID_HANDLE_VALUE)
        CloseHandle(m_file);
}

void CMessageLog::prepare()
{
    SetExtendedStyle(LVS_EX_FULLROWSELECT);
    InsertColumn(0, L"Time", LVCFMT_LEFT, 90);
    InsertColumn(1, L"Message", LVCFMT_LEFT, 190);
    InsertColumn(2, L"Number", LVCFMT_LEFT, 70);
    InsertColumn(3, L"wParam", LVCFMT_LEFT, 110);
    InsertColumn(4, L"lParam", LVCFMT_LEFT, 130);
}

bool CMessageLog::writeTo(const CString& file)
{
    m_file = CreateFileW(file, GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    return m_file != INVALID_HANDLE_VALUE;
}

void CMessageLog::record(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (isControlMessage(message, lParam))
        append(nameOfControlMessage(message, wParam, lParam), message, wParam, lParam);
}

void CMessageLog::append(const CString& name, UINT message, WPARAM wParam, LPARAM lParam)
{
    CString number, first, second;
    number.Format(L"0x%X", message);
    first.Format(L"0x%I64X", static_cast<unsigned long long>(wParam));
    second.Format(L"0x%I64X", static_cast<unsigned long long>(lParam));
    const CString time = timeOfDay();
    if (m_file != INVALID_HANDLE_VALUE)
    {
        std::string line;
        for (const CString& part : {time, name, number, first, second})
        {
            for (int i = 0; i < part.GetLength(); ++i)
                line += static_cast<char>(part[i]); // names and numbers are plain ASCII
            line += '\t';
        }
        line.back() = '\n';
        DWORD written = 0;
        WriteFile(m_file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    }
    if (!m_hWnd)
        return;
    if (GetItemCount() >= maximumLines)
        DeleteItem(0);
    const int row = InsertItem(GetItemCount(), time);
    SetItemText(row, 1, name);
    SetItemText(row, 2, number);
    SetItemText(row, 3, first);
    SetItemText(row, 4, second);
    EnsureVisible(row, FALSE);
}
