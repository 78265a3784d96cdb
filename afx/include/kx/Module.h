// Modules: their state, the chain of extension modules, and where resources are looked for.
#pragma once
#include <afx.h>

#include "kx/Export.h"

class CDynLinkLibrary;
class CWinApp;

/// What an extension DLL keeps about itself; zero-initialised static data of the DLL.
struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;                ///< where its resources are; hModule unless set before AfxInitExtensionModule
    CRuntimeClass* pFirstSharedClass; ///< kept for the documented layout; classes are found process-wide
    void* pFirstSharedFactory;        ///< kept for the documented layout
};

/// The current application, instance and resources of a module. The host program has one; a thread can set another.
class KXAFX_API AFX_MODULE_STATE
{
public:
    AFX_MODULE_STATE();
    AFX_MODULE_STATE(const AFX_MODULE_STATE&) = delete;
    AFX_MODULE_STATE& operator=(const AFX_MODULE_STATE&) = delete;

    CWinApp* m_pCurrentWinApp = nullptr;
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr;
    LPCTSTR m_lpszCurrentAppName = nullptr;
    BYTE m_bDLL = FALSE;
    /// The extension chain's newest module.
    CDynLinkLibrary* m_pFirstLibrary = nullptr;
};

/// One module of the extension chain. Made by the module at load, by `new`; the chain owns it.
class KXAFX_API CDynLinkLibrary : public CObject
{
    DECLARE_DYNAMIC(CDynLinkLibrary)
public:
    /// Joins the chain, in front. A system library is searched behind all others.
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL system = FALSE);
    CDynLinkLibrary(HINSTANCE module, HINSTANCE resource);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem;
    CDynLinkLibrary* m_pNextDLL = nullptr;
};

/// First step of an extension DLL's attach. FALSE, with the record untouched, when there is no module.
/// A second call for the same record changes nothing and is TRUE.
KXAFX_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module);
/// Last step of its detach: deletes the module's CDynLinkLibrary objects; with `all` the whole chain.
KXAFX_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL all = FALSE);

/// The state in force on this thread.
KXAFX_API AFX_MODULE_STATE* AfxGetModuleState();
/// The state of the host program.
KXAFX_API AFX_MODULE_STATE* AfxGetAppModuleState();
/// All modules share the framework DLL, so this is the state of the host program.
KXAFX_API AFX_MODULE_STATE* AfxGetStaticModuleState();
/// Sets the thread's state, and answers the one before.
KXAFX_API AFX_MODULE_STATE* AfxSetModuleState(AFX_MODULE_STATE* state);

/// Keeps a state in force until the end of the block.
class KXAFX_API AFX_MAINTAIN_STATE2
{
public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* state);
    ~AFX_MAINTAIN_STATE2();
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;

private:
    AFX_MODULE_STATE* m_before;
};

#define AFX_MANAGE_STATE(state) const AFX_MAINTAIN_STATE2 afxManagedState(state);

KXAFX_API HINSTANCE AfxGetInstanceHandle();
KXAFX_API HINSTANCE AfxGetResourceHandle();
KXAFX_API void AfxSetResourceHandle(HINSTANCE instance);
/// The module that has the resource: the resource handle in force, then the extension modules, newest first, then
/// the system ones, then the framework. Where none has it, the resource handle in force.
KXAFX_API HINSTANCE AfxFindResourceHandle(LPCTSTR name, LPCTSTR type);
/// The same for a string of the string tables.
KXAFX_API HINSTANCE AfxFindStringResourceHandle(UINT id);

/// Reads a string into a buffer of `maxCount` characters; returns its length, 0 where there is none.
KXAFX_API int AfxLoadString(UINT id, LPTSTR buffer, UINT maxCount = 256);
/// Part number `field` (from 0) of a text whose parts are separated; FALSE where there are fewer parts.
KXAFX_API BOOL AfxExtractSubString(CString& result, LPCTSTR text, int field, TCHAR separator = _T('\n'));
/// Puts texts for %1, %2, ... of a string resource.
KXAFX_API void AfxFormatString1(CString& result, UINT id, LPCTSTR text1);
KXAFX_API void AfxFormatString2(CString& result, UINT id, LPCTSTR text1, LPCTSTR text2);
/// The same with a format that is given; a place-holder without its text becomes "?".
KXAFX_API void AfxFormatStrings(CString& result, LPCTSTR format, LPCTSTR const* texts, int count);
KXAFX_API void AfxFormatStrings(CString& result, UINT id, LPCTSTR const* texts, int count);

/// LoadLibrary with a count of its own; null on failure.
KXAFX_API HINSTANCE AfxLoadLibrary(LPCTSTR module);
KXAFX_API HINSTANCE AfxLoadLibraryEx(LPCTSTR module, HANDLE file, DWORD flags);
KXAFX_API BOOL AfxFreeLibrary(HINSTANCE library);
