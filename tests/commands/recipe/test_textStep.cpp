// Texts as steps: what a document's layers were merged into comes out of their words again, to the pixel.
#include "commands/recipe/Recipe.h"
#include "commands/recipe/textStep.h"
#include "document/Draft.h"
#include "support/RecordingFonts.h"
#include "support/pictures.h"
#include "support/seed.h"
#include <random>

namespace velara {
namespace {

struct TextStepTest : ::testing::Test {
    RecordingFonts fonts;
    const Bits picture = randomBits(200, 100, 4);

    /// The picture after a step, or why it can't be read or taken.
    std::pair<Bits, std::string> after(const QString& words)
    {
        try {
            RecipeStep step = Recipe::parse(recipeText({words}), {}).steps.at(0);
            checkFonts(step.fonts, fonts);
            step.drawBy(fonts);
            Document document({}, 1);
            document.takePicture(picture);
            cBitFilter engine;
            document.handTo(engine);
            Draft draft(document, picture, engine, After::Step);
            if (const Outcome outcome = draft.attempt(step.job)) draft.take();
            return {document.bits(), ""};
        } catch (const StepFault& fault) {
            return {Bits(), fault.what()};
        }
    }
    /// Where a text of five letters at size 10, each drawn as a block, has its ink; 25 by 12 pixels without the two of
    /// a slanted end.
    Rect inkOf(const QString& place)
    {
        const Bits drawn = after("TEXT(abcde,Fixed,10,regular,0x00FE01FD," + place + ')').first;
        Rect ink;
        for (int y = 0; y < drawn.height(); ++y)
            for (int x = 0; x < drawn.width(); ++x)
                if (!(drawn.at(x, y) == picture.at(x, y))) ink = ink.united({x, y, x + 1, y + 1});
        return ink;
    }
};

TEST_F(TextStepTest, WordsOfLayersMakeTheSamePixels)
{
    std::mt19937 random(seedOf(26));
    const auto within = [&](int least, int most) { return std::uniform_int_distribution(least, most)(random); };
    const QString kPieces[] = {
        "word ",      "a, \"b\" (c)",     "\r\n",   "\\n", "\t", "\u05d0\u05d1\u05d2 ", QString(QChar(0xD800)),
        "\U0001F600", QString(QChar(27)), "\u2028", " "};
    fonts.overhang = 1;
    for (int round = 0; round < 200 && !HasFailure(); ++round) {
        Layers layers(fonts);
        layers.setCanvas(picture);
        for (int i = within(1, 4); i > 0; --i) {
            TextStyle style{within(0, 3) ? "Fixed" : "Other", within(4, 30)};
            for (const auto flag : {&TextStyle::bold, &TextStyle::italic, &TextStyle::underline, &TextStyle::strikeOut})
                style.*flag = within(0, 2) == 0;
            const int index = layers.add(within(-40, 190), within(-20, 95), style, Colour(within(0, 0xFFFFFF)));
            QString text;
            for (int k = within(0, 6); k > 0; --k) text += kPieces[std::size_t(within(0, int(std::size(kPieces)) - 1))];
            layers.setText(index, text);
            if (within(0, 1)) layers.setPlace(index, {5, 5, within(6, 150), within(6, 90)});
            if (within(0, 5) == 0) layers.setShown(index, false);
        }
        const QString words = textWords(layers.state(), fonts);
        if (words.isEmpty()) continue; // all of them hidden
        const auto [made, fault] = after(words);
        EXPECT_EQ("", fault);
        EXPECT_TRUE(sameBits(layers.Blend(), made)) << words.toStdString();
    }
}

TEST_F(TextStepTest, APlaceCountsFromItsCorner)
{
    const std::pair<const char*, Rect> kPlaces[] = {
        // the block of a letter leaves free a column and two rows
        {"top-left,10,20", {10, 21, 34, 31}}, {"top-right,10,20", {163, 21, 187, 31}},
        {"bottom-left,0,0", {0, 89, 24, 99}}, {"bottom-right,3,5", {170, 84, 194, 94}},
        {"centre,0,0", {86, 45, 110, 55}},    {"top,-6,1", {80, 2, 104, 12}},
        {"right,0,-4", {173, 41, 197, 51}},   {"bottom-right,0,0,80,40", {120, 61, 144, 71}},
    };
    for (const auto& [place, ink] : kPlaces) EXPECT_EQ(ink, inkOf(place)) << place;
    EXPECT_EQ((Rect{0, 1, 9, 11}), inkOf("top-left,0,0,10,12")) << "two letters on a line, one line";
}

TEST_F(TextStepTest, WhatIsWrongIsNamed)
{
    const std::pair<const char*, const char*> kCases[] = {
        {"TEXT(a,Fixed,10,regular,0,top-left,0)", "takes 8 to 10 arguments, not 7"},
        {"TEXT(a,Fixed,10,regular,0,top-left,0,0,9,9,b)", "takes 8 to 10 arguments, not 11"},
        {"TEXT(a,Fixed,0,regular,0,top-left,0,0)", "Size has to be from 1 to 2000, not 0"},
        {"TEXT(a,Fixed,10,bold+fat,0,top-left,0,0)", "Style has to be regular|bold"},
        {"TEXT(a,Fixed,10,regular,0,topleft,0,0)", "Corner has to be top-left|top|"},
        {"TEXT(a,Fixed,10,regular,0,top-left,2147483647,0)", "Across has to be from"},
        {"TEXT(a,Fixed,10,regular,0,top-left,0,0,0,5)", "Width has to be from 1 to 32767, not 0"},
        {"TEXT(a\\,Fixed,10,regular,0,top-left,0,0)", "Text: \\ is unknown"},
        {"TEXT(a\\u{110000},Fixed,10,regular,0,top-left,0,0)", "Text: \\u is unknown"},
        {"TEXT(a,,10,regular,0,top-left,0,0)", "Font has to be the name of a font"},
        {"TEXT(a,Third,10,regular,0,top-left,0,0)", "the font \"Third\" isn't installed"},
    };
    for (const auto& [words, told] : kCases) {
        const std::string fault = after(words).second;
        EXPECT_NE(std::string::npos, fault.find(told)) << words << ": " << fault;
    }
    EXPECT_EQ("", after("TEXT(a,OTHER,10,regular,0,top-left,0,0)").second) << "names of fonts have no case";
}

} // namespace
} // namespace velara
