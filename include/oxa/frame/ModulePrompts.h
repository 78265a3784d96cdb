// The one exported plain function of the library: under which project its texts are filed.
#pragma once
#include "oxa/Export.h"

/// The name of the project under which this module's texts are filed: the constant text "OXA". Every call gives the
/// same pointer, which is valid for as long as the module is loaded; nobody frees it. The prompts service finds the
/// module by asking each loaded module that exports a function of this name.
extern "C" OXA_API const wchar_t* getModulePromptsProjectName();
