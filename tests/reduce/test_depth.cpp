// Colour depth: the tables and the nearest colours compared with measured facts and with the plain definition.
#include "pixels/IndexedPicture.h"
#include "pixels/nearest/NearestColours.h"
#include "reduce/EuroDepth.h"
#include "support/gdiFacts.h"
#include "support/instructionSets.h"
#include "support/pictures.h"
#include "support/seed.h"
#include <algorithm>
#include <random>

namespace velara {
namespace {

std::vector<Pixel> pixelsOf(const Palette& palette)
{
    std::vector<Pixel> pixels;
    std::ranges::transform(palette, std::back_inserter(pixels), pixelFor);
    return pixels;
}

/// The definition: the first entry with the least distance.
int literalNearest(const std::vector<Pixel>& colours, Pixel p, Distance distance)
{
    int best = 0, least = 1 << 30;
    for (int i = 0; i < int(colours.size()); ++i) {
        int far = 0;
        for (int c = 0; c < 3; ++c) {
            const int d = p.c[c] - colours[std::size_t(i)].c[c];
            far += distance == Distance::Squares ? d * d : std::abs(d);
        }
        if (far < least) best = i, least = far;
    }
    return best;
}

TEST(Depth, TablesAndIndicesAreTheMeasuredOnes)
{
    const auto palettes = gdiFacts("palette.jsonl", {"palette"});
    if (palettes.empty()) GTEST_SKIP() << "no measured facts here";
    const Palette halftone = halftoneColours();
    for (const QJsonObject& row : palettes) {
        if (row["n"].toString() != "halftone") continue;
        const QJsonArray entries = row["entries"].toArray();
        ASSERT_EQ(256, entries.size());
        for (int i = 0; i < 256; ++i) {
            const int rgb = entries[i].toString().toInt(nullptr, 16);
            EXPECT_EQ(colourOf(rgb >> 16, rgb >> 8 & 255, rgb & 255), halftone[std::size_t(i)]) << i;
        }
    }
    NearestColours nearest(pixelsOf(halftone), Distance::Squares);
    for (const QJsonObject& row : gdiFacts("palette.jsonl", {"nearest_index"})) {
        if (row["n"].toString() != "halftone") continue;
        const QByteArray wanted = QByteArray::fromHex(row["idx"].toString().toLatin1());
        ASSERT_EQ(4096, wanted.size());
        for (int i = 0; i < 4096; ++i) {
            const auto level = [](int v) { return static_cast<std::uint8_t>(v % 16 * 17); };
            EXPECT_EQ(std::uint8_t(wanted[i]), nearest({{level(i), level(i / 16), level(i / 256), 9}})) << i;
        }
    }
}

TEST(Depth, EveryMethodIsThePlainDefinition)
{
    Bits source = randomBits(80, 60, 5);
    for (int i = 0; i < 256; ++i)
        source.at(i % 80, i / 80) = pixelFor(colourOf(1, 1, 1) * i); // greys have the most ties
    EuroDepth depth;
    const std::pair<void (EuroDepth::*)(Bits&, Bits*), Palette> rows[] = {
        {&EuroDepth::SetDepth_01Bit, blackAndWhite()},
        {&EuroDepth::SetDepth_04Bit, vgaColours()},
        {&EuroDepth::SetDepth_08Bit, halftoneColours()},
        {&EuroDepth::SetDepth_15Bit, {}},
        {&EuroDepth::SetDepth_16Bit, {}},
        {&EuroDepth::SetDepth_24Bit_32K, {}},
        {&EuroDepth::SetDepth_24Bit_64k, {}}};
    for (int i = 0; i < 7; ++i) {
        Bits wanted = source, got;
        const auto& [set, table] = rows[i];
        const auto colours = pixelsOf(table);
        for (int y = 0; y < 60 && i < 5; ++y)
            for (int x = 0; x < 80; ++x) {
                Pixel& p = wanted.at(x, y);
                const Pixel nearest =
                    colours.empty() ? p : colours[std::size_t(literalNearest(colours, p, Distance::Squares))];
                for (int c = 0; c < 3; ++c)
                    p.c[c] = colours.empty() ? std::uint8_t((p.c[c] >> 3) * 8 + (p.c[c] >> 5)) : nearest.c[c];
            }
        (depth.*set)(source, &got);
        EXPECT_TRUE(sameBits(wanted, got)) << i;
        Bits inPlace = source;
        (depth.*set)(inPlace, nullptr);
        EXPECT_TRUE(sameBits(wanted, inPlace)) << i;
    }
    EXPECT_TRUE(sameBits(source, bitsAtDepth(source, 7))) << "no depth";
    EXPECT_TRUE(bitsAtDepth({}, 8).isNull());
    EXPECT_EQ(pixelFor(0xFFFFFF), bitsAtDepth(flatBits(1, 1, 255, 255, 255), 15).at(0, 0));
}

TEST(NearestColours, AnyPaletteByBothDistances)
{
    std::mt19937 random(seedOf(3));
    for (const int spread : {256, 40, 3, 0}) // far apart, close, nearly equal, greys
        for (const std::size_t count : {1, 2, 7, 256, 1500}) {
            std::vector<Pixel> colours(count);
            for (Pixel& p : colours)
                if (const auto grey = std::uint8_t(random()); spread == 0)
                    p = {{grey, grey, grey, 0}};
                else
                    for (auto& c : p.c)
                        c = static_cast<std::uint8_t>((256 - spread) / 2 + int(random() % unsigned(spread)));
            for (const Distance distance : {Distance::Sum, Distance::Squares}) {
                NearestColours nearest(colours, distance);
                std::vector<Pixel> expected(600);
                for (Pixel& p : expected) p = std::bit_cast<Pixel>(static_cast<std::uint32_t>(random()));
                nearest.expect({expected.begin(), expected.begin() + 300});
                nearest.expect(expected);
                for (const Pixel p : expected) ASSERT_EQ(literalNearest(colours, p, distance), nearest(p));
                for (int i = 0; i < 2000; ++i) {
                    const auto p = std::bit_cast<Pixel>(static_cast<std::uint32_t>(random()));
                    ASSERT_EQ(literalNearest(colours, p, distance), nearest(p)) << count << ' ' << spread;
                }
                constexpr int kRow = 64 + 37; // a run and a part of one
                std::array<Pixel, kRow> row, wanted;
                for (std::size_t i = 0; i < kRow; ++i) {
                    row[i] = std::bit_cast<Pixel>(static_cast<std::uint32_t>(random()));
                    wanted[i] = colours[std::size_t(literalNearest(colours, row[i], distance))];
                    wanted[i].c[3] = row[i].c[3];
                }
                withEachInstructionSet([&] {
                    for (const bool isFilled : {false, true}) {
                        std::array<Pixel, kRow> got;
                        nearest.colour(row.data(), got.data(), kRow);
                        EXPECT_EQ(wanted, got) << count << ' ' << spread << ' ' << isFilled;
                        std::array<std::uint8_t, kRow> entries;
                        if (count > 256) continue;
                        nearest.entries(row.data(), entries.data(), kRow);
                        for (std::size_t i = 0; i < kRow; ++i) EXPECT_EQ(nearest(row[i]), entries[i]);
                    }
                });
            }
        }
}

} // namespace
} // namespace velara
