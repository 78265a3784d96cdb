// What all dialog bars share, how they start, and what the background is painted on besides bars.
#include <gtest/gtest.h>

#include "BarHost.h"
#include "oxa/dialogs/KxPropertySheet.h"

namespace
{
/// The shared data as it was before any test ran.
const struct
{
    bool painted = CKxDialogBarEx::m_bOverwriteStyle;
    HGDIOBJ picture = CKxDialogBarEx::m_bkBitmap.m_hObject, pale = CKxDialogBarEx::m_bkBrush.m_hObject,
            disabled = CKxDialogBarEx::m_bkBrushDisabled.m_hObject;
    CSize size = CKxDialogBarEx::m_sizeBkBitmap;
} atStart;

class Page : public CPropertyPage
{
public:
    Page() : CPropertyPage(IDD_SHEET_PAGE) {}
};

class AnsweringSheet : public CKxPropertySheet
{
public:
    using CKxPropertySheet::CKxPropertySheet;
    BOOL answer = -1;
    BOOL OnInitDialog() override { return answer = CKxPropertySheet::OnInitDialog(); }
};
} // namespace

TEST(BarState, the_look_is_off_at_first_and_nothing_is_loaded)
{
    EXPECT_FALSE(atStart.painted);
    EXPECT_EQ(atStart.picture, nullptr);
    EXPECT_EQ(atStart.size, CSize(0, 0));
    EXPECT_EQ(atStart.pale, nullptr) << "the first bar makes the brushes";
    EXPECT_EQ(atStart.disabled, nullptr);
}

TEST(BarState, the_brushes_are_made_once_and_stay)
{
    HGDIOBJ pale = nullptr, disabled = nullptr;
    {
        const OpenBar first;
        pale = CKxDialogBarEx::m_bkBrush.m_hObject;
        disabled = CKxDialogBarEx::m_bkBrushDisabled.m_hObject;
    }
    const OpenBar second;
    EXPECT_EQ(CKxDialogBarEx::m_bkBrush.m_hObject, pale);
    EXPECT_EQ(CKxDialogBarEx::m_bkBrushDisabled.m_hObject, disabled);
    EXPECT_EQ(colorOf(static_cast<HBRUSH>(pale)), RGB(0xC9, 0xDB, 0xF6));
    EXPECT_EQ(colorOf(static_cast<HBRUSH>(disabled)), ::GetSysColor(COLOR_BTNFACE));
    CKxDialogBarEx::m_bkBrush.DeleteObject();
    const OpenBar third;
    EXPECT_EQ(colorOf(CKxDialogBarEx::m_bkBrush), RGB(0xC9, 0xDB, 0xF6)) << "one that finds none makes it again";
}

TEST(BarState, the_background_fills_any_window_and_only_with_the_look)
{
    BarFrame frame;
    CWnd wnd;
    ASSERT_TRUE(wnd.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 250, 58), &frame, 5));
    CClientDC screen(nullptr);
    CDC dc;
    CBitmap paper;
    dc.CreateCompatibleDC(&screen);
    paper.CreateCompatibleBitmap(&screen, 300, 80);
    const HGDIOBJ before = ::SelectObject(dc.m_hDC, paper.m_hObject);
    const COLORREF odd = RGB(1, 2, 3);
    dc.FillSolidRect(0, 0, 300, 80, odd);
    {
        const Look look(false);
        CKxDialogBarEx::PaintBackground(&wnd, &dc);
        EXPECT_EQ(dc.GetPixel(0, 0), odd);
    }
    const Look look(true);
    CKxDialogBarEx::PaintBackground(&wnd, &dc);
    for (const CPoint inside : {CPoint(0, 0), CPoint(249, 57), CPoint(120, 30)})
        EXPECT_NE(dc.GetPixel(inside), odd) << inside.x << " " << inside.y;
    for (const CPoint outside : {CPoint(250, 57), CPoint(249, 58)})
        EXPECT_EQ(dc.GetPixel(outside), odd) << outside.x << " " << outside.y;
    ::SelectObject(dc.m_hDC, before);
}

TEST(BarState, erasing_is_done_with_and_without_the_look)
{
    for (const bool painted : {false, true})
    {
        const Look look(painted);
        BarHost host;
        CClientDC dc(&host.bar);
        EXPECT_EQ(host.bar.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC)), 1) << painted;
    }
}

TEST(SheetState, it_answers_true_as_it_begins_whatever_its_flags_say)
{
    for (const bool protectionDisabled : {false, true})
        for (const bool disabled : {false, true})
        {
            BarFrame frame;
            AnsweringSheet sheet(L"Sheet");
            Page page;
            sheet.AddPage(&page);
            sheet.SetProtectionDisabled(protectionDisabled);
            if (disabled)
                sheet.DisablePropertySheet();
            ASSERT_TRUE(sheet.Create(&frame));
            EXPECT_EQ(sheet.answer, TRUE);
        }
}

TEST(SheetState, a_wizard_has_no_ok_to_take_away)
{
    BarFrame frame;
    AnsweringSheet sheet(L"Wizard");
    Page page;
    sheet.AddPage(&page);
    sheet.SetWizardMode();
    sheet.DisablePropertySheet();
    ASSERT_TRUE(sheet.Create(&frame));
    EXPECT_EQ(sheet.answer, TRUE);
    const HWND ok = ::GetDlgItem(sheet.m_hWnd, IDOK);
    EXPECT_TRUE(ok == nullptr || !::IsWindowEnabled(ok));
    EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(sheet.m_hWnd, IDCANCEL)));
}
