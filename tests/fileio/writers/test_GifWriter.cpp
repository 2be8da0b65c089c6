#include "fileio/load/PictureLoader.h"
#include "fileio/writers/GifWriter.h"
#include "reduce/bestColours.h"
#include "reduce/reduceColours.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/places.h"
#include <set>

namespace velara {

namespace {

IndexedPicture picture(int width, int height, int colours)
{
    IndexedPicture result{width, height, {}, {}};
    for (int i = 0; i < colours; ++i) result.palette.push_back(colourOf(i, 255 - i, i * 7 % 256));
    for (int i = 0; i < width * height; ++i) result.indices.push_back(static_cast<std::uint8_t>(i * 31 / 7 % colours));
    return result;
}

} // namespace

using GifWriter = FolderTest;

TEST_F(GifWriter, WritesEveryPaletteSizePlainAndInterlaced)
{
    const QString name = path("a.gif");
    for (const int colours : {1, 2, 3, 16, 17, 255, 256})
        for (const QSize size : {QSize(1, 1), {3, 2}, {13, 9}, {40, 33}})
            for (const bool interlaced : {false, true}) {
                const IndexedPicture wanted = picture(size.width(), size.height(), colours);
                ASSERT_TRUE(writeGif(wanted, name, interlaced));
                const LoadedPicture got = loadThroughDecoder(name, "gif", builtPath("velara-decode"));
                EXPECT_TRUE(sameBits(pictureOf({8, wanted, {}}), got.bits)) << colours << ' ' << interlaced;
            }
    EXPECT_FALSE(writeGif({}, name));
    EXPECT_FALSE(writeGif(picture(2, 2, 2), path("none/a.gif")));
    IndexedPicture wide{70000, 1, std::vector<std::uint8_t>(70000), {0}};
    EXPECT_FALSE(writeGif(wide, name));
}

TEST(IndexedPicture, KeepsFewColoursAndLimitsMany)
{
    const Bits few = drawnBits(3, 1, [](int x, int) { // the fourth byte is not a colour
        return x == 1 ? Pixel{{6, 5, 4, 8}} : Pixel{{3, 2, 1, std::uint8_t(9 - x)}};
    });
    const IndexedPicture kept = reduceToBestColours(few, 2);
    EXPECT_EQ(kept.palette, (std::vector<Colour>{0x030201, 0x060504}));
    EXPECT_EQ(kept.indices, (std::vector<std::uint8_t>{0, 1, 0}));

    for (const int colours : {2, 16, 256}) {
        const IndexedPicture reduced = reduceToBestColours(randomBits(60, 40, 3), colours);
        EXPECT_LE(static_cast<int>(reduced.palette.size()), colours);
        for (const std::uint8_t index : reduced.indices) ASSERT_LT(index, reduced.palette.size());
        const std::set<std::uint8_t> used(reduced.indices.begin(), reduced.indices.end());
        EXPECT_GT(static_cast<int>(used.size()), colours / 2);
        const Bits oneMore =
            drawnBits(colours + 1, 1, [](int x, int) { return pixelFor(colourOf(x & 255, x >> 8, 0)); });
        EXPECT_LE(static_cast<int>(reduceToBestColours(oneMore, colours).palette.size()), colours);
    }
}

} // namespace velara
