// Metafiles in both picture classes: sound ones are drawn, damaged ones are refused, and none ends the program.
#include "oxa/images/KxPictureEx.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "AnimationHost.h"
#include "MetafileRecording.h"
#include "images/MetafileCheck.h"

namespace
{
struct Sample
{
    const char* name;
    PictureBytes bytes;
};

std::vector<Sample> samples(Drawing draw)
{
    return {{"enhanced", recordEnhanced(draw)}, {"old", recordOld(draw)}};
}

/// Draws the bytes as a bitmap of 40 by 20 pixels.
int load(const PictureBytes& bytes, CBitmap& bitmap)
{
    static const Canvas canvas;
    PictureBytes copy(bytes);
    return CKxPictureEx::LoadPicture(copy.data(), copy.size(), canvas.GetSafeHdc(), 40, 20, bitmap, yellow);
}

/// A control that loads bytes again and again.
class MetafileStand
{
public:
    bool draw(const PictureBytes& bytes)
    {
        const bool drawn = stand.picture.Load(bytes) && stand.picture.Draw();
        stand.picture.UpdateWindow();
        return drawn;
    }

    PictureStand<> stand;
};

/// What the two classes made of the file: 0, or 1 for each that drew it.
int tryOut(MetafileStand& stand, const PictureBytes& bytes)
{
    CBitmap bitmap;
    return load(bytes, bitmap) + (stand.draw(bytes) ? 1 : 0);
}

TEST(Metafile, recordings_of_many_calls_are_drawn_by_both_classes)
{
    MetafileStand stand;
    for (const Sample& sample : samples(drawFully))
    {
        EXPECT_TRUE(MetafileCheck::isSound(sample.bytes.data(), sample.bytes.size())) << sample.name;
        CBitmap bitmap;
        ASSERT_EQ(load(sample.bytes, bitmap), 1) << sample.name;
        EXPECT_EQ(pixelOf(bitmap, 10, 10), red) << sample.name;
        EXPECT_EQ(pixelOf(bitmap, 30, 10), blue) << sample.name;
        ASSERT_TRUE(stand.draw(sample.bytes)) << sample.name;
        EXPECT_EQ(shownAt(stand.stand.picture, 20, 20), red) << sample.name;
        EXPECT_EQ(shownAt(stand.stand.picture, 80, 20), blue) << sample.name;
    }
}

TEST(Metafile, what_is_cut_off_is_refused_from_memory_and_from_a_file)
{
    MetafileStand stand;
    for (const Sample& sample : samples(drawFully))
    {
        PictureBytes cut(sample.bytes);
        cut.resize(cut.size() - 1);
        EXPECT_EQ(tryOut(stand, cut), 0) << sample.name;
        const TemporaryFile file(L"cut.emf", &cut);
        const Canvas canvas;
        CBitmap bitmap;
        EXPECT_EQ(CKxPictureEx::LoadBitmap(file.path, canvas.GetSafeHdc(), 4, 4, bitmap), 0) << sample.name;
        EXPECT_FALSE(stand.stand.picture.CPictureEx::Load(static_cast<LPCTSTR>(file.path))) << sample.name;
        const TemporaryFile whole(L"whole.emf", &sample.bytes);
        EXPECT_EQ(CKxPictureEx::LoadBitmap(whole.path, canvas.GetSafeHdc(), 40, 20, bitmap), 1) << sample.name;
        EXPECT_EQ(pixelOf(bitmap, 10, 10), red) << sample.name;
    }
}

TEST(Metafile, what_a_URL_gives_is_judged_too)
{
    constexpr size_t handlesAt[] = {56, 32}; // in the header of the one and of the other
    const size_t* handles = handlesAt;
    for (const Sample& sample : samples(drawFully))
    {
        PictureBytes damaged(sample.bytes);
        damaged[*handles++] = 1; // fewer than the records make
        const Canvas canvas;
        CBitmap bitmap;
        const TemporaryFile broken(L"broken.emf", &damaged);
        EXPECT_EQ(CKxPictureEx::LoadBitmap(L"file://" + broken.path, canvas.GetSafeHdc(), 4, 4, bitmap), 0)
            << sample.name;
        const TemporaryFile whole(L"whole.emf", &sample.bytes);
        EXPECT_EQ(CKxPictureEx::LoadBitmap(L"file://" + whole.path, canvas.GetSafeHdc(), 40, 20, bitmap), 1)
            << sample.name;
        EXPECT_EQ(pixelOf(bitmap, 10, 10), red) << sample.name;
    }
}

TEST(Metafile, every_prefix_is_refused)
{
    MetafileStand stand;
    for (const Sample& sample : samples(drawBriefly))
        for (size_t size = 1; size < sample.bytes.size(); ++size)
            EXPECT_EQ(
                tryOut(stand, PictureBytes(sample.bytes.begin(), sample.bytes.begin() + static_cast<ptrdiff_t>(size))),
                0)
                << sample.name << " of " << size << " bytes";
}

TEST(Metafile, every_single_bit_flip_is_refused_or_drawn)
{
    MetafileStand stand;
    for (const Sample& sample : samples(drawBriefly))
    {
        int drawn = 0;
        int refused = 0;
        for (size_t bit = 0; bit < sample.bytes.size() * 8; ++bit)
        {
            PictureBytes bytes(sample.bytes);
            bytes[bit / 8] = static_cast<unsigned char>(bytes[bit / 8] ^ (1U << (bit % 8)));
            (tryOut(stand, bytes) != 0 ? drawn : refused) += 1;
        }
        EXPECT_GT(drawn, 0) << sample.name;
        EXPECT_GT(refused, 0) << sample.name;
    }
}
} // namespace
