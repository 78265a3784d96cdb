// What was read from the alternative formats of a control, kept for the next text.
#pragma once

#include <afx.h>

#include <cstddef>
#include <memory>
#include <vector>
#include "oxa/Export.h"
#include "oxa/formats/KxSemantic.h"

/// The readings of a list of formats, by place. A format is read again only when another one stands in its place.
class OXA_API FormatReadings
{
public:
    FormatReadings();
    ~FormatReadings();
    FormatReadings(const FormatReadings&) = delete;
    FormatReadings& operator=(const FormatReadings&) = delete;

    /// The reading of `format`, the one at `place` in a list of `count`; also of a bad format. It stays until the next call.
    const CKxSemantic& At(std::size_t place, std::size_t count, const CString& format);

private:
    struct Reading;
    std::vector<std::unique_ptr<Reading>> m_readings;
};
