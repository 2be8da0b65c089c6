// fNew: the dialog "New": the size of a new picture.
#pragma once
#include "ui/geometry/fGeometry.h"

namespace velara {

class fNew final : public fGeometry {
    Q_OBJECT
  public:
    explicit fNew(Platform& platform, QWidget* parent = nullptr);
    int widthValue() const { return fields_->widthValue(); }
    int heightValue() const { return fields_->heightValue(); }
    /// A black picture of that size.
    Job job() const override;

  protected:
    bool valid() const override { return sizeAllowed(widthValue(), heightValue()); }
    void accept() override;

  private:
    QComboBox* sizes_;
    fSizeFields* fields_;
};

} // namespace velara
