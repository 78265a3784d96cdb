// The tree of the tree list: its life, its columns, and which handler answers which message.
#include "oxa/treelist/KxTreeListViewCtrl.h"

#include "BusyWindow.h"
#include "NativeTree.h"
#include "TreeWork.h"
#include "WidthRules.h"

IMPLEMENT_DYNAMIC(CKxTreeListViewCtrl, CTreeCtrl)

BEGIN_MESSAGE_MAP(CKxTreeListViewCtrl, CTreeCtrl)
    // void OnPaint()
    ON_WM_PAINT()
    // int OnCreate(LPCREATESTRUCT)
    ON_WM_CREATE()
    // void OnLButtonDown(UINT, CPoint)
    ON_WM_LBUTTONDOWN()
    // void OnLButtonDblClk(UINT, CPoint)
    ON_WM_LBUTTONDBLCLK()
    // void OnKeyDown(UINT, UINT, UINT)
    ON_WM_KEYDOWN()
    // void OnDestroy()
    ON_WM_DESTROY()
    // void OnKillFocus(CWnd*)
    ON_WM_KILLFOCUS()
    // void (NMHDR*, LRESULT*)
    ON_NOTIFY_REFLECT(TVN_BEGINLABELEDIT, &CKxTreeListViewCtrl::OnBeginLabelEdit)
    ON_NOTIFY_REFLECT(NM_CLICK, &CKxTreeListViewCtrl::OnClick)
    ON_NOTIFY_REFLECT(NM_KILLFOCUS, &CKxTreeListViewCtrl::OnKillfocus)
    // LRESULT (WPARAM, LPARAM)
    ON_MESSAGE(0x450, &CKxTreeListViewCtrl::OnEditKillFocus)
    ON_MESSAGE(TVM_INSERTITEMA, &CKxTreeListViewCtrl::OnInsertNode)
    ON_MESSAGE(TVM_INSERTITEMW, &CKxTreeListViewCtrl::OnInsertNode)
    ON_MESSAGE(TVM_DELETEITEM, &CKxTreeListViewCtrl::OnDeleteNode)
    ON_MESSAGE(TVM_SETITEMA, &CKxTreeListViewCtrl::OnSetNode)
    ON_MESSAGE(TVM_SETITEMW, &CKxTreeListViewCtrl::OnSetNode)
    ON_MESSAGE(TVM_EXPAND, &CKxTreeListViewCtrl::OnExpandNode)
    ON_MESSAGE(TVM_SORTCHILDREN, &CKxTreeListViewCtrl::OnSortNodesByLabel)
    ON_MESSAGE(TVM_SORTCHILDRENCB, &CKxTreeListViewCtrl::OnSortNodesByHost)
    ON_MESSAGE(TVM_SELECTITEM, &CKxTreeListViewCtrl::OnShowNode)
    ON_MESSAGE(TVM_ENSUREVISIBLE, &CKxTreeListViewCtrl::OnShowNode)
    ON_MESSAGE(TVM_EDITLABELA, &CKxTreeListViewCtrl::OnShowNode)
    ON_MESSAGE(TVM_EDITLABELW, &CKxTreeListViewCtrl::OnShowNode)
END_MESSAGE_MAP()

CKxTreeListViewCtrl::CKxTreeListViewCtrl()
    : m_rows(std::make_unique<treelist::RowStore>()), m_recent(std::make_unique<treelist::RecentNode>()),
      m_known(std::make_unique<treelist::KnownNodes<HTREEITEM>>()), m_work(std::make_shared<treelist::TreeWork>())
{
}

CKxTreeListViewCtrl::~CKxTreeListViewCtrl()
{
    DestroyWindow(); // while the handlers of this class are still there
    FreeEditControl();
}

int CKxTreeListViewCtrl::OnCreate(LPCREATESTRUCT create)
{
    return CTreeCtrl::OnCreate(create) == -1 ? -1 : 0;
}

void CKxTreeListViewCtrl::OnDestroy()
{
    const Surviving here(*this);
    MemDeleteAllItems(GetRootItem());
    FreeEditControl();
    if (!here)
        return;
    m_recent->Forget();
    m_work->leaving.clear();
    treelist::TreeWork::Hold hold;
    hold.nodes[0] = TVI_ROOT;
    hold.all = hold.removes = true;
    const treelist::TreeWork::Scope working(m_work, hold);
    CTreeCtrl::OnDestroy();
}

/// For the end of the frame or of the window: a tree that is telling a host of something goes on with its window behind that.
void CKxTreeListViewCtrl::LeaveBusyWindow()
{
    if (!treelist::BusyWindow::IsBusy(m_hWnd))
        return;
    const Surviving here(*this);
    MemDeleteAllItems(GetRootItem());
    FreeEditControl();
    if (!here)
        return;
    m_recent->Forget();
    m_work->leaving.clear();
    treelist::BusyWindow::GiveUp(Detach());
}

// ---- Columns

int CKxTreeListViewCtrl::InsertColumn(int nCol, const wchar_t* text, int format, int width, int)
{
    HDITEM item = {};
    item.mask = HDI_TEXT | HDI_FORMAT;
    item.pszText = const_cast<wchar_t*>(text == nullptr ? L"" : text);
    item.fmt = HDF_OWNERDRAW | (format == 1 ? HDF_RIGHT : format == 2 ? HDF_CENTER : HDF_LEFT);
    if (width != -1)
    {
        item.mask |= HDI_WIDTH;
        item.cxy = width;
    }
    m_columns.Append();
    ++m_columnCount;
    const int index = m_header.m_hWnd == nullptr ? -1 : m_header.InsertItem(nCol, &item);
    if (m_columnCount == 1 && index >= 0)
        m_header.SetSortImage(index, CKxHeaderCtrl::SORT_IMAGE_ASCENDING);
    RecalcColumnsWidth();
    return index;
}

int CKxTreeListViewCtrl::GetColumnWidth(int col)
{
    HDITEM item = {};
    item.mask = HDI_WIDTH;
    return m_header.m_hWnd != nullptr && m_header.GetItem(col, &item) ? item.cxy : 0;
}

int CKxTreeListViewCtrl::GetColumnAlign(int col)
{
    HDITEM item = {};
    item.mask = HDI_FORMAT;
    if (m_header.m_hWnd == nullptr || !m_header.GetItem(col, &item))
        return 0;
    return (item.fmt & HDF_RIGHT) != 0 ? 1 : (item.fmt & HDF_CENTER) != 0 ? 2 : 0;
}

void CKxTreeListViewCtrl::RecalcColumnsWidth()
{
    int total = 0;
    for (int column = 0; column < m_columnCount; ++column)
        total = treelist::Sum(total, GetColumnWidth(column));
    m_columnsWidth = total;
}

void CKxTreeListViewCtrl::SetCanEditColumn(const int& col, const bool& can)
{
    m_columns.SetCanEdit(col, can);
}

bool CKxTreeListViewCtrl::GetCanEditColumn(const int& col)
{
    return m_columns.CanEdit(col);
}

void CKxTreeListViewCtrl::SetColumnEditStyle(const int& col, const int& style)
{
    m_columns.SetStyle(col, style);
}

void CKxTreeListViewCtrl::SetUnitManager(CKxUnitManager* manager)
{
    m_pUnitManager = manager;
    m_unitManagerLife = manager == nullptr ? std::weak_ptr<const void>() : manager->GetLife();
}

void CKxTreeListViewCtrl::SetHeaderCustomDraw(const bool& draw)
{
    m_headerCustomDraw = !draw;
}

void CKxTreeListViewCtrl::SetCanModifyLabels(const bool& can)
{
    m_columns.SetOpen(can);
}
