// An edit field that hands its keys and clicks on to its owner: what comes first, what is refused.
#include "oxa/dropdowns/KxEdit.h"

#include "../frame/HandedOn.h"
#include "../frame/Surviving.h"

IMPLEMENT_DYNAMIC(CKxEdit, CEdit)

BEGIN_MESSAGE_MAP(CKxEdit, CEdit)
    // void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
    ON_WM_CHAR()
    // void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
    ON_WM_KEYDOWN()
    // void OnLButtonDown(UINT nFlags, CPoint point)
    ON_WM_LBUTTONDOWN()
    // void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags)
    ON_WM_SYSCHAR()
    // HBRUSH CtlColor(CDC* pDC, UINT nCtlColor)
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

CKxEdit::CKxEdit() = default;
CKxEdit::~CKxEdit() = default;

void CKxEdit::SetNotAllowedChars(CString characters)
{
    m_notAllowedChars = characters;
}

void CKxEdit::SetVariant(bool variant)
{
    m_variant = variant ? 1 : 0;
}

bool CKxEdit::GetVariant()
{
    return m_variant != 0;
}

void CKxEdit::SetVisibility(int visibility)
{
    m_visibility = visibility;
}

int CKxEdit::GetVisibility()
{
    return m_visibility;
}

void CKxEdit::ClearControl()
{
    const HWND field = m_hWnd; // the parent hears of the change, and may end the object
    ::SendMessageW(field, EM_SETSEL, 0, -1);
    ::SendMessageW(field, EM_SCROLLCARET, 0, 0);
    ::SendMessageW(field, WM_CLEAR, 0, 0);
    ::SendMessageW(field, EM_SETMODIFY, FALSE, 0);
}

bool CKxEdit::IsAllowed(UINT character) const
{
    const auto one = static_cast<wchar_t>(character);
    return one == 0 || m_notAllowedChars.Find(one) < 0;
}

void CKxEdit::DoThenTellOwner(UINT message, WPARAM wParam, LPARAM lParam, bool isTaken)
{
    if (IsHandingOn(m_hWnd, message, wParam, lParam))
        return;
    const Surviving here(*this);
    if (isTaken)
        Default();
    if (here)
        SendToOwner(*this, message, wParam, lParam);
}

void CKxEdit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    DoThenTellOwner(WM_CHAR, nChar, MAKELPARAM(nRepCnt, nFlags), IsAllowed(nChar));
}

void CKxEdit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    DoThenTellOwner(WM_KEYDOWN, nChar, MAKELPARAM(nRepCnt, nFlags), true);
}

void CKxEdit::OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    DoThenTellOwner(WM_SYSCHAR, nChar, MAKELPARAM(nRepCnt, nFlags), true);
}

// The owner hears first, and of no place: a click at 0, 0 is how it knows that the click comes from here.
void CKxEdit::OnLButtonDown(UINT nFlags, CPoint point)
{
    if (!IsHandingOn(m_hWnd, WM_LBUTTONDOWN, nFlags, 0) && SendToOwner(*this, WM_LBUTTONDOWN, nFlags, 0))
        CEdit::OnLButtonDown(nFlags, point);
}

HBRUSH CKxEdit::CtlColor(CDC* /*pDC*/, UINT /*nCtlColor*/)
{
    return nullptr;
}
