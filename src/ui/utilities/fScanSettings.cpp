#include "ui/utilities/fScanSettings.h"
#include "ui/utilities/fBed.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

namespace velara {

namespace {

constexpr int kUsual[] = {75, 100, 150, 200, 300, 400, 600, 1200, 2400};
constexpr int kPreview = 75, kFirst = 150; // dots per inch: of a preview, and where the device has no usual value
enum Area { Left, Top, Width, Height };

/// Without asking again what follows from it.
void choose(QComboBox& box, const QStringList& entries, const QString& entry)
{
    const QSignalBlocker quiet(box);
    box.clear();
    box.addItems(entries);
    box.setCurrentIndex(std::max(0, int(entries.indexOf(entry))));
    box.setEnabled(entries.size() > 1);
}

} // namespace

fScanSettings::fScanSettings() : bed_(new fBed)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 6, 0, 6);
    cmdPreview_ = named(new QPushButton(tr("Pre&view")), "cmdPreview");
    cmdWhole_ = named(new QPushButton(tr("Whole &bed")), "cmdWhole");
    for (QPushButton* button : {cmdPreview_, cmdWhole_}) button->setAutoDefault(false);
    row->addWidget(bed_);
    auto* right = new QVBoxLayout;
    auto* grid = new QGridLayout;
    addControls(*grid);
    addArea(*grid);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdPreview_);
    buttons->addWidget(cmdWhole_);
    right->addLayout(grid);
    right->addLayout(buttons);
    right->addStretch();
    row->addLayout(right, 1);
    connect(cmdPreview_, &QPushButton::clicked, this, &fScanSettings::previewWanted);
    connect(cmdWhole_, &QPushButton::clicked, this, &fScanSettings::wholeBed);
    connect(bed_, &fBed::drawn, this, &fScanSettings::showArea);
    setRange({}, {});
}

void fScanSettings::addControls(QGridLayout& grid)
{
    const auto add = [this, &grid](const char* name, const QString& caption) {
        auto* box = named(new QComboBox, name, QString(caption).remove('&'));
        auto* label = new QLabel(caption);
        label->setBuddy(box);
        const int row = grid.rowCount();
        grid.addWidget(label, row, 0);
        grid.addWidget(box, row, 1);
        lblFeed_ = lblFeed_ ? lblFeed_ : label;
        return box;
    };
    cbFeed_ = add("cbFeed", tr("&From"));
    cbMode_ = add("cbMode", tr("&Mode"));
    cbResolution_ = add("cbResolution", tr("&Resolution (dpi)"));
    connect(cbFeed_, &QComboBox::currentIndexChanged, this, &fScanSettings::showModes);
    connect(cbMode_, &QComboBox::currentIndexChanged, this, &fScanSettings::showChoice);
}

void fScanSettings::addArea(QGridLayout& grid)
{
    constexpr const char* kArea[][2] = {{"sbLeft", QT_TR_NOOP("&Left")},
                                        {"sbTop", QT_TR_NOOP("&Top")},
                                        {"sbWidth", QT_TR_NOOP("&Width")},
                                        {"sbHeight", QT_TR_NOOP("&Height")}};
    for (std::size_t i = 0; i < area_.size(); ++i) {
        const QString caption = tr(kArea[i][1]);
        area_[i] = named(new QDoubleSpinBox, kArea[i][0], QString(caption).remove('&'));
        area_[i]->setDecimals(1);
        area_[i]->setSuffix(tr(" mm"));
        auto* label = new QLabel(caption);
        label->setBuddy(area_[i]);
        const int row = grid.rowCount();
        grid.addWidget(label, row, 0);
        grid.addWidget(area_[i], row, 1);
        connect(area_[i], &QDoubleSpinBox::valueChanged, this, &fScanSettings::readArea);
    }
}

void fScanSettings::setRange(const ScanRange& range, const ScanJob& last)
{
    range_ = range;
    bed_->setBed({}); // a preview of another device
    const ScanChoice usual = range.choices.value(range.current);
    QStringList feeds;
    for (const ScanChoice& each : range.choices)
        if (!feeds.contains(each.feed)) feeds << each.feed;
    choose(*cbFeed_, feeds, feeds.contains(last.feed) ? last.feed : usual.feed);
    for (QWidget* part : std::initializer_list<QWidget*>{cbFeed_, lblFeed_}) part->setVisible(feeds.size() > 1);
    showModes();
    for (const QString& mode : {usual.mode, last.mode}) cbMode_->setCurrentText(mode);
    const int dpi = last.resolution > 0 ? last.resolution : usual.resolution;
    cbResolution_->setCurrentText(QString::number(choice().nearest(dpi > 0 ? dpi : kFirst)));
}

ScanChoice fScanSettings::choice() const
{
    for (const ScanChoice& each : range_.choices)
        if (each.feed == cbFeed_->currentText() && each.mode == cbMode_->currentText()) return each;
    return {};
}

void fScanSettings::showModes()
{
    QStringList modes;
    for (const ScanChoice& each : range_.choices)
        if (each.feed == cbFeed_->currentText()) modes << each.mode;
    choose(*cbMode_, modes, cbMode_->currentText());
    showChoice();
}

/// What was chosen before stays where the device takes it.
void fScanSettings::showChoice()
{
    const ScanChoice set = choice();
    const int before = cbResolution_->currentText().toInt();
    QList<int> offered = set.resolutions;
    if (set.step > 0) {
        offered = {set.nearest(set.resolution)};
        for (const int usual : kUsual)
            if (set.nearest(usual) == usual && !offered.contains(usual)) offered << usual;
        std::ranges::sort(offered);
    }
    if (offered.isEmpty() && set.resolution > 0) offered = {set.resolution};
    QStringList entries;
    for (const int dpi : offered) entries << QString::number(dpi);
    cbResolution_->setEditable(false);
    choose(*cbResolution_, entries, QString::number(set.nearest(before)));
    if (set.step > 0) letTypeResolution(set, before);
    const bool hasBed = !set.bed.isEmpty();
    for (QDoubleSpinBox* field : area_) field->setEnabled(hasBed);
    cmdWhole_->setEnabled(hasBed);
    cmdPreview_->setEnabled(hasBed && !set.isFeeder); // a feeder would take in a page
    if (set.isFeeder) bed_->setPreview({});           // it shows another sheet
    if (bed_->bed() == set.bed) return;
    bed_->setBed(set.bed);
    wholeBed();
}

void fScanSettings::letTypeResolution(const ScanChoice& set, int dpi)
{
    cbResolution_->setEnabled(true);
    cbResolution_->setEditable(true);
    cbResolution_->setInsertPolicy(QComboBox::NoInsert);
    cbResolution_->setCurrentText(QString::number(set.nearest(dpi)));
    QLineEdit* typed = cbResolution_->lineEdit(); // a new one
    typed->setValidator(new QIntValidator(1, set.resolutions.back(), typed));
    connect(typed, &QLineEdit::editingFinished, this,
            [this, set, typed] { typed->setText(QString::number(set.nearest(typed->text().toInt()))); });
}

void fScanSettings::wholeBed() { showArea({{0, 0}, bed_->bed()}); }

void fScanSettings::showArea(const QRectF& area)
{
    const QSizeF bed = bed_->bed().expandedTo({1, 1});
    const double values[] = {area.left(), area.top(), area.width(), area.height()};
    const double most[] = {bed.width() - 1, bed.height() - 1, bed.width() - area.left(), bed.height() - area.top()};
    for (std::size_t i = 0; i < area_.size(); ++i) {
        const QSignalBlocker quiet(area_[i]);
        area_[i]->setRange(i < Width ? 0 : 1, most[i]);
        area_[i]->setValue(values[i]);
    }
    bed_->setArea(area);
}

/// The farther in it begins, the smaller it must be.
void fScanSettings::readArea()
{
    for (const std::size_t edge : {Left, Top}) {
        const QSignalBlocker quiet(area_[edge + 2]);
        const double bed = edge == Left ? bed_->bed().width() : bed_->bed().height();
        area_[edge + 2]->setMaximum(bed - area_[edge]->value());
    }
    bed_->setArea({area_[Left]->value(), area_[Top]->value(), area_[Width]->value(), area_[Height]->value()});
}

void fScanSettings::setPreview(const Bits& picture) { bed_->setPreview(picture); }

ScanJob fScanSettings::job() const
{
    const ScanChoice set = choice();
    ScanJob job{{}, set.feed, set.mode, set.nearest(cbResolution_->currentText().toInt()), {}};
    if (!set.bed.isEmpty())
        job.area = {area_[Left]->value(), area_[Top]->value(), area_[Width]->value(), area_[Height]->value()};
    job.what = set.isFeeder ? ScanJob::Pages : ScanJob::Page;
    return job;
}

ScanJob fScanSettings::previewJob() const
{
    const ScanChoice set = choice();
    return {{},
            set.feed,
            set.mode,
            set.resolutions.isEmpty() ? 0 : set.nearest(kPreview),
            {{0, 0}, set.bed},
            ScanJob::Preview};
}

} // namespace velara
