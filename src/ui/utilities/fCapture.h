// fCapture: what of the screen is to be captured. Asks and waits; the frame does the rest.
#pragma once
#include <QDialog>
#include <QTimer>

class QComboBox;

namespace velara {

class fCapture final : public QDialog {
    Q_OBJECT
  public:
    enum Where { Desktop, Foreground, Background }; // of cb

    explicit fCapture(QWidget* parent);

  signals:
    /// "Capture": the whole screen, by its command word. The dialog is hidden.
    void captureChosen(const QString& word);
    /// "Custom": a rectangle of it. The dialog is hidden; what stands in the way has half a second to go.
    void customChosen(Where where);
    void customDue();

  private:
    QWidget* makeCustom();

    QComboBox* cb_;
    QTimer Timer2_;
};

} // namespace velara
