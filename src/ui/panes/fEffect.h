// FEffect: the pane of the text tool: its opacity, and the effects of the textures box at a small strength.
#pragma once
#include "ui/panes/fPane.h"

class QListWidget;

namespace velara {

class FEffect final : public fPane {
    Q_OBJECT
  public:
    FEffect(Frame& frame, const QString& name, std::span<const PaneRow> rows);

    /// Runs the chosen effect on the active document.
    void apply();

  private:
    QListWidget* lstEffects_;
};

} // namespace velara
