#include "ui/utilities/fSource.h"
#include "seams/Platform.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

namespace velara {

fSource::fSource(Platform& platform, const QString& present, QWidget* parent)
    : QDialog(parent), platform_(platform), present_(present)
{
    setObjectName("fSource");
    setWindowTitle(tr("Select Source"));
    setModal(true);
    auto* column = new QVBoxLayout(this);
    state_ = named(new QLabel, "lblState");
    lstSources_ = named(new QListWidget, "lstSources", tr("Scanners"));
    lstSources_->setMinimumSize(360, 140);
    busy_ = named(new QProgressBar, "pbLooking");
    busy_->setRange(0, 0);
    QSizePolicy kept = busy_->sizePolicy(); // the window keeps its size when the bar is hidden
    kept.setRetainSizeWhenHidden(true);
    busy_->setSizePolicy(kept);
    auto* buttons = new QHBoxLayout;
    const auto button = [&](const char* name, const QString& caption) {
        auto* made = named(new QPushButton(caption), name);
        buttons->addWidget(made);
        return made;
    };
    cmdRefresh_ = button("cmdRefresh", tr("&Look again"));
    buttons->addStretch();
    cmdSelect_ = button("cmdSelect", tr("&Select"));
    auto* cancel = button("cmdCancel", tr("Cancel"));
    cmdSelect_->setDefault(true);
    for (QPushButton* other : {cmdRefresh_, cancel}) other->setAutoDefault(false);
    column->addWidget(state_);
    column->addWidget(lstSources_);
    column->addWidget(busy_);
    column->addLayout(buttons);
    connect(cmdRefresh_, &QPushButton::clicked, this, &fSource::look);
    connect(cmdSelect_, &QPushButton::clicked, this, &fSource::choose);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(lstSources_, &QListWidget::itemActivated, this, &fSource::choose);
    connect(lstSources_, &QListWidget::currentRowChanged, this, [this](int row) { cmdSelect_->setEnabled(row >= 0); });
    look();
}

fSource::~fSource()
{
    if (looking_) platform_.scanner().cancel();
}

void fSource::look()
{
    lstSources_->clear();
    state_->setText(tr("Looking for scanners ..."));
    busy_->show();
    cmdSelect_->setEnabled(false);
    cmdRefresh_->setEnabled(false);
    looking_ = true;
    platform_.scanner().list([this](const QList<ScanSource>& sources, const QString& reason) {
        looking_ = false;
        found(sources);
        if (sources.isEmpty() && !reason.isEmpty()) state_->setText(tr("No scanner was found: ") + reason);
    });
}

void fSource::found(const QList<ScanSource>& sources)
{
    sources_ = sources;
    busy_->hide();
    cmdRefresh_->setEnabled(true);
    state_->setText(sources.isEmpty() ? tr("No scanner was found.") : tr("Scanners of this machine:"));
    for (const ScanSource& source : sources) {
        lstSources_->addItem(source.title + "\n" + source.device);
        if (source.device == present_) lstSources_->setCurrentRow(lstSources_->count() - 1);
    }
    if (lstSources_->currentRow() < 0 && !sources.isEmpty()) lstSources_->setCurrentRow(0);
    lstSources_->setFocus();
}

void fSource::choose()
{
    const int row = lstSources_->currentRow();
    if (row < 0) return;
    const ScanSource source = sources_[row];
    accept();
    emit chosen(source);
}

ScanSource rememberedSource(Machine& machine)
{
    const QString device = machine.setting("Scanner", "Source", "");
    return {device, machine.setting("Scanner", "Title", device)};
}

void rememberSource(Machine& machine, const ScanSource& source)
{
    machine.setSetting("Scanner", "Source", source.device);
    machine.setSetting("Scanner", "Title", source.title);
}

void showScannerFailure(Dialogs& dialogs)
{
    dialogs.tell(fSource::tr("Please Verify that the system is connected to Scanner!"), Icon::Critical);
}

} // namespace velara
