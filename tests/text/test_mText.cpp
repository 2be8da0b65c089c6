// Texts laid out with a font whose characters all have one width.
#include "support/RecordingFonts.h"
#include "support/pictures.h"
#include "text/mText.h"

namespace velara {
namespace {

constexpr const char* kPangram = "the quick brown fox";

struct TextTest : ::testing::Test {
    RecordingFonts fonts;
    TextStyle style{"Fixed"};

    std::optional<TextLayout> layOut(const TextBox& box)
    {
        return layOutText(box, [&](const QString& run, int size) {
            style.size = size;
            return fonts.measure(run, style);
        });
    }
    /// "x,y[+spread]:text" for each line, or "refused".
    std::string lines(const TextBox& box)
    {
        const auto layout = layOut(box);
        if (!layout) return "refused";
        QStringList all;
        for (const TextLine& line : layout->lines) {
            const QString spread = line.run.spread ? QStringLiteral("+%1").arg(line.run.spread) : QString();
            all += QStringLiteral("%1,%2%3:%4").arg(line.x).arg(line.y).arg(spread, line.run.text);
        }
        return all.join(" | ").toStdString();
    }
};

// At size 10 a character is 5 wide and a line 12 high; the margin is 4.
TEST_F(TextTest, LinesBreakAndAreAligned)
{
    const std::tuple<const char*, int, int, const char*> cases[] = {
        // text, width, alignment, lines
        {"", 58, LeftJustify, ""},
        {"ab cd ef", 48, LeftJustify, "4,4:ab cd ef"}, // 40 wide: fits exactly
        {"ab cd ef", 47, LeftJustify, "4,4:ab cd | 4,16:ef"},
        {"ab cd ef", 47, CentreJustify, "11,4:ab cd | 18,16:ef"},
        {"ab cd ef", 47, RightJustify, "18,4:ab cd | 33,16:ef"},
        {"ab cd ef", 47, FullJustify, "4,4+14:ab cd | 4,16:ef"},
        {"abc   ef", 33, RightJustify, "14,4:abc | 19,16:ef"}, // the blanks at the break take no space
        {"ab-cd-ef", 38, LeftJustify, "4,4:ab-cd- | 4,16:ef"},
        {"a\r\nb", 100, LeftJustify, "4,4:a | 4,16:b"},
        {"a\r\n\r\nb c", 30, FullJustify, "4,4:a | 4,16: | 4,28:b c"},
        {"a b\r\nc d", 38, FullJustify, "4,4+15:a b | 4,16:c d"}, // every line but the last
        {"abc\r\nc", 38, FullJustify, "4,4:abc | 4,16:c"},        // without a gap
        {"ab\nc", 100, LeftJustify, "4,4:ab\nc"},                 // only the pair forces a line break
        {"a abcdefgh b", 28, LeftJustify, "4,4:a | 4,16:abcd | 4,28:efgh | 4,40:b"}, // a long word on lines of its own
        {"abcdx\xCC\x81y", 33, LeftJustify, "4,4:abcd | 4,16:x\xCC\x81y"},           // letters stay whole
        {"日本語です。よ", 33, LeftJustify, "4,4:日本語で | 4,16:す。よ"},           // the full stop begins no line
        {"ab日本語", 23, LeftJustify, "4,4:ab日 | 4,16:本語"},
        {"\xD7\x90\xD7\x91 \xD7\x92", 23, LeftJustify, "4,4:\xD7\x90\xD7\x91 | 4,16:\xD7\x92"},
    };
    for (const auto& [text, width, alignment, wanted] : cases)
        EXPECT_EQ(wanted, lines({QString::fromUtf8(text), width, 60, 4, alignment})) << text << " " << alignment;
    fonts.overhang = 6; // past the margin of 4: the picture grows, the lines stay
    const TextBox box{"a", 30, 20};
    const Bits drawing = drawOnPaper(box, *layOut(box), style, fonts);
    EXPECT_TRUE(drawing.width() == 32 && drawing.height() == 21) << drawing.height();
    EXPECT_EQ(0, drawing.at(0, 0).c[0]);
    const auto hebrew = layOut({QString::fromUtf8("\xD7\x90 a"), 100, 60});
    EXPECT_TRUE(hebrew->lines[0].run.rightToLeft);
}

TEST_F(TextTest, SizeIsTheOneWantedOrTheGreatestThatFits)
{
    const std::tuple<const char*, int, int, int, int> cases[] = {
        // text, width, height, requested and resulting size; 0: refused
        {kPangram, 400, 200, 20, 20},
        {kPangram, 400, 200, 99, 72},         // above the limit
        {kPangram, 400, 22, 20, 12},          // one line of 14
        {kPangram, 20, 20, 20, 0},            // not even at the smallest
        {"a\r\nb\r\nc\r\nd", 100, 40, 20, 6}, // four lines of 8 in 32
        {"a\r\nb\r\nc\r\nd\r\ne", 100, 40, 20, 0},
        {"wide-words fit", 48, 100, 20, 17}, // three lines of 19; at 18 five of 20 exceed 92
        {"unbreakable", 28, 100, 20, 13},    // three letters a line; at 14 six lines of 16 exceed 92
        {"unbreakable", 28, 150, 20, 20},    // the height alone decides
        {"a", 100, 100, 1, 1},               // requested, however small
        {"a", 100, 100, 0, 1},
        {"", 100, 100, 20, 20},
        {"", 8, 100, 20, 0}, // nothing is left between the margins
        {"", 100, 8, 20, 0},
        {"", 9, 9, 20, 20},
        {"a", 9, 9, 20, 0}, // no size fits into one pixel
    };
    for (const auto& [text, width, height, wanted, got] : cases) {
        const auto layout = layOut({text, width, height, 4, LeftJustify, kNoShadow, wanted});
        EXPECT_EQ(got, layout ? layout->size : 0) << text << " " << wanted;
        EXPECT_LE(layout ? layout->trials : 0, 8) << text;
    }
}

TEST_F(TextTest, LongTextsEndSoon)
{
    for (const QString& part : {QStringLiteral("a"), QStringLiteral(" "), QStringLiteral("a "), QStringLiteral("-"),
                                QStringLiteral("\r\n")}) {
        fonts.measures = 0;
        const auto layout = layOut({part.repeated(100000), 300, 160, 4, FullJustify, kNoShadow, 20});
        EXPECT_EQ(part == u" ", layout.has_value()) << part.toStdString();
        EXPECT_LT(fonts.measures, 20000) << part.toStdString();
    }
}

TEST_F(TextTest, ShadowsLieOnAGrid)
{
    constexpr int kCases[][4] = {{0, 10, -1, -1}, {1, 10, 0, -1}, {2, 14, 1, -1}, {3, 15, -2, 0}, {4, 30, 0, 0},
                                 {5, 30, 3, 0},   {6, 45, -4, 4}, {7, 59, 0, 4},  {8, 72, 5, 5}};
    for (const auto& [index, size, x, y] : kCases) {
        const auto layout = layOut({"a", 200, 200, 4, LeftJustify, index, size});
        EXPECT_EQ(std::pair(x, y), std::pair(layout->shadowX, layout->shadowY)) << index;
    }
}

TEST_F(TextTest, DrawsTheFaceOverItsShadow)
{
    constexpr Colour kFace = 0x0000FF, kShadow = 0x808080;
    Bits wanted = flatBits(30, 20, 255, 255, 255), got = wanted;
    const auto layout = layOut({"a b\r\nc", 30, 20, 2, FullJustify, 8, 6}); // a character is 3 wide, a line 8 high
    ASSERT_EQ(2u, layout->lines.size());
    drawText(got, *layout, style, fonts, kFace, kShadow);
    const auto block = [&](int x, int y, Pixel ink) {
        for (int row = y; row < y + 6; ++row)
            for (int column = x; column < x + 2; ++column) wanted.at(column, row) = ink;
    };
    const Pixel face{{0, 0, 255, 255}}, shadow{{128, 128, 128, 255}};
    for (const auto& [x, y] : {std::pair{2, 3}, {25, 3}, {2, 11}})
        block(x + 1, y + 1, shadow); // the right one ends at 27
    for (const auto& [x, y] : {std::pair{2, 3}, {25, 3}, {2, 11}}) block(x, y, face);
    EXPECT_TRUE(sameBits(wanted, got));
}

TEST_F(TextTest, MasksPassTheCoverageOfTheirDrawing)
{
    Bits drawing = flatBits(9, 7, 255, 255, 255);
    drawing.at(3, 2).c[0] = 0;
    drawing.at(5, 4).c[0] = 127;
    drawing.at(4, 3).c[0] = 254;
    const Bits mask = maskOf(drawing);
    ASSERT_TRUE(mask.width() == 3 && mask.height() == 3);
    EXPECT_EQ(0, mask.at(0, 0).c[0]);
    EXPECT_EQ(95, mask.at(2, 2).c[0]); // half of 190
    EXPECT_EQ(189, mask.at(1, 1).c[0]) << "the palest ink is some";
    EXPECT_EQ(190, mask.at(2, 0).c[0]) << "paper";
    EXPECT_TRUE(maskOf(flatBits(9, 7, 255, 255, 255)).isNull());
}

TEST(CountOfTest, CountsOverlappingHits)
{
    for (const auto& [needle, text, count] :
         {std::tuple("\r\n", "a\r\nb\r\n", 2), {"aa", "aaaa", 3}, {"a", "", 0}, {"", "abc", 0}, {"abc", "ab", 0}})
        EXPECT_EQ(count, CountOf(needle, text)) << needle << " in " << text;
}

} // namespace
} // namespace velara
