// CKxStaticPicture: a static control that shows a bitmap resource.
#pragma once

#include <afxwin.h>

#include "oxa/Export.h"

/// Paints a bitmap of the module chain, opaque and in its own size, into the left top corner of the client area. It erases
/// nothing, so that what the parent painted shows beside the bitmap. It sends no messages.
class OXA_API CKxStaticPicture : public CStatic
{
public:
    /// Shows nothing until m_nBitmapID is set.
    CKxStaticPicture();
    explicit CKxStaticPicture(unsigned int id);
    ~CKxStaticPicture() override;

    unsigned int m_nBitmapID;

protected:
    void OnPaint();

    DECLARE_MESSAGE_MAP()
};
