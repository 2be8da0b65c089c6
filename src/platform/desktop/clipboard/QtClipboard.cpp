#include "platform/desktop/clipboard/QtClipboard.h"
#include "pixels/images.h"
#include "platform/desktop/clipboard/ClipboardOffer.h"
#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QImage>
#include <chrono>

namespace velara {

namespace {

struct ClipboardType {
    const char* mime;
    const char* extension; // of the reader
};

// clang-format off
constexpr ClipboardType kClipboardTypes[] = { // lossless ones first
    {"image/png",      "png"},
    {"image/bmp",      "bmp"},
    {"image/x-bmp",    "bmp"},
    {"image/x-MS-bmp", "bmp"},
    {"image/tiff",     "tif"},
    {"image/x-tga",    "tga"},
    {"image/x-portable-pixmap", "ppm"},
    {"image/gif",      "gif"},
    {"image/x-icon",   "ico"},
    {"image/jpeg",     "jpg"},
};
// clang-format on

/// A picture that takes its form when somebody asks for it: most are never asked for.
class PictureData final : public QMimeData {
  public:
    explicit PictureData(std::function<QImage()> make) : make_(std::move(make)) {}

    QStringList formats() const override { return {kImage}; }
    bool hasFormat(const QString& type) const override { return type == kImage; }

  protected:
    QVariant retrieveData(const QString& type, QMetaType) const override
    {
        if (type != kImage) return {};
        if (made_.isNull()) made_ = make_();
        return made_;
    }

  private:
    inline static const QString kImage = QStringLiteral("application/x-qt-image");
    std::function<QImage()> make_;
    mutable QImage made_;
};

QImage imageOfPart(const Bits& part)
{
    QImage image(part.width(), part.height(), QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        const Pixel* from = part.row(y);
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            to[x] = from[x].c[3] == 255 ? 0 : qRgb(from[x].c[2], from[x].c[1], from[x].c[0]);
    }
    return image;
}

QImage imageOfPicture(const Bits& bits)
{
    QImage image = imageOver(bits).convertToFormat(QImage::Format_ARGB32); // sets the fourth byte to 255
    image.reinterpretAsFormat(QImage::Format_RGB32);
    return image;
}

/// Names of what is read, and why it was not.
QString words(const char* english) { return QCoreApplication::translate("Clipboard", english); }

} // namespace

QtClipboard::QtClipboard(Read read, Waiting waiting) : read_(std::move(read)), waiting_(std::move(waiting))
{
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &watch_,
                     [this] { others_ += !QGuiApplication::clipboard()->ownsClipboard(); });
}

LoadedPicture QtClipboard::bitmap()
{
    if (ours_ && QGuiApplication::clipboard()->mimeData() == ours_)
        return {bitsOf(qvariant_cast<QImage>(ours_->imageData())), {}};
    return received();
}

/// One time limit and one box for all attempts, so that one Esc ends them.
LoadedPicture QtClipboard::received()
{
    const auto offer = clipboardOffer();
    const QStringList offered = offer->types();
    const auto begin = std::chrono::steady_clock::now();
    bool wanted = true;
    const GoOn goOn = [&, box = waiting_(words(QT_TRANSLATE_NOOP("Clipboard", "the picture on the clipboard")))](auto) {
        using std::chrono::milliseconds;
        const auto waited = std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - begin);
        return wanted = wanted && (!box || box(waited));
    };
    LoadedPicture picture;
    for (const ClipboardType& type : kClipboardTypes) {
        if (!offered.contains(QLatin1String(type.mime))) continue;
        const auto bytes = offer->bytes(type.mime, goOn);
        if (!wanted) return {{}, words(QT_TRANSLATE_NOOP("Clipboard", "The picture on the clipboard was given up."))};
        picture =
            bytes ? read_(*bytes, words(QT_TRANSLATE_NOOP("Clipboard", "The picture on the clipboard")), type.extension,
                          goOn)
                  : LoadedPicture{
                        {},
                        words(QT_TRANSLATE_NOOP(
                            "Clipboard", "The program that put the picture on the clipboard doesn't hand it over."))};
        if (picture.ok() || !wanted) break;
    }
    return picture;
}

bool QtClipboard::offer(const Bits& bits, QImage (*make)(const Bits&))
{
    if (bits.isNull()) return false;
    auto* data = new PictureData([bits, make] { return make(bits); });
    QGuiApplication::clipboard()->setMimeData(data);
    ours_ = data;
    return true;
}

bool QtClipboard::setBitmap(const Bits& bits) { return offer(bits, imageOfPicture); }

bool QtClipboard::setPart(const Bits& part) { return offer(part, imageOfPart); }

void QtClipboard::clear() { QGuiApplication::clipboard()->clear(); }

} // namespace velara
