// Clicks on the header and drags of its dividers, by a real mouse.
#include <gtest/gtest.h>
#include "FrameHost.h"

namespace
{
using Images = std::vector<int>;

/// Rows n2 n1 n3 with a second column that orders them otherwise.
OpenFrame& threeRows(FrameHost& host)
{
    OpenFrame& frame = host.usual();
    frame.addColumns(2, 120);
    const wchar_t* const names[] = {L"n2", L"n1", L"n3"};
    const wchar_t* const numbers[] = {L"2", L"10", L"1"};
    for (int i = 0; i < 3; ++i)
    {
        HTREEITEM row = frame.m_tree.InsertItem(names[i], TVI_ROOT, TVI_LAST);
        frame.m_tree.SetItemText(row, 1, numbers[i]);
    }
    return frame;
}

void clickColumn(OpenFrame& frame, int column)
{
    click(middleOfColumn(frame, column));
}
} // namespace

TEST(HeaderClick, sorts_ascending_then_descending_then_ascending)
{
    FrameHost host;
    OpenFrame& frame = threeRows(host);
    clickColumn(frame, 1);
    EXPECT_EQ(L"n3 n2 n1", frame.rows()); // 1 2 10
    EXPECT_EQ((Images{-1, 0}), frame.images());
    clickColumn(frame, 1);
    EXPECT_EQ(L"n1 n2 n3", frame.rows());
    EXPECT_EQ((Images{-1, 1}), frame.images());
    clickColumn(frame, 1);
    EXPECT_EQ(L"n3 n2 n1", frame.rows());
    EXPECT_EQ((Images{-1, 0}), frame.images());
}

TEST(HeaderClick, on_the_first_column_ever_inserted_begins_descending)
{
    FrameHost host;
    OpenFrame& frame = threeRows(host);
    EXPECT_EQ((Images{0, -1}), frame.images());
    clickColumn(frame, 0);
    EXPECT_EQ(L"n3 n2 n1", frame.rows());
    EXPECT_EQ((Images{1, -1}), frame.images());
}

TEST(HeaderClick, on_another_column_takes_the_image_away_from_the_first)
{
    FrameHost host;
    OpenFrame& frame = threeRows(host);
    clickColumn(frame, 1);
    clickColumn(frame, 0);
    EXPECT_EQ((Images{0, -1}), frame.images()) << "it had none, so it ascends";
    EXPECT_EQ(L"n1 n2 n3", frame.rows());
}

TEST(HeaderClick, with_sorting_off_changes_the_images_alone)
{
    FrameHost host;
    OpenFrame& frame = threeRows(host);
    frame.SetEnableTreeSort(false);
    clickColumn(frame, 1);
    EXPECT_EQ(L"n2 n1 n3", frame.rows());
    EXPECT_EQ((Images{-1, 0}), frame.images());
    clickColumn(frame, 1);
    EXPECT_EQ(L"n2 n1 n3", frame.rows());
    EXPECT_EQ((Images{-1, 1}), frame.images());
}

TEST(HeaderClick, sorts_the_levels_below_too)
{
    FrameHost host;
    OpenFrame& frame = threeRows(host);
    HTREEITEM const parent = frame.m_tree.GetRootItem();
    frame.m_tree.InsertItem(L"y", parent, TVI_LAST);
    frame.m_tree.InsertItem(L"z", parent, TVI_LAST);
    clickColumn(frame, 0);
    HTREEITEM const child = frame.m_tree.GetChildItem(parent);
    EXPECT_TRUE(frame.m_tree.GetItemText(child, 0) == L"z") << "descending";
}

TEST(HeaderClick, paints_the_tree_at_once)
{
    FrameHost host;
    OpenFrame& frame = threeRows(host);
    clickColumn(frame, 1);
    EXPECT_FALSE(frame.m_tree.GetUpdateRect(nullptr));
}

TEST(HeaderClick, cancels_an_open_edit)
{
    FrameHost host(IDD_FRAME_HOST, true);
    OpenFrame& frame = threeRows(host);
    frame.SetEnableTreeSort(false);
    frame.openEditor(CRect(10, 10, 60, 28));
    clickColumn(frame, 1);
    EXPECT_EQ(nullptr, frame.edit()) << "the images change items of the header, and that recalculates";
}

TEST(HeaderClick, is_not_told_to_the_parent)
{
    FrameHost host;
    OpenFrame& frame = threeRows(host);
    host.heard.clear();
    clickColumn(frame, 1);
    EXPECT_EQ(0, host.count(WM_NOTIFY, static_cast<UINT>(HDN_ITEMCLICK)));
    EXPECT_EQ(0, host.count(WM_NOTIFY, static_cast<UINT>(HDN_ITEMCHANGED)));
    EXPECT_GE(host.count(WM_NOTIFY, static_cast<UINT>(NM_RELEASEDCAPTURE)), 1) << "everything else is";
}

TEST(SortTree, goes_on_below_from_the_child_that_was_first)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(1, 120);
    HTREEITEM const top = frame.m_tree.InsertItem(L"top", TVI_ROOT, TVI_LAST);
    HTREEITEM const b = frame.m_tree.InsertItem(L"b", top, TVI_LAST);
    HTREEITEM const a = frame.m_tree.InsertItem(L"a", top, TVI_LAST);
    for (HTREEITEM const parent : {a, b})
        for (const wchar_t* text : {L"2", L"1"})
            frame.m_tree.InsertItem(text, parent, TVI_LAST);
    frame.SortTree(0, 1, top);
    EXPECT_EQ(a, frame.m_tree.GetChildItem(top));
    EXPECT_TRUE(frame.m_tree.GetItemText(frame.m_tree.GetChildItem(b), 0) == L"1");
    EXPECT_TRUE(frame.m_tree.GetItemText(frame.m_tree.GetChildItem(a), 0) == L"2")
        << "a was sorted in front of b, from which the walk goes on";
}

TEST(DividerDrag, wider_than_the_frame_brings_the_bar)
{
    FrameHost host;
    OpenFrame& frame = threeRows(host);
    EXPECT_TRUE(frame.barHidden());
    dragDivider(frame, 0, 90);
    EXPECT_EQ(210, frame.m_tree.GetColumnWidth(0));
    EXPECT_EQ(330, frame.m_tree.GetColumnsWidth());
    EXPECT_TRUE(frame.barShown());
    EXPECT_EQ(30, frame.upperEnd());
}

TEST(DividerDrag, narrower_than_the_frame_takes_the_bar_away)
{
    FrameHost host;
    OpenFrame& frame = threeRows(host);
    dragDivider(frame, 0, 90);
    dragDivider(frame, 0, -90);
    EXPECT_EQ(240, frame.m_tree.GetColumnsWidth());
    EXPECT_TRUE(frame.barHidden());
    EXPECT_EQ(0, frame.offset());
}

TEST(DividerDrag, at_the_right_end_keeps_the_last_column_at_the_edge)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 200);
    frame.addRows(1);
    frame.SendMessage(WM_HSCROLL, SB_RIGHT, reinterpret_cast<LPARAM>(frame.bar().m_hWnd));
    ASSERT_EQ(-300, frame.offset());
    dragDivider(frame, 2, -50);
    EXPECT_EQ(550, frame.m_tree.GetColumnsWidth());
    EXPECT_EQ(250, frame.upperEnd());
    EXPECT_EQ(-250, frame.offset());
    EXPECT_EQ(-250, frame.placeOf(frame.header()).left);
    EXPECT_EQ(250, frame.bar().GetScrollPos());
}

TEST(DividerDrag, elsewhere_leaves_the_offset)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 200);
    frame.addRows(1);
    frame.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 100), reinterpret_cast<LPARAM>(frame.bar().m_hWnd));
    ASSERT_EQ(-102, frame.offset());
    dragDivider(frame, 0, -20);
    EXPECT_EQ(280, frame.upperEnd());
    EXPECT_EQ(-102, frame.offset());
}

TEST(DividerDrag, cancels_an_open_edit_and_paints_the_tree_anew)
{
    FrameHost host(IDD_FRAME_HOST, true);
    OpenFrame& frame = threeRows(host);
    frame.openEditor(CRect(10, 10, 60, 28));
    frame.m_tree.ValidateRect(nullptr);
    frame.setColumnWidth(0, 121);
    EXPECT_EQ(nullptr, frame.edit());
    CRect stale;
    EXPECT_TRUE(frame.m_tree.GetUpdateRect(&stale));
    EXPECT_EQ(frame.treeClient(), stale.Size());
}

TEST(SortImages, a_column_without_one_reads_as_none)
{
    FrameHost host;
    EXPECT_EQ(-1, host.frame->header().GetSortImage(0));
    EXPECT_EQ(-1, host.frame->header().GetSortImage(-5));
}

TEST(SortImages, storing_one_makes_the_item_owner_drawn_and_paints_the_header)
{
    FrameHost host;
    OpenFrame& frame = threeRows(host);
    HDITEM item = {};
    item.mask = HDI_FORMAT;
    item.fmt = HDF_RIGHT | HDF_STRING;
    frame.header().SetItem(1, &item);
    frame.header().ValidateRect(nullptr);
    frame.header().SetSortImage(1, 1);
    EXPECT_EQ(1, frame.header().GetSortImage(1));
    frame.header().GetItem(1, &item);
    EXPECT_EQ(HDF_RIGHT | HDF_STRING | HDF_OWNERDRAW, item.fmt);
    EXPECT_TRUE(frame.header().GetUpdateRect(nullptr));
}

TEST(SortImages, of_a_column_that_is_not_there_are_kept)
{
    FrameHost host;
    OpenFrame& frame = threeRows(host);
    for (const int column : {7, -1, INT_MAX, INT_MIN})
    {
        frame.header().SetSortImage(column, 1);
        EXPECT_EQ(1, frame.header().GetSortImage(column));
    }
    EXPECT_EQ((Images{0, -1}), frame.images());
}

TEST(SortImages, the_list_is_the_hosts)
{
    FrameHost host;
    CImageList images;
    host.frame->header().SetSortImageList(&images);
    EXPECT_EQ(&images, host.frame->header().SetSortImageList(nullptr));
    EXPECT_EQ(nullptr, host.frame->header().SetSortImageList(nullptr));
}
