#include "region/Region.h"
#include "support/gdiFacts.h"
#include "support/seed.h"
#include <ctime>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace velara {
namespace {

using Words = std::vector<std::int32_t>;
constexpr int kLeast = std::numeric_limits<int>::min(), kMost = std::numeric_limits<int>::max();

/// A region as a table of 40 by 40 pixels, to compare the bands with.
struct Mask {
    static constexpr int kSide = 40;
    bool at[kSide][kSide] = {};

    void add(int l, int t, int r, int b)
    {
        for (int y = std::max(t, 0); y < std::min(b, kSide); ++y)
            for (int x = std::max(l, 0); x < std::min(r, kSide); ++x) at[y][x] = true;
    }
};

/// Equal pixel by pixel, by point test and by span, and canonical: no touching spans, no equal adjacent bands.
::testing::AssertionResult covers(const Region& region, const Mask& mask)
{
    Mask bySpan;
    for (int y = 0; y < Mask::kSide; ++y)
        for (const Span s : region.spans(y)) bySpan.add(s.x0, y, s.x1, y + 1);
    for (int y = 0; y < Mask::kSide; ++y)
        for (int x = 0; x < Mask::kSide; ++x)
            if (region.contains(x, y) != mask.at[y][x] || bySpan.at[y][x] != mask.at[y][x])
                return ::testing::AssertionFailure() << "at " << x << ", " << y << ": wanted " << mask.at[y][x];
    std::size_t canonical = 0;
    for (int y = 0; y < Mask::kSide; ++y) {
        const auto begins = [&](int x) { return mask.at[y][x] && (x == 0 || !mask.at[y][x - 1]); };
        if (y > 0 && std::equal(mask.at[y], mask.at[y] + Mask::kSide, mask.at[y - 1])) continue;
        for (int x = 0; x < Mask::kSide; ++x) canonical += begins(x);
    }
    if (canonical != region.rectangleCount())
        return ::testing::AssertionFailure()
               << "wanted " << canonical << " rectangles, got " << region.rectangleCount();
    return ::testing::AssertionSuccess();
}

struct RegionAlgebra : ::testing::Test {
    std::mt19937 random{seedOf(1)};
    int within(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }

    /// A few rectangles, some empty or inverted, in any order and overlapping.
    std::pair<Region, Mask> make()
    {
        Words rectangles;
        Mask mask;
        for (int n = within(0, 9); n > 0; --n) {
            const int l = within(0, 40), t = within(0, 40), r = within(l - 2, 40), b = within(t - 2, 40);
            rectangles.insert(rectangles.end(), {l, t, r, b});
            mask.add(l, t, r, b);
        }
        return {Region::fromWords(wordsOf(rectangles)), mask};
    }
};

TEST_F(RegionAlgebra, IsThatOfPixels)
{
    for (int trial = 0; trial < 600; ++trial) {
        const auto [a, maskA] = make();
        const auto [b, maskB] = make();
        ASSERT_TRUE(covers(a, maskA)) << trial;
        const std::pair<Combine, bool (*)(bool, bool)> modes[] = {
            {Combine::And, [](bool p, bool q) { return p && q; }},
            {Combine::Or, [](bool p, bool q) { return p || q; }},
            {Combine::Xor, [](bool p, bool q) { return p != q; }},
            {Combine::Diff, [](bool p, bool q) { return p && !q; }},
            {Combine::Copy, [](bool p, bool) { return p; }}};
        for (const auto& [mode, rule] : modes) {
            Mask wanted;
            for (int y = 0; y < Mask::kSide; ++y)
                for (int x = 0; x < Mask::kSide; ++x) wanted.at[y][x] = rule(maskA.at[y][x], maskB.at[y][x]);
            const Region got = a.combined(b, mode);
            ASSERT_TRUE(covers(got, wanted)) << trial << " mode " << static_cast<int>(mode);
            ASSERT_EQ(Region::fromWords(got.words()), got);
        }
        ASSERT_EQ(a.translated(3, -5).translated(-3, 5), a);
    }
}

TEST(Region, StaysWhereItsCoordinatesWouldOverflow)
{
    const Region a = Region::rectangle(-3, -4, 5, 6);
    for (const auto& [dx, dy] :
         {std::pair(kMost - 4, 0), std::pair(kLeast + 2, 0), std::pair(0, kMost - 5), std::pair(0, kLeast + 3)})
        EXPECT_EQ(a.translated(dx, dy), a) << dx << ", " << dy;
    EXPECT_EQ(a.translated(kMost - 5, kMost - 6).bounds(), (Rect{kMost - 8, kMost - 10, kMost, kMost}));
}

TEST(Region, WordsThatClaimWhatIsNotThereMakeNone)
{
    const Words words = wordsOf({1, 1, 4, 4, 6, 1, 9, 4, 11, 1, 14, 4});
    const auto regionOf = [&](std::size_t given, std::size_t changed, std::int32_t to) {
        Words claiming = words; // data after the given words exists, but isn't part of them
        claiming[changed] = to;
        return Region::fromWords(std::span(claiming).first(given));
    };
    EXPECT_EQ(regionOf(16, 2, 1), Region::rectangle(1, 1, 4, 4));
    const std::tuple<std::size_t, std::size_t, int> kCases[] = {
        {0, 2, 2},   {7, 2, 0},      {8, 2, 1},       {12, 2, 2},  {15, 2, 2},  {16, 2, 3},
        {16, 2, -1}, {16, 2, kMost}, {16, 2, kLeast}, {16, 0, 31}, {16, 0, -32}};
    for (const auto& [given, changed, to] : kCases)
        EXPECT_TRUE(regionOf(given, changed, to).isNull()) << given << " words, word " << changed << " is " << to;
}

TEST(Region, IsScaledByWholeRectangles)
{
    const Region two = Region::fromWords(wordsOf({0, 0, 5, 5, 5, 5, 10, 7}));
    EXPECT_EQ(rectanglesOf(two.scaled(3)), (Words{0, 0, 15, 15, 15, 15, 30, 21}));
    EXPECT_EQ(rectanglesOf(two.scaled(0.5)), (Words{0, 0, 2, 2, 2, 2, 5, 4})); // 2.5 to 2, 3.5 to 4
    EXPECT_TRUE(two.scaled(0).isEmpty());
    EXPECT_FALSE(two.scaled(0).isNull());
    const Region rows = Region::fromWords(wordsOf({0, 0, 4, 1, 0, 1, 5, 2, 1, 2, 4, 3})); // some rows vanish
    EXPECT_EQ(rectanglesOf(rows.scaled(0.4)), (Words{0, 0, 2, 1}));
    EXPECT_EQ(rectanglesOf(Region::rectangle(0, 0, kMost, 9).scaled(15)), (Words{0, 0, kMost, 135}));
}

TEST(Region, ExtremeCoordinatesAreSafe)
{
    const Region all = Region::rectangle(kMost, kMost, kLeast, kLeast);
    EXPECT_EQ(all.bounds(), (Rect{kLeast, kLeast, kMost, kMost}));
    const Region cross = all.combined(Region::rectangle(kLeast, 0, kMost, 10), Combine::Diff);
    EXPECT_EQ(rectanglesOf(cross), (Words{kLeast, kLeast, kMost, 0, kLeast, 10, kMost, kMost}));
    EXPECT_TRUE(Region::ellipse(kLeast, kLeast, kMost, kMost).isNull());
    EXPECT_TRUE(Region::polygon(Words{0, kLeast, 5, kMost, 9, 0}).isNull());
    EXPECT_FALSE(Region::polygon(Words{kLeast, 0, kMost, 40, kLeast, 40}).isEmpty());
    // Every row of a wide, flat triangle is exact: x from -2^31 to the crossing.
    EXPECT_EQ(Region::polygon(Words{kLeast, 0, kMost, 4, kLeast, 4}).spans(2)[0], (Span{kLeast, 0}));
}

TEST(Region, HostileRectanglesGiveARegionOrNone)
{
    EXPECT_TRUE(Region::fromWords(Words{31, 1, 0, 0, 0, 0, 0, 0}).isNull());
    EXPECT_TRUE(Region::fromWords(Words{32, 1, 0, 0, 0, 0, 0, 0}).isEmpty());
    EXPECT_EQ(rectanglesOf(
                  Region::fromWords(wordsOf({kLeast, kLeast, kMost, kMost, 3, 3, 4, 4, kMost, kMost, kLeast, kLeast}))),
              (Words{kLeast, kLeast, kMost, kMost}));

    // Every band of n nested columns would have up to n spans: refused, and quickly.
    Words comb;
    for (int i = 0; i < 60000; ++i) comb.insert(comb.end(), {2 * i, i, 2 * i + 1, kMost - i});
    const std::clock_t start = std::clock();
    EXPECT_TRUE(Region::fromWords(wordsOf(comb)).isNull());
    EXPECT_LT((std::clock() - start) / CLOCKS_PER_SEC, 60);

    std::mt19937 random(seedOf(7));
    for (int trial = 0; trial < 3000; ++trial) {
        Words words(random() % 60);
        for (auto& w : words) w = random() % 3 ? static_cast<int>(random() % 50) - 5 : static_cast<int>(random());
        if (words.size() > 2 && random() % 8) words[0] = 32, words[2] = static_cast<int>(random() % 14);
        const Region region = Region::fromWords(words);
        ASSERT_EQ(Region::fromWords(region.words()), region);
        ASSERT_EQ(region.combined(Region::rectangle(-9, 3, 20, 30), Combine::Xor).words(),
                  Region::rectangle(-9, 3, 20, 30).combined(region, Combine::Xor).words());
    }
}

/// The rule for ellipses, literally: for every row the largest U of each kind by search.
Words ellipseRows(int w, int h)
{
    const std::int64_t A = w - 2, B = h - 2, full = A * A * B * B;
    std::vector<std::int64_t> reach(static_cast<std::size_t>(h));
    for (std::int64_t V = B % 2; V <= B; V += 2) {
        std::int64_t& X = reach[static_cast<std::size_t>(V)] = V < 2 ? A : A % 2;
        for (std::int64_t U = A % 2; V >= 2 && U <= A; U += 2) {
            const bool a = ((U - 1) * (U - 1) + 1) * B * B + V * V * A * A < full;
            const bool b = U <= reach[static_cast<std::size_t>(V - 2)] - 2 &&
                           U * U * B * B + ((V - 1) * (V - 1) + 1) * A * A <= full;
            if (a || b) X = U;
        }
    }
    Words rows;
    for (int y = 0; y <= B; ++y) {
        const std::int64_t X = reach[static_cast<std::size_t>(std::abs(static_cast<int>(B) - 2 * y))];
        rows.insert(rows.end(), {static_cast<int>((A - X) / 2), y, static_cast<int>((A + X) / 2 + 1), y + 1});
    }
    return rows;
}

TEST(RegionShapes, EllipsesOfEverySmallSizeFollowTheRule)
{
    for (int w = 2; w <= 70; ++w)
        for (int h = 2; h <= 70; ++h)
            ASSERT_EQ(rectanglesOf(Region::ellipse(0, 0, w, h)),
                      rectanglesOf(Region::fromWords(wordsOf(ellipseRows(w, h)))))
                << w << " x " << h;
    EXPECT_EQ(Region::ellipse(39, 3, 9, -7), Region::ellipse(0, 0, 30, 10).translated(9, -7)) << "any corner first";
}

TEST(RegionShapes, LargeEllipsesAreExactBeyond64BitsAndFast)
{
    constexpr int r = 196095; // products of its sides wrap around to negative in 64 bits
    const Region large = Region::ellipse(-r, -r, r, r);
    EXPECT_EQ(large.bounds(), (Rect{-r, -r, r - 1, r - 1}));
    for (int y = -r; y < r - 1; ++y) { // each row equals its mirror
        ASSERT_EQ(large.spans(y).size(), 1u);
        EXPECT_EQ(large.spans(y)[0], large.spans(-2 - y - 0)[0]) << y;
        const Span s = large.spans(y)[0];
        EXPECT_EQ(s.x0 + s.x1, -1);
        const auto half = [](double v) { return std::sqrt(std::max(0.0, (r - 1.0) * (r - 1.0) - v * v)); };
        const double from = half(std::abs(y + 1) + 1.5), to = half(std::max(0.0, std::abs(y + 1) - 1.5));
        EXPECT_TRUE((s.x1 - s.x0) / 2.0 > from - 1.5 && (s.x1 - s.x0) / 2.0 < to + 1.5) << y;
    }
}

TEST(RegionShapes, PolygonsAreJudgedAtTheUpperLeftCornerOfEachPixel)
{
    const auto inside = [](const Words& p, int x, int y) { // the winding number, literally
        int winding = 0;
        const std::size_t n = p.size() / 2;
        for (std::size_t i = 0; i < n; ++i) {
            std::int64_t x1 = p[2 * i], y1 = p[2 * i + 1], x2 = p[2 * ((i + 1) % n)], y2 = p[2 * ((i + 1) % n) + 1];
            const int direction = y1 < y2 ? 1 : -1;
            if (direction < 0) std::swap(x1, x2), std::swap(y1, y2);
            if (y >= y1 && y < y2 && (x - x1) * (y2 - y1) >= (x2 - x1) * (y - y1)) winding += direction;
        }
        return winding != 0;
    };
    std::mt19937 random(seedOf(11));
    for (int trial = 0; trial < 400; ++trial) {
        Words points(2 * (1 + random() % 9));
        for (auto& p : points) p = static_cast<int>(random() % 41);
        Mask wanted;
        for (int y = 0; y < Mask::kSide; ++y)
            for (int x = 0; x < Mask::kSide; ++x) wanted.at[y][x] = inside(points, x, y);
        ASSERT_TRUE(covers(Region::polygon(points), wanted)) << ::testing::PrintToString(points);
    }
}

TEST(Region, MeasuredWords)
{
    const auto rows = gdiFacts("extcreate.jsonl", {"ext"});
    if (rows.empty()) GTEST_SKIP() << "no measured facts";
    for (const QJsonObject& row : rows) {
        if (row.contains("xform")) continue;
        const auto joined = [&](std::initializer_list<const char*> parts) {
            Words words;
            for (const char* part : parts) std::ranges::copy(numbersOf(row[part]), std::back_inserter(words));
            return words;
        };
        const Region region = Region::fromWords(joined({"in_hdr", "in_bound", "in"}));
        ASSERT_EQ(region.isNull(), row.contains("null")) << row["n"].toString().toStdString();
        if (region.isNull()) continue;
        EXPECT_EQ(region.words(), joined({"hdr", "bound", "r"})) << row["n"].toString().toStdString();
    }
}

} // namespace
} // namespace velara
