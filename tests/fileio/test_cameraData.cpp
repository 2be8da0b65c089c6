// What a save does to the camera's data, whoever wrote it.
#include "fileio/cameraData.h"
#include "fileio/exifBytes.h"
#include "support/exif.h"
#include "support/seed.h"
#include <gtest/gtest.h>
#include <random>

namespace velara {

namespace {

std::uint32_t numberOf(const ExifBytes& exif, std::uint32_t directory, std::uint16_t tag)
{
    const auto entry = exif.find(directory, tag);
    return entry ? exif.number(*entry) : 0;
}

} // namespace

TEST(cameraData, FitsAnUprightPicture)
{
    for (const bool little : {true, false}) {
        const ExifBytes exif(fitted({.exif = exifOfCamera(little)}, 30, 40).exif);
        const std::uint32_t first = exif.first(), details = exif.directoryOf(first, ExifTag::Details);
        EXPECT_EQ(numberOf(exif, first, ExifTag::Orientation), 1U);
        EXPECT_EQ(numberOf(exif, details, ExifTag::PixelWidth), 30U);
        EXPECT_EQ(numberOf(exif, details, ExifTag::PixelHeight), 40U);
        EXPECT_EQ(exif.text(*exif.find(first, ExifTag::Make)), "Maker");
        EXPECT_EQ(exif.fraction(*exif.find(details, ExifTag::ExposureTime)), 1 / 250.0);
        EXPECT_EQ(exif.next(first), 0U);
        EXPECT_FALSE(exif.bytes().contains(kSmallPicture));
        EXPECT_TRUE(exif.find(first, ExifTag::Place).has_value());
    }
    EXPECT_EQ(
        fitted({.xmp = "<x tiff:Orientation=\"6\"/><exif:PixelXDimension>4000</exif:PixelXDimension>"}, 30, 40).xmp,
        "<x tiff:Orientation=\"1\"/><exif:PixelXDimension>30</exif:PixelXDimension>");
    EXPECT_EQ(fitted({.exif = "no EXIF"}, 1, 1).exif, "");
}

TEST(cameraData, TellsNoPlace)
{
    for (const bool little : {true, false}) {
        const ExifBytes exif(withoutPlace({.exif = exifOfCamera(little)}).exif);
        EXPECT_FALSE(exif.find(exif.first(), ExifTag::Place).has_value());
        EXPECT_EQ(numberOf(exif, exif.first(), ExifTag::Orientation), 6U);
        EXPECT_NE(exif.next(exif.first()), 0U) << "the link moves up";
        EXPECT_TRUE(exifOfCamera(little).contains(ExifMaker(little).number(12345, 4)));
        EXPECT_FALSE(exif.bytes().contains(ExifMaker(little).number(12345, 4)));
    }
    const std::pair<const char*, const char*> packets[] = {
        {"<x a='1' exif:GPSLatitude='52,31N' b='2'/>", "<x a='1'  b='2'/>"},
        {"<x><exif:GPSLatitude>52</exif:GPSLatitude><y/></x>", "<x><y/></x>"},
        {"<x><exif:GPSStatus/><photoshop:City q='1'>B</photoshop:City></x>", "<x></x>"},
        {"<x exif:GPSLatitude='52", ""}, // can't be taken apart
        {"<x><exif:GPSLatitude>52</x>", ""},
        {"<x e:GPSLatitude='52'/>", ""}, // under another prefix
        {"<x dc:title='T'/>", "<x dc:title='T'/>"},
    };
    for (const auto& [packet, wanted] : packets) EXPECT_EQ(withoutPlace({.xmp = packet}).xmp, wanted) << packet;
    const QByteArray title("\x1c\x02\x05\0\1T", 6), city("\x1c\x02\x5a\0\1B", 6);
    EXPECT_EQ(withoutPlace({.iptc = title + city + title}).iptc, title + title);

    const CameraData all{.exif = exifOfCamera(true), .comment = "C", .dotsAcross = 300, .dotsDown = 300};
    EXPECT_EQ(keptFor(all, CameraKept::All, 9, 9).exif, fitted(all, 9, 9).exif);
    EXPECT_EQ(keptFor(all, CameraKept::NoPlace, 9, 9).exif, fitted(withoutPlace(all), 9, 9).exif);
    EXPECT_TRUE(keptFor(all, CameraKept::None, 9, 9).exif.isEmpty());
    EXPECT_TRUE(keptFor(all, CameraKept::None, 9, 9).comment.isEmpty());
    EXPECT_EQ(keptFor(all, CameraKept::None, 9, 9).dotsAcross, 300);
    const CameraData coloured{.exif = exifOfCamera(true), .dotsAcross = 300, .dotsDown = 300, .profile = "P"};
    EXPECT_EQ(keptFor(coloured, CameraKept::None, 9, 9).profile, "P");
    EXPECT_EQ(keptForWeb(coloured, CameraKept::None, 9, 9).profile, "P");
    EXPECT_EQ(keptForWeb(coloured, CameraKept::None, 9, 9).dotsAcross, 0);
    EXPECT_EQ(keptForWeb(coloured, CameraKept::All, 9, 9).dotsAcross, 300);
}

// Files without a place for resolution, comment and IPTC have them in the EXIF, which doesn't grow from save to save.
TEST(cameraData, StandsInExifWhereThereIsNoOtherPlace)
{
    const QByteArray iptc("\x1c\2\x19\0\5Dunes", 10);
    for (const QByteArray& exif : {exifOfCamera(true), exifOfCamera(false), QByteArray()}) {
        CameraData camera{.exif = exif, .iptc = iptc, .comment = QString::fromUtf8("Düne"), .dotsAcross = 300};
        camera.dotsDown = 150.5;
        qsizetype length = 0;
        for (int round = 0; round < 3; ++round) {
            const QByteArray block = inExif(camera).exif;
            const ExifBytes in(block);
            const std::uint32_t first = in.first();
            EXPECT_EQ(in.fraction(*in.find(first, ExifTag::XResolution)), 300);
            EXPECT_EQ(in.fraction(*in.find(first, ExifTag::YResolution)), 150.5);
            EXPECT_EQ(numberOf(in, first, ExifTag::ResolutionUnit), 2U);
            EXPECT_EQ(in.valuesOf(*in.find(first, ExifTag::Iptc)), iptc);
            if (!exif.isEmpty()) {
                const std::uint32_t details = in.directoryOf(first, ExifTag::Details);
                EXPECT_EQ(in.text(*in.find(first, ExifTag::Make)), "Maker");
                EXPECT_EQ(in.fraction(*in.find(details, ExifTag::ExposureTime)), 1 / 250.0);
                EXPECT_TRUE(in.find(in.directoryOf(first, ExifTag::Place), 2).has_value());
            }
            const CameraData read = outOfExif({.exif = block});
            EXPECT_EQ(read.comment, camera.comment);
            EXPECT_EQ(read.iptc, iptc);
            EXPECT_FALSE(ExifBytes(read.exif).find(ExifBytes(read.exif).first(), ExifTag::Iptc).has_value());
            EXPECT_FALSE(withoutPlace({.exif = block}).exif.contains("Dunes"));
            EXPECT_TRUE(round == 0 || read.exif.size() == length) << read.exif.size() << " after " << length;
            length = read.exif.size();
            camera.exif = read.exif;
        }
        camera.comment = "another";
        EXPECT_EQ(outOfExif({.exif = inExif(camera).exif}).comment, QString::fromUtf8("Düne")) << "the camera's own";
    }
    EXPECT_EQ(inExif({.xmp = "<x/>"}).exif, "") << "none without need";
    const CameraData tooLong = inExif({.exif = exifOfCamera(true), .iptc = QByteArray(kMostExif, '\x1c')});
    EXPECT_EQ(tooLong.exif, exifOfCamera(true));
}

// Directories that point at themselves, out of the block or into each other.
TEST(cameraData, IsBounded)
{
    std::mt19937 random(seedOf(1));
    for (int run = 0; run < 30000; ++run) {
        QByteArray bytes = exifOfCamera(run % 2);
        for (unsigned i = 0; i < 1 + random() % 4; ++i) {
            const auto at = qsizetype(random() % unsigned(bytes.size() - 4));
            const quint32 somewhere = random() % 3 ? random() % unsigned(bytes.size()) : random();
            bytes.replace(at, 4, ExifMaker(run % 2).number(somewhere, 4));
        }
        const QByteArray fit = fitted({.exif = bytes}, 30, 40).exif, placeless = withoutPlace({.exif = bytes}).exif;
        EXPECT_LE(fit.size(), bytes.size());
        EXPECT_LE(placeless.size(), bytes.size());
        CameraData full{.exif = bytes, .iptc = "\x1c", .comment = "C", .dotsAcross = 300, .dotsDown = 300};
        EXPECT_LE(inExif(full).exif.size(), bytes.size() + 4 * 500 * 12);
        EXPECT_LE(outOfExif(full).exif.size(), bytes.size());
        const ExifBytes exif(placeless);
        EXPECT_FALSE(exif.find(exif.first(), ExifTag::Place).has_value()) << bytes.toHex().toStdString();
    }
}

} // namespace velara
