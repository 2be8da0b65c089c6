// Every operation of the table compared with its definition, for random pictures, selections and arguments; and its
// vector kernels, which give the same bytes for every instruction set that the processor supports.
#include "engine/colour/mPalette.h"
#include "engine/rowsAround.h"
#include "pixels/threads/parallelFor.h"
#include "support/filterOf.h"
#include "support/instructionSets.h"
#include "support/pictures.h"
#include "support/sums.h"
#include "support/typicalArguments.h"
#include <thread>
#include <utility>
#include <vector>

namespace velara {
namespace {

TEST(Operations, GiveWhatTheirDefinitionsGive) { expectCommittedSums(operationTrials()); }

TEST(Operations, EveryInstructionSetGivesWhatTheBestGives)
{
    PaletteColors() = {{0, 0, 0}, {255, 255, 255}, {200, 30, 40}};
    const Bits bits = randomBits(1111, 37, 8);
    const Region region = Region::ellipse(-1, 0, 1111, 37);
    std::vector<std::pair<std::string_view, Arguments>> calls{
        {"RotateH", {30, 50}}, {"RotateH", {30, 73}}, {"SATURATION", {-33}}};
    for (const Operation& op : operations()) calls.emplace_back(op.name, typicalArguments(op));
    std::vector<Bits> best;
    withEachInstructionSet([&] {
        for (std::size_t i = 0; i < calls.size(); ++i) {
            const auto& [name, arguments] = calls[i];
            const Bits result = run(name, arguments, bits, region);
            if (i == best.size()) best.push_back(result);
            EXPECT_TRUE(sameBits(best[i], result)) << name;
        }
    });
}

// A band with the rows that its own depend on, and no more, gives what the whole picture does.
TEST(Operations, SomeAreDoneInBandsOfRows)
{
    const auto rowsOf = [](const Bits& bits, int from, int to) {
        Bits rows(bits.width(), to - from);
        for (int y = -Bits::kMargin; y < to - from + Bits::kMargin; ++y)
            if (from + y >= -Bits::kMargin && from + y < bits.height() + Bits::kMargin)
                std::copy_n(bits.row(from + y) - Bits::kMargin, bits.stride(), rows.row(y) - Bits::kMargin);
        return rows;
    };
    const Bits bits = randomBits(67, 48, 12);
    const int height = bits.height();
    int count = 0;
    for (const Operation& op : operations()) {
        const auto reach = rowsAround(op);
        if (!reach) continue;
        ++count;
        const auto result = [&](const Bits& of) {
            return run(op.name, typicalArguments(op), of, Region::rectangle(0, 0, of.width(), of.height()));
        };
        const Bits whole = result(bits);
        for (const auto& [from, to] : {std::pair{0, 16}, {16, 17}, {17, 40}, {40, height}}) {
            const int first = std::max(0, from - *reach), end = std::min(height, to + *reach);
            const Bits band = result(rowsOf(bits, first, end));
            for (int y = from; y < to; ++y)
                EXPECT_TRUE(std::equal(whole.row(y), whole.row(y) + bits.width(), band.row(y - first))) << op.name << y;
        }
    }
    EXPECT_GT(count, 30);
}

// Results, faults, percentages and where a report ends the filter: small pieces spread even a small picture.
TEST(Operations, AnyNumberOfThreadsGivesTheSame)
{
    struct Run {
        Bits bits;
        std::vector<int> percents;
        bool operator==(const Run&) const = default;
    };
    const auto runOf = [](const Operation& op, const Region& region, int lastReport) {
        cBitFilter filter = filterOf(randomBits(161, 301, 4), region);
        Run run;
        filter.clock = [now = 0U]() mutable { return now += 11; };
        filter.Progress = [&](int percent) {
            run.percents.push_back(percent);
            if (int(run.percents.size()) == lastReport) throw Cancelled();
        };
        try {
            op.call(filter, typicalArguments(op));
            run.bits = filter.bits();
        } catch (const Cancelled&) {
        }
        return run;
    };
    PaletteColors() = {{0, 0, 0}, {255, 255, 255}, {200, 30, 40}};
    const Region hole = Region::ellipse(60, 40, 90, 250);
    const Region regions[] = {Region::rectangle(0, 0, 161, 301),
                              Region::ellipse(5, 3, 190, 290).combined(hole, Combine::Diff)};
    for (const Operation& op : operations())
        for (const Region& region : regions)
            for (const int lastReport : {0, 40}) {
                setThreadCount(1);
                const Run one = runOf(op, region, lastReport);
                for (const int threads : {2, 3, 8}) {
                    setThreadCount(threads, 1);
                    EXPECT_TRUE(runOf(op, region, lastReport) == one) << op.name << " by " << threads;
                }
            }
    const Bits wide = randomBits(32000, 8, 5); // its last row is copied faster than the one before it is made
    const Region all = Region::rectangle(0, 0, 32000, 60);
    setThreadCount(1);
    const Bits embossed = run("EMBOSS", {10}, wide, all);
    setThreadCount(2, 1);
    for (int i = 0; i < 50; ++i) EXPECT_TRUE(sameBits(embossed, run("EMBOSS", {10}, wide, all)));
    const Bits rows = randomBits(6000, 60, 6); // wide enough for several turns of rows to be under way
    setThreadCount(1);
    const Bits diffused = run("StuckiBW", {42}, rows, all);
    setThreadCount(4, 1);
    for (int i = 0; i < 5; ++i) EXPECT_TRUE(sameBits(diffused, run("StuckiBW", {42}, rows, all)));
    const TrialFamily family = operationTrials();
    for (const std::string& subject : family.subjects) {
        setThreadCount(1);
        const Sums one = sumsOf(family, subject, &Trial::fast);
        setThreadCount(3, 1);
        EXPECT_EQ(sumsOf(family, subject, &Trial::fast), one) << subject;
    }
    setThreadCount(int(std::thread::hardware_concurrency()));
}

} // namespace
} // namespace velara
