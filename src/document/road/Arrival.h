// Where a new document's picture comes from.
#pragma once

namespace velara {

enum class Arrival {
    Brought, // from the screen, a scanner, the clipboard, another document: SAVE asks for a name, closing asks
    Made,    // new, or read from a file that is incomplete: SAVE asks for a name, closing only after a change
    File,    // the path is its own file, which SAVE writes to
};

} // namespace velara
