// A page of captioned pictures in a grid, as the gallery shows them.
#pragma once
#include <QColor>
#include <QImage>
#include <QString>
#include <vector>

namespace velara {

struct Tile {
    QString caption, detail;
    QImage picture;
    std::vector<QColor> swatches = {}; // small squares beside the caption
};

/// Starts a new row, under its title; an empty title takes no space.
struct Section {
    QString title;
    std::vector<Tile> tiles;
};

/// Five tiles per row, every picture fitted into 180 by 120 pixels.
QImage contactSheet(const QString& title, const std::vector<Section>& sections);

/// Writes a PNG of 256 colours, which is a third of the size. False when it could not be written.
bool writeSheet(const QImage& sheet, const QString& path);

} // namespace velara
