// The header of the tree list.
#include "oxa/treelist/KxHeaderCtrl.h"

#include <utility>

#include "HeaderRules.h"
#include "../frame/Surviving.h"

using treelist::HeaderItemDrawing;
using treelist::HeaderItemMeasures;

namespace
{
constexpr int textRoom = 256; // 255 characters and the end

static_assert(treelist::headerRight == HDF_RIGHT && treelist::headerCenter == HDF_CENTER);
static_assert(treelist::textCenter == DT_CENTER && treelist::textRight == DT_RIGHT &&
              treelist::textMiddle == DT_VCENTER && treelist::textSingleLine == DT_SINGLELINE &&
              treelist::textNoClip == DT_NOCLIP && treelist::textNoPrefix == DT_NOPREFIX &&
              treelist::textEndEllipsis == DT_END_ELLIPSIS);
static_assert(treelist::itemSelected == ODS_SELECTED);
static_assert(int{treelist::noSortImage} == int{CKxHeaderCtrl::SORT_IMAGE_NONE} &&
              int{treelist::ascendingImage} == int{CKxHeaderCtrl::SORT_IMAGE_ASCENDING} &&
              int{treelist::descendingImage} == int{CKxHeaderCtrl::SORT_IMAGE_DESCENDING});

/// A device context that a message lent, clipped to a rectangle; it is given back as it was.
class LentContext
{
public:
    LentContext(HDC handle, const RECT& clip)
    {
        dc.Attach(handle);
        m_saved = dc.SaveDC();
        CRgn region;
        region.CreateRectRgnIndirect(&clip);
        dc.SelectClipRgn(&region);
    }
    ~LentContext()
    {
        dc.RestoreDC(m_saved);
        dc.Detach();
    }
    LentContext(const LentContext&) = delete;
    LentContext& operator=(const LentContext&) = delete;

    CDC dc;

private:
    int m_saved = 0;
};

/// The text of a header item and its format.
struct ItemText
{
    CString text;
    unsigned format = 0;
};

ItemText readItem(const CHeaderCtrl& header, int column)
{
    wchar_t buffer[textRoom] = {};
    HDITEM item = {};
    item.mask = HDI_TEXT | HDI_FORMAT;
    item.pszText = buffer;
    item.cchTextMax = textRoom;
    if (!header.GetItem(column, &item))
        return {};
    buffer[textRoom - 1] = 0;
    return {buffer, static_cast<unsigned>(item.fmt)};
}

void drawImage(const HeaderItemDrawing& drawing, CImageList* images, int image, CDC& dc)
{
    if (drawing.image)
        ::ImageList_Draw(images->GetSafeHandle(), image, dc.m_hDC, drawing.image->x, drawing.image->y, ILD_TRANSPARENT);
}

void drawText(const HeaderItemDrawing& drawing, const CString& text, CDC& dc)
{
    if (!drawing.text)
        return;
    CRect room = *drawing.text;
    dc.DrawText(text, &room, drawing.textFlags);
}
} // namespace

IMPLEMENT_DYNAMIC(CKxHeaderCtrl, CHeaderCtrl)

BEGIN_MESSAGE_MAP(CKxHeaderCtrl, CHeaderCtrl)
    // void OnPaint()
    ON_WM_PAINT()
END_MESSAGE_MAP()

CKxHeaderCtrl::CKxHeaderCtrl() = default;

CKxHeaderCtrl::~CKxHeaderCtrl()
{
    DestroyWindow();
}

CImageList* CKxHeaderCtrl::SetSortImageList(CImageList* images)
{
    return std::exchange(m_sortImageList, images);
}

int CKxHeaderCtrl::GetSortImage(int column) const
{
    int image = SORT_IMAGE_NONE;
    m_sortImages.Lookup(column, image);
    return image;
}

void CKxHeaderCtrl::SetSortImage(int column, int image)
{
    m_sortImages.SetAt(column, image);
    HDITEM item = {};
    item.mask = HDI_FORMAT;
    if (!GetItem(column, &item))
        return;
    item.fmt |= HDF_OWNERDRAW;
    const Surviving here(*this);
    SetItem(column, &item);
    if (here)
        Invalidate();
}

void CKxHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT item)
{
    if (item == nullptr || item->hDC == nullptr)
        return;
    LentContext lent(item->hDC, item->rcItem);
    CDC& dc = lent.dc;
    const int column = static_cast<int>(item->itemID);
    const ItemText label = readItem(*this, column);
    const int image = GetSortImage(column);

    HeaderItemMeasures measures;
    measures.rect = item->rcItem;
    measures.state = item->itemState;
    measures.format = label.format;
    measures.blankWidth = dc.GetTextExtent(L" ", 1).cx;
    measures.firstCharacterWidth = dc.GetTextExtent(label.text.Left(1)).cx;
    measures.hasImage = m_sortImageList != nullptr && image != SORT_IMAGE_NONE;
    IMAGEINFO info = {};
    if (measures.hasImage && ::ImageList_GetImageInfo(m_sortImageList->GetSafeHandle(), image, &info))
        measures.imageWidth = info.rcImage.right - info.rcImage.left;

    const HeaderItemDrawing drawing = treelist::DrawHeaderItem(measures);
    if (drawing.imageFirst)
        drawImage(drawing, m_sortImageList, image, dc);
    drawText(drawing, label.text, dc);
    if (!drawing.imageFirst)
        drawImage(drawing, m_sortImageList, image, dc);
}

void CKxHeaderCtrl::OnPaint()
{
    CPaintDC dc(this);
    DefWindowProc(WM_PAINT, reinterpret_cast<WPARAM>(dc.m_hDC), 0);
}
