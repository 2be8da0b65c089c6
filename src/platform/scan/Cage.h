// The cage of velara-scan. Scanner drivers come from many sources and access devices and the network: they keep that,
// and lose access to the user's files and programs.
#pragma once

namespace velara {

/// To be called before any driver is loaded. Open descriptors stay open. False: a layer that the kernel supports
/// failed.
bool enterScanCage();

} // namespace velara
