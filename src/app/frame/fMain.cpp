#include "app/frame/fMain.h"
#include "app/frame/fDocumentWindow.h"
#include "app/frame/fStatus.h"
#include "app/frame/fToolPane.h"
#include "app/menus/fIcons.h"
#include "app/utilities/Capture.h"
#include "app/utilities/Clips.h"
#include "seams/Platform.h"
#include <QApplication>
#include <QHBoxLayout>
#include <QMdiSubWindow>
#include <QTimer>

namespace velara {

fMain::fMain(Platform& platform, Setup& setup) : platform_(platform), setup_(setup)
{
    setObjectName("fMain");
    setWindowTitle(kProgramName);
    setWindowIcon(QIcon(":/velara.svg"));
    setMinimumSize(320, 240);
    setAcceptDrops(true);
    cFilter_.clock = [this] { return platform_.milliseconds(); };
    cFilter_.Progress = [this](int percent) { engineProgress(percent); };

    auto* middle = new QWidget(this);
    auto* row = new QHBoxLayout(middle);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    toolPane_ = new fToolPane(middle);
    area_ = new QMdiArea(middle);
    area_->setObjectName("documents");
    area_->setAccessibleName(tr("Pictures"));
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->viewport()->setMouseTracking(true);
    row->addWidget(toolPane_);
    row->addWidget(area_, 1);
    setCentralWidget(middle);
    status_ = new fStatus(this);
    setStatusBar(status_);

    connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
        fImage* image = GetActiveImage();
        if (image && window == image->parentWidget()) image->activate();
        refreshUndoState();
    });
    connect(toolPane_, &fToolPane::clicked, this, &fMain::toolClicked);
    connect(toolPane_, &fToolPane::wellClicked, this, &fMain::wellClicked);
    connect(toolPane_, &fToolPane::swapClicked, this, [this] {
        std::swap(setup_.ForeColor, setup_.BackColor);
        showColors();
    });
    buildMenus();
    buildToolbars();
    clips_ = std::make_unique<Clips>(*this);
    capture_ = std::make_unique<Capture>(*this);
    makeBoxes();
    showColors();
    refreshUndoState();
    qApp->installEventFilter(this); // moves of the pointer, for the side pane
}

fMain::~fMain()
{
    closing_ = true;
    cFilter_.Progress = nullptr;
    capture_.reset(); // which brings back what it has put aside
    delete area_;     // the documents speak to the frame to their end
    for (const QPointer<QWidget>& widget : std::exchange(dead_, {})) delete widget;
}

QList<fImage*> fMain::documents() const
{
    QList<fImage*> list;
    for (QMdiSubWindow* window : area_->subWindowList(QMdiArea::CreationOrder))
        if (auto* document = qobject_cast<fDocumentWindow*>(window); document && document->image())
            list << document->image();
    return list;
}

std::vector<DocumentHandle> fMain::openDocuments()
{
    std::vector<DocumentHandle> list;
    for (const fImage* image : documents()) list.push_back(image->document().handle());
    return list;
}

fImage* fMain::imageOf(const DocumentHandle& document) const
{
    for (fImage* image : documents())
        if (document && image->document().handle() == document) return image;
    return nullptr;
}

DocumentHandle fMain::active()
{
    const fImage* image = GetActiveImage();
    return image ? image->document().handle() : DocumentHandle();
}

fImage* fMain::GetActiveImage()
{
    auto* window = qobject_cast<fDocumentWindow*>(area_->currentSubWindow());
    if (!window || !window->image()) return nullptr;
    ActiveImage_ = window->image();
    return ActiveImage_;
}

void fMain::bury(fDocumentWindow* window)
{
    fImage* image = qobject_cast<fImage*>(window->widget());
    area_->removeSubWindow(window);
    window->hide();
    dead_ << window;
    if (image) dead_ << image;
    QTimer::singleShot(0, this, &fMain::buryDead);
    refreshUndoState();
}

void fMain::buryDead()
{
    if (jobs_ > 0) { // one may still stand on it
        if (!dead_.isEmpty()) QTimer::singleShot(50, this, &fMain::buryDead);
        return;
    }
    for (const QPointer<QWidget>& widget : std::exchange(dead_, {})) delete widget;
}

void fMain::capturePic(int mode) { capture_->capturePic(mode); }

void fMain::refreshUndoState()
{
    const fImage* image = GetActiveImage();
    const auto enable = [this](const char* name, bool on) {
        if (QAction* action = items_.value(name)) action->setEnabled(on);
    };
    enable("tb_0_7", image && ActiveImage_->document().undo.canUndo());
    enable("tb_0_8", image && ActiveImage_->document().undo.canRedo());
}

void fMain::setStatus(Panel panel, const QString& text) { status_->setPanel(panel, text); }

void fMain::cFilter_Progress(int value) { status_->setProgress(value); }

QString fMain::UniqueCaption(const QString& text)
{
    for (const fImage* image : documents())
        if (image->Tag() == text) return "[" + QString::number(++clashes_) + "]" + text;
    return text;
}

void fMain::showFailure(const QString& what, const std::exception& failure)
{
    status_->setProgress(0);
    status_->showMessage(what + ": " + QString::fromUtf8(failure.what()), 8000);
}

} // namespace velara
