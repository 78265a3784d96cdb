// The gallery's page of pickers, worked by mouse and keys.
#include "gallery/PagePickers.h"
#include "GalleryHost.h"
#include "gallery/resource.h"

namespace
{
struct PickersPage : testing::Test
{
    PageHost<CPagePickers> host;

    void mouseAt(CPoint screen, DWORD event)
    {
        moveTo(screen);
        mouseButton(event);
    }
    /// Presses on a combo's arrow, and releases at a point of its palette.
    void pick(int id, CPoint onPalette)
    {
        CRect face;
        ::GetWindowRect(host.control(id), &face);
        mouseAt(CPoint(face.left + 7, face.CenterPoint().y), MOUSEEVENTF_LEFTDOWN);
        mouseAt(CPoint(face.left, face.bottom) + onPalette, MOUSEEVENTF_LEFTUP);
    }
};
} // namespace

TEST_F(PickersPage, tells_what_was_picked)
{
    EXPECT_EQ(host.text(IDC_PICK_HATCH_NAME), L"Concrete");
    pick(IDC_PICK_HATCH, CPoint(50, 40)); // the second of the second row
    EXPECT_EQ(host.text(IDC_PICK_HATCH_NAME), L"Steel");
    pick(IDC_PICK_SECTION, CPoint(70, 10));
    EXPECT_EQ(host.text(IDC_PICK_SECTION_NAME), L"Angle");
    pick(IDC_PICK_PAINT, CPoint(30, 10));
    EXPECT_EQ(host.text(IDC_PICK_PAINT_NAME), L"Slate grey");
    pick(IDC_PICK_SYSTEM, CPoint(5, 5));
    EXPECT_EQ(host.text(IDC_PICK_SYSTEM_NAME), L"0, 0, 0");
}

TEST_F(PickersPage, picks_nothing_while_the_combos_are_disabled)
{
    host.clickOn(IDC_PICK_ENABLED);
    EXPECT_FALSE(host.enabled(IDC_PICK_HATCH));
    pick(IDC_PICK_HATCH, CPoint(10, 10));
    EXPECT_EQ(host.text(IDC_PICK_HATCH_NAME), L"Concrete");
    host.clickOn(IDC_PICK_ENABLED);
    pick(IDC_PICK_HATCH, CPoint(10, 10));
    EXPECT_EQ(host.text(IDC_PICK_HATCH_NAME), L"None");
}

TEST_F(PickersPage, a_key_closes_a_palette_and_nothing_is_picked)
{
    CRect face;
    ::GetWindowRect(host.control(IDC_PICK_HATCH), &face);
    mouseAt(CPoint(face.left + 7, face.CenterPoint().y), MOUSEEVENTF_LEFTDOWN);
    const HWND palette = ::GetCapture();
    EXPECT_TRUE(::IsWindowVisible(palette));
    moveTo(CPoint(face.left + 10, face.bottom + 10));
    pumpFor(10);
    key(VK_ESCAPE);
    EXPECT_FALSE(::IsWindowVisible(palette));
    mouseButton(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(host.text(IDC_PICK_HATCH_NAME), L"Concrete");
}

TEST_F(PickersPage, the_button_follows_its_settings)
{
    CWnd* const button = host.page.GetDlgItem(IDC_TRY_BUTTON);
    const auto pixelAt = [&](int x, int y)
    {
        button->UpdateWindow();
        const HDC dc = ::GetDC(button->m_hWnd);
        const COLORREF color = ::GetPixel(dc, x, y);
        ::ReleaseDC(button->m_hWnd, dc);
        return color;
    };
    EXPECT_NE(pixelAt(3, 2), RGB(210, 60, 40));
    host.clickOn(IDC_TRY_TAB);
    EXPECT_EQ(pixelAt(3, 2), RGB(210, 60, 40)) << "the corner tab";
    host.clickOn(IDC_TRY_TAB);
    EXPECT_NE(pixelAt(3, 2), RGB(210, 60, 40));
    host.clickOn(IDC_TRY_DEFAULT);
    EXPECT_EQ(pixelAt(0, 20), RGB(0, 0, 0));
    host.page.SetDlgItemText(IDC_TRY_CAPTION, L"Remove");
    EXPECT_EQ(host.text(IDC_TRY_BUTTON), L"Remove");
    host.clickOn(IDC_TRY_ENABLED);
    EXPECT_FALSE(host.enabled(IDC_TRY_BUTTON));
}
