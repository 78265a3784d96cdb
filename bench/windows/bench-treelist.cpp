// The tree list against the platform's tree control in one run: inserting rows with five cells, bytes a row, one paint of 40
// visible rows by 10 columns among many rows; and sorting rows against std::stable_sort in natural order, with what the
// platform's tree takes to put its nodes into an order that is known. Each for a tenth of the rows too, to see what grows how.
#include <afxwin.h>
#include <afxcmn.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "bench/NaturalOrder.h"
#include "oxa/treelist/KxTreeListFrame.h"

namespace
{
constexpr int c_cells = 5;
constexpr int c_columns = 10;
constexpr int c_visibleRows = 40;
constexpr int c_insertRounds = 3;
constexpr int c_paintRounds = 20;
constexpr int c_sortRounds = 6;
constexpr UINT c_listId = 100;

class BenchApp : public CWinApp
{
};
BenchApp theApp;

[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "bench-treelist: %s\n", what);
    std::exit(1);
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double millisecondsOf(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// What is taken in all heaps of the process.
double heapBytes()
{
    constexpr DWORD mostHeaps = 64;
    HANDLE heaps[mostHeaps] = {};
    const DWORD count = std::min(::GetProcessHeaps(mostHeaps, heaps), mostHeaps);
    double bytes = 0.0;
    for (DWORD i = 0; i < count; ++i)
    {
        ::HeapLock(heaps[i]);
        PROCESS_HEAP_ENTRY entry = {};
        while (::HeapWalk(heaps[i], &entry))
            bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData + entry.cbOverhead : 0;
        ::HeapUnlock(heaps[i]);
    }
    return bytes;
}

std::wstring cellText(int row, int column)
{
    return L"cell " + std::to_wstring(row) + L'.' + std::to_wstring(column);
}

/// The texts of rows with that many cells, made before anything is measured.
struct Texts
{
    Texts(int howMany, int cellsOfEach) : rows(howMany), cells(cellsOfEach)
    {
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < cells; ++column)
                all.push_back(cellText(row, column));
    }
    const wchar_t* of(int row, int column) const
    {
        return all[static_cast<std::size_t>(row) * static_cast<std::size_t>(cells) + static_cast<std::size_t>(column)]
            .c_str();
    }
    double bytes() const
    {
        double sum = 0.0;
        for (const std::wstring& text : all)
            sum += static_cast<double>((text.size() + 1) * sizeof(wchar_t));
        return sum;
    }
    int rows, cells;
    std::vector<std::wstring> all;
};

/// A popup window, high enough for 40 rows.
class Host : public CWnd
{
public:
    Host()
    {
        if (!CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP | WS_VISIBLE, CRect(0, 0, 900, 760), nullptr, 0))
            fail("the host window could not be created");
    }
    ~Host() override { DestroyWindow(); }
};

struct PlainTree
{
    explicit PlainTree(Host& host)
    {
        if (!tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT,
                         CRect(0, 0, 900, c_visibleRows * 16), &host, c_listId))
            fail("the tree control could not be created");
        tree.SetItemHeight(16);
    }
    void fill(const Texts& texts)
    {
        tree.SetRedraw(FALSE);
        for (int row = 0; row < texts.rows; ++row)
            tree.InsertItem(texts.of(row, 0));
        tree.SetRedraw(TRUE);
    }
    CTreeCtrl tree;
};

/// With nodes as the tree list has them: without a label.
struct UnlabelledTree : PlainTree
{
    using PlainTree::PlainTree;
    void fill(const Texts& texts)
    {
        tree.SetRedraw(FALSE);
        for (int row = 0; row < texts.rows; ++row)
            tree.InsertItem(L"");
        tree.SetRedraw(TRUE);
    }
};

struct ListTree
{
    explicit ListTree(Host& host)
    {
        CKxTreeListFrame::RegisterClassW();
        ::CreateWindowExW(0, L"KORVELTREELISTCTRL", L"", WS_CHILD | WS_VISIBLE, 0, 0, 900, c_visibleRows * 16 + 20,
                          host.m_hWnd, reinterpret_cast<HMENU>(UINT_PTR{c_listId}), nullptr, nullptr);
        if (!frame.SubclassDlgItem(c_listId, &host))
            fail("the tree list could not be created");
        tree.SetItemHeight(16);
        for (int column = 0; column < c_columns; ++column)
            tree.InsertColumn(column, L"column", column % 3, 80, 0);
        tree.MoveWindow(0, 20, 900, c_visibleRows * 16);
    }
    void fill(const Texts& texts)
    {
        tree.SetRedraw(FALSE);
        for (int row = 0; row < texts.rows; ++row)
        {
            HTREEITEM const item = tree.InsertItem(texts.of(row, 0));
            for (int column = 1; column < texts.cells; ++column)
                tree.SetItemText(item, column, texts.of(row, column));
        }
        tree.SetRedraw(TRUE);
    }
    CKxTreeListFrame frame;
    CKxTreeListViewCtrl& tree = frame.m_tree;
};

struct Filling
{
    double time;  // milliseconds
    double bytes; // of the heaps
};

template <typename Kind> Filling fillOnce(Host& host, const Texts& texts)
{
    Kind kind(host);
    const double before = heapBytes();
    const double time = millisecondsOf([&] { kind.fill(texts); });
    const double bytes = heapBytes() - before;
    return {time, bytes / texts.rows};
}

void benchInsert(int rows)
{
    const Texts texts(rows, c_cells);
    std::vector<double> list, plain;
    for (int round = 0; round < c_insertRounds; ++round)
    {
        Host host;
        plain.push_back(fillOnce<PlainTree>(host, texts).time);
        list.push_back(fillOnce<ListTree>(host, texts).time);
    }
    std::printf("insert %6d rows of five cells: plain tree of as many labels %.1f ms, tree list %.1f ms, ratio %.2f "
                "(goal: at most 1.5)\n",
                rows, median(plain), median(list), median(list) / median(plain));
}

void benchMemory(int rows)
{
    const Texts texts(rows, c_cells);
    Host host;
    const double list = fillOnce<ListTree>(host, texts).bytes;
    const double plain = fillOnce<PlainTree>(host, texts).bytes;
    const double node = fillOnce<UnlabelledTree>(host, texts).bytes;
    const double held = texts.bytes() / rows;
    std::printf("memory of %6d rows: %.0f bytes a row, of which texts %.0f, the platform's node %.0f, all else %.0f "
                "(goal: at most 200 beyond the texts); a row of the plain tree takes %.0f with its label\n",
                rows, list, held, node, list - held - node, plain);
}

double paintOf(CWnd& window)
{
    std::vector<double> times;
    for (int round = 0; round < c_paintRounds; ++round)
        times.push_back(
            millisecondsOf([&] { window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); }));
    return median(times);
}

/// At the head of the list, and at its end.
struct Paints
{
    double head, end;
};

template <typename Kind> Paints paintAmong(int rows)
{
    Host host;
    Kind kind(host);
    kind.fill(Texts(rows, c_columns));
    paintOf(kind.tree); // warm-up
    const double head = paintOf(kind.tree);
    kind.tree.SendMessage(WM_VSCROLL, SB_BOTTOM, 0);
    return {head, paintOf(kind.tree)};
}

void printPaints(const char* where, int rows, double plain, double few, double many)
{
    std::printf(
        "paint 40 rows by 10 columns at the %s: among 1,000 rows %.2f ms, among %d %.2f ms, ratio %.2f (goal: 1); "
        "plain tree %.2f ms, ratio to it %.2f (goal: at most 3)\n",
        where, few, rows, many, many / few, plain, many / plain);
}

void benchPaint(int rows)
{
    const Paints plain = paintAmong<PlainTree>(rows);
    const Paints few = paintAmong<ListTree>(1000);
    const Paints many = paintAmong<ListTree>(rows);
    printPaints("head", rows, plain.head, few.head, many.head);
    printPaints("end", rows, plain.end, few.end, many.end);
}

std::vector<std::wstring> textsToSort(int rows)
{
    std::mt19937 random(20240917);
    std::vector<std::wstring> texts;
    for (int row = 0; row < rows; ++row)
        texts.push_back(L"Beam " + std::to_wstring(random() % 5000) + (row % 2 == 0 ? L" bis" : L""));
    return texts;
}

/// Nodes that carry their places in the sorted order.
struct RankedTree : PlainTree
{
    RankedTree(Host& host, const std::vector<std::wstring>& texts) : PlainTree(host)
    {
        std::vector<std::size_t> order(texts.size());
        for (std::size_t i = 0; i < order.size(); ++i)
            order[i] = i;
        std::stable_sort(order.begin(), order.end(),
                         [&](std::size_t a, std::size_t b) { return naturallyLess(texts[a], texts[b]); });
        std::vector<LPARAM> places(order.size());
        for (std::size_t i = 0; i < order.size(); ++i)
            places[order[i]] = static_cast<LPARAM>(i);
        tree.SetRedraw(FALSE);
        for (const LPARAM place : places)
            tree.InsertItem(TVIF_PARAM, nullptr, 0, 0, 0, 0, place, TVI_ROOT, TVI_LAST);
    }
    void sort(bool ascending)
    {
        TVSORTCB sort = {TVI_ROOT,
                         [](LPARAM a, LPARAM b, LPARAM rising) {
                             return a == b ? 0 : (a < b) == (rising != 0) ? -1 : 1;
                         },
                         ascending};
        tree.SortChildrenCB(&sort);
    }
};

// The trees are sorted to and fro, so that each round moves rows. std::stable_sort sorts the texts alone, without a tree to put
// in order.
void benchSort(int rows)
{
    const std::vector<std::wstring> texts = textsToSort(rows);
    Host host;
    ListTree list(host);
    list.tree.SetRedraw(FALSE);
    for (const std::wstring& text : texts)
        list.tree.InsertItem(text.c_str());
    Host another;
    RankedTree ranked(another, texts);
    std::vector<double> ours, peer, platform;
    for (int round = 0; round < c_sortRounds; ++round)
    {
        ours.push_back(millisecondsOf([&] { list.tree.SortItems(0, round % 2 == 0, nullptr); }));
        platform.push_back(millisecondsOf([&] { ranked.sort(round % 2 == 0); }));
        std::vector<std::wstring> copy = texts;
        peer.push_back(millisecondsOf([&] { std::stable_sort(copy.begin(), copy.end(), naturallyLess); }));
    }
    std::printf(
        "sort %6d rows by one column: std::stable_sort %.1f ms, tree list %.1f ms, ratio %.2f (goal: at most 1)\n",
        rows, median(peer), median(ours), median(ours) / median(peer));
    std::printf(
        "  of which the platform's tree, told the order beforehand, takes %.1f ms; the rest %.1f ms, ratio %.2f; "
        "first sort: platform %.1f ms, tree list %.1f ms\n",
        median(platform), median(ours) - median(platform), (median(ours) - median(platform)) / median(peer),
        platform.front(), ours.front());
}
} // namespace

int main(int count, char** words)
{
    if (!AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), SW_HIDE))
        return 2;
    const int rows = count > 1 ? std::atoi(words[1]) : 100000;
    if (rows < 1000)
        fail("bench-treelist [ROWS]: 1000 rows at least");
    std::setvbuf(stdout, nullptr, _IONBF, 0); // a line as soon as it is known
    for (const int many : {rows / 10, rows})
    {
        benchMemory(many);
        benchInsert(many);
        benchSort(many);
    }
    benchPaint(rows);
    return 0;
}
