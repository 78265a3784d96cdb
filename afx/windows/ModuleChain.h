// The one order in which modules are asked for something.
#pragma once
#include <functional>

#include <windows.h>

/// Asks the resource handle in force, the extension modules, newest first, the system ones, and the framework; the
/// first that `holds` accepts, or null. The chain does not change meanwhile.
HINSTANCE kxFindModule(const std::function<bool(HINSTANCE)>& holds);
