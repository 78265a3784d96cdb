// What a message that a control sends its parent is called.
#pragma once
#include <afxwin.h>

/// True for the messages that controls send their parent: notifications and the library's own numbers.
bool isControlMessage(UINT message, LPARAM lParam);

/// The name: "WM_KX_UNIT_FOCUS", "CBN_KILLFOCUS", ...; the number in hexadecimal where there is none.
CString nameOfControlMessage(UINT message, WPARAM wParam, LPARAM lParam);
