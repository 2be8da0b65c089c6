#include "platform/desktop/dialogs/fileDialogs.h"
#include "fileio/formats.h"
#include "platform/desktop/dialogs/NameDelegate.h"
#include "platform/desktop/dialogs/PreviewPane.h"
#include "platform/desktop/dialogs/boxes.h"
#include "platform/nameFilters.h"
#include "seams/sizeText.h"
#include <QCheckBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
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

/// A name follows the chosen kind of file, and is asked about where it has the ending of another. Asks before replacing
/// the file that will really be written, whose name may differ from the chosen one.
class SaveDialog final : public PictureDialog {
    Q_DECLARE_TR_FUNCTIONS(velara::SaveDialog)
  public:
    SaveDialog(Platform& platform, const FileDialog& request)
        : PictureDialog(platform, "Save", request), request_(request)
    {
        setOption(DontConfirmOverwrite);
        setAcceptMode(AcceptSave);
        setFileMode(AnyFile);
        setDefaultSuffix(suffix());
        connect(this, &QFileDialog::filterSelected, this, &SaveDialog::followKind);
        addChoices();
        if (!request.name.isEmpty()) propose(request.name);
    }
    void accept() override
    {
        const QPointer<SaveDialog> alive = this; // its parent may be deleted during a question
        const QString name = selectedFiles().value(0);
        const bool isFile = !name.isEmpty() && !QFileInfo(name).isDir();
        if (isFile && !(endingIsRight(name) && mayBeReplaced())) return;
        if (!alive) return;
        for (std::size_t i = 0; i < boxes_.size(); ++i) *request_.choices[i].on = boxes_[i]->isChecked();
        QFileDialog::accept();
    }

  private:
    /// In a row below everything else.
    void addChoices()
    {
        auto* grid = qobject_cast<QGridLayout*>(layout());
        if (!grid || request_.choices.empty()) return;
        auto* row = new QHBoxLayout;
        for (const FileChoice& choice : request_.choices) {
            auto* box = new QCheckBox(choice.caption);
            box->setObjectName(choice.name);
            box->setChecked(*choice.on);
            row->addWidget(box);
            for (std::size_t i = 0; i < boxes_.size(); ++i)
                if (request_.choices[i].on == choice.needs) {
                    box->setEnabled(boxes_[i]->isChecked());
                    connect(boxes_[i], &QCheckBox::toggled, box, &QWidget::setEnabled);
                }
            boxes_.push_back(box);
        }
        row->addStretch();
        grid->addLayout(row, grid->rowCount(), 0, 1, grid->columnCount());
    }
    QLineEdit* field() const { return findChild<QLineEdit*>("fileNameEdit"); }
    QString suffix(const QString& preferred) const
    {
        return suffixFor(request_.filter, selectedNameFilter(), preferred);
    }
    QString suffix() const { return suffix(request_.extension); }
    /// The name under the ending of the chosen kind; itself where it has one of its endings, or none that is known.
    QString fitting(const QString& name) const
    {
        const QString ending = extensionOf(name);
        const bool fits = !formatOf(name) || suffix().isEmpty() || suffix(ending) == ending;
        return fits ? name : withEnding(name, suffix());
    }
    void selectStem(const QString& name) { field()->setSelection(0, int(QFileInfo(name).completeBaseName().size())); }
    void propose(const QString& name)
    {
        selectFile(directory().filePath(name));
        if (!field()) return;
        field()->setFocus();
        QTimer::singleShot(0, this, [this, name] { selectStem(name); }); // the dialog selects everything as it shows
    }
    void followKind()
    {
        setDefaultSuffix(suffix());
        if (!field()) return;
        field()->setText(fitting(field()->text())); // Qt has changed the ending where the chosen kind has one
        selectStem(field()->text());
    }
    QString writtenAs(const QString& name) const { return request_.writtenAs ? request_.writtenAs(name) : name; }
    /// Asks where the file would be of another kind than the chosen one.
    bool endingIsRight(const QString& name)
    {
        const QString other = QFileInfo(fitting(name)).fileName(), own = QFileInfo(name).fileName();
        if (other == own || extensionOf(writtenAs(name)) != extensionOf(name)) return true;
        const QPointer<SaveDialog> alive = this;
        const int choice = showChoices(
            windowTitle(), tr("\"%1\" has the ending of another kind of file.").arg(own),
            {tr("Save as \"%1\"").arg(other).replace(u'&', "&&"), tr("Keep \"%1\"").arg(own).replace(u'&', "&&")});
        if (alive && choice == 0) field()->setText(fitting(name)); // with its folder, which may have been typed
        return alive && choice >= 0;
    }
    bool mayBeReplaced()
    {
        const QFileInfo written(writtenAs(selectedFiles().value(0)));
        return !written.exists() ||
               showBox(windowTitle(), tr("%1 already exists.\nDo you want to replace it?").arg(written.fileName()),
                       Icon::Exclamation, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
    }

    const FileDialog request_;
    std::vector<QCheckBox*> boxes_; // of its choices
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
    return run(new SaveDialog(platform, request));
}

std::optional<QString> askFolder(Platform& platform, const QString& title, const QString& start)
{
    auto* dialog = new RememberedDialog(platform, "Folder", title, start);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    return run(dialog);
}

} // namespace velara
