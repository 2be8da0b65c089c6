// The way from a command to its document: every word that changes pixels, and everything that can happen while it is
// computed. Afterwards each document shows its own picture and has its own steps, and no file is left over.
#include "app/frame/fStatus.h"
#include "app/frame/frameTest.h"
#include "commands/recipe/recipeJob.h"
#include "commands/sizeWords.h"
#include "document/Draft.h"
#include "document/resizing.h"
#include "seams/findRow.h"
#include "support/files.h"
#include "support/ui/pixelWords.h"
#include <QtTest>
#include <QtWidgets>
#include <condition_variable>
#include <mutex>
#include <set>

namespace velara {

namespace {

/// Their pictures are read, not computed.
const std::set<std::string_view> kSteps{"REDO", "UNDO"};

/// Sets a dialog to the size that it shows initially.
constexpr std::string_view kOfWhatIsSeen = "CANVASSIZE";

/// Words that leave this small picture unchanged; in the first, half of it equals the other half.
const std::set<std::string_view> kAsBefore{"50", "CURTAINWHITY", "CUSTOMCURTAIN", "FISHEYE"};

bool isSizing(std::string_view word)
{
    const SizeWord* size = findRow(sizeWords(), word, &SizeWord::word);
    return size && size->kind != SizeWord::Rotate;
}

/// The extent of a document's undo series.
struct State {
    Bits picture, before; // the present one, and the previous step's
    int step = 1, top = 1;
};

/// Blocks the computing threads while closed.
class Gate {
  public:
    void shut() { set(false); }
    void open() { set(true); }
    void pass()
    {
        if (QThread::currentThread() == qApp->thread()) return;
        std::unique_lock lock(guard_);
        moved_.wait(lock, [this] { return open_; });
    }

  private:
    void set(bool open)
    {
        const std::lock_guard lock(guard_);
        open_ = open;
        moved_.notify_all();
    }
    std::mutex guard_;
    std::condition_variable moved_;
    bool open_ = true;
};

struct Road : FrameTest {
    Gate gate;
    const Bits first = randomBits(48, 36, 1), second = randomBits(20, 15, 2);
    QPointer<fImage> own, other;
    Bits start; // the active document's picture when the word begins
    std::atomic<std::uint32_t> clock{0};

    cBitFilter& engine() { return frame->workspace().engine(); }

    /// Two documents. The active one has just had a run of sizing words, and a part of it is selected.
    void begin()
    {
        if (!frame) SetUp();
        frame->setUpdatesEnabled(false); // painting would take most of the time
        setup.AskToSave = false;
        engine().clock = [this] {
            gate.pass();
            return clock += 20; // a progress report falls due in every row
        };
        own = open(first, "a.bmp");
        other = open(second, "b.bmp");
        activate(own);
        command("50");
        start = own->bits();
        own->document().Region.CreateRect(3, 2, 17, 14, Combine::Or, true);
        frame->workspace().handOver(own->document());
        engine().setRandomSeed(1);
        click("Pencil");
    }
    void end()
    {
        gate.open();
        if (frame) frame->workspace().wait();
        if (frame)
            for (fImage* image : frame->documents()) image->parentWidget()->close();
        settle();
        if (frame) frame->workspace().wait(); // their files go in the background
        EXPECT_EQ(files(), QStringList());
    }
    /// Which ends what is under way at once, though the thread may go on.
    void escape()
    {
        QTest::keyClick(display(own), Qt::Key_Escape);
        QCoreApplication::processEvents();
        EXPECT_FALSE(frame->workspace().isBusy(own->document().handle()));
    }
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QStringList files() { return QDir(path("Temp")).entryList(QDir::Files); }
    static State stateOf(fImage* image)
    {
        const Document& document = image->document();
        return {document.bits(), document.undo.previous().value_or(Bits()), document.undo.UndoStep(),
                document.undo.UndoTop()};
    }

    /// Runs the word; in a dialog that it opens changes every control, then clicks OK. Calls meanwhile while the
    /// picture is computed. False: nothing was computed.
    bool run(
        const CommandWord& word, const std::function<void()>& meanwhile = [] {})
    {
        const QWidget* below = QApplication::activeModalWidget();
        const bool inDialog = word.kind == WordKind::Dialog; // computes while it is open; the others close first
        bool computed = false;
        const auto finish = [&] {
            computed = frame->workspace().isBusy(own->document().handle());
            meanwhile();
            gate.open();
            frame->workspace().wait();
        };
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, &user, [&] {
            const QPointer<QWidget> dialog = QApplication::activeModalWidget();
            if (!dialog || dialog == below) return;
            user.stop();
            moveEverything(*dialog);
            clickOk(*dialog);
            if (inDialog) finish();
            if (dialog) dialog->close();
        });
        user.start(0);
        gate.shut();
        frame->Mmenu(QString::fromUtf8(word.word.data(), qsizetype(word.word.size())));
        if (!inDialog) finish();
        return computed;
    }
};

/// The events, and their results.
struct Meanwhile {
    enum Own { Result, Twice, AsBefore, Closed };
    const char* what;
    void (*happens)(Road&, const CommandWord& word);
    Own own = Result;
    enum Other { Same, DrawnOn, Turned, Gone } other = Same;
    int documents = 2;
};
constexpr int kOfFile = 13; // pixels: the width of the file and of nothing else

// clang-format off
const Meanwhile kMeanwhile[] = {
    {"the other is activated", [](Road& r, auto&) { r.activate(r.other); }},
    {"the other is drawn on",  [](Road& r, auto&) { r.activate(r.other); r.drag(r.other, {2, 3}, {12, 9}); }, Meanwhile::Result, Meanwhile::DrawnOn},
    {"the other is changed",   [](Road& r, auto&) { r.activate(r.other); r.frame->Mmenu("INVERT"); }, Meanwhile::Result, Meanwhile::Turned},
    {"it is drawn on",         [](Road& r, auto&) { r.drag(r.own, {4, 3}, {12, 9}); }},
    {"it is undone",           [](Road& r, auto&) { r.frame->Mmenu("UNDO"); }, Meanwhile::AsBefore},
    {"Esc",                    [](Road& r, auto&) { r.escape(); }, Meanwhile::AsBefore},
    {"it is run again",        [](Road& r, auto& word) { r.run(word); }, Meanwhile::Twice},
    {"a file is opened",       [](Road& r, auto&) { r.frame->openPicture(r.path("c.bmp")); }, Meanwhile::Result, Meanwhile::Same, 3},
    {"it is closed",           [](Road& r, auto&) { r.own->parentWidget()->close(); }, Meanwhile::Closed, Meanwhile::Same, 1},
    {"the other is closed",    [](Road& r, auto&) { r.other->parentWidget()->close(); }, Meanwhile::Result, Meanwhile::Gone, 1},
    {"the frame is closed",    [](Road& r, auto&) { r.frame->close(); }, Meanwhile::Closed, Meanwhile::Gone, 0},
};
// clang-format on

void expectState(const State& wanted, const State& got)
{
    EXPECT_TRUE(sameBits(wanted.picture, got.picture));
    EXPECT_TRUE(sameBits(wanted.before, got.before)) << "a step back";
    EXPECT_EQ(std::pair(wanted.step, wanted.top), std::pair(got.step, got.top));
}

/// The engine and the status bar show the active document; the files on disk are those of all steps.
void expectOneFrame(Road& r)
{
    int steps = 0;
    for (fImage* image : r.frame->documents()) {
        const Document& document = image->document();
        EXPECT_TRUE(document.undo.stands());
        steps += document.undo.UndoTop();
        EXPECT_EQ(r.frame->workspace().engineHolds(document), image == r.frame->GetActiveImage());
        if (image != r.frame->GetActiveImage()) continue;
        EXPECT_TRUE(sameBits(document.bits(), r.engine().bits())) << "engine";
        EXPECT_EQ(document.Region.working(), r.engine().BitsRegion());
        EXPECT_EQ(r.frame->status().panel(Panel::Size), image->SizeText());
        EXPECT_EQ(r.frame->status().panel(Panel::Name), image->Caption());
        for (const char* undo : {"tb_0_7", "EDIT_0"})
            EXPECT_EQ(r.frame->action(undo)->isEnabled(), document.undo.canUndo()) << undo;
        for (const char* redo : {"tb_0_8", "EDIT_1"})
            EXPECT_EQ(r.frame->action(redo)->isEnabled(), document.undo.canRedo()) << redo;
    }
    EXPECT_EQ(r.files().filter(".dat").size(), steps) << r.files().join(' ').toStdString();
    EXPECT_EQ(r.files().filter(".lock").size(), r.frame->documents().size());
}

/// The words of the last step do the same to the picture that it got.
void expectWords(Road& r, const Bits& before)
{
    const UndoStore::Listed listed = r.own->document().undo.listed();
    const StepNote& note = listed.notes.at(std::size_t(listed.shown));
    const HistoryLines made = historyLines({&note, 1}, before.width(), before.height());
    EXPECT_EQ(made.byHand, QStringList());
    Document document({}, 0);
    document.takePicture(before);
    cBitFilter engine;
    document.handTo(engine);
    engine.setRandomSeed(1);
    Draft draft(document, before, engine, After::Step);
    const Outcome outcome = draft.attempt(recipeJob(Recipe::parse(recipeText(made.lines), {}).steps, r.platform));
    EXPECT_TRUE(outcome) << outcome.reason.toStdString();
    if (outcome) draft.take();
    EXPECT_TRUE(sameBits(r.own->bits(), document.bits())) << made.lines.join('\n').toStdString();
}

/// The word with nothing in between, once and twice.
struct Undisturbed {
    State once, twice;
    bool computed = false;
};

Undisturbed undisturbed(Road& r, const CommandWord& word)
{
    Undisturbed result;
    r.begin();
    result.computed = r.run(word);
    result.once = Road::stateOf(r.own);
    expectOneFrame(r);
    expectState({r.second, {}}, Road::stateOf(r.other));
    expectWords(r, isSizing(word.word) ? r.first : r.start);
    r.run(word);
    result.twice = Road::stateOf(r.own);
    r.end();
    return result;
}

/// Changes the document by one step, by a line or by INVERT.
State changedFrom(const Bits& before, fImage* image)
{
    const State state = Road::stateOf(image);
    EXPECT_TRUE(sameBits(before, state.before));
    EXPECT_FALSE(before == state.picture);
    return state;
}

/// Runs the word with an event while it is computed.
void disturbed(Road& r, const CommandWord& word, const Undisturbed& usual, const Meanwhile& meanwhile)
{
    SCOPED_TRACE(testing::Message() << word.word << ", " << meanwhile.what);
    r.begin();
    const State before = Road::stateOf(r.own);
    const bool computed = r.run(word, [&] {
        meanwhile.happens(r, word);
        if (meanwhile.other == Meanwhile::DrawnOn) changedFrom(r.second, r.other);
    });
    Road::settle();
    EXPECT_TRUE(computed) << "it never came to it";
    EXPECT_EQ(r.frame->documents().size(), meanwhile.documents);
    EXPECT_EQ(bool(r.own), meanwhile.own != Meanwhile::Closed);
    EXPECT_EQ(bool(r.other), meanwhile.other != Meanwhile::Gone);
    const State& own = meanwhile.own == Meanwhile::Twice      ? usual.twice
                       : meanwhile.own == Meanwhile::AsBefore ? before
                                                              : usual.once;
    if (r.own) expectState(own, Road::stateOf(r.own));
    if (r.other)
        meanwhile.other == Meanwhile::Same ? expectState({r.second, {}}, Road::stateOf(r.other))
                                           : void(changedFrom(r.second, r.other));
    EXPECT_EQ(meanwhile.documents == 3, r.engine().BitsWidth() == kOfFile);
    expectOneFrame(r);
    r.end();
    if (r.frame->isVisible()) return;
    EXPECT_EQ(QFileInfo(r.path("Vlaera.dat")).size(), 3081);
    r.frame.reset();
}

} // namespace

TEST_F(Road, WhateverHappensWhileAWordIsComputedEachDocumentKeepsItsOwn)
{
    file("c.bmp", kOfFile);
    int words = 0;
    std::set<std::string_view> asBefore;
    for (const CommandWord& command : vocabulary()) {
        if (!changesPixels(command) || kSteps.contains(command.word)) continue;
        ++words;
        SCOPED_TRACE(command.word);
        const Undisturbed usual = undisturbed(*this, command);
        EXPECT_TRUE(usual.computed);
        const bool sizing = isSizing(command.word); // consecutive ones share a step
        expectState({usual.once.picture, sizing ? first : start, sizing ? 2 : 3, sizing ? 2 : 3}, usual.once);
        if (usual.once.picture == start) asBefore.insert(command.word);
        const bool listed = command.kind == WordKind::Dialog || command.kind == WordKind::Preset;
        for (const Meanwhile& meanwhile : kMeanwhile) {
            if (meanwhile.documents == 0 && listed && words % 8 != 0) continue; // a new frame is slow
            if (meanwhile.own == Meanwhile::Twice && command.word == kOfWhatIsSeen) continue;
            disturbed(*this, command, usual, meanwhile);
        }
    }
    EXPECT_GT(words, 130);
    EXPECT_EQ(asBefore, kAsBefore);
}

/// Steps are read by a thread, in their turn; what is pressed before the first of them is done counts all the same.
TEST_F(Road, QuickStepsAreSteps)
{
    const struct {
        std::vector<const char*> pressed;
        int picture; // after so many words; 3 and 4: those of 1 and 2 flipped
        int step, top;
    } rows[] = {
        {{"UNDO"}, 1, 2, 3},
        {{"UNDO", "UNDO"}, 0, 1, 3},
        {{"UNDO", "UNDO", "UNDO"}, 0, 1, 3},
        {{"UNDO", "UNDO", "REDO"}, 1, 2, 3},
        {{"REDO"}, 2, 3, 3},
        {{"UNDO", "FLIPH"}, 3, 3, 3},         // of the picture a step back
        {{"FLIPH", "UNDO"}, 2, 3, 3},         // what is under way is what is taken back
        {{"FLIPH", "REDO"}, 4, 4, 4},         // there is nothing to redo
        {{"UNDO", "FLIPH", "UNDO"}, 1, 2, 3}, // and the step before it stands
        {{"UNDO", "ESC"}, 2, 3, 3},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.pressed.front() << "... " << row.pressed.back() << row.pressed.size());
        begin();
        own->parentWidget()->close();
        own = open(first, "c.bmp");
        std::vector<Bits> pictures{own->bits()};
        for (const char* word : {"INVERT", "HEAVYSATURATION"}) {
            command(word);
            pictures.push_back(own->bits());
        }
        for (const Bits& of : {pictures[1], pictures[2]}) {
            cBitFilter flipped;
            flipped.setBits(of);
            flipped.setBitsRegion(Region::rectangle(0, 0, of.width(), of.height()));
            pictures.push_back(flipped.Flip(true, false));
        }
        for (const std::string_view word : row.pressed)
            word == "ESC" ? escape() : frame->Mmenu(QString::fromUtf8(word.data()));
        frame->workspace().wait();
        EXPECT_TRUE(sameBits(pictures[std::size_t(row.picture)], own->bits()));
        EXPECT_EQ(std::pair(row.step, row.top),
                  std::pair(own->document().undo.UndoStep(), own->document().undo.UndoTop()));
        expectOneFrame(*this);
        end();
    }
}

TEST_F(Road, ASaveThatWaitsComesBeforeItsDocumentCloses)
{
    openFile(file("a.bmp", 60, 45));
    const QPointer<fImage> image = frame->GetActiveImage();
    const QByteArray before = fileBytes(path("a.bmp"));
    click("Pencil");
    mouse(image, QEvent::MouseButtonPress, {3, 3},
          Qt::LeftButton); // the stroke holds both back until the close ends it
    frame->Mmenu("INVERT");
    frame->Mmenu("SAVE");
    image->parentWidget()->close();
    EXPECT_TRUE(frame->documents().isEmpty());
    EXPECT_FALSE(fileBytes(path("a.bmp")) == before);
}

TEST_F(Road, AStrokeUnderWayHoldsTheChangesOfItsDocument)
{
    openFile(file("a.bmp", 60, 45));
    openFile(file("b.bmp", 50, 40));
    fImage *a = frame->documents()[0], *b = frame->documents()[1];
    activate(a);
    click("Pencil");
    mouse(a, QEvent::MouseButtonPress, {3, 3}, Qt::LeftButton);
    std::atomic<bool> began = false, other = false;
    frame->workspace().change(a->document().handle(), {[&](Document&, cBitFilter&) { began = true; }});
    frame->workspace().change(b->document().handle(), {[&](Document&, cBitFilter&) { other = true; }});
    ASSERT_TRUE(comes([&] { return other && !frame->workspace().isBusy(b->document().handle()); }));
    EXPECT_FALSE(began);
    mouse(a, QEvent::MouseButtonRelease, {3, 3}, {});
    EXPECT_TRUE(comes([&] { return began.load(); }));
}

/// Two files, one rotated at high quality; the other is drawn on meanwhile, and once more afterwards.
TEST_F(Road, AStrokeOnAnotherDocumentWhileOneTurnsIsThatDocuments)
{
    openFile(file("a.bmp", 60, 45));
    openFile(file("b.bmp", 50, 40));
    fImage *a = frame->documents()[0], *b = frame->documents()[1];
    engine().clock = [this] {
        gate.pass();
        return clock += 20;
    };
    Document turned({}, 0);
    turned.takePicture(a->bits());
    cBitFilter reference;
    turned.handTo(reference);
    rotateImage(turned, reference, -180, true);
    const Bits untouched = b->bits();
    Bits line;
    activate(a);
    click("Pencil");
    gate.shut();
    frame->Mmenu("A180");
    activate(b);
    drag(b, {5, 5}, {30, 20});
    line = b->bits();
    gate.open();
    frame->workspace().wait();
    EXPECT_TRUE(sameBits(turned.bits(), a->bits()));
    EXPECT_TRUE(sameBits(line, b->bits()));
    EXPECT_FALSE(line == untouched);
    drag(b, {5, 30}, {30, 30});
    EXPECT_FALSE(line == b->bits());
    EXPECT_EQ(a->document().undo.UndoStep(), 2);
    EXPECT_EQ(b->document().undo.UndoStep(), 3);
    command("UNDO");
    EXPECT_TRUE(sameBits(line, b->bits()));
    command("UNDO");
    EXPECT_TRUE(sameBits(untouched, b->bits()));
}

} // namespace velara
