// fResolution: the dialog "Resolution": one of the common screen sizes.
#pragma once
#include "ui/geometry/fGeometry.h"
#include <QButtonGroup>

namespace velara {

class fResolution final : public fGeometry {
    Q_OBJECT
  public:
    /// ofFile: the picture's own resolution as text; empty: unknown.
    explicit fResolution(Platform& platform, const QString& ofFile = {}, QWidget* parent = nullptr);
    Job job() const override;
    QString words() const override;

  private:
    QButtonGroup* sizes_;
    QCheckBox* smooth_;
};

} // namespace velara
