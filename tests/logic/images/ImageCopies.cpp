// Copies, transfers and ghosts: which block belongs to whom.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include "ExposedImage.h"

namespace
{
// 3 by 2 at 8 bits: indexes 1 to 6, entry i grey i.
ExposedImage sample()
{
    ExposedImage image(3, 2, 8);
    image.SetGrayPalette();
    for (int i = 0; i < 6; ++i)
        image.SetPixelIndex(i % 3, i / 3, static_cast<unsigned char>(i + 1));
    image.SetTransIndex(4);
    image.SetFlags(77, false);
    return image;
}

void expectSample(const CKxGifImage& image)
{
    ASSERT_TRUE(image.IsValid());
    EXPECT_EQ(image.GetWidth(), 3U);
    EXPECT_EQ(image.GetHeight(), 2U);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(image.GetPixelIndex(i % 3, i / 3), i + 1);
    EXPECT_EQ(hex(image.GetPaletteColor(9)), 0x090909U);
}
} // namespace

TEST(ImageCopies, the_copy_constructor_shares_the_block)
{
    ExposedImage first = sample();
    ExposedImage second(first);
    EXPECT_EQ(first.GetDIB(), second.GetDIB());
    second.SetPixelIndex(0, 0, 99);
    EXPECT_EQ(first.GetPixelIndex(0, 0), 99);
    first.SetPaletteColor(5, 1, 2, 3);
    EXPECT_EQ(hex(second.GetPaletteColor(5)), 0x010203U);
}

TEST(ImageCopies, sharing_images_may_go_in_either_order)
{
    auto first = std::make_unique<ExposedImage>(sample());
    first->m_pAlpha = SharedBytes::Allocate(6);
    auto second = std::make_unique<ExposedImage>(*first);
    auto third = std::make_unique<ExposedImage>(*second);
    first.reset();
    expectSample(*second);
    third->Destroy();
    expectSample(*second);
    EXPECT_NE(second->m_pAlpha.Get(), nullptr);
    second->SetPixelIndex(2, 1, 6);
}

TEST(ImageCopies, creating_one_anew_leaves_the_other)
{
    ExposedImage first = sample();
    ExposedImage second(first);
    first.Create(50, 50, 24);
    expectSample(second);
    second.DecreaseBpp(4, false, nullptr, 0);
    EXPECT_EQ(first.GetWidth(), 50U);
}

TEST(ImageCopies, diffusion_in_one_changes_the_pixels_that_the_other_shares)
{
    CKxGifImage first(2, 1, 24);
    first.SetPixelColor(0, 0, quad(100, 100, 100));
    CKxGifImage second(first);
    ASSERT_TRUE(first.DecreaseBpp(1, true, nullptr, 0));
    EXPECT_EQ(hex(second.GetPixelColor(1, 0)), 0x2B2B2BU); // 100 * 7 / 16 = 43
    EXPECT_EQ(second.GetBpp(), 24);
}

TEST(ImageCopies, assignment_copies_the_pixels)
{
    const ExposedImage first = sample();
    ExposedImage second(9, 9, 1);
    second = first;
    EXPECT_NE(first.GetDIB(), second.GetDIB());
    expectSample(second);
    EXPECT_EQ(second.GetTransIndex(), 4);
    EXPECT_EQ(second.GetFlags(), 77U);
    second.SetPixelIndex(0, 0, 99);
    expectSample(first);
}

TEST(ImageCopies, assignment_to_itself_changes_nothing)
{
    ExposedImage image = sample();
    ExposedImage& same = image;
    const void* const block = image.GetDIB();
    image = same;
    EXPECT_EQ(image.GetDIB(), block);
    expectSample(image);
    image.Copy(same, true, true, true);
    expectSample(image);
}

TEST(ImageCopies, assignment_of_an_empty_image_destroys)
{
    ExposedImage image = sample();
    image = ExposedImage();
    EXPECT_FALSE(image.IsValid());
    EXPECT_EQ(image.GetTransIndex(), -1);
    EXPECT_EQ(image.GetWidth(), 3U);
    EXPECT_EQ(image.GetPixelIndex(0, 0), 0);
}

TEST(ImageCopies, a_copy_without_image_takes_size_and_palette_only)
{
    const ExposedImage first = sample();
    ExposedImage second;
    second.Copy(first, false, false, false);
    EXPECT_EQ(second.GetWidth(), 3U);
    EXPECT_EQ(hex(second.GetPaletteColor(9)), 0x090909U);
    EXPECT_EQ(second.GetPixelIndex(2, 1), 0);
    EXPECT_EQ(second.GetTransIndex(), 4);
}

TEST(ImageCopies, planes_are_copied_when_asked_for)
{
    ExposedImage first = sample();
    first.m_pSelection = SharedBytes::Allocate(6);
    first.m_pAlpha = SharedBytes::Allocate(6);
    first.m_pSelection[5] = 7;
    first.m_pAlpha[5] = 8;
    ExposedImage second;
    second.Copy(first, true, true, false);
    ASSERT_NE(second.m_pSelection.Get(), nullptr);
    EXPECT_NE(second.m_pSelection.Get(), first.m_pSelection.Get());
    EXPECT_EQ(second.m_pSelection[5], 7);
    EXPECT_EQ(second.m_pAlpha.Get(), nullptr);
    second.Copy(first, true, false, true);
    EXPECT_EQ(second.m_pSelection.Get(), nullptr);
    ASSERT_NE(second.m_pAlpha.Get(), nullptr);
    EXPECT_EQ(second.m_pAlpha[5], 8);
}

TEST(ImageCopies, a_plane_that_is_too_short_is_filled_up_with_zeros)
{
    ExposedImage first = sample();
    first.m_pAlpha = SharedBytes::Allocate(2);
    first.m_pAlpha[1] = 8;
    ExposedImage second;
    second.Copy(first, true, true, true);
    ASSERT_GE(second.m_pAlpha.Size(), 6U);
    EXPECT_EQ(second.m_pAlpha[1], 8);
    EXPECT_EQ(second.m_pAlpha[5], 0);
}

TEST(ImageCopies, information_is_copied_only_into_an_empty_image)
{
    const ExposedImage first = sample();
    ExposedImage empty;
    empty.CopyInfo(first);
    EXPECT_EQ(empty.GetTransIndex(), 4);
    EXPECT_FALSE(empty.IsValid());
    EXPECT_EQ(empty.GetBits(), nullptr);
    EXPECT_EQ(empty.GetPixelIndex(0, 0), 0);
    ExposedImage valid(1, 1, 8);
    valid.CopyInfo(first);
    EXPECT_EQ(valid.GetTransIndex(), -1);
}

TEST(ImageCopies, a_transfer_moves_everything_and_empties_the_source)
{
    ExposedImage first = sample();
    first.m_pAlpha = SharedBytes::Allocate(6);
    const void* const block = first.GetDIB();
    ExposedImage second(7, 7, 24);
    EXPECT_TRUE(second.Transfer(first));
    EXPECT_EQ(second.GetDIB(), block);
    expectSample(second);
    EXPECT_NE(second.m_pAlpha.Get(), nullptr);
    EXPECT_EQ(second.GetFlags(), 77U);

    EXPECT_FALSE(first.IsValid());
    EXPECT_EQ(first.GetWidth(), 0U);
    EXPECT_EQ(first.GetHeight(), 0U);
    EXPECT_EQ(first.m_pAlpha.Get(), nullptr);
    EXPECT_EQ(first.GetFlags(), 0U);
    EXPECT_EQ(first.GetTransIndex(), 0); // cleared as a whole, not started up anew
    EXPECT_FALSE(first.IsEnabled());
    EXPECT_TRUE(first.Create(2, 2, 8));
}

TEST(ImageCopies, a_transfer_from_itself_leaves_an_empty_image)
{
    ExposedImage image = sample();
    EXPECT_TRUE(image.Transfer(image));
    EXPECT_FALSE(image.IsValid());
    EXPECT_EQ(image.GetWidth(), 0U);
    EXPECT_TRUE(image.Create(2, 2, 8));
}

TEST(ImageCopies, a_ghost_borrows_the_block_and_cannot_be_destroyed)
{
    ExposedImage owner = sample();
    ExposedImage ghost;
    ghost.Ghost(&owner);
    EXPECT_EQ(ghost.GetDIB(), owner.GetDIB());
    EXPECT_EQ(ghost.m_Info.pGhostOf, &owner);
    expectSample(ghost);
    EXPECT_FALSE(ghost.Destroy());
    EXPECT_EQ(ghost.Create(2, 2, 8), nullptr);
    expectSample(ghost);
    ExposedImage other = sample();
    EXPECT_FALSE(ghost.Transfer(other));
    expectSample(other);
    EXPECT_FALSE(ghost.DecreaseBpp(1, false, nullptr, 0));
    expectSample(ghost);
    ghost.Ghost(nullptr);
    EXPECT_EQ(ghost.m_Info.pGhostOf, &owner);
}

TEST(ImageCopies, a_ghost_outlives_its_owner)
{
    ExposedImage ghost;
    {
        ExposedImage owner = sample();
        ghost.Ghost(&owner);
        owner.Create(100, 100, 1);
    }
    expectSample(ghost);
}

TEST(ImageCopies, an_image_that_becomes_a_ghost_lets_its_own_block_go)
{
    ExposedImage owner = sample();
    ExposedImage ghost(100, 100, 8);
    ghost.Ghost(&owner);
    expectSample(ghost);
    ghost.Ghost(&ghost);
    expectSample(ghost);
}

TEST(ImageCopies, a_transfer_from_a_ghost_gives_a_ghost)
{
    ExposedImage owner = sample();
    ExposedImage ghost;
    ghost.Ghost(&owner);
    ExposedImage heir;
    EXPECT_TRUE(heir.Transfer(ghost));
    expectSample(heir);
    EXPECT_FALSE(heir.Destroy());
    EXPECT_TRUE(ghost.Destroy());
    expectSample(owner);
}

TEST(ImageCopies, a_copy_of_a_ghost_is_refused_its_own_block)
{
    ExposedImage owner = sample();
    ExposedImage ghost;
    ghost.Ghost(&owner);
    ExposedImage copy;
    copy = ghost;
    EXPECT_FALSE(copy.IsValid());
    EXPECT_EQ(copy.GetBits(), nullptr);
    EXPECT_EQ(copy.Create(2, 2, 8), nullptr);

    // With a block of another shape: that one stays, and nothing is read or written outside of it.
    ExposedImage larger(40, 30, 24);
    larger.Copy(ghost, true, true, true);
    EXPECT_TRUE(larger.IsValid());
    EXPECT_EQ(larger.GetWidth(), 40U);
    EXPECT_EQ(larger.GetEffWidth(), 120U);
    larger.SetPixelColor(39, 29, quad(1, 2, 3));
    EXPECT_EQ(hex(larger.GetPixelColor(39, 29)), 0x010203U);
    ExposedImage smaller(1, 1, 1);
    smaller.Copy(ghost, true, true, true);
    EXPECT_EQ(smaller.GetWidth(), 1U);
    smaller.Clear(1);
    EXPECT_EQ(smaller.GetPixelIndex(0, 0), 1);
    expectSample(owner);
}

TEST(ImageCopies, a_ghost_that_copies_becomes_an_ordinary_image)
{
    ExposedImage owner(5, 5, 24);
    ExposedImage ghost;
    ghost.Ghost(&owner);
    const ExposedImage source = sample();
    ghost = source;
    expectSample(ghost);
    EXPECT_TRUE(owner.IsValid());
    EXPECT_TRUE(ghost.Destroy());
}

TEST(ImageCopies, a_palette_is_not_read_beyond_its_end_when_the_larger_one_stays)
{
    ExposedImage owner(2, 2, 1);
    owner.SetPaletteColor(1, 1, 2, 3);
    ExposedImage ghost;
    ghost.Ghost(&owner);
    ExposedImage larger(2, 2, 8);
    larger.SetGrayPalette();
    larger.Copy(ghost, false, false, false); // refused its size, so that 256 entries meet 2
    EXPECT_EQ(hex(larger.GetPaletteColor(1)), 0x010203U);
    EXPECT_EQ(hex(larger.GetPaletteColor(2)), 0x020202U);
}
