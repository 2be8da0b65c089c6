// FGradient: the pane of the gradient tool.
#pragma once
#include "ui/panes/fPane.h"

class QLabel;

namespace velara {

/// With a preview of the gradient, made by the engine itself.
class FGradient final : public fPane {
    Q_OBJECT
  public:
    FGradient(Frame& frame, const QString& name, std::span<const PaneRow> rows);

  private:
    void edited() override;

    QLabel* iGrad_;
};

} // namespace velara
