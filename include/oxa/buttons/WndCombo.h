// CWndCombo: the palette that a button combo opens.
#pragma once

#include <afxcoll.h>
#include <afxwin.h>

#include "oxa/Export.h"
#include "oxa/buttons/ButtonComboPalette.h"

class CKxButtonCombo;

/// A pop-up window with a grid of colours or of bitmap tiles, and a row below that names the current cell. A
/// CKxButtonCombo has one by value, opens and closes it, and hears what was chosen. While it is open it has the mouse:
/// a move over a cell makes that cell current, releasing the button chooses the current one. Any key, the loss of the
/// focus with the cursor outside the owner, and another application coming to the front close it without a choice.
///
/// A current cell without a caption, where there are captions, raises a CInvalidArgException each time the palette is
/// painted: give as many captions as cells. The palette stays as it was painted before; all else goes on.
class OXA_API CWndCombo : public CWnd
{
public:
    CWndCombo();
    CWndCombo(const CWndCombo&) = delete;
    CWndCombo& operator=(const CWndCombo&) = delete;
    ~CWndCombo() override;

    /// Makes the hidden window of a palette of colours. Grid, cell and captions are those of CKxButtonCombo::Create.
    /// @param owner    hears of the choice, and has a window; without it the palette has no colours and tells nobody
    /// @param corner   the left top corner, in screen pixels
    /// @return FALSE when there is a window already, or none could be made
    BOOL CreateColors(CKxButtonCombo* owner, CPoint corner, CSize grid, CSize cell, const CString& captions);
    /// The same for a palette of tiles; FALSE too for a count below 1. What is 0xC0C0C0 in the bitmap becomes the face
    /// colour (up to 8 bits a pixel).
    BOOL CreateTiles(CKxButtonCombo* owner, CPoint corner, CSize grid, UINT bitmapId, int count,
                     const CString& captions);

    /// Moves the palette to a screen point and shows or hides it.
    void Place(CPoint corner, bool show);
    void Hide();

    /// The index of the current cell, -1 for none.
    int GetCurrent() const;
    void SetCurrent(int index);

    /// Draws a tile, or in the colour form the colour that the item itself is, into a rectangle. Nothing for -1 and for an
    /// item above the count of cells; in the colour form too: kept on purpose.
    void DrawItem(CDC& dc, const CRect& rect, long item);

protected:
    void OnLButtonDown(UINT flags, CPoint point);
    void OnLButtonUp(UINT flags, CPoint point);
    void OnLButtonDblClk(UINT flags, CPoint point);
    void OnRButtonDown(UINT flags, CPoint point);
    void OnMouseMove(UINT flags, CPoint point);
    void OnPaint();
    void OnKillFocus(CWnd* newWindow);
    void OnKeyDown(UINT key, UINT repeat, UINT flags);
    void OnActivate(UINT state, CWnd* other, BOOL minimized);
    void OnActivateApp(BOOL active, DWORD thread);

    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateHidden(CKxButtonCombo* owner, CPoint corner);
    void SetLayout(const ButtonComboPalette& layout);
    int PrepareCaptions(const CString& captions);
    bool Close();
    void Cancel();
    void DrawPalette(CDC& dc, const CRect& client, CSize seen);
    void DrawCell(CDC& dc, const ButtonComboPalette::Cell& cell);
    void DrawCaption(CDC& dc, const CRect& client);
    CKxButtonCombo* Owner() const;

    ButtonComboPalette m_layout; // grid, cell, count and form
    CKxButtonCombo* m_owner;
    HWND m_ownerWindow; // by which an owner that is gone is noticed
    COLORREF m_background;
    int m_current;
    CBitmap m_tiles;
    CFont m_font;
    CStringArray m_captions;
};
