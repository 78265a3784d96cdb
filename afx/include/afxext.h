// The framework's extensions of windows: CBitmapButton comes with afxwin.h; bars and splitters are left out on purpose.
#pragma once
#include <afxwin.h>
