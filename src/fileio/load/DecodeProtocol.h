// The protocol between velara-decode and the program that started it.
//
//   velara-decode EXTENSION [WISH ...], with a socket (SOCK_SEQPACKET) at descriptor 3, shared memory at descriptor 4
//   and the picture file, open for reading, at descriptor 5
//
// A wish is "stored" (colours as the file has them, not sRGB), "bare" (nothing beside the pixels), "page=N" (the N-th
// page or frame, from 1) or "table" (the file is a screen's profile: ColourTablePicture.h). With "warm" no picture is
// read: it serves forks of itself (fileio/decode/warm.h).
//
// The child may send a claim: the size and depth given by the header, and another when the reader of the extension
// leaves the file to the one of its mark. Then it sends an Opening: size, or the reason why the file can't be read.
// Then come the parts that it announces, one after the other, in messages of kPartMessage bytes but for the last of
// each part. Then it fills the slots of the shared memory in turn, each with as many rows as fit, and sends the number
// of the first row of each. The parent copies the rows and returns every slot with one byte. So the picture is never in
// memory twice, and the shared memory stays in the cache. Where the Opening says so a second one follows the rows, with
// the reason why they are incomplete, if they are.
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

/// The exit code of a child that found damage between the rows: it told no reason before.
constexpr int kDamagedInside = 3;

/// What a picture carries beside its pixels. Comment and properties are UTF-8.
enum Part { Exif, Xmp, Iptc, Comment, Properties, Profile, kParts };
/// In bytes; a part of more is left out by the child.
constexpr std::size_t mostIn(Part part) { return std::size_t{part == Profile ? 4U : 1U} << 20; }
constexpr std::size_t kPartMessage = std::size_t{16} << 10;

constexpr const char* kStoredWish = "stored";
constexpr const char* kBareWish = "bare";
constexpr const char* kPageWish = "page=";       // with the number
constexpr const char* kThreadsWish = "threads="; // at most, of the reader; one without
constexpr const char* kTableWish = "table";
constexpr const char* kWarmWish = "warm";
constexpr std::size_t kMostInOrder = 256; // bytes of extension and wishes for a fork

/// First message of the child. Width and height 0: reason is why there is no picture, in UTF-8, zero-terminated.
struct Opening {
    std::uint32_t magic;
    std::int32_t width, height;
    char reason[208] = {};
    std::int32_t pages = 0; // in the file; 0: unknown
    char format[12] = {};   // the extension of the format that the bytes are of, lower case, filled up with zeros
    std::int32_t bits = 0;  // per pixel, in a claim; 0: unknown
    Origin origin = {};
    double dotsAcross = 0, dotsDown = 0; // per inch; 0: unknown
    std::uint32_t parts[kParts] = {};    // bytes of each
    std::uint32_t hasLastWord = 0;       // 1: an Opening follows the rows
};
constexpr std::uint32_t kMagic = 0x31444c56; // "VLD1"
constexpr std::uint32_t kClaim = 0x31434c56; // "VLC1"

/// The number of rows of W pixels, without margin, that fit into a slot.
constexpr int rowsInSlot(int width) { return static_cast<int>(kSlotBytes / (sizeof(Pixel) * width)); }
static_assert(rowsInSlot(Bits::kMostASide) > 0);

} // namespace velara::decode
