// Coordinator: gives the pictures of a plan to worker processes and takes what they tell. A picture that ends its
// worker ends that one alone.
#pragma once
#include "batch/CommandLine.h"
#include "batch/many/Plan.h"
#include "batch/many/Report.h"
#include "batch/many/Tally.h"
#include "batch/many/messages.h"
#include "batch/names/LateNames.h"
#include "fileio/load/Descriptor.h"
#include <chrono>
#include <deque>
#include <list>

namespace velara {

/// What a picture needs while it is worked on: itself, the engine's, the results of a step, what a save packs.
constexpr std::int64_t kBytesAPixel = 6 * std::int64_t{sizeof(Pixel)};

/// Whether a picture of so many pixels may be worked on beside others that have inWork together, in memory of so many
/// bytes. One alone always may: its steps are refused where they need too much.
constexpr bool fitsBeside(std::int64_t pixels, std::int64_t inWork, std::int64_t memory)
{
    return inWork == 0 || (inWork + pixels) * kBytesAPixel <= memory;
}

class Coordinator {
  public:
    /// The process has one thread, and no application object: workers are forks of it.
    Coordinator(const CommandLine& line, const Plan& plan, Report& report, int jobs);

    struct Outcome {
        Tally tally;
        double seconds = 0;
        int signal = 0; // that ended it early; 0: none
    };
    /// Until all pictures are done, or no more are begun and those under way are done: after a failure where that is
    /// wanted, on a full disk, after SIGINT, SIGTERM or SIGHUP. A second signal ends it at once. No output is half
    /// written in either case.
    Outcome run();

  private:
    struct Hand {
        pid_t pid = -1;
        Descriptor socket{};
        int current = -1, next = -1; // pictures; -1: none
        bool isWaiting = false;      // the current one is read, and there was no memory for it
        std::int64_t pixels = 0;     // of the current one while it is worked on
    };
    int takePicture();
    void tellSkipped();
    bool start();
    void feed();
    void read(Hand& hand, int picture);
    void goOn(Hand& hand);
    bool mayGoOn(std::int64_t pixels) const;
    void hear(Hand& hand);
    void ended(Hand& hand);
    void name(Hand& hand, const Told& told);
    void done(const Told& told, const QString& reason);
    void advance(Hand& hand);
    void hearSignal();
    void stop(const QString& why);
    void show(bool always);
    void say(const QString& text);
    double seconds() const;

    const CommandLine& line_;
    const Plan& plan_;
    Report& report_;
    const std::size_t jobs_;
    const std::int64_t memory_; // bytes that the pictures worked on may need together
    std::chrono::steady_clock::time_point begun_, shown_;
    Outcome outcome_;
    int nextPicture_ = 0;
    LateNames lateNames_;
    std::map<int, QString> named_; // the outputs of pictures that are being written, where they were named late
    std::deque<int> again_;        // pictures of a worker that ended before it began them
    std::list<Hand> hands_;
    Descriptor signals_;
    bool isStopping_ = false, isAtOnce_ = false;
    const bool hasBar_;
};

} // namespace velara
