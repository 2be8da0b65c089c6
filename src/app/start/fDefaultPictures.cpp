#include "app/start/defaultPictures.h"
#include <QDir>
#include <QPainter>
#include <QSvgRenderer>

namespace velara {

namespace {

QImage drawn(const QString& resource, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QSvgRenderer renderer(resource);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return image;
}

} // namespace

QImage splashPicture() { return drawn(":/pictures/splash.svg", {480, 300}); }

QList<QImage> defaultStamps()
{
    QList<QImage> stamps;
    for (const QString& name : QDir(":/stamps").entryList(QDir::Files, QDir::Name))
        stamps << drawn(":/stamps/" + name, {64, 64});
    return stamps;
}

QImage defaultImage() { return drawn(":/pictures/landscape.svg", {640, 480}); }

} // namespace velara
