// Judging a text: whether it is a finished value of the format.
//
// Lists of values are judged text by text, so this is written for speed. The walk goes by stretches, as characters that
// pass inside a group change nothing but the position. A Judgement is local to one function, and what it knows of
// architectural numbers is decided when it is compiled, so that its state stays in registers.
#include "oxa/formats/KxSemantic.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <kx/CaseFold.h>
#include "CharacterClasses.h"

namespace
{
constexpr unsigned int sectionDimension = 11; ///< the family whose symbols are left out
constexpr wchar_t plusMinus = L'\u00b1';
constexpr wchar_t about = L'\u2248';

// What a symbol of a section dimension ends in, or a blank behind it. Any character beyond ASCII might be one.
constexpr auto symbolEnds = []
{
    std::array<bool, 128> ends{};
    for (const wchar_t ch : {L'm', L'n', L't', L' ', L'\t'})
        ends[static_cast<std::size_t>(ch)] = true;
    return ends;
}();

bool mayEndInSymbol(const CString& text)
{
    if (text.IsEmpty())
        return false;
    const auto last = static_cast<std::uint32_t>(text.GetString()[text.GetLength() - 1]);
    return last >= symbolEnds.size() || symbolEnds[last];
}

bool hasPrecisionMark(const wchar_t* first, const wchar_t* end)
{
    for (; first != end; ++first)
        if (*first == plusMinus || *first == about)
            return true;
    return false;
}

// Apart from its callers, as it is long and the texts mostly agree without it.
[[gnu::noinline]] bool equalFolded(const wchar_t* a, const wchar_t* b, std::ptrdiff_t length)
{
    return std::equal(a, a + length, b, [](wchar_t x, wchar_t y) { return kx::foldLower(x) == kx::foldLower(y); });
}

bool equalWithoutCase(const wchar_t* a, const wchar_t* b, std::ptrdiff_t length)
{
    return (length == 1 && *a == *b) || equalFolded(a, b, length);
}

static_assert(CharacterClasses::of(L'\0') == 0, "the terminator of a text ends every run of a class");
} // namespace

/// The state of one judgement: the current node, the position, and the room of a fixed group.
template <bool architectural> struct CKxSemantic::Judgement
{
    const CKxSemantic& semantic;
    const wchar_t* const text;
    const wchar_t* const end;
    const wchar_t* at = text; ///< every character before it has passed, as one of a group or of a separator
    const Step* step = semantic.m_steps.data();
    const Step* const last = step + semantic.m_steps.size();
    std::ptrdiff_t room = 0; ///< most characters of the current group
    std::ptrdiff_t run = 0;  ///< characters of the current numeric open group, in architectural mode

    /// Null when the format accepts the text, else a position before which every character passed.
    static const wchar_t* Refusal(const CKxSemantic& semantic, const CString& text)
    {
        Judgement judgement{semantic, text.GetString(), text.GetString() + text.GetLength()};
        return judgement.Accepts() ? nullptr : judgement.at;
    }

private:
    static unsigned ClassesOf(const Step& node)
    {
        return architectural ? node.classes : node.classes & ~unsigned{CharacterClasses::FeetAndInches};
    }

    bool IsNumeric() const { return (step->classes & CharacterClasses::Digit) != 0; }
    bool IsArchNumber() const
    {
        CString number(at - run, static_cast<int>(run));
        return semantic.IsValidArchNumber(number) != 0;
    }

    /// The first position from here on whose character does not pass in the current group.
    const wchar_t* Passed() const
    {
        const wchar_t* passed = at;
        if (const unsigned classes = ClassesOf(*step); classes != 0)
            while ((CharacterClasses::of(*passed) & classes) != 0)
                ++passed;
        else
            while (passed != end && CharacterClasses::passes(*passed, 0, step->low, step->high))
                ++passed;
        return passed;
    }

    /// The text ends in an open group, which a separator may follow, and nothing behind that.
    bool EndOpen() const { return (!architectural || !IsNumeric() || IsArchNumber()) && last - step <= 2; }

    /// The text ends with a full group: its last character is tested against what follows, node by node, each taken
    /// for a type. Kept on purpose; it normally ends in a refusal.
    bool EndFull() const
    {
        for (const Step* node = step + 1; node != last; ++node)
            if (!CharacterClasses::passes(end[-1], ClassesOf(*node), node->low, node->high))
                return false;
        return true;
    }

    /// Steps from a separator, which must stand here with something behind it, to the group that follows.
    bool PassSeparator()
    {
        const Step& separator = *step;
        ++step;
        if (step == last || separator.count >= end - at || !equalWithoutCase(at, separator.text, separator.count))
            return false;
        if (architectural && step->kind == L'x') // a fixed group leaves the run as it is
        {
            if (run > 0 && !IsArchNumber())
                return false;
            run = 0;
        }
        at += separator.count;
        return true;
    }

    /// A count that puts the limit, which is the position behind the group, at 0 makes the group open.
    void EnterGroup()
    {
        room = step->room;
        if (room == 0 && at - text == -std::ptrdiff_t{step->count})
            room = Step::anyNumber;
    }

    bool Accepts()
    {
        if (at == end)
            return step + 1 == last;
        if (step->kind == L'S' && !PassSeparator())
            return false;
        for (;;)
        {
            EnterGroup();
            const std::ptrdiff_t count = Passed() - at;
            at += count;
            if (count > room)
                return false;
            if (architectural && room == Step::anyNumber && IsNumeric())
                run += count;
            if (at == end)
                return room == Step::anyNumber ? EndOpen() : count == room ? EndFull() : step + 1 == last;
            if (++step == last || !PassSeparator())
                return false;
        }
    }
};

int CKxSemantic::JudgeWithoutMarks(CString& text) const
{
    if (!m_architectural)
        CKxUnit::EliminateUnitsSymbol(sectionDimension, text);
    CKxUnit::EliminatePrecision(text);
    const wchar_t* refusal =
        m_architectural ? Judgement<true>::Refusal(*this, text) : Judgement<false>::Refusal(*this, text);
    return refusal == nullptr ? 1 : 0;
}

int CKxSemantic::ValidAdd(CString text) const
{
    if (m_steps.empty())
        AfxThrowInvalidArgException();
    if (m_architectural || m_takesPrecisionMarks || mayEndInSymbol(text))
        return JudgeWithoutMarks(text);
    // A format that takes no precision mark accepts no text with one, so it is looked for in refused texts only.
    const wchar_t* refusal = Judgement<false>::Refusal(*this, text);
    if (refusal == nullptr)
        return 1;
    return hasPrecisionMark(refusal, text.GetString() + text.GetLength()) ? JudgeWithoutMarks(text) : 0;
}

// Whether some node lets a precision mark pass: as a literal, in a range, or in a literal that is read as a range.
bool CKxSemantic::TakesPrecisionMarks(const Step& step)
{
    const auto inRange = [&step](wchar_t ch)
    { return CharacterClasses::passes(ch, step.classes, step.low, step.high); };
    return inRange(plusMinus) || inRange(about) || hasPrecisionMark(step.text, step.text + step.length);
}
