// CWaitCursor: the hourglass for the length of a block.
#pragma once
#include "kx/WinApp.h"

/// Shows the hourglass while it lives; objects nest. Without an application object nothing happens.
class KXAFX_API CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    /// Puts the hourglass back after somebody else set a cursor, for instance a message box.
    void Restore();
};
