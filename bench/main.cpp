// velara-bench [--size WxH] [--cores] [--avx2|--baseline] [--json FILE] [NAME]...: times the rows whose family or name
// contains one of the NAMEs, or all of them, on one thread, and prints one table. --cores adds a column: the time with
// all cores, as a part of that with one thread. --avx2 measures what a processor without AVX-512 gets, --baseline
// one without AVX2, too: twice the goals are fine there. --json writes the figures by name, to compare runs with.
#include "bench.h"
#include "engine/copyPixels.h"
#include "pixels/BlockPool.h"
#include "pixels/threads/parallelFor.h"
#include "rate.h"
#include "support/typicalArguments.h"
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstring>
#include <ctime>
#include <fstream>
#include <hwy/targets.h>
#include <iostream>
#include <map>
#include <string>
#include <thread>

namespace velara::bench {

std::vector<Row>& rows()
{
    static std::vector<Row> all;
    return all;
}

namespace {

constexpr int kPairs = 7;
constexpr const char* kLine = "%-28s %-40s %9s %8s %7s %7s  %-4s %6s %7s  %s\n";

bool withCores = false;

/// Processor time for ratios, so that other running programs don't count; wall-clock time for rows in ms, which may
/// wait for the disk.
double milliseconds(const std::function<void()>& work, clockid_t clock)
{
    const auto now = [clock] {
        timespec t{};
        clock_gettime(clock, &t);
        return double(t.tv_sec) * 1e3 + double(t.tv_nsec) / 1e6;
    };
    const double start = now();
    work();
    return now() - start;
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + kPairs / 2, values.end());
    return values[kPairs / 2];
}

/// A picture to be written to, warm after the first row.
Bits& target(Size size)
{
    static Bits kept;
    if (kept.width() != size.width || kept.height() != size.height) {
        kept = Bits::uninitialized(size.width, size.height);
        std::memset(kept.data(), 1, kept.sizeInBytes());
    }
    return kept;
}

std::function<void()> copying(Size size)
{
    return [to = target(size).data(), source = picture(size)] { std::memcpy(to, source.data(), source.sizeInBytes()); };
}

/// The fastest way to copy the picture: around the cache.
void streamPicture(Size size)
{
    const Bits& source = picture(size);
    const auto pixels = static_cast<int>(source.sizeInBytes() / sizeof(Pixel));
    streamPixels(reinterpret_cast<const Pixel*>(source.data()), reinterpret_cast<Pixel*>(target(size).data()), 0,
                 pixels);
}

/// The least time of a row in milliseconds; 0 for one without a bound.
double leastOf(const Bound& bound, Size size)
{
    const double pixels = double(size.width) * size.height / 1e6;
    const double operations = bound.ofVector / lanesOfAVector() + bound.ofPixel;
    return pixels * (operations == 0 ? 0 : operations * millisecondsAMillionOperations()) +
           pixels * (bound.cycles == 0 ? 0 : bound.cycles * millisecondsAMillionCycles());
}

/// A line of /proc/self/status in bytes; 0 where there is none.
double memory(const std::string& name)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(name + ':')) return std::stod(line.substr(name.size() + 1)) * 1024;
    return 0;
}

/// The most memory that work takes beyond what there is, in pictures, and one for the picture that it works on.
double picturesAtMost(const std::function<void()>& work, Size size)
{
    BlockPool::instance().clear();
    const double before = memory("VmRSS");
    std::ofstream("/proc/self/clear_refs") << '5'; // the peak is what there is now
    work();
    return 1 + (memory("VmHWM") - before) / double(picture(size).sizeInBytes());
}

void measure(benchmark::State& state, const Row& row, Size size)
try {
    const bool timed = row.unit == "ms";
    const clockid_t clock = timed ? CLOCK_MONOTONIC : CLOCK_PROCESS_CPUTIME_ID;
    Timing timing = row.prepare(size);
    if (!timing.reference) timing.reference = copying(size);
    std::vector<double> bodies, figures, copies, streams;
    if (!timing.before) timing.before = [] {};
    timing.before();
    state.counters["memory"] = picturesAtMost(timing.body, size);
    for (auto _ : state) {
        const double reference = timed ? 1 : milliseconds(timing.reference, clock);
        copies.push_back(reference);
        if (row.copied > 0) streams.push_back(milliseconds([&] { streamPicture(size); }, clock));
        timing.before();
        bodies.push_back(milliseconds(timing.body, clock));
        figures.push_back(bodies.back() / (reference * timing.share));
        state.SetIterationTime(bodies.back() / 1000);
    }
    if (withCores) {
        std::vector<double> parts;
        for (int i = 0; i < kPairs; ++i) {
            const auto by = [&](int threads) {
                setThreadCount(threads);
                timing.before();
                return milliseconds(timing.body, CLOCK_MONOTONIC);
            };
            const double one = by(1);
            parts.push_back(by(static_cast<int>(std::thread::hardware_concurrency())) / one);
        }
        setThreadCount(1);
        state.counters["cores"] = median(parts);
    }
    state.counters["ms"] = median(bodies);
    state.counters["figure"] = median(figures);
    constexpr double kLoss = 1.25; // of a loop, on what it could do
    state.counters["bound"] = kLoss * leastOf(row.bound, size) / median(copies);
    state.counters["copied"] = row.copied > 0 ? row.copied * median(streams) / (median(copies) * timing.share) : 0;
} catch (const std::exception& e) {
    state.SkipWithError(e.what());
}

/// Prints a row as soon as it is measured.
class TableReporter : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context&) override
    {
        std::printf(kLine, "family", "operation", "ms", "ratio", "must", "goal", "met", "cores", "memory",
                    "counted in");
        return true;
    }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            const Row& row = rows()[std::size_t(run.family_index)];
            const auto number = [](double v) {
                char text[32];
                std::snprintf(text, sizeof text, "%.2f", v);
                return std::string(v == 0 ? "-" : text);
            };
            if (run.error_occurred) {
                std::printf(kLine, row.family.c_str(), row.name.c_str(), "-", "-", "-", "-", "no", "-", "-",
                            run.error_message.c_str());
                continue;
            }
            const double figure = run.counters.at("figure");
            const double goal = std::max(row.goal, double(run.counters.at("bound"))) + run.counters.at("copied");
            const double must = std::max(row.must, goal);
            const char* met = !row.must ? "-" : figure > must ? "no" : figure > goal ? "must" : "goal";
            const auto cores = run.counters.find("cores");
            std::printf(kLine, row.family.c_str(), row.name.c_str(), number(run.counters.at("ms")).c_str(),
                        number(figure).c_str(), number(must).c_str(), number(goal).c_str(), met,
                        number(cores == run.counters.end() ? 0 : double(cores->second)).c_str(),
                        number(run.counters.at("memory")).c_str(), row.unit.c_str());
            figures_[row.family + ": " + row.name] = figure;
        }
        std::fflush(stdout);
    }
    const std::map<std::string, double>& figures() const { return figures_; }

  private:
    std::map<std::string, double> figures_;
};

void write(const std::map<std::string, double>& figures, const std::string& path)
{
    std::ofstream file(path);
    const char* between = "{\n";
    for (const auto& [name, figure] : figures) {
        file << between << "  \"" << name << "\": " << figure;
        between = ",\n";
    }
    file << "\n}\n";
}

/// Adds the copy that rows are measured by, and operations without a row, with their typical arguments.
void addTheOthers()
{
    rows().push_back({"copy", "memcpy", 0, 0, [](Size size) { return Timing{copying(size), {}}; }});
    for (const Operation& op : operations()) {
        if (std::ranges::any_of(rows(), [&](const Row& row) { return row.operation == op.name; })) continue;
        rows().push_back(operation("not rated", 0, 0, std::string(op.name), typicalArguments(op)));
    }
}

bool asked(const Row& row, const std::vector<std::string>& names)
{
    return names.empty() || std::ranges::any_of(names, [&](const std::string& name) {
               return row.name.find(name) != std::string::npos || row.family.find(name) != std::string::npos;
           });
}

} // namespace
} // namespace velara::bench

int main(int argc, char** argv)
{
    using namespace velara::bench;
    Size size{6000, 4000};
    std::vector<std::string> names;
    std::string json;
    benchmark::Initialize(&argc, argv);
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--cores")
            withCores = true;
        else if (word == "--avx2")
            hwy::DisableTargets(HWY_AVX3_DL);
        else if (word == "--baseline")
            hwy::DisableTargets(HWY_AVX3_DL | HWY_AVX2);
        else if (word == "--json" && i + 1 < argc)
            json = argv[++i];
        else if (word != "--size")
            names.push_back(word);
        else if (++i == argc || std::sscanf(argv[i], "%dx%d", &size.width, &size.height) != 2 || size.width < 1 ||
                 size.height < 1) {
            std::cerr << "--size takes a width and a height, such as 6000x4000\n";
            return 2;
        }
    }
    velara::setThreadCount(1);
    addTheOthers();
    std::erase_if(rows(), [&](const Row& row) { return !asked(row, names); });
    if (rows().empty()) {
        std::cerr << "no row of that name\n";
        return 2;
    }
    std::ranges::stable_sort(rows(), {}, &Row::family);
    for (const Row& row : rows())
        benchmark::RegisterBenchmark(row.name.c_str(),
                                     [&row, size](benchmark::State& state) { measure(state, row, size); })
            ->Iterations(kPairs)
            ->UseManualTime();
    TableReporter table;
    benchmark::RunSpecifiedBenchmarks(&table);
    if (!json.empty()) write(table.figures(), json);
}
