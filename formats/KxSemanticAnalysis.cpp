// Walking over a text: what it may be after a keystroke, and whether it is a finished value.
#include "oxa/formats/KxSemantic.h"

#include <algorithm>
#include <kx/CaseFold.h>
#include "CharacterClasses.h"

/// The state of one walk over a text: the current node, the position, the current type and kind, and the limit.
struct CKxSemantic::Walk
{
    const Step* node; ///< the current node; m_last when there is none
    const Step* const last;
    const Step* type; ///< whose text is the current type
    wchar_t kind;
    long long limit; ///< position behind the current fixed group, 0 for an open group
    long long i = 0;
    const wchar_t* const text;
    const long long length;
    const unsigned classes; ///< those that count now

    Walk(const std::vector<Step>& steps, const wchar_t* characters, int count, bool architectural)
        : node(steps.data()), last(steps.data() + steps.size()), type(node), kind(node->kind), limit(node->count),
          text(characters), length(count),
          classes(architectural ? ~0U : ~static_cast<unsigned>(CharacterClasses::FeetAndInches))
    {
    }

    bool AtEnd() const { return node == last; }

    bool Passes(wchar_t ch) const
    {
        if (kind == L'S')
            return false;
        if (type->classes != 0)
            return (CharacterClasses::of(ch) & type->classes & classes) != 0;
        const auto code = static_cast<std::uint32_t>(ch);
        return static_cast<std::uint32_t>(type->low) <= code && code <= static_cast<std::uint32_t>(type->high);
    }

    /// A step past the end of the nodes is an invalid argument.
    void Advance()
    {
        if (node == last)
            AfxThrowInvalidArgException();
        ++node;
    }

    /// The `count` characters of the text at i, as far as there are that many, against the text of step.
    template <class Equal> bool Stands(const Step& step, Equal equal) const
    {
        const long long present = std::clamp<long long>(step.count, 0, length - i);
        return present == step.length && std::equal(step.text, step.text + step.length, text + i, equal);
    }
};

CString CKxSemantic::AnalyseSemantic(CString text) const
{
    if (m_steps.empty())
        AfxThrowInvalidArgException();
    const long long length = text.GetLength();
    const auto shortened = [&text] { return text.Left(text.GetLength() - 1); };
    Walk walk(m_steps, text.GetString(), text.GetLength(), m_architectural);
    while (walk.i < length)
    {
        while (walk.text[walk.i] == L'#')
        {
            if (walk.i == length - 1)
                return text;
            ++walk.i;
        }
        if (walk.Passes(walk.text[walk.i]))
        {
            if (walk.limit != 0 && walk.i + 1 > walk.limit)
                return shortened();
            if (walk.limit != 0 && walk.i + 1 == walk.limit && walk.limit >= length)
            {
                if (walk.AtEnd() || walk.node + 1 == walk.last)
                    return text;
                return text + CString(walk.node[1].text, walk.node[1].length);
            }
            if (walk.limit == 0 && walk.i + 1 == length)
                return text;
            ++walk.i;
            continue;
        }
        if (walk.kind != L'S')
            walk.Advance();
        if (walk.AtEnd())
            return shortened();
        const Step& separator = *walk.node;
        if (!walk.Stands(separator, std::equal_to<>{}))
            return shortened();
        walk.Advance();
        if (walk.AtEnd())
        {
            walk.type = &separator; // kind, limit and position stay: kept on purpose
            continue;
        }
        walk.type = walk.node;
        walk.kind = walk.node->kind;
        walk.limit = walk.kind == L'x' ? 0 : walk.i + walk.node->count + separator.count;
        walk.i += separator.count;
    }
    return text;
}

int CKxSemantic::ValidAdd(CString text) const
{
    if (!m_architectural)
        CKxUnit::EliminateUnitsSymbol(11, text);
    CKxUnit::EliminatePrecision(text);
    return Judge(text.GetString(), text.GetLength());
}

bool CKxSemantic::IsArchNumber(const wchar_t* text, int length) const
{
    CString number(text, length);
    return IsValidArchNumber(number) != 0;
}

int CKxSemantic::Judge(const wchar_t* text, int length) const
{
    if (m_steps.empty())
        AfxThrowInvalidArgException();
    Walk walk(m_steps, text, length, m_architectural);
    long long run = 0; // characters of the current numeric open group
    const auto runIsNumber = [&] { return IsArchNumber(text + (walk.i - run), static_cast<int>(run)); };
    while (walk.i < length)
    {
        if (!walk.Passes(text[walk.i]))
        {
            if (walk.kind != L'S')
                walk.Advance();
            if (walk.AtEnd())
                return 0;
            const Step& separator = *walk.node;
            if (!walk.Stands(separator,
                             [](wchar_t a, wchar_t b) { return a == b || kx::foldLower(a) == kx::foldLower(b); }))
                return 0;
            walk.Advance();
            if (walk.AtEnd() || walk.i >= length - separator.count)
                return 0;
            walk.type = walk.node;
            walk.kind = walk.node->kind;
            if (walk.kind != L'x')
                walk.limit = walk.i + walk.node->count + separator.count; // the run is not touched
            else
            {
                walk.limit = 0;
                if (run > 0 && m_architectural && !runIsNumber())
                    return 0;
                run = 0;
            }
            walk.i += separator.count;
        }
        else if (walk.limit == 0)
        {
            if (walk.i + 1 == length)
                walk.Advance();
            ++walk.i;
            if ((walk.type->classes & CharacterClasses::Digit) != 0)
            {
                ++run;
                if (walk.i == length && m_architectural && !runIsNumber())
                    return 0;
            }
        }
        else if (walk.i + 1 > walk.limit)
            return 0;
        else if (walk.i + 1 == walk.limit && walk.limit >= length)
        {
            walk.Advance();
            if (walk.AtEnd())
                return walk.i + 1 == length ? 1 : 0;
            walk.type = walk.node; // the kind stays: the same character is tested against what follows
        }
        else if (walk.i + 1 == length && walk.node + 1 < walk.last)
            return 0;
        else
            ++walk.i;
    }
    return walk.AtEnd() || walk.node + 1 == walk.last ? 1 : 0;
}
