// The operations that cut, turn and size, where their rules are easy to miss.
#include "pixels/RuntimeError.h"
#include "support/filterOf.h"
#include "support/pictures.h"

namespace velara {
namespace {

TEST(Geometry, CropCutsWithTheObjectsOwnSizeAndMaskedCropWithTheSources)
{
    const Bits source = randomBits(9, 8, 1);
    cBitFilter small = filterOf(randomBits(4, 3, 2));
    small.BitsCrop(source, 1, -5, 100, 100);
    EXPECT_EQ(small.BitsWidth(), 3);
    EXPECT_EQ(small.BitsHeight(), 3);
    EXPECT_EQ(small.bits().at(0, 2), source.at(1, 2));
    EXPECT_EQ(small.bits().at(-1, 0), Pixel{}) << "the margin of the new buffer";
    small.setBitsRegion(Region::rectangle(0, 0, 2, 2));
    small.BitsCropMasked(source, 1, -5, 100, 100);
    EXPECT_EQ(small.BitsWidth(), 8);
    EXPECT_EQ(small.bits().at(0, 1), source.at(1, 1));
    EXPECT_EQ(small.bits().at(1, 1), (Pixel{{0, 0, 0, 255}}));
}

TEST(Geometry, UnusableSizesAndSourcesChangeNothing)
{
    const Bits before = randomBits(5, 4, 3);
    cBitFilter f = filterOf(before);
    const std::function<void()> calls[] = {
        [&] { f.BitsCrop(before, 5, 0, 9, 4); },
        [&] { f.BitsCrop(Bits(2, 2), 0, 0, 5, 4); }, // beyond the source
        [&] { f.BitsCropMasked(before, 2, 2, 2, 3); },
        [&] { f.BitsResize(before, 0, 3); },
        [&] { f.BitsResize(before, 32768, 1); },
        [&] { f.BitsResample(before, 32767, 32767); },
        [&] { f.BitsResample(Bits(), 3, 3); },
        [&] { f.BitsRotate90(Bits()); },
        [&] { f.BitsTakeFromPicture(QImage(3, 3, QImage::Format_RGB32), -1, 3); },
    };
    for (const auto& call : calls) {
        EXPECT_THROW(call(), RuntimeError) << &call - calls;
        EXPECT_TRUE(f.bits().sharesWith(before)) << &call - calls;
    }
}

TEST(Geometry, ResampleBlendsWithTheMarginOfAOneColumnPicture)
{
    Bits bits = flatBits(1, 2, 100, 100, 100);
    bits.at(0, 1) = {{200, 0, 50, 9}};
    cBitFilter f = filterOf(bits);
    f.BitsResample(bits, 2, 4);                              // ratios 0 and 1/4: rows at 0, .25, .5, .75
    EXPECT_EQ(f.bits().at(1, 1), (Pixel{{125, 75, 88, 0}})); // 87.5 goes to the even 88
    EXPECT_EQ(f.bits().at(0, 3), (Pixel{{175, 25, 62, 0}})); // 62.5 goes to the even 62
}

TEST(Geometry, ASecondObjectsPictureMayBeReplacedDuringProgress)
{
    const Bits before = randomBits(40, 30, 4);
    cBitFilter quiet = filterOf(before);
    quiet.BitsResample(before, 70, 50);
    std::uint32_t now = 100;
    cBitFilter f = filterOf(before);
    f.clock = [&] { return now += 20; };
    f.Progress = [&](int) { f.setBits(Bits(2, 2)); };
    f.BitsResample(f.bits(), 70, 50);
    f.Progress = nullptr;
    EXPECT_EQ(f.BitsWidth(), 2) << "the last report comes after the assignment";
    Bits result;
    f.setBits(before);
    f.Progress = [&](int percent) { percent == 100 ? void(result = f.bits()) : f.setBits(Bits(2, 2)); };
    f.BitsResample(f.bits(), 70, 50);
    EXPECT_TRUE(sameBits(quiet.bits(), result));
}

TEST(Geometry, TakeFromPictureLeavesWhatThePictureLacksBlack)
{
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.setPixel(0, 0, qRgb(3, 2, 1));
    picture.setPixel(1, 0, qRgb(6, 5, 4));
    cBitFilter f = filterOf(Bits(1, 1));
    f.BitsTakeFromPicture(picture, 3, 2);
    EXPECT_EQ(f.bits().at(0, 0), (Pixel{{1, 2, 3, 0}}));
    EXPECT_EQ(f.bits().at(1, 0), (Pixel{{4, 5, 6, 0}}));
    EXPECT_EQ(f.bits().at(2, 1), Pixel{});
    f.BitsTakeFromPicture(QImage(), 9, 9);
    EXPECT_EQ(f.BitsWidth(), 3) << "a null picture changes nothing";
}

} // namespace
} // namespace velara
