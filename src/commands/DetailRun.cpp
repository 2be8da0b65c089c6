#include "commands/DetailRun.h"
#include "engine/cBitFilter.h"
#include "pixels/RuntimeError.h"
#include "pixels/memory/MemoryBudget.h"
#include <new>
#include <utility>

namespace velara {

DetailRun::DetailRun(Filter filter, const Bits& picture, const Region& selection, std::function<void(const Bits&)> done)
    : filtered_(std::move(filter)), picture_(picture), selection_(selection), done_(std::move(done)),
      thread_(&DetailRun::work, this)
{
}

DetailRun::~DetailRun()
{
    stop();
    {
        const std::lock_guard lock(guard_);
        ends_ = true;
    }
    changed_.notify_one();
    thread_.join();
}

void DetailRun::start(const FilterArgs& args)
{
    {
        const std::lock_guard lock(guard_);
        waiting_ = args;
    }
    changed_.notify_one();
}

void DetailRun::stop()
{
    const std::lock_guard lock(guard_);
    waiting_.reset();
    stopped_ = true;
}

void DetailRun::work()
{
    std::unique_lock lock(guard_);
    for (;;) {
        changed_.wait(lock, [this] { return ends_ || waiting_; });
        if (ends_) return;
        const FilterArgs args = *std::exchange(waiting_, {});
        stopped_ = false;
        lock.unlock();
        try {
            run(args);
        } catch (const RuntimeError&) { // the preview of the small copy reports it
        } catch (const Cancelled&) {
        } catch (const std::bad_alloc&) {
        }
        lock.lock();
    }
}

void DetailRun::run(const FilterArgs& args)
{
    const MemoryBudget budget;
    cBitFilter filter;
    filter.Progress = [this](int) {
        if (stopped_) throw Cancelled();
    };
    filter.setBits(picture_);
    filter.setBitsRegion(selection_);
    const Bits result = filtered_(filter, args);
    if (!stopped_) done_(result);
}

} // namespace velara
