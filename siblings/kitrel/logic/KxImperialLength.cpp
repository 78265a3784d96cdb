// CKxImperialLength: texts of feet and inches.
#include "kitrel/KxImperialLength.h"

#include "UnitReader.h"
#include "UnitTables.h"

bool CKxImperialLength::ImperialStr2Inches(const wchar_t* text, enumIMPERIAL_LENGTH_TYPE type, double& inches)
{
    if (text == nullptr)
        return false;
    const kitrel::UnitFamily& family = kitrel::imperialFamily();
    const int bare = type == IMPERIAL_LENGTH_DECIMAL_FEET ? family.foot : family.inch;
    const kitrel::ReadingRules rules{family, static_cast<unsigned int>(bare), 0.0, false};
    const kitrel::Reading reading = kitrel::readText(text, rules);
    if (reading.understood)
        inches = reading.value;
    return reading.understood;
}
