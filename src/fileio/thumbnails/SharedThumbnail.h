// SharedThumbnail: a picture's entries in the desktop's shared thumbnail cache, by the freedesktop standard. Entries
// are PNG files that may come from others: they are read like any picture.
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

    /// The existing files that may hold one, smallest first.
    QStringList entries() const;
    /// The file that records that this program couldn't read the picture; may not exist.
    QString failure() const;
    /// Whether an entry with this origin was made from the present state of the picture.
    bool isMadeOf(const Origin& origin) const { return origin.modified == modified_; }

    /// image fits Previews::kThumbnailSide; size is that of the picture. Does nothing where the cache isn't writable,
    /// for a file modified just now, and for an entry of the cache itself.
    void write(const QImage& image, QSize size) const;
    void writeFailure() const;

  private:
    void write(const QString& folder, QImage image) const;

    QString cache_, picture_, uri_, name_;
    qint64 modified_, bytes_;
};

/// "file:///...", percent-encoded as the desktop's programs do it.
QString fileUri(const QString& path);

} // namespace velara
