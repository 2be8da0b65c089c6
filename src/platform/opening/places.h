// Where the running editor is found, and what it answers to: a name on the session's bus, and a socket in the runtime
// folder on which it speaks the same protocol to one program at a time, for machines without a bus.
#pragma once
#include "platform/runtimeFolder.h"
#include <QDBusConnection>
#include <QStringList>
#include <QVariantMap>
#include <sys/types.h>

namespace velara {

inline const QString kStudioService = QStringLiteral("org.velara.Studio");
inline const QString kStudioPath = QStringLiteral("/org/velara/Studio");
/// What every desktop calls: Activate(a{sv}), Open(as, a{sv}), ActivateAction(s, av, a{sv}).
inline const QString kApplicationInterface = QStringLiteral("org.freedesktop.Application");
/// Our own, which answers: OpenFiles(as uris, a{sv} platform data) -> as, a reason for each file, empty for one that
/// is open.
inline const QString kStudioInterface = QStringLiteral("org.velara.Studio1");
/// The error of requests that the end of the editor has cut off; somebody else may still serve them.
inline const QString kEnded = QStringLiteral("org.velara.Studio1.Ended");
/// Platform data of ours: true when nobody reads what the caller prints, so that the editor has to tell it.
inline const QString kTellKey = QStringLiteral("velara-tell");

/// The session's bus under a connection of that name; not connected when there is none. Never starts one.
QDBusConnection sessionBus(const QString& name);

/// "unix:path=..." of a socket, as the bus library wants it.
QString addressOf(const QString& socket);
/// The socket of the editor with that process number; empty without a runtime folder.
QString socketOf(pid_t editor);
/// The sockets of this session's editors, the oldest first. Those of dead ones are removed.
QStringList sockets();

} // namespace velara
