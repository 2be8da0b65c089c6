// The encoders of velara-encode. Each writes a file to the standard output and returns whether it is complete.
#pragma once
#include "fileio/encode/EncodeProtocol.h"
#include <cstdint>
#include <span>

namespace velara::encode {

struct Picture {
    const Request& request;
    const std::uint8_t* pixels; // rows without padding
    std::span<const std::uint8_t> exif, xmp, profile;
};

/// Takes all of them, or ends the process.
bool put(const void* bytes, std::size_t size);

/// Loads what the library needs from the disk, before the cage closes. False: it can't encode.
bool prepareAvif();
bool encodeAvif(const Picture& picture);
/// At quality 100 without loss.
bool encodeJxl(const Picture& picture);
bool encodeWebp(const Picture& picture);

} // namespace velara::encode
