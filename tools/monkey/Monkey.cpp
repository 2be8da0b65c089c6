#include "tools/monkey/Monkey.h"
#include "support/ui/startedEditor.h"
#include <QApplication>
#include <QThread>
#include <QTimerEvent>
#include <utility>

namespace velara::monkey {

namespace {

constexpr int kDeepest = 5;                   // nested actions; beyond that it only leaves windows
constexpr int kBetweenChecks = 250;           // actions
constexpr int kMostLeaving = 5000;            // attempts until the end of a run
constexpr int kBetweenHomes = 2000;           // until all documents are closed
constexpr std::uint64_t kOthers = 1ULL << 32; // numbers of dice that belong to no action
#ifdef __SANITIZE_ADDRESS__
constexpr int kSlow = 5; // slowdown by the sanitizers
#else
constexpr int kSlow = 1;
#endif
constexpr std::chrono::seconds kLongestBlock{2 * kSlow}, kHang{60 * kSlow};

/// What blocks the rest: a popup, else the modal window.
QWidget* inFront()
{
    QWidget* const popup = QApplication::activePopupWidget();
    return popup ? popup : QApplication::activeModalWidget();
}

} // namespace

Monkey::Monkey(const Plan& plan, Journal& journal)
    : plan_(plan), journal_(journal),
      platform_(plan.scratch + "/pictures", [this] { return Dice(plan_.seed, kOthers + ++rolls_); }), blocks_(kHang)
{
    platform_.makeFiles();
}

Monkey::~Monkey() = default;

QWidget* Monkey::display() const
{
    fImage* const image = frame_->GetActiveImage();
    return image ? image->findChild<QWidget*>("iDst") : nullptr;
}

QWidget* Monkey::anyWindow(Dice& dice) const
{
    if (QWidget* front = inFront()) return front;
    QWidgetList windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->isWindow()) windows << window;
    std::ranges::sort(windows, {},
                      [](QWidget* window) { return std::pair(window->objectName(), window->windowTitle()); });
    return windows.isEmpty() ? nullptr : dice.of(windows);
}

void Monkey::say(const QString& text)
{
    doing_ += " " + text;
    journal_.add(text);
}

void Monkey::fault(const QString& what)
{
    ++faults_;
    std::fprintf(stderr, "FAULT %s (before action %llu)\n", qUtf8Printable(what), (unsigned long long)done_);
    journal_.add("\nFAULT " + what);
}

bool Monkey::isOver() const
{
    return plan_.actions ? done_ >= plan_.actions : time_.elapsed() >= plan_.seconds * 1000LL;
}

int Monkey::run()
{
    warmUp();
    time_.start();
    while (!finished_ && faults_ == 0) {
        begin();
        QApplication::exec();
        end();
    }
    if (faults_ == 0) checkMemory();
    std::printf("%llu actions in %lld s, %llu documents compared, %d faults; longest block %lld ms\n",
                (unsigned long long)done_, time_.elapsed() / 1000, (unsigned long long)checked_, faults_,
                (long long)blocks_.longest().count());
    if (blocks_.longest() > kLongestBlock) fault("a block of the window's thread");
    for (const auto& [doing, lasted] : blocks_.noted())
        std::printf("  a block of %lld ms: %s\n", (long long)lasted.count(), qPrintable(doing.left(110)));
    return faults_;
}

void Monkey::begin()
{
    journal_.add("\nthe editor starts");
    frame_ = startedEditor(platform_, setup_);
    frame_->workspace().engine().clock = [this] { return clock_ += 7; }; // called from all threads
    QObject::connect(frame_.get(), &fMain::closed, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    blocks_.next();
    startTimer(0);
}

void Monkey::end()
{
    hands_.releaseAll();
    frame_.reset();
    const QStringList left = QDir(platform_.folder.filePath("Temp")).entryList({"b*"}, QDir::Files);
    if (!left.isEmpty()) fault("files are left in Temp: " + left.join(' '));
}

/// A timer of its own for each action: one that is being handled doesn't fire in a nested loop.
void Monkey::timerEvent(QTimerEvent* event)
{
    killTimer(event->timerId());
    if (finished_ || !frame_) return;
    startTimer(0);
    blocks_.beat(std::exchange(doing_, {}));
    if (resting_) return void(leaveAll());
    ++depth_;
    step();
    --depth_;
}

/// Nothing is under way below this on the stack, neither an action nor a dialog that came by itself: what is awaited
/// now can come.
bool Monkey::isOutermost() const { return depth_ == 1 && QThread::currentThread()->loopLevel() == 1; }

void Monkey::step()
{
    if (faults_ > 0 || blocks_.longest() > kLongestBlock || isOver()) return windUp();
    if (isOutermost() && done_ % kBetweenChecks == 0) {
        check();
        if (faults_ == 0 && done_ % kBetweenHomes == 0) checkHome();
        if (faults_ > 0) return windUp();
    }
    Dice any(plan_.seed, 0);
    if (anyWindow(any)) {
        if (wantsToAct()) act();
        return;
    }
    QThread::msleep(5); // all are hidden: the screen is about to be captured
    if (Dice(plan_.seed, kOthers + ++rolls_).oneIn(40)) platform_.screen().answer();
}

/// Always when idle and in a window that waits; in a progress report sometimes, and more rarely the deeper.
bool Monkey::wantsToAct()
{
    if (depth_ == 1) return true;
    if (inFront()) return true;
    return depth_ < kDeepest && Dice(plan_.seed, kOthers + ++rolls_).oneIn(8 * (depth_ - 1));
}

void Monkey::act()
{
    Dice dice(plan_.seed, done_++);
    journal_.begin(done_, depth_);
    platform_.tidy(dice);
    if (QWidget* front = inFront()) {
        const bool leaves = depth_ >= kDeepest || dice.oneIn(12);
        return leaves ? leaveWindow(*this, dice, *front) : actInWindow(*this, dice, *front);
    }
    if (movesLeft_ > 0 && !dice.oneIn(4)) return goOnWithStroke();
    if (!frame_->isVisible()) return actInWindow(*this, dice, *anyWindow(dice));
    depth_ > 1 ? actInBetween(*this, dice) : actAtRandom(*this, dice);
}

void Monkey::beginStroke(QWidget& widget, int moves)
{
    stroked_ = &widget;
    movesLeft_ = moves;
}

void Monkey::goOnWithStroke()
{
    Dice dice(plan_.seed, kOthers + ++rolls_);
    if (!stroked_ || --movesLeft_ == 0) {
        say("stroke ends");
        movesLeft_ = 0;
        return hands_.releaseAll();
    }
    const QRect room = stroked_->rect().adjusted(-40, -40, 40, 40);
    const QPoint at(dice.within(room.left(), room.right()), dice.within(room.top(), room.bottom()));
    say(QStringLiteral("stroke to %1,%2").arg(at.x()).arg(at.y()));
    hands_.point(*stroked_, at);
}

/// Such as a message about a file, which comes when it is read.
void Monkey::leaveFront()
{
    QWidget* const front = inFront();
    if (!front) return;
    Dice dice(plan_.seed, kOthers + ++rolls_);
    journal_.begin(done_, depth_);
    leaveWindow(*this, dice, *front);
}

/// A gesture holds the queue of its document back; one may be begun by a change that was waiting, such as a paste.
/// True: there was one.
bool Monkey::leaveAll()
{
    leaveFront();
    bool dropped = false;
    for (fImage* image : frame_->documents())
        for (int i = 0; i < 3 && image->dropGesture(); ++i) dropped = true;
    return dropped;
}

/// Leaves everything open, then makes the last check; from then on the loops end.
void Monkey::windUp()
{
    if (finished_) return;
    Dice dice(plan_.seed, kOthers + ++rolls_);
    platform_.tidy(dice);
    QWidget* const front = inFront(); // without one it is a save that is awaited
    if (front && ++leaving_ == kMostLeaving) fault("a window can't be left");
    if (leaving_ > kMostLeaving) std::_Exit(1);
    if (front) return leaveFront();
    if (!isOutermost()) return;
    if (faults_ == 0) check();
    if (faults_ == 0) checkHome();
    finished_ = true;
    QCoreApplication::exit(); // quit() would ask the windows, which may refuse
}

} // namespace velara::monkey
