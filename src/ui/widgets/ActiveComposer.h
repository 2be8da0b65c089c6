// Which of the dialogs that compose a picture is open. They are never open together: whoever opens one closes the
// other, which may ask first and stay.
#pragma once

class QWidget;

namespace velara {

enum class Composer : short { None = 0, Layers = 1, ColorDepth = 2 };

class ActiveComposer {
  public:
    /// Marks this one until it is closed or deleted. What is open is closed by then: see unload().
    static void take(Composer which, QWidget* dialog);
    /// Closes the one that is open, before another is made. False: it holds work and the user keeps it. It may ask, so
    /// that anything may be gone afterwards.
    static bool unload();
    static Composer current();
};

} // namespace velara
