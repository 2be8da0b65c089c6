// ThumbnailIcons: the icons of picture files in a list or tree. Recently requested ones are cached; requests that have
// been scrolled out of view are dropped.
#pragma once
#include "seams/Previews.h"
#include <QCache>
#include <QIcon>
#include <QObject>
#include <list>

namespace velara {

/// A picture in the middle of a box of this size in a list, thinly framed, never enlarged; null: an empty box. Sharp on
/// screens of double size, where the image has the pixels.
QIcon thumbnailIcon(const QImage& image, QSize box);
/// An icon that keeps its colours in a chosen row.
QIcon untinted(const QPixmap& pixmap);

class ThumbnailIcons final : public QObject {
    Q_OBJECT
  public:
    /// side: of the icons, in pixels; they are square, with the picture centred.
    ThumbnailIcons(Previews& previews, int side, QObject* parent);

    /// The thumbnail; a broken picture if it can't be read; an empty frame while it is being read.
    QIcon icon(const QString& path);

  signals:
    void ready(const QString& path);

  private:
    struct Waiting {
        QString path;
        Previews::Request request;
    };
    void answered(const QString& path, const Preview& preview);

    Previews& previews_;
    int side_;
    QIcon empty_, broken_;
    QCache<QString, QIcon> icons_;
    std::list<Waiting> waiting_; // the latest last
};

} // namespace velara
