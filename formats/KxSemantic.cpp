// Reading a format string into nodes.
#include "oxa/formats/KxSemantic.h"

#include <algorithm>
#include "CharacterClasses.h"
#include "TextToInteger.h"
#include "oxa/formats/KxSemanticNode.h"

namespace
{
std::wstring_view viewOf(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}
} // namespace

CKxSemantic::CKxSemantic() = default;

CKxSemantic::~CKxSemantic()
{
    DeleteNodes();
}

void CKxSemantic::DeleteNodes()
{
    m_steps.clear();
    m_takesPrecisionMarks = false;
    while (m_nodes.GetHeadPosition())
        delete m_nodes.RemoveHead();
}

void CKxSemantic::SetUseArchitecturalFormat(bool use, const CKxUnit& unit)
{
    m_architectural = use;
    m_unit = unit;
}

bool CKxSemantic::IsUsingArchitecturalFormat() const
{
    return m_architectural;
}

int CKxSemantic::CheckSyntax(CString& format)
{
    DeleteNodes();
    m_cursor = 0;
    m_length = format.GetLength();
    int result = 1;
    while (Inside() && result == 1)
        result = CheckHook(format);
    PlanSteps();
    return result;
}

int CKxSemantic::CheckHook(CString& format)
{
    if (!Inside())
        return -1;
    if (format[m_cursor] != L'[')
    {
        if (format[m_cursor] == L'(')
            return -1;
        ReadSeparator(format);
        return 1;
    }
    ++m_cursor;
    if (CheckParenthesis(format) != 1 || !Inside() || format[m_cursor] != L']')
        return -1;
    AddNode(m_typeText, m_groupCount, m_groupKind);
    ++m_cursor;
    if (Inside())
        ReadSeparator(format);
    return 1;
}

// The first character belongs to the separator even when it is "[", so that two groups never touch: kept on purpose.
void CKxSemantic::ReadSeparator(const CString& format)
{
    const int start = m_cursor;
    do
        ++m_cursor;
    while (Inside() && format[m_cursor] != L'[');
    AddNode(format.Mid(start, m_cursor - start), m_cursor - start, L"S");
}

int CKxSemantic::CheckParenthesis(CString& format)
{
    if (!Inside() || format[m_cursor] != L'(')
        return -1;
    ++m_cursor;
    if (CheckText(format) != 1)
        return -1;
    ++m_cursor;
    if (!Inside() || format[m_cursor] != L')')
        return -1;
    ++m_cursor;
    if (!Inside())
        return -1;
    CString first(format[m_cursor], 1);
    if (first != L"x" && IsNumeric(first) != 1)
        return -1;
    if (first == L"x")
    {
        m_groupKind = L"x";
        m_groupCount = 0;
        ++m_cursor;
        return 1;
    }
    // Only the first character is tested; what the conversion does not read is passed over up to the bracket.
    const int start = m_cursor;
    while (Inside() && format[m_cursor] != L']')
        ++m_cursor;
    m_groupCount = textToInteger(
        viewOf(format).substr(static_cast<std::size_t>(start), static_cast<std::size_t>(m_cursor - start)));
    m_groupKind = L" ";
    return Inside() ? 1 : -1;
}

int CKxSemantic::CheckText(CString& format)
{
    if (!Inside())
        return -1;
    const wchar_t letter = format[m_cursor];
    if (letter == L'N' || letter == L'C' || letter == L'A')
    {
        m_typeText = CString(letter, 1);
        return 1;
    }
    ++m_cursor;
    if (!Inside() || format[m_cursor] != L'-')
        return -1;
    m_typeText = format.Mid(m_cursor - 1, 3);
    ++m_cursor;
    return 1;
}

int CKxSemantic::IsNumeric(CString& ch) const
{
    return CharacterClasses::isNumeric(viewOf(ch), m_architectural) ? 1 : 0;
}

int CKxSemantic::IsCharacter(CString& ch) const
{
    return CharacterClasses::isCharacter(viewOf(ch)) ? 1 : 0;
}

int CKxSemantic::IsAlphaNumeric(CString& ch) const
{
    return CharacterClasses::isAlphaNumeric(viewOf(ch)) ? 1 : 0;
}

int CKxSemantic::IsValidArchNumber(CString& text) const
{
    if (!m_architectural)
        return 0;
    int flag = 0;
    m_unit.String2Double(text, &flag, 1);
    return flag;
}

void CKxSemantic::AddNode(const CString& text, int count, const wchar_t* kind)
{
    m_nodes.AddTail(new CKxSemanticNode(text, count, kind));
}

void CKxSemantic::PlanSteps()
{
    m_steps.reserve(static_cast<std::size_t>(m_nodes.GetCount()));
    for (POSITION place = m_nodes.GetHeadPosition(); place;)
    {
        const auto* node = static_cast<const CKxSemanticNode*>(m_nodes.GetNext(place));
        const CString& text = node->GetText();
        unsigned classes = 0;
        if (text == L"A")
            classes = CharacterClasses::Wide;
        else if (text == L"C")
            classes = CharacterClasses::LetterButX;
        else if (text == L"N")
            classes = CharacterClasses::Digit | CharacterClasses::FeetAndInches;
        const wchar_t kind = node->GetKind()[0];
        const std::ptrdiff_t room = kind == L'x' ? Step::anyNumber : std::max(node->GetCount(), 0);
        m_steps.push_back({text.GetString(), text.GetLength(), node->GetCount(), kind, classes, text[0],
                           text[text.GetLength() - 1], room});
        m_takesPrecisionMarks = m_takesPrecisionMarks || TakesPrecisionMarks(m_steps.back());
    }
}
