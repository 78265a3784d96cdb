// A combo box with images and indents: the bar that colours it, its tip, and the drawing of its items.
#include "oxa/dropdowns/KxComboBoxEx.h"

#include "../frame/SavedContext.h"
#include "../frame/Surviving.h"
#include "ImageComboItem.h"

#include <memory>
#include <type_traits>
#include <vector>

namespace
{
constexpr DWORD tipStyle = 1; // TTS_ALWAYSTIP
constexpr UINT itemImages = CBEIF_IMAGE | CBEIF_SELECTEDIMAGE | CBEIF_OVERLAY | CBEIF_INDENT;
static_assert(itemImages == 30);

struct IconDeleter
{
    void operator()(HICON icon) const { ::DestroyIcon(icon); }
};
using OwnedIcon = std::unique_ptr<std::remove_pointer_t<HICON>, IconDeleter>;

/// The text of an item; empty where there is none. The control tells no length, so the room grows.
CString textOf(CComboBoxEx& combo, int id)
{
    constexpr size_t mostRoom = size_t{1} << 24;
    if (id == ImageComboItem::noItem)
        return CString();
    for (std::vector<wchar_t> room(256);; room.assign(room.size() * 4, 0))
    {
        COMBOBOXEXITEM item = {};
        item.mask = CBEIF_TEXT;
        item.iItem = id;
        item.pszText = room.data();
        item.cchTextMax = static_cast<int>(room.size());
        if (!combo.GetItem(&item) || item.pszText == nullptr || item.pszText == LPSTR_TEXTCALLBACK)
            return CString();
        if (item.pszText != room.data())
            return CString(item.pszText);
        room.back() = 0;
        const CString text(room.data());
        if (static_cast<size_t>(text.GetLength()) + 2 < room.size() || room.size() >= mostRoom)
            return text;
    }
}

int imageWidth(HIMAGELIST images, int index)
{
    IMAGEINFO info = {};
    if (!::ImageList_GetImageInfo(images, index, &info))
        return 0;
    return info.rcImage.right - info.rcImage.left;
}

void drawImage(CDC& dc, HIMAGELIST images, const ComboItemPicture::Image& image)
{
    const int x = image.place.x, y = image.place.y;
    if (image.look != ComboImageLook::Grey)
    {
        const UINT style = image.look == ComboImageLook::Selected ? ILD_SELECTED : ILD_TRANSPARENT;
        ::ImageList_Draw(images, image.index, dc.m_hDC, x, y, style);
        return;
    }
    const OwnedIcon icon(::ImageList_GetIcon(images, image.index, ILD_NORMAL));
    if (icon != nullptr)
        ::DrawStateW(dc.m_hDC, nullptr, nullptr, reinterpret_cast<LPARAM>(icon.get()), 0, x, y, 0, 0,
                     DST_ICON | DSS_DISABLED);
}

/// Keeps the closing of the list from a control's parent, who has heard of it, while this lives.
class ClosingHeard
{
public:
    ClosingHeard(HWND parent, HWND control) : m_parent(parent), m_control(control)
    {
        ::SetWindowSubclass(parent, onMessage, id(), id());
    }
    ~ClosingHeard() { ::RemoveWindowSubclass(m_parent, onMessage, id()); }
    ClosingHeard(const ClosingHeard&) = delete;
    ClosingHeard& operator=(const ClosingHeard&) = delete;

private:
    UINT_PTR id() const { return reinterpret_cast<UINT_PTR>(this); }
    static LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data)
    {
        const auto& self = *reinterpret_cast<const ClosingHeard*>(data);
        const bool heard =
            message == WM_COMMAND && HIWORD(wParam) == CBN_CLOSEUP && reinterpret_cast<HWND>(lParam) == self.m_control;
        return heard ? 0 : ::DefSubclassProc(window, message, wParam, lParam);
    }

    HWND m_parent;
    HWND m_control;
};

bool isOfThisThread(HWND window)
{
    return window != nullptr && ::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId();
}

void draw(CDC& dc, const ComboItemPicture& picture, const CRect& rect, HIMAGELIST images, const CString& text)
{
    const SavedContext saved(dc);
    if (picture.textColor)
        dc.SetTextColor(::GetSysColor(*picture.textColor));
    if (picture.background)
        dc.SetBkColor(::GetSysColor(*picture.background));
    for (int i = 0; i < picture.focusMarks; ++i)
        dc.DrawFocusRect(rect);
    if (picture.image)
        drawImage(dc, images, *picture.image);
    if (picture.text)
    {
        CRect place = *picture.text;
        dc.FillSolidRect(place, dc.GetBkColor());
        dc.DrawText(text, place, DT_VCENTER);
    }
}
} // namespace

IMPLEMENT_DYNAMIC(CKxComboBoxEx, CComboBoxEx)

BEGIN_MESSAGE_MAP(CKxComboBoxEx, CComboBoxEx)
    // int OnCreate(LPCREATESTRUCT lpCreateStruct)
    ON_WM_CREATE()
    // HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
    ON_WM_CTLCOLOR()
    // void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

CKxComboBoxEx::CKxComboBoxEx()
{
    EnableToolTips(TRUE);
    m_toolTip.Create(this, tipStyle);
}

CKxComboBoxEx::~CKxComboBoxEx()
{
    CWnd* const child = ::IsWindow(m_hWnd) ? GetWindow(GW_CHILD) : nullptr;
    if (child != nullptr && m_toolTip.m_hWnd != nullptr)
        m_toolTip.DelTool(child);
}

void CKxComboBoxEx::SetVariant(bool variant)
{
    m_variant = variant;
}

bool CKxComboBoxEx::GetVariant()
{
    return m_variant;
}

void CKxComboBoxEx::SetVisibility(bool visibility)
{
    m_visibility = visibility;
}

bool CKxComboBoxEx::GetVisibility()
{
    return m_visibility;
}

void CKxComboBoxEx::SetDlgBarParent(CKxDialogBarEx* dialogBar)
{
    m_dialogBar = dialogBar;
    m_dialogBarWindow = dialogBar == nullptr ? nullptr : dialogBar->m_hWnd;
}

void CKxComboBoxEx::AddFormatToolTip(CString text)
{
    CWnd* const child = m_hWnd == nullptr ? nullptr : GetWindow(GW_CHILD);
    if (child != nullptr && m_toolTip.m_hWnd != nullptr)
        m_toolTip.AddWindowTool(child, text);
}

// ---- Messages

int CKxComboBoxEx::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    const int result = CComboBoxEx::OnCreate(lpCreateStruct);
    CWnd* const parent = GetParent();
    auto* bar = dynamic_cast<CKxDialogBarEx*>(parent);
    if (bar == nullptr && parent != nullptr)
        bar = dynamic_cast<CKxDialogBarEx*>(parent->GetParent());
    if (bar != nullptr)
        SetDlgBarParent(bar);
    return result;
}

// The platform tells the parent that the list closes, and then works on with a control that may be gone. So the parent is
// told here, and the platform only works on when there is still a control.
BOOL CKxComboBoxEx::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const Surviving here(*this);
    if (CComboBoxEx::OnCommand(wParam, lParam) || !here)
        return TRUE;
    const HWND control = m_hWnd;
    const HWND parent = ::GetParent(control);
    if (HIWORD(wParam) != CBN_CLOSEUP || !isOfThisThread(parent))
        return FALSE;
    ::SendMessageW(parent, WM_COMMAND, wParam, reinterpret_cast<LPARAM>(control));
    if (!here)
        return TRUE;
    const ClosingHeard heard(parent, control);
    Default();
    return TRUE;
}

HBRUSH CKxComboBoxEx::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    const bool hasBar = m_dialogBar != nullptr && CWnd::FromHandlePermanent(m_dialogBarWindow) == m_dialogBar;
    return hasBar ? m_dialogBar->OnCtlColor(pDC, pWnd, nCtlColor) : CComboBoxEx::OnCtlColor(pDC, pWnd, nCtlColor);
}

void CKxComboBoxEx::OnDrawItem(int /*nIDCtl*/, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CDC* const dc = lpDrawItemStruct == nullptr ? nullptr : CDC::FromHandle(lpDrawItemStruct->hDC);
    if (dc == nullptr)
        return;
    const CRect rect(lpDrawItemStruct->rcItem);
    COMBOBOXEXITEM record = {};
    record.mask = itemImages;
    const auto id = static_cast<int>(lpDrawItemStruct->itemID);
    record.iItem = id;
    GetItem(&record);
    CImageList* const list = GetImageList();
    const HIMAGELIST images = list == nullptr ? nullptr : list->GetSafeHandle();
    const CString text = images == nullptr ? CString() : textOf(*this, id);

    ImageComboItem item = {rect,
                           id,
                           lpDrawItemStruct->itemState,
                           IsWindowEnabled() != FALSE,
                           m_visibility,
                           {record.iImage, record.iSelectedImage, record.iOverlay},
                           record.iIndent,
                           images != nullptr,
                           0,
                           text.IsEmpty() ? 0 : dc->GetTextExtent(text).cx};
    if (images != nullptr)
        item.imageWidth = imageWidth(images, item.ImageIndex());
    if (const auto picture = item.Picture())
        draw(*dc, *picture, rect, images, text);
}
