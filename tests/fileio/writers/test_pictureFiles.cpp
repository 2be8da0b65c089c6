// The writers of picture files: bytes that must not change, and how they end when nobody wants the file any more.
#include "fileio/cameraData.h"
#include "fileio/exifBytes.h"
#include "fileio/load/PictureLoader.h"
#include "fileio/writers/pictureFiles.h"
#include "support/exif.h"
#include "support/files.h"
#include "support/pictures.h"
#include <QColorSpace>
#include <QColorTransform>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <unistd.h>

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

CameraData cameraFor(bool little)
{
    return {exifOfCamera(little),
            "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
            "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description rdf:about='' "
            "xmlns:dc='http://purl.org/dc/elements/1.1/'><dc:format>told</dc:format></rdf:Description>"
            "</rdf:RDF></x:xmpmeta>",
            QByteArray("\x1c\2\x19\0\5Dunes", 10),
            QString::fromUtf8("Düne"),
            300,
            150};
}

struct Carrying {
    const char* extension;
    bool (*write)(const Bits& bits, OutputFile& to, const CameraData& camera);
    const char* facts; // as exiftool tells them: where the format has them
};
const Carrying kCarrying[] = {
    {"jpg", [](const Bits& b, OutputFile& to, const CameraData& c) { return writeJpeg(b, 90, to, c); },
     "Maker 0.004 N told Dunes Düne - - 300 150 - -"},
    {"png", [](const Bits& b, OutputFile& to, const CameraData& c) { return writePng(b, 6, to, c); },
     "Maker 0.004 N told Dunes Düne - - - - 11811 5906"},
    {"tif", [](const Bits& b, OutputFile& to, const CameraData& c) { return writeTiff(b, to, c); },
     "Maker 0.004 N told Dunes - Düne - 300 150 - -"},
    {"webp",
     [](const Bits& b, OutputFile& to, const CameraData& c) {
         return writeWebp(b, {75, true}, to, c);
     },
     "Maker 0.004 N told Dunes - - Düne 300 150 - -"},
    {"avif", [](const Bits& b, OutputFile& to, const CameraData& c) { return writeAvif(b, 90, to, c); },
     "Maker 0.004 N told Dunes - - Düne 300 150 - -"},
    {"jxl", [](const Bits& b, OutputFile& to, const CameraData& c) { return writeJxl(b, 100, to, c); },
     "Maker 0.004 N told Dunes - - Düne 300 150 - -"},
};

LoadedPicture readBack(const QString& path)
{
    return loadThroughDecoder(path, QFileInfo(path).suffix(), findDecoder());
}

// A picture of odd sides, so that the last squares of the coarser chroma reach beyond it.
TEST_F(PictureFiles, AvifKeepsItsColours)
{
    constexpr Pixel kLeft{{20, 60, 220, 0}}, kRight{{200, 130, 10, 0}};
    const Bits bits = drawnBits(33, 17, [&](int x, int) { return x < 16 ? kLeft : kRight; });
    for (const int quality : {80, 95}) {
        OutputFile file(path("a.avif"));
        ASSERT_TRUE(writeAvif(bits, quality, file) && file.commit());
        const Bits read = readBack(path("a.avif")).bits;
        ASSERT_EQ(read.width(), 33);
        for (const auto& [x, y] : {std::pair{2, 2}, {2, 16}, {32, 2}, {32, 16}})
            for (int c = 0; c < 3; ++c) EXPECT_NEAR(read.at(x, y).c[c], bits.at(x, y).c[c], 5) << quality << ' ' << x;
    }
}

QString toldByExiftool(const QString& path, const QString& tags)
{
    QProcess reader;
    reader.start("exiftool", QString("-s3 -n -f " + tags).split(' ') << path);
    EXPECT_TRUE(reader.waitForFinished());
    return QString::fromUtf8(reader.readAll().trimmed().replace('\n', ' '));
}

// As a stranger reads it.
TEST_F(PictureFiles, WhatTheCameraWroteIsReadBack)
{
    if (QStandardPaths::findExecutable("exiftool").isEmpty()) GTEST_SKIP() << "there is no exiftool";
    const Bits bits = randomBits(40, 30, 1);
    const CameraData camera = cameraFor(true);
    for (const bool little : {true, false})
        for (const Carrying& row : kCarrying) {
            OutputFile file(path("a"));
            ASSERT_TRUE(row.write(bits, file, cameraFor(little)) && file.commit()) << row.extension;
            EXPECT_EQ(row.facts,
                      toldByExiftool(path("a"), "-Make -ExposureTime -GPSLatitudeRef -XMP:Format -IPTC:Keywords "
                                                "-Comment -ImageDescription -UserComment -XResolution -YResolution "
                                                "-PixelsPerUnitX -PixelsPerUnitY")
                          .toStdString())
                << row.extension;
            EXPECT_EQ("", toldByExiftool(path("a"), "-Warning -Error").remove('-').trimmed()) << row.extension;
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

// What another program has put into a TIFF file, of either byte order, small and behind many pixels.
TEST_F(PictureFiles, AStrangersTiffIsRead)
{
    if (QStandardPaths::findExecutable("exiftool").isEmpty()) GTEST_SKIP() << "there is no exiftool";
    for (const bool little : {true, false})
        for (const int side : {20, 900}) {
            OutputFile file(path("a.tif"));
            ASSERT_TRUE(writeTiff(randomBits(side, side, 3), file,
                                  {.exif = QByteArray(little ? "II*\0\10\0\0\0" : "MM\0*\0\0\0\10", 8)}) &&
                        file.commit());
            QProcess writer;
            writer.start("exiftool",
                         {"-overwrite_original", "-Make=Vel", "-ExifIFD:LensModel=A long lens",
                          "-ExifIFD:ExposureTime=0.25", "-GPSLatitude=52.5", "-IPTC:City=Berlin", path("a.tif")});
            ASSERT_TRUE(writer.waitForFinished());
            const CameraData camera = readBack(path("a.tif")).camera;
            EXPECT_EQ(camera.iptc.toHex(), "1c025a00064265726c696e1c020000020004"); // with the version of the records
            const ExifBytes exif(camera.exif);
            const std::uint32_t main = exif.first(), details = exif.directoryOf(main, ExifTag::Details);
            ASSERT_TRUE(exif.find(details, ExifTag::Lens) && exif.find(details, ExifTag::ExposureTime));
            EXPECT_EQ(exif.text(*exif.find(main, ExifTag::Make)), "Vel");
            EXPECT_EQ(exif.text(*exif.find(details, ExifTag::Lens)), "A long lens");
            EXPECT_EQ(exif.fraction(*exif.find(details, ExifTag::ExposureTime)), 0.25);
            EXPECT_EQ(exif.fraction(*exif.find(exif.directoryOf(main, ExifTag::Place), 2)), 52);
            EXPECT_LT(exif.bytes().size(), 1000) << "it has pixels in it";
        }
}

// By our own reader, in a file of each kind made of what was read before: the same, and no more from file to file.
TEST_F(PictureFiles, WhatTheCameraWroteStaysTheSame)
{
    const Bits bits = randomBits(30, 40, 1);
    for (const bool little : {true, false})
        for (const Carrying& row : kCarrying) {
            CameraData camera = fitted(cameraFor(little), 30, 40);
            const CameraData before = camera;
            const QString name = path(QString("a.") + row.extension);
            QByteArray first;
            for (int round = 0; round < 3; ++round) {
                OutputFile file(name);
                ASSERT_TRUE(row.write(bits, file, camera) && file.commit()) << row.extension;
                camera = readBack(name).camera;
                EXPECT_EQ(camera.xmp, before.xmp) << row.extension;
                EXPECT_EQ(camera.iptc, before.iptc) << row.extension;
                EXPECT_EQ(camera.comment, before.comment) << row.extension;
                EXPECT_NEAR(camera.dotsAcross, 300, 0.01) << row.extension;
                EXPECT_NEAR(camera.dotsDown, 150, 0.02) << row.extension;
                const ExifBytes exif(camera.exif);
                const std::uint32_t main = exif.first(), details = exif.directoryOf(main, ExifTag::Details);
                ASSERT_TRUE(exif.find(main, ExifTag::Make) && exif.find(details, ExifTag::ExposureTime))
                    << row.extension;
                EXPECT_EQ(exif.text(*exif.find(main, ExifTag::Make)), "Maker") << row.extension;
                EXPECT_EQ(exif.fraction(*exif.find(details, ExifTag::ExposureTime)), 1 / 250.0) << row.extension;
                EXPECT_EQ(exif.number(*exif.find(details, ExifTag::PixelWidth)), 30U) << row.extension;
                const auto latitude = exif.find(exif.directoryOf(main, ExifTag::Place), 2);
                ASSERT_TRUE(latitude) << row.extension;
                EXPECT_EQ(exif.fraction(*latitude, 2), 12.345) << row.extension;
                EXPECT_TRUE(round == 0 || camera.exif.size() == first.size()) << row.extension;
                first = camera.exif;
            }
        }
}

// Pixels that aren't in sRGB are what their profile says, in every format.
TEST_F(PictureFiles, AProfileGoesWithThePixels)
{
    const QByteArray profile = QColorSpace(QColorSpace::DisplayP3).iccProfile();
    const QColor wanted =
        QColorSpace(QColorSpace::DisplayP3).transformationToColorSpace(QColorSpace::SRgb).map(QColor(200, 100, 50));
    const bool hasExiftool = !QStandardPaths::findExecutable("exiftool").isEmpty();
    for (const Carrying& row : kCarrying) {
        const QString name = path(QString("a.") + row.extension);
        OutputFile file(name);
        ASSERT_TRUE(row.write(flatBits(64, 64, 50, 100, 200), file, {.profile = profile}) && file.commit());
        const LoadedPicture shown = readBack(name);
        readInSrgb(false);
        const LoadedPicture stored = readBack(name);
        readInSrgb(true);
        ASSERT_TRUE(shown.ok() && stored.ok()) << row.extension;
        const Pixel is = shown.bits.row(30)[30], raw = stored.bits.row(30)[30];
        EXPECT_NEAR(is.c[2], wanted.red(), 3) << row.extension;
        EXPECT_NEAR(is.c[1], wanted.green(), 3) << row.extension;
        EXPECT_NEAR(is.c[0], wanted.blue(), 6) << row.extension;
        EXPECT_NEAR(raw.c[2], 200, 3) << row.extension;
        EXPECT_EQ(shown.camera.profile, "") << row.extension;
        const bool isMade = row.extension == std::string_view("jxl"); // from the numbers in the file
        EXPECT_TRUE(stored.camera.profile == profile || (isMade && !stored.camera.profile.isEmpty())) << row.extension;
        if (hasExiftool && !isMade) {
            EXPECT_EQ(toldByExiftool(name, "-ICC_Profile:ProfileDescription"), "Display P3") << row.extension;
        }
    }
    OutputFile file(path("b.png"));
    ASSERT_TRUE(writePng(flatBits(8, 8, 1, 2, 3), 6, file, {.profile = QColorSpace(QColorSpace::SRgb).iccProfile()}) &&
                file.commit());
    readInSrgb(false);
    EXPECT_EQ(readBack(path("b.png")).camera.profile, "") << "sRGB";
    readInSrgb(true);
}

#ifndef __SANITIZE_ADDRESS__ // the filter is off there

/// The state of our velara-encode, by the kernel; empty: there is none.
QByteArray stateOfEncoder()
{
    for (const QString& entry : QDir("/proc").entryList(QDir::Dirs)) {
        QFile file("/proc/" + entry + "/status");
        if (!file.open(QIODevice::ReadOnly)) continue;
        const QByteArray status = file.readAll();
        if (status.contains("Name:\tvelara-encode\n") &&
            status.contains("PPid:\t" + QByteArray::number(getpid()) + '\n'))
            return status;
    }
    return {};
}

TEST_F(PictureFiles, AreEncodedInACage)
{
    const Bits bits = randomBits(1500, 1500, 5);
    for (const auto write : {writeAvif, writeJxl}) {
        OutputFile file(path("a"));
        QByteArray inside;
        file.setGoOn([&] {
            const QByteArray status = stateOfEncoder();
            if (status.contains("Seccomp:\t2") && status.contains("NoNewPrivs:\t1")) inside = status;
            return inside.isEmpty();
        });
        EXPECT_FALSE(write(bits, 75, file, {})) << "it was encoded without a cage";
        EXPECT_TRUE(inside.contains("CapEff:\t0000000000000000"));
    }
}

#endif

} // namespace
} // namespace velara
