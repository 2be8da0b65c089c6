#include "document/cDIBSection.h"
#include "pixels/RuntimeError.h"
#include "pixels/mBitmap.h"
#include "support/RecordingPlatform.h"
#include "support/pictures.h"

namespace velara {

namespace {

/// A picture from one channel's values, row by row; the other channels are derived from it.
Bits picture(int width, int height, const std::vector<int>& blues)
{
    return drawnBits(width, height, [&](int x, int y) {
        const auto blue = static_cast<std::uint8_t>(blues[std::size_t(y * width + x)]);
        return Pixel{{blue, static_cast<std::uint8_t>(255 - blue), 7, 0}};
    });
}

cDIBSection sectionOf(const Bits& bits)
{
    cDIBSection section;
    EXPECT_TRUE(section.CreateFromPicture(bits));
    return section;
}

} // namespace

TEST(cDIBSection, AlignsItsRowsAndStartsWithTheBottomOne)
{
    for (const auto& [width, bytesARow] : {std::pair(1, 4), {2, 8}, {3, 12}, {4, 12}, {5, 16}}) {
        cDIBSection section;
        ASSERT_TRUE(section.Create(width, 2));
        EXPECT_EQ(section.BytesPerScanLine(), bytesARow);
    }
    const cDIBSection section = sectionOf(picture(1, 2, {10, 20}));
    const std::uint8_t* bytes = section.DIBSectionBitsPtr();
    EXPECT_EQ(std::vector<std::uint8_t>(bytes, bytes + 8), (std::vector<std::uint8_t>{20, 235, 7, 0, 10, 245, 7, 0}));
    cDIBSection empty = section;
    EXPECT_FALSE(empty.Create(0, 5));
    EXPECT_EQ(empty.Width(), 0);
}

TEST(cDIBSection, CopiesOnlyWhatBothHave)
{
    const Bits source = picture(3, 2, {1, 2, 3, 4, 5, 6});
    const struct {
        int x, y, width, height;
        std::vector<int> blues; // of a 2 by 2 section
    } kLoads[] = {
        {0, 0, -1, -1, {1, 2, 4, 5}}, {1, 1, -1, -1, {5, 6, 0, 0}}, {-1, 0, -1, -1, {0, 1, 0, 4}},
        {1, 0, 1, 1, {2, 0, 0, 0}},   {5, 5, 9, 9, {0, 0, 0, 0}},
    };
    for (const auto& c : kLoads) {
        cDIBSection section;
        section.Create(2, 2);
        section.LoadPictureBlt(source, c.x, c.y, c.width, c.height);
        for (int i = 0; i < 4; ++i) EXPECT_EQ(section.row(i / 2)[i % 2 * 3], c.blues[static_cast<std::size_t>(i)]);
    }
    Bits target = flatBits(3, 3, 0, 0, 0, 77);
    sectionOf(source).PaintPicture(target, 1, 2, 9, 1, 1, 0);
    EXPECT_EQ(target.at(1, 2), (Pixel{{2, 253, 7, 77}}));
    EXPECT_EQ(target.at(2, 2), (Pixel{{3, 252, 7, 77}}));
    EXPECT_EQ(target.at(0, 2), (Pixel{{0, 0, 0, 77}}));
}

TEST(cDIBSection, ResamplesFromCornerToCorner)
{
    const cDIBSection section = sectionOf(picture(2, 2, {0, 100, 50, 250}));
    EXPECT_TRUE(sameBits(section.toBits(), section.Resample(2, 2)->toBits()));
    // Half to even: 12.5 in the first row gives 12.
    const Bits wanted = picture(3, 3, {0, 50, 100, 25, 100, 175, 50, 150, 250});
    EXPECT_TRUE(sameBits(wanted, section.Resample(3, 3)->toBits()));
    EXPECT_EQ(section.Resample(2, 5)->toBits().at(1, 0).c[0], 25);
    EXPECT_EQ(section.Resample(2, 9)->toBits().at(1, 0).c[0], 12);
    EXPECT_EQ(section.Resample(2, 3)->Height(), 2); // height is the first argument
    EXPECT_THROW(section.Resample(1, 5), RuntimeError);
    EXPECT_FALSE(section.Resample(0, 5));
    EXPECT_FALSE(cDIBSection().Resample(3, 3));
}

TEST(cDIBSection, GoesToTheClipboardAsABitmapOnly)
{
    RecordingPlatform platform;
    const Bits bits = picture(3, 2, {1, 2, 3, 4, 5, 6});
    EXPECT_FALSE(sectionOf(bits).CopyToClipboard(platform, true));
    EXPECT_EQ(platform.log, std::vector<std::string>{"message: Velara Studio: I don't know how to put a DIB on the "
                                                     "clipboard! Copy as bitmap instead!!!"});
    EXPECT_TRUE(platform.recordingClipboard.bits.isNull());
    EXPECT_TRUE(sectionOf(bits).CopyToClipboard(platform, false));
    EXPECT_TRUE(sameBits(bits, platform.recordingClipboard.bits));
    EXPECT_FALSE(cDIBSection().CopyToClipboard(platform, false));
}

TEST(cDIBSection, RandomPixelsAreGreyOrWithoutBlue)
{
    RecordingPlatform platform; // its random numbers are all one half
    cDIBSection section;
    section.Create(2, 1);
    section.RandomiseBits(platform, false);
    EXPECT_EQ(section.toBits().at(1, 0), (Pixel{{0, 128, 128, 0}}));
    section.RandomiseBits(platform, true);
    EXPECT_EQ(section.toBits().at(1, 0), (Pixel{{128, 128, 128, 0}}));
}

TEST(mBitmap, FitsASizeIntoABox)
{
    constexpr QSize kCases[][3] = {
        {{100, 50}, {200, 200}, {100, 50}},   {{400, 100}, {200, 200}, {200, 50}},  {{100, 400}, {200, 200}, {50, 200}},
        {{200, 200}, {200, 200}, {200, 200}}, {{300, 300}, {200, 100}, {100, 100}}, {{401, 1}, {200, 200}, {200, 0}},
        {{10, 25}, {10, 10}, {4, 10}},
    };
    for (const auto& [size, box, fitted] : kCases) EXPECT_EQ(fitSize(size, box), fitted);
}

TEST(mBitmap, BytesOfAPictureHaveNoMargin)
{
    const ByteArray array = bytesOfPicture(randomBits(3, 2, 1));
    EXPECT_EQ(array.header.biWidth, 3);
    EXPECT_EQ(array.header.biHeight, -2);
    EXPECT_EQ(array.bytes.size(), 24U);
    const Bits bits = randomBits(3, 2, 1);
    EXPECT_EQ(array.bytes[12 + 4 + 2], bits.at(1, 1).c[2]);
    EXPECT_TRUE(byteArrayFor(0, 3).bytes.empty());
}

} // namespace velara
