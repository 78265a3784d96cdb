// How a text is read as a value with its unit: numbers, symbols, feet and inches, sums and differences.
#include "UnitReader.h"

#include "UnitNumber.h"

namespace kitrel
{
namespace
{

constexpr double c_inchesPerFoot = 12.0;

constexpr bool isFootSign(wchar_t c) noexcept
{
    return c == L'\'' || c == 0x2019 || c == 0x2032;
}
constexpr bool isInchSign(wchar_t c) noexcept
{
    return c == L'"' || c == 0x201D || c == 0x2033;
}

// What stands behind a number.
enum class Mark
{
    none,
    symbol,
    footSign,
    footWord,
    inchSign,
    inchWord
};

struct Term
{
    double value = 0.0;
    Mark mark = Mark::none;
    unsigned int unit = 0; // with Mark::symbol
    bool fraction = false;

    bool isFeet() const { return mark == Mark::footSign || mark == Mark::footWord; }
    bool isInches() const { return mark == Mark::inchSign || mark == Mark::inchWord; }
};

class Reader
{
public:
    Reader(std::wstring_view text, const ReadingRules& rules) : m_text(text), m_rules(rules) {}

    Reading read()
    {
        double total = 0.0;
        skipBlanks();
        double sign = takeOptionalSign();
        for (bool first = true;; first = false)
        {
            double value = 0.0;
            if (!takeValue(sign, first, value))
                return {};
            total = held(total + value);
            skipBlanks();
            if (atEnd())
                return {total, true};
            if (!m_rules.sums || !takeOperator(sign))
                return {};
        }
    }

private:
    bool atEnd() const { return m_at >= m_text.size(); }
    wchar_t peek(size_t ahead = 0) const { return m_at + ahead < m_text.size() ? m_text[m_at + ahead] : L'\0'; }
    void skipBlanks()
    {
        while (!atEnd() && isBlank(m_text[m_at]))
            ++m_at;
    }

    bool takeOperator(double& sign)
    {
        if (peek() == L'+')
            sign = 1.0;
        else if (isMinus(peek()))
            sign = -1.0;
        else
            return false;
        ++m_at;
        skipBlanks();
        return true;
    }

    double takeOptionalSign()
    {
        double sign = 1.0;
        takeOperator(sign);
        return sign;
    }

    // One term of a sum, in the base of the family.
    bool takeValue(double sign, bool first, double& value)
    {
        Term term;
        if (!takeTerm(term))
            return false;
        if (term.isFeet())
            return takeFeet(term, sign, value);
        if (term.isInches())
        {
            value = held(inchScale().toSI(sign * term.value));
            return true;
        }
        const bool bare = term.mark == Mark::none;
        const unsigned int unit = bare ? m_rules.range : term.unit;
        if (term.fraction && !(bare && m_rules.family.isImperial(unit)))
            return false;
        const UnitScale scale = m_rules.scaleOf(unit);
        // Behind the first term of a sum of temperatures stand differences of temperature.
        value = held(first ? scale.toSI(sign * term.value) : scale.differenceToSI(sign * term.value));
        return true;
    }

    // Feet have been taken: inches may follow.
    bool takeFeet(const Term& feet, double sign, double& value)
    {
        double inches = c_inchesPerFoot * feet.value;
        const size_t behindFeet = m_at;
        skipBlanks();
        const bool dash = feet.mark == Mark::footSign && isMinus(peek());
        if (dash)
        {
            ++m_at;
            skipBlanks();
        }
        if (dash || isDigit(peek()) || isDecimalSign(peek()))
        {
            Term next;
            if (takeTerm(next) && (next.mark == Mark::none || next.isInches()))
                inches += next.value;
            else if (dash)
                m_at = behindFeet; // 2'-1' is a difference
            else
                return false;
        }
        value = held(inchScale().toSI(sign * inches));
        return true;
    }

    bool takeTerm(Term& term)
    {
        const ScannedNumber number = scanNumber(m_text.substr(m_at));
        if (number.length == 0)
            return false;
        m_at += number.length;
        term.value = number.value;
        if (m_rules.family.isLength() && number.digitsOnly && !takeFraction(term))
            return false;
        const size_t behindNumber = m_at;
        skipBlanks();
        if (!takeMark(term))
            m_at = behindNumber;
        return true;
    }

    // `/2`, ` 1/2` or `-1/2"` behind a whole number. False for a division by nothing.
    bool takeFraction(Term& term)
    {
        const size_t start = m_at;
        if (peek() == L'/')
        {
            m_at = start + 1;
            const ScannedNumber below = takeDigits();
            if (below.length == 0 || below.value == 0.0)
                return false;
            term.value /= below.value;
            term.fraction = true;
            return true;
        }
        const bool dash = isMinus(peek());
        if (dash)
            ++m_at;
        else
            skipBlanks();
        double fraction = 0.0;
        const bool taken = (dash || m_at > start) && takeProperFraction(fraction);
        if (!taken || (dash && !inchSignFollows()))
        {
            m_at = start;
            return true;
        }
        term.value += fraction;
        term.fraction = true;
        return true;
    }

    bool takeProperFraction(double& fraction)
    {
        const ScannedNumber above = takeDigits();
        if (above.length == 0 || peek() != L'/')
            return false;
        ++m_at;
        const ScannedNumber below = takeDigits();
        if (below.length == 0 || below.value == 0.0)
            return false;
        fraction = above.value / below.value;
        return true;
    }

    ScannedNumber takeDigits()
    {
        size_t length = 0;
        while (isDigit(peek(length)))
            ++length;
        const ScannedNumber number = scanNumber(m_text.substr(m_at, length));
        m_at += length;
        return number;
    }

    bool inchSignFollows()
    {
        const size_t here = m_at;
        skipBlanks();
        const bool follows = isInchSign(peek()) || (isFootSign(peek()) && isFootSign(peek(1)));
        m_at = here;
        return follows;
    }

    bool takeMark(Term& term)
    {
        if (m_rules.family.isLength() && takeSign(term))
            return true;
        const std::wstring_view rest = m_text.substr(m_at);
        size_t longest = 0;
        for (unsigned int i = 0; i < m_rules.family.units.size(); ++i)
        {
            const std::wstring_view symbol = m_rules.family.units[i].symbol;
            if (symbol.size() <= longest || !beginsWithSymbol(rest, symbol))
                continue;
            longest = symbol.size();
            term.unit = i;
        }
        if (longest == 0)
            return false;
        m_at += longest;
        term.mark = Mark::symbol;
        if (static_cast<int>(term.unit) == m_rules.family.foot)
            term.mark = Mark::footWord;
        if (static_cast<int>(term.unit) == m_rules.family.inch)
            term.mark = Mark::inchWord;
        return true;
    }

    bool takeSign(Term& term)
    {
        if (isFootSign(peek()))
        {
            const bool twice = isFootSign(peek(1)); // two foot signs are an inch sign
            term.mark = twice ? Mark::inchSign : Mark::footSign;
            m_at += twice ? 2 : 1;
            return true;
        }
        if (!isInchSign(peek()))
            return false;
        term.mark = Mark::inchSign;
        ++m_at;
        return true;
    }

    const UnitScale& inchScale() const { return m_rules.family.units[static_cast<size_t>(m_rules.family.inch)].scale; }

    std::wstring_view m_text;
    const ReadingRules& m_rules;
    size_t m_at = 0;
};

} // namespace

Reading readText(std::wstring_view text, const ReadingRules& rules)
{
    return Reader(text, rules).read();
}

} // namespace kitrel
