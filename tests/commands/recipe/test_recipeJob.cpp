// A recipe as one change gives what its steps give one by one; and what was done to a document is a recipe of it.
#include "commands/recipe/recipeJob.h"
#include "pixels/RuntimeError.h"
#include "support/RecordingFrame.h"
#include "support/pictures.h"
#include "support/seed.h"
#include <QTemporaryDir>
#include <random>

namespace velara {
namespace {

struct RecipeJobTest : ::testing::Test {
    RecordingFrame frame;
    Workspace& workspace = frame.workspace_;
    const Bits picture = randomBits(40, 30, 3);

    /// A document to which the steps were done one after the other, as a person does them.
    DocumentHandle oneByOne(const std::vector<RecipeStep>& steps)
    {
        const DocumentHandle document = workspace.add(picture);
        workspace.engine().setRandomSeed(1);
        workspace.handOver(*document);
        for (const RecipeStep& step : steps) {
            if (step.kind == RecipeStep::Change)
                workspace.change(document, {step.job, step.after, step.text, step.text});
            if (step.kind == RecipeStep::Select) {
                step.select(document->Region, document->bits());
                workspace.handOver(*document);
            }
            if (step.kind == RecipeStep::Undo || step.kind == RecipeStep::Redo)
                workspace.step(document, step.kind == RecipeStep::Undo);
            workspace.wait();
        }
        return document;
    }
    Outcome atOnce(DocumentHandle& document, const QString& recipe)
    {
        document = workspace.add(picture);
        workspace.engine().setRandomSeed(1);
        workspace.handOver(*document);
        Outcome became;
        workspace.change(document, {recipeJob(Recipe::parse(recipe, {}).steps, frame.platform_)},
                         [&](const Outcome& outcome) { became = outcome; });
        workspace.wait();
        return became;
    }
    static QString some(std::mt19937& random)
    {
        static const char* const kLines[] = {"INVERT",
                                             "FLIPH",
                                             "N90",
                                             "x2",
                                             "2x",
                                             "ORIGINAL",
                                             "50",
                                             "UNDO",
                                             "REDO",
                                             "UNDO",
                                             "CROP",
                                             "REDO",
                                             "x2",
                                             "2x",
                                             "NOISE(30,false)",
                                             "EMBOSS(7)",
                                             "--select rect:2,1,12,9",
                                             "--select ellipse:0,0,14,12",
                                             "--select none"};
        return QString::fromLatin1(kLines[random() % std::size(kLines)]);
    }
};

TEST_F(RecipeJobTest, IsWhatItsStepsAreOneByOneAndTheHistoryIsARecipeOfThem)
{
    std::mt19937 random(seedOf(12));
    int compared = 0;
    for (int round = 0; round < 150 && !HasFailure(); ++round) {
        QStringList lines;
        for (int i = 0; i < 9; ++i) lines << some(random);
        SCOPED_TRACE(lines.join(' ').toStdString());
        DocumentHandle once;
        if (const Outcome outcome = atOnce(once, recipeText(lines)); !outcome) { // a step was of no use
            EXPECT_TRUE(sameBits(picture, once->bits()));
            EXPECT_EQ(once->undo.UndoTop(), 1);
            continue;
        }
        ++compared;
        EXPECT_EQ(once->undo.UndoTop(), 2) << "one undo step";
        const DocumentHandle stepwise = oneByOne(Recipe::parse(recipeText(lines), {}).steps);
        EXPECT_TRUE(sameBits(stepwise->bits(), once->bits()));
        if (lines.contains("NOISE(30,false)")) continue; // what was undone has used a random number, too
        const UndoStore::Listed listed = stepwise->undo.listed();
        const HistoryLines made = historyLines(std::span(listed.notes).subspan(1, std::size_t(listed.shown)),
                                               picture.width(), picture.height());
        DocumentHandle again;
        EXPECT_TRUE(atOnce(again, recipeText(made.lines)));
        EXPECT_TRUE(sameBits(stepwise->bits(), again->bits())) << made.lines.join(' ').toStdString();
        for (const DocumentHandle& document : {once, stepwise, again}) workspace.close(document);
    }
    EXPECT_GT(compared, 60);
}

TEST_F(RecipeJobTest, AFailureNamesItsStepAndProgressIsOfTheWhole)
{
    DocumentHandle document;
    const std::pair<const char*, const char*> kCases[] = {
        {"INVERT\nCROP", "CROP: Nothing selected"},
        {"--select rect:90,90,99,99", "--select rect:90,90,99,99: it lies outside of the picture, which is 40 by 30"},
        {"BitsResize(40000,2)", "BitsResize(40000,2): "},
        {"ApplyTexture(99,1)", "ApplyTexture(99,1): Index is unusable"},
        {"Texturize(/nowhere/t.png)", "Texturize(/nowhere/t.png): "},
    };
    for (const auto& [steps, reason] : kCases) {
        const Outcome outcome = atOnce(document, QStringLiteral("velara recipe 1\n") + steps);
        EXPECT_EQ(outcome.kind, Outcome::Failed);
        EXPECT_TRUE(outcome.reason.startsWith(reason)) << outcome.reason.toStdString();
        EXPECT_TRUE(sameBits(picture, document->bits()));
    }
    cBitFilter filter;
    Document draft({}, 0);
    draft.takePicture(picture);
    draft.handTo(filter);
    std::vector<int> told;
    filter.Progress = [&](int percent) {
        told.push_back(percent);
        if (percent >= 75) throw Cancelled();
    };
    const Job job =
        recipeJob(Recipe::parse("velara recipe 1\nINVERT\nEMBOSS(3)\nINVERT\nINVERT", {}).steps, frame.platform_);
    EXPECT_THROW(job(draft, filter), Cancelled);
    EXPECT_TRUE(std::ranges::is_sorted(told));
    EXPECT_EQ(told.back(), 75) << "three of four";
}

TEST(RecipeWords, AreThoseThatMeanTheSameElsewhere)
{
    const auto words = [](const char* lines) {
        return recipeWords(Recipe::parse(QStringLiteral("velara recipe 1\n") + lines, {}).steps).toStdString();
    };
    EXPECT_EQ(words("INVERT\nUNDO\nx2"), "INVERT\nUNDO\nx2");
    EXPECT_EQ(words("UNDO"), "");
    EXPECT_EQ(words("INVERT\nUNDO\nUNDO\nx2"), "");
    EXPECT_EQ(words("ORIGINAL\nUNDO"), "") << "it makes no step";
    EXPECT_EQ(words("Texturize(/a/b.png)"), "Texturize(/a/b.png)");
    EXPECT_EQ(words("Texturize(b.png)"), "");
    EXPECT_EQ(words("fTexturize(self,3,0)"), "fTexturize(self,3,0)");
}

} // namespace
} // namespace velara
