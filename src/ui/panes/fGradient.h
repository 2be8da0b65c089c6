// FGradient and FShape: panes that follow what is chosen in them.
#pragma once
#include "ui/panes/fPane.h"

class QLabel;

namespace velara {

/// With a preview of the gradient, made by the engine itself.
class FGradient final : public fPane {
    Q_OBJECT
  public:
    FGradient(Frame& frame, const QString& name, QWidget* parent = nullptr);

  private:
    void edited() override;

    QLabel* iGrad_;
};

/// The number of sides is for polygons only.
class FShape final : public fPane {
    Q_OBJECT
  public:
    FShape(Frame& frame, const QString& name, QWidget* parent = nullptr);

  private:
    void edited() override;
};

} // namespace velara
