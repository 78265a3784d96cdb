// The application object: reads the command line, opens the main window, or takes the pictures and ends.
#include "MainDialog.h"
#include "support/CrashReporter.h"
#include <cstdio>
#include <shellapi.h>

namespace
{
struct Options
{
    CString page;
    CString shots;
    bool understood = true;
};

Options readCommandLine()
{
    Options options;
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; i < count; ++i)
    {
        const CString name = arguments[i];
        if (i + 1 < count && name == L"--page")
            options.page = arguments[++i];
        else if (i + 1 < count && name == L"--shots")
            options.shots = arguments[++i];
        else
            options.understood = false;
    }
    LocalFree(arguments);
    return options;
}
} // namespace

class CGalleryApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        installCrashReporter();
        const Options options = readCommandLine();
        if (!options.understood)
        {
            std::fputs("usage: oxa-gallery [--page NAME] [--shots FOLDER]\n", stderr);
            m_status = 2;
            return FALSE;
        }
        m_pMainWnd = &m_main;
        if (!m_main.open(options.page))
        {
            std::fputs("oxa-gallery: the main window could not be created\n", stderr);
            m_status = 1;
            return FALSE;
        }
        if (options.shots.IsEmpty())
            return TRUE;
        if (!m_main.saveShots(options.shots))
        {
            std::fputs("oxa-gallery: a picture could not be saved; does the folder exist?\n", stderr);
            m_status = 1;
        }
        m_main.DestroyWindow();
        return FALSE;
    }
    int ExitInstance() override
    {
        CWinApp::ExitInstance(); // answers with the last message's parameter, which need not be a quit message's here
        return m_status;
    }

private:
    CMainDialog m_main;
    int m_status = 0;
};

CGalleryApp theApp;
