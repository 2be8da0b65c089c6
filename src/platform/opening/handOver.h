// The other side of OpenService: finds the running editor or starts one, and hands it files.
#pragma once
#include <QString>
#include <QStringList>

namespace velara {

/// What is asked of the editor: to open files, to run an action (a row of actions.h), or only to come to the front.
struct OpenWish {
    QStringList uris = {};
    QString action = {};
    bool tells = false; // the editor shows what can't be opened, as nobody reads what the caller prints
};

struct HandedOver {
    enum State { Done, NotStarted, NoAnswer };
    State state = Done;
    QStringList reasons = {}; // Done: of each file, why it is not open, or empty. Otherwise what is known
};

/// Waits until the files are read. Of several that call at the same time one starts the editor, the others find it. The
/// right to come to the front is taken from the environment, as launchers leave it there.
/// \param editor the program to start; it stays when the caller ends
HandedOver handOver(const OpenWish& wish, const QString& editor);

} // namespace velara
