// The way of a notification: the child's virtual, the child's reflection, the parent's map.
#include "Fixture.h"

namespace
{
constexpr UINT childId = 21;
constexpr UINT testNotification = 0U - 901U;

Log steps; // written by child and parent, in the order of the calls

class CControl : public CChild
{
public:
    bool take = false;   // OnChildNotify takes everything
    bool askBase = true; // OnChildNotify goes on to the reflection
    BOOL reflectTakes = FALSE;
    HBRUSH brush = nullptr;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        steps.push_back(text(L"virtual %u", message));
        if (take)
            return TRUE;
        return askBase && CWnd::OnChildNotify(message, wParam, lParam, result);
    }
    afx_msg void OnReflectedClick() { steps.push_back(L"reflected click"); }
    afx_msg BOOL OnReflectedDouble()
    {
        steps.push_back(L"reflected double");
        return reflectTakes;
    }
    afx_msg void OnReflectedNotify(NMHDR* header, LRESULT* result)
    {
        steps.push_back(text(L"reflected notify %u", static_cast<UINT>(header->idFrom)));
        *result = 5;
    }
    afx_msg BOOL OnReflectedNotifyEx(NMHDR*, LRESULT* result)
    {
        steps.push_back(L"reflected notify ex");
        *result = 6;
        return reflectTakes;
    }
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind)
    {
        steps.push_back(text(L"color %d %u", dc->GetSafeHdc() != nullptr, kind));
        return brush;
    }
    afx_msg void HScroll(UINT code, UINT pos) { steps.push_back(text(L"scroll %u %u", code, pos)); }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT item) { steps.push_back(text(L"draw %u", item->itemID)); }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT item) { item->itemHeight = 31; }
    afx_msg void DeleteItem(LPDELETEITEMSTRUCT item) { steps.push_back(text(L"delete %u", item->itemID)); }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT) { return 1; }
    afx_msg int CharToItem(UINT key, UINT index) { return static_cast<int>(key + index); }
    afx_msg int VKeyToItem(UINT key, UINT index) { return static_cast<int>(key - index); }
    afx_msg void ParentNotify(UINT message, LPARAM) { steps.push_back(text(L"parent notify %u", message)); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CControl, CChild)
    // void OnReflectedClick()
    ON_CONTROL_REFLECT(BN_CLICKED, &CControl::OnReflectedClick)
    // BOOL OnReflectedDouble()
    ON_CONTROL_REFLECT_EX(BN_DOUBLECLICKED, &CControl::OnReflectedDouble)
    // void OnReflectedNotify(NMHDR*, LRESULT*)
    ON_NOTIFY_REFLECT(NM_CLICK, &CControl::OnReflectedNotify)
    // BOOL OnReflectedNotifyEx(NMHDR*, LRESULT*)
    ON_NOTIFY_REFLECT_EX(NM_DBLCLK, &CControl::OnReflectedNotifyEx)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_DELETEITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_CHARTOITEM_REFLECT()
    ON_WM_VKEYTOITEM_REFLECT()
    ON_WM_PARENTNOTIFY_REFLECT()
END_MESSAGE_MAP()

class CHost : public CTop
{
protected:
    afx_msg void OnClick() { steps.push_back(L"parent click"); }
    afx_msg void OnDouble() { steps.push_back(L"parent double"); }
    afx_msg void OnRange(UINT id) { steps.push_back(text(L"parent range %u", id)); }
    afx_msg void OnNotifyClick(NMHDR* header, LRESULT* result)
    {
        steps.push_back(text(L"parent notify %u", static_cast<UINT>(header->idFrom)));
        *result = 9;
    }
    afx_msg void OnNotifyRange(UINT id, NMHDR*, LRESULT* result)
    {
        steps.push_back(text(L"parent notify range %u", id));
        *result = 10;
    }
    afx_msg BOOL OnNotifyEx(UINT id, NMHDR*, LRESULT* result)
    {
        steps.push_back(text(L"parent notify ex %u", id));
        *result = 11;
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CHost, CTop)
    // void OnClick()
    ON_BN_CLICKED(childId, &CHost::OnClick)
    ON_CONTROL(BN_DOUBLECLICKED, childId, &CHost::OnDouble)
    // void OnRange(UINT)
    ON_CONTROL_RANGE(EN_CHANGE, childId - 1, childId + 1, &CHost::OnRange)
    // void OnNotifyClick(NMHDR*, LRESULT*)
    ON_NOTIFY(NM_CLICK, childId, &CHost::OnNotifyClick)
    // void OnNotifyRange(UINT, NMHDR*, LRESULT*)
    ON_NOTIFY_RANGE(NM_RCLICK, childId, childId + 5, &CHost::OnNotifyRange)
    // BOOL OnNotifyEx(UINT, NMHDR*, LRESULT*)
    ON_NOTIFY_EX(testNotification, childId, &CHost::OnNotifyEx)
    ON_NOTIFY_EX_RANGE(NM_RDBLCLK, childId, childId, &CHost::OnNotifyEx)
END_MESSAGE_MAP()

class Reflection : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(host.make());
        ASSERT_TRUE(control.make(host, childId));
        steps.clear();
    }
    CHost host;
    CControl control;
};
} // namespace

TEST_F(Reflection, child_that_handles_a_command_notification_keeps_it_from_the_parent)
{
    EXPECT_EQ(notifyCommand(host, control, BN_CLICKED), 1);
    EXPECT_EQ(steps, (Log{L"virtual 273", L"reflected click"}));
}

TEST_F(Reflection, extended_reflection_lets_the_parent_have_it_too)
{
    notifyCommand(host, control, BN_DOUBLECLICKED);
    EXPECT_EQ(steps, (Log{L"virtual 273", L"reflected double", L"parent double"}));
}

TEST_F(Reflection, extended_reflection_may_keep_it)
{
    control.reflectTakes = TRUE;
    notifyCommand(host, control, BN_DOUBLECLICKED);
    EXPECT_EQ(steps, (Log{L"virtual 273", L"reflected double"}));
}

TEST_F(Reflection, virtual_comes_first_and_can_take_everything)
{
    control.take = true;
    notifyCommand(host, control, BN_CLICKED);
    EXPECT_EQ(steps, Log{L"virtual 273"});
}

TEST_F(Reflection, virtual_that_does_not_ask_its_base_skips_the_reflection)
{
    control.askBase = false;
    notifyCommand(host, control, BN_CLICKED);
    EXPECT_EQ(steps, (Log{L"virtual 273", L"parent click"}));
}

TEST_F(Reflection, code_without_reflection_goes_to_the_parents_range)
{
    notifyCommand(host, control, EN_CHANGE);
    EXPECT_EQ(steps, (Log{L"virtual 273", L"parent range 21"}));
}

TEST_F(Reflection, notify_messages_go_the_same_way)
{
    EXPECT_EQ(notifyHeader(host, control, NM_CLICK), 5);
    EXPECT_EQ(steps, (Log{L"virtual 78", L"reflected notify 21"}));
    steps.clear();
    EXPECT_EQ(notifyHeader(host, control, NM_DBLCLK), 0) << "nobody but the child, which did not keep it";
    control.reflectTakes = TRUE;
    EXPECT_EQ(notifyHeader(host, control, NM_DBLCLK), 6);
}

TEST_F(Reflection, notify_messages_without_reflection_reach_the_parents_maps)
{
    EXPECT_EQ(notifyHeader(host, control, NM_RCLICK), 10);
    EXPECT_EQ(notifyHeader(host, control, testNotification), 11);
    EXPECT_EQ(notifyHeader(host, control, NM_RDBLCLK), 11);
    EXPECT_EQ(steps, (Log{L"virtual 78", L"parent notify range 21", L"virtual 78", L"parent notify ex 21",
                          L"virtual 78", L"parent notify ex 21"}));
}

TEST_F(Reflection, child_without_a_permanent_object_is_passed_over)
{
    const HWND plain = ::CreateWindowW(L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, host.m_hWnd,
                                       reinterpret_cast<HMENU>(static_cast<UINT_PTR>(childId)), nullptr, nullptr);
    host.SendMessage(WM_COMMAND, MAKEWPARAM(childId, BN_CLICKED), reinterpret_cast<LPARAM>(plain));
    EXPECT_EQ(steps, Log{L"parent click"});
}

TEST_F(Reflection, colour_comes_from_the_child_when_it_gives_a_brush)
{
    const HDC dc = ::GetDC(control.m_hWnd);
    control.brush = static_cast<HBRUSH>(::GetStockObject(LTGRAY_BRUSH));
    const LRESULT brush =
        host.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control.m_hWnd));
    EXPECT_EQ(brush, reinterpret_cast<LRESULT>(control.brush));
    EXPECT_EQ(steps, (Log{L"virtual 312", L"color 1 6"}));
    ::ReleaseDC(control.m_hWnd, dc);
}

TEST_F(Reflection, null_brush_leaves_the_colour_to_the_system)
{
    const HDC dc = ::GetDC(control.m_hWnd);
    const LRESULT brush =
        host.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control.m_hWnd));
    EXPECT_EQ(brush, ::DefWindowProc(host.m_hWnd, WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc),
                                     reinterpret_cast<LPARAM>(control.m_hWnd)));
    ::ReleaseDC(control.m_hWnd, dc);
}

TEST_F(Reflection, scrolling_comes_back)
{
    host.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_LINERIGHT, 0), reinterpret_cast<LPARAM>(control.m_hWnd));
    EXPECT_EQ(steps, (Log{L"virtual 276", L"scroll 1 0"}));
}

TEST_F(Reflection, owner_draw_comes_back)
{
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_BUTTON;
    draw.itemID = 3;
    draw.hwndItem = control.m_hWnd;
    host.SendMessage(WM_DRAWITEM, childId, reinterpret_cast<LPARAM>(&draw));
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_LISTBOX;
    measure.CtlID = childId;
    host.SendMessage(WM_MEASUREITEM, childId, reinterpret_cast<LPARAM>(&measure));
    EXPECT_EQ(measure.itemHeight, 31U);
    DELETEITEMSTRUCT gone = {};
    gone.itemID = 4;
    gone.hwndItem = control.m_hWnd;
    host.SendMessage(WM_DELETEITEM, childId, reinterpret_cast<LPARAM>(&gone));
    COMPAREITEMSTRUCT compare = {};
    compare.hwndItem = control.m_hWnd;
    EXPECT_EQ(host.SendMessage(WM_COMPAREITEM, childId, reinterpret_cast<LPARAM>(&compare)), 1);
    EXPECT_EQ(steps, (Log{L"virtual 43", L"draw 3", L"virtual 44", L"virtual 45", L"delete 4", L"virtual 57"}));
}

TEST_F(Reflection, list_keys_come_back)
{
    const auto box = reinterpret_cast<LPARAM>(control.m_hWnd);
    EXPECT_EQ(host.SendMessage(WM_CHARTOITEM, MAKEWPARAM(10, 2), box), 12);
    EXPECT_EQ(host.SendMessage(WM_VKEYTOITEM, MAKEWPARAM(10, 2), box), 8);
}

TEST_F(Reflection, parent_notifications_about_the_child_come_back)
{
    host.SendMessage(WM_PARENTNOTIFY, MAKEWPARAM(WM_CREATE, childId), reinterpret_cast<LPARAM>(control.m_hWnd));
    EXPECT_EQ(steps.back(), L"parent notify 1");
}
