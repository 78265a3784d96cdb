// What is printed reads back to the same text: all families, units, formats and precisions, random values of a fixed seed.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>

#include "UnitSupport.h"

namespace
{

struct Printing
{
    int symbol;
    int zeros;
    unsigned int longest;
};

std::wstring printWith(const CKxUnit& unit, double value, const Printing& how, int valueIsSI = 1)
{
    wchar_t buffer[CKxUnit::c_nTextSize];
    unit.Double2String(buffer, value, how.symbol, L"%.*f", how.zeros, valueIsSI, how.longest);
    return buffer;
}

class Values
{
public:
    explicit Values(std::uint64_t seed) : m_random(seed) {}

    std::uint64_t number(std::uint64_t below) { return m_random() % below; }

    double next()
    {
        switch (number(5))
        {
        case 0:
            return anyDouble();
        case 1:
            return whole(2000001) / std::pow(10.0, static_cast<double>(number(8)));
        case 2:
            return std::ldexp(static_cast<double>(m_random()) - 9e18, -static_cast<int>(number(90)));
        case 3:
            return whole(200001) * c_inch / static_cast<double>(1U << number(10));
        default:
            return whole(20001) * std::pow(10.0, static_cast<double>(number(40)) - 20.0);
        }
    }

private:
    double whole(std::uint64_t count) { return static_cast<double>(number(count)) - static_cast<double>(count / 2); }
    double anyDouble()
    {
        const std::uint64_t bits = m_random();
        double value = 0.0;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }
    std::mt19937_64 m_random;
};

void expectIdentity(const CKxUnit& unit, double value, const Printing& how, int valueIsSI)
{
    std::wstring first = printWith(unit, value, how, valueIsSI);
    int ok = -1;
    const double read = unit.String2Double(first.data(), &ok, 1);
    ASSERT_EQ(ok, 1) << "family " << unit.GetIDUnit() << " unit " << unit.GetRange() << " value " << value;
    ASSERT_EQ(printWith(unit, read, how), first)
        << "family " << unit.GetIDUnit() << " unit " << unit.GetRange() << " value " << value;
}

TEST(RoundTrip, every_family_unit_format_and_precision)
{
    Values values(20240917);
    for (const auto& row : CKxUnit::c_arrayTypeNumber)
    {
        for (unsigned int range = 0; range < row[1]; ++range)
        {
            for (unsigned int choice = 0; choice < 3 * 13; ++choice)
            {
                const CKxUnit unit = makeUnit(row[0], range, choice / 3, static_cast<enumUNITFORMAT>(choice % 3));
                for (int i = 0; i < 60; ++i)
                    ASSERT_NO_FATAL_FAILURE(expectIdentity(unit, values.next(), {1, 1, 50}, 1));
            }
        }
    }
}

TEST(RoundTrip, every_way_of_printing)
{
    Values values(7);
    for (int i = 0; i < 200000; ++i)
    {
        const auto family = static_cast<unsigned int>(1 + values.number(21));
        const auto range = static_cast<unsigned int>(values.number(12));
        CKxUnit unit(family, range, static_cast<unsigned int>(values.number(14)), values.number(2) ? L'.' : L',', 1.0,
                     1);
        unit.SetUnitFormat(static_cast<enumUNITFORMAT>(values.number(3)));
        const Printing how{static_cast<int>(values.number(2)), static_cast<int>(values.number(2)),
                           static_cast<unsigned int>(values.number(250))};
        ASSERT_NO_FATAL_FAILURE(expectIdentity(unit, values.next(), how, static_cast<int>(values.number(2))));
    }
}

TEST(RoundTrip, units_with_a_factor_of_their_own)
{
    Values values(11);
    for (int i = 0; i < 50000; ++i)
    {
        const double factor = std::pow(10.0, static_cast<double>(values.number(3000)) / 100 - 15);
        const CKxUnit unit(static_cast<unsigned int>(1 + values.number(21)),
                           static_cast<unsigned int>(values.number(8)), static_cast<unsigned int>(values.number(13)),
                           L'.', factor, 0);
        ASSERT_NO_FATAL_FAILURE(expectIdentity(unit, values.next(), {1, 1, 50}, static_cast<int>(values.number(2))));
    }
}

TEST(RoundTrip, the_edges_between_the_notations)
{
    for (const double edge : {1e10, 1e11, 1e13, 1e14, 1e15, 1e22, 1e23, 1e24, 1e45, 1e46, 1e290})
    {
        for (unsigned int choice = 0; choice < 3 * 13; ++choice)
        {
            for (const unsigned int range : {metre, inch, foot})
            {
                const CKxUnit unit = makeUnit(lengths, range, choice / 3, static_cast<enumUNITFORMAT>(choice % 3));
                double value = edge;
                for (int i = 0; i < 20; ++i)
                    value = std::nextafter(value, 0.0);
                for (int i = 0; i < 40; ++i, value = std::nextafter(value, 1e300))
                {
                    ASSERT_NO_FATAL_FAILURE(expectIdentity(unit, value, {1, 1, 50}, 0));
                    ASSERT_NO_FATAL_FAILURE(expectIdentity(unit, value * c_inch, {1, 0, 24}, 1));
                    ASSERT_NO_FATAL_FAILURE(expectIdentity(unit, -value / (1U << (choice / 3)), {1, 1, 24}, 1));
                }
            }
        }
    }
}

} // namespace
