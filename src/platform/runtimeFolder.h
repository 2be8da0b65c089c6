// Where running programs of this user leave what others find them by: locks and sockets.
#pragma once
#include <QString>

namespace velara {

/// A folder writable by this user only: the system's for the session, else one in the home folder, which is made.
/// Empty: there is none.
QString runtimeFolder();

/// The beginning of the names of files there that belong to this session, as a user may have several.
QString sessionName();

} // namespace velara
