#include "batch/names/LateNames.h"
#include "fileio/disk/nativeName.h"

namespace velara {

namespace {

FileTime timeOf(const struct stat& status) { return {status.st_mtim.tv_sec, status.st_mtim.tv_nsec}; }

} // namespace

QString lateOutput(const ManyOrder& order, const Plan& plan, const Told& named, const WorkOrder& answer)
{
    NameFacts facts = plan.facts(named.picture);
    facts.width = named.width;
    facts.height = named.height;
    const QString output = outputOf(order, facts);
    return answer.number > 1 ? numberedName(output, answer.number) : output;
}

QString lateRefusal(const Plan& plan, const QString& output, const WorkOrder& answer)
{
    if (answer.picture < 0) return QStringLiteral("%1 is an input; --in-place --yes changes originals").arg(output);
    return QStringLiteral("%1 has become %2 already; {dir} or {n} in --name keeps them apart")
        .arg(plan.input(answer.picture), output);
}

bool LateNames::isTaken(const QString& output) const { return taken_.contains(output) || isThere(output); }

WorkOrder LateNames::answer(const Told& named, QString& output)
{
    WorkOrder answer{WorkOrder::Write, named.picture, 1};
    output = lateOutput(order_, plan_, named, answer);
    if (order_.existing == Existing::Number) {
        while (isTaken(lateOutput(order_, plan_, named, answer))) ++answer.number;
        output = lateOutput(order_, plan_, named, answer);
    } else if (const auto other = taken_.find(output); other != taken_.end() && other->second != named.picture) {
        return {WorkOrder::Refuse, other->second};
    } else if (const auto there = statusOf(output)) {
        if (plan_.originals.contains({there->st_dev, there->st_ino})) return {WorkOrder::Refuse, -1};
        const auto input = statusOf(plan_.input(named.picture));
        if (isLeft(order_, input ? timeOf(*input) : FileTime(), timeOf(*there))) answer.kind = WorkOrder::Leave;
    }
    taken_.emplace(output, named.picture);
    return answer;
}

} // namespace velara
