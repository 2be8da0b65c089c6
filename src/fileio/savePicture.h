// Writes a picture in the format of an extension, as the editor's save does.
#pragma once
#include "fileio/disk/OutputFile.h"
#include "pixels/Bits.h"
#include "seams/CameraData.h"
#include "seams/Dialogs.h"
#include <QString>
#include <functional>
#include <optional>

namespace velara {

enum class SaveResult {
    Written,
    Failed,        // what stood under the name is whole
    FailedAndTold, // the same, with a notice
    NotWritten,    // nothing to write, or no writer for the extension
    Refused,       // an icon, with a notice
    Stopped,       // goOn said no; what stood under the name is whole
};

/// What became of a save, and the notice that the user gets of it; without a text there is none.
struct SaveReport {
    SaveResult result = SaveResult::NotWritten;
    QString title = {}, text = {};
    Icon icon = Icon::None;
    int error = 0; // of a failure: the system's, as OutputFile::error()

    void tell(Dialogs& dialogs) const
    {
        if (!text.isEmpty()) dialogs.message(title, text, icon);
    }
};

/// How it is written where the format's own way is not wanted.
struct SaveWishes {
    std::optional<int> quality = {}; // 1 to 100, of a format that has one (hasQuality)
    bool keepsRemains = true;        // of a JPEG that can't be written whole, where nothing had its name
    std::function<bool()> goOn = {}; // asked now and then; false ends it
    /// Of a picture that is still being read: waits for a row, or at its height for the end of the reading. False: the
    /// file is given up. Without it the picture is there.
    std::function<bool(int row)> awaitRow = {};
};

/// Whether files of the extension (any case, no dot) are written in a quality.
bool hasQuality(const QString& extension);

/// Ext in any case, without its dot. "pnm": a portable anymap, FileName ends with the dot and the real extension is
/// added. There is a notice of a failed png, jpg, bmp, tif, tga, webp, avif or jxl, of the depth of a portable anymap,
/// and that icons are not written. Every writer gets 24 bits a pixel, without the margin. A work file of the program
/// (png, jpg, bmp, tif, tga) replaces links. camera is written by the formats that can hold it. For any thread.
SaveReport writePicture(const Bits& bits, const QString& FileName, const QString& Ext,
                        OutputFile::Links links = OutputFile::Links::Follow, const CameraData& camera = {},
                        const SaveWishes& wishes = {});
/// The same, and dialogs shows the notice.
SaveResult savePicture(Dialogs& dialogs, const Bits& bits, const QString& FileName, const QString& Ext,
                       OutputFile::Links links = OutputFile::Links::Follow);

} // namespace velara
