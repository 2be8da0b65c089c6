// velara-open: hands files to the running editor, or starts it. See the text of --help.
#include "fileio/disk/nativeName.h"
#include "fileio/load/PictureLoader.h"
#include "open/help.h"
#include "open/thumbnail.h"
#include "platform/opening/actions.h"
#include "platform/opening/fileUri.h"
#include "platform/opening/handOver.h"
#include "seams/printable.h"
#include <QCoreApplication>
#include <QDir>
#include <cstdio>
#include <optional>
#include <unistd.h>

namespace velara {

namespace {

enum Status { Opened = 0, SomeNot = 1, Unusable = 2, NoEditor = 3 };

void complain(const QString& text) { std::fprintf(stderr, "velara-open: %s\n", text.toUtf8().constData()); }

/// Whether the text begins like a URI; a relative path may have a colon, too, but no two slashes after it.
bool isUri(const QString& given) { return given.contains(QStringLiteral("://")) || given.startsWith(u"file:/"); }

QString absolute(const QString& path)
{
    return path.startsWith(u'/') ? path : nameFrom(QFile::encodeName(QDir::currentPath())) + u'/' + path;
}

/// What can be said of a file without reading it; empty: nothing.
QString faultOf(const QString& path)
{
    if (!isThere(path)) return QStringLiteral("there is no such file");
    if (isFolder(path)) return QStringLiteral("it is a folder");
    if (access(nativeName(path).constData(), R_OK) != 0) return QStringLiteral("there is no permission to read it");
    return {};
}

/// The files that are worth an editor; the others are told.
QStringList openable(const QStringList& files, bool& allGood)
{
    QStringList uris;
    for (const QString& file : files) {
        const auto path = isUri(file) ? pathOf(file) : absolute(file);
        const QString fault = path ? faultOf(*path) : QStringLiteral("it is no file of this computer");
        if (fault.isEmpty())
            uris << uriOf(*path);
        else
            complain(printable(file) + QStringLiteral(" can't be read: ") + fault);
        allGood &= fault.isEmpty();
    }
    return uris;
}

/// All of them, where the editor is to tell the faults.
QStringList urisOf(const QStringList& files)
{
    QStringList uris;
    for (const QString& file : files) uris << (isUri(file) ? file : uriOf(absolute(file)));
    return uris;
}

Status hand(const OpenWish& wish)
{
    const HandedOver handed = handOver(wish, findHelper(QStringLiteral("velara-studio")));
    if (handed.state != HandedOver::Done) {
        const bool started = handed.state == HandedOver::NoAnswer;
        const QString why = handed.reasons.isEmpty() ? QString() : QStringLiteral(": ") + handed.reasons.join(u' ');
        complain(QStringLiteral("Velara Studio ") +
                 (started ? QStringLiteral("doesn't answer") : QStringLiteral("could not be started")) +
                 printable(why));
        return NoEditor;
    }
    Status status = Opened;
    for (const QString& reason : handed.reasons) {
        if (reason.isEmpty()) continue;
        complain(reason);
        status = SomeNot;
    }
    return status;
}

Status open(const QStringList& files)
{
    const bool isRead = isatty(STDERR_FILENO) == 1; // what is told here
    bool allGood = true;
    const QStringList uris = isRead ? openable(files, allGood) : urisOf(files);
    if (uris.isEmpty() && !files.isEmpty()) return SomeNot;
    const Status status = hand({.uris = uris, .tells = !isRead});
    return status == Opened && !allGood ? SomeNot : status;
}

Status act(const QString& action)
{
    if (findAction(action.toStdString())) return hand({.action = action});
    complain(QStringLiteral("there is no action \"") + printable(action) + QStringLiteral("\"; see --help"));
    return Unusable;
}

/// SIZE FILE PNG
Status makeThumbnail(const QStringList& given)
{
    constexpr int kLargest = 2048;
    const int side = given[0].toInt();
    const auto file = isUri(given[1]) ? pathOf(given[1]) : absolute(given[1]);
    if (side < 1 || side > kLargest || !file) {
        complain(QStringLiteral("--thumbnail takes a size from 1 to %1, a file and a PNG file").arg(kLargest));
        return Unusable;
    }
    const QString reason = writeThumbnail(*file, side, given[2]);
    if (!reason.isEmpty()) complain(printable(reason));
    return reason.isEmpty() ? Opened : SomeNot;
}

Status run(const QStringList& arguments)
{
    if (arguments.size() == 4 && arguments[0] == u"--thumbnail") return makeThumbnail(arguments.mid(1));
    QStringList files;
    bool areOptions = true;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& given = arguments[i];
        if (!areOptions || !given.startsWith(u'-')) {
            files << given;
        } else if (given == u"--") {
            areOptions = false;
        } else if (given == u"--help") {
            std::fputs(openHelp().toUtf8().constData(), stdout);
            return Opened;
        } else if (given == u"--version") {
            std::puts("Velara Studio " VELARA_VERSION);
            return Opened;
        } else if (given == u"--action" && arguments.size() == 2) {
            return act(arguments[1]);
        } else {
            complain(printable(given) + QStringLiteral(" is of no use here; see --help"));
            return Unusable;
        }
    }
    return open(files);
}

} // namespace

} // namespace velara

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QStringList arguments;
    for (int i = 1; i < argc; ++i) arguments << velara::nameFrom(argv[i]);
    return velara::run(arguments);
}
