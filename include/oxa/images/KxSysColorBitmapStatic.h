// CKxSysColorBitmapStatic: a bitmap that follows the system colours.
#pragma once

#include <afxwin.h>

#include "oxa/Export.h"

/// A static control with style SS_BITMAP whose greys are the current 3D face, shadow and light colours, and whose colour
/// of the left top pixel is the face colour. It loads its bitmap again when the system colours change. It sends no
/// messages, and deletes the bitmap that it loaded last when the window or the object ends.
class OXA_API CKxSysColorBitmapStatic : public CStatic
{
public:
    CKxSysColorBitmapStatic();
    ~CKxSysColorBitmapStatic() override;

    /// Shows a bitmap resource of the module chain; without a window the id is only remembered.
    /// @param id the resource, or -1 for the one shown last (nothing happens if there is none)
    /// A resource that does not load leaves the old image. An image that the control showed before is deleted.
    void ReloadBitmap(int id);

protected:
    void OnSysColorChange();
    void OnDestroy();

    DECLARE_MESSAGE_MAP()

private:
    void show(HBITMAP bitmap);
    void deleteShown();

    int m_nBitmapID;
    HBITMAP m_shown; // ours, as long as the control shows it
};
