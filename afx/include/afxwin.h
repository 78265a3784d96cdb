// The window half of the framework: windows, dialogs, threads, the application, modules, drawing, standard controls.
#pragma once
#include <afx.h>

#include <afxres.h>
#include "kx/CmdTarget.h"
#include "kx/CmdUI.h"
#include "kx/MessageMap.h"
#include "kx/WndMaps.h"
#include "kx/Wnd.h"
#include "kx/Gdi.h"
#include "kx/Dc.h"
#include "kx/Menu.h"
#include "kx/Controls.h"
#include "kx/Module.h"
#include "kx/WinThread.h"
#include "kx/WinApp.h"
#include "kx/WaitCursor.h"
#include "kx/Dialog.h"
#include "kx/FrameWnd.h"
#include "kx/Ddx.h"
