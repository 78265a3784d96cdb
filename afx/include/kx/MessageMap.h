// Macros of message maps: commands, notifications, reflection, updates and plain messages.
#pragma once
#include "kx/CmdTarget.h"
#include "kx/MessageSig.h"

/// Added to a message's number when it comes back to the control that caused it.
constexpr UINT WM_REFLECT_BASE = 0xBC00;

/// Erases the type of a handler; the dispatcher gives it back before the call.
template <class Handler> inline AFX_PMSG KxEraseHandler(Handler handler)
{
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
    return reinterpret_cast<AFX_PMSG>(handler);
#pragma GCC diagnostic pop
}

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* GetThisMessageMap();                                                                      \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                                  \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                                                    \
    {                                                                                                                  \
        typedef theClass ThisClass [[maybe_unused]];                                                                   \
        typedef baseClass TheBaseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY messageEntries[] = {

#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)                                                     \
    template <typename type_name> const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const                         \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    template <typename type_name> const AFX_MSGMAP* theClass<type_name>::GetThisMessageMap()                           \
    {                                                                                                                  \
        typedef theClass<type_name> ThisClass [[maybe_unused]];                                                        \
        typedef baseClass TheBaseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                              \
    {                                                                                                                  \
        0, 0, 0, 0, AfxSig_end, nullptr                                                                                \
    }                                                                                                                  \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, &messageEntries[0]};                       \
    return &messageMap;                                                                                                \
    }

// Building blocks: an entry for a handler of a routed command, and one for a window message.
#define KX_CMD_ENTRY(message, code, id, lastId, sig, type, memberFxn)                                                  \
    {message, static_cast<UINT>(static_cast<WORD>(code)),  static_cast<UINT>(id), static_cast<UINT>(lastId),           \
     sig,     KxEraseHandler(static_cast<type>(memberFxn))},
#define KX_WND_ENTRY(message, sig, type, memberFxn)                                                                    \
    {message, 0, 0, 0, sig, KxEraseHandler(static_cast<type>(memberFxn))},

// void memberFxn()
#define ON_COMMAND(id, memberFxn)                                                                                      \
    KX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_v, void (CCmdTarget::*)(), memberFxn)
// void memberFxn(UINT id)
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                                        \
    KX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, AfxSigCmd_range, void (CCmdTarget::*)(UINT), memberFxn)
// BOOL memberFxn(UINT id); FALSE routes on
#define ON_COMMAND_EX(id, memberFxn)                                                                                   \
    KX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_ex, BOOL (CCmdTarget::*)(UINT), memberFxn)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                                     \
    KX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, AfxSigCmd_ex, BOOL (CCmdTarget::*)(UINT), memberFxn)

// void memberFxn(CCmdUI*)
#define ON_UPDATE_COMMAND_UI(id, memberFxn)                                                                            \
    KX_CMD_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, AfxSigCmdUI, void (CCmdTarget::*)(CCmdUI*), memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                              \
    KX_CMD_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, AfxSigCmdUI, void (CCmdTarget::*)(CCmdUI*), memberFxn)
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                                        \
    KX_CMD_ENTRY(WM_COMMAND + WM_REFLECT_BASE, CN_UPDATE_COMMAND_UI, 0, 0xFFFF, AfxSigCmdUI,                           \
                 void(CCmdTarget::*)(CCmdUI*), memberFxn)

// void memberFxn()
#define ON_CONTROL(code, id, memberFxn)                                                                                \
    KX_CMD_ENTRY(WM_COMMAND, code, id, id, AfxSigCmd_v, void (CCmdTarget::*)(), memberFxn)
// void memberFxn(UINT id)
#define ON_CONTROL_RANGE(code, id, idLast, memberFxn)                                                                  \
    KX_CMD_ENTRY(WM_COMMAND, code, id, idLast, AfxSigCmd_range, void (CCmdTarget::*)(UINT), memberFxn)
// void memberFxn(); the parent is not asked any more
#define ON_CONTROL_REFLECT(code, memberFxn)                                                                            \
    KX_CMD_ENTRY(WM_COMMAND + WM_REFLECT_BASE, code, 0, 0, AfxSigCmd_v, void(CCmdTarget::*)(), memberFxn)
// BOOL memberFxn(); FALSE lets the parent have it too
#define ON_CONTROL_REFLECT_EX(code, memberFxn)                                                                         \
    KX_CMD_ENTRY(WM_COMMAND + WM_REFLECT_BASE, code, 0, 0, AfxSigCmd_b, BOOL(CCmdTarget::*)(), memberFxn)

// void memberFxn(NMHDR*, LRESULT*)
#define ON_NOTIFY(code, id, memberFxn)                                                                                 \
    KX_CMD_ENTRY(WM_NOTIFY, code, id, id, AfxSigNotify_v, void (CCmdTarget::*)(NMHDR*, LRESULT*), memberFxn)
// BOOL memberFxn(UINT, NMHDR*, LRESULT*); FALSE routes on
#define ON_NOTIFY_EX(code, id, memberFxn)                                                                              \
    KX_CMD_ENTRY(WM_NOTIFY, code, id, id, AfxSigNotify_ex, BOOL (CCmdTarget::*)(UINT, NMHDR*, LRESULT*), memberFxn)
// void memberFxn(UINT, NMHDR*, LRESULT*)
#define ON_NOTIFY_RANGE(code, id, idLast, memberFxn)                                                                   \
    KX_CMD_ENTRY(WM_NOTIFY, code, id, idLast, AfxSigNotify_range, void (CCmdTarget::*)(UINT, NMHDR*, LRESULT*),        \
                 memberFxn)
// BOOL memberFxn(UINT, NMHDR*, LRESULT*)
#define ON_NOTIFY_EX_RANGE(code, id, idLast, memberFxn)                                                                \
    KX_CMD_ENTRY(WM_NOTIFY, code, id, idLast, AfxSigNotify_ex, BOOL (CCmdTarget::*)(UINT, NMHDR*, LRESULT*), memberFxn)
// void memberFxn(NMHDR*, LRESULT*); the parent is not asked any more
#define ON_NOTIFY_REFLECT(code, memberFxn)                                                                             \
    KX_CMD_ENTRY(WM_NOTIFY + WM_REFLECT_BASE, code, 0, 0, AfxSigNotify_v, void(CCmdTarget::*)(NMHDR*, LRESULT*),       \
                 memberFxn)
// BOOL memberFxn(NMHDR*, LRESULT*); FALSE lets the parent have it too
#define ON_NOTIFY_REFLECT_EX(code, memberFxn)                                                                          \
    KX_CMD_ENTRY(WM_NOTIFY + WM_REFLECT_BASE, code, 0, 0, AfxSigNotify_b, BOOL(CCmdTarget::*)(NMHDR*, LRESULT*),       \
                 memberFxn)

// LRESULT memberFxn(WPARAM, LPARAM)
#define ON_MESSAGE(message, memberFxn) KX_WND_ENTRY(message, AfxSig_l_w_l, LRESULT (CWnd::*)(WPARAM, LPARAM), memberFxn)
// LRESULT memberFxn(WPARAM, LPARAM); the variable is read at each message
#define ON_REGISTERED_MESSAGE(messageVariable, memberFxn)                                                              \
    {0xC000,                                                                                                           \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     reinterpret_cast<UINT_PTR>(&messageVariable),                                                                     \
     KxEraseHandler(static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(memberFxn))},
// void memberFxn(WPARAM, LPARAM) of a CWinThread
#define ON_THREAD_MESSAGE(message, memberFxn)                                                                          \
    KX_WND_ENTRY(message, AfxSig_v_w_l, void (CWinThread::*)(WPARAM, LPARAM), memberFxn)
// void memberFxn(WPARAM, LPARAM) of a CWinThread
#define ON_REGISTERED_THREAD_MESSAGE(messageVariable, memberFxn)                                                       \
    {0xC000,                                                                                                           \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     reinterpret_cast<UINT_PTR>(&messageVariable),                                                                     \
     KxEraseHandler(static_cast<void (CWinThread::*)(WPARAM, LPARAM)>(memberFxn))},

// void memberFxn() for the notification codes of the standard controls
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CLBN_CHKCHANGE(id, memberFxn) ON_CONTROL(CLBN_CHKCHANGE, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
