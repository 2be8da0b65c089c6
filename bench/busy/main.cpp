// velara-busy [--size WxH] [--ellipse] [WORD]...: for how long the window's thread is busy at a time while a command
// word that changes pixels is computed, and how soon Esc ends it. One row a word, then the worst. Works without a
// display: QT_QPA_PLATFORM=offscreen.
#include "../bench.h"
#include "Stretches.h"
#include "app/frame/fMain.h"
#include "app/menus/fIcons.h"
#include "support/RecordingPlatform.h"
#include "support/ui/pixelWords.h"
#include <QDir>
#include <QEventLoop>
#include <QMdiSubWindow>
#include <QPointer>
#include <QTimer>
#include <cstdio>
#include <iostream>

namespace velara::bench {
namespace {

constexpr double kMust = 30, kGoal = 8, kEscMust = 100; // milliseconds
constexpr int kEscAfter = 50;

/// Words that need a selection.
constexpr std::string_view kOfSelection[] = {"CUT", "CROP"};
/// Computed while the dialog is open.
bool inDialog(const CommandWord& word) { return word.kind == WordKind::Dialog; }

QString textOf(std::string_view word) { return QString::fromUtf8(word.data(), qsizetype(word.size())); }

struct Result {
    QString word;
    Stretch longest = {};
    double whole = 0;        // from the command to idle
    double esc = -1;         // from Esc to idle; below 0: it was done before
    Stretch escLongest = {}; // from Esc on
    double worst() const { return std::max(longest.busy, escLongest.busy); }
};

class Desk {
  public:
    Desk(Stretches& stretches, Size size, bool ellipse)
        : stretches_(stretches), picture_(picture(size)), ellipse_(ellipse)
    {
        QDir(platform_.programFolder()).mkpath("Temp");
        setup_.AskToSave = false;
        frame_ = std::make_unique<fMain>(platform_, setup_);
        frame_->applyBars();
        frame_->resize(1280, 800);
        frame_->show();
        frame_->workspace().engine().clock = cBitFilter().clock;
        QObject::connect(&frame_->workspace(), &Workspace::idle, [this] { idleAt_ = Moment::now(); });
    }

    Result measure(const CommandWord& word)
    {
        Result result{textOf(word.word)};
        begin(word);
        start(word, [&](QWidget*) { rest(); });
        result.whole = idleAt_.wall - began_.wall;
        result.longest = stretches_.takeLongest();
        end();
        begin(word);
        start(word, [&](QWidget* dialog) { escape(result, dialog); });
        end();
        return result;
    }

  private:
    bool busy() { return frame_->workspace().isBusy(document_); }

    /// Until nothing is under way, and what follows is shown.
    void rest()
    {
        QEventLoop loop;
        QTimer look;
        int quiet = 0;
        look.callOnTimeout([&] {
            quiet = busy() ? 0 : quiet + 1;
            if (quiet == 10) loop.quit();
        });
        look.start(2);
        loop.exec();
    }
    static void pass(int milliseconds)
    {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
    }

    void escape(Result& result, QWidget* dialog)
    {
        pass(kEscAfter);
        const bool running = busy();
        stretches_.takeLongest();
        const Moment pressed = Moment::now();
        QTimer::singleShot(0, &stretches_, [&] {
            QWidget* to = dialog ? dialog : frame_->GetActiveImage()->findChild<QWidget*>("iDst");
            QKeyEvent key(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QCoreApplication::sendEvent(to, &key);
        });
        rest();
        if (running) result.esc = idleAt_.busySince(pressed);
        result.escLongest = stretches_.takeLongest();
    }

    /// A new document with one step to undo and one to redo.
    void begin(const CommandWord& word)
    {
        document_ = frame_->adopt(picture_, platform_.programFolder() + "/a.bmp", Arrival::Made);
        frame_->GetActiveImage()->parentWidget()->setFocus();
        const auto whole = [](Document& draft, cBitFilter&) { draft.edit().at(0, 0).c[0] ^= 1; };
        const bool steps = word.word == "UNDO" || word.word == "REDO";
        for (int i = 0; steps && i < 2; ++i) frame_->workspace().change(document_, {whole});
        rest();
        if (steps) frame_->Mmenu("UNDO");
        const int w = document_->PictureWidth(), h = document_->PictureHeight();
        if (std::ranges::find(kOfSelection, word.word) != std::end(kOfSelection))
            document_->Region.CreateRect(0, 0, w - 1, h - 1, Combine::Or, true);
        else if (ellipse_)
            document_->Region.CreateEllipse(0, 0, w, h, Combine::Or, true);
        frame_->workspace().handOver(*document_);
        if (!document_->Region.IsEmptyRegion()) frame_->GetActiveImage()->activate();
        rest();
        document_->undo.stands();
    }
    void end()
    {
        for (fImage* image : frame_->documents()) image->parentWidget()->close();
        pass(0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Runs the word from the event loop, and clicks OK in its dialog; what comes while it is computed is timed.
    void start(const CommandWord& word, const std::function<void(QWidget* dialog)>& meanwhile)
    {
        const auto begins = [this] {
            stretches_.takeLongest();
            began_ = idleAt_ = Moment::now();
        };
        QTimer user;
        user.callOnTimeout([&] {
            const QPointer<QWidget> dialog = QApplication::activeModalWidget();
            if (!dialog) return;
            user.stop();
            moveEverything(*dialog);
            pass(300); // the previews are drawn
            QTimer::singleShot(0, dialog, [begins, dialog] {
                begins();
                clickOk(*dialog);
            });
            if (!inDialog(word)) return;
            pass(5);
            meanwhile(dialog);
            if (dialog) dialog->close();
        });
        user.start(20);
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] {
            begins();
            frame_->Mmenu(textOf(word.word));
            loop.quit();
        });
        loop.exec();
        if (!inDialog(word)) meanwhile(nullptr);
    }

    Stretches& stretches_;
    Bits picture_;
    bool ellipse_;
    RecordingPlatform platform_;
    Setup setup_;
    std::unique_ptr<fMain> frame_;
    DocumentHandle document_;
    Moment began_, idleAt_;
};

const char* met(double figure, double must, double goal)
{
    return figure > must ? "no" : figure > goal ? "must" : "goal";
}

void print(const Result& r)
{
    char esc[16] = "-";
    if (r.esc >= 0) std::snprintf(esc, sizeof esc, "%.1f", r.esc);
    const Stretch& longest = r.longest.busy > r.escLongest.busy ? r.longest : r.escLongest;
    std::printf("%-18s %8.1f %8.1f %8.1f %-5s %9.0f %8s %-5s  %s\n", r.word.toUtf8().constData(), longest.busy,
                longest.wall, longest.processor, met(longest.busy, kMust, kGoal), r.whole, esc,
                r.esc < 0 ? "-" : met(r.esc, kEscMust, kEscMust), longest.what.constData());
    std::fflush(stdout);
}

int run(Stretches& stretches, Size size, bool ellipse, const std::vector<std::string>& words)
{
    Desk desk(stretches, size, ellipse);
    std::printf(
        "Milliseconds at %dx%d. Longest stretch of the window's thread: busy (wall less the wait for a "
        "processor), wall, processor.\nmust %.0f, goal %.0f; Esc to idle must %.0f\n%-18s %8s %8s %8s %-5s %9s %8s\n",
        size.width, size.height, kMust, kGoal, kEscMust, "word", "busy", "wall", "cpu", "met", "whole", "esc");
    std::vector<Result> results;
    for (const CommandWord& word : vocabulary()) {
        if (!changesPixels(word)) continue;
        if (!words.empty() && std::ranges::find(words, word.word) == words.end()) continue;
        results.push_back(desk.measure(word));
        print(results.back());
    }
    std::ranges::sort(results, std::greater(), &Result::worst);
    std::printf("\nThe worst of %zu:\n", results.size());
    for (std::size_t i = 0; i < std::min<std::size_t>(results.size(), 10); ++i) print(results[i]);
    std::ranges::sort(results, std::greater(), &Result::esc);
    std::printf("\nThe latest ends by Esc:\n");
    for (std::size_t i = 0; i < std::min<std::size_t>(results.size(), 10); ++i) print(results[i]);
    return 0;
}

} // namespace
} // namespace velara::bench

int main(int argc, char** argv)
{
    using namespace velara::bench;
    const QTemporaryDir settings; // not the person's own
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    Stretches stretches(argc, argv);
    velara::useResources();
    Size size{6000, 4000};
    bool ellipse = false;
    std::vector<std::string> words;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--ellipse")
            ellipse = true;
        else if (word != "--size")
            words.push_back(word);
        else if (++i == argc || std::sscanf(argv[i], "%dx%d", &size.width, &size.height) != 2 || size.width < 1 ||
                 size.height < 1) {
            std::cerr << "--size takes a width and a height, such as 6000x4000\n";
            return 2;
        }
    }
    return run(stretches, size, ellipse, words);
}
