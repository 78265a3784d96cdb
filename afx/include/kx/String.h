// CString: wide text in one pointer, with a shared, counted, copy-on-write buffer.
#pragma once

#include <atomic>
#include <cstdarg>
#include <cstddef>

#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#define KX_SINGLE_THREADED (__libc_single_threaded != 0)
#else
#define KX_SINGLE_THREADED false
#endif

#include "kx/Export.h"
#include "kx/WinTypes.h"

namespace kx
{

/// What stands before the characters of every string.
struct StringHead
{
    std::atomic<int> refs; ///< 0: the shared empty text, never counted; > 0: owners; < 0: locked, never shared
    int length;            ///< characters, without the terminator
    int capacity;          ///< characters that fit, without the terminator
};

/// The one empty text of the process.
struct StringNil
{
    StringHead head;
    wchar_t text[1];
};
static_assert(offsetof(StringNil, text) == sizeof(StringHead));

} // namespace kx

/// Text of 16-bit (Windows) or 32-bit (elsewhere) characters. Copies share one buffer until one of them is changed;
/// different copies may be used by different threads. Lengths and positions count characters. A null text pointer
/// counts as empty. Operations raise CMemoryException when memory is short and CInvalidArgException for positions and
/// lengths that are refused below.
class KXAFX_API CString
{
public:
    using XCHAR = wchar_t;
    using PCXSTR = LPCWSTR;
    using PXSTR = LPWSTR;

    CString() noexcept : m_psz(s_nil.text) {}
    CString(const CString& src) : m_psz(src.m_psz) { share(); }
    CString(CString&& src) noexcept : m_psz(src.m_psz) { src.m_psz = s_nil.text; }
    CString(LPCWSTR psz) : m_psz(s_nil.text) { SetString(psz); } // NOLINT(google-explicit-constructor): as documented
    /// Bytes of the ANSI code page.
    explicit CString(LPCSTR psz) : m_psz(s_nil.text) { assignNarrow(psz); }
    /// nRepeat copies of ch; none when nRepeat is not positive.
    explicit CString(wchar_t ch, int nRepeat = 1);
    explicit CString(char ch, int nRepeat = 1);
    /// The first nLength characters, embedded terminators included. A negative length is refused.
    CString(LPCWSTR pch, int nLength) : m_psz(s_nil.text) { SetString(pch, nLength); }
    CString(LPCSTR pch, int nLength);
    ~CString() { release(); }

    CString& operator=(const CString& src)
    {
        if (m_psz != src.m_psz)
        {
            CString copy(src);
            swap(copy);
        }
        return *this;
    }
    CString& operator=(CString&& src) noexcept
    {
        swap(src);
        return *this;
    }
    CString& operator=(LPCWSTR psz)
    {
        SetString(psz);
        return *this;
    }
    CString& operator=(LPCSTR psz);
    CString& operator=(wchar_t ch)
    {
        SetString(&ch, 1);
        return *this;
    }
    CString& operator=(char ch);

    // Reading
    int GetLength() const noexcept { return head()->length; }
    bool IsEmpty() const noexcept { return head()->length == 0; }
    LPCWSTR GetString() const noexcept { return m_psz; }
    operator LPCWSTR() const noexcept { return m_psz; } // NOLINT(google-explicit-constructor): as documented
    /// The character at iChar, the terminator at GetLength(); other positions are refused.
    wchar_t GetAt(int iChar) const
    {
        if (static_cast<unsigned>(iChar) > static_cast<unsigned>(GetLength()))
        {
            throwInvalidArg();
        }
        return m_psz[iChar];
    }
    wchar_t operator[](int iChar) const { return GetAt(iChar); }

    // Comparing: by code unit, up to the first terminator; results are below, equal to or above 0
    int Compare(LPCWSTR psz) const noexcept;
    /// After kx::foldLower of each character.
    int CompareNoCase(LPCWSTR psz) const noexcept;
    /// The "C" locale's order, as a program has that never calls setlocale.
    int Collate(LPCWSTR psz) const noexcept { return Compare(psz); }
    int CollateNoCase(LPCWSTR psz) const noexcept { return CompareNoCase(psz); }

    // Searching: answers -1 when nothing is found or iStart lies outside
    int Find(wchar_t ch, int iStart = 0) const noexcept;
    int Find(LPCWSTR pszSub, int iStart = 0) const noexcept;
    int ReverseFind(wchar_t ch) const noexcept;
    int FindOneOf(LPCWSTR pszCharSet) const noexcept;

    // Parts: counts and positions outside are cut to what is there
    CString Mid(int iFirst) const;
    CString Mid(int iFirst, int nCount) const;
    CString Left(int nCount) const;
    CString Right(int nCount) const;
    CString SpanIncluding(LPCWSTR pszCharSet) const;
    CString SpanExcluding(LPCWSTR pszCharSet) const;
    /// The next token from iStart on, which moves behind it; iStart becomes -1 (and the result empty) when none is left.
    /// A negative iStart is refused.
    CString Tokenize(LPCWSTR pszTokens, int& iStart) const;

    // Changing
    void Empty() noexcept
    {
        release();
        m_psz = s_nil.text;
    }
    void SetString(LPCWSTR psz);
    void SetString(LPCWSTR psz, int nLength);
    /// iChar from 0 to GetLength() - 1; others are refused.
    void SetAt(int iChar, wchar_t ch);
    void Append(LPCWSTR psz);
    void Append(LPCWSTR psz, int nLength);
    void Append(const CString& src);
    void AppendChar(wchar_t ch);
    CString& operator+=(const CString& src)
    {
        Append(src);
        return *this;
    }
    CString& operator+=(LPCWSTR psz)
    {
        Append(psz);
        return *this;
    }
    CString& operator+=(LPCSTR psz)
    {
        Append(CString(psz));
        return *this;
    }
    CString& operator+=(wchar_t ch)
    {
        AppendChar(ch);
        return *this;
    }
    CString& operator+=(char ch)
    {
        Append(CString(ch));
        return *this;
    }
    /// Inserts before iIndex (cut to 0..GetLength()); answers the new length.
    int Insert(int iIndex, wchar_t ch);
    int Insert(int iIndex, LPCWSTR psz);
    /// Deletes up to nCount characters from iIndex on; answers the new length.
    int Delete(int iIndex, int nCount = 1);
    /// Each answers how many were replaced or removed.
    int Replace(wchar_t chOld, wchar_t chNew);
    int Replace(LPCWSTR pszOld, LPCWSTR pszNew);
    int Remove(wchar_t chRemove);
    /// Cuts to nNewLength characters; a length outside 0..GetLength() is refused.
    void Truncate(int nNewLength);
    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();
    CString& Trim();
    CString& Trim(wchar_t chTarget);
    CString& Trim(LPCWSTR pszTargets);
    CString& TrimLeft();
    CString& TrimLeft(wchar_t chTarget);
    CString& TrimLeft(LPCWSTR pszTargets);
    CString& TrimRight();
    CString& TrimRight(wchar_t chTarget);
    CString& TrimRight(LPCWSTR pszTargets);

    // Formatting: see docs/framework.md for the conversions
    void Format(LPCWSTR pszFormat, ...);
    void AppendFormat(LPCWSTR pszFormat, ...);
    void FormatV(LPCWSTR pszFormat, va_list args);
    void AppendFormatV(LPCWSTR pszFormat, va_list args);

    // The buffer
    /// The characters, not shared with another string, with room for at least nMinBufLength; release it before other use.
    LPWSTR GetBuffer() { return prepareWrite(GetLength()); }
    LPWSTR GetBuffer(int nMinBufLength);
    LPWSTR GetBufferSetLength(int nLength);
    /// nNewLength -1: up to the terminator. A length beyond the buffer is refused.
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength) { setLengthChecked(nNewLength); }
    /// Room for at least nLength characters; the text stays.
    void Preallocate(int nLength) { prepareWrite(nLength > GetLength() ? nLength : GetLength()); }
    int GetAllocLength() const noexcept { return head()->capacity; }
    void FreeExtra();
    /// Until UnlockBuffer, copies of this string get buffers of their own.
    LPWSTR LockBuffer();
    void UnlockBuffer();

#ifdef _WIN32
    /// Reads a string of the resources, searched as AfxFindResourceHandle does; FALSE (and an empty text) when missing.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
#endif

    friend CString operator+(const CString& a, const CString& b)
    {
        return concat(a.m_psz, a.GetLength(), b.m_psz, b.GetLength());
    }
    friend CString operator+(const CString& a, LPCWSTR b)
    {
        return concat(a.m_psz, a.GetLength(), b, lengthOf(b));
    }
    friend CString operator+(LPCWSTR a, const CString& b)
    {
        return concat(a, lengthOf(a), b.m_psz, b.GetLength());
    }
    friend CString operator+(const CString& a, wchar_t b)
    {
        return concat(a.m_psz, a.GetLength(), &b, 1);
    }
    friend CString operator+(wchar_t a, const CString& b)
    {
        return concat(&a, 1, b.m_psz, b.GetLength());
    }
    friend CString operator+(const CString& a, char b)
    {
        return a + CString(b);
    }
    friend CString operator+(char a, const CString& b)
    {
        return CString(a) + b;
    }

    void swap(CString& other) noexcept
    {
        wchar_t* const mine = m_psz;
        m_psz = other.m_psz;
        other.m_psz = mine;
    }

private:
    kx::StringHead* head() const noexcept
    {
        return reinterpret_cast<kx::StringHead*>(m_psz) - 1;
    }

    // The constructor took the pointer already: count it, or take a copy of a locked buffer.
    void share()
    {
        std::atomic<int>& refs = head()->refs;
        const int count = refs.load(std::memory_order_relaxed);
        if (count > 0)
        {
            if (KX_SINGLE_THREADED)
            {
                refs.store(count + 1, std::memory_order_relaxed);
            }
            else
            {
                refs.fetch_add(1, std::memory_order_relaxed);
            }
        }
        else if (count < 0)
        {
            cloneLocked();
        }
    }
    void release() noexcept
    {
        std::atomic<int>& refs = head()->refs;
        const int count = refs.load(std::memory_order_acquire);
        if (count > 1)
        {
            if (KX_SINGLE_THREADED)
            {
                refs.store(count - 1, std::memory_order_relaxed);
            }
            else if (refs.fetch_sub(1, std::memory_order_acq_rel) == 1)
            {
                freeHead(head());
            }
        }
        else if (count != 0)
        {
            freeHead(head());
        }
    }

    [[noreturn]] static void throwInvalidArg();
    static int lengthOf(LPCWSTR psz);
    static wchar_t* allocate(int capacity);
    static void freeHead(kx::StringHead* head) noexcept;
    static CString concat(LPCWSTR a, int na, LPCWSTR b, int nb);
    bool owns(LPCWSTR psz) const noexcept;
    void cloneLocked();
    void assignNarrow(LPCSTR psz);
    void assignNarrow(LPCSTR pch, int nLength);
    wchar_t* prepareWrite(int nLength);
    void regrow(int nLength);
    void setLength(int nLength) noexcept;
    void setLengthChecked(int nLength);
    void keepRange(int first, int count);

    static kx::StringNil s_nil;
    wchar_t* m_psz;
};

using CStringW = CString;

inline bool operator==(const CString& a, const CString& b) noexcept
{
    return a.GetString() == b.GetString() || a.Compare(b) == 0;
}
inline bool operator==(const CString& a, LPCWSTR b) noexcept
{
    return a.Compare(b) == 0;
}
inline bool operator==(LPCWSTR a, const CString& b) noexcept
{
    return b.Compare(a) == 0;
}
inline bool operator==(const CString& a, wchar_t b) noexcept
{
    return a.GetLength() == 1 && a.GetString()[0] == b;
}
inline bool operator==(wchar_t a, const CString& b) noexcept
{
    return b == a;
}
inline bool operator!=(const CString& a, const CString& b) noexcept
{
    return !(a == b);
}
inline bool operator!=(const CString& a, LPCWSTR b) noexcept
{
    return !(a == b);
}
inline bool operator!=(LPCWSTR a, const CString& b) noexcept
{
    return !(a == b);
}
inline bool operator!=(const CString& a, wchar_t b) noexcept
{
    return !(a == b);
}
inline bool operator!=(wchar_t a, const CString& b) noexcept
{
    return !(b == a);
}
inline bool operator<(const CString& a, const CString& b) noexcept
{
    return a.Compare(b) < 0;
}
inline bool operator<(const CString& a, LPCWSTR b) noexcept
{
    return a.Compare(b) < 0;
}
inline bool operator<(LPCWSTR a, const CString& b) noexcept
{
    return b.Compare(a) > 0;
}
inline bool operator>(const CString& a, const CString& b) noexcept
{
    return a.Compare(b) > 0;
}
inline bool operator>(const CString& a, LPCWSTR b) noexcept
{
    return a.Compare(b) > 0;
}
inline bool operator>(LPCWSTR a, const CString& b) noexcept
{
    return b.Compare(a) < 0;
}
inline bool operator<=(const CString& a, const CString& b) noexcept
{
    return a.Compare(b) <= 0;
}
inline bool operator<=(const CString& a, LPCWSTR b) noexcept
{
    return a.Compare(b) <= 0;
}
inline bool operator<=(LPCWSTR a, const CString& b) noexcept
{
    return b.Compare(a) >= 0;
}
inline bool operator>=(const CString& a, const CString& b) noexcept
{
    return a.Compare(b) >= 0;
}
inline bool operator>=(const CString& a, LPCWSTR b) noexcept
{
    return a.Compare(b) >= 0;
}
inline bool operator>=(LPCWSTR a, const CString& b) noexcept
{
    return b.Compare(a) <= 0;
}
