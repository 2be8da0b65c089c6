// fOrientation: the dialog "Orientation": quarter turns and mirrors.
#pragma once
#include "ui/geometry/fGeometry.h"

namespace velara {

class fOrientation final : public fGeometry {
    Q_OBJECT
  public:
    fOrientation(Platform& platform, const Bits& picture, QWidget* parent = nullptr);
    Job job() const override;
    QString words() const override;

  private:
    Bits picture_; // scaled to the preview
    QComboBox* turns_;
    QCheckBox *vertical_, *horizontal_;
};

} // namespace velara
