// Messages that a control hands on to another window, which may send them back or end the control.
#include "HandedOn.h"

#include "Surviving.h"

namespace
{
thread_local const HandedOn* innermost = nullptr;
} // namespace

HandedOn::HandedOn(HWND control, UINT message, WPARAM wParam, LPARAM lParam)
    : m_control(control), m_message(message), m_wParam(wParam), m_lParam(lParam), m_outer(innermost)
{
    innermost = this;
}

HandedOn::~HandedOn()
{
    innermost = m_outer;
}

bool HandedOn::IsRepeated() const
{
    const HandedOn* one = m_outer;
    while (one != nullptr && !IsSameAs(*one))
        one = one->m_outer;
    return one != nullptr;
}

bool HandedOn::IsSameAs(const HandedOn& other) const
{
    return m_control == other.m_control && m_message == other.m_message && m_wParam == other.m_wParam &&
           m_lParam == other.m_lParam;
}

bool IsHandingOn(HWND control, UINT message, WPARAM wParam, LPARAM lParam)
{
    return HandedOn(control, message, wParam, lParam).IsRepeated();
}

bool SendAndSurvive(const CWnd& control, CWnd* receiver, UINT message, WPARAM wParam, LPARAM lParam)
{
    const Surviving survived(control);
    const HandedOn sending(control.m_hWnd, message, wParam, lParam);
    if (receiver == nullptr || control.m_hWnd == nullptr || sending.IsRepeated())
        return true;
    receiver->SendMessage(message, wParam, lParam);
    return static_cast<bool>(survived);
}

bool SendToOwner(const CWnd& control, UINT message, WPARAM wParam, LPARAM lParam)
{
    return SendAndSurvive(control, control.m_hWnd == nullptr ? nullptr : control.GetOwner(), message, wParam, lParam);
}
