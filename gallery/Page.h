// One page of the gallery: a child dialog that logs what its controls send it, and can walk its own states for pictures.
#pragma once
#include <afxwin.h>
#include <functional>
#include <memory>
#include <vector>

class CMessageLog;

/// Takes a picture of the gallery in the state it is in; the argument is the end of the file's name, such as "dropped".
using TakePicture = std::function<void(const wchar_t* state)>;

class CPage : public CDialog
{
public:
    /// `templateId`: a child dialog of Gallery.rc; `title`: the text in the page list.
    CPage(UINT templateId, const wchar_t* title) : m_templateId(templateId), m_title(title) {}

    const CString& title() const { return m_title; }
    bool createIn(CWnd* parent, CMessageLog* log);

    /// Brings the page to each of its interesting states by real input and takes a picture of each.
    virtual void walk(const TakePicture& take) = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnOK() override {}     // kept on purpose: Enter stays in the field
    void OnCancel() override {} // kept on purpose: Escape closes lists, never the page

    /// Adds a line to the log for a message that went to a window other than this page.
    void logMessage(UINT message, WPARAM wParam, LPARAM lParam);

    /// The middle of the control `id` of this page, in screen pixels.
    POINT middleOf(int id) const;

private:
    UINT m_templateId;
    CString m_title;
    CMessageLog* m_log = nullptr;
};

/// The pages in the order of the list. A new page is added in Pages.cpp.
std::vector<std::unique_ptr<CPage>> makePages();
