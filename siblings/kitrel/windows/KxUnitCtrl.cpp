// CKxUnitCtrl: an edit field for a number with a unit.
#include "kitrel/KxUnitCtrl.h"

#include <utility>

#include "../resources/resource.h"
#include "kitrel/KxPrompts.h"

namespace
{
constexpr wchar_t c_project[] = L"KITREL";

const UINT c_refresh = ::RegisterWindowMessageW(L"CKxUnitCtrl.Refresh");

CString limitsText(const KxUnitField::Refusal& refusal)
{
    CString text;
    if (!refusal.minimum.IsEmpty() && !refusal.maximum.IsEmpty())
        KxPrompts::AfxFormatString2(text, IDS_VALUE_OUT_OF_RANGE, c_project, refusal.minimum, refusal.maximum);
    else if (!refusal.minimum.IsEmpty())
        KxPrompts::AfxFormatString2(text, IDS_VALUE_TOO_SMALL, c_project, refusal.minimum, nullptr);
    else if (!refusal.maximum.IsEmpty())
        KxPrompts::AfxFormatString2(text, IDS_VALUE_TOO_LARGE, c_project, refusal.maximum, nullptr);
    return text;
}

CString messageOf(const KxUnitField::Refusal& refusal, const CString& unitName)
{
    const CString limits = limitsText(refusal);
    if (refusal.understood)
        return limits;
    CString text;
    const UINT id = unitName.IsEmpty() ? IDS_NUMBER_NOT_READ : IDS_VALUE_NOT_READ;
    KxPrompts::AfxFormatString2(text, id, c_project, refusal.quoted, unitName);
    return limits.IsEmpty() ? text : text + L'\n' + limits;
}

/// The whole text of an edit field is selected, also an empty one.
bool isAllSelected(HWND edit)
{
    DWORD start = 0;
    DWORD end = 0;
    ::SendMessage(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return start == 0 && end == static_cast<DWORD>(::GetWindowTextLength(edit));
}

/// The control changes its own text while this lives. It holds the flag, for a control that ends meanwhile.
class Showing
{
public:
    explicit Showing(std::shared_ptr<bool> flag) : m_flag(std::move(flag)) { *m_flag = true; }
    ~Showing() { *m_flag = false; }
    Showing(const Showing&) = delete;
    Showing& operator=(const Showing&) = delete;

private:
    std::shared_ptr<bool> m_flag;
};

/// Changes the text of an edit field. A parent that hears of it may destroy the window.
void setText(HWND edit, const CString& text)
{
    const bool allSelected = isAllSelected(edit);
    ::SetWindowText(edit, text);
    if (allSelected && ::IsWindow(edit))
        ::SendMessage(edit, EM_SETSEL, 0, -1);
}

void tell(const CString& message)
{
    AfxMessageBox(message, MB_OK | MB_ICONEXCLAMATION);
}
} // namespace

IMPLEMENT_DYNAMIC(CKxUnitCtrl, CEdit)

BEGIN_MESSAGE_MAP(CKxUnitCtrl, CEdit)
    // BOOL OnEnChange()
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &CKxUnitCtrl::OnEnChange)
    // LRESULT OnRefresh(WPARAM, LPARAM)
    ON_REGISTERED_MESSAGE(c_refresh, &CKxUnitCtrl::OnRefresh)
END_MESSAGE_MAP()

CKxUnitCtrl::CKxUnitCtrl(int showSymbol) : m_field(showSymbol != 0), m_showing(std::make_shared<bool>(false)) {}

CKxUnitCtrl::~CKxUnitCtrl() = default;

void CKxUnitCtrl::SetDefaultValues(CWnd* parent, unsigned int id, double value, CKxUnit& unit, double min, double max)
{
    m_field.unit() = unit;
    m_field.setLimits(min, max);
    if (m_hWnd == nullptr && parent->GetSafeHwnd() != nullptr)
        SubclassDlgItem(id, parent);
    ModifyValueSI(value);
}

CKxUnit* CKxUnitCtrl::GetUnit()
{
    requestRefresh();
    return &m_field.unit();
}

void CKxUnitCtrl::SetUnit(const CKxUnit& unit)
{
    const bool accepted = takeOver();
    m_field.unit() = unit;
    if (accepted && m_hasValue)
        ShowValue();
}

void CKxUnitCtrl::ModifyValueSI(double value)
{
    m_field.setValue(value);
    m_hasValue = true;
    ShowValue();
}

double CKxUnitCtrl::GetValueSI() const
{
    return m_hWnd == nullptr ? m_field.value() : m_field.read(windowText()).value;
}

void CKxUnitCtrl::ModifyMinMaxSI(double min, double max)
{
    m_field.setLimits(min, max);
}

void CKxUnitCtrl::GetMinMaxSI(double& min, double& max) const
{
    min = m_field.minimum();
    max = m_field.maximum();
}

BOOL CKxUnitCtrl::IsTextAccepted() const
{
    return m_hWnd == nullptr || !m_field.read(windowText()).isRefused();
}

CString CKxUnitCtrl::GetRefusalText() const
{
    if (IsTextAccepted())
        return {};
    return messageOf(m_field.refusalOf(windowText()), m_field.unit().GetName());
}

BOOL CKxUnitCtrl::UpdateValueSI()
{
    if (takeOver())
        return TRUE;
    const HWND window = m_hWnd;
    tell(GetRefusalText());
    if (::IsWindow(window)) // the object itself may be gone
    {
        ::SetFocus(window);
        ::SendMessage(window, EM_SETSEL, 0, -1);
    }
    return FALSE;
}

void CKxUnitCtrl::ShowValue()
{
    if (m_hWnd == nullptr)
        return;
    const CString text = m_field.show();
    m_strText = text;
    const Showing showing(m_showing);
    setText(m_hWnd, text);
}

void CKxUnitCtrl::OnEnChangeTrapped() {}

void CKxUnitCtrl::PreSubclassWindow()
{
    CEdit::PreSubclassWindow();
    m_refreshPending = false; // what was asked of a window before went with it
    requestRefresh();
}

BOOL CKxUnitCtrl::OnEnChange()
{
    if (!*m_showing)
        OnEnChangeTrapped();
    return FALSE; // the parent hears of it too
}

LRESULT CKxUnitCtrl::OnRefresh(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    m_refreshPending = false;
    const bool untouched = windowText() == m_field.shownText();
    if (m_hasValue && untouched && m_field.valueText() != m_field.shownText())
        ShowValue();
    return 0;
}

CString CKxUnitCtrl::windowText() const
{
    CString text;
    GetWindowText(text);
    return text;
}

bool CKxUnitCtrl::takeOver()
{
    if (m_hWnd == nullptr)
        return true;
    const CString text = windowText();
    if (!m_field.takeOver(text))
        return false;
    m_strText = m_field.shownText();
    return true;
}

void CKxUnitCtrl::requestRefresh()
{
    if (m_hWnd != nullptr && !m_refreshPending)
        m_refreshPending = ::PostMessage(m_hWnd, c_refresh, 0, 0) != FALSE;
}

void DDX_UnitCtrl(CDataExchange* exchange, int id, CKxUnitCtrl& control, const wchar_t* /*format*/)
{
    DDX_Control(exchange, id, control);
    exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate)
    {
        control.ShowValue();
        return;
    }
    if (control.takeOver())
        return;
    const HWND dialog = exchange->m_pDlgWnd->GetSafeHwnd();
    tell(control.GetRefusalText());
    if (!::IsWindow(dialog)) // ended while the user read the message: nothing here may be touched
        AfxThrowUserException();
    exchange->Fail();
}

void DDX_UnitValue(CDataExchange* exchange, int id, CKxUnitCtrl& control, double& valueSI)
{
    if (!exchange->m_bSaveAndValidate)
        control.m_field.setValue(valueSI);
    control.m_hasValue = true;
    DDX_UnitCtrl(exchange, id, control, L"%.*f");
    if (exchange->m_bSaveAndValidate)
        valueSI = control.GetValueSI();
}
