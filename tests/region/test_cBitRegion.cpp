#include "region/cBitRegion.h"
#include "region/outline.h"
#include "support/files.h"
#include "support/gdiFacts.h"
#include "support/seed.h"
#include <QImage>
#include <random>

namespace velara {
namespace {

using Words = std::vector<std::int32_t>;

struct Selection : ::testing::Test {
    cBitRegion s;
    Selection() { s.Init(0, 0, 100, 50); }
    Words rects() const { return rectanglesOf(s.Region()); }
};

TEST_F(Selection, TheFirstShapeIsTakenWhateverTheMode)
{
    for (const Combine mode : {Combine::And, Combine::Or, Combine::Xor, Combine::Copy}) {
        s.Init(0, 0, 100, 50);
        s.CreateRect(10, 10, 20, 20, mode, true);
        EXPECT_EQ(rects(), (Words{10, 10, 20, 20}));
    }
    s.Init(0, 0, 100, 50);
    s.CreateRect(10, 10, 20, 20, Combine::Diff, true);
    EXPECT_TRUE(s.Region().isNull());
    EXPECT_EQ(s.GetDataCount(), 0);
}

TEST_F(Selection, ShapesAreCombinedAndCutToTheLimit)
{
    s.CreateRect(200, 10, 300, 20, Combine::Or, true);
    EXPECT_FALSE(s.Region().isNull()); // right of the picture: there, but empty
    EXPECT_TRUE(s.IsEmptyRegion());
    EXPECT_EQ(s.working(), s.RegionMain());
    s.CreateRect(90, 40, 110, 60, Combine::Or, false);
    EXPECT_EQ(rects(), (Words{90, 40, 110, 60}));
    s.Crop();
    EXPECT_EQ(rects(), (Words{90, 40, 100, 50}));
    s.CreateRect(95, 0, 100, 50, Combine::Diff, true);
    EXPECT_EQ(rects(), (Words{90, 40, 95, 50}));
    s.CreatePolygon({0, 0}, Combine::Or, true); // one point: no effect
    EXPECT_EQ(rects(), (Words{90, 40, 95, 50}));
    s.CreatePolygon({0, 0, 9, 9}, Combine::And, true); // two points make an empty shape
    EXPECT_TRUE(s.IsEmptyRegion());
    s.CreateEllipse(0, 0, 10, 10, Combine::Or, true);
    EXPECT_EQ(s.Region(), Region::ellipse(0, 0, 10, 10));
}

TEST_F(Selection, InvertingNothingSelectsAllAndTwiceNothing)
{
    s.Invert();
    EXPECT_EQ(s.Region(), s.RegionMain());
    s.Invert();
    EXPECT_TRUE(s.IsEmptyRegion());
    s.CreateRect(0, 0, 100, 20, Combine::Or, true);
    s.Invert();
    EXPECT_EQ(rects(), (Words{0, 20, 100, 50}));
}

TEST_F(Selection, OffsetMovesPastTheEdgeUncut)
{
    s.Offset(5, 5);
    s.Crop(); // nothing selected: no effect
    EXPECT_TRUE(s.Region().isNull());
    s.CreateRect(10, 10, 20, 20, Combine::Or, true);
    s.Offset(-15, 45);
    EXPECT_EQ(rects(), (Words{-5, 55, 5, 65}));
    int l = 7, t = 7, r = 7, b = 7;
    EXPECT_TRUE(s.BoundRect(l, t, r, b));
    EXPECT_EQ((Words{l, t, r, b}), (Words{-5, 55, 5, 65}));
    s.Crop();
    EXPECT_FALSE(s.BoundRect(l, t, r, b));
    EXPECT_EQ(l, -5);
}

TEST_F(Selection, TheScaledCopyFollowsSelectionAndZoom)
{
    s.CreateRect(10, 10, 20, 20, Combine::Or, true);
    EXPECT_EQ(s.RegionScaled(), s.Region());
    s.setZoomFactor(3);
    EXPECT_EQ(rectanglesOf(s.RegionScaled()), (Words{30, 30, 60, 60}));
    s.Offset(1, 0);
    EXPECT_EQ(rectanglesOf(s.RegionScaled()), (Words{33, 30, 63, 60}));
    s.setZoomFactor(0);
    EXPECT_EQ(s.RegionScaled(), s.Region());
    s.setZoomFactor(-4);
    EXPECT_EQ(s.ZoomFactor(), 0.01f);
    s.setZoomFactor(2);
    s.RotateBrush();
    s.Init(0, 0, 9, 9);
    EXPECT_EQ(s.ZoomFactor(), 2);
    EXPECT_EQ(s.brushIndex(), 1);
    EXPECT_TRUE(s.RegionScaled().isNull());
    for (int i = 0; i < 7; ++i) s.RotateBrush();
    EXPECT_EQ(s.brushIndex(), 0);
}

TEST_F(Selection, FilesAreTheWordsAndNothingElse)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("selection.rgn");
    EXPECT_TRUE(s.SaveToFile(path));
    EXPECT_FALSE(QFile::exists(path)); // never filled
    EXPECT_FALSE(s.LoadFromFile(path));

    s.CreateEllipse(3, 3, 30, 20, Combine::Or, true);
    s.CreateRect(50, 10, 60, 50, Combine::Or, true);
    const Words words = s.GetData();
    ASSERT_EQ(s.GetDataCount(), static_cast<int>(words.size()));
    EXPECT_TRUE(s.SaveToFile(path));
    EXPECT_EQ(QFile(path).size(), 4 * (8 + 4 * words[2]));

    cBitRegion other;
    other.Init(0, 0, 20, 20);
    other.setZoomFactor(2);
    EXPECT_TRUE(other.LoadFromFile(path));
    EXPECT_EQ(other.Region(), s.Region()); // not clipped to the limit
    EXPECT_EQ(other.GetData(), words);
    EXPECT_EQ(other.RegionScaled(), s.Region().scaled(2));
    EXPECT_FALSE(other.SaveToFile("/nowhere/at/all.rgn"));

    const QByteArray whole(reinterpret_cast<const char*>(words.data()), 4 * static_cast<int>(words.size()));
    for (const QByteArray& bytes : {QByteArray(), QByteArray("abc"), whole.left(70), QByteArray(5000, '\xff')}) {
        putFile(path, bytes);
        EXPECT_FALSE(other.LoadFromFile(path));
        EXPECT_EQ(other.Region(), s.Region()); // a bad file changes nothing
    }
    putFile(path, whole + "xy"); // odd length: only whole words count
    EXPECT_TRUE(other.LoadFromFile(path));
    EXPECT_EQ(other.GetData(), words);
}

/// Pixel by pixel: covered, while one of the four at that distance is not.
bool isFrame(const Region& region, int x, int y, int w, int h)
{
    return region.contains(x, y) && !(region.contains(x - w, y) && region.contains(x + w, y) &&
                                      region.contains(x, y - h) && region.contains(x, y + h));
}

TEST(Outline, FrameSpansAreTheFrameWithinAnyPart)
{
    std::mt19937 random(seedOf(5));
    const auto within = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
    for (int trial = 0; trial < 300; ++trial) {
        Region region = Region::ellipse(within(-5, 20), within(-5, 20), within(10, 50), within(10, 50));
        for (int i = 0; i < 4; ++i)
            region = region.combined(Region::rectangle(within(0, 40), within(0, 40), within(0, 40), within(0, 40)),
                                     i % 2 ? Combine::Xor : Combine::Or);
        const int w = within(-3, 3), h = within(-3, 3), left = within(-8, 20), right = within(21, 60);
        FrameSpans frame(region, w, h);
        for (int y = -8; y < 60; ++y) {
            std::vector<bool> got(70, false);
            for (const Span s : frame.row(y, left, right))
                for (int x = s.x0; x < s.x1; ++x) got[static_cast<std::size_t>(x + 8)] = true;
            for (int x = -8; x < 60; ++x)
                ASSERT_EQ(got[static_cast<std::size_t>(x + 8)], x >= left && x < right && isFrame(region, x, y, w, h))
                    << "trial " << trial << " at " << x << ", " << y << " w " << w << " h " << h;
        }
    }
}

TEST(Outline, StripesHangOnTheDeviceAndMarch)
{
    cBitRegion s;
    s.Init(0, 0, 400, 400);
    s.CreateRect(0, 0, 300, 300, Combine::Or, true);
    const auto topRow = [&](int dx) {
        QImage device(16, 4, QImage::Format_RGB32);
        device.fill(QColor(1, 2, 3));
        s.DrawToDC(device, dx, 1, {0, 0, 15, 4});
        QString row;
        for (int x = 0; x < 16; ++x) {
            const QRgb p = device.pixel(x, 1);
            row += p == 0xFFFFFFFF ? '1' : p == 0xFF000000 ? '0' : '.';
        }
        EXPECT_EQ(device.pixel(5, 0), qRgb(1, 2, 3)); // outside of the region
        EXPECT_EQ(device.pixel(5, 2), qRgb(1, 2, 3)); // inside of the frame
        return row.toStdString();
    };
    EXPECT_EQ(topRow(0), "011110000111100."); // row 1 of the pattern is 120; the part ends at 15
    EXPECT_EQ(topRow(3), "...110000111100."); // moving the region does not move the stripes
    s.RotateBrush();
    EXPECT_EQ(topRow(0), "001111000011110.");
}

} // namespace
} // namespace velara
