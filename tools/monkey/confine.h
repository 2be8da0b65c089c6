// The monkey's cage: whatever it hits, nothing outside of its scratch folder can be written, made or removed.
#pragma once

namespace velara::monkey {

/// From now on this process and its children write below the folder (and to /dev/null) alone. False where the kernel
/// can't do that.
bool writeOnlyBelow(const char* folder);

} // namespace velara::monkey
