// Writing into the groups: one character, and runs of characters at rising positions.
#include "oxa/formats/KxFormat.h"

#include "FormatElement.h"

namespace
{
constexpr wchar_t placeholder = L'#';

bool endsInPlaceholder(const CString& text)
{
    return text.GetLength() > 0 && text[text.GetLength() - 1] == placeholder;
}

void needRoom(const CKxGroup& group, long long more)
{
    if (group.GetTextLength() + more > CKxGroup::MaxTextLength)
        AfxThrowMemoryException();
}

// Writes count characters, or placeholders, over those from k on, as far as there are that many.
void overwrite(CString& text, long long k, long long count, const wchar_t* characters)
{
    const int length = text.GetLength();
    count = std::min(count, length - k);
    if (count <= 0)
        return;
    wchar_t* buffer = text.GetBuffer(length) + k;
    if (characters)
        std::copy_n(characters, count, buffer);
    else
        std::fill_n(buffer, count, placeholder);
    text.ReleaseBuffer(length);
}

// Puts ch before the character at k, or at the end when the text is shorter.
void insertCharacter(CString& text, long long k, wchar_t ch)
{
    if (k < text.GetLength())
        text.Insert(static_cast<int>(k), ch);
    else
        text.AppendChar(ch);
}

// An open group without a free place at its end: ch goes over the character before k, and a free place is added.
void overwriteBefore(CString& text, long long k, wchar_t ch)
{
    if (k == 0)
        text.Insert(0, ch);
    else if (k - 1 < text.GetLength())
        text.SetAt(static_cast<int>(k - 1), ch);
    else
        text.AppendChar(ch);
    text.AppendChar(placeholder);
}
} // namespace

void CKxFormat::InsertAt(POSITION place, int pos, wchar_t ch)
{
    CKxGroup* group = ElementAt(place).group;
    CString& text = group->m_text;
    const long long k = static_cast<long long>(pos) - group->m_start;
    if (group->m_maxCount != -1)
    {
        if (k < text.GetLength())
            text.SetAt(static_cast<int>(k), ch);
    }
    else if (endsInPlaceholder(text))
    {
        needRoom(*group, 1);
        insertCharacter(text, k, ch);
        IncFormat(pos);
    }
    else
    {
        // One character is overwritten while two positions are added: kept on purpose.
        needRoom(*group, 2);
        overwriteBefore(text, k, ch);
        IncFormat(pos);
        IncFormat(pos);
    }
    m_modified = 1;
}

// Finds the first element that covers the sweep's position, and in stop the position up to which it stays so however
// far the element reaches. Elements that lie behind the sweep never move again and are settled.
POSITION CKxFormat::NextElement(Sweep& sweep, long long& stop) const
{
    while (sweep.settled)
    {
        const FormatElement element = ElementAt(sweep.settled);
        if (element && element.End() >= sweep.position)
            break;
        GetNext(sweep.settled);
    }
    for (POSITION place = sweep.settled; place; GetNext(place))
    {
        const FormatElement element = ElementAt(place);
        if (!element)
            continue;
        if (element.Covers(sweep.position))
            return place;
        if (element.Start() > sweep.position)
            stop = std::min<long long>(stop, element.Start());
    }
    return nullptr;
}

// Inserts at the sweep's position and on, before stop at the most, as far as one step goes in the element at place.
void CKxFormat::InsertStretch(POSITION place, Sweep& sweep, long long stop, const wchar_t* characters)
{
    const FormatElement element = ElementAt(place);
    const long long first = sweep.position;
    if (!element.group || element.group->m_maxCount != -1)
        stop = std::min<long long>(stop, element.End() + 1LL);
    sweep.position = stop;
    if (!element.group)
        return;
    CString& text = element.group->m_text;
    const long long k = first - element.group->m_start;
    m_modified = 1;
    if (element.group->m_maxCount != -1)
    {
        overwrite(text, k, stop - first, characters ? characters + first : nullptr);
        return;
    }
    if (!endsInPlaceholder(text) || k >= text.GetLength())
    {
        InsertAt(place, static_cast<int>(first), characters ? characters[first] : placeholder);
        sweep.position = first + 1;
        return;
    }
    // The free place at the end stays there, so all characters go in before the one at k, and the group keeps up.
    needRoom(*element.group, stop - first);
    const int count = static_cast<int>(stop - first);
    const int head = static_cast<int>(k);
    text = text.Left(head) + (characters ? CString(characters + first, count) : CString(placeholder, count)) +
           text.Mid(head);
    Grow(place, first, count);
}

// The same as Insert at first, first + 1 and so on up to last. characters is indexed by position; null: placeholders.
void CKxFormat::InsertRun(long long first, long long last, const wchar_t* characters)
{
    Sweep sweep{GetHeadPosition(), first};
    while (sweep.position <= last)
    {
        long long stop = last + 1;
        if (const POSITION place = NextElement(sweep, stop))
            InsertStretch(place, sweep, stop, characters);
        else
            sweep.position = stop;
    }
}

void CKxFormat::SetString(CString& text)
{
    // A copy: the text may be that of one of the groups.
    const CString characters = text; // NOLINT(performance-unnecessary-copy-initialization)
    InsertRun(0, characters.GetLength() - 1LL, characters.GetString());
}

// Whether the list is as a format expands to it: groups and separators in turn, from 0 on, without gap or empty range.
bool CKxFormat::IsPlain() const
{
    long long next = 0;
    int groups = -1; // whether the element before was a group
    for (POSITION place = GetHeadPosition(); place; GetNext(place))
    {
        const FormatElement element = ElementAt(place);
        const int group = element.group ? 1 : 0;
        if (!element || element.Start() != next || element.End() < element.Start() || group == groups)
            return false;
        next = element.End() + 1LL;
        groups = group;
    }
    return next <= std::numeric_limits<int>::max() - 2LL * CKxGroup::MaxTextLength;
}

// Puts placeholders at the positions first to last of a group, as far as they are its own. Answers how many positions
// the group has grown by.
int CKxFormat::ResetGroup(CKxGroup& group, int first, int last)
{
    if (last < first)
        return 0;
    m_modified = 1;
    CString& text = group.m_text;
    if (group.m_maxCount != -1)
    {
        overwrite(text, first - group.m_start, std::min(last, group.m_end) - first + 1LL, nullptr);
        return 0;
    }
    const int count = last - first + 1;
    const int more = endsInPlaceholder(text) ? 0 : 1;
    needRoom(group, static_cast<long long>(count) + more);
    text = CString(placeholder, count) + text + CString(placeholder, more);
    return count + more;
}

// What the general steps come to for a plain list, in one pass: each group is reset from its start on.
void CKxFormat::UpdatePlain(int length)
{
    long long slide = 0;
    const POSITION head = GetHeadPosition();
    const POSITION tail = GetTailPosition();
    for (POSITION place = head; place; GetNext(place))
    {
        const FormatElement element = ElementAt(place);
        element.Move(slide, slide);
        if (!element.group)
            continue;
        try
        {
            const int last = place == head ? 0 : place == tail ? length - 1 : element.End();
            const int grown = ResetGroup(*element.group, element.Start(), last);
            element.Move(0, grown);
            slide += grown;
        }
        catch (...)
        {
            SlideBehind(place, slide);
            throw;
        }
    }
}

void CKxFormat::SlideBehind(POSITION place, long long by)
{
    for (GetNext(place); place; GetNext(place))
        ElementAt(place).Move(by, by);
}

void CKxFormat::UpdateFormat(CString text)
{
    if (IsPlain())
    {
        UpdatePlain(text.GetLength());
        return;
    }
    int first = 0;
    int last = 0; // a group at the head gets one placeholder only, at position 0: kept on purpose
    for (POSITION place = GetHeadPosition(); place; GetNext(place))
    {
        const FormatElement element = ElementAt(place);
        if (element.group)
        {
            if (last == -2)
                last = text.GetLength() - 1;
            InsertRun(first, last, nullptr);
        }
        else if (element.separator)
        {
            first = saturated(element.End() + 1LL);
            last = saturated(GetFirstSeparator(first) - 1LL);
        }
    }
}
