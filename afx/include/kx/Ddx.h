// Dialog data exchange and validation.
#pragma once
#include "kx/Wnd.h"

/// One pass of UpdateData. Passed to every DDX_ and DDV_ function.
class KXAFX_API CDataExchange
{
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate);

    BOOL m_bSaveAndValidate; ///< TRUE: from the items into the variables
    CWnd* m_pDlgWnd;
    UINT m_idLastControl = 0; ///< gets the focus when a value is refused
    BOOL m_bEditLastControl = FALSE;

    /// The item's window; raises CNotSupportedException where there is none.
    HWND PrepareCtrl(int id);
    HWND PrepareEditCtrl(int id);
    /// Refuses the value: the last prepared item gets the focus; raises CUserException.
    [[noreturn]] void Fail();
};

// Texts: numbers are read with blanks around them; a text that is no number of the type is refused with a message.
KXAFX_API void DDX_Text(CDataExchange* exchange, int id, BYTE& value);
KXAFX_API void DDX_Text(CDataExchange* exchange, int id, short& value);
KXAFX_API void DDX_Text(CDataExchange* exchange, int id, int& value);
KXAFX_API void DDX_Text(CDataExchange* exchange, int id, UINT& value);
KXAFX_API void DDX_Text(CDataExchange* exchange, int id, long& value);
KXAFX_API void DDX_Text(CDataExchange* exchange, int id, DWORD& value);
KXAFX_API void DDX_Text(CDataExchange* exchange, int id, LONGLONG& value);
KXAFX_API void DDX_Text(CDataExchange* exchange, int id, ULONGLONG& value);
KXAFX_API void DDX_Text(CDataExchange* exchange, int id, CString& value);
KXAFX_API void DDX_Text(CDataExchange* exchange, int id, LPTSTR value, int maxLength);
KXAFX_API void DDX_Text(CDataExchange* exchange, int id, float& value);
KXAFX_API void DDX_Text(CDataExchange* exchange, int id, double& value);

KXAFX_API void DDX_Check(CDataExchange* exchange, int id, int& value);
/// `id` is the group's first radio button; the value is the position of the checked one, -1 for none.
KXAFX_API void DDX_Radio(CDataExchange* exchange, int id, int& value);
KXAFX_API void DDX_LBString(CDataExchange* exchange, int id, CString& value);
KXAFX_API void DDX_LBStringExact(CDataExchange* exchange, int id, CString& value);
KXAFX_API void DDX_LBIndex(CDataExchange* exchange, int id, int& index);
KXAFX_API void DDX_CBString(CDataExchange* exchange, int id, CString& value);
KXAFX_API void DDX_CBStringExact(CDataExchange* exchange, int id, CString& value);
KXAFX_API void DDX_CBIndex(CDataExchange* exchange, int id, int& index);
KXAFX_API void DDX_Scroll(CDataExchange* exchange, int id, int& value);
KXAFX_API void DDX_Slider(CDataExchange* exchange, int id, int& value);
/// Subclasses the item with the object at the first pass.
KXAFX_API void DDX_Control(CDataExchange* exchange, int id, CWnd& control);

// Validation: a value outside is refused with a message that names the limits. Call right behind the DDX_ function.
KXAFX_API void DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE minimum, BYTE maximum);
KXAFX_API void DDV_MinMaxShort(CDataExchange* exchange, short value, short minimum, short maximum);
KXAFX_API void DDV_MinMaxInt(CDataExchange* exchange, int value, int minimum, int maximum);
KXAFX_API void DDV_MinMaxLong(CDataExchange* exchange, long value, long minimum, long maximum);
KXAFX_API void DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT minimum, UINT maximum);
KXAFX_API void DDV_MinMaxDWord(CDataExchange* exchange, DWORD value, DWORD minimum, DWORD maximum);
KXAFX_API void DDV_MinMaxFloat(CDataExchange* exchange, const float& value, float minimum, float maximum);
KXAFX_API void DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double minimum, double maximum);
/// Limits the edit's length when it is filled, refuses a longer text when it is read.
KXAFX_API void DDV_MaxChars(CDataExchange* exchange, const CString& value, int maxChars);
