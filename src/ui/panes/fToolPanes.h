// The panes of the mouse tools, for the side bar and as pop-ups of the tool strip, made from the tools' rows.
#pragma once
#include "tools/toolRows.h"

class QWidget;

namespace velara {

class Frame;

/// The tool's pane in the side bar; null for a tool without one. The stamps pane says so when their folder is missing.
QWidget* makeSidePane(const ToolRow& tool, Frame& frame, QWidget* parent = nullptr);
/// The pane that floats beside the tool strip, a window that is deleted when it closes; null for a tool without one.
QWidget* makePopup(const ToolRow& tool, Frame& frame, QWidget* parent);

} // namespace velara
