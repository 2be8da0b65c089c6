#include "tools/monkey/Blocks.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace velara::monkey {

namespace {

constexpr std::chrono::milliseconds kNoted{500};

} // namespace

Blocks::Blocks(Milliseconds patience)
    : schedule_(open(("/proc/self/task/" + std::to_string(gettid()) + "/schedstat").c_str(), O_RDONLY | O_CLOEXEC)),
      last_(now()), watcher_([this, patience] { watch(patience); })
{
}

Blocks::~Blocks()
{
    over_ = true;
    watcher_.join();
    close(schedule_);
}

/// A clock that stops while the thread is runnable but no processor is free.
Blocks::Milliseconds Blocks::now() const
{
    char text[96] = {};
    unsigned long long ran = 0, waited = 0; // nanoseconds
    if (pread(schedule_, text, sizeof text - 1, 0) > 0) std::sscanf(text, "%llu %llu", &ran, &waited);
    const auto passed = std::chrono::steady_clock::now().time_since_epoch() - std::chrono::nanoseconds(waited);
    return std::chrono::duration_cast<Milliseconds>(passed);
}

void Blocks::next() { last_ = now(); }

void Blocks::beat(const QString& doing)
{
    const Milliseconds lasted = now() - last_.load();
    next();
    longest_ = std::max(longest_, lasted);
    if (lasted < kNoted) return;
    Milliseconds& noted = noted_[doing];
    noted = std::max(noted, lasted);
}

void Blocks::watch(Milliseconds patience)
{
    while (!over_) {
        std::this_thread::sleep_for(Milliseconds(50));
        if (now() - last_.load() < patience) continue;
        std::fprintf(stderr, "FAULT the window's thread hangs\n");
        std::abort();
    }
}

} // namespace velara::monkey
