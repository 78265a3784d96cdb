// CCmdUI: one menu item or control whose state is asked for.
#pragma once
#include "kx/CmdTarget.h"

class CMenu;
class CWnd;

/// Passed to ON_UPDATE_COMMAND_UI handlers. It stands for a menu item (m_pMenu and m_nIndex) or a control (m_pOther).
class KXAFX_API CCmdUI
{
public:
    CCmdUI();
    CCmdUI(const CCmdUI&) = delete;
    CCmdUI& operator=(const CCmdUI&) = delete;
    virtual ~CCmdUI();

    UINT m_nID = 0;
    UINT m_nIndex = 0;
    CMenu* m_pMenu = nullptr;
    CMenu* m_pSubMenu = nullptr;
    CWnd* m_pOther = nullptr;
    BOOL m_bEnableChanged = FALSE;   ///< a handler called Enable
    BOOL m_bContinueRouting = FALSE; ///< a handler asked for the next one
    UINT m_nIndexMax = 0;
    CMenu* m_pParentMenu = nullptr;

    virtual void Enable(BOOL on = TRUE);
    /// 0 unchecked, 1 checked, 2 indeterminate (a menu shows it as checked).
    virtual void SetCheck(int check = 1);
    virtual void SetRadio(BOOL on = TRUE);
    virtual void SetText(LPCTSTR text);
    void ContinueRouting() { m_bContinueRouting = TRUE; }
    /// Asks the target's route. With `disableIfNoHandler` an item without a command handler is greyed.
    BOOL DoUpdate(CCmdTarget* target, BOOL disableIfNoHandler);
};
