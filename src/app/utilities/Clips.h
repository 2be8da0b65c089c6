// Clips: CUT, COPY and PASTE of selected parts, with the box of the clip history.
#pragma once
#include "document/road/DocumentHandle.h"
#include "ui/utilities/fPaste.h"
#include <QPointer>

namespace velara {

class fMain;

class Clips {
  public:
    /// Makes the box, hidden. The frame outlives this.
    explicit Clips(fMain& frame);

    /// All with an active document.
    void cut();
    void copy();
    /// What was cut or copied last, or chosen in the box, hangs on the pointer from now on. With nothing in the history
    /// it is the bitmap of the desktop's clipboard.
    void paste();
    /// The tools' paste is let go of: a tool was chosen in its place.
    void letGo();

    fPaste* box() const { return box_; }

  private:
    void add(const fPaste::Part& part);
    void layDown();

    fMain& frame_;
    DocumentHandle beingCut_; // last
    QPointer<fPaste> box_;
};

} // namespace velara
