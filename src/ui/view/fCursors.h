// The mouse pointers of a document's display. Each holder (cGrab, cBrush, ...) only stores a cursor that is drawn here.
#pragma once
#include "tools/ToolSurface.h"
#include <QCursor>

namespace velara {

QCursor cursorOf(Pointer pointer);
QCursor cGrab();    // hand closed
QCursor cRelease(); // hand open

} // namespace velara
