#pragma once

namespace velara {

/// quality 0 to 100; of a lossless one it is the effort.
struct WebpForm {
    int quality = 75;
    bool lossless = false;
};

} // namespace velara
