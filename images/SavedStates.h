// Counts the states of a drawing surface that a metafile saved and has not taken back.
#pragma once

#include <cstdint>

class SavedStates
{
public:
    void save() { ++m_depth; }
    /// Takes back as many as a negative number says, or down to the one that a positive number names. False when the file
    /// did not save so many: they would be somebody else's.
    bool restore(std::int64_t which)
    {
        const std::int64_t rest = which < 0 ? m_depth + which : which - 1;
        if (which == 0 || rest < 0 || rest >= m_depth)
            return false;
        m_depth = rest;
        return true;
    }

private:
    std::int64_t m_depth = 0;
};
