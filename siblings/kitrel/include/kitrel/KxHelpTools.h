// Help for controls: what's-this tips and help topics.
#pragma once
#include <afxwin.h>
#include "kitrel/Export.h"

/// Shows the help texts that modules file: a resource of type HELPTEXTS, in the format of KxPromptText, whose id is a
/// help id. Its caption is the text of the dialog or topic as a whole, its other lines those of the controls. A dialog
/// gets its help id in its template (the number behind its size), any window by SetWindowContextHelpId. A help id from
/// 0x20000 on is 0x20000 plus the id of a template, as the framework counts; its text is filed under the id of the
/// template. Texts are looked for like prompts, through the modules that answer for a project.
class KITREL_API CKxHelpTools
{
public:
    /// Answers WM_HELP: shows the text filed for the control as a tip, until a click or a key. The help id is
    /// `contextId` when that is not 0; otherwise the windows from the control out to `owner` are asked for theirs, and
    /// the first with a text counts. Of a help id's texts, that of the control is taken, or else the caption. `flags`
    /// has no meaning yet: pass 0. A null `project` asks all modules. TRUE when a tip is shown; FALSE, with nothing
    /// done, when no text is filed or an argument is null.
    static BOOL DisplayWhatsThis(CWnd* owner, HELPINFO* info, unsigned int contextId, unsigned int flags,
                                 const wchar_t* project);

    /// Help by command: HELP_CONTEXT (1) and HELP_CONTEXTPOPUP (8) show the caption filed for the help id `topic` as a
    /// tip at the control with the focus, HELP_QUIT (2) closes the tip. There are no help files: other commands, and topics
    /// without text, give FALSE.
    static BOOL Help(unsigned int command, DWORD_PTR topic);

    /// The text filed under a help id for a control, or the caption filed there when the control has none or
    /// `controlId` is 0; empty when there is neither. A null project asks all modules.
    static CString GetHelpText(unsigned int contextId, unsigned int controlId, const wchar_t* project);

    /// The window of the tip that is shown now, or null. It belongs to this class.
    static HWND GetTipWindow();
};
