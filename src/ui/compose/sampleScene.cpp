#include "ui/compose/sampleScene.h"
#include "pixels/images.h"
#include <QLinearGradient>
#include <QPainter>

namespace velara {

Bits sampleScene()
{
    QImage image(kSceneSide, kSceneSide, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(kSceneSide / 100.0, kSceneSide / 100.0);
    QLinearGradient sky(0, 0, 0, 70);
    sky.setColorAt(0, QColor(38, 96, 176));
    sky.setColorAt(1, QColor(236, 214, 178));
    painter.fillRect(0, 0, 100, 100, sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(250, 226, 92));
    painter.drawEllipse(QPoint(72, 26), 13, 13);
    painter.setBrush(QColor(74, 88, 112));
    painter.drawPolygon(QPolygon({{0, 74}, {34, 24}, {66, 74}}));
    painter.setBrush(QColor(238, 242, 246));
    painter.drawPolygon(QPolygon({{25, 38}, {34, 24}, {43, 38}, {34, 44}}));
    painter.setBrush(QColor(58, 118, 62));
    painter.drawEllipse(QPoint(72, 104), 80, 42);
    painter.setBrush(QColor(184, 52, 44));
    painter.drawRect(52, 66, 24, 18);
    painter.setBrush(QColor(96, 40, 36));
    painter.drawPolygon(QPolygon({{48, 66}, {64, 52}, {80, 66}}));
    painter.end();
    return bitsOf(image);
}

} // namespace velara
