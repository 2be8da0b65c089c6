#include "app/start/FrameRequests.h"
#include "app/frame/fMain.h"
#include "platform/desktop/front.h"
#include "platform/opening/actions.h"
#include "platform/opening/fileUri.h"
#include "seams/Platform.h"
#include "seams/printable.h"
#include <QApplication>
#include <QTimer>

namespace velara {

namespace {

constexpr int kAskAgain = 200; // ms, while a dialog stands

void tell(Platform& platform, const QStringList& reasons)
{
    constexpr qsizetype kMostShown = 10;
    QStringList lines;
    for (const QString& reason : reasons)
        if (!reason.isEmpty()) lines << reason;
    if (lines.isEmpty()) return;
    QString more;
    if (lines.size() > kMostShown) more = QObject::tr("\nand %n more", nullptr, int(lines.size() - kMostShown));
    platform.tell(lines.mid(0, kMostShown).join(u'\n') + more, Icon::Exclamation);
}

} // namespace

void FrameRequests::begin(fMain& frame)
{
    frame_ = &frame;
    runNext();
}

bool FrameRequests::mayRun() const { return frame_ && !frame_->isClosing() && !QApplication::activeModalWidget(); }

void FrameRequests::activate(const ActivationToken& token)
{
    if (!frame_) return; // it comes to the front by itself
    QWidget* dialog = QApplication::activeModalWidget();
    bringToFront(dialog ? *dialog->window() : *frame_, token);
}

void FrameRequests::add(std::function<void()> request)
{
    waiting_.push_back(std::move(request));
    if (waiting_.size() == 1) QTimer::singleShot(0, this, &FrameRequests::runNext);
}

void FrameRequests::runNext()
{
    if (waiting_.empty() || !frame_ || frame_->isClosed()) return;
    if (!mayRun()) return QTimer::singleShot(kAskAgain, this, &FrameRequests::runNext);
    const auto next = std::move(waiting_.front());
    waiting_.pop_front();
    if (!waiting_.empty()) QTimer::singleShot(0, this, &FrameRequests::runNext);
    next(); // last: it may open a dialog
}

void FrameRequests::act(const QString& action)
{
    add([this, action] {
        const DesktopAction* row = findAction(action.toStdString());
        row ? frame_->run(row->word) : frame_->platform().tell(tr("There is no action \"%1\".").arg(printable(action)));
    });
}

void FrameRequests::open(const QStringList& uris, bool tells, Done done)
{
    add([this, uris, tells, done = std::move(done)] { openNow(uris, tells, done); });
}

void FrameRequests::openNow(const QStringList& uris, bool tells, const Done& done)
{
    QStringList paths, reasons;
    for (const QString& uri : uris) {
        const auto path = pathOf(uri);
        if (path) paths << *path;
        reasons << (path ? QString() : printable(uri) + tr(" can't be read: it is no file of this computer"));
    }
    frame_->openFiles(paths, [frame = frame_, uris, reasons, tells, done](const QStringList& found) {
        QStringList all = reasons; // those of the files go to the places that are left
        auto next = found.begin();
        for (qsizetype i = 0; i < uris.size(); ++i)
            if (pathOf(uris[i])) all[i] = *next++;
        done(all);
        if (tells && frame) velara::tell(frame->platform(), all);
    });
}

} // namespace velara
