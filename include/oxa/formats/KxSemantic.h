// The format grammar: checking a format string, following typing, judging texts, and expanding a format into elements.
#pragma once

#include <afxcoll.h>
#include <afxtempl.h>
#include <cstddef>
#include <cstdint>
#include <vector>
#include "kitrel/KxUnit.h"
#include "oxa/Export.h"

class CKxFormat;

/// Reads a format string and works from what it read.
///
/// A format is a sequence of groups and separators. A group is written "[(type)count]"; its type is N (digits), C (letters),
/// A (wide class) or a range such as a-f, its count a number or x for open length. Anything between two groups is a
/// separator, which always takes the character right behind a "]". "[(N)3]-[(A)x]" is up to three digits, a dash, and any
/// number of wide-class characters.
///
/// CheckSyntax comes first; the other operations work from the nodes that it left, also when it found the format bad.
/// With no node at all, those marked with (*) throw CInvalidArgException.
class OXA_API CKxSemantic
{
public:
    /// The most places that a format may have in CreateListFormat and MakeToolTipsString; more throw CMemoryException.
    enum : int
    {
        MaxPlaces = 1000000
    };

    CKxSemantic();
    virtual ~CKxSemantic();
    CKxSemantic(const CKxSemantic&) = delete;
    CKxSemantic& operator=(const CKxSemantic&) = delete;

    /// Reads a whole format: 1 when it is good, -1 when it is bad. Nodes read before an error stay.
    int CheckSyntax(CString& format);
    /// Lets feet-and-inches signs count as digits, and numbers be judged by unit (which is copied), or ends that.
    void SetUseArchitecturalFormat(bool use, const CKxUnit& unit);
    bool IsUsingArchitecturalFormat() const;

    /// (*) Appends one element per node to format, with a "#" on each place. The first one starts at 0, whatever format
    /// holds already. Throws CMemoryException, and appends nothing, for more than MaxPlaces places.
    void CreateListFormat(CKxFormat& format) const;
    /// (*) What text may be after the last keystroke: text itself, text without its last character where it breaks the
    /// format, or text with the separator that follows a group just filled. Also throws CInvalidArgException where a
    /// character stands behind a last separator that has an open group before it.
    CString AnalyseSemantic(CString text) const;
    /// (*) 1 if text is a finished value of the format, else 0. A unit symbol and a precision mark are left out first.
    int ValidAdd(CString text) const;
    /// text without any "#".
    CString GetStringUnMasked(CString text) const;
    /// The same as CKxFormat::GetFeatureFormat of format.
    void GetFeatureFormat(CKxFormat& format, CString& separator, CList<int, int>& values) const;
    /// (*) A short picture of the format, such as "NNN-xA"; the argument is not used.
    CString MakeToolTipsString(CString text) const;

    /// The CKxSemanticNode objects in order. They stay the property of this object, until the next CheckSyntax.
    const CObList& GetNodes() const { return m_nodes; }

private:
    friend struct SemanticAccess;

    /// A node as the walks over a text need it. The text is borrowed from the node.
    struct Step
    {
        static constexpr std::ptrdiff_t anyNumber = PTRDIFF_MAX;

        const wchar_t* text;
        int length;
        int count;
        wchar_t kind;
        unsigned classes; ///< of CharacterClasses; 0 for a range or a separator
        wchar_t low;
        wchar_t high;
        std::ptrdiff_t room; ///< most characters of a group: its count, none for a negative one, or any number
    };
    struct Walk;
    template <bool architectural> struct Judgement;

    int CheckHook(CString& format);
    int CheckParenthesis(CString& format);
    int CheckText(CString& format);
    int IsNumeric(CString& ch) const;
    int IsCharacter(CString& ch) const;
    int IsAlphaNumeric(CString& ch) const;
    int IsValidArchNumber(CString& text) const;

    bool Inside() const { return m_cursor < m_length; }
    void AddNode(const CString& text, int count, const wchar_t* kind);
    void ReadSeparator(const CString& format);
    void DeleteNodes();
    void PlanSteps();
    int JudgeWithoutMarks(CString& text) const;
    static bool TakesPrecisionMarks(const Step& step);

    int m_cursor = 0;
    int m_length = 0;
    CObList m_nodes{10};
    CString m_typeText;
    int m_groupCount = 0;
    CString m_groupKind;
    bool m_architectural = false;
    CKxUnit m_unit;
    std::vector<Step> m_steps;
    bool m_takesPrecisionMarks = false; ///< whether a text with a precision mark may fit as it is
};
