// A guard that selects a drawing object into a device context and puts the old one back.
#pragma once

#include <afxwin.h>

/// Selects for its lifetime. Both the context and the object must outlive it. An object that could not be
/// made selects nothing.
class SelectedObject
{
public:
    SelectedObject(CDC& context, const CGdiObject& object)
        : dc(context.GetSafeHdc()), previous(::SelectObject(dc, object.GetSafeHandle()))
    {
    }

    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

    ~SelectedObject()
    {
        if (previous != nullptr)
            ::SelectObject(dc, previous);
    }

private:
    HDC dc;
    HGDIOBJ previous;
};
