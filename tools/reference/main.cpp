// velara-reference: computes the checksums of every trial by the definitions, and shows where the fast code differs.
#include "tools/reference/trials.h"
#include <cstdio>
#include <fstream>
#include <iostream>

namespace velara {
namespace {

const char kUsage[] =
    "velara-reference                 prints the checksums of all trials, by the definitions\n"
    "velara-reference --write TESTS   writes them to their files within the folder TESTS\n"
    "velara-reference --check TESTS   tells which rows of these files are not what the definitions give\n"
    "velara-reference --diff NAME...  runs both for the named (or all) and tells where they differ\n";

std::string defined(const TrialFamily& family, const std::string& subject)
{
    return sumsLine(subject, sumsOf(family, subject, &Trial::literal));
}

void write(const TrialFamily& family, std::ostream& out)
{
    for (const std::string& subject : family.subjects) out << defined(family, subject) << std::endl;
}

int check(const TrialFamily& family, const std::string& tests)
{
    std::ifstream file(tests + "/" + family.sums);
    int stale = 0;
    std::string line;
    for (const std::string& subject : family.subjects)
        if (!std::getline(file, line) || line != defined(family, subject))
            std::printf("%s: stale row %s\n", family.sums, subject.c_str()), ++stale;
    return stale + (std::getline(file, line) ? 1 : 0);
}

std::string text(const TrialResult& outcome)
{
    if (outcome.fault) return RuntimeError(*outcome.fault).what();
    return std::to_string(outcome.bits.width()) + "x" + std::to_string(outcome.bits.height());
}

/// One line per differing trial: the first pixel with both values, and how many pixels differ.
void tellDifference(const Trial& trial, const TrialResult& literal, const TrialResult& fast)
{
    std::printf("  %s: ", trial.where.c_str());
    const Bits &a = literal.bits, &b = fast.bits;
    if (literal.fault != fast.fault || a.width() != b.width() || a.height() != b.height()) {
        std::printf("defined %s, got %s\n", text(literal).c_str(), text(fast).c_str());
        return;
    }
    int count = 0;
    for (int y = -Bits::kMargin; y < a.height() + Bits::kMargin; ++y)
        for (int x = -Bits::kMargin; x < a.width() + Bits::kMargin; ++x) {
            const Pixel p = a.at(x, y), q = b.at(x, y);
            if (p == q || count++) continue;
            std::printf("x %d, y %d: defined %d %d %d %d, got %d %d %d %d", x, y, p.c[0], p.c[1], p.c[2], p.c[3],
                        q.c[0], q.c[1], q.c[2], q.c[3]);
        }
    std::printf("; %d pixels differ\n", count);
}

/// Whether all of the subject's trials agree. Reports at most ten that differ.
bool agrees(const TrialFamily& family, const std::string& subject)
{
    int differing = 0;
    family.eachTrial(subject, [&](const Trial& trial) {
        const TrialResult literal = resultOf(trial.literal), fast = resultOf(trial.fast);
        if (literal == fast) return;
        if (!differing++) std::printf("%s\n", subject.c_str());
        if (differing <= 10) tellDifference(trial, literal, fast);
    });
    return differing == 0;
}

int run(const std::vector<std::string>& arguments)
{
    const TrialFamily families[] = {operationTrials(), paintTrials(), commandTrials()};
    if (arguments.empty()) {
        for (const TrialFamily& family : families) write(family, std::cout);
        return 0;
    }
    if (arguments[0] == "--write" && arguments.size() == 2) {
        for (const TrialFamily& family : families) {
            std::ofstream file(arguments[1] + "/" + family.sums);
            write(family, file);
            if (!file) return std::fprintf(stderr, "can't write %s\n", family.sums), 1;
        }
        return 0;
    }
    if (arguments[0] == "--check" && arguments.size() == 2) {
        int stale = 0;
        for (const TrialFamily& family : families) stale += check(family, arguments[1]);
        if (stale) std::printf("%d stale: make reference writes them anew\n", stale);
        return stale != 0;
    }
    if (arguments[0] != "--diff") return std::fputs(kUsage, stderr), 2;
    int compared = 0, differing = 0;
    for (const TrialFamily& family : families)
        for (const std::string& subject : family.subjects) {
            const auto wanted = std::find(arguments.begin() + 1, arguments.end(), subject);
            if (arguments.size() > 1 && wanted == arguments.end()) continue;
            ++compared;
            differing += !agrees(family, subject);
        }
    std::printf("%d compared, %d differ from their definition\n", compared, differing);
    return differing || !compared;
}

} // namespace
} // namespace velara

int main(int count, char** words) { return velara::run({words + 1, words + count}); }
