// Static controls and buttons.
#pragma once
#include "kx/Dc.h"
#include "kx/Wnd.h"

/// A static text, frame or picture.
class KXAFX_API CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)
public:
    CStatic();
    ~CStatic() override;
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xFFFF);

    /// Pictures: the one shown before comes back and belongs to the caller.
    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile);
    HENHMETAFILE GetEnhMetaFile() const;
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;
    HCURSOR SetCursor(HCURSOR hCursor);
    HCURSOR GetCursor();

    /// Called for SS_OWNERDRAW. Does nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// A push button, check box, radio button or group box.
class KXAFX_API CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)
public:
    CButton();
    ~CButton() override;
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// BST_CHECKED, BST_PUSHED, BST_FOCUS, ...
    UINT GetState() const;
    void SetState(BOOL bHighlight);
    /// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
    int GetCheck() const;
    void SetCheck(int nCheck);
    /// The BS_ style, without the other window styles.
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE);
    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;
    HCURSOR SetCursor(HCURSOR hCursor);
    HCURSOR GetCursor();

    // Common controls version 6
    BOOL GetIdealSize(SIZE* psize);
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist);
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist);
    BOOL SetTextMargin(RECT* pmargin);
    BOOL GetTextMargin(RECT* pmargin);

    /// Called for BS_OWNERDRAW. Does nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// An owner-drawn push button that shows one of up to four bitmaps: up, down, with focus, disabled.
class KXAFX_API CBitmapButton : public CButton
{
    DECLARE_DYNAMIC(CBitmapButton)
public:
    CBitmapButton();
    CBitmapButton(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = nullptr,
                  LPCTSTR lpszBitmapResourceFocus = nullptr, LPCTSTR lpszBitmapResourceDisabled = nullptr);
    CBitmapButton(UINT nIDBitmapResource, UINT nIDBitmapResourceSel = 0, UINT nIDBitmapResourceFocus = 0,
                  UINT nIDBitmapResourceDisabled = 0);

    /// Replaces all four; the first is required, null names stand for no bitmap. FALSE when one that is named is missing.
    BOOL LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = nullptr,
                     LPCTSTR lpszBitmapResourceFocus = nullptr, LPCTSTR lpszBitmapResourceDisabled = nullptr);
    BOOL LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel = 0, UINT nIDBitmapResourceFocus = 0,
                     UINT nIDBitmapResourceDisabled = 0);
    /// Takes over a dialog item and loads the bitmaps that are named as its caption with U, D, F and X behind; the
    /// first is required. The button takes the size of the bitmap.
    BOOL AutoLoad(UINT nID, CWnd* pParent);
    void SizeToContent();
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    CBitmap m_bitmap;
    CBitmap m_bitmapSel;
    CBitmap m_bitmapFocus;
    CBitmap m_bitmapDisabled;

private:
    CBitmap& BitmapFor(UINT state);
};
