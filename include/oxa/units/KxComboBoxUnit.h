// The unit combo box: items are physical quantities, shown in the working unit and held in SI.
#pragma once

#include <afxwin.h>

#include <bit>
#include <cstdint>
#include <vector>

#include "kitrel/KxUnit.h"
#include "oxa/Export.h"
#include "oxa/tooltips/KxToolTip.h"

/// Sent to the parent when the control gets the focus, or when the left button goes down on a child of it (its edit
/// field). wParam is 0, lParam is the control's dialog id.
inline constexpr UINT WM_KX_UNIT_FOCUS = 0xA5B;

/// Sent to the parent when a valid text is being committed, before the list changes; also when the value stays the same.
/// wParam and lParam are 0.
inline constexpr UINT WM_KX_UNIT_VALIDATED = 0xA5C;

/// The answer of `CKxComboBoxUnit::GetValueSI()` when there is no value: -1.7976931348623157e+150. No platform limit:
/// compare with it exactly.
inline constexpr double KX_UNIT_NO_VALUE = std::bit_cast<double>(std::uint64_t{0xDF2192E9EE706E4A});

namespace unitvalues
{
struct Fields;
}

/// A drop-down combo box of physical quantities.
///
/// The user sees and types texts in the working unit, the host reads and writes values in SI. A typed text is committed
/// when the control loses the focus and at no other moment: it is read by the unit, replaced by its canonical text, and
/// looked up in the list; when it is not there it becomes the one typed item, and the typed item before it leaves the
/// list. A text that is no number is replaced, silently, by the value that the unit gives to the empty text.
///
/// Two values are the same value when they print alike at the unit's precision; there is no numeric tolerance.
///
/// The host attaches the control to a dialog item (`SubclassDlgItem`, `DDX_Control`) or creates it, without `CBS_SORT`,
/// and calls `SetDefaultValues` before anything that needs the unit. While no unit is set, the operations that need one do
/// nothing and answer as the list does on failure.
///
/// Keys and characters that reach the combo window itself (a drop-down list without edit field) go to the owner and do
/// not search the list. The owner is the window set by `SetOwner`, else the parent.
///
/// Messages to the parent: `WM_KX_UNIT_FOCUS`, `WM_KX_UNIT_VALIDATED`. The parent may destroy the control while it
/// handles them. What it does to the control meanwhile (a commit, a new focus) does not send it the same message again.
///
///     CKxUnit metre(1, 0, 3, L'.', 1.0, 1);
///     m_length.SubclassDlgItem(IDC_LENGTH, this);
///     m_length.SetDefaultValues(this, IDC_LENGTH, 0.0, metre, 0.0, 0.0);
///     m_length.AddValueSI(2.5);
class OXA_API CKxComboBoxUnit : public CComboBox
{
    DECLARE_DYNAMIC(CKxComboBoxUnit)

public:
    CKxComboBoxUnit();
    ~CKxComboBoxUnit() override;

    /// Takes a private copy of `unit` and deletes the one held; `unit` may be the one held. The other arguments are accepted
    /// and ignored: this control neither creates a window, nor sets a value, nor enforces limits. Called again, the items
    /// keep their texts and values until the host refills the list.
    void SetDefaultValues(CWnd* parent, unsigned int id, double value, CKxUnit& unit, double min, double max);

    /// The unit held, owned by the control; null before `SetDefaultValues`.
    CKxUnit* GetUnit();

    /// Appends the canonical text of `value` (SI) as a permanent item, which keeps the exact value until the user picks it.
    void AddValueSI(double value);

    /// Reads the SI value of item `index` into `value`. Answers 1; or 0, with `value` untouched, when there is none.
    int GetValueSI(int index, double& value) const;

    /// The SI value of the selected item, that is of the last commit; `KX_UNIT_NO_VALUE` when nothing is selected.
    double GetValueSI() const;

    /// Looks up the canonical text of `value` (SI). `index` receives the item's index or -1; answers 1 when found, else 0.
    /// The search begins at item 1 and comes to item 0 last.
    int FindValueSI(double value, int& index) const;

    /// Appends `text` as a permanent item; its value is the text read through the unit. Answers the new index, or a negative
    /// number on failure. Null is the empty text.
    int AddString(const wchar_t* text);

    /// Inserts `text` before item `index`, at the end for -1, as a permanent item; its value is the text read through the
    /// unit. Answers the new index, or a negative number on failure. Null is the empty text.
    int InsertString(int index, const wchar_t* text);

    /// Removes an item with its value. Answers the number of items left, or a negative number on failure.
    int DeleteString(unsigned int index);

    /// Empties the list and the values; the unit stays.
    void ResetContent();

    /// Answers 1 when `text` may be a number, else 0: a cheap test of shape. What the digits mean is the unit's matter.
    int ValidateValue(const CString& text);

    /// Commits the edit field: see the class. Sends `WM_KX_UNIT_VALIDATED` when the text may be a number.
    void UpdateControlValue();

    /// Removes the selection, and with it the text of the edit field. The items stay.
    void ClearControl();

    /// Whether the control shows no single value because several objects with differing values are being edited. A valid
    /// commit clears it; picking an item does not.
    bool GetVariant();
    void SetVariant(bool variant);

    /// The host's own flag, 1 at first; a key that reaches the combo window sets it to 1.
    int GetVisibility();
    void SetVisibility(int visibility);

    /// Shows `text` as the tip of the whole control, which must have its window.
    void AddFormatToolTip(CString text);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnDestroy();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CKxUnit* m_pUnit = nullptr;    ///< owned; a private copy
    bool m_bVariant = false;       ///< no single value is shown
    int m_nVisibility = 1;         ///< host's flag
    std::vector<double> m_values;  ///< the SI value of each item
    std::vector<bool> m_permanent; ///< per item: put in by the host, not typed
    int m_bEditChanged = 0;        ///< the edit field changed since the last commit or selection
    CKxToolTip m_toolTip;

private:
    unitvalues::Fields Values();
    bool TellFocus();
};
