// How a run of velara-batch fails: the exit status and the message for the user.
#pragma once
#include "commands/recipe/StepFault.h"
#include <QString>

namespace velara {

enum class Status { Done = 0, FileFault = 1, BadArgument = 2, OperationFailed = 3 };

struct Failure {
    Status status;
    QString text;
    bool diskIsFull = false; // no other picture can be written either
};

/// Runs work; prefixes a failure's text with what.
template <class Work> auto naming(const QString& what, Work work)
{
    try {
        return work();
    } catch (const Failure& failure) {
        throw Failure{failure.status, what + QStringLiteral(": ") + failure.text, failure.diskIsFull};
    }
}

inline Failure failureOf(const StepFault& fault)
{
    return {fault.kind == StepFault::Unusable ? Status::BadArgument : Status::OperationFailed, fault.text};
}
inline Failure badArgument(const QString& text) { return {Status::BadArgument, text}; }
inline Failure fileFault(const QString& text) { return {Status::FileFault, text}; }

} // namespace velara
