// A drop-down list of colours: its rows, their drawing, and the row that asks the parent for another colour.
#include "oxa/dropdowns/KxComboColorPicker.h"

#include "../frame/HandedOn.h"
#include "../frame/Module.h"
#include "../frame/SavedContext.h"
#include "../frame/Surviving.h"
#include "ColorComboItem.h"
#include "kitrel/KxPrompts.h"

namespace
{
constexpr LONG pickerStyle = 0x200013; // WS_VSCROLL, CBS_OWNERDRAWFIXED, CBS_DROPDOWNLIST
static_assert(pickerStyle == (WS_VSCROLL | CBS_OWNERDRAWFIXED | CBS_DROPDOWNLIST));
constexpr auto startColors = ColorComboItem::StartColors();

CString otherPrompt()
{
    return KxPrompts::getPrompt(ColorComboItem::otherPrompt, c_promptsProject, 0);
}

void fill(CDC& dc, const CRect& place, COLORREF color)
{
    dc.SetBkColor(color);
    dc.ExtTextOut(place.left, place.top, ETO_OPAQUE, &place, L"", 0, nullptr);
}

void drawOther(CDC& dc, CRect place)
{
    fill(dc, place, ::GetSysColor(COLOR_WINDOW));
    dc.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    dc.DrawText(otherPrompt(), &place, DT_CENTER);
}
} // namespace

const COLORREF CKxComboColorPicker::VGAColorsArray[9] = {startColors[0], startColors[1], startColors[2],
                                                         startColors[3], startColors[4], startColors[5],
                                                         startColors[6], startColors[7], startColors[8]};
static_assert(startColors.size() == 9);

IMPLEMENT_DYNAMIC(CKxComboColorPicker, CComboBox)

BEGIN_MESSAGE_MAP(CKxComboColorPicker, CComboBox)
    // int OnCreate(LPCREATESTRUCT lpCreateStruct)
    ON_WM_CREATE()
END_MESSAGE_MAP()

CKxComboColorPicker::CKxComboColorPicker() = default;
CKxComboColorPicker::~CKxComboColorPicker() = default;

// ---- Rows

int CKxComboColorPicker::AddColor(unsigned long color)
{
    const int index = AddString(L"");
    if (index >= 0)
        SetItemData(index, color);
    return index;
}

int CKxComboColorPicker::InsertColor(unsigned long color, int index)
{
    const int inserted = InsertString(index, L"");
    if (inserted >= 0)
        SetItemData(inserted, color);
    return inserted;
}

int CKxComboColorPicker::ChangeColor(unsigned long color, int index)
{
    return SetItemData(index, color);
}

COLORREF CKxComboColorPicker::GetColorRef(int index) const
{
    return static_cast<COLORREF>(GetItemData(index));
}

COLORREF CKxComboColorPicker::GetColor() const
{
    return GetColorRef(GetCurSel());
}

int CKxComboColorPicker::GetColorIndex(unsigned long color)
{
    static_assert(colorrows::ColorRows<CKxComboColorPicker>);
    return colorrows::GetColorIndex(*this, color, m_lastIndex);
}

int CKxComboColorPicker::GetLastIndex() const
{
    return m_lastIndex;
}

void CKxComboColorPicker::ResetContent()
{
    CComboBox::ResetContent();
}

// ---- Filling

int CKxComboColorPicker::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    lpCreateStruct->style = pickerStyle;
    if (CComboBox::OnCreate(lpCreateStruct) == -1)
        return -1;
    InitializeData();
    return 0;
}

void CKxComboColorPicker::PreSubclassWindow()
{
    InitializeData();
    CComboBox::PreSubclassWindow();
}

void CKxComboColorPicker::InitializeData()
{
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    // A window that is being created takes no rows yet: they come behind its WM_CREATE.
    if (m_initialized || !GetComboBoxInfo(&info))
        return;
    m_initialized = true;
    for (const COLORREF color : VGAColorsArray)
        AddColor(color);
    SetItemData(AddString(otherPrompt()), 0); // a list without texts would keep the text's address as the row's value
    m_lastIndex = static_cast<int>(startColors.size());
}

// ---- Drawing and asking

void CKxComboColorPicker::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CDC* const dc = lpDrawItemStruct == nullptr ? nullptr : CDC::FromHandle(lpDrawItemStruct->hDC);
    if (dc == nullptr)
        return;
    const DRAWITEMSTRUCT& item = *lpDrawItemStruct;
    const ColorRow row = ColorComboItem::Of(item.itemID, m_lastIndex, item.itemState);
    const SavedContext saved(*dc);
    if (row == ColorRow::Other)
        drawOther(*dc, item.rcItem);
    else if (row != ColorRow::Nothing)
        fill(*dc, item.rcItem, static_cast<COLORREF>(item.itemData));
    if (row == ColorRow::FramedColor)
        ::FrameRect(item.hDC, &item.rcItem, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
}

// What the list inside tells the picker: its codes are those of the picker's own notifications.
BOOL CKxComboColorPicker::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const auto self = static_cast<WPARAM>(reinterpret_cast<UINT_PTR>(this));
    if (!ColorComboItem::AsksParent(HIWORD(wParam), GetCurSel(), m_lastIndex) ||
        IsHandingOn(m_hWnd, WM_KX_PICK_OTHER_COLOR, self, 0))
        return CComboBox::OnCommand(wParam, lParam);
    AskParent();
    return TRUE;
}

void CKxComboColorPicker::AskParent()
{
    const auto self = static_cast<WPARAM>(reinterpret_cast<UINT_PTR>(this));
    const Surviving here(*this);
    const HandedOn asking(m_hWnd, WM_KX_PICK_OTHER_COLOR, self, 0);
    if (GetDroppedState())
        ShowDropDown(FALSE); // nobody else closes the list: the box does not hear of this click
    if (!here)
        return;
    CWnd* const parent = GetParent();
    const LRESULT row = parent == nullptr ? 0 : parent->SendMessage(WM_KX_PICK_OTHER_COLOR, self, 0);
    if (here)
        SetCurSel(static_cast<int>(row));
}
