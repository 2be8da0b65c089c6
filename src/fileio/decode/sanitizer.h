// Builds with the address sanitizer: faults inside the libraries that read pictures are expected, the process being
// disposable; faults in our own code end the process with the sanitizer's exit code, which no test tolerates.
#pragma once

namespace velara::decode {

/// Does nothing in other builds.
void tellOurFaultsFromTheLibraries();

} // namespace velara::decode
