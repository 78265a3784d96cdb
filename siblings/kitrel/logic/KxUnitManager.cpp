// CKxUnitManager: the working units of a program, one for each family of quantity.
#include "kitrel/KxUnitManager.h"

namespace
{

struct WorkingUnit
{
    unsigned int range;
    unsigned int precision;
};

// Per family: index of the unit and decimals.
constexpr WorkingUnit c_metric[CKxUnit::c_nFamilies] = {
    {0, 3}, {2, 2}, {2, 2}, {0, 2}, {1, 2}, {2, 2}, {0, 2}, {3, 2}, {1, 1}, {0, 3}, {3, 1},
    {2, 2}, {1, 2}, {0, 2}, {0, 2}, {1, 2}, {3, 0}, {3, 0}, {3, 0}, {3, 0}, {0, 3},
};

// The same; lengths are architectural, to 1/16 of an inch.
constexpr WorkingUnit c_imperial[CKxUnit::c_nFamilies] = {
    {5, 4}, {7, 2}, {8, 2}, {3, 2}, {1, 2}, {8, 2}, {0, 2}, {4, 4}, {2, 1}, {0, 3}, {4, 4},
    {4, 4}, {5, 2}, {4, 2}, {4, 2}, {6, 2}, {4, 4}, {5, 4}, {5, 4}, {5, 4}, {5, 4},
};

constexpr int c_inputMillimetres = 1;
constexpr int c_inputMetres = 4;
constexpr int c_inputFeet = 6;

} // namespace

CKxUnitManager::CKxUnitManager(bool metric)
    : m_strStyleExtension(L".kun"), m_unitType(metric ? c_inputMetres : c_inputFeet)
{
    const WorkingUnit* const units = metric ? c_metric : c_imperial;
    for (unsigned int i = 0; i < CKxUnit::c_nFamilies; ++i)
    {
        m_units[i] = CKxUnit(i + 1, units[i].range, units[i].precision, L'.', 1.0, 1);
        if (m_units[i].GetType() == UNITTYPE_IMPERIAL)
            m_units[i].SetUnitFormat(UNITFORMAT_ARCHITECTURAL);
    }
}

CKxUnitManager::CKxUnitManager(const CKxUnitManager& other) = default;
CKxUnitManager& CKxUnitManager::operator=(const CKxUnitManager& other) = default;
CKxUnitManager::~CKxUnitManager() = default;

CKxUnit CKxUnitManager::GetVisUnit(unsigned int family) const
{
    return m_units[CKxUnit(family, 0, 0, L'.', 1.0, 1).GetIDUnit() - 1];
}

void CKxUnitManager::SetVisUnit(unsigned int family, CKxUnit& unit)
{
    if (unit.GetIDUnit() == family)
        m_units[family - 1] = unit;
}

CString CKxUnitManager::GetNameStyleUnit() const
{
    return m_strStyleName;
}

void CKxUnitManager::SetNameStyleUnit(const wchar_t* name)
{
    m_strStyleName = name == nullptr ? L"" : name;
}

int CKxUnitManager::LoadStyleUnit(const wchar_t* /*name*/)
{
    return 0;
}

int CKxUnitManager::SaveStyleUnit()
{
    return 0;
}

int CKxUnitManager::SaveAsStyleUnit(const wchar_t* /*name*/)
{
    return 0;
}

bool CKxUnitManager::IsMetric() const
{
    return m_units[0].GetType() == UNITTYPE_METRIC;
}

int CKxUnitManager::GetUnitType() const
{
    return m_unitType;
}

void CKxUnitManager::SetUnitType(int unitType)
{
    if (unitType >= c_inputMillimetres && unitType <= c_inputFeet)
        m_unitType = unitType;
}
