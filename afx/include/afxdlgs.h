// The system's common dialogs; property sheets and their pages.
#pragma once
#include <afxwin.h>

#include "kx/FileDialog.h"
#include "kx/PropertyPage.h"
#include "kx/PropertySheet.h"
