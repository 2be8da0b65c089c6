#include "tools/fuzz/Watch.h"
#include "fileio/load/WarmReaders.h"
#include <QDir>
#include <QFile>
#include <cstdio>
#include <cstring>
#include <new>
#include <optional>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace velara::fuzz {

namespace {

using namespace std::chrono;

constexpr milliseconds kHang = 150s; // beyond all limits of the loader
constexpr int kFaultsBeforeGivingUp = 100;

std::int64_t now() { return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count(); }

class Watch {
  public:
    Watch(const Plan& plan, const Place& place) : plan_(plan), place_(place), end_(now() + plan.time / 1ms)
    {
        void* shared = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (shared == MAP_FAILED) qFatal("no memory");
        at_ = new (shared) Progress;
        place_.tally = &at_->tally;
    }
    Progress& progress() { return *at_; }
    /// Runs one worker after the other, until one reaches the end of the plan.
    void run()
    {
        while (at_->faults < kFaultsBeforeGivingUp) {
            at_->since = now();
            const pid_t worker = fork();
            if (worker < 0) qFatal("no process");
            if (worker == 0) {
                prctl(PR_SET_PDEATHSIG, SIGKILL);
                work();
                std::fflush(nullptr);
                _exit(0);
            }
            if (watched(worker)) return;
        }
    }

  private:
    std::uint64_t wanted(std::size_t s) const
    {
        return plan_.brief ? static_cast<std::uint64_t>(plan_.subjects[s]->brief) : plan_.runs;
    }
    /// The subject that is furthest below its share; none when the plan is done.
    std::optional<std::size_t> next() const
    {
        std::optional<std::size_t> best;
        double least = 0;
        const bool byTime = !plan_.brief && plan_.runs == 0;
        if (byTime && now() >= end_) return {};
        for (std::size_t s = 0; s < plan_.subjects.size(); ++s) {
            if (!byTime && at_->begun[s] >= wanted(s)) continue;
            const double had = static_cast<double>(at_->spent[s]) / plan_.subjects[s]->share;
            if (!best || had < least) best = s, least = had;
        }
        return best;
    }
    void work()
    {
        std::optional<WarmReaders> warm;
        if (plan_.warm) warm.emplace();
        while (const auto s = next()) {
            at_->subject = *s;
            at_->since = now();
            const std::uint64_t number = plan_.seed + at_->begun[*s]++;
            const QString fault = plan_.subjects[*s]->run(place_, number);
            const std::int64_t took = now() - at_->since;
            at_->spent[*s] += took;
            at_->slowest = std::max<std::int64_t>(at_->slowest, took);
            ++at_->done[*s];
            rusage readers{};
            getrusage(RUSAGE_CHILDREN, &readers);
            at_->readerPeak = std::max<long>(at_->readerPeak, readers.ru_maxrss);
            if (!fault.isEmpty()) tell(*s, number, fault);
            if (at_->faults >= kFaultsBeforeGivingUp) return;
        }
    }
    /// True when the worker reached the end of the plan by itself.
    bool watched(pid_t worker)
    {
        int status = 0;
        bool hung = false;
        while (waitpid(worker, &status, WNOHANG) == 0) {
            std::this_thread::sleep_for(20ms);
            hung = now() - at_->since > kHang.count();
            if (!hung) continue;
            kill(worker, SIGABRT);
            waitpid(worker, &status, 0);
            break;
        }
        if (!hung && WIFEXITED(status) && WEXITSTATUS(status) == 0) return true;
        ++(hung ? at_->hangs : at_->crashes);
        const std::size_t s = at_->subject;
        const QString how = hung                  ? "hangs"
                            : WIFSIGNALED(status) ? QString("ends the program by signal %1").arg(WTERMSIG(status))
                                                  : QString("ends the program with %1").arg(WEXITSTATUS(status));
        tell(s, plan_.seed + at_->begun[s] - 1, how);
        return false;
    }
    /// Keeps the input under the name of subject and number.
    void tell(std::size_t subject, std::uint64_t number, const QString& fault)
    {
        ++at_->faults;
        const char* name = plan_.subjects[subject]->name;
        std::fprintf(stderr, "FAULT %s %llu: %s\n", name, static_cast<unsigned long long>(number),
                     qUtf8Printable(fault));
        QDir().mkpath(plan_.keep);
        const QString stem = QString("%1/%2-%3").arg(plan_.keep, name).arg(number);
        for (const QFileInfo& file : QDir(place_.input).entryInfoList(QDir::Files))
            if (QFile::rename(file.filePath(), stem + '-' + file.fileName()))
                std::fprintf(stderr, "      %s\n", qUtf8Printable(stem + '-' + file.fileName()));
    }

    const Plan& plan_;
    Place place_;
    std::int64_t end_;
    Progress* at_;
};

} // namespace

const Progress& carryOut(const Plan& plan, const Place& place)
{
    static Watch* watch = new Watch(plan, place); // never deleted: it is shared
    watch->run();
    return watch->progress();
}

} // namespace velara::fuzz
