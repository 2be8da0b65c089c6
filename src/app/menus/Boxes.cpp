#include "app/menus/Boxes.h"
#include "app/menus/Bars.h"
#include "platform/desktop/front.h"
#include "seams/Setup.h"
#include <QCloseEvent>
#include <QMainWindow>
#include <QScrollArea>
#include <QScrollBar>
#include <functional>
#include <string_view>
#include <utility>

namespace velara {

namespace {

struct BoxRow {
    std::string_view word; // of its menu item
    bool Setup::*visible;  // null: in no field of the configuration
    int down;              // pixels from the top of the documents to the place where it begins to float
};

constexpr BoxRow kBoxes[] = {
    {"@COLORBOX", &Setup::ColorBoxVisible, 36},
    {"@TEXTURESBOX", &Setup::TexturesBoxVisible, 0},
    {"@CLIPBOARDBOX", &Setup::ClipboardBoxVisible, 0},
    {"@HISTORYBOX", nullptr, 36},
};

/// As wide as the box at least; only its height may be too small for it.
class Room final : public QScrollArea {
  public:
    explicit Room(QWidget* box)
    {
        setFrameShape(NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        setWidget(box);
    }
    /// The documents get the rest.
    QSize sizeHint() const override
    {
        return {minimumSizeHint().width(), widget()->sizeHint().expandedTo(widget()->minimumSize()).height()};
    }
    QSize minimumSizeHint() const override
    {
        constexpr int kLeastHeight = 80;
        const int least = widget()->minimumSizeHint().expandedTo(widget()->minimumSize()).width();
        return {least + verticalScrollBar()->sizeHint().width(), kLeastHeight};
    }
};

class Dock final : public QDockWidget {
  public:
    Dock(QWidget* box, QMainWindow* frame, int down, std::function<void()> crossed)
        : QDockWidget(box->windowTitle(), frame), down_(down), crossed_(std::move(crossed))
    {
        setObjectName("dock_" + box->objectName());
        setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
        if (!windowsCanBePlaced()) setFeatures(DockWidgetClosable | DockWidgetMovable); // it would lie over the tools
        setWidget(new Room(box));
        widget()->setWindowFlags(Qt::SubWindow); // its access keys are its own: those of the menus stay the menus'
        connect(box, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
        connect(this, &QDockWidget::topLevelChanged, this, [this, frame](bool floats) {
            if (floats && frame->isVisible() && !std::exchange(hasFloated_, true)) beginToFloat(*frame);
        });
    }

  protected:
    void closeEvent(QCloseEvent* event) override
    {
        QDockWidget::closeEvent(event);
        crossed_();
    }

  private:
    /// By its button, and not in the user's hand: at the frame's right, clear of the side pane's width.
    void beginToFloat(const QMainWindow& frame)
    {
        if (QGuiApplication::mouseButtons() != Qt::NoButton) return;
        adjustSize();
        const int pane = frame.findChild<QWidget*>("cTools")->width();
        const int left = frame.width() - width() - pane * 12 / 5;
        move(frame.mapToGlobal(QPoint(std::max(left, pane), frame.centralWidget()->y() + down_)));
    }

    int down_;
    bool hasFloated_ = false;
    std::function<void()> crossed_;
};

} // namespace

void Boxes::set(Box which, QWidget* box)
{
    boxes_[which] = box;
    docks_[which] = new Dock(box, &frame_, kBoxes[which].down, [this, which] { crossed(which); });
    docks_[which]->hide();
    frame_.addDockWidget(Qt::RightDockWidgetArea, docks_[which]);
}

void Boxes::dockAll()
{
    for (QDockWidget* dock : docks_) {
        dock->setFloating(false);
        frame_.addDockWidget(Qt::RightDockWidgetArea, dock);
        if (dock != docks_[Colours]) frame_.tabifyDockWidget(docks_[Colours], dock);
    }
}

void Boxes::moveAside()
{
    const int step = 2 * frame_.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    for (QDockWidget* dock : docks_) {
        if (!dock->isFloating()) continue;
        const QRect screen = dock->screen()->availableGeometry();
        const auto along = [step](int at, int least, int most) { return at + step <= most ? at + step : least; };
        dock->move(along(dock->x(), screen.left(), screen.right() - dock->width()),
                   along(dock->y(), screen.top(), screen.bottom() - dock->height()));
    }
}

void Boxes::show(Box which)
{
    docks_[which]->show();
    bars_.mark(kBoxes[which].word, 0, true);
}

std::vector<QRect> Boxes::places() const
{
    std::vector<QRect> places;
    for (const QDockWidget* dock : docks_)
        if (dock && dock->isFloating() && dock->isVisible()) places.push_back(dock->frameGeometry());
    return places;
}

bool& Boxes::wanted(Box which)
{
    bool Setup::*const field = kBoxes[which].visible;
    return field ? setup_.*field : others_[which];
}

void Boxes::toggle(Box which)
{
    bool& visible = wanted(which);
    visible = !visible;
    if (visible) {
        bring(which);
        if (docks_[which]->isFloating()) docks_[which]->activateWindow(); // it was asked for in order to be used
    } else {
        docks_[which]->hide();
    }
    bars_.mark(kBoxes[which].word, 0, visible);
}

void Boxes::showAll()
{
    for (const Box which : {History, Textures, Clips, Colours}) {
        if (!windowsCanBePlaced()) docks_[which]->setFloating(false);
        wanted(which) ? show(which) : docks_[which]->hide();
    }
    docks_[Colours]->raise();
}

void Boxes::bring(Box which)
{
    if (!wanted(which)) return toggle(which);
    show(which);
    docks_[which]->raise();
}

void Boxes::crossed(Box which)
{
    wanted(which) = false;
    bars_.mark(kBoxes[which].word, 0, false);
}

} // namespace velara
