// Landlock, a kernel sandbox that a program applies to itself: paths, ports, other processes.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace velara::decode {

enum class Closing { Holds, Failed, Unknown }; // Unknown: the kernel doesn't support the layer

/// A file or a folder with everything below it that remains accessible, and its use.
struct OpenPath {
    /// Listing: its names; Device: an existing one, reading and writing; Writing: includes creating and removing files.
    enum Use { Listing, Reading, Device, Writing };
    std::string path;
    Use use = Reading;
};

/// From now on this thread and its children reach no other paths, run no programs, and send no signals to processes
/// outside; with Ports::Shut they reach no TCP port. Nonexistent paths are skipped. Needs "no new privileges".
enum class Ports { Open, Shut };
Closing closePaths(const std::vector<OpenPath>& but, Ports ports);

} // namespace velara::decode
