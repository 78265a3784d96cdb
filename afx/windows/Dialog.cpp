// Dialogs: made from templates, run modally or not.
#include <afxwin.h>

#include <cstring>

#include "ModalOwner.h"
#include "ThreadState.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    // LRESULT HandleInitDialog(WPARAM, LPARAM)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    // LRESULT HandleSetFont(WPARAM, LPARAM)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
    // void OnOK(), void OnCancel()
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace
{
HGLOBAL loadTemplate(LPCTSTR name, HINSTANCE module)
{
    HRSRC found = ::FindResource(module, name, RT_DIALOG);
    return found != nullptr ? ::LoadResource(module, found) : nullptr;
}

/// What both kinds of templates begin with.
struct TemplateHead
{
    DWORD style;
    short x;
    short y;
};

// The extended kind begins with a version and a signature, where the other has its style.
TemplateHead headOf(const DLGTEMPLATE* dialogTemplate)
{
    const auto* bytes = reinterpret_cast<const BYTE*>(dialogTemplate);
    WORD start[2] = {};
    memcpy(start, bytes, sizeof start);
    const bool extended = start[0] == 1 && start[1] == 0xFFFF;
    TemplateHead head = {};
    memcpy(&head.style, bytes + (extended ? 12 : 0), sizeof head.style);
    memcpy(&head.x, bytes + (extended ? 18 : 10), sizeof head.x);
    memcpy(&head.y, bytes + (extended ? 20 : 12), sizeof head.y);
    return head;
}

bool isMultilineEdit(HWND wnd)
{
    wchar_t name[8] = {};
    return (::GetWindowLongPtr(wnd, GWL_STYLE) & ES_MULTILINE) != 0 && ::GetClassNameW(wnd, name, 8) != 0 &&
           lstrcmpiW(name, L"Edit") == 0;
}
} // namespace

CDialog::CDialog() = default;

CDialog::CDialog(LPCTSTR templateName, CWnd* parent) : m_lpszTemplateName(templateName), m_pParentWnd(parent)
{
    if (IS_INTRESOURCE(templateName))
        m_nIDHelp = LOWORD(reinterpret_cast<UINT_PTR>(templateName));
}

CDialog::CDialog(UINT templateId, CWnd* parent)
    : m_nIDHelp(templateId), m_lpszTemplateName(MAKEINTRESOURCE(templateId)), m_pParentWnd(parent)
{
}

CDialog::~CDialog() = default;

INT_PTR CALLBACK AfxDlgProc(HWND wnd, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    auto* dialog = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(wnd));
    return dialog != nullptr ? dialog->OnInitDialog() : TRUE;
}

BOOL CDialog::Create(UINT templateId, CWnd* parent)
{
    return Create(MAKEINTRESOURCE(templateId), parent);
}

BOOL CDialog::Create(LPCTSTR templateName, CWnd* parent)
{
    m_lpszTemplateName = templateName;
    if (IS_INTRESOURCE(templateName) && m_nIDHelp == 0)
        m_nIDHelp = LOWORD(reinterpret_cast<UINT_PTR>(templateName));
    HINSTANCE module = AfxFindResourceHandle(templateName, RT_DIALOG);
    HGLOBAL dialogTemplate = loadTemplate(templateName, module);
    return dialogTemplate != nullptr && CreateIndirect(dialogTemplate, parent, module);
}

BOOL CDialog::CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent, HINSTANCE instance)
{
    const auto* locked = static_cast<LPCDLGTEMPLATE>(::LockResource(dialogTemplate));
    return CreateIndirect(locked, parent, nullptr, instance);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* dialogInit, HINSTANCE instance)
{
    m_lpDialogInit = dialogInit;
    if (parent == nullptr)
        parent = AfxGetMainWnd();
    return CreateDlgIndirect(dialogTemplate, parent, instance);
}

BOOL CDialog::CreateDlgIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE instance)
{
    if (dialogTemplate == nullptr || m_hWnd != nullptr)
        return FALSE;
    if (instance == nullptr)
        instance = AfxGetInstanceHandle();
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL; // taken back by EndDialog in OnInitDialog
    m_pMadeFrom = dialogTemplate;
    AfxHookWindowCreate(this);
    HWND wnd = ::CreateDialogIndirectParam(instance, dialogTemplate, parent->GetSafeHwnd(), AfxDlgProc, 0);
    if (!AfxUnhookWindowCreate())
    {
        m_pMadeFrom = nullptr;
        PostNcDestroy();
        return FALSE;
    }
    if (wnd == nullptr)
        return FALSE; // ended on the way; the object may have deleted itself
    m_pMadeFrom = nullptr;
    if (m_hWnd == wnd && (m_nFlags & WF_CONTINUEMODAL) == 0)
    {
        ::DestroyWindow(wnd);
        wnd = nullptr;
    }
    return wnd != nullptr;
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* dialogInit)
{
    m_lpDialogTemplate = dialogTemplate;
    m_lpDialogInit = dialogInit;
    if (m_pParentWnd == nullptr)
        m_pParentWnd = parent;
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL dialogTemplate, CWnd* parent)
{
    m_hDialogTemplate = dialogTemplate;
    if (m_pParentWnd == nullptr)
        m_pParentWnd = parent;
    return TRUE;
}

INT_PTR CDialog::DoModal()
{
    LPCDLGTEMPLATE dialogTemplate = m_lpDialogTemplate;
    HGLOBAL loaded = m_hDialogTemplate;
    HINSTANCE module = AfxGetResourceHandle();
    if (m_lpszTemplateName != nullptr)
    {
        module = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
        loaded = loadTemplate(m_lpszTemplateName, module);
    }
    if (loaded != nullptr)
        dialogTemplate = static_cast<LPCDLGTEMPLATE>(::LockResource(loaded));
    if (dialogTemplate == nullptr || m_hWnd != nullptr)
        return -1;
    m_nModalResult = -1;
    const HWND parent = PreModal();
    {
        kx::Disabled disabled(parent);
        try
        {
            if (CreateDlgIndirect(dialogTemplate, CWnd::FromHandle(parent), module) &&
                (m_nFlags & WF_CONTINUEMODAL) != 0)
            {
                DWORD flags = MLF_SHOWONIDLE;
                if ((GetStyle() & DS_NOIDLEMSG) != 0)
                    flags |= MLF_NOIDLEMSG;
                RunModalLoop(flags);
                if (m_hWnd != nullptr) // hidden before the parent comes alive, so that the right window gets the focus
                    SetWindowPos(nullptr, 0, 0, 0, 0,
                                 SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
            }
        }
        catch (CException* exception)
        {
            exception->Delete();
            m_nModalResult = -1;
        }
        disabled.end();
        if (parent != nullptr && m_hWnd != nullptr && ::GetActiveWindow() == m_hWnd)
            ::SetActiveWindow(parent);
    }
    DestroyWindow();
    PostModal();
    return m_nModalResult;
}

BOOL CDialog::CheckAutoCenter()
{
    if (m_pMadeFrom == nullptr)
        return TRUE;
    const TemplateHead head = headOf(m_pMadeFrom);
    return (head.style & (DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN)) == 0 && head.x == 0 && head.y == 0;
}

HWND CDialog::PreModal()
{
    return GetSafeOwner_(m_pParentWnd->GetSafeHwnd(), &m_hWndTop);
}

void CDialog::PostModal()
{
    AfxUnhookWindowCreate();
    Detach();
    if (m_hWndTop != nullptr && ::IsWindow(m_hWndTop))
        ::EnableWindow(m_hWndTop, TRUE);
    m_hWndTop = nullptr;
}

void CDialog::EndDialog(int result)
{
    if ((m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL)) != 0)
        EndModalLoop(result);
    ::EndDialog(m_hWnd, result);
}

void CDialog::PreInitDialog() {}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    PreInitDialog();
    return Default(); // comes back as OnInitDialog through AfxDlgProc
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM)
{
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

void CDialog::OnSetFont(CFont*) {}

BOOL CDialog::OnInitDialog()
{
    const BOOL filled = m_lpDialogInit != nullptr ? ExecuteDlgInit(m_lpDialogInit, static_cast<DWORD>(-1))
                                                  : ExecuteDlgInit(m_lpszTemplateName);
    if (!filled || !UpdateData(FALSE))
    {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE; // the first item gets the focus
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

BOOL CDialog::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    return CWnd::OnCmdMsg(id, code, extra, info) || kx::routeToOwner(*this, id, code, extra, info);
}

BOOL CDialog::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    // A multi-line edit would keep Escape for itself in a dialog without a Cancel button.
    if (message->message == WM_KEYDOWN && (message->wParam == VK_ESCAPE || message->wParam == VK_CANCEL) &&
        isMultilineEdit(message->hwnd))
    {
        const HWND cancel = ::GetDlgItem(m_hWnd, IDCANCEL);
        if (cancel == nullptr || ::IsWindowEnabled(cancel))
        {
            SendMessage(WM_COMMAND, IDCANCEL, 0);
            return TRUE;
        }
    }
    return PreTranslateInput(message);
}

void CDialog::MapDialogRect(LPRECT rect) const
{
    ::MapDialogRect(m_hWnd, rect);
}

void CDialog::NextDlgCtrl() const
{
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, FALSE);
}

void CDialog::PrevDlgCtrl() const
{
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, FALSE);
}

void CDialog::GotoDlgCtrl(CWnd* control)
{
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control->GetSafeHwnd()), TRUE);
}

void CDialog::SetDefID(UINT id)
{
    SendMessage(DM_SETDEFID, id);
}

DWORD CDialog::GetDefID() const
{
    return static_cast<DWORD>(::SendMessage(m_hWnd, DM_GETDEFID, 0, 0));
}
