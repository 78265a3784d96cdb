// A combo box whose items are bitmaps: how they are added, measured and drawn.
#include "oxa/dropdowns/KxBitmapComboBox.h"

#include <memory>
#include <new>

#include "../frame/Module.h"
#include "../frame/SavedContext.h"
#include "BitmapComboItem.h"
#include "kitrel/KxToolsResOverride.h"
#include "oxa/images/KxImage.h"

namespace
{
constexpr DWORD tipStyle = 1; // TTS_ALWAYSTIP
constexpr int usualBitmapHeight = 16;

CSize sizeOf(UINT bitmapId)
{
    CBitmap bitmap;
    BITMAP record = {};
    if (bitmap.LoadBitmap(bitmapId))
        bitmap.GetBitmap(&record);
    return {record.bmWidth, record.bmHeight};
}
} // namespace

IMPLEMENT_DYNAMIC(CKxBitmapComboBox, CComboBox)

CKxBitmapComboBox::CKxBitmapComboBox() : m_itemHeight(BitmapComboItem::Height(usualBitmapHeight))
{
    m_toolTip.Create(this, tipStyle);
}

CKxBitmapComboBox::~CKxBitmapComboBox() = default;

BOOL CKxBitmapComboBox::SubclassDlgItem(int height, unsigned int id, CWnd* parent)
{
    m_itemHeight = BitmapComboItem::Height(height);
    return CComboBox::SubclassDlgItem(id, parent);
}

int CKxBitmapComboBox::AddBitmap(unsigned short id)
{
    const int index = AddString(L"");
    if (index >= 0)
        SetItemData(index, id);
    return index;
}

int CKxBitmapComboBox::InsertBitmap(unsigned short id, unsigned short index)
{
    const int inserted = InsertString(index, L"");
    if (inserted >= 0)
        SetItemData(inserted, id);
    return inserted;
}

void CKxBitmapComboBox::AddFormatToolTip(CString text)
{
    if (m_hWnd != nullptr)
        m_toolTip.AddWindowTool(this, text);
}

BOOL CKxBitmapComboBox::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg != nullptr && m_toolTip.m_hWnd != nullptr)
        m_toolTip.RelayEvent(pMsg);
    return CComboBox::PreTranslateMessage(pMsg);
}

void CKxBitmapComboBox::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    if (lpMeasureItemStruct != nullptr)
        lpMeasureItemStruct->itemHeight = static_cast<UINT>(m_itemHeight);
}

void CKxBitmapComboBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CDC* const dc = lpDrawItemStruct == nullptr ? nullptr : CDC::FromHandle(lpDrawItemStruct->hDC);
    if (dc == nullptr)
        return;
    const DRAWITEMSTRUCT& item = *lpDrawItemStruct;
    const auto what = BitmapComboItem::Of(static_cast<int>(item.itemID), item.itemAction, item.itemState);
    if (what.focusWithoutItem)
        dc->DrawFocusRect(&item.rcItem);
    if (what.focusTakenOff)
        dc->DrawFocusRect(&item.rcItem);
    {
        const SavedContext saved(*dc);
        if (what.highlighted)
        {
            dc->SetBkColor(::GetSysColor(COLOR_HIGHLIGHT));
            ::SelectObject(dc->m_hDC, ::GetSysColorBrush(COLOR_HIGHLIGHT)); // the platform's own, which is always there
        }
        const CRect place(item.rcItem);
        dc->PatBlt(place.left, place.top, place.Width(), place.Height(), PATCOPY); // with whichever brush is there
        DrawBitmapOf(*dc, item);
    }
    if (what.focusPutOn)
        dc->DrawFocusRect(&item.rcItem);
}

// A row whose text cannot be read is no row. What the text says does not matter.
bool CKxBitmapComboBox::HasText(int index) const
{
    constexpr int itemValue = sizeof(DWORD_PTR) / sizeof(wchar_t); // copied whole by a list that has no texts
    const int length = GetLBTextLen(index);
    if (length == CB_ERR)
        return false;
    const std::unique_ptr<wchar_t[]> text(new (std::nothrow) wchar_t[static_cast<size_t>(length) + itemValue + 1]);
    return text != nullptr && GetLBText(index, text.get()) != CB_ERR;
}

void CKxBitmapComboBox::DrawBitmapOf(CDC& dc, const DRAWITEMSTRUCT& item) const
{
    if (!HasText(static_cast<int>(item.itemID)))
        return;
    const auto id = static_cast<WORD>(item.itemData);
    const bool isOurs = ::FindResourceW(moduleInstance, MAKEINTRESOURCEW(id), RT_BITMAP) != nullptr;
    const CKxToolsResOverride scope(isOurs ? moduleInstance : nullptr); // else the host's own, where that looks for it
    const CPoint place = BitmapComboItem::Place(item.rcItem, sizeOf(id));
    CKxImage image(&dc, id, place.x, place.y);
    image.SetTransparent(1);
    image.DrawBitmap(false);
}
