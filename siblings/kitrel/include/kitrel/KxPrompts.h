// The prompts service: every text that the libraries show goes through it.
#pragma once
#include <afxwin.h>
#include "kitrel/Export.h"

/// Finds texts by id and project. A project is a module of the process: each module that files texts exports the plain
/// function `getModulePromptsProjectName`, which gives the name of its project; this library itself is "KITREL". Names
/// are compared exactly. A null project stands for every module that answers. Modules are asked in the order in which
/// they were loaded, and the first that has the text gives it.
///
/// A prompt is an entry of the module's string table. The texts of a dialog or menu template are filed apart, in a
/// resource of type PROMPTS with the id of the template; KxPromptText says how it is written.
class KITREL_API KxPrompts
{
public:
    /// The prompt `id` of a project; empty when there is none. `flags` has no meaning yet: pass 0.
    static CString getPrompt(unsigned int id, const wchar_t* project, unsigned int flags);

    /// The same into `out`: 1, or 0 with an empty text when there is none.
    static int getPrompt(CString& out, unsigned int id, const wchar_t* project, unsigned int flags);

    /// Replaces the caption of `dialog` and the texts of its direct children by those filed for the template
    /// `dialogId`. What has no text filed keeps its own. A null dialog, or one without a window, is left alone.
    static void setDialogAndControlText(CWnd* dialog, unsigned int dialogId, const wchar_t* project);

    /// Replaces the texts of the commands of a menu, at any depth, by those filed for the template `menuId`; the
    /// caption filed for it goes to the first pop-up. Besides, the command whose own id is `menuId` takes the prompt
    /// of that id. What has no text filed keeps its own; a null menu is left alone.
    static void setMenuText(CMenu* menu, unsigned int menuId, const wchar_t* project);
    static void setMenuText(HMENU menu, unsigned int menuId, const wchar_t* project);

    /// The prompt with `%1` and `%2` replaced by `s1` and `s2`, every time that they occur; a null text counts as
    /// empty. What `s1` and `s2` hold is not searched again. Empty when there is no such prompt.
    static void AfxFormatString2(CString& out, unsigned int id, const wchar_t* project, const wchar_t* s1,
                                 const wchar_t* s2);
};
