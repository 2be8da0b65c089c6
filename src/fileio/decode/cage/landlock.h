// Landlock, the kernel's rules that a program sets for itself: paths, ports, other processes.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace velara::decode {

enum class Closing { Holds, Failed, Unknown }; // the last: the kernel has no such layer

/// A file or a folder with all below it that stays open, and for what.
struct OpenPath {
    /// Listing: the names in it; Device: an existing one, both ways; Writing: with making and removing files.
    enum Use { Listing, Reading, Device, Writing };
    std::string path;
    Use use = Reading;
};

/// From here on this thread and what it starts reach no other paths, run no program, and send no signal to processes
/// outside; with Ports::Shut they reach no TCP port. Paths that are not there are left out. Needs "no new privileges".
enum class Ports { Open, Shut };
Closing closePaths(const std::vector<OpenPath>& but, Ports ports);

} // namespace velara::decode
