// Icons: the bytes of their files, and what readers make of them.
#include "fileio/load/PictureLoader.h"
#include "fileio/writers/iconFile.h"
#include "support/fullDisk.h"
#include "support/pictures.h"
#include "support/places.h"
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace velara {

namespace {

constexpr Colour kMask = colourOf(200, 0, 100);

/// Every third pixel has the mask's colour, all others another one each.
Bits dotted(int width, int height)
{
    Bits bits(width, height);
    for (int i = 0; i < width * height; ++i)
        bits.at(i % width, i / width) =
            i % 3 ? Pixel{{std::uint8_t(i), std::uint8_t(i / 256), 7, 255}} : Pixel{{100, 0, 200, 9}};
    return bits;
}

} // namespace

TEST(IconFile, BytesAreThoseOfAnUncompressedIconWithItsMask)
{
    Bits bits(3, 2);
    const Pixel a{{1, 2, 3, 0}}, b{{4, 5, 6, 0}}, masked{{100, 0, 200, 0}};
    for (const auto& [x, y, pixel] :
         {std::tuple{0, 0, a}, {1, 0, masked}, {2, 0, b}, {0, 1, b}, {1, 1, a}, {2, 1, masked}})
        bits.at(x, y) = pixel;
    const char* pixels[] = {"040506010203000000000000"
                            "010203000000040506000000"
                            "20000000"
                            "40000000",
                            "0405060102036400c8000000"
                            "0102036400c8040506000000"
                            "00000000"
                            "00000000"};
    for (const bool hasMask : {true, false})
        EXPECT_EQ(QByteArray("000001000100"
                             "03020000"
                             "01001800"
                             "48000000"
                             "16000000"
                             "28000000"
                             "03000000"
                             "04000000"
                             "01001800"
                             "00000000"
                             "20000000") +
                      QByteArray(32, '0') + pixels[hasMask ? 0 : 1],
                  iconBytes(iconOf(bits, {3, 2}, hasMask ? std::optional(kMask) : std::nullopt)).toHex());
    const QByteArray largest = iconBytes(iconOf(dotted(256, 256), {256, 256}, {}));
    EXPECT_EQ("0000", largest.mid(6, 2).toHex()) << "256 has no byte of its own";
    EXPECT_EQ(6 + 16 + 40 + 256 * (256 * 3 + 32), largest.size());
}

TEST(IconFile, ReadersGetBackEveryPixelAndTheMask)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("a.ico"), convert = QStandardPaths::findExecutable("convert");
    for (const QSize size : {QSize(1, 1), {3, 2}, {16, 16}, {31, 33}, {33, 7}, {64, 48}, {255, 5}, {256, 256}}) {
        const Bits picture = dotted(size.width(), size.height());
        const QImage icon = iconOf(picture, size, kMask);
        ASSERT_TRUE(writeIcon(icon, name));
        const LoadedPicture ours = loadThroughDecoder(name, "ico", builtPath("velara-decode"));
        ASSERT_EQ(size, QSize(ours.bits.width(), ours.bits.height())) << ours.reason.toStdString();
        QImage other;
        if (!convert.isEmpty()) {
            QProcess::execute(convert, {name, "PNG32:" + name + ".png"});
            other = QImage(name + ".png").convertToFormat(QImage::Format_ARGB32);
            ASSERT_EQ(size, other.size());
        }
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x) {
                const bool masked = (y * size.width() + x) % 3 == 0;
                const Pixel& p = picture.at(x, y);
                const Pixel shown = masked ? Pixel{{255, 255, 255, 0}} : Pixel{{p.c[0], p.c[1], p.c[2], 0}};
                ASSERT_EQ(shown, ours.bits.at(x, y)) << x << ' ' << y;
                if (other.isNull()) continue;
                const QRgb seen = other.pixel(x, y);
                ASSERT_EQ(masked ? 0 : qRgb(p.c[2], p.c[1], p.c[0]), qAlpha(seen) ? seen : 0) << x << ' ' << y;
            }
    }
}

TEST(IconFile, WhatIsMaskedGivesNoColourToItsNeighbours)
{
    Bits bits = flatBits(90, 90, 100, 0, 200); // a square of one colour on the mask's ground
    for (int y = 20; y < 70; ++y)
        for (int x = 20; x < 70; ++x) bits.at(x, y) = {{10, 20, 30, 0}};
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

TEST(IconFile, WhatIsNoIconIsNotMadeAndAFailedWriteLeavesTheOldOne)
{
    const Bits picture = dotted(300, 4);
    for (const QSize size : {QSize(0, 0), {16, 0}, {-1, 16}, {257, 16}, {20000, 20000}})
        EXPECT_TRUE(iconOf(picture, size, {}).isNull()) << size.width();
    EXPECT_TRUE(iconOf({}, {16, 16}, {}).isNull());
    const QTemporaryDir folder;
    EXPECT_FALSE(writeIcon({}, folder.filePath("none.ico")));
    const QString name = folder.filePath("a.ico");
    ASSERT_TRUE(writeIcon(iconOf(picture, {16, 16}, {}), name));
    {
        const FullDisk disk(500);
        EXPECT_FALSE(writeIcon(iconOf(picture, {64, 64}, {}), name));
    }
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(iconBytes(iconOf(picture, {16, 16}, {})), file.readAll());
    EXPECT_EQ(QStringList("a.ico"), QDir(folder.path()).entryList(QDir::Files));
}

} // namespace velara
