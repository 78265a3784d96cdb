// Puts a module in front of the search for resources, and takes it away again.
#include "kitrel/KxToolsResOverride.h"

CKxToolsResOverride::CKxToolsResOverride(HINSTANCE module)
{
    begin(module);
}

CKxToolsResOverride::CKxToolsResOverride(const CString& moduleFile)
{
    HMODULE module = GetModuleHandleW(moduleFile);
    if (moduleFile.IsEmpty())
        return; // an empty name would stand for the program
    if (!module)
        module = m_opened =
            LoadLibraryExW(moduleFile, nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
    begin(module);
}

CKxToolsResOverride::~CKxToolsResOverride()
{
    if (m_previous)
        AfxSetResourceHandle(m_previous);
    if (m_opened)
        FreeLibrary(m_opened);
}

void CKxToolsResOverride::begin(HINSTANCE module)
{
    if (!module)
        return;
    m_previous = AfxGetResourceHandle();
    AfxSetResourceHandle(module);
}
