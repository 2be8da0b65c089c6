// What the readers by libjpeg, libpng and libtiff make of a file beside the pixels, and of damage between these.
#include "fileio/decode/decode.h"
#include "support/files.h"
#include <QBuffer>
#include <QImage>
#include <cstdio>
#include <gtest/gtest.h>
#include <jpeglib.h>
#include <zlib.h>

namespace velara::decode {

namespace {

using namespace std::string_literals;

std::string big(std::size_t value, int bytes)
{
    std::string text;
    for (int i = bytes - 1; i >= 0; --i) text += static_cast<char>(value >> 8 * i);
    return text;
}

Decoded decodeBytes(const std::string& contents, const QString& extension)
{
    return decodePicture(FileBytes(std::vector<std::uint8_t>(contents.begin(), contents.end())), extension,
                         {.srgb = false});
}

template <class Bytes> std::string textOf(const Bytes& bytes) { return {bytes.begin(), bytes.end()}; }

std::string writtenByQt(const char* format, const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return bytes.toStdString();
}

QImage slope(int side, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(side, side, format);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) image.setPixel(x, y, qRgb(x * 3 % 256, y * 5 % 256, (x ^ y) % 256));
    return image;
}

std::vector<Pixel> rowOf(const Decoded& picture, int y)
{
    std::vector<Pixel> row(static_cast<std::size_t>(picture.width));
    picture.row(y, row.data());
    return row;
}

std::string chunk(const std::string& name, const std::string& body)
{
    const std::string checked = name + body;
    const auto sum = crc32(0, reinterpret_cast<const Bytef*>(checked.data()), static_cast<uInt>(checked.size()));
    return big(body.size(), 4) + checked + big(sum, 4);
}

/// A grey picture of 8 bits, with more chunks before and behind its pixels.
std::string png(int width, int height, const std::string& lines, const std::string& before = {},
                const std::string& behind = {})
{
    const QByteArray packed = qCompress(QByteArray::fromStdString(lines)).mid(4);
    const std::string head = big(std::size_t(width), 4) + big(std::size_t(height), 4) + "\x08\0\0\0\0"s;
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR", head) + before + chunk("IDAT", packed.toStdString()) + behind +
           chunk("IEND", "");
}

} // namespace

TEST(Libraries, RowsMayBeAskedForAgainAndInAnyOrder)
{
    for (const char* format : {"jpg", "png", "tif"}) {
        const Decoded picture = decodeBytes(writtenByQt(format, slope(90)), format);
        ASSERT_TRUE(picture.ok()) << format;
        std::vector<std::vector<Pixel>> rows;
        for (int y = 0; y < 90; ++y) rows.push_back(rowOf(picture, y));
        for (const int y : {89, 3, 3, 40, 0}) EXPECT_TRUE(rowOf(picture, y) == rows[std::size_t(y)]) << format << y;
        EXPECT_FALSE(rows[3] == rows[40]) << format;
    }
}

TEST(Libraries, WhatAJpegCarries)
{
    const auto segment = [](int marker, const std::string& body) {
        return "\xff"s + static_cast<char>(marker) + big(body.size() + 2, 2) + body;
    };
    const std::string icc = "ICC_PROFILE\0"s, whole = writtenByQt("jpg", slope(20));
    const auto with = [&](const std::string& segments) {
        return decodeBytes(whole.substr(0, 2) + segments + whole.substr(2), "jpg").carried;
    };
    const std::string facts = segment(0xe1, "Exif\0\0MM*"s) + segment(0xe1, "http://ns.adobe.com/xap/1.0/\0<x/>"s) +
                              segment(0xed, "Photoshop 3.0\0"s + "8BIM\x04\x0c\0\0"s + big(3, 4) + "abc\0"s +
                                                "8BIM\x04\x04\0\0"s + big(2, 4) + "\x1c\x02"s) +
                              segment(0xfe, "a word\0"s);
    const Carried carried =
        with(segment(0xe2, icc + "\2\2file"s) + facts + segment(0xe2, icc + "\1\2pro"s) + segment(0xfe, "another"));
    EXPECT_EQ(textOf(carried.profile), "profile");
    EXPECT_EQ(textOf(carried.exif), "MM*");
    EXPECT_EQ(textOf(carried.xmp), "<x/>");
    EXPECT_EQ(textOf(carried.iptc), "\x1c\x02");
    EXPECT_EQ(carried.comment, "a word");
    EXPECT_TRUE(with(segment(0xe2, icc + "\2\2file"s)).profile.empty()) << "a part is missing";
}

TEST(Libraries, InksOfAJpeg)
{
    jpeg_compress_struct info;
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &bytes, &size);
    info.image_width = info.image_height = 8;
    info.input_components = 4;
    info.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, 100, TRUE);
    jpeg_start_compress(&info, TRUE);
    for (int y = 0; y < 8; ++y) {
        std::string line;
        for (int x = 0; x < 8; ++x) line += "\xff\x80\x40\xc0";
        auto* row = reinterpret_cast<JSAMPROW>(line.data());
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    const Decoded picture = decodeBytes({reinterpret_cast<char*>(bytes), size}, "jpg");
    free(bytes);
    ASSERT_TRUE(picture.ok());
    EXPECT_EQ(rowOf(picture, 5)[3], (Pixel{{48, 96, 192, 0}}));
    ASSERT_EQ(picture.samples.channels, 4);
    std::uint8_t inks[32];
    picture.samples.row(7, inks);
    EXPECT_EQ((std::vector<int>{inks[28], inks[29], inks[30], inks[31]}), (std::vector<int>{0, 127, 191, 63}));
}

TEST(Libraries, WhatAPngCarries)
{
    const std::string before = chunk("gAMA", big(100000, 4)) + chunk("pHYs", big(3937, 4) + big(11811, 4) + "\1");
    const std::string behind = chunk("tEXt", "Comment\0a word"s) + chunk("tEXt", "Thumb::MTime\0 77"s) +
                               chunk("iTXt", "XML:com.adobe.xmp\0\0\0\0\0<x/>"s) +
                               chunk("tEXt", "Raw profile type exif\0\nexif\n  9\n457869660000\n4d4d2a\n"s);
    const Decoded picture = decodeBytes(png(2, 1, "\0\x40\xff"s, before, behind), "png");
    ASSERT_TRUE(picture.ok());
    EXPECT_EQ(picture.carried.gamma, 1);
    EXPECT_NEAR(picture.carried.dotsAcross, 100, 0.01);
    EXPECT_NEAR(picture.carried.dotsDown, 300, 0.01);
    EXPECT_EQ(picture.carried.comment, "a word");
    EXPECT_EQ(textOf(picture.carried.exif), "MM*");
    EXPECT_EQ(textOf(picture.carried.xmp), "<x/>");
    EXPECT_EQ(picture.origin.modified, 77);
    EXPECT_EQ(rowOf(picture, 0)[0], (Pixel{{136, 136, 136, 0}})) << "corrected for the screen";
    std::uint8_t stored[6];
    picture.samples.row(0, stored);
    EXPECT_EQ(stored[0], 0x40) << "as the file has it";
}

TEST(Libraries, DamageBetweenThePixelsOfAPng)
{
    const std::string lines(64 * 65, '\0'), whole = png(64, 64, lines);
    const std::size_t data = whole.find("IDAT") + 4;
    std::string wrong = whole;
    wrong[data + 3] ^= 1;
    EXPECT_FALSE(decodeBytes(wrong, "png").ok()) << "a wrong checksum is found before the first row";
    EXPECT_FALSE(decodeBytes(whole.substr(0, whole.size() - 12), "png").ok()) << "without its end";
    const Decoded few = decodeBytes(png(64, 64, lines.substr(0, 65 * 10)), "png");
    ASSERT_TRUE(few.ok());
    EXPECT_NO_THROW(rowOf(few, 9));
    EXPECT_THROW(rowOf(few, 10), Damage);
    EXPECT_NO_THROW(rowOf(few, 0)) << "and it begins again";
}

} // namespace velara::decode
