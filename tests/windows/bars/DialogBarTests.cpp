// The dialog bar: initialisation, colours and brushes, the painted look, disabled children.
#include <gtest/gtest.h>

#include "BarHost.h"

namespace
{
constexpr COLORREF paleBlue = RGB(0xC9, 0xDB, 0xF6);

COLORREF system(int index)
{
    return ::GetSysColor(index);
}

/// The background stretched over `size` by the platform itself, for comparison.
class Expected
{
public:
    explicit Expected(CSize size)
    {
        CClientDC screen(nullptr);
        m_dc.CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, size.cx, size.cy);
        m_before = ::SelectObject(m_dc.m_hDC, m_bitmap.m_hObject);
        CDC source;
        source.CreateCompatibleDC(&screen);
        HMODULE const library = ::GetModuleHandleW(L"Oxa10.dll");
        HBITMAP const picture = ::LoadBitmapW(library, MAKEINTRESOURCEW(22041));
        const HGDIOBJ before = ::SelectObject(source.m_hDC, picture);
        ::StretchBlt(m_dc.m_hDC, 0, 0, size.cx, size.cy, source.m_hDC, 0, 0, 500, 29, SRCCOPY);
        ::SelectObject(source.m_hDC, before);
        ::DeleteObject(picture);
    }
    ~Expected() { ::SelectObject(m_dc.m_hDC, m_before); }
    Expected(const Expected&) = delete;
    Expected& operator=(const Expected&) = delete;
    COLORREF at(int x, int y) const { return ::GetPixel(m_dc.m_hDC, x, y); }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    HGDIOBJ m_before = nullptr;
};

CSize clientOf(const CWnd& wnd)
{
    CRect client;
    wnd.GetClientRect(&client);
    return client.Size();
}
} // namespace

// ---- Initialisation

TEST(DialogBar, initialises_itself_when_the_message_loop_comes_round)
{
    BarFrame frame;
    OpenBar bar;
    ASSERT_TRUE(bar.Create(&frame, IDD_PALE_BAR, CBRS_TOP, 1));
    EXPECT_EQ(bar.calls, "") << "not yet";
    pumpFor(0);
    EXPECT_EQ(bar.calls, "InitDialogBar OnInitDialogBar fill InitToolTips ");
    bar.calls.clear();
    EXPECT_EQ(bar.SendMessage(0x401), 0);
    EXPECT_EQ(bar.calls, "InitDialogBar OnInitDialogBar fill InitToolTips ");
}

TEST(DialogBar, is_refreshed_at_any_time)
{
    BarHost host;
    host.bar.calls.clear();
    host.bar.UpdateDialogBar();
    EXPECT_EQ(host.bar.calls, "OnInitDialogBar fill ");
}

TEST(DialogBar, is_recognised_by_its_class)
{
    OpenBar bar;
    EXPECT_TRUE(bar.IsKindOf(CKxDialogBarEx::GetThisClass()));
    CDialogBar plain;
    EXPECT_FALSE(plain.IsKindOf(CKxDialogBarEx::GetThisClass()));
    EXPECT_STREQ(CKxDialogBarEx::GetThisClass()->m_lpszClassName, "CKxDialogBarEx");
}

TEST(DialogBar, ended_by_its_own_initialisation_it_is_not_touched_again)
{
    BarFrame frame;
    OpenBar bar;
    ASSERT_TRUE(bar.Create(&frame, IDD_PALE_BAR, CBRS_TOP, 1));
    bar.onInit = [&] { bar.DestroyWindow(); };
    pumpFor(0);
    EXPECT_EQ(bar.calls, "InitDialogBar ") << "no InitToolTips";
    EXPECT_EQ(bar.m_hWnd, nullptr);
}

TEST(DialogBar, deleted_by_its_own_initialisation_it_is_not_touched_again)
{
    BarFrame frame;
    bool deleted = false;
    auto* bar = new OpenBar;
    bar->deleted = &deleted;
    ASSERT_TRUE(bar->Create(&frame, IDD_PALE_BAR, CBRS_TOP, 1));
    bar->onInit = [&] { delete bar; };
    pumpFor(0);
    EXPECT_TRUE(deleted);
}

TEST(DialogBar, a_frame_ended_before_the_posted_message_comes_takes_the_bar_with_it)
{
    OpenBar bar;
    {
        BarFrame frame;
        ASSERT_TRUE(bar.Create(&frame, IDD_PALE_BAR, CBRS_TOP, 1));
    }
    pumpFor(0);
    EXPECT_EQ(bar.calls, "");
    EXPECT_EQ(bar.m_hWnd, nullptr);
}

TEST(DialogBar, a_missing_template_makes_no_bar)
{
    BarFrame frame;
    OpenBar bar;
    EXPECT_FALSE(bar.Create(&frame, 9999, CBRS_TOP, 1));
    EXPECT_FALSE(bar.Create(nullptr, IDD_PALE_BAR, CBRS_TOP, 1));
    pumpFor(0);
    EXPECT_EQ(bar.calls, "");
}

// ---- Colours and brushes, by the message

TEST(DialogBar, each_control_takes_its_colours)
{
    enum What
    {
        pale,     ///< the pale blue under the window's text
        disabled, ///< the face brush under a highlight ground, grey text
        face,     ///< as on a control bar
        pattern   ///< the piece of the background, where the look is on; else as on a control bar
    };
    const struct
    {
        UINT kind;
        int id;
        bool enabled;
        What what;
    } rows[] = {
        {CTLCOLOR_EDIT, IDC_EDIT, true, pale},
        {CTLCOLOR_LISTBOX, IDC_LIST, true, pale},
        {CTLCOLOR_MSGBOX, IDC_LABEL, true, pale},
        {CTLCOLOR_EDIT, IDC_PUSH, true, pale}, // the kind alone counts
        {CTLCOLOR_EDIT, IDC_OFF_EDIT, false, disabled},
        {CTLCOLOR_LISTBOX, IDC_OFF_EDIT, false, disabled},
        {CTLCOLOR_MSGBOX, IDC_OFF_LABEL, false, disabled},
        {CTLCOLOR_STATIC, IDC_LABEL, true, pattern},
        {CTLCOLOR_STATIC, IDC_OFF_LABEL, false, pattern},
        {CTLCOLOR_STATIC, IDC_CHECK, true, pattern},
        {CTLCOLOR_STATIC, IDC_GROUP, true, pattern},
        {CTLCOLOR_STATIC, IDC_READ_ONLY, true, face}, // of class Edit
        {CTLCOLOR_BTN, IDC_PUSH, true, face},
        {CTLCOLOR_DLG, IDC_LABEL, true, face},
    };
    for (const bool painted : {false, true})
    {
        const Look look(painted);
        BarHost host;
        for (const auto& row : rows)
        {
            const Answer answer = ask(host.bar, row.kind, host.item(row.id).m_hWnd);
            SCOPED_TRACE(testing::Message() << "kind " << row.kind << " item " << row.id << " painted " << painted);
            const What what = row.what == pattern && !painted ? face : row.what;
            switch (what)
            {
            case pale:
                EXPECT_EQ(answer.brush, static_cast<HBRUSH>(CKxDialogBarEx::m_bkBrush));
                EXPECT_EQ(colorOf(answer.brush), paleBlue);
                EXPECT_EQ(answer.text, system(COLOR_WINDOWTEXT));
                EXPECT_EQ(answer.ground, paleBlue);
                EXPECT_EQ(answer.mode, OPAQUE);
                break;
            case disabled:
                EXPECT_EQ(answer.brush, static_cast<HBRUSH>(CKxDialogBarEx::m_bkBrushDisabled));
                EXPECT_EQ(colorOf(answer.brush), system(COLOR_BTNFACE));
                EXPECT_EQ(answer.text, system(COLOR_GRAYTEXT));
                EXPECT_EQ(answer.ground, system(13)) << "not the colour of the brush: meant";
                break;
            case face:
                EXPECT_EQ(answer.brush, ::GetSysColorBrush(COLOR_BTNFACE));
                EXPECT_EQ(answer.text, system(COLOR_BTNTEXT));
                EXPECT_EQ(answer.ground, system(COLOR_BTNFACE));
                break;
            case pattern:
                EXPECT_EQ(answer.brush, host.bar.handedOut());
                EXPECT_NE(answer.brush, nullptr);
                EXPECT_EQ(answer.text, system(row.enabled ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
                EXPECT_EQ(answer.mode, TRANSPARENT);
                EXPECT_FALSE(host.bar.holdsContexts()) << "both memory contexts are gone again";
                break;
            }
        }
    }
}

TEST(DialogBar, buttons_are_known_by_their_object_or_their_class)
{
    const Look look(true);
    BarHost host;
    WNDCLASSW own = {};
    own.lpfnWndProc = ::DefWindowProcW;
    own.hInstance = ::GetModuleHandleW(nullptr);
    own.lpszClassName = L"OwnClassOfTheBars";
    ::RegisterClassW(&own);
    CWnd custom;
    ASSERT_TRUE(custom.Create(own.lpszClassName, L"", WS_CHILD, CRect(4, 60, 40, 70), &host.bar, IDC_OWN_CLASS));
    EXPECT_EQ(ask(host.bar, CTLCOLOR_STATIC, custom.m_hWnd).brush, ::GetSysColorBrush(COLOR_BTNFACE));
    custom.DestroyWindow();
    CButton button; // the same class of windows, but an object that is a button
    ASSERT_TRUE(button.CWnd::Create(own.lpszClassName, L"", WS_CHILD, CRect(4, 60, 40, 70), &host.bar, IDC_OWN_CLASS));
    const HBRUSH brush = ask(host.bar, CTLCOLOR_STATIC, button.m_hWnd).brush;
    EXPECT_EQ(brush, host.bar.handedOut());
    EXPECT_NE(brush, nullptr);
    button.DestroyWindow();
    ::UnregisterClassW(own.lpszClassName, own.hInstance);
}

TEST(DialogBar, the_brush_is_the_piece_of_the_background_behind_the_control)
{
    const Look look(true);
    BarHost host;
    const Expected expected(clientOf(host.bar));
    for (const int id : {IDC_LABEL, IDC_OFF_LABEL, IDC_CHECK, IDC_RADIO, IDC_GROUP})
    {
        const CRect place = host.placeOf(id);
        const HBRUSH brush = ask(host.bar, CTLCOLOR_STATIC, host.item(id).m_hWnd).brush;
        for (const CPoint point : {CPoint(0, 0), CPoint(3, 5), CPoint(place.Width() - 1, place.Height() - 1)})
            EXPECT_EQ(brushPixel(brush, point.x, point.y), expected.at(place.left + point.x, place.top + point.y))
                << id << " " << point.x << " " << point.y;
    }
}

TEST(DialogBar, each_pixel_of_the_brush_is_that_of_the_whole_picture)
{
    const Look look(true);
    BarHost host(IDD_SMALL_BAR);
    CWnd& label = host.item(IDC_LABEL);
    for (const CSize size : {CSize(500, 29), CSize(601, 173), CSize(83, 211), CSize(2000, 40)})
    {
        host.bar.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        const Expected expected(clientOf(host.bar));
        for (const CPoint at : {CPoint(0, 0), CPoint(13, 7), CPoint(size.cx - 40, size.cy - 9)})
        {
            label.SetWindowPos(nullptr, at.x, at.y, 40, 9, SWP_NOZORDER);
            const BrushPicture picture(ask(host.bar, CTLCOLOR_STATIC, label.m_hWnd).brush, CSize(40, 9));
            int different = 0;
            for (int y = 0; y < 9; ++y)
                for (int x = 0; x < 40; ++x)
                    different += picture.at(x, y) != expected.at(at.x + x, at.y + y) ? 1 : 0;
            EXPECT_EQ(different, 0) << size.cx << " by " << size.cy << " at " << at.x << " " << at.y;
        }
    }
}

TEST(DialogBar, the_piece_follows_the_control_and_the_size_of_the_bar)
{
    const Look look(true);
    BarHost host;
    CWnd& label = host.item(IDC_LABEL);
    label.SetWindowPos(nullptr, 30, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    const Expected before(clientOf(host.bar));
    EXPECT_EQ(brushPixel(ask(host.bar, CTLCOLOR_STATIC, label.m_hWnd).brush, 2, 3), before.at(32, 43));
    host.bar.SetWindowPos(nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER);
    const Expected after(clientOf(host.bar));
    EXPECT_EQ(brushPixel(ask(host.bar, CTLCOLOR_STATIC, label.m_hWnd).brush, 2, 3), after.at(32, 43));
    EXPECT_NE(before.at(32, 43), after.at(32, 43)) << "else the test tells nothing";
}

TEST(DialogBar, the_brush_stays_valid_up_to_the_next_call)
{
    const Look look(true);
    BarHost host;
    const HBRUSH first = ask(host.bar, CTLCOLOR_STATIC, host.item(IDC_LABEL).m_hWnd).brush;
    EXPECT_EQ(::GetObjectType(first), static_cast<DWORD>(OBJ_BRUSH));
    ask(host.bar, CTLCOLOR_EDIT, host.item(IDC_EDIT).m_hWnd);
    EXPECT_EQ(::GetObjectType(first), static_cast<DWORD>(OBJ_BRUSH)) << "an edit field makes none";
    const HBRUSH second = ask(host.bar, CTLCOLOR_STATIC, host.item(IDC_CHECK).m_hWnd).brush;
    EXPECT_EQ(::GetObjectType(second), static_cast<DWORD>(OBJ_BRUSH));
    EXPECT_EQ(host.bar.handedOut(), second);
}

// ---- Pixels

TEST(DialogBar, painted_it_shows_the_background_behind_statics_and_buttons)
{
    const Look look(true);
    BarHost host;
    host.repaint();
    const Expected expected(clientOf(host.bar));
    const int last = clientOf(host.bar).cy - 2; // above the border line
    for (const CPoint point : {CPoint(1, 1), CPoint(450, 10), CPoint(590, last)})
        EXPECT_EQ(shownAt(host.bar, point.x, point.y), expected.at(point.x, point.y)) << point.x << " " << point.y;
    const CRect label = host.placeOf(IDC_LABEL);
    for (const CPoint point : {CPoint(1, 1), CPoint(20, 8)})
        EXPECT_EQ(shownAt(host.item(IDC_LABEL), point.x, point.y),
                  expected.at(label.left + point.x, label.top + point.y));
    const CRect check = host.placeOf(IDC_CHECK);
    EXPECT_EQ(shownAt(host.item(IDC_CHECK), 40, 2), expected.at(check.left + 40, check.top + 2));
}

TEST(DialogBar, edit_fields_and_lists_are_pale_blue_whether_it_is_painted_or_not)
{
    for (const bool painted : {false, true})
    {
        const Look look(painted);
        BarHost host;
        host.repaint();
        EXPECT_EQ(shownAt(host.item(IDC_EDIT), 30, 8), paleBlue) << painted;
        EXPECT_EQ(shownAt(host.item(IDC_LIST), 30, 20), paleBlue) << painted;
        EXPECT_EQ(shownAt(host.item(IDC_OFF_EDIT), 30, 8), system(COLOR_BTNFACE)) << painted;
    }
}

TEST(DialogBar, without_the_look_it_is_as_any_dialog_bar)
{
    BarHost host;
    host.repaint();
    EXPECT_EQ(shownAt(host.bar, 300, 1), system(COLOR_BTNFACE));
    EXPECT_EQ(shownAt(host.item(IDC_LABEL), 5, 5), system(COLOR_BTNFACE));
    CClientDC dc(&host.bar);
    EXPECT_EQ(host.bar.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC)), 1);
}

TEST(DialogBar, the_look_reaches_bars_that_were_made_before)
{
    const Look off(false);
    BarHost host;
    host.repaint();
    EXPECT_EQ(shownAt(host.bar, 300, 5), system(COLOR_BTNFACE));
    const Look on(true);
    host.repaint();
    const Expected expected(clientOf(host.bar));
    EXPECT_EQ(shownAt(host.bar, 300, 5), expected.at(300, 5));
    EXPECT_NE(expected.at(300, 5), system(COLOR_BTNFACE));
}

TEST(DialogBar, a_bar_that_grows_is_painted_all_over_again)
{
    const Look look(true);
    BarHost host;
    host.repaint();
    host.frame.SetWindowPos(nullptr, 0, 0, 700, 300, SWP_NOMOVE | SWP_NOZORDER);
    host.bar.SetWindowPos(nullptr, 0, 0, 700, 200, SWP_NOMOVE | SWP_NOZORDER);
    pumpFor(20);
    const Expected expected(CSize(700, 200));
    EXPECT_EQ(shownAt(host.bar, 2, 90), expected.at(2, 90));
    const CRect label = host.placeOf(IDC_LABEL);
    EXPECT_EQ(shownAt(host.item(IDC_LABEL), 2, 5), expected.at(label.left + 2, label.top + 5));
}

TEST(DialogBar, the_background_is_500_by_29_and_loaded_once)
{
    const Look look(true);
    EXPECT_EQ(CKxDialogBarEx::m_sizeBkBitmap, CSize(500, 29));
    const HGDIOBJ bitmap = CKxDialogBarEx::m_bkBitmap.m_hObject;
    CKxDialogBarEx::SetOvewriteStyle();
    EXPECT_TRUE(CKxDialogBarEx::m_bOverwriteStyle);
    EXPECT_EQ(CKxDialogBarEx::m_bkBitmap.m_hObject, bitmap);
}

TEST(DialogBar, a_missing_bitmap_leaves_the_look_off)
{
    const Look off(false);
    CBitmap kept;
    kept.Attach(CKxDialogBarEx::m_bkBitmap.Detach());
    AFX_MODULE_STATE* const program = AfxGetAppModuleState();
    CDynLinkLibrary* const modules = program->m_pFirstLibrary;
    program->m_pFirstLibrary = nullptr; // the program stands alone
    CKxDialogBarEx::SetOvewriteStyle();
    program->m_pFirstLibrary = modules;
    EXPECT_FALSE(CKxDialogBarEx::m_bOverwriteStyle);
    EXPECT_EQ(CKxDialogBarEx::m_bkBitmap.m_hObject, nullptr);
    CKxDialogBarEx::m_bkBitmap.Attach(kept.Detach());
}

// ---- Disabled children

TEST(DialogBar, is_not_disabled_unless_its_host_says_so)
{
    CKxDialogBarEx bar;
    EXPECT_FALSE(bar.IsDlgBarDisabled());
}

TEST(DialogBar, a_finished_bar_that_is_disabled_disables_its_children)
{
    BarHost host;
    CButton property, help, nameless;
    const CRect place(200, 60, 240, 70);
    ASSERT_TRUE(property.Create(L"p", WS_CHILD | WS_VISIBLE, place, &host.bar, IDC_PROPERTY));
    ASSERT_TRUE(help.Create(L"h", WS_CHILD | WS_VISIBLE, place, &host.bar, IDC_HELP_BUTTON));
    ASSERT_TRUE(nameless.Create(L"n", WS_CHILD | WS_VISIBLE, place, &host.bar, 0));
    CButton inNameless;
    ASSERT_TRUE(inNameless.Create(L"i", WS_CHILD, place, &nameless, 77));
    CButton inProperty;
    ASSERT_TRUE(inProperty.Create(L"i", WS_CHILD, place, &property, 78));
    CDialog inner;
    ASSERT_TRUE(inner.Create(IDD_INNER, &host.bar));
    inner.SetDlgCtrlID(79);
    host.bar.SetPropertyId(IDC_PROPERTY);
    host.bar.SetHelpId(IDC_HELP_BUTTON);
    host.bar.calls.clear();

    host.bar.InitDlgBarFinished();
    EXPECT_EQ(host.bar.calls, "IsDlgBarDisabled ");
    EXPECT_TRUE(host.item(IDC_EDIT).IsWindowEnabled()) << "it says no";

    host.bar.disabled = true;
    host.bar.InitDlgBarFinished();
    for (const int id : {IDC_LABEL, IDC_EDIT, IDC_LIST, IDC_CHECK, IDC_PUSH, IDC_GROUP, IDC_COMBO})
        EXPECT_FALSE(host.item(id).IsWindowEnabled()) << id;
    EXPECT_FALSE(inner.IsWindowEnabled());
    EXPECT_FALSE(inner.GetDlgItem(IDC_INNER_EDIT)->IsWindowEnabled()) << "children of children";
    EXPECT_TRUE(property.IsWindowEnabled());
    EXPECT_TRUE(inProperty.IsWindowEnabled()) << "spared children are not entered";
    EXPECT_TRUE(help.IsWindowEnabled());
    EXPECT_TRUE(nameless.IsWindowEnabled()) << "its id is 0";
    EXPECT_TRUE(inNameless.IsWindowEnabled());
    EXPECT_TRUE(host.bar.IsWindowEnabled()) << "the bar itself is not";
}

TEST(DialogBar, a_disabled_field_is_not_typed_into)
{
    BarHost host;
    click(centreOf(host.item(IDC_EDIT).m_hWnd));
    typeText(L"12");
    CString text;
    host.item(IDC_EDIT).GetWindowText(text);
    EXPECT_EQ(text, L"12");
    host.bar.disabled = true;
    host.bar.InitDlgBarFinished();
    click(centreOf(host.item(IDC_EDIT).m_hWnd));
    typeText(L"34");
    host.item(IDC_EDIT).GetWindowText(text);
    EXPECT_EQ(text, L"12");
}
