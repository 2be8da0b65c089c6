// DetailRun: runs a filter on the whole picture in a thread, for details that a small copy can't show.
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
    /// The filter's picture with the arguments.
    using Filter = std::function<Bits(cBitFilter& filter, const FilterArgs& args)>;
    /// done is called on the thread, with the filter's result; a run that fails or is stopped doesn't call it.
    DetailRun(Filter filter, const Bits& picture, const Region& selection, std::function<void(const Bits&)> done);
    /// Stops the current run and waits for it: done is not called afterwards.
    ~DetailRun();

    /// A current run continues to its end; of the arguments that arrive meanwhile the last are run next.
    void start(const FilterArgs& args);
    /// Stops the current run at its next progress report, and drops the waiting arguments.
    void stop();

  private:
    void work();
    void run(const FilterArgs& args);

    const Filter filtered_;
    const Bits picture_;
    const Region selection_;
    const std::function<void(const Bits&)> done_;
    std::mutex guard_;
    std::condition_variable changed_;
    std::optional<FilterArgs> waiting_;
    bool ends_ = false;
    std::atomic<bool> stopped_ = false; // the current run is no longer wanted
    std::thread thread_;                // last: starts when all other members exist
};

} // namespace velara
