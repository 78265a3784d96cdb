// The frames around "+" and "-" and around the picker, as pixels of the window that owns the parent.
#include <gtest/gtest.h>
#include "SmartHost.h"
#include "support/Pixels.h"

namespace
{
struct Line
{
    CPoint from;
    CPoint to; ///< not drawn itself
    COLORREF color;
};

/// 9 pixels more than the font.
int frameHeight()
{
    LOGFONT font = {};
    ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
    return std::abs(font.lfHeight) + 9;
}

class SmartFrames : public testing::Test
{
protected:
    CRect place()
    {
        CRect r;
        host.smart->GetWindowRect(&r);
        host.ScreenToClient(&r);
        return r;
    }
    void paint()
    {
        host.Invalidate();
        host.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_INVALIDATE | RDW_ERASE);
        // The children paint over the frames or under them; the frames come last here.
        host.smart->Invalidate(FALSE);
        host.smart->UpdateWindow();
    }
    /// Later lines go over earlier ones.
    void expectLines(const std::vector<Line>& lines)
    {
        const Pixels shown(host);
        for (std::size_t i = 0; i < lines.size(); ++i)
            expectLine(shown, lines, i);
    }

    SmartHost host;

private:
    static bool covers(const Line& line, CPoint point)
    {
        const CRect box(std::min(line.from.x, line.to.x), std::min(line.from.y, line.to.y),
                        std::max(line.to.x, line.from.x + (line.from.x == line.to.x ? 1 : 0)),
                        std::max(line.to.y, line.from.y + (line.from.y == line.to.y ? 1 : 0)));
        return (line.from != line.to) && box.PtInRect(point);
    }
    static void expectLine(const Pixels& shown, const std::vector<Line>& lines, std::size_t index)
    {
        const Line& line = lines[index];
        const CPoint step = line.from.x == line.to.x ? CPoint(0, 1) : CPoint(1, 0);
        for (CPoint point = line.from; point != line.to; point += step)
        {
            bool hidden = false;
            for (std::size_t later = index + 1; later < lines.size(); ++later)
                hidden = hidden || covers(lines[later], point);
            if (!hidden)
            {
                ASSERT_EQ(shown.at(point.x, point.y), line.color)
                    << "line " << index << " at " << point.x << ", " << point.y;
            }
        }
    }
};

std::vector<Line> aroundButtons(const CRect& r, int w)
{
    const int m = frameHeight();
    const COLORREF window = ::GetSysColor(COLOR_WINDOW), face = ::GetSysColor(COLOR_BTNFACE),
                   shadow = ::GetSysColor(COLOR_BTNSHADOW), black = RGB(0, 0, 0);
    return {
        {{r.right - w - 2, r.top + 1}, {r.right - 2, r.top + 1}, black},
        {{r.right - w, r.top + m}, {r.right - (w == 0 ? 0 : 1), r.top + m}, window},
        {{r.right - w - 1, r.top}, {r.right - 1, r.top}, shadow},
        {{r.right - 2, r.top}, {r.right - 2, r.top + m}, shadow},
        {{r.right - w - 2, r.top + m - 1}, {r.right - 2, r.top + m - 1}, face},
    };
}
} // namespace

TEST_F(SmartFrames, stand_around_the_buttons)
{
    const struct
    {
        int mode;
        int width;
    } rows[] = {{1, 14}, {2, 20}};
    for (const auto& row : rows)
    {
        CStringList formats;
        fillList(formats, L"[(C)1] [(N)2] [(A)3]");
        if (row.mode == 1)
            host.smart->SetBitmapFormatList(formats, IDB_TILES, 3, CString(), 0);
        else
            host.smart->SetBitmapOnly(IDI_BOLT);
        paint();
        ASSERT_NO_FATAL_FAILURE(expectLines(aroundButtons(place(), row.width))) << row.mode;
    }
}

// Two lines have no length then, and one goes a pixel to the left of where it begins.
TEST_F(SmartFrames, are_a_single_upright_line_without_pictures_and_beside_two)
{
    for (const bool twoPictures : {false, true})
    {
        CStringList formats;
        if (twoPictures)
            host.smart->SetDoubleBitmap(formats, IDI_BOLT, IDB_MASKED);
        paint();
        const CRect r = place();
        const int m = frameHeight();
        const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW), window = ::GetSysColor(COLOR_WINDOW);
        ASSERT_NO_FATAL_FAILURE(expectLines({
            {{r.right, r.top + m}, {r.right + 1, r.top + m}, window},
            {{r.right - 2, r.top}, {r.right - 2, r.top + m}, shadow},
        }));
    }
}

TEST_F(SmartFrames, stand_around_the_picker)
{
    CStringList formats;
    fillList(formats, L"[(C)1] [(N)2] [(A)3]");
    host.smart->SetBitmapFormatList(formats, IDB_TILES, 3, CString(), 0);
    paint();
    const CRect r = place();
    const int m = frameHeight();
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT), face = ::GetSysColor(COLOR_BTNFACE),
                   shadow = ::GetSysColor(COLOR_BTNSHADOW);
    ASSERT_NO_FATAL_FAILURE(expectLines({
        {{r.left, r.top + m}, {r.left + 45, r.top + m}, light},
        {{r.left, r.top}, {r.left + 44, r.top}, shadow},
        {{r.left, r.top + 1}, {r.left, r.top + m + 1}, shadow},
        {{r.left + 1, r.top + m - 1}, {r.left + 45, r.top + m - 1}, face},
    }));
}

TEST_F(SmartFrames, do_not_come_while_the_buttons_are_hidden)
{
    host.smart->SetVisibleAddDelete(0);
    paint();
    const Pixels before(host);
    host.smart->Invalidate(FALSE);
    host.smart->UpdateWindow();
    const CRect r = place();
    EXPECT_NE(before.at(r.right - 2, r.top + frameHeight() + 1), ::GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(before.difference(Pixels(host)), "");
}

TEST_F(SmartFrames, leave_the_window_valid)
{
    host.smart->Invalidate();
    host.smart->UpdateWindow();
    EXPECT_FALSE(::GetUpdateRect(host.smart->m_hWnd, nullptr, FALSE));
}
