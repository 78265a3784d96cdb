// KxUnitField: what a numeric field with a unit knows, without its window.
#pragma once

#include <afx.h>

#include "kitrel/Export.h"
#include "kitrel/KxUnit.h"

/**
 * The value of a numeric field in SI, the unit by which its text is read and written, its limits, and the text that it
 * last showed. A plain value.
 *
 * A text that still is the one last shown stands for the exact value behind it, whatever the unit's precision: a value
 * is not changed by being looked at. Any other text is read through the unit.
 */
class KITREL_API KxUnitField
{
public:
    /// What a text in the field is.
    enum class Entry
    {
        nothing,       ///< empty, or the unit's name alone: no value was entered
        value,         ///< the text last shown, or one that was read and lies within the limits
        notUnderstood, ///< no text of a value
        tooSmall,      ///< a value below the lower limit
        tooLarge,      ///< a value above the upper limit
    };

    struct Reading
    {
        Entry entry;
        double value; ///< in SI; the field's own where nothing was entered or the text is refused

        bool isRefused() const { return entry != Entry::nothing && entry != Entry::value; }
    };

    /// Why a text is refused, in the parts of a message.
    struct Refusal
    {
        bool understood; ///< the text was read; the limits refused it
        CString quoted;  ///< the start of the text, in one line, at most c_longestQuote characters and an ellipsis
        CString minimum; ///< the lower limit in the working unit; empty when it is not to be named
        CString maximum; ///< the upper limit, likewise
    };

    enum : int
    {
        c_longestQuote = 40
    };

    /// showSymbol: the symbol of the unit stands behind the number of valueText().
    explicit KxUnitField(bool showSymbol = true);

    CKxUnit& unit() { return m_unit; }
    const CKxUnit& unit() const { return m_unit; }

    /// In SI.
    double value() const { return m_value; }
    /// NaN counts as 0; held between -1e290 and 1e290. The limits are not asked.
    void setValue(double value);

    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    /// In SI. Limits in the wrong order are exchanged; one that is infinite or NaN is no limit.
    void setLimits(double minimum, double maximum);
    /// Whether the value lies within the limits, each widened by 1e-10 + 1e-10 * |limit|.
    bool allows(double value) const;

    /// The text of the value in the unit.
    CString valueText() const;
    /// The same, remembered as the text that the field shows.
    const CString& show();
    /// The text last shown or taken over; empty at first.
    const CString& shownText() const { return m_shown; }

    /// Reads a text of any length; blanks and line ends around it do not count.
    Reading read(const CString& text) const;
    /// Makes what the text says the field's value. False, and nothing changes, for a text that is refused.
    bool takeOver(const CString& text);

    /// For a text that read() refuses. Limits of 1.7976931348623157e+150 and beyond are named only when they refused
    /// the text. A limit is written with as many decimals as it takes to read it back as a value that is allowed.
    Refusal refusalOf(const CString& text) const;

private:
    Entry entryOf(double value) const;
    CString print(const CKxUnit& unit, double value, bool showSymbol) const;
    CString limitText(double limit) const;

    CKxUnit m_unit;
    double m_value = 0.0;
    double m_minimum;
    double m_maximum;
    CString m_shown;
    bool m_showSymbol;
};
