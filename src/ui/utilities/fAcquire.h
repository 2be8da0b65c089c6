// fAcquire: the settings of a scan, and its progress. All device access runs outside of the program; Esc, Cancel and
// closing the window end it.
#pragma once
#include "seams/Scanner.h"
#include <QDialog>
#include <array>

class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QProgressBar;
class QPushButton;

namespace velara {

class Platform;

class fAcquire final : public QDialog {
    Q_OBJECT
  public:
    /// Scans into the file at path. The last source, mode and resolution are kept as settings.
    fAcquire(Platform& platform, const QString& path, QWidget* parent);
    ~fAcquire() override;

  signals:
    /// The file contains the picture; the window is closed.
    void acquired();

  private:
    QWidget* makeControls();
    void begin();
    void lookForSource();
    void useSource(const ScanSource& source, bool isRemembered = false);
    void selectSource();
    void describe(bool isRemembered);
    void showRange(const ScanRange& range);
    void wholeBed();
    void scan();
    void failed(const QString& reason);
    void setBusy(const QString& what); // empty: no longer busy
    ScanJob job() const;

    Platform& platform_;
    QString path_;
    ScanSource source_;
    ScanRange range_;
    bool asking_ = false; // the scanner has yet to answer
    QLabel *lblSource_, *lblState_;
    QPushButton *cmdSource_, *cmdScan_;
    QWidget* controls_;
    QComboBox *cbMode_, *cbResolution_;
    std::array<QDoubleSpinBox*, 4> area_; // left, top, width, height
    QPushButton* cmdWhole_;
    QProgressBar* progress_;
};

} // namespace velara
