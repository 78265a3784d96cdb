// The hourglass for the length of a block.
#include <afxwin.h>

CWaitCursor::CWaitCursor()
{
    if (CWinApp* app = AfxGetApp())
        app->BeginWaitCursor();
}

CWaitCursor::~CWaitCursor()
{
    if (CWinApp* app = AfxGetApp())
        app->EndWaitCursor();
}

void CWaitCursor::Restore()
{
    if (CWinApp* app = AfxGetApp())
        app->RestoreWaitCursor();
}
