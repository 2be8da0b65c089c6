// TIFF files of rare kinds: numbers of samples, bits and formats, as scientific and old programs write them.
#include "fileio/decode/decode.h"
#include <QString>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <tiffio.h>

namespace velara::decode {

namespace {

enum : int { Alpha = EXTRASAMPLE_UNASSALPHA, Bare = -1 }; // of extra samples; Bare: the tag is missing

/// One row: the samples in the order of the pixels, whole or, for real formats, as they are.
struct Kind {
    const char* name;
    int samples, bits, photometric, format, extra;
    std::vector<double> values;
    std::vector<int> wanted; // red, green and blue of each pixel, 0xRRGGBB; empty: the picture is refused
};

void put(std::vector<std::uint8_t>& line, std::size_t at, int bits, std::uint64_t value)
{
    for (int i = 0; i < bits; ++i, ++at)
        if (value >> (bits - 1 - i) & 1) line[at / 8] = static_cast<std::uint8_t>(line[at / 8] | 0x80 >> at % 8);
}

template <class Number> void put(std::vector<std::uint8_t>& line, std::size_t i, double value)
{
    const auto number = static_cast<Number>(value);
    std::memcpy(line.data() + i * sizeof number, &number, sizeof number);
}

/// The values from `first` on, each `step`-th; a complex number is two values.
std::vector<std::uint8_t> lineOf(const Kind& kind, std::size_t first, std::size_t step)
{
    const bool isComplex = kind.format >= SAMPLEFORMAT_COMPLEXINT;
    const bool isReal = kind.format == SAMPLEFORMAT_IEEEFP || kind.format == SAMPLEFORMAT_COMPLEXIEEEFP;
    const int bits = isComplex ? kind.bits / 2 : kind.bits;
    std::vector<std::uint8_t> line((kind.values.size() * static_cast<std::size_t>(bits) + 7) / 8 + 8);
    for (std::size_t i = 0; first + i * step < kind.values.size(); ++i) {
        const double value = kind.values[first + i * step];
        if (bits < 16 || bits % 8 != 0)
            put(line, i * static_cast<std::size_t>(bits), bits, std::uint64_t(value));
        else if (bits == 16)
            isReal ? put<_Float16>(line, i, value) : put<std::uint16_t>(line, i, value);
        else if (bits == 32)
            isReal ? put<float>(line, i, value) : put<std::uint32_t>(line, i, value);
        else
            put<double>(line, i, value);
    }
    return line;
}

Decoded read(const Kind& kind, bool inPlanes, const char* mode)
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath("a.tif").toStdString();
    TIFF* tiff = TIFFOpen(path.c_str(), mode);
    const auto samples = static_cast<std::size_t>(kind.samples);
    const std::size_t parts = kind.format >= SAMPLEFORMAT_COMPLEXINT ? 2 : 1;
    const auto width = static_cast<std::uint32_t>(kind.values.size() / samples / parts);
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, width);
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, 1);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, kind.samples);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, kind.bits);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, kind.photometric);
    TIFFSetField(tiff, TIFFTAG_SAMPLEFORMAT, kind.format);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, inPlanes ? PLANARCONFIG_SEPARATE : PLANARCONFIG_CONTIG);
    const std::vector<std::uint16_t> extra(1, static_cast<std::uint16_t>(kind.extra));
    if (kind.extra != Bare) TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, extra.data());
    std::vector<std::uint16_t> red(256), other(256);
    for (std::size_t i = 0; i < 256; ++i) red[i] = static_cast<std::uint16_t>((15 - i % 16) * 257);
    if (kind.photometric == PHOTOMETRIC_PALETTE)
        TIFFSetField(tiff, TIFFTAG_COLORMAP, red.data(), other.data(), other.data());
    const std::size_t planes = inPlanes ? samples : 1;
    for (std::size_t plane = 0; plane < planes; ++plane)
        TIFFWriteScanline(tiff, lineOf(kind, plane, planes).data(), 0, static_cast<std::uint16_t>(plane));
    TIFFClose(tiff);
    return decodePicture(FileBytes(QString::fromStdString(path)), "tif", {.srgb = false});
}

const std::vector<Kind>& kinds()
{
    constexpr int Grey = PHOTOMETRIC_MINISBLACK, Rgb = PHOTOMETRIC_RGB, Inks = PHOTOMETRIC_SEPARATED;
    constexpr int Whole = SAMPLEFORMAT_UINT, Signed = SAMPLEFORMAT_INT, Real = SAMPLEFORMAT_IEEEFP;
    constexpr int Complex = SAMPLEFORMAT_COMPLEXIEEEFP, ComplexWhole = SAMPLEFORMAT_COMPLEXINT;
    static const std::vector<Kind> all{
        {"4 bits with alpha", 2, 4, Grey, Whole, Alpha, {0, 3, 9, 0, 15, 7}, {0, 0x999999, 0xffffff}},
        {"4 bits with alpha, white first", 2, 4, 0, Whole, Alpha, {0, 3, 9, 0, 15, 7}, {0xffffff, 0x666666, 0}},
        {"a palette of 4 bits with alpha", 2, 4, 3, Whole, Alpha, {0, 3, 9, 0, 15, 7}, {0x0f0000, 0x060000, 0}},
        {"1 bit with alpha", 2, 1, Grey, Whole, Alpha, {1, 0, 0, 1, 1, 1}, {0xffffff, 0, 0xffffff}},
        {"colours of 4 bits", 3, 4, Rgb, Whole, Bare, {15, 0, 1, 2, 3, 4}, {0xff0011, 0x223344}},
        {"colours of 2 bits with alpha", 4, 2, Rgb, Whole, Alpha, {3, 0, 1, 0, 1, 2, 3, 3}, {0xff0055, 0x55aaff}},
        {"complex numbers", 1, 128, Grey, Complex, Bare, {0, 0, 3, 4, 10, 0}, {0, 0x808080, 0xffffff}},
        {"single complex numbers", 1, 64, Grey, Complex, Bare, {6, -8, 0, 0, 0, 5}, {0xffffff, 0, 0x808080}},
        {"whole complex numbers", 1, 32, Grey, ComplexWhole, Bare, {0, 500, 0, 0}, {0xffffff, 0}},
        {"two floats", 2, 32, Grey, Real, Bare, {-1, 99, 1, -99, 0, 0}, {0, 0xffffff, 0x808080}},
        {"two halves", 2, 16, Grey, Real, Bare, {-1, 99, 1, -99, 0, 0}, {0, 0xffffff, 0x808080}},
        {"two doubles", 2, 64, Grey, Real, Bare, {0, 9, 510, 9}, {0, 0xffffff}},
        {"two signed numbers", 2, 16, Grey, Signed, Bare, {0, 9, 510, 9}, {0, 0xffffff}},
        {"one colour", 1, 8, Rgb, Whole, Bare, {0, 77, 255}, {0, 0x4d4d4d, 0xffffff}},
        {"two colours", 2, 8, Rgb, Whole, Bare, {0, 9, 77, 9}, {0, 0x4d4d4d}},
        {"two colours of 16 bits", 2, 16, Rgb, Whole, Bare, {0x1234, 9, 0xffff, 9}, {0x121212, 0xffffff}},
        {"three inks", 3, 8, Inks, Whole, Bare, {0, 64, 255, 17, 0, 0}, {0xffbf00, 0xeeffff}},
        {"three inks of 16 bits", 3, 16, Inks, Whole, Bare, {0, 0x3fff, 0xffff}, {0xffc000}},
        {"two inks", 2, 8, Inks, Whole, Bare, {0, 9, 77, 9}, {}},
        {"two inks of 16 bits", 2, 16, Inks, Whole, Bare, {0, 9, 77, 9}, {}},
        {"colours of 12 bits", 3, 12, Rgb, Whole, Bare, {0, 9, 77}, {}},
        {"signed colours", 3, 16, Rgb, Signed, Bare, {0, 9, 77}, {}},
    };
    return all;
}

} // namespace

TEST(TiffKinds, AreReadOrRefusedWithAReason)
{
    for (const Kind& kind : kinds())
        for (const bool inPlanes : {false, true})
            for (const char* mode : {"wl", "wb"}) {
                SCOPED_TRACE(std::string(kind.name) + (inPlanes ? ", in planes, " : ", ") + mode);
                const Decoded picture = read(kind, inPlanes, mode);
                EXPECT_EQ(picture.ok(), !kind.wanted.empty()) << picture.reason.toStdString();
                EXPECT_FALSE(picture.reason.contains("damaged")) << picture.reason.toStdString();
                if (!picture.ok() || kind.wanted.empty()) continue;
                std::vector<Pixel> row(static_cast<std::size_t>(picture.width));
                picture.row(0, row.data());
                for (std::size_t x = 0; x < kind.wanted.size(); ++x)
                    EXPECT_EQ(row[x].c[2] << 16 | row[x].c[1] << 8 | row[x].c[0], kind.wanted[x]) << x;
            }
}

} // namespace velara::decode
