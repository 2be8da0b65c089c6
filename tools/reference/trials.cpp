#include "tools/reference/trials.h"
#include <cstdio>

namespace velara {

TrialResult resultOf(const std::function<Bits()>& run)
{
    try {
        return {run(), {}};
    } catch (const RuntimeError& e) {
        return {{}, e.fault()};
    }
}

Sums sumsOf(const TrialFamily& family, const std::string& subject, std::function<Bits()> Trial::*side)
{
    std::vector<std::uint64_t> sums;
    family.eachTrial(subject, [&](const Trial& trial) {
        const TrialResult outcome = resultOf(trial.*side);
        const std::int32_t head[] = {outcome.fault ? static_cast<int>(*outcome.fault) : -1, outcome.bits.width(),
                                     outcome.bits.height()};
        sums.resize(std::max(sums.size(), trial.column + 1), checksum(nullptr, 0));
        std::uint64_t& sum = sums[trial.column];
        sum = checksum(head, sizeof head, sum);
        if (!outcome.bits.isNull()) sum = checksum(outcome.bits.data(), outcome.bits.sizeInBytes(), sum);
    });
    Sums folded;
    for (const std::uint64_t sum : sums) folded.push_back(static_cast<std::uint32_t>(sum ^ sum >> 32));
    return folded;
}

std::string sumsLine(const std::string& subject, const Sums& sums)
{
    std::string line = subject + ":";
    for (const std::uint32_t sum : sums) {
        char text[16];
        std::snprintf(text, sizeof text, " %08X", sum);
        line += text;
    }
    return line;
}

} // namespace velara
