#include "platform/desktop/dialogs/ThumbnailIcons.h"
#include <QApplication>
#include <QPainter>
#include <QStyle>

namespace velara {

namespace {

constexpr int kKept = 24 << 10;  // kilobytes of icons
constexpr int kMostWaiting = 64; // more than a screen shows
constexpr int kSharpness = 2;    // device pixels per logical pixel, at most

} // namespace

QIcon thumbnailIcon(const QImage& image, QSize box)
{
    QPixmap pixmap(box * kSharpness);
    pixmap.setDevicePixelRatio(kSharpness);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const QSize room = box - QSize(2, 2);
    QSizeF size = image.size();
    if (size.width() > room.width() || size.height() > room.height()) size.scale(room, Qt::KeepAspectRatio);
    size = size.expandedTo({1, 1});
    const QRectF place({(box.width() - size.width()) / 2, (box.height() - size.height()) / 2}, size);
    const QSize pixels = (size * kSharpness).toSize();
    const bool shrinks = image.width() > pixels.width();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, shrinks ? image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : image);
    painter.setPen(QPen(QColor(128, 128, 128, 160), 0.5));
    if (!image.isNull()) painter.drawRect(place);
    painter.end();
    return untinted(pixmap);
}

QIcon untinted(const QPixmap& pixmap)
{
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

ThumbnailIcons::ThumbnailIcons(Previews& previews, int side, QObject* parent)
    : QObject(parent), previews_(previews), side_(side),
      empty_(QIcon::fromTheme("image-x-generic", QApplication::style()->standardIcon(QStyle::SP_FileIcon))),
      broken_(QIcon::fromTheme("image-missing", QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning))),
      icons_(kKept)
{
}

QIcon ThumbnailIcons::icon(const QString& path)
{
    if (const QIcon* known = icons_.object(path)) return *known;
    const auto same = [&](const Waiting& each) { return each.path == path; };
    if (std::ranges::none_of(waiting_, same)) {
        if (waiting_.size() == kMostWaiting) waiting_.pop_front();
        waiting_.push_back({path, previews_.thumbnail(path, [=, this](const Preview& p) { answered(path, p); })});
    }
    return empty_;
}

void ThumbnailIcons::answered(const QString& path, const Preview& preview)
{
    const int kilobytes = 1 + side_ * side_ * kSharpness * kSharpness * 4 / 1024;
    icons_.insert(path, new QIcon(preview.image.isNull() ? broken_ : thumbnailIcon(preview.image, {side_, side_})),
                  kilobytes);
    waiting_.remove_if([&](const Waiting& each) { return each.path == path; });
    emit ready(path);
}

} // namespace velara
