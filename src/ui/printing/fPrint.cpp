#include "ui/printing/fPrint.h"
#include "commands/printing.h"
#include "seams/Platform.h"
#include "ui/printing/fOwnSize.h"
#include "ui/printing/fPagePreview.h"
#include "ui/printing/fPrinterBox.h"
#include "ui/widgets/fPicture.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>

namespace velara {

namespace {

constexpr QSize kPreview{200, 200};
constexpr PageOrientation kOrientations[] = {PageOrientation::Portrait, PageOrientation::Landscape};

} // namespace

fPrint::fPrint(Platform& platform, const Bits& picture, const QString& name, std::function<void()> toClipboard,
               QWidget* parent)
    : QDialog(parent), platform_(platform), picture_(picture), name_(name), toClipboard_(std::move(toClipboard)),
      facts_(platform.printers().fileFacts()),
      iOut_(new fPagePreview("iOut", tr("The page"), kPreview + QSize(20, 20))), lblSize_(named(new QLabel, "lblSize")),
      lblResolution_(named(new QLabel, "lblResolution")), lblState_(named(new QLabel, "lblState"))
{
    setObjectName("fPrint");
    setWindowTitle(tr("Print"));
    setModal(true);
    iOut_->setPicture(fittingCopy(picture, kPreview * devicePixelRatioF()));
    lblSize_->setAlignment(Qt::AlignCenter);
    lblResolution_->setAlignment(Qt::AlignCenter);
    lblResolution_->hide();
    auto* left = new QVBoxLayout;
    left->addWidget(iOut_);
    left->addWidget(lblSize_);
    left->addWidget(lblResolution_);
    left->addStretch();
    auto* top = new QHBoxLayout;
    top->addLayout(left);
    top->addWidget(controls_ = makeControls(), 1);
    auto* bottom = new QHBoxLayout;
    cmdOK_ = named(new QPushButton(tr("Print")), "cmdOK");
    cmdOK_->setDefault(true);
    auto* cancel = named(new QPushButton(tr("Cancel")), "cmdCancel");
    cancel->setAutoDefault(false);
    bottom->addWidget(lblState_, 1);
    bottom->addWidget(cmdOK_);
    bottom->addWidget(cancel);
    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addLayout(bottom);
    column->setSizeConstraint(QLayout::SetFixedSize);
    connect(cmdOK_, &QPushButton::clicked, this, &fPrint::print);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    cbQuality_->setCurrentIndex(2);
    cbOrientation_->setCurrentIndex(picture.width() >= picture.height() ? 1 : 0);
    showPage();
    cmdOK_->setEnabled(false);
    cbPrinters_->setFocus();
    connect(cbPrinters_, &fPrinterBox::chosen, this, &fPrint::choosePrinter);
    connect(cbPrinters_, &fPrinterBox::told, this, [this](const QString& state) {
        if (controls_->isEnabled()) lblState_->setText(state); // nothing is being printed yet
    });
    cbPrinters_->look();
}

QWidget* fPrint::makeControls()
{
    auto* panel = new QWidget;
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(12, 0, 0, 0);
    const auto add = [grid](const QString& caption, QWidget* field, QWidget* buddy) {
        auto* label = new QLabel(caption);
        label->setBuddy(buddy);
        const int row = grid->rowCount();
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1);
    };
    const auto choice = [&](const char* name, const QString& caption, const QStringList& entries) {
        auto* box = named(new QComboBox, name, caption);
        box->addItems(entries);
        add(caption, box, box);
        return box;
    };
    cbPrinters_ = new fPrinterBox(platform_.printers());
    add(tr("Printer"), cbPrinters_, cbPrinters_);
    cbOrientation_ = choice("cbOrientation", tr("Orientation"), {tr("Portrait"), tr("Landscape")});
    cbQuality_ = choice("cbQuality", tr("Quality"), {tr("Draft"), tr("Low"), tr("Medium"), tr("High")});
    copies_ = makeCopies();
    add(tr("Copies"), copies_, txtCopies_);
    chkFit_ = named(new QCheckBox(tr("&Fit to page")), "chkFit");
    chkCenter_ = named(new QCheckBox(tr("&Center image")), "chkCenter");
    chkCenter_->setChecked(true);
    add(tr("Adjustment"), chkFit_, chkFit_);
    grid->addWidget(chkCenter_, grid->rowCount(), 1);
    ownSize_ = new fOwnSize({picture_.width(), picture_.height()});
    grid->addWidget(ownSize_, grid->rowCount(), 1);
    grid->setRowStretch(grid->rowCount(), 1);
    connect(cbOrientation_, &QComboBox::currentIndexChanged, this, &fPrint::showPage);
    connect(chkFit_, &QCheckBox::toggled, this, [this](bool fit) {
        if (fit) ownSize_->turnOff();
        showPage();
    });
    connect(ownSize_, &fOwnSize::changed, this, [this] {
        if (ownSize_->scale() > 0) chkFit_->setChecked(false);
        showPage();
    });
    connect(chkCenter_, &QCheckBox::toggled, this, &fPrint::showPage);
    return panel;
}

QWidget* fPrint::makeCopies()
{
    auto* field = new QWidget;
    auto* row = new QHBoxLayout(field);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    txtCopies_ = named(new QLineEdit("1"), "txtCopies");
    txtCopies_->setAccessibleName(tr("Copies"));
    txtCopies_->setFixedWidth(txtCopies_->fontMetrics().horizontalAdvance("000000") + 24);
    txtCopies_->setAlignment(Qt::AlignRight);
    sbCopies_ = named(new QScrollBar(Qt::Vertical), "sbCopies");
    sbCopies_->setAccessibleName(tr("Copies"));
    sbCopies_->setRange(1, kMostCopies);
    sbCopies_->setInvertedAppearance(true); // up is more
    sbCopies_->setInvertedControls(true);
    sbCopies_->setFixedHeight(txtCopies_->sizeHint().height());
    row->addWidget(txtCopies_);
    row->addWidget(sbCopies_);
    row->addSpacing(8);
    row->addWidget(lblCopies_ = named(new QLabel, "lblCopies"));
    row->addStretch();
    connect(sbCopies_, &QScrollBar::valueChanged, this, [this](int copies) {
        if (txtCopies_->text().toInt() != copies) txtCopies_->setText(QString::number(copies));
    });
    connect(txtCopies_, &QLineEdit::textEdited, this, [this](const QString& text) {
        bool isNumber = false;
        const int copies = text.toInt(&isNumber);
        if (isNumber && copies >= 1) sbCopies_->setValue(copies);
    });
    return field;
}

void fPrint::showPrinting()
{
    lblState_->setText(tr("Printing ..."));
    controls_->setEnabled(false);
    cmdOK_->setEnabled(false);
}

void fPrint::choosePrinter()
{
    if (std::exchange(factsAsked_, nullptr)) lblState_->clear();
    copies_->setEnabled(!cbPrinters_->isFile());
    if (cbPrinters_->isFile()) return showFacts(platform_.printers().fileFacts());
    cmdOK_->setEnabled(false);
    lblState_->setText(tr("Asking the printer ..."));
    platform_.printers().setCurrent(cbPrinters_->printer());
    factsAsked_ = platform_.printers().facts(cbPrinters_->printer(), [this](const PrinterFacts& facts) {
        lblState_->clear();
        showFacts(facts);
    });
}

/// A page can be printed from now on.
void fPrint::showFacts(const PrinterFacts& facts)
{
    facts_ = facts;
    cmdOK_->setEnabled(true);
    if (cbPrinters_->hasFocus() && !std::exchange(ready_, true)) cmdOK_->setFocus();
    sbCopies_->setMaximum(facts.mostCopies);
    lblCopies_->setText(facts.mostCopies < kMostCopies ? tr("at most %1").arg(facts.mostCopies) : QString());
    showPage();
}

PrintPage fPrint::page() const
{
    PrintPage page;
    page.picture = picture_;
    page.paper = facts_.paper;
    page.gray = facts_.gray;
    page.quality = PrintQuality{-(cbQuality_->currentIndex() + 1)};
    page.title = name_;
    PrintPictureToFitPage(page, kOrientations[cbOrientation_->currentIndex()], chkCenter_->isChecked(),
                          chkFit_->isChecked(), ownSize_->scale());
    return page;
}

void fPrint::showPage()
{
    const PrintPage shown = page();
    iOut_->setPage(shown);
    const double natural = naturalSize({picture_.width(), picture_.height()}).width();
    const QRectF largest =
        printPlace({picture_.width(), picture_.height()}, shown.paper.printable(shown.orientation).size(), false, true);
    ownSize_->showScale(shown.place.width() / natural, largest.width() / natural);
    lblSize_->setText(tr("%1 x %2 mm").arg(shown.place.width(), 0, 'f', 0).arg(shown.place.height(), 0, 'f', 0));
}

void fPrint::showResolution(const QString& ofFile)
{
    lblResolution_->setText(tr("File: ") + ofFile);
    lblResolution_->setVisible(!ofFile.isEmpty());
}

void fPrint::print()
{
    const QPointer<fPrint> self = this;
    bool isNumber = false;
    const int copies = txtCopies_->text().toInt(&isNumber);
    if (!cbPrinters_->isFile() && (!isNumber || copies < 1 || copies > facts_.mostCopies))
        return finished({tr("%1 copies").arg(txtCopies_->text())});
    toClipboard_();
    if (!self) return;
    PrintPage wanted = page();
    wanted.copies = copies;
    send(wanted);
}

void fPrint::send(const PrintPage& page)
{
    const QPointer<fPrint> self = this;
    Printers& printers = platform_.printers();
    const bool isFile = cbPrinters_->isFile();
    const FileDialog dialog{tr("Print to file"), "PDF|*.pdf", {}, {}, "pdf"};
    const auto path = isFile ? platform_.saveFileName(dialog) : QString();
    if (!self || !path) return;
    showPrinting();
    const auto done = [this](const PrintResult& result) { finished(result); };
    const Printers::Request request =
        isFile ? printers.printToFile(*path, page, done) : printers.print(cbPrinters_->printer(), page, done);
    if (self) printing_ = request; // an answer that came at once may have ended with this window
}

void fPrint::finished(const PrintResult& result)
{
    const QPointer<fPrint> self = this;
    if (!result.fault.isEmpty()) {
        lblState_->setText(result.fault);
        platform_.tell(tr("Unable to print"), Icon::Exclamation);
    } else if (!result.notice.isEmpty()) {
        lblState_->setText(tr("It is waiting"));
        platform_.tell(result.notice);
    }
    if (self) accept();
}

} // namespace velara
