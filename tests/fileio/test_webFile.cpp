// Every preset of "Save for Web" with every palette and dither: the written file is read back by other libraries.
#include "fileio/web/webFile.h"
#include "support/files.h"
#include "support/pictures.h"
#include <QImage>
#include <bit>
#include <gif_lib.h>

namespace velara {
namespace {

Bits sample()
{
    return drawnBits(37, 21, [](int x, int y) { return pixelFor(colourOf(x * 6, y * 11, 255 - x * 4)); });
}

using WebFileTest = FolderTest;

/// GIF by its library: palette, bits, rows reordered, interlace.
void holdGif(const QString& name, const WebSettings& s, const IndexedPicture& wanted)
{
    int error = 0;
    GifFileType* gif = DGifOpenFileName(name.toLocal8Bit().constData(), &error);
    ASSERT_TRUE(gif && DGifSlurp(gif) == GIF_OK && gif->ImageCount == 1);
    const SavedImage& image = gif->SavedImages[0];
    const ColorMapObject* map = image.ImageDesc.ColorMap ? image.ImageDesc.ColorMap : gif->SColorMap;
    EXPECT_EQ(s.OutputKind == kInterlacedGifOutput, image.ImageDesc.Interlace);
    EXPECT_LE(map->BitsPerPixel, s.row().bitCount);
    EXPECT_GE(map->BitsPerPixel, std::max(1, int(std::bit_width(wanted.palette.size() - 1))));
    int wrong = 0;
    for (std::size_t i = 0; i < wanted.indices.size(); ++i) {
        const GifColorType& c = map->Colors[image.RasterBits[i]];
        wrong += colourOf(c.Red, c.Green, c.Blue) != wanted.palette[wanted.indices[i]];
    }
    EXPECT_EQ(0, wrong);
    DGifCloseFile(gif, &error);
}

/// BMP and PNG by Qt; the bit count is in the header.
void holdBitmap(const QString& name, const WebSettings& s, const ReducedPicture& wanted)
{
    const QByteArray head = fileBytes(name);
    const bool isPng = s.FileKind == kPng;
    const int bits = isPng ? head[24] * (head[25] == 2 ? 3 : 1) : head[28];
    EXPECT_EQ(s.row().bitCount, bits);
    const QImage image = QImage(name, isPng ? "png" : "bmp").convertToFormat(QImage::Format_RGB32);
    const Bits full = pictureOf(wanted);
    ASSERT_EQ(QSize(full.width(), full.height()), image.size());
    const QRgb known = bits == 16 ? 0xF8F8F8 : 0xFFFFFF; // readers fill the lower bits differently
    int wrong = 0;
    for (int y = 0; y < full.height(); ++y)
        for (int x = 0; x < full.width(); ++x) {
            const Pixel& p = full.at(x, y);
            wrong += (image.pixel(x, y) & known) != (qRgb(p.c[2], p.c[1], p.c[0]) & known);
        }
    EXPECT_EQ(0, wrong);
}

TEST_F(WebFileTest, EveryPresetPaletteAndDitherReadBack)
{
    const QString name = path("web");
    const Bits picture = sample();
    int files = 0;
    BestPalettes known;
    const auto hold = [&](const WebSettings& s) {
        ASSERT_EQ(WebFile::Outcome::Written,
                  writeWebFile(picture, s, name, OutputFile::Links::Follow, {}, &known).outcome);
        const ReducedPicture wanted = reduceColours(picture, {s.ColorMode, s.BitCount, s.PaletteWord, s.DitherWord});
        s.isGif() ? holdGif(name, s, wanted.indexed) : holdBitmap(name, s, wanted);
        ++files;
    };
    for (int preset = 0; preset < int(webPresets().size()); ++preset) {
        WebSettings s;
        s.choosePreset(preset, false);
        if (s.isJpeg() || (!s.isGif() && s.FileKind != kBmp && s.FileKind != kPng)) continue; // all of 24 bits
        for (const int map : s.maps())
            for (int dither = 0; dither < int(webDithers().size()); ++dither) {
                SCOPED_TRACE(std::string(s.row().entry) + ", " + webMaps()[std::size_t(map)].entry + ", " +
                             webDithers()[std::size_t(dither)].entry);
                s.choosePreset(preset, dither % 2 == 1);
                s.ColorMode = dither % 3 == 2 ? kGreyscale : 0;
                s.chooseMap(map);
                s.chooseDither(dither);
                hold(s);
            }
    }
    EXPECT_GT(files, 400);

    for (auto& [key, palette] : known) palette.plain = {0x0000FF};
    WebSettings s;
    s.choosePreset(3, false);
    for (const bool invert : {false, true}) {
        s.invert = invert;
        writeWebFile(picture, s, name, OutputFile::Links::Follow, {}, &known);
        EXPECT_EQ(invert, QImage(name, "gif").pixel(0, 0) != qRgb(255, 0, 0)) << "made once for each turned picture";
    }
    s.choosePreset(14, false);
    s.flipH = s.flipV = s.invert = true;
    const Bits row = randomBits(9, 1, 3); // incompressible
    writeWebFile(row, s, name, OutputFile::Links::Follow);
    for (int c = 0; c < 3; ++c) EXPECT_EQ(255 - row.at(2, 0).c[c], QImage(name, "png").pixel(6, 0) >> (8 * c) & 0xFF);
}

TEST_F(WebFileTest, TheBestThatMayHaveJustSoManyBytes)
{
    WebSettings s;
    s.choosePreset(15, false);
    s.JpegQuality = 60;
    const auto bytesOf = [&](const WebSettings& w) {
        return writeWebFile(sample(), w, path("web"), OutputFile::Links::Follow).bytes;
    };
    const std::int64_t bytes = bytesOf(s);
    EXPECT_GE(fittedSettings(sample(), s, bytes, path("tried"))->JpegQuality, 60);
    for (const int preset : {7, 13}) { // GIF, PNG
        s.choosePreset(preset, false);
        s.chooseDither(2);
        const std::int64_t full = bytesOf(s);
        EXPECT_EQ(s.DitherWord, fittedSettings(sample(), s, full, path("tried"))->DitherWord) << preset;
        const auto small = fittedSettings(sample(), s, full / 2, path("tried"));
        ASSERT_TRUE(small) << preset;
        EXPECT_LT(small->BitCount, 8);
        EXPECT_LE(bytesOf(*small), full / 2);
        EXPECT_EQ(8, fittedSettings(sample(), *small, full, path("tried"))->BitCount) << "and back";
        EXPECT_FALSE(fittedSettings(sample(), s, 40, path("tried"))) << preset;
    }
}

} // namespace
} // namespace velara
