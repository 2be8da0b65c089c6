// fPrinterSetup: chooses printer, paper and colours for later pages. The printers and their options are queried in the
// background; a PDF file can be chosen at once.
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
    std::vector<Paper> papers_; // in the order of the list
    fPrinterBox* cbPrinters_;
    QComboBox* cbPaper_;
    QCheckBox* chkGray_;
    QLabel* lblState_;
    QPushButton* cmdOK_;
};

} // namespace velara
