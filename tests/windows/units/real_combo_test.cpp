// The cases of the unit combo box that run over a list in memory, with the real control in a real window.
#include <cstring>
#include "UnitHost.h"
#include "support/UnitComboCases.h"

namespace
{
/// The real control in a hidden parent, driven by the notifications that the platform sends.
class RealUnitCombo
{
public:
    /// The platform's edit field takes seconds for a text of 20,000 characters.
    static constexpr std::size_t longestTyped = 3000;

    RealUnitCombo()
    {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), L"units", WS_POPUP, CRect(0, 0, 200, 200), nullptr, 0);
        m_combo.Create(WS_CHILD | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL, CRect(0, 0, 150, 150), &m_parent, 4000);
    }
    ~RealUnitCombo() { m_parent.DestroyWindow(); }
    RealUnitCombo(const RealUnitCombo&) = delete;
    RealUnitCombo& operator=(const RealUnitCombo&) = delete;

    void SetUnit(const CKxUnit& unit)
    {
        m_combo.SetDefaultValues(&m_parent, 4000, 0.0, const_cast<CKxUnit&>(unit), 0.0, 0.0);
    }
    CKxUnit* GetUnit() { return m_combo.GetUnit(); }
    void AddValueSI(double value) { m_combo.AddValueSI(value); }
    int GetValueSI(int index, double& value) const { return m_combo.GetValueSI(index, value); }
    double GetValueSI() const { return m_combo.GetValueSI(); }
    int FindValueSI(double value, int& index) const { return m_combo.FindValueSI(value, index); }
    int AddString(const wchar_t* text) { return m_combo.AddString(text); }
    int InsertString(int index, const wchar_t* text) { return m_combo.InsertString(index, text); }
    int DeleteString(unsigned int index) { return m_combo.DeleteString(index); }
    void ResetContent() { m_combo.ResetContent(); }
    void UpdateControlValue() { m_combo.UpdateControlValue(); }
    void ClearControl() { m_combo.ClearControl(); }
    bool GetVariant() { return m_combo.GetVariant(); }
    void SetVariant(bool variant) { m_combo.SetVariant(variant); }

    void Type(const wchar_t* text)
    {
        m_combo.SetCurSel(-1); // as the first typed character does
        m_combo.SetWindowText(text);
        notify(CBN_EDITCHANGE);
    }
    void Leave() { notify(CBN_KILLFOCUS); }
    void Pick(int index)
    {
        m_combo.SetCurSel(index);
        notify(CBN_SELENDOK);
    }
    void Select(int index) { m_combo.SetCurSel(index); }
    int Told() const { return m_parent.told; }
    int Count() const { return m_combo.GetCount(); }
    int Selected() const { return m_combo.GetCurSel(); }
    CString Text(int index) const
    {
        CString text;
        m_combo.GetLBText(index, text);
        return text;
    }
    CString EditText() const
    {
        CString text;
        m_combo.GetWindowText(text);
        return text;
    }
    std::size_t ValueCount() { return m_combo.values().size(); }
    bool IsPermanent(int index) const { return m_combo.isPermanent(index); }
    bool IsChanged() const { return m_combo.isChanged(); }
    void StealItem(int index) { m_combo.SendMessage(CB_DELETESTRING, static_cast<WPARAM>(index), 0); }

private:
    class Parent : public CWnd
    {
    public:
        int told = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            told += message == WM_KX_UNIT_VALIDATED ? 1 : 0;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    void notify(WORD code)
    {
        m_parent.SendMessage(WM_COMMAND, MAKEWPARAM(4000, code), reinterpret_cast<LPARAM>(m_combo.m_hWnd));
    }

    Parent m_parent;
    OpenUnitCombo m_combo;
};
} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(OverTheRealControl, UnitComboCases, RealUnitCombo);
