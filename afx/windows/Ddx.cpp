// Dialog data exchange: buttons, lists, combo boxes, scroll bars, control objects.
#include <afxwin.h>

CDataExchange::CDataExchange(CWnd* dialog, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog)
{
}

HWND CDataExchange::PrepareCtrl(int id)
{
    HWND item = nullptr;
    m_pDlgWnd->GetDlgItem(id, &item);
    if (item == nullptr)
        AfxThrowNotSupportedException();
    m_idLastControl = static_cast<UINT>(id);
    m_bEditLastControl = FALSE;
    return item;
}

HWND CDataExchange::PrepareEditCtrl(int id)
{
    HWND item = PrepareCtrl(id);
    m_bEditLastControl = TRUE;
    return item;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && m_idLastControl != 0)
    {
        HWND item = nullptr;
        m_pDlgWnd->GetDlgItem(static_cast<int>(m_idLastControl), &item);
        ::SetFocus(item);
        if (m_bEditLastControl)
            ::SendMessage(item, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

void DDX_Check(CDataExchange* exchange, int id, int& value)
{
    HWND item = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
    {
        value = static_cast<int>(::SendMessage(item, BM_GETCHECK, 0, 0));
        return;
    }
    if (value < BST_UNCHECKED || value > BST_INDETERMINATE)
        value = BST_UNCHECKED;
    ::SendMessage(item, BM_SETCHECK, static_cast<WPARAM>(value), 0);
}

void DDX_Radio(CDataExchange* exchange, int id, int& value)
{
    HWND item = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = -1;
    int position = 0;
    do // up to the next item that starts a group
    {
        if ((::SendMessage(item, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0)
        {
            if (!exchange->m_bSaveAndValidate)
                ::SendMessage(item, BM_SETCHECK, position == value ? BST_CHECKED : BST_UNCHECKED, 0);
            else if (::SendMessage(item, BM_GETCHECK, 0, 0) != 0)
                value = position;
            ++position;
        }
        item = ::GetWindow(item, GW_HWNDNEXT);
    } while (item != nullptr && (::GetWindowLongPtr(item, GWL_STYLE) & WS_GROUP) == 0);
}

namespace
{
/// The messages of a list box, or those of a combo box.
struct ListMessages
{
    UINT getIndex, setIndex, textLength, text, select, findExact;
};
constexpr ListMessages listBox = {LB_GETCURSEL, LB_SETCURSEL,    LB_GETTEXTLEN,
                                  LB_GETTEXT,   LB_SELECTSTRING, LB_FINDSTRINGEXACT};
constexpr ListMessages comboBox = {CB_GETCURSEL, CB_SETCURSEL,    CB_GETLBTEXTLEN,
                                   CB_GETLBTEXT, CB_SELECTSTRING, CB_FINDSTRINGEXACT};

void exchangeIndex(CDataExchange* exchange, int id, int& index, const ListMessages& list)
{
    HWND item = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessage(item, list.getIndex, 0, 0));
    else
        ::SendMessage(item, list.setIndex, static_cast<WPARAM>(index), 0);
}

LRESULT selectText(HWND item, const CString& value, const ListMessages& list, bool exact)
{
    const auto text = reinterpret_cast<LPARAM>(value.GetString());
    if (!exact)
        return ::SendMessage(item, list.select, static_cast<WPARAM>(-1), text);
    const LRESULT index = ::SendMessage(item, list.findExact, static_cast<WPARAM>(-1), text);
    return index < 0 ? index : ::SendMessage(item, list.setIndex, static_cast<WPARAM>(index), 0);
}

void exchangeListText(CDataExchange* exchange, int id, CString& value, bool exact)
{
    HWND item = exchange->PrepareCtrl(id);
    if (!exchange->m_bSaveAndValidate)
    {
        selectText(item, value, listBox, exact);
        return;
    }
    value.Empty();
    const LRESULT index = ::SendMessage(item, LB_GETCURSEL, 0, 0);
    const LRESULT length = index < 0 ? -1 : ::SendMessage(item, LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
    if (length <= 0)
        return;
    ::SendMessage(item, LB_GETTEXT, static_cast<WPARAM>(index),
                  reinterpret_cast<LPARAM>(value.GetBufferSetLength(static_cast<int>(length))));
    value.ReleaseBuffer();
}

void exchangeComboText(CDataExchange* exchange, int id, CString& value, bool exact)
{
    HWND item = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
    {
        const int length = ::GetWindowTextLength(item);
        ::GetWindowText(item, value.GetBufferSetLength(length), length + 1);
        value.ReleaseBuffer();
    }
    else if (selectText(item, value, comboBox, exact) == CB_ERR)
    {
        AfxSetWindowText(item, value); // a text that is not in the list, for the edit field
    }
}
} // namespace

void DDX_LBIndex(CDataExchange* exchange, int id, int& index)
{
    exchangeIndex(exchange, id, index, listBox);
}

void DDX_CBIndex(CDataExchange* exchange, int id, int& index)
{
    exchangeIndex(exchange, id, index, comboBox);
}

void DDX_LBString(CDataExchange* exchange, int id, CString& value)
{
    exchangeListText(exchange, id, value, false);
}

void DDX_LBStringExact(CDataExchange* exchange, int id, CString& value)
{
    exchangeListText(exchange, id, value, true);
}

void DDX_CBString(CDataExchange* exchange, int id, CString& value)
{
    exchangeComboText(exchange, id, value, false);
}

void DDX_CBStringExact(CDataExchange* exchange, int id, CString& value)
{
    exchangeComboText(exchange, id, value, true);
}

void DDX_Scroll(CDataExchange* exchange, int id, int& value)
{
    HWND item = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = ::GetScrollPos(item, SB_CTL);
    else
        ::SetScrollPos(item, SB_CTL, value, TRUE);
}

void DDX_Slider(CDataExchange* exchange, int id, int& value)
{
    HWND item = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessage(item, TBM_GETPOS, 0, 0));
    else
        ::SendMessage(item, TBM_SETPOS, TRUE, value);
}

void DDX_Control(CDataExchange* exchange, int id, CWnd& control)
{
    if (control.m_hWnd != nullptr)
        return; // bound at the first pass
    HWND item = exchange->PrepareCtrl(id);
    if (!control.SubclassWindow(item))
        AfxThrowNotSupportedException();
}
