// The cage of velara-decode: entered before the first byte of a picture is parsed, so that a picture which takes its
// reader over can do nothing with it but give false pixels.
#pragma once
#include <string>

namespace velara::decode {

/// What a reader still needs inside: nothing, the fonts of the system, which are handed over opened, or these and the
/// one thread that drawing takes.
enum class Needs { Nothing, Fonts, Drawing };

/// The layers, each of which stands without the others.
enum CageLayer : unsigned {
    NoNewPrivileges = 1, // a set-user program gives nothing
    Limits = 2,       // no process, no further descriptor, no byte in a file; memory and processor time; killed first
    Capabilities = 4, // root is nobody in particular
    Landlock = 8,     // no path, no port, no signal to others
    Seccomp = 16,     // memory, the descriptors at hand and the end; anything else ends the process
};
constexpr unsigned kAllLayers = NoNewPrivileges | Limits | Capabilities | Landlock | Seccomp;

constexpr unsigned long long kMostMemory = 4ULL << 30; // bytes of address space, whatever is free
constexpr unsigned kMostProcessorTime = 61;            // seconds, for any picture; the parent allows most of them less

struct CageState {
    unsigned holding = 0; // layers
    unsigned open = 0;    // layers that the kernel has, and that could not be closed: nothing may be read
};

/// Closes the cage with those of the layers that the kernel has.
CageState enterCage(Needs needs, unsigned layers = kAllLayers);

/// The layers by their names, with a comma between.
std::string namesOf(unsigned layers);
/// A line a layer for a person: its name and whether it holds.
std::string describeCage(const CageState& state);

} // namespace velara::decode
