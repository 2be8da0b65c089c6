// Bars, boxes, the side pane, tools and colours.
#include "app/frame/fHover.h"
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "app/frame/fToolPane.h"
#include "app/menus/menus.h"
#include "app/start/fStartPage.h"
#include "app/utilities/Clips.h"
#include "app/utilities/Recipes.h"
#include "app/utilities/browse.h"
#include "seams/Platform.h"
#include "seams/text.h"
#include "ui/colour/fPalette.h"
#include "ui/colour/fPicker.h"
#include "ui/compose/fToolTextures.h"
#include "ui/history/fHistory.h"
#include "ui/panes/fToolPanes.h"
#include "ui/view/fDisplay.h"
#include <QDragEnterEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QToolBar>

namespace velara {

void fMain::applyBars()
{
    bars_->showBars();
    status_->setVisible(setup_.StatusBarVisible);
    bars_->mark("@STATUSBAR", 0, setup_.StatusBarVisible);
    bars_->mark("@SIDEBAR", 0, setup_.SideBarHidden);
    placeSidePane();
}

void fMain::refreshIcons()
{
    bars_->refreshIcons();
    toolPane_->refreshIcons();
}

void fMain::storeLayout()
{
    bars_->saveLayout();
    frameResized();
}

void fMain::toggleStatusBar()
{
    setup_.StatusBarVisible = !setup_.StatusBarVisible;
    applyBars();
}

void fMain::toggleSideBar()
{
    setup_.SideBarHidden = !setup_.SideBarHidden;
    applyBars();
}

void fMain::makeBoxes()
{
    setTabPosition(Qt::RightDockWidgetArea, QTabWidget::North);
    setTabPosition(Qt::LeftDockWidgetArea, QTabWidget::North);
    boxes_ = std::make_unique<Boxes>(*this, setup_, *bars_);
    boxes_->set(Boxes::Colours, new fPalette(*this, this));
    auto* textures = new fToolTextures(*this, this);
    connect(textures, &fToolTextures::placing, this, [this] { toolClicked(QStringLiteral("Text")); });
    connect(textures, &fToolTextures::folderWanted, this, [=, this] { browseTextureFolder(*this, *textures); });
    boxes_->set(Boxes::Textures, textures);
    boxes_->set(Boxes::Clips, clips_->box());
    boxes_->wanted(Boxes::History) = platform_.setting("Boxes", "History", "0") == "1";
    history_ = new fHistory(*this, this);
    connect(history_, &fHistory::copyWanted, recipes_.get(), &Recipes::copyAsCommand);
    connect(history_, &fHistory::saveWanted, recipes_.get(), &Recipes::save);
    connect(history_, &fHistory::runOnOthersWanted, recipes_.get(), &Recipes::runOnOthers);
    boxes_->set(Boxes::History, history_);
    boxes_->dockAll();
    startPage_->taken = [this] { return boxes_->places(); };
}

// --- Side pane

void fMain::placeSidePane()
{
    auto* middle = centralWidget();
    auto* row = static_cast<QBoxLayout*>(middle->layout());
    if (setup_.SideBarHidden) {
        row->removeWidget(toolPane_);
        toolPane_->setGeometry(0, 0, toolPane_->width(), middle->height());
        toolPane_->hide();
        toolPane_->raise();
    } else {
        if (row->indexOf(toolPane_) < 0) row->insertWidget(0, toolPane_);
        toolPane_->show();
    }
}

void fMain::seekSidePane(QPoint at)
{
    if (!setup_.SideBarHidden) return;
    const QWidget* middle = centralWidget();
    const QPoint inside = middle->mapFromGlobal(at);
    const bool over = inside.y() >= 0 && inside.y() < middle->height() && inside.x() >= 0;
    // It appears at the frame's left edge and disappears right of the pane.
    const int edge = toolPane_->isVisible() ? toolPane_->width() : 8;
    const bool show = over && inside.x() < edge;
    if (show == toolPane_->isVisible()) return;
    toolPane_->setGeometry(0, 0, toolPane_->width(), middle->height());
    toolPane_->setVisible(show);
    toolPane_->raise();
}

bool fMain::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (type == QEvent::Move || type == QEvent::Resize || type == QEvent::Show || type == QEvent::Hide)
        if (boxes_ && (watched == this || boxes_->has(watched))) startPage_->place();
    if (watched->parent() == this && watched->isWidgetType() && static_cast<QWidget*>(watched)->isWindow()) {
        // A drop on a pop-up is meant for the frame below.
        if (type == QEvent::DragEnter) dragEnterEvent(static_cast<QDragEnterEvent*>(event));
        if (type == QEvent::Drop) dropEvent(static_cast<QDropEvent*>(event));
    }
    if (type == QEvent::MouseButtonPress && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton &&
        qobject_cast<fDisplay*>(watched) && placesNoText())
        QMetaObject::invokeMethod(this, &fMain::wantText, Qt::QueuedConnection); // after the press
    if (event->type() == QEvent::MouseMove && setup_.SideBarHidden) {
        const auto* widget = qobject_cast<QWidget*>(watched);
        const auto* move = static_cast<QMouseEvent*>(event);
        // Never during a drag: the pane would disturb a stroke.
        if (widget && widget->window() == this && move->buttons() == Qt::NoButton)
            seekSidePane(move->globalPosition().toPoint());
    }
    return QMainWindow::eventFilter(watched, event);
}

// --- Tools

/// The keys of the tool strip. A focused text field keeps its letters.
void fMain::bindToolKeys()
{
    const auto bind = [this](const QString& key, const QString& shortcuts, auto run) {
        auto* action = new QAction(this);
        action->setObjectName(key);
        QList<QKeySequence> sequences;
        for (const QString& one : shortcuts.split(' ')) sequences << QKeySequence(one);
        action->setShortcuts(sequences);
        connect(action, &QAction::triggered, this, run);
        addAction(action);
    };
    for (const ToolRow& tool : toolRows())
        bind(tool.name, QString(QLatin1Char(tool.key)), [this, &tool] { toolClicked(tool.name); });
    for (const StripRow& row : stripRows())
        bind(text(row.key), text(row.shortcuts), [this, &row] { toolPane_->button(text(row.key))->click(); });
}

void fMain::initToolPanes()
{
    for (const ToolRow& tool : toolRows()) {
        if (tool.pane.empty()) continue;
        toolPane_->setPane(tool.name, makeSidePane(tool, *this));
        new fHover(toolPane_->button(tool.name), [this, &tool] { return makePopup(tool, *this, this); });
    }
    showChosenTool();
}

void fMain::showChosenTool()
{
    toolPane_->setTool(mouseScrolling() ? QString() : setup_.CurrentTool); // the hand or a tool, never both
    toolPane_->showPane(setup_.CurrentTool);
    for (fImage* image : documents()) image->toolChosen();
}

/// Keys that no control has used: they end a tool's gesture wherever the focus is.
void fMain::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && readingBox_ && readingBox_->isVisible()) {
        workspace_.cancelOpening();
        return;
    }
    const bool ends = event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    fImage* image = ends ? GetActiveImage() : nullptr;
    if (image && image->displayKey(*event, true)) return;
    if (event->key() == Qt::Key_Escape && workspace_.cancelSaving(active())) return;
    if (event->key() == Qt::Key_Escape && isFullScreen()) return toggleFullScreen();
    QMainWindow::keyPressEvent(event);
}

void fMain::takeNoTool()
{
    setup_.CurrentTool.clear();
    releaseHand();
    showChosenTool();
}

void fMain::EnableMouseScrolling()
{
    if (std::exchange(scrollingOffered_, true)) return; // once, at the first document
    toolPane_->button("MouseScroll")->setChecked(true);
    toolPane_->releaseTools();
}

bool fMain::mouseScrolling() const { return toolPane_->button("MouseScroll")->isChecked(); }

void fMain::toolClicked(const QString& key)
{
    fImage* image = GetActiveImage();
    if (key == "ZoomIn" || key == "ZoomOut") {
        if (image) setZoom(image->ZoomFactor() + (key == "ZoomIn" ? 1 : -1));
    } else if (key == "MouseScroll") {
        if (image) image->setMouseScroll(mouseScrolling());
        showChosenTool();
    } else {
        clips_->letGo();
        setup_.CurrentTool = key;
        releaseHand(); // choosing a tool ends hand scrolling
        showChosenTool();
        if (placesNoText()) wantText();
    }
}

/// Whether a press on a picture would place a text, and there is none.
bool fMain::placesNoText() const
{
    return setup_.CurrentTool.trimmed() == "Text" && toolStores_.text.isNull() && !toolStores_.pastePending &&
           !mouseScrolling();
}

void fMain::wantText()
{
    boxes_->bring(Boxes::Textures);
    static_cast<fToolTextures*>(boxes_->box(Boxes::Textures))->beginText();
}

void fMain::releaseHand()
{
    toolPane_->button("MouseScroll")->setChecked(false);
    if (fImage* image = GetActiveImage()) image->setMouseScroll(false);
}

void fMain::showColors()
{
    toolPane_->setColors(setup_.ForeColor, setup_.BackColor);
    if (auto* palette = qobject_cast<fPalette*>(boxes_->box(Boxes::Colours))) palette->showColors();
}

std::optional<Colour> fMain::pickColour(Colour start, const QString& what, QWidget* over)
{
    const QPointer<fPicker> picker = new fPicker(platform_, over);
    picker->setAccessibleDescription(what);
    picker->LoadColorDialog(start);
    const bool taken = picker->exec() == QDialog::Accepted;
    if (!picker) return std::nullopt; // the window below was destroyed with it
    const Colour colour = picker->colour();
    delete picker;
    return taken ? std::optional(colour) : std::nullopt;
}

void fMain::wellClicked(int index)
{
    std::int32_t Setup::*const field = index == 0 ? &Setup::ForeColor : &Setup::BackColor;
    const auto picked = pickColour(setup_.*field, index == 0 ? tr("First color") : tr("Second color"), this);
    if (!picked) return;
    setup_.*field = *picked;
    showColors();
}

} // namespace velara
