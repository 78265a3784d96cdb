// One element of a format string as the syntax check read it.
#pragma once

#include <afx.h>
#include "oxa/Export.h"

/// One element of a format: a group or a separator.
class OXA_API CKxSemanticNode : public CObject
{
public:
    /// See the three accessors for what is given here.
    CKxSemanticNode(CString text, int count, CString kind);
    ~CKxSemanticNode() override;

    /// Of a group the type: "N", "C", "A" or a range of three characters such as "a-z"; of a separator the literal.
    const CString& GetText() const { return m_text; }
    /// Characters of a group of fixed length (any value that could be written), 0 for an open group; of a separator
    /// the length of the literal.
    int GetCount() const { return m_count; }
    /// " " for a group of fixed length, "x" for a group of open length, "S" for a separator.
    const CString& GetKind() const { return m_kind; }

private:
    CString m_text;
    int m_count;
    CString m_kind;
};
