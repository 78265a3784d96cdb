// The window side of the unit combo box: which notifications drive the values, and what the parent and the owner hear.
#include "oxa/units/KxComboBoxUnit.h"

#include <memory>

#include "UnitText.h"
#include "UnitValueList.h"
#include "../frame/HandedOn.h"

static_assert(std::bit_cast<std::uint64_t>(KX_UNIT_NO_VALUE) == std::bit_cast<std::uint64_t>(unitvalues::noValue));

namespace
{

constexpr DWORD tipStyle = 1; // TTS_ALWAYSTIP

/// The list of a combo box, read only. A combo box without window answers as a list that fails.
class ComboReader
{
public:
    explicit ComboReader(const CComboBox& combo) : m_reader(combo) {}

    int GetCount() const { return HasWindow() ? m_reader.GetCount() : unitvalues::listError; }
    int GetCurSel() const { return HasWindow() ? m_reader.GetCurSel() : unitvalues::listError; }
    int FindStringExact(int start, const wchar_t* text) const
    {
        return HasWindow() ? m_reader.FindStringExact(start, text) : unitvalues::listError;
    }
    CString GetEditText() const
    {
        CString text;
        if (HasWindow())
            m_reader.GetWindowText(text);
        return text;
    }
    CString GetItemText(int index) const
    {
        CString text;
        if (HasWindow())
            m_reader.GetLBText(index, text);
        return text;
    }

protected:
    bool HasWindow() const { return m_reader.m_hWnd != nullptr; }

private:
    const CComboBox& m_reader;
};

CWnd* ParentOf(const CWnd& control)
{
    return control.m_hWnd == nullptr ? nullptr : control.GetParent();
}

class ComboList : public ComboReader
{
public:
    explicit ComboList(CComboBox& combo) : ComboReader(combo), m_combo(combo) {}

    int AddString(const wchar_t* text) { return HasWindow() ? m_combo.AddString(text) : unitvalues::listError; }
    int InsertString(int index, const wchar_t* text)
    {
        return HasWindow() ? m_combo.InsertString(index, text) : unitvalues::listError;
    }
    int DeleteString(unsigned int index) { return HasWindow() ? m_combo.DeleteString(index) : unitvalues::listError; }
    void ResetContent()
    {
        if (HasWindow())
            m_combo.ResetContent();
    }
    void SetCurSel(int index)
    {
        if (HasWindow())
            m_combo.SetCurSel(index);
    }
    bool TellValidated() { return SendAndSurvive(m_combo, ParentOf(m_combo), WM_KX_UNIT_VALIDATED, 0, 0); }

private:
    CComboBox& m_combo;
};

static_assert(unitvalues::ListReader<ComboReader> && unitvalues::ListBox<ComboList>);

} // namespace

IMPLEMENT_DYNAMIC(CKxComboBoxUnit, CComboBox)

BEGIN_MESSAGE_MAP(CKxComboBoxUnit, CComboBox)
    // void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
    ON_WM_CHAR()
    // void OnDestroy()
    ON_WM_DESTROY()
    // void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
    ON_WM_KEYDOWN()
    // void OnLButtonDown(UINT nFlags, CPoint point)
    ON_WM_LBUTTONDOWN()
    // void OnSetFocus(CWnd* pOldWnd)
    ON_WM_SETFOCUS()
    // void OnParentNotify(UINT message, LPARAM lParam)
    ON_WM_PARENTNOTIFY()
END_MESSAGE_MAP()

CKxComboBoxUnit::CKxComboBoxUnit()
{
    EnableToolTips(TRUE);
    m_toolTip.Create(this, tipStyle);
}

CKxComboBoxUnit::~CKxComboBoxUnit()
{
    CWnd* const child = ::IsWindow(m_hWnd) ? GetWindow(GW_CHILD) : nullptr;
    if (child != nullptr && m_toolTip.m_hWnd != nullptr)
        m_toolTip.DelTool(child);
    delete m_pUnit;
    m_pUnit = nullptr;
}

// ---- Values

unitvalues::Fields CKxComboBoxUnit::Values()
{
    return {m_pUnit, m_bVariant, m_values, m_permanent, m_bEditChanged};
}

void CKxComboBoxUnit::SetDefaultValues(CWnd* /*parent*/, unsigned int /*id*/, double /*value*/, CKxUnit& unit,
                                       double /*min*/, double /*max*/)
{
    auto copy = std::make_unique<CKxUnit>(unit); // first, since `unit` may be the one held
    delete m_pUnit;
    m_pUnit = copy.release();
}

CKxUnit* CKxComboBoxUnit::GetUnit()
{
    return m_pUnit;
}

void CKxComboBoxUnit::AddValueSI(double value)
{
    ComboList list(*this);
    unitvalues::AddValue(list, Values(), value);
}

int CKxComboBoxUnit::GetValueSI(int index, double& value) const
{
    return unitvalues::ValueAt(ComboReader(*this), m_values, index, value);
}

double CKxComboBoxUnit::GetValueSI() const
{
    return unitvalues::SelectedValue(ComboReader(*this), m_values);
}

int CKxComboBoxUnit::FindValueSI(double value, int& index) const
{
    return unitvalues::FindValue(ComboReader(*this), m_pUnit, value, index);
}

int CKxComboBoxUnit::AddString(const wchar_t* text)
{
    ComboList list(*this);
    return unitvalues::AddText(list, Values(), text);
}

int CKxComboBoxUnit::InsertString(int index, const wchar_t* text)
{
    ComboList list(*this);
    return unitvalues::InsertText(list, Values(), index, text);
}

int CKxComboBoxUnit::DeleteString(unsigned int index)
{
    ComboList list(*this);
    return unitvalues::Delete(list, Values(), index);
}

void CKxComboBoxUnit::ResetContent()
{
    ComboList list(*this);
    unitvalues::Reset(list, Values());
}

int CKxComboBoxUnit::ValidateValue(const CString& text)
{
    return UnitText::MayBeNumber(text) ? 1 : 0;
}

void CKxComboBoxUnit::UpdateControlValue()
{
    ComboList list(*this);
    unitvalues::Commit(list, Values());
}

void CKxComboBoxUnit::ClearControl()
{
    ComboList(*this).SetCurSel(-1);
}

bool CKxComboBoxUnit::GetVariant()
{
    return m_bVariant;
}

void CKxComboBoxUnit::SetVariant(bool variant)
{
    m_bVariant = variant;
}

int CKxComboBoxUnit::GetVisibility()
{
    return m_nVisibility;
}

void CKxComboBoxUnit::SetVisibility(int visibility)
{
    m_nVisibility = visibility;
}

void CKxComboBoxUnit::AddFormatToolTip(CString text)
{
    if (m_hWnd != nullptr && m_toolTip.m_hWnd != nullptr)
        m_toolTip.AddWindowTool(this, text);
}

// ---- Messages

bool CKxComboBoxUnit::TellFocus()
{
    return SendAndSurvive(*this, ParentOf(*this), WM_KX_UNIT_FOCUS, 0, GetDlgCtrlID());
}

BOOL CKxComboBoxUnit::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_COMMAND)
        return CComboBox::OnChildNotify(message, wParam, lParam, pResult);
    const HWND window = m_hWnd;
    switch (HIWORD(wParam))
    {
    case CBN_EDITCHANGE:
        m_bEditChanged = 1;
        break;
    case CBN_SELENDOK:
        unitvalues::TakeSelection(ComboReader(*this), Values());
        break;
    case CBN_KILLFOCUS:
        if (m_bEditChanged != 0)
        {
            UpdateControlValue();
            if (CWnd::FromHandlePermanent(window) != this)
            {
                return FALSE; // the parent ended the control while it heard of the value
            }
        }
        break;
    default:
        break;
    }
    // The combo box's own answer is passed over for commands, on purpose.
    return CWnd::OnChildNotify(message, wParam, lParam, pResult);
}

// The owner gets the character instead of the combo box: a drop-down list is not searched by typing, on purpose.
void CKxComboBoxUnit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    m_nVisibility = 1;
    SendToOwner(*this, WM_CHAR, nChar, MAKELPARAM(nRepCnt, nFlags));
}

void CKxComboBoxUnit::OnDestroy()
{
    CComboBox::OnDestroy();
}

void CKxComboBoxUnit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    m_nVisibility = 1;
    SendToOwner(*this, WM_KEYDOWN, nChar, MAKELPARAM(nRepCnt, nFlags));
}

// Only a synthetic click at the origin is passed on, on purpose.
void CKxComboBoxUnit::OnLButtonDown(UINT nFlags, CPoint point)
{
    if (point.x == 0 && point.y == 0 && !SendToOwner(*this, WM_LBUTTONDOWN, nFlags, MAKELPARAM(point.x, point.y)))
        return;
    CComboBox::OnLButtonDown(nFlags, point);
}

void CKxComboBoxUnit::OnSetFocus(CWnd* pOldWnd)
{
    if (TellFocus())
        CComboBox::OnSetFocus(pOldWnd);
}

void CKxComboBoxUnit::OnParentNotify(UINT message, LPARAM lParam)
{
    if (LOWORD(message) != WM_LBUTTONDOWN || TellFocus())
        CComboBox::OnParentNotify(message, lParam);
}
