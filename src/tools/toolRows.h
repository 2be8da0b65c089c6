// The mouse tools as a table: what each is called and looks like, the class behind it, its settings and its key. A new
// tool is a class and a row of toolRows.cpp.
#pragma once
#include "tools/PaneRow.h"
#include "tools/ToolSurface.h"
#include <QStringView>
#include <span>

namespace velara {

class Tool;

struct ToolRow {
    const char* name; // of Setup.CurrentTool
    const Tool& (*tool)();
    char key; // chooses the tool
    const char *caption, *icon;
    Pointer pointer;
    std::span<const PaneRow> pane = {}; // the settings; none: no pane
    const char *side = "", *popup = ""; // names of the pane in the frame's side and of the one that pops up
};

/// The buttons of the strip that tools may have; those of menus.cpp come behind them.
inline constexpr int kMostTools = 13;

/// In the order of the strip's buttons, the first of which is 1.
std::span<const ToolRow> toolRows();
/// Blanks at the end don't count; null when there is none.
const ToolRow* findTool(QStringView name);
/// Not of the strip: holds the mouse while a paste is pending.
const ToolRow& pasteRow();

} // namespace velara
