// The tree of the tree list: painting. Where things go is in RowLayout.h and CellText.h.
#include "CellText.h"
#include "NativeTree.h"
#include "RowLayout.h"
#include "TreeWork.h"
#include "../frame/SavedContext.h"

using treelist::CellPlace;
using treelist::Columns;

namespace
{

constexpr LONG boldWeight = 700;

/// The fonts of one paint, made from the control's.
class RowFonts
{
public:
    explicit RowFonts(const CWnd& window)
    {
        LOGFONT description = {};
        const HFONT font = reinterpret_cast<HFONT>(::SendMessage(window.m_hWnd, WM_GETFONT, 0, 0));
        const HGDIOBJ used = font != nullptr ? font : ::GetStockObject(SYSTEM_FONT);
        ::GetObject(used, sizeof description, &description);
        normal.CreateFontIndirect(&description);
        description.lfWeight = boldWeight;
        bold.CreateFontIndirect(&description);
    }

    CFont normal, bold;
};

/// A node as it is painted.
struct VisibleRow
{
    LPARAM param = 0;
    CRect area;
    bool selected = false;
};

Columns ReadColumns(CKxTreeListViewCtrl& tree)
{
    Columns columns;
    for (int column = 0; column < tree.GetColumnsNum(); ++column)
        columns.looks.push_back({tree.GetColumnWidth(column), tree.GetColumnAlign(column)});
    columns.total = tree.GetColumnsWidth();
    return columns;
}

/// The platform's tree may search for a node each time that it is asked about one, so that it is asked little. The rectangle of
/// a node's text is as high as the whole row.
std::vector<VisibleRow> VisibleRows(const CTreeCtrl& tree, const Columns& columns)
{
    std::vector<VisibleRow> rows;
    const UINT most = tree.GetVisibleCount() + 1;
    HTREEITEM node = tree.GetFirstVisibleItem();
    for (UINT step = 0; node != nullptr && step < most; ++step, node = tree.GetNextVisibleItem(node))
    {
        CRect text;
        TVITEM item = {};
        item.mask = TVIF_HANDLE | TVIF_PARAM | TVIF_STATE;
        item.hItem = node;
        item.stateMask = TVIS_SELECTED | TVIS_DROPHILITED;
        if (!tree.GetItemRect(node, &text, TRUE) || !tree.GetItem(&item))
            continue;
        const bool selected = (item.state & item.stateMask) != 0;
        rows.push_back({item.lParam, treelist::RowArea(text, text, columns), selected});
    }
    return rows;
}

/// Fills the row of the selection, or makes the text of any other row transparent, and sets its colours.
void PrepareRow(CDC& dc, const VisibleRow& row, COLORREF textColor)
{
    if (row.selected)
    {
        const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
        if (!row.area.IsRectEmpty())
        {
            CBrush brush(highlight);
            dc.FillRect(&row.area, &brush);
            dc.DrawFocusRect(&row.area);
        }
        dc.SetBkColor(highlight);
        dc.SetTextColor(::GetSysColor(COLOR_HIGHLIGHTTEXT));
    }
    else
    {
        dc.SetBkMode(TRANSPARENT);
        dc.SetBkColor(::GetSysColor(COLOR_WINDOW));
        dc.SetTextColor(textColor);
    }
}

/// Leaves a child window alone.
void KeepOff(CDC& dc, const CWnd& parent, const CWnd& child)
{
    if (!child.IsWindowVisible())
        return;
    CRect area;
    child.GetWindowRect(&area);
    parent.ScreenToClient(&area);
    dc.ExcludeClipRect(&area);
}

} // namespace

void CKxTreeListViewCtrl::DrawItemText(CDC* dc, CString text, CRect rect, int width, int align)
{
    if (dc == nullptr || dc->GetSafeHdc() == nullptr)
        return;
    const auto measure = [dc](const wchar_t* characters, int count)
    {
        CSize size;
        ::GetTextExtentPoint32(dc->m_hAttribDC, characters, count, &size);
        return static_cast<int>(size.cx);
    };
    treelist::CellDrawing cell = treelist::DrawCell(text, rect, width, align, measure);
    if (!cell.text.IsEmpty())
        dc->DrawText(cell.text, &cell.rect, cell.format);
}

void CKxTreeListViewCtrl::OnPaint()
{
    CPaintDC dc(this);
    m_recent->Painted();
    CRect clip;
    CRect client;
    dc.GetClipBox(&clip);
    GetClientRect(&client);
    CRgn region;
    region.CreateRectRgnIndirect(&clip);
    dc.SelectClipRgn(&region);
    if (m_pEdit != nullptr)
        KeepOff(dc, *this, *m_pEdit);
    const COLORREF window = ::GetSysColor(COLOR_WINDOW);
    dc.SetViewportOrg(m_horizontalOffset, 0);
    dc.SetTextColor(window);
    const Surviving here(*this);
    treelist::TreeWork::Hold hold;
    hold.all = true;
    const treelist::TreeWork::Scope working(m_work, hold);
    DefWindowProc(WM_PAINT, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), 0);
    if (!here)
        return;
    const Columns columns = ReadColumns(*this);
    dc.FillSolidRect(treelist::StripBehindFirst(client, columns), window);
    clip.OffsetRect(-m_horizontalOffset, 0);
    PaintRows(dc, columns, clip);
}

void CKxTreeListViewCtrl::PaintRows(CDC& dc, const Columns& columns, const CRect& clip)
{
    const std::vector<VisibleRow> rows = VisibleRows(*this, columns);
    for (const VisibleRow& row : rows)
    {
        if (!row.area.IsRectEmpty())
            dc.FillSolidRect(&row.area, ::GetSysColor(COLOR_WINDOW));
    }
    RowFonts fonts(*this);
    const SavedContext saved(dc);
    dc.SelectObject(&fonts.normal);
    for (const VisibleRow& row : rows)
    {
        const CKxTreeListRow* const record = m_rows->Find(row.param);
        PrepareRow(dc, row, record == nullptr ? ::GetSysColor(COLOR_WINDOWTEXT) : record->color);
        if (record == nullptr)
            continue;
        dc.SelectObject(record->bold != 0 ? &fonts.bold : &fonts.normal);
        PaintCells(dc, *record, treelist::CellPlaces(row.area, columns, clip.left, clip.right));
    }
}

void CKxTreeListViewCtrl::PaintCells(CDC& dc, const CKxTreeListRow& row, const std::vector<CellPlace>& places)
{
    std::wstring_view rest = treelist::RowCells::ViewOf(row.texts);
    int column = 0;
    for (const CellPlace& place : places)
    {
        for (; column < place.column; ++column)
            treelist::RowCells::Next(rest, row.separator);
        const std::wstring_view text = treelist::RowCells::Next(rest, row.separator);
        ++column;
        if (!text.empty())
            DrawItemText(&dc, CString(text.data(), static_cast<int>(text.size())), place.rect, place.width,
                         place.align);
    }
}
