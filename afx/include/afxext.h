// The framework's extensions of windows: control bars and dialog bars. CBitmapButton comes with afxwin.h; splitters are
// left out on purpose.
#pragma once
#include <afxwin.h>

#include "kx/ControlBar.h"
#include "kx/DialogBar.h"
