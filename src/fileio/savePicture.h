// Writes a picture in the format of an extension, as the editor's save does.
#pragma once
#include "fileio/OutputFile.h"
#include "pixels/Bits.h"
#include <QString>

namespace velara {

class Dialogs;

enum class SaveResult {
    Written,
    Failed,        // what stood under the name is whole
    FailedAndTold, // the same, and the user has read it
    NotWritten,    // nothing to write, or no writer for the extension
    Refused,       // an icon; the user has read it
};

/// Ext in any case, without its dot. "pnm": a portable anymap, FileName ends with the dot and the real extension is
/// added. Notices and failures are shown by dialogs: a failed png, jpg, bmp, tif or tga, the depth of a portable
/// anymap, and that icons are not written. Every writer gets 24 bits a pixel, without the margin.
/// A work file of the program (png, jpg, bmp, tif, tga) replaces links.
SaveResult savePicture(Dialogs& dialogs, const Bits& bits, const QString& FileName, const QString& Ext,
                       OutputFile::Links links = OutputFile::Links::Follow);

} // namespace velara
