// Following typing: what a text may be after a keystroke.
#include "oxa/formats/KxSemantic.h"

#include <algorithm>
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
        return kind != L'S' && CharacterClasses::passes(ch, type->classes & classes, type->low, type->high);
    }

    /// A step past the end of the nodes is an invalid argument.
    void Advance()
    {
        if (node == last)
            AfxThrowInvalidArgException();
        ++node;
    }

    /// Whether the characters of the text at i are exactly those of a separator.
    bool Stands(const Step& separator) const
    {
        return separator.length <= length - i &&
               std::equal(separator.text, separator.text + separator.length, text + i);
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
        if (!walk.Stands(separator))
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
