// EXIF in a TIFF file: its directories and their values lie anywhere in the file, among the pixels.
#pragma once
#include "fileio/decode/libraries/metadata.h"

namespace velara::decode {

/// A block of EXIF with what the directory at that offset and those that it links to say of the picture. Where they lie
/// close together they keep their offsets, which makers' notes may count on. Empty: they say nothing, it would be
/// longer than a megabyte, or the file is one of 64-bit offsets.
std::vector<std::uint8_t> exifOfTiff(Span file, std::uint64_t directory);

} // namespace velara::decode
