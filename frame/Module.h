// What the library knows of itself as a module. Written while it is loaded, read-only after that.
#pragma once
#include <afxwin.h>

/// The framework's record of this module, used at load and unload only.
extern AFX_EXTENSION_MODULE moduleExtensionState;

/// The instance of this module, set before anything else at load. It is for resource overrides.
extern HINSTANCE moduleInstance;

/// The project of this library's own texts.
inline constexpr wchar_t c_promptsProject[] = L"OXA";

/// The project of the texts that are borrowed from the units-and-prompts sibling, and that sibling's file.
inline constexpr wchar_t c_siblingPromptsProject[] = L"KITREL";
inline constexpr wchar_t c_siblingModuleFile[] = L"Kitrel10-9.dll";
