// The frame of the tree list: its children, the sort by a click on the header, rows that are found or added, editing keys.
#include "oxa/treelist/KxTreeListFrame.h"

#include "BusyWindow.h"
#include "FrameRows.h"
#include "HeaderRules.h"
#include "NativeTree.h"
#include "ScrollRules.h"
#include "SortWalk.h"
#include "TreeWork.h"
#include "../frame/Surviving.h"

namespace
{
constexpr wchar_t windowClass[] = L"KORVELTREELISTCTRL";

constexpr DWORD headerStyle = WS_CHILD | WS_VISIBLE | HDS_BUTTONS | HDS_HOTTRACK;
constexpr DWORD treeStyle = WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS;
constexpr DWORD editableTreeStyle = TVS_EDITLABELS | WS_TABSTOP;
constexpr DWORD scrollBarStyle = WS_CHILD | WS_VISIBLE | WS_DISABLED | SBS_TOPALIGN;
static_assert(headerStyle == 0x50000006 && scrollBarStyle == 0x58000002);

constexpr int sortImageWidth = 16;
constexpr int sortImageGrow = 10;
constexpr wchar_t sortImageBitmap[] = L""; // names no bitmap: the host sets a list of its own

constexpr UINT firstDigitKey = 48;
constexpr UINT lastDigitKey = 57;

HINSTANCE thisModule()
{
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         windowClass, &module);
    return module;
}

/// For a header that is telling a host of something.
void leaveHeader(HWND window)
{
    if (CWnd* const header = CWnd::FromHandlePermanent(window))
        header->Detach();
    treelist::BusyWindow::GiveUp(window);
}

int heightOfTextA(CWnd& window, CFont& font)
{
    CClientDC dc(&window);
    const HGDIOBJ before = font.m_hObject != nullptr ? ::SelectObject(dc.m_hDC, font.m_hObject) : nullptr;
    const int height = dc.GetTextExtent(L"A", 1).cy;
    if (before != nullptr)
        ::SelectObject(dc.m_hDC, before);
    return height;
}

/// The rows as the search for a row sees them.
struct FrameRows
{
    using Node = HTREEITEM;
    CKxTreeListViewCtrl& tree;

    Node FirstChild(Node node) { return node == nullptr ? tree.GetRootItem() : tree.GetChildItem(node); }
    Node NextSibling(Node node) { return tree.GetNextSiblingItem(node); }
    CString Cell(Node node, int column) { return tree.GetItemText(node, column); }
    double Value(Node node) { return tree.GetItemValue(node, 1); }
    CString FormatValue(double value, int column) { return tree.FormatValue(value, column); }
    Node Append(Node parent, const CString& text) { return tree.InsertItem(text, 0, 0, parent, TVI_LAST); }
    void SetCell(Node node, int column, const CString& text) { tree.SetItemText(node, column, text); }
    void SetValue(Node node, int column, double value) { tree.SetItemValue(node, column, value); }
};
} // namespace

IMPLEMENT_DYNAMIC(CKxTreeListFrame, CWnd)

BEGIN_MESSAGE_MAP(CKxTreeListFrame, CWnd)
    // void OnHScroll(UINT code, UINT pos, CScrollBar* bar)
    ON_WM_HSCROLL()
    // void OnContextMenu(CWnd* window, CPoint point)
    ON_WM_CONTEXTMENU()
    // void OnSize(UINT type, int cx, int cy)
    ON_WM_SIZE()
    // void OnMove(int x, int y)
    ON_WM_MOVE()
    // void OnDestroy()
    ON_WM_DESTROY()
    // LRESULT OnTreeListViewLeftClickBefore(WPARAM flags, LPARAM point)
    ON_MESSAGE(WM_KX_TREELIST_CLICK_BEFORE, &CKxTreeListFrame::OnTreeListViewLeftClickBefore)
    // LRESULT OnTreeListViewLeftClickAfter(WPARAM flags, LPARAM point)
    ON_MESSAGE(WM_KX_TREELIST_CLICK_AFTER, &CKxTreeListFrame::OnTreeListViewLeftClickAfter)
    // void OnKeyDown(UINT key, UINT repeat, UINT flags)
    ON_WM_KEYDOWN()
    // void OnKillFocus(CWnd* next)
    ON_WM_KILLFOCUS()
    // void OnSetFocus(CWnd* before)
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

CKxTreeListFrame::CKxTreeListFrame() = default;

CKxTreeListFrame::~CKxTreeListFrame()
{
    DestroyWindow();
}

void CKxTreeListFrame::RegisterClassW()
{
    WNDCLASSW record = {};
    record.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_GLOBALCLASS;
    record.lpfnWndProc = ::DefWindowProcW;
    record.hInstance = thisModule();
    record.hbrBackground = static_cast<HBRUSH>(::GetStockObject(LTGRAY_BRUSH));
    record.lpszClassName = windowClass;
    WNDCLASSW known = {};
    if (!::GetClassInfoW(record.hInstance, windowClass, &known))
        ::RegisterClassW(&record);
}

BOOL CKxTreeListFrame::SubclassDlgItem(UINT id, CWnd* parent)
{
    if (!CWnd::SubclassDlgItem(id, parent))
        return FALSE;
    Initialize();
    return TRUE;
}

// ---- Creation

void CKxTreeListFrame::Initialize()
{
    if (m_hWnd == nullptr || m_tree.m_hWnd != nullptr || m_tree.m_header.m_hWnd != nullptr)
        return;
    m_recalculationHeld = false;
    CRect window;
    GetWindowRect(&window);
    CKxHeaderCtrl& header = m_tree.m_header;
    if (!header.Create(headerStyle, CRect(-1, -1, 0, 0), this, ID_HEADER))
        return;
    CopyParentFont();
    const treelist::FirstLayout first =
        treelist::LayOutFirst(window.Size(), heightOfTextA(header, m_tree.m_headerFont),
                              ::GetSystemMetrics(SM_CYHSCROLL), ::GetSystemMetrics(SM_CXVSCROLL), window.bottom);
    header.SetWindowPos(nullptr, first.header.left, first.header.top, first.header.Width(), first.header.Height(),
                        SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    m_tree.m_sortImages.Create(sortImageBitmap, sortImageWidth, sortImageGrow, 0);
    header.SetSortImageList(&m_tree.m_sortImages);
    m_tree.Create(m_canModifyLabels ? treeStyle | editableTreeStyle : treeStyle, first.tree, this, ID_TREE);
    m_scrollBar.Create(scrollBarStyle, first.bar, this, ID_SCROLL_BAR);
    treelist::BusyWindow::Watch(header.m_hWnd, {leaveHeader, nullptr});
    m_tree.WatchWork();
    treelist::BusyWindow::Watch(m_scrollBar.m_hWnd);
    SortTree(0, 1, m_tree.GetRootItem());
}

void CKxTreeListFrame::CopyParentFont()
{
    const CWnd* const parent = GetParent();
    CFont* const font = parent == nullptr ? nullptr : parent->GetFont();
    LOGFONT description = {};
    if (font == nullptr || !font->GetLogFont(&description))
        return;
    m_tree.m_headerFont.DeleteObject();
    m_tree.m_headerFont.CreateFontIndirect(&description);
    m_tree.m_header.SetFont(&m_tree.m_headerFont);
}

void CKxTreeListFrame::OnDestroy()
{
    const Surviving here(*this);
    m_tree.LeaveBusyWindow();
    if (!here)
        return;
    if (treelist::BusyWindow::IsBusy(m_tree.m_header.m_hWnd))
        leaveHeader(m_tree.m_header.m_hWnd);
    if (here)
        CWnd::OnDestroy();
}

BOOL CKxTreeListFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    return CWnd::PreCreateWindow(cs);
}

CKxHeaderCtrl& CKxTreeListFrame::GetHeaderCtrl()
{
    return m_tree.m_header;
}

// ---- Rows

void CKxTreeListFrame::SortTree(int col, int ascending, HTREEITEM first)
{
    treelist::WalkAndSort(treelist::NativeTree(m_tree), first,
                          [&](HTREEITEM node) { m_tree.SortItems(col, ascending, node); });
}

HTREEITEM CKxTreeListFrame::GetElementItemByString(CString text)
{
    FrameRows rows = {m_tree};
    return treelist::FindChildByText(rows, HTREEITEM(), text);
}

HTREEITEM CKxTreeListFrame::InsertItemIfNecessary(HTREEITEM parent, CString name, int value)
{
    FrameRows rows = {m_tree};
    return treelist::FindOrAdd(rows, parent, name, value);
}

HTREEITEM CKxTreeListFrame::InsertItemIfNecessary(HTREEITEM parent, CString name, double value)
{
    FrameRows rows = {m_tree};
    return treelist::FindOrAdd(rows, parent, name, value);
}

void CKxTreeListFrame::ExpandTree()
{
    const Surviving here(*this);
    for (HTREEITEM node = m_tree.GetRootItem(); node != nullptr; node = m_tree.GetNextSiblingItem(node))
    {
        m_tree.Expand(node, TVE_EXPAND);
        if (!here)
            return;
    }
}

void CKxTreeListFrame::SetCanModifyLabels(const bool& can)
{
    const bool wanted = can;
    m_tree.SetCanModifyLabels(wanted);
    m_canModifyLabels = wanted;
    if (m_tree.m_hWnd == nullptr)
        return;
    m_tree.ModifyStyle(wanted ? 0 : TVS_EDITLABELS, wanted ? TVS_EDITLABELS : 0);
    m_canModifyLabels = (m_tree.GetStyle() & TVS_EDITLABELS) != 0;
}

bool CKxTreeListFrame::GetCanModifyLabels() const
{
    return m_canModifyLabels;
}

void CKxTreeListFrame::SetEnableTreeSort(const bool& enable)
{
    m_treeSortEnabled = enable;
}

bool CKxTreeListFrame::GetCanSortTree() const
{
    return m_treeSortEnabled;
}

// ---- Notifications

BOOL CKxTreeListFrame::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const Surviving here(*this);
    const auto* const notification = reinterpret_cast<const NMHDR*>(lParam);
    if (notification != nullptr)
    {
        const bool fromTree = m_tree.m_hWnd != nullptr && notification->hwndFrom == m_tree.m_hWnd;
        const treelist::TreeWork::Scope told(m_tree.m_work, fromTree ? m_tree.m_work->HoldOf(*notification)
                                                                     : treelist::TreeWork::Hold());
        const bool fromHeader = notification->idFrom == ID_HEADER;
        if (fromHeader && notification->code == static_cast<UINT>(HDN_ITEMCLICK))
            OnHeaderClick(reinterpret_cast<const NMHEADER*>(lParam)->iItem);
        else if (fromHeader && notification->code == static_cast<UINT>(HDN_ITEMCHANGED))
            OnHeaderChanged();
        else if (CWnd* const parent = GetParent())
            parent->SendMessage(WM_NOTIFY, wParam, lParam);
    }
    if (here)
        return CWnd::OnNotify(wParam, lParam, result);
    if (result != nullptr)
        *result = TRUE; // calls off what the control, which has gone, was about to do
    return TRUE;
}

BOOL CKxTreeListFrame::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return CWnd::OnChildNotify(message, wParam, lParam, result);
}

void CKxTreeListFrame::OnHeaderClick(int column)
{
    const bool ascending = treelist::ClickSortsAscending(m_tree.m_header.GetSortImage(column));
    const Surviving here(*this);
    ShowSortImage(column, treelist::ImageAfterClick(ascending));
    if (!here)
        return;
    if (m_treeSortEnabled)
    {
        m_tree.SortItems(column, ascending, nullptr);
        SortTree(column, ascending, m_tree.GetRootItem());
    }
    m_tree.UpdateWindow();
}

// Each change of an item tells of itself; one recalculation at the end has the effect of all.
void CKxTreeListFrame::ShowSortImage(int column, int image)
{
    const Surviving here(*this);
    m_recalculationHeld = true;
    for (int i = 0; i < m_tree.GetColumnsNum(); ++i)
    {
        m_tree.m_header.SetSortImage(i, CKxHeaderCtrl::SORT_IMAGE_NONE);
        if (!here)
            return;
    }
    m_tree.m_header.SetSortImage(column, image);
    if (!here)
        return;
    m_recalculationHeld = false;
    OnHeaderChanged();
}

void CKxTreeListFrame::OnContextMenu(CWnd* window, CPoint /*point*/)
{
    if (CWnd* const parent = GetParent())
        parent->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window), 0);
}

// ---- Clicks, keys, focus

void CKxTreeListFrame::OnTreeListLeftClickBefore(UINT /*flags*/, CPoint /*point*/) {}

void CKxTreeListFrame::OnTreeListLeftClickAfter(UINT /*flags*/, CPoint /*point*/) {}

LRESULT CKxTreeListFrame::OnTreeListViewLeftClickBefore(WPARAM flags, LPARAM point)
{
    if (const auto* const clicked = reinterpret_cast<const POINT*>(point))
        OnTreeListLeftClickBefore(static_cast<UINT>(flags), *clicked);
    return 1;
}

LRESULT CKxTreeListFrame::OnTreeListViewLeftClickAfter(WPARAM flags, LPARAM point)
{
    if (const auto* const clicked = reinterpret_cast<const POINT*>(point))
        OnTreeListLeftClickAfter(static_cast<UINT>(flags), *clicked);
    return 1;
}

void CKxTreeListFrame::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    const Surviving here(*this);
    const bool opens = m_tree.GetCanModifyLabels() && key >= firstDigitKey && key <= lastDigitKey;
    HTREEITEM const selected = opens && m_tree.m_pEdit == nullptr ? m_tree.GetSelectedItem() : nullptr;
    if (selected != nullptr)
        m_tree.EditLabel(selected);
    if (here)
        CWnd::OnKeyDown(key, repeat, flags);
}

BOOL CKxTreeListFrame::PreTranslateMessage(MSG* message)
{
    const bool editing = m_canModifyLabels && m_tree.m_pEdit != nullptr;
    if (editing && message != nullptr && message->message == WM_KEYDOWN &&
        (message->wParam == VK_ESCAPE || message->wParam == VK_RETURN))
    {
        m_tree.SetEditState(message->wParam == VK_ESCAPE ? EDIT_STATE_CANCEL : EDIT_STATE_EDITING);
        m_tree.ProcessEditNotification();
        return TRUE;
    }
    return CWnd::PreTranslateMessage(message);
}

void CKxTreeListFrame::OnKillFocus(CWnd* next)
{
    CWnd::OnKillFocus(next);
}

void CKxTreeListFrame::OnSetFocus(CWnd* before)
{
    CWnd::OnSetFocus(before);
    if (m_tree.m_hWnd != nullptr)
        m_tree.SetFocus();
}
