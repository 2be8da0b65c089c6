#include "fileio/decode/readers.h"
#include "fileio/load/DecodeProtocol.h"
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>
#include <cstdlib>
#include <emf2svg.h>
#include <iconv.h>
#include <memory>

namespace velara::decode {

namespace {

constexpr double kDotsAnInch = 96, kHundredthsAnInch = 2540; // hundredths of a millimetre

/// The header's rectangles: bounds in pixels of the original device, frame in hundredths of a millimetre.
struct Header {
    QRectF bounds, frame;
    double pixelsAHundredthX = 0, pixelsAHundredthY = 0;
};

Header headerOf(const FileBytes& file)
{
    enum Field : std::size_t { Bounds = 8, Frame = 24, DevicePixels = 72, DeviceMillimetres = 80 };
    const auto number = [&](std::size_t at) {
        return static_cast<double>(static_cast<std::int32_t>(file.little32(at)));
    };
    const auto rectangle = [&](std::size_t at) {
        return QRectF(QPointF(number(at), number(at + 4)), QPointF(number(at + 8), number(at + 12)));
    };
    const auto ratio = [&](std::size_t at) {
        const double millimetres = number(DeviceMillimetres + at);
        return millimetres > 0 ? number(DevicePixels + at) / (millimetres * 100) : 0;
    };
    return {rectangle(Bounds), rectangle(Frame), ratio(0), ratio(4)};
}

/// Fonts need an application object, which needs no screen.
void needFonts()
{
    static int argc = 1;
    static char name[] = "velara-decode", *argv[] = {name, nullptr};
    if (!qApp) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static QGuiApplication application(argc, argv);
    }
}

QByteArray svgOf(FileBytes& file)
{
    char* text = nullptr;
    std::size_t length = 0;
    char noPrefix[] = "";
    generatorOptions options{};
    options.nameSpace = noPrefix;
    options.svgDelimiter = true;
    const int done = emf2svg(reinterpret_cast<char*>(file.bytes().data()), file.size(), &text, &length, &options);
    const std::unique_ptr<char, decltype(&std::free)> owned(text, std::free);
    return done && text ? QByteArray(text, static_cast<qsizetype>(length)) : QByteArray();
}

} // namespace

Needs prepareEmf()
{
    needFonts();
    iconv_open("UTF-8", "UTF-16LE"); // stays open: the converter uses it again
    QImage dot(1, 1, QImage::Format_RGB32);
    QPainter(&dot).drawText(0, 0, "a"); // loads the list of fonts and the plug-ins that draw them
    return Needs::Drawing;
}

Decoded readEmf(FileBytes& file)
{
    if (file.little32(0) != 1 || file.little32(40) != 0x464d4520) return {}; // a header record, " EMF"
    Header header = headerOf(file);
    QSizeF size = header.frame.size() * (kDotsAnInch / kHundredthsAnInch);
    QRectF shown(header.frame.x() * header.pixelsAHundredthX, header.frame.y() * header.pixelsAHundredthY,
                 header.frame.width() * header.pixelsAHundredthX, header.frame.height() * header.pixelsAHundredthY);
    if (shown.isEmpty()) { // no frame: one unit per pixel
        shown = header.bounds;
        size = shown.size();
    }
    const double width = std::ceil(size.width()), height = std::ceil(size.height());
    if (!(width >= 1 && height >= 1)) return {};
    if (!Bits::sizeAllowed(std::llround(width), std::llround(height))) return refused(kTooBig);
    sizeFound(std::llround(width), std::llround(height), 0);

    needFonts();
    const QByteArray svg = svgOf(file);
    QSvgRenderer renderer;
    if (svg.isEmpty() || !renderer.load(svg)) return {};
    QImage image(static_cast<int>(width), static_cast<int>(height), QImage::Format_RGB32);
    if (image.isNull()) return refused(kTooMuchMemory);
    image.fill(Qt::white);
    renderer.setViewBox(shown.translated(-header.bounds.topLeft())); // the converter moves the bounds to 0, 0
    renderer.setAspectRatioMode(Qt::IgnoreAspectRatio);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, width, height));
    painter.end();
    return onWhite(image);
}

} // namespace velara::decode
