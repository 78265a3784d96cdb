// The tree list against the platform's tree control in one run: inserting rows with five cells, bytes a row, one paint of 40
// visible rows by 10 columns among many rows; and sorting rows against std::stable_sort in natural order.
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
    void fill(int rows, int /*cells*/)
    {
        tree.SetRedraw(FALSE);
        for (int row = 0; row < rows; ++row)
            tree.InsertItem(cellText(row, 0).c_str());
        tree.SetRedraw(TRUE);
    }
    CTreeCtrl tree;
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
    void fill(int rows, int cells)
    {
        tree.SetRedraw(FALSE);
        for (int row = 0; row < rows; ++row)
        {
            HTREEITEM const item = tree.InsertItem(cellText(row, 0).c_str());
            for (int column = 1; column < cells; ++column)
                tree.SetItemText(item, column, cellText(row, column).c_str());
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

template <typename Kind> Filling fillOnce(Host& host, int rows)
{
    Kind kind(host);
    const double before = heapBytes();
    const double time = millisecondsOf([&] { kind.fill(rows, c_cells); });
    const double bytes = heapBytes() - before;
    return {time, bytes};
}

double textBytes(int rows)
{
    double bytes = 0.0;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < c_cells; ++column)
            bytes += static_cast<double>((cellText(row, column).size() + 1) * sizeof(wchar_t));
    return bytes;
}

void benchInsert(int rows)
{
    std::vector<double> list, plain;
    for (int round = 0; round < c_insertRounds; ++round)
    {
        Host host;
        plain.push_back(fillOnce<PlainTree>(host, rows).time);
        list.push_back(fillOnce<ListTree>(host, rows).time);
    }
    std::printf("insert %6d rows of five cells: plain tree of as many labels %.1f ms, tree list %.1f ms, ratio %.2f "
                "(goal: at most 1.5)\n",
                rows, median(plain), median(list), median(list) / median(plain));
}

void benchMemory(int rows)
{
    Host host;
    const double list = fillOnce<ListTree>(host, rows).bytes / rows;
    const double plain = fillOnce<PlainTree>(host, rows).bytes / rows;
    const double texts = textBytes(rows) / rows;
    std::printf(
        "memory of %d rows: %.0f bytes a row, of which texts %.0f, beyond them %.0f (goal: at most 200); a row of "
        "the plain tree takes %.0f\n",
        rows, list, texts, list - texts, plain);
}

double paintOf(CWnd& window)
{
    std::vector<double> times;
    for (int round = 0; round < c_paintRounds; ++round)
        times.push_back(
            millisecondsOf([&] { window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); }));
    return median(times);
}

template <typename Kind> double paintAmong(int rows)
{
    Host host;
    Kind kind(host);
    kind.fill(rows, c_columns);
    paintOf(kind.tree); // warm-up
    return paintOf(kind.tree);
}

void benchPaint(int rows)
{
    const double plain = paintAmong<PlainTree>(rows);
    const double few = paintAmong<ListTree>(1000);
    const double many = paintAmong<ListTree>(rows);
    std::printf("paint 40 rows by 10 columns: among 1,000 rows %.2f ms, among %d %.2f ms, ratio %.2f (goal: 1)\n", few,
                rows, many, many / few);
    std::printf("paint among %d rows: plain tree %.2f ms, tree list %.2f ms, ratio %.2f (goal: at most 3)\n", rows,
                plain, many, many / plain);
}

// The tree is sorted to and fro, so that each round moves rows. The peer sorts the texts alone, without a tree to put in order.
void benchSort(int rows)
{
    std::mt19937 random(20240917);
    std::vector<std::wstring> texts;
    for (int row = 0; row < rows; ++row)
        texts.push_back(L"Beam " + std::to_wstring(random() % 5000) + (row % 2 == 0 ? L" bis" : L""));
    Host host;
    ListTree list(host);
    list.tree.SetRedraw(FALSE);
    for (const std::wstring& text : texts)
        list.tree.InsertItem(text.c_str());
    std::vector<double> ours, peer;
    for (int round = 0; round < c_sortRounds; ++round)
    {
        ours.push_back(millisecondsOf([&] { list.tree.SortItems(0, round % 2 == 0, nullptr); }));
        std::vector<std::wstring> copy = texts;
        peer.push_back(millisecondsOf([&] { std::stable_sort(copy.begin(), copy.end(), naturallyLess); }));
    }
    std::printf(
        "sort %d rows by one column: std::stable_sort %.1f ms, tree list %.1f ms, ratio %.2f (goal: at most 1)\n", rows,
        median(peer), median(ours), median(ours) / median(peer));
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
    benchMemory(rows);
    benchInsert(rows / 10);
    benchInsert(rows);
    benchPaint(rows);
    benchSort(rows);
    return 0;
}
