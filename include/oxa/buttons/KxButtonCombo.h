// CKxButtonCombo: a small picker of colours or bitmap tiles.
#pragma once

#include <afxwin.h>

#include "oxa/Export.h"
#include "oxa/buttons/ButtonComboFace.h"
#include "oxa/buttons/WndCombo.h"

/// An item was chosen. Sent to the parent; wParam is the control's id, lParam the item: the index of a tile, or a colour.
/// Also sent when the present choice is clicked. The answer is not looked at, and the parent may destroy the control.
inline constexpr UINT WM_KX_BUTTONCOMBO_SELECT = 0x405;

/// A face that shows the present choice, with a narrow arrow strip at its left that opens a palette below it. Press the
/// mouse on the strip, move over the palette, release on a cell. Releasing on the strip chooses the last cell again, and
/// a click on the face reports the present choice again.
///
///     m_hatch.Create(CRect(10, 10, 70, 36), CSize(4, 2), IDB_HATCHES, 8, this, IDC_HATCH, L"none;lines;...");
///
/// All in pixels; `rect` in client coordinates of the parent. In the colour form the face shows only colours of a numeric
/// value up to the count of cells: kept on purpose.
class OXA_API CKxButtonCombo : public CWnd
{
public:
    CKxButtonCombo();
    CKxButtonCombo(const CKxButtonCombo&) = delete;
    CKxButtonCombo& operator=(const CKxButtonCombo&) = delete;
    ~CKxButtonCombo() override;

    /// The colour form: cells in the colours of ColorOfIndex.
    /// @param grid     columns and rows of the palette
    /// @param cell     width and height of a cell, without its frame
    /// @param parent   gets WM_KX_BUTTONCOMBO_SELECT
    /// @param captions one for each cell, divided by ";"; empty for a palette without captions
    /// @return FALSE when the control exists already, or a window could not be made
    BOOL Create(CRect rect, CSize grid, CSize cell, CWnd* parent, UINT id, CString captions);
    /// The bitmap form: cells with the tiles of a bitmap of the module chain, which stand side by side in it.
    /// @param count the number of tiles; FALSE below 1, and when the bitmap does not load
    /// A grid with fewer cells than tiles shows the first ones; one with more leaves the last cells empty.
    BOOL Create(CRect rect, CSize grid, UINT bitmapId, int count, CWnd* parent, UINT id, CString captions);
    /// The static form: shows the whole bitmap, and opens nothing.
    BOOL CreateStatic(CRect rect, UINT bitmapId, CWnd* parent, UINT id);

    /// Makes an item the choice, closes the palette, and tells the parent unless the item is above the element number.
    /// @param index the cell that is current when the palette opens
    void OnItemSelected(long item, int index);
    /// Closes the palette, and gives the focus to the parent.
    void UnpressRightButton();

    /// The choice, 0 at first. Setting it neither repaints the control nor tells anybody.
    long GetSelectedItem() const;
    void SetSelectedItem(long item);
    /// The highest item that the parent hears of: the count of tiles minus 1 in the bitmap form, no limit (INT_MAX) before
    /// and in the other forms.
    int GetElementNumber() const;

    /// The arrow in the middle of a rectangle. Null arguments draw nothing.
    void DrawArrow(CDC* dc, CRect* rect);
    /// Gives the pixels of a rectangle the embossed look of disabled controls.
    void DrawDisabled(CDC* dc, const CRect& rect);

    /// The colour of a cell in the colour form: the entry of this number in the system palette, of which 255 are looked
    /// at; black beyond. A true-colour screen has no palette: what the platform gives then is its affair, the default
    /// colours of an 8-bit screen or black. Derive to offer colours of your own.
    virtual COLORREF ColorOfIndex(int index) const;

protected:
    void OnLButtonDown(UINT flags, CPoint point);
    void OnLButtonUp(UINT flags, CPoint point);
    void OnLButtonDblClk(UINT flags, CPoint point);
    void OnRButtonDown(UINT flags, CPoint point);
    void OnMouseMove(UINT flags, CPoint point);
    void OnPaint();
    void OnEnable(BOOL enable);
    void PostNcDestroy() override;

    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateFace(const CRect& rect, CWnd* parent, UINT id, bool isStatic);
    BOOL Keep(BOOL paletteMade);
    bool FocusParent();
    bool ClosePalette();
    bool SelectItem(long item, int index);
    void Repaint();
    void DrawFace(CDC& dc, const CRect& client);

    CWndCombo m_palette;
    ButtonComboFace m_face;
    HWND m_parent; // by handle: it may go before this control
    UINT m_id;
    long m_selectedItem;
    int m_lastIndex;
    int m_elementNumber;
};
