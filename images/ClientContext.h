// Gives a loader the device context of a window's client area.
#pragma once

#include <afxwin.h>

/// Calls load(dc), and answers its result; 0 when the window gives no context.
template <class Load> int loadOnClientOf(CWnd* window, Load load)
{
    try
    {
        const CClientDC dc(window);
        return load(dc.GetSafeHdc());
    }
    catch (CResourceException* failure)
    {
        failure->Delete();
        return 0;
    }
}
