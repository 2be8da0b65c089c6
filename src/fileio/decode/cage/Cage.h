// The cage of velara-decode and velara-encode: entered before the first byte of a picture is parsed, so that a picture
// that takes over its reader can do no more than deliver wrong pixels.
#pragma once
#include <string>
#include <thread>

namespace velara::decode {

/// What a reader still needs inside: nothing; the system's fonts, which are opened beforehand; these and the one thread
/// that drawing uses; not to learn of several processors, for a library that would start a thread for each; or threads
/// that share its work (Helpers.h). Encoding is what velara-encode needs: threads of its own, and all of the free
/// memory; it limits its time by itself.
enum class Needs : unsigned { Nothing = 0, Fonts = 1, Drawing = 3, Solitude = 4, Encoding = 8, Helpers = 16 };
constexpr Needs operator|(Needs a, Needs b) { return Needs(unsigned(a) | unsigned(b)); }
constexpr Needs without(Needs all, Needs part) { return Needs(unsigned(all) & ~unsigned(part)); }
constexpr bool include(Needs all, Needs part) { return (unsigned(all) & unsigned(part)) == unsigned(part); }

/// The layers; each works without the others.
enum CageLayer : unsigned {
    NoNewPrivileges = 1, // set-user-id programs give no rights
    Limits = 2,       // no new process or descriptor, no byte in a file; memory and processor time; first to be killed
    Capabilities = 4, // root has no privileges
    Landlock = 8,     // no path, no port, no signal to others
    Seccomp = 16,     // only memory, the open descriptors and exit; any other call ends the process
};
constexpr unsigned kAllLayers = NoNewPrivileges | Limits | Capabilities | Landlock | Seccomp;

constexpr unsigned long long kMostMemory = 4ULL << 30; // bytes of address space, however much is free
constexpr unsigned kMostProcessorTime = 61;            // seconds, for any picture; the parent allows most of them less

struct CageState {
    unsigned holding = 0; // the active layers
    unsigned open = 0;    // layers that the kernel supports but that failed: nothing may be read
};

/// Activates those of the layers that the kernel supports. A reader with helpers has so many threads at most.
CageState enterCage(Needs needs, unsigned layers = kAllLayers, unsigned threads = std::thread::hardware_concurrency());

/// The layers by their names, separated by commas.
std::string namesOf(unsigned layers);
/// One line per layer for a person: its name and whether it is active.
std::string describeCage(const CageState& state);

} // namespace velara::decode
