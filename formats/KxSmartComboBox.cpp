// The window of the smart combo box: its class, its children and what they tell it.
#include "oxa/formats/KxSmartComboBox.h"

#include <memory>
#include "LongFieldText.h"
#include "SmartComboLayout.h"
#include "SmartComboWindow.h"
#include "../frame/Surviving.h"
#include "oxa/dialogs/KxDialogBarEx.h"

namespace
{
constexpr wchar_t windowClass[] = L"CKXSMARTCOMBOBOX";

constexpr DWORD comboStyle =
    WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | CBS_DROPDOWN | CBS_AUTOHSCROLL | CBS_HASSTRINGS;
constexpr DWORD buttonStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
static_assert(comboStyle == 0x50210242 && buttonStyle == 0x50010000);

/// A new object for a window of the class; null when there is no memory for it.
CWnd* attachNew(HWND window)
{
    try
    {
        auto control = std::make_unique<CKxSmartComboBox>();
        return control->Attach(window) ? control.release() : nullptr;
    }
    catch (CException* exception)
    {
        exception->Delete();
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
    return nullptr;
}
} // namespace

IMPLEMENT_DYNAMIC(CKxSmartComboBox, CWnd)

BEGIN_MESSAGE_MAP(CKxSmartComboBox, CWnd)
    // int OnCreate(LPCREATESTRUCT cs)
    ON_WM_CREATE()
    // void OnButtonAdd()
    ON_COMMAND(ID_ADD, &CKxSmartComboBox::OnButtonAdd)
    // void OnButtonDelete()
    ON_COMMAND(ID_DELETE, &CKxSmartComboBox::OnButtonDelete)
    // void OnLeftButtonBitmap()
    ON_COMMAND(ID_LEFT_BITMAP, &CKxSmartComboBox::OnLeftButtonBitmap)
    // void OnRightButtonBitmap()
    ON_COMMAND(ID_RIGHT_BITMAP, &CKxSmartComboBox::OnRightButtonBitmap)
    // void OnSelchangeCombo()
    ON_CBN_SELCHANGE(ID_COMBO, &CKxSmartComboBox::OnSelchangeCombo)
    // void OnSelchangeOkCombo()
    ON_CBN_SELENDOK(ID_COMBO, &CKxSmartComboBox::OnSelchangeOkCombo)
    // void OnEditUpdate()
    ON_CBN_EDITUPDATE(ID_COMBO, &CKxSmartComboBox::OnEditUpdate)
    // void OnPaint()
    ON_WM_PAINT()
    // void OnSetFocus(CWnd* before)
    ON_WM_SETFOCUS()
    // void OnLButtonDown(UINT flags, CPoint point)
    ON_WM_LBUTTONDOWN()
    // HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT ctlColor)
    ON_WM_CTLCOLOR()
    // void OnSize(UINT type, int cx, int cy)
    ON_WM_SIZE()
    // void OnKeyDown(UINT key, UINT repeat, UINT flags)
    ON_WM_KEYDOWN()
    // void OnEnable(BOOL enable)
    ON_WM_ENABLE()
    // LRESULT OnButtonSelChanged(WPARAM wParam, LPARAM index)
    ON_MESSAGE(WM_KX_BUTTONCOMBO_SELECT, &CKxSmartComboBox::OnButtonSelChanged)
END_MESSAGE_MAP()

CKxSmartComboBox::CKxSmartComboBox()
{
    m_toolTip.Create(this);
}

CKxSmartComboBox::~CKxSmartComboBox()
{
    ForEachPicture([this](CWnd& picture) { m_toolTip.DelTool(&picture); });
    m_data.formatList.RemoveAll();
    m_isEnding = true;
    CWnd::DestroyWindow(); // while there is what its last messages reach
}

void CKxSmartComboBox::PostNcDestroy()
{
    if (!m_isEnding)
        delete this;
}

// ---- The window class

BOOL CKxSmartComboBox::RegisterWndClass(HINSTANCE instance)
{
    WNDCLASSW record = {};
    record.style = CS_GLOBALCLASS;
    record.lpfnWndProc = &CKxSmartComboBox::ClassProc;
    record.hInstance = instance;
    record.lpszClassName = windowClass;
    WNDCLASSW known = {};
    return ::GetClassInfoW(instance, windowClass, &known) || ::RegisterClassW(&record) != 0;
}

LRESULT CALLBACK CKxSmartComboBox::ClassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (object == nullptr && message != WM_DESTROY && message != WM_NCDESTROY)
        object = attachNew(window);
    // An object that subclassed the window has had the message, and asks here for what the system does with it.
    const WNDPROC* const super = object == nullptr ? nullptr : object->GetSuperWndProcAddr();
    if (object == nullptr || (super != nullptr && *super == &CKxSmartComboBox::ClassProc))
        return ::DefWindowProcW(window, message, wParam, lParam);
    return AfxCallWndProc(object, window, message, wParam, lParam);
}

void CKxSmartComboBox::SetAddressProcToNull()
{
    if (WNDPROC* const super = GetSuperWndProcAddr())
        *super = nullptr;
}

// ---- Creation

SmartComboLayout CKxSmartComboBox::Layout() const
{
    CRect client;
    if (m_hWnd != nullptr)
        GetClientRect(&client);
    return {client.Size(), FontHeight(), m_data.showButtons != 0};
}

int CKxSmartComboBox::FontHeight()
{
    LOGFONT font = {};
    ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
    return font.lfHeight;
}

int CKxSmartComboBox::OnCreate(LPCREATESTRUCT cs)
{
    if (CWnd::OnCreate(cs) == -1)
        return -1;
    CreateCombo();
    const SmartComboLayout layout = Layout();
    m_addButton.Create(L"+", buttonStyle, layout.AddButton(), this, ID_ADD);
    m_deleteButton.Create(L"-", buttonStyle, layout.DeleteButton(), this, ID_DELETE);
    LeaveButtonsFree();
    FindDialogBar();
    return 0;
}

void CKxSmartComboBox::CreateCombo()
{
    const SmartComboLayout layout = Layout();
    m_combo.Create(m_data.sort != 0 ? comboStyle | CBS_SORT : comboStyle, layout.Combo(), this, ID_COMBO);
    m_combo.SubclassDlgItem(ID_COMBO, GetOwner()); // changes nothing: the combo box has its window
    if (m_combo.m_hWnd == nullptr)
        return;
    m_combo.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    m_combo.SetItemHeight(-1, static_cast<UINT>(layout.FieldHeight()));
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof parts;
    if (m_combo.GetComboBoxInfo(&parts))
        LongFieldText::Watch(parts.hwndItem);
}

void CKxSmartComboBox::FindDialogBar()
{
    CWnd* const parent = GetParent();
    m_dialogBar = dynamic_cast<CKxDialogBarEx*>(parent);
    if (m_dialogBar == nullptr && parent != nullptr)
        m_dialogBar = dynamic_cast<CKxDialogBarEx*>(parent->GetParent());
    m_dialogBarWindow = m_dialogBar == nullptr ? nullptr : m_dialogBar->m_hWnd;
}

// ---- Places of the children

void CKxSmartComboBox::MoveCombo(const RECT& place)
{
    if (m_combo.m_hWnd == nullptr)
        return;
    m_combo.MoveWindow(&place);
    LeaveButtonsFree();
}

// The combo box lies under the buttons: there it neither paints nor takes clicks.
void CKxSmartComboBox::LeaveButtonsFree()
{
    if (m_combo.m_hWnd == nullptr)
        return;
    CRect combo;
    m_combo.GetWindowRect(&combo);
    CRgn shown;
    shown.CreateRectRgn(0, 0, 0x7FFF, 0x7FFF);
    for (const CButton* const button : {&m_addButton, &m_deleteButton})
    {
        if (button->m_hWnd == nullptr || m_data.showButtons == 0)
            continue;
        CRect place;
        button->GetWindowRect(&place);
        place.OffsetRect(-combo.left, -combo.top);
        CRgn taken;
        taken.CreateRectRgn(place.left, place.top, place.right, place.bottom);
        shown.CombineRgn(&shown, &taken, RGN_DIFF);
    }
    if (m_combo.SetWindowRgn(shown, TRUE) != 0)
        shown.Detach(); // the system has it now
}

void CKxSmartComboBox::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    if (m_combo.m_hWnd == nullptr)
        return;
    CRect combo;
    m_combo.GetWindowRect(&combo);
    ScreenToClient(&combo);
    m_combo.MoveWindow(SmartComboLayout::Widened(combo, cx));
}

void CKxSmartComboBox::SetVisibleAddDelete(int show)
{
    m_data.showButtons = show;
    for (CButton* const button : {&m_addButton, &m_deleteButton})
    {
        if (button->m_hWnd == nullptr)
            continue;
        button->ModifyStyle(show != 0 ? 0 : WS_VISIBLE, show != 0 ? WS_VISIBLE : 0);
        button->Invalidate();
    }
    const std::optional<CRect> place = Layout().ComboWithoutButtons(m_data.bitmapMode);
    if (show == 0 && place)
        MoveCombo(*place);
    else
        LeaveButtonsFree();
}

int CKxSmartComboBox::GetActivateButton() const
{
    return m_data.showButtons;
}

void CKxSmartComboBox::SetEnableAddDelete(int add, int del)
{
    const std::optional<SmartComboButtonsState> state = SmartComboButtonsState::Of(add != 0, del != 0);
    if (!state || m_addButton.m_hWnd == nullptr || m_deleteButton.m_hWnd == nullptr)
        return;
    m_addButton.EnableWindow(state->add);
    m_deleteButton.EnableWindow(state->remove);
}

BOOL CKxSmartComboBox::EnableWindow(int enable)
{
    const BOOL before = m_combo.m_hWnd != nullptr && m_combo.EnableWindow(enable);
    for (CWnd* const child :
         {static_cast<CWnd*>(&m_buttonCombo), static_cast<CWnd*>(&m_leftBitmap), static_cast<CWnd*>(&m_rightBitmap)})
        if (child->m_hWnd != nullptr)
            child->EnableWindow(enable);
    return before;
}

// ---- Messages

// Beside the picker the field reaches below the buttons, and may have been painted there.
BOOL CKxSmartComboBox::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const Surviving here(*this);
    const BOOL taken = CWnd::OnCommand(wParam, lParam);
    if (here && LOWORD(wParam) == ID_COMBO && m_data.showButtons != 0)
    {
        m_addButton.Invalidate(FALSE);
        m_deleteButton.Invalidate(FALSE);
    }
    return taken;
}

void CKxSmartComboBox::OnButtonAdd()
{
    SmartComboCall(*this)->OnButtonAdd();
}

void CKxSmartComboBox::OnButtonDelete()
{
    SmartComboCall(*this)->OnButtonDelete();
}

// The host's code behind the click finds the host's resources.
void CKxSmartComboBox::OnLeftButtonBitmap()
{
    AFX_MANAGE_STATE(AfxGetAppModuleState());
    if (m_data.bitmapMode == BITMAPMODE_SINGLE)
        BitmapButtonClick();
    else
        LeftBitmapButtonClick();
}

void CKxSmartComboBox::OnRightButtonBitmap()
{
    AFX_MANAGE_STATE(AfxGetAppModuleState());
    RightBitmapButtonClick();
}

void CKxSmartComboBox::OnSelchangeCombo()
{
    SmartComboCall(*this)->OnSelchangeCombo();
}

void CKxSmartComboBox::OnSelchangeOkCombo()
{
    SmartComboCall(*this)->OnSelchangeOkCombo();
}

void CKxSmartComboBox::OnEditUpdate()
{
    SmartComboCall(*this)->OnEditUpdate();
}

LRESULT CKxSmartComboBox::OnButtonSelChanged(WPARAM /*wParam*/, LPARAM index)
{
    SmartComboCall(*this)->OnButtonSelChanged(index);
    return 0;
}

void CKxSmartComboBox::OnSetFocus(CWnd* before)
{
    CWnd::OnSetFocus(before);
    if (m_combo.m_hWnd != nullptr)
        m_combo.SetFocus();
}

void CKxSmartComboBox::OnLButtonDown(UINT /*flags*/, CPoint /*point*/)
{
    if (m_combo.m_hWnd != nullptr)
        m_combo.SetFocus();
}

void CKxSmartComboBox::OnKeyDown(UINT key, UINT /*repeat*/, UINT /*flags*/)
{
    if (key == VK_ESCAPE && m_combo.m_hWnd != nullptr)
        m_combo.SetFocus();
}

void CKxSmartComboBox::OnEnable(BOOL enable)
{
    EnableWindow(enable);
}

HBRUSH CKxSmartComboBox::OnCtlColor(CDC* dc, CWnd* wnd, UINT ctlColor)
{
    const bool hasBar = m_dialogBar != nullptr && CWnd::FromHandlePermanent(m_dialogBarWindow) == m_dialogBar;
    return hasBar ? m_dialogBar->OnCtlColor(dc, wnd, ctlColor) : CWnd::OnCtlColor(dc, wnd, ctlColor);
}
