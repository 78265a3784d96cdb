// Dialog data exchange of texts and numbers, and the checks of their values.
#include <afxwin.h>

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cwchar>
#include <cwctype>
#include <limits>
#include <string>
#include <type_traits>

namespace
{
CString textOf(HWND item)
{
    CString text;
    const int length = ::GetWindowTextLength(item);
    ::GetWindowText(item, text.GetBufferSetLength(length), length + 1);
    text.ReleaseBuffer();
    return text;
}

bool onlyBlanks(const wchar_t* text)
{
    while (*text == L' ' || *text == L'\t')
        ++text;
    return *text == 0;
}

[[noreturn]] void refuse(CDataExchange* exchange, UINT textId)
{
    AfxMessageBox(textId);
    exchange->Fail();
}

template <class Whole> bool parse(const CString& text, Whole& value)
{
    const wchar_t* start = text;
    while (*start == L' ' || *start == L'\t')
        ++start;
    if (std::is_unsigned_v<Whole> && *start == L'-')
        return false;
    wchar_t* end = nullptr;
    errno = 0;
    using Widest = std::conditional_t<std::is_unsigned_v<Whole>, unsigned long long, long long>;
    Widest read = 0;
    if constexpr (std::is_unsigned_v<Whole>)
        read = wcstoull(start, &end, 10);
    else
        read = wcstoll(start, &end, 10);
    if (end == start || errno == ERANGE || !onlyBlanks(end))
        return false;
    if (read < std::numeric_limits<Whole>::min() || read > std::numeric_limits<Whole>::max())
        return false;
    value = static_cast<Whole>(read);
    return true;
}

template <class Whole> void exchangeWhole(CDataExchange* exchange, int id, Whole& value, UINT complaint)
{
    HWND item = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate)
        AfxSetWindowText(item, std::to_wstring(value).c_str());
    else if (Whole read = 0; parse(textOf(item), read))
        value = read;
    else
        refuse(exchange, complaint);
}

template <class Real> void exchangeReal(CDataExchange* exchange, int id, Real& value, int digits)
{
    HWND item = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate)
    {
        CString text;
        text.Format(_T("%.*g"), digits, static_cast<double>(value));
        AfxSetWindowText(item, text);
        return;
    }
    const CString text = textOf(item);
    const wchar_t* start = text;
    wchar_t* end = nullptr;
    const double read = wcstod(start, &end);
    const bool fits = std::isfinite(read) && std::abs(read) <= static_cast<double>(std::numeric_limits<Real>::max());
    if (end == start || !onlyBlanks(end) || !fits)
        refuse(exchange, AFX_IDP_PARSE_REAL);
    value = static_cast<Real>(read);
}

// A value that is only shown is not checked: the variable is the program's own.
void checkRange(CDataExchange* exchange, bool inside, const CString& minimum, const CString& maximum, UINT textId)
{
    if (inside || !exchange->m_bSaveAndValidate)
        return;
    CString prompt;
    AfxFormatString2(prompt, textId, minimum, maximum);
    AfxMessageBox(prompt, MB_ICONEXCLAMATION, textId);
    exchange->Fail();
}

template <class Whole> void checkWhole(CDataExchange* exchange, Whole value, Whole minimum, Whole maximum)
{
    checkRange(exchange, value >= minimum && value <= maximum, std::to_wstring(minimum).c_str(),
               std::to_wstring(maximum).c_str(), AFX_IDP_PARSE_INT_RANGE);
}

void checkReal(CDataExchange* exchange, double value, double minimum, double maximum, int digits)
{
    CString low;
    CString high;
    low.Format(_T("%.*g"), digits, minimum);
    high.Format(_T("%.*g"), digits, maximum);
    checkRange(exchange, value >= minimum && value <= maximum, low, high, AFX_IDP_PARSE_REAL_RANGE);
}
} // namespace

void DDX_Text(CDataExchange* exchange, int id, BYTE& value)
{
    exchangeWhole(exchange, id, value, AFX_IDP_PARSE_BYTE);
}

void DDX_Text(CDataExchange* exchange, int id, short& value)
{
    exchangeWhole(exchange, id, value, AFX_IDP_PARSE_INT);
}

void DDX_Text(CDataExchange* exchange, int id, int& value)
{
    exchangeWhole(exchange, id, value, AFX_IDP_PARSE_INT);
}

void DDX_Text(CDataExchange* exchange, int id, UINT& value)
{
    exchangeWhole(exchange, id, value, AFX_IDP_PARSE_UINT);
}

void DDX_Text(CDataExchange* exchange, int id, long& value)
{
    exchangeWhole(exchange, id, value, AFX_IDP_PARSE_INT);
}

void DDX_Text(CDataExchange* exchange, int id, DWORD& value)
{
    exchangeWhole(exchange, id, value, AFX_IDP_PARSE_UINT);
}

void DDX_Text(CDataExchange* exchange, int id, LONGLONG& value)
{
    exchangeWhole(exchange, id, value, AFX_IDP_PARSE_INT);
}

void DDX_Text(CDataExchange* exchange, int id, ULONGLONG& value)
{
    exchangeWhole(exchange, id, value, AFX_IDP_PARSE_UINT);
}

void DDX_Text(CDataExchange* exchange, int id, CString& value)
{
    HWND item = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = textOf(item);
    else
        AfxSetWindowText(item, value);
}

void DDX_Text(CDataExchange* exchange, int id, LPTSTR value, int maxLength)
{
    HWND item = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate)
    {
        AfxSetWindowText(item, value);
        return;
    }
    const CString text = textOf(item);
    if (value == nullptr || maxLength <= 0)
        return;
    if (text.GetLength() >= maxLength)
    {
        const CString limit(std::to_wstring(maxLength - 1).c_str());
        CString prompt;
        AfxFormatString1(prompt, AFX_IDP_PARSE_STRING_SIZE, limit);
        AfxMessageBox(prompt, MB_ICONEXCLAMATION, AFX_IDP_PARSE_STRING_SIZE);
        exchange->Fail();
    }
    wmemcpy(value, text, static_cast<size_t>(text.GetLength()) + 1);
}

void DDX_Text(CDataExchange* exchange, int id, float& value)
{
    exchangeReal(exchange, id, value, FLT_DIG);
}

void DDX_Text(CDataExchange* exchange, int id, double& value)
{
    exchangeReal(exchange, id, value, DBL_DIG);
}

void DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE minimum, BYTE maximum)
{
    checkWhole<int>(exchange, value, minimum, maximum);
}

void DDV_MinMaxShort(CDataExchange* exchange, short value, short minimum, short maximum)
{
    checkWhole(exchange, value, minimum, maximum);
}

void DDV_MinMaxInt(CDataExchange* exchange, int value, int minimum, int maximum)
{
    checkWhole(exchange, value, minimum, maximum);
}

void DDV_MinMaxLong(CDataExchange* exchange, long value, long minimum, long maximum)
{
    checkWhole(exchange, value, minimum, maximum);
}

void DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT minimum, UINT maximum)
{
    checkWhole(exchange, value, minimum, maximum);
}

void DDV_MinMaxDWord(CDataExchange* exchange, DWORD value, DWORD minimum, DWORD maximum)
{
    checkWhole(exchange, value, minimum, maximum);
}

void DDV_MinMaxFloat(CDataExchange* exchange, const float& value, float minimum, float maximum)
{
    checkReal(exchange, static_cast<double>(value), static_cast<double>(minimum), static_cast<double>(maximum),
              FLT_DIG);
}

void DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double minimum, double maximum)
{
    checkReal(exchange, value, minimum, maximum, DBL_DIG);
}

void DDV_MaxChars(CDataExchange* exchange, const CString& value, int maxChars)
{
    if (exchange->m_bSaveAndValidate)
    {
        if (value.GetLength() <= maxChars)
            return;
        const CString limit(std::to_wstring(maxChars).c_str());
        CString prompt;
        AfxFormatString1(prompt, AFX_IDP_PARSE_STRING_SIZE, limit);
        AfxMessageBox(prompt, MB_ICONEXCLAMATION, AFX_IDP_PARSE_STRING_SIZE);
        exchange->Fail();
    }
    if (exchange->m_idLastControl == 0 || !exchange->m_bEditLastControl)
        return; // not behind the exchange of a text
    HWND item = nullptr;
    exchange->m_pDlgWnd->GetDlgItem(static_cast<int>(exchange->m_idLastControl), &item);
    // A combo box passes the limit to its edit field; other windows do not know either message.
    if (::SendMessage(item, EM_GETLIMITTEXT, 0, 0) == 0)
        ::SendMessage(item, CB_LIMITTEXT, static_cast<WPARAM>(maxChars), 0);
    ::SendMessage(item, EM_LIMITTEXT, static_cast<WPARAM>(maxChars), 0);
}
