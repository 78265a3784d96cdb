// What the unit tests say in one word: a unit, a text read, a value printed.
#pragma once

#include <string>

#include "kitrel/KxUnit.h"

enum Family : unsigned int
{
    lengths = 1,
    forces = 2,
    moments = 3,
    masses = 4,
    angles = 5,
    stresses = 6,
    times = 7,
    temperatures = 9,
    numbers = 10,
    sections = 11,
    energies = 13,
    speeds = 14,
    accelerations = 15,
    dampings = 16,
};

enum LengthRange : unsigned int
{
    metre,
    decimetre,
    centimetre,
    millimetre,
    inch,
    foot,
    micrometre,
    kilometre,
};

inline CKxUnit makeUnit(unsigned int family, unsigned int range, unsigned int precision = 3,
                        enumUNITFORMAT format = UNITFORMAT_DECIMAL)
{
    CKxUnit unit(family, range, precision, L'.', 1.0, 1);
    unit.SetUnitFormat(format);
    return unit;
}

inline CKxUnit architectural(unsigned int precision)
{
    return makeUnit(lengths, foot, precision, UNITFORMAT_ARCHITECTURAL);
}
inline CKxUnit engineering(unsigned int precision)
{
    return makeUnit(lengths, foot, precision, UNITFORMAT_ENGINEERING);
}

inline bool understands(const CKxUnit& unit, const wchar_t* text)
{
    int ok = -1;
    const double value = unit.String2Double(CString(text), &ok, 1);
    return ok == 1 || value != 0.0;
}

/// The SI value of a text; -12345 when the text was not understood.
inline double si(const CKxUnit& unit, const wchar_t* text)
{
    int ok = -1;
    const double value = unit.String2Double(CString(text), &ok, 1);
    return ok == 1 ? value : -12345.0;
}

/// The canonical text of an SI value.
inline std::wstring print(const CKxUnit& unit, double value)
{
    wchar_t buffer[CKxUnit::c_nTextSize];
    unit.Double2String(buffer, value, 1, L"%.*f", 1, 1, 50);
    return buffer;
}

constexpr double c_inch = 0.0254;
constexpr double c_foot = 0.3048;
