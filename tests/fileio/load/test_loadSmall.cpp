// Pictures scaled down while they are read.
#include "fileio/load/Shrinker.h"
#include "support/pictures.h"

namespace velara {

namespace {

QImage shrunk(const Bits& bits, QSize box)
{
    Shrinker shrinker({bits.width(), bits.height()}, box);
    for (int y = 0; y < bits.height(); ++y) shrinker.take(bits.row(y));
    return shrinker.image();
}

} // namespace

TEST(Shrinker, FitsTheBoxAndKeepsTheShape)
{
    struct {
        QSize picture, box, wanted;
    } const rows[] = {{{10, 7}, {100, 100}, {10, 7}},     {{400, 200}, {100, 100}, {100, 50}},
                      {{201, 400}, {50, 100}, {50, 100}}, {{999, 3}, {50, 50}, {50, 1}},
                      {{3, 999}, {50, 50}, {1, 50}},      {{40, 40}, {0, 0}, {1, 1}}};
    for (const auto& row : rows)
        EXPECT_EQ(shrunk(randomBits(row.picture.width(), row.picture.height(), 5), row.box).size(), row.wanted)
            << row.picture.width() << 'x' << row.picture.height();
}

// Blocks are averaged in each channel, including incomplete ones at the edges.
TEST(Shrinker, EachPixelIsTheMeanOfItsBlock)
{
    const Bits bits = drawnBits(6, 4, [](int x, int y) {
        return Pixel{{std::uint8_t(x * 40), std::uint8_t(y * 60), std::uint8_t(x / 2 * 100), 9}};
    });
    const QImage image = shrunk(bits, {3, 2});
    ASSERT_EQ(image.size(), QSize(3, 2));
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(image.pixel(x, y), qRgb(x * 100, y * 120 + 30, x * 80 + 20)) << x << ',' << y;
    const Pixel& last = bits.at(5, 3);
    EXPECT_EQ(shrunk(bits, {9, 9}).pixel(5, 3), qRgb(last.c[2], last.c[1], last.c[0])) << "it fits as it is";
    EXPECT_EQ(shrunk(flatBits(65, 33, 255, 255, 255), {8, 8}).pixel(7, 3), 0xFFFFFFFFu);
}

} // namespace velara
