// The bitmap button and the button combo ended in the middle of any message that their life brings their parent.
#include <gtest/gtest.h>

#include "ComboHost.h"
#include "oxa/buttons/KxBitmapButton.h"
#include "support/TrapHost.h"

namespace
{
template <class Control> using Steps = std::vector<std::function<void(Control&)>>;

void paint(CWnd& control)
{
    ::RedrawWindow(control.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}
void takeFocus(CWnd& control)
{
    control.SetFocus();
}
void disable(CWnd& control)
{
    const HWND window = control.m_hWnd;
    ::EnableWindow(window, FALSE);
    ::UpdateWindow(window);
    ::EnableWindow(window, TRUE);
}
/// Sends a message of the mouse or a key to the control itself.
std::function<void(CWnd&)> send(UINT message, WPARAM wParam = 0, CPoint at = CPoint(0, 0))
{
    return [=](CWnd& control) { ::SendMessageW(control.m_hWnd, message, wParam, MAKELPARAM(at.x, at.y)); };
}
/// The same to the palette of a combo.
std::function<void(CKxButtonCombo&)> toPalette(UINT message, WPARAM wParam = 0, CPoint at = CPoint(0, 0))
{
    return [=](CKxButtonCombo& combo)
    {
        if (CWndCombo* const palette = paletteOf(combo))
            palette->SendMessage(message, wParam, MAKELPARAM(at.x, at.y));
    };
}

TEST(AnyMessage, may_be_the_last_of_a_bitmap_button)
{
    ControlLife<CKxBitmapButton> life;
    life.create = [](CKxBitmapButton& button, TrapHost& host)
    { button.Create(L"Add", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW | BS_NOTIFY, CRect(20, 20, 120, 50), &host, 7); };
    life.steps = {paint,
                  [](CKxBitmapButton& button) { button.SetIcon(IDI_BLUE, 16, 16); },
                  [](CKxBitmapButton& button) { button.SetDefaultButton(TRUE); },
                  takeFocus,
                  send(WM_LBUTTONDOWN, MK_LBUTTON, CPoint(5, 5)),
                  paint,
                  send(WM_LBUTTONUP, 0, CPoint(5, 5)),
                  send(WM_LBUTTONDBLCLK, MK_LBUTTON, CPoint(5, 5)),
                  send(WM_LBUTTONUP, 0, CPoint(5, 5)),
                  send(WM_KEYDOWN, VK_SPACE),
                  send(WM_KEYUP, VK_SPACE),
                  disable,
                  [](CKxBitmapButton& button) { button.GetParent()->SetFocus(); }};
    life.expectToEndInAnyMessage({{WM_PARENTNOTIFY, WM_CREATE},
                                  {WM_DRAWITEM},
                                  {DM_SETDEFID},
                                  {WM_COMMAND, BN_CLICKED},
                                  {WM_COMMAND, BN_SETFOCUS},
                                  {WM_COMMAND, BN_KILLFOCUS}});
}

TEST(AnyMessage, may_be_the_last_of_a_button_combo)
{
    using Make = std::function<void(CKxButtonCombo&, TrapHost&)>;
    const Make forms[] = {
        [](CKxButtonCombo& combo, TrapHost& host)
        { combo.Create(comboPlace, CSize(2, 2), IDB_TILES, 4, &host, comboId, L"a;b;c;d"); },
        [](CKxButtonCombo& combo, TrapHost& host)
        { combo.Create(comboPlace, CSize(3, 2), CSize(10, 8), &host, comboId, L"a;b;c;d;e;f"); },
        [](CKxButtonCombo& combo, TrapHost& host) { combo.CreateStatic(comboPlace, IDB_TILES, &host, comboId); },
    };
    const auto pressStrip = send(WM_LBUTTONDOWN, MK_LBUTTON, onStrip);
    for (const Make& make : forms)
    {
        ControlLife<CKxButtonCombo> life;
        life.create = make;
        life.steps = {paint,
                      takeFocus,
                      pressStrip,
                      toPalette(WM_MOUSEMOVE, MK_LBUTTON, CPoint(10, 5)),
                      toPalette(WM_LBUTTONUP, 0, CPoint(10, 5)),
                      pressStrip,
                      toPalette(WM_KEYDOWN, VK_ESCAPE),
                      pressStrip,
                      toPalette(WM_ACTIVATEAPP, FALSE),
                      takeFocus,
                      send(WM_LBUTTONDOWN, MK_LBUTTON, onBody),
                      send(WM_LBUTTONUP, 0, onBody),
                      send(WM_RBUTTONDOWN, 0, onBody),
                      send(WM_LBUTTONDBLCLK, 0, onBody),
                      disable,
                      [](CKxButtonCombo& combo) { combo.OnItemSelected(1, 1); },
                      [](CKxButtonCombo& combo) { combo.UnpressRightButton(); }};
        life.expectToEndInAnyMessage(
            {{WM_PARENTNOTIFY, WM_CREATE}, {WM_KX_BUTTONCOMBO_SELECT}, {WM_SETFOCUS}, {WM_KILLFOCUS}});
    }
}
} // namespace
