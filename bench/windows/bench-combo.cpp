// Combo boxes: creation and destruction of 1,000 unit combo boxes against 1,000 plain ones, as a ratio of times; and how the
// time to fill and to sort a smart combo box grows with the number of values.
#include <afxwin.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <vector>

#include "bench/TextsInDisorder.h"
#include "oxa/formats/KxSmartComboBox.h"
#include "oxa/units/KxComboBoxUnit.h"

namespace
{
constexpr int count = 1000;
constexpr int rounds = 5;
constexpr DWORD style = WS_CHILD | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL;

class BenchApp : public CWinApp
{
};
BenchApp theApp;

void require(BOOL created)
{
    if (!created)
    {
        std::fputs("bench-combo: a control could not be created\n", stderr);
        std::exit(1);
    }
}

template <typename Work> double milliseconds(const Work& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// Milliseconds for one control after the other: made, given its window, destroyed.
template <typename Combo> double timeOf(CWnd& parent)
{
    return milliseconds(
        [&]
        {
            for (int i = 0; i < count; ++i)
            {
                Combo combo;
                require(combo.Create(style, CRect(0, 0, 100, 120), &parent, 100));
            }
        });
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void compareUnitCombos(CWnd& parent)
{
    timeOf<CComboBox>(parent); // warm-up
    timeOf<CKxComboBoxUnit>(parent);
    std::vector<double> plain, unit;
    for (int i = 0; i < rounds; ++i)
    {
        plain.push_back(timeOf<CComboBox>(parent));
        unit.push_back(timeOf<CKxComboBoxUnit>(parent));
    }
    std::printf(
        "create and destroy %d: plain combo boxes %.1f ms, unit combo boxes %.1f ms, ratio %.2f (goal: below 2)\n",
        count, median(plain), median(unit), median(unit) / median(plain));
}

// ---- Many values in a smart combo box

/// A sorted combo box of the platform that is asked for each text whether it has it, and gets it if not.
double plainFill(CWnd& parent, const std::vector<CString>& texts)
{
    CComboBox combo;
    require(combo.Create(style | WS_VISIBLE | CBS_SORT, CRect(0, 0, 100, 120), &parent, 100));
    return milliseconds(
        [&]
        {
            for (const CString& text : texts)
                if (combo.FindStringExact(-1, text) < 0)
                    combo.AddString(text);
        });
}

void showGrowth(CWnd& parent)
{
    constexpr int plainMost = 10000; // beyond, the plain steps take minutes
    std::puts("\na smart combo box with its window, milliseconds, and nanoseconds divided by n log2 n");
    std::printf("%-8s %10s %10s %12s %12s %12s\n", "values", "fill", "sort", "fill/nlogn", "sort/nlogn", "fill/plain");
    for (const int values : {1000, 10000, 100000})
    {
        const std::vector<CString> texts = bench::textsInDisorder(values);
        CStringList list;
        for (const CString& text : texts)
            list.AddTail(text);
        auto* const smart = new CKxSmartComboBox; // ends with its window
        require(smart->Create(L"CKXSMARTCOMBOBOX", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 150, 30), &parent, 200));
        std::vector<double> fill, sort;
        for (int i = 0; i < rounds; ++i)
        {
            smart->SetSort(0); // the control's own list in disorder again
            fill.push_back(milliseconds([&] { smart->SetStringCombo(list); }));
            smart->SetSort(1);
            sort.push_back(milliseconds([&] { smart->SortCombo(); }));
        }
        smart->DestroyWindow();
        const double nanoseconds = 1e6 / (values * std::log2(values));
        std::printf("%-8d %10.1f %10.1f %12.0f %12.0f", values, median(fill), median(sort), median(fill) * nanoseconds,
                    median(sort) * nanoseconds);
        if (values <= plainMost)
            std::printf(" %12.4f", median(fill) / plainFill(parent, texts));
        std::puts("");
    }
}
} // namespace

int main()
{
    if (!AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), SW_HIDE))
        return 2;
    CWnd parent;
    if (!parent.CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP, CRect(0, 0, 200, 200), nullptr, 0))
        return 2;
    compareUnitCombos(parent);
    CKxSmartComboBox::RegisterWndClass(AfxGetInstanceHandle());
    parent.ShowWindow(SW_SHOWNA);
    showGrowth(parent);
    parent.DestroyWindow();
    return 0;
}
