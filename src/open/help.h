// What velara-open says of itself; the manual page is made from it.
#pragma once
#include "platform/opening/actions.h"
#include "seams/text.h"
#include <QString>

namespace velara {

inline QString openHelp()
{
    QString help = QStringLiteral(R"(velara-open [FILE...]
velara-open --action NAME
velara-open --thumbnail SIZE FILE PNG

Opens picture files in Velara Studio: in the one that is running, which comes to
the front, or in one that is started. Any format that the editor reads will do.
A FILE may be a URI, as in file:///home/me/picture.png. Without one the editor
comes to the front. It returns when the files are read; what can't be opened is
told on the error output, or by the editor when that is no terminal.

velara-studio with files does the same.

--action NAME    does what the entry in the desktop's menus offers:
)");
    for (const DesktopAction& row : kDesktopActions)
        help += QStringLiteral("  ") + text(row.name).leftJustified(22) + u' ' + text(row.caption) + u'\n';
    return help + QStringLiteral(R"(--thumbnail SIZE FILE PNG
                 writes a small copy of the picture FILE for file managers, at
                 most SIZE by SIZE pixels, as the file PNG
--version        prints the version
--help           prints this
--               what follows are files, even if it begins with a -

Exit status: 0 all is open; 1 a file could not be opened; 2 an argument is of no
use; 3 the editor could not be started, or doesn't answer.
)");
}

} // namespace velara
