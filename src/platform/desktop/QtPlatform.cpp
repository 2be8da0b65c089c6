#include "platform/desktop/QtPlatform.h"
#include "platform/desktop/ReadingBox.h"
#include "platform/nameFilters.h"
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>

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

QFileDialog* makeDialog(const FileDialog& request)
{
    auto* dialog = new QFileDialog(parentOfDialogs(), request.title, request.folder.trimmed());
    dialog->setObjectName("fileDialog");
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setNameFilters(nameFilters(request.filter));
    return dialog;
}

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
    QFileDialog* dialog = makeDialog(request);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return runDialog(dialog);
}

std::optional<QString> QtPlatform::saveFileName(const FileDialog& request)
{
    QFileDialog* dialog = makeDialog(request);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    // A name without a suffix gets that of the format chosen, before the question about an existing file.
    dialog->setDefaultSuffix(firstSuffix(dialog->selectedNameFilter()));
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog,
                     [dialog](const QString& filter) { dialog->setDefaultSuffix(firstSuffix(filter)); });
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

bool QtPlatform::clipboardHasBitmap()
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasImage();
}

Bits QtPlatform::clipboardBitmap()
{
    const QImage image = QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32);
    Bits bits(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y)
        copyRow(reinterpret_cast<quint32*>(bits.row(y)), reinterpret_cast<const quint32*>(image.constScanLine(y)),
                image.width(), 0);
    return bits;
}

bool QtPlatform::setClipboardBitmap(const Bits& bits)
{
    QImage image(bits.width(), bits.height(), QImage::Format_RGB32);
    if (image.isNull()) return false;
    for (int y = 0; y < image.height(); ++y)
        copyRow(reinterpret_cast<quint32*>(image.scanLine(y)), reinterpret_cast<const quint32*>(bits.row(y)),
                image.width(), 0xFF000000u);
    QGuiApplication::clipboard()->setImage(image);
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
    QGuiApplication::clipboard()->setImage(image);
    return true;
}

void QtPlatform::clearClipboard() { QGuiApplication::clipboard()->clear(); }

} // namespace velara
