// The four messages around clicks and edits: which come, in which order, with which words.
#include "EditHost.h"
#include "support/MessageRecorder.h"

namespace
{
/// One message as the test tells it: of a click its flags and place, of an edit its row and column.
struct Told
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool operator==(const Told&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Told& told)
{
    return out << std::hex << told.message << '(' << told.wParam << ", " << told.lParam << ')';
}

class TreeListSequence : public TreeListEdit
{
protected:
    TreeListSequence() : m_clicks(host.frame->m_hWnd, [](UINT message) { return message == 0x433 || message == 0x434; })
    {
        m_clicks.onRecord = [this](const RecordedMessage& one)
        {
            const CPoint* const point = reinterpret_cast<const CPoint*>(one.lParam);
            told.push_back({one.message, one.wParam, MAKELPARAM(point->x, point->y)});
        };
        host.onHear = [this](const Heard& one) { told.push_back({one.message, one.wParam, one.lParam}); };
    }
    LPARAM At(HTREEITEM row, int x)
    {
        CRect place;
        tree.GetItemRect(row, &place, FALSE);
        return MAKELPARAM(x, place.CenterPoint().y);
    }
    static std::vector<Told> ClickAt(LPARAM place, std::vector<Told> between = {})
    {
        between.insert(between.begin(), {0x433, MK_LBUTTON, place});
        between.push_back({0x434, MK_LBUTTON, place});
        return between;
    }
    static std::vector<Told> Commit(HTREEITEM row, int column)
    {
        return {{0x435, rowOf(row), column}, {0x436, rowOf(row), column}};
    }
    void Edit(HTREEITEM row, int x)
    {
        host.edit(row, x);
        ASSERT_NE(host.editor(), nullptr);
        told.clear();
    }

    std::vector<Told> told;

private:
    MessageRecorder m_clicks;
};

TEST_F(TreeListSequence, of_clicks_without_an_edit)
{
    host.clickRow(a, inPlain);
    EXPECT_EQ(told, ClickAt(At(a, inPlain))) << "selects";
    told.clear();
    host.clickRow(a, inPlain);
    EXPECT_NE(host.editor(), nullptr);
    EXPECT_EQ(told, ClickAt(At(a, inPlain))) << "opens the editor";
}

TEST_F(TreeListSequence, of_a_click_that_commits)
{
    Edit(a, inPlain);
    host.clickRow(b, inName);
    EXPECT_EQ(told, ClickAt(At(b, inName), Commit(a, 2))) << "on another row";
    Edit(b, inPlain);
    tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(inPlain, 200));
    EXPECT_EQ(told, ClickAt(MAKELPARAM(inPlain, 200), Commit(b, 2))) << "below the rows";
}

TEST_F(TreeListSequence, of_keys_that_end_an_edit)
{
    Edit(a, inPlain);
    host.press(VK_RETURN);
    EXPECT_EQ(told, Commit(a, 2));
    Edit(a, inLength);
    host.press(VK_RETURN);
    EXPECT_EQ(told, Commit(a, 1));
    Edit(a, inPlain);
    host.press(VK_ESCAPE);
    EXPECT_EQ(told, std::vector<Told>());
}

TEST_F(TreeListSequence, of_an_edit_that_writes_nothing)
{
    Edit(a, inLength);
    host.editor()->SetWindowText(L"");
    host.clickRow(b, inName);
    EXPECT_EQ(told, ClickAt(At(b, inName), {{0x435, rowOf(a), 1}})) << "an empty value";
    Edit(b, inPlain);
    host.add(L"d");
    EXPECT_EQ(told, std::vector<Told>()) << "cancelled by an insertion";
}

TEST_F(TreeListSequence, of_a_refused_value)
{
    Edit(a, inLength);
    host.retype(L"abc");
    const AnswerModal answer(IDOK);
    host.clickRow(b, inName);
    EXPECT_EQ(told, ClickAt(At(b, inName)));
    EXPECT_NE(host.editor(), nullptr);
}
} // namespace
