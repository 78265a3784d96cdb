// Makes the test program a module that files texts, as a host does.
#include "TestProject.h"

const wchar_t* getModulePromptsProjectName()
{
    return c_testProject;
}
