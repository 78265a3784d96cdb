// Short words for the tests of the format logic: element lists as text, parsed formats, and raised exceptions.
#pragma once

#include <gtest/gtest.h>
#include <afx.h>
#include <afxcoll.h>
#include <afxtempl.h>
#include <sstream>
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

/// The list that elements() writes as this text; a fixed group takes as many characters as it has positions.
struct Listed : Elements
{
    explicit Listed(const wchar_t* all)
    {
        std::wistringstream words(all);
        for (std::wstring word; words >> word;)
        {
            std::size_t used = 0;
            const int start = std::stoi(word.substr(1), &used);
            const std::wstring behind = word.substr(used + 2);
            const int end = std::stoi(behind, &used);
            const std::wstring text = behind.substr(used + 1);
            if (word[0] == L'S')
                literal(text.c_str(), start, end);
            else if (word[0] == L'O')
                open(text.c_str(), start, end);
            else
                fixed(text.c_str(), start, end);
        }
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

/// A format with texts that it accepts and texts that it refuses.
struct Verdicts
{
    const wchar_t* format;
    std::vector<std::wstring> accepted;
    std::vector<std::wstring> refused;
};

template <class Semantic = Parsed> void expectVerdicts(const std::vector<Verdicts>& rows)
{
    for (const Verdicts& row : rows)
    {
        const Semantic semantic(row.format);
        for (const std::wstring& text : row.accepted)
            EXPECT_EQ(semantic.ValidAdd(framework(text)), 1) << row.format << " on " << testing::PrintToString(text);
        for (const std::wstring& text : row.refused)
            EXPECT_EQ(semantic.ValidAdd(framework(text)), 0) << row.format << " on " << testing::PrintToString(text);
    }
}

/// What a text becomes behind a keystroke.
struct Keystroke
{
    std::wstring typed;
    std::wstring left;
};

struct Keystrokes
{
    const wchar_t* format;
    std::vector<Keystroke> rows;
};

template <class Semantic = Parsed> void expectAnalysed(const std::vector<Keystrokes>& formats)
{
    for (const Keystrokes& one : formats)
    {
        const Semantic semantic(one.format);
        for (const Keystroke& row : one.rows)
            EXPECT_EQ(wide(semantic.AnalyseSemantic(framework(row.typed))), row.left)
                << one.format << " on " << testing::PrintToString(row.typed);
    }
}
