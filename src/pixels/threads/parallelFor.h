// A loop whose turns don't depend on one another, spread over the cores. Written once for the calling patterns of
// filters, resizes and palettes; a filter stays the body of a loop.
#pragma once
#include <cstdint>
#include <functional>

namespace velara {

constexpr int kMostThreads = 64;
/// Enough that handing a piece out costs nothing, and few enough that a cancelled loop ends at once.
constexpr int kPixelsAPiece = 1 << 16;

/// How many threads a loop uses at most, the caller's own among them: all cores unless set, 1 to kMostThreads.
int threadCount();
/// Fewer pixels a piece spread small pictures, too, for tests.
void setThreadCount(int threads, int pixelsAPiece = kPixelsAPiece);

/// The turns 0 to count-1 of a loop, `together` consecutive ones by one thread, in any order. done(i) is called for
/// each turn in order, on the caller's thread, after the turn. An exception of a turn or of done ends the loop as it
/// would end a plain one: what is passed on is that of the first turn that throws, and done was called for those before
/// it. Returns when no thread is in a turn any more. turn must not write what another turn reads or writes.
void parallelFor(int count, int together, const std::function<void(int)>& turn,
                 const std::function<void(int)>& done = {});

/// How many turns of so many pixels make a piece of work for a thread.
int turnsTogether(std::int64_t pixelsATurn);

} // namespace velara
