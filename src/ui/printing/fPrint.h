// fPrint: the print dialog of the active picture, with a page preview. Finding the printers and printing run outside of
// the program; a PDF file can be chosen meanwhile, and Esc, Cancel and closing the window cancel them.
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

class fOwnSize;
class fPagePreview;
class Platform;
class fPrinterBox;

class fPrint final : public QDialog {
    Q_OBJECT
  public:
    /// name is the print job's. toClipboard copies the picture to the clipboard, where it stays.
    fPrint(Platform& platform, const Bits& picture, const QString& name, std::function<void()> toClipboard,
           QWidget* parent);
    /// Tells the resolution that the picture's file has, as text; empty: unknown.
    void showResolution(const QString& ofFile);

  private:
    QWidget* makeControls();
    QWidget* makeCopies();
    void choosePrinter();
    void showFacts(const PrinterFacts& facts);
    void showPage();
    void showPrinting();
    PrintPage page() const;
    void print();
    void send(const PrintPage& page);
    void finished(const PrintResult& result);

    Platform& platform_;
    Bits picture_;
    QString name_;
    std::function<void()> toClipboard_;
    PrinterFacts facts_; // of the chosen printer or file
    bool ready_ = false; // once they were known
    Printers::Request factsAsked_, printing_;
    fPrinterBox* cbPrinters_;
    QComboBox *cbOrientation_, *cbQuality_;
    QCheckBox *chkFit_, *chkCenter_;
    fOwnSize* ownSize_;
    QWidget* copies_;
    QLineEdit* txtCopies_;
    QScrollBar* sbCopies_;
    fPagePreview* iOut_;
    QLabel *lblCopies_, *lblSize_, *lblResolution_, *lblState_;
    QWidget* controls_;
    QPushButton* cmdOK_;
};

} // namespace velara
