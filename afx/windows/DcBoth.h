// A setter of a device context, called for its output and its attribute handle.
#pragma once
#include <afxwin.h>

namespace kx
{

/// Calls a setter for the output context and, where it is another, for the attribute context, which answers.
template <class Answer, class Call> Answer onBoth(const CDC& dc, Answer failed, Call call)
{
    Answer answer = failed;
    if (dc.m_hDC != nullptr && dc.m_hDC != dc.m_hAttribDC)
        answer = call(dc.m_hDC);
    if (dc.m_hAttribDC != nullptr)
        answer = call(dc.m_hAttribDC);
    return answer;
}

} // namespace kx
