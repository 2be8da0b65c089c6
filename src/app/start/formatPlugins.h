// Keeps the system's plug-ins for picture formats out of the editor: pictures are read by velara-decode, and a plug-in
// that isn't loaded can't be attacked by a file that a dialog, an icon or a page of text refers to.
#pragma once

namespace velara {

/// Call before the application object is made. The formats built into Qt remain, for its own icons.
void leaveFormatPluginsOut();

} // namespace velara
