#include "pixels/memory/freeMemory.h"
#include <algorithm>
#include <charconv>
#include <fstream>
#include <limits>
#include <sstream>

namespace velara {

namespace {

constexpr std::int64_t kUnknown = -1, kNoLimit = std::numeric_limits<std::int64_t>::max();

std::string contentOf(const std::string& path)
{
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

/// The whole number that the text begins with; kUnknown for "max" and for nothing.
std::int64_t numberIn(const std::string& text)
{
    std::int64_t number = kUnknown;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// The two kinds of control groups: where they stand, and what their files are called.
struct Groups {
    const char *folder, *limit, *used, *cached[2];
};
constexpr Groups kUnified = {"/sys/fs/cgroup", "memory.max", "memory.current", {"inactive_file", "active_file"}};
constexpr Groups kByKind = {"/sys/fs/cgroup/memory",
                            "memory.limit_in_bytes",
                            "memory.usage_in_bytes",
                            {"total_inactive_file", "total_active_file"}};

/// What the limit of one group leaves.
std::int64_t leftIn(const Groups& kind, const std::string& group)
{
    const std::int64_t limit = numberIn(contentOf(group + '/' + kind.limit));
    const std::int64_t used = numberIn(contentOf(group + '/' + kind.used));
    if (limit < 0 || used < 0) return kNoLimit;
    const std::string stat = contentOf(group + "/memory.stat");
    std::int64_t held = used;
    for (const char* name : kind.cached) held -= std::max<std::int64_t>(valueOf(stat, name), 0);
    return std::max<std::int64_t>(limit - std::max<std::int64_t>(held, 0), 0);
}

/// The least that is left in the program's group and in those around it.
std::int64_t leftInGroups(const std::string& root)
{
    std::int64_t least = kNoLimit;
    std::istringstream lines(contentOf(root + "/proc/self/cgroup"));
    for (std::string line; std::getline(lines, line);) { // "0::/a/b", or "7:memory:/a/b"
        const auto first = line.find(':'), second = line.find(':', first + 1);
        if (second == std::string::npos) continue;
        const std::string kinds = ',' + line.substr(first + 1, second - first - 1) + ',';
        const bool byKind = kinds.find(",memory,") != std::string::npos;
        if (!byKind && kinds != ",,") continue;
        const Groups& kind = byKind ? kByKind : kUnified;
        for (std::string path = line.substr(second + 1);;) { // in a container the path may not be there
            least = std::min(least, leftIn(kind, root + kind.folder + (path == "/" ? "" : path)));
            if (path.empty()) break;
            path.resize(path.find('/') == std::string::npos ? 0 : path.rfind('/'));
        }
    }
    return least;
}

} // namespace

std::int64_t valueOf(const std::string& lines, const std::string& name)
{
    std::istringstream words(lines);
    for (std::string line; std::getline(words, line);) {
        const auto end = line.find_first_of(": ");
        if (end != name.size() || line.compare(0, end, name) != 0) continue;
        const auto digits = line.find_first_of("0123456789", end);
        return digits == std::string::npos ? kUnknown : numberIn(line.substr(digits));
    }
    return kUnknown;
}

std::int64_t freeMemory(const std::string& root)
{
    const std::int64_t available = valueOf(contentOf(root + "/proc/meminfo"), "MemAvailable"); // kB
    return std::min(available < 0 ? kNoLimit : available * 1024, leftInGroups(root));
}

} // namespace velara
