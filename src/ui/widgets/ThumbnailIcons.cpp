#include "ui/widgets/ThumbnailIcons.h"
#include <QApplication>
#include <QPainter>
#include <QStyle>

namespace velara {

namespace {

constexpr int kKept = 1000;      // icons: a few megabytes
constexpr int kMostWaiting = 64; // more than a screen shows
constexpr int kSharpness = 2;    // device pixels per logical pixel, at most

QPixmap surface(int side)
{
    QPixmap pixmap(side * kSharpness, side * kSharpness);
    pixmap.setDevicePixelRatio(kSharpness);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

QIcon framed(const QImage& image, int side)
{
    QPixmap pixmap = surface(side);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize room(side - 2, side - 2);
    QSizeF size = image.size();
    if (size.width() > room.width() || size.height() > room.height()) size.scale(room, Qt::KeepAspectRatio);
    size = size.expandedTo({1, 1});
    const QRectF place({(side - size.width()) / 2, (side - size.height()) / 2}, size);
    painter.drawImage(place, image);
    painter.setPen(QPen(QColor(128, 128, 128, 160), 0.5));
    painter.drawRect(place);
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected); // keeps its colours when selected
    return icon;
}

} // namespace

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
    icons_.insert(path, new QIcon(preview.image.isNull() ? broken_ : framed(preview.image, side_)));
    waiting_.remove_if([&](const Waiting& each) { return each.path == path; });
    emit ready(path);
}

} // namespace velara
