// The grammar of steps: its texts read back as what they were written from, faults are named with their line.
#include "commands/recipe/Recipe.h"
#include "commands/recipe/stepText.h"
#include "commands/recipe/stepWords.h"
#include "commands/recipe/textStep.h"
#include "document/Draft.h"
#include "seams/text.h"
#include "support/files.h"
#include "support/filterOf.h"
#include "support/pictures.h"
#include "support/typicalArguments.h"

namespace velara {
namespace {

/// The picture after a job, or the reason why there is none.
Bits after(const Job& job, const Bits& picture)
{
    Document document({}, 1);
    document.takePicture(picture);
    cBitFilter engine = filterOf(picture);
    Draft draft(document, picture, engine, After::Step);
    const Outcome outcome = draft.attempt(job);
    EXPECT_TRUE(outcome) << outcome.reason.toStdString();
    if (outcome) draft.take();
    return document.bits();
}

std::string faultOf(const std::function<void()>& work)
{
    try {
        work();
    } catch (const StepFault& fault) {
        return fault.what();
    }
    return "none";
}

TEST(StepText, EveryOperationIsReadBackAsTheSame)
{
    const Bits picture = randomBits(60, 40, 5), overlay = randomBits(9, 7, 6);
    for (const Operation* operation : stepOperations()) {
        if (operation->parameters.empty() || operation == &textOperation()) continue;
        Arguments arguments = typicalArguments(*operation), named;
        if (operation->name == "ApplyTexture") arguments.resize(2);
        for (Argument& argument : arguments) {
            const Parameter& p = operation->parameters[named.size()];
            if (p.type == ArgumentType::Picture) argument = overlay;
            if (p.type == ArgumentType::Integer) argument = parseArgument(text(p.usual), p);
            named.push_back(p.type == ArgumentType::Picture ? Argument(std::string("/a, \"b\"/c.png")) : argument);
        }
        RecipeStep step = parseRecipeStep(callText(operation->name, named));
        if (step.prepare)
            step.prepare([&](const QString& path) {
                EXPECT_EQ(path, "/a, \"b\"/c.png");
                return overlay;
            });
        cBitFilter filter = filterOf(picture);
        operation->call(filter, arguments);
        EXPECT_TRUE(sameBits(filter.bits(), after(step.job, picture))) << step.text.toStdString();
    }
}

TEST(StepText, NumbersKeepEveryBit)
{
    const auto readBack = [](double number) {
        return std::get<double>(parseArgument(argumentText(number), {"p", ArgumentType::Number}));
    };
    for (const double number : {0.1, 1.0 / 3, -0.0, 2.5, 1e300, 16777217.0}) EXPECT_EQ(number, readBack(number));
    for (const float single : {0.1f, 1.0f / 3, 16777213.0f / 3, 1e-40f, 3.4e38f})
        EXPECT_EQ(single, static_cast<float>(readBack(double(single))));
    EXPECT_EQ(argumentText(double(0.35f)), "0.35");
    EXPECT_EQ(callText("REPLACE", {0x0FFFFFFF, -1, 255}), "REPLACE(0x0fffffff,-1,255)");
    EXPECT_EQ(callText("Texturize", {std::string("two\nlines.png")}), "") << "no line can hold it";
}

TEST(StepText, ASelectionIsReadBackAsTheSame)
{
    const Region two = Region::rectangle(1, 1, 5, 5).combined(Region::rectangle(9, 3, 12, 30), Combine::Or);
    const Region star = Region::polygon(std::vector<std::int32_t>{3, 0, 30, 25, 0, 10, 28, 4});
    for (const Region& region : {Region::rectangle(2, 3, 7, 9), Region::ellipse(1, 2, 31, 26), two, star, Region()}) {
        const QString text = selectionText(region);
        cBitRegion selection;
        selection.Init(0, 0, 40, 30);
        selection.setRegion(Region::rectangle(0, 0, 9, 9));
        parseSelectionStep(text).select(selection, Bits(40, 30));
        EXPECT_TRUE(selection.Region() == region || (region.isEmpty() && selection.IsEmptyRegion()))
            << text.toStdString();
    }
    EXPECT_EQ(selectionText(two), "rects:1,1,5,3,1,3,5,5,9,3,12,5,9,5,12,30");
    EXPECT_TRUE(selectionText(Region::ellipse(1, 2, 31, 26)).startsWith("ellipse:"));
}

TEST(StepText, AShellGivesTheArgumentBack)
{
    EXPECT_EQ(shellQuoted("x2"), "x2");
    EXPECT_EQ(shellQuoted("EMBOSS(10)"), "'EMBOSS(10)'");
    EXPECT_EQ(shellQuoted("it's $HOME"), "'it'\\''s $HOME'");
    EXPECT_EQ(shellQuoted(""), "''");
}

TEST(Recipes, ARecipeIsItsStepsInOrder)
{
    const QString text =
        "\uFEFFvelara recipe 1\r\n\r\n# people\n  --select rect:1,2,9,8 \n\tx2\nUNDO\n--select=none\nCROP\n";
    const Recipe recipe = Recipe::parse(text, {});
    QStringList texts;
    for (const RecipeStep& step : recipe.steps) texts << step.text;
    EXPECT_EQ(texts.join('|'), "--select rect:1,2,9,8|x2|UNDO|--select none|CROP");
    EXPECT_EQ(recipe.steps[1].goesBack(), GoesBack::WhenRepeated);
    EXPECT_EQ(recipe.steps[2].goesBack(), GoesBack::Always);
    EXPECT_EQ(recipeText({"# a", "x2"}), "velara recipe 1\n# a\nx2\n");
}

TEST(Recipes, AFaultIsToldWithItsLine)
{
    const std::pair<const char*, const char*> kCases[] = {
        {"", "line 1: a recipe begins with \"velara recipe 1\""},
        {"INVERT\n", "line 1: a recipe begins with"},
        {"velara recipe 1.0\n", "line 1: a recipe begins with"},
        {"velara recipe 0\n", "line 1: a recipe begins with"},
        {"velara recipe 2\nNEWWORD", "line 1: the recipe is of version 2, and this program knows those up to 1"},
        {"velara recipe 1\n\nINVRET",
         "line 3: \"INVRET\" is neither a command word nor an operation; did you mean INVERT?"},
        {"velara recipe 1\nEMBOSS(ten)", "line 2: EMBOSS(ten): Weight has to be a whole number"},
        {"velara recipe 1\nSAVEAS", "line 2: SAVEAS: this word opens a window"},
        {"velara recipe 1\nx2 x3", "line 2: \"x2 x3\" is neither"},
        {"velara recipe 1\n--selected 1", "line 2: --selected is no step; of the options only --select SHAPE is"},
        {"velara recipe 1\n--web Optimal", "line 2: --web is no step"},
        {"velara recipe 1\n--select rect:1,2,3", "line 2: --select rect:1,2,3: after it come"},
        {"velara recipe 1\n--select rects:1,2,3,4,5", "l,t,r,b of each rectangle"},
        {"velara recipe 1\n--select rects:4,4,1,1", "there is no pixel in it"},
    };
    for (const auto& [text, wanted] : kCases) {
        const std::string told = faultOf([&] { Recipe::parse(text, {}); });
        EXPECT_NE(told.find(wanted), std::string::npos) << text << "\n" << told;
    }
}

struct RecipeFile : FolderTest {};

TEST_F(RecipeFile, PicturesAreLookedForBesideIt)
{
    const Recipe recipe = Recipe::read(put("a.recipe", "velara recipe 1\nTexturize(b.png)\nTexturize(/c.png)\n"));
    QStringList asked;
    for (const RecipeStep& step : recipe.steps)
        step.prepare([&](const QString& name) {
            asked << name;
            return Bits(2, 2);
        });
    EXPECT_EQ(asked, QStringList({path("b.png"), "/c.png"}));
    for (const QString& name : {path("none"), folder.path()})
        EXPECT_NE(faultOf([&] { Recipe::read(name); }).find(name.toStdString()), std::string::npos);
}

} // namespace
} // namespace velara
