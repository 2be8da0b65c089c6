// The icon extractor, which captures from the screen.
#pragma once

namespace velara {

class fMain;

/// Shows it; its last cut-outs are still there.
void extractIcons(fMain& frame);

} // namespace velara
