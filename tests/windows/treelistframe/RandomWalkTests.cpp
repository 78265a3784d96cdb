// A long walk of random operations and messages over a real tree list, beside a plain model of its rows.
#include <gtest/gtest.h>
#include <algorithm>
#include <list>
#include <random>
#include "FrameHost.h"
#include "support/PlainRowComparison.h"

namespace
{
constexpr wchar_t pilcrow = 182;

struct ModelRow
{
    HTREEITEM node = nullptr;
    std::wstring texts;
    double value = 0.0;
    unsigned long data = 0;
    std::list<ModelRow> children;
};

using Rows = std::list<ModelRow>;

std::wstring readCell(const std::wstring& texts, int column)
{
    std::wstring cell;
    int separators = 0;
    for (const wchar_t character : texts)
    {
        if (character == pilcrow)
            ++separators;
        else if (separators == column)
            cell += character;
    }
    return cell;
}

/// Character by character, as the writing is described.
std::wstring writeCell(const std::wstring& texts, int column, const std::wstring& text)
{
    if (column < 0)
        return texts;
    std::size_t i = 0;
    std::size_t last = 0;
    int n = 0;
    for (; n <= column && i < texts.size(); ++i)
    {
        if (texts[i] != pilcrow)
            continue;
        if (n != column)
            last = i;
        ++n;
    }
    if (n < column)
        return texts + std::wstring(static_cast<std::size_t>(column - n), pilcrow) + text;
    const std::wstring prefix = last != 0 ? texts.substr(0, last) + pilcrow : L"";
    return prefix + text + (i < texts.size() ? pilcrow + texts.substr(i) : L"");
}

/// A row and the list in which it stands.
struct Place
{
    Rows* rows = nullptr;
    Rows::iterator row;
};

class Walk
{
public:
    explicit Walk(unsigned seed) : m_random(seed)
    {
        m_frame.SetEnableTreeSort(false); // a click on the header moves no row
        m_frame.addColumns(3, 90);
    }
    void step()
    {
        constexpr int ofRows = 11;
        const int kind = below(ofRows + 6);
        static void (Walk::*const acts[ofRows])() = {&Walk::insert,  &Walk::insert, &Walk::insert, &Walk::write,
                                                     &Walk::value,   &Walk::data,   &Walk::copy,   &Walk::move,
                                                     &Walk::moveAll, &Walk::erase,  &Walk::sort};
        if (kind < ofRows)
            (this->*acts[kind])();
        else
            meddle();
        if (below(2000) == 0)
        {
            EXPECT_TRUE(m_tree.DeleteAllItems());
            m_top.clear();
        }
        m_tree.FreeEditControl(); // nothing is committed
    }
    void compare()
    {
        EXPECT_EQ(m_count, m_tree.GetItemCount());
        EXPECT_EQ(compareBelow(m_top, nullptr), m_tree.GetCount());
    }

private:
    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }
    int column() { return below(7) - 1; }
    std::wstring text()
    {
        static const wchar_t* const texts[] = {L"",       L"a",        L"Item2", L"Item10",
                                               L"1'-6\"", L"x\u00b6y", L"B 7",   L"item10"};
        return texts[below(8)];
    }

    void collect(Rows& rows, std::vector<Place>& all)
    {
        for (auto row = rows.begin(); row != rows.end(); ++row)
        {
            all.push_back({&rows, row});
            collect(row->children, all);
        }
    }
    /// Any row; none at times.
    Place any()
    {
        std::vector<Place> all;
        collect(m_top, all);
        return all.empty() || below(20) == 0 ? Place()
                                             : all[static_cast<std::size_t>(below(static_cast<int>(all.size())))];
    }
    static HTREEITEM nodeOf(const Place& place) { return place.rows == nullptr ? nullptr : place.row->node; }
    Rows& childrenOf(const Place& place) { return place.rows == nullptr ? m_top : place.row->children; }
    static bool isAtOrBelow(const Place& place, ModelRow& above)
    {
        if (place.rows == nullptr)
            return false;
        return &*place.row == &above || std::any_of(above.children.begin(), above.children.end(),
                                                    [&](ModelRow& child) { return isAtOrBelow(place, child); });
    }

    /// Where a new child of `parent` goes: in front, at the end, or behind one of the children.
    struct Target
    {
        HTREEITEM after;
        Rows::iterator before;
    };
    Target target(Rows& rows)
    {
        const int kind = below(3);
        if (kind == 0)
            return {TVI_FIRST, rows.begin()};
        if (kind == 1 || rows.empty())
            return {TVI_LAST, rows.end()};
        const auto row = std::next(rows.begin(), below(static_cast<int>(rows.size())));
        return {row->node, std::next(row)};
    }
    void put(Rows& rows, Rows::iterator before, ModelRow row, HTREEITEM node)
    {
        ASSERT_NE(nullptr, node);
        row.node = node;
        rows.insert(before, std::move(row));
    }

    void insert()
    {
        if (m_tree.GetCount() > 120)
            return erase();
        const Place parent = any();
        Rows& rows = childrenOf(parent);
        const Target to = target(rows);
        ModelRow row;
        row.texts = text();
        ++m_count;
        put(rows, to.before, row, m_tree.InsertItem(row.texts.c_str(), nodeOf(parent), to.after));
    }
    void write()
    {
        const Place place = any();
        const int to = column();
        const std::wstring written = text();
        EXPECT_EQ(place.rows != nullptr, m_tree.SetItemText(nodeOf(place), to, written.c_str()) != FALSE);
        if (place.rows != nullptr)
            place.row->texts = writeCell(place.row->texts, to, written);
    }
    void value()
    {
        const Place place = any();
        const int to = column();
        const double number = below(10) / 2.0; // one digit before the point
        EXPECT_EQ(place.rows != nullptr, m_tree.SetItemValue(nodeOf(place), to, number) != FALSE);
        if (place.rows == nullptr)
            return;
        const std::wstring digit(1, static_cast<wchar_t>(L'0' + static_cast<int>(number)));
        const bool half = number != static_cast<int>(number);
        place.row->value = number;
        place.row->texts = writeCell(place.row->texts, to, L" " + digit + (half ? L".50" : L".00"));
    }
    void data()
    {
        const Place place = any();
        const unsigned long word = m_random();
        EXPECT_EQ(place.rows != nullptr, m_tree.SetItemData(nodeOf(place), word) != FALSE);
        EXPECT_EQ(place.rows != nullptr, m_tree.SetItemBold(nodeOf(place), below(2), below(2)) != FALSE);
        if (place.rows != nullptr)
            place.row->data = word;
    }
    void copy()
    {
        const Place from = any();
        const Place parent = any();
        Rows& rows = childrenOf(parent);
        const Target to = target(rows);
        HTREEITEM const node = m_tree.CopyItem(nodeOf(from), nodeOf(parent), to.after);
        if (from.rows != nullptr && from.row->children.empty())
            put(rows, to.before, *from.row, node);
        else
        {
            EXPECT_EQ(nullptr, node);
        }
    }
    void move()
    {
        const Place from = any();
        const Place parent = any();
        Rows& rows = childrenOf(parent);
        const Target to = target(rows);
        const bool moves = from.rows != nullptr && from.row->children.empty() && !isAtOrBelow(parent, *from.row) &&
                           to.after != from.row->node;
        HTREEITEM const node = m_tree.MoveItem(nodeOf(from), nodeOf(parent), to.after);
        if (!moves)
        {
            EXPECT_EQ(nullptr, node);
            return;
        }
        const bool beforeItself = &rows == from.rows && to.before == from.row;
        const auto before = beforeItself ? std::next(from.row) : to.before;
        const ModelRow row = *from.row;
        from.rows->erase(from.row);
        --m_count;
        put(rows, before, row, node);
    }
    void moveAll()
    {
        const Place from = any();
        const Place parent = any();
        Rows& rows = childrenOf(parent);
        const Target to = target(rows);
        const bool moves = from.rows != nullptr && !isAtOrBelow(parent, *from.row) && to.after != from.row->node;
        HTREEITEM const node = m_tree.MoveItemAndChildren(nodeOf(from), nodeOf(parent), to.after, below(2) == 0);
        if (!moves)
        {
            EXPECT_EQ(nullptr, node);
            return;
        }
        ASSERT_NE(nullptr, node);
        const bool beforeItself = &rows == from.rows && to.before == from.row;
        const auto before = beforeItself ? std::next(from.row) : to.before;
        ModelRow row = *from.row;
        from.rows->erase(from.row);
        row.node = node;
        takeNodes(row);
        rows.insert(before, row);
    }
    /// The rows below have new nodes, in the same order; each counted as deleted.
    void takeNodes(ModelRow& row)
    {
        --m_count;
        HTREEITEM node = m_tree.GetChildItem(row.node);
        for (ModelRow& child : row.children)
        {
            child.node = node;
            takeNodes(child);
            node = m_tree.GetNextSiblingItem(node);
        }
    }
    void erase()
    {
        const Place place = any();
        EXPECT_EQ(place.rows != nullptr, m_tree.DeleteItem(nodeOf(place)) != FALSE);
        if (place.rows == nullptr)
            return;
        --m_count;
        HTREEITEM const gone = place.row->node;
        place.rows->erase(place.row);
        EXPECT_EQ(FALSE, m_tree.DeleteItem(gone));
        EXPECT_EQ(FALSE, m_tree.SetItemText(gone, 0, L"x"));
        EXPECT_EQ(nullptr, m_tree.InsertItem(L"x", gone, TVI_LAST));
        ++m_count; // a call is a call
        EXPECT_EQ(nullptr, m_tree.MoveItemAndChildren(gone, TVI_ROOT, TVI_LAST, true));
        EXPECT_TRUE(m_tree.GetItemText(gone, 0).IsEmpty());
    }
    void sort()
    {
        const Place parent = any();
        Rows& rows = childrenOf(parent);
        const int by = below(4);
        const bool ascending = below(2) == 0;
        m_tree.SortItems(by, ascending, nodeOf(parent));
        std::vector<std::wstring> texts;
        for (const ModelRow& row : rows)
            texts.push_back(readCell(row.texts, by));
        Rows sorted;
        for (const std::size_t place : plainrows::Inserted(texts, ascending))
            sorted.push_back(*std::next(rows.begin(), static_cast<std::ptrdiff_t>(place)));
        rows = std::move(sorted);
    }

    /// Whatever else a host or a user does; no row changes by it.
    void meddle()
    {
        HTREEITEM const node = nodeOf(any());
        const LPARAM point = MAKELPARAM(below(320), below(220));
        const HWND bar = m_frame.bar().m_hWnd;
        switch (below(14))
        {
        case 0:
            m_tree.SelectItem(node);
            break;
        case 1:
            m_tree.Expand(node, static_cast<UINT>(below(4)));
            break;
        case 2:
            m_tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, point);
            break;
        case 3:
            m_tree.SendMessage(WM_KEYDOWN, static_cast<WPARAM>(below(120)), 1);
            break;
        case 4:
            m_frame.SendMessage(WM_HSCROLL, MAKEWPARAM(below(9), below(500)), reinterpret_cast<LPARAM>(bar));
            break;
        case 5:
            m_frame.MoveWindow(10, 10, below(400), below(300));
            break;
        case 6:
            m_frame.setColumnWidth(below(4), below(300));
            break;
        case 7:
            m_frame.SetCanModifyLabels(below(2) == 0);
            m_tree.SetCanEditColumn(column(), true);
            break;
        case 8:
            m_frame.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
            break;
        case 9:
            m_frame.ExpandTree();
            break;
        case 10:
            m_tree.EditLabel(node);
            m_tree.SetEditState(EDIT_STATE_CANCEL);
            EXPECT_TRUE(m_tree.ProcessEditNotification());
            break;
        case 11:
            clickHeader();
            break;
        case 12:
            m_tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, point);
            break;
        default:
            m_tree.SendMessage(WM_VSCROLL, static_cast<WPARAM>(below(8)), 0);
            m_frame.ResetScrollBar();
            break;
        }
    }
    void clickHeader()
    {
        NMHEADERW click = {};
        click.hdr = {m_frame.header().m_hWnd, CKxTreeListFrame::ID_HEADER, static_cast<UINT>(HDN_ITEMCLICKW)};
        click.iItem = column();
        m_frame.SendMessage(WM_NOTIFY, click.hdr.idFrom, reinterpret_cast<LPARAM>(&click));
    }

    UINT compareBelow(Rows& rows, HTREEITEM parent)
    {
        UINT count = 0;
        HTREEITEM node = parent == nullptr ? m_tree.GetRootItem() : m_tree.GetChildItem(parent);
        for (ModelRow& row : rows)
        {
            EXPECT_EQ(row.node, node);
            EXPECT_EQ(row.value, m_tree.GetItemValue(node, 0));
            EXPECT_EQ(row.data, m_tree.GetItemData(node));
            for (int cell = 0; cell < 8; ++cell)
                EXPECT_EQ(readCell(row.texts, cell), std::wstring(m_tree.GetItemText(node, cell)));
            count += 1 + compareBelow(row.children, node);
            node = m_tree.GetNextSiblingItem(node);
        }
        EXPECT_EQ(nullptr, node);
        return count;
    }

    std::mt19937 m_random;
    FrameHost m_host{IDD_FRAME_HOST, true};
    OpenFrame& m_frame = m_host.usual();
    CKxTreeListViewCtrl& m_tree = m_frame.m_tree;
    Rows m_top;
    int m_count = 0;
};

/// As many steps as the environment asks for; a few otherwise.
int stepCount()
{
    const wchar_t* const wanted = _wgetenv(L"OXA_WALK");
    return wanted == nullptr ? 1500 : _wtoi(wanted);
}
} // namespace

TEST(RandomWalk, keeps_rows_cells_and_order_as_the_model_has_them)
{
    Walk walk(20261122); // a fixed seed
    const int steps = stepCount();
    for (int step = 0; step < steps && !testing::Test::HasFailure(); ++step)
    {
        SCOPED_TRACE(step);
        walk.step();
        if (step % 20 == 0 || step == steps - 1)
            walk.compare();
    }
}
