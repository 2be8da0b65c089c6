// What can be had of a document whose program died, when its files were damaged since, or the disk was full.
#include "document/Workspace.h"
#include "document/recovery/Leftover.h"
#include "document/undo/UndoMark.h"
#include "fileio/disk/nativeName.h"
#include "support/RecordingFrame.h"
#include "support/files.h"
#include "support/fullDisk.h"
#include "support/pictures.h"
#include <QCoreApplication>
#include <thread>

namespace velara {
namespace {

using Leftovers = std::vector<std::shared_ptr<Leftover>>;

DocumentFacts someFacts()
{
    DocumentFacts about{.isUnsaved = true};
    about.file.path = nameFrom(QByteArray("/pictures/M\xC3\xBCll \xFF.bmp"));
    about.file.mark = 3;
    about.file.isFile = true;
    about.file.kept = CameraKept::NoPlace;
    about.file.properties = "Camera\tNone\n";
    about.file.camera = {
        .exif = QByteArray("II\0*", 4), .xmp = "<x/>", .comment = "hello", .dotsAcross = 72.5, .dotsDown = 300};
    Layers::Kept text{{"two\r\nlines", {"Serif", 23, true, false, true}, 0x0180ff, {-3, 4, 90, 40}, false}, true};
    about.texts = {{2, text}, {7, {}}};
    return about;
}

QByteArray newer(QByteArray bytes)
{
    bytes[8] = 3; // of the version
    return bytes;
}

TEST(RecordTest, ComesBackAsItWasAndAnyDamageIsSeen)
{
    const UndoRecord record{
        someFacts(), 2, {{{.name = "first"}, false, 11, 12}, {{.name = "second"}, true, 0, 0}}, 123456789};
    const QByteArray bytes = bytesOf(record);
    UndoRecord read;
    ASSERT_EQ(recordFrom(bytes, read), RecordState::Whole);
    EXPECT_EQ(bytesOf(read), bytes);
    EXPECT_EQ(nativeName(read.about.file.path), nativeName(record.about.file.path));
    EXPECT_EQ(read.about.texts, record.about.texts);
    EXPECT_EQ(read.about.file.camera.exif, record.about.file.camera.exif);
    EXPECT_EQ(read.states[1].note.name, "second");
    for (qsizetype size = 0; size < bytes.size(); ++size)
        EXPECT_EQ(recordFrom(bytes.left(size), read), RecordState::Damaged) << size;
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        QByteArray damaged = bytes;
        damaged[at] = char(damaged[at] ^ 16);
        EXPECT_NE(recordFrom(damaged, read), RecordState::Whole) << at;
    }
    EXPECT_EQ(recordFrom(newer(bytes), read), RecordState::Newer);
}

/// A series of five states of which the fourth is shown, left by a program that died.
struct LeftSeries : FolderTest {
    QString temp = folder.filePath("Temp");

    LeftSeries() { makePrivateFolder(temp); }
    QStringList left() const { return QDir(temp).entryList(QDir::Files | QDir::Hidden | QDir::System); }
    Leftovers find() const { return Leftover::find(temp); }
    static Bits state(int i) { return randomBits(20 + i, 9, unsigned(i)); }
    QString file(const char* name) const { return temp + '/' + name; }
    void leave(bool isUnsaved = true)
    {
        UndoStore store(temp, 3);
        store.willDescribe(someFacts());
        for (int i = 0; i < 5; ++i) store.save(state(i), QString::number(i));
        store.undo();
        DocumentFacts about = someFacts();
        about.isUnsaved = isUnsaved;
        store.describe(about);
        ASSERT_TRUE(store.stands());
    }
    QByteArray allBytes() const
    {
        QByteArray all;
        for (const QString& name : left()) all += name.toUtf8() + fileBytes(temp + '/' + name);
        return all;
    }
};

TEST_F(LeftSeries, WhatCanBeHadIsOfferedAndTheRestIsTold)
{
    struct Case {
        const char* what;
        std::function<void(LeftSeries&)> damage;
        int shown; // -1: nothing can be read
        std::string told;
        bool isNamed = true;
    };
    const auto drop = [](const char* name) { return [name](LeftSeries& t) { QFile::remove(t.file(name)); }; };
    const auto cut = [](const char* name) { return [name](LeftSeries& t) { QFile::resize(t.file(name), 50); }; };
    const auto change = [](const char* name) {
        return [name](LeftSeries& t) {
            QByteArray bytes = fileBytes(t.file(name));
            bytes[bytes.size() - 1] = char(bytes[bytes.size() - 1] ^ 1);
            putFile(t.file(name), bytes);
        };
    };
    const auto older = [](LeftSeries& t) { // checksums were of whole blocks
        UndoRecord record;
        ASSERT_EQ(recordFrom(fileBytes(t.file("b0003.rec")), record), RecordState::Whole);
        for (int i = 0; i < 5; ++i) {
            record.states[std::size_t(i)].side = 0;
            record.states[std::size_t(i)].sum = checksumOf(state(i).data(), state(i).sizeInBytes());
        }
        QByteArray bytes = bytesOf(record);
        bytes[8] = 1;
        putFile(t.file("b0003.rec"), bytes);
    };
    const Case kCases[] = {
        {"record of an older version", older, 3, ""},
        {"that, and another state",
         [&](LeftSeries& t) {
             older(t);
             change("b000303.dat")(t);
         },
         2, "The last change could not be kept"},
        {"nothing", [](LeftSeries&) {}, 3, ""},
        {"the state shown is missing", drop("b000303.dat"), 2, "The last change could not be kept"},
        {"it is short", cut("b000303.dat"), 2, "The last change could not be kept"},
        {"it is another one", change("b000303.dat"), 2, "The last change could not be kept"},
        {"an older one is missing", drop("b000301.dat"), 3, "Not all of its steps back"},
        {"record of a newer version",
         [](LeftSeries& t) { putFile(t.file("b0003.rec"), newer(fileBytes(t.file("b0003.rec")))); }, -2,
         "A newer version", false},
        {"record cut off", cut("b0003.rec"), -2, "Its record is damaged", false},
        {"record empty", [](LeftSeries& t) { putFile(t.file("b0003.rec"), {}); }, -2, "Its record is damaged", false},
        {"record missing", drop("b0003.rec"), -2, "Its record is missing", false},
        {"record damaged, the one before it is there",
         [&](LeftSeries& t) {
             QFile::copy(t.file("b0003.rec"), t.file("b0003.old"));
             cut("b0003.rec")(t);
         },
         3, ""},
        {"all states missing",
         [&](LeftSeries& t) {
             for (int i = 0; i < 5; ++i) QFile::remove(t.temp + QString("/b00030%1.dat").arg(i));
         },
         -1, "Its pictures can't be read."},
        {"a copy of the folder",
         [](LeftSeries& t) {
             for (int i = 0; i < 5; ++i) {
                 const QString name = t.temp + QString("/b00030%1.dat").arg(i);
                 const QByteArray bytes = fileBytes(name);
                 QFile::rename(name, name + "x");
                 putFile(name, bytes);
             }
             for (int i = 0; i < 5; ++i) QFile::remove(t.temp + QString("/b00030%1.datx").arg(i));
         },
         3, ""},
    };
    for (const Case& each : kCases) {
        SCOPED_TRACE(each.what);
        leave();
        each.damage(*this);
        const QByteArray before = allBytes();
        {
            const Leftovers found = find();
            ASSERT_EQ(found.size(), 1u);
            const Bits shown = found[0]->read();
            const int wanted = each.shown == -2 ? 4 : each.shown; // without a record the last one written
            EXPECT_TRUE(wanted < 0 ? shown.isNull() : bool(sameBits(state(wanted), shown)));
            const std::string told = found[0]->trouble().toStdString();
            EXPECT_TRUE(each.told.empty() ? told.empty() : told.starts_with(each.told)) << told;
            EXPECT_EQ(found[0]->about().file.path == someFacts().file.path, each.isNamed);
        }
        EXPECT_EQ(allBytes(), before) << "nothing goes without the user's word";
        const Leftovers again = find();
        ASSERT_EQ(again.size(), 1u);
        again[0]->discard();
        EXPECT_TRUE(left().isEmpty()) << left().join(' ').toStdString();
    }
}

TEST_F(LeftSeries, IsOpenedAsItWasWithItsSteps)
{
    leave();
    {
        int next = 3;
        const UndoStore other(temp, [&] { return next++; });
        EXPECT_EQ(other.number(), 4) << "it does not write over the work of the dead one";
    }
    QFile::remove(file("b000301.dat"));
    RecordingFrame frame;
    Workspace workspace(temp, frame.platform_);
    Opened opened;
    workspace.recover(find().at(0), [&](const Opened& now) { opened = now; });
    ASSERT_TRUE(find().empty()) << "it is held until it is opened";
    while (!opened.document) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    Document& document = *opened.document;
    EXPECT_TRUE(sameBits(state(3), document.bits()));
    EXPECT_TRUE(document.wouldBeLost());
    EXPECT_EQ(nativeName(document.file.path), nativeName(someFacts().file.path));
    EXPECT_FALSE(document.file.isOwn()) << "it was the second document of its file";
    EXPECT_EQ(document.file.camera.exif, someFacts().file.camera.exif);
    EXPECT_EQ(document.waitingTexts, someFacts().texts);
    EXPECT_EQ(document.undo.undoName(), "3");
    EXPECT_EQ(document.undo.redoName(), "4");
    const auto step = [&](bool back, int wanted) {
        workspace.step(opened.document, back);
        workspace.wait();
        EXPECT_TRUE(sameBits(state(wanted), document.bits()));
    };
    step(true, 2);
    step(true, 0);
    EXPECT_TRUE(document.undo.passedOver()) << "a state is missing there";
    for (const int next : {2, 3, 4}) step(false, next);
    EXPECT_TRUE(find().empty()) << "its program lives";
    EXPECT_NE(workspace.add(state(1))->DocNumber(), 3);
    workspace.close(opened.document);
    workspace.wait();
    EXPECT_EQ(left().filter("b0003").size(), 0);
}

TEST_F(LeftSeries, OnlyDeadProgramsWithoutUnsavedWorkAreCleanedUp)
{
    leave(false);
    putFile(file("b000400.dat"), "opened, and never changed");
    putFile(file("b0005.lock"), "");
    putFile(file("b00006.lock"), "not a name of ours");
    putFile(file("bench.dat"), "neither");
    UndoStore living(temp, 7);
    living.willDescribe({.isUnsaved = true});
    for (int i = 0; i < 3; ++i) living.save(state(i));
    ASSERT_TRUE(living.stands());
    UndoStore opened(temp, 8);
    opened.save(state(1));
    ASSERT_TRUE(opened.stands());
    EXPECT_TRUE(find().empty());
    const QStringList wanted{"b00006.lock", "b0007.lock", "b0007.rec",   "b000700.dat", "b000701.dat",
                             "b000702.dat", "b0008.lock", "b000800.dat", "bench.dat"};
    EXPECT_EQ(left(), wanted) << left().join(' ').toStdString();
}

TEST_F(LeftSeries, ProgramsThatStartAtOnceShareNone)
{
    for (int round = 0; round < 20; ++round) {
        leave();
        std::array<Leftovers, 6> found;
        {
            std::vector<std::jthread> programs; // a lock belongs to the open file, so these are like programs
            for (Leftovers& each : found) programs.emplace_back([&] { each = find(); });
        }
        std::size_t count = 0;
        for (const Leftovers& each : found) count += each.size();
        ASSERT_EQ(count, 1u);
        for (const Leftovers& each : found)
            for (const auto& leftover : each) EXPECT_TRUE(sameBits(state(3), leftover->read()));
    }
}

TEST_F(LeftSeries, AFullDiskIsToldOnceAndTheOldRecordStays)
{
    int told = 0;
    {
        UndoStore store(temp, 3);
        store.onUnrecorded([&](const QString& reason) { told += reason == "no room in the Temp folder"; });
        store.willDescribe(someFacts());
        for (int i = 0; i < 2; ++i) store.save(state(i));
        ASSERT_TRUE(store.stands());
        const QByteArray before = fileBytes(file("b0003.rec"));
        {
            const FullDisk full(100);
            for (int i = 2; i < 4; ++i) store.save(state(i));
            EXPECT_FALSE(store.stands());
        }
        EXPECT_EQ(told, 1);
        EXPECT_EQ(fileBytes(file("b0003.rec")), before);
        EXPECT_TRUE(left().filter(".part").isEmpty());
    }
    const Leftovers found = find();
    ASSERT_EQ(found.size(), 1u);
    EXPECT_TRUE(sameBits(state(1), found[0]->read())) << "the last that was on the disk";
}

} // namespace
} // namespace velara
