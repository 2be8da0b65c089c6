// States that are kept as the tiles in which they differ from the state before them.
#include "document/recovery/Leftover.h"
#include "document/undo/UndoStore.h"
#include "support/files.h"
#include "support/freeMemory.h"
#include "support/fullDisk.h"
#include "support/pictures.h"
#include "support/seed.h"
#include <deque>
#include <random>
#include <unistd.h>

namespace velara {
namespace {

/// Small pictures in many small tiles.
struct TilesTest : FolderTest {
    const TileRules usual = std::exchange(UndoStore::tileRules, {.smallest = 0, .side = 8, .share = 4, .most = 6});
    UndoStore store{folder.path(), 3};
    std::vector<Bits> pictures{randomBits(90, 60, 1)};

    ~TilesTest() override { UndoStore::tileRules = usual; }
    QStringList states() const { return FolderTest::files().filter(".dat"); }
    qint64 wholeSize() const { return 40 + qint64(pictures[0].sizeInBytes()); }
    bool isTiles(int index) const { return content(states()[index]).startsWith("VeluTile"); }
    /// So many states, a stroke each.
    void stroke(int count)
    {
        if (pictures.size() == 1) store.save(pictures[0], "0");
        for (int i = 0; i < count; ++i) {
            pictures.push_back(pictures.back());
            drawStroke(pictures.back(), unsigned(pictures.size()));
            store.save(pictures.back(), QString::number(pictures.size() - 1));
        }
        ASSERT_TRUE(store.stands());
    }
    /// Goes back over all that can be had, the last of which is that picture.
    void expectBack(int first, int last, bool passedOver = false)
    {
        for (int i = first; i >= last; --i) ASSERT_TRUE(sameBits(pictures[i], store.undo().value_or(Bits()))) << i;
        EXPECT_FALSE(store.undo());
        EXPECT_EQ(store.passedOver(), passedOver);
    }
};

TEST_F(TilesTest, AStrokeTakesItsTilesAndTheRestStaysInTheLayoutOfWholePictures)
{
    stroke(3);
    EXPECT_EQ(content("b000300.dat").size(), wholeSize());
    for (int i = 1; i <= 3; ++i) {
        EXPECT_TRUE(isTiles(i));
        EXPECT_LT(content(states()[i]).size(), 60 + 6 * (4 + 8 * 8 * 4)) << "a stroke lies in at most six tiles";
    }
    store.save(pictures.back());
    ASSERT_TRUE(store.stands());
    EXPECT_EQ(content("b000304.dat").size(), 56) << "nothing has changed";
    store.save(randomBits(90, 60, 9)); // all of it differs
    store.save(randomBits(60, 90, 9)); // the same number of bytes
    ASSERT_TRUE(store.stands());
    EXPECT_EQ(content("b000305.dat").size(), wholeSize());
    EXPECT_EQ(content("b000306.dat").size(), wholeSize());
    UndoStore::tileRules.smallest = std::size_t(wholeSize());
    UndoStore small(folder.path(), 4);
    for (int i = 0; i < 2; ++i) small.save(pictures[i]);
    ASSERT_TRUE(small.stands());
    EXPECT_EQ(content("b000401.dat").size(), wholeSize()) << "a small picture is kept whole";
}

TEST_F(TilesTest, TilesRestOnAPictureThatWasWrittenInParts)
{
    pictures = {randomBits(2000, 1500, 1), randomBits(2000, 1500, 2)}; // all differs, which shows in the first rows
    for (const Bits& each : pictures) store.save(each, "whole");
    ASSERT_TRUE(store.stands());
    stroke(1);
    EXPECT_FALSE(isTiles(1));
    EXPECT_TRUE(isTiles(2));
    expectBack(1, 0);
}

TEST_F(TilesTest, WhatStatesRestOnStaysAsLongAsTheyNeedIt)
{
    int wholes = 0;
    for (int i = 0; i < 60; ++i) {
        stroke(1);
        wholes += !isTiles(int(states().filter("b00030").size()) - 1);
        const qsizetype ground = states().size() - states().filter("b00030").size();
        EXPECT_LE(ground, 7) << "as many as rest on a whole one";
    }
    EXPECT_EQ(wholes, 60 / 7) << "six rest on each";
    expectBack(59, 51);
    for (int i = 52; i <= 60; ++i) ASSERT_TRUE(sameBits(pictures[i], store.redo().value())) << i;
    for (int i = 0; i < 10; ++i) store.save(randomBits(90, 60, unsigned(i)));
    ASSERT_TRUE(store.stands());
    EXPECT_EQ(states().size(), 10) << "no tiles, no ground";
    stroke(3);
    store.deleteSeries();
    EXPECT_TRUE(FolderTest::files().isEmpty());
}

TEST_F(TilesTest, TheShareOfThePictureIsTheMostThatTilesTake)
{
    UndoStore::tileRules.most = 1000;
    UndoStore many(folder.path(), 4);
    Bits bits = pictures[0];
    qint64 sum = 0;
    for (int i = 0; i < 10; ++i) {
        for (int j = 0; j < 4; ++j) drawStroke(bits, unsigned(10 * i + j));
        many.save(bits);
        ASSERT_TRUE(many.stands());
        const qint64 size = content(QString("b00040%1.dat").arg(i)).size();
        sum = size == wholeSize() ? 0 : sum + size;
        EXPECT_LE(sum, wholeSize() / 4) << i;
    }
}

TEST_F(TilesTest, WhatIsDamagedIsPassedOverAndNothingNewRestsOnIt)
{
    const std::pair<const char*, std::function<void(QByteArray&)>> kCases[] = {
        {"one bit of a pixel", [](QByteArray& bytes) { bytes[bytes.size() - 9] = char(bytes[bytes.size() - 9] ^ 1); }},
        {"the number of a tile", [](QByteArray& bytes) { bytes[56] = char(bytes[56] ^ 1); }},
        {"what it is over", [](QByteArray& bytes) { bytes[33] = char(bytes[33] ^ 1); }},
        {"cut off", [](QByteArray& bytes) { bytes.chop(1); }},
        {"too long", [](QByteArray& bytes) { bytes.append('x'); }},
        {"a tile beyond the picture", [](QByteArray& bytes) { bytes.replace(56, 4, "\xff\xff\xff\xff"); }},
        {"more tiles than there are", [](QByteArray& bytes) { bytes.replace(24, 4, "\xff\xff\xff\xff"); }},
        {"no side", [](QByteArray& bytes) { bytes.replace(20, 4, QByteArray(4, '\0')); }},
        {"a header alone", [](QByteArray& bytes) { bytes.truncate(30); }},
    };
    stroke(4);
    const QByteArray good = content("b000302.dat");
    for (const auto& [what, damage] : kCases) {
        SCOPED_TRACE(what);
        QByteArray bytes = good;
        damage(bytes);
        put("b000302.dat", bytes);
        expectBack(1, 0, false); // over 3 and 2
        ASSERT_TRUE(sameBits(pictures[1], store.redo().value()));
        EXPECT_FALSE(store.redo()) << "those after it rest on it";
        put("b000302.dat", good);
        for (int i = 2; i <= 4; ++i) ASSERT_TRUE(sameBits(pictures[i], store.redo().value())) << i;
    }
    QFile::remove(path("b000300.dat"));
    EXPECT_FALSE(store.undo()) << "all rest on it";
    stroke(1);
    EXPECT_FALSE(isTiles(4)) << "of five files";
    stroke(1);
    expectBack(5, 5, false);
}

TEST_F(TilesTest, AnyWorkGoesBackToTheSameBytes)
{
    struct State {
        Bits bits;
        int number;
    };
    std::mt19937 random(seedOf(11));
    const auto below = [&](int most) { return int(random() % unsigned(most)); };
    std::deque<State> model;
    int shown = -1, number = 0, tiles = 0;
    const auto save = [&](const Bits& bits) {
        model.resize(std::size_t(shown + 1));
        model.push_back({bits, ++number});
        if (model.size() > UndoStore::kLimit) model.pop_front();
        shown = int(model.size()) - 1;
        store.save(bits);
    };
    save(randomBits(90, 60, 1));
    std::optional<FullDisk> full;
    for (int i = 0; i < 3000; ++i) {
        SCOPED_TRACE(i);
        const int what = below(20), state = below(int(model.size()));
        Bits bits = model[std::size_t(shown)].bits;
        if (what < 9) {
            for (int strokes = below(4); strokes >= 0; --strokes) drawStroke(bits, random());
            save(bits);
        } else if (what < 11) {
            save(randomBits(below(8) ? bits.width() : 60 + below(60), bits.height(), random()));
        } else if (what < 14) {
            const auto found = store.stateLater(model[std::size_t(state)].number)();
            ASSERT_TRUE(found);
            ASSERT_TRUE(sameBits(model[std::size_t(state)].bits, found->picture));
            store.moveTo(*found);
            shown = state;
        } else if (what < 19) {
            const bool back = what < 17;
            const auto found = back ? store.undo() : store.redo();
            ASSERT_EQ(bool(found), back ? shown > 0 : shown + 1 < int(model.size()));
            if (!found) continue;
            shown += back ? -1 : 1;
            ASSERT_TRUE(sameBits(model[std::size_t(shown)].bits, *found));
        } else if (!full) {
            store.stands();
            full.emplace(rlim_t(below(2) ? 3000 : 0)); // tiles have room, or nothing
        } else {
            store.stands();
            full.reset();
        }
        ASSERT_EQ(store.UndoStep(), shown + 1);
        ASSERT_EQ(store.UndoTop(), int(model.size()));
        if (i % 50 != 0) continue;
        store.stands();
        for (int at = 0; at < states().size(); ++at) tiles += isTiles(at);
    }
    EXPECT_GT(tiles, 100) << "it was about them";
}

// --- After the program died

/// Thirteen states, the last but one of which is shown. Three are ground of the first four; the fifth is whole.
struct LeftTiles : TilesTest {
    LeftTiles()
    {
        store.willDescribe({.isUnsaved = true});
        stroke(12);
        store.undo();
        store.describe({.isUnsaved = true});
        EXPECT_TRUE(store.stands());
    }
    QString in(const char* name) const { return left.filePath(name); }
    /// Leaves the present files, which have other identities than the record says unless they are moved.
    void leave(bool isCopied)
    {
        for (const QString& name : QDir(left.path()).entryList(QDir::Files)) QFile::remove(left.filePath(name));
        for (const QString& name : files()) {
            if (name.endsWith(".lock")) continue;
            if (isCopied)
                QFile::copy(path(name), left.filePath(name));
            else
                ASSERT_EQ(0, ::link(path(name).toUtf8().constData(), left.filePath(name).toUtf8().constData()));
        }
    }
    void flip(const char* name) const
    {
        QByteArray bytes = fileBytes(in(name));
        QFile::remove(in(name)); // the series has it, too
        bytes[bytes.size() - 1] = char(bytes[bytes.size() - 1] ^ 1);
        putFile(in(name), bytes);
    }
    QTemporaryDir left;
};

TEST_F(LeftTiles, WhatRestsOnGoodFilesIsHadAndTheRestIsTold)
{
    ASSERT_EQ(states().filter("b00032").size(), 3);
    ASSERT_EQ(content("b000304.dat").size(), wholeSize());
    struct Case {
        const char* what;
        std::function<void(LeftTiles&)> damage;
        int shown;        // number of the state
        int oldest;       // that can be gone back to
        const char* told; // at the beginning
        bool isCopied = true;
    };
    const Case kCases[] = {
        {"nothing", [](LeftTiles&) {}, 11, 3, "", false},
        {"a copy", [](LeftTiles&) {}, 11, 3, ""},
        {"killed as the oldest became ground",
         [](LeftTiles& t) {
             QFile::rename(t.in("b000300.dat"), t.in("b000323.dat"));
             for (const char* to : {"b000300.dat", "b000301.dat"}) {
                 const QString from = QString(to).replace(7 - 1, 1, QString::number(to[6] - '0' + 1));
                 QFile::rename(t.left.filePath(from), t.in(to));
             }
         },
         11, 4, "", false},
        {"the tiles shown are damaged", [](LeftTiles& t) { t.flip("b000308.dat"); }, 10, 3, "The last change"},
        {"the whole picture beneath is missing", [](LeftTiles& t) { QFile::remove(t.in("b000304.dat")); }, 6, 3,
         "The last change"},
        {"it is damaged", [](LeftTiles& t) { t.flip("b000304.dat"); }, 6, 3, "The last change"},
        {"ground is missing", [](LeftTiles& t) { QFile::remove(t.in("b000321.dat")); }, 11, 7, "Not all of its steps"},
        {"the lowest ground is damaged", [](LeftTiles& t) { t.flip("b000320.dat"); }, 11, 7, ""},
        {"record missing", [](LeftTiles& t) { QFile::remove(t.in("b0003.rec")); }, 12, 3, "Its record is missing"},
        {"that and a state",
         [](LeftTiles& t) {
             QFile::remove(t.in("b0003.rec"));
             QFile::remove(t.in("b000306.dat"));
         },
         8, 3, "Its record is missing"},
    };
    for (const Case& each : kCases) {
        SCOPED_TRACE(each.what);
        leave(each.isCopied);
        each.damage(*this);
        const auto found = Leftover::find(left.path());
        ASSERT_EQ(found.size(), 1u);
        EXPECT_TRUE(sameBits(pictures[each.shown], found[0]->read()));
        const std::string told = found[0]->trouble().toStdString();
        EXPECT_TRUE(*each.told ? told.starts_with(each.told) : told.empty()) << told;
        UndoStore heir(found[0]->inherit());
        for (int i = each.shown - 1; i >= each.oldest; --i)
            ASSERT_TRUE(sameBits(pictures[i], heir.undo().value_or(Bits()))) << i;
        EXPECT_FALSE(heir.undo());
        for (int i = each.oldest + 1; i <= each.shown; ++i)
            ASSERT_TRUE(sameBits(pictures[i], heir.redo().value_or(Bits()))) << i;
        for (int i = 20; i < 23; ++i) heir.save(randomBits(90, 60, unsigned(i)));
        heir.undo();
        EXPECT_TRUE(sameBits(randomBits(90, 60, 20), heir.undo().value_or(Bits())));
        EXPECT_TRUE(sameBits(pictures[each.shown], heir.undo().value_or(Bits()))) << "as before";
        heir.deleteSeries();
        EXPECT_TRUE(QDir(left.path()).isEmpty());
    }
}

} // namespace
} // namespace velara
