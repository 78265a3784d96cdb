// A scope in which resources are looked for in a given module first.
#pragma once
#include <afxwin.h>
#include "kitrel/Export.h"

/// While it lives, AfxFindResourceHandle looks in the given module first. It is a local of the function that loads the
/// resource, and several may be nested; each puts back what it found.
///
///     CKxToolsResOverride scope(CString(L"Kitrel10-9.dll"));
///     HICON icon = LoadIconW(AfxFindResourceHandle(MAKEINTRESOURCEW(20922), RT_GROUP_ICON), ...);
class KITREL_API CKxToolsResOverride
{
public:
    /// Looks in a loaded module, which stays its owner's. Null changes nothing.
    explicit CKxToolsResOverride(HINSTANCE module);

    /// Looks in a module named by file. One that is not loaded is opened for its resources alone (none of its code
    /// runs), and closed at the end of the scope. When it cannot be found, nothing changes.
    explicit CKxToolsResOverride(const CString& moduleFile);

    virtual ~CKxToolsResOverride();

    CKxToolsResOverride(const CKxToolsResOverride&) = delete;
    CKxToolsResOverride& operator=(const CKxToolsResOverride&) = delete;

private:
    void begin(HINSTANCE module);

    HINSTANCE m_previous = nullptr; // what was in force before; null while nothing was changed
    HMODULE m_opened = nullptr;     // owned: opened for its resources
};
