// Static controls, buttons and bitmap buttons.
#include "Support.h"
#include "resource.h"

namespace
{
class CDrawnButton : public CButton
{
public:
    int drawn = 0;
    UINT kind = 0;
    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        ++drawn;
        kind = item->CtlType;
        CDC::FromHandle(item->hDC)->FillSolidRect(&item->rcItem, red);
    }
};

class CDrawnStatic : public CStatic
{
public:
    int drawn = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
};

class CShownBitmapButton : public CBitmapButton
{
public:
    const CBitmap& up() const { return m_bitmap; }
    const CBitmap& down() const { return m_bitmapSel; }
    const CBitmap& focus() const { return m_bitmapFocus; }
};
const CRect place(10, 10, 110, 40);

/// The colour of a point of a window.
COLORREF shown(CWnd& window, int x, int y)
{
    window.UpdateWindow();
    CClientDC dc(&window);
    return dc.GetPixel(x, y);
}
} // namespace

TEST(Static, shows_a_text)
{
    CParentWindow parent;
    CStatic text;
    ASSERT_TRUE(text.Create(L"words", WS_CHILD | WS_VISIBLE | SS_LEFT, place, &parent));
    CString read;
    text.GetWindowText(read);
    EXPECT_EQ(L"words", plain(read));
    EXPECT_EQ(0xFFFF, text.GetDlgCtrlID() & 0xFFFF);
}

TEST(Static, bitmaps_and_icons_come_back)
{
    CParentWindow parent;
    CStatic picture;
    ASSERT_TRUE(picture.Create(nullptr, WS_CHILD | WS_VISIBLE | SS_BITMAP, place, &parent));
    CBitmap bitmap;
    bitmap.LoadBitmap(IDB_RED);
    EXPECT_EQ(nullptr, picture.SetBitmap(bitmap));
    EXPECT_EQ(static_cast<HBITMAP>(bitmap), picture.GetBitmap());
    EXPECT_EQ(static_cast<HBITMAP>(bitmap), picture.SetBitmap(nullptr));
    CStatic icon;
    ASSERT_TRUE(icon.Create(nullptr, WS_CHILD | WS_VISIBLE | SS_ICON, place, &parent));
    HICON const error = ::LoadIconW(nullptr, IDI_ERROR);
    EXPECT_EQ(nullptr, icon.SetIcon(error));
    EXPECT_EQ(error, icon.GetIcon());
}

TEST(Static, owner_drawn_draws_itself)
{
    CParentWindow parent;
    CDrawnStatic box;
    ASSERT_TRUE(box.Create(L"", WS_CHILD | WS_VISIBLE | SS_OWNERDRAW, place, &parent));
    box.UpdateWindow();
    EXPECT_EQ(1, box.drawn);
}

TEST(Button, check_states)
{
    CParentWindow parent;
    CButton box;
    ASSERT_TRUE(box.Create(L"box", WS_CHILD | WS_VISIBLE | BS_AUTO3STATE, place, &parent, 5));
    EXPECT_EQ(BST_UNCHECKED, box.GetCheck());
    box.SetCheck(BST_INDETERMINATE);
    EXPECT_EQ(BST_INDETERMINATE, box.GetCheck());
    EXPECT_EQ(static_cast<UINT>(BST_INDETERMINATE), box.GetState() & 3U);
    box.SetState(TRUE);
    EXPECT_NE(0U, box.GetState() & BST_PUSHED);
    box.SetState(FALSE);
    EXPECT_EQ(0U, box.GetState() & BST_PUSHED);
}

TEST(Button, style_is_without_the_window_styles)
{
    CParentWindow parent;
    CButton button;
    ASSERT_TRUE(button.Create(L"ok", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, place, &parent, 5));
    EXPECT_EQ(static_cast<UINT>(BS_PUSHBUTTON), button.GetButtonStyle());
    button.SetButtonStyle(BS_DEFPUSHBUTTON);
    EXPECT_EQ(static_cast<UINT>(BS_DEFPUSHBUTTON), button.GetButtonStyle());
}

TEST(Button, images_come_back)
{
    CParentWindow parent;
    CButton button;
    ASSERT_TRUE(button.Create(L"", WS_CHILD | WS_VISIBLE | BS_BITMAP, place, &parent, 5));
    CBitmap bitmap;
    bitmap.LoadBitmap(IDB_RED);
    EXPECT_EQ(nullptr, button.SetBitmap(bitmap));
    EXPECT_EQ(static_cast<HBITMAP>(bitmap), button.GetBitmap());
    HICON const icon = ::LoadIconW(nullptr, IDI_ERROR);
    button.SetIcon(icon);
    EXPECT_EQ(icon, button.GetIcon());
}

TEST(Button, owner_drawn_draws_itself)
{
    CParentWindow parent;
    CDrawnButton button;
    ASSERT_TRUE(button.Create(L"own", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, place, &parent, 5));
    EXPECT_EQ(red, shown(button, 20, 20));
    EXPECT_EQ(1, button.drawn);
    EXPECT_EQ(static_cast<UINT>(ODT_BUTTON), button.kind);
}

TEST(Button, without_a_window_everything_is_zero)
{
    CButton button;
    EXPECT_EQ(0, button.GetCheck());
    EXPECT_EQ(0U, button.GetButtonStyle());
    button.SetCheck(1);
}

TEST(BitmapButton, loads_by_name_and_by_number)
{
    CShownBitmapButton button;
    EXPECT_TRUE(button.LoadBitmaps(L"PUSHU", L"PUSHD"));
    EXPECT_NE(nullptr, button.up().m_hObject);
    EXPECT_NE(nullptr, button.down().m_hObject);
    EXPECT_EQ(nullptr, button.focus().m_hObject);
    EXPECT_TRUE(button.LoadBitmaps(IDB_RED));
    EXPECT_EQ(nullptr, button.down().m_hObject) << "the earlier ones are gone";
    EXPECT_FALSE(button.LoadBitmaps(IDB_RED, 9999));
    EXPECT_FALSE(button.LoadBitmaps(9999U));
}

TEST(BitmapButton, auto_load_goes_by_the_caption_and_takes_the_size)
{
    CParentWindow parent;
    CButton maker;
    ASSERT_TRUE(maker.Create(L"PUSH", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, place, &parent, 5));
    maker.UnsubclassWindow();
    CShownBitmapButton button;
    ASSERT_TRUE(button.AutoLoad(5, &parent));
    CRect client;
    button.GetClientRect(&client);
    EXPECT_EQ(CSize(8, 6), client.Size());
    EXPECT_EQ(red, shown(button, 4, 3));
    button.SetState(TRUE);
    EXPECT_EQ(blue, shown(button, 4, 3));
    EXPECT_FALSE(CShownBitmapButton().AutoLoad(77, &parent));
}

TEST(BitmapButton, a_constructor_without_its_bitmap_throws)
{
    bool thrown = false;
    try
    {
        CBitmapButton button(9999U);
    }
    catch (CResourceException* e)
    {
        thrown = true;
        e->Delete();
    }
    EXPECT_TRUE(thrown);
}
