// The page of pictures: what it says of files from strangers, and that long work leaves it alive.
#include "GalleryHost.h"
#include "gallery/PagePictures.h"
#include "gallery/SamplePictures.h"
#include "gallery/resource.h"
#include "support/ModalUser.h"

namespace
{
class PicturesHost : public PageHost<CPagePictures>
{
public:
    bool idle()
    {
        return waitFor([this] { return !page.busy(); }, 60000);
    }
    /// What the page says when it has dealt with the file.
    std::wstring open(const CString& path)
    {
        page.openFile(path);
        return idle() ? text(IDC_PICTURE_STATUS) : L"still busy";
    }
    /// Picks an entry of a list by its position, as the keys do.
    void pick(int id, int item)
    {
        ::SetFocus(control(id));
        ::SendMessageW(control(id), CB_SETCURSEL, static_cast<WPARAM>(item - 1), 0);
        key(VK_DOWN);
    }
    /// A text in the list of frames.
    std::wstring cell(int row, int column) const
    {
        wchar_t text[40] = L"";
        ListView_GetItemText(control(IDC_FRAMES), row, column, text, 40);
        return text;
    }
    std::wstring status() const { return text(IDC_PICTURE_STATUS); }
};

CString sample(const wchar_t* name)
{
    return samplesFolder() + L"\\" + name;
}

/// What the page says of the animated sample, behind its name.
std::wstring loadFacts()
{
    return std::wstring(L" (" + grouped(contentOf(sample(L"load.gif")).size()) + L" bytes): a GIF of 9 frames.");
}

Bytes bytesOf(const char* text)
{
    return Bytes(text, text + strlen(text));
}

/// A GIF of one white frame, whose screen and frame claim a size.
Bytes gifThatClaims(unsigned screen, unsigned frame)
{
    const auto low = [](unsigned value) { return static_cast<unsigned char>(value & 255); };
    const auto high = [](unsigned value) { return static_cast<unsigned char>(value >> 8); };
    Bytes gif = bytesOf("GIF89a");
    gif.insert(gif.end(), {low(screen), high(screen), low(screen), high(screen), 0x80, 0, 0, 0, 0, 0, 255, 255, 255});
    gif.insert(gif.end(), {',', 0, 0, 0, 0, low(frame), high(frame), low(frame), high(frame), 0});
    gif.insert(gif.end(), {2, 2, 0x4C, 0x01, 0, ';'}); // one pixel and the end
    return gif;
}

/// A bitmap file whose header claims a size that its bytes do not hold.
Bytes bitmapThatClaims(int width, int height)
{
    Bytes file(70, 0);
    file[0] = 'B';
    file[1] = 'M';
    file[10] = 54;
    file[14] = 40;
    memcpy(&file[18], &width, 4);
    memcpy(&file[22], &height, 4);
    file[26] = 1;
    file[28] = 24;
    return file;
}

Bytes randomBytes(size_t count, unsigned seed)
{
    Bytes bytes(count);
    for (unsigned char& byte : bytes)
        byte = static_cast<unsigned char>((seed = seed * 1103515245 + 12345) >> 16);
    return bytes;
}

Bytes joined(Bytes first, const Bytes& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Bytes firstOf(const Bytes& bytes, size_t count)
{
    return Bytes(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(count));
}
} // namespace

TEST(PicturesPage, files_that_are_no_pictures_get_one_sentence)
{
    struct Row
    {
        const wchar_t* name;
        Bytes bytes;
        const wchar_t* sentence;
    };
    const Bytes load = contentOf(sample(L"load.gif"));
    ASSERT_GT(load.size(), 1000U);
    const Row rows[] = {
        {L"empty.gif", {}, L"\"empty.gif\" is empty."},
        {L"notes.txt", bytesOf("notes"), L"\"notes.txt\" is not a picture that can be read."},
        {L"random.bmp", randomBytes(3000, 1), L"\"random.bmp\" is not a picture that can be read."},
        {L"one byte.gif", bytesOf("G"), L"\"one byte.gif\" is not a picture that can be read."},
        {L"mark.gif", bytesOf("GIF"), L"\"mark.gif\" begins like a GIF, but holds no picture that can be read."},
        {L"noise.gif", joined(bytesOf("GIF89a"), randomBytes(300, 3)), nullptr},
        {L"head.gif", firstOf(load, 40), L"\"head.gif\" begins like a GIF, but holds no picture that can be read."},
        {L"other.gif", joined(bytesOf("GIF7"), Bytes(load.begin() + 4, load.end())),
         L"\"other.gif\" begins like a GIF, but cannot be read."},
        {L"huge.gif", gifThatClaims(65535, 65535),
         L"\"huge.gif\" claims to have 65535 by 65535 pixels, more than are shown here."},
        {L"frame.gif", gifThatClaims(8, 65535),
         L"\"frame.gif\" begins like a GIF, but holds no picture that can be read."},
        {L"nothing.gif", gifThatClaims(0, 0), nullptr},
        {L"huge.bmp", bitmapThatClaims(30000, 30000), L"\"huge.bmp\" is not a picture that can be read."},
        {L"wide.bmp", bitmapThatClaims(0x7FFFFFFF, 1), L"\"wide.bmp\" is not a picture that can be read."},
    };
    const Folder folder;
    PicturesHost host;
    for (const Row& row : rows)
    {
        const std::wstring said = host.open(folder.write(row.name, row.bytes));
        if (row.sentence)
        {
            EXPECT_EQ(row.sentence, said);
        }
        EXPECT_EQ(L'.', said.back());
        EXPECT_FALSE(host.enabled(IDC_REDUCE)) << std::string(row.name, row.name + wcslen(row.name));
        EXPECT_FALSE(host.enabled(IDC_SAVE_GIF));
        EXPECT_FALSE(host.enabled(IDC_CANCEL_WORK));
        EXPECT_TRUE(host.enabled(IDC_OPEN_PICTURE));
    }
}

TEST(PicturesPage, names_that_are_no_files_get_one_sentence)
{
    const Folder folder;
    const CString locked = folder.write(L"locked.gif", contentOf(sample(L"load.gif")));
    const HANDLE lock = ::CreateFileW(locked, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, lock);
    struct Row
    {
        CString path;
        const wchar_t* sentence;
    };
    const Row rows[] = {
        {L"", L"No file was named."},
        {folder.path(L"none.gif"), L"\"none.gif\" cannot be opened: there is no such file."},
        {folder.path(L"no\\such\\folder.gif"), L"\"folder.gif\" cannot be opened: there is no such file."},
        {folder.path(L""), nullptr}, // the folder itself
        {folder.path(L"a*b?.gif"), L"\"a*b?.gif\" cannot be opened: no file can have that name."},
        {locked, L"\"locked.gif\" cannot be opened: another program is using it."},
        {CString(L'x', 40000), nullptr},
    };
    PicturesHost host;
    for (const Row& row : rows)
    {
        const std::wstring said = host.open(row.path);
        if (row.sentence)
        {
            EXPECT_EQ(row.sentence, said);
        }
        EXPECT_EQ(L'.', said.back());
        EXPECT_FALSE(host.enabled(IDC_SAVE_GIF));
    }
    ::CloseHandle(lock);
    EXPECT_EQ(L"Opened \"locked.gif\"" + loadFacts(), host.open(locked));
    EXPECT_NE(std::wstring::npos, host.open(folder.path(L"")).find(L"is a folder, not a picture."));
}

TEST(PicturesPage, a_damaged_stream_is_shown_or_refused_and_the_page_lives_on)
{
    const Folder folder;
    const Bytes load = contentOf(sample(L"load.gif"));
    PicturesHost host;
    for (size_t count = 13; count < load.size(); count += 211)
    {
        const std::wstring said = host.open(folder.write(L"cut.gif", firstOf(load, count)));
        ASSERT_EQ(L'.', said.back()) << count;
        ASSERT_EQ(host.enabled(IDC_SAVE_GIF), said.rfind(L"Opened", 0) == 0) << count;
    }
    for (size_t bit = 48; bit < load.size() * 8; bit += 1301)
    {
        Bytes flipped = load;
        flipped[bit / 8] = static_cast<unsigned char>(flipped[bit / 8] ^ 1U << bit % 8);
        const std::wstring said = host.open(folder.write(L"flipped.gif", flipped));
        ASSERT_EQ(L'.', said.back()) << bit;
    }
    EXPECT_EQ(L"Opened \"load.gif\"" + loadFacts(), host.open(sample(L"load.gif")));
}

TEST(PicturesPage, the_file_dialog_opens_what_is_typed)
{
    const Folder folder;
    const CString notes = folder.write(L"notes.txt", bytesOf("no picture"));
    PicturesHost host;
    {
        const ModalUser user({[&] { typeForModal(sample(L"portal.gif")); }});
        host.clickOn(IDC_OPEN_PICTURE);
    }
    ASSERT_TRUE(host.idle());
    EXPECT_EQ(0U, host.status().rfind(L"Opened \"portal.gif\"", 0));
    {
        const ModalUser user({[&] { typeForModal(notes); }});
        host.clickOn(IDC_OPEN_PICTURE);
    }
    ASSERT_TRUE(host.idle());
    EXPECT_EQ(L"\"notes.txt\" is not a picture that can be read.", host.status());
}

TEST(PicturesPage, a_gif_tells_its_frames_comment_and_loops)
{
    PicturesHost host;
    host.open(sample(L"load.gif"));
    EXPECT_EQ(L"Loop count: 3", host.text(IDC_LOOPS));
    EXPECT_EQ(L"A load of 10 kN crosses a beam of 6 m; nine frames, three ways to leave one.", host.text(IDC_COMMENT));
    EXPECT_EQ(L"Frame 1 of 9, by the image class", host.text(IDC_RESULT_CAPTION));
    EXPECT_EQ(L"240 by 140 pixels, 4 bits each", host.text(IDC_RESULT_FACTS));
    ASSERT_EQ(9, ListView_GetItemCount(host.control(IDC_FRAMES)));
    EXPECT_EQ(L"0.80 s", host.cell(6, 1));
    EXPECT_EQ(L"previous", host.cell(6, 2));
    EXPECT_EQ(L"44 x 26", host.cell(6, 3));
    EXPECT_EQ(L"background", host.cell(7, 2));
    ::SetFocus(host.control(IDC_FRAMES));
    key(VK_END);
    ASSERT_TRUE(host.idle());
    EXPECT_EQ(L"Frame 9 of 9, by the image class", host.text(IDC_RESULT_CAPTION));
}

TEST(PicturesPage, a_reduced_picture_is_saved_and_opened_again)
{
    const Folder folder;
    const CString copy = folder.path(L"copy.gif");
    PicturesHost host;
    host.open(sample(L"landscape.bmp"));
    EXPECT_EQ(L"360 by 240 pixels, 24 bits each", host.text(IDC_RESULT_FACTS));
    host.pick(IDC_BITS, 1);
    host.clickOn(IDC_DIFFUSE);
    host.clickOn(IDC_REDUCE);
    ASSERT_TRUE(host.idle());
    EXPECT_EQ(L"Reduced to 4 bits with error diffusion.", host.status());
    EXPECT_EQ(L"Palette of 16 colours", host.text(IDC_PALETTE_CAPTION));
    {
        const ModalUser user({[&] { typeForModal(copy); }});
        host.clickOn(IDC_SAVE_GIF);
    }
    ASSERT_TRUE(host.idle());
    EXPECT_EQ(0U, host.status().rfind(L"Saved as \"copy.gif\": ", 0));
    host.clickOn(IDC_UNDO_REDUCTION);
    EXPECT_EQ(L"360 by 240 pixels, 24 bits each", host.text(IDC_RESULT_FACTS));
    host.open(copy);
    EXPECT_EQ(L"360 by 240 pixels, 4 bits each", host.text(IDC_RESULT_FACTS));
    EXPECT_EQ(L"360 by 240 pixels", host.text(IDC_ORIGINAL_FACTS));
}

TEST(PicturesPage, a_file_that_cannot_be_written_gets_one_sentence)
{
    const Folder folder;
    PicturesHost host;
    host.open(sample(L"portal.gif"));
    const CString locked = folder.write(L"locked.gif", {});
    const HANDLE lock = ::CreateFileW(locked, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    {
        // The dialog asks whether the file shall be replaced.
        const ModalUser user({[&] { typeForModal(locked); }, [] { pressForModal('Y'); }});
        host.clickOn(IDC_SAVE_GIF);
    }
    ::CloseHandle(lock);
    ASSERT_TRUE(host.idle());
    EXPECT_EQ(L"\"locked.gif\" cannot be written: another program is using it.", host.status());
}

TEST(PicturesPage, long_work_is_shown_and_can_be_cancelled)
{
    PicturesHost host;
    host.pick(IDC_SAMPLE, 3);
    ASSERT_TRUE(host.idle());
    ASSERT_EQ(L"4000 by 3000 pixels, 24 bits each", host.text(IDC_RESULT_FACTS));
    host.clickOn(IDC_DIFFUSE);
    host.clickOn(IDC_REDUCE);
    ASSERT_TRUE(host.page.busy());
    EXPECT_TRUE(host.enabled(IDC_CANCEL_WORK));
    EXPECT_FALSE(host.enabled(IDC_OPEN_PICTURE));
    EXPECT_FALSE(host.enabled(IDC_SAMPLE));
    EXPECT_EQ(host.control(IDC_CANCEL_WORK), ::GetFocus());
    host.clickOn(IDC_CANCEL_WORK);
    ASSERT_TRUE(host.idle());
    EXPECT_EQ(L"Cancelled: the picture is as it was.", host.status());
    EXPECT_EQ(L"4000 by 3000 pixels, 24 bits each", host.text(IDC_RESULT_FACTS));
    EXPECT_FALSE(host.enabled(IDC_CANCEL_WORK));
    EXPECT_EQ(host.control(IDC_REDUCE), ::GetFocus());
}

TEST(PicturesPage, the_page_can_end_while_it_works)
{
    PicturesHost host;
    host.pick(IDC_SAMPLE, 3);
    ASSERT_TRUE(host.idle());
    host.clickOn(IDC_DIFFUSE);
    host.clickOn(IDC_REDUCE);
    ASSERT_TRUE(host.page.busy());
    host.page.DestroyWindow();
    EXPECT_FALSE(host.page.busy());
}
