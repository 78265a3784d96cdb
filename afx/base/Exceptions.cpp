// The exception classes: their texts, their one static object each, and the throwing helpers.
#include "kx/Exceptions.h"

#include <atomic>
#include <new>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)

namespace
{

constexpr LPCTSTR memoryText = L"Out of memory.";
constexpr LPCTSTR notSupportedText = L"An unsupported operation was attempted.";
constexpr LPCTSTR resourceText = L"A required resource was unavailable.";
constexpr LPCTSTR invalidArgText = L"Encountered an improper argument.";

std::atomic<KxReportErrorHandler> reportErrorHandler{nullptr};

// One object per class, never destroyed: a catcher in another module may still hold it while the program ends.
template <class T> [[noreturn]] void throwStatic()
{
    alignas(T) static unsigned char storage[sizeof(T)];
    static T* const exception = new (storage) T(FALSE);
    throw exception;
}

} // namespace

CException::CException() : CException(TRUE) {}
CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}
CException::~CException() = default;

void CException::Delete()
{
    if (m_bAutoDelete != FALSE)
    {
        delete this;
    }
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    if (pnHelpContext != nullptr)
    {
        *pnHelpContext = 0;
    }
    if (lpszError != nullptr && nMaxError != 0)
    {
        *lpszError = L'\0';
    }
    return FALSE;
}

int CException::ReportError(UINT nType, UINT nMessageID)
{
    const KxReportErrorHandler handler = reportErrorHandler.load();
    return handler != nullptr ? handler(this, nType, nMessageID) : 0;
}

KxReportErrorHandler KxSetReportErrorHandler(KxReportErrorHandler handler)
{
    return reportErrorHandler.exchange(handler);
}

CSimpleException::CSimpleException() : CSimpleException(TRUE) {}
CSimpleException::CSimpleException(BOOL bAutoDelete) : CSimpleException(bAutoDelete, nullptr) {}
CSimpleException::CSimpleException(BOOL bAutoDelete, LPCTSTR text) : CException(bAutoDelete), m_text(text) {}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
    if (m_text == nullptr || lpszError == nullptr || nMaxError == 0)
    {
        return FALSE;
    }
    UINT i = 0;
    for (; i + 1 < nMaxError && m_text[i] != L'\0'; ++i)
    {
        lpszError[i] = m_text[i];
    }
    lpszError[i] = L'\0';
    return TRUE;
}

CMemoryException::CMemoryException() : CMemoryException(TRUE) {}
CMemoryException::CMemoryException(BOOL bAutoDelete) : CSimpleException(bAutoDelete, memoryText) {}
CNotSupportedException::CNotSupportedException() : CNotSupportedException(TRUE) {}
CNotSupportedException::CNotSupportedException(BOOL bAutoDelete) : CSimpleException(bAutoDelete, notSupportedText) {}
CResourceException::CResourceException() : CResourceException(TRUE) {}
CResourceException::CResourceException(BOOL bAutoDelete) : CSimpleException(bAutoDelete, resourceText) {}
CUserException::CUserException() : CUserException(TRUE) {}
CUserException::CUserException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
CInvalidArgException::CInvalidArgException() : CInvalidArgException(TRUE) {}
CInvalidArgException::CInvalidArgException(BOOL bAutoDelete) : CSimpleException(bAutoDelete, invalidArgText) {}

void AFXAPI AfxThrowMemoryException()
{
    throwStatic<CMemoryException>();
}

void AFXAPI AfxThrowNotSupportedException()
{
    throwStatic<CNotSupportedException>();
}

void AFXAPI AfxThrowResourceException()
{
    throwStatic<CResourceException>();
}

void AFXAPI AfxThrowUserException()
{
    throwStatic<CUserException>();
}

void AFXAPI AfxThrowInvalidArgException()
{
    throwStatic<CInvalidArgException>();
}
