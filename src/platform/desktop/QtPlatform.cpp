#include "platform/desktop/QtPlatform.h"
#include "platform/desktop/ReadingBox.h"
#include "platform/desktop/clipboard/ClipboardOffer.h"
#include "platform/nameFilters.h"
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <algorithm>

namespace velara {

namespace {

QMessageBox::Icon boxIcon(Icon icon)
{
    constexpr QMessageBox::Icon kIcons[] = {QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Warning,
                                            QMessageBox::Critical};
    return kIcons[static_cast<int>(icon)];
}

/// Dialogs of the program stand over the window that the user is in.
QWidget* parentOfDialogs()
{
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    return QApplication::activeWindow();
}

int showBox(const QString& title, const QString& text, Icon icon, QMessageBox::StandardButtons buttons)
{
    // On the heap and watched: its parent may go while the box stands.
    const QPointer<QMessageBox> box = new QMessageBox(boxIcon(icon), title, text, buttons, parentOfDialogs());
    box->setObjectName("messageBox");
    box->setTextFormat(Qt::PlainText); // a path may hold anything
    const int answer = box->exec();
    delete box;
    return answer;
}

std::optional<QString> runDialog(QFileDialog* dialog)
{
    const QPointer<QFileDialog> watched = dialog;
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!watched) return std::nullopt;
    const QStringList files = dialog->selectedFiles();
    delete dialog;
    if (!accepted || files.isEmpty()) return std::nullopt;
    return files.front();
}

void prepare(QFileDialog& dialog, const FileDialog& request)
{
    dialog.setObjectName("fileDialog");
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(nameFilters(request.filter));
}

/// Asks about the file that will really be written, which may have another name than the one that was chosen.
class SaveDialog final : public QFileDialog {
  public:
    explicit SaveDialog(const FileDialog& request)
        : QFileDialog(parentOfDialogs(), request.title, request.folder.trimmed()), writtenAs_(request.writtenAs)
    {
        setOption(DontUseNativeDialog); // which would be gone by the time of the question
        setOption(DontConfirmOverwrite);
    }
    void accept() override
    {
        const QString name = selectedFiles().value(0);
        const QFileInfo written(writtenAs_ ? writtenAs_(name) : name);
        const bool replaces = !name.isEmpty() && !QFileInfo(name).isDir() && written.exists();
        if (replaces && showBox(windowTitle(), written.fileName() + tr(" already exists.\nDo you want to replace it?"),
                                Icon::Exclamation, QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
            return;
        QFileDialog::accept();
    }

  private:
    std::function<QString(const QString&)> writtenAs_;
};

/// Blue, green and red as they are, the fourth byte given.
void copyRow(quint32* to, const quint32* from, int count, quint32 fourth)
{
    for (int i = 0; i < count; ++i) to[i] = (from[i] & 0x00FFFFFFu) | fourth;
}

} // namespace

GoOn QtPlatform::whileReading(const QString& name)
{
    return [box = std::make_shared<ReadingBox>(name, parentOfDialogs())](auto waited) { return box->goOn(waited); };
}

void QtPlatform::yield() { QCoreApplication::processEvents(); }

void QtPlatform::message(const QString& title, const QString& text, Icon icon)
{
    showBox(title, text, icon, QMessageBox::Ok);
}

Answer QtPlatform::askYesNoCancel(const QString& title, const QString& text, Icon icon)
{
    switch (showBox(title, text, icon, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

std::optional<QString> QtPlatform::openFileName(const FileDialog& request)
{
    auto* dialog = new QFileDialog(parentOfDialogs(), request.title, request.folder.trimmed());
    prepare(*dialog, request);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return runDialog(dialog);
}

std::optional<QString> QtPlatform::saveFileName(const FileDialog& request)
{
    auto* dialog = new SaveDialog(request);
    prepare(*dialog, request);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    const auto giveSuffix = [dialog, request](const QString& filter) {
        dialog->setDefaultSuffix(suffixFor(request.filter, filter, request.extension));
    };
    giveSuffix(dialog->selectedNameFilter());
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, giveSuffix);
    return runDialog(dialog);
}

std::optional<QString> QtPlatform::pickFolder(const QString& title, const QString& start)
{
    auto* dialog = new QFileDialog(parentOfDialogs(), title, start.trimmed());
    dialog->setObjectName("folderDialog");
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    return runDialog(dialog);
}

QString QtPlatform::compactPath(const QString& path, int pixels)
{
    const QFontMetrics metrics(QApplication::font("QMenu"));
    if (metrics.horizontalAdvance(path) <= pixels) return path;
    // The file name stays whole as long as it fits: it is what a person looks for.
    const QString name = path.mid(path.lastIndexOf('/'));
    const int left = pixels - metrics.horizontalAdvance(name);
    if (left <= 0) return metrics.elidedText(path, Qt::ElideMiddle, pixels);
    return metrics.elidedText(path.chopped(name.size()), Qt::ElideRight, left) + name;
}

namespace {

struct ClipboardType {
    const char* mime;
    const char* extension; // of the reader
};

// clang-format off
constexpr ClipboardType kClipboardTypes[] = { // the exact ones first
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

Bits bitsOf(const QImage& picture)
{
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    Bits bits(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y)
        copyRow(reinterpret_cast<quint32*>(bits.row(y)), reinterpret_cast<const quint32*>(image.constScanLine(y)),
                image.width(), 0);
    return bits;
}

} // namespace

bool QtPlatform::clipboardHasBitmap()
{
    if (ours_ && QGuiApplication::clipboard()->mimeData() == ours_) return true;
    const QStringList offered = clipboardOffer()->types();
    return std::any_of(std::begin(kClipboardTypes), std::end(kClipboardTypes),
                       [&](const ClipboardType& type) { return offered.contains(QLatin1String(type.mime)); });
}

LoadedPicture QtPlatform::clipboardBitmap()
{
    if (ours_ && QGuiApplication::clipboard()->mimeData() == ours_)
        return {bitsOf(qvariant_cast<QImage>(ours_->imageData())), {}};
    const auto offer = clipboardOffer();
    const QStringList offered = offer->types();
    LoadedPicture picture;
    for (const ClipboardType& type : kClipboardTypes) {
        if (!offered.contains(QLatin1String(type.mime))) continue;
        const auto bytes = offer->bytes(type.mime);
        picture =
            bytes ? decodeBytes(*bytes, QStringLiteral("The picture on the clipboard"), type.extension)
                  : LoadedPicture{
                        {}, QStringLiteral("The program that put the picture on the clipboard doesn't hand it over.")};
        if (picture.ok()) break;
    }
    return picture;
}

void QtPlatform::offer(const QImage& picture)
{
    auto* data = new QMimeData;
    data->setImageData(picture);
    QGuiApplication::clipboard()->setMimeData(data);
    ours_ = data;
}

bool QtPlatform::setClipboardBitmap(const Bits& bits)
{
    QImage image(bits.width(), bits.height(), QImage::Format_RGB32);
    if (image.isNull()) return false;
    for (int y = 0; y < image.height(); ++y)
        copyRow(reinterpret_cast<quint32*>(image.scanLine(y)), reinterpret_cast<const quint32*>(bits.row(y)),
                image.width(), 0xFF000000u);
    offer(image);
    return true;
}

bool QtPlatform::setClipboardPart(const Bits& part)
{
    QImage image(part.width(), part.height(), QImage::Format_ARGB32);
    if (image.isNull()) return false;
    for (int y = 0; y < image.height(); ++y) {
        const Pixel* from = part.row(y);
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            to[x] = from[x].c[3] == 255 ? 0 : qRgb(from[x].c[2], from[x].c[1], from[x].c[0]);
    }
    offer(image);
    return true;
}

void QtPlatform::clearClipboard() { QGuiApplication::clipboard()->clear(); }

} // namespace velara
