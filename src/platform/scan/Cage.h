// The cage of velara-scan. Drivers of scanners come from many hands, and speak with devices and with the net: they keep
// that, and lose the user's files and programs.
#pragma once

namespace velara {

/// Before any driver is loaded. What is open stays open. False: a layer that the kernel has could not be closed.
bool enterScanCage();

} // namespace velara
