// Pages and frames, one by one, and GIFs of all kinds.
#include "fileio/decode/decode.h"
#include "support/files.h"
#include "support/twoFrames.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <tiffio.h>

namespace velara::decode {

namespace {

using Bytes = QByteArray;

Decoded page(int number, const Bytes& bytes, const QString& extension)
{
    wantedPage = number;
    Decoded picture = decodePicture(FileBytes(std::vector<std::uint8_t>(bytes.begin(), bytes.end())), extension);
    wantedPage = 0;
    return picture;
}

Bytes little16(int value) { return Bytes(1, char(value & 255)) + char(value >> 8); }

/// Red, green, blue, white, black and, for others, "?", row by row.
std::string lettersOf(const Decoded& picture)
{
    constexpr std::pair<Pixel, char> kLetters[] = {{{{0, 0, 255, 0}}, 'R'},
                                                   {{{0, 255, 0, 0}}, 'G'},
                                                   {{{255, 0, 0, 0}}, 'B'},
                                                   {{{255, 255, 255, 0}}, 'W'},
                                                   {{{0, 0, 0, 0}}, 'K'}};
    std::string letters;
    std::vector<Pixel> row(static_cast<std::size_t>(picture.width));
    for (int y = 0; y < picture.height; ++y) {
        picture.row(y, row.data());
        for (const Pixel& pixel : row) {
            const auto* found =
                std::find_if(std::begin(kLetters), std::end(kLetters), [&](auto& l) { return l.first == pixel; });
            letters += found == std::end(kLetters) ? '?' : found->second;
        }
    }
    return letters;
}

/// The screen, with the colours black, red, green, blue.
Bytes gif(int width, int height, const Bytes& frames)
{
    return "GIF89a" + little16(width) + little16(height) + Bytes::fromHex("f10000") +
           Bytes::fromHex("000000ff000000ff000000ff") + frames + ';';
}

enum Disposal { Keep = 1, Background, Previous };

struct FrameAt {
    int x, y, width, height;
};

/// indices are digits; the table is cleared after every two, so that all codes have three bits.
Bytes frame(FrameAt at, const Bytes& indices, int disposal = Keep, int transparent = -1, int flags = 0)
{
    constexpr unsigned kClear = 4, kEnd = 5, kBits = 3;
    std::uint64_t waiting = 0;
    unsigned count = 0;
    Bytes data;
    const auto put = [&](unsigned code) {
        waiting |= std::uint64_t{code} << count;
        for (count += kBits; count >= 8; count -= 8, waiting >>= 8) data += char(waiting & 255);
    };
    for (qsizetype i = 0; i < indices.size(); ++i) {
        if (i % 2 == 0) put(kClear);
        put(unsigned(indices[i] - '0'));
    }
    put(kEnd);
    data += char(waiting);
    const int packed = disposal << 2 | int(transparent >= 0);
    const Bytes control = Bytes::fromHex("21f904") + char(packed) + little16(5) + char(std::max(transparent, 0)) + '\0';
    return control + ',' + little16(at.x) + little16(at.y) + little16(at.width) + little16(at.height) + char(flags) +
           '\2' + char(data.size()) + data + '\0';
}

constexpr int kInterlaced = 0x40;

/// Red, its smaller copy, and green.
Bytes twoPagesOfTiff()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("a.tif");
    TIFF* tiff = TIFFOpen(name.toLocal8Bit().constData(), "w");
    for (const int number : {0, 1, 2}) {
        std::uint8_t colour[3] = {};
        colour[number / 2] = 255;
        TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, 1);
        TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, 1);
        TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
        TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 3);
        TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
        TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
        TIFFSetField(tiff, TIFFTAG_SUBFILETYPE, number == 1 ? FILETYPE_REDUCEDIMAGE : FILETYPE_PAGE);
        TIFFWriteScanline(tiff, colour, 0, 0);
        TIFFWriteDirectory(tiff);
    }
    TIFFClose(tiff);
    return fileBytes(name);
}

/// Two icons of one pixel and 24 bits: a red one, and a green one that its mask hides.
Bytes twoIcons()
{
    const auto entry = [](int at) { return Bytes::fromHex("0101000001001800 30000000") + little16(at) + little16(0); };
    const auto icon = [](const char* colour, char mask) {
        return Bytes::fromHex("28000000 01000000 02000000 0100 1800") + Bytes(24, '\0') + Bytes::fromHex(colour) +
               mask + Bytes(3, '\0');
    };
    return Bytes::fromHex("0000 0100 0200") + entry(38) + entry(86) + icon("0000ff00", 0) + icon("00ff0000", char(128));
}

} // namespace

TEST(Frames, AreReadOneByOne)
{
    const struct {
        const char* extension;
        Bytes bytes;
        const char* colours; // of the last pixel of each
    } kCases[] = {
        {"webp", kTwoFrames, "??"},
        {"tif", twoPagesOfTiff(), "RG"},
        {"ico", twoIcons(), "RW"},
        {"gif", gif(1, 1, frame({0, 0, 1, 1}, "1") + frame({0, 0, 1, 1}, "2")), "RG"},
    };
    for (const auto& c : kCases)
        for (int number = 0; number < 2; ++number)
            for (const char* name : {c.extension, "jpg"}) {
                const Decoded picture = page(number, c.bytes, name);
                ASSERT_TRUE(picture.ok()) << c.extension << number << picture.reason.toStdString();
                EXPECT_EQ(picture.carried.pages, 2) << c.extension;
                EXPECT_EQ(picture.format, c.extension);
                EXPECT_EQ(lettersOf(picture).back(), c.colours[number]) << c.extension << number;
                EXPECT_EQ(page(2, c.bytes, c.extension).reason, "it has only 2 pages");
            }
    std::vector<Pixel> row(16);
    page(1, kTwoFrames, "webp").row(15, row.data());
    EXPECT_EQ(row[15], (Pixel{{200, 40, 10, 0}}));
    EXPECT_EQ(page(1, "P6\n1 1\n255\nabc", "ppm").reason, "it has only one page");
}

TEST(Frames, OfAGifAreDrawnOverThoseBefore)
{
    const Bytes bytes =
        gif(3, 1,
            frame({0, 0, 3, 1}, "111") + frame({1, 0, 1, 1}, "2", Background) + frame({0, 0, 1, 1}, "3", Previous) +
                frame({1, 0, 2, 1}, "23", Keep, 3) + frame({0, 0, 3, 1}, "1"));
    const char* const kShown[] = {"RRR", "RGR", "BWR", "RGR", "RGR"};
    for (int number = 0; number < 5; ++number) EXPECT_EQ(lettersOf(page(number, bytes, "gif")), kShown[number]);
    EXPECT_EQ(page(4, bytes, "gif").reason, "it is damaged: some of its pixels are missing");
    EXPECT_EQ(page(3, bytes, "gif").reason, "");

    const Bytes alone = gif(2, 1, frame({0, 0, 2, 1}, "11", Previous) + frame({0, 0, 1, 1}, "2"));
    EXPECT_EQ(lettersOf(page(1, alone, "gif")), "GW") << "nothing stood there before the first";
}

TEST(Frames, GifsOfAllKinds)
{
    const FrameAt low{0, 0, 1, 7};
    const Bytes local = Bytes::fromHex("2c00000000 0100 0100 80 00ff00 0000ff 02 02 4c01 00");
    const struct {
        const char* what;
        Bytes bytes;
        const char *shown, *reason;
    } kCases[] = {
        {"interlaced", gif(1, 7, frame(low, "1203333", Keep, -1, kInterlaced)), "RBKBGBB", ""},
        {"without its end", gif(2, 1, frame({0, 0, 2, 1}, "12")).chopped(1), "RG", ""},
        {"of its own colours", gif(1, 1, local), "B", ""},
        {"smaller than the screen", gif(3, 2, frame({1, 1, 1, 1}, "1")), "KKKKRK", ""},
        {"smaller, and transparent", gif(3, 2, frame({1, 1, 2, 1}, "12", Keep, 2)), "WWWWRW", ""},
        {"beyond the screen", gif(2, 2, frame({1, 0, 2, 3}, "123321")), "KRKB", ""},
        {"without a screen", gif(0, 0, frame({1, 0, 1, 1}, "1")), "KR", ""},
        {"interlaced, with two rows", gif(1, 7, frame(low, "12", Keep, -1, kInterlaced)), "RRRRGGG",
         "it is damaged: some of its pixels are missing"},
        {"cut off", gif(2, 2, frame({0, 0, 2, 2}, "1233")).chopped(3), "RGBK", "it is cut off: its end is missing"},
        {"cut off behind the head", gif(1, 1, frame({0, 0, 1, 1}, "1")).chopped(5), "K",
         "it is cut off: its end is missing"},
    };
    for (const auto& c : kCases) {
        const Decoded picture = page(0, c.bytes, "gif");
        ASSERT_TRUE(picture.ok()) << c.what << ": " << picture.reason.toStdString();
        EXPECT_EQ(lettersOf(picture), c.shown) << c.what;
        EXPECT_EQ(picture.reason.toStdString(), c.reason) << c.what;
    }
    const Bytes said = "!\xfe\5by me" + Bytes(1, '\0');
    EXPECT_EQ(page(0, gif(1, 1, said + frame({0, 0, 1, 1}, "1")), "gif").carried.comment, "by me");
}

} // namespace velara::decode
