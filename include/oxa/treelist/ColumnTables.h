// What the tree list knows of its columns beside the header: which may be edited, and in which units.
#pragma once

#include <cstddef>
#include <vector>

namespace treelist
{

/// Two tables with one entry a column, in the order of insertion, whatever places the columns have in the header. Both are
/// closed while labels cannot be modified: writes do nothing, and no column can be edited. Styles are read in any case.
class ColumnTables
{
public:
    /// A column that cannot be edited and has no style.
    void Append()
    {
        m_canEdit.push_back(0);
        m_styles.push_back(noStyle);
    }

    bool IsOpen() const { return m_open; }
    void SetOpen(bool open) { m_open = open; }
    bool Contains(int column) const { return column >= 0 && static_cast<std::size_t>(column) < m_canEdit.size(); }

    void SetCanEdit(int column, bool can)
    {
        if (m_open && Contains(column))
            m_canEdit[static_cast<std::size_t>(column)] = can ? 1 : 0;
    }
    bool CanEdit(int column) const
    {
        return m_open && Contains(column) && m_canEdit[static_cast<std::size_t>(column)] != 0;
    }

    void SetStyle(int column, int style)
    {
        if (m_open && Contains(column))
            m_styles[static_cast<std::size_t>(column)] = style;
    }
    /// Whether the column's values are shown in a unit.
    bool HasUnit(int column) const { return Contains(column) && Style(column) >= firstUnitStyle; }
    /// The family of units of a column that has one.
    unsigned UnitFamily(int column) const { return HasUnit(column) ? static_cast<unsigned>(Style(column)) : 0U; }

    /// The first column that can be edited and has a unit; `otherwise` when there is none.
    int FirstEditedUnit(int otherwise) const
    {
        for (int column = 0; Contains(column); ++column)
        {
            if (CanEdit(column) && HasUnit(column))
                return column;
        }
        return otherwise;
    }

private:
    enum : int
    {
        noStyle = -1,
        firstUnitStyle = 1
    };
    int Style(int column) const { return m_styles[static_cast<std::size_t>(column)]; }

    std::vector<unsigned char> m_canEdit;
    std::vector<int> m_styles;
    bool m_open = false;
};

} // namespace treelist
