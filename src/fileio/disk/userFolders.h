// Where the programs keep what belongs to their user. A portable program, beside a file called "portable", keeps all of
// it in its own folder; an installed one in the folders of the desktop (XDG): configuration, data, state and cache.
#pragma once
#include <QString>

namespace velara {

enum class UserFolder {
    Settings, // the configuration, the user's colours
    Data,     // stamps, textures, pictures, recipes
    State,    // what can be undone, logs
    Cache,    // may go at any time
};

/// The program folder of an installed program: $XDG_DATA_HOME/velara-studio.
QString installedFolder();

/// The folder of a kind, without a trailing separator, for programs with that program folder. It is made when it is
/// missing.
QString userFolder(const QString& programFolder, UserFolder kind);

/// The folder of the undo files and of other files in work. Made by makePrivateFolder.
QString tempFolder(const QString& programFolder);

/// At the first start of an installed program: takes over the settings and the pictures of an earlier version, which
/// kept all in the program folder, or beside the executable; the latter stay there, too. What exists is never replaced.
void takeOver(const QString& programFolder, const QString& executableFolder);

} // namespace velara
