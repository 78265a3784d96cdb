// What combo boxes and list boxes do alike with their items; each test runs on both.
#include "Support.h"

namespace
{
const CRect place(10, 10, 210, 200);
constexpr int failed = -1; // both of LB_ERR and CB_ERR
constexpr UINT drawnHeight = 22;

/// The little that differs between the two.
template <class Box> struct Kind;

template <> struct Kind<CComboBox>
{
    static constexpr DWORD plain = CBS_DROPDOWN;
    static constexpr DWORD drawn = CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_SORT;
    static int length(CComboBox& box, int index) { return box.GetLBTextLen(index); }
    static int text(CComboBox& box, int index, wchar_t* buffer) { return box.GetLBText(index, buffer); }
    static void text(CComboBox& box, int index, CString& out) { box.GetLBText(index, out); }
    static void show(CComboBox& box)
    {
        box.SetCurSel(0);
        box.ShowDropDown();
        pumpFor(20);
        box.ShowDropDown(FALSE);
    }
};

template <> struct Kind<CListBox>
{
    static constexpr DWORD plain = LBS_NOTIFY;
    static constexpr DWORD drawn = LBS_OWNERDRAWVARIABLE | LBS_SORT;
    static int length(CListBox& box, int index) { return box.GetTextLen(index); }
    static int text(CListBox& box, int index, wchar_t* buffer) { return box.GetText(index, buffer); }
    static void text(CListBox& box, int index, CString& out) { box.GetText(index, out); }
    static void show(CListBox& box) { box.UpdateWindow(); }
};

template <class Box> class CDrawn : public Box
{
public:
    int drawn = 0;
    int measured = 0;
    int compared = 0;
    int deleted = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        ++measured;
        item->itemHeight = drawnHeight;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT items) override
    {
        ++compared;
        return items->itemData1 < items->itemData2 ? -1 : items->itemData1 > items->itemData2;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++deleted; }
};

template <class Box> class ListItems : public testing::Test
{
protected:
    using BoxKind = Kind<Box>;

    void SetUp() override
    {
        ASSERT_TRUE(m_box.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | BoxKind::plain, place, &m_parent, 5));
        for (const wchar_t* name : {L"alpha", L"beta", L"gamma", L"delta"})
            m_box.AddString(name);
    }
    std::wstring textOf(int index)
    {
        CString text(L"before");
        BoxKind::text(m_box, index, text);
        return plain(text);
    }

    CParentWindow m_parent;
    Box m_box;
};

using Boxes = testing::Types<CComboBox, CListBox>;
TYPED_TEST_SUITE(ListItems, Boxes);
} // namespace

TYPED_TEST(ListItems, strings_are_added_inserted_found_and_deleted)
{
    auto& box = this->m_box;
    EXPECT_EQ(4, box.GetCount());
    EXPECT_EQ(1, box.InsertString(1, L"aleph"));
    EXPECT_EQ(5, box.InsertString(-1, L"omega"));
    EXPECT_EQ(1, box.FindString(0, L"al"));
    EXPECT_EQ(0, box.FindString(1, L"alp")) << "the search wraps to the top";
    EXPECT_EQ(2, box.FindStringExact(-1, L"BETA"));
    EXPECT_EQ(failed, box.FindStringExact(-1, L"bet"));
    EXPECT_EQ(2, box.SelectString(-1, L"be"));
    EXPECT_EQ(2, box.GetCurSel());
    EXPECT_EQ(5, box.DeleteString(0));
    EXPECT_EQ(failed, box.DeleteString(99));
    box.ResetContent();
    EXPECT_EQ(0, box.GetCount());
}

TYPED_TEST(ListItems, texts_of_any_length_and_of_no_item)
{
    using Its = typename TestFixture::BoxKind;
    auto& box = this->m_box;
    const std::wstring longer(100000, L'z');
    const int index = box.AddString(longer.c_str());
    EXPECT_EQ(100000, Its::length(box, index));
    EXPECT_EQ(longer, this->textOf(index));
    EXPECT_EQ(L"", this->textOf(99));
    EXPECT_EQ(L"", this->textOf(-1));
    wchar_t buffer[16] = {};
    EXPECT_EQ(5, Its::text(box, 0, buffer));
    EXPECT_STREQ(L"alpha", buffer);
    EXPECT_EQ(failed, Its::text(box, 99, buffer));
    EXPECT_EQ(failed, Its::text(box, 0, static_cast<wchar_t*>(nullptr)));
    EXPECT_EQ(failed, Its::length(box, 99));
    box.AddString(L"");
    EXPECT_EQ(L"", this->textOf(5));
}

TYPED_TEST(ListItems, data)
{
    auto& box = this->m_box;
    EXPECT_NE(failed, box.SetItemData(1, 0x123456789ULL));
    EXPECT_EQ(0x123456789ULL, box.GetItemData(1));
    int value = 0;
    box.SetItemDataPtr(2, &value);
    EXPECT_EQ(&value, box.GetItemDataPtr(2));
    EXPECT_EQ(static_cast<DWORD_PTR>(failed), box.GetItemData(99));
    EXPECT_EQ(failed, box.SetItemData(99, 1));
}

TYPED_TEST(ListItems, one_selection)
{
    auto& box = this->m_box;
    EXPECT_EQ(failed, box.GetCurSel());
    EXPECT_EQ(3, box.SetCurSel(3));
    EXPECT_EQ(3, box.GetCurSel());
    EXPECT_EQ(failed, box.SetCurSel(-1));
    EXPECT_EQ(failed, box.SetCurSel(99));
    EXPECT_EQ(failed, box.GetCurSel());
}

TYPED_TEST(ListItems, owner_drawn_asks_its_class)
{
    using Its = typename TestFixture::BoxKind;
    CDrawn<TypeParam> box;
    ASSERT_TRUE(box.Create(WS_CHILD | WS_VISIBLE | Its::drawn, place, &this->m_parent, 6));
    for (const UINT_PTR value : {30, 10, 20})
        box.AddString(reinterpret_cast<LPCTSTR>(value));
    EXPECT_EQ(10U, box.GetItemData(0));
    EXPECT_EQ(20U, box.GetItemData(1));
    EXPECT_EQ(30U, box.GetItemData(2));
    EXPECT_GE(box.measured, 3);
    EXPECT_GE(box.compared, 2);
    EXPECT_EQ(static_cast<int>(drawnHeight), box.GetItemHeight(0));
    Its::show(box);
    EXPECT_GE(box.drawn, 3);
    box.ResetContent();
    EXPECT_GE(box.deleted, 3);
}

TYPED_TEST(ListItems, without_a_window_everything_is_zero)
{
    TypeParam box;
    EXPECT_EQ(0, box.GetCount());
    CString text(L"before");
    TestFixture::BoxKind::text(box, 0, text);
    EXPECT_TRUE(text.IsEmpty());
}
