// fSize: the dialog "Image size".
#pragma once
#include "ui/geometry/fGeometry.h"

class QDoubleSpinBox;

namespace velara {

class fSize final : public fGeometry {
    Q_OBJECT
  public:
    fSize(Platform& platform, const Bits& picture, QWidget* parent = nullptr);
    Job job() const override;
    QString words() const override;

  protected:
    bool valid() const override { return sizeAllowed(fields_->widthValue(), fields_->heightValue()); }

  private:
    void quick(const QString& entry);
    void showPercent();
    void showPreview();

    Bits picture_; // scaled to the preview
    QSize size_;   // of the real one
    fSizeFields* fields_;
    QDoubleSpinBox* percent_;
    QCheckBox* smooth_;
    fPicture* preview_;
};

} // namespace velara
