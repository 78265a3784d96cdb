// 100 statics on a painted dialog bar repainted 100 times, against the same statics on a plain dialog bar, as a ratio.
#include <afxext.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <vector>

#include "oxa/dialogs/KxDialogBarEx.h"

namespace
{
constexpr int statics = 100;
constexpr int repaints = 100;
constexpr int rounds = 5;
constexpr int columns = 10;

class BenchApp : public CWinApp
{
};
BenchApp theApp;

class Frame : public CFrameWnd
{
public:
    Frame() { Create(nullptr, L"bench", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, CRect(0, 0, 620, 320)); }
    ~Frame() override { DestroyWindow(); }

protected:
    void PostNcDestroy() override {}
};

/// A template without controls: style, extended style, count, place, and three empty names behind it.
struct EmptyTemplate
{
    DLGTEMPLATE head;
    WORD names[3];
};

/// A bar made without a resource, filled with statics.
template <class Base> class Bar : public Base
{
public:
    explicit Bar(CWnd& frame)
    {
        EmptyTemplate empty = {};
        empty.head.style = WS_CHILD | WS_VISIBLE;
        AfxHookWindowCreate(this);
        CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &empty.head, frame.m_hWnd, AfxDlgProc, 0);
        if (!AfxUnhookWindowCreate() || this->m_hWnd == nullptr)
            std::exit(2);
        this->MoveWindow(0, 0, 600, 300);
        for (int i = 0; i < statics; ++i)
        {
            const CPoint at(i % columns * 60, i / columns * 30);
            m_statics.push_back(std::make_unique<CStatic>());
            if (!m_statics.back()->Create(L"text", WS_CHILD | WS_VISIBLE, CRect(at, CSize(50, 20)), this,
                                          static_cast<UINT>(1000 + i)))
                std::exit(2);
        }
    }
    /// Milliseconds for all repaints of all statics.
    double time()
    {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < repaints; ++i)
            this->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    }

private:
    std::vector<std::unique_ptr<CStatic>> m_statics;
};

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
    CKxDialogBarEx::SetOvewriteStyle();
    if (!CKxDialogBarEx::m_bOverwriteStyle)
        return 2;
    std::vector<double> plain, painted;
    for (int i = 0; i <= rounds; ++i) // the first is a warm-up
    {
        Frame frame;
        double plainTime = 0;
        {
            Bar<CDialogBar> bar(frame);
            plainTime = bar.time();
        }
        Bar<CKxDialogBarEx> bar(frame);
        const double paintedTime = bar.time();
        if (i == 0)
            continue;
        plain.push_back(plainTime);
        painted.push_back(paintedTime);
    }
    std::printf("%d statics repainted %d times: plain dialog bar %.1f ms, painted dialog bar %.1f ms, ratio %.2f\n",
                statics, repaints, median(plain), median(painted), median(painted) / median(plain));
    return 0;
}
