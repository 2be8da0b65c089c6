// What velara-encode is given: a descriptor of memory that begins with a Request. Its standard output takes the file;
// its exit status is 0 when that is complete.
#pragma once
#include <cstddef>
#include <cstdint>

namespace velara::encode {

constexpr int kMemory = 3; // the descriptor's number

enum class Format : std::uint32_t { Avif, Jxl, Webp, LosslessWebp };

/// Followed by the W times H pixels, red, green and blue, then the EXIF from its byte order mark on, the XMP, and
/// the profile of the pixels where they aren't in sRGB.
struct Request {
    Format format;
    std::uint32_t width, height;
    std::uint32_t quality; // 0 to 100
    std::uint32_t threads;
    std::uint32_t exif, xmp, profile; // bytes

    std::size_t pixelBytes() const { return std::size_t{width} * height * 3; }
    std::size_t bytes() const { return sizeof(Request) + pixelBytes() + exif + xmp + profile; }
};

} // namespace velara::encode
