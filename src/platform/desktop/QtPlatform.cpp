#include "platform/desktop/QtPlatform.h"
#include "platform/desktop/ReadingBox.h"
#include "platform/nameFilters.h"
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
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

} // namespace velara
