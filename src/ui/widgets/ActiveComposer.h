// Which of the dialogs that compose a picture is open. They are never open together: whoever opens one closes the
// other.
#pragma once

class QWidget;

namespace velara {

enum class Composer : short { None = 0, Layers = 1, ColorDepth = 2 };

class ActiveComposer {
  public:
    /// Closes the one that is open, and marks this one until it is closed or deleted.
    static void take(Composer which, QWidget* dialog);
    /// Closes the one that is open; none is marked afterwards.
    static void unload();
    static Composer current();
};

} // namespace velara
