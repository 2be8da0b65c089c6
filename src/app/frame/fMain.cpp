// What the frame is made of, the start page, the buttons of undo and redo, and words in the status bar.
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "app/frame/fToolPane.h"
#include "app/help/Manual.h"
#include "app/help/manualPages.h"
#include "app/start/Recovery.h"
#include "app/start/fStartPage.h"
#include "app/utilities/Capture.h"
#include "app/utilities/Clips.h"
#include "app/utilities/Recipes.h"
#include "fileio/disk/userFolders.h"
#include "seams/Platform.h"
#include "ui/history/fHistory.h"
#include "ui/widgets/ScreenColours.h"
#include "ui/widgets/inputs/Spoken.h"
#include <QApplication>
#include <QHBoxLayout>
#include <QMenu>

namespace velara {

fMain::fMain(Platform& platform, Setup& setup)
    : platform_(platform), setup_(setup), workspace_(tempFolder(platform.programFolder()), platform)
{
    useSpoken();
    setObjectName("fMain");
    setWindowTitle(kProgramName);
    setMinimumSize(320, 240);
    setAcceptDrops(true);
    bindWorkspace();

    auto* middle = new QWidget(this);
    auto* row = new QHBoxLayout(middle);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    toolPane_ = new fToolPane(middle);
    documents_ = std::make_unique<Documents>(middle);
    startPage_ = new fStartPage(platform_, area().viewport());
    row->addWidget(toolPane_);
    row->addWidget(&area(), 1);
    setCentralWidget(middle);
    status_ = new fStatus(this);
    setStatusBar(status_);

    connect(documents_.get(), &Documents::activated, this, &fMain::refreshUndoState);
    connect(documents_.get(), &Documents::buried, this, &fMain::refreshUndoState);
    connect(documents_.get(), &Documents::buried, this, &fMain::showStartPage);
    documents_->leaveByTab = [this](bool forward) { return toolPane_->isVisible() && toolPane_->enter(forward); };
    connect(toolPane_, &fToolPane::clicked, this, &fMain::toolClicked);
    connect(startPage_, &fStartPage::commandChosen, this, [this](const QString& word) { Mmenu(word); });
    connect(startPage_, &fStartPage::recentChosen, this, &fMain::openRecent);
    connect(toolPane_, &fToolPane::left, this, [this] {
        fImage* image = GetActiveImage();
        (image ? static_cast<QWidget*>(image) : startPage_)->setFocus();
    });
    connect(toolPane_, &fToolPane::wellClicked, this, &fMain::wellClicked);
    connect(toolPane_, &fToolPane::swapClicked, this, [this] {
        std::swap(setup_.ForeColor, setup_.BackColor);
        showColors();
    });
    bars_ = std::make_unique<Bars>(
        *this, platform_, setup_, [this](std::string_view word, int index) { run(word, index); }, &fMain::available);
    auto *views = findChild<QMenu*>("mnuViews"), *recent = findChild<QMenu*>("mnuRecent");
    connect(views, &QMenu::aboutToShow, this, [this, views] { documents_->list(*views); });
    connect(recent, &QMenu::aboutToShow, this, &fMain::FillRecent);
    bindToolKeys();
    clips_ = std::make_unique<Clips>(*this);
    capture_ = std::make_unique<Capture>(*this);
    recipes_ = std::make_unique<Recipes>(*this);
    makeBoxes();
    auto* recipes = findChild<QMenu*>("mnuRecipes");
    connect(recipes, &QMenu::aboutToShow, this, [this, recipes] { recipes_->list(*recipes); });
    makeRecovery();
    manual_ = std::make_unique<Manual>(
        *this, [this] { return GetActiveImage() ? manualPageOfTool(setup_.CurrentTool) : kFirstManualPage; });
    bars_->loadLastUsed();
    chooseScreenColours();
    showColors();
    refreshUndoState();
    qApp->installEventFilter(this); // pointer moves, for the side pane
}

fMain::~fMain()
{
    closing_ = true;
    capture_.reset(); // restores the hidden windows
    recovery_.reset();
    documents_->clear();
}

DocumentHandle fMain::active()
{
    const fImage* image = GetActiveImage();
    return image ? image->document().handle() : DocumentHandle();
}

void fMain::showStartPage()
{
    const bool empty = documents().isEmpty() && !closing_;
    if (empty) startPage_->showRecent(setup_.Recent);
    startPage_->setVisible(empty);
    startPage_->place();
}

void fMain::refreshUndoState()
{
    const fImage* image = GetActiveImage();
    // A step back ends a change under way.
    const auto underWay = workspace_.underWay(active());
    const UndoStore* undo = image ? &image->document().undo : nullptr;
    bars_->nameStep("UNDO",
                    underWay ? *underWay
                    : undo   ? undo->undoName()
                             : QString(),
                    undo && (underWay || undo->canUndo()));
    bars_->nameStep("REDO", undo ? undo->redoName() : QString(), undo && undo->canRedo());
    for (fImage* open : documents()) open->showChanged();
    showPage();
    if (history_) history_->follow();
    showTitle();
}

/// In the form that a picture which fills the area gives it, too.
void fMain::showTitle()
{
    const fImage* image = GetActiveImage();
    const QString title = image ? QString("%1 - [%2]").arg(kProgramName, image->windowTitle()) : kProgramName;
    if (windowTitle() != title) setWindowTitle(title);
    setWindowModified(image && image->isWindowModified() && title.contains("[*]")); // its place comes and goes first
}

void fMain::setStatus(Panel panel, const QString& text)
{
    status_->setPanel(panel, text);
    if (panel != Panel::Name) return;
    const fImage* image = GetActiveImage();
    status_->setPath(image && !text.isEmpty() ? image->Tag() : QString());
}

void fMain::showFailure(const QString& what, const std::exception& failure)
{
    status_->setProgress(0);
    status_->say(what + ": " + QString::fromUtf8(failure.what()));
}

} // namespace velara
