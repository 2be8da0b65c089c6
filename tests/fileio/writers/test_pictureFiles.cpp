// The writers of picture files: bytes that must not change, and how they end when nobody wants the file any more.
#include "fileio/writers/pictureFiles.h"
#include "support/files.h"
#include "support/pictures.h"
#include <QCryptographicHash>
#include <QProcess>
#include <QStandardPaths>

namespace velara {
namespace {

struct Row {
    const char* name;
    std::function<bool(const Bits&, OutputFile&)> write;
};

const Row kRows[] = {
    {"bmp", [](const Bits& bits, OutputFile& to) { return writeBmp(bits, to); }},
    {"tga", [](const Bits& bits, OutputFile& to) { return writeTga(bits, to); }},
    {"ppm", [](const Bits& bits, OutputFile& to) { return writePpm(bits, to); }},
    {"png", [](const Bits& bits, OutputFile& to) { return writePng(bits, kUsualEffort, to); }},
    {"tif", [](const Bits& bits, OutputFile& to) { return writeTiff(bits, to); }},
    {"jpg", [](const Bits& bits, OutputFile& to) { return writeJpeg(bits, kSuperbJpeg, to); }},
    {"progressive jpg", [](const Bits& bits, OutputFile& to) { return writeJpeg(bits, 0x2000 | 90, to); }},
    {"webp", [](const Bits& bits, OutputFile& to) { return writeWebp(bits, {75}, to); }},
    {"lossless webp",
     [](const Bits& bits, OutputFile& to) {
         return writeWebp(bits, {75, true}, to);
     }},
    {"avif", [](const Bits& bits, OutputFile& to) { return writeAvif(bits, 75, to); }},
    {"jxl", [](const Bits& bits, OutputFile& to) { return writeJxl(bits, 75, to); }},
};

using PictureFiles = FolderTest;

/// The file of a picture, by its MD5 sum.
template <class Write> QByteArray sumOf(const QString& path, Write&& write)
{
    OutputFile file(path);
    if (!write(file) || !file.commit()) return "not written";
    return QCryptographicHash::hash(fileBytes(path), QCryptographicHash::Md5).toHex();
}

// The sums are those of the files that FreeImage wrote of these pictures.
TEST_F(PictureFiles, AreTheSameToTheByte)
{
    const struct {
        int width;
        const char *name, *sum;
    } kFull[] = {{5, "bmp", "e9aa523ecfc45622bb38beaa6767eb3a"}, {6, "bmp", "b271758689599bdf0ab9cdcdeb784c4e"},
                 {5, "tga", "2195eba645b0be913f060ee12edc78c3"}, {6, "tga", "c6581c06db0adcf0c452c79a48c6121d"},
                 {5, "ppm", "962fd2e026918d07258fe7fc1c417690"}, {6, "ppm", "59381fe5503cf31cbcdda9932a54712a"},
                 {5, "jpg", "8ec5bef42ebf0faa826dfbd18478f0ea"}};
    for (const auto& row : kFull) {
        const Bits bits = drawnBits(row.width, 3, [](int x, int y) {
            const auto at = [&](int c) { return std::uint8_t(x * 3 + y * 5 + c * 40); };
            return Pixel{{at(0), at(1), at(2), 77}};
        });
        const Row& writer = *std::ranges::find(kRows, std::string_view(row.name), &Row::name);
        EXPECT_EQ(row.sum, sumOf(path("a"), [&](OutputFile& to) { return writer.write(bits, to); })) << row.name;
    }
    const struct {
        int bits, width;
        const char* sum;
    } kReduced[] = {{1, 24, "5941636f428affae8cab3f774552f8cb"},
                    {4, 14, "217e4388c79402c9ac26bbc124dbb495"},
                    {8, 13, "fc5528dca636855805f47f77eac667f1"},
                    {16, 5, "7ba740f9a4a8de46bbca701a1b83c30d"}};
    for (const auto& row : kReduced) {
        ReducedPicture picture{row.bits, {row.width, 3, {}, {}}, {}};
        if (row.bits == 16)
            picture.full = drawnBits(row.width, 2, [](int x, int y) {
                const int word = x * 1000 + (1 - y) * 7;
                return Pixel{{std::uint8_t(word << 3), std::uint8_t(word >> 5 << 3), std::uint8_t(word >> 10 << 3), 9}};
            });
        for (int i = 0; row.bits <= 8 && i < 1 << row.bits; ++i)
            picture.indexed.palette.push_back(colourOf(255 - i, (i * 13 + 1) & 255, (i * 7) & 255));
        for (int i = 0; row.bits <= 8 && i < row.width * 3; ++i) {
            const int x = i % row.width * row.bits, byte = (x / 8 * 29 + i / row.width * 17) & 255;
            picture.indexed.indices.push_back(std::uint8_t(byte >> (8 - row.bits - x % 8) & ((1 << row.bits) - 1)));
        }
        EXPECT_EQ(row.sum, sumOf(path("a"), [&](OutputFile& to) { return writeBmp(picture, to); })) << row.bits;
    }
}

// Also where much of the picture becomes few bytes.
TEST_F(PictureFiles, EndWhenNobodyWantsThem)
{
    for (const Bits& bits : {randomBits(900, 900, 5), flatBits(8000, 900, 1, 2, 3)})
        for (const Row& row : kRows) {
            OutputFile file(path("a"));
            int asked = 0;
            file.setGoOn([&asked] { return ++asked < 4; });
            EXPECT_FALSE(row.write(bits, file) && file.commit()) << row.name;
            EXPECT_LE(asked, 14) << row.name << " packs the rest of the picture";
            EXPECT_TRUE(asked > 1) << row.name;
        }
    EXPECT_FALSE(QFile::exists(path("a")));
}

// As a stranger reads it. A dash: the format has no place for it.
TEST_F(PictureFiles, WhatTheCameraWroteIsReadBack)
{
    if (QStandardPaths::findExecutable("exiftool").isEmpty()) GTEST_SKIP() << "there is no exiftool";
    const CameraData camera{QByteArray("II*\0\10\0\0\0\1\0\17\1\2\0\4\0\0\0Vel\0\0\0\0\0", 26),
                            "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
                            "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description rdf:about='' "
                            "xmlns:dc='http://purl.org/dc/elements/1.1/'><dc:format>told</dc:format></rdf:Description>"
                            "</rdf:RDF></x:xmpmeta>",
                            QByteArray("\x1c\2\x19\0\5Dunes", 10),
                            QString::fromUtf8("Düne"),
                            300,
                            150};
    const Bits bits = randomBits(40, 30, 1);
    const struct {
        const char* name;
        std::function<bool(OutputFile&)> write;
        const char* facts;
    } rows[] = {
        {"a.jpg", [&](auto& to) { return writeJpeg(bits, 90, to, camera); }, "Vel told Dunes Düne - 300 150 - -"},
        {"a.png", [&](auto& to) { return writePng(bits, 6, to, camera); }, "Vel told - Düne - - - 11811 5906"},
        {"a.tif", [&](auto& to) { return writeTiff(bits, to, camera); }, "- told Dunes - Düne 300 150 - -"},
        {"a.webp", [&](auto& to) { return writeWebp(bits, {75}, to, camera); }, "Vel told - - - - - - -"},
        {"a.avif", [&](auto& to) { return writeAvif(bits, 75, to, camera); }, "Vel told - - - - - - -"},
        {"a.jxl", [&](auto& to) { return writeJxl(bits, 75, to, camera); }, "Vel told - - - - - - -"},
    };
    for (const auto& row : rows) {
        OutputFile file(path(row.name));
        ASSERT_TRUE(row.write(file) && file.commit()) << row.name;
        QProcess reader;
        reader.start("exiftool",
                     QString("-s3 -n -f -Make -XMP:Format -IPTC:Keywords -Comment -ImageDescription -XResolution "
                             "-YResolution -PixelsPerUnitX -PixelsPerUnitY")
                             .split(' ')
                         << path(row.name));
        ASSERT_TRUE(reader.waitForFinished());
        EXPECT_EQ(row.facts, reader.readAll().trimmed().replace('\n', ' ').toStdString()) << row.name;
    }
    // Too long for a segment with its padding, and without it.
    CameraData padded = camera;
    for (const int marks : {100, 70000}) {
        padded.xmp = camera.xmp + QByteArray(marks, 'x') + QByteArray(70000, ' ') + "<?xpacket end='w'?>";
        OutputFile file(path("b.jpg"));
        ASSERT_TRUE(writeJpeg(bits, 90, file, padded) && file.commit());
        EXPECT_EQ(marks == 100, fileBytes(path("b.jpg")).contains("told"));
        EXPECT_TRUE(fileBytes(path("b.jpg")).contains("Dunes"));
    }
}

} // namespace
} // namespace velara
