#include "platform/desktop/printing/CupsPrinters.h"
#include "fileio/writers/pagePdf.h"
#include "platform/desktop/printing/cups.h"
#include "seams/Platform.h"
#include <QDialogButtonBox>
#include <QLocale>
#include <QPointer>
#include <QPrintDialog>
#include <QPushButton>
#include <QTemporaryDir>

namespace velara {

namespace {

constexpr const char *kSection = "Printer", *kCurrent = "Current"; // of the settings

Paper paperOf(const QPrinter& printer)
{
    const QPageLayout layout = printer.pageLayout();
    Paper paper{layout.pageSize().key(), layout.pageSize().size(QPageSize::Millimeter), {}};
    QMarginsF margins = layout.minimumMargins();
    if (layout.units() == QPageLayout::Point) margins *= 25.4 / 72;
    paper.margins = margins;
    return paper;
}

/// What the server is to do with a page: as it is, in so many copies, as well as it should.
JobOptions optionsOf(const PrintPage& page)
{
    constexpr const char* kQualities[] = {"3", "4", "4", "5"}; // the server knows draft, normal and high
    JobOptions options{{"copies", QByteArray::number(page.copies)},
                       {"print-quality", kQualities[-static_cast<int>(page.quality) - 1]},
                       {"print-scaling", "none"}};
    if (!page.paper.name.isEmpty()) options.emplace_back("media", page.paper.name.toUtf8());
    return options;
}

QString printBy(const QString& printer, const PrintPage& page, const JobOptions& options, const GoOn& goOn)
{
    const QTemporaryDir folder; // for its owner alone
    const QString pdf = folder.filePath("page.pdf");
    const auto wanted = [&goOn] { return goOn({}); };
    const QString reason = writePagePdf(pdf, page, wanted);
    if (!reason.isEmpty() || !wanted()) return reason;
    return cupsPrint(printer, pdf, page.title, options);
}

} // namespace

Printers::Request CupsPrinters::list(std::function<void(const List&)> done)
{
    const QString last = platform_.setting(kSection, kCurrent, {});
    return work_.add<List>(
        [last](const GoOn&) {
            List list = cupsQueues();
            if (list.names.contains(last)) list.current = last;
            if (list.current.isEmpty() && !list.names.isEmpty()) list.current = list.names.front();
            return list;
        },
        std::move(done));
}

void CupsPrinters::setCurrent(const QString& name) { platform_.setSetting(kSection, kCurrent, name); }

Paper CupsPrinters::usualPaper()
{
    const bool isAmerican = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return {{}, QPageSize::size(isAmerican ? QPageSize::Letter : QPageSize::A4, QPageSize::Millimeter), {5, 5, 5, 5}};
}

Printers::Request CupsPrinters::paper(const QString& printer, std::function<void(const Paper&)> done)
{
    std::optional<Paper> chosen;
    if (chosen_ && chosen_->printerName() == printer) chosen = paperOf(*chosen_);
    return work_.add<Paper>(
        [=, usual = usualPaper()](const GoOn&) { return chosen ? *chosen : cupsPaper(printer).value_or(usual); },
        std::move(done));
}

Printers::Request CupsPrinters::print(const QString& printer, const PrintPage& page, Done done)
{
    JobOptions options = optionsOf(page);
    if (chosen_ && chosen_->printerName() == printer && chosen_->colorMode() == QPrinter::GrayScale)
        options.emplace_back("print-color-mode", "monochrome");
    return work_.add<QString>([=](const GoOn& goOn) { return printBy(printer, page, options, goOn); }, std::move(done));
}

Printers::Request CupsPrinters::printToFile(const QString& path, const PrintPage& page, Done done)
{
    return work_.add<QString>([=](const GoOn& goOn) { return writePagePdf(path, page, [&goOn] { return goOn({}); }); },
                              std::move(done));
}

void CupsPrinters::setUp(QWidget* over)
{
    auto printer = std::make_unique<QPrinter>();
    const QString last = platform_.setting(kSection, kCurrent, {});
    if (!last.isEmpty()) printer->setPrinterName(last);
    if (chosen_ && chosen_->printerName() == last) printer->setPageLayout(chosen_->pageLayout());
    const QPointer<QPrintDialog> dialog = new QPrintDialog(printer.get(), over);
    dialog->setObjectName("Dlg");
    dialog->setWindowTitle("Printer Setup");
    dialog->setOption(QAbstractPrintDialog::PrintToFile, false); // nothing is printed yet
    if (auto* buttons = dialog->findChild<QDialogButtonBox*>())
        if (QPushButton* ok = buttons->button(QDialogButtonBox::Ok)) ok->setText("OK");
    const bool accepted = dialog->exec() == QDialog::Accepted;
    const bool stands = dialog;
    delete dialog;
    if (!accepted || !stands || printer->printerName().isEmpty()) return;
    setCurrent(printer->printerName());
    chosen_ = std::move(printer);
}

} // namespace velara
