// What velara-decode and the program that started it say to each other.
//
//   velara-decode EXTENSION, with a socket (SOCK_SEQPACKET) at descriptor 3, shared memory at descriptor 4 and the
//   picture file, open for reading, at descriptor 5
//
// The child may send a claim, which is the size and the depth that the header gives. Then it sends an Opening: size, or
// the reason why the file can't be read. Then it fills the slots of the shared memory in turn, each with as many rows
// as fit, and sends the number of the first row of each. The parent copies the rows and gives every slot back with one
// byte. So the picture never exists twice, and the memory between them stays in the cache.
#pragma once
#include "fileio/load/Origin.h"
#include "pixels/Bits.h"
#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace velara::decode {

constexpr int kSocket = 3;
constexpr int kMemory = 4;
constexpr int kPicture = 5;
constexpr std::size_t kSlots = 4;
constexpr std::size_t kSlotBytes = 256 << 10; // a row of the widest picture takes half of it
constexpr std::size_t kMemoryBytes = kSlots * kSlotBytes;

/// First message of the child. Width and height 0: reason says in UTF-8, zero-terminated, why there is no picture.
struct Opening {
    std::uint32_t magic;
    std::int32_t width, height;
    char reason[224];
    std::int32_t bits = 0; // of a pixel, in a claim; 0: not known
    Origin origin = {};
};
constexpr std::uint32_t kMagic = 0x31444c56; // "VLD1"
constexpr std::uint32_t kClaim = 0x31434c56; // "VLC1"

/// Rows of W pixels, without margin, that a slot holds.
constexpr int rowsInSlot(int width) { return static_cast<int>(kSlotBytes / (sizeof(Pixel) * width)); }
static_assert(rowsInSlot(Bits::kMostASide) > 0);

} // namespace velara::decode
