// fPrinterSetup: printer, paper and colours of the pages to come. The printers and what they can do are asked for in
// the background; a PDF file can be chosen at once.
#pragma once
#include "seams/Printers.h"
#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace velara {

class fPrinterBox;

class fPrinterSetup final : public QDialog {
    Q_OBJECT
  public:
    fPrinterSetup(Printers& printers, QWidget* parent);

  private:
    void choosePrinter();
    void enable(bool known);
    void showOptions(const Printers::Options& options);
    void choose();

    Printers& printers_;
    Printers::Request asked_;
    std::vector<Paper> papers_; // as they stand in the list
    fPrinterBox* cbPrinters_;
    QComboBox* cbPaper_;
    QCheckBox* chkGray_;
    QLabel* lblState_;
    QPushButton* cmdOK_;
};

} // namespace velara
