// The mouse tools as a table: name and looks, class, settings and key of each. A new tool is a class and a row of
// toolRows.cpp.
#pragma once
#include "tools/PaneRow.h"
#include "tools/ToolSurface.h"
#include <QStringView>
#include <span>

namespace velara {

class Tool;

struct ToolRow {
    const char* name; // its value in Setup.CurrentTool
    const Tool& (*tool)();
    char key; // chooses the tool
    const char *caption, *icon;
    Pointer pointer;
    std::span<const PaneRow> pane = {}; // the settings; none: no pane
    const char *side = "", *popup = ""; // names of its pane in the side bar and of its pop-up
};

/// The buttons of the strip reserved for tools; those of menus.cpp follow.
inline constexpr int kMostTools = 13;

/// In the order of the strip's buttons, numbered from 1.
std::span<const ToolRow> toolRows();
/// Ignores trailing blanks; null when there is none.
const ToolRow* findTool(QStringView name);
/// Not in the strip: receives the mouse while a paste is pending.
const ToolRow& pasteRow();

} // namespace velara
