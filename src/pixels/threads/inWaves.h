// A loop whose turns follow one another at a distance, spread over the cores: rows that depend on the row above only up
// to a place a little further on.
#pragma once
#include <atomic>
#include <cstdint>
#include <functional>
#include <vector>

namespace velara {

/// How far the turns of a loop have come, in columns.
class Wave {
  public:
    explicit Wave(int turns) : reached_(static_cast<std::size_t>(turns)) {}

    /// Returns when the turn before this one has come to a column, at once for the first turn. False: the loop has
    /// failed, and the turn ends without touching anything else.
    bool follow(int turn, int column) const;
    /// The turn has done all before a column; what it wrote can be seen by those that follow.
    void reach(int turn, int column);
    /// Of all turns: nobody waits any more.
    void fail();

  private:
    std::vector<std::atomic<int>> reached_;
    std::atomic<bool> failed_ = false;
};

/// turn(i, wave) for the turns 0 to count-1, begun in order; each waits by wave.follow where it depends on the one
/// before and tells by wave.reach how far it is; the end of a turn is no matter of its own to tell. done and exceptions
/// as of parallelFor. Never more than threadCount() turns are under way: when one begins, those up to threadCount()
/// before it have ended. Turns of few pixels in all stay on one thread.
void inWaves(int count, std::int64_t pixelsATurn, const std::function<void(int i, Wave& wave)>& turn,
             const std::function<void(int)>& done);

} // namespace velara
