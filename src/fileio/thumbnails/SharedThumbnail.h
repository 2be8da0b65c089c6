// SharedThumbnail: a picture's entries in the cache of thumbnails that the programs of a desktop share, by the
// freedesktop standard. Entries are PNG files, and others may have made them: they are read as any picture is.
#pragma once
#include "fileio/load/Origin.h"
#include <QImage>
#include <QString>
#include <QStringList>

namespace velara {

class SharedThumbnail {
  public:
    /// picture: the path of a file.
    explicit SharedThumbnail(const QString& picture);

    /// The files that may hold one, least first; those that exist.
    QStringList entries() const;
    /// The note that this program couldn't read the picture; may not exist.
    QString failure() const;
    /// Whether an entry that says this was made of the picture as it is now.
    bool isMadeOf(const Origin& origin) const { return origin.modified == modified_; }

    /// image fits Previews::kThumbnailSide; size is that of the picture. Nothing happens where it can't be written, nor
    /// for a file that is only just being written, or is an entry itself.
    void write(const QImage& image, QSize size) const;
    void writeFailure() const;

  private:
    void write(const QString& folder, QImage image) const;

    QString cache_, picture_, uri_, name_;
    qint64 modified_, bytes_;
};

/// "file:///..." with all that isn't plain in percent signs, as the desktop's programs write it.
QString fileUri(const QString& path);

} // namespace velara
