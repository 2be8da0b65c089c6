// The desktop's own fonts, whatever they are.
#include "commands/recipe/textStep.h"
#include "document/Document.h"
#include "pixels/images.h"
#include "platform/QtFonts.h"
#include "region/Region.h"
#include "support/pictures.h"
#include "support/places.h"
#include "text/Layers.h"
#include <QtWidgets>

namespace velara {
namespace {

struct QtFontsTest : ::testing::Test {
    QtFonts fonts;
    TextStyle style{QGuiApplication::font().family(), 20};

    /// The bounding box of what a run paints on white.
    Rect drawn(const TextRun& run, const TextStyle& as, int x = 40, int y = 30)
    {
        Bits paper = flatBits(600, 120, 255, 255, 255);
        fonts.draw(paper, x, y, run, as, 0);
        Rect ink;
        for (y = 0; y < paper.height(); ++y)
            for (x = 0; x < paper.width(); ++x)
                if (paper.at(x, y).c[0] != 255 || paper.at(x, y).c[2] != 255) ink = ink.united({x, y, x + 1, y + 1});
        return ink;
    }
};

TEST_F(QtFontsTest, ListsWhatIsInstalled)
{
    const auto families = fonts.list();
    ASSERT_TRUE(families);
    EXPECT_FALSE(families->empty());
    EXPECT_TRUE(std::ranges::any_of(*families, [](const FontFamily& f) { return f.writingSystems.contains("Latin"); }));
    const auto has = [&](const QString& name) {
        return std::ranges::any_of(*families, [&](const FontFamily& f) { return f.name == name; });
    };
    EXPECT_TRUE(has(fonts.standIn("No Such Font At All")));
    EXPECT_EQ(families->back().name, fonts.standIn(families->back().name));
    // They claim Latin letters, too.
    for (const FontFamily& family : *families)
        if (family.name == "D050000L" || family.name == "Standard Symbols PS") {
            EXPECT_TRUE(family.writingSystems.isEmpty()) << family.name.toStdString();
        }
}

TEST_F(QtFontsTest, DrawsWithinWhatItMeasures)
{
    for (const int size : {7, 20, 69}) {
        style.size = size;
        // A stroke placed over a letter extends beyond it.
        for (const QString& text :
             {QStringLiteral("Hamburg"), QString::fromUtf8("a\xCC\x81\xCC\xB8 \xD9\x85\xD8\xB1")}) {
            const RunSize box = fonts.measure(text, style);
            const Rect ink = drawn({text}, style, 60, 5);
            EXPECT_FALSE(ink.isEmpty()) << size;
            EXPECT_GE(ink.left, 58 - size / 4);
            EXPECT_LE(ink.right, 60 + box.width + 2 + size / 4);
            EXPECT_EQ(box.height, fonts.measure("x", style).height) << "of the style alone";
            EXPECT_GT(box.height, size);
        }
    }
    EXPECT_EQ(0, fonts.measure({}, style).width);
    EXPECT_TRUE(drawn({}, style).isEmpty());
    style.family = "No Such Font At All";
    EXPECT_FALSE(drawn({"x"}, style).isEmpty());
    style.size = 0;
    EXPECT_GT(fonts.measure("x", style).height, 0);
}

TEST_F(QtFontsTest, StampedTextIsAsDarkAsItsPictureAndWhole)
{
    for (const int size : {8, 12, 20, 40}) {
        style.size = size;
        style.italic = true;
        const TextBox box{QString::fromUtf8("just \xE1\xBA\xA4\xE1\xBB\x86"), 500, 100, 0};
        TextLayout layout{size, {{{box.text}}}};
        const Bits drawing = drawOnPaper(box, layout, style, fonts);
        Document stamped({}, 0);
        stamped.takePicture(flatBits(500, 100, 255, 255, 255));
        stamped.paint.BitsBWMask(20, 20, maskOf(drawing), 0, 100);
        const auto ink = [](const Bits& bits) {
            double sum = 0;
            for (int y = 0; y < bits.height(); ++y)
                for (int x = 0; x < bits.width(); ++x) sum += 255 - bits.at(x, y).c[0];
            return sum;
        };
        Bits large = flatBits(800, 300, 255, 255, 255);
        fonts.draw(large, 200, 100, {box.text}, style, 0);
        EXPECT_EQ(ink(large), ink(drawing)) << size;
        EXPECT_NEAR(1, ink(stamped.bits()) / ink(large), 0.01) << size;

        Layers layers(fonts);
        layers.setCanvas(flatBits(800, 300, 255, 255, 255));
        layers.setText(layers.add(200, 100, style, 0), box.text);
        EXPECT_EQ(ink(large), ink(layers.Blend())) << size;
    }
}

TEST_F(QtFontsTest, ASlantedLineFallsBackToUprightBeforeItShowsBoxes)
{
    style.family = QStringLiteral("DejaVu Sans"); // its slanted face has no Arabic
    style.italic = true;
    TextStyle upright = style;
    upright.italic = false;
    const QString arabic = QString::fromUtf8("\xD9\x85\xD8\xB1\xD8\xAD\xD8\xA8\xD8\xA7");
    if (!QFontDatabase::styles(style.family).contains("Oblique")) GTEST_SKIP() << "no such face";
    EXPECT_EQ(fonts.measure(arabic, upright), fonts.measure(arabic, style));
    EXPECT_EQ(drawn({arabic}, upright), drawn({arabic}, style));
    EXPECT_FALSE(drawn({"hill"}, upright) == drawn({"hill"}, style)) << "where there is one, it is taken";
}

/// The other program has an application object of another platform, and draws in another thread.
TEST_F(QtFontsTest, TheBatchProgramDrawsTheSamePixels)
{
    QTemporaryDir folder;
    const auto path = [&](const char* name) { return folder.filePath(name); };
    Layers layers(fonts);
    layers.setCanvas(randomBits(300, 200, 5));
    ASSERT_TRUE(imageOver(layers.canvas()).save(path("in.ppm")));
    style = {fonts.standIn("serif"), 23};
    style.italic = true;
    layers.setText(layers.add(10, 20, style, 0x2040FF),
                   QString::fromUtf8("Größe, \"1\"\r\n\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D"));
    layers.setText(layers.add(30, 30, {fonts.standIn("monospace"), 9}, 0), "over the other");
    QProcess batch;
    for (const bool many : {false, true}) {
        const QStringList words{textWords(layers.state(), fonts)};
        const QStringList where =
            many ? QStringList{"--into", path("out"), "--format", "png"} : QStringList{path("out.png")};
        batch.start(builtPath("velara-batch"), QStringList{path("in.ppm")} + words + where);
        ASSERT_TRUE(batch.waitForFinished());
        EXPECT_EQ("", many ? "" : batch.readAllStandardError()) << "nothing is said of a desktop";
        const QImage drawn(path(many ? "out/in.png" : "out.png"));
        EXPECT_TRUE(imageOver(layers.Blend()).convertToFormat(QImage::Format_RGB888) ==
                    drawn.convertToFormat(QImage::Format_RGB888));
    }
    batch.start(builtPath("velara-batch"),
                {path("in.ppm"), "TEXT(a,Missing Font,9,regular,0,top,0,0)", "--into", path("no")});
    ASSERT_TRUE(batch.waitForFinished());
    EXPECT_EQ(3, batch.exitCode());
    EXPECT_TRUE(batch.readAllStandardError().contains("the font \"Missing Font\" isn't installed"));
    EXPECT_FALSE(QFileInfo::exists(path("no"))) << "known before anything is written";
}

TEST_F(QtFontsTest, StylesShow)
{
    const Rect plain = drawn({"mono line"}, style);
    TextStyle under = style, through = style, bold = style;
    under.underline = through.strikeOut = bold.bold = true;
    EXPECT_GT(drawn({"mono line"}, under).bottom, plain.bottom);
    EXPECT_EQ(drawn({"mono line"}, through).bottom, plain.bottom);
    EXPECT_GE(drawn({"mono line"}, through).width(), plain.width());
    EXPECT_GT(fonts.measure("mono line", bold).width, fonts.measure("mono line", style).width);
    Bits a = flatBits(200, 60, 255, 255, 255), b = a;
    fonts.draw(a, 0, 0, {"x"}, style, 0);
    fonts.draw(b, 0, 0, {"x"}, through, 0);
    EXPECT_FALSE(sameBits(a, b));
}

TEST_F(QtFontsTest, SpreadsTheBlanksWithin)
{
    const Rect plain = drawn({"one two three"}, style), wide = drawn({"one two three", false, 61}, style);
    EXPECT_NEAR(plain.right + 61, wide.right, 1);
    EXPECT_EQ(plain.left, wide.left);
    EXPECT_EQ(plain, drawn({"one two three", false, -5}, style));
}

TEST_F(QtFontsTest, InkHasItsColourAndGreyEdges)
{
    Bits paper = flatBits(200, 60, 255, 255, 255);
    fonts.draw(paper, -20, -5, {"MWMWMWMWMWMWMWMWMWMW"}, style, 0x0000FF); // clipped on three sides
    bool full = false, edges = false;
    for (int y = 0; y < paper.height(); ++y)
        for (int x = 0; x < paper.width(); ++x) {
            const Pixel& p = paper.at(x, y);
            EXPECT_EQ(255, p.c[2]);
            EXPECT_EQ(p.c[0], p.c[1]) << "no coloured fringes";
            full |= p.c[0] == 0;
            edges |= p.c[0] > 0 && p.c[0] < 255;
        }
    EXPECT_TRUE(full && edges);
}

TEST_F(QtFontsTest, CaretGoesFromEdgeToEdge)
{
    EXPECT_EQ(0, fonts.caret({"word"}, style, 0));
    EXPECT_NEAR(fonts.measure("word", style).width, fonts.caret({"word"}, style, 4), 1);
    EXPECT_LT(fonts.caret({"word"}, style, 1), fonts.caret({"word"}, style, 2));
    const TextRun hebrew{QString::fromUtf8("\xD7\x90\xD7\x91"), true};
    EXPECT_GT(fonts.caret(hebrew, style, 0), fonts.caret(hebrew, style, 2));
    EXPECT_EQ(1, fonts.beside(hebrew, style, 0, false));
    EXPECT_EQ(0, fonts.beside(hebrew, style, 0, true)) << "the edge";
    for (const TextRun& run : {hebrew, TextRun{"word"}})
        for (int i = 0; i <= int(run.text.size()); ++i)
            EXPECT_EQ(i, fonts.characterAt(run, style, fonts.caret(run, style, i)));
    const TextRun mixed{QString::fromUtf8("ab\xD7\x90\xD7\x91")}; // the second letter of each is marked
    EXPECT_EQ(2u, fonts.spans(mixed, style, 1, 3).size());
    EXPECT_EQ(1u, fonts.spans(mixed, style, 0, 4).size());
    EXPECT_EQ(2, fonts.beside({QString::fromUtf8("a\xCC\x81")}, style, 0, true)) << "an accent is no place";
}

} // namespace
} // namespace velara
