// The documented exception classes, thrown by pointer, with their throwing helpers and the TRY/CATCH macros.
#pragma once

#include "kx/Object.h"

/// Base of all framework exceptions. They are thrown as pointers; the catcher calls Delete().
class KXAFX_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)
public:
    CException();
    /// bAutoDelete: whether Delete() frees the object (TRUE for heap objects).
    explicit CException(BOOL bAutoDelete);
    ~CException() override;

    /// Frees the object if it was made on the heap; a static one stays.
    void Delete();

    /// Copies the message, cut to nMaxError characters with the terminator. FALSE (and an empty text) when there is none.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const;

    /// Shows the message in a message box, where the window half is present; answers the button, or 0 without a display.
    virtual int ReportError(UINT nType = 0, UINT nMessageID = 0);

    BOOL m_bAutoDelete;
};

/// How ReportError reaches the screen: set once by the window half.
using KxReportErrorHandler = int (*)(CException* exception, UINT type, UINT messageId);
KXAFX_API KxReportErrorHandler KxSetReportErrorHandler(KxReportErrorHandler handler);

/// Base of the exceptions that carry nothing but a fixed message.
class KXAFX_API CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)
public:
    CSimpleException();
    explicit CSimpleException(BOOL bAutoDelete);
    /// text: static storage, not copied; null for none.
    CSimpleException(BOOL bAutoDelete, LPCTSTR text);
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

private:
    LPCTSTR m_text = nullptr;
};

class KXAFX_API CMemoryException : public CSimpleException
{
    DECLARE_DYNAMIC(CMemoryException)
public:
    CMemoryException();
    explicit CMemoryException(BOOL bAutoDelete);
};

class KXAFX_API CNotSupportedException : public CSimpleException
{
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    CNotSupportedException();
    explicit CNotSupportedException(BOOL bAutoDelete);
};

class KXAFX_API CResourceException : public CSimpleException
{
    DECLARE_DYNAMIC(CResourceException)
public:
    CResourceException();
    explicit CResourceException(BOOL bAutoDelete);
};

class KXAFX_API CUserException : public CSimpleException
{
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException();
    explicit CUserException(BOOL bAutoDelete);
};

class KXAFX_API CInvalidArgException : public CSimpleException
{
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    CInvalidArgException();
    explicit CInvalidArgException(BOOL bAutoDelete);
};

// Each throws the one static object of its class.
[[noreturn]] KXAFX_API void AFXAPI AfxThrowMemoryException();
[[noreturn]] KXAFX_API void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] KXAFX_API void AFXAPI AfxThrowResourceException();
[[noreturn]] KXAFX_API void AFXAPI AfxThrowUserException();
[[noreturn]] KXAFX_API void AFXAPI AfxThrowInvalidArgException();

/// Holds what a CATCH block caught, and deletes it at the end of the block.
struct AFX_EXCEPTION_LINK
{
    AFX_EXCEPTION_LINK() = default;
    AFX_EXCEPTION_LINK(const AFX_EXCEPTION_LINK&) = delete;
    AFX_EXCEPTION_LINK& operator=(const AFX_EXCEPTION_LINK&) = delete;
    ~AFX_EXCEPTION_LINK()
    {
        if (m_pException != nullptr)
        {
            m_pException->Delete();
        }
    }
    CException* m_pException = nullptr;
};

// A TRY inside a TRY block hides the outer link on purpose.
#define TRY                                                                                                            \
    {                                                                                                                  \
        _Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Wshadow\"")                                  \
            AFX_EXCEPTION_LINK _afxExceptionLink;                                                                      \
        _Pragma("GCC diagnostic pop")                                                                                  \
        try                                                                                                            \
        {

#define CATCH(class_name, e)                                                                                           \
    }                                                                                                                  \
    catch (class_name * e)                                                                                             \
    {                                                                                                                  \
        _afxExceptionLink.m_pException = e;

#define AND_CATCH(class_name, e) CATCH(class_name, e)

#define END_CATCH                                                                                                      \
    }                                                                                                                  \
    }

#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) CATCH(CException, e)
#define END_CATCH_ALL END_CATCH

#define THROW(e) throw e
#define THROW_LAST() (_afxExceptionLink.m_pException = nullptr, throw)
