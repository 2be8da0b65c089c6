#include "ui/view/fImage.h"
#include "document/road/Frame.h"
#include "engine/cBitFilter.h"
#include "fileio/formats.h"
#include "seams/Clipboard.h"
#include "seams/Platform.h"
#include "seams/Setup.h"
#include "seams/printable.h"
#include "seams/sizeText.h"
#include "ui/view/fDisplay.h"
#include "ui/widgets/inputs/Spoken.h"
#include "ui/widgets/inputs/named.h"
#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QStringList>
#include <QStyle>

namespace velara {

namespace {

constexpr int kPathPixels = 400;
constexpr std::chrono::milliseconds kFollows{50}; // the time between repaints by which a view follows another

} // namespace

fImage::fImage(Frame& frame, const DocumentHandle& document, QWidget* parent)
    : QWidget(parent), frame_(frame), shared_(frame.workspace().share(document)), document_(*shared_),
      iDst_(new fDisplay(this, document_)), hSB_(new QScrollBar(Qt::Horizontal, this)),
      vSB_(new QScrollBar(Qt::Vertical, this)), shp_(new QWidget(this)), bands_(iDst_), tmrSelection_(this),
      tmrFollow_(this), tools_(std::make_unique<Tools>(document_, frame, *this)),
      barsWidth_(std::max(style()->pixelMetric(QStyle::PM_ScrollBarExtent), kLeastBarsWidth))
{
    setSpokenRole(*this, QAccessible::Document);
    setObjectName("fImage");
    setAccessibleName(tr("Picture window"));
    setLayoutDirection(Qt::LeftToRight); // a picture has no other
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Dark);
    setFocusPolicy(Qt::StrongFocus); // an empty document has no display to take it
    setMinimumSize(2 * barsWidth_, 2 * barsWidth_);
    named(hSB_, "hSB", tr("Horizontal scroll bar"));
    named(vSB_, "vSB", tr("Vertical scroll bar"));
    shp_->setObjectName("shp");
    shp_->setAutoFillBackground(true);
    shp_->setBackgroundRole(QPalette::Window);
    for (QScrollBar* bar : {hSB_, vSB_}) {
        bar->setFocusPolicy(Qt::NoFocus); // keys always reach the tools
        bar->hide();
        connect(bar, &QScrollBar::valueChanged, this, &fImage::barChanged);
    }
    shp_->hide();
    iDst_->hide();
    iDst_->installEventFilter(this);
    tmrSelection_.setObjectName("tmrSelection");
    tmrSelection_.setInterval(500);
    connect(&tmrSelection_, &QTimer::timeout, this, &fImage::tick);
    tmrFollow_.setObjectName("tmrFollow");
    tmrFollow_.setSingleShot(true);
    tmrFollow_.setInterval(kFollows);
    connect(&tmrFollow_, &QTimer::timeout, this, [this] { iDst_->update(onDisplay(std::exchange(followed_, {}))); });
    ++document_.views;
    if (PictureExists()) pictureChanged();
}

fImage::~fImage() { forget(); }

/// The display has the focus while there is one.
void fImage::takeFocus()
{
    const bool had = hasFocus() || iDst_->hasFocus();
    setFocusProxy(PictureExists() ? iDst_ : nullptr);
    if (had) setFocus();
}

void fImage::BitsCopyToClipboard()
{
    if (PictureExists()) frame_.platform().clipboard().setBitmap(document_.bits());
}

QString fImage::SizeText() const { return sizeText({PictureWidth(), PictureHeight()}, "x"); }

void fImage::showSize() { frame_.setStatus(Panel::Size, SizeText()); }

void fImage::setCaption(const QString& caption)
{
    caption_ = caption;
    showChanged();
}

void fImage::setViewNumber(int number)
{
    viewNumber_ = number;
    showChanged();
}

void fImage::showChanged()
{
    const bool changed = document_.wouldBeLost();
    const QString title = printable(name()).replace("[*]", "[*][*]") + (changed ? "[*]" : ""); // the mark's place
    for (QWidget* window : {static_cast<QWidget*>(this), parentWidget()}) {
        if (!window || (window != this && !qobject_cast<QMdiSubWindow*>(window))) continue;
        window->setWindowTitle(title);
        window->setWindowModified(changed);
    }
}

void fImage::activate()
{
    frame_.EnableMouseScrolling();
    Workspace& workspace = frame_.workspace();
    const bool comesIn = !workspace.engineHolds(document_);
    if (comesIn) workspace.handOver(document_);
    if (comesIn || !speaks_) {
        speaks_ = true;
        frame_.setStatus(Panel::Name, Caption());
        for (const Panel stale : {Panel::Pos, Panel::Ext, Panel::Size}) frame_.setStatus(stale, {});
        if (PictureExists()) showSize();
        frame_.setStatus(Panel::Page, document_.file.pageText());
        frame_.setStatus(Panel::Zoom, zoomText());
        setMouseScroll(frame_.mouseScrolling());
        tools_->showHint();
    } else if (tmrSelection_.isActive()) {
        return;
    }
    if (!tools_->ToolDown() && !frame_.toolStores().pastePending) StartTimer();
}

void fImage::deactivate()
{
    tools_->deactivated();
    iDst_->showCross({});
    StopTimer();
    UpdateImage();
}

void fImage::giveWay()
{
    speaks_ = false;
    tools_->giveWay();
}

bool fImage::event(QEvent* event)
{
    // Inside the frame, the child window that contains this one signals which document is active.
    if (event->type() == QEvent::ParentChange)
        if (auto* window = qobject_cast<QMdiSubWindow*>(parentWidget()))
            connect(window, &QMdiSubWindow::windowStateChanged, this,
                    [this](Qt::WindowStates before, Qt::WindowStates now) {
                        if (before.testFlag(Qt::WindowActive) && !now.testFlag(Qt::WindowActive)) deactivate();
                    });
    return QWidget::event(event);
}

/// Outside of the frame's area every one is.
bool fImage::isFront() const
{
    const auto* window = qobject_cast<QMdiSubWindow*>(parentWidget());
    return !window || !window->mdiArea() || window->mdiArea()->currentSubWindow() == window;
}

void fImage::bringToFront()
{
    if (auto* window = qobject_cast<QMdiSubWindow*>(parentWidget()); window && window->mdiArea())
        window->mdiArea()->setActiveSubWindow(window);
}

/// Anything may happen while the question is open; if this window is gone the answer means nothing.
bool fImage::mayClose()
{
    if (document_.views > 1) return true; // nothing is lost: the document stays
    const QPointer<fImage> self = this;
    const auto settles = [&] {
        tools_->giveWay(); // a gesture holds back what waits
        frame_.workspace().wait(document_.handle());
        return bool(self);
    };
    if (frame_.workspace().closeAwaits(document_.handle()) && !settles()) return false; // a save comes first
    if (!frame_.setup().AskToSave || !document_.wouldBeLost()) return true;
    bringToFront();
    const QString text = frame_.platform().compactPath(printable(Tag()), kPathPixels) + u'\n' +
                         tr("This image has changed.\nDo you want to save it ?");
    emit asking(Question::Stands);
    if (!self) return false;
    const Answer answer = frame_.platform().askYesNoCancel(kProgramName, text, Icon::Information);
    if (!self) return false;
    emit asking(Question::Answered);
    if (!self || answer != Answer::Yes) return answer == Answer::No;
    if (const auto putIn = document_.waitingWork; putIn && !putIn()) return false;
    if (!self || !settles()) return false; // the save includes the running change
    bringToFront();                        // the question and the save are about this one
    frame_.Mmenu("SAVE");
    return self && settles() && !document_.wouldBeLost(); // stays open after a save that was cancelled or failed
}

void fImage::closeEvent(QCloseEvent* event)
{
    if (asks_) return event->ignore(); // the question is already open
    const QPointer<fImage> self = this;
    asks_ = true;
    const bool closes = mayClose();
    if (!self) return;
    asks_ = false;
    emit asking(Question::Done);
    if (!self) return;
    if (!closes) return event->ignore();
    if (document_.views > 1) {
        giveWay();
        deactivate();
    }
    forget();
    if (frame_.workspace().documents().empty())
        for (const Panel panel :
             {Panel::Pos, Panel::Ext, Panel::Size, Panel::Page, Panel::Name, Panel::Zoom, Panel::Hint})
            frame_.setStatus(panel, {});
    event->accept();
}

/// The end of the view; of the document, too, with the last one: its undo files go.
void fImage::forget()
{
    if (forgotten_) return;
    forgotten_ = true;
    tmrSelection_.stop();
    tmrFollow_.stop();
    if (--document_.views == 0) frame_.workspace().close(document_.handle());
}

} // namespace velara
