// The list at the bottom: each message that a control sends its parent, newest last.
#pragma once
#include <afxwin.h>
#include <afxcmn.h>

class CMessageLog : public CListCtrl
{
public:
    /// Adds the columns; call once when the window exists.
    void prepare();
    /// Adds a line when the message is one that controls send their parent.
    void record(UINT message, WPARAM wParam, LPARAM lParam);
    /// Also writes each line to a file, for runs without a display. The folder must exist.
    bool writeTo(const CString& file);
    ~CMessageLog() override;

private:
    void append(const CString& name, UINT message, WPARAM wParam, LPARAM lParam);
    HANDLE m_file = INVALID_HANDLE_VALUE;
};
