// List views and headers.
#include "Support.h"
#include "resource.h"

#include <memory>

namespace
{
class CTable : public CListCtrl
{
public:
    explicit CTable(CWnd& parent, DWORD style = LVS_REPORT)
    {
        Create(WS_CHILD | WS_VISIBLE | style, CRect(10, 10, 310, 250), &parent, 5);
        InsertColumn(0, L"name", LVCFMT_LEFT, 120);
        InsertColumn(1, L"value", LVCFMT_RIGHT, 80, 1);
        for (const wchar_t* name : {L"one", L"two", L"three"})
            InsertItem(GetItemCount(), name);
    }
};

class CColumns : public CHeaderCtrl
{
public:
    int drawn = 0;
    explicit CColumns(CWnd& parent)
    {
        Create(WS_CHILD | WS_VISIBLE | HDS_HORZ, CRect(0, 0, 300, 24), &parent, 5);
        add(L"first", 50);
        add(L"second", 70);
        add(L"third", 90);
    }
    int add(const wchar_t* text, int width, int format = 0)
    {
        HDITEM item = {};
        item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
        item.pszText = const_cast<wchar_t*>(text);
        item.cxy = width;
        item.fmt = format;
        return InsertItem(GetItemCount(), &item);
    }
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
};

int CALLBACK byData(LPARAM one, LPARAM other, LPARAM sign)
{
    return static_cast<int>((one - other) * sign);
}
} // namespace

TEST(ListView, items_and_texts)
{
    CParentWindow parent;
    CTable list(parent);
    EXPECT_EQ(3, list.GetItemCount());
    EXPECT_EQ(L"two", plain(list.GetItemText(1, 0)));
    EXPECT_TRUE(list.SetItemText(1, 1, L"2"));
    EXPECT_EQ(L"2", plain(list.GetItemText(1, 1)));
    EXPECT_TRUE(list.GetItemText(99, 0).IsEmpty());
    EXPECT_TRUE(list.GetItemText(0, 99).IsEmpty());
    EXPECT_FALSE(list.SetItemText(99, 0, L"x"));
    wchar_t buffer[4] = {};
    EXPECT_EQ(3, list.GetItemText(2, 0, buffer, 4));
    EXPECT_STREQ(L"thr", buffer);
    EXPECT_EQ(0, list.GetItemText(2, 0, buffer, 0));
    const std::wstring longer(1000, L'l');
    list.SetItemText(0, 0, longer.c_str());
    EXPECT_FALSE(list.GetItemText(0, 0).IsEmpty());
}

TEST(ListView, data_states_and_checks)
{
    CParentWindow parent;
    CTable list(parent);
    EXPECT_TRUE(list.SetItemData(1, 0x1234567890ULL));
    EXPECT_EQ(0x1234567890ULL, list.GetItemData(1));
    EXPECT_EQ(0U, list.GetItemData(99));
    EXPECT_EQ(0U, list.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT));
    EXPECT_EQ(static_cast<DWORD>(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT), list.GetExtendedStyle());
    EXPECT_FALSE(list.GetCheck(0));
    EXPECT_TRUE(list.SetCheck(0));
    EXPECT_TRUE(list.GetCheck(0));
    EXPECT_TRUE(list.SetCheck(0, FALSE));
    EXPECT_FALSE(list.GetCheck(0));
    EXPECT_FALSE(list.GetCheck(99));
}

TEST(ListView, selection_is_walked_by_position)
{
    CParentWindow parent;
    CTable list(parent);
    EXPECT_EQ(nullptr, list.GetFirstSelectedItemPosition());
    EXPECT_TRUE(list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_TRUE(list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ(2U, list.GetSelectedCount());
    POSITION position = list.GetFirstSelectedItemPosition();
    ASSERT_NE(nullptr, position);
    EXPECT_EQ(0, list.GetNextSelectedItem(position));
    ASSERT_NE(nullptr, position);
    EXPECT_EQ(2, list.GetNextSelectedItem(position));
    EXPECT_EQ(nullptr, position);
    EXPECT_EQ(-1, list.GetNextSelectedItem(position));
    EXPECT_EQ(0, list.GetNextItem(-1, LVNI_SELECTED));
    EXPECT_EQ(static_cast<UINT>(LVIS_SELECTED), list.GetItemState(2, LVIS_SELECTED));
}

TEST(ListView, columns)
{
    CParentWindow parent;
    CTable list(parent);
    EXPECT_EQ(120, list.GetColumnWidth(0));
    EXPECT_TRUE(list.SetColumnWidth(0, 60));
    EXPECT_EQ(60, list.GetColumnWidth(0));
    wchar_t text[32] = {};
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = text;
    column.cchTextMax = 32;
    EXPECT_TRUE(list.GetColumn(1, &column));
    EXPECT_STREQ(L"value", column.pszText);
    EXPECT_EQ(LVCFMT_RIGHT, column.fmt & LVCFMT_JUSTIFYMASK);
    EXPECT_FALSE(list.GetColumn(1, nullptr));
    CHeaderCtrl* const header = list.GetHeaderCtrl();
    ASSERT_NE(nullptr, header);
    EXPECT_EQ(2, header->GetItemCount());
    int order[2] = {1, 0};
    EXPECT_TRUE(list.SetColumnOrderArray(2, order));
    int read[2] = {};
    EXPECT_TRUE(list.GetColumnOrderArray(read));
    EXPECT_EQ(1, read[0]);
    EXPECT_FALSE(list.GetColumnOrderArray(read, 1)) << "too little room";
    EXPECT_TRUE(list.DeleteColumn(1));
    EXPECT_FALSE(list.DeleteColumn(99));
}

TEST(ListView, rectangles_and_hits)
{
    CParentWindow parent;
    CTable list(parent);
    CRect bounds;
    EXPECT_TRUE(list.GetItemRect(1, &bounds, LVIR_BOUNDS));
    EXPECT_EQ(200, bounds.Width());
    EXPECT_EQ(1, list.HitTest(CPoint(bounds.left + 10, bounds.CenterPoint().y)));
    EXPECT_EQ(-1, list.HitTest(CPoint(10, 230)));
    CRect cell;
    EXPECT_TRUE(list.GetSubItemRect(1, 1, LVIR_BOUNDS, cell));
    EXPECT_EQ(80, cell.Width());
    LVHITTESTINFO hit = {};
    hit.pt = cell.CenterPoint();
    EXPECT_EQ(1, list.SubItemHitTest(&hit));
    EXPECT_EQ(1, hit.iSubItem);
    EXPECT_FALSE(list.GetItemRect(99, &bounds, LVIR_BOUNDS));
    EXPECT_FALSE(list.GetItemRect(0, nullptr, LVIR_BOUNDS));
    EXPECT_GT(list.GetCountPerPage(), 3);
    EXPECT_GT(list.GetStringWidth(L"wide text"), list.GetStringWidth(L"w"));
}

TEST(ListView, finding_and_sorting)
{
    CParentWindow parent;
    CTable list(parent);
    LVFINDINFO find = {};
    find.flags = LVFI_STRING;
    find.psz = L"three";
    EXPECT_EQ(2, list.FindItem(&find));
    EXPECT_EQ(-1, list.FindItem(nullptr));
    for (int i = 0; i < 3; ++i)
        list.SetItemData(i, static_cast<DWORD_PTR>(i));
    EXPECT_TRUE(list.SortItems(byData, static_cast<DWORD_PTR>(-1)));
    EXPECT_EQ(L"three", plain(list.GetItemText(0, 0)));
    EXPECT_FALSE(list.SortItems(nullptr, 0));
}

TEST(ListView, deleting_and_inserting)
{
    CParentWindow parent;
    CTable list(parent);
    EXPECT_TRUE(list.DeleteItem(0));
    EXPECT_FALSE(list.DeleteItem(99));
    EXPECT_EQ(2, list.InsertItem(99, L"last"));
    EXPECT_EQ(0, list.InsertItem(0, L"image", 1));
    LVITEM item = {};
    item.mask = LVIF_IMAGE;
    EXPECT_TRUE(list.GetItem(&item));
    EXPECT_EQ(1, item.iImage);
    EXPECT_TRUE(list.DeleteAllItems());
    EXPECT_EQ(0, list.GetItemCount());
    EXPECT_EQ(-1, list.InsertItem(static_cast<const LVITEM*>(nullptr)));
}

TEST(ListView, image_lists_that_have_an_owner_survive)
{
    CParentWindow parent;
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 8, 1, RGB(255, 0, 255)));
    {
        CTable list(parent);
        EXPECT_EQ(nullptr, list.SetImageList(&images, LVSIL_SMALL));
        EXPECT_EQ(&images, list.GetImageList(LVSIL_SMALL));
    }
    EXPECT_EQ(3, images.GetImageCount());
}

TEST(ListView, labels_drags_and_colours)
{
    CParentWindow parent;
    CTable list(parent, LVS_REPORT | LVS_EDITLABELS);
    parent.SetForegroundWindow();
    list.SetFocus();
    CEdit* const edit = list.EditLabel(1);
    ASSERT_NE(nullptr, edit);
    list.CancelEditLabel();
    EXPECT_EQ(nullptr, list.GetEditControl());
    EXPECT_TRUE(list.SetBkColor(green));
    EXPECT_EQ(green, list.GetBkColor());
    EXPECT_TRUE(list.SetTextColor(red));
    EXPECT_EQ(red, list.GetTextColor());
    EXPECT_TRUE(list.SetTextBkColor(blue));
    EXPECT_EQ(blue, list.GetTextBkColor());
    EXPECT_TRUE(list.EnsureVisible(2, FALSE));
    EXPECT_TRUE(list.RedrawItems(0, 2));
    EXPECT_EQ(0, list.GetTopIndex());
    EXPECT_EQ(nullptr, list.CreateDragImage(0, nullptr));
}

TEST(Header, items_are_inserted_read_and_deleted)
{
    CParentWindow parent;
    CColumns header(parent);
    EXPECT_EQ(3, header.GetItemCount());
    wchar_t text[32] = {};
    HDITEM item = {};
    item.mask = HDI_TEXT | HDI_WIDTH;
    item.pszText = text;
    item.cchTextMax = 32;
    EXPECT_TRUE(header.GetItem(1, &item));
    EXPECT_STREQ(L"second", item.pszText);
    EXPECT_EQ(70, item.cxy);
    item.mask = HDI_WIDTH;
    item.cxy = 99;
    EXPECT_TRUE(header.SetItem(1, &item));
    CRect rect;
    EXPECT_TRUE(header.GetItemRect(1, &rect));
    EXPECT_EQ(99, rect.Width());
    EXPECT_EQ(50, rect.left);
    EXPECT_TRUE(header.DeleteItem(0));
    EXPECT_EQ(2, header.GetItemCount());
    EXPECT_FALSE(header.DeleteItem(99));
    EXPECT_FALSE(header.GetItem(99, &item));
    EXPECT_FALSE(header.GetItem(0, nullptr));
    EXPECT_EQ(-1, header.InsertItem(0, nullptr));
}

TEST(Header, order_and_hits)
{
    CParentWindow parent;
    CColumns header(parent);
    int order[3] = {2, 0, 1};
    EXPECT_TRUE(header.SetOrderArray(3, order));
    int read[3] = {};
    EXPECT_TRUE(header.GetOrderArray(read));
    EXPECT_EQ(2, read[0]);
    EXPECT_EQ(2, header.OrderToIndex(0));
    EXPECT_FALSE(header.GetOrderArray(read, 2)) << "too little room";
    HDHITTESTINFO hit = {};
    hit.pt = CPoint(30, 10);
    EXPECT_EQ(2, header.HitTest(&hit));
    EXPECT_TRUE((hit.flags & HHT_ONHEADER) != 0);
}

TEST(Header, layout_images_margins_and_dividers)
{
    CParentWindow parent;
    CColumns header(parent);
    CRect area(0, 0, 200, 100);
    WINDOWPOS position = {};
    HDLAYOUT layout = {&area, &position};
    EXPECT_TRUE(header.Layout(&layout));
    EXPECT_EQ(200, position.cx);
    EXPECT_EQ(position.cy, area.top);
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 8, 1, RGB(255, 0, 255)));
    EXPECT_EQ(nullptr, header.SetImageList(&images));
    EXPECT_EQ(&images, header.GetImageList());
    header.SetImageList(nullptr);
    header.SetBitmapMargin(9);
    EXPECT_EQ(9, header.GetBitmapMargin());
    EXPECT_EQ(1, header.SetHotDivider(1));
    header.SetHotDivider(-1);
    const std::unique_ptr<CImageList> drag(header.CreateDragImage(0));
    EXPECT_NE(nullptr, drag);
}

TEST(Header, owner_drawn_items_are_drawn_by_their_class)
{
    CParentWindow parent;
    CColumns header(parent);
    header.add(L"own", 40, HDF_OWNERDRAW);
    header.Invalidate();
    header.UpdateWindow();
    EXPECT_GE(header.drawn, 1);
}
