// How a run of velara-batch ends when it doesn't end well: the exit status and what a person reads.
#pragma once
#include <QString>

namespace velara {

enum class Status { Done = 0, FileFault = 1, BadArgument = 2, OperationFailed = 3 };

struct Failure {
    Status status;
    QString text;
};

/// Does the work; a failure's text gets the name of what failed in front.
template <class Work> auto naming(const QString& what, Work work)
{
    try {
        return work();
    } catch (const Failure& failure) {
        throw Failure{failure.status, what + QStringLiteral(": ") + failure.text};
    }
}

inline Failure badArgument(const QString& text) { return {Status::BadArgument, text}; }
inline Failure fileFault(const QString& text) { return {Status::FileFault, text}; }

} // namespace velara
