// A real dialog with a tree list, what it hears from it, and the frame with its data open to the tests.
#pragma once
#include <afxwin.h>
#include <afxcmn.h>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>
#include "frame_dialog_ids.h"
#include "oxa/treelist/KxTreeListFrame.h"
#include "support/HostLoop.h"

/// Opens what the tree keeps for its frame.
class OpenTree : public CKxTreeListViewCtrl
{
public:
    static int& offset(CKxTreeListViewCtrl& tree) { return tree.*(&OpenTree::m_horizontalOffset); }
    static CEdit*& edit(CKxTreeListViewCtrl& tree) { return tree.*(&OpenTree::m_pEdit); }
    /// As if the editor had been opened for that row, in column 0.
    static void beginEdit(CKxTreeListViewCtrl& tree, HTREEITEM row)
    {
        tree.*(&OpenTree::m_editedItem) = row;
        tree.*(&OpenTree::m_editColumn) = 0;
    }
    static eEditState state(CKxTreeListViewCtrl& tree) { return tree.*(&OpenTree::m_editState); }
};

/// The frame, with its children open to the tests.
class OpenFrame : public CKxTreeListFrame
{
public:
    CScrollBar& bar() { return m_scrollBar; }
    CKxHeaderCtrl& header() { return GetHeaderCtrl(); }
    int offset() { return OpenTree::offset(m_tree); }
    CEdit* edit() { return OpenTree::edit(m_tree); }

    /// The place of a child in client coordinates of the frame.
    CRect placeOf(const CWnd& child) const
    {
        CRect place;
        child.GetWindowRect(&place);
        ScreenToClient(&place);
        return place;
    }
    CSize treeClient() const
    {
        CRect client;
        m_tree.GetClientRect(&client);
        return client.Size();
    }
    int upperEnd()
    {
        int low = 0;
        int high = 0;
        bar().GetScrollRange(&low, &high);
        return high;
    }
    int headerHeight() { return placeOf(header()).Height(); }
    int barHeight() { return placeOf(bar()).Height(); }
    bool barShown() { return (bar().GetStyle() & WS_VISIBLE) != 0 && bar().IsWindowEnabled(); }
    bool barHidden() { return (bar().GetStyle() & WS_VISIBLE) == 0 && !bar().IsWindowEnabled(); }

    void addColumns(int count, int width)
    {
        for (int i = 0; i < count; ++i)
        {
            CString text;
            text.Format(L"Column %d", i);
            m_tree.InsertColumn(i, text, 0, width, 0);
        }
    }
    void addRows(int count)
    {
        for (int i = 0; i < count; ++i)
        {
            CString text;
            text.Format(L"row %03d", i);
            m_tree.InsertItem(text, TVI_ROOT, TVI_LAST);
        }
    }
    /// An open editor of the tree, at a place in client coordinates of the tree.
    CEdit& openEditor(const CRect& place)
    {
        auto edit = std::make_unique<CEdit>();
        edit->Create(WS_CHILD | WS_VISIBLE | WS_BORDER, place, &m_tree, 1);
        OpenTree::edit(m_tree) = edit.release();
        m_tree.SetEditState(EDIT_STATE_EDITING);
        return *this->edit();
    }
    void setColumnWidth(int column, int width)
    {
        HDITEM item = {};
        item.mask = HDI_WIDTH;
        item.cxy = width;
        header().SetItem(column, &item);
    }
    /// Cell 0 of the top-level rows, one behind the other.
    std::wstring rows()
    {
        std::wstring all;
        for (HTREEITEM row = m_tree.GetRootItem(); row != nullptr; row = m_tree.GetNextSiblingItem(row))
            all += (all.empty() ? L"" : L" ") + std::wstring(m_tree.GetItemText(row, 0));
        return all;
    }
    std::vector<int> images()
    {
        std::vector<int> all;
        for (int i = 0; i < m_tree.GetColumnsNum(); ++i)
            all.push_back(header().GetSortImage(i));
        return all;
    }
    void OnTreeListLeftClickBefore(UINT flags, CPoint point) override { clicks.push_back({flags, point, false}); }
    void OnTreeListLeftClickAfter(UINT flags, CPoint point) override { clicks.push_back({flags, point, true}); }

    struct Click
    {
        UINT flags;
        CPoint point;
        bool after;
    };
    std::vector<Click> clicks;
};

struct HeardByHost
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    UINT code; ///< of a WM_NOTIFY
};

/// The host's dialog, with the frame in a client area of 300 by 200 pixels unless told otherwise.
class FrameHost : public CDialog, public HostLoop
{
public:
    explicit FrameHost(UINT dialog = IDD_FRAME_HOST, bool modifiable = false) : frame(std::make_unique<OpenFrame>())
    {
        CKxTreeListFrame::RegisterClassW();
        frame->SetCanModifyLabels(modifiable);
        if (!Create(dialog))
            throw std::runtime_error("the host dialog could not be created");
        SetForegroundWindow();
        pumpFor(0);
        heard.clear();
    }
    ~FrameHost() override { DestroyWindow(); }

    /// Gives the frame a size of 300 by 200.
    OpenFrame& usual()
    {
        frame->MoveWindow(10, 10, 300, 200);
        return *frame;
    }
    int count(UINT message, UINT code = 0) const
    {
        int n = 0;
        for (const HeardByHost& one : heard)
            n += one.message == message && one.code == code ? 1 : 0;
        return n;
    }

    std::unique_ptr<OpenFrame> frame;
    std::vector<HeardByHost> heard;
    std::function<void(const HeardByHost&)> onHear; ///< runs inside the handler
    BOOL attached = FALSE;

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        attached = frame->SubclassDlgItem(IDC_FRAME, this);
        return TRUE;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_NOTIFY || message == WM_CONTEXTMENU || message == WM_LBUTTONDBLCLK ||
            (message >= WM_KX_TREELIST_CLICK_BEFORE && message <= WM_KX_TREELIST_EDIT_AFTER))
        {
            const UINT code = message == WM_NOTIFY ? reinterpret_cast<const NMHDR*>(lParam)->code : 0;
            const HeardByHost one = {message, wParam, lParam, code};
            heard.push_back(one);
            if (onHear)
                onHear(one);
        }
        return CDialog::WindowProc(message, wParam, lParam);
    }
};

/// The middle of a header item, in screen pixels.
inline POINT middleOfColumn(OpenFrame& frame, int column)
{
    CRect place;
    frame.header().GetItemRect(column, &place);
    frame.header().ClientToScreen(&place);
    return place.CenterPoint();
}

/// Presses the left button at one point and lets it go at another, with moves between.
inline void drag(POINT from, POINT to)
{
    moveTo(from);
    pumpFor(20);
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    moveTo({(from.x + to.x) / 2, to.y});
    pumpFor(20);
    moveTo(to);
    pumpFor(20);
    mouseButton(MOUSEEVENTF_LEFTUP);
}

/// The same in one call, for a scroll bar, which runs a loop of its own until the button is up.
inline void dragThumb(POINT from, POINT to)
{
    const int width = ::GetSystemMetrics(SM_CXSCREEN);
    const int height = ::GetSystemMetrics(SM_CYSCREEN);
    moveTo(from);
    pumpFor(20);
    INPUT inputs[3] = {};
    inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    inputs[1].mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    inputs[1].mi.dx = (to.x * 65536 + width - 1) / width;
    inputs[1].mi.dy = (to.y * 65536 + height - 1) / height;
    inputs[2].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(3, inputs, sizeof *inputs); // a type of 0 is the mouse
    pumpFor(20);
}

/// Drags the divider at the right end of a column by some pixels.
inline void dragDivider(OpenFrame& frame, int column, int by)
{
    CRect place;
    frame.header().GetItemRect(column, &place);
    frame.header().ClientToScreen(&place);
    const POINT divider = {place.right - 1, place.CenterPoint().y};
    drag(divider, {divider.x + by, divider.y});
}
