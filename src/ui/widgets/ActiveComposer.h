// The open dialog of those that compose a picture. Only one is open at a time: opening one closes the other, which may
// ask first and stay open.
#pragma once

class QWidget;

namespace velara {

enum class Composer : short { None = 0, Layers = 1, ColorDepth = 2 };

class ActiveComposer {
  public:
    /// Registers this one until it is closed or deleted. The previous one must be closed by then: see unload().
    static void take(Composer which, QWidget* dialog);
    /// Closes the open one, before another is made. False: it has unsaved work and the user keeps it open. It may ask,
    /// so anything may be destroyed afterwards.
    static bool unload();
    static Composer current();
};

} // namespace velara
