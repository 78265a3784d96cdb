// The page of unit combo boxes.
#include "PageUnits.h"
#include "kitrel/KxUnit.h"
#include "resource.h"
#include "support/RealInput.h"

namespace
{
constexpr UINT_PTR refreshTimer = 1;
constexpr UINT refreshMilliseconds = 100; // values, texts and flags are read live

/// One row of the form: the control id of its entry field, its unit, and values in SI to add.
struct Row
{
    int id;
    unsigned int family, unit, precision;
    enumUNITFORMAT format;
    std::array<double, 3> values;
    const wchar_t* tip;
};

constexpr unsigned int length = 1, force = 2, stress = 6; // unit families

const std::array rows = {
    Row{IDC_UNIT_METRE, length, 0, 3, UNITFORMAT_DECIMAL, {1.0, 2.5, 12.345}, L"Metres, three decimals"},
    Row{IDC_UNIT_MILLIMETRE, length, 3, 1, UNITFORMAT_DECIMAL, {0.008, 0.01, 0.012}, L"Millimetres, one decimal"},
    Row{IDC_UNIT_FEET, length, 5, 4, UNITFORMAT_ARCHITECTURAL, {0.3048, 0.4572, 3.048}, L"Feet and inches"},
    Row{IDC_UNIT_FORCE, force, 2, 2, UNITFORMAT_DECIMAL, {1000.0, 2500.0, 100000.0}, L"Kilonewtons, two decimals"},
    Row{IDC_UNIT_STRESS, stress, 2, 1, UNITFORMAT_DECIMAL, {235e6, 355e6, 500e6}, L"Megapascals, one decimal"},
};

CString canonicalText(const CKxUnit& unit, double value)
{
    wchar_t buffer[CKxUnit::c_nTextSize];
    return unit.Double2String(buffer, value, 1, L"%.*f", 1, 1, 50);
}
} // namespace

BEGIN_MESSAGE_MAP(CPageUnits, CPage)
    // void OnAddValues()
    ON_BN_CLICKED(IDC_ADD_VALUES, &CPageUnits::OnAddValues)
    // void OnSetVariant()
    ON_BN_CLICKED(IDC_SET_VARIANT, &CPageUnits::OnSetVariant)
    // void OnClear()
    ON_BN_CLICKED(IDC_CLEAR, &CPageUnits::OnClear)
    // void OnEnabled()
    ON_BN_CLICKED(IDC_ENABLED, &CPageUnits::OnEnabled)
    // void OnTimer(UINT_PTR id)
    ON_WM_TIMER()
END_MESSAGE_MAP()

CPageUnits::CPageUnits() : CPage(IDD_PAGE_UNITS, L"Units") {}

BOOL CPageUnits::OnInitDialog()
{
    CPage::OnInitDialog();
    for (size_t i = 0; i < rows.size(); ++i)
    {
        const Row& row = rows[i];
        CKxUnit unit(row.family, row.unit, row.precision, L'.', 1.0, 1);
        unit.SetUnitFormat(row.format);
        m_fields[i].SubclassDlgItem(static_cast<UINT>(row.id), this);
        m_fields[i].SetDefaultValues(this, static_cast<unsigned int>(row.id), 0.0, unit, 0.0, 0.0);
        m_fields[i].AddFormatToolTip(row.tip);
    }
    CheckDlgButton(IDC_ENABLED, BST_CHECKED);
    SetTimer(refreshTimer, refreshMilliseconds, nullptr);
    showState();
    return TRUE;
}

void CPageUnits::OnAddValues()
{
    for (size_t i = 0; i < rows.size(); ++i)
    {
        for (const double value : rows[i].values)
            m_fields[i].AddValueSI(value);
        if (m_fields[i].GetCurSel() < 0)
            m_fields[i].SetCurSel(0);
    }
    showState();
}

void CPageUnits::OnSetVariant()
{
    for (CKxComboBoxUnit& field : m_fields)
        field.SetVariant(!field.GetVariant());
    showState();
}

void CPageUnits::OnClear()
{
    for (CKxComboBoxUnit& field : m_fields)
        field.ResetContent();
    showState();
}

void CPageUnits::OnEnabled()
{
    for (CKxComboBoxUnit& field : m_fields)
        field.EnableWindow(IsDlgButtonChecked(IDC_ENABLED) == BST_CHECKED);
}

void CPageUnits::OnTimer(UINT_PTR id)
{
    if (id == refreshTimer)
        showState();
    CPage::OnTimer(id);
}

void CPageUnits::showState()
{
    for (size_t i = 0; i < rows.size(); ++i)
    {
        CKxComboBoxUnit& field = m_fields[i];
        const int index = field.GetCurSel();
        double value = 0.0;
        CString si = L"no value", text = L"-", flags;
        if (index >= 0 && field.GetValueSI(index, value))
        {
            si.Format(L"%.10g", value);
            text = canonicalText(*field.GetUnit(), value);
        }
        flags.Format(L"%s%s, %d item%s", field.GetVariant() ? L"variant, " : L"",
                     field.GetVisibility() ? L"visible" : L"not visible", field.GetCount(),
                     field.GetCount() == 1 ? L"" : L"s");
        const CString shown[] = {si, text, flags};
        for (int k = 0; k < 3; ++k)
        {
            CString old;
            GetDlgItemText(rows[i].id + 1 + k, old);
            if (old != shown[k]) // else the page would flicker
                SetDlgItemText(rows[i].id + 1 + k, shown[k]);
        }
    }
}

void CPageUnits::walk(const TakePicture& take)
{
    take(L"1-empty");
    const wchar_t* texts[] = {L"1.5", L"12 cm", L"1'-6\"", L"2500 N", L"355"};
    for (size_t i = 0; i < rows.size(); ++i)
    {
        m_fields[i].SetFocus();
        typeText(texts[i]);
    }
    take(L"2-typing");
    GetDlgItem(IDC_ADD_VALUES)->SetFocus();
    pumpFor(200);
    take(L"3-committed");
    click(middleOf(IDC_ADD_VALUES));
    m_fields[0].SetFocus();
    m_fields[0].ShowDropDown(TRUE);
    pumpFor(200);
    take(L"4-list-open");
    m_fields[0].ShowDropDown(FALSE);
    click(middleOf(IDC_SET_VARIANT));
    click(middleOf(IDC_ENABLED));
    pumpFor(200);
    take(L"5-variant-disabled");
    click(middleOf(IDC_ENABLED));
    click(middleOf(IDC_SET_VARIANT));
    click(middleOf(IDC_CLEAR));
    pumpFor(200);
    take(L"6-cleared");
}
