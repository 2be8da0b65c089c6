#include "document/UndoStore.h"
#include "support/pictures.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <csignal>
#include <cstring>
#include <sys/resource.h>

namespace velara {
namespace {

struct UndoStoreTest : ::testing::Test {
    QTemporaryDir folder;
    UndoStore store{folder.path(), 3};

    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }
    QString path(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
    QByteArray content(const char* name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void put(const char* name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static Bits picture(int i) { return randomBits(5 + i % 3, 4, 100 + static_cast<std::uint32_t>(i)); }
    void saveMany(int first, int count)
    {
        for (int i = first; i < first + count; ++i) ASSERT_TRUE(store.save(picture(i)));
    }
    void expectCounters(int step, int top) const
    {
        EXPECT_EQ(step, store.UndoStep());
        EXPECT_EQ(top, store.UndoTop());
    }
};

/// While it lives no file grows beyond so many bytes: the disk is full.
struct FullDisk {
    rlimit before{};
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit full{bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before); }
};

TEST_F(UndoStoreTest, AFileIsABitmapHeaderAndTheBlock)
{
    const Bits bits = randomBits(3, 2, 1);
    ASSERT_TRUE(store.save(bits));
    QByteArray wanted = QByteArray::fromHex("28000000"
                                            "07000000"
                                            "faffffff"
                                            "0100"
                                            "2000") +
                        QByteArray(24, '\0');
    wanted += QByteArray(reinterpret_cast<const char*>(bits.data()), static_cast<int>(bits.sizeInBytes()));
    EXPECT_EQ(wanted, content("b000300.dat"));
}

TEST_F(UndoStoreTest, NamesGrowWithTheirNumbers)
{
    EXPECT_EQ(path("b000307.dat"), store.fileName(7));
    EXPECT_EQ(path("b12345100.dat"), UndoStore(folder.path(), 12345).fileName(100));
}

TEST_F(UndoStoreTest, StepsBackAndForward)
{
    EXPECT_FALSE(store.undo()) << "no picture yet";
    saveMany(0, 1);
    EXPECT_FALSE(store.undo()) << "the first state has none before it";
    EXPECT_FALSE(store.redo());
    saveMany(1, 2);
    expectCounters(3, 3);
    EXPECT_TRUE(sameBits(picture(1), store.undo().value()));
    EXPECT_TRUE(sameBits(picture(0), store.undo().value()));
    EXPECT_FALSE(store.undo());
    expectCounters(1, 3);
    EXPECT_TRUE(sameBits(picture(1), store.redo().value()));
    expectCounters(2, 3);
    saveMany(7, 1); // an edit here cuts what could be redone
    expectCounters(3, 3);
    EXPECT_FALSE(store.redo());
    EXPECT_TRUE(sameBits(picture(1), store.undo().value()));
    EXPECT_TRUE(sameBits(picture(7), store.redo().value()));
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
    for (const QString& name : files()) // those of a full series are written over, and still have their own lengths
        EXPECT_TRUE(QSet<qint64>({40 + 4 * 9 * 8, 40 + 4 * 10 * 8, 40 + 4 * 11 * 8})
                        .contains(QFileInfo(folder.filePath(name)).size()))
            << name.toStdString();
    for (int i = 11; i >= 3; --i) EXPECT_TRUE(sameBits(picture(i), store.undo().value())) << i;
    EXPECT_FALSE(store.undo());
    for (int i = 0; i < 5; ++i) ASSERT_TRUE(store.redo());
    saveMany(20, 1);
    EXPECT_EQ("b000306.dat", files().last().toStdString()) << "nothing stands above the new step";
}

TEST_F(UndoStoreTest, AnOlderLongerFileKeepsItsTail)
{
    const Bits large = randomBits(20, 20, 1), small = randomBits(2, 2, 2);
    put("b000300.dat", QByteArray(5000, 'x')); // of an earlier run
    ASSERT_TRUE(store.save(small));
    EXPECT_EQ(5000, content("b000300.dat").size());
    ASSERT_TRUE(store.save(large));
    EXPECT_TRUE(sameBits(small, store.undo().value()));
}

TEST_F(UndoStoreTest, WhatAnEarlierRunLeftIsNotRead)
{
    ASSERT_TRUE(UndoStore(folder.path(), 3).save(picture(0)));
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
    const struct {
        const char* damage;
        QByteArray bytes;
    } kCases[] = {
        {"empty", {}},
        {"half a header", good.left(20)},
        {"a header alone", good.left(40)},
        {"one byte short", good.left(good.size() - 1)},
        {"not a header", QByteArray(good.size(), 'x')},
        {"another header size", withWord(0, 108)},
        {"16 bits a pixel", withWord(12, 1 | 16 << 16)},
        {"wider than the file", withWord(4, 1000000)},
        {"huge", withWord(4, INT32_MAX)},
        {"margin only", withWord(4, 4)},
        {"negative width", withWord(4, -9)},
        {"bottom up", withWord(8, 8)},
        {"the lowest height", withWord(8, INT32_MIN)},
    };
    for (const auto& c : kCases) {
        put("b000300.dat", c.bytes);
        EXPECT_FALSE(store.undo()) << c.damage;
        expectCounters(2, 2);
    }
    QFile::remove(path("b000300.dat"));
    EXPECT_FALSE(store.undo()) << "missing";
    QDir(folder.path()).mkdir(QStringLiteral("b000300.dat"));
    EXPECT_FALSE(store.undo()) << "a folder";
    expectCounters(2, 2);
}

TEST_F(UndoStoreTest, AFailedWriteLeavesTheSeriesWhole)
{
    saveMany(0, 3);
    ASSERT_TRUE(store.undo());
    ASSERT_TRUE(store.undo()); // the next save goes over the step of picture 1
    const QStringList before = files();
    {
        const FullDisk full(300);
        EXPECT_FALSE(store.save(randomBits(40, 40, 9)));
        EXPECT_FALSE(UndoStore(folder.path(), 4).save(randomBits(40, 40, 9)));
    }
    EXPECT_FALSE(UndoStore(path("nowhere"), 5).save(picture(0)));
    expectCounters(1, 3);
    EXPECT_EQ(before, files()) << "no half-written file stays";
    EXPECT_TRUE(sameBits(picture(1), store.redo().value()));
    EXPECT_TRUE(sameBits(picture(2), store.redo().value()));
}

TEST_F(UndoStoreTest, AFailedWriteOfAFullSeriesDropsNothing)
{
    saveMany(0, 10);
    {
        const FullDisk full(2000);
        EXPECT_FALSE(store.save(randomBits(40, 40, 9)));
    }
    expectCounters(10, 10);
    EXPECT_EQ(10, files().size());
    for (int i = 8; i >= 0; --i) EXPECT_TRUE(sameBits(picture(i), store.undo().value())) << i;
}

TEST_F(UndoStoreTest, DeletingTakesOneDocumentsFilesOnly)
{
    saveMany(0, 3);
    UndoStore(folder.path(), 1000).save(picture(0));
    UndoStore(folder.path(), 10000).save(picture(0));
    UndoStore(folder.path(), 1000).deleteSeries();
    store.deleteSeries();
    EXPECT_EQ(QStringList{QStringLiteral("b1000000.dat")}, files());
}

} // namespace
} // namespace velara
