// Reads picture files through velara-decode: one disposable child a file, under limits, so that a damaged file can cost
// nothing but the child.
#pragma once
#include "seams/Platform.h"
#include <chrono>

namespace velara {

struct DecoderLimits {
    std::size_t memory = std::size_t{4} << 30;  // bytes of address space
    unsigned cpuSeconds = 15;                   // processor time; some readers loop for ever on damaged files
    std::chrono::milliseconds wallClock{90000}; // from start to the last row
};

/// What a file of so many bytes may take: a second more of processor time for each megabyte, up to a minute.
DecoderLimits limitsFor(std::int64_t fileSize);

/// The helper's path: beside the running executable, or where an installation puts it. Empty when it is nowhere.
QString findDecoder();

/// Reads path with the reader of the extension (any case, no dot). decoder is the helper's path. Never throws; the
/// reason names the file: "photo.png can't be read: it is damaged or not a PNG picture".
LoadedPicture loadThroughDecoder(const QString& path, const QString& extension, const QString& decoder,
                                 const DecoderLimits& limits = {});

} // namespace velara
