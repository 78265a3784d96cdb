// Property sheets among pages and hosts that end them in the middle of something.
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "SheetFixture.h"
#include "support/Guarded.h"

namespace
{
/// Where a page does its mischief.
enum class At
{
    Nowhere,
    Init,
    Active,
    Left,
    Apply,
    Query,
    Reset,
    Back,
    Next,
    Finish,
    Color
};

/// Does something once, at one of its notifications, and touches itself no more.
class CTrapPage : public CPropertyPage
{
public:
    At at = At::Nowhere;
    std::function<void()> act;
    bool* deleted = nullptr;

    explicit CTrapPage(UINT id = IDD_PAGE_ONE) : CPropertyPage(id) {}
    ~CTrapPage() override
    {
        if (deleted != nullptr)
            *deleted = true;
    }

    BOOL OnInitDialog() override
    {
        const BOOL answer = CPropertyPage::OnInitDialog();
        return sprung(At::Init) ? TRUE : answer;
    }
    BOOL OnSetActive() override { return sprung(At::Active) ? TRUE : CPropertyPage::OnSetActive(); }
    BOOL OnKillActive() override { return sprung(At::Left) ? TRUE : CPropertyPage::OnKillActive(); }
    BOOL OnApply() override { return sprung(At::Apply) ? TRUE : CPropertyPage::OnApply(); }
    BOOL OnQueryCancel() override { return sprung(At::Query) ? TRUE : CPropertyPage::OnQueryCancel(); }
    void OnReset() override
    {
        if (!sprung(At::Reset))
            CPropertyPage::OnReset();
    }
    LRESULT OnWizardBack() override { return sprung(At::Back) ? 0 : CPropertyPage::OnWizardBack(); }
    LRESULT OnWizardNext() override { return sprung(At::Next) ? 0 : CPropertyPage::OnWizardNext(); }
    BOOL OnWizardFinish() override { return sprung(At::Finish) ? TRUE : CPropertyPage::OnWizardFinish(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC && sprung(At::Color))
            return 0;
        return CPropertyPage::WindowProc(message, wParam, lParam);
    }

private:
    bool sprung(At here)
    {
        if (here != at || !act)
            return false;
        const std::function<void()> now = std::exchange(act, nullptr);
        now();
        return true;
    }
};
using Trap = Guarded<CTrapPage>;
using Standing = Guarded<CPropertySheet>;

enum class Way
{
    DestroySheet,
    DestroyOwner,
    RemoveThis,
    RemoveOther,
    DeleteThis,
    DeleteOther,
    DeleteSheet,
    EndDialog,
    AddPage,
    ShowAnother,
    Count
};

/// Everything that a page can do to its surroundings.
struct Scene
{
    std::unique_ptr<Owner> owner = std::make_unique<Owner>();
    std::unique_ptr<Standing> sheet = std::make_unique<Standing>(L"Beside");
    std::unique_ptr<Trap> pages[3] = {std::make_unique<Trap>(), std::make_unique<Trap>(),
                                      std::make_unique<Trap>(IDD_PAGE_TWO)};
    std::unique_ptr<Trap> later = std::make_unique<Trap>();
    bool sprung = false;

    Scene()
    {
        for (const auto& page : pages)
            sheet->AddPage(page.get());
    }
    void set(int which, At at, Way way)
    {
        pages[which]->at = at;
        pages[which]->act = [this, which, way]
        {
            sprung = true;
            act(which, way);
        };
    }
    void act(int which, Way way)
    {
        const int other = which == 2 ? 0 : which + 1;
        switch (way)
        {
        case Way::DestroySheet:
            sheet->DestroyWindow();
            break;
        case Way::DestroyOwner:
            owner->wnd.DestroyWindow();
            break;
        case Way::RemoveThis:
            sheet->RemovePage(pages[which].get());
            break;
        case Way::RemoveOther:
            sheet->RemovePage(pages[other].get());
            break;
        case Way::DeleteThis:
            pages[which].reset();
            break;
        case Way::DeleteOther:
            pages[other].reset();
            break;
        case Way::DeleteSheet:
            sheet.reset();
            break;
        case Way::EndDialog:
            sheet->EndDialog(5);
            break;
        case Way::AddPage:
            sheet->AddPage(later.get());
            break;
        default:
            sheet->SetActivePage(other);
            break;
        }
    }
    void press(int button)
    {
        if (sheet != nullptr)
            sheet->PressButton(button);
    }
    void show(int page)
    {
        if (sheet != nullptr)
            sheet->SetActivePage(page);
    }
    /// What a sheet that still stands shows is one of its pages.
    void check() const
    {
        if (sheet == nullptr || sheet->m_hWnd == nullptr)
            return;
        EXPECT_EQ(sheet->GetTabControl()->GetItemCount(), sheet->GetPageCount());
        for (int i = 0; i < sheet->GetPageCount(); ++i)
            EXPECT_NE(sheet->GetPage(i), nullptr);
    }
};
} // namespace

TEST(HostileSheets, a_page_may_end_anything_at_any_notification)
{
    for (const At at : {At::Init, At::Active, At::Left, At::Apply, At::Query, At::Reset, At::Color})
        for (int way = 0; way < static_cast<int>(Way::Count); ++way)
            for (const int which : {0, 1, 2})
            {
                SCOPED_TRACE(testing::Message()
                             << "at " << static_cast<int>(at) << " way " << way << " page " << which);
                Scene scene;
                scene.set(which, at, static_cast<Way>(way));
                scene.sheet->Create(&scene.owner->wnd);
                scene.show(which);
                pumpFor(0);
                scene.press(PSBTN_APPLYNOW);
                scene.show(which == 2 ? 0 : which + 1);
                scene.show(which);
                scene.press(PSBTN_CANCEL);
                pumpFor(0);
                EXPECT_TRUE(scene.sprung);
                scene.check();
            }
}

TEST(HostileSheets, a_wizards_page_may_end_anything_at_any_button)
{
    for (const At at : {At::Back, At::Next, At::Finish, At::Left, At::Active})
        for (int way = 0; way < static_cast<int>(Way::Count); ++way)
        {
            SCOPED_TRACE(testing::Message() << "at " << static_cast<int>(at) << " way " << way);
            Scene scene;
            scene.sheet->SetWizardMode();
            scene.set(1, at, static_cast<Way>(way));
            scene.sheet->Create(&scene.owner->wnd);
            for (const int button : {PSBTN_NEXT, at == At::Back ? PSBTN_BACK : PSBTN_NEXT, PSBTN_BACK})
                scene.press(button);
            scene.show(1);
            scene.press(PSBTN_FINISH);
            pumpFor(0);
            EXPECT_TRUE(scene.sprung);
            scene.check();
        }
}

TEST(HostileSheets, a_sheet_that_a_page_ends_is_hidden_and_ends_when_the_loop_comes_round)
{
    for (const Way way : {Way::DestroySheet, Way::DestroyOwner, Way::EndDialog, Way::DeleteSheet})
    {
        SCOPED_TRACE(static_cast<int>(way));
        Scene scene;
        scene.set(0, At::Left, way);
        ASSERT_TRUE(scene.sheet->Create(&scene.owner->wnd));
        const HWND wnd = scene.sheet->m_hWnd;
        scene.show(1);
        EXPECT_TRUE(scene.sprung);
        EXPECT_FALSE(::IsWindowVisible(wnd));
        EXPECT_TRUE(waitFor([&] { return ::IsWindow(wnd) == FALSE; }));
        EXPECT_TRUE(scene.sheet == nullptr || scene.sheet->m_hWnd == nullptr);
    }
}

TEST(HostileSheets, a_modal_sheet_may_be_ended_by_a_page_that_is_left)
{
    for (const bool byWindow : {true, false})
    {
        Owner owner;
        Sheet sheet(L"Sheet", &owner.wnd);
        Trap one, two;
        sheet.AddPage(&one);
        sheet.AddPage(&two);
        one.at = At::Left;
        one.act = [&]
        {
            if (byWindow)
                sheet.DestroyWindow();
            else
                sheet.EndDialog(31);
        };
        sheet.steps = {[&] { sheet.SetActivePage(1); }};
        const INT_PTR answer = sheet.DoModal();
        EXPECT_TRUE(byWindow || answer == 31) << answer;
        EXPECT_EQ(sheet.m_hWnd, nullptr);
        EXPECT_TRUE(owner.wnd.IsWindowEnabled());
    }
}

TEST(HostileSheets, one_that_deletes_itself_with_its_window_is_not_touched_again)
{
    class COwnSheet : public CPropertySheet
    {
    public:
        using CPropertySheet::CPropertySheet;
        bool* deleted = nullptr;

    protected:
        void PostNcDestroy() override
        {
            *deleted = true;
            delete this;
        }
    };
    for (const At at : {At::Init, At::Left, At::Nowhere})
    {
        Owner owner;
        Trap one, two;
        bool deleted = false;
        auto* sheet = new Guarded<COwnSheet>(L"Own");
        sheet->deleted = &deleted;
        sheet->AddPage(&one);
        sheet->AddPage(&two);
        one.at = at;
        one.act = [&] { sheet->DestroyWindow(); };
        const BOOL made = sheet->Create(&owner.wnd);
        EXPECT_EQ(made, at != At::Init);
        if (at == At::Left)
            sheet->SetActivePage(1);
        else if (at == At::Nowhere)
            sheet->SendMessage(WM_CLOSE);
        EXPECT_TRUE(waitFor([&] { return deleted; })) << static_cast<int>(at);
    }
}

TEST(HostileSheets, a_hundred_pages_are_shown_and_taken_away)
{
    Owner owner;
    CPropertySheet sheet(L"Many");
    std::vector<std::unique_ptr<Trap>> pages;
    for (int i = 0; i < 100; ++i)
    {
        pages.push_back(std::make_unique<Trap>(i % 2 == 0 ? IDD_PAGE_ONE : IDD_PAGE_TWO));
        sheet.AddPage(pages.back().get());
    }
    sheet.SetActivePage(99);
    ASSERT_TRUE(sheet.Create(&owner.wnd));
    EXPECT_EQ(sheet.GetActiveIndex(), 99);
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 100);
    pages.resize(60); // the shown one is among those that go
    EXPECT_EQ(sheet.GetPageCount(), 60);
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 60);
    EXPECT_NE(sheet.GetActivePage(), nullptr);
    while (sheet.GetPageCount() > 0)
        sheet.RemovePage(0);
    EXPECT_EQ(sheet.GetActivePage(), nullptr);
    EXPECT_FALSE(sheet.SetActivePage(0));
    pumpFor(0);
    sheet.AddPage(pages[3].get());
    EXPECT_EQ(sheet.GetPageCount(), 1);
    sheet.DestroyWindow();
    EXPECT_EQ(sheet.GetPageCount(), 1);
}

// A walk that is the same each time.
TEST(HostileSheets, survive_any_order_of_calls)
{
    std::uint32_t seed = 20261122;
    const auto pick = [&](std::uint32_t count)
    {
        seed = seed * 1664525U + 1013904223U;
        return static_cast<int>((seed >> 8) % count);
    };
    for (int round = 0; round < 30; ++round)
    {
        SCOPED_TRACE(round);
        Scene scene;
        if (round % 3 == 0)
            scene.sheet->SetWizardMode();
        for (int step = 0; step < 25; ++step)
        {
            CPropertySheet& sheet = *scene.sheet;
            const int which = pick(3);
            const auto anyPage = [&] { return scene.pages[which].get(); };
            switch (pick(16))
            {
            case 0:
                sheet.Create(pick(2) == 0 ? &scene.owner->wnd : nullptr);
                break;
            case 1:
                sheet.AddPage(anyPage());
                break;
            case 2:
                sheet.RemovePage(pick(5) - 1);
                break;
            case 3:
                scene.pages[which] = std::make_unique<Trap>(pick(8) == 0 ? 9999 : IDD_PAGE_TWO);
                break;
            case 4:
                sheet.PressButton(pick(10) - 1);
                break;
            case 5:
                sheet.SetWizardButtons(static_cast<DWORD>(pick(32)));
                break;
            case 6:
                sheet.SetFinishText(pick(2) == 0 ? nullptr : L"Done");
                break;
            case 7:
                sheet.SetTitle(L"Title", static_cast<UINT>(pick(4)));
                break;
            case 8:
                if (CPropertyPage* page = sheet.GetActivePage())
                    page->SetModified(pick(2));
                break;
            case 9:
                if (CPropertyPage* page = anyPage())
                    page->CancelToClose();
                break;
            case 10:
                if (scene.pages[which] != nullptr)
                    scene.set(which, static_cast<At>(1 + pick(10)),
                              static_cast<Way>(pick(2) * 5)); // other page or window
                break;
            case 11:
                pumpFor(0);
                break;
            case 12:
                if (pick(4) == 0)
                    sheet.DestroyWindow();
                break;
            default:
                sheet.SetActivePage(pick(5) - 1);
                break;
            }
        }
        pumpFor(0);
        for (int i = 0; i < scene.sheet->GetPageCount(); ++i)
            EXPECT_EQ(scene.sheet->GetPageIndex(scene.sheet->GetPage(i)), i);
        scene.sheet->DestroyWindow();
        EXPECT_EQ(scene.sheet->m_hWnd, nullptr);
    }
}
