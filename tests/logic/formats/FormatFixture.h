// Short words for the tests of the format logic: element lists as text, parsed formats, and raised exceptions.
#pragma once

#include <gtest/gtest.h>
#include <afx.h>
#include <afxcoll.h>
#include <afxtempl.h>
#include <string>
#include <vector>
#include "oxa/formats/KxFormat.h"
#include "oxa/formats/KxGroup.h"
#include "oxa/formats/KxSemantic.h"
#include "oxa/formats/KxSemanticNode.h"
#include "oxa/formats/KxSeparator.h"

inline std::wstring wide(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

inline CString framework(const std::wstring& text)
{
    return CString(text.data(), static_cast<int>(text.size()));
}

/// "G0-2:##1" for a group, "S3-3:-" for a separator, joined with blanks; an open group is "O".
inline std::wstring elements(const CKxFormat& format)
{
    std::wstring all;
    for (POSITION place = format.GetHeadPosition(); place;)
    {
        const CObject* object = format.GetNext(place);
        const auto* group = dynamic_cast<const CKxGroup*>(object);
        const auto* separator = dynamic_cast<const CKxSeparator*>(object);
        if (!all.empty())
            all += L' ';
        if (group)
            all += (group->GetMaxCount() == -1 ? L"O" : L"G") + std::to_wstring(group->GetStart()) + L"-" +
                   std::to_wstring(group->GetEnd()) + L":" + wide(group->GetText());
        else if (separator)
            all += L"S" + std::to_wstring(separator->GetStart()) + L"-" + std::to_wstring(separator->GetEnd()) + L":" +
                   wide(separator->GetText());
        else
            all += L"?";
    }
    return all;
}

/// A list that a test fills element by element.
struct Elements : CKxFormat
{
    Elements& fixed(const wchar_t* text, int start, int end)
    {
        AddTail(new CKxGroup(text, start, end, 1, end - start + 1));
        return *this;
    }
    Elements& open(const wchar_t* text, int start, int end)
    {
        AddTail(new CKxGroup(text, start, end, 1, -1));
        return *this;
    }
    Elements& literal(const wchar_t* text, int start, int end)
    {
        AddTail(new CKxSeparator(text, start, end));
        return *this;
    }
};

/// A semantic object that has read a format.
struct Parsed : CKxSemantic
{
    int result;

    explicit Parsed(const wchar_t* format) : Parsed(std::wstring(format)) {}
    explicit Parsed(const std::wstring& format)
    {
        CString text = framework(format);
        result = CheckSyntax(text);
    }
};

/// The nodes as "N/3/ ", that is text, count and kind, joined with blanks.
inline std::wstring nodes(const CKxSemantic& semantic)
{
    std::wstring all;
    for (POSITION place = semantic.GetNodes().GetHeadPosition(); place;)
    {
        const auto* node = static_cast<const CKxSemanticNode*>(semantic.GetNodes().GetNext(place));
        if (!all.empty())
            all += L' ';
        all += wide(node->GetText()) + L"/" + std::to_wstring(node->GetCount()) + L"/" + wide(node->GetKind());
    }
    return all;
}

template <class Exception, class Action> bool raises(Action action)
{
    try
    {
        action();
    }
    catch (Exception* exception)
    {
        exception->Delete();
        return true;
    }
    return false;
}

inline std::wstring analysed(const wchar_t* format, const std::wstring& text)
{
    return wide(Parsed(format).AnalyseSemantic(framework(text)));
}

inline int valid(const wchar_t* format, const std::wstring& text)
{
    return Parsed(format).ValidAdd(framework(text));
}

inline std::wstring picture(const wchar_t* format)
{
    return wide(Parsed(format).MakeToolTipsString(L""));
}

/// The elements that a format expands to.
inline std::wstring expanded(const wchar_t* text)
{
    CKxFormat format;
    Parsed(text).CreateListFormat(format);
    return elements(format);
}

/// Feet and inches: architectural format, to sixteenths.
inline CKxUnit feetUnit()
{
    CKxUnit unit;
    unit.SetIdUnit(1);
    unit.SetRange(5);
    unit.SetUnitFormat(UNITFORMAT_ARCHITECTURAL);
    unit.SetPrecision(4);
    return unit;
}

/// Architectural: the switch goes on before the format is read.
struct ParsedFeet : CKxSemantic
{
    int result;

    explicit ParsedFeet(const wchar_t* format)
    {
        SetUseArchitecturalFormat(true, feetUnit());
        CString text(format);
        result = CheckSyntax(text);
    }
};
