// Stretches: for how long the window's thread does one thing without coming back to its event loop.
#pragma once
#include <QApplication>
#include <QByteArray>
#include <vector>

namespace velara::bench {

/// Of the calling thread, in milliseconds.
struct Moment {
    double wall = 0;
    double waited = 0;    // for a processor that other programs had
    double processor = 0; // at work on one

    static Moment now();
    /// The time between two moments that this thread is to blame for: at work, or waiting for a lock or a disk.
    double busySince(const Moment& start) const { return (wall - start.wall) - (waited - start.waited); }
};

/// Who was called by the event loop, and with what.
struct Stretch {
    double busy = 0, wall = 0, processor = 0; // milliseconds
    QByteArray what;
};

/// An application that times each call of its event loop, also of the loops of modal dialogs.
class Stretches final : public QApplication {
  public:
    Stretches(int& count, char** words);

    /// The longest since the last call, by its busy time.
    Stretch takeLongest() { return std::exchange(longest_, {}); }
    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void ends(const QByteArray& what);

    std::vector<int> levels_; // of the event loops that are under way
    Moment start_;
    bool sleeps_ = false;
    Stretch longest_;
};

} // namespace velara::bench
