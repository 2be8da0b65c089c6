// Reliefs, merging, and the stock textures.
#include "document/merging.h"
#include "document/stockTextures.h"
#include "document/texturing.h"
#include "support/RecordingPlatform.h"
#include "support/files.h"
#include "support/filterOf.h"
#include "support/pictures.h"
#include <QDir>
#include <cmath>
#include <unistd.h>

namespace velara {
namespace {

TEST(Texturing, TheReliefOfAFileAndOfThePictureItself)
{
    const Bits picture = randomBits(60, 40, 1), texture = randomBits(13, 9, 2);
    const Region selection = Region::ellipse(5, 3, 55, 38);
    constexpr int kRows[][4] = {// of itself, engraved, intensity, weight: half to even
                                {false, false, 25, 2},
                                {false, true, 100, 10},
                                {false, false, 35, 4},
                                {true, false, 25, 12},
                                {true, true, 100, 50}};
    for (const auto& [own, engrave, intensity, weight] : kRows) {
        cBitFilter helper = filterOf(own ? picture : texture);
        const Bits relief = engrave ? helper.ENGRAVE(weight) : helper.EMBOSS(weight);
        cBitFilter filter = filterOf(picture, selection);
        const Bits wanted = filter.Texturize(relief);
        const Texturing texturing{own ? Bits() : texture, intensity, engrave == 1};
        EXPECT_TRUE(sameBits(wanted, texturized(filter, texturing))) << intensity;

        // The part shown in the dialog.
        for (const Rect part : {Rect{20, 10, 50, 30}, Rect{0, 0, 30, 20}, Rect{30, 20, 60, 40}}) {
            const Bits shown = texturizedPart(picture, selection, texturing, part);
            int wrong = 0;
            for (int y = 0; y < part.height(); ++y)
                for (int x = 0; x < part.width(); ++x)
                    wrong += shown.at(x, y) != wanted.at(part.left + x, part.top + y);
            EXPECT_EQ(0, wrong) << own << intensity << " at " << part.left;
        }
    }
    cBitFilter tiny = filterOf(Bits(1, 5));
    EXPECT_ANY_THROW(texturized(tiny, {}));
    EXPECT_ANY_THROW(texturized(tiny, {Bits(1, 1)}));
}

TEST(Merging, TheViewShowsEverySoManyPixelsOfTheResult)
{
    const Bits picture = randomBits(90, 60, 3);
    Bits overlay = flatBits(20, 14, 9, 8, 7);
    overlay.at(3, 3) = {{1, 2, 3, 0}};
    const Region selection = Region::ellipse(2, 2, 80, 58);
    for (const Merging& m :
         {Merging{overlay, 10, 7}, Merging{overlay, -5, -3, true, 30},
          Merging{overlay, 4, 50, true, 0, colourOf(7, 8, 9)}, Merging{overlay, 95, 0}, Merging{Bits()}}) {
        cBitFilter filter = filterOf(picture, selection);
        const Bits whole = plain(merged(filter, m)), view = plain(mergedView(picture, selection, m, {30, 20}));
        EXPECT_TRUE(sameBits(drawnBits(30, 20, [&](int x, int y) { return whole.at(3 * x, 3 * y); }), view)) << m.left;
    }
}

TEST(StockTextures, JoinOnToThemselves)
{
    ASSERT_GE(stockTextures().size(), 12u);
    for (const StockTexture& texture : stockTextures()) {
        const Bits bits = texture.draw();
        ASSERT_EQ(kTextureSide, bits.width());
        // Positions between columns (rows), across the seam as elsewhere.
        const auto step = [&](bool across, int at) {
            double sum = 0;
            for (int k = 0; k < kTextureSide; ++k)
                for (int c = 0; c < 3; ++c) {
                    const int next = (at + 1) % kTextureSide;
                    sum += std::abs(across ? bits.at(at, k).c[c] - bits.at(next, k).c[c]
                                           : bits.at(k, at).c[c] - bits.at(k, next).c[c]);
                }
            return sum;
        };
        for (const bool across : {true, false}) {
            double most = 0;
            for (int at = 0; at < kTextureSide - 1; ++at) most = std::max(most, step(across, at));
            EXPECT_LE(step(across, kTextureSide - 1), most * 1.1) << texture.name;
        }
    }
}

TEST(StockTextures, AreWrittenWhereNothingHasTheName)
{
    RecordingPlatform platform;
    const QDir folder(platform.folder.filePath("Textures"));
    ASSERT_TRUE(writeStockTextures(platform));
    EXPECT_EQ(12, folder.entryList({"Velara*.bmp"}).size());
    putFile(folder.filePath("Velara3.bmp"), "mine");
    QFile::remove(folder.filePath("Velara4.bmp"));
    QFile::remove(folder.filePath("Velara5.bmp"));
    const QString elsewhere = platform.folder.filePath("elsewhere");
    ASSERT_EQ(0, symlink(qPrintable(elsewhere), qPrintable(folder.filePath("Velara5.bmp"))));
    ASSERT_TRUE(writeStockTextures(platform));
    EXPECT_EQ("mine", fileBytes(folder.filePath("Velara3.bmp")));
    EXPECT_TRUE(platform.loadPicture(folder.filePath("Velara4.bmp"), "bmp").ok());
    EXPECT_FALSE(QFile::exists(elsewhere)) << "no link is followed";
    EXPECT_EQ("Brick", stockTextureName("Velara4.bmp"));
}

} // namespace
} // namespace velara
