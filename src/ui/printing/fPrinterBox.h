// fPrinterBox: the list of printers. They are searched for in the background; a PDF file can be chosen at once, and
// stays chosen when the printers arrive.
#pragma once
#include "seams/Printers.h"
#include <QComboBox>

namespace velara {

class fPrinterBox final : public QComboBox {
    Q_OBJECT
  public:
    explicit fPrinterBox(Printers& printers);

    /// Starts the search; call it after connecting the signals.
    void look();
    bool isFile() const { return currentData().toBool(); }
    /// Empty for a file, and while nothing is chosen.
    QString printer() const { return isFile() ? QString() : currentText(); }

  signals:
    /// By the user, or the current one when the printers are known.
    void chosen();
    /// The state of the search, for the user; empty when all printers are listed.
    void told(const QString& state);

  private:
    void found(const Printers::List& list);

    Printers& printers_;
    Printers::Request looking_;
};

} // namespace velara
