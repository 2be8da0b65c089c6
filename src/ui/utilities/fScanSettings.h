// fScanSettings: what a scanner is to scan: feed, mode, resolution and area, which can be drawn on a preview of the
// bed. A combination that the device doesn't take can't be chosen.
#pragma once
#include "pixels/Bits.h"
#include "seams/Scanner.h"
#include <QWidget>
#include <array>

class QComboBox;
class QDoubleSpinBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace velara {

class fBed;

class fScanSettings final : public QWidget {
    Q_OBJECT
  public:
    fScanSettings();

    /// last: feed, mode and resolution of the scan before, taken over where the device has them.
    void setRange(const ScanRange& range, const ScanJob& last);
    /// The settings, without the device.
    ScanJob job() const;
    /// The whole bed, coarsely.
    ScanJob previewJob() const;
    void setPreview(const Bits& picture);

  signals:
    void previewWanted();

  private:
    void addControls(QGridLayout& grid);
    void addArea(QGridLayout& grid);
    /// The choice that is set; an empty one without a device.
    ScanChoice choice() const;
    void showModes();
    void showChoice();
    void letTypeResolution(const ScanChoice& set, int dpi);
    void wholeBed();
    void showArea(const QRectF& area);
    void readArea();

    ScanRange range_;
    fBed* bed_;
    QLabel* lblFeed_ = nullptr;
    QComboBox *cbFeed_, *cbMode_, *cbResolution_;
    std::array<QDoubleSpinBox*, 4> area_; // left, top, width, height
    QPushButton *cmdWhole_, *cmdPreview_;
};

} // namespace velara
