// The frame's size and its end.
#include "app/frame/fMain.h"
#include "fileio/SetupStore.h"
#include "pixels/twips.h"
#include "seams/Platform.h"
#include <QCloseEvent>
#include <algorithm>

namespace velara {

namespace {

std::int16_t twips(int pixels) { return static_cast<std::int16_t>(std::clamp(pixels * kTwips, 0, 32767)); }

} // namespace

void fMain::frameResized()
{
    if (!isMinimized() && !isFullScreen()) {
        // Stores the size of the restored window.
        const QSize size = isMaximized() && normalGeometry().isValid() ? normalGeometry().size() : this->size();
        setup_.FrameWidth = twips(size.width());
        setup_.FrameHeight = twips(size.height());
    }
    if (!isFullScreen()) setup_.FrameMaximized = isMaximized();
    if (isMinimized()) return;
    if (!resizedOnce_) {
        resizedOnce_ = true;
        if (platform_.setting("VeStu", "RunOnce", "0").toInt() == 0) { // no layout has been stored for this user
            bars_->saveLayout();
            platform_.setSetting("VeStu", "RunOnce", "1");
        }
    }
    placeSidePane();
}

/// The size to come back to, and whether it is maximised, stay as they are.
void fMain::toggleFullScreen() { setWindowState(windowState() ^ Qt::WindowFullScreen); }

void fMain::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    frameResized();
}

void fMain::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isVisible()) frameResized();
    if (event->type() == QEvent::WindowStateChange && bars_) bars_->mark("@FULLSCREEN", 0, isFullScreen());
    if (event->type() == QEvent::WindowTitleChange && bars_)
        showTitle();                                                     // a window of the area has given it an old one
    if (event->type() == QEvent::PaletteChange && bars_) refreshIcons(); // the desktop switched between dark and light
}

void fMain::closeEvent(QCloseEvent* event)
{
    if (closing_) return event->accept();
    if (closesAll_) return event->ignore(); // its documents are being asked
    closesAll_ = true;
    bars_->saveLayout();
    closing_ = documents_->closeAll();
    closesAll_ = false;
    if (closing_) workspace_.cancelOpening(); // nobody would close what comes now
    saveState();
    event->setAccepted(closing_);
    closing_ ? emit closed() : emit stays();
}

/// On failure the old file is kept.
void fMain::saveState()
{
    platform_.setSetting("VeStu", "Place", QString::fromLatin1(saveGeometry().toBase64()));
    platform_.setSetting("Boxes", "History", boxes_->wanted(Boxes::History) ? "1" : "0");
    bars_->saveLastUsed();
    SaveSetup(platform_, setup_);
}

} // namespace velara
