// CKxSmartComboBox: a combo box that remembers values which fit a format, with "+" and "-" and pictures beside it.
#pragma once

#include <afxcoll.h>
#include <afxtempl.h>
#include <afxwin.h>

#include <functional>

#include "kitrel/KxUnit.h"
#include "oxa/Export.h"
#include "oxa/buttons/KxBitmapButton.h"
#include "oxa/buttons/KxButtonCombo.h"
#include "oxa/dropdowns/KxComboBox.h"
#include "oxa/formats/SmartComboData.h"
#include "oxa/formats/SmartComboMessages.h"
#include "oxa/tooltips/KxToolTip.h"

class CKxDialogBarEx;
class SmartComboWindow;
struct SmartComboCall;
struct SmartComboLayout;

/// An input field with a list of remembered values. The user types a value or picks one; a text that fits joins the list,
/// by "+" or by picking another item. "-" deletes the picked value after a question.
///
/// The control has one current format or none. Without one it is free, and a text may fit any of the alternative formats
/// (`SetListFilterString`, or those that come with pictures). Under a format the field begins with its placeholders.
/// `CKxSemantic` says how formats are written. Keys are not followed: a text is judged when it is to be added or read.
///
/// A dialog template holds the control by its window class; the object is made with the window and deleted with it:
///
///     CKxSmartComboBox::RegisterWndClass(AfxGetInstanceHandle());              // once, before the dialog opens
///     CONTROL "", IDC_SECTION, "CKXSMARTCOMBOBOX", WS_TABSTOP, 8, 8, 120, 14    // in the template
///     auto* section = static_cast<CKxSmartComboBox*>(GetDlgItem(IDC_SECTION)); // from OnInitDialog on
///
/// An object of a derived class is made by `new`, gets its window by `Create` with the name of the class, and is deleted
/// with it as well. With the extended style `WS_EX_CONTROLPARENT` the user reaches the buttons by Tab.
///
/// The field shows the first 10,000 characters of a text. A longer one counts whole wherever the control reads the field,
/// until the user edits it: what he sees is the text then.
///
/// The parent hears of it by the messages in SmartComboMessages.h, and may destroy the control while it handles one, as may
/// whoever loses the focus to it. Without a window nothing is shown and nothing is sent.
///
/// Formats that `CKxSemantic` refuses go on with the elements before the mistake; one without any element, as the empty
/// one, raises CInvalidArgException in what has to build or judge it (`SetFormat`, `ValidFreeFormat`, ...).
class OXA_API CKxSmartComboBox : public CWnd
{
    DECLARE_DYNAMIC(CKxSmartComboBox)

public:
    /// The ids of the children.
    enum ChildId : int
    {
        ID_ADD = 1006,
        ID_DELETE = 1007,
        ID_COMBO = 1008,
        ID_PICKER = 1009,
        ID_LEFT_BITMAP = 1037,
        ID_RIGHT_BITMAP = 1038
    };

    CKxSmartComboBox();
    ~CKxSmartComboBox() override;

    /// Registers the window class "CKXSMARTCOMBOBOX" for the whole process. Non-zero when the class is there, also from an
    /// earlier call.
    static BOOL RegisterWndClass(HINSTANCE instance);

    // ---- The format

    /// Moves the control under a format; the field shows its placeholders. Raises CInvalidArgException as told above.
    void SetFormat(CString format);
    CString GetFormat() const;
    /// Frees the control of its format and empties the field. The elements of the format stay.
    void SetFormatEmpty();
    /// Puts fresh placeholders into the field. There must be a format.
    void ResetSelectText();
    /// The numbers and the separator of the current elements; see CKxSemantic::GetFeatureFormat.
    void GetFeatureFormat(CString& separator, CList<int, int>& values);
    /// 1 when an alternative format accepts the text, else 0. A text that fits joins the values, whatever `apply` is; with
    /// a non-zero `apply` the control moves under that format, and the bitmap picker follows.
    int ValidFreeFormat(CString text, int apply);
    /// Replaces the alternative formats.
    void SetListFilterString(const CStringList& formats);
    /// Adds the formats of SetListFilterString behind those in the argument.
    void GetListFilterString(CStringList& formats) const;

    // ---- Values

    /// Adds a value, unless it is there already in any case of its letters.
    void AddStringCombo(CString value);
    /// Deletes an item and the equal value. An index outside the list deletes nothing.
    void DeleteStringCombo(unsigned int index);
    /// Deletes the item that equals the text in any case, and the value that equals it in its own.
    void DeleteStringCombo(CString text);
    void ResetContent();
    /// Replaces all values. The field then shows the elements of the format. Takes n log n steps.
    void SetStringCombo(CStringList& values);
    /// Replaces the items of `out` by the values. With a non-zero `validate` the text of the field is added first: `index`
    /// becomes its place or -1, and a refused text brings a message box when `message` is not 0.
    void GetStringCombo(CStringList& out, int& index, int validate, int message);
    /// Sorts the values by character code, drops duplicates, and fills the list anew; the selected text stays selected.
    void SortCombo();

    // ---- Selection and text

    int GetCurSel() const;
    /// Answers as CB_SETCURSEL. The text that the field has then is judged as by ValidFreeFormat, and so may join the
    /// values: also the empty text of index -1.
    int SetCurSel(int index);
    /// Selects the item that equals the text in any case: 0, or -1 when there is none.
    int SetCurSel(CString text);
    /// The text of the field without blanks at its right end.
    void GetSelectText(CString& text);
    /// The same without placeholders; `valid` says whether an alternative format accepts it, and it joins the values then.
    void GetSelectText(CString& text, bool& valid);
    void SetSelectText(CString text);
    /// Reads and judges the text of the field. Under a format `valid` becomes 1 when the elements of the format are filled,
    /// and the text is added then. Free of format `toggled` is negated on every call; with a non-zero `validate` a text
    /// that fits an alternative format is added and `valid` becomes 1, else 0; without, `valid` stays.
    void GetText(CString& text, int validate, int& valid, int& toggled);
    /// Frees the control of its format and removes the selection with the text of the field. Values and elements stay.
    void ClearControl();

    // ---- Switches

    /// Whether picking an item adds the text that was typed before; 0 at first.
    void SetAutoAddOnSelChange(int add);
    /// For the owner; the control does not look at it. 1 at first.
    void SetUppercase(int uppercase);
    int GetUppercase() const;
    /// For the owner; the control does not look at it. Empty at first.
    void SetMask(CString mask);
    CString GetMask() const;
    /// Whether values are kept sorted; 1 at first. The combo box itself sorts when this was set at its creation.
    void SetSort(int sort);
    int GetSort() const;
    /// For the owner; paints the control anew. 0 at first.
    void SetVariant(int variant);
    int GetVariant() const;
    /// Whether the user has touched the control, whatever the name says; 0 at first and after ClearControl.
    void SetVisibility(int visibility);
    int GetVisibility() const;
    /// What ButtonHasChange is told; 0xFFFFFFFF, as nothing here changes it.
    unsigned int GetCurrentBitmap() const;
    void SetHelpPath(CString path);
    void SetWhatsThisHelpPath(CString path);

    // ---- Pictures. One of these is called once, after creation; called again it makes no window twice.

    /// Shows a picker with a picture for each format, and moves the control under the format of index `selected`; an index
    /// outside the list leaves the format as it is. `formats` become the alternative formats. Empty: nothing happens.
    /// @param bitmap   a bitmap resource: `count` pictures side by side
    /// @param captions of the pictures, divided by ";"; empty: none. There must be as many as pictures then
    /// The combo box begins 44 pixels from the left and keeps its width, so that its right end lies behind the edge: kept
    /// on purpose.
    void SetBitmapFormatList(CStringList& formats, unsigned int bitmap, int count, CString captions, int selected);
    /// Shows a button with an icon; a click calls BitmapButtonClick.
    void SetBitmapOnly(unsigned int icon);
    /// Shows a button with a bitmap, and adds alternative formats.
    void SetBitmapOnly(CStringList& formats, unsigned int bitmap);
    /// Shows a button with an icon and one with a bitmap, and adds alternative formats. Clicks call LeftBitmapButtonClick and
    /// RightBitmapButtonClick.
    void SetDoubleBitmap(CStringList& formats, unsigned int icon, unsigned int bitmap);
    /// The mode of one picture without any: the combo box begins at the left edge.
    void SetNoBitmap();
    /// Selects the text of the field when an alternative format accepts it: 1, else 0.
    int UpdateBitmapFromText();
    /// The highest number of a button of the picker: one less than there are.
    int GetNumberOfButtons() const;

    // ---- Buttons

    /// Shows or hides "+" and "-". The combo box takes the room that they leave, except beside two pictures.
    void SetVisibleAddDelete(int show);
    /// Non-zero while "+" and "-" show.
    int GetActivateButton() const;
    /// Enables the buttons that are named by a non-zero argument and disables the other; both 0: nothing changes.
    void SetEnableAddDelete(int add, int del);
    /// Enables or disables the combo box and the pictures, not "+" and "-". Non-zero when the combo box was disabled before.
    BOOL EnableWindow(int enable);

    // ---- Tips

    /// Gives the combo box a tip.
    void SetFormatToolTip(CString text);
    /// Gives the pictures and the combo box a tip.
    void AddFormatToolTip(CString text);

    /// Lets what the system does with a message end at the system's own procedure.
    void SetAddressProcToNull();

    // ---- For derived classes. Any of these may destroy the control.

    /// The text of the field without placeholders, judged as GetSelectText does. True also for a text that fits no format:
    /// kept on purpose.
    virtual bool getPatternAndValidate(CString& text);
    /// Called just before a picked item brings in the text that was typed before.
    virtual void ButtonHasChange(int bitmap);
    virtual void BitmapButtonClick();
    virtual void LeftBitmapButtonClick();
    virtual void RightBitmapButtonClick();
    /// A button of the picker was chosen (message 0x405). Moves the control under the format of that index, sends
    /// WM_KX_SMART_BUTTONSEL, and gives the focus to the combo box. Answers 0.
    virtual LRESULT OnButtonSelChanged(WPARAM wParam, LPARAM index);
    /// The unit of the value, not owned; null here. One of a type with feet and inches makes formats architectural.
    virtual CKxUnit* GetUnit();

protected:
    /// Deletes the object.
    void PostNcDestroy() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnButtonAdd();
    afx_msg void OnButtonDelete();
    afx_msg void OnLeftButtonBitmap();
    afx_msg void OnRightButtonBitmap();
    afx_msg void OnSelchangeCombo();
    afx_msg void OnSelchangeOkCombo();
    afx_msg void OnEditUpdate();
    afx_msg void OnPaint();
    afx_msg void OnSetFocus(CWnd* before);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT ctlColor);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnEnable(BOOL enable);
    DECLARE_MESSAGE_MAP()

    SmartComboData m_data;
    CKxDialogBarEx* m_dialogBar = nullptr; ///< the parent or grandparent that colours the children; null: none
    CKxComboBox m_combo;
    CButton m_addButton;
    CButton m_deleteButton;
    CKxButtonCombo m_buttonCombo; ///< the bitmap picker
    CKxToolTip m_toolTip;
    CStatic m_caption;    ///< for derived classes; never created here
    BYTE m_bitmapSet = 0; ///< 1 once one of the operations for pictures was called; nothing here reads it
    CKxBitmapButton m_leftBitmap;
    CKxBitmapButton m_rightBitmap;
    CString m_helpPath;          ///< the owner's; nothing here reads it
    CString m_whatsThisHelpPath; ///< the same

private:
    friend class SmartComboWindow;
    friend struct SmartComboCall;

    static LRESULT CALLBACK ClassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static int FontHeight();
    SmartComboLayout Layout() const;
    void CreateCombo();
    void FindDialogBar();
    void MoveCombo(const RECT& place);
    void LeaveButtonsFree();
    void CreateBitmapButton(CKxBitmapButton& button, const RECT& place, int id);
    void ShowLeftBitmap(const RECT& combo);
    void ForEachPicture(const std::function<void(CWnd&)>& use);
    void DrawComboBox();
    void DrawSelectionBox();
    void DrawFrame(const std::function<void(CDC&, const CRect&)>& drawLines);

    HWND m_dialogBarWindow = nullptr;
    bool m_isEnding = false; ///< the destructor runs
};
