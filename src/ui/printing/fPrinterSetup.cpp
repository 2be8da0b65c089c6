#include "ui/printing/fPrinterSetup.h"
#include "ui/printing/fPrinterBox.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QPageSize>
#include <QPushButton>

namespace velara {

namespace {

/// "A4 (210 x 297 mm)"
QString captionOf(const Paper& paper)
{
    const auto known = QPageSize::id(paper.size, QPageSize::Millimeter, QPageSize::FuzzyMatch);
    const QString size =
        QObject::tr("%1 x %2 mm").arg(paper.size.width(), 0, 'f', 0).arg(paper.size.height(), 0, 'f', 0);
    return known == QPageSize::Custom ? size : QString("%1 (%2)").arg(QPageSize::name(known), size);
}

} // namespace

fPrinterSetup::fPrinterSetup(Printers& printers, QWidget* parent)
    : QDialog(parent), printers_(printers), cbPrinters_(new fPrinterBox(printers)),
      cbPaper_(named(new QComboBox, "cbPaper", tr("Paper"))),
      chkGray_(named(new QCheckBox(tr("&Shades of gray")), "chkGray")), lblState_(named(new QLabel, "lblState"))
{
    setObjectName("Dlg");
    setWindowTitle(tr("Printer Setup"));
    setModal(true);
    auto* form = new QFormLayout;
    form->addRow(tr("Printer"), cbPrinters_);
    form->addRow(tr("Paper"), cbPaper_);
    form->addRow({}, chkGray_);
    cmdOK_ = named(new QPushButton(tr("OK")), "cmdOK");
    cmdOK_->setDefault(true);
    auto* cancel = named(new QPushButton(tr("Cancel")), "cmdCancel");
    cancel->setAutoDefault(false);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(lblState_, 1);
    bottom->addWidget(cmdOK_);
    bottom->addWidget(cancel);
    auto* column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addLayout(bottom);
    column->setSizeConstraint(QLayout::SetFixedSize);
    enable(false);
    cbPrinters_->setFocus();
    connect(cmdOK_, &QPushButton::clicked, this, &fPrinterSetup::choose);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cbPrinters_, &fPrinterBox::chosen, this, &fPrinterSetup::choosePrinter);
    connect(cbPrinters_, &fPrinterBox::told, lblState_, &QLabel::setText);
    cbPrinters_->look();
}

void fPrinterSetup::enable(bool known)
{
    cbPaper_->setEnabled(known);
    chkGray_->setEnabled(known);
    cmdOK_->setEnabled(known);
}

void fPrinterSetup::choosePrinter()
{
    enable(false);
    if (!cbPrinters_->isFile()) lblState_->setText(tr("Asking the printer ..."));
    asked_ =
        printers_.options(cbPrinters_->printer(), [this](const Printers::Options& options) { showOptions(options); });
}

void fPrinterSetup::showOptions(const Printers::Options& options)
{
    if (!cbPrinters_->isFile()) lblState_->clear();
    papers_ = options.papers;
    cbPaper_->clear();
    for (const Paper& paper : papers_) cbPaper_->addItem(captionOf(paper));
    chkGray_->setChecked(options.gray);
    enable(true);
}

void fPrinterSetup::choose()
{
    printers_.choose(
        {cbPrinters_->printer(), papers_[static_cast<std::size_t>(cbPaper_->currentIndex())], chkGray_->isChecked()});
    accept();
}

} // namespace velara
