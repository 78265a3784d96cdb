// A property sheet that can be shown for reading only: its OK button is taken away.
#pragma once

#include <afxdlgs.h>

#include "oxa/Export.h"

/// A `CPropertySheet` without OK where the host says so.
///
/// OK is disabled when the sheet appears and `DisablePropertySheet` was called or `IsPropertySheetDisabled` says true,
/// unless `SetProtectionDisabled(true)` was called. Enter presses nothing while `IsPropertySheetDisabled` says true; for
/// Enter the other two do not count.
///
///     CKxPropertySheet sheet(L"Properties", this);
///     sheet.AddPage(&m_page);
///     if (readOnly)
///         sheet.DisablePropertySheet();
///     sheet.DoModal();
class OXA_API CKxPropertySheet : public CPropertySheet
{
public:
    CKxPropertySheet();
    explicit CKxPropertySheet(unsigned int caption, CWnd* parent = nullptr, unsigned int selectPage = 0);
    explicit CKxPropertySheet(const wchar_t* caption, CWnd* parent = nullptr, unsigned int selectPage = 0);
    /// For a wizard with pictures; the caller owns them.
    CKxPropertySheet(unsigned int caption, CWnd* parent, unsigned int selectPage, HBITMAP watermark,
                     HPALETTE palette = nullptr, HBITMAP header = nullptr);
    CKxPropertySheet(const wchar_t* caption, CWnd* parent, unsigned int selectPage, HBITMAP watermark,
                     HPALETTE palette = nullptr, HBITMAP header = nullptr);
    ~CKxPropertySheet() override;

    /// With true, OK stays enabled whatever else is set.
    void SetProtectionDisabled(bool disabled);
    /// OK is to be disabled when the sheet appears.
    void DisablePropertySheet();
    /// Whether the sheet is to be looked at only. Here: false.
    virtual bool IsPropertySheetDisabled();

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    bool m_bProtectionDisabled = false;
    bool m_bDisabled = false;

    DECLARE_MESSAGE_MAP()
};
