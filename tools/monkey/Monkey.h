// Monkey: operates the editor at random and checks the resulting state.
//
// An action is a random choice from a table (actions.cpp), seeded by its number. Each begins in the event loop,
// whatever is under way: in a dialog's own loop, between two moves of a stroke, in a progress report. From time to time
// everything is brought to rest and compared (Monkey_checks.cpp).
#pragma once
#include "app/frame/fMain.h"
#include "tools/monkey/Blocks.h"
#include "tools/monkey/Hands.h"
#include "tools/monkey/Journal.h"
#include "tools/monkey/MonkeyPlatform.h"
#include <QElapsedTimer>
#include <QObject>
#include <memory>

namespace velara::monkey {

struct Plan {
    std::uint64_t seed = 1;
    std::uint64_t actions = 0; // 0: until the time is over
    int seconds = 120;
    QString journal; // a copy of the journal; empty: none
    QString scratch; // the folder that contains everything
};

class Monkey final : public QObject {
  public:
    Monkey(const Plan& plan, Journal& journal);
    ~Monkey() override;

    /// The whole run. Returns the number of faults; those that end the process are reported by the parent.
    int run();

    // --- For the actions
    Hands& hands() { return hands_; }
    MonkeyPlatform& platform() { return platform_; }
    fMain& frame() { return *frame_; }
    /// The active document's display; null without one.
    QWidget* display() const;
    /// A window that a user could reach: the popup, the modal one, else any. Null: there is none.
    QWidget* anyWindow(Dice& dice) const;
    /// A stroke continues during the next actions, so that others happen in between.
    void beginStroke(QWidget& widget, int moves);
    /// Adds to the journal line of the current action.
    void say(const QString& text);

  protected:
    void timerEvent(QTimerEvent* event) override;

  private:
    void begin();
    void end();
    void step();
    void act();
    bool wantsToAct();
    void goOnWithStroke();
    void leaveFront();
    bool isOver() const;
    bool isOutermost() const;
    void windUp();

    void rest();
    bool leaveAll();
    bool isAtWork(const fImage& image);
    void check();
    void checkDocument(fImage& image);
    void checkScreen(fImage& image);
    void checkHome();
    /// Opens and closes a picture, so that one-time allocations are made; memory is measured from then on.
    void warmUp();
    void checkMemory();
    void fault(const QString& what);

    const Plan plan_;
    Journal& journal_;
    std::uint64_t done_ = 0, rolls_ = 0, checked_ = 0;
    Hands hands_;
    Setup setup_;
    MonkeyPlatform platform_;
    std::unique_ptr<fMain> frame_;
    Blocks blocks_;
    QElapsedTimer time_;
    QPointer<QWidget> stroked_;
    int movesLeft_ = 0;
    int depth_ = 0; // actions under way
    int leaving_ = 0;
    std::atomic<std::uint32_t> clock_{0}; // of the engine, milliseconds
    bool resting_ = false, finished_ = false;
    QString doing_;
    std::size_t memoryBefore_ = 0;
    int faults_ = 0;
};

/// Runs one action of the table.
void actAtRandom(Monkey& monkey, Dice& dice);
/// Uses a control of a window, or a key.
void actInWindow(Monkey& monkey, Dice& dice, QWidget& window);
/// Something that may happen during a progress report.
void actInBetween(Monkey& monkey, Dice& dice);
/// Esc, OK, Cancel or the close button.
void leaveWindow(Monkey& monkey, Dice& dice, QWidget& window);

} // namespace velara::monkey
