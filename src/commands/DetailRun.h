// DetailRun: a filter on the whole picture by a thread of its own, for what a small copy can't show.
#pragma once
#include "commands/filterDialogs.h"
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

namespace velara {

class DetailRun {
  public:
    /// done is called by the thread, with the picture as the filter leaves it; a run that fails or is ended says
    /// nothing.
    DetailRun(const FilterRow& row, const Bits& picture, const Region& selection,
              std::function<void(const Bits&)> done);
    /// Ends what runs, and waits for it: no call of done comes later.
    ~DetailRun();

    /// A run that works goes on to its end; of the arguments that come meanwhile the last are run next.
    void start(const FilterArgs& args);
    /// Ends what runs, at its next report of progress, and forgets what waits.
    void stop();

  private:
    void work();
    void run(const FilterArgs& args);

    const FilterRow& row_;
    const Bits picture_;
    const Region selection_;
    const std::function<void(const Bits&)> done_;
    std::mutex guard_;
    std::condition_variable changed_;
    std::optional<FilterArgs> waiting_;
    bool ends_ = false;
    std::atomic<bool> stopped_ = false; // what runs is not wanted any more
    std::thread thread_;                // last: starts when all else is there
};

} // namespace velara
