// A combo box that hands its characters and clicks on to its owner.
#include "oxa/dropdowns/KxComboBox.h"

#include "../frame/HandedOn.h"

IMPLEMENT_DYNAMIC(CKxComboBox, CComboBox)

BEGIN_MESSAGE_MAP(CKxComboBox, CComboBox)
    // void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
    ON_WM_CHAR()
    // void OnDestroy()
    ON_WM_DESTROY()
    // void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
    ON_WM_KEYDOWN()
    // void OnLButtonDown(UINT nFlags, CPoint point)
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

CKxComboBox::CKxComboBox() = default;

CKxComboBox::~CKxComboBox()
{
    DestroyWindow(); // while the object is whole: OnDestroy releases the edit field
}

void CKxComboBox::SetVariant(bool variant)
{
    m_variant = variant ? 1 : 0;
}

bool CKxComboBox::GetVariant()
{
    return m_variant != 0;
}

void CKxComboBox::SetVisibility(int visibility)
{
    m_visibility = visibility;
}

int CKxComboBox::GetVisibility()
{
    return m_visibility;
}

void CKxComboBox::ClearControl()
{
    SetCurSel(-1);
}

void CKxComboBox::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    SendToOwner(*this, WM_CHAR, nChar, MAKELPARAM(nRepCnt, nFlags));
}

void CKxComboBox::OnDestroy()
{
    if (m_edit.m_hWnd != nullptr)
        m_edit.UnsubclassWindow();
    CComboBox::OnDestroy();
}

void CKxComboBox::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    // A key of the edit field has been taken: the box would give it back to the field, or open and close the list twice.
    if (!IsHandingOn(m_edit.m_hWnd, WM_KEYDOWN, nChar, MAKELPARAM(nRepCnt, nFlags)))
        CComboBox::OnKeyDown(nChar, nRepCnt, nFlags);
}

// A real click at 0, 0 counts as one from the edit field: on purpose.
void CKxComboBox::OnLButtonDown(UINT nFlags, CPoint point)
{
    if (point.x == 0 && point.y == 0 && !SendToOwner(*this, WM_LBUTTONDOWN, nFlags, 0))
        return;
    CComboBox::OnLButtonDown(nFlags, point);
}
