// What is left of documents whose program ends at any moment, or whose files were damaged since.
#include "document/Workspace.h"
#include "document/recovery/Leftover.h"
#include "document/undo/UndoMark.h"
#include "fileio/disk/nativeName.h"
#include "support/RecordingFrame.h"
#include "support/files.h"
#include "support/fullDisk.h"
#include "support/pictures.h"
#include "support/seed.h"
#include <QCoreApplication>
#include <QRegularExpression>
#include <csignal>
#include <fcntl.h>
#include <random>
#include <set>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace velara {
namespace {

using Leftovers = std::vector<std::shared_ptr<Leftover>>;

/// Some take a while to be written.
Bits pictureOf(int id)
{
    return id % 9 == 0 ? randomBits(900, 700, unsigned(id)) : randomBits(40 + id % 3, 30, unsigned(id));
}

/// A document as it should be.
struct Model {
    std::vector<int> ids; // of the pictures of its series
    int shown = -1;
    bool isOpen = false, isUnsaved = false;

    void apply(const std::string& action, int id)
    {
        if (action == "open") *this = {{id}, 0, true, false};
        if (action == "back" && shown > 0) --shown;
        if (action == "forward" && shown + 1 < int(ids.size())) ++shown;
        if (action == "save") isUnsaved = false;
        if (action == "close") isOpen = false;
        if (action != "change") return;
        ids.resize(std::size_t(shown) + 1);
        ids.push_back(id);
        if (ids.size() > UndoStore::kLimit) ids.erase(ids.begin());
        shown = int(ids.size()) - 1;
        isUnsaved = true;
    }
};

// --- The program that is killed

constexpr char kFolder[] = "VELARA_KILLED_IN", kDiary[] = "VELARA_KILLED_DIARY", kSeed[] = "VELARA_KILLED_SEED";

/// Each action is noted before it begins, and "done" once it is on the disk.
struct Diary {
    int file = open(qgetenv(kDiary).constData(), O_WRONLY | O_APPEND | O_CREAT, 0600);
    void note(const char* action, int document, int id = 0) const
    {
        std::array<char, 80> line{};
        const int size = std::snprintf(line.data(), line.size(), "%s %d %d\n", action, document, id);
        if (write(file, line.data(), std::size_t(size)) != size) std::abort();
    }
};

struct Worker {
    RecordingFrame frame; // events, and a reader
    QString folder = qEnvironmentVariable(kFolder);
    Workspace workspace{folder + "/Temp", frame.platform_};
    std::mt19937 random{unsigned(qEnvironmentVariableIntValue(kSeed))};
    Diary diary;
    std::vector<DocumentHandle> documents{3};
    std::vector<int> keys{0, 0, 0};
    int id = 0, key = 0;

    int below(int most) { return int(random() % unsigned(most)); }
    void act()
    {
        const auto at = std::size_t(below(3));
        DocumentHandle& document = documents[at];
        if (!document) {
            keys[at] = ++key;
            diary.note("open", key, ++id);
            document = workspace.add(pictureOf(id), folder + "/" + QString::number(key) + ".bmp", Arrival::File);
            return diary.note("number", key, document->DocNumber());
        }
        const int what = below(40), mine = keys[at];
        if (what < 24) {
            diary.note("change", mine, ++id);
            document->takePicture(pictureOf(id));
            workspace.finish(document, QString::number(id));
        } else if (what < 34) {
            diary.note(what < 30 ? "back" : "forward", mine);
            workspace.step(document, what < 30);
            workspace.wait(document);
        } else if (what < 36) {
            diary.note("save", mine);
            workspace.save(document, document->file.path);
            workspace.wait(document);
        } else if (what == 36) {
            diary.note("close", mine);
            workspace.close(document);
            document = {};
            return diary.note("done", mine);
        }
        if (below(3) > 0) return;
        document->undo.stands();
        diary.note("done", mine);
    }
};

/// Started by the test below, in a process of its own.
TEST(RecoveryWorker, DISABLED_WorksUntilItIsKilled)
{
    if (!qEnvironmentVariableIsSet(kFolder)) return;
    Worker worker;
    for (;;) worker.act();
}

// --- The one that looks after it

struct RecoveryTest : FolderTest {
    QString temp = folder.filePath("Temp");
    std::map<int, std::vector<Model>> states; // by document: what it was before the last "done", and after each action
    std::map<int, int> keyOf;                 // by the number of the files
    std::map<int, bool> isDone;               // nothing came after the last "done"
    int shownSteps = 0, documents = 0;

    RecoveryTest() { makePrivateFolder(temp); }
    QStringList left() const { return QDir(temp).entryList(QDir::Files | QDir::Hidden | QDir::System); }
    Leftovers find() const { return Leftover::find(temp); }

    void killOne(std::mt19937& random)
    {
        QFile::remove(path("diary"));
        qputenv(kFolder, folder.path().toUtf8());
        qputenv(kDiary, path("diary").toUtf8());
        qputenv(kSeed, QByteArray::number(int(random() >> 1)));
        const pid_t child = fork();
        if (child == 0) {
            const int nowhere = open("/dev/null", O_WRONLY);
            dup2(nowhere, STDOUT_FILENO);
            execl("/proc/self/exe", "test", "--gtest_also_run_disabled_tests", "--gtest_filter=RecoveryWorker.*",
                  nullptr);
            _exit(1);
        }
        while (!QFile::exists(path("diary"))) usleep(500);
        usleep(useconds_t(random() % 100000));
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status)) << "it ended by itself: " << status;
        readDiary();
    }
    void readDiary()
    {
        states.clear(), keyOf.clear(), isDone.clear();
        std::map<int, Model> now;
        for (const QByteArray& line : content("diary").split('\n')) {
            const QList<QByteArray> words = line.split(' ');
            if (words.size() < 3) continue;
            const int key = words[1].toInt(), id = words[2].toInt();
            if (words[0] == "number") keyOf[id] = key;
            if (words[0] == "number") continue;
            isDone[key] = words[0] == "done";
            if (isDone[key]) states[key].clear();
            if (states[key].empty()) states[key].push_back(now[key]); // before it
            now[key].apply(words[0].toStdString(), id);
            states[key].push_back(now[key]);
        }
    }

    /// Whether the series found is that state of the model; one that was being changed may have lost its oldest state
    /// or its steps forward.
    static bool isState(const Model& model, const std::vector<Bits>& back, const std::vector<Bits>& forward,
                        bool isDone)
    {
        const auto is = [&](int at, const Bits& bits) { return pictureOf(model.ids[std::size_t(at)]) == bits; };
        if (!model.isOpen || model.shown < 0 || int(back.size()) > model.shown + 1) return false;
        for (int i = 0; i < int(back.size()); ++i)
            if (!is(model.shown - i, back[std::size_t(i)])) return false;
        const auto after = model.ids.size() - std::size_t(model.shown) - 1;
        if (forward.size() > after) return false;
        for (int i = 0; i < int(forward.size()); ++i)
            if (!is(model.shown + 1 + i, forward[std::size_t(i)])) return false;
        const auto missing = model.shown + 1 - int(back.size());
        if (isDone) return missing == 0 && forward.size() == after;
        return missing == 0 || (missing == 1 && model.ids.size() == UndoStore::kLimit);
    }

    /// Opens it, walks its steps, and lets it go again: as a program that dies, or for good.
    void look(Leftover& leftover, std::set<int>& found, bool diesAgain)
    {
        const Bits shown = leftover.read();
        UndoStore::Inherited inherited = leftover.inherit();
        const int key = keyOf[inherited.number];
        const QString path = inherited.record.about.file.path;
        found.insert(key);
        ASSERT_TRUE(states.contains(key)) << inherited.number;
        DocumentFacts about = inherited.record.about;
        UndoStore store(std::move(inherited));
        std::vector<Bits> back{shown}, forward;
        while (const auto bits = store.undo()) back.push_back(*bits);
        for (std::size_t i = 1; i < back.size(); ++i)
            ASSERT_TRUE(sameBits(back[back.size() - 1 - i], store.redo().value()));
        while (const auto bits = store.redo()) forward.push_back(*bits);
        const auto isIt = [&](const Model& model) { return isState(model, back, forward, isDone[key]); };
        const bool isClosing = !states[key].back().isOpen; // as it was killed
        EXPECT_FALSE(isClosing && isDone[key]) << key << " was closed";
        EXPECT_TRUE(isClosing || std::ranges::any_of(states[key], isIt))
            << key << ": " << back.size() << " back, " << forward.size() << " forward of "
            << states[key].back().ids.size() << ", " << states[key].size() << " candidates, done " << isDone[key];
        EXPECT_TRUE(path.endsWith(QString("/%1.bmp").arg(key)) || path.startsWith("Recovered")) << path.toStdString();
        shownSteps += int(back.size() + forward.size());
        ++documents;
        for (std::size_t i = 0; i < forward.size(); ++i) store.undo();
        store.describe(about);
        store.stands();
        if (!diesAgain) store.deleteSeries();
    }
};

TEST_F(RecoveryTest, WhateverWasWrittenBeforeAKillIsThereAfterwards)
{
    std::mt19937 random(seedOf(7));
    const char* given = std::getenv("VELARA_KILLS");
    const int kills = given ? std::atoi(given) : 200;
    for (int round = 0; round < kills && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        killOne(random);
        for (const bool diesAgain : {true, false}) {
            std::set<int> found;
            for (const auto& leftover : find()) look(*leftover, found, diesAgain && round % 3 == 0);
            for (const auto& [key, candidates] : states) {
                const auto isSafe = [](const Model& model) { return model.isOpen && model.isUnsaved; };
                EXPECT_TRUE(found.contains(key) || !std::ranges::all_of(candidates, isSafe)) << key << " is lost";
            }
            if (!diesAgain || round % 3 != 0) break;
        }
        find(); // those that had nothing unsaved
        const QStringList files = left().filter("b0");
        EXPECT_TRUE(files.isEmpty()) << files.join(' ').toStdString();
    }
    std::printf("%d kills, %d documents recovered with %d states\n", kills, documents, shownSteps);
    EXPECT_GT(documents, kills / 2);
}

// --- Damage

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
    bytes[8] = 2; // of the version
    return bytes;
}

TEST(RecordTest, ComesBackAsItWasAndAnyDamageIsSeen)
{
    const UndoRecord record{someFacts(), 2, {{{.name = "first"}, false, 11, 12}, {{.name = "second"}, true, 0, 0}}, 123456789};
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
struct LeftSeries : RecoveryTest {
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
    const Case kCases[] = {
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

TEST_F(LeftSeries, AStateThatIsInMemoryAloneIsNotNamed)
{
    {
        UndoStore store(temp, 3);
        store.willDescribe({.isUnsaved = true});
        store.save(state(0));
        store.stands();
        const FullDisk full(1500); // room for the record
        store.save(randomBits(40, 40, 1));
        EXPECT_FALSE(store.stands());
    }
    const Leftovers found = find();
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0]->states(), 1);
    EXPECT_TRUE(sameBits(state(0), found[0]->read()));
    EXPECT_TRUE(found[0]->trouble().startsWith("The last change could not be kept"))
        << found[0]->trouble().toStdString();
}

} // namespace
} // namespace velara
