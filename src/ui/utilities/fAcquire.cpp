#include "ui/utilities/fAcquire.h"
#include "seams/Platform.h"
#include "ui/utilities/fSource.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QIntValidator>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>

namespace velara {

namespace {

constexpr const char* kSection = "Scanner"; // of the settings
constexpr int kUsual[] = {75, 100, 150, 200, 300, 400, 600, 1200, 2400};
enum Area { Left, Top, Width, Height };

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
    column->addWidget(controls_ = makeControls());
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
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    showRange({});
    begin();
}

fAcquire::~fAcquire()
{
    if (asking_) platform_.scanner().cancel();
}

QWidget* fAcquire::makeControls()
{
    auto* panel = new QWidget;
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 6, 0, 6);
    const auto add = [grid](QWidget* field, const char* name, const QString& caption, int row, int at) {
        field->setObjectName(name);
        auto* label = new QLabel(caption);
        label->setBuddy(field);
        grid->addWidget(label, row, at);
        grid->addWidget(field, row, at + 1);
    };
    cbMode_ = new QComboBox;
    cbResolution_ = new QComboBox;
    add(cbMode_, "cbMode", tr("&Mode"), 0, 0);
    add(cbResolution_, "cbResolution", tr("&Resolution (dpi)"), 0, 2);
    struct AreaRow {
        const char *name, *caption;
        int row, at;
    };
    constexpr AreaRow kArea[] = {
        {"sbLeft", "&Left", 1, 0}, {"sbTop", "&Top", 1, 2}, {"sbWidth", "&Width", 2, 0}, {"sbHeight", "&Height", 2, 2}};
    for (std::size_t i = 0; i < area_.size(); ++i) {
        area_[i] = new QDoubleSpinBox;
        area_[i]->setDecimals(1);
        area_[i]->setSuffix(tr(" mm"));
        add(area_[i], kArea[i].name, tr(kArea[i].caption), kArea[i].row, kArea[i].at);
    }
    cmdWhole_ = named(new QPushButton(tr("Whole &bed")), "cmdWhole");
    cmdWhole_->setAutoDefault(false);
    grid->addWidget(cmdWhole_, 3, 3);
    connect(cmdWhole_, &QPushButton::clicked, this, &fAcquire::wholeBed);
    // The farther in it begins, the smaller it must be.
    for (const int edge : {Left, Top})
        connect(area_[std::size_t(edge)], &QDoubleSpinBox::valueChanged, this, [this, edge](double from) {
            const double bed = edge == Left ? range_.bed.width() : range_.bed.height();
            area_[std::size_t(edge + 2)]->setMaximum(bed - from);
        });
    return panel;
}

void fAcquire::setBusy(const QString& what)
{
    const bool busy = !what.isEmpty();
    lblState_->setText(what);
    progress_->setRange(0, busy ? 0 : 100); // indeterminate until a percentage arrives
    progress_->setValue(0);
    progress_->setTextVisible(false);
    controls_->setEnabled(!busy && !source_.device.isEmpty());
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

/// No source was chosen, or it no longer exists: uses the first one found.
void fAcquire::lookForSource()
{
    source_ = {};
    lblSource_->setText(tr("No source"));
    setBusy(tr("Looking for scanners ..."));
    platform_.scanner().list([this](const QList<ScanSource>& sources, const QString& reason) {
        setBusy({});
        if (sources.isEmpty()) return failed(reason.isEmpty() ? tr("no scanner was found") : reason);
        useSource(sources.front());
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
        if (reason.isEmpty()) return showRange(range);
        if (isRemembered) return lookForSource(); // not connected now
        source_ = {};
        failed(reason);
    });
}

void fAcquire::showRange(const ScanRange& range)
{
    range_ = range;
    cbMode_->clear();
    cbMode_->addItems(range.modes);
    const QString mode = platform_.setting(kSection, "Mode", range.mode);
    cbMode_->setCurrentText(range.modes.contains(mode) ? mode : range.mode);
    cbMode_->setEnabled(!range.modes.isEmpty());

    cbResolution_->clear();
    cbResolution_->setEnabled(range.resolution > 0);
    cbResolution_->setEditable(range.anyBetween);
    QList<int> offered = range.resolutions;
    if (range.anyBetween && offered.size() == 2) {
        const int least = offered.front(), most = offered.back();
        offered = {range.resolution};
        for (const int usual : kUsual)
            if (usual >= least && usual <= most && !offered.contains(usual)) offered << usual;
        std::sort(offered.begin(), offered.end());
        cbResolution_->setValidator(new QIntValidator(std::max(1, least), most, cbResolution_));
    }
    for (const int dpi : offered) cbResolution_->addItem(QString::number(dpi));
    const int last = platform_.setting(kSection, "Resolution", "0").toInt();
    cbResolution_->setCurrentText(QString::number(offered.contains(last) ? last : range.resolution));

    for (QDoubleSpinBox* field : area_) field->setEnabled(!range.bed.isEmpty());
    cmdWhole_->setEnabled(!range.bed.isEmpty());
    wholeBed();
}

void fAcquire::wholeBed()
{
    const double sizes[] = {range_.bed.width(), range_.bed.height()};
    for (std::size_t i = 0; i < 2; ++i) {
        area_[i]->setRange(0, std::max(0.0, sizes[i] - 1));
        area_[i]->setValue(0);
        area_[i + 2]->setRange(1, std::max(1.0, sizes[i]));
        area_[i + 2]->setValue(sizes[i]);
    }
}

ScanJob fAcquire::job() const
{
    ScanJob job{source_.device, cbMode_->currentText(), cbResolution_->currentText().toInt(), {}};
    if (!range_.bed.isEmpty())
        job.area = {area_[Left]->value(), area_[Top]->value(), area_[Width]->value(), area_[Height]->value()};
    return job;
}

void fAcquire::scan()
{
    const ScanJob wanted = job();
    platform_.setSetting(kSection, "Mode", wanted.mode);
    platform_.setSetting(kSection, "Resolution", QString::number(wanted.resolution));
    rememberSource(platform_, source_);
    setBusy(tr("Scanning ..."));
    platform_.scanner().acquire(
        wanted, path_,
        [this](int percent) {
            progress_->setRange(0, 100);
            progress_->setValue(percent);
            progress_->setTextVisible(true);
        },
        [this](const QString& reason) {
            setBusy({});
            if (!reason.isEmpty()) return failed(reason);
            accept();
            emit acquired();
        });
}

/// The window stays open: a lid can be closed, a cable plugged in.
void fAcquire::failed(const QString& reason)
{
    const QPointer<fAcquire> self = this;
    lblState_->setText(tr("The scanner says: ") + reason);
    showScannerFailure(platform_);
    if (self) controls_->setEnabled(!source_.device.isEmpty());
}

} // namespace velara
