// CStringA: narrow text in the ANSI code page, for the few interfaces that want bytes; and the code page itself.
#pragma once

#include <string>

#include "kx/Export.h"
#include "kx/String.h"
#include "kx/WinTypes.h"

namespace kx
{

/// Bytes of the ANSI code page as wide text (the system's page on Windows, 1252 elsewhere).
KXAFX_API CString widen(const char* bytes, int length);
/// Wide text in the ANSI code page; what it lacks becomes "?".
KXAFX_API std::string narrow(const wchar_t* text, int length);

} // namespace kx

/// Narrow text with the part of CString's interface that byte interfaces need.
class CStringA
{
public:
    CStringA() = default;
    CStringA(LPCSTR psz) : m_text(psz != nullptr ? psz : "") {} // NOLINT(google-explicit-constructor): as documented
    CStringA(LPCSTR pch, int nLength)
    {
        if (pch != nullptr && nLength > 0)
        {
            m_text.assign(pch, static_cast<std::size_t>(nLength));
        }
    }
    explicit CStringA(LPCWSTR psz) { *this = CString(psz); }
    explicit CStringA(const CString& text) { *this = text; }
    CStringA& operator=(const CString& text)
    {
        m_text = kx::narrow(text, text.GetLength());
        return *this;
    }

    operator LPCSTR() const noexcept { return m_text.c_str(); } // NOLINT(google-explicit-constructor): as documented
    LPCSTR GetString() const noexcept { return m_text.c_str(); }
    int GetLength() const noexcept { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const noexcept { return m_text.empty(); }
    void Empty() noexcept { m_text.clear(); }
    CStringA& operator+=(LPCSTR psz)
    {
        m_text += psz != nullptr ? psz : "";
        return *this;
    }
    CStringA& operator+=(char ch)
    {
        m_text += ch;
        return *this;
    }
    int Compare(LPCSTR psz) const noexcept { return m_text.compare(psz != nullptr ? psz : ""); }
    friend bool operator==(const CStringA& a, const CStringA& b) noexcept { return a.m_text == b.m_text; }
    friend bool operator==(const CStringA& a, LPCSTR b) noexcept { return a.Compare(b) == 0; }

private:
    std::string m_text;
};
