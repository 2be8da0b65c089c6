#include "platform/desktop/rootPicture.h"
#include "pixels/images.h"
#include <QPainter>

namespace velara {

QImage rootPicture(const Bits& bits, WallpaperMode mode, QSize root, const QList<QRect>& screens)
{
    const QImage picture = imageOver(bits);
    QImage ground(root, QImage::Format_RGB32);
    ground.fill(Qt::black);
    QPainter painter(&ground);
    if (mode == WallpaperMode::Tile) {
        painter.fillRect(ground.rect(), QBrush(picture));
        return ground;
    }
    for (const QRect& screen : screens) {
        painter.setClipRect(screen);
        QRect place(QPoint(), mode == WallpaperMode::Stretch ? screen.size() : picture.size());
        place.moveTopLeft(screen.topLeft() +
                          QPoint((screen.width() - place.width()) / 2, (screen.height() - place.height()) / 2));
        // Scaled beforehand: the painter would blend the edge with the black around it.
        painter.drawImage(place.topLeft(),
                          picture.size() == place.size()
                              ? picture
                              : picture.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return ground;
}

} // namespace velara
