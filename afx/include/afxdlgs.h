// The system's common dialogs as their own functions have them; classes around them are left out on purpose.
#pragma once
#include <afxwin.h>

#include <commdlg.h>
