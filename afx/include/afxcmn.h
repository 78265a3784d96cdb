// The classes of the common controls.
#pragma once
#include <afxwin.h>

#include "kx/ImageList.h"
#include "kx/ToolTipCtrl.h"
#include "kx/TreeCtrl.h"
#include "kx/HeaderCtrl.h"
#include "kx/ListCtrl.h"
#include "kx/TabCtrl.h"
#include "kx/RangeControls.h"
#include "kx/StatusBarCtrl.h"
#include "kx/ComboBoxEx.h"
