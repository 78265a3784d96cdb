// The page of the bars: the look, the sides, disabled bars, and the member's property sheet, by mouse and keys.
#include "GalleryHost.h"
#include "gallery/PageBars.h"
#include "gallery/resource.h"
#include "support/ModalUser.h"

namespace
{
class BarsHost : public PageHost<CPageBars>
{
public:
    BarsHost()
    {
        CWinThread* const thread = AfxGetThread();
        thread->m_pMainWnd = page.GetParent(); // idle updates reach the frames below it
        idle();
    }
    ~BarsHost() { AfxGetThread()->m_pMainWnd = nullptr; }

    static void idle() { AfxGetThread()->OnIdle(0); }
    /// A control of either bar; null where there is none.
    HWND item(int id) const
    {
        for (const int bar : {AFX_IDW_DIALOGBAR, AFX_IDW_DIALOGBAR + 1})
            if (const HWND found = ::GetDlgItem(this->bar(bar), id))
                return found;
        return nullptr;
    }
    HWND bar(int id) const
    {
        for (HWND child = ::GetWindow(page.m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
            if (const HWND found = ::GetDlgItem(child, id))
                return found;
        return nullptr;
    }
    void clickItem(int id) const { click(centreOf(item(id))); }
    bool says(const wchar_t* part) const
    {
        return waitFor([&] { return text(IDC_BARS_STATE).find(part) != std::wstring::npos; });
    }
    static COLORREF shownAt(HWND window, int x, int y)
    {
        ::UpdateWindow(window);
        const HDC dc = ::GetDC(window);
        const COLORREF color = ::GetPixel(dc, x, y);
        ::ReleaseDC(window, dc);
        return color;
    }
    /// Where a bar stands on the page.
    CRect placeOf(int id) const
    {
        CRect place;
        ::GetWindowRect(bar(id), &place);
        return place;
    }
};

constexpr int memberBar = AFX_IDW_DIALOGBAR;
constexpr int loadsBar = AFX_IDW_DIALOGBAR + 1;

/// The button of the sheet that is open.
HWND sheetButton(int id)
{
    return ::GetDlgItem(::GetActiveWindow(), id);
}

/// A control of the page that the open sheet shows.
HWND onSheet(int id)
{
    const auto page = reinterpret_cast<HWND>(::SendMessageW(::GetActiveWindow(), PSM_GETCURRENTPAGEHWND, 0, 0));
    return ::GetDlgItem(page, id);
}

/// Types over what the field has.
void typeInto(int id, const wchar_t* text)
{
    ::SetFocus(onSheet(id));
    ::SendMessageW(onSheet(id), EM_SETSEL, 0, -1);
    typeText(text);
}

void clickTab(int index)
{
    const auto tabs = reinterpret_cast<HWND>(::SendMessageW(::GetActiveWindow(), PSM_GETTABCONTROL, 0, 0));
    RECT place = {};
    ::SendMessageW(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&place));
    POINT middle = {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    ::ClientToScreen(tabs, &middle);
    click(middle);
}
} // namespace

TEST(BarsPage, shows_the_painted_look_and_the_plain_one)
{
    BarsHost host;
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    const HWND label = host.item(IDC_MEMBER_FIXED);
    EXPECT_NE(host.shownAt(host.bar(memberBar), 2, 12), face);
    EXPECT_EQ(host.shownAt(host.item(IDC_MEMBER_LENGTH), 30, 4), RGB(0xC9, 0xDB, 0xF6));
    const COLORREF behindText = host.shownAt(label, 60, 1);
    EXPECT_NE(behindText, face);
    host.clickOn(IDC_BARS_PAINTED);
    EXPECT_EQ(host.shownAt(host.bar(memberBar), 2, 12), face);
    EXPECT_EQ(host.shownAt(label, 60, 1), face);
    EXPECT_EQ(host.shownAt(host.item(IDC_MEMBER_LENGTH), 30, 4), RGB(0xC9, 0xDB, 0xF6)) << "with and without the look";
    host.clickOn(IDC_BARS_PAINTED);
    EXPECT_EQ(host.shownAt(label, 60, 1), behindText);
}

TEST(BarsPage, changes_the_member_by_its_bars)
{
    BarsHost host;
    EXPECT_TRUE(host.says(L"B 1: HE 200 A, S 235   |   6.25 m, hinged ends   |   help asked for 0 times"));
    host.clickItem(IDC_MEMBER_FIXED);
    EXPECT_TRUE(host.says(L"6.25 m, fixed ends"));
    ::SetFocus(host.item(IDC_MEMBER_LENGTH));
    ::SendMessageW(host.item(IDC_MEMBER_LENGTH), EM_SETSEL, 0, -1);
    typeText(L"7.5");
    EXPECT_TRUE(host.says(L"7.5 m"));
    ::SetFocus(host.item(IDC_MEMBER_SECTION));
    key(VK_UP);
    EXPECT_TRUE(host.says(L"HE 160 A"));
    host.clickItem(IDC_MEMBER_HELP);
    EXPECT_TRUE(host.says(L"help asked for 1 time"));
}

TEST(BarsPage, disables_its_bars_but_for_what_they_spare)
{
    BarsHost host;
    const int all[] = {IDC_MEMBER_SECTION, IDC_MEMBER_LENGTH, IDC_MEMBER_FIXED, IDC_MEMBER_PROPERTIES,
                       IDC_LOADS_WEIGHT,   IDC_LOADS_SNOW,    IDC_LOADS_WIND,   IDC_LOADS_LIST};
    for (const bool on : {false, true})
    {
        host.clickOn(IDC_BARS_DISABLED);
        host.idle();
        for (const int id : all)
            EXPECT_EQ(::IsWindowEnabled(host.item(id)) != FALSE, on) << id;
        EXPECT_TRUE(::IsWindowEnabled(host.item(IDC_MEMBER_HELP))) << "spared";
    }
    host.clickOn(IDC_BARS_DISABLED);
    host.clickItem(IDC_MEMBER_FIXED);
    EXPECT_TRUE(host.says(L"hinged ends"));
    host.clickItem(IDC_MEMBER_HELP);
    EXPECT_TRUE(host.says(L"help asked for 1 time"));
}

TEST(BarsPage, docks_its_bars_at_the_other_sides_and_hides_one)
{
    BarsHost host;
    const CRect top = host.placeOf(memberBar);
    const CRect left = host.placeOf(loadsBar);
    EXPECT_EQ(top.bottom, left.top);
    host.clickOn(IDC_BARS_BOTTOM);
    host.clickOn(IDC_BARS_RIGHT);
    const CRect bottom = host.placeOf(memberBar);
    const CRect right = host.placeOf(loadsBar);
    EXPECT_EQ(bottom.Size(), top.Size());
    EXPECT_EQ(right.Size(), left.Size());
    EXPECT_EQ(right.top, top.top);
    EXPECT_EQ(right.right, bottom.right);
    EXPECT_EQ(bottom.top, right.bottom);
    host.clickOn(IDC_BARS_LOADS);
    EXPECT_FALSE(::IsWindowVisible(host.bar(loadsBar)));
    host.clickOn(IDC_BARS_LOADS);
    EXPECT_TRUE(::IsWindowVisible(host.bar(loadsBar)));
    EXPECT_EQ(host.placeOf(loadsBar), right);
}

TEST(BarsPage, its_property_sheet_is_tabbed_applied_and_closed)
{
    BarsHost host;
    CString title;
    bool couldApply = true, canApply = false, applied = false, appliesAgain = true;
    {
        ModalUser user({[&]
                        {
                            CWnd::FromHandle(::GetActiveWindow())->GetWindowText(title);
                            couldApply = ::IsWindowEnabled(sheetButton(ID_APPLY_NOW)) != FALSE;
                            typeInto(IDC_SHEET_NAME, L"B 7");
                            canApply = ::IsWindowEnabled(sheetButton(ID_APPLY_NOW)) != FALSE;
                            click(centreOf(sheetButton(ID_APPLY_NOW)));
                            applied = host.says(L"B 7: HE 200 A, S 235");
                            appliesAgain = ::IsWindowEnabled(sheetButton(ID_APPLY_NOW)) != FALSE;
                            clickTab(1);
                            ::SetFocus(onSheet(IDC_SHEET_MATERIAL));
                            key(VK_DOWN);
                            pressForModal(VK_RETURN);
                        }});
        host.clickItem(IDC_MEMBER_PROPERTIES);
    }
    EXPECT_EQ(title, L"Properties of B 1");
    EXPECT_FALSE(couldApply) << "nothing has changed";
    EXPECT_TRUE(canApply);
    EXPECT_TRUE(applied) << "while the sheet is open";
    EXPECT_FALSE(appliesAgain);
    EXPECT_TRUE(host.says(L"B 7: HE 200 A, S 275"));
}

TEST(BarsPage, a_cancelled_sheet_changes_nothing)
{
    BarsHost host;
    ModalUser user({[&]
                    {
                        typeInto(IDC_SHEET_NAME, L"B 7");
                        clickTab(1); // reads the first page
                        ::SetFocus(onSheet(IDC_SHEET_MATERIAL));
                        key(VK_DOWN);
                        pressForModal(VK_ESCAPE);
                    }});
    host.clickItem(IDC_MEMBER_PROPERTIES);
    EXPECT_TRUE(host.says(L"B 1: HE 200 A, S 235"));
}

TEST(BarsPage, a_sheet_for_reading_only_has_no_ok_and_takes_no_enter)
{
    BarsHost host;
    host.clickOn(IDC_BARS_READ_ONLY);
    bool ok = true, apply = true;
    ModalUser user({[&]
                    {
                        ok = ::IsWindowEnabled(sheetButton(IDOK)) != FALSE;
                        typeInto(IDC_SHEET_NAME, L"B 9");
                        apply = ::IsWindowEnabled(sheetButton(ID_APPLY_NOW)) != FALSE;
                        pressForModal(VK_RETURN);
                        pressForModal(VK_ESCAPE);
                    }});
    host.clickItem(IDC_MEMBER_PROPERTIES);
    EXPECT_FALSE(ok);
    EXPECT_FALSE(apply) << "nothing could be typed";
    EXPECT_TRUE(host.says(L"B 1: HE 200 A, S 235"));
}
