// A change on a draft: what reaches the document, and when.
#include "document/Draft.h"
#include "document/resizing.h"
#include "support/freeMemory.h"
#include "support/pictures.h"
#include <QTemporaryDir>

namespace velara {
namespace {

struct DraftTest : ::testing::Test {
    QTemporaryDir folder;
    Document document{folder.path(), 1};
    cBitFilter engine;
    const Bits before = randomBits(8, 6, 1), other = randomBits(8, 6, 2);

    void SetUp() override
    {
        document.takePicture(before);
        document.SaveUndoBits();
        document.Region.setRegion(Region::rectangle(1, 1, 4, 4));
    }
    Draft draft() { return Draft(document, document.bits(), engine, After::Step); }
    static Region selected(int right) { return Region::rectangle(0, 0, right, 2); }
};

TEST_F(DraftTest, TheDocumentIsUntouchedUntilTheResultIsTaken)
{
    Draft change = draft();
    change.attempt([&](Document& d, cBitFilter& f) {
        EXPECT_EQ(Region::rectangle(1, 1, 4, 4), f.BitsRegion());
        d.setBits(other);
        d.Region.setRegion(selected(3));
    });
    EXPECT_TRUE(sameBits(before, document.bits()));
    EXPECT_FALSE(document.Changed);
    document.Zoomed = true;
    change.take();
    EXPECT_TRUE(sameBits(other, document.bits()));
    EXPECT_EQ(selected(3), document.Region.Region());
    EXPECT_EQ(2, document.undo.UndoStep());
    EXPECT_TRUE(document.Changed);
    EXPECT_FALSE(document.Zoomed);
    change.handTo(engine, false);
    EXPECT_TRUE(engine.bits().isNull()) << "it holds another document";
    EXPECT_TRUE(document.wouldBeLost());
    document.UndoBits(engine);
    EXPECT_FALSE(document.wouldBeLost()) << "the first state is not a change";
}

TEST_F(DraftTest, WhatTheUserSelectsMeanwhileStaysUnlessTheJobTouchesTheSelection)
{
    for (const bool reshapes : {false, true}) {
        document.Region.setRegion(selected(2));
        Draft change = draft();
        document.Region.setRegion(selected(5));
        change.attempt([&](Document& d, cBitFilter&) { reshapes ? d.takePicture(other) : d.setBits(other); });
        change.take();
        EXPECT_EQ(reshapes ? Region() : selected(5), document.Region.Region());
    }
}

TEST_F(DraftTest, AnyStepInBetweenMakesItUnwanted)
{
    const auto wantedAfter = [&](auto meanwhile) {
        Draft change = draft();
        meanwhile();
        return change.wanted();
    };
    EXPECT_TRUE(wantedAfter([] {}));
    EXPECT_TRUE(wantedAfter([&] { document.Region.setRegion(selected(2)); }));
    EXPECT_FALSE(wantedAfter([&] { document.commit(); }));
    EXPECT_FALSE(wantedAfter([&] { document.UndoBits(engine); }));
    EXPECT_FALSE(wantedAfter([&] { document.RedoBits(engine); }));
    const DocumentHandle handle = document.handle(), same = document.handle();
    EXPECT_TRUE(handle == same);
    EXPECT_FALSE(wantedAfter([&] { document.retire(); }));
    EXPECT_EQ(nullptr, handle.get());
    EXPECT_TRUE(handle == same);
    EXPECT_FALSE(handle == DocumentHandle());
}

TEST_F(DraftTest, AJobThatNeedsTooMuchMemoryFailsWithBothNumbersAndChangesNothing)
{
    const FreeMemory little(20'000'000);
    Draft change = draft();
    const Outcome outcome = change.attempt([](Document& d, cBitFilter& f) { resizeImage(d, f, 2001, 1998, false); });
    EXPECT_EQ(Outcome::Failed, outcome.kind);
    EXPECT_EQ("it needs 16 MB of memory, more than half of the 20 MB that are free", outcome.reason.toStdString());
    EXPECT_TRUE(sameBits(before, document.bits()));
    const Bits afterIt(2002, 1998); // the budget ended with the job
}

TEST_F(DraftTest, RandomNumbersGoOnFromJobToJob)
{
    const auto noise = [&] {
        document.takePicture(before);
        Draft change = draft();
        change.attempt([](Document& d, cBitFilter& f) { d.setBits(f.NOISE(50, true)); });
        change.take();
        change.handTo(engine, true);
        return document.bits();
    };
    const Bits first = noise();
    EXPECT_FALSE(sameBits(first, noise()));
}

} // namespace
} // namespace velara
