// The newer formats and lying names, read by the real child inside its cage.
#include "fileio/load/PictureLoader.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/places.h"

namespace velara {

namespace {

struct ModernFormats : FolderTest {
    const QString decoder = builtPath("velara-decode");
    LoadedPicture load(const QByteArray& bytes, const QString& extension) const
    {
        return loadThroughDecoder(put("a." + extension, bytes), extension, decoder);
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

} // namespace

TEST_F(ModernFormats, AreReadUnderTheirNamesAndUnderOthers)
{
    for (const auto& flat : kFlat)
        for (const char* name : {flat.extension, "jpg", "xyz", ""}) {
            const LoadedPicture picture = load(flat.bytes, name);
            ASSERT_EQ(picture.bits.width(), flat.side) << flat.extension << ' ' << picture.reason.toStdString();
            EXPECT_EQ(picture.bits.height(), flat.side);
            const Pixel got = picture.bits.at(flat.side - 1, flat.side - 1), wanted{{10, 40, 200, 0}};
            for (int c = 0; c < 3; ++c) EXPECT_NEAR(got.c[c], wanted.c[c], 1) << flat.extension << " as " << name;
            EXPECT_EQ(picture.reason, "");
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
