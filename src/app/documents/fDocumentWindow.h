// fDocumentWindow: the child window that holds one document in the frame's area. Closing asks the document; a closed
// one goes back to the documents, which delete it when no work is under way.
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

    /// The document, or null after it closed.
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
