#include "tools/contactSheet.h"
#include "reduce/bestColours.h"
#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <span>

namespace velara {

namespace {

constexpr int kColumns = 5, kTileWidth = 180, kTileHeight = 120, kGap = 14, kEdge = 18;
constexpr int kWidth = 2 * kEdge + kColumns * kTileWidth + (kColumns - 1) * kGap;
constexpr int kCaptionHeight = 18, kSwatch = 11, kTitleHeight = 38, kSectionHeight = 30;

QFont fontOf(int pixels, bool bold)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

/// Lays out a page from top to bottom; without a painter it only measures.
class Page {
  public:
    explicit Page(QPainter* painter) : painter_(painter) {}
    int height() const { return y_; }

    void title(const QString& text, int pixels, int height)
    {
        write({kEdge, y_, kWidth - 2 * kEdge, height}, text, fontOf(pixels, true), Qt::AlignVCenter, Qt::black);
        y_ += height;
    }

    void tiles(std::span<const Tile> row)
    {
        int deepest = 0, x = kEdge;
        for (const Tile& tile : row) {
            deepest = std::max(deepest, this->tile(tile, x));
            x += kTileWidth + kGap;
        }
        y_ += kTileHeight + kCaptionHeight + deepest + kGap;
    }

  private:
    /// Returns the height of the detail text.
    int tile(const Tile& tile, int x)
    {
        const QRect place(x, y_, kTileWidth, kTileHeight), line(x, place.bottom() + 2, kTileWidth, kCaptionHeight);
        const QFont bold = fontOf(12, true), plain = fontOf(10, false);
        const QRect below(x, line.bottom(), kTileWidth, 100);
        if (painter_) {
            const QImage small = tile.picture.scaled(place.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
            painter_->drawImage(place.topLeft(), small);
            int right = line.right();
            for (auto swatch = tile.swatches.rbegin(); swatch != tile.swatches.rend(); ++swatch) {
                right -= kSwatch + 3;
                const QRect square(right, line.top() + 4, kSwatch, kSwatch);
                painter_->fillRect(square, Qt::gray);
                painter_->fillRect(square.adjusted(1, 1, -1, -1), *swatch);
            }
            const QString caption = QFontMetrics(bold).elidedText(tile.caption, Qt::ElideRight, right - line.left());
            write(line, caption, bold, Qt::AlignVCenter, Qt::black);
            write(below, tile.detail, plain, Qt::TextWordWrap, QColor(80, 80, 80));
        }
        return QFontMetrics(plain).boundingRect(below, Qt::TextWordWrap, tile.detail).height();
    }

    void write(const QRect& place, const QString& text, const QFont& font, int flags, const QColor& colour)
    {
        if (!painter_) return;
        painter_->setFont(font);
        painter_->setPen(colour);
        painter_->drawText(place, flags, text);
    }

    QPainter* painter_;
    int y_ = kEdge / 2;
};

int layOut(QPainter* painter, const QString& title, const std::vector<Section>& sections)
{
    Page page(painter);
    page.title(title, 20, kTitleHeight);
    for (const Section& section : sections) {
        if (!section.title.isEmpty()) page.title(section.title, 14, kSectionHeight);
        const std::span<const Tile> tiles(section.tiles);
        for (std::size_t at = 0; at < tiles.size(); at += kColumns)
            page.tiles(tiles.subspan(at, std::min<std::size_t>(kColumns, tiles.size() - at)));
    }
    return page.height();
}

} // namespace

QImage contactSheet(const QString& title, const std::vector<Section>& sections)
{
    QImage sheet(kWidth, layOut(nullptr, title, sections), QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    layOut(&painter, title, sections);
    return sheet;
}

bool writeSheet(const QImage& sheet, const QString& path)
{
    Bits bits(sheet.width(), sheet.height());
    for (int y = 0; y < sheet.height(); ++y) {
        const QRgb* from = reinterpret_cast<const QRgb*>(sheet.constScanLine(y));
        std::transform(from, from + sheet.width(), bits.row(y), [](QRgb c) {
            return Pixel{{std::uint8_t(qBlue(c)), std::uint8_t(qGreen(c)), std::uint8_t(qRed(c)), 0}};
        });
    }
    const IndexedPicture reduced = reduceToBestColours(bits, 256);
    QImage indexed(reduced.width, reduced.height, QImage::Format_Indexed8);
    for (const Colour c : reduced.palette) {
        QList<QRgb> table = indexed.colorTable();
        table.append(qRgb(redOf(c), greenOf(c), blueOf(c)));
        indexed.setColorTable(table);
    }
    for (int y = 0; y < reduced.height; ++y)
        std::copy_n(reduced.indices.begin() + std::ptrdiff_t(y) * reduced.width, reduced.width, indexed.scanLine(y));
    return indexed.save(path, "PNG", 0); // 0 requests the smallest file
}

} // namespace velara
