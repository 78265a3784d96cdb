// Creation and destruction of 1,000 unit combo boxes against 1,000 plain combo boxes, as a ratio of times.
#include <afxwin.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

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

/// Milliseconds for one control after the other: made, given its window, destroyed.
template <typename Combo> double timeOf(CWnd& parent)
{
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < count; ++i)
    {
        Combo combo;
        if (!combo.Create(style, CRect(0, 0, 100, 120), &parent, 100))
        {
            std::fputs("bench-combo: a control could not be created\n", stderr);
            std::exit(1);
        }
    }
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}
} // namespace

int main()
{
    if (!AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), SW_HIDE))
        return 2;
    CWnd parent;
    if (!parent.CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_POPUP, CRect(0, 0, 200, 200), nullptr, 0))
        return 2;
    timeOf<CComboBox>(parent); // warm-up
    timeOf<CKxComboBoxUnit>(parent);
    std::vector<double> plain, unit;
    for (int i = 0; i < rounds; ++i)
    {
        plain.push_back(timeOf<CComboBox>(parent));
        unit.push_back(timeOf<CKxComboBoxUnit>(parent));
    }
    parent.DestroyWindow();
    std::printf(
        "create and destroy %d: plain combo boxes %.1f ms, unit combo boxes %.1f ms, ratio %.2f (goal: below 2)\n",
        count, median(plain), median(unit), median(unit) / median(plain));
    return 0;
}
