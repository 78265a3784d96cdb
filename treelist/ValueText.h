// How the tree list writes a number into a cell.
#pragma once

#include <afx.h>

#include "kitrel/KxUnitManager.h"
#include "oxa/Export.h"
#include "oxa/treelist/ColumnTables.h"

namespace treelist
{

struct OXA_API ValueText
{
    /// `value` (SI) in the working unit of the column; with "%5.2f" where the column has no unit or `manager` is null.
    static CString Format(double value, int column, const ColumnTables& columns, const CKxUnitManager* manager);
};

} // namespace treelist
