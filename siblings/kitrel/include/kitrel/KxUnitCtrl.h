// CKxUnitCtrl: an edit field for a number with a unit.
#pragma once
#include <afxwin.h>
#include <memory>

#include "kitrel/Export.h"
#include "kitrel/KxUnit.h"
#include "kitrel/KxUnitField.h"

/**
 * An edit field that shows a value in the working unit and holds it in SI.
 *
 * The user may type whatever CKxUnit::String2Double() understands: a bare number in the working unit, a number with
 * the symbol of any unit of the family, feet and inches, sums. The text is judged when the host asks for it, by
 * DDX_UnitCtrl() or UpdateValueSI(), and not when the focus leaves:
 *  - a text that is not understood, or a value out of the limits, is refused with one message that names the limits
 *    in the working unit. The text stays for correction, the value stays as it was;
 *  - an empty text, or the unit's name alone, is no entry: the value stays as it was;
 *  - a text that was not touched stands for the exact value behind it, not for the rounded number that it shows.
 *
 * The control sends no messages of its own; the parent hears those of an edit field.
 */
class KITREL_API CKxUnitCtrl : public CEdit
{
    DECLARE_DYNAMIC(CKxUnitCtrl)
public:
    /// showSymbol: non-zero for the symbol of the unit behind the number.
    explicit CKxUnitCtrl(int showSymbol = 1);
    ~CKxUnitCtrl() override;

    /**
     * Sets unit, limits and value, and shows the value.
     * @param parent, id where the control has no window yet: the dialog item that becomes its window. `parent` may be
     *        null: the value is shown when there is a window
     * @param value in SI; NaN counts as 0; the limits are not asked
     * @param unit is copied
     * @param min, max in SI; see ModifyMinMaxSI()
     */
    void SetDefaultValues(CWnd* parent, unsigned int id, double value, CKxUnit& unit, double min, double max);

    /// The unit inside, never null; the control owns it. What is changed in it counts at once for the text that is read
    /// and written next; a text that was not touched is shown anew when the window next gets its messages. A text that
    /// was typed is not: it is read in the changed unit. SetUnit() takes it over first.
    CKxUnit* GetUnit();
    /// Changes the working unit. A typed value is taken over in the old unit first, then shown in the new one; a text
    /// that is refused stays.
    void SetUnit(const CKxUnit& unit);

    /// Sets the value, in SI, and shows it. NaN counts as 0; the limits are not asked.
    void ModifyValueSI(double value);
    /// What the text says, in SI; the value last accepted where the text is refused or says nothing. Shows no message.
    double GetValueSI() const;

    /// In SI. Exchanged when they come in the wrong order; one that is infinite or NaN is no limit.
    void ModifyMinMaxSI(double min, double max);
    /// No limit is minus or plus infinity.
    void GetMinMaxSI(double& min, double& max) const;

    /// Whether UpdateValueSI() would accept the text.
    BOOL IsTextAccepted() const;
    /// The message with which the present text is refused; empty for one that is accepted.
    CString GetRefusalText() const;
    /// Takes the typed value over. FALSE where it is refused: the user has been told, the control has the focus, the
    /// text is selected.
    BOOL UpdateValueSI();
    /// Shows the value last accepted, in place of whatever the user typed.
    void ShowValue();

    /// Called when the text has changed and the control did not change it itself, before the parent gets EN_CHANGE.
    /// Does nothing; for derived classes.
    virtual void OnEnChangeTrapped();

    /// The text last shown or taken over. A host may compare it with the window's text and write it; the control only
    /// writes it.
    CString m_strText;

protected:
    void PreSubclassWindow() override;
    afx_msg BOOL OnEnChange();
    afx_msg LRESULT OnRefresh(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    friend KITREL_API void DDX_UnitCtrl(CDataExchange* exchange, int id, CKxUnitCtrl& control, const wchar_t* format);
    friend KITREL_API void DDX_UnitValue(CDataExchange* exchange, int id, CKxUnitCtrl& control, double& valueSI);

    CString windowText() const;
    bool takeOver();
    void requestRefresh();

    KxUnitField m_field;
    bool m_hasValue = false; // SetDefaultValues() or ModifyValueSI() was called
    bool m_refreshPending = false;
    std::shared_ptr<bool> m_showing; // outlives the control: what it shows may end it
};

/**
 * Exchange for DoDataExchange(). The first pass gives the control the dialog item as its window. Into the item: shows
 * the control's value. Out of it: takes the text over; a text that is refused ends the exchange, with one message, the
 * focus in the control and its text selected, and UpdateData() answers FALSE.
 * @param format not looked at: the unit's own precision holds
 */
KITREL_API void DDX_UnitCtrl(CDataExchange* exchange, int id, CKxUnitCtrl& control, const wchar_t* format = L"%.*f");

/// The same with a variable of the host, in SI. A text that was not touched gives the variable's own value back exactly.
KITREL_API void DDX_UnitValue(CDataExchange* exchange, int id, CKxUnitCtrl& control, double& valueSI);
