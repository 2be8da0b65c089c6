// fCapture: chooses what to capture of the screen. Asks and waits; the frame does the rest.
#pragma once
#include <QDialog>
#include <QTimer>

class QCheckBox;
class QComboBox;

namespace velara {

class fCapture final : public QDialog {
    Q_OBJECT
  public:
    enum Where { Desktop, Foreground, Background }; // of cb

    explicit fCapture(QWidget* parent);

    /// Milliseconds between the choice and the capture, besides the time that windows need to disappear.
    int delay() const;
    bool withPointer() const;

  signals:
    /// "Capture": the whole screen, by its command word. The dialog is hidden.
    void captureChosen(const QString& word);
    /// "Custom": a rectangle. The dialog is hidden; customDue() follows half a second and the delay later, when other
    /// windows are gone.
    void customChosen(Where where);
    void customDue();

  private:
    QWidget* makeCustom();

    QComboBox *cb_, *cbDelay_;
    QCheckBox* chkPointer_;
    QTimer Timer2_;
};

} // namespace velara
