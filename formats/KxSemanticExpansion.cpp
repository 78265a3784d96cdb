// What a format expands to: its elements, and its picture.
#include "oxa/formats/KxSemantic.h"

#include "FormatElement.h"
#include "oxa/formats/KxFormat.h"

void CKxSemantic::CreateListFormat(CKxFormat& format) const
{
    if (m_steps.empty())
        AfxThrowInvalidArgException();
    long long places = 0;
    for (const Step& step : m_steps)
        if (step.kind != L'S')
            places += step.count == 0 ? 1 : std::max(step.count, 0);
    if (places > MaxPlaces)
        AfxThrowMemoryException();

    long long position = 0;
    for (const Step& step : m_steps)
    {
        long long end = position; // a written count of 0 makes an open group too
        const int start = saturated(position);
        if (step.kind == L'S')
        {
            end = position + step.length - 1;
            format.AddTail(new CKxSeparator(CString(step.text, step.length), start, saturated(end)));
        }
        else if (step.count != 0)
        {
            // A negative count makes no characters, and positions that go back.
            end = position + step.count - 1;
            const CString text(L'#', std::max(step.count, 0));
            format.AddTail(new CKxGroup(text, start, saturated(end), 1, step.count));
        }
        else
            format.AddTail(new CKxGroup(CString(L'#', 1), start, start, 1, -1));
        position = end + 1;
    }
}

CString CKxSemantic::MakeToolTipsString(CString /*text*/) const
{
    if (m_steps.empty())
        AfxThrowInvalidArgException();
    CString picture;
    long long places = 0;
    for (const Step& step : m_steps)
    {
        if (step.kind == L'S')
        {
            picture += CString(step.text, step.length);
            continue;
        }
        if (step.count == 0)
            picture += L'x';
        const int letters = step.classes == 0 ? 0 : std::max(step.count, step.count == 0 ? 1 : 0); // a range adds none
        places += letters;
        if (places > MaxPlaces)
            AfxThrowMemoryException();
        picture += CString(step.low, letters);
    }
    return picture;
}

CString CKxSemantic::GetStringUnMasked(CString text) const
{
    text.Remove(L'#');
    return text;
}

void CKxSemantic::GetFeatureFormat(CKxFormat& format, CString& separator, CList<int, int>& values) const
{
    format.GetFeatureFormat(separator, values);
}
