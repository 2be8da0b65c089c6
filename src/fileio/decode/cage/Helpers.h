// Threads that share the work of a reader. They are started while the cage closes, as none can be made inside.
#pragma once
#include <cstdint>
#include <functional>

namespace velara::decode {

/// One fewer than `threads`, three at most. To be called once, before threads are forbidden.
void startHelpers(unsigned threads);

/// The number of threads that runTogether uses, the caller's included.
unsigned threadsTogether();

/// Calls work(item, thread) for each item from first up to end, in any order, by all threads at once; thread is below
/// threadsTogether(). Returns when all are done; what a call throws is thrown here, and the items after it may be left
/// out. From one thread, and not from inside of work.
void runTogether(std::uint32_t first, std::uint32_t end,
                 const std::function<void(std::uint32_t item, unsigned thread)>& work);

/// The same in two halves: the helpers begin, and in endTogether the caller takes part. False: nothing is begun, as
/// there are no helpers or they have work. work has to live until endTogether.
bool beginTogether(std::uint32_t first, std::uint32_t end,
                   const std::function<void(std::uint32_t item, unsigned thread)>& work);
void endTogether();

} // namespace velara::decode
