// What was read from the alternative formats of a control, kept for the next text.
#include "oxa/formats/FormatReadings.h"

struct FormatReadings::Reading
{
    explicit Reading(const CString& text) : format(text)
    {
        CString scanned = text;
        semantic.CheckSyntax(scanned); // a bad format has the nodes before its mistake
    }

    CString format;
    CKxSemantic semantic;
};

FormatReadings::FormatReadings() = default;
FormatReadings::~FormatReadings() = default;

const CKxSemantic& FormatReadings::At(std::size_t place, std::size_t count, const CString& format)
{
    m_readings.resize(count);
    std::unique_ptr<Reading>& reading = m_readings[place];
    if (reading == nullptr || reading->format != format)
        reading = std::make_unique<Reading>(format);
    return reading->semantic;
}
