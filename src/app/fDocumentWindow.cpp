#include "app/fDocumentWindow.h"
#include "app/fMain.h"
#include <QCloseEvent>

namespace velara {

fDocumentWindow::fDocumentWindow(fMain& frame, fImage* image) : frame_(frame), image_(image)
{
    setWidget(image);
    setWindowIcon(QIcon::fromTheme("viewimage"));
    setAttribute(Qt::WA_DeleteOnClose, false);
    image->setAttribute(Qt::WA_DeleteOnClose, false);
}

void fDocumentWindow::closeEvent(QCloseEvent* event)
{
    const QPointer<fDocumentWindow> self = this;
    if (!image_) return event->accept();
    if (!image_->close()) { // the question was answered with Cancel
        event->ignore();
        return;
    }
    if (!self) return;
    event->accept();
    image_ = nullptr;
    frame_.bury(this);
}

} // namespace velara
