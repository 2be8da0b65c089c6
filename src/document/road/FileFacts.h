// What is known of the file of a document.
#pragma once
#include "fileio/disk/nativeName.h"
#include "seams/CameraData.h"
#include <QCoreApplication>
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
    QString format = {};               // the extension of the format that the file has; empty: unknown
    int page = 1, pages = 1;           // which one of the file's pages or frames the picture is

    QString markText() const { return mark ? QStringLiteral("[%1]").arg(mark) : QString(); }
    /// "2 of 12"; empty for the only one.
    QString pageText() const
    {
        return pages > 1 ? QCoreApplication::translate("FileFacts", "%1 of %2").arg(page).arg(pages) : QString();
    }
    /// What follows the last separator, right-trimmed.
    QString name() const
    {
        QString name = lastName(path);
        while (name.endsWith(' ')) name.chop(1);
        return name;
    }
    /// The name, with the mark, and with the page if it isn't the first.
    QString caption() const { return markText() + name() + laterPage(); }
    /// Unique among the open documents.
    QString Tag() const { return markText() + path + laterPage(); }
    /// The path is its own: SAVE writes there, after a question where that would lose something.
    bool isOwn() const { return isFile && !isCutOff && mark == 0 && page == 1; }
    /// The picture is a page of that file.
    bool isPageOf(const QString& file, int wanted) const { return isFile && path == file && page == wanted; }

  private:
    QString laterPage() const { return page > 1 ? " [" + pageText() + ']' : QString(); }
};

} // namespace velara
