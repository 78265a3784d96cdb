// A stretch of fixed literal text in a formatted text entry.
#pragma once

#include <afx.h>
#include "oxa/Export.h"

/// One literal of a format: text that the user neither types nor deletes.
///
/// Positions are zero-based character positions in the edit text. They are moved by the CKxFormat that owns the element;
/// a position that would leave the range of int stays at its limit.
class OXA_API CKxSeparator : public CObject
{
    DECLARE_DYNAMIC(CKxSeparator)

public:
    /// A literal that stands from position start to position end, both inclusive. Nothing is checked.
    CKxSeparator(CString text, int start, int end);
    ~CKxSeparator() override;

    const CString& GetText() const { return m_text; }
    void SetText(CString text) { m_text = text; }
    int GetTextLength() const { return m_text.GetLength(); }
    int GetStart() const { return m_start; }
    int GetEnd() const { return m_end; }

private:
    friend struct FormatElement;

    CString m_text;
    int m_start;
    int m_end;
};
