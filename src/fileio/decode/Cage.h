// The cage of velara-decode: entered before the first byte of a picture is parsed, so that a picture which takes its
// reader over can do nothing with it but give false pixels.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace velara::decode {

/// What a reader still needs inside: nothing, or the fonts of the system, read only.
enum class Needs { Nothing, Fonts };

/// The layers, each of which stands without the others.
enum Layer : unsigned {
    NoNewPrivileges = 1, // a set-user program gives nothing
    Limits = 2,          // no process, no descriptor, no byte in a file
    Landlock = 4,        // no path but those of the fonts, no port, no signal to others
    Seccomp = 8,         // memory, the descriptors at hand and the end; anything else ends the process
};
constexpr unsigned kAllLayers = NoNewPrivileges | Limits | Landlock | Seccomp;

/// Closes the cage with those of the layers that the kernel has. Returns the layers that hold.
unsigned enterCage(Needs needs, unsigned layers = kAllLayers);

/// A line a layer for a person: its name and whether it holds.
std::string describeCage(unsigned holding);

} // namespace velara::decode
