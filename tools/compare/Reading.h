// One decoding in a child process with limits of time and memory: the old library crashes and loops on damaged files.
#pragma once
#include "fileio/decode/decode.h"
#include <array>
#include <span>

namespace velara::compare {

enum class End { Picture, CutOff, Refused, Died, TooLong };
constexpr const char* kEndNames[] = {"a picture", "cut off", "refused", "died", "too long"};

/// What the child leaves in memory shared with its parent: a checksum of every row, and the pixels of one.
struct Result {
    End end;
    int signal; // that ended the child; 0: none
    int width, height;
    std::array<char, 256> reason; // UTF-8, zero-terminated
    std::array<std::uint64_t, Bits::kMostASide> rows;
    std::array<Pixel, Bits::kMostASide> row;

    bool shows() const { return end == End::Picture || end == End::CutOff; }
};

using Decode = decode::Decoded (*)(decode::FileBytes&& file, const QString& extension);

/// How the child decodes.
struct Terms {
    int row = 0;       // whose pixels are kept
    int perturb = 0;   // fresh memory is filled with its complement; 0: left alone
    int seconds = 10;  // of processor time
    int megabytes = 0; // of address space; 0: unlimited
};

/// A block of shared memory and the children that fill it, one after the other.
class Reading {
  public:
    Reading();
    ~Reading();
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;
    /// Overwritten by the next call.
    const Result& read(Decode decode, std::span<const std::uint8_t> bytes, const QString& extension,
                       const Terms& terms);

  private:
    Result* result_;
};

} // namespace velara::compare
