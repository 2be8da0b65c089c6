// Platform: the outside world of the program, by subject. It is itself what nearly every window needs (machine,
// dialogs, picture files); each service of the desktop has an interface of its own. Code that needs one subject alone
// takes that interface.
//
// QtPlatform is the real one of the editor, WindowlessPlatform that of the other programs, RecordingPlatform
// (tests/support) the scripted one. To add an operation: a pure virtual in its subject and a body in each of the three;
// a service: its interface here, its real implementation in platform/desktop and its null one in platform/NoDesktop.h.
#pragma once
#include "seams/Dialogs.h"
#include "seams/Machine.h"
#include "seams/PictureReader.h"

namespace velara {

class Clipboard;
class Fonts;
class Printers;
class Previews;
class Scanner;
class Screen;
class Wallpaper;

class Platform : public Machine, public Dialogs, public PictureReader {
  public:
    virtual Clipboard& clipboard() = 0;
    virtual Fonts& fonts() = 0;
    virtual Previews& previews() = 0;
    virtual Screen& screen() = 0;
    virtual Wallpaper& wallpaper() = 0;
    virtual Scanner& scanner() = 0;
    virtual Printers& printers() = 0;
};

} // namespace velara
