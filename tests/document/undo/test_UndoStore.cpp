#include "document/undo/UndoMark.h"
#include "document/undo/UndoStore.h"
#include "support/files.h"
#include "support/freeMemory.h"
#include "support/fullDisk.h"
#include "support/pictures.h"
#include <cstring>
#include <future>
#include <sys/wait.h>
#include <unistd.h>

namespace velara {
namespace {

struct UndoStoreTest : FolderTest {
    UndoStore store{folder.path(), 3};

    QStringList files() const { return FolderTest::files().filter(".dat"); }
    static Bits picture(int i) { return randomBits(5 + i % 3, 4, 100 + static_cast<std::uint32_t>(i)); }
    bool save(const Bits& bits)
    {
        store.save(bits);
        return store.stands();
    }
    void saveMany(int first, int count)
    {
        for (int i = first; i < first + count; ++i) store.save(picture(i));
        ASSERT_TRUE(store.stands());
    }
    void expectStep(bool back, const Bits& wanted, bool passedOver)
    {
        EXPECT_TRUE(back ? store.canUndo() : store.canRedo());
        EXPECT_TRUE(sameBits(wanted, (back ? store.undo() : store.redo()).value_or(Bits())));
        EXPECT_EQ(passedOver, store.passedOver());
    }
    void expectUndo(const Bits& wanted, bool passedOver = false) { expectStep(true, wanted, passedOver); }
    void expectRedo(const Bits& wanted, bool passedOver = false) { expectStep(false, wanted, passedOver); }
    void expectCounters(int step, int top) const
    {
        EXPECT_EQ(step, store.UndoStep());
        EXPECT_EQ(top, store.UndoTop());
    }
};

TEST_F(UndoStoreTest, AFileIsABitmapHeaderAndTheBlock)
{
    const Bits bits = randomBits(3, 2, 1);
    ASSERT_TRUE(save(bits));
    EXPECT_FALSE(store.canUndo()) << "there is nothing before it";
    const QByteArray header = QByteArray::fromHex("28000000 07000000 faffffff 0100 2000") + QByteArray(24, '\0');
    const QByteArray wanted =
        header + QByteArray(reinterpret_cast<const char*>(bits.data()), static_cast<int>(bits.sizeInBytes()));
    EXPECT_EQ(wanted, content("b000300.dat"));
}

TEST_F(UndoStoreTest, StepsBackAndForward)
{
    EXPECT_FALSE(store.undo()) << "no picture yet";
    saveMany(0, 1);
    EXPECT_FALSE(store.undo()) << "the first state has none before it";
    EXPECT_FALSE(store.redo());
    saveMany(1, 2);
    expectCounters(3, 3);
    expectUndo(picture(1));
    expectUndo(picture(0));
    EXPECT_FALSE(store.undo());
    expectCounters(1, 3);
    expectRedo(picture(1));
    expectCounters(2, 3);
    saveMany(7, 1); // an edit here drops the redo steps
    expectCounters(3, 3);
    EXPECT_FALSE(store.redo());
    expectUndo(picture(1));
    expectRedo(picture(7));
}

TEST_F(UndoStoreTest, StepsHaveTheNamesOfTheirChangesWhereverTheyMove)
{
    const auto names = [&] { return (store.undoName() + '|' + store.redoName()).toStdString(); };
    store.save(picture(0), "first");
    EXPECT_EQ(names(), "|") << "there is no way back";
    for (int i = 1; i < 14; ++i) {
        store.save(picture(i), QString::number(i));
        EXPECT_EQ(names(), std::to_string(i) + "|") << "at once";
    }
    for (int i = 13; i > 4; --i) ASSERT_TRUE(store.undo()) << i;
    EXPECT_EQ(names(), "|5") << "the oldest ones are gone";
    store.redo();
    EXPECT_EQ(names(), "5|6");
}

TEST_F(UndoStoreTest, TenSnapshotsStand)
{
    saveMany(0, 10);
    expectCounters(10, 10);
    EXPECT_EQ(10, files().size());
    saveMany(10, 3);
    expectCounters(10, 10);
    ASSERT_EQ(10, files().size());
    EXPECT_EQ("b000309.dat", files().last().toStdString());
    for (int i = 3; i < 13; ++i) // files of a full series are overwritten, and still have their own lengths
        EXPECT_EQ(40 + qint64(picture(i).sizeInBytes()), content(files()[i - 3]).size()) << i;
    for (int i = 11; i >= 3; --i) EXPECT_TRUE(sameBits(picture(i), store.undo().value())) << i;
    EXPECT_FALSE(store.undo());
    for (int i = 0; i < 5; ++i) ASSERT_TRUE(store.redo());
    saveMany(20, 1);
    EXPECT_EQ("b000306.dat", files().last().toStdString()) << "nothing stands above the new step";
}

TEST_F(UndoStoreTest, AnOlderLongerFileKeepsItsTail)
{
    const Bits large = randomBits(20, 20, 1), small = randomBits(2, 2, 2);
    put("b000300.dat", QByteArray(5000, 'x')); // from an earlier run
    ASSERT_TRUE(save(small));
    EXPECT_EQ(5000, content("b000300.dat").size());
    ASSERT_TRUE(save(large));
    EXPECT_TRUE(sameBits(small, store.undo().value()));
}

TEST_F(UndoStoreTest, WhatAnEarlierRunLeftIsNotRead)
{
    UndoStore other(folder.path(), 4);
    other.save(picture(0));
    ASSERT_TRUE(other.stands());
    QFile::rename(path("b000400.dat"), path("b000300.dat"));
    QFile::copy(path("b000300.dat"), path("b000301.dat"));
    QFile::copy(path("b000300.dat"), path("b0003-01.dat"));
    EXPECT_FALSE(store.undo());
    EXPECT_FALSE(store.redo());
    saveMany(1, 1);
    EXPECT_FALSE(store.undo());
    EXPECT_FALSE(store.redo());
}

TEST_F(UndoStoreTest, ADamagedStepChangesNothing)
{
    saveMany(0, 2);
    const QByteArray good = content("b000300.dat");
    const auto withWord = [&](int offset, std::int32_t word) {
        QByteArray bytes = good;
        std::memcpy(bytes.data() + offset, &word, sizeof word);
        return bytes;
    };
    const std::pair<const char*, QByteArray> kCases[] = {
        {"half a header", good.left(20)},
        {"one byte short", good.left(good.size() - 1)},
        {"another header size", withWord(0, 108)},
        {"16 bits a pixel", withWord(12, 1 | 16 << 16)},
        {"two planes", withWord(12, 2 | 32 << 16)},
        {"huge", withWord(4, INT32_MAX)},
        {"margin only", withWord(4, 4)},
        {"negative width", withWord(4, -9)},
        {"bottom up", withWord(8, 8)},
        {"the lowest height", withWord(8, INT32_MIN)},
    };
    for (const auto& [damage, bytes] : kCases) {
        put("b000300.dat", bytes);
        EXPECT_FALSE(store.undo()) << damage;
        expectCounters(2, 2);
    }
    QFile::remove(path("b000300.dat"));
    EXPECT_FALSE(store.undo()) << "missing";
    QDir(folder.path()).mkdir(QStringLiteral("b000300.dat"));
    EXPECT_FALSE(store.undo()) << "a folder";
    expectCounters(2, 2);
}

TEST_F(UndoStoreTest, AStepThatCannotBeWrittenStaysInMemory)
{
    std::string told;
    store.onFailure([&](const QString& reason) { told = reason.toStdString(); });
    saveMany(0, 3);
    ASSERT_TRUE(store.undo()); // the edit drops the redo steps, written or not
    const Bits first = randomBits(40, 40, 9), second = randomBits(40, 40, 10);
    {
        const FullDisk full(500);
        EXPECT_FALSE(save(first));
        expectCounters(3, 3);
        EXPECT_EQ(2, files().size()) << "no half-written file stays";
        EXPECT_FALSE(store.canRedo());
        EXPECT_TRUE(sameBits(picture(1), store.previous().value_or(Bits())));
        expectUndo(picture(1));
        expectRedo(first);
        saveMany(3, 1); // a snapshot that fits is written to disk, above one that doesn't
        EXPECT_FALSE(save(second));
        expectUndo(picture(3));
        expectUndo(first);
        expectUndo(picture(1));
        for (const Bits& bits : {first, picture(3), second}) expectRedo(bits);
        EXPECT_EQ("", told) << "each step can be undone";
    }
    saveMany(4, 1); // there is room again, also for those in memory
    EXPECT_EQ(6, files().size());
    expectUndo(second);
    EXPECT_TRUE(store.mayHaveChanged());
}

TEST_F(UndoStoreTest, WhatMemoryCannotKeepEitherIsToldAndPassedOver)
{
    std::vector<std::string> told;
    store.onFailure([&](const QString& reason) { told.push_back(reason.toStdString()); });
    saveMany(0, 2);
    const Bits large = randomBits(40, 40, 9), larger = randomBits(50, 40, 10), last = randomBits(60, 40, 11);
    const FullDisk full(500);
    EXPECT_FALSE(save(large));
    {
        const FreeMemory twoOfThem(std::int64_t(large.sizeInBytes() + larger.sizeInBytes()));
        EXPECT_FALSE(save(larger));
        EXPECT_FALSE(save(last));
        EXPECT_TRUE(told.empty());
    }
    expectCounters(5, 5);
    const FreeMemory one(std::int64_t(last.sizeInBytes()));
    EXPECT_FALSE(save(large)); // the oldest two are dropped
    EXPECT_TRUE(told.empty()) << "what was shown before stays";
    expectUndo(last);
    expectUndo(picture(1), true);
    expectRedo(last, true);
    const FreeMemory none(0);
    saveMany(5, 1);
    EXPECT_EQ(std::vector<std::string>{"no room in the Temp folder"}, told);
    EXPECT_FALSE(store.previous());
    expectCounters(3, 3);
    expectUndo(picture(1), true);
    expectUndo(picture(0));
}

TEST_F(UndoStoreTest, ALostFirstSnapshotCountsAsAChange)
{
    EXPECT_FALSE(UndoStore(QString(), 1).mayHaveChanged());
    {
        const FullDisk full(100);
        EXPECT_FALSE(save(picture(0)));
        EXPECT_FALSE(store.undo());
        EXPECT_TRUE(store.mayHaveChanged());
    }
    saveMany(1, 1);
    expectUndo(picture(0));
}

TEST_F(UndoStoreTest, FewSnapshotsWaitForTheDisk)
{
    std::vector<Bits> pictures;
    for (int i = 0; i < 8; ++i) pictures.push_back(Bits(2000, 2000));
    std::vector<std::weak_ptr<const std::uint8_t[]>> blocks;
    for (Bits& bits : pictures) {
        blocks.push_back(bits.block());
        store.save(std::exchange(bits, Bits()));
        EXPECT_TRUE(blocks.size() < 3 || blocks[blocks.size() - 3].expired()) << blocks.size();
    }
}

TEST_F(UndoStoreTest, AFileThatWentAwayIsPassedOver)
{
    saveMany(0, 4);
    QFile::remove(path("b000301.dat"));
    expectUndo(picture(2));
    expectUndo(picture(0), true);
    expectRedo(picture(2), true);
    QDir(folder.path()).removeRecursively();
    EXPECT_FALSE(store.undo());
    expectCounters(3, 4);
    EXPECT_TRUE(save(picture(7))) << "the folder is made anew";
    const QFile::Permissions owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(owner | QFile::ExeOwner | QFile::ExeUser, QFile::permissions(folder.path())) << "for its owner alone";
    EXPECT_EQ(owner, QFile::permissions(path("b000303.dat")));
}

TEST_F(UndoStoreTest, SnapshotsAreWrittenInOrderWhileTheOwnerGoesOn)
{
    const Bits large = randomBits(2000, 2000, 1);
    for (int i = 0; i < 30; ++i) {
        store.save(i % 3 ? picture(i) : large);
        if (i == 20) expectUndo(picture(19));
    }
    expectCounters(10, 10);
    for (int i = 28; i >= 21; --i) EXPECT_TRUE(sameBits(i % 3 ? picture(i) : large, store.undo().value())) << i;
    EXPECT_TRUE(sameBits(picture(19), store.undo().value())) << "20 was undone and cut";
}

TEST_F(UndoStoreTest, WhoLetsASeriesGoDoesNotWaitForTheDisk)
{
    saveMany(0, 2);
    std::promise<void> goesOn;
    store.onUnrecorded([wait = goesOn.get_future().share()](const QString&) { wait.wait(); }); // a disk that is slow
    QDir(folder.path()).mkdir("b0003.rec");
    store.describe({.isUnsaved = true});
    store.save(picture(2));
    const auto remove = store.deleteSeriesLater();
    expectCounters(0, 0);
    EXPECT_FALSE(store.mayHaveChanged());
    EXPECT_EQ(3, store.number());
    EXPECT_NE(QStringList(), files());
    QDir(folder.path()).rmdir("b0003.rec");
    goesOn.set_value();
    remove();
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(UndoStoreTest, LivingProgramsNeverShareANumber)
{
    int number = 3;
    const auto next = [&] { return number++; };
    UndoStore second(folder.path(), next); // the lock is the open file's: this acts like another program
    EXPECT_EQ(4, second.number());
    saveMany(0, 2);
    second.save(picture(5));
    {
        UndoStore usurper(folder.path(), 3);
        usurper.save(picture(6));
        EXPECT_FALSE(usurper.stands());
        usurper.deleteSeries();
    }
    EXPECT_EQ(3, files().size());
    second.deleteSeries();
    EXPECT_EQ(QStringList({"b000300.dat", "b000301.dat"}), files());
    expectUndo(picture(0));

    QFile::remove(path("b0003.lock")); // removed: another program can take the number now, and then it is not ours
    UndoStore heir(folder.path(), 3);
    store.save(picture(8));
    EXPECT_FALSE(store.stands());
    store.deleteSeries();
    EXPECT_EQ(2, files().size());
    heir.deleteSeries();
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(UndoStoreTest, AProgramThatDiedHoldsNothing)
{
    const pid_t child = fork();
    if (child == 0) {
        UndoMark mark;
        if (mark.take(folder.path(), 8) != UndoMark::Answer::Ours) _exit(1);
        kill(getpid(), SIGKILL);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_TRUE(QFile::exists(path("b0008.lock")));
    EXPECT_EQ(UndoMark::Answer::Ours, UndoMark().take(folder.path(), 8));
    EXPECT_EQ(UndoMark::Answer::Taken, UndoMark().take(folder.path(), 3));
    EXPECT_EQ(UndoMark::Answer::Impossible, UndoMark().take(path("nowhere"), 3));
}

TEST_F(UndoStoreTest, ALinkInThePlaceOfAFileIsNotFollowed)
{
    QTemporaryDir elsewhere;
    const QString victim = elsewhere.filePath(QStringLiteral("victim"));
    saveMany(0, 1);
    QFile::rename(path("b000300.dat"), victim);
    const QByteArray before = fileBytes(victim);
    QFile::link(victim, path("b000300.dat"));
    saveMany(1, 1);
    EXPECT_FALSE(store.undo()) << "not read through a link";
    QFile::link(victim, path("b000302.dat"));
    saveMany(2, 1);
    ASSERT_EQ(0, ::link(victim.toUtf8().constData(), path("b000303.dat").toUtf8().constData()));
    saveMany(3, 1);
    EXPECT_EQ(before, fileBytes(victim));
    expectUndo(picture(2));
}

TEST_F(UndoStoreTest, AFailedWriteOfAFullSeriesDropsTheOldestAlone)
{
    saveMany(0, 10);
    {
        const FullDisk full(2000);
        EXPECT_FALSE(save(randomBits(40, 40, 9)));
    }
    expectCounters(10, 10);
    EXPECT_EQ(9, files().size());
    for (int i = 9; i >= 1; --i) EXPECT_TRUE(sameBits(picture(i), store.undo().value())) << i;
}

TEST_F(UndoStoreTest, DeletingTakesOneDocumentsFilesOnly)
{
    saveMany(0, 3);
    UndoStore longer(folder.path(), 1000), longest(folder.path(), 10000);
    for (UndoStore* other : {&longer, &longest}) {
        other->save(picture(0));
        EXPECT_TRUE(other->stands());
    }
    longer.deleteSeries();
    store.deleteSeries();
    EXPECT_EQ(QStringList("b1000000.dat"), files());
}

} // namespace
} // namespace velara
