// Layers of fixed-width text on a picture: what each shows, how it grows, and the result of merging.
#include "support/RecordingFonts.h"
#include "support/pictures.h"
#include "text/Layers.h"

namespace velara {
namespace {

constexpr int kWidth = 200, kHeight = 100;

struct LayersTest : ::testing::Test {
    RecordingFonts fonts;
    Layers layers{fonts};
    Bits picture = randomBits(kWidth, kHeight, 7);
    TextStyle style{"Fixed", 10}; // a character is 5 wide, a line 12 high
    static constexpr Colour kInk = 0x0000FF;

    LayersTest() { layers.setCanvas(picture); }
    int add(int left, int top, const QString& text)
    {
        const int index = layers.add(left, top, style, kInk);
        layers.setText(index, text);
        return index;
    }
    /// The font's drawing of one line, on these pixels.
    Bits printed(Bits on, int x, int y, const QString& text)
    {
        fonts.draw(on, x, y, {text}, style, kInk);
        for (int row = 0; row < on.height(); ++row) // a merged picture keeps its fourth bytes
            for (int column = 0; column < on.width(); ++column) on.at(column, row).c[3] = picture.at(column, row).c[3];
        return on;
    }
};

TEST_F(LayersTest, NewOnesHaveTheirSizeAndGrowWithTheText)
{
    const int first = layers.add(10, 20, style, kInk);
    EXPECT_EQ(2, first);
    EXPECT_EQ((Rect{10, 20, 143, 40}), layers.layer(first).place);
    layers.setText(first, QString(30, u'x')); // 150 plus two for slanted letters
    EXPECT_EQ((Rect{10, 20, 162, 40}), layers.layer(first).place);
    layers.setText(first, QString(30, u'x') + "\r\ny\r\nz");
    EXPECT_EQ((Rect{10, 20, 162, 56}), layers.layer(first).place);
    layers.setText(first, QStringLiteral("word ").repeated(20)); // wraps at the picture's right edge
    EXPECT_EQ(182, layers.layer(first).place.right);
    EXPECT_EQ(56, layers.layer(first).place.bottom);
    layers.setText(first, QStringLiteral("word ").repeated(20000)); // not beyond the picture's bottom
    EXPECT_EQ(kHeight, layers.layer(first).place.bottom);
    layers.setText(first, {});
    EXPECT_EQ(kHeight, layers.layer(first).place.bottom) << "never smaller by itself";

    const int second = add(0, 0, "abc");
    EXPECT_EQ(3, second);
    layers.remove(second);
    EXPECT_EQ(4, layers.add(0, 0, style, kInk)) << "no index twice";
    EXPECT_EQ((std::vector<int>{2, 4}), layers.indices());
}

TEST_F(LayersTest, AWidthThatWasSetStays)
{
    const int index = add(10, 10, "ab cd");
    layers.setPlace(index, {10, 10, 22, 50});
    EXPECT_EQ((Rect{10, 10, 22, 50}), layers.layer(index).place);
    layers.setPlace(index, {10, 10, 22, 40}); // a different height doesn't change the width
    layers.setText(index, "ab cd ef gh ij");
    EXPECT_EQ((Rect{10, 10, 22, 70}), layers.layer(index).place) << "five lines of 12";
    layers.setPlace(index, {10, 10, 9, 9});
    EXPECT_EQ((Rect{10, 10, 14, 14}), layers.layer(index).place);
}

TEST_F(LayersTest, SurfaceIsTheTextOnThePixelsBelow)
{
    const int index = add(5, 6, "ab c");
    for (const Rect& place :
         {Rect{5, 6, 60, 30}, Rect{90, 70, 145, 94}, Rect{-12, -5, 43, 19}, Rect{190, 95, 245, 119}}) {
        layers.setPlace(index, place);
        const Rect part = layers.visible(index);
        EXPECT_EQ(place.intersected({0, 0, kWidth, kHeight}), part);
        const Bits whole = printed(picture, place.left, place.top, "ab c");
        EXPECT_TRUE(sameBits(whole, layers.Blend())) << place.left;
        ASSERT_EQ(part.width(), layers.surface(index).width());
        EXPECT_EQ(whole.at(part.left, part.top).c[1], layers.surface(index).at(0, 0).c[1]);
    }
    layers.setPlace(index, {300, 10, 355, 30});
    EXPECT_TRUE(layers.surface(index).isNull());
    EXPECT_TRUE(sameBits(picture, layers.Blend()));
}

TEST_F(LayersTest, LaterOnesShowThePictureAndNotTheOnesBelow)
{
    EXPECT_TRUE(sameBits(picture, layers.Blend())) << "without layers";
    const int lower = add(10, 10, "aaaaaaaaaaaa");
    const int upper = add(30, 14, "b");
    layers.setPlace(upper, {30, 14, 50, 30});
    Bits wanted = printed(picture, 10, 10, "aaaaaaaaaaaa");
    for (int y = 14; y < 30; ++y)
        for (int x = 30; x < 50; ++x) wanted.at(x, y) = picture.at(x, y);
    wanted = printed(wanted, 30, 14, "b");
    EXPECT_TRUE(sameBits(wanted, layers.Blend()));

    layers.setText(lower, "aaaaaaaaaaaaa"); // drawn later, but still below
    layers.setText(lower, "aaaaaaaaaaaa");
    EXPECT_TRUE(sameBits(wanted, layers.Blend()));
    layers.setShown(lower, false);
    EXPECT_TRUE(sameBits(printed(picture, 30, 14, "b"), layers.Blend())) << "what is hidden leaves no trace";
    layers.setShown(upper, false);
    EXPECT_TRUE(sameBits(picture, layers.Blend()));
}

TEST_F(LayersTest, InkBeyondThePlaceIsShownAndMerged)
{
    const int lower = add(10, 10, "aaaaaaaaaaaa");
    fonts.overhang = 3;
    const int upper = add(30, 24, "b");
    Bits wanted = picture;
    fonts.overhang = 0;
    wanted = printed(wanted, 10, 10, "aaaaaaaaaaaa");
    for (int y = 24; y < 44; ++y)
        for (int x = 30; x < 163; ++x) wanted.at(x, y) = picture.at(x, y);
    fonts.overhang = 3;
    EXPECT_TRUE(sameBits(printed(wanted, 30, 24, "b"), layers.Blend()));
    EXPECT_EQ((Rect{30, 24, 163, 44}), layers.layer(upper).place) << "the outline stays";
    EXPECT_EQ((Rect{27, 22, 163, 44}), layers.visible(upper));
    layers.setShown(lower, false);
    EXPECT_TRUE(sameBits(printed(picture, 30, 24, "b"), layers.Blend()));
}

TEST_F(LayersTest, AnotherPictureBelowIsTaken)
{
    add(10, 10, "abc");
    picture = randomBits(60, 15, 8); // smaller than the layer's extent
    layers.setCanvas(picture);
    EXPECT_TRUE(sameBits(printed(picture, 10, 10, "abc"), layers.Blend()));
}

TEST_F(LayersTest, TheCaretFollowsTheText)
{
    const int index = add(10, 10, "ab  \r\ncd ");
    constexpr int kCases[][3] = {{0, 10, 10}, {2, 20, 10}, {4, 30, 10}, {6, 10, 22}, {9, 25, 22}};
    for (const auto& [character, x, y] : kCases)
        EXPECT_TRUE(layers.caret(index, character) == (Rect{x, y, x + 1, y + 12}) &&
                    layers.characterAt(index, x + 1, y + 5) == character)
            << character;
    EXPECT_EQ((std::vector<Rect>{{20, 10, 30, 22}, {10, 22, 15, 34}}), layers.spans(index, 2, 7));
    EXPECT_EQ(std::pair(qsizetype{0}, qsizetype{4}), layers.lineOf(index, 1));
    EXPECT_EQ(6, layers.beside(index, 4, true)) << "over the line break";
    EXPECT_EQ(4, layers.beside(index, 6, false));
    layers.setPlace(index, {10, 10, 22, 50}); // wrapped after "ab  "
    layers.setText(index, "ab  cd");
    EXPECT_EQ(3, layers.characterAt(index, 90, 15)) << "the end of the line that was clicked";
    EXPECT_EQ(std::pair(qsizetype{4}, qsizetype{6}), layers.lineOf(index, 4));
    EXPECT_EQ((Rect{50, 60, 51, 72}), layers.caret(layers.add(50, 60, style, kInk), 0));
}

TEST_F(LayersTest, RightToLeftTextBeginsAtTheRight)
{
    const int index = add(0, 0, QString::fromUtf8("\xD7\x90\xD7\x91"));
    layers.setPlace(index, {0, 0, 50, 20});
    EXPECT_TRUE(sameBits(printed(picture, 40, 0, "ab"), layers.Blend()));
}

} // namespace
} // namespace velara
