// Icons: the bytes of their files, and the results of reading them.
#include "fileio/load/PictureLoader.h"
#include "fileio/writers/iconFile.h"
#include "support/files.h"
#include "support/fullDisk.h"
#include "support/pictures.h"
#include "support/places.h"
#include <QImageReader>

namespace velara {

namespace {

using IconFile = FolderTest;

constexpr Colour kMask = colourOf(200, 0, 100);
constexpr Pixel kWhite{{255, 255, 255, 0}};
constexpr std::uint8_t kMasked = 9; // the fourth byte of pixels in the mask's colour

/// Every third pixel has the mask's colour, all others have distinct ones.
Bits dotted(int width, int height)
{
    return drawnBits(width, height, [i = -1](int, int) mutable {
        return ++i % 3 ? Pixel{{std::uint8_t(i), std::uint8_t(i / 256), 7, 255}} : Pixel{{100, 0, 200, kMasked}};
    });
}

} // namespace

TEST_F(IconFile, BytesAreThoseOfAnUncompressedIconWithItsMask)
{
    const Pixel a{{1, 2, 3, 0}}, b{{4, 5, 6, 0}}, masked{{100, 0, 200, 0}};
    const std::array pixels{a, masked, b, b, a, masked};
    const Bits bits = drawnBits(3, 2, [&](int x, int y) { return pixels[std::size_t(y * 3 + x)]; });
    const QByteArray head = "00000100 0100 0302 0000 0100 1800 48000000 16000000"
                            "28000000 03000000 04000000 0100 1800 00000000 20000000" +
                            QByteArray(32, '0');
    const std::pair<std::optional<Colour>, const char*> kRows[] = {
        {kMask, "040506 010203 000000 000000  010203 000000 040506 000000  20000000 40000000"},
        {{}, "040506 010203 6400c8 000000  010203 6400c8 040506 000000  00000000 00000000"},
    };
    for (const auto& [mask, rows] : kRows)
        EXPECT_EQ(QByteArray::fromHex(head + rows).toHex(), iconBytes(iconOf(bits, {3, 2}, mask)).toHex());
    const QByteArray largest = iconBytes(iconOf(dotted(256, 256), {256, 256}, {}));
    EXPECT_EQ("0000", largest.mid(6, 2).toHex()) << "256 has no byte of its own";
    EXPECT_EQ(6 + 16 + 40 + 256 * (256 * 3 + 32), largest.size());
}

TEST_F(IconFile, ReadersGetBackEveryPixelAndTheMask)
{
    const QString name = path("a.ico");
    for (const QSize size : {QSize(1, 1), {3, 2}, {16, 16}, {31, 33}, {33, 7}, {64, 48}, {255, 5}, {256, 256}}) {
        const Bits picture = dotted(size.width(), size.height());
        ASSERT_TRUE(writeIcon(iconBytes(iconOf(picture, size, kMask)), name));
        const LoadedPicture ours = loadThroughDecoder(name, "ico", builtPath("velara-decode"));
        const Bits wanted = drawnBits(size.width(), size.height(), [&](int x, int y) {
            const Pixel& p = picture.at(x, y);
            return p.c[3] == kMasked ? kWhite : Pixel{{p.c[0], p.c[1], p.c[2], 0}};
        });
        EXPECT_TRUE(sameBits(wanted, ours.bits)) << ours.reason.toStdString();
    }
}

TEST_F(IconFile, WhatIsMaskedGivesNoColourToItsNeighbours)
{
    const Bits bits = drawnBits(90, 90, [](int x, int y) { // a square of one colour on the mask's colour
        return QRect(20, 20, 50, 50).contains(x, y) ? Pixel{{10, 20, 30, 0}} : Pixel{{100, 0, 200, 0}};
    });
    const QImage icon = iconOf(bits, {32, 16}, kMask);
    int opaque = 0;
    for (int i = 0; i < 32 * 16; ++i)
        if (const QRgb pixel = icon.pixel(i % 32, i / 32)) {
            ++opaque;
            EXPECT_NEAR(30, qRed(pixel), 1);
            EXPECT_NEAR(10, qBlue(pixel), 1);
        }
    EXPECT_NEAR(32 * 16 * 25 / 81, opaque, 16);
}

// Read by Qt's reader, which knows nothing of ours.
TEST_F(IconFile, AllSizesStandTogetherWithSoftEdges)
{
    const Bits dot = drawnBits(200, 100, [](int x, int y) { // red on the mask's colour
        return QPoint::dotProduct({x - 100, y - 50}, {x - 100, y - 50}) < 2000 ? Pixel{{0, 0, 255, 0}}
                                                                               : Pixel{{100, 0, 200, 0}};
    });
    ASSERT_TRUE(writeIcon(iconSetBytes(dot, kMask), path("set.ico")));
    QImageReader reader(path("set.ico"));
    QList<int> sides;
    for (int i = 0; i < reader.imageCount() && reader.jumpToImage(i); ++i) {
        const QImage icon = reader.read().convertToFormat(QImage::Format_ARGB32);
        sides << icon.width();
        const int side = icon.width();
        EXPECT_EQ(icon.pixel(side / 2, side / 2), qRgb(255, 0, 0)) << side;
        EXPECT_EQ(qAlpha(icon.pixel(side / 2, 0)), 0) << "in its proportions: " << side;
        int soft = 0;
        for (int p = 0; p < side * side; ++p) {
            const QRgb pixel = icon.pixel(p % side, p / side);
            soft += qAlpha(pixel) > 0 && qAlpha(pixel) < 255;
            EXPECT_TRUE(qAlpha(pixel) < 16 || (qRed(pixel) > 230 && qBlue(pixel) < 20)) << "the mask's colour shines";
        }
        EXPECT_GT(soft, 3) << side;
    }
    EXPECT_EQ(sides, (QList<int>{256, 128, 64, 48, 32, 24, 16}));
    ASSERT_TRUE(reader.jumpToImage(0));
    EXPECT_EQ(largestIconOf(dot, kMask).convertToFormat(QImage::Format_ARGB32_Premultiplied),
              reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

TEST_F(IconFile, WhatIsNoIconIsNotMadeAndAFailedWriteLeavesTheOldOne)
{
    const Bits picture = dotted(300, 4);
    for (const QSize size : {QSize(0, 0), {16, 0}, {-1, 16}, {257, 16}, {20000, 20000}})
        EXPECT_TRUE(iconOf(picture, size, {}).isNull()) << size.width();
    EXPECT_TRUE(iconOf({}, {16, 16}, {}).isNull());
    EXPECT_FALSE(writeIcon(iconBytes({}), path("none.ico")));
    EXPECT_FALSE(writeIcon(iconSetBytes({}, {}), path("none.ico")));
    const QString name = path("a.ico");
    ASSERT_TRUE(writeIcon(iconBytes(iconOf(picture, {16, 16}, {})), name));
    {
        const FullDisk disk(500);
        EXPECT_FALSE(writeIcon(iconBytes(iconOf(picture, {64, 64}, {})), name));
    }
    EXPECT_EQ(iconBytes(iconOf(picture, {16, 16}, {})), content("a.ico"));
    EXPECT_EQ(QStringList("a.ico"), files());
}

} // namespace velara
