// How much memory the machine, or what limits this program in it, has left.
#pragma once
#include <cstdint>
#include <string>

namespace velara {

/// Bytes that can be taken without anything being put out of memory: what the system calls available, or what the
/// limits of the program's control groups leave, whichever is less. Files that are only cached count as free. The
/// largest number when nothing tells. root is the folder that /proc and /sys stand in.
std::int64_t freeMemory(const std::string& root = {});

/// The part of a page of "name value" lines, as /proc/meminfo and memory.stat are; -1 without the name.
std::int64_t valueOf(const std::string& lines, const std::string& name);

} // namespace velara
