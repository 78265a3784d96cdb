// CCmdTarget: objects that take commands, their message maps and the records of routing.
#pragma once
#include <afx.h>

#include "kx/Export.h"

class CCmdTarget;
class CCmdUI;

#ifndef AFX_MSG_CALL
#define AFX_MSG_CALL
#endif
#ifndef afx_msg
#define afx_msg
#endif

/// Any handler of a map, with its own type erased; the entry's nSig says what it was.
typedef void (AFX_MSG_CALL CCmdTarget::*AFX_PMSG)();

/// One line of a message map.
struct AFX_MSGMAP_ENTRY
{
    UINT nMessage; ///< message number; 0xC000 for a registered message; 0 ends the map
    UINT nCode;    ///< notification code or CN_ code
    UINT nID;      ///< first command or control id
    UINT nLastID;  ///< last id of a range
    UINT_PTR nSig; ///< AfxSig, or the address of the variable that holds a registered message
    AFX_PMSG pfn;  ///< the handler
};

/// A class's message map with the way to its base class's map.
struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

/// Answer of OnCmdMsg to the question "who would handle it?".
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget;
    AFX_PMSG pmf;
};

/// What travels with a routed WM_NOTIFY.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

constexpr int CN_COMMAND = 0;
constexpr int CN_EVENT = -2;
constexpr int CN_UPDATE_COMMAND_UI = -1;

/// Base of windows, threads, applications: everything with a message map.
class KXAFX_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)
public:
    /// Routes a command (or a notification, with its message in the high word of code).
    /// Returns TRUE when somebody took it; with info set nothing is called, it is only filled in.
    virtual BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);

    /// Shows the hourglass until the matching EndWaitCursor; calls nest.
    void BeginWaitCursor();
    void EndWaitCursor();
    /// Puts the hourglass back after somebody else set a cursor, for instance a message box.
    void RestoreWaitCursor();

    static const AFX_MSGMAP* GetThisMessageMap();

protected:
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

/// Searches one map (not its bases); null when there is no such line.
KXAFX_API const AFX_MSGMAP_ENTRY* AfxFindMessageEntry(const AFX_MSGMAP_ENTRY* entries, UINT message, UINT code,
                                                      UINT id);
