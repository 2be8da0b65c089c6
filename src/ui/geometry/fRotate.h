// fRotate: the dialog "Rotate": any integer angle.
#pragma once
#include "ui/geometry/fGeometry.h"
#include <QSlider>

namespace velara {

class fRotate final : public fGeometry {
    Q_OBJECT
  public:
    fRotate(Platform& platform, const Bits& picture, QWidget* parent = nullptr);
    Job job() const override;
    QString words() const override;

  private:
    void turnBy(int degrees);
    void showPreview();

    Bits picture_; // scaled so that its diagonal fits the preview
    QSlider* degrees_;
    QLineEdit* text_;
    QCheckBox* smooth_;
    fPicture* preview_;
};

} // namespace velara
