// The examples of the guide, as they stand there.
#include "oxa/images/KxGifImage.h"
#include "oxa/images/KxPictureEx.h"
#include "oxa/images/KxStaticPictureEx.h"
#include "oxa/images/PictureEx.h"

#include <afxcmn.h>
#include <gtest/gtest.h>

#include <cstring>
#include <thread>

#include "PictureHost.h"

namespace
{
bool takeFrameSmaller(CByteArray& stream, CByteArray& smaller)
{
    CKxGifImage image;
    image.SetFrame(2);         // the third frame, composed over those before it
    if (!image.Decode(stream)) // a CByteArray; a pointer and a size, or a CKxMemFile
        return false;
    image.DecreaseBpp(4, true, nullptr, 0); // the 16 standard colours, with error diffusion
    image.SetComment("four bits");
    return image.Encode(smaller); // a CByteArray
}

void reduceOnAThread(CKxGifImage& image, CProgressCtrl& bar)
{
    std::thread work([&] { image.DecreaseBpp(8, true, nullptr, 0); });
    bar.SetPos(static_cast<int>(image.GetProgress())); // from a timer: percent
    image.SetEscape(1);                                // to cancel: rows that were not reached are 0
    work.join();
    image.SetEscape(0);
}

class CPictureDialog : public CWnd
{
public:
    bool show(const CString& path)
    {
        if (m_picture.SetBitmapPath(path) == 0) // a full path; SetPicture takes the bytes of a file
            return false;                       // the control is empty now
        m_picture.Invalidate();
        return true;
    }
    bool play(const CString& path)
    {
        if (!m_animation.Load(path)) // the control takes the size of the picture
            return false;
        m_animation.Draw(); // starts the worker, and is FALSE for an animation: IsPlaying tells
        m_animation.Stop(); // the frame stays; Draw goes on from here
        return true;
    }
    CKxStaticPictureEx m_picture;
    CPictureEx m_animation;
};

bool loadWhite(const CString& path, HDC dc, CBitmap& bitmap)
{
    return CKxPictureEx::LoadBitmapPath(path, dc, 64, 48, bitmap, RGB(255, 255, 255)) != 0;
}

/// Writes a GIF of `count` frames of one size, out of one that was encoded.
void makeStream(int count, CByteArray& all)
{
    CKxGifImage image(20, 10, 8);
    image.SetStdPalette();
    CByteArray one;
    image.Encode(one);
    constexpr INT_PTR head = 13 + 768;
    const INT_PTR frame = one.GetSize() - head - 1;
    all.SetSize(head + frame * count + 1);
    std::memcpy(all.GetData(), one.GetData(), static_cast<size_t>(head));
    for (int i = 0; i < count; ++i)
        std::memcpy(all.GetData() + head + frame * i, one.GetData() + head, static_cast<size_t>(frame));
    all[all.GetSize() - 1] = ';';
}
} // namespace

TEST(Guide, a_frame_is_taken_reduced_and_written)
{
    CByteArray stream, two, smaller;
    makeStream(3, stream);
    makeStream(2, two);
    ASSERT_TRUE(takeFrameSmaller(stream, smaller));
    CKxGifImage back(smaller);
    EXPECT_EQ(4, back.GetBpp());
    EXPECT_EQ(20UL, back.GetWidth());
    char comment[256] = {};
    back.GetComment(comment);
    EXPECT_STREQ("four bits", comment);
    EXPECT_FALSE(takeFrameSmaller(two, smaller)); // there is no third one
}

TEST(Guide, work_on_a_thread_is_watched_and_cancelled)
{
    CKxGifImage image(2000, 1000, 24);
    CProgressCtrl bar;
    reduceOnAThread(image, bar);
    EXPECT_EQ(8, image.GetBpp());
    EXPECT_EQ(0, image.GetEscape());
}

TEST(Guide, a_dialog_shows_a_picture_and_plays_an_animation)
{
    PictureBytes picture = resourceBytes(IDP_QUARTERS);
    const TemporaryFile file(L"guide.bmp", &picture);
    CByteArray stream;
    makeStream(3, stream);
    const PictureBytes animation(stream.GetData(), stream.GetData() + stream.GetSize());
    const TemporaryFile moving(L"guide.gif", &animation);
    CPictureDialog dialog;
    dialog.CreateEx(0, AfxRegisterWndClass(0), L"guide", WS_OVERLAPPEDWINDOW, 0, 0, 200, 200, nullptr, nullptr);
    dialog.m_picture.Create(L"", WS_CHILD, CRect(0, 0, 40, 30), &dialog);
    dialog.m_animation.Create(L"", WS_CHILD, CRect(0, 0, 1, 1), &dialog);
    EXPECT_TRUE(dialog.show(file.path));
    EXPECT_FALSE(dialog.show(L"C:\\there is none.bmp"));
    EXPECT_TRUE(dialog.play(moving.path));
    EXPECT_EQ(3, dialog.m_animation.GetFrameCount());
    EXPECT_FALSE(dialog.m_animation.IsPlaying());
    const Canvas canvas;
    CBitmap bitmap;
    EXPECT_TRUE(loadWhite(file.path, canvas.GetSafeHdc(), bitmap));
    EXPECT_EQ(CSize(64, 48), sizeOf(bitmap));
    dialog.DestroyWindow();
}
