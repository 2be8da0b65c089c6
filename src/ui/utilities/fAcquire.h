// fAcquire: the settings of a scan, and its progress. All device access runs outside of the program; Esc, Cancel and
// closing the window end it.
#pragma once
#include "seams/Scanner.h"
#include <QDialog>
#include <functional>

class QLabel;
class QProgressBar;
class QPushButton;

namespace velara {

class Platform;
class fScanSettings;

class fAcquire final : public QDialog {
    Q_OBJECT
  public:
    /// Scans into the file at path. The last source, feed, mode and resolution are kept as settings.
    fAcquire(Platform& platform, const QString& path, QWidget* parent);
    ~fAcquire() override;
    /// The file that was acquired isn't needed any more.
    void pageTaken();
    void reject() override;

  signals:
    /// The file contains a page; nothing more is scanned until pageTaken().
    void acquired();

  private:
    void begin();
    void lookForSource();
    void useSource(const ScanSource& source, bool isRemembered = false);
    void selectSource();
    void describe(bool isRemembered);
    void preview();
    void scan();
    void start(ScanJob job, std::function<void()> page, std::function<void()> then);
    void failed(const QString& reason);
    void setBusy(const QString& what); // empty: no longer busy
    ScanJob lastJob() const;

    Platform& platform_;
    QString path_;
    ScanSource source_;
    bool asking_ = false;  // the scanner has yet to answer
    bool taking_ = false;  // a page is being read
    bool leaving_ = false; // once it is read
    int pages_ = 0;        // of this scan
    QLabel *lblSource_, *lblState_;
    QPushButton *cmdSource_, *cmdScan_;
    fScanSettings* settings_;
    QProgressBar* progress_;
};

} // namespace velara
