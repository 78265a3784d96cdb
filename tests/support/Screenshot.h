// Saves what windows show as PNG files. Used by the tests and by the gallery.
#pragma once
#include <windows.h>

/// Saves a bitmap; false when the file cannot be written.
bool saveBitmapPng(HBITMAP bitmap, const wchar_t* file);

/// Saves a visible window, frame included. Drop-down lists, menus and tips are windows of their own.
bool saveWindowPng(HWND window, const wchar_t* file);

/// The same with the visible popups of this thread (lists, menus, tips, dialogs of this window) painted where they stand
/// over or below the window.
bool saveWindowWithPopupsPng(HWND window, const wchar_t* file);
