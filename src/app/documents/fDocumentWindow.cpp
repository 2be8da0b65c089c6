#include "app/documents/fDocumentWindow.h"
#include "app/documents/Documents.h"
#include <QCloseEvent>
#include <QMenu>

namespace velara {

fDocumentWindow::fDocumentWindow(Documents& documents, fImage* image) : documents_(documents), image_(image)
{
    setWidget(image);
    setWindowIcon(QIcon::fromTheme("viewimage"));
    // Its own shortcut would make the menu's Ctrl+W ambiguous, so that neither worked.
    for (QAction* item : systemMenu()->actions())
        if (!item->shortcut().isEmpty()) item->setShortcut(QKeySequence("Ctrl+F4"));
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
    documents_.bury(this);
}

} // namespace velara
