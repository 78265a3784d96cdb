// CString: comparing, searching, and taking parts.
#include <cwchar>

#include "kx/CaseFold.h"
#include "kx/Exceptions.h"
#include "kx/String.h"

namespace
{

LPCWSTR orEmpty(LPCWSTR psz) noexcept
{
    return psz != nullptr ? psz : L"";
}

} // namespace

int CString::Compare(LPCWSTR psz) const noexcept
{
    return std::wcscmp(m_psz, orEmpty(psz));
}

int CString::CompareNoCase(LPCWSTR psz) const noexcept
{
    return kx::compareFolded(m_psz, psz);
}

int CString::Find(wchar_t ch, int iStart) const noexcept
{
    if (iStart < 0 || iStart >= GetLength())
    {
        return -1;
    }
    const wchar_t* const found = std::wcschr(m_psz + iStart, ch);
    return found != nullptr ? static_cast<int>(found - m_psz) : -1;
}

int CString::Find(LPCWSTR pszSub, int iStart) const noexcept
{
    if (pszSub == nullptr || iStart < 0 || iStart > GetLength())
    {
        return -1;
    }
    if (*pszSub == L'\0')
    {
        return iStart; // also at the very end, where the C libraries differ
    }
    const wchar_t* const found = std::wcsstr(m_psz + iStart, pszSub);
    return found != nullptr ? static_cast<int>(found - m_psz) : -1;
}

int CString::ReverseFind(wchar_t ch) const noexcept
{
    const wchar_t* const found = std::wcsrchr(m_psz, ch);
    return found != nullptr ? static_cast<int>(found - m_psz) : -1;
}

int CString::FindOneOf(LPCWSTR pszCharSet) const noexcept
{
    const wchar_t* const found = std::wcspbrk(m_psz, orEmpty(pszCharSet));
    return found != nullptr ? static_cast<int>(found - m_psz) : -1;
}

CString CString::Mid(int iFirst) const
{
    return Mid(iFirst, GetLength());
}

CString CString::Mid(int iFirst, int nCount) const
{
    const int length = GetLength();
    iFirst = iFirst < 0 ? 0 : iFirst;
    if (iFirst >= length || nCount <= 0)
    {
        return {};
    }
    nCount = nCount > length - iFirst ? length - iFirst : nCount;
    if (nCount == length)
    {
        return *this;
    }
    return {m_psz + iFirst, nCount};
}

CString CString::Left(int nCount) const
{
    return Mid(0, nCount);
}

CString CString::Right(int nCount) const
{
    const int length = GetLength();
    nCount = nCount < 0 ? 0 : (nCount > length ? length : nCount);
    return Mid(length - nCount, nCount);
}

CString CString::SpanIncluding(LPCWSTR pszCharSet) const
{
    return Left(static_cast<int>(std::wcsspn(m_psz, orEmpty(pszCharSet))));
}

CString CString::SpanExcluding(LPCWSTR pszCharSet) const
{
    return Left(static_cast<int>(std::wcscspn(m_psz, orEmpty(pszCharSet))));
}

CString CString::Tokenize(LPCWSTR pszTokens, int& iStart) const
{
    if (iStart < 0)
    {
        AfxThrowInvalidArgException();
    }
    const int length = GetLength();
    if (iStart < length)
    {
        LPCWSTR const tokens = orEmpty(pszTokens);
        const int first = iStart + static_cast<int>(std::wcsspn(m_psz + iStart, tokens));
        if (first < length && m_psz[first] != L'\0')
        {
            const int count = static_cast<int>(std::wcscspn(m_psz + first, tokens));
            iStart = first + count + 1; // behind the separator, which may lie behind the end
            return Mid(first, count);
        }
    }
    iStart = -1;
    return {};
}
