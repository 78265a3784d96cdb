// CKxComboColorPicker: a drop-down list of colours, with a last row that asks the parent for another one.
#pragma once

#include <afxwin.h>

#include "oxa/Export.h"

/// Sent to the parent when the row "Autres..." is picked. wParam is the picker's object (a CKxComboColorPicker*), lParam is
/// 0. The parent lets the user choose a colour, calls `GetColorIndex` for it, and answers the index of the row to select;
/// -1 selects none. It may destroy the picker meanwhile.
inline constexpr UINT WM_KX_PICK_OTHER_COLOR = WM_USER + 14;

/// A drop-down list whose rows are filled with a colour each. It fills itself with nine colours and the row "Autres..." the
/// first time that it gets a window. Its styles are WS_VSCROLL, CBS_OWNERDRAWFIXED and CBS_DROPDOWNLIST (0x200013): create
/// it with them, or give them to the dialog's control, since the platform decides by them before the control can.
///
///     // in the parent: LRESULT OnOtherColor(WPARAM picker, LPARAM), for WM_KX_PICK_OTHER_COLOR
///     CColorDialog dialog;
///     auto* const combo = reinterpret_cast<CKxComboColorPicker*>(picker);
///     return dialog.DoModal() == IDOK ? combo->GetColorIndex(dialog.GetColor()) : 0;
class OXA_API CKxComboColorPicker : public CComboBox
{
    DECLARE_DYNAMIC(CKxComboColorPicker)

public:
    /// The colours of a new picker, in the order of its rows.
    static const COLORREF VGAColorsArray[9];

    CKxComboColorPicker();
    ~CKxComboColorPicker() override;

    /// Appends a row of a colour, behind "Autres...", where it is not drawn. The new index, or a negative number on failure.
    int AddColor(unsigned long color);

    /// Inserts a row of a colour before the row `index`; "Autres..." stays the row that it was by number: `GetColorIndex`
    /// is the way to a new colour. The new index, or a negative number on failure.
    int InsertColor(unsigned long color, int index);

    /// Gives a row another colour. CB_ERR when there is no such row.
    int ChangeColor(unsigned long color, int index);

    /// The colour of a row; 0 of "Autres..."; CLR_INVALID when there is no such row.
    COLORREF GetColorRef(int index) const;

    /// The colour of the selected row, as above.
    COLORREF GetColor() const;

    /// The first row of that colour. When there is none, one is made in front of "Autres...", which moves down. Black (0)
    /// gives the row "Autres..." when no row before it is black, and nothing is added.
    int GetColorIndex(unsigned long color);

    /// The number of the row "Autres...".
    int GetLastIndex() const;

    /// Takes all rows out, for good: the nine colours do not come back, and the number of "Autres..." stays.
    void ResetContent();

    void PreSubclassWindow() override;
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()

    bool m_initialized = false;
    int m_lastIndex = 0;

private:
    void InitializeData();
    void AskParent();
};
