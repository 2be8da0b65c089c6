// PictureReader: picture files, read where they can do no harm.
#pragma once
#include "pixels/Bits.h"
#include <QString>
#include <chrono>
#include <functional>

namespace velara {

/// A picture read from a file, or the reason why it can't be read, in words for a person. A picture may have a reason
/// too: why it is not all there.
struct LoadedPicture {
    Bits bits;
    QString reason;
    bool ok() const { return !bits.isNull(); }
};

/// Asked some twenty times a second while a picture is read, with the time since the start; false gives it up.
using GoOn = std::function<bool(std::chrono::milliseconds)>;

class PictureReader {
  public:
    virtual ~PictureReader() = default;

    /// Reads a picture with the reader of the extension (lower case, no dot), in a child process under limits.
    /// goOn stands in for what the platform shows meanwhile; with one this is for any thread.
    virtual LoadedPicture loadPicture(const QString& path, const QString& extension, const GoOn& goOn = {}) = 0;
};

} // namespace velara
