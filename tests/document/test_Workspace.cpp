// What a workspace promises, whatever comes in whichever order: each document's changes are done in the order in which
// they came, each on the result of the one before; a thread never sees a picture half written. Under make test-tsan
// this is what holds the rules of pixels/Bits.h against the code.
#include "support/RecordingFrame.h"
#include "support/pictures.h"
#include "support/seed.h"
#include <QCoreApplication>
#include <random>

namespace velara {
namespace {

/// A document of one colour, and the colours of its series.
struct Model {
    DocumentHandle document;
    std::vector<int> series;
    int shown = 0;

    void push(int colour)
    {
        series.resize(std::size_t(shown) + 1);
        series.push_back(colour);
        if (series.size() > UndoStore::kLimit) series.erase(series.begin());
        shown = int(series.size()) - 1;
    }
    void expectShown() const
    {
        const int c = series[std::size_t(shown)];
        const Bits wanted = flatBits(document->PictureWidth(), document->PictureHeight(), std::uint8_t(c),
                                     std::uint8_t(c), std::uint8_t(c), std::uint8_t(c));
        EXPECT_TRUE(sameBits(wanted, document->bits()));
    }
};

int colourAfter(int colour, int by) { return (3 * colour + by) & 255; }

/// Every pixel from the one before it in the draft: one that is torn spreads.
void recolour(Bits& bits, int by)
{
    const Bits before = bits;
    for (int y = 0; y < bits.height(); ++y) {
        const Pixel* from = before.row(y);
        Pixel* to = bits.row(y);
        for (int x = 0; x < bits.width(); ++x)
            for (int c = 0; c < 4; ++c) to[x].c[c] = std::uint8_t(colourAfter(from[x].c[c], by));
    }
}

TEST(WorkspaceTest, WhateverComesTogetherEachDocumentHasItsOwnSteps)
{
    RecordingFrame frame;
    Workspace& workspace = frame.workspace_;
    std::mt19937 random(seedOf(21));
    const auto below = [&](int most) { return int(random() % unsigned(most)); };
    std::vector<std::shared_ptr<Model>> models(3);
    int done = 0, cancelled = 0, steps = 0;
    for (int action = 0; action < 3000 && !testing::Test::HasFailure(); ++action) {
        std::shared_ptr<Model>& own = models[std::size_t(below(3))];
        if (!own) { // the second is of a size that the pool of blocks keeps
            own = std::make_shared<Model>();
            own->series = {below(256)};
            const auto c = std::uint8_t(own->series[0]);
            own->document =
                workspace.add(own == models[1] ? flatBits(600, 450, c, c, c, c) : flatBits(9, 7, c, c, c, c));
        }
        const DocumentHandle document = own->document;
        switch (below(action % 500 < 250 ? 12 : 16)) { // at times it comes faster than it is done
        case 0:
        case 1:
        case 2: {
            const int by = below(256);
            const auto fails = below(8) == 0;
            workspace.change(document, {[by, fails](Document& draft, cBitFilter& filter) {
                                 recolour(draft.edit(), by);
                                 filter.Progress(50);
                                 if (fails) throw std::runtime_error("as it happens");
                             }},
                             [&, own, by](const Outcome& outcome) {
                                 cancelled += outcome.kind == Outcome::Cancelled;
                                 if (!outcome) return;
                                 ++done;
                                 own->push(colourAfter(own->series[std::size_t(own->shown)], by));
                                 own->expectShown();
                             });
            break;
        }
        case 3:
        case 4: {
            const bool back = below(3) > 0;
            workspace.step(document, back, [&, own, back](const Outcome& outcome) {
                if (!outcome) return;
                ++steps;
                own->shown += back ? -1 : 1;
                own->expectShown();
            });
            break;
        }
        case 5:
            if (below(3) == 0) workspace.cancel(document);
            break;
        case 6:
            if (workspace.isBusy(document)) break; // as no tool paints then
            recolour(document->edit(), 5);
            own->push(colourAfter(own->series[std::size_t(own->shown)], 5));
            workspace.finish(document);
            break;
        case 7:
            if (below(10) == 0) {
                workspace.close(document);
                own.reset();
            }
            break;
        case 8:
            workspace.wait(document);
            break;
        default:
            QCoreApplication::processEvents();
        }
    }
    workspace.wait();
    for (const auto& model : models)
        if (model && model->document) model->expectShown();
    EXPECT_TRUE(done > 200 && cancelled > 5 && steps > 50) << done << ' ' << cancelled << ' ' << steps;
}

} // namespace
} // namespace velara
