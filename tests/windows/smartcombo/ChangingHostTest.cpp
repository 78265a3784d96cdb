// Hosts that change the control while it tells them something, give it its own lists, and walk at random.
#include <gtest/gtest.h>
#include <random>
#include "SmartHost.h"

namespace
{
void notify(SmartHost& host, WORD code)
{
    const HWND combo = host.combo().m_hWnd;
    ::SendMessageW(host.smart->m_hWnd, WM_COMMAND, MAKEWPARAM(1008, code), reinterpret_cast<LPARAM>(combo));
}

/// The values of the control's own list and of the combo box, both in the order of their characters.
std::pair<std::vector<std::wstring>, std::vector<std::wstring>> bothLists(SmartHost& host)
{
    std::pair<std::vector<std::wstring>, std::vector<std::wstring>> both;
    const CStringList& list = host.data().list;
    for (POSITION place = list.GetHeadPosition(); place != nullptr;)
        both.first.emplace_back(list.GetNext(place));
    for (int i = 0; i < host.combo().GetCount(); ++i)
    {
        CString text;
        host.combo().GetLBText(i, text);
        both.second.emplace_back(text);
    }
    std::sort(both.first.begin(), both.first.end());
    std::sort(both.second.begin(), both.second.end());
    return both;
}

/// One of the ways in which a host changes everything.
void change(SmartHost& host, int way)
{
    CStringList formats;
    fillList(formats, L"[(C)1] [(A)3] [(N)2]");
    switch (way)
    {
    case 0:
        host.smart->ResetContent();
        break;
    case 1:
        host.smart->SetListFilterString(CStringList());
        host.smart->SetFormatEmpty();
        break;
    case 2:
        host.smart->SetFormat(L"[(A)x]");
        host.remember(L"Z Y X");
        break;
    case 3:
        host.smart->SetBitmapFormatList(formats, IDB_TILES, 3, L"a;b;c", 2);
        break;
    case 4:
        host.smart->ClearControl();
        host.smart->SortCombo();
        host.smart->SetVisibleAddDelete(0);
        break;
    default:
        host.smart->DeleteStringCombo(0U);
        host.smart->SetDoubleBitmap(formats, IDI_BOLT, IDB_MASKED);
        break;
    }
}
} // namespace

TEST(ChangingHost, may_change_formats_and_values_within_each_message)
{
    for (int way = 0; way < 6; ++way)
    {
        SmartHost host;
        host.remember(L"A B");
        host.alternatives(L"[(N)2]");
        host.smart->SetAutoAddOnSelChange(1);
        std::vector<UINT> heard;
        host.onHear = [&](const Heard& one)
        {
            heard.push_back(one.message);
            change(host, way);
        };
        host.smart->SetFormat(L"[(N)2]");
        host.combo().SetCurSel(1);
        host.combo().SetWindowText(L"12");
        notify(host, CBN_SELCHANGE); // 1030: the text fits
        host.combo().SetWindowText(L"zzzz");
        notify(host, CBN_SELCHANGE); // 1031 or 1030, as the new format says
        notify(host, CBN_SELENDOK);
        notify(host, CBN_EDITUPDATE);
        host.smart->SendMessage(0x405, 1009, 0);
        host.onHear = nullptr;
        ASSERT_TRUE(::IsWindow(host.smart->m_hWnd));
        EXPECT_EQ(heard.size(), 5U) << way;
        EXPECT_EQ(heard[0], 1030U);
        const auto [list, items] = bothLists(host);
        EXPECT_EQ(list, items) << way;
    }
}

TEST(ChangingHost, may_give_the_control_its_own_lists)
{
    SmartHost host;
    SmartComboData& data = host.data();
    host.remember(L"B A");
    host.smart->SetStringCombo(data.list);
    EXPECT_EQ(host.shown(), L"A B / A B / ");
    int index = 0;
    host.smart->GetStringCombo(data.list, index, 0, 0);
    EXPECT_EQ(host.shown(), L"A B / A B / ");
    host.alternatives(L"[(C)1] [(N)2]");
    host.smart->SetListFilterString(data.formatList);
    host.smart->SetListFilterString(data.filterList);
    EXPECT_EQ(data.formatList.GetCount(), 2);
    host.smart->GetListFilterString(data.formatList);
    EXPECT_EQ(data.formatList.GetCount(), 4);
    host.smart->SetBitmapFormatList(data.formatList, IDB_TILES, 3, CString(), 1);
    EXPECT_EQ(data.formatList.GetCount(), 4);
    EXPECT_EQ(host.smart->GetFormat(), L"[(N)2]");
    host.smart->SetBitmapOnly(data.formatList, IDB_MASKED);
    EXPECT_EQ(data.formatList.GetCount(), 8);
    host.smart->SetDoubleBitmap(data.formatList, IDI_BOLT, IDB_MASKED);
    EXPECT_EQ(data.formatList.GetCount(), 16);
    EXPECT_EQ(data.formatList.GetTail(), L"[(N)2]");
}

// The palette raises for the cell without a caption; the framework reports that, and the control goes on.
TEST(ChangingHost, may_give_fewer_captions_than_pictures)
{
    SmartHost host;
    CStringList formats;
    fillList(formats, L"[(C)1] [(N)2] [(A)3]");
    host.smart->SetBitmapFormatList(formats, IDB_TILES, 3, L"one", 0);
    CRect face;
    ::GetWindowRect(host.child(1009), &face);
    const AnswerModal answered(IDOK);
    moveTo({face.left + 7, face.top + 8});
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    moveTo({face.left + 2 + 26 + 12, face.bottom + 14}); // the second of two columns, which has none
    pumpFor(30);
    mouseButton(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(host.heard, (std::vector<Heard>{{1029, IDC_SMART, 1}}));
    EXPECT_EQ(host.smart->GetFormat(), L"[(N)2]");
    host.smart->SetFormatEmpty();
    host.type(L"7");
    host.clickAdd();
    EXPECT_EQ(host.shown().substr(0, 3), L"[7]");
}

// Whatever host and user do: the list and the combo box hold the same values.
TEST(ChangingHost, may_walk_at_random)
{
    const wchar_t* const texts[] = {L"12", L"1-2", L"ab", L"AB", L"##", L"", L"x ", L"7", L"\u00e9"};
    std::mt19937 random(20261122); // a fixed seed
    const auto below = [&random](unsigned int bound) { return static_cast<int>(random() % bound); };
    SmartHost host;
    host.alternatives(L"[(N)1]-[(N)1] [(C)1]-[(C)x] [(N)2]");
    host.smart->SetAutoAddOnSelChange(1);
    const AnswerModal answered(IDYES);
    const WORD keys[] = {VK_DOWN, VK_UP, VK_F4, VK_RETURN, VK_ESCAPE, VK_TAB, VK_SPACE, VK_DELETE, VK_HOME, 'A', '1'};
    std::size_t most = 0;
    for (int round = 0; round < 600; ++round)
    {
        const CString text = texts[below(std::size(texts))];
        int valid = 0, toggled = 0;
        bool fits = false;
        CString read;
        switch (below(16))
        {
        case 0:
            host.smart->SetFormat(below(2) == 0 ? L"[(N)1]-[(N)1]" : L"[(N)2]");
            break;
        case 1:
            host.smart->SetFormatEmpty();
            break;
        case 2:
            host.smart->GetText(read, below(2), valid, toggled);
            break;
        case 3:
            host.smart->SortCombo();
            break;
        case 4:
            host.smart->SetCurSel(below(6) - 1);
            break;
        case 5:
            host.smart->ClearControl();
            break;
        case 6:
            host.smart->SetSelectText(text);
            host.smart->SendMessage(WM_COMMAND, 1006, 0);
            break;
        case 7:
            host.smart->SendMessage(WM_COMMAND, 1007, 0);
            break;
        case 8:
            change(host, 3 + below(3));
            break;
        case 9:
            host.smart->GetSelectText(read, fits);
            break;
        case 10:
            host.smart->SetVisibleAddDelete(below(2));
            host.smart->SetEnableAddDelete(below(2), below(2));
            break;
        case 11:
            host.smart->AddStringCombo(text);
            break;
        default:
            SmartHost::press(keys[below(std::size(keys))]);
            break;
        }
        ASSERT_TRUE(::IsWindow(host.smart->m_hWnd)) << round;
        const auto [list, items] = bothLists(host);
        ASSERT_EQ(list, items) << round;
        most = std::max(most, list.size());
    }
    EXPECT_GT(most, 4U);
}
