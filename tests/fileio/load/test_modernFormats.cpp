// The newer formats and lying names, read by the real child inside its cage.
#include "fileio/load/PictureLoader.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/places.h"
#include <QImage>
#include <algorithm>
#include <string_view>

namespace velara {

namespace {

struct ModernFormats : FolderTest {
    const QString decoder = builtPath("velara-decode");
    LoadedPicture load(const QByteArray& bytes, const QString& extension, const DecoderLimits& limits = {}) const
    {
        return loadThroughDecoder(put("a." + extension, bytes), extension, decoder, limits);
    }
};

/// Pictures of red 200, green 40, blue 10, made by the libraries' own programs.
const struct {
    const char* extension;
    int side;
    QByteArray bytes;
} kFlat[] = {
    {"webp", 16, QByteArray::fromHex("524946461e000000574542505650384c110000002f0fc003000750942257a1ff8188e87f0000")},
    {"jxl", 16, QByteArray::fromHex("ff0a434040e5de2a82080201005c004b188b1500d48c31e8222f10010021913818e40fc4ad02")},
    {"avif", 16,
     QByteArray::fromHex(
         "00000020667479706176696600000000617669666d6966316d6961664d413141000000f26d65746100000000000000286864"
         "6c720000000000000000706963740000000000000000000000006c696261766966000000000e7069746d0000000000010000"
         "001e696c6f6300000000440000010001000000010000011a000000230000002869696e660000000000010000001a696e6665"
         "020000000001000061763031436f6c6f72000000006a697072700000004b6970636f00000014697370650000000000000010"
         "00000010000000107069786900000000030808080000000c617631438120000000000013636f6c726e636c780001000d0000"
         "800000001769706d610000000000000001000104010283040000002b6d64617412000a08380cffd840434008321510000039"
         "50bb246f289fbab5666042688e5a913ed0")},
    {"heic", 64,
     QByteArray::fromHex(
         "0000001c6674797068656963000000006d696631686569636d696166000001426d657461000000000000002168646c720000"
         "00000000000070696374000000000000000000000000000000000e7069746d00000000000100000022696c6f630000000044"
         "40000100010000000001660001000000000000001e0000002369696e6600000000000100000015696e666502000000000100"
         "006876633100000000c269707270000000a46970636f00000078687663430103700000000000000000001ef000fcfdf8f800"
         "000f03200001001840010c01ffff03700000030090000003000003001eba0240210001002b42010103700000030090000003"
         "000003001ea020810596ea4929ae6e04040c08000003000800000300084022000100074401c172b022400000001469737065"
         "000000000000004000000040000000107069786900000000030808080000001669706d610000000000000001000103810283"
         "000000266d6461740000001a2801af09e02139755ffffccddffffd307721fb27ca741cc3d7e0")},
    {"svg", 16,
     "<svg xmlns='http://www.w3.org/2000/svg' width='12pt' viewBox='0 0 4 4'>"
     "<rect width='4' height='4' fill='#c8280a'/><text y='3' fill='#c8280a'>a</text></svg>"},
};

QByteArray big(int value, int bytes)
{
    QByteArray text;
    for (int i = bytes - 1; i >= 0; --i) text += char(value >> 8 * i);
    return text;
}

QByteArray box(const char* kind, const QByteArray& contents)
{
    return big(int(contents.size()) + 8, 4) + kind + contents;
}
QByteArray versioned(const char* kind, const QByteArray& contents, int version = 0)
{
    return box(kind, big(version << 24, 4) + contents);
}

/// Tiles that are all the flat HEIC, said to be of that side.
QByteArray tiledHeic(int rows, int columns, int side = 64)
{
    constexpr int kProfile = 0x78, kLength = 4;
    const QByteArray flat = std::ranges::find(kFlat, std::string_view("heic"), [](const auto& f) {
                                return std::string_view(f.extension);
                            })->bytes;
    const QByteArray tile = flat.mid(flat.indexOf("mdat") + kLength);
    const QByteArray properties = flat.mid(flat.indexOf("hvcC") - kLength, kProfile) +
                                  versioned("ispe", big(side, 4) + big(side, 4)) +
                                  versioned("ispe", big(64 * columns, 4) + big(64 * rows, 4));
    const QByteArray grid =
        big(0, 2) + big(rows - 1, 1) + big(columns - 1, 1) + big(64 * columns, 2) + big(64 * rows, 2);
    const auto meta = [&](qsizetype at) {
        const auto item = [](int id, const char* kind) {
            return versioned("infe", big(id, 2) + big(0, 2) + kind + big(0, 1), 2);
        };
        const auto place = [](int id, qsizetype from, qsizetype length) {
            return big(id, 2) + big(0, 2) + big(1, 2) + big(int(from), 4) + big(int(length), 4);
        };
        const QByteArray tiles = big(1, 2) + big(rows * columns, 2) + big(2, 2).repeated(rows * columns);
        return versioned("meta",
                         versioned("hdlr", big(0, 4) + "pict" + QByteArray(13, '\0')) + versioned("pitm", big(1, 2)) +
                             versioned("iloc", QByteArray::fromHex("44000002") + place(1, at, grid.size()) +
                                                   place(2, at + grid.size(), tile.size())) +
                             versioned("iinf", big(2, 2) + item(1, "grid") + item(2, "hvc1")) +
                             versioned("iref", box("dimg", tiles)) +
                             box("iprp", box("ipco", properties) +
                                             versioned("ipma", QByteArray::fromHex("00000002 000101 03 000202 8102"))));
    };
    const QByteArray head = box("ftyp", "heic" + big(0, 4) + "mif1heicmiaf");
    return head + meta(head.size() + meta(0).size() + 8) + box("mdat", grid + tile);
}

/// The head of a square JPEG XL, whose length of a side takes 30 bits, with all else as usual, and pixels of another.
QByteArray squareJxl(unsigned side)
{
    constexpr std::uint64_t kAsWideAsHigh = 1ULL << 33, kUsual = 3ULL << 36;
    const std::uint64_t size = 0b110 | std::uint64_t{side - 1} << 3 | kAsWideAsHigh | kUsual;
    QByteArray bytes = QByteArray::fromHex("ff0a");
    for (int i = 0; i < 5; ++i) bytes += char(size >> 8 * i);
    return bytes + kFlat[1].bytes.mid(4);
}

QByteArray svg(const QByteArray& contents, const QByteArray& before = {})
{
    return before +
           "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='9' "
           "height='9'>" +
           contents + "</svg>";
}
const QByteArray kRed = "<rect width='9' height='9' fill='#ff0000'/>";

} // namespace

TEST_F(ModernFormats, ThousandsOfTilesAreReadOrRefusedInTime)
{
    const LoadedPicture few = load(tiledHeic(2, 3), "heic");
    EXPECT_EQ(few.bits.width(), 192) << few.reason.toStdString();
    const LoadedPicture many = load(tiledHeic(90, 89), "heic");
    EXPECT_TRUE(many.bits.height() == 5760 || many.reason.contains("took too long")) << many.reason.toStdString();
    DecoderLimits second;
    second.cpuSeconds = second.mostSeconds = 1;
    const QString late = load(tiledHeic(255, 256), "heic", second).reason;
    EXPECT_EQ(late, "a.heic can't be read: reading it took too long and was stopped");
    const QString lies = load(tiledHeic(90, 89, 16000), "heic").reason;
    EXPECT_EQ(lies, "a.heic can't be read: it is damaged or not a HEIF picture");
}

TEST_F(ModernFormats, AJxlThatClaimsABillionPixelsIsRefused)
{
    const QString tooBig =
        "a.jxl can't be read: it is wider or higher than 32767 pixels, or has more than 268 million pixels";
    for (const unsigned side : {1U << 15, 1U << 20, 1U << 30}) EXPECT_EQ(load(squareJxl(side), "jxl").reason, tooBig);
    EXPECT_FALSE(load(squareJxl(16383), "jxl").ok());
}

TEST_F(ModernFormats, AnSvgFollowsNothingAndEnds)
{
    const QByteArray nodes = svg(QByteArray("<g/>").repeated(1000000) + kRed);
    const LoadedPicture million = load(nodes, "svg", limitsFor(nodes.size()));
    ASSERT_TRUE(million.ok()) << million.reason.toStdString();
    const Pixel red{{0, 0, 255, 0}}, white{{255, 255, 255, 0}};
    EXPECT_EQ(million.bits.at(4, 4), red);

    QImage picture(9, 9, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QByteArray file = path("red.png").toLocal8Bit();
    ASSERT_TRUE(picture.save(file));
    const QByteArray image = "<image width='9' height='9' ";
    for (const QByteArray& reference :
         {"xlink:href='" + file, "xlink:href='file://" + file, "href='" + file, QByteArray("xlink:href='red.png"),
          QByteArray("xlink:href='http://localhost/red.png")}) {
        const LoadedPicture drawn = load(svg(image + reference + "'/>"), "svg");
        ASSERT_TRUE(drawn.ok()) << reference.constData() << drawn.reason.toStdString();
        EXPECT_EQ(drawn.bits.at(4, 4), white) << reference.constData();
    }

    const QByteArray outside = "<!DOCTYPE svg [<!ENTITY x SYSTEM 'file://" + path("red.svg").toLocal8Bit() + "'>]>";
    put("red.svg", kRed);
    const LoadedPicture without = load(svg("&x;", outside), "svg");
    EXPECT_TRUE(!without.ok() || without.bits.at(4, 4) == white);
    QByteArray bomb = "<!DOCTYPE svg [<!ENTITY a0 'ha'>";
    for (int i = 1; i < 12; ++i)
        bomb +=
            "<!ENTITY a" + QByteArray::number(i) + " '" + ("&a" + QByteArray::number(i - 1) + ";").repeated(10) + "'>";
    EXPECT_EQ(load(svg("<text>&a11;</text>", bomb + "]>"), "svg").reason,
              "a.svg can't be read: it is damaged or not an SVG picture");
}

TEST_F(ModernFormats, AreReadUnderTheirNamesAndUnderOthers)
{
    for (const auto& flat : kFlat)
        for (const char* name : {flat.extension, "jpg", "heic", "xyz", ""}) {
            const LoadedPicture picture = load(flat.bytes, name);
            ASSERT_EQ(picture.bits.width(), flat.side) << flat.extension << ' ' << picture.reason.toStdString();
            EXPECT_EQ(picture.bits.height(), flat.side);
            const Pixel got = picture.bits.at(flat.side - 1, flat.side - 1), wanted{{10, 40, 200, 0}};
            for (int c = 0; c < 3; ++c) EXPECT_NEAR(got.c[c], wanted.c[c], 1) << flat.extension << " as " << name;
            EXPECT_EQ(picture.reason, "");
            EXPECT_EQ(picture.format, flat.extension) << "as " << name;
        }
}

TEST_F(ModernFormats, HaveAReasonWhenTheyAreDamaged)
{
    for (const auto& flat : kFlat) {
        const LoadedPicture picture = load(flat.bytes.left(flat.bytes.size() / 2), flat.extension);
        EXPECT_TRUE(!picture.reason.isEmpty()) << flat.extension;
    }
    const QByteArray begin = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'";
    const LoadedPicture huge = load(begin + " width='1e9'/>", "svg"); // twice a width: not well-formed
    EXPECT_EQ(huge.reason, "a.svg can't be read: it is damaged or not an SVG picture");
    const LoadedPicture deep = load(begin + '>' + QByteArray("<g>").repeated(300000), "svg");
    EXPECT_FALSE(deep.ok());
}

} // namespace velara
