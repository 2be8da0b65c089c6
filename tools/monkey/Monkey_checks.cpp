// What must hold once everything is at rest: each document's picture equals the snapshot of its step, the engine has
// the active one, the screen shows it; with all documents closed Temp is empty and the memory is released.
#include "pixels/BlockPool.h"
#include "tools/monkey/Monkey.h"
#include "ui/view/fDisplay.h"
#include <QApplication>
#include <QMdiSubWindow>
#include <QScreen>
#include <QThread>
#include <malloc.h>

extern "C" std::size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));

namespace velara::monkey {

namespace {

constexpr std::size_t kMoreMemory = 48 << 20; // permitted growth of caches and histories, bytes

/// Bytes allocated and not freed by the program.
std::size_t memoryInUse()
{
    BlockPool::instance().clear();
    if (__sanitizer_get_current_allocated_bytes) return __sanitizer_get_current_allocated_bytes();
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// How the visible pixels differ, whatever the fourth byte; empty: they are equal.
QString difference(const Bits& a, const Bits& b)
{
    if (a.width() != b.width() || a.height() != b.height())
        return QStringLiteral(" (%1x%2, not %3x%4)").arg(a.width()).arg(a.height()).arg(b.width()).arg(b.height());
    QRect different;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (!std::equal(a.at(x, y).c, a.at(x, y).c + 3, b.at(x, y).c)) different |= QRect(x, y, 1, 1);
    const QRect& d = different;
    if (d.isEmpty()) return {};
    return QStringLiteral(" (%1x%2 from %3,%4)").arg(d.width()).arg(d.height()).arg(d.x()).arg(d.y());
}

QString nameOf(const fImage& image)
{
    return QStringLiteral("document %1 (%2, %3)").arg(image.document().DocNumber()).arg(image.name(), image.SizeText());
}

/// The state shown as its files have it; nothing where they don't, or can't be read.
std::optional<Bits> snapshotOf(const UndoStore& undo)
{
    const UndoStore::Listed listed = undo.listed();
    const auto shown = static_cast<std::size_t>(listed.shown);
    if (!undo.stands() || shown >= listed.notes.size()) return {};
    auto found = undo.stateLater(listed.notes[shown].number)();
    if (!found || found->step != undo.UndoStep()) return {};
    return std::move(found->picture);
}

void processPending()
{
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace

/// Ends windows and gestures and processes pending events.
void Monkey::rest()
{
    const bool before = std::exchange(resting_, true);
    movesLeft_ = 0;
    hands_.releaseAll();
    do {
        leaveAll();
        frame_->workspace().wait(); // the timer leaves windows and gestures meanwhile
        for (fImage* image : frame_->documents()) {
            auto* const display = image->findChild<fDisplay*>("iDst");
            if (!display) continue;
            QEvent leave(QEvent::Leave); // removes the outline around the pointer
            QCoreApplication::sendEvent(display, &leave);
            display->showCross({});
        }
        processPending();
    } while (leaveAll() ||
             std::ranges::any_of(frame_->documents(), [this](const fImage* image) { return isAtWork(*image); }));
    resting_ = before;
}

/// A change is under way or waits, or the view is about to show what was done in another one.
bool Monkey::isAtWork(const fImage& image)
{
    return frame_->workspace().isBusy(image.document().handle()) || image.findChild<QTimer*>("tmrFollow")->isActive();
}

void Monkey::check()
{
    rest();
    for (fImage* image : frame_->documents()) checkDocument(*image);
    if (fImage* image = frame_->GetActiveImage()) checkScreen(*image);
    blocks_.next();
}

void Monkey::checkDocument(fImage& image)
{
    const Document& document = image.document();
    if (!document.PictureExists()) return;
    ++checked_;
    const auto snapshot = snapshotOf(document.undo);
    const auto compare = [&](const Bits& picture, const QString& told) {
        if (const QString how = difference(picture, document.bits()); !how.isEmpty()) fault(nameOf(image) + told + how);
    };
    if (!snapshot) fault(nameOf(image) + " has no snapshot");
    if (snapshot) compare(*snapshot, QStringLiteral(" is not its snapshot %1").arg(document.undo.UndoStep()));
    // One that came to the front while all is hidden gets the engine when the frame is shown.
    if (&image == frame_->GetActiveImage() && frame_->isVisible())
        compare(frame_->workspace().engine().bits(), " is not what the engine holds");
}

void Monkey::checkScreen(fImage& image)
{
    auto* const display = image.findChild<fDisplay*>("iDst");
    if (!display || !display->isVisible() || !image.PictureExists() || frame_->isMinimized()) return;
    if (display->outlineShown() && !image.document().Region.IsEmptyRegion()) return; // the outline covers it
    const QRect place(display->mapTo(frame_.get(), QPoint()), display->size());
    const QImage shown = frame_->screen()->grabWindow(frame_->winId()).toImage().convertToFormat(QImage::Format_RGB32);
    QImage wanted(display->size(), QImage::Format_RGB32);
    ViewRenderer().render(image.bits(), display->spot(), 0, 0, wanted);
    for (const QRect& part : display->visibleRegion())
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x) {
                const QPoint at = place.topLeft() + QPoint(x, y);
                if (!shown.rect().contains(at) || shown.pixel(at) == wanted.pixel(x, y)) continue;
                return fault(nameOf(image) + QStringLiteral(" is not what the screen shows at %1,%2").arg(x).arg(y));
            }
}

/// Closes everything without questions.
void Monkey::checkHome()
{
    const bool asks = std::exchange(setup_.AskToSave, false);
    for (int i = 0; i < 200 && (!frame_->isVisible() || !frame_->documents().isEmpty()); ++i) {
        const QList<fImage*> images = frame_->documents();
        for (fImage* image : images) image->parentWidget()->close();
        rest();
        if (!frame_->isVisible()) QThread::msleep(20); // a capture under way will show it again
    }
    setup_.AskToSave = asks;
    if (!frame_->documents().isEmpty()) fault("a document stays open");
    const QStringList left = QDir(platform_.folder.filePath("Temp")).entryList({"b*"}, QDir::Files);
    if (!left.isEmpty()) fault("files are left in Temp: " + left.join(' '));
    const QStringList stray = QDir().entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    if (!stray.isEmpty()) fault("files are left in the working folder: " + stray.join(' '));
}

void Monkey::warmUp()
{
    resting_ = true; // no actions
    begin();
    QApplication::processEvents();
    frame_->openPicture(plan_.scratch + "/pictures/picture1.bmp");
    frame_->workspace().wait();
    checkHome();
    end();
    resting_ = false;
    memoryBefore_ = memoryInUse();
}

void Monkey::checkMemory()
{
    const std::size_t inUse = memoryInUse();
    std::printf("memory after the run %zu MB, before it %zu MB\n", inUse >> 20, memoryBefore_ >> 20);
    if (inUse > memoryBefore_ + kMoreMemory) fault("memory is not given back");
}

} // namespace velara::monkey
