// The panes of the mouse tools, for the frame's side and as pop-ups of the tool strip.
#pragma once
#include "ui/panes/fPane.h"
#include <QStringList>

namespace velara {

/// A tool with a pane, in the order of the tool strip's buttons from the second one on.
struct ToolPaneRow {
    const char* tool;  // of Setup.CurrentTool
    const char* side;  // name of the pane in the frame's side
    const char* popup; // name of the pane that pops up
    fPane* (*make)(Frame&, const QString& name);
};
std::span<const ToolPaneRow> toolPaneRows();

/// The tool's pane in the frame's side. That of the stamps says so when their folder is missing.
QWidget* makeSidePane(const QString& tool, Frame& frame, QWidget* parent = nullptr);
/// The pane that floats beside the tool strip, a window that is deleted when it closes; null for a tool without one.
QWidget* makePopup(const QString& tool, Frame& frame, QWidget* parent);

} // namespace velara
