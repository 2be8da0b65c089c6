#include "platform/desktop/dialogs/fileDialogs.h"
#include "platform/desktop/dialogs/NameDelegate.h"
#include "platform/desktop/dialogs/PreviewPane.h"
#include "platform/desktop/dialogs/boxes.h"
#include "platform/nameFilters.h"
#include "seams/sizeText.h"
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QSplitter>
#include <QStandardPaths>
#include <QTimer>
#include <QTreeView>
#include <QUrl>

namespace velara {

namespace {

const QString kSection = QStringLiteral("FileDialogs");
constexpr QSize kUsualSize(1020, 580);
constexpr int kPreviewWidth = 240;

/// Qt's own dialog: a desktop's native one has no room for a preview.
class RememberedDialog : public QFileDialog {
  public:
    RememberedDialog(Platform& platform, const QString& name, const QString& title, const QString& folder)
        : QFileDialog(parentOfDialogs(), title, folder.trimmed()), platform_(platform), name_(name)
    {
        setObjectName(name == "Folder" ? "folderDialog" : "fileDialog");
        setOption(DontUseNativeDialog);
        showThumbnails();
        setSidebarUrls(places());
        restore(folder.trimmed());
    }
    ~RememberedDialog() override
    {
        platform_.setSetting(kSection, name_,
                             sizeText(size(), "x") + ' ' + QString::fromLatin1(saveState().toBase64()));
    }

  private:
    void showThumbnails()
    {
        constexpr int kSide = 32;
        auto* icons = new ThumbnailIcons(platform_.previews(), kSide, this);
        setItemDelegate(new NameDelegate(this, icons));
        for (const char* name : {"listView", "treeView"})
            if (auto* list = findChild<QAbstractItemView*>(QLatin1String(name))) {
                list->setIconSize({kSide, kSide});
                connect(icons, &ThumbnailIcons::ready, list->viewport(), qOverload<>(&QWidget::update));
            }
    }
    void restore(const QString& folder)
    {
        const QStringList parts = platform_.setting(kSection, name_, {}).split(' ');
        const QSize size = sizeOf(parts[0], "x");
        resize(size.isEmpty() ? kUsualSize : size);
        if (!restoreState(QByteArray::fromBase64(parts.value(1).toLatin1()))) layOutColumns();
        if (!folder.isEmpty()) setDirectory(folder); // instead of the last one's
    }
    /// Qt's default widths truncate most dates and kinds.
    void layOutColumns()
    {
        constexpr int kColumns[] = {210, 80, 120, 160}; // name, size, kind, date
        if (auto* list = findChild<QTreeView*>("treeView"))
            for (int i = 0; i < 4; ++i) list->header()->resizeSection(i, kColumns[i]);
        if (auto* sides = findChild<QSplitter*>("splitter")) sides->setSizes({130, width()});
    }
    static QList<QUrl> places()
    {
        QList<QUrl> urls = {QUrl("file:")}; // this computer
        for (const auto place : {QStandardPaths::HomeLocation, QStandardPaths::DesktopLocation,
                                 QStandardPaths::PicturesLocation, QStandardPaths::DownloadLocation})
            if (const QString path = QStandardPaths::writableLocation(place); QFileInfo(path).isDir())
                if (const QUrl url = QUrl::fromLocalFile(path); !urls.contains(url)) urls << url;
        return urls;
    }

    Platform& platform_;
    QString name_;
};

class PictureDialog : public RememberedDialog {
  public:
    PictureDialog(Platform& platform, const QString& name, const FileDialog& request)
        : RememberedDialog(platform, name, request.title, request.folder)
    {
        setOption(HideNameFilterDetails);
        setNameFilters(velara::nameFilters(request.filter));
        auto* preview = new PreviewPane(platform.previews());
        preview->setFixedWidth(kPreviewWidth);
        if (auto* grid = qobject_cast<QGridLayout*>(layout()))
            grid->addWidget(preview, 0, grid->columnCount(), grid->rowCount(), 1);
        connect(this, &QFileDialog::currentChanged, preview, &PreviewPane::showFile);
        connect(this, &QFileDialog::directoryEntered, preview, [preview] { preview->showFile({}); });
        if (const auto* name = findChild<QLineEdit*>("fileNameEdit"))
            connect(name, &QLineEdit::textChanged, preview, [this, preview](const QString& text) {
                const QFileInfo typed(directory(), text);
                if (typed.isFile()) preview->showFile(typed.filePath());
            });
    }
};

/// Asks about the file that will really be written, whose name may differ from the chosen one.
class SaveDialog final : public PictureDialog {
  public:
    SaveDialog(Platform& platform, const FileDialog& request)
        : PictureDialog(platform, "Save", request), writtenAs_(request.writtenAs)
    {
        setOption(DontConfirmOverwrite);
    }
    void propose(const QString& name)
    {
        selectFile(directory().filePath(name));
        auto* field = findChild<QLineEdit*>("fileNameEdit");
        if (!field) return;
        field->setFocus();
        // The dialog selects everything as it shows.
        QTimer::singleShot(
            0, field, [field, stem = int(QFileInfo(name).completeBaseName().size())] { field->setSelection(0, stem); });
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

std::optional<QString> run(QFileDialog* dialog)
{
    const QPointer<QFileDialog> watched = dialog; // its parent may be deleted while it is open
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!watched) return std::nullopt;
    const QStringList files = dialog->selectedFiles();
    delete dialog;
    if (!accepted || files.isEmpty()) return std::nullopt;
    return files.front();
}

} // namespace

std::optional<QString> askOpenName(Platform& platform, const FileDialog& request)
{
    auto* dialog = new PictureDialog(platform, "Open", request);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return run(dialog);
}

std::optional<QString> askSaveName(Platform& platform, const FileDialog& request)
{
    auto* dialog = new SaveDialog(platform, request);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    const auto giveSuffix = [dialog, request](const QString& filter) {
        dialog->setDefaultSuffix(suffixFor(request.filter, filter, request.extension));
    };
    giveSuffix(dialog->selectedNameFilter());
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, giveSuffix);
    if (!request.name.isEmpty()) dialog->propose(request.name);
    return run(dialog);
}

std::optional<QString> askFolder(Platform& platform, const QString& title, const QString& start)
{
    auto* dialog = new RememberedDialog(platform, "Folder", title, start);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    return run(dialog);
}

} // namespace velara
