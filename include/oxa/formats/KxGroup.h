// A stretch of a formatted text entry that the user fills.
#pragma once

#include <afx.h>
#include "oxa/Export.h"

/// One group of a format: typed characters, and "#" on each place that is still free.
///
/// Positions are zero-based character positions in the edit text. They are moved by the CKxFormat that owns the element;
/// a position that would leave the range of int stays at its limit.
class OXA_API CKxGroup : public CObject
{
    DECLARE_DYNAMIC(CKxGroup)

public:
    /// The longest text to which CKxFormat lets a group grow; an operation that would pass it throws CMemoryException
    /// and changes nothing.
    enum : int
    {
        MaxTextLength = 16777216
    };

    /// A group that stands from position start to position end, both inclusive. maxCount is the fixed number of
    /// characters, or -1 for a group of open length. minCount is kept and read by nothing. Nothing is checked.
    CKxGroup(CString text, int start, int end, int minCount, int maxCount);
    ~CKxGroup() override;

    const CString& GetText() const { return m_text; }
    void SetText(CString text) { m_text = text; }
    int GetTextLength() const { return m_text.GetLength(); }
    int GetStart() const { return m_start; }
    int GetEnd() const { return m_end; }
    int GetMaxCount() const { return m_maxCount; }

private:
    friend struct FormatElement;
    friend class CKxFormat;

    CString m_text;
    int m_start;
    int m_end;
    int m_minCount;
    int m_maxCount;
};
