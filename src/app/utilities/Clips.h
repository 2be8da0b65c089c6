// Clips: CUT, COPY and PASTE of selected parts, with the box of the clip history.
#pragma once
#include "document/road/DocumentHandle.h"
#include "seams/PictureReader.h"
#include "ui/utilities/fPaste.h"
#include <QPointer>

namespace velara {

class fMain;

class Clips {
  public:
    /// Makes the box, hidden. The frame must outlive this.
    explicit Clips(fMain& frame);

    /// All need an active document.
    void cut();
    void copy();
    /// What was last cut, copied or chosen in the box follows the pointer from now on; or the picture that another
    /// program has put on the desktop's clipboard since, which becomes a clip.
    void paste();
    /// Drops the tools' pending paste: a tool was chosen instead.
    void letGo();

    fPaste* box() const { return box_; }

  private:
    void add(const fPaste::Part& part);
    void layDown();
    LoadedPicture fetched();
    bool needsRoom(const Document& document) const;
    void makeRoom(const DocumentHandle& document);
    void hover();

    fMain& frame_;
    int seen_ = 0;            // of the changes that others made to the desktop's clipboard
    DocumentHandle beingCut_; // last
    QPointer<fPaste> box_;
};

} // namespace velara
