// Toolbars, boxes, the status bar and the side pane: shown, hidden and remembered in Setup.
#include "app/frame/fHover.h"
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "app/frame/fToolPane.h"
#include "app/menus/fIcons.h"
#include "app/menus/menus.h"
#include "app/utilities/Clips.h"
#include "seams/Platform.h"
#include "ui/colour/fPalette.h"
#include "ui/colour/fPicker.h"
#include "ui/compose/fToolTextures.h"
#include "ui/panes/fToolPanes.h"
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QToolBar>

namespace velara {

namespace {

constexpr const char* kSection = "VeStu";
constexpr const char* kPlaced = "placed";
constexpr int kLayoutVersion = 1; // raised when toolbars come or go, so that an old layout is not forced on new bars

} // namespace

void fMain::applyBars()
{
    for (std::size_t i = 0; i < bars_.size(); ++i) {
        bars_[i]->setVisible(setup_.BarVisible[i]);
        items_["BAR_" + QString::number(i)]->setChecked(setup_.BarVisible[i]);
    }
    status_->setVisible(setup_.StatusBarVisible);
    items_["VIEWS_8"]->setChecked(setup_.StatusBarVisible);
    items_["VIEWS_9"]->setChecked(setup_.SideBarHidden);
    placeSidePane();
}

void fMain::loadLayout()
{
    const QString stored = platform_.setting(kSection, "Layout", "");
    if (!stored.isEmpty()) restoreState(QByteArray::fromBase64(stored.toLatin1()), kLayoutVersion);
    applyBars(); // which bars are shown is the configuration's to say
}

void fMain::saveLayout()
{
    platform_.setSetting(kSection, "Layout", QString::fromLatin1(saveState(kLayoutVersion).toBase64()));
}

void fMain::reset()
{
    saveLayout();
    frameResized();
}

void fMain::toggleBar(int index)
{
    bool& visible = setup_.BarVisible[std::size_t(index)];
    visible = !visible;
    bars_[std::size_t(index)]->setVisible(visible);
    items_["BAR_" + QString::number(index)]->setChecked(visible);
}

QMenu* fMain::createPopupMenu()
{
    auto* menu = new QMenu(this);
    for (int i = 0; i < 7; ++i) menu->addAction(items_["BAR_" + QString::number(i)]);
    return menu;
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

namespace {

bool Setup::*boxFlag(int index)
{
    constexpr bool Setup::*kFlags[] = {&Setup::ColorBoxVisible, &Setup::TexturesBoxVisible,
                                       &Setup::ClipboardBoxVisible};
    return kFlags[index];
}

} // namespace

void fMain::makeBoxes()
{
    setBox(0, new fPalette(*this, this));
    setBox(2, clips_->box());
    auto* textures = new fToolTextures(*this, this);
    connect(textures, &fToolTextures::placing, this, [this] { toolClicked(QStringLiteral("Text")); });
    setBox(1, textures);
}

void fMain::setBox(int index, QWidget* box) { boxes_[std::size_t(index)] = box; }

/// A box keeps the place that the user gave it; the first time it stands at the frame's right.
void fMain::showBox(int index)
{
    QWidget* box = boxes_[std::size_t(index)];
    if (!box) return;
    if (!box->property(kPlaced).toBool()) {
        const int left = width() - box->width() - toolPane_->width() * 12 / 5;
        const int top = centralWidget()->y() + (index == 0 ? 550 / 15 : 0);
        box->move(mapToGlobal(QPoint(std::max(0, left), top)));
        box->setProperty(kPlaced, true);
    }
    box->show();
    items_["VIEWS_" + QString::number(4 + index)]->setChecked(true);
}

void fMain::toggleBox(int index)
{
    bool& visible = setup_.*boxFlag(index);
    visible = !visible;
    QWidget* box = boxes_[std::size_t(index)];
    if (visible) {
        showBox(index);
        if (box) box->activateWindow(); // who asks for it wants to use it
    } else if (box) {
        const QPoint place = box->pos(); // a window manager may place it anew otherwise
        box->hide();
        box->move(place);
    }
    items_["VIEWS_" + QString::number(4 + index)]->setChecked(visible);
}

void fMain::showBoxes()
{
    for (int i : {0, 1, 2, 0}) // the colours once more, so that they end up in front
        if (setup_.*boxFlag(i)) showBox(i);
    if (boxes_[0]) boxes_[0]->raise();
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
    // Out of hiding at the frame's left side; away again right of the pane.
    const int edge = toolPane_->isVisible() ? toolPane_->width() : 8;
    const bool show = over && inside.x() < edge;
    if (show == toolPane_->isVisible()) return;
    toolPane_->setGeometry(0, 0, toolPane_->width(), middle->height());
    toolPane_->setVisible(show);
    toolPane_->raise();
}

bool fMain::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close &&
        event->spontaneous()) // a box closed by its own cross: the menu's mark goes too
        for (int i = 0; i < int(boxes_.size()); ++i)
            if (watched == boxes_[std::size_t(i)] && setup_.*boxFlag(i)) toggleBox(i);
    if (event->type() == QEvent::MouseMove && setup_.SideBarHidden) {
        const auto* widget = qobject_cast<QWidget*>(watched);
        const auto* move = static_cast<QMouseEvent*>(event);
        // Never during a drag: the pane would jump into a stroke.
        if (widget && widget->window() == this && move->buttons() == Qt::NoButton)
            seekSidePane(move->globalPosition().toPoint());
    }
    return QMainWindow::eventFilter(watched, event);
}

// --- Tools

void fMain::initToolPanes()
{
    for (const ToolRow& tool : toolRows()) {
        if (tool.pane.empty()) continue;
        toolPane_->setPane(tool.name, makeSidePane(tool, *this));
        new fHover(toolPane_->button(tool.name), [this, &tool] { return makePopup(tool, *this, this); });
    }
    Tool_Frame();
}

void fMain::Tool_Frame()
{
    toolPane_->setTool(setup_.CurrentTool);
    toolPane_->showPane(setup_.CurrentTool);
}

void fMain::DisableTools() { toolPane_->releaseTools(); }

void fMain::CheckToolbarState(bool noRefresh)
{
    if (!noRefresh) GetActiveImage();
}

void fMain::EnableMouseScrolling()
{
    if (std::exchange(scrollingOffered_, true)) return; // once, at the first document
    toolPane_->button("MouseScroll")->setChecked(true);
}

bool fMain::mouseScrolling() const { return toolPane_->button("MouseScroll")->isChecked(); }

void fMain::toolClicked(const QString& key)
{
    fImage* image = GetActiveImage();
    if (key == "ZoomIn" || key == "ZoomOut") {
        if (image) setZoom(image->ZoomFactor() + (key == "ZoomIn" ? 1 : -1));
    } else if (key == "MouseScroll") {
        if (image) image->setMouseScroll(toolPane_->button(key)->isChecked());
    } else {
        clips_->letGo();
        setup_.CurrentTool = key;
        Tool_Frame();
        releaseHand(); // who takes a tool puts the hand away
    }
}

void fMain::releaseHand()
{
    toolPane_->button("MouseScroll")->setChecked(false);
    if (fImage* image = GetActiveImage()) image->setMouseScroll(false);
}

void fMain::showClipBox()
{
    if (!setup_.ClipboardBoxVisible) return toggleBox(2);
    showBox(2);
    clips_->box()->raise();
}

void fMain::showColors()
{
    toolPane_->setColors(setup_.ForeColor, setup_.BackColor);
    if (auto* palette = qobject_cast<fPalette*>(boxes_[0])) palette->showColors();
}

std::optional<Colour> fMain::pickColour(Colour start, const QString& what, QWidget* over)
{
    const QPointer<fPicker> picker = new fPicker(platform_, over);
    picker->setAccessibleDescription(what);
    picker->LoadColorDialog(start);
    const bool taken = picker->exec() == QDialog::Accepted;
    if (!picker) return std::nullopt; // the window below went, and it with it
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

void fMain::arrange(int mode)
{
    if (mode == 0) return area_->cascadeSubWindows();
    // Side by side or one below the other; QMdiArea's own tiling knows only a grid.
    QList<QMdiSubWindow*> windows = area_->subWindowList(QMdiArea::StackingOrder);
    windows.removeIf([](QMdiSubWindow* w) { return w->isHidden() || w->isMinimized(); });
    const int count = int(windows.size());
    const QRect all = area_->viewport()->rect();
    for (int i = 0; i < count; ++i) {
        windows[i]->showNormal();
        const int from = i, to = i + 1;
        if (mode == 1) // each as wide as the area
            windows[i]->setGeometry(0, all.height() * from / count, all.width(),
                                    all.height() * to / count - all.height() * from / count);
        else
            windows[i]->setGeometry(all.width() * from / count, 0,
                                    all.width() * to / count - all.width() * from / count, all.height());
    }
}

} // namespace velara
