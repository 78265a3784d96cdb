// The tree of the tree list: editing in place, from the click or key that opens the editor to the commit.
#include "EditRules.h"
#include "NativeTree.h"
#include "TreeWork.h"

#include <memory>
#include <utility>

#include "kitrel/KxUnitCtrl.h"

namespace
{

constexpr DWORD editorStyle = WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL | ES_MULTILINE;
static_assert(editorStyle == 0x50810084);
constexpr UINT editorId = 1;

/// The limits of a value that is typed. Kept on purpose: the lower one is no negative number.
constexpr double smallestValue = 1.797693134862316e-150;
constexpr double largestValue = 1.7976931348623157e+150;

CString TextOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return text;
}

/// Of all columns, as a cell search takes them.
std::vector<int> WidthsOf(CKxTreeListViewCtrl& tree)
{
    std::vector<int> widths;
    for (int column = 0; column < tree.GetColumnsNum(); ++column)
        widths.push_back(tree.GetColumnWidth(column));
    return widths;
}

} // namespace

// ---- Which cell

bool CKxTreeListViewCtrl::GetCanEditColumn(const CPoint& point)
{
    int column = -1;
    CRect rect;
    return GetCanModifyLabels() && GetSelectionData(point, column, rect) && m_columns.CanEdit(column);
}

bool CKxTreeListViewCtrl::GetSelectionData(const CPoint& point, int& column, CRect& rect)
{
    const HTREEITEM node = m_keyEdit ? GetSelectedItem() : HitTest(point);
    CRect text;
    if (!GetItemRect(node, &text, TRUE))
        text.SetRectEmpty();
    treelist::CellSearch search;
    search.mouseX = point.x;
    search.byKey = m_keyEdit;
    search.editColumn = m_editColumn;
    search.offset = m_horizontalOffset;
    CKxTreeListFrame* const frame = treelist::NativeTree(*this).Frame();
    if (frame != nullptr && frame->HorizontalScrollVisible())
        search.barPosition = frame->m_scrollBar.GetScrollPos();
    const treelist::FoundCell found = treelist::FindCell(search, text, WidthsOf(*this));
    column = found.column;
    rect = found.rect;
    return true;
}

CWnd* CKxTreeListViewCtrl::ParentOfFrame() const
{
    const HWND parent = ::GetParent(m_hWnd);
    return parent == nullptr ? nullptr : CWnd::FromHandle(::GetParent(parent));
}

// ---- Opening

bool CKxTreeListViewCtrl::IsColumnOfUnits(int column) const
{
    return m_columns.CanEdit(column) && m_columns.HasUnit(column) && UnitManager() != nullptr;
}

CEdit* CKxTreeListViewCtrl::GetEditControl(int column, CRect& rect)
{
    if (!m_columns.Contains(column))
        return nullptr;
    const bool ofUnits = IsColumnOfUnits(column);
    std::unique_ptr<CEdit> editor = ofUnits ? std::make_unique<CKxUnitCtrl>(1) : std::make_unique<CEdit>();
    if (!editor->CEdit::Create(editorStyle, rect, this, editorId))
        return nullptr;
    editor->SetFont(GetFont(), TRUE);
    if (ofUnits)
    {
        CKxUnit unit = UnitManager()->GetVisUnit(m_columns.UnitFamily(column));
        static_cast<CKxUnitCtrl&>(*editor).SetDefaultValues(this, editorId, 0.0, unit, smallestValue, largestValue);
    }
    return editor.release();
}

void CKxTreeListViewCtrl::OnBeginLabelEdit(NMHDR* notify, LRESULT* result)
{
    *result = 1; // the platform's own editor never opens
    DropLostEditor();
    if (m_pEdit != nullptr)
    {
        m_pEdit->SetFocus();
        return;
    }
    const HTREEITEM item = reinterpret_cast<const NMTVDISPINFO*>(notify)->item.hItem;
    if (m_rows->Find(treelist::NativeTree(*this).Param(item)) == nullptr)
        return;
    CPoint point(GetCurrentMessage()->pt);
    ScreenToClient(&point);
    int column = 0;
    CRect rect;
    GetSelectionData(point, column, rect);
    FreeEditControl();
    if (m_columns.CanEdit(column))
        CreateEditor(item, column, rect);
}

void CKxTreeListViewCtrl::CreateEditor(HTREEITEM item, int column, CRect& rect)
{
    m_pEdit = GetEditControl(column, rect);
    m_editState = m_pEdit == nullptr ? EDIT_STATE_NONE : EDIT_STATE_EDITING;
    if (m_pEdit == nullptr)
        return;
    ++m_editsOpened;
    m_editedItem = item;
    m_editColumn = column;
    m_pEdit->SetWindowText(GetItemText(item, column));
    m_pEdit->SetFocus();
}

// ---- Ending

void CKxTreeListViewCtrl::SetEditState(const eEditState& state)
{
    m_editState = state;
}

/// Somebody else destroyed the editor's window: nothing is being edited any more.
void CKxTreeListViewCtrl::DropLostEditor()
{
    if (m_pEdit != nullptr && m_pEdit->m_hWnd == nullptr)
        FreeEditControl();
}

void CKxTreeListViewCtrl::FreeEditControl()
{
    const std::unique_ptr<CEdit> editor(std::exchange(m_pEdit, nullptr));
    m_editState = EDIT_STATE_NONE;
    m_editedItem = nullptr;
    if (editor != nullptr)
        editor->DestroyWindow();
}

bool CKxTreeListViewCtrl::GetCanUpdateCloseTree()
{
    return m_pEdit == nullptr || ProcessEditNotification();
}

void CKxTreeListViewCtrl::DoDataExchange(CDataExchange* dx)
{
    CTreeCtrl::DoDataExchange(dx);
    auto* const editor = dynamic_cast<CKxUnitCtrl*>(m_pEdit);
    if (editor != nullptr)
        DDX_UnitCtrl(dx, editorId, *editor, L"%.*f");
}

bool CKxTreeListViewCtrl::ProcessEditNotification()
{
    DropLostEditor();
    if (m_pEdit == nullptr)
        return true;
    if (m_editState != EDIT_STATE_EDITING)
    {
        FreeEditControl();
        return true;
    }
    const Surviving here(*this);
    const unsigned edit = m_editsOpened;
    CString trimmed = TextOf(*m_pEdit);
    trimmed.Trim();
    const BOOL accepted = UpdateData(TRUE);
    if (here)
        DropLostEditor();
    if (!here || m_pEdit == nullptr || m_editsOpened != edit)
        return true; // ended meanwhile
    if (!accepted)
    {
        m_pEdit->SetFocus();
        return false;
    }
    if (m_editState != EDIT_STATE_EDITING)
        return true;
    if (m_columns.CanEdit(m_editColumn) && !WriteEditedCell(trimmed))
        return true;
    FreeEditControl();
    return true;
}

/// False when the edit, or the control, ended while the host handled a message.
bool CKxTreeListViewCtrl::WriteEditedCell(const CString& trimmed)
{
    const Surviving here(*this);
    const unsigned edit = m_editsOpened;
    const int column = m_editColumn;
    const HWND target = ParentOfFrame()->GetSafeHwnd();
    const HTREEITEM node = GetSelectedItem();
    const auto isOpen = [&]
    { return here && m_pEdit->GetSafeHwnd() != nullptr && m_editsOpened == edit && m_editState == EDIT_STATE_EDITING; };
    const auto tell = [&](UINT message)
    {
        HTREEITEM told = node;
        if (target != nullptr)
            ::SendMessage(target, message, reinterpret_cast<WPARAM>(&told), column);
    };
    const auto hasRow = [&]
    { return m_editedItem != nullptr && m_rows->Find(treelist::NativeTree(*this).Param(node)); };
    if (!hasRow())
        return true;
    tell(WM_KX_TREELIST_EDIT_BEFORE);
    if (!isOpen())
        return here && m_pEdit != nullptr && m_editsOpened == edit;
    if (!hasRow())
        return true;
    CString text = TextOf(*m_pEdit);
    auto* const unitEditor = dynamic_cast<CKxUnitCtrl*>(m_pEdit);
    if (unitEditor != nullptr)
    {
        if (trimmed.IsEmpty() || trimmed == unitEditor->GetUnit()->GetName())
            return true; // no value was entered
        const double value = unitEditor->GetValueSI();
        text = FormatValue(value, column);
        SetItemValue(node, column, value);
    }
    SetItemText(node, column, text);
    tell(WM_KX_TREELIST_EDIT_AFTER);
    return here && m_pEdit != nullptr && m_editsOpened == edit;
}

LRESULT CKxTreeListViewCtrl::OnEditKillFocus(WPARAM, LPARAM)
{
    return 1; // an editor does not close on loss of focus
}

// ---- Mouse and keys

void CKxTreeListViewCtrl::OnLButtonDown(UINT flags, CPoint point)
{
    const Surviving here(*this);
    const auto tellParent = [&](UINT message)
    {
        CPoint told = point;
        const HWND parent = ::GetParent(m_hWnd);
        if (parent != nullptr)
            ::SendMessage(parent, message, flags, reinterpret_cast<LPARAM>(&told));
        return static_cast<bool>(here);
    };
    if (!tellParent(WM_KX_TREELIST_CLICK_BEFORE))
        return;
    UINT hit = 0;
    const HTREEITEM item = HitTest(point, &hit);
    bool outside = (hit & (TVHT_ONITEMRIGHT | TVHT_ONITEMINDENT | TVHT_ONITEM)) == 0;
    if (!outside)
        ClickRow(item);
    if (here && PressButton(point))
        outside = false;
    if (here && outside && m_pEdit != nullptr)
        ProcessEditNotification();
    if (here && m_pEdit == nullptr)
        SetFocus();
    if (here)
        ResetVertScrollBar();
    if (here)
        tellParent(WM_KX_TREELIST_CLICK_AFTER);
}

void CKxTreeListViewCtrl::ClickRow(HTREEITEM item)
{
    const Surviving here(*this);
    bool mayMove = true;
    if (m_pEdit != nullptr)
        mayMove = ProcessEditNotification();
    else if (item == GetSelectedItem())
        EditLabel(item);
    if (here && mayMove)
        SelectItem(item);
}

/// Whether the point is on a button in column 0, which then expands or collapses its row.
bool CKxTreeListViewCtrl::PressButton(CPoint point)
{
    if (m_columnCount != 0 && point.x >= GetColumnWidth(0))
        return false;
    point.x -= m_horizontalOffset;
    UINT hit = 0;
    const HTREEITEM item = HitTest(point, &hit);
    if ((hit & TVHT_ONITEMBUTTON) == 0)
        return false;
    const Surviving here(*this);
    const bool waits = GetCanModifyLabels() && m_pEdit != nullptr;
    if ((!waits || ProcessEditNotification()) && here)
        Expand(item, TVE_TOGGLE);
    return true;
}

void CKxTreeListViewCtrl::OnLButtonDblClk(UINT flags, CPoint point)
{
    const Surviving here(*this);
    if (m_columnCount == 0 || point.x < GetColumnWidth(0))
    {
        {
            treelist::TreeWork::Hold hold;
            hold.nodes[0] = HitTest(point);
            const treelist::TreeWork::Scope working(m_work, hold);
            CTreeCtrl::OnLButtonDblClk(flags, point);
        }
        if (here)
            ResetVertScrollBar();
    }
    else if (CWnd* const target = ParentOfFrame(); target != nullptr)
        ::SendNotifyMessage(target->m_hWnd, WM_LBUTTONDBLCLK, 0, LPARAM{point.y} * 0x10000 + point.x);
    if (here)
        SetFocus();
}

void CKxTreeListViewCtrl::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    const Surviving here(*this);
    {
        treelist::TreeWork::Hold hold;
        hold.nodes[0] = GetSelectedItem();
        const treelist::TreeWork::Scope working(m_work, hold);
        CTreeCtrl::OnKeyDown(key, repeat, flags);
    }
    if (here)
    {
        ResetVertScrollBar();
        DropLostEditor();
    }
    if (!here || !GetCanModifyLabels() || !treelist::KeyOpensEditor(key) || m_pEdit != nullptr)
        return;
    m_keyEdit = true;
    const HTREEITEM selected = GetSelectedItem();
    if (UnitManager() != nullptr)
        m_editColumn = m_columns.FirstEditedUnit(m_editColumn);
    if (selected != nullptr && m_columns.CanEdit(m_editColumn))
        EditLabel(selected);
    if (!here)
        return;
    if (m_pEdit != nullptr)
        m_pEdit->PostMessage(WM_KEYDOWN, key, treelist::KeyBits(repeat, flags));
    m_keyEdit = false;
}

void CKxTreeListViewCtrl::OnKillFocus(CWnd* next)
{
    CTreeCtrl::OnKillFocus(next);
}

void CKxTreeListViewCtrl::OnClick(NMHDR*, LRESULT*)
{
    GetSelectedItem(); // the answer is dropped, and the result stays as it came
}

void CKxTreeListViewCtrl::OnKillfocus(NMHDR*, LRESULT* result)
{
    *result = 0;
}
