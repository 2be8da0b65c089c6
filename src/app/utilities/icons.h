// The icon extractor, which captures from the screen.
#pragma once

namespace velara {

class fMain;

/// Shows it; the cut-outs of the last time are still there.
void extractIcons(fMain& frame);

} // namespace velara
