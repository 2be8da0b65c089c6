#include "ui/printing/fPrinterBox.h"
#include "ui/widgets/inputs/named.h"

namespace velara {

fPrinterBox::fPrinterBox(Printers& printers) : printers_(printers)
{
    named(this, "cbPrinters", tr("Printer"));
    setMinimumContentsLength(24);
    addItem(tr("PDF file ..."), true);
    setCurrentIndex(-1);
    setPlaceholderText(tr("Choose a printer"));
    connect(this, &QComboBox::activated, this, &fPrinterBox::chosen);
}

void fPrinterBox::look()
{
    emit told(tr("Looking for printers ..."));
    looking_ = printers_.list([this](const Printers::List& list) { found(list); });
}

/// The printers in the system's order, before the file.
void fPrinterBox::found(const Printers::List& list)
{
    const bool isChosen = currentIndex() >= 0;
    insertItems(0, list.names);
    const QString none = list.names.isEmpty() ? tr("No printer was found") : QString();
    emit told(none.isEmpty() || list.reason.isEmpty() ? none : none + ": " + list.reason);
    if (isChosen) return;
    const auto current = static_cast<int>(list.names.indexOf(list.current));
    setCurrentIndex(current >= 0 ? current : count() - 1);
    emit chosen();
}

} // namespace velara
