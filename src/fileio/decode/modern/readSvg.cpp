// SVG, drawn by Qt at its own size at 96 dpi and on white. References to files find nothing inside the cage, and Qt
// follows none to the net and no external entity. The other well-known library starts a thread for each text.
#include "fileio/decode/modern/modern.h"
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>

namespace velara::decode {

Needs prepareEmf(), loadIconReaders();

namespace {

/// A length in pixels; 0 when it is missing, relative or nonsense.
double pixelsOf(QStringView length)
{
    static constexpr struct {
        const char* unit;
        double pixels;
    } kUnits[] = {{"px", 1},         {"pt", 96 / 72.0}, {"pc", 16}, {"mm", 96 / 25.4},
                  {"cm", 96 / 2.54}, {"in", 96},        {"em", 16}, {"ex", 8}};
    length = length.trimmed();
    double factor = 1;
    for (const auto& row : kUnits)
        if (length.endsWith(QLatin1String(row.unit))) {
            factor = row.pixels;
            length.chop(2);
            break;
        }
    bool isNumber = false;
    const double value = length.trimmed().toDouble(&isNumber) * factor;
    return isNumber && value > 0 && std::isfinite(value) ? value : 0;
}

/// What the outermost element says: sizes in pixels (0: nothing), and whether its contents may be stretched.
struct Root {
    double width = 0, height = 0;
    bool hasBox = false, isStretched = false;
};

Root rootOf(const QByteArray& text)
{
    QXmlStreamReader xml(text);
    if (!xml.readNextStartElement()) return {};
    const QXmlStreamAttributes attributes = xml.attributes();
    return {pixelsOf(attributes.value("width")), pixelsOf(attributes.value("height")),
            attributes.hasAttribute("viewBox"), attributes.value("preserveAspectRatio").trimmed() == u"none"};
}

/// One side given: the other follows from the view box; none: the size of the view box.
QSizeF sizeOf(const Root& root, const QSvgRenderer& drawing)
{
    if (root.width > 0 && root.height > 0) return {root.width, root.height};
    const QSizeF box = root.hasBox ? drawing.viewBoxF().size() : QSizeF(drawing.defaultSize());
    if (!(box.width() > 0 && box.height() > 0)) return {};
    if (root.width > 0) return {root.width, root.hasBox ? root.width * box.height() / box.width() : box.height()};
    if (root.height > 0) return {root.hasBox ? root.height * box.width() / box.height() : box.width(), root.height};
    return box;
}

/// Whole pixels, at least one and at most what a picture may have, in the drawing's proportions.
QSize allowedSize(QSizeF wanted)
{
    const double sides = Bits::kMostASide / std::max({wanted.width(), wanted.height(), 1.0});
    const double area = std::sqrt(double(Bits::kMostPixels) / std::max(wanted.width() * wanted.height(), 1.0));
    const double factor = std::min({1.0, sides, area});
    const auto side = [&](double length) {
        constexpr double kNoise = 1e-6; // of the units
        const double pixels = factor < 1 ? std::floor(length * factor) : std::ceil(length - kNoise);
        return static_cast<int>(std::clamp(pixels, 1.0, double(Bits::kMostASide)));
    };
    return {side(wanted.width()), side(wanted.height())};
}

} // namespace

Needs prepareSvg()
{
    loadIconReaders(); // for the pictures in it
    return prepareEmf();
}

Decoded readSvg(FileBytes& file)
{
    const QByteArray text = QByteArray::fromRawData(reinterpret_cast<const char*>(file.bytes().data()),
                                                    static_cast<qsizetype>(file.size()));
    const Root root = rootOf(text);
    prepareEmf();
    QSvgRenderer drawing;
    if (!drawing.load(text)) return {};
    const QSizeF wanted = sizeOf(root, drawing);
    if (!(wanted.width() > 0 && wanted.height() > 0)) return {};
    const QSize size = allowedSize(wanted);
    sizeFound(size.width(), size.height(), 0);
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull()) return refused(kTooMuchMemory);
    image.fill(Qt::white);
    if (!root.hasBox && root.width > 0 && root.height > 0) drawing.setViewBox(QRectF({0, 0}, wanted));
    drawing.setAspectRatioMode(root.isStretched ? Qt::IgnoreAspectRatio : Qt::KeepAspectRatio);
    QPainter painter(&image);
    drawing.render(&painter, QRectF({0, 0}, QSizeF(size)));
    painter.end();
    return onWhite(image);
}

} // namespace velara::decode
