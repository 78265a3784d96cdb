// The rows of the tree list: cells of rows of 10, 50 and 250 columns against find and replace on the same packed text; sorting
// 1,000, 10,000 and 100,000 rows against std::stable_sort with a natural-order comparison of the same texts; records made, found
// and destroyed. Ratios of one run, and what one cell or row takes, to see what grows how.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>
#include <unordered_set>
#include <vector>

#include "bench/Fastest.h"
#include "bench/NaturalOrder.h"
#include "treelist/RowCells.h"
#include "treelist/RowComparison.h"
#include "treelist/RowStore.h"

namespace
{
constexpr wchar_t c_separator = 182;

std::size_t g_sum; // keeps the work from being left out

using bench::fastest;

/// `count`: how often the work was done.
double line(const char* name, double ours, double peers, double count)
{
    std::printf("  %-42s %9.3f ms %9.3f ms   ratio %.3f   one %7.1f ns %7.1f ns\n", name, ours / 1e6, peers / 1e6,
                ours / peers, ours / count, peers / count);
    return ours / peers;
}

std::wstring cellText(int column)
{
    return L"cell " + std::to_wstring(column);
}

struct Span
{
    std::size_t begin, end;
};

// Where a cell stands: one find per separator.
Span peerCell(const std::wstring& packed, int column)
{
    std::size_t begin = 0;
    for (int i = 0; i < column; ++i)
        begin = packed.find(c_separator, begin) + 1;
    return {begin, std::min(packed.find(c_separator, begin), packed.size())};
}

void benchCells(int columns)
{
    std::wstring packed = cellText(0);
    for (int column = 1; column < columns; ++column)
        packed += c_separator + cellText(column);
    CString ours(packed.c_str());
    constexpr int works = 100000;
    const double read = fastest(20,
                                [&]
                                {
                                    for (int i = 0; i < works; ++i)
                                        g_sum += static_cast<std::size_t>(
                                            treelist::RowCells::Read(ours, c_separator, i % columns).GetLength());
                                });
    const double peerRead = fastest(20,
                                    [&]
                                    {
                                        for (int i = 0; i < works; ++i)
                                        {
                                            const Span cell = peerCell(packed, i % columns);
                                            const std::wstring text = packed.substr(cell.begin, cell.end - cell.begin);
                                            g_sum += text.size();
                                        }
                                    });
    const std::wstring texts[2] = {L"new text", L"cell"};
    const double write =
        fastest(20,
                [&]
                {
                    for (int i = 0; i < works; ++i)
                        treelist::RowCells::Write(ours, c_separator, i % columns, texts[i / columns % 2].c_str());
                });
    const double peerWrite = fastest(20,
                                     [&]
                                     {
                                         for (int i = 0; i < works; ++i)
                                         {
                                             const Span cell = peerCell(packed, i % columns);
                                             packed.replace(cell.begin, cell.end - cell.begin, texts[i / columns % 2]);
                                         }
                                     });
    std::printf("cells of a row of %d columns, 100,000 times: ours, std::wstring\n", columns);
    line("read (RowCells::Read / find, substr)", read, peerRead, works);
    line("write (RowCells::Write / find, replace)", write, peerWrite, works);
}

std::vector<std::wstring> makeTexts(int rows)
{
    const wchar_t* const starts[] = {L"Beam ", L"beam ", L"IPE", L"HEA ", L"Column A", L"", L"Bolt M"};
    const wchar_t* const ends[] = {L"", L" bis", L"-3", L".5", L" mm"};
    std::mt19937 random(20240917);
    std::vector<std::wstring> texts;
    for (int i = 0; i < rows; ++i)
        texts.push_back(starts[random() % 7] + std::to_wstring(random() % 5000) + ends[random() % 5]);
    return texts;
}

void benchSort(int rows)
{
    const std::vector<std::wstring> texts = makeTexts(rows);
    const double ours = fastest(5,
                                [&]
                                {
                                    std::vector<treelist::SortKey> keys;
                                    keys.reserve(texts.size());
                                    for (const std::wstring& text : texts)
                                        keys.push_back(treelist::RowComparison::KeyOf(text));
                                    g_sum += treelist::RowComparison::Order(keys, true).front();
                                });
    const double peer = fastest(5,
                                [&]
                                {
                                    std::vector<std::uint32_t> order(texts.size());
                                    for (std::uint32_t i = 0; i < order.size(); ++i)
                                        order[i] = i;
                                    std::stable_sort(order.begin(), order.end(),
                                                     [&](std::uint32_t a, std::uint32_t b)
                                                     { return naturallyLess(texts[a], texts[b]); });
                                    g_sum += order.front();
                                });
    std::printf("%d rows by one column: ours, std::stable_sort\n", rows);
    const double ratio = line("sort (keys once a row / natural order)", ours, peer, rows);
    std::printf("  goal: at most 1, with keys 0.25: %s\n", ratio <= 0.25  ? "both met"
                                                           : ratio <= 1.0 ? "first met, second not"
                                                                          : "not met");
}

/// Records as a tree list keeps them, against records that are allocated one by one.
void benchRecords(int rows)
{
    CKxTreeListRow row(0);
    row.texts = L"Beam 12";
    const double ours = fastest(5,
                                [&]
                                {
                                    treelist::RowStore store;
                                    std::vector<LPARAM> addresses;
                                    for (int i = 0; i < rows; ++i)
                                        addresses.push_back(treelist::RowStore::AddressOf(store.Create(row)));
                                    for (const LPARAM address : addresses)
                                        g_sum += store.Find(address) == nullptr ? 1 : 2;
                                    for (const LPARAM address : addresses)
                                        store.Destroy(address);
                                });
    const double peer = fastest(5,
                                [&]
                                {
                                    std::unordered_set<CKxTreeListRow*> store;
                                    std::vector<CKxTreeListRow*> addresses;
                                    for (int i = 0; i < rows; ++i)
                                    {
                                        addresses.push_back(new CKxTreeListRow(row));
                                        store.insert(addresses.back());
                                    }
                                    for (CKxTreeListRow* const address : addresses)
                                        g_sum += store.contains(address) ? 1 : 2;
                                    for (CKxTreeListRow* const address : addresses)
                                    {
                                        store.erase(address);
                                        delete address;
                                    }
                                });
    std::printf("%d records: ours, new, delete and std::unordered_set\n", rows);
    line("made, found, destroyed", ours, peer, rows);
}
} // namespace

int main()
{
    for (const int columns : {10, 50, 250})
        benchCells(columns);
    for (const int rows : {1000, 10000, 100000})
        benchSort(rows);
    for (const int rows : {10000, 100000})
        benchRecords(rows);
    return g_sum == 0 ? 1 : 0;
}
