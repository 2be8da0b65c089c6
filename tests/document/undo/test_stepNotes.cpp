// What was done to a document, as listed: with the states that stand, the one shown, and small pictures.
#include "document/Document.h"
#include "support/files.h"
#include "support/pictures.h"

namespace velara {
namespace {

struct StepNotesTest : FolderTest {
    UndoStore store{folder.path(), 3};

    static Bits picture(int i) { return randomBits(5 + i % 3, 4, 100 + static_cast<std::uint32_t>(i)); }
    void save(int i) { store.save(picture(i), StepNote{.name = QString::number(i), .small = picture(i)}); }
    /// "0 (1) [2]": what doesn't stand is in brackets, what is shown in square ones.
    std::string listed() const
    {
        const UndoStore::Listed all = store.listed();
        QStringList texts;
        for (std::size_t i = 0; i < all.notes.size(); ++i) {
            const QString name = all.notes[i].name;
            texts << (int(i) == all.shown ? '[' + name + ']' : all.stands[i] ? name : '(' + name + ')');
        }
        return texts.join(' ').toStdString();
    }
    /// Goes to the state of that name.
    bool goTo(const QString& name)
    {
        const auto all = store.listed();
        const auto note = std::ranges::find(all.notes, name, &StepNote::name);
        const auto found = store.stateLater(note->number)();
        if (!found) return false;
        EXPECT_TRUE(sameBits(picture(name.toInt()), found->picture));
        store.moveTo(*found);
        return true;
    }
};

TEST_F(StepNotesTest, FollowTheSeriesWhereverItMoves)
{
    for (int i = 0; i < 4; ++i) {
        save(i);
        EXPECT_EQ(listed().back(), ']') << "at once";
    }
    EXPECT_EQ(listed(), "0 1 2 [3]");
    store.undo();
    store.undo();
    EXPECT_EQ(listed(), "0 [1] 2 3");
    EXPECT_TRUE(goTo("3"));
    EXPECT_EQ(listed(), "0 1 2 [3]");
    EXPECT_TRUE(goTo("0"));
    EXPECT_TRUE(goTo("1"));
    save(4);
    EXPECT_EQ(listed(), "0 1 [4]");
    store.stepBack(); // as a run of sizing words does
    save(5);
    EXPECT_EQ(listed(), "0 1 [5]");
}

TEST_F(StepNotesTest, WhatLeavesTheSeriesStaysListedWithoutItsPicture)
{
    for (int i = 0; i < 13; ++i) save(i);
    ASSERT_TRUE(store.stands());
    EXPECT_EQ(listed(), "(0) (1) (2) 3 4 5 6 7 8 9 10 11 [12]");
    EXPECT_FALSE(goTo("2"));
    EXPECT_TRUE(goTo("3"));
    EXPECT_EQ(store.UndoStep(), 1);
    for (const StepNote& note : store.listed().notes)
        EXPECT_EQ(note.small.isNull(), note.name.toInt() < 3) << note.name.toInt();
    save(13);
    EXPECT_EQ(listed(), "(0) (1) (2) 3 [13]");
}

TEST(SmallCopy, ShowsThePictureWhateverItsSize)
{
    const auto half = [](int width, int height) {
        return smallCopy(drawnBits(width, height, [&](int x, int) {
            return Pixel{{0, 0, std::uint8_t(2 * x < width ? 0 : 200), 0}};
        }));
    };
    for (const auto& [width, height] :
         {std::pair(3000, 2000), {48, 48}, {1, 1}, {2, 1}, {30000, 2}, {300, 4000}, {60, 31}}) {
        const Bits small = half(width, height);
        EXPECT_LE(std::max(small.width(), small.height()), StepNote::kSmallSide);
        EXPECT_EQ(small.at(small.width() - 1, small.height() - 1).c[2], width == 1 ? 0 : 200) << width;
        EXPECT_EQ(small.at(0, 0).c[2], 0) << width;
    }
    EXPECT_EQ(half(3000, 2000).height(), 32);
    EXPECT_TRUE(smallCopy(Bits()).isNull());
}

} // namespace
} // namespace velara
