// The system's plug-ins for picture formats stay out of the editor: pictures are read by velara-decode, and what isn't
// there can't be reached by a file that a dialog, an icon or a page of text leads to.
#pragma once

namespace velara {

/// To be called before the application object is made. The formats that are part of the toolkit itself stay, for its
/// own icons.
void leaveFormatPluginsOut();

} // namespace velara
