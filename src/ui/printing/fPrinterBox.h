// fPrinterBox: the list of printers. They are looked for while the person goes on; a PDF file can be chosen at once,
// and stays chosen when the printers come.
#pragma once
#include "seams/Printers.h"
#include <QComboBox>

namespace velara {

class fPrinterBox final : public QComboBox {
    Q_OBJECT
  public:
    explicit fPrinterBox(Printers& printers);

    /// Begins, once the signals are connected.
    void look();
    bool isFile() const { return currentData().toBool(); }
    /// Empty for a file, and as long as nothing is chosen.
    QString printer() const { return isFile() ? QString() : currentText(); }

  signals:
    /// By the person, or the current one when the printers are known.
    void chosen();
    /// How the search stands, in words for a person; empty when all printers are there.
    void told(const QString& state);

  private:
    void found(const Printers::List& list);

    Printers& printers_;
    Printers::Request looking_;
};

} // namespace velara
