// Monkey: hits the editor at random and looks at what it leaves.
//
// An action is a choice out of a table (actions.cpp) by the dice of its number. Each begins as the event loop comes
// round, whatever is under way: in a dialog's own loop, between two moves of a stroke, in a report of progress. From
// time to time everything is brought to rest and compared (Monkey_checks.cpp).
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
    QString journal; // a copy of what was done; empty: none
    QString scratch; // the folder that everything lies in
};

class Monkey final : public QObject {
  public:
    Monkey(const Plan& plan, Journal& journal);
    ~Monkey() override;

    /// The whole run. \returns the number of faults; those that end the process are told by whoever started it.
    int run();

    // --- For the actions
    Hands& hands() { return hands_; }
    MonkeyPlatform& platform() { return platform_; }
    fMain& frame() { return *frame_; }
    /// The active document's display; null without one.
    QWidget* display() const;
    /// A window that a person could get at: the popup, the modal one, else any. Null: there is none.
    QWidget* anyWindow(Dice& dice) const;
    /// A stroke goes on with the next actions, so that others come in between.
    void beginStroke(QWidget& widget, int moves);
    /// Says more of the action under way.
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
    void leave();
    bool isOver() const;
    void windUp();

    void rest();
    void check();
    void checkDocument(fImage& image);
    void checkScreen(fImage& image);
    void checkHome();
    /// An editor that does next to nothing, so that what is made once is there; the memory from then on counts.
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
    bool resting_ = false, windingUp_ = false, finished_ = false;
    QString doing_;
    std::size_t memoryBefore_ = 0;
    int faults_ = 0;
};

/// One of the table's.
void actAtRandom(Monkey& monkey, Dice& dice);
/// On a control of a window, or by a key.
void actInWindow(Monkey& monkey, Dice& dice, QWidget& window);
/// What may happen in the middle of a report of progress.
void actInBetween(Monkey& monkey, Dice& dice);
/// Esc, OK, Cancel or the cross.
void leaveWindow(Monkey& monkey, Dice& dice, QWidget& window);

} // namespace velara::monkey
