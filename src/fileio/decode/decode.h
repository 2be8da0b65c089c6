// Reads one picture file: from path and extension to size and pixels, or the reason why not. A pure function, but its
// libraries crash and loop on damaged files: the programs run it in velara-decode only.
#pragma once
#include "fileio/decode/FileBytes.h"
#include "fileio/decode/cage/Cage.h"
#include "fileio/load/Origin.h"
#include "pixels/Bits.h"
#include <QString>
#include <functional>

namespace velara::decode {

/// A picture whose rows are produced on demand, so that it isn't in memory twice.
struct Decoded {
    int width = 0, height = 0;
    /// Writes the W pixels of row y (0 is the top one), fourth byte 0.
    std::function<void(int y, Pixel* row)> row;
    QString reason; // why there is no picture, or why it is incomplete
    Origin origin = {};
    bool ok() const { return static_cast<bool>(row); }
};
inline Decoded refused(const QString& reason) { return {0, 0, {}, reason}; }

/// Called by readers with the size given by the header and the bits per pixel (0: unknown), before the pixels are read;
/// at most once per picture.
extern void (*sizeFound)(std::int64_t width, std::int64_t height, int bits);

/// Loads what the reader of the extension (lower case, no dot) needs from the disk, before the cage closes.
Needs prepareReader(const QString& extension);

/// The reader is chosen by the extension, never by the contents. Empty bytes: the file can't be opened.
Decoded decodePicture(FileBytes&& file, const QString& extension);

} // namespace velara::decode
