// CKxUnit: a unit of measure that turns texts into SI values and SI values into texts.
#pragma once

#include <afx.h>
#ifdef _WIN32
#include <afxwin.h>
#endif

#include "kitrel/Export.h"

/// Whether a unit knows the feet-and-inches formats.
enum enumUNITTYPE : int
{
    UNITTYPE_METRIC = 0,   ///< decimal texts only
    UNITTYPE_IMPERIAL = 1, ///< inches or feet: architectural and engineering texts too
};

/// How a unit of type UNITTYPE_IMPERIAL writes its values; any other unit writes decimal texts.
enum enumUNITFORMAT : int
{
    UNITFORMAT_DECIMAL = 0,       ///< `1.50 ft`
    UNITFORMAT_ARCHITECTURAL = 1, ///< `1'-6 1/2"`
    UNITFORMAT_ENGINEERING = 2,   ///< `1'-6.50"`
};

#ifdef _WIN32
/// Where the units stand in the framework: the base class is a command target in a program with windows.
#define KX_UNIT_BASE CCmdTarget
#else
#define KX_UNIT_BASE CObject
#endif

/**
 * A unit of measure: a family of quantity, one of the units of that family, and the way in which its values are
 * written. A plain value, to be copied freely.
 *
 * Families, by number, with their units in the order of GetRange():
 *  -  1 lengths, 8 displacements, 11 section dimensions, 12 section characteristics (the length of which areas and
 *     moduli are formed), 17 openings, 18 bill of materials, 19 drawing dimensions, 20 section cuts, 21 trusses:
 *     m, dm, cm, mm, in, ft, µm, km
 *  -  2 forces: N, daN, kN, MN, kgf, tf, lbf, kip
 *  -  3 moments: N.m, daN.m, kN.m, MN.m, kgf.m, tf.m, lbf.ft, lbf.in, kip.ft, kip.in
 *  -  4 masses: kg, g, t, lb, oz, slug
 *  -  5 angles: rad, °, gr, mrad
 *  -  6 stresses: Pa, kPa, MPa, GPa, bar, N/mm², kgf/cm², psi, ksi, psf, ksf
 *  -  7 times: s, ms, min, h, j (days)
 *  -  9 temperatures: K, °C, °F (SI values are absolute, in kelvins)
 *  - 10 without dimension: no symbol, %, ‰
 *  - 13 energies: J, kJ, MJ, Wh, kWh, ft.lbf, Btu
 *  - 14 speeds: m/s, cm/s, mm/s, km/h, ft/s, in/s, mph
 *  - 15 accelerations: m/s², cm/s², mm/s², g, ft/s², in/s²
 *  - 16 damping: N.s/m, kN.s/m, N.s/mm, kN.s/mm, lbf.s/ft, lbf.s/in, kip.s/ft, kip.s/in
 *
 * A family number outside 1 to 21 stands for family 10, and a unit index that the family lacks for its first unit.
 *
 * The factors rest on values that are exact by definition: the inch of 0.0254 m and the pound of 0.45359237 kg
 * (international yard and pound agreement, 1959), standard gravity of 9.80665 m/s² (3rd General Conference on Weights
 * and Measures, 1901), the International Table Btu of 1055.05585262 J (5th International Conference on the Properties
 * of Steam, 1956). Everything else is computed from these: 1 lbf = 1 lb * g, 1 kip = 1000 lbf, 1 psi = 1 lbf/in²,
 * 1 ksi = 1000 psi.
 *
 * SI values are held between -1e290 and 1e290, on the way in and on the way out.
 */
class KITREL_API CKxUnit : public KX_UNIT_BASE
{
    DECLARE_DYNAMIC(CKxUnit)
public:
    // Enumerators, which need no storage in the library that a host would have to import.
    enum : unsigned int
    {
        /// Room that the text of a value can need, in characters and with the closing NUL, whatever unit and arguments.
        c_nTextSize = 256,
        c_nFamilies = 21,
        c_nPrecisions = 9,
    };

    /// Metres, three decimals, a decimal point.
    CKxUnit();
    CKxUnit(const CKxUnit& other);
    CKxUnit& operator=(const CKxUnit& other);
    ~CKxUnit() override;

    /**
     * A unit in decimal format.
     * @param idUnit family, 1 to 21
     * @param range index of the unit in its family
     * @param precision see SetPrecision()
     * @param separator see SetSep()
     * @param coef factor from SI to this unit, for a unit with a factor of its own; 1e-15 to 1e15
     * @param flag non-zero: the factor is that of the family's table and `coef` is not looked at. Zero: `coef` is the
     *        factor, until the family or the index is set again; a `coef` out of range and that of an inch or a foot
     *        are not taken.
     */
    CKxUnit(unsigned int idUnit, unsigned int range, unsigned int precision, wchar_t separator, double coef, int flag);

    /**
     * Reads a text.
     *
     * Understood are: numbers with `.` or `,` as decimal sign, signed, with or without an exponent (`1e3`); behind
     * the number, with or without blanks, the symbol of any unit of the family, in exact case (`12 cm` in a metre
     * field is 0.12); in the families of lengths feet and inches (`1'-6"`, `1' 6 1/2"`, `1'6`, `6 1/2"`, `6-1/2"`,
     * `3 ft 6 in`); sums and differences of such terms (`100in+3mm+5cm`). A bare number has this unit; a bare fraction
     * is understood in inch and foot fields. A dash behind the foot sign joins feet and inches, behind `ft` it
     * subtracts. `6-1/2` is six and a half only with the inch sign behind it. In the family of temperatures the terms
     * behind the first are differences.
     *
     * @param text the text, ended by NUL; null is an empty text
     * @param ok receives 1 when the whole text was understood and 0 when not; may be null
     * @param flag non-zero: the result is in SI; zero: it is in this unit
     * @return the value, always finite; 0.0 for an empty text and for one that was not understood
     */
    double String2Double(wchar_t* text, int* ok, int flag) const;
    /// The same for a string, of which the whole length is read.
    double String2Double(CString text, int* ok, int flag) const;

    /**
     * Writes a value as the text that stands in a field: `1.500 m`, `-1'-6 1/2"`. Read again through the same unit
     * and written once more, the text is the same.
     *
     * At most 14 significant digits and 12 decimals are written, halves away from zero. Feet and inches always have
     * their signs. From 1e11 inches on they give way to inches with an exponent.
     *
     * @param buffer receives the text and a NUL: room for c_nTextSize characters; may be null
     * @param value the value; NaN counts as 0
     * @param showSymbol non-zero: the symbol of a decimal text is written behind the number
     * @param format not looked at: the unit's own precision holds
     * @param fillZeros non-zero: decimals are filled with zeros; zero: closing zeros are left out
     * @param valueIsSI non-zero: `value` is in SI; zero: it is in this unit
     * @param longestFixed number of characters, 24 to 200, from which a longer number is written with an exponent
     * @return the text
     */
    CString Double2String(wchar_t* buffer, double value, int showSymbol, const wchar_t* format, int fillZeros,
                          int valueIsSI, unsigned int longestFixed) const;

    /// Number of decimals (decimal, engineering) or power of two of the smallest fraction (architectural: 3 is 1/8).
    unsigned int GetPrecision() const;
    /// Any number is kept as it is; more than 12 decimals are written as 12, fractions below 1/256 as 1/256.
    void SetPrecision(unsigned int precision);

    /// Index of the unit within its family.
    unsigned int GetRange() const;
    /// An index that the family lacks gives the family's first unit.
    void SetRange(unsigned int range);

    /// Factor from SI to this unit: 1000 for millimetres. The zero of °C and °F is not in it.
    double GetCoef() const;

    /// Family of quantity, 1 to 21.
    unsigned int GetIDUnit() const;
    /// Keeps the index, unless the new family lacks it. A number outside 1 to 21 gives family 10.
    void SetIdUnit(unsigned int idUnit);

    /// UNITTYPE_IMPERIAL for inches and feet of the families of lengths.
    enumUNITTYPE GetType() const;

    enumUNITFORMAT GetUnitFormat() const;
    /// The format is kept for every unit and has an effect on those of type UNITTYPE_IMPERIAL; a number that is no
    /// format gives UNITFORMAT_DECIMAL.
    void SetUnitFormat(enumUNITFORMAT format);

    /// Decimal sign of the texts written: a comma, or for any other character a point. Both are read at all times.
    void SetSep(wchar_t separator);
    wchar_t GetSep() const;

    /// Long title, for lists to choose from: "Millimètres".
    CString GetTitle() const;
    /// Name as it stands behind a number: "mm". Empty for the unit without a name in family 10.
    CString GetName() const;

    /**
     * Cuts the symbol of a unit of family `idUnit` off the end of `text`, with the blanks before it, when it stands
     * behind a digit or a decimal sign and in exact case: `12 cm` becomes `12`. Any other text stays as it is.
     */
    static void EliminateUnitsSymbol(unsigned int idUnit, CString& text);

    /// Cuts a tolerance such as `±0.5` off the end of `text`, and a leading `≈`. Any other text stays as it is.
    static void EliminatePrecision(CString& text);

    /// Texts of the decimal precisions 0 to 8: "0", "0.0", ...
    static const wchar_t* const c_arrayPrecision[c_nPrecisions];
    /// Texts of the precisions 0 to 8 in feet and inches: architectural (to 1/256) and engineering (to 8 decimals).
    static const wchar_t* const c_arrayImperialPrecision[c_nPrecisions][2];
    /// Per family its number and the number of its units.
    static const unsigned int c_arrayTypeNumber[c_nFamilies][2];

private:
    double read(const wchar_t* text, size_t length, int* ok, int flag) const;

    unsigned int m_idUnit = 1;
    unsigned int m_range = 0;
    unsigned int m_precision = 3;
    enumUNITFORMAT m_format = UNITFORMAT_DECIMAL;
    double m_ownCoef = 0.0; // 0: the table's
    wchar_t m_separator = L'.';
};
