// What a save does to the camera's data, whoever wrote it.
#include "fileio/cameraData.h"
#include "fileio/exifBytes.h"
#include "support/seed.h"
#include <gtest/gtest.h>
#include <random>

namespace velara {

namespace {

enum Type { Text = 2, Short = 3, Long = 4, Fraction = 5 };

/// EXIF in either byte order, from its last directory to the first.
struct Maker {
    struct Entry {
        int tag;
        Type type;
        std::vector<quint32> values;
        QByteArray text = {};
    };

    explicit Maker(bool isLittle) : little(isLittle), bytes(isLittle ? "II" : "MM")
    {
        bytes += number(42, 2) + number(0, 4);
    }
    QByteArray number(quint32 value, int count) const
    {
        QByteArray out;
        for (int i = 0; i < count; ++i) out.append(char(value >> 8 * (little ? i : count - 1 - i)));
        return out;
    }
    void put(qsizetype at, quint32 value) { bytes.replace(at, 4, number(value, 4)); }
    /// \returns its offset; its link is the last of the bytes then.
    quint32 add(const std::vector<Entry>& entries)
    {
        QByteArray directory = number(quint32(entries.size()), 2);
        for (const Entry& e : entries) {
            QByteArray value = e.text;
            for (const quint32 v : e.values) value += number(v, e.type == Short ? 2 : 4);
            const auto count =
                e.type == Text ? value.size() : qsizetype(e.values.size()) / (e.type == Fraction ? 2 : 1);
            directory += number(quint32(e.tag), 2) + number(e.type, 2) + number(quint32(count), 4);
            if (value.size() <= 4) {
                directory += value.leftJustified(4, '\0');
                continue;
            }
            directory += number(quint32(bytes.size()), 4);
            bytes += value;
        }
        const auto at = quint32(bytes.size());
        bytes += directory + number(0, 4);
        return at;
    }

    bool little;
    QByteArray bytes;
};

const QByteArray kSmall = "a small picture";

/// As a camera writes it, of 4000 x 3000 on its side.
QByteArray ofCamera(bool little)
{
    Maker maker(little);
    const quint32 place = maker.add({{1, Text, {}, "N"}, {2, Fraction, {52, 1, 31, 1, 12345, 1000}}});
    const quint32 details = maker.add({{0x829a, Fraction, {1, 250}}, {0xa002, Short, {4000}}, {0xa003, Long, {3000}}});
    const quint32 first = maker.add({{0x10f, Text, {}, QByteArray("Maker\0", 6)},
                                     {0x112, Short, {6}},
                                     {0x8769, Long, {details}},
                                     {0x8825, Long, {place}}});
    const auto link = maker.bytes.size() - 4;
    const quint32 second = maker.add({{0x201, Long, {0}}, {0x202, Long, {quint32(kSmall.size())}}});
    maker.put(4, first), maker.put(link, second), maker.put(second + 10, quint32(maker.bytes.size()));
    return maker.bytes + kSmall;
}

std::uint32_t numberOf(const ExifBytes& exif, std::uint32_t directory, std::uint16_t tag)
{
    const auto entry = exif.find(directory, tag);
    return entry ? exif.number(*entry) : 0;
}

} // namespace

TEST(cameraData, FitsAnUprightPicture)
{
    for (const bool little : {true, false}) {
        const ExifBytes exif(fitted({.exif = ofCamera(little)}, 30, 40).exif);
        const std::uint32_t first = exif.first(), details = exif.directoryOf(first, ExifTag::Details);
        EXPECT_EQ(numberOf(exif, first, ExifTag::Orientation), 1U);
        EXPECT_EQ(numberOf(exif, details, ExifTag::PixelWidth), 30U);
        EXPECT_EQ(numberOf(exif, details, ExifTag::PixelHeight), 40U);
        EXPECT_EQ(exif.text(*exif.find(first, ExifTag::Make)), "Maker");
        EXPECT_EQ(exif.fraction(*exif.find(details, ExifTag::ExposureTime)), 1 / 250.0);
        EXPECT_EQ(exif.next(first), 0U);
        EXPECT_FALSE(exif.bytes().contains(kSmall));
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
        const ExifBytes exif(withoutPlace({.exif = ofCamera(little)}).exif);
        EXPECT_FALSE(exif.find(exif.first(), ExifTag::Place).has_value());
        EXPECT_EQ(numberOf(exif, exif.first(), ExifTag::Orientation), 6U);
        EXPECT_NE(exif.next(exif.first()), 0U) << "the link moves up";
        EXPECT_TRUE(ofCamera(little).contains(Maker(little).number(12345, 4)));
        EXPECT_FALSE(exif.bytes().contains(Maker(little).number(12345, 4)));
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

    const CameraData all{.exif = ofCamera(true), .comment = "C", .dotsAcross = 300, .dotsDown = 300};
    EXPECT_EQ(keptFor(all, CameraKept::All, 9, 9).exif, fitted(all, 9, 9).exif);
    EXPECT_EQ(keptFor(all, CameraKept::NoPlace, 9, 9).exif, fitted(withoutPlace(all), 9, 9).exif);
    EXPECT_TRUE(keptFor(all, CameraKept::None, 9, 9).exif.isEmpty());
    EXPECT_TRUE(keptFor(all, CameraKept::None, 9, 9).comment.isEmpty());
}

// Directories that point at themselves, out of the block or into each other.
TEST(cameraData, IsBounded)
{
    std::mt19937 random(seedOf(1));
    for (int run = 0; run < 30000; ++run) {
        QByteArray bytes = ofCamera(run % 2);
        for (unsigned i = 0; i < 1 + random() % 4; ++i) {
            const auto at = qsizetype(random() % unsigned(bytes.size() - 4));
            const quint32 somewhere = random() % 3 ? random() % unsigned(bytes.size()) : random();
            bytes.replace(at, 4, Maker(run % 2).number(somewhere, 4));
        }
        const QByteArray fit = fitted({.exif = bytes}, 30, 40).exif, placeless = withoutPlace({.exif = bytes}).exif;
        EXPECT_LE(fit.size(), bytes.size());
        EXPECT_LE(placeless.size(), bytes.size());
        const ExifBytes exif(placeless);
        EXPECT_FALSE(exif.find(exif.first(), ExifTag::Place).has_value()) << bytes.toHex().toStdString();
    }
}

} // namespace velara
