// CString: the buffer, its sharing, and the operations that copy or grow it.
#include "kx/String.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <functional>
#include <new>

#include "kx/Exceptions.h"
#include "kx/StringA.h"

namespace
{

// Far below INT_MAX, so that no sum of a few lengths overflows.
constexpr int maxLength = (1 << 29) - 64;

void copyChars(wchar_t* to, const wchar_t* from, int count) noexcept
{
    if (count > 0)
    {
        std::wmemcpy(to, from, static_cast<std::size_t>(count));
    }
}

int addLengths(int a, int b)
{
    if (b > maxLength - a)
    {
        AfxThrowMemoryException();
    }
    return a + b;
}

} // namespace

constinit kx::StringNil CString::s_nil = {{0, 0, 0}, {L'\0'}};

void CString::throwInvalidArg()
{
    AfxThrowInvalidArgException();
}

int CString::lengthOf(LPCWSTR psz)
{
    const std::size_t length = psz != nullptr ? std::wcslen(psz) : 0;
    if (length > static_cast<std::size_t>(maxLength))
    {
        AfxThrowMemoryException();
    }
    return static_cast<int>(length);
}

// An empty text with room for capacity characters, owned once.
wchar_t* CString::allocate(int capacity)
{
    if (capacity > maxLength)
    {
        AfxThrowMemoryException();
    }
    const int rounded = capacity | 7; // with the terminator a multiple of eight characters
    const std::size_t bytes = sizeof(kx::StringHead) + (static_cast<std::size_t>(rounded) + 1) * sizeof(wchar_t);
    void* const block = std::malloc(bytes);
    if (block == nullptr)
    {
        AfxThrowMemoryException();
    }
    auto* const head = new (block) kx::StringHead{1, 0, rounded};
    auto* const text = reinterpret_cast<wchar_t*>(head + 1);
    text[0] = L'\0';
    return text;
}

void CString::freeHead(kx::StringHead* head) noexcept
{
    std::free(head);
}

void CString::cloneLocked()
{
    const wchar_t* const from = m_psz;
    const int length = GetLength();
    m_psz = length > 0 ? allocate(length) : s_nil.text;
    if (length > 0)
    {
        copyChars(m_psz, from, length);
        setLength(length);
    }
}

bool CString::owns(LPCWSTR psz) const noexcept
{
    const std::less<const wchar_t*> before;
    return psz != nullptr && !before(psz, m_psz) && !before(m_psz + head()->capacity, psz);
}

void CString::setLength(int nLength) noexcept
{
    head()->length = nLength;
    m_psz[nLength] = L'\0';
}

// A buffer that nobody else sees, with room for nLength characters; text and length stay.
wchar_t* CString::prepareWrite(int nLength)
{
    const kx::StringHead* const h = head();
    const int refs = h->refs.load(std::memory_order_acquire);
    if (refs == 0 || refs > 1 || h->capacity < nLength)
    {
        regrow(nLength);
    }
    return m_psz;
}

void CString::regrow(int nLength)
{
    const kx::StringHead* const old = head();
    const int refs = old->refs.load(std::memory_order_relaxed);
    const int length = old->length;
    int wanted = nLength > length ? nLength : length;
    if (refs == 1 && wanted < maxLength / 2)
    {
        const int grown = old->capacity + old->capacity / 2;
        wanted = wanted > grown ? wanted : grown;
    }
    wchar_t* const fresh = allocate(wanted);
    copyChars(fresh, m_psz, length);
    release();
    m_psz = fresh;
    setLength(length);
    if (refs < 0)
    {
        head()->refs.store(refs, std::memory_order_relaxed);
    }
}

void CString::setLengthChecked(int nLength)
{
    if (nLength < 0 || nLength > head()->capacity)
    {
        AfxThrowInvalidArgException();
    }
    if (head()->capacity > 0)
    {
        prepareWrite(nLength);
        setLength(nLength);
    }
}

CString::CString(wchar_t ch, int nRepeat) : CString()
{
    if (nRepeat > 0)
    {
        m_psz = allocate(nRepeat);
        std::wmemset(m_psz, ch, static_cast<std::size_t>(nRepeat));
        setLength(nRepeat);
    }
}

CString::CString(char ch, int nRepeat) : CString(nRepeat > 0 ? kx::widen(&ch, 1).GetAt(0) : L'\0', nRepeat) {}

CString::CString(LPCSTR pch, int nLength) : CString()
{
    if (nLength < 0 || (pch == nullptr && nLength > 0))
    {
        AfxThrowInvalidArgException();
    }
    assignNarrow(pch, nLength);
}

void CString::assignNarrow(LPCSTR psz)
{
    const std::size_t length = psz != nullptr ? std::strlen(psz) : 0;
    if (length > static_cast<std::size_t>(maxLength))
    {
        AfxThrowMemoryException();
    }
    assignNarrow(psz, static_cast<int>(length));
}

void CString::assignNarrow(LPCSTR pch, int nLength)
{
    *this = kx::widen(pch, nLength);
}

CString& CString::operator=(LPCSTR psz)
{
    assignNarrow(psz);
    return *this;
}

CString& CString::operator=(char ch)
{
    assignNarrow(&ch, 1);
    return *this;
}

void CString::SetString(LPCWSTR psz)
{
    SetString(psz, lengthOf(psz));
}

void CString::SetString(LPCWSTR psz, int nLength)
{
    if (nLength < 0 || (psz == nullptr && nLength > 0))
    {
        AfxThrowInvalidArgException();
    }
    if (nLength == 0)
    {
        Empty();
    }
    else if (owns(psz))
    {
        const int first = static_cast<int>(psz - m_psz);
        keepRange(first, nLength);
    }
    else
    {
        const kx::StringHead* const h = head();
        const int refs = h->refs.load(std::memory_order_acquire);
        if (refs == 0 || refs > 1)
        { // nothing of the old text is needed: no copy of it
            wchar_t* const fresh = allocate(nLength);
            release();
            m_psz = fresh;
        }
        else
        {
            prepareWrite(nLength);
        }
        copyChars(m_psz, psz, nLength);
        setLength(nLength);
    }
}

// The text becomes its own part; a part that reaches behind the text is cut.
void CString::keepRange(int first, int count)
{
    const int length = GetLength();
    first = first < 0 ? 0 : (first > length ? length : first);
    count = count < 0 ? 0 : (count > length - first ? length - first : count);
    if (count == 0)
    {
        Empty();
    }
    else if (first != 0 || count != length)
    {
        prepareWrite(length);
        std::wmemmove(m_psz, m_psz + first, static_cast<std::size_t>(count));
        setLength(count);
    }
}

void CString::SetAt(int iChar, wchar_t ch)
{
    if (iChar < 0 || iChar >= GetLength())
    {
        AfxThrowInvalidArgException();
    }
    prepareWrite(GetLength())[iChar] = ch;
}

void CString::Append(LPCWSTR psz)
{
    Append(psz, lengthOf(psz));
}

void CString::Append(LPCWSTR psz, int nLength)
{
    if (nLength < 0 || (psz == nullptr && nLength > 0))
    {
        AfxThrowInvalidArgException();
    }
    const int length = GetLength();
    const bool own = owns(psz);
    const auto offset = own ? psz - m_psz : 0;
    if (own && nLength > length - offset)
    {
        nLength = offset < length ? length - static_cast<int>(offset) : 0;
    }
    if (nLength > 0)
    {
        wchar_t* const text = prepareWrite(addLengths(length, nLength));
        copyChars(text + length, own ? text + offset : psz, nLength);
        setLength(length + nLength);
    }
}

void CString::Append(const CString& src)
{
    if (IsEmpty() && head()->refs.load(std::memory_order_relaxed) == 0)
    {
        *this = src;
    }
    else
    {
        Append(src.m_psz, src.GetLength());
    }
}

void CString::AppendChar(wchar_t ch)
{
    const int length = GetLength();
    prepareWrite(addLengths(length, 1))[length] = ch;
    setLength(length + 1);
}

CString CString::concat(LPCWSTR a, int na, LPCWSTR b, int nb)
{
    CString result;
    const int length = addLengths(na, nb);
    if (length > 0)
    {
        result.m_psz = allocate(length);
        copyChars(result.m_psz, a, na);
        copyChars(result.m_psz + na, b, nb);
        result.setLength(length);
    }
    return result;
}

LPWSTR CString::GetBuffer(int nMinBufLength)
{
    if (nMinBufLength < 0)
    {
        AfxThrowInvalidArgException();
    }
    return prepareWrite(nMinBufLength);
}

LPWSTR CString::GetBufferSetLength(int nLength)
{
    wchar_t* const buffer = GetBuffer(nLength);
    const int old = GetLength();
    if (nLength > old)
    { // defined contents, also when the caller writes less than announced
        std::wmemset(buffer + old, L'\0', static_cast<std::size_t>(nLength - old));
    }
    setLength(nLength);
    return buffer;
}

void CString::ReleaseBuffer(int nNewLength)
{
    if (nNewLength == -1)
    {
        nNewLength = 0;
        while (nNewLength < head()->capacity && m_psz[nNewLength] != L'\0')
        {
            ++nNewLength;
        }
    }
    setLengthChecked(nNewLength);
}

void CString::FreeExtra()
{
    const int length = GetLength();
    if (head()->refs.load(std::memory_order_relaxed) != 1 || head()->capacity == (length | 7))
    {
        return;
    }
    if (length == 0)
    {
        Empty();
    }
    else
    {
        wchar_t* const fresh = allocate(length);
        copyChars(fresh, m_psz, length);
        release();
        m_psz = fresh;
        setLength(length);
    }
}

LPWSTR CString::LockBuffer()
{
    wchar_t* const buffer = prepareWrite(GetLength());
    std::atomic<int>& refs = head()->refs;
    const int count = refs.load(std::memory_order_relaxed);
    refs.store(count > 0 ? -1 : (count > INT_MIN ? count - 1 : count), std::memory_order_relaxed);
    return buffer;
}

void CString::UnlockBuffer()
{
    std::atomic<int>& refs = head()->refs;
    const int count = refs.load(std::memory_order_relaxed);
    if (count < 0)
    {
        refs.store(count == -1 ? 1 : count + 1, std::memory_order_relaxed);
    }
}
