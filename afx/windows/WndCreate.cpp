// How a window gets its object before its first message, and how it ends.
#include <afxwin.h>

#include <mutex>
#include <set>
#include <string>

#include "EndLater.h"
#include "ThreadState.h"

namespace
{
bool isInputMethodWindow(HWND wnd)
{
    wchar_t name[32] = {};
    ::GetClassNameW(wnd, name, 32);
    return lstrcmpiW(name, L"IME") == 0 || lstrcmpiW(name, L"MSCTFIME UI") == 0;
}

// Binds the object that waits to the window that is being created.
void meet(CWnd* object, HWND wnd)
{
    if (!object->Attach(wnd))
        return;
    object->PreSubclassWindow();
    const auto before = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxGetAfxWndProc())));
    WNDPROC* super = object->GetSuperWndProcAddr();
    if (before != AfxGetAfxWndProc() && super != nullptr)
        *super = before;
}

LRESULT CALLBACK onCreateHook(int code, WPARAM wParam, LPARAM lParam)
{
    KxThreadState& thread = kxThread();
    const auto wnd = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_DESTROYWND && kx::endsLater(wnd))
        return 1;
    if (code == HCBT_CREATEWND && thread.waiting != nullptr && !isInputMethodWindow(wnd))
    {
        CWnd* object = thread.waiting;
        thread.waiting = nullptr;
        try
        {
            meet(object, wnd);
        }
        catch (CException* exception)
        {
            exception->Delete();
            object->Detach();
            return 1; // nothing is created
        }
        catch (...)
        {
            object->Detach();
            return 1;
        }
    }
    return ::CallNextHookEx(thread.createHook, code, wParam, lParam);
}

std::wstring classNameOf(UINT style, HCURSOR cursor, HBRUSH background, HICON icon)
{
    wchar_t name[128];
    _snwprintf(name, 127, L"Afx:%p:%x:%p:%p:%p", static_cast<void*>(AfxGetInstanceHandle()), style,
               static_cast<void*>(cursor), static_cast<void*>(background), static_cast<void*>(icon));
    name[127] = 0;
    return name;
}

// Names stay where they are for the life of the process.
LPCTSTR keptName(const std::wstring& name)
{
    static std::mutex mutex;
    static auto* names = new std::set<std::wstring>;
    const std::lock_guard<std::mutex> guard(mutex);
    return names->insert(name).first->c_str();
}
} // namespace

void AfxHookWindowCreate(CWnd* wnd)
{
    KxThreadState& thread = kxThread();
    if (thread.createHook == nullptr)
    {
        thread.createHook = ::SetWindowsHookEx(WH_CBT, onCreateHook, nullptr, ::GetCurrentThreadId());
        if (thread.createHook == nullptr)
            AfxThrowMemoryException();
    }
    thread.waiting = wnd;
}

BOOL AfxUnhookWindowCreate()
{
    KxThreadState& thread = kxThread();
    const bool met = thread.waiting == nullptr;
    thread.waiting = nullptr;
    return met;
}

BOOL AfxRegisterClass(WNDCLASS* wndClass)
{
    if (wndClass == nullptr)
        return FALSE;
    WNDCLASS there = {};
    if (::GetClassInfo(wndClass->hInstance, wndClass->lpszClassName, &there))
        return TRUE;
    return ::RegisterClass(wndClass) != 0;
}

LPCTSTR AfxRegisterWndClass(UINT classStyle, HCURSOR cursor, HBRUSH background, HICON icon)
{
    LPCTSTR name = keptName(classNameOf(classStyle, cursor, background, icon));
    WNDCLASS wndClass = {};
    wndClass.style = classStyle;
    wndClass.lpfnWndProc = ::DefWindowProc;
    wndClass.hInstance = AfxGetInstanceHandle();
    wndClass.hCursor = cursor;
    wndClass.hbrBackground = background;
    wndClass.hIcon = icon;
    wndClass.lpszClassName = name;
    if (!AfxRegisterClass(&wndClass))
        AfxThrowResourceException();
    return name;
}

BOOL CWnd::Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id, void*)
{
    return CreateEx(0, className, windowName, style | WS_CHILD, rect, parent, id);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                    UINT id, LPVOID param)
{
    return CreateEx(exStyle, className, windowName, style, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, parent->GetSafeHwnd(), reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)),
                    param);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, int x, int y, int width,
                    int height, HWND parent, HMENU idOrMenu, LPVOID param)
{
    if (m_hWnd != nullptr)
        return FALSE;
    CREATESTRUCT cs = {};
    cs.dwExStyle = exStyle;
    cs.lpszClass = className;
    cs.lpszName = windowName;
    cs.style = static_cast<LONG>(style);
    cs.x = x;
    cs.y = y;
    cs.cx = width;
    cs.cy = height;
    cs.hwndParent = parent;
    cs.hMenu = idOrMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = param;
    if (!PreCreateWindow(cs))
    {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    const HWND wnd = ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y,
                                      cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy(); // it failed so early that there was no window to end
    return wnd != nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

BOOL CWnd::DestroyWindow()
{
    const HWND wnd = m_hWnd;
    if (wnd == nullptr)
        return FALSE;
    const bool permanent = FromHandlePermanent(wnd) == this;
    const BOOL done = ::DestroyWindow(wnd);
    // A permanent object was parted from its window on the way, and may have deleted itself.
    if (!permanent && done)
        m_hWnd = nullptr;
    else if (permanent && done && FromHandlePermanent(wnd) == this)
        Detach(); // attached without being subclassed: nobody told it
    return done;
}

void CWnd::PostNcDestroy() {}
