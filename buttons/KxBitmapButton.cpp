// CKxBitmapButton: loads its images, and draws what its layout says.
#include "oxa/buttons/KxBitmapButton.h"

#include <utility>

#include "../frame/SavedContext.h"
#include "../frame/Surviving.h"

namespace
{
constexpr UINT normalBitmap = LR_LOADMAP3DCOLORS | LR_LOADTRANSPARENT;
constexpr UINT greyBitmap = LR_MONOCHROME | LR_LOADTRANSPARENT;

HANDLE loadImage(LPCTSTR type, UINT id, UINT kind, CSize size, UINT flags)
{
    const LPCTSTR name = MAKEINTRESOURCE(id);
    return ::LoadImageW(AfxFindResourceHandle(name, type), name, kind, size.cx, size.cy, flags);
}

HBITMAP loadBitmap(UINT id, CSize size, UINT flags)
{
    return static_cast<HBITMAP>(loadImage(RT_BITMAP, id, IMAGE_BITMAP, size, flags));
}
} // namespace

BEGIN_MESSAGE_MAP(CKxBitmapButton, CButton)
END_MESSAGE_MAP()

CKxBitmapButton::CKxBitmapButton() : m_icon(nullptr), m_tabColor(0), m_default(0), m_lastAction(0), m_lastState(0) {}

CKxBitmapButton::~CKxBitmapButton()
{
    DestroyWindow();
    if (m_icon != nullptr)
        ::DestroyIcon(m_icon);
}

// ---- Settings

BOOL CKxBitmapButton::SetIcon(UINT id, int width, int height)
{
    const CSize size(width, height);
    const auto icon = static_cast<HICON>(loadImage(RT_GROUP_ICON, id, IMAGE_ICON, size, 0));
    if (icon == nullptr)
        return FALSE;
    if (m_icon != nullptr)
        ::DestroyIcon(m_icon);
    m_icon = icon;
    m_layout.imageSize = size;
    m_bitmap.Detach(); // kept on purpose: forgotten, not deleted
    Repaint();
    return TRUE;
}

BOOL CKxBitmapButton::SetBitmap(UINT id, int width, int height)
{
    return SetBitmapCommon(id, width, height, 0, FALSE);
}

BOOL CKxBitmapButton::SetMaskedBitmap(UINT id, int width, int height, DWORD color)
{
    return SetBitmapCommon(id, width, height, color, TRUE);
}

BOOL CKxBitmapButton::SetBitmapCommon(UINT id, int width, int height, DWORD /*maskColor*/, BOOL /*masked*/)
{
    const CSize size(width, height);
    CBitmap normal;
    CBitmap disabled;
    if (!normal.Attach(loadBitmap(id, size, normalBitmap)) || !disabled.Attach(loadBitmap(id, size, greyBitmap)))
        return FALSE;
    m_bitmap.DeleteObject();
    m_bitmap.Attach(normal.Detach());
    m_disabledBitmap.DeleteObject();
    m_disabledBitmap.Attach(disabled.Detach());
    m_layout.imageSize = size;
    m_icon = nullptr; // kept on purpose: forgotten, not destroyed
    Repaint();
    return TRUE;
}

BOOL CKxBitmapButton::HasImage()
{
    return m_icon != nullptr || m_bitmap.m_hObject != nullptr;
}

void CKxBitmapButton::SetColorTab(COLORREF color)
{
    m_layout.hasTab = true;
    m_tabColor = color;
    Repaint();
}

BOOL CKxBitmapButton::SetDefaultButton(BOOL isDefault)
{
    const BOOL before = m_default;
    if (CWnd* const owner = m_hWnd == nullptr ? nullptr : GetOwner())
    {
        const Surviving here(*this);
        owner->SendMessage(DM_SETDEFID, static_cast<WPARAM>(GetDlgCtrlID()));
        if (!here)
            return before;
    }
    m_default = isDefault;
    Repaint();
    return before;
}

int CKxBitmapButton::SetImageOffset(int offset)
{
    return Place(m_layout.imageOffset, offset, true);
}

int CKxBitmapButton::SetTextOffset(int offset)
{
    return Place(m_layout.textOffset, offset, true);
}

CPoint CKxBitmapButton::SetImagePos(CPoint position)
{
    return Place(m_layout.imagePosition, position, false);
}

CPoint CKxBitmapButton::SetTextPos(CPoint position)
{
    return Place(m_layout.textPosition, position, false);
}

template <class Value> Value CKxBitmapButton::Place(Value& setting, Value value, bool automatic)
{
    m_layout.automatic = automatic;
    const Value before = std::exchange(setting, value);
    Repaint();
    return before;
}

void CKxBitmapButton::Repaint()
{
    if (m_hWnd != nullptr)
        Invalidate();
}

// ---- Painting

void CKxBitmapButton::DrawItem(LPDRAWITEMSTRUCT item)
{
    if (item == nullptr || item->hDC == nullptr)
        return;
    CDC& dc = *CDC::FromHandle(item->hDC);
    CString caption;
    GetWindowText(caption);
    const BitmapButtonPicture picture = PictureOf(*item, dc, caption);
    if (picture.drawn)
        DrawFace(dc, picture);
    if (picture.image.has_value())
        DrawImage(dc, picture);
    if (picture.caption.has_value())
        dc.DrawState(*picture.caption, CSize(0, 0), caption, picture.disabled ? DSS_DISABLED : DSS_NORMAL, TRUE, 0,
                     static_cast<HBRUSH>(nullptr));
    if (picture.focus.has_value())
        dc.DrawFocusRect(&*picture.focus);
    m_lastAction = item->itemAction;
    m_lastState = item->itemState;
}

BitmapButtonPicture CKxBitmapButton::PictureOf(const DRAWITEMSTRUCT& item, const CDC& dc, const CString& caption) const
{
    CRect client;
    GetClientRect(&client);
    BitmapButtonLayout layout = m_layout;
    layout.hasImage = m_icon != nullptr || m_bitmap.m_hObject != nullptr;
    layout.isDefault = m_default != 0;
    const CSize captionSize = caption.IsEmpty() ? CSize(0, 0) : dc.GetTextExtent(caption);
    return layout.Picture(
        {item.rcItem, client.Size(), item.itemAction, item.itemState, m_lastState, !caption.IsEmpty(), captionSize});
}

void CKxBitmapButton::DrawFace(CDC& dc, const BitmapButtonPicture& picture) const
{
    if (picture.blackFrame.has_value())
    {
        const SavedContext saved(dc);
        dc.SelectStockObject(BLACK_PEN);
        dc.Rectangle(&*picture.blackFrame);
    }
    CRect face = picture.face; // which the platform makes smaller
    dc.DrawFrameControl(&face, DFC_BUTTON, DFCS_BUTTONPUSH | (picture.pushed ? DFCS_PUSHED : 0U));
    DrawTab(dc, picture);
}

void CKxBitmapButton::DrawTab(CDC& dc, const BitmapButtonPicture& picture) const
{
    if (!picture.tab.has_value())
        return;
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, 1, m_tabColor))
        return;
    const SavedContext saved(dc);
    dc.SelectObject(&pen);
    for (const BitmapButtonPicture::Line& line : *picture.tab)
    {
        dc.MoveTo(line.from);
        dc.LineTo(line.end, line.from.y);
    }
}

void CKxBitmapButton::DrawImage(CDC& dc, const BitmapButtonPicture& picture) const
{
    const UINT look = picture.disabled ? DSS_DISABLED : DSS_NORMAL;
    if (m_icon != nullptr)
    {
        dc.DrawState(*picture.image, m_layout.imageSize, m_icon, look, static_cast<HBRUSH>(nullptr));
        return;
    }
    const CBitmap& shown = picture.disabled ? m_disabledBitmap : m_bitmap;
    dc.DrawState(*picture.image, m_layout.imageSize, static_cast<HBITMAP>(shown), look);
}

void CKxBitmapButton::CheckPointForCentering(CPoint& point, int width, int height) const
{
    CRect client;
    GetClientRect(&client);
    point = BitmapButtonLayout::Centre(point, CSize(width, height), client.Size());
}
