// The entry of the window test programs: a console program that is a host with an application object.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <commctrl.h>
#include "support/CrashReporter.h"

namespace
{
class CTestApp : public CWinApp
{
};
CTestApp theApp;
} // namespace

int main(int argc, char** argv)
{
    installCrashReporter();
    testing::InitGoogleTest(&argc, argv);
    INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_USEREX_CLASSES};
    InitCommonControlsEx(&controls);
    if (!AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), SW_SHOWNORMAL))
    {
        fputs("the framework layer did not start\n", stderr);
        return 2;
    }
    const int result = RUN_ALL_TESTS();
    fflush(stdout);
    fflush(stderr);
    return result;
}
