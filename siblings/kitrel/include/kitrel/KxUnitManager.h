// CKxUnitManager: the working units of a program, one for each family of quantity.
#pragma once

#include <afx.h>

#include <memory>

#include "kitrel/Export.h"
#include "kitrel/KxUnit.h"

/**
 * The working units, held in memory. A plain value, to be copied freely.
 *
 * Style files are not kept yet: LoadStyleUnit(), SaveStyleUnit() and SaveAsStyleUnit() answer 0 and change nothing.
 */
class KITREL_API CKxUnitManager
{
public:
    /// The usual units of a metric (m, kN, MPa, °C) or of an imperial program (feet and inches, kip, ksi, °F).
    explicit CKxUnitManager(bool metric = true);
    CKxUnitManager(const CKxUnitManager& other);
    CKxUnitManager& operator=(const CKxUnitManager& other);
    virtual ~CKxUnitManager();

    /// A copy of the working unit of `family`, 1 to 21; any other number stands for family 10.
    CKxUnit GetVisUnit(unsigned int family) const;
    /// Replaces the working unit of `family`. A unit of another family is not taken.
    void SetVisUnit(unsigned int family, CKxUnit& unit);

    /// Name of the current style; empty at first.
    CString GetNameStyleUnit() const;
    /// Null empties the name.
    void SetNameStyleUnit(const wchar_t* name);

    /// Not kept yet: always 0, the working units stay.
    int LoadStyleUnit(const wchar_t* name);
    /// Not kept yet: always 0, nothing is written.
    int SaveStyleUnit();
    /// Not kept yet: always 0, nothing is written and the name stays.
    int SaveAsStyleUnit(const wchar_t* name);

    /// Whether lengths (family 1) are shown in a metric unit.
    bool IsMetric() const;

    /// Unit in which a drawing is entered: 1 millimetres, 2 centimetres, 3 decimetres, 4 metres, 5 inches, 6 feet.
    int GetUnitType() const;
    /// A number outside 1 to 6 is not taken.
    void SetUnitType(int unitType);

    /// Expires when this object ends. For a control that keeps a pointer to a manager which it does not own.
    std::weak_ptr<const void> GetLife() const { return m_life.token; }

    /// Directory of the style files, with its closing separator.
    CString m_strStyleDirectory;
    /// Extension of the style files: a dot and three letters.
    CString m_strStyleExtension;

private:
    /// One for each object: a copy has its own.
    struct Life
    {
        Life() = default;
        Life(const Life&) {}
        Life& operator=(const Life&) { return *this; }
        std::shared_ptr<const char> token = std::make_shared<const char>('\0');
    };

    CKxUnit m_units[CKxUnit::c_nFamilies];
    CString m_strStyleName;
    int m_unitType;
    Life m_life;
};
