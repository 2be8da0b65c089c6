// fDocumentWindow: the child window that holds one view in the frame's area. Closing asks the view; a closed one goes
// back to Documents, which deletes it from the event loop.
#pragma once
#include "ui/view/fImage.h"
#include <QMdiSubWindow>
#include <QPointer>

namespace velara {

class Documents;

class fDocumentWindow final : public QMdiSubWindow {
    Q_OBJECT
  public:
    fDocumentWindow(Documents& documents, fImage* image);

    /// The view, or null after it closed.
    fImage* image() const { return image_; }
    /// Takes the size that shows the whole picture, within the given area; fills the area if it is too small for that.
    void fit(const QRect& area);

  protected:
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    Documents& documents_;
    QPointer<fImage> image_;
};

} // namespace velara
