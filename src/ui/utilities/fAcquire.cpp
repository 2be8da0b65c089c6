#include "ui/utilities/fAcquire.h"
#include "fileio/readInBackground.h"
#include "seams/Platform.h"
#include "ui/utilities/fScanSettings.h"
#include "ui/utilities/fSource.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>

namespace velara {

namespace {

constexpr const char* kSection = "Scanner"; // of the settings

} // namespace

fAcquire::fAcquire(Platform& platform, const QString& path, QWidget* parent)
    : QDialog(parent), platform_(platform), path_(path)
{
    setObjectName("fAcquire");
    setWindowTitle(tr("Acquire"));
    setModal(true);
    auto* column = new QVBoxLayout(this);
    auto* sourceRow = new QHBoxLayout;
    lblSource_ = named(new QLabel, "lblSource");
    lblSource_->setMinimumWidth(300);
    cmdSource_ = named(new QPushButton(tr("Select S&ource ...")), "cmdSource");
    cmdSource_->setAutoDefault(false);
    sourceRow->addWidget(lblSource_, 1);
    sourceRow->addWidget(cmdSource_);
    column->addLayout(sourceRow);
    column->addWidget(settings_ = new fScanSettings);
    lblState_ = named(new QLabel, "lblState");
    progress_ = named(new QProgressBar, "pbScan", tr("Progress of the scan"));
    QSizePolicy kept = progress_->sizePolicy(); // the window keeps its size when the bar is hidden
    kept.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(kept);
    column->addWidget(lblState_);
    column->addWidget(progress_);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    cmdScan_ = named(new QPushButton(tr("&Scan")), "cmdScan");
    cmdScan_->setDefault(true);
    auto* cancel = named(new QPushButton(tr("Cancel")), "cmdCancel");
    cancel->setAutoDefault(false); // Enter scans, or does nothing yet
    buttons->addWidget(cmdScan_);
    buttons->addWidget(cancel);
    column->addLayout(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    connect(cmdSource_, &QPushButton::clicked, this, &fAcquire::selectSource);
    connect(cmdScan_, &QPushButton::clicked, this, &fAcquire::scan);
    connect(settings_, &fScanSettings::previewWanted, this, &fAcquire::preview);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    begin();
}

fAcquire::~fAcquire()
{
    if (asking_) platform_.scanner().cancel();
}

void fAcquire::setBusy(const QString& what)
{
    const bool busy = !what.isEmpty();
    lblState_->setText(what);
    progress_->setRange(0, busy ? 0 : 100); // indeterminate until a percentage arrives
    progress_->setValue(0);
    progress_->setTextVisible(false);
    settings_->setEnabled(!busy && !source_.device.isEmpty());
    cmdSource_->setEnabled(!busy);
    cmdScan_->setEnabled(!busy && !source_.device.isEmpty());
    progress_->setVisible(busy);
    if (cmdScan_->isEnabled()) cmdScan_->setFocus();
    asking_ = busy;
}

void fAcquire::begin()
{
    const ScanSource last = rememberedSource(platform_);
    if (last.device.isEmpty()) return lookForSource();
    useSource(last, true);
}

/// No source was chosen, or it no longer exists: uses one with the same title, which may have another name after it was
/// plugged in again, or the first one found.
void fAcquire::lookForSource()
{
    source_ = {};
    lblSource_->setText(tr("No source"));
    setBusy(tr("Looking for scanners ..."));
    platform_.scanner().list([this](const QList<ScanSource>& sources, const QString& reason) {
        setBusy({});
        if (sources.isEmpty()) return failed(reason.isEmpty() ? tr("no scanner was found") : reason);
        const QString last = rememberedSource(platform_).title;
        const auto same = std::ranges::find(sources, last, &ScanSource::title);
        useSource(same != sources.end() ? *same : sources.front());
    });
}

void fAcquire::useSource(const ScanSource& source, bool isRemembered)
{
    source_ = source;
    lblSource_->setText(source.title);
    lblSource_->setToolTip(source.device);
    describe(isRemembered);
}

void fAcquire::selectSource()
{
    auto* dialog = new fSource(platform_, source_.device, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &fSource::chosen, this, [this](const ScanSource& source) {
        rememberSource(platform_, source);
        useSource(source);
    });
    dialog->open();
}

void fAcquire::describe(bool isRemembered)
{
    setBusy(tr("Asking the scanner ..."));
    platform_.scanner().describe(source_.device, [this, isRemembered](const ScanRange& range, const QString& reason) {
        setBusy({});
        if (reason.isEmpty()) return settings_->setRange(range, lastJob());
        if (isRemembered) return lookForSource(); // not connected now
        source_ = {};
        failed(reason);
    });
}

ScanJob fAcquire::lastJob() const
{
    return {{},
            platform_.setting(kSection, "Feed", ""),
            platform_.setting(kSection, "Mode", ""),
            platform_.setting(kSection, "Resolution", "0").toInt()};
}

void fAcquire::preview()
{
    const auto show = [this] {
        readInBackground(platform_, this, path_, [this](const LoadedPicture& picture) {
            settings_->setPreview(picture.bits);
            platform_.scanner().next();
        });
    };
    start(settings_->previewJob(), show, [] {});
}

void fAcquire::scan()
{
    const ScanJob wanted = settings_->job();
    platform_.setSetting(kSection, "Feed", wanted.feed);
    platform_.setSetting(kSection, "Mode", wanted.mode);
    platform_.setSetting(kSection, "Resolution", QString::number(wanted.resolution));
    rememberSource(platform_, source_);
    pages_ = 0;
    const auto give = [this] {
        taking_ = true;
        ++pages_;
        emit acquired();
    };
    start(wanted, give, [this] { accept(); });
}

/// then follows when all is scanned.
void fAcquire::start(ScanJob job, std::function<void()> page, std::function<void()> then)
{
    job.device = source_.device;
    setBusy(tr("Scanning ..."));
    const auto progress = [this](int percent) {
        progress_->setRange(0, 100);
        progress_->setValue(percent);
        progress_->setTextVisible(true);
    };
    const auto done = [this, then = std::move(then)](const QString& reason) {
        setBusy({});
        if (reason.isEmpty()) return then();
        failed(reason);
    };
    platform_.scanner().acquire(job, path_, {progress, std::move(page), done});
}

void fAcquire::pageTaken()
{
    taking_ = false;
    if (leaving_) return QDialog::reject();
    if (settings_->job().what == ScanJob::Pages) setBusy(tr("Scanning page %1 ...").arg(pages_ + 1));
    platform_.scanner().next();
}

/// A page that is being read becomes a document all the same.
void fAcquire::reject()
{
    leaving_ = taking_;
    if (!leaving_) QDialog::reject();
}

/// The window stays open: a lid can be closed, a cable plugged in.
void fAcquire::failed(const QString& reason)
{
    const QPointer<fAcquire> self = this;
    lblState_->setText(tr("The scanner says: ") + reason);
    showScannerFailure(platform_);
    if (self) settings_->setEnabled(!source_.device.isEmpty());
}

} // namespace velara
