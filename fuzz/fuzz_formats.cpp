// A format string and a text, through every operation of the format logic, with the invariants that always hold.
// Input: one byte of options, then 16-bit characters; the first NUL character parts the format from the text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include "oxa/formats/KxFormat.h"
#include "oxa/formats/KxGroup.h"
#include "oxa/formats/KxSemantic.h"
#include "oxa/formats/KxSemanticNode.h"
#include "oxa/formats/KxSeparator.h"
#include "support/ReferenceFormats.h"

namespace
{
constexpr std::size_t longestFormat = 200;
constexpr std::size_t longestText = 200;

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Runs an operation that may raise the two documented exceptions, and says whether it came through.
template <class Action> bool completes(Action action)
{
    try
    {
        action();
        return true;
    }
    catch (CInvalidArgException* exception)
    {
        exception->Delete();
    }
    catch (CMemoryException* exception)
    {
        exception->Delete();
    }
    return false;
}

CString take(const std::wstring& text)
{
    return CString(text.data(), static_cast<int>(text.size()));
}

bool sameText(const CString& a, const CString& b)
{
    return std::wstring_view(a.GetString(), static_cast<std::size_t>(a.GetLength())) ==
           std::wstring_view(b.GetString(), static_cast<std::size_t>(b.GetLength()));
}

/// Nodes come as groups and separators in turn, and carry what their kind says.
void checkNodes(const CKxSemantic& semantic)
{
    bool separatorBefore = false;
    bool first = true;
    for (POSITION place = semantic.GetNodes().GetHeadPosition(); place; first = false)
    {
        const auto* node = static_cast<const CKxSemanticNode*>(semantic.GetNodes().GetNext(place));
        const bool separator = node->GetKind() == L"S";
        require(first || separator != separatorBefore);
        separatorBefore = separator;
        if (separator)
            require(node->GetCount() == node->GetText().GetLength() && node->GetCount() > 0);
        else
        {
            require(node->GetText().GetLength() == 1 || node->GetText().GetLength() == 3);
            require(node->GetKind() == L" " || (node->GetKind() == L"x" && node->GetCount() == 0));
        }
    }
}

int places(const CKxFormat& format)
{
    int length = 0;
    for (POSITION place = format.GetHeadPosition(); place;)
    {
        const CObject* element = format.GetNext(place);
        if (const auto* group = dynamic_cast<const CKxGroup*>(element))
            length += group->GetTextLength();
        else
            length += static_cast<const CKxSeparator*>(element)->GetTextLength();
    }
    return length;
}

/// The groups' lengths, and with them the positions, as a fresh list has them.
bool covers(const CKxFormat& format)
{
    int next = 0;
    for (POSITION place = format.GetHeadPosition(); place;)
    {
        const CObject* element = format.GetNext(place);
        const auto* group = dynamic_cast<const CKxGroup*>(element);
        const auto* separator = dynamic_cast<const CKxSeparator*>(element);
        const int start = group ? group->GetStart() : separator->GetStart();
        const int end = group ? group->GetEnd() : separator->GetEnd();
        if (start != next || end < start - 1)
            return false;
        if ((group ? group->GetTextLength() : separator->GetTextLength()) != end - start + 1)
            return false;
        next = end + 1;
    }
    return true;
}

void askEverything(CKxFormat& format, int pos)
{
    const CObject* element = format.GetElement(pos);
    const int separator = format.IsSeparator(pos);
    require(separator == (dynamic_cast<const CKxSeparator*>(element) ? 1 : 0));
    if (separator == 0)
        require(format.Jump(pos, 1) == pos && format.Jump(pos, -1) == pos);
    if (!element)
        require(format.GetFirstGroup(pos) == -1 && format.GetFirstSeparator(pos) == -1);
    require(format.CreateEditFormat().GetLength() == places(format));
    CString text;
    CList<int, int> values;
    format.GetFeatureFormat(text, values);
    require(values.GetCount() <= format.GetCount());
}

/// The same characters, one Insert each.
void setOneByOne(CKxFormat& format, const CString& text)
{
    for (int i = 0; i < text.GetLength(); ++i)
        if (format.IsSeparator(i) == 0)
            format.Insert(i, text[i]);
}

/// The documented steps of UpdateFormat, one Insert each.
void updateOneByOne(CKxFormat& format, int length)
{
    int first = 0;
    int last = 0;
    for (POSITION place = format.GetHeadPosition(); place;)
    {
        const CObject* element = format.GetNext(place);
        if (dynamic_cast<const CKxGroup*>(element))
        {
            last = last == -2 ? length - 1 : last;
            for (int pos = first; pos <= last; ++pos)
                format.Insert(pos, L'#');
        }
        else
        {
            first = static_cast<const CKxSeparator*>(element)->GetEnd() + 1;
            last = format.GetFirstSeparator(first) - 1;
        }
    }
}

bool small(const CKxFormat& format)
{
    for (POSITION place = format.GetHeadPosition(); place;)
        if (const auto* group = dynamic_cast<const CKxGroup*>(format.GetNext(place)))
            if (group->GetEnd() > 2000 || group->GetStart() < -2000)
                return false;
    return true;
}

void edit(const CKxSemantic& semantic, const CString& text, const CString& original)
{
    CKxFormat format;
    if (!completes([&] { semantic.CreateListFormat(format); }))
    {
        require(format.GetCount() == 0);
        return;
    }
    require(format.GetCount() == semantic.GetNodes().GetCount());
    const bool plain = covers(format);
    require(!plain || format.IsEmpty() == 1);
    CKxFormat twin;
    semantic.CreateListFormat(twin);
    CString copy = text;
    format.SetString(copy);
    setOneByOne(twin, text);
    require(sameText(format.CreateEditFormat(), twin.CreateEditFormat()));
    require(!plain || covers(format));
    if (small(format))
    {
        format.UpdateFormat(text);
        updateOneByOne(twin, text.GetLength());
        require(sameText(format.CreateEditFormat(), twin.CreateEditFormat()));
        require(!plain || covers(format) == covers(twin));
    }
    format.MakeUpper();
    static_cast<void>(format.ValidAdd());
    static_cast<void>(format.HaveAnyValue());

    for (int i = 0; i < original.GetLength() && i < 60; ++i)
    {
        const int ch = static_cast<int>(original[i]);
        const int pos = (ch & 1) != 0 ? ch % 40 : i - 3;
        switch (ch % 9)
        {
        case 0:
            format.Insert(pos, original[i]);
            break;
        case 1:
            format.Delete(pos);
            break;
        case 2:
            format.AddFormatCarac(pos);
            break;
        case 3:
            format.DeleteFormatCarac(pos);
            break;
        case 4:
            format.IncFormat(pos);
            break;
        case 5:
            format.DecFormat(pos);
            break;
        case 6:
            if (small(format)) // each update may double the groups
                completes([&] { format.UpdateFormat(text); });
            break;
        case 7:
            format.Insert(2147483647 - i, L'a');
            format.Delete(-2147483647 + i);
            break;
        default:
            break;
        }
        askEverything(format, pos);
    }
    format.DeleteFormat();
    require(format.GetCount() == 0 && format.CreateEditFormat().IsEmpty());
}

void analyse(const CKxSemantic& semantic, const CString& text)
{
    for (int length = 0; length <= text.GetLength(); ++length)
    {
        const CString prefix = text.Left(length);
        CString result;
        if (!completes([&] { result = semantic.AnalyseSemantic(prefix); }))
            continue;
        const int shared = std::min(result.GetLength(), length);
        require(sameText(result.Left(shared), prefix.Left(shared)));
        require(result.GetLength() >= length - 1);
    }
}

std::wstring wide(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

reference::Format formatOf(const CKxSemantic& semantic)
{
    reference::Format format;
    for (POSITION place = semantic.GetNodes().GetHeadPosition(); place;)
    {
        const auto* node = static_cast<const CKxSemanticNode*>(semantic.GetNodes().GetNext(place));
        const char kind = node->GetKind() == L"S" ? 'S' : node->GetKind() == L"x" ? 'O' : 'F';
        format.push_back({kind, wide(node->GetText()), node->GetCount()});
    }
    return format;
}

/// What the documented steps say, in a program of their own.
bool acceptedByReference(const CKxSemantic& semantic, const CKxUnit& unit, CString text)
{
    const bool architectural = semantic.IsUsingArchitecturalFormat();
    if (!architectural)
        CKxUnit::EliminateUnitsSymbol(11, text);
    CKxUnit::EliminatePrecision(text);
    reference::StepJudge::IsNumber isNumber;
    if (architectural)
        isNumber = [&unit](const std::wstring& number)
        {
            int flag = 0;
            unit.String2Double(take(number), &flag, 1);
            return flag != 0;
        };
    const reference::Format format = formatOf(semantic);
    return reference::StepJudge(format, isNumber).judge(wide(text));
}

void judge(const CKxSemantic& semantic, const CKxUnit& unit, const CString& text)
{
    int verdict = -1;
    if (!completes([&] { verdict = semantic.ValidAdd(text); }))
    {
        require(semantic.GetNodes().GetCount() == 0);
        return;
    }
    require(verdict == 0 || verdict == 1);
    require(verdict == (acceptedByReference(semantic, unit, text) ? 1 : 0));
    int again = -1;
    require(completes([&] { again = semantic.ValidAdd(text); }) && again == verdict);
    const CString bare = semantic.GetStringUnMasked(text);
    require(bare.Find(L'#') == -1);
    CString picture;
    if (completes([&] { picture = semantic.MakeToolTipsString(text); }))
        require(sameText(picture, semantic.MakeToolTipsString(CString())));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const unsigned options = data[0];
    std::wstring parts[2];
    std::size_t part = 0;
    for (std::size_t i = 1; i + 1 < size; i += 2)
    {
        const auto ch = static_cast<wchar_t>(data[i] | (data[i + 1] << 8));
        if (ch == L'\0' && part == 0)
            part = 1;
        else if (parts[part].size() < (part == 0 ? longestFormat : longestText))
            parts[part] += ch;
    }
    CKxSemantic semantic;
    CKxUnit unit;
    if ((options & 1U) != 0)
    {
        unit.SetIdUnit(1);
        unit.SetRange(5);
        unit.SetUnitFormat(UNITFORMAT_ARCHITECTURAL);
        semantic.SetUseArchitecturalFormat(true, unit);
    }
    CString format = take(parts[0]);
    const CString text = take(parts[1]);
    const int result = semantic.CheckSyntax(format);
    require(result == 1 || result == -1);
    require(sameText(format, take(parts[0])));
    checkNodes(semantic);
    if ((options & 2U) != 0)
    {
        unit = CKxUnit();
        semantic.SetUseArchitecturalFormat((options & 1U) == 0, unit);
    }
    judge(semantic, unit, text);
    analyse(semantic, text);
    edit(semantic, text, (options & 4U) != 0 ? format : text);
    require(semantic.CheckSyntax(format) == result || (options & 2U) != 0);
    return 0;
}
