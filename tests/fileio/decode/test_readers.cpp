// Valid files that the readers refuse or crash on unless they are mended first, built here byte by byte.
#include "fileio/decode/decode.h"
#include "support/files.h"
#include <FreeImage.h>
#include <QImage>
#include <cmath>
#include <functional>
#include <sys/resource.h>

namespace velara::decode {

namespace {

std::string little(std::size_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> 8 * i);
    return text;
}

std::string big(std::size_t value, int bytes)
{
    const std::string text = little(value, bytes);
    return {text.rbegin(), text.rend()};
}

Decoded decodeBytes(const std::string& contents, const QString& extension)
{
    return decodePicture(FileBytes(std::vector<std::uint8_t>(contents.begin(), contents.end())), extension);
}

/// The file that the library writes for a picture painted by fill.
std::string written(FREE_IMAGE_FORMAT format, FREE_IMAGE_TYPE type, int width, int height, int bits,
                    const std::function<void(FIBITMAP*)>& fill)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("a");
    FreeImage_Initialise(0);
    FIBITMAP* dib = FreeImage_AllocateT(type, width, height, bits);
    fill(dib);
    EXPECT_TRUE(FreeImage_Save(format, dib, name.toLocal8Bit(), 0)) << format;
    FreeImage_Unload(dib);
    FreeImage_DeInitialise();
    return fileBytes(name).toStdString();
}

using Colours = std::vector<std::uint32_t>; // 0xRRGGBB

/// The colours of all pixels, row by row; empty when there is no picture.
Colours coloursOf(const Decoded& picture)
{
    Colours colours;
    if (!picture.ok()) return colours;
    std::vector<Pixel> row(static_cast<std::size_t>(picture.width));
    for (int y = 0; y < picture.height; ++y) {
        picture.row(y, row.data());
        for (const Pixel& p : row) {
            EXPECT_EQ(p.c[3], 0);
            colours.push_back(std::uint32_t{p.c[2]} << 16 | std::uint32_t{p.c[1]} << 8 | p.c[0]);
        }
    }
    return colours;
}
Colours coloursIn(const std::string& contents, const QString& extension)
{
    return coloursOf(decodeBytes(contents, extension));
}

/// A bitmap with a header of the given size; masks (for compression 3) and the other fields of a long header are part
/// of it.
std::string bmp(std::uint32_t header, int width, int height, std::uint32_t bits, const std::string& palette,
                const std::string& pixels, std::uint32_t compression = 0, const std::string& masks = {},
                std::uint32_t coloursUsed = 0)
{
    std::string info = little(header, 4) + little(std::uint32_t(width), 4) + little(std::uint32_t(height), 4) +
                       little(1, 2) + little(bits, 2) + little(compression, 4) + little(0, 4) + little(2835, 4) +
                       little(2835, 4) + little(coloursUsed, 4) + little(0, 4);
    info += masks;
    const std::string after = header == 40 ? masks : std::string();
    info.resize(header + after.size());
    const std::size_t offset = 14 + info.size() + palette.size();
    return "BM" + little(offset + pixels.size(), 4) + little(0, 4) + little(offset, 4) + info + palette + pixels;
}

const std::string kPalette("\x10\x20\x30\0\x40\x50\x60\0\x70\x80\x90\0\xa0\xb0\xc0\0", 16);

} // namespace

TEST(Readers, MaskedPixelsOfAnIconAreWhiteAtEveryDepth)
{
    // two by two, bottom row first: the mask removes the right pixel above and the left one below
    const std::string mask = std::string("\x80\0\0\0\x40\0\0\0", 8);
    const Colours masked = {0x405060, 0xFFFFFF, 0xFFFFFF, 0x102030};
    const struct {
        std::uint32_t bits;
        std::string palette, pixels;
        Colours wanted;
    } rows[] = {
        {24, "", std::string("\0\0\0\x30\x20\x10\0\0\x60\x50\x40\0\0\0\0\0", 16), masked},
        {8, std::string("\0\0\0\0\x30\x20\x10\0\x60\x50\x40\0", 12), std::string("\0\1\0\0\2\0\0\0", 8), masked},
        // pixels with alpha of their own: the mask is for readers that ignore it
        {32, "", "\1\1\1\xff\2\2\2\xff\3\3\3\xff\4\4\4\xff", {0x030303, 0x040404, 0x010101, 0x020202}}};
    for (const auto& r : rows)
        for (const char* extension : {"ico", "cur"}) {
            const std::string palette = r.palette + std::string(r.bits == 8 ? 1024 - r.palette.size() : 0, '\0');
            const std::string picture = little(40, 4) + little(2, 4) + little(4, 4) + little(1, 2) + little(r.bits, 2) +
                                        std::string(24, '\0') + palette + r.pixels + mask;
            const std::string icon = little(0, 2) + little(extension == std::string("ico") ? 1 : 2, 2) + little(1, 2) +
                                     "\2\2" + little(0, 2) + little(1, 2) + little(r.bits, 2) +
                                     little(picture.size(), 4) + little(22, 4) + picture;
            EXPECT_EQ(r.wanted, coloursIn(icon, extension)) << r.bits << " bits, " << extension;
        }
}

TEST(Readers, BitmapsOfEveryHeader)
{
    const std::string true24 = std::string("\1\2\3\4\5\6\0\0", 8) + std::string("\7\x8\x9\xa\xb\xc\0\0", 8);
    const Colours wanted24 = {0x090807, 0x0c0b0a, 0x030201, 0x060504};
    const std::string indices("\1\0\2\0\0\3\1\0", 8);
    const Colours wanted8 = {0x302010, 0xc0b0a0, 0x605040, 0x605040, 0x302010, 0x908070};
    const std::string masks565 = little(0xf800, 4) + little(0x7e0, 4) + little(0x1f, 4);
    const std::string masksRgba = little(0xff0000, 4) + little(0xff00, 4) + little(0xff, 4) + little(0xff000000, 4);
    for (const std::uint32_t header : {40U, 52U, 56U, 108U, 124U}) {
        EXPECT_EQ(coloursIn(bmp(header, 2, 2, 24, "", true24), "bmp"), wanted24) << header;
        EXPECT_EQ(coloursIn(bmp(header, 3, 2, 8, kPalette, indices, 0, "", 4), "bmp"), wanted8) << header;
        EXPECT_EQ(coloursIn(bmp(header, 2, 1, 16, "", little(0xf800, 2) + little(0x1f, 2), 3, masks565), "bmp"),
                  (Colours{0xff0000, 0x0000ff}))
            << header;
        EXPECT_EQ(
            coloursIn(bmp(header, 1, 1, 32, "", "\1\2\3\x7f", 3, masksRgba.substr(0, header == 40 ? 12 : 16)), "bmp"),
            (Colours{0x030201}))
            << header;
    }
    // With and without the file header, under the extension of the one without; .jng goes to the reader of .bmp.
    EXPECT_EQ(coloursIn(bmp(40, 2, 2, 24, "", true24), "dib"), wanted24);
    EXPECT_EQ(coloursIn(bmp(40, 2, 2, 24, "", true24).substr(14), "dib"), wanted24);
    EXPECT_EQ(coloursIn(bmp(124, 2, 2, 24, "", true24), "jng"), wanted24);
}

TEST(Readers, RunLengthBitmaps)
{
    // A run, literals padded to even, end of line, a jump, end of picture; bottom row first.
    const std::string rle8("\2\1\0\3\2\3\1\0\0\0\5\2\0\1", 14);
    const Colours wanted = {0x908070, 0x908070, 0x908070, 0x908070, 0x908070,
                            0x605040, 0x605040, 0x908070, 0xc0b0a0, 0x605040};
    for (const std::uint32_t header : {40U, 124U})
        EXPECT_EQ(coloursIn(bmp(header, 5, 2, 8, kPalette, rle8, 1, "", 4), "bmp"), wanted) << header;
}

TEST(Readers, GreyOf16Bits)
{
    const std::string pgm = "P5\n4 1\n65535\n" + big(0, 2) + big(0x12ff, 2) + big(0x8000, 2) + big(0xffff, 2);
    EXPECT_EQ(coloursIn(pgm, "pgm"), (Colours{0, 0x121212, 0x808080, 0xffffff}));
}

TEST(Readers, HighDepthsOfPng)
{
    const struct {
        FREE_IMAGE_TYPE type;
        std::uint32_t wanted;
    } kTypes[] = {{FIT_UINT16, 0x121212}, {FIT_RGB16, 0x12569a}, {FIT_RGBA16, 0x12569a}};
    for (const auto& t : kTypes) {
        const std::string png = written(FIF_PNG, t.type, 1, 1, 0, [](FIBITMAP* dib) {
            auto* words = reinterpret_cast<std::uint16_t*>(FreeImage_GetScanLine(dib, 0));
            for (unsigned i = 0; i < FreeImage_GetBPP(dib) / 16; ++i) words[i] = std::uint16_t(0x1234 + 0x4444 * i);
        });
        EXPECT_EQ(coloursIn(png, "png"), Colours{t.wanted}) << t.type;
    }
}

TEST(Readers, FloatingPointTiff)
{
    const std::string tiff = written(FIF_TIFF, FIT_RGBF, 2, 1, 0, [](FIBITMAP* dib) {
        auto* colours = reinterpret_cast<FIRGBF*>(FreeImage_GetScanLine(dib, 0));
        colours[0] = {0.5F, 2.0F, -1.0F};
        colours[1] = {std::nanf(""), 0.0F, 1.0F};
    });
    EXPECT_EQ(coloursIn(tiff, "tif"), (Colours{0x80ff00, 0x0000ff}));
}

TEST(Readers, PlainBitMaps)
{
    const Colours wanted = {0, 0xffffff, 0, 0xffffff, 0xffffff, 0};
    for (const char* text : {"P1 3 2 101 001", "P1\n# note 7\n3 2\n1 0 1\n0 0 1\n", "P1\n3\n2\n1010#1\n01"})
        EXPECT_EQ(coloursIn(text, "pbm"), wanted) << text;
    EXPECT_FALSE(decodeBytes("P1 3 2 1010", "pbm").ok());
}

TEST(Readers, SunRastersWithAFullPalette)
{
    std::string palette(768, '\0'); // index i: red i, green 255 - i, blue i / 2
    for (std::size_t i = 0; i < 256; ++i) {
        palette[i] = static_cast<char>(i);
        palette[256 + i] = static_cast<char>(255 - i);
        palette[512 + i] = static_cast<char>(i / 2);
    }
    const auto ras = [&](std::uint32_t type, const std::string& pixels) {
        return big(0x59a66a95, 4) + big(3, 4) + big(2, 4) + big(8, 4) + big(pixels.size(), 4) + big(type, 4) +
               big(1, 4) + big(768, 4) + palette + pixels;
    };
    const Colours wanted = {0x807f40, 0x807f40, 0x807f40, 0x01fe00, 0x02fd01, 0x03fc01};
    EXPECT_EQ(coloursIn(ras(1, "\x80\x80\x80x\1\2\3x"), "ras"), wanted);
    EXPECT_EQ(coloursIn(ras(2, std::string("\x80\2\x80\x80\0\1\2\3x", 9)), "ras"), wanted);
    const Decoded cut = decodeBytes(ras(1, "\x80\x80\x80x\1\2"), "ras");
    EXPECT_EQ(cut.reason, "it is cut off: its end is missing");
    EXPECT_EQ(coloursOf(cut), (Colours{0x807f40, 0x807f40, 0x807f40, 0, 0, 0})) << "the rows that are whole";
}

TEST(Readers, TrueColourPcx)
{
    const auto pcx = [](int width, int height, const std::string& data) {
        std::string header = std::string("\12\5\1\10", 4) + little(1, 2) + little(1, 2) +
                             little(std::uint32_t(width), 2) + little(std::uint32_t(height), 2) +
                             std::string(53, '\0') + "\3" + little(std::uint32_t(width + width % 2), 2);
        header.resize(128);
        return header + data;
    };
    EXPECT_EQ(coloursIn(pcx(2, 2, "\xcc\7"), "pcx"), Colours(4, 0x070707)); // one run across both rows
    EXPECT_EQ(coloursIn(pcx(1, 1, "\1\1\2\2\3\3"), "pcx"), Colours{0x010203});
    EXPECT_EQ(coloursIn(pcx(2, 1, "\1\2\3\4\5\6"), "pcx"), (Colours{0x010305, 0x020406}));
    EXPECT_EQ(coloursIn(pcx(1, 2, "\1\1\2\2\3\3\4\4\5\5\6\6"), "pcx"), (Colours{0x010203, 0x040506}));
    EXPECT_EQ(coloursIn(pcx(2, 2, "\xcb\7\xff\7"), "pcx"), Colours(4, 0x070707)) << "a run beyond the end";
    const std::string claim = pcx(16000, 16000, "\1\2");
    const auto peak = [] { // kilobytes
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss;
    };
    const long before = peak();
    EXPECT_EQ(decodeBytes(claim, "pcx").reason, "it is cut off: its end is missing");
    EXPECT_LT(peak() - before, 100 << 10) << "a claim alone takes no memory";
}

TEST(Readers, IffWithoutABodyEnds)
{
    const std::string head = "BMHD" + big(20, 4) + std::string("\0\2\0\1\0\0\0\0\x18\0\0\0\0\0\1\1\0\2\0\1", 20);
    for (const std::string& chunk : {std::string("BODY"), "CRNG" + big(0xfffffff0, 4), std::string("CRNG")})
        EXPECT_EQ(decodeBytes("FORM" + big(84, 4) + "ILBM" + head + chunk + big(6, 4) + "abcdef", "iff").ok(),
                  chunk == "BODY");
}

// Most readers fill with black and report nothing.
TEST(CutOff, IsToldInEveryFormatThatTells)
{
    const struct {
        FREE_IMAGE_FORMAT format;
        const char* extension;
        bool shown; // the available part
    } kFormats[] = {{FIF_BMP, "bmp", true},    {FIF_JPEG, "jpg", true},  {FIF_PNG, "png", false},
                    {FIF_PPMRAW, "ppm", true}, {FIF_TARGA, "tga", true}, {FIF_TIFF, "tif", false},
                    {FIF_WBMP, "wbmp", false}};
    for (const auto& f : kFormats) {
        const std::string whole =
            written(f.format, FIT_BITMAP, 100, 90, f.format == FIF_WBMP ? 1 : 24, [](FIBITMAP* dib) {
                for (unsigned y = 0; y < 90; ++y)
                    for (unsigned x = 0; x < FreeImage_GetLine(dib); ++x)
                        FreeImage_GetScanLine(dib, int(y))[x] = std::uint8_t(x * 7 + y * y);
            });
        EXPECT_TRUE(decodeBytes(whole, f.extension).ok()) << f.extension;
        EXPECT_TRUE(decodeBytes(whole, f.extension).reason.isEmpty()) << f.extension;
        for (const std::size_t percent : {30U, 60U, 95U}) {
            const Decoded picture = decodeBytes(whole.substr(0, whole.size() * percent / 100), f.extension);
            EXPECT_TRUE(picture.ok() || !f.shown) << f.extension << percent;
            EXPECT_TRUE(!picture.ok() || picture.reason == "it is cut off: its end is missing")
                << f.extension << percent;
        }
        if (f.format == FIF_JPEG) {
            const QImage elsewhere = QImage::fromData(QByteArray::fromStdString(whole));
            Colours wanted;
            for (int i = 0; i < 9000; ++i) wanted.push_back(elsewhere.pixel(i % 100, i / 100) & 0xFFFFFF);
            EXPECT_TRUE(coloursIn(whole, "jpg") == wanted) << "as exact as other programs";
            EXPECT_EQ(decodeBytes(whole.substr(0, whole.size() - 2), f.extension).reason, "") << "but for its end mark";
        }
    }
}

TEST(CutOff, IsToldWhereQtReads)
{
    const std::string gif = std::string("GIF89a\2\0\1\0\x80\0\0"
                                        "abcdef"
                                        "!\xf9\4\0\0\0\0\0"
                                        ",\0\0\0\0\2\0\1\0\0"
                                        "\2\2\x44\x0a\0;",
                                        43);
    EXPECT_EQ(coloursIn(gif, "gif"), (Colours{0x616263, 0x646566}));
    EXPECT_EQ(coloursIn(gif.substr(0, 42), "gif").size(), 2U); // without the end marker
    EXPECT_EQ(decodeBytes(gif.substr(0, 41), "gif").reason, "it is cut off: its end is missing");
    const std::string dib = bmp(40, 2, 2, 8, kPalette, std::string("\1\0\0\0\2\3\0\0", 8), 0, "", 4);
    EXPECT_EQ(coloursIn(dib.substr(14), "dib"), (Colours{0x908070, 0xc0b0a0, 0x605040, 0x302010}));
    EXPECT_FALSE(decodeBytes(dib.substr(14, dib.size() - 15), "dib").reason.isEmpty());
    EXPECT_FALSE(decodeBytes(dib.substr(0, dib.size() - 1), "dib").reason.isEmpty());
}

} // namespace velara::decode
