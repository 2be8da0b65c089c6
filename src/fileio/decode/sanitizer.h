// Builds with the address sanitizer: what it finds inside the libraries that read pictures is what the process is
// thrown away for; what it finds in our own code ends the process with the sanitizer's exit code, and no test passes
// over that.
#pragma once

namespace velara::decode {

/// Nothing in other builds.
void tellOurFaultsFromTheLibraries();

} // namespace velara::decode
