#include "fileio/disk/userFolders.h"
#include <QDir>
#include <QDirIterator>
#include <iterator>

namespace velara {

namespace {

struct Home {
    const char *variable, *otherwise; // below the user's home
};

// clang-format off
constexpr Home kHomes[] = { // by UserFolder
    {"XDG_CONFIG_HOME", ".config"},
    {"XDG_DATA_HOME",   ".local/share"},
    {"XDG_STATE_HOME",  ".local/state"},
    {"XDG_CACHE_HOME",  ".cache"},
};

constexpr struct Kept {
    const char* name;
    UserFolder kind;
} kKept[] = { // by earlier versions in one folder
    {"Vlaera.dat",     UserFolder::Settings},
    {"usercolors.cps", UserFolder::Settings},
    {"Stamps",         UserFolder::Data},
    {"Textures",       UserFolder::Data},
    {"Images",         UserFolder::Data},
};
// clang-format on

QString inHome(UserFolder kind)
{
    const Home& home = kHomes[int(kind)];
    const QString given = qEnvironmentVariable(home.variable); // others than absolute ones are to be ignored
    const QString folder = QDir::isAbsolutePath(given) ? given : QDir::homePath() + '/' + home.otherwise;
    return QDir::cleanPath(folder) + "/velara-studio";
}

void copyTree(const QString& from, const QString& to)
{
    if (!QFileInfo(from).isDir()) {
        QFile::copy(from, to);
        return;
    }
    QDir().mkpath(to);
    for (QDirIterator each(from, QDir::Files); each.hasNext();) {
        each.next();
        QFile::copy(each.filePath(), to + '/' + each.fileName());
    }
}

} // namespace

QString installedFolder() { return inHome(UserFolder::Data); }

QString userFolder(const QString& programFolder, UserFolder kind)
{
    if (programFolder != installedFolder()) return programFolder;
    const QString folder = inHome(kind);
    QDir().mkpath(folder);
    return folder;
}

QString tempFolder(const QString& programFolder)
{
    return userFolder(programFolder, UserFolder::State) + QStringLiteral("/Temp");
}

void takeOver(const QString& programFolder, const QString& executableFolder)
{
    if (programFolder != installedFolder()) return;
    const QString first = kKept[0].name; // every version writes it
    if (QFile::exists(userFolder(programFolder, UserFolder::Settings) + '/' + first)) return;
    for (const QString& old : {programFolder, executableFolder}) {
        if (!QFile::exists(old + '/' + first)) continue;
        for (const Kept& each : kKept) {
            const QString from = old + '/' + each.name, to = userFolder(programFolder, each.kind) + '/' + each.name;
            if (from == to || !QFile::exists(from) || QFile::exists(to)) continue;
            if (old == programFolder && QFile::rename(from, to)) continue;
            copyTree(from, to);
        }
        QDir().rmdir(programFolder + "/Temp"); // if it is empty
        return;
    }
}

} // namespace velara
