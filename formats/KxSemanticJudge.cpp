// Judging a text: whether it is a finished value of the format.
//
// The walk goes by stretches, as characters that pass inside a group change nothing but the position.
#include "oxa/formats/KxSemantic.h"

#include <algorithm>
#include <kx/CaseFold.h>
#include "CharacterClasses.h"

namespace
{
constexpr wchar_t plusMinus = L'\u00b1';
constexpr wchar_t about = L'\u2248';

// No symbol of a section dimension ends in a digit.
bool mayEndInSymbol(const CString& text)
{
    const int length = text.GetLength();
    return length > 0 && (CharacterClasses::of(text.GetString()[length - 1]) & CharacterClasses::Digit) == 0;
}

bool hasPrecisionMark(const wchar_t* text, int length)
{
    return std::any_of(text, text + length, [](wchar_t ch) { return ch == plusMinus || ch == about; });
}

bool equalWithoutCase(const wchar_t* a, const wchar_t* b, int length)
{
    for (int i = 0; i < length; ++i)
        if (a[i] != b[i] && kx::foldLower(a[i]) != kx::foldLower(b[i]))
            return false;
    return true;
}
} // namespace

/// The state of one judgement: the current node, the position, and the limit of a fixed group.
struct CKxSemantic::Judgement
{
    const CKxSemantic& semantic;
    const Step* step;
    const Step* const last;
    const wchar_t* const text;
    const long long length;
    long long limit; ///< position behind the current fixed group, 0 for an open group
    long long i = 0;
    long long run = 0; ///< characters of the current numeric open group

    bool IsArchNumber() const
    {
        CString number(text + (i - run), static_cast<int>(run));
        return semantic.IsValidArchNumber(number) != 0;
    }

    /// The first position from i on, end at the most, whose character does not pass in the current group.
    long long PassedUpTo(long long end) const
    {
        const unsigned ignored = semantic.m_architectural ? 0U : static_cast<unsigned>(CharacterClasses::FeetAndInches);
        const unsigned classes = step->classes & ~ignored;
        long long at = i;
        if (classes != 0)
            while (at < end && (CharacterClasses::of(text[at]) & classes) != 0)
                ++at;
        else
            while (at < end && CharacterClasses::passes(text[at], 0, step->low, step->high))
                ++at;
        return at;
    }

    /// The text ends with a full group: its last character is tested against what follows, node by node, each taken
    /// for a type. Kept on purpose; it normally ends in a refusal.
    int Full() const
    {
        Judgement rest = *this;
        rest.i = length - 1;
        for (++rest.step; rest.step != last; ++rest.step)
            if (rest.PassedUpTo(length) != length)
                return 0;
        return 1;
    }

    /// Steps from a separator, which must stand at i with something behind it, into the group that follows.
    bool PassSeparator()
    {
        const Step& separator = *step;
        ++step;
        if (step == last || separator.count >= length - i)
            return false;
        if (!equalWithoutCase(text + i, separator.text, separator.count))
            return false;
        if (step->kind != L'x')
            limit = i + step->count + separator.count; // the run is not touched
        else
        {
            limit = 0;
            if (run > 0 && semantic.m_architectural && !IsArchNumber())
                return false;
            run = 0;
        }
        i += separator.count;
        return true;
    }

    /// The text ends in an open group.
    int EndOpen(bool numeric) const
    {
        if (numeric && semantic.m_architectural && !IsArchNumber())
            return 0;
        return last - step <= 2 ? 1 : 0; // a separator may follow, and nothing behind it
    }

    int Judge()
    {
        if (length == 0)
            return step + 1 == last ? 1 : 0;
        if (step->kind == L'S' && !PassSeparator())
            return 0;
        for (;;)
        {
            const bool open = limit == 0;
            const long long refused = std::max(limit, i); // where one character more is one too many
            const long long passed = PassedUpTo(open ? length : std::min(length, refused + 1));
            if (open)
            {
                const bool numeric = (step->classes & CharacterClasses::Digit) != 0;
                run += numeric ? passed - i : 0;
                i = passed;
                if (i == length)
                    return EndOpen(numeric);
            }
            else if (passed > refused)
                return 0;
            else if (passed == length)
                return limit == length ? Full() : step + 1 == last ? 1 : 0;
            i = passed;
            if (++step == last || !PassSeparator())
                return 0;
        }
    }
};

int CKxSemantic::Judge(const CString& text) const
{
    const Step* first = m_steps.data();
    return Judgement{*this, first, first + m_steps.size(), text.GetString(), text.GetLength(), first->count}.Judge();
}

int CKxSemantic::ValidAdd(CString text) const
{
    if (m_steps.empty())
        AfxThrowInvalidArgException();
    if (!m_architectural && mayEndInSymbol(text))
        CKxUnit::EliminateUnitsSymbol(11, text);
    if (m_takesPrecisionMarks)
        CKxUnit::EliminatePrecision(text);
    // A format that takes no precision mark accepts no text with one, so it is looked for in refused texts only.
    const int verdict = Judge(text);
    if (verdict == 1 || m_takesPrecisionMarks || !hasPrecisionMark(text.GetString(), text.GetLength()))
        return verdict;
    CKxUnit::EliminatePrecision(text);
    return Judge(text);
}

// Whether some node lets a precision mark pass: as a literal, in a range, or in a literal that is read as a range.
bool CKxSemantic::TakesPrecisionMarks(const Step& step)
{
    const auto inRange = [&step](wchar_t ch)
    { return CharacterClasses::passes(ch, step.classes, step.low, step.high); };
    return inRange(plusMinus) || inRange(about) || hasPrecisionMark(step.text, step.length);
}
