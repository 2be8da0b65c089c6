// A program that works on documents is killed at random moments: what was written before is there afterwards.
#include "document/Workspace.h"
#include "document/recovery/Leftover.h"
#include "document/undo/UndoMark.h"
#include "support/RecordingFrame.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/seed.h"
#include <QCoreApplication>
#include <csignal>
#include <fcntl.h>
#include <random>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace velara {
namespace {

/// Some take a while to be written, some are of another size; most differ from those before them in some strokes.
Bits pictureOf(int id)
{
    if (id % 19 == 0) return randomBits(900, 700, unsigned(id));
    if (id % 17 == 0) return randomBits(40 + id % 3, 30, unsigned(id));
    Bits bits = randomBits(90, 60, unsigned(id / 25));
    for (int stroke = id / 25 * 25; stroke <= id; ++stroke) drawStroke(bits, unsigned(stroke));
    return bits;
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
            if (below(3) > 0) return;
            workspace.wait(); // its files are gone
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
    UndoStore::tileRules = {.smallest = 0, .side = 8, .share = 4, .most = 6};
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
    auto find() const { return Leftover::find(temp); }

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

} // namespace
} // namespace velara
