// CKxBitmapButton: a push button with an icon or a bitmap, a caption and a coloured corner tab.
#pragma once

#include <afxwin.h>

#include "oxa/Export.h"
#include "oxa/buttons/BitmapButtonLayout.h"

/// An owner-drawn push button (style BS_OWNERDRAW) that keeps the look of the platform's and shows an image beside its
/// caption. The caption is the window's text; an ampersand in it marks a mnemonic. At first image and caption are placed
/// by two offsets; SetImagePos and SetTextPos place them freely. It sends the messages of CButton and no others. The focus
/// mark is toggled when the focus comes or goes; a platform that paints the whole button at that moment leaves the mark of
/// a lost focus until the next paint.
///
///     CKxBitmapButton button;                     // BS_OWNERDRAW in the template
///     button.SubclassDlgItem(IDC_ADD, this);
///     button.SetIcon(IDI_ADD, 16, 16);
///     button.SetColorTab(RGB(0, 128, 0));
///
/// Every setter but SetIcon, SetBitmap and SetMaskedBitmap answers with the value before. Positions and sizes are pixels
/// in client coordinates. No setter needs a window; one that exists is painted anew.
class OXA_API CKxBitmapButton : public CButton
{
public:
    CKxBitmapButton();
    CKxBitmapButton(const CKxBitmapButton&) = delete;
    CKxBitmapButton& operator=(const CKxBitmapButton&) = delete;
    /// Destroys the icon and the bitmaps that the button still has.
    ~CKxBitmapButton() override;

    /// Shows an icon resource of the module chain, in the given size (0: the platform's icon size).
    /// @return 1, or 0 when it does not load; the button keeps its image then
    /// An icon shown before is destroyed. A bitmap shown before is forgotten, and nobody deletes it: show either icons or
    /// bitmaps on one button.
    BOOL SetIcon(UINT id, int width, int height);
    /// Shows a bitmap resource of the module chain, in the given size (0: its own). Its greys become the system's 3D
    /// colours, and the colour of its left top pixel becomes the face colour (up to 8 bits a pixel).
    /// @return 1, or 0 when the bitmap, or its form for the disabled button, does not load; the button keeps its image then
    /// Bitmaps shown before are deleted. An icon shown before is forgotten, and nobody destroys it.
    BOOL SetBitmap(UINT id, int width, int height);
    /// The same. The colour has no effect.
    BOOL SetMaskedBitmap(UINT id, int width, int height, DWORD color);
    BOOL HasImage();

    /// Shows a small triangle of this colour in the left top corner, from now on.
    void SetColorTab(COLORREF color);

    /// Draws the black frame of a default button, and names this button as the default one to its owner (DM_SETDEFID with
    /// the control's id, whatever the flag is).
    BOOL SetDefaultButton(BOOL isDefault);

    /// The left margin of the image, 4 at first. Image and caption are placed by the offsets from now on.
    int SetImageOffset(int offset);
    /// The gap between image and caption, 8 at first. Image and caption are placed by the offsets from now on.
    int SetTextOffset(int offset);
    /// Where the image goes; a coordinate of -1 is centred. Image and caption stand at their positions from now on.
    CPoint SetImagePos(CPoint position);
    /// Where the caption goes; a coordinate of -1 is centred, vertically one pixel higher. Image and caption stand at their
    /// positions from now on.
    CPoint SetTextPos(CPoint position);

    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    /// The load of SetBitmap and SetMaskedBitmap. The mask arguments have no effect.
    BOOL SetBitmapCommon(UINT id, int width, int height, DWORD maskColor, BOOL masked);
    /// A coordinate of -1 becomes the one that centres something of this size in the client area.
    void CheckPointForCentering(CPoint& point, int width, int height) const;

    DECLARE_MESSAGE_MAP()

private:
    template <class Value> Value Place(Value& setting, Value value, bool automatic);
    void Repaint();
    BitmapButtonPicture PictureOf(const DRAWITEMSTRUCT& item, const CDC& dc, const CString& caption) const;
    void DrawFace(CDC& dc, const BitmapButtonPicture& picture) const;
    void DrawTab(CDC& dc, const BitmapButtonPicture& picture) const;
    void DrawImage(CDC& dc, const BitmapButtonPicture& picture) const;

    BitmapButtonLayout m_layout; // all but hasImage and isDefault
    HICON m_icon;                // owned
    CBitmap m_bitmap;
    CBitmap m_disabledBitmap;
    COLORREF m_tabColor;
    int m_default;
    UINT m_lastAction;
    UINT m_lastState;
};
