// One page of the gallery.
#include "Page.h"
#include "MessageLog.h"

bool CPage::createIn(CWnd* parent, CMessageLog* log)
{
    m_log = log;
    return Create(MAKEINTRESOURCE(m_templateId), parent) != FALSE;
}

void CPage::logMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_log)
        m_log->record(message, wParam, lParam);
}

LRESULT CPage::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    logMessage(message, wParam, lParam);
    return CDialog::WindowProc(message, wParam, lParam);
}

POINT CPage::middleOf(int id) const
{
    CRect r;
    ::GetWindowRect(::GetDlgItem(m_hWnd, id), &r);
    return r.CenterPoint();
}
