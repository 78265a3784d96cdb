// Positions, single characters and questions. Whole texts are written in KxFormatFill.cpp.
#include "oxa/formats/KxFormat.h"

#include <unordered_set>
#include "FormatElement.h"
#include "TextToInteger.h"

namespace
{
constexpr wchar_t placeholder = L'#';

int placeholders(const CString& text)
{
    const wchar_t* characters = text.GetString();
    return static_cast<int>(std::count(characters, characters + text.GetLength(), placeholder));
}
} // namespace

CKxFormat::CKxFormat() : CObList(10) {}

CKxFormat::~CKxFormat()
{
    DeleteFormat();
}

FormatElement CKxFormat::ElementAt(POSITION place) const
{
    return FormatElement(place ? const_cast<CObject*>(static_cast<const CObject*>(GetAt(place))) : nullptr);
}

POSITION CKxFormat::FindElement(int pos) const
{
    for (POSITION next = GetHeadPosition(); next;)
    {
        const POSITION place = next;
        GetNext(next);
        const FormatElement element = ElementAt(place);
        if (element && element.Covers(pos))
            return place;
    }
    return nullptr;
}

CObject* CKxFormat::GetElement(int pos) const
{
    const FormatElement element = ElementAt(FindElement(pos));
    return element.group ? static_cast<CObject*>(element.group) : element.separator;
}

CString CKxFormat::CreateEditFormat() const
{
    CString text;
    for (POSITION place = GetHeadPosition(); place; GetNext(place))
        if (const FormatElement element = ElementAt(place))
            text += element.Text();
    return text;
}

// What `count` calls of IncFormat at pos, pos + 1, pos + 2 and so on do to the element at place and those behind it.
void CKxFormat::Grow(POSITION place, long long pos, long long count)
{
    for (; place; GetNext(place))
    {
        const FormatElement element = ElementAt(place);
        if (!element)
            continue;
        if (!element.Covers(pos))
            element.Move(count, count);
        else if (element.group)
            element.Move(0, count);
        else if (const long long behind = count - (element.End() - pos + 1); behind > 0)
            element.Move(behind, behind); // the calls whose position has left the separator slide it
    }
}

void CKxFormat::IncFormat(int pos)
{
    Grow(FindElement(pos), pos, 1);
}

void CKxFormat::DecFormat(int pos)
{
    for (POSITION place = FindElement(pos); place; GetNext(place))
    {
        const FormatElement element = ElementAt(place);
        if (!element)
            continue;
        if (!element.Covers(pos))
            element.Move(-1, -1);
        else if (element.group)
            element.Move(0, -1);
    }
}

// No position moves here, unlike in DeleteFormatCarac: kept on purpose, the caller follows with IncFormat.
void CKxFormat::AddFormatCarac(int pos)
{
    CKxGroup* group = ElementAt(FindElement(pos)).group;
    if (!group)
        return;
    if (group->GetTextLength() >= CKxGroup::MaxTextLength)
        AfxThrowMemoryException();
    group->m_text.AppendChar(placeholder);
}

void CKxFormat::DeleteFormatCarac(int pos)
{
    CKxGroup* group = ElementAt(FindElement(pos)).group;
    if (!group)
        return;
    if (group->GetTextLength() > 0)
        group->m_text.Delete(group->GetTextLength() - 1, 1);
    DecFormat(pos);
}

void CKxFormat::Insert(int pos, wchar_t ch)
{
    const POSITION place = FindElement(pos);
    if (ElementAt(place).group)
        InsertAt(place, pos, ch);
}

void CKxFormat::Delete(int pos)
{
    CKxGroup* group = ElementAt(FindElement(pos)).group;
    if (!group)
        return;
    CString& text = group->m_text;
    const long long k = static_cast<long long>(pos) - group->m_start;
    const bool inside = k < text.GetLength();
    const bool open = group->m_maxCount == -1;
    const int left = placeholders(text) - (inside && text[static_cast<int>(k)] == placeholder ? 1 : 0);
    const bool append = !open || left == 0;
    if (append && !inside && text.GetLength() >= CKxGroup::MaxTextLength)
        AfxThrowMemoryException();
    if (inside)
        text.Delete(static_cast<int>(k), 1);
    if (append)
        text.AppendChar(placeholder);
    if (open)
    {
        if (append)
            IncFormat(pos);
        DecFormat(pos);
    }
    m_modified = 1;
}

int CKxFormat::Jump(int pos, int direction) const
{
    const CKxSeparator* separator = ElementAt(FindElement(pos)).separator;
    if (!separator)
        return pos;
    if (direction == 1)
        return saturated(separator->GetEnd() + 1LL);
    return saturated(separator->GetStart() == 0 ? pos + 1LL : separator->GetStart() - 1LL);
}

int CKxFormat::IsSeparator(int pos) const
{
    return ElementAt(FindElement(pos)).separator ? 1 : 0;
}

FormatElement CKxFormat::FirstOfKind(int pos, bool group) const
{
    for (POSITION place = FindElement(pos); place; GetNext(place))
    {
        const FormatElement element = ElementAt(place);
        if (group ? element.group != nullptr : element.separator != nullptr)
            return element;
    }
    return {};
}

int CKxFormat::GetFirstSeparator(int pos) const
{
    const FormatElement element = FirstOfKind(pos, false);
    return element ? element.Start() : -1;
}

int CKxFormat::GetFirstGroup(int pos) const
{
    const FormatElement element = FirstOfKind(pos, true);
    return element ? element.Start() : -1;
}

void CKxFormat::MakeUpper()
{
    for (POSITION place = GetHeadPosition(); place; GetNext(place))
        if (CKxGroup* group = ElementAt(place).group)
            group->m_text.MakeUpper();
}

int CKxFormat::ValidAdd() const
{
    for (POSITION place = GetHeadPosition(); place; GetNext(place))
        if (const CKxGroup* group = ElementAt(place).group)
            if (placeholders(group->m_text) == group->GetTextLength())
                return 0;
    return 1;
}

int CKxFormat::IsEmpty() const
{
    for (POSITION place = GetHeadPosition(); place; GetNext(place))
        if (const CKxGroup* group = ElementAt(place).group)
            if (placeholders(group->m_text) != group->GetTextLength())
                return 0;
    return 1;
}

// The name reads the opposite way: it is true while a place is free. Kept on purpose.
bool CKxFormat::HaveAnyValue() const
{
    for (POSITION place = GetHeadPosition(); place; GetNext(place))
        if (const CKxGroup* group = ElementAt(place).group)
            if (placeholders(group->m_text) > 0)
                return true;
    return false;
}

void CKxFormat::DeleteFormat()
{
    std::unordered_set<CObject*> deleted; // an object that was put in twice is deleted once
    while (GetHeadPosition())
    {
        CObject* element = RemoveHead();
        if (deleted.insert(element).second)
            delete element;
    }
}

void CKxFormat::GetFeatureFormat(CString& separator, CList<int, int>& values) const
{
    bool found = false;
    for (POSITION place = GetHeadPosition(); place; GetNext(place))
    {
        const FormatElement element = ElementAt(place);
        if (element.group)
        {
            const CString& text = element.Text();
            values.AddTail(textToInteger({text.GetString(), static_cast<std::size_t>(text.GetLength())}));
        }
        else if (element.separator && !found)
        {
            separator = element.Text();
            found = true;
        }
    }
}
