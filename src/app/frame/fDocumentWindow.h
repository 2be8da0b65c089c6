// fDocumentWindow: the child window that holds one document in the frame's area. Closing asks the document; a closed
// one is handed to the frame, which deletes it when no filter is at work.
#pragma once
#include "ui/view/fImage.h"
#include <QMdiSubWindow>
#include <QPointer>

namespace velara {

class fMain;

class fDocumentWindow final : public QMdiSubWindow {
    Q_OBJECT
  public:
    fDocumentWindow(fMain& frame, fImage* image);

    /// The document, or null after it closed.
    fImage* image() const { return image_; }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    fMain& frame_;
    QPointer<fImage> image_;
};

} // namespace velara
