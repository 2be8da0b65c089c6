// PictureReader: reads picture files in a sandbox.
#pragma once
#include "pixels/Bits.h"
#include "seams/CameraData.h"
#include "seams/GoOn.h"
#include <QString>

namespace velara {

/// A picture read from a file, or the reason why it can't be read, for the user. A picture may have a reason, too: why
/// it is incomplete.
struct LoadedPicture {
    Bits bits;
    QString reason;
    CameraData camera = {};
    QString properties = {}; // for the user: lines of a name, a tab and a value
    QString format = {};     // the extension of the format that it has, whatever its name says; empty: unknown
    int pages = 1;           // pages or frames in the file
    bool ok() const { return !bits.isNull(); }
};

class PictureReader {
  public:
    virtual ~PictureReader() = default;

    /// Reads a picture with the reader of the extension (lower case, no dot), in a child process under limits.
    /// For any thread; the window's reads in another one, see readInBackground. goOn is asked while it waits. page: of
    /// a file that has several, from 1.
    virtual LoadedPicture loadPicture(const QString& path, const QString& extension, const GoOn& goOn = {},
                                      int page = 1) = 0;
};

} // namespace velara
