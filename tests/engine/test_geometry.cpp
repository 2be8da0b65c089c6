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
    f.BitsTakeFromPicture(QImage(), 9, 9); // no fault, and no change
    EXPECT_TRUE(f.bits().sharesWith(before));
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

} // namespace
} // namespace velara
