#include "ui/many/fFolderRun.h"
#include "fileio/formats.h"
#include "fileio/readInBackground.h"
#include "fileio/savePicture.h"
#include "seams/Platform.h"
#include "seams/printable.h"
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QDirIterator>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace velara {

namespace {

/// About as many as velara-batch will find; it has the last word.
int countOf(const QStringList& inputs, bool below, const GoOn& goOn)
{
    int count = 0;
    for (const QString& input : inputs) {
        if (!QFileInfo(input).isDir()) {
            ++count;
            continue;
        }
        QDirIterator files(input, QDir::Files, below ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
        while (files.hasNext() && goOn(std::chrono::milliseconds(0))) count += formatOf(files.next()) != nullptr;
    }
    return count;
}

QString timeText(qint64 milliseconds)
{
    const qint64 seconds = milliseconds / 1000;
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QChar(u'0'));
}

} // namespace

fFolderRun::fFolderRun(Platform& platform, QString program, QString logFolder, std::vector<RecipeChoice> recipes,
                       QWidget* parent)
    : QDialog(parent), platform_(platform), program_(std::move(program)), logFolder_(std::move(logFolder)),
      recipes_(std::move(recipes))
{
    setObjectName("fFolderRun");
    setWindowTitle(tr("Run on a Folder"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(order_ = makeOrder());
    column->addLayout(makeProgress(), 1);
    connect(&run_, &FolderRun::pictureDone, this, &fFolderRun::pictureDone);
    connect(&run_, &FolderRun::ended, this, &fFolderRun::ended);
    updateControls();
    resize(sizeHint()); // else it would open at two thirds of a small screen, which squeezes its controls
}

// --- What to do

void fFolderRun::addInput(const QString& path)
{
    auto* item = new QListWidgetItem(printable(path), lstInputs_);
    item->setData(Qt::UserRole, path);
    item->setToolTip(printable(path));
    updateControls();
}

void fFolderRun::chooseFile()
{
    const QPointer<fFolderRun> stands = this;
    const auto path = platform_.openFileName({tr("Add a picture"), openFilter()});
    if (stands && path) addInput(*path);
}

void fFolderRun::chooseFolder()
{
    const QPointer<fFolderRun> stands = this;
    const auto path = platform_.pickFolder(tr("Add a folder of pictures"), {});
    if (!stands || !path) return;
    addInput(*path);
    if (txtInto_->text().isEmpty()) txtInto_->setText(*path + tr("-done"));
}

void fFolderRun::chooseTarget()
{
    const QPointer<fFolderRun> stands = this;
    const auto path = platform_.pickFolder(tr("Where the new files go"), txtInto_->text());
    if (stands && path) txtInto_->setText(*path);
}

void fFolderRun::updateControls()
{
    const bool over = chkOriginals_->isChecked(), runs = run_.isRunning();
    order_->setEnabled(!runs);
    for (QWidget* each : std::initializer_list<QWidget*>{txtInto_, cmdInto_, txtName_, cboFormat_, cboExisting_})
        each->setEnabled(!over);
    const QString format = cboFormat_->currentData().toString();
    spnQuality_->setEnabled(!over && hasQuality(format));
    cmdRemove_->setEnabled(!lstInputs_->selectedItems().isEmpty());
    cmdRun_->setEnabled(!runs && lstInputs_->count() > 0 && cboRecipe_->count() > 0 &&
                        (over || !txtInto_->text().trimmed().isEmpty()));
    cmdPause_->setEnabled(runs);
    cmdPause_->setText(run_.isPaused() ? tr("Go &on") : tr("Pau&se"));
    cmdCancel_->setText(runs ? tr("Cancel") : tr("Close"));
}

std::optional<FolderOrder> fFolderRun::order()
{
    FolderOrder order;
    for (int i = 0; i < lstInputs_->count(); ++i) order.inputs << lstInputs_->item(i)->data(Qt::UserRole).toString();
    order.below = chkBelow_->isChecked();
    order.overOriginals = chkOriginals_->isChecked();
    order.into = txtInto_->text().trimmed();
    order.name = txtName_->text().trimmed();
    order.format = cboFormat_->currentData().toString();
    order.quality = spnQuality_->isEnabled() ? spnQuality_->value() : 0;
    order.existing = cboExisting_->currentData().toString();
    const QPointer<fFolderRun> stands = this;
    const auto recipe = recipes_.at(std::size_t(cboRecipe_->currentIndex())).file(); // may ask
    if (!stands || !recipe) return {};
    order.recipe = *recipe;
    return order;
}

/// The second time that it has to be said.
bool fFolderRun::mayOverwrite()
{
    if (!chkOriginals_->isChecked()) return true;
    const QPointer<fFolderRun> stands = this;
    return platform_.choose(windowTitle(), tr("Every original is replaced by its result. They can't be brought back."),
                            {tr("&Replace the originals")}) == 0 &&
           stands;
}

// --- Doing it

void fFolderRun::begin()
{
    if (run_.isRunning()) return;
    const QPointer<fFolderRun> stands = this;
    const bool may = mayOverwrite();
    const auto wanted = stands && may ? order() : std::nullopt;
    if (!wanted) return;
    total_ = done_ = skipped_ = failed_ = 0;
    worked_ = 0;
    lstFailures_->clear();
    bar_->setRange(0, 0);
    lblLog_->clear();
    log_ = logFolder_ + u'/' + QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd-HHmmss")) +
           QStringLiteral(".log");
    clock_.start();
    const auto count = std::make_shared<int>(0);
    inBackground(
        platform_, this,
        [=, inputs = wanted->inputs, below = wanted->below](const GoOn& goOn) {
            *count = countOf(inputs, below, goOn);
        },
        [this, count] {
            total_ = *count;
            showProgress();
        });
    run_.start(program_, argumentsOf(*wanted), log_);
    updateControls();
    showProgress();
}

void fFolderRun::pictureDone(const PictureResult& result)
{
    ++(result.kind == PictureResult::Done ? done_ : result.kind == PictureResult::Skipped ? skipped_ : failed_);
    if (result.kind == PictureResult::Failed) {
        auto* item = new QListWidgetItem(
            printable(QFileInfo(result.input).fileName() + QStringLiteral(": ") + result.reason), lstFailures_);
        item->setData(Qt::UserRole, result.input);
        item->setToolTip(printable(result.input) + u'\n' + printable(result.reason));
    }
    showProgress();
}

/// "12 of about 200, 3 failed, 95 a minute, 1:20 left".
void fFolderRun::showProgress()
{
    const int over = done_ + skipped_ + failed_, worked = done_ + failed_;
    if (total_ > 0) bar_->setRange(0, std::max(total_, over));
    if (total_ > 0) bar_->setValue(over);
    QStringList parts{total_ > 0 ? tr("%1 of about %2").arg(over).arg(std::max(total_, over))
                                 : tr("%1 done").arg(over)};
    if (skipped_ > 0) parts << tr("%1 skipped").arg(skipped_);
    if (failed_ > 0) parts << tr("%1 failed").arg(failed_);
    const qint64 time = worked_ + (run_.isPaused() ? 0 : clock_.elapsed());
    if (worked > 0 && time > 0) {
        parts << tr("%1 a minute").arg(qRound(worked * 60000.0 / double(time)));
        if (total_ > over) parts << tr("%1 left").arg(timeText(time * (total_ - over) / worked));
    }
    if (run_.isPaused()) parts << tr("paused");
    lblState_->setText(parts.join(QStringLiteral(", ")));
}

void fFolderRun::ended(bool wasStarted, const QString& said)
{
    if (closes_) return QDialog::reject();
    const int over = done_ + skipped_ + failed_;
    bar_->setRange(0, std::max(total_, 1));
    bar_->setValue(over);
    // The last line sums up; where no picture was begun, those before it say why.
    QStringList lines = said.split(u'\n', Qt::SkipEmptyParts);
    lines = lines.mid(std::max<qsizetype>(0, lines.size() - (over > 0 ? 1 : 3)));
    for (QString& line : lines) line = printable(line.remove(QStringLiteral("velara-batch: ")));
    lblState_->setText(wasStarted ? lines.join(u'\n') : tr("%1 can't be started: %2").arg(program_, said));
    lblLog_->setText(QFileInfo::exists(log_) ? tr("Log: %1").arg(printable(log_)) : QString());
    updateControls();
}

/// Also what a close does. While it is at work it closes once that has ended.
void fFolderRun::reject()
{
    if (!run_.isRunning()) return QDialog::reject();
    const QPointer<fFolderRun> stands = this;
    const bool ends = platform_.choose(windowTitle(), tr("It is still at work."), {tr("&Stop it and close")}) == 0;
    if (!stands || !ends) return;
    closes_ = true;
    run_.isRunning() ? run_.cancel() : QDialog::reject();
}

} // namespace velara
