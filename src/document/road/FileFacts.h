// What is known of the file of a document.
#pragma once
#include "seams/CameraData.h"
#include <QString>

namespace velara {

struct FileFacts {
    QString path;           // full; for a picture that never was in a file, the name that the first save offers
    int mark = 0;           // n of the "[n]" before the names of a document whose path an open one had already; 0: none
    bool isFile = false;    // the picture was read from the path or saved to it
    bool isCutOff = false;  // the end of the file was missing when it was read
    bool isBrought = false; // the picture came from outside of any file and was never saved
    CameraData camera = {}; // what the file carried beside its pixels, for those that are saved
    CameraKept kept = CameraKept::All; // as the last "Save as" chose
    QString properties = {};           // for the user: lines of a name, a tab and a value

    QString markText() const { return mark ? QStringLiteral("[%1]").arg(mark) : QString(); }
    /// What follows the last separator, right-trimmed, with the mark.
    QString caption() const
    {
        QString name = path.mid(path.lastIndexOf('/') + 1);
        while (name.endsWith(' ')) name.chop(1);
        return markText() + name;
    }
    /// Unique among the open documents.
    QString Tag() const { return markText() + path; }
    /// SAVE writes to the path without asking.
    bool isOwn() const { return isFile && !isCutOff && mark == 0; }
};

} // namespace velara
