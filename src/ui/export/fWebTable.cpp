#include "ui/export/fWebTable.h"
#include "seams/Platform.h"
#include "ui/widgets/inputs/named.h"
#include <QDialogButtonBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <cmath>

namespace velara {

namespace {

enum Column { kFormat, kBytes, kLoss, kColumns };

/// A cell that sorts by its number and shows a text.
class NumberCell final : public QTableWidgetItem {
  public:
    NumberCell(double number, const QString& text) : QTableWidgetItem(text), number_(number)
    {
        setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    bool operator<(const QTableWidgetItem& other) const override
    {
        return number_ < static_cast<const NumberCell&>(other).number_;
    }

  private:
    double number_;
};

} // namespace

struct fWebTable::Row {
    WebSettings settings;
    QString name;
    WebFile file = {};
    double decibels = 0;
    bool isComplete = false;
};

fWebTable::fWebTable(Platform& platform, const Bits& picture, const CameraData& camera, const QString& temporaryName,
                     QWidget* parent)
    : QDialog(parent), platform_(platform), picture_(picture), camera_(camera), temporaryName_(temporaryName)
{
    setObjectName(QStringLiteral("fWebTable"));
    setWindowTitle(tr("All formats"));
    setModal(true);
    auto* layout = new QVBoxLayout(this);
    table_ = named(new QTableWidget(0, kColumns), "tblFormats", tr("Formats by size"));
    table_->setHorizontalHeaderLabels({tr("Format"), tr("Bytes"), tr("Loss")});
    table_->horizontalHeader()->setSectionResizeMode(kFormat, QHeaderView::Stretch);
    table_->verticalHeader()->hide();
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setTabKeyNavigation(false);
    table_->sortByColumn(kBytes, Qt::AscendingOrder);
    table_->setSortingEnabled(true);
    progress_ = named(new QLabel, "lblProgress", tr("Progress"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    ok_ = named(buttons->button(QDialogButtonBox::Ok), "cmdChoose", tr("Choose the format"));
    ok_->setText(tr("Choose"));
    ok_->setEnabled(false);
    layout->addWidget(table_, 1);
    layout->addWidget(progress_);
    layout->addWidget(buttons);
    connect(table_, &QTableWidget::itemSelectionChanged, this,
            [this] { ok_->setEnabled(!table_->selectedItems().isEmpty()); });
    connect(table_, &QTableWidget::cellDoubleClicked, this, &fWebTable::choose);
    connect(buttons, &QDialogButtonBox::accepted, this, &fWebTable::choose);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(460, 620);
    next();
}

void fWebTable::next()
{
    const int count = int(webPresets().size());
    progress_->setText(done_ < count ? tr("%1 of %2").arg(done_).arg(count) : tr("Decibels: the more, the better."));
    if (done_ == count) return;
    const auto row = std::make_shared<Row>();
    row->settings.choosePreset(done_, false);
    row->settings.camera = camera_;
    row->name = temporaryName_ + u'.' + row->settings.extension();
    const auto does = [row, picture = picture_, palettes = palettes_, &reader = platform_](const GoOn& goOn) {
        row->file = writeWebFile(picture, row->settings, row->name, OutputFile::Links::Replace, untilGivenUp(goOn),
                                 palettes.get());
        if (row->file.outcome == WebFile::Outcome::Written) {
            const Bits shown = reader.loadPicture(row->name, row->settings.extension(), goOn).bits;
            row->isComplete = shown.width() == picture.width() && shown.height() == picture.height();
            if (row->isComplete) row->decibels = peakSignalToNoise(picture, shown);
        }
        QFile::remove(row->name);
    };
    request_ = platform_.inBackground(does, [this, row] {
        request_.reset();
        if (row->isComplete) add(*row);
        ++done_;
        next();
    });
}

void fWebTable::add(const Row& row)
{
    table_->setSortingEnabled(false); // or the row moves between its cells
    const int at = table_->rowCount();
    table_->insertRow(at);
    auto* format = new QTableWidgetItem(QLatin1String(row.settings.row().entry));
    format->setData(Qt::UserRole, row.settings.preset);
    table_->setItem(at, kFormat, format);
    table_->setItem(at, kBytes, new NumberCell(double(row.file.bytes), QStringLiteral("%L1").arg(row.file.bytes)));
    table_->setItem(at, kLoss,
                    new NumberCell(row.decibels, std::isinf(row.decibels)
                                                     ? tr("no loss")
                                                     : tr("%1 dB").arg(locale().toString(row.decibels, 'f', 1))));
    table_->setSortingEnabled(true);
}

void fWebTable::choose()
{
    const auto* format = table_->item(table_->currentRow(), kFormat);
    if (!format) return;
    preset_ = format->data(Qt::UserRole).toInt();
    accept();
}

} // namespace velara
