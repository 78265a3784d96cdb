// The page of the animated picture control: playing, stopping, going on, and what it says of files from strangers.
#include "GalleryHost.h"
#include "gallery/PageAnimation.h"
#include "gallery/SamplePictures.h"
#include "gallery/resource.h"
#include "support/ModalUser.h"

namespace
{
class AnimationHost : public PageHost<CPageAnimation>
{
public:
    std::wstring open(const CString& path)
    {
        page.openFile(path);
        return text(IDC_ANIMATION_STATUS);
    }
    bool becomes(const wchar_t* state)
    {
        return waitFor([&] { return text(IDC_PLAY_STATE) == state; });
    }
    /// The control that shows the picture.
    HWND picture() const { return ::GetWindow(control(IDC_ANIMATION_PANE), GW_CHILD); }
    CSize pictureSize() const
    {
        CRect r;
        ::GetWindowRect(picture(), &r);
        return r.Size();
    }
    void type(int id, const wchar_t* number)
    {
        ::SetFocus(control(id));
        ::SendMessageW(control(id), EM_SETSEL, 0, -1);
        typeText(number);
    }
};

const CString load = samplesFolder() + L"\\load.gif";
} // namespace

TEST(AnimationPage, an_animation_plays_stops_and_goes_on)
{
    AnimationHost host;
    EXPECT_FALSE(host.enabled(IDC_PLAY));
    EXPECT_FALSE(host.enabled(IDC_STOP));
    EXPECT_EQ(L"Opened \"load.gif\": an animation of 9 frames, 240 by 140 pixels.", host.open(load));
    ASSERT_TRUE(host.becomes(L"Playing"));
    EXPECT_FALSE(host.enabled(IDC_PLAY));
    host.clickOn(IDC_STOP);
    ASSERT_TRUE(host.becomes(L"Stopped"));
    EXPECT_EQ(L"&Resume", host.text(IDC_PLAY));
    EXPECT_FALSE(host.enabled(IDC_STOP));
    host.clickOn(IDC_PLAY);
    ASSERT_TRUE(host.becomes(L"Playing"));
    EXPECT_EQ(CSize(240, 140), host.pictureSize());
}

TEST(AnimationPage, a_part_can_be_shown)
{
    AnimationHost host;
    host.open(load);
    host.type(IDC_PART_LEFT, L"200");
    host.type(IDC_PART_WIDTH, L"100");
    host.type(IDC_PART_HEIGHT, L"50");
    host.clickOn(IDC_APPLY_PART);
    EXPECT_EQ(CSize(40, 50), host.pictureSize()); // no more than there is
    EXPECT_EQ(L"40", host.text(IDC_PART_WIDTH));
    host.clickOn(IDC_SHOW_ALL);
    EXPECT_EQ(CSize(240, 140), host.pictureSize());
    EXPECT_EQ(L"0", host.text(IDC_PART_LEFT));
    host.type(IDC_PART_LEFT, L"9999"); // nothing of the picture: all of it
    host.clickOn(IDC_APPLY_PART);
    EXPECT_EQ(CSize(240, 140), host.pictureSize());
}

TEST(AnimationPage, the_background_colour_fills_what_a_frame_left)
{
    AnimationHost host;
    host.open(load);
    ::SendMessageW(host.control(IDC_BACKGROUND), CB_SETCURSEL, 1, 0);
    ::SetFocus(host.control(IDC_BACKGROUND));
    key(VK_DOWN); // light blue
    const HDC dc = ::GetDC(host.picture());
    const bool filled = waitFor(
        [&] { return ::GetPixel(dc, 30, 20) == RGB(0xCF, 0xE2, 0xF5) && ::GetPixel(dc, 120, 125) == 0xF7FCFD; }, 15000);
    ::ReleaseDC(host.picture(), dc);
    EXPECT_TRUE(filled); // the strip that the eighth frame covered, not what lies beside it
}

TEST(AnimationPage, files_that_are_no_pictures_get_one_sentence)
{
    const Bytes good = contentOf(load);
    ASSERT_GT(good.size(), 1000U);
    const Folder folder;
    struct Row
    {
        CString path;
        const wchar_t* sentence;
    };
    const Row rows[] = {
        {L"", L"No file was named."},
        {folder.path(L"none.gif"), L"\"none.gif\" cannot be opened: there is no such file."},
        {folder.write(L"empty.gif", {}), L"\"empty.gif\" is empty."},
        {folder.write(L"notes.txt", {'n', 'o'}), L"\"notes.txt\" is not a picture that can be read."},
        {folder.write(L"head.gif", Bytes(good.begin(), good.begin() + 40)),
         L"\"head.gif\" begins like a GIF, but holds no picture that can be read."},
    };
    AnimationHost host;
    for (const Row& row : rows)
    {
        host.open(load);
        EXPECT_EQ(row.sentence, host.open(row.path));
        EXPECT_EQ(L"Nothing is open", host.text(IDC_PLAY_STATE));
        for (const int id : {IDC_PLAY, IDC_STOP, IDC_APPLY_PART, IDC_SHOW_ALL, IDC_BACKGROUND})
            EXPECT_FALSE(host.enabled(id));
    }
}

TEST(AnimationPage, a_damaged_stream_is_played_or_refused_and_the_page_lives_on)
{
    const Folder folder;
    const Bytes good = contentOf(load);
    AnimationHost host;
    for (size_t count = 13; count < good.size(); count += 211)
    {
        const Bytes cut(good.begin(), good.begin() + static_cast<ptrdiff_t>(count));
        const std::wstring said = host.open(folder.write(L"cut.gif", cut));
        ASSERT_EQ(L'.', said.back()) << count;
        pumpFor(5);
    }
    for (size_t bit = 48; bit < good.size() * 8; bit += 1301)
    {
        Bytes flipped = good;
        flipped[bit / 8] = static_cast<unsigned char>(flipped[bit / 8] ^ 1U << bit % 8);
        const std::wstring said = host.open(folder.write(L"flipped.gif", flipped));
        ASSERT_EQ(L'.', said.back()) << bit;
        pumpFor(5);
    }
    host.open(load);
    EXPECT_TRUE(host.becomes(L"Playing"));
}

TEST(AnimationPage, the_file_dialog_opens_what_is_typed)
{
    AnimationHost host;
    {
        const ModalUser user({[] { typeForModal(samplesFolder() + L"\\portal.gif"); }});
        host.clickOn(IDC_OPEN_ANIMATION);
    }
    EXPECT_EQ(L"Opened \"portal.gif\": a still picture, 360 by 270 pixels.", host.text(IDC_ANIMATION_STATUS));
    EXPECT_EQ(L"A still picture", host.text(IDC_PLAY_STATE));
}
