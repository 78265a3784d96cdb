// The families of quantity with their units, factors, titles and symbols.
#include "UnitTables.h"

#include <array>
#include <cstdint>
#include <numbers>

namespace kitrel
{
namespace
{

// Exact by definition
constexpr double c_pound = 0.45359237;     // kg
constexpr double c_gravity = 9.80665;      // m/s2
constexpr double c_btu = 1055.05585262;    // J, International Table
constexpr UnitScale c_inch{127.0, 5000.0}; // 0.0254 m
constexpr UnitScale c_foot{381.0, 1250.0}; // 0.3048 m
constexpr UnitScale c_mile{201168.0, 125.0};

// Computed from them
constexpr double c_poundForce = c_pound * c_gravity; // N
constexpr double c_kip = 1000.0 * c_poundForce;

constexpr UnitScale times(double factor)
{
    return {factor, 1.0};
}
constexpr UnitScale over(double divisor)
{
    return {1.0, divisor};
}
constexpr UnitScale perUnit(double value, const UnitScale& unit)
{
    return {value * unit.denominator, unit.numerator};
}
constexpr UnitScale perSquare(double value, const UnitScale& unit)
{
    return {value * unit.denominator * unit.denominator, unit.numerator * unit.numerator};
}
constexpr UnitScale of(double value, const UnitScale& unit)
{
    return {value * unit.numerator, unit.denominator};
}

constexpr UnitEntry c_lengths[] = {
    {L"Mètres", L"m", {}},
    {L"Décimètres", L"dm", over(10)},
    {L"Centimètres", L"cm", over(100)},
    {L"Millimètres", L"mm", over(1000)},
    {L"Pouces", L"in", c_inch},
    {L"Pieds", L"ft", c_foot},
    {L"Micromètres", L"µm", over(1e6)},
    {L"Kilomètres", L"km", times(1000)},
};

constexpr UnitEntry c_forces[] = {
    {L"Newtons", L"N", {}},
    {L"Décanewtons", L"daN", times(10)},
    {L"Kilonewtons", L"kN", times(1000)},
    {L"Méganewtons", L"MN", times(1e6)},
    {L"Kilogrammes-force", L"kgf", times(c_gravity)},
    {L"Tonnes-force", L"tf", times(1000 * c_gravity)},
    {L"Livres-force", L"lbf", times(c_poundForce)},
    {L"Kips", L"kip", times(c_kip)},
};

constexpr UnitEntry c_moments[] = {
    {L"Newtons-mètres", L"N.m", {}},
    {L"Décanewtons-mètres", L"daN.m", times(10)},
    {L"Kilonewtons-mètres", L"kN.m", times(1000)},
    {L"Méganewtons-mètres", L"MN.m", times(1e6)},
    {L"Kilogrammes-force-mètres", L"kgf.m", times(c_gravity)},
    {L"Tonnes-force-mètres", L"tf.m", times(1000 * c_gravity)},
    {L"Livres-force-pieds", L"lbf.ft", of(c_poundForce, c_foot)},
    {L"Livres-force-pouces", L"lbf.in", of(c_poundForce, c_inch)},
    {L"Kips-pieds", L"kip.ft", of(c_kip, c_foot)},
    {L"Kips-pouces", L"kip.in", of(c_kip, c_inch)},
};

constexpr UnitEntry c_masses[] = {
    {L"Kilogrammes", L"kg", {}},      {L"Grammes", L"g", over(1000)},
    {L"Tonnes", L"t", times(1000)},   {L"Livres", L"lb", times(c_pound)},
    {L"Onces", L"oz", {c_pound, 16}}, {L"Slugs", L"slug", perUnit(c_poundForce, c_foot)},
};

constexpr UnitEntry c_angles[] = {
    {L"Radians", L"rad", {}},
    {L"Degrés", L"°", {std::numbers::pi, 180}},
    {L"Grades", L"gr", {std::numbers::pi, 200}},
    {L"Milliradians", L"mrad", over(1000)},
};

constexpr UnitEntry c_stresses[] = {
    {L"Pascals", L"Pa", {}},
    {L"Kilopascals", L"kPa", times(1000)},
    {L"Mégapascals", L"MPa", times(1e6)},
    {L"Gigapascals", L"GPa", times(1e9)},
    {L"Bars", L"bar", times(1e5)},
    {L"Newtons par millimètre carré", L"N/mm²", times(1e6)},
    {L"Kilogrammes-force par centimètre carré", L"kgf/cm²", times(1e4 * c_gravity)},
    {L"Livres-force par pouce carré", L"psi", perSquare(c_poundForce, c_inch)},
    {L"Kips par pouce carré", L"ksi", perSquare(c_kip, c_inch)},
    {L"Livres-force par pied carré", L"psf", perSquare(c_poundForce, c_foot)},
    {L"Kips par pied carré", L"ksf", perSquare(c_kip, c_foot)},
};

constexpr UnitEntry c_times[] = {
    {L"Secondes", L"s", {}},        {L"Millisecondes", L"ms", over(1000)}, {L"Minutes", L"min", times(60)},
    {L"Heures", L"h", times(3600)}, {L"Jours", L"j", times(86400)},
};

constexpr UnitEntry c_temperatures[] = {
    {L"Kelvins", L"K", {}},
    {L"Degrés Celsius", L"°C", {1, 1, 273.15}},
    {L"Degrés Fahrenheit", L"°F", {5, 9, 459.67}},
};

constexpr UnitEntry c_numbers[] = {
    {L"Sans dimension", L"", {}},
    {L"Pour cent", L"%", over(100)},
    {L"Pour mille", L"‰", over(1000)},
};

constexpr UnitEntry c_energies[] = {
    {L"Joules", L"J", {}},
    {L"Kilojoules", L"kJ", times(1000)},
    {L"Mégajoules", L"MJ", times(1e6)},
    {L"Wattheures", L"Wh", times(3600)},
    {L"Kilowattheures", L"kWh", times(3.6e6)},
    {L"Pieds-livres-force", L"ft.lbf", of(c_poundForce, c_foot)},
    {L"British thermal units", L"Btu", times(c_btu)},
};

constexpr UnitEntry c_speeds[] = {
    {L"Mètres par seconde", L"m/s", {}},
    {L"Centimètres par seconde", L"cm/s", over(100)},
    {L"Millimètres par seconde", L"mm/s", over(1000)},
    {L"Kilomètres par heure", L"km/h", over(3.6)},
    {L"Pieds par seconde", L"ft/s", c_foot},
    {L"Pouces par seconde", L"in/s", c_inch},
    {L"Milles par heure", L"mph", {c_mile.numerator, c_mile.denominator * 3600}},
};

constexpr UnitEntry c_accelerations[] = {
    {L"Mètres par seconde carrée", L"m/s²", {}},
    {L"Centimètres par seconde carrée", L"cm/s²", over(100)},
    {L"Millimètres par seconde carrée", L"mm/s²", over(1000)},
    {L"Accélérations de la pesanteur", L"g", times(c_gravity)},
    {L"Pieds par seconde carrée", L"ft/s²", c_foot},
    {L"Pouces par seconde carrée", L"in/s²", c_inch},
};

constexpr UnitEntry c_dampings[] = {
    {L"Newtons-secondes par mètre", L"N.s/m", {}},
    {L"Kilonewtons-secondes par mètre", L"kN.s/m", times(1000)},
    {L"Newtons-secondes par millimètre", L"N.s/mm", times(1000)},
    {L"Kilonewtons-secondes par millimètre", L"kN.s/mm", times(1e6)},
    {L"Livres-force-secondes par pied", L"lbf.s/ft", perUnit(c_poundForce, c_foot)},
    {L"Livres-force-secondes par pouce", L"lbf.s/in", perUnit(c_poundForce, c_inch)},
    {L"Kips-secondes par pied", L"kip.s/ft", perUnit(c_kip, c_foot)},
    {L"Kips-secondes par pouce", L"kip.s/in", perUnit(c_kip, c_inch)},
};

constexpr UnitEntry c_imperial[] = {
    {L"Pouces", L"in", {}},
    {L"Pieds", L"ft", times(12)},
};

constexpr UnitFamily c_lengthFamily{c_lengths, 4, 5};
constexpr UnitFamily c_imperialFamily{c_imperial, 0, 1};
constexpr size_t c_withoutDimension = 9;

constexpr std::array<UnitFamily, 21> c_families = {{
    c_lengthFamily,    {c_forces},       {c_moments},    {c_masses},     {c_angles},     {c_stresses},   {c_times},
    c_lengthFamily,    {c_temperatures}, {c_numbers},    c_lengthFamily, c_lengthFamily, {c_energies},   {c_speeds},
    {c_accelerations}, {c_dampings},     c_lengthFamily, c_lengthFamily, c_lengthFamily, c_lengthFamily, c_lengthFamily,
}};

constexpr size_t familyIndex(unsigned int idUnit) noexcept
{
    return idUnit >= 1 && idUnit <= c_families.size() ? idUnit - 1 : c_withoutDimension;
}

// One bit for each character below 256 that ends a symbol of the family.
using LastCharacters = std::array<std::uint64_t, 4>;

constexpr LastCharacters lastCharactersOf(const UnitFamily& family)
{
    LastCharacters bits{};
    for (const UnitEntry& unit : family.units)
    {
        if (unit.symbol.empty())
            continue;
        const auto last = static_cast<std::uint32_t>(foldedSymbolChar(unit.symbol.back()));
        if (last < 256)
            bits[last / 64] |= std::uint64_t{1} << (last % 64);
    }
    return bits;
}

constexpr auto c_lastCharacters = []
{
    std::array<LastCharacters, c_families.size()> all{};
    for (size_t i = 0; i < all.size(); ++i)
        all[i] = lastCharactersOf(c_families[i]);
    return all;
}();

} // namespace

const UnitFamily& familyOf(unsigned int idUnit) noexcept
{
    return c_families[familyIndex(idUnit)];
}

const UnitFamily& imperialFamily() noexcept
{
    return c_imperialFamily;
}

bool symbolMayEndWith(unsigned int idUnit, wchar_t last) noexcept
{
    const auto c = static_cast<std::uint32_t>(foldedSymbolChar(last));
    if (c >= 256)
        return true;
    return (c_lastCharacters[familyIndex(idUnit)][c / 64] >> (c % 64) & 1) != 0;
}

} // namespace kitrel
