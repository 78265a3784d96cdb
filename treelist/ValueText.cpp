// How the tree list writes a number into a cell.
#include "ValueText.h"

namespace treelist
{

CString ValueText::Format(double value, int column, const ColumnTables& columns, const CKxUnitManager* manager)
{
    if (manager != nullptr && columns.HasUnit(column))
    {
        constexpr unsigned longestFixed = 50;
        wchar_t buffer[CKxUnit::c_nTextSize] = {};
        return manager->GetVisUnit(columns.UnitFamily(column))
            .Double2String(buffer, value, 1, L"%.*f", 1, 1, longestFixed);
    }
    CString text;
    text.Format(L"%5.2f", value);
    return text;
}

} // namespace treelist
