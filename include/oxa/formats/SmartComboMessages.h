// What a smart combo box tells its parent.
#pragma once

#include <afx.h>

// All are sent, not posted, to the parent of the control; their answers are not looked at. Where nothing else is said
// wParam and lParam are 0. The parent may destroy the control while it handles one.

/// A button of the bitmap picker was chosen. wParam is the control's id, lParam the index of the button.
inline constexpr UINT WM_KX_SMART_BUTTONSEL = 1029;
/// A typed value is about to be added because another item was picked.
inline constexpr UINT WM_KX_SMART_ADDING = 1030;
/// An item was picked, and nothing was added.
inline constexpr UINT WM_KX_SMART_SELCHANGE = 1031;
/// An item was confirmed. The control counts as touched by then.
inline constexpr UINT WM_KX_SMART_SELENDOK = 1032;
/// The user edited the text. The control counts as touched by then.
inline constexpr UINT WM_KX_SMART_EDITUPDATE = 1033;
