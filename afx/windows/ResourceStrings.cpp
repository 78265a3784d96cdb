// Strings of the string tables, and formats with numbered place-holders.
#include <afxwin.h>

#include <algorithm>

#include "ModuleChain.h"

namespace
{
/// A string of a string table, which need not end with a terminator.
struct TableString
{
    LPCWSTR text = nullptr;
    UINT length = 0;
};

bool inTable(HINSTANCE module, UINT id, TableString& found)
{
    LPWSTR text = nullptr;
    // A size of 0 asks for the place instead of a copy.
    const int length = ::LoadStringW(module, id, reinterpret_cast<LPWSTR>(&text), 0);
    if (length <= 0 || text == nullptr)
        return false;
    found = {text, static_cast<UINT>(length)};
    return true;
}

bool find(UINT id, TableString& found)
{
    return inTable(AfxFindStringResourceHandle(id), id, found);
}

int placeHolderIndex(TCHAR c)
{
    if (c >= _T('1') && c <= _T('9'))
        return c - _T('1');
    if (c >= _T('A') && c <= _T('Z'))
        return c - _T('A') + 9;
    return -1;
}
} // namespace

// By string and not by table: a table holds sixteen strings, and a module may have the table without the string.
HINSTANCE AfxFindStringResourceHandle(UINT id)
{
    TableString ignored;
    HINSTANCE found = kxFindModule([&](HINSTANCE module) { return inTable(module, id, ignored); });
    return found != nullptr ? found : AfxGetResourceHandle();
}

int AfxLoadString(UINT id, LPTSTR buffer, UINT maxCount)
{
    if (buffer == nullptr || maxCount == 0)
        return 0;
    TableString found;
    find(id, found);
    const UINT length = std::min(found.length, maxCount - 1);
    std::copy_n(found.text, length, buffer);
    buffer[length] = 0;
    return static_cast<int>(length);
}

BOOL CString::LoadString(UINT nID)
{
    TableString found;
    if (!find(nID, found))
    {
        Empty();
        return FALSE;
    }
    SetString(found.text, static_cast<int>(found.length));
    return TRUE;
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID)
{
    TableString found;
    if (!inTable(hInstance, nID, found))
    {
        Empty();
        return FALSE;
    }
    SetString(found.text, static_cast<int>(found.length));
    return TRUE;
}

BOOL AfxExtractSubString(CString& result, LPCTSTR text, int field, TCHAR separator)
{
    result.Empty();
    if (text == nullptr || field < 0)
        return FALSE;
    for (; field > 0; --field)
    {
        text = wcschr(text, separator);
        if (text == nullptr || separator == 0)
            return FALSE;
        ++text;
    }
    LPCTSTR end = wcschr(text, separator);
    result.SetString(text, end != nullptr ? static_cast<int>(end - text) : lstrlen(text));
    return TRUE;
}

void AfxFormatStrings(CString& result, LPCTSTR format, LPCTSTR const* texts, int count)
{
    CString built;
    for (LPCTSTR at = format; at != nullptr && *at != 0; ++at)
    {
        const int index = *at == _T('%') ? placeHolderIndex(at[1]) : -1;
        if (index < 0)
        {
            built.AppendChar(*at);
            continue;
        }
        ++at;
        if (index >= count || texts == nullptr)
            built.AppendChar(_T('?'));
        else if (texts[index] != nullptr)
            built.Append(texts[index]);
    }
    result = built;
}

void AfxFormatStrings(CString& result, UINT id, LPCTSTR const* texts, int count)
{
    CString format;
    if (!format.LoadString(id))
    {
        result.Empty();
        return;
    }
    AfxFormatStrings(result, format, texts, count);
}

void AfxFormatString1(CString& result, UINT id, LPCTSTR text1)
{
    AfxFormatStrings(result, id, &text1, 1);
}

void AfxFormatString2(CString& result, UINT id, LPCTSTR text1, LPCTSTR text2)
{
    LPCTSTR const texts[] = {text1, text2};
    AfxFormatStrings(result, id, texts, 2);
}
