#include "app/documents/fDocumentWindow.h"
#include "app/documents/Documents.h"
#include <QCloseEvent>
#include <QMenu>
#include <algorithm>

namespace velara {

fDocumentWindow::fDocumentWindow(Documents& documents, fImage* image) : documents_(documents), image_(image)
{
    setWidget(image);
    setWindowIcon(QIcon::fromTheme("viewimage"));
    // Its own shortcut would make the menu's Ctrl+W ambiguous, so that neither would work.
    for (QAction* item : systemMenu()->actions())
        if (!item->shortcut().isEmpty()) item->setShortcut(QKeySequence("Ctrl+F4"));
    setAttribute(Qt::WA_DeleteOnClose, false);
    image->setAttribute(Qt::WA_DeleteOnClose, false);
}

void fDocumentWindow::fit(const QRect& area)
{
    if (!image_ || !image_->PictureExists() || isMaximized() || isMinimized()) return;
    const QSize around = sizeHint() - image_->sizeHint();
    const QSize picture = QSize(image_->PictureWidth(), image_->PictureHeight()) * image_->ZoomFactor();
    const QSize whole = (picture + around).expandedTo(minimumSizeHint());
    if (whole.width() > area.width() || whole.height() > area.height()) return setGeometry(area);
    const QPoint last(area.width() - whole.width(), area.height() - whole.height()); // the last position inside
    setGeometry({{std::clamp(x(), 0, last.x()), std::clamp(y(), 0, last.y())}, whole});
}

/// Otherwise the focus would circle within a child window.
bool fDocumentWindow::focusNextPrevChild(bool next)
{
    return (documents_.leaveByTab && documents_.leaveByTab(next)) || QMdiSubWindow::focusNextPrevChild(next);
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
