// One hidden window, so that the Wine desktop of a prefix stays up between tests.
#include <windows.h>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int)
{
    CreateWindowW(L"STATIC", L"keepalive", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return 0;
}
