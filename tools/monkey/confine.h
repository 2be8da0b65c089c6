// The monkey's sandbox: whatever it does, nothing outside of its scratch folder can be written, created or removed.
#pragma once

namespace velara::monkey {

/// From now on this process and its children can write only below the folder (and to /dev/null). False when the kernel
/// doesn't support that.
bool writeOnlyBelow(const char* folder);

} // namespace velara::monkey
