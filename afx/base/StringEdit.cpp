// CString: inserting, deleting, replacing, trimming, case.
#include <cwchar>

#include "kx/CaseFold.h"
#include "kx/Exceptions.h"
#include "kx/String.h"

namespace
{

bool isBlank(wchar_t ch) noexcept
{
    const auto c = static_cast<unsigned>(ch);
    return c == 0x20 || (c >= 0x09 && c <= 0x0D) || c == 0x85 || c == 0xA0 || c == 0x1680 ||
           (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F || c == 0x3000;
}

bool contains(LPCWSTR set, wchar_t ch) noexcept
{
    return set != nullptr && ch != L'\0' && std::wcschr(set, ch) != nullptr;
}

template <class Predicate> int countAtStart(const CString& text, Predicate cut)
{
    int n = 0;
    while (n < text.GetLength() && cut(text.GetString()[n]))
    {
        ++n;
    }
    return n;
}

template <class Predicate> int lengthWithoutEnd(const CString& text, Predicate cut)
{
    int n = text.GetLength();
    while (n > 0 && cut(text.GetString()[n - 1]))
    {
        --n;
    }
    return n;
}

} // namespace

int CString::Insert(int iIndex, wchar_t ch)
{

    const int length = GetLength();
    iIndex = iIndex < 0 ? 0 : (iIndex > length ? length : iIndex);
    AppendChar(ch);
    std::wmemmove(m_psz + iIndex + 1, m_psz + iIndex, static_cast<std::size_t>(length - iIndex));
    m_psz[iIndex] = ch;
    return GetLength();
}

int CString::Insert(int iIndex, LPCWSTR psz)
{
    const int length = GetLength();
    const int count = lengthOf(psz);
    iIndex = iIndex < 0 ? 0 : (iIndex > length ? length : iIndex);
    if (count == 0)
    {
        return length;
    }
    const CString inserted(psz, count); // psz may point into this text
    Append(inserted);
    std::wmemmove(m_psz + iIndex + count, m_psz + iIndex, static_cast<std::size_t>(length - iIndex));
    std::wmemcpy(m_psz + iIndex, inserted.m_psz, static_cast<std::size_t>(count));
    return GetLength();
}

int CString::Delete(int iIndex, int nCount)
{
    const int length = GetLength();
    iIndex = iIndex < 0 ? 0 : iIndex;
    if (iIndex < length && nCount > 0)
    {
        nCount = nCount > length - iIndex ? length - iIndex : nCount;
        prepareWrite(length);
        std::wmemmove(m_psz + iIndex, m_psz + iIndex + nCount, static_cast<std::size_t>(length - iIndex - nCount));
        setLength(length - nCount);
    }
    return GetLength();
}

int CString::Replace(wchar_t chOld, wchar_t chNew)
{
    int count = 0;
    if (chOld != chNew)
    {
        for (int i = 0; i < GetLength(); ++i)
        {
            if (m_psz[i] == chOld)
            {
                prepareWrite(GetLength())[i] = chNew;
                ++count;
            }
        }
    }
    return count;
}

int CString::Replace(LPCWSTR pszOld, LPCWSTR pszNew)
{
    const int oldLength = lengthOf(pszOld);
    if (oldLength == 0)
    {
        return 0;
    }
    const int newLength = lengthOf(pszNew);
    CString result;
    int count = 0;
    int from = 0;
    // Texts behind an embedded terminator are searched too.
    for (int i = 0; i + oldLength <= GetLength();)
    {
        if (std::wmemcmp(m_psz + i, pszOld, static_cast<std::size_t>(oldLength)) == 0)
        {
            result.Append(m_psz + from, i - from);
            result.Append(pszNew, newLength);
            i += oldLength;
            from = i;
            ++count;
        }
        else
        {
            ++i;
        }
    }
    if (count > 0)
    {
        result.Append(m_psz + from, GetLength() - from);
        swap(result); // the old buffer lives until here: both texts may point into it
    }
    return count;
}

int CString::Remove(wchar_t chRemove)
{
    const int length = GetLength();
    int kept = 0;
    while (kept < length && m_psz[kept] != chRemove)
    {
        ++kept;
    }
    if (kept == length)
    {
        return 0;
    }
    wchar_t* const text = prepareWrite(length);
    for (int i = kept; i < length; ++i)
    {
        if (text[i] != chRemove)
        {
            text[kept++] = text[i];
        }
    }
    setLength(kept);
    return length - kept;
}

void CString::Truncate(int nNewLength)
{
    if (nNewLength < 0 || nNewLength > GetLength())
    {
        AfxThrowInvalidArgException();
    }
    keepRange(0, nNewLength);
}

CString& CString::MakeUpper()
{
    wchar_t* const text = GetBuffer();
    for (int i = 0; i < GetLength(); ++i)
    {
        text[i] = kx::foldUpper(text[i]);
    }
    return *this;
}

CString& CString::MakeLower()
{
    wchar_t* const text = GetBuffer();
    for (int i = 0; i < GetLength(); ++i)
    {
        text[i] = kx::foldLower(text[i]);
    }
    return *this;
}

CString& CString::MakeReverse()
{
    wchar_t* const text = GetBuffer();
    for (int i = 0, j = GetLength() - 1; i < j; ++i, --j)
    {
        const wchar_t ch = text[i];
        text[i] = text[j];
        text[j] = ch;
    }
    return *this;
}

CString& CString::Trim()
{
    return TrimRight().TrimLeft();
}

CString& CString::Trim(wchar_t chTarget)
{
    return TrimRight(chTarget).TrimLeft(chTarget);
}

CString& CString::Trim(LPCWSTR pszTargets)
{
    const CString targets(pszTargets); // may point into this text
    return TrimRight(targets).TrimLeft(targets);
}

CString& CString::TrimLeft()
{
    const int n = countAtStart(*this, isBlank);
    keepRange(n, GetLength() - n);
    return *this;
}

CString& CString::TrimLeft(wchar_t chTarget)
{
    const int n = countAtStart(*this, [chTarget](wchar_t ch) { return ch == chTarget; });
    keepRange(n, GetLength() - n);
    return *this;
}

CString& CString::TrimLeft(LPCWSTR pszTargets)
{
    const int n = countAtStart(*this, [pszTargets](wchar_t ch) { return contains(pszTargets, ch); });
    keepRange(n, GetLength() - n);
    return *this;
}

CString& CString::TrimRight()
{
    keepRange(0, lengthWithoutEnd(*this, isBlank));
    return *this;
}

CString& CString::TrimRight(wchar_t chTarget)
{
    keepRange(0, lengthWithoutEnd(*this, [chTarget](wchar_t ch) { return ch == chTarget; }));
    return *this;
}

CString& CString::TrimRight(LPCWSTR pszTargets)
{
    keepRange(0, lengthWithoutEnd(*this, [pszTargets](wchar_t ch) { return contains(pszTargets, ch); }));
    return *this;
}
