// What several common control classes share: creation, texts of unknown length, records of tools.
#pragma once
#include <afxcmn.h>

#include "ControlParts.h"
#include "TempWnd.h"

#include <cwchar>
#include <memory>
#include <vector>

namespace kx
{

/// Makes the classes of a family of common controls known to the system.
inline void initControls(DWORD classes)
{
    const INITCOMMONCONTROLSEX record = {sizeof record, classes};
    ::InitCommonControlsEx(&record);
}

/// Creates a child window of a common control class.
inline BOOL createCommon(CWnd& control, DWORD classes, LPCTSTR className, DWORD exStyle, DWORD style, const RECT& rect,
                         CWnd* parent, UINT id)
{
    initControls(classes);
    return control.CreateEx(exStyle, className, nullptr, style, rect, parent, id);
}

/// A text that a control copies into a buffer without saying how long it is. fetch(buffer, room) answers where the
/// text is, or null.
template <class Fetch> CString growingText(Fetch fetch)
{
    constexpr std::size_t first = 256;
    constexpr std::size_t last = 1U << 24;
    for (std::vector<wchar_t> buffer(first);; buffer.assign(buffer.size() * 2, 0))
    {
        const wchar_t* const text = fetch(buffer.data(), static_cast<int>(buffer.size()));
        if (text == nullptr || text == LPSTR_TEXTCALLBACK)
            return CString();
        if (text != buffer.data())
            return CString(text);
        buffer.back() = 0;
        if (std::wcslen(text) + 2 < buffer.size() || buffer.size() >= last)
            return CString(text);
    }
}

/// A list that a control made for its caller, or null.
inline CImageList* newImageList(HIMAGELIST handle)
{
    if (handle == nullptr)
        return nullptr;
    auto list = std::make_unique<CImageList>();
    list->Attach(handle);
    return list.release();
}

} // namespace kx
