// fPrint: how the active picture is to be printed, with the page as it will be. Finding the printers and printing take
// their time outside of the program; a PDF file can be chosen meanwhile, and Esc, Cancel and closing the window give
// them up.
#pragma once
#include "seams/Printers.h"
#include <QDialog>
#include <functional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;

namespace velara {

class fPagePreview;
class Platform;
class fPrinterBox;

class fPrint final : public QDialog {
    Q_OBJECT
  public:
    /// name is what the print job is called. toClipboard puts the picture on the clipboard, where it stays.
    fPrint(Platform& platform, const Bits& picture, const QString& name, std::function<void()> toClipboard,
           QWidget* parent);

  private:
    QWidget* makeControls();
    QWidget* makeCopies();
    void choosePrinter();
    void showPage();
    void showPrinting();
    PrintPage page() const;
    void print();
    void send(const PrintPage& page);
    void finished(const QString& reason);

    Platform& platform_;
    Bits picture_;
    QString name_;
    std::function<void()> toClipboard_;
    Paper paper_;
    Printers::Request paperAsked_, printing_;
    fPrinterBox* cbPrinters_;
    QComboBox *cbOrientation_, *cbQuality_;
    QCheckBox *chkFit_, *chkCenter_;
    QLineEdit* txtCopies_;
    QScrollBar* sbCopies_;
    fPagePreview* iOut_;
    QLabel *lblSize_, *lblState_;
    QWidget* controls_;
    QPushButton* cmdOK_;
};

} // namespace velara
