// The operations of the smart combo box on format, values, selection and text, handed to its logic.
#include <utility>
#include "SmartComboWindow.h"

// ---- The format

void CKxSmartComboBox::SetFormat(CString format)
{
    SmartComboCall(*this)->SetFormat(std::move(format));
}

CString CKxSmartComboBox::GetFormat() const
{
    return m_data.formatText;
}

void CKxSmartComboBox::SetFormatEmpty()
{
    SmartComboCall(*this)->SetFormatEmpty();
}

void CKxSmartComboBox::ResetSelectText()
{
    SmartComboCall(*this)->ResetSelectText();
}

void CKxSmartComboBox::GetFeatureFormat(CString& separator, CList<int, int>& values)
{
    SmartComboCall(*this)->GetFeatureFormat(separator, values);
}

int CKxSmartComboBox::ValidFreeFormat(CString text, int apply)
{
    return SmartComboCall(*this)->ValidFreeFormat(text, apply);
}

void CKxSmartComboBox::SetListFilterString(const CStringList& formats)
{
    SmartComboCall(*this)->SetListFilterString(formats);
}

void CKxSmartComboBox::GetListFilterString(CStringList& formats) const
{
    RememberedValues::Append(formats, m_data.filterList);
}

// ---- Values

void CKxSmartComboBox::AddStringCombo(CString value)
{
    SmartComboCall(*this)->AddStringCombo(value);
}

void CKxSmartComboBox::DeleteStringCombo(unsigned int index)
{
    SmartComboCall(*this)->DeleteStringCombo(index);
}

void CKxSmartComboBox::DeleteStringCombo(CString text)
{
    SmartComboCall(*this)->DeleteStringCombo(text);
}

void CKxSmartComboBox::ResetContent()
{
    SmartComboCall(*this)->ResetContent();
}

void CKxSmartComboBox::SetStringCombo(CStringList& values)
{
    SmartComboCall(*this)->SetStringCombo(values);
}

void CKxSmartComboBox::GetStringCombo(CStringList& out, int& index, int validate, int message)
{
    SmartComboCall(*this)->GetStringCombo(out, index, validate, message);
}

void CKxSmartComboBox::SortCombo()
{
    SmartComboCall(*this)->SortCombo();
}

// ---- Selection and text

int CKxSmartComboBox::GetCurSel() const
{
    return m_combo.m_hWnd == nullptr ? smartcombo::none : m_combo.GetCurSel();
}

int CKxSmartComboBox::SetCurSel(int index)
{
    return SmartComboCall(*this)->SetCurSel(index);
}

int CKxSmartComboBox::SetCurSel(CString text)
{
    return SmartComboCall(*this)->SetCurSel(text);
}

void CKxSmartComboBox::GetSelectText(CString& text)
{
    SmartComboCall(*this)->GetSelectText(text);
}

void CKxSmartComboBox::GetSelectText(CString& text, bool& valid)
{
    SmartComboCall(*this)->GetSelectText(text, valid);
}

void CKxSmartComboBox::SetSelectText(CString text)
{
    SmartComboCall(*this)->SetSelectText(text);
}

void CKxSmartComboBox::GetText(CString& text, int validate, int& valid, int& toggled)
{
    SmartComboCall(*this)->GetText(text, validate, valid, toggled);
}

void CKxSmartComboBox::ClearControl()
{
    SmartComboCall(*this)->ClearControl();
}

bool CKxSmartComboBox::getPatternAndValidate(CString& text)
{
    return SmartComboCall(*this)->getPatternAndValidate(text);
}

int CKxSmartComboBox::UpdateBitmapFromText()
{
    return SmartComboCall(*this)->UpdateBitmapFromText();
}

// ---- Switches

void CKxSmartComboBox::SetAutoAddOnSelChange(int add)
{
    m_data.autoAdd = add;
}

void CKxSmartComboBox::SetUppercase(int uppercase)
{
    m_data.uppercase = uppercase;
}

int CKxSmartComboBox::GetUppercase() const
{
    return m_data.uppercase;
}

void CKxSmartComboBox::SetMask(CString mask)
{
    m_data.mask = std::move(mask);
}

CString CKxSmartComboBox::GetMask() const
{
    return m_data.mask;
}

void CKxSmartComboBox::SetSort(int sort)
{
    m_data.sort = sort;
}

int CKxSmartComboBox::GetSort() const
{
    return m_data.sort;
}

void CKxSmartComboBox::SetVariant(int variant)
{
    m_data.variant = variant;
    if (m_hWnd != nullptr)
        Invalidate();
}

int CKxSmartComboBox::GetVariant() const
{
    return m_data.variant;
}

void CKxSmartComboBox::SetVisibility(int visibility)
{
    m_data.visibility = visibility;
}

int CKxSmartComboBox::GetVisibility() const
{
    return m_data.visibility;
}

unsigned int CKxSmartComboBox::GetCurrentBitmap() const
{
    return m_data.currentBitmap;
}

void CKxSmartComboBox::SetHelpPath(CString path)
{
    m_helpPath = std::move(path);
}

void CKxSmartComboBox::SetWhatsThisHelpPath(CString path)
{
    m_whatsThisHelpPath = std::move(path);
}

// ---- For derived classes

void CKxSmartComboBox::ButtonHasChange(int /*bitmap*/) {}

void CKxSmartComboBox::BitmapButtonClick() {}

void CKxSmartComboBox::LeftBitmapButtonClick() {}

void CKxSmartComboBox::RightBitmapButtonClick() {}

CKxUnit* CKxSmartComboBox::GetUnit()
{
    return nullptr;
}
