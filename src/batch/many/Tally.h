// Tally: how far the work is, for the line on the terminal and the last words.
#pragma once
#include <QString>

namespace velara {

struct Tally {
    int total = 0, done = 0, skipped = 0, failed = 0;

    int left() const { return total - done - skipped - failed; }
};

/// "[####......] 40 of 100, 2 failed, 180 a minute, 0:20 left", at most so many columns wide; seconds since the begin.
QString barOf(const Tally& tally, double seconds, int columns);
/// "40 done, 12 skipped, 2 failed, 46 not begun, in 0:13 (180 a minute)".
QString summaryOf(const Tally& tally, double seconds);

} // namespace velara
