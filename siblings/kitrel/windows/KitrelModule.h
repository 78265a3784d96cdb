// This library as a module, and the modules of the process that file texts.
#pragma once
#include <afxwin.h>
#include <cstddef>
#include <functional>

/// The instance of this module, set at load.
extern HINSTANCE kitrelInstance;

/// Calls `visit` with each module that answers for `project` (null: for any), in load order, until one call gives true.
/// True when one did.
bool visitPromptModules(const wchar_t* project, const std::function<bool(HMODULE)>& visit);

/// The bytes of a resource, found in the modules of a project; they live as long as the module.
struct FiledBytes
{
    const void* data = nullptr;
    std::size_t size = 0;
};

/// The first resource with this type and id in the modules of a project; no data when there is none.
FiledBytes findFiled(const wchar_t* type, unsigned int id, const wchar_t* project);
