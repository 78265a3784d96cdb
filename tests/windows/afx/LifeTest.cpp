// Creation hook, subclassing, destruction.
#include "Fixture.h"

namespace
{
class CLife : public CTop
{
public:
    bool deleteSelf = false;
    bool* deleted = nullptr;
    BOOL createAnswer = TRUE;
    HWND handleInPostNcDestroy = nullptr;
    int postNcDestroyCalls = 0;
    bool refuse = false;

    ~CLife() override
    {
        if (deleted != nullptr)
            *deleted = true;
    }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        log.push_back(L"PreCreateWindow");
        return !refuse && CWnd::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override { log.push_back(m_hWnd != nullptr ? L"PreSubclassWindow" : L"no handle"); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        switch (message)
        {
        case WM_NCCREATE:
            log.push_back(L"WM_NCCREATE");
            break;
        case WM_CREATE:
            log.push_back(L"WM_CREATE");
            break;
        case WM_DESTROY:
            log.push_back(L"WM_DESTROY");
            break;
        case WM_NCDESTROY:
            log.push_back(L"WM_NCDESTROY");
            break;
        default:
            break;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override
    {
        log.push_back(L"PostNcDestroy");
        ++postNcDestroyCalls;
        handleInPostNcDestroy = m_hWnd;
        if (deleteSelf)
            delete this;
    }
    afx_msg int OnCreate(LPCREATESTRUCT cs) { return createAnswer ? CWnd::OnCreate(cs) : -1; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CLife, CTop)
    // int OnCreate(LPCREATESTRUCT)
    ON_WM_CREATE()
END_MESSAGE_MAP()
} // namespace

TEST(Life, object_sees_the_first_messages_in_order)
{
    CLife wnd;
    ASSERT_TRUE(wnd.make());
    EXPECT_EQ(wnd.log, (Log{L"PreCreateWindow", L"PreSubclassWindow", L"WM_NCCREATE", L"WM_CREATE"}));
}

TEST(Life, destruction_ends_with_PostNcDestroy_without_a_handle)
{
    CLife wnd;
    ASSERT_TRUE(wnd.make());
    wnd.log.clear();
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_EQ(wnd.log, (Log{L"WM_DESTROY", L"WM_NCDESTROY", L"PostNcDestroy"}));
    EXPECT_EQ(wnd.handleInPostNcDestroy, nullptr);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_FALSE(wnd.DestroyWindow()) << "there is no window any more";
}

TEST(Life, object_may_delete_itself_in_PostNcDestroy)
{
    bool deleted = false;
    auto* wnd = new CLife;
    wnd->deleteSelf = true;
    wnd->deleted = &deleted;
    ASSERT_TRUE(wnd->make());
    const HWND handle = wnd->m_hWnd;
    EXPECT_TRUE(wnd->DestroyWindow());
    EXPECT_TRUE(deleted);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(Life, same_object_can_make_a_second_window)
{
    CLife wnd;
    ASSERT_TRUE(wnd.make());
    wnd.DestroyWindow();
    EXPECT_TRUE(wnd.make());
    EXPECT_TRUE(::IsWindow(wnd.m_hWnd));
}

TEST(Life, second_creation_over_a_living_window_fails)
{
    CLife wnd;
    ASSERT_TRUE(wnd.make());
    const HWND before = wnd.m_hWnd;
    EXPECT_FALSE(wnd.make());
    EXPECT_EQ(wnd.m_hWnd, before);
}

TEST(Life, refused_creation_calls_PostNcDestroy)
{
    CLife wnd;
    wnd.refuse = true;
    EXPECT_FALSE(wnd.make());
    EXPECT_EQ(wnd.postNcDestroyCalls, 1);
}

TEST(Life, answer_minus_one_to_WM_CREATE_stops_the_creation)
{
    CLife wnd;
    wnd.createAnswer = FALSE;
    EXPECT_FALSE(wnd.make());
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(wnd.postNcDestroyCalls, 1);
}

TEST(Life, unknown_window_class_fails_plainly)
{
    CLife wnd;
    EXPECT_FALSE(wnd.CreateEx(0, L"no such class", L"", WS_POPUP, CRect(0, 0, 1, 1), nullptr, 0));
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(wnd.postNcDestroyCalls, 1);
}

TEST(Life, window_without_a_class_gets_the_frameworks_own)
{
    CTop wnd;
    ASSERT_TRUE(wnd.make());
    wchar_t name[8] = {};
    ::GetClassNameW(wnd.m_hWnd, name, 8);
    EXPECT_EQ(std::wstring(name, 4), L"Afx:");
}

TEST(Life, registering_the_same_class_twice_gives_the_same_name)
{
    LPCTSTR first = AfxRegisterWndClass(CS_SAVEBITS);
    EXPECT_EQ(AfxRegisterWndClass(CS_SAVEBITS), first);
    EXPECT_NE(AfxRegisterWndClass(CS_SAVEBITS | CS_DBLCLKS), first);
}

TEST(Life, subclassed_window_sends_its_messages_to_the_object_and_on)
{
    CTop top;
    ASSERT_TRUE(top.make());
    const HWND edit = ::CreateWindowW(L"EDIT", L"abc", WS_CHILD, 0, 0, 50, 20, top.m_hWnd, reinterpret_cast<HMENU>(5),
                                      nullptr, nullptr);
    const LONG_PTR before = ::GetWindowLongPtr(edit, GWLP_WNDPROC);
    CLife object;
    ASSERT_TRUE(object.SubclassDlgItem(5, &top));
    EXPECT_EQ(object.log, Log{L"PreSubclassWindow"});
    EXPECT_EQ(object.GetWindowTextLength(), 3) << "the edit's own procedure still answers";
    EXPECT_EQ(object.UnsubclassWindow(), edit);
    EXPECT_EQ(::GetWindowLongPtr(edit, GWLP_WNDPROC), before);
    EXPECT_TRUE(::IsWindow(edit));
}

TEST(Life, subclassing_what_is_not_there_fails)
{
    CTop top;
    CLife object;
    ASSERT_TRUE(top.make());
    EXPECT_FALSE(object.SubclassDlgItem(99, &top));
    EXPECT_FALSE(object.SubclassWindow(nullptr));
    EXPECT_FALSE(object.SubclassDlgItem(5, nullptr));
}

TEST(Life, parent_takes_its_subclassed_children_along)
{
    CLife child;
    HWND edit = nullptr;
    {
        CTop top;
        ASSERT_TRUE(top.make());
        edit = ::CreateWindowW(L"EDIT", L"", WS_CHILD, 0, 0, 50, 20, top.m_hWnd, reinterpret_cast<HMENU>(5), nullptr,
                               nullptr);
        ASSERT_TRUE(child.SubclassWindow(edit));
    }
    EXPECT_EQ(child.m_hWnd, nullptr);
    EXPECT_EQ(child.postNcDestroyCalls, 1);
    EXPECT_FALSE(::IsWindow(edit));
}

TEST(Life, combo_box_object_meets_the_combo_and_not_its_parts)
{
    CTop top;
    CChild combo;
    ASSERT_TRUE(top.make());
    ASSERT_TRUE(combo.make(top, 9, L"COMBOBOX", WS_CHILD | CBS_DROPDOWN));
    wchar_t name[16] = {};
    ::GetClassNameW(combo.m_hWnd, name, 16);
    EXPECT_STREQ(name, L"ComboBox");
    EXPECT_EQ(combo.GetDlgCtrlID(), 9);
}
