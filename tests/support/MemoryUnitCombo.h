// The values of the unit combo box over a list in memory, with the operations that the control has.
#pragma once
#include <cstddef>
#include <vector>
#include "support/MemoryListBox.h"
#include "units/UnitValueList.h"

class MemoryUnitCombo
{
public:
    MemoryUnitCombo() = default;
    ~MemoryUnitCombo() { delete m_pUnit; }
    MemoryUnitCombo(const MemoryUnitCombo&) = delete;
    MemoryUnitCombo& operator=(const MemoryUnitCombo&) = delete;

    void SetUnit(const CKxUnit& unit)
    {
        CKxUnit* copy = new CKxUnit(unit);
        delete m_pUnit;
        m_pUnit = copy;
    }
    CKxUnit* GetUnit() { return m_pUnit; }

    void AddValueSI(double value) { unitvalues::AddValue(list, fields(), value); }
    int GetValueSI(int index, double& value) const { return unitvalues::ValueAt(list, m_values, index, value); }
    double GetValueSI() const { return unitvalues::SelectedValue(list, m_values); }
    int FindValueSI(double value, int& index) const { return unitvalues::FindValue(list, m_pUnit, value, index); }
    int AddString(const wchar_t* text) { return unitvalues::AddText(list, fields(), text); }
    int InsertString(int index, const wchar_t* text) { return unitvalues::InsertText(list, fields(), index, text); }
    int DeleteString(unsigned int index) { return unitvalues::Delete(list, fields(), index); }
    void ResetContent() { unitvalues::Reset(list, fields()); }
    void UpdateControlValue() { unitvalues::Commit(list, fields()); }
    void ClearControl() { list.SetCurSel(-1); }
    bool GetVariant() const { return m_bVariant; }
    void SetVariant(bool variant) { m_bVariant = variant; }

    // What a user does, and what a test sees.
    void Type(const wchar_t* text)
    {
        list.Type(text);
        m_bEditChanged = 1;
    }
    void Leave()
    {
        if (m_bEditChanged != 0)
            UpdateControlValue();
    }
    void Pick(int index)
    {
        list.SetCurSel(index);
        unitvalues::TakeSelection(list, fields());
    }
    void Select(int index) { list.SetCurSel(index); }
    int Told() const { return list.told; }
    int Count() const { return list.GetCount(); }
    int Selected() const { return list.GetCurSel(); }
    CString Text(int index) const { return list.GetItemText(index); }
    CString EditText() const { return list.GetEditText(); }
    std::size_t ValueCount() const { return m_values.size(); }
    bool IsPermanent(int index) const { return m_permanent.at(static_cast<std::size_t>(index)); }
    bool IsChanged() const { return m_bEditChanged != 0; }
    /// Takes an item out of the list behind the control's back.
    void StealItem(int index) { list.DeleteString(static_cast<unsigned int>(index)); }

    static constexpr std::size_t longestTyped = 100000;
    MemoryListBox list;

private:
    unitvalues::Fields fields() { return {m_pUnit, m_bVariant, m_values, m_permanent, m_bEditChanged}; }

    CKxUnit* m_pUnit = nullptr;
    bool m_bVariant = false;
    std::vector<double> m_values;
    std::vector<bool> m_permanent;
    int m_bEditChanged = 0;
};
