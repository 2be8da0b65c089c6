// The limits that a user or an administrator sets for reading pictures: velara-studio/limits.conf in the folders of the
// desktop's configuration, the user's own and those of the system (XDG_CONFIG_HOME, XDG_CONFIG_DIRS). Where several set
// the same thing the strictest holds, so that nobody can loosen what an administrator has set.
#pragma once
#include <QString>
#include <QStringList>
#include <cstdint>
#include <limits>

namespace velara {

struct ReadPolicy {
    std::int64_t pixels = std::numeric_limits<std::int64_t>::max();   // of a picture
    std::uint64_t memory = std::numeric_limits<std::uint64_t>::max(); // bytes that a reader may take
    unsigned seconds = std::numeric_limits<unsigned>::max();          // of processor time, for any picture
    QStringList off;                                                  // extensions that are not read, lower case
    QStringList faults;                                               // lines that say nothing: "FILE:3: ..."

    /// Adds what the text of a file sets. A line is "name = value": pixels, memory (both with K, M or G), seconds,
    /// formats-off (extensions, separated by blanks); # begins a comment.
    void take(const QString& text, const QString& file);
};

/// Of this machine and user, read once; faults go to the standard error output.
const ReadPolicy& readPolicy();

} // namespace velara
