// Commands and notifications on their way through message maps.
#include <afxwin.h>

#include "kx/CmdUI.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
    static const AFX_MSGMAP map = {nullptr, &entries[0]};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP_ENTRY* AfxFindMessageEntry(const AFX_MSGMAP_ENTRY* entries, UINT message, UINT code, UINT id)
{
    for (; entries->nSig != AfxSig_end; ++entries)
        if (entries->nMessage == message && entries->nCode == code && id >= entries->nID && id <= entries->nLastID)
            return entries;
    return nullptr;
}

namespace
{
template <class Result, class... Args> Result call(CCmdTarget* target, AFX_PMSG handler, Args... args)
{
    using Typed = Result (CCmdTarget::*)(Args...);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
    return (target->*reinterpret_cast<Typed>(handler))(args...);
#pragma GCC diagnostic pop
}

BOOL callNotify(CCmdTarget* target, UINT id, const AFX_MSGMAP_ENTRY& entry, void* extra)
{
    const auto* notify = static_cast<AFX_NOTIFY*>(extra);
    if (notify == nullptr)
        return FALSE;
    NMHDR* header = notify->pNMHDR;
    LRESULT ignored = 0;
    LRESULT* result = notify->pResult != nullptr ? notify->pResult : &ignored;
    switch (entry.nSig)
    {
    case AfxSigNotify_v:
        call<void>(target, entry.pfn, header, result);
        return TRUE;
    case AfxSigNotify_b:
        return call<BOOL>(target, entry.pfn, header, result);
    case AfxSigNotify_range:
        call<void>(target, entry.pfn, id, header, result);
        return TRUE;
    default:
        return call<BOOL>(target, entry.pfn, id, header, result);
    }
}

BOOL callUpdate(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, void* extra)
{
    auto* update = static_cast<CCmdUI*>(extra);
    if (update == nullptr)
        return FALSE;
    update->m_bContinueRouting = FALSE;
    call<void>(target, entry.pfn, update);
    return !update->m_bContinueRouting;
}

BOOL callHandler(CCmdTarget* target, UINT id, const AFX_MSGMAP_ENTRY& entry, void* extra)
{
    switch (entry.nSig)
    {
    case AfxSigCmd_v:
        call<void>(target, entry.pfn);
        return TRUE;
    case AfxSigCmd_b:
        return call<BOOL>(target, entry.pfn);
    case AfxSigCmd_range:
        call<void>(target, entry.pfn, id);
        return TRUE;
    case AfxSigCmd_ex:
        return call<BOOL>(target, entry.pfn, id);
    case AfxSigCmdUI:
        return callUpdate(target, entry, extra);
    case AfxSigNotify_v:
    case AfxSigNotify_b:
    case AfxSigNotify_range:
    case AfxSigNotify_ex:
        return callNotify(target, id, entry, extra);
    default:
        return FALSE; // an entry of a window message with a command's number
    }
}
} // namespace

BOOL CCmdTarget::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    UINT message = WM_COMMAND;
    if (code != CN_UPDATE_COMMAND_UI) // whose high word is no message
    {
        if (HIWORD(code) != 0)
            message = HIWORD(code);
        code = LOWORD(code);
    }
    const UINT word = static_cast<WORD>(code);
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr;
         map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr)
    {
        const AFX_MSGMAP_ENTRY* entry = AfxFindMessageEntry(map->lpEntries, message, word, id);
        if (entry == nullptr)
            continue;
        if (info != nullptr)
        {
            info->pTarget = this;
            info->pmf = entry->pfn;
            return TRUE;
        }
        return callHandler(this, id, *entry, extra);
    }
    return FALSE;
}

void CCmdTarget::BeginWaitCursor()
{
    if (CWinApp* app = AfxGetApp())
        app->DoWaitCursor(1);
}

void CCmdTarget::EndWaitCursor()
{
    if (CWinApp* app = AfxGetApp())
        app->DoWaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor()
{
    if (CWinApp* app = AfxGetApp())
        app->DoWaitCursor(0);
}
