#include "ui/widgets/marks/ScreenCover.h"
#include "pixels/images.h"
#include "ui/widgets/marks/Mark.h"
#include "ui/widgets/marks/grips.h"
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace velara {

namespace {

constexpr int kLineWidth = 2;
constexpr QColor kShade(0, 0, 0, 110); // over what is outside

ScreenCover::Sides sidesOf(const Grip& grip)
{
    constexpr ScreenCover::Side across[] = {ScreenCover::Left, ScreenCover::None, ScreenCover::Right},
                                down[] = {ScreenCover::Top, ScreenCover::None, ScreenCover::Bottom};
    return across[grip.across + 1] | down[grip.down + 1];
}

Qt::CursorShape shapeOf(ScreenCover::Sides sides)
{
    if (sides == ScreenCover::Inside) return Qt::SizeAllCursor;
    const Grip* grip = std::ranges::find(kGrips, sides, sidesOf);
    return grip == std::end(kGrips) ? Qt::CrossCursor : grip->pointer;
}

/// A line of the rectangle: dashes of black and white, visible on everything.
void paintLine(QPainter& painter, const QRect& rect)
{
    painter.fillRect(rect, Qt::white);
    painter.fillRect(rect, QBrush(Qt::black, Qt::Dense4Pattern));
}

} // namespace

// --- One screen

CoverWindow::CoverWindow(ScreenCover& cover, const ScreenPicture::Part& part)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint), cover_(cover), part_(part)
{
    setObjectName(cover.names().object);
    setWindowTitle(cover.names().title);
    setAccessibleName(cover.names().accessible);
    setCursor(Qt::CrossCursor);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    const auto mark = [this](Mark::Paint paint, const char* name, std::size_t number) {
        auto* made = new Mark(paint, QString(name + QString::number(number)), this);
        made->setAttribute(Qt::WA_TransparentForMouseEvents);
        made->hide();
        return made;
    };
    for (std::size_t i = 0; i < lines_.size(); ++i) lines_[i] = mark(paintLine, "Line", i + 1);
    for (std::size_t i = 0; i < grips_.size(); ++i) grips_[i] = mark(paintGrip, "Grip", i + 1);
    setGeometry(part.logical);
    create();
    for (QScreen* screen : QGuiApplication::screens())
        if (screen->geometry() == part.logical) windowHandle()->setScreen(screen);
}

QPointF CoverWindow::toWindow(QPoint pixel) const
{
    return {double(pixel.x() - part_.device.left()) * width() / part_.device.width(),
            double(pixel.y() - part_.device.top()) * height() / part_.device.height()};
}

void CoverWindow::showRectangle(const QRect& rectangle)
{
    const QRectF box(toWindow(rectangle.topLeft()),
                     toWindow(rectangle.topLeft() + QPoint(rectangle.width(), rectangle.height())));
    const int left = qRound(box.left()), top = qRound(box.top()), right = qRound(box.right()),
              bottom = qRound(box.bottom());
    const QRect places[] = {{left - kLineWidth, top, kLineWidth, bottom - top},
                            {left - kLineWidth, top - kLineWidth, right - left + 2 * kLineWidth, kLineWidth},
                            {right, top, kLineWidth, bottom - top},
                            {left - kLineWidth, bottom, right - left + 2 * kLineWidth, kLineWidth}};
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        lines_[i]->setGeometry(places[i]);
        lines_[i]->setVisible(!rectangle.isEmpty());
    }
    for (std::size_t i = 0; i < grips_.size(); ++i) {
        grips_[i]->setGeometry(gripBox(QRect(left, top, right - left, bottom - top), kGrips[i]));
        grips_[i]->setVisible(cover_.hasGrips());
    }
    const QRect present = rectangle.isEmpty() ? QRect() : QRect(left, top, right - left, bottom - top);
    if (cover_.dims() && present.isEmpty() != box_.isEmpty())
        update();
    else if (cover_.dims())
        update(QRegion(present) ^ QRegion(box_));
    box_ = present;
}

void CoverWindow::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawImage(QRectF(rect()), cover_.image(),
                      QRectF(part_.device)); // one device pixel for each of the picture's
    if (!cover_.dims() || box_.isEmpty()) return;
    painter.setClipRegion(event->region() - box_);
    painter.fillRect(rect(), kShade);
}

void CoverWindow::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) cover_.press(event->globalPosition());
    if (event->button() == Qt::RightButton) cover_.leave();
}

void CoverWindow::mouseMoveEvent(QMouseEvent* event)
{
    cover_.move(event->globalPosition());
    if (event->buttons() == Qt::NoButton) setCursor(shapeOf(cover_.hold(cover_.pixelAt(event->globalPosition()))));
}

void CoverWindow::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) cover_.release(event->globalPosition());
}

void CoverWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        cover_.leave();
    else if (!cover_.key(*event))
        event->ignore();
}

void CoverWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    cover_.leave();
}

// --- All of them

ScreenCover::ScreenCover(Names names, QObject* parent) : QObject(parent), names_(std::move(names)) {}

ScreenCover::~ScreenCover()
{
    for (CoverWindow* window : windows_) delete window;
}

bool ScreenCover::show(const ScreenPicture& picture)
{
    close();
    picture_ = picture;
    if (picture_.bits.isNull() || picture_.parts.empty()) return false;
    for (const ScreenPicture::Part& part : picture_.parts) {
        windows_.push_back(new CoverWindow(*this, part));
        furnish(*windows_.back());
    }
    for (CoverWindow* window : windows_) window->showFullScreen();
    windows_.front()->activateWindow(); // to receive the keys
    return true;
}

QImage ScreenCover::image() const { return imageOver(picture_.bits); }

QPoint ScreenCover::pixelAt(QPointF global) const
{
    // A drag may leave its screen: then the nearest one's scale applies.
    const ScreenPicture::Part* nearest = &picture_.parts.front();
    double least = 1e9;
    for (const ScreenPicture::Part& part : picture_.parts) {
        const QRectF box = part.logical;
        const double dx = std::max({box.left() - global.x(), 0.0, global.x() - box.right()});
        const double dy = std::max({box.top() - global.y(), 0.0, global.y() - box.bottom()});
        if (dx + dy < least) {
            least = dx + dy;
            nearest = &part;
        }
    }
    const QRect &from = nearest->logical, &to = nearest->device;
    const int x = to.left() + int(std::floor((global.x() - from.left()) * to.width() / from.width()));
    const int y = to.top() + int(std::floor((global.y() - from.top()) * to.height() / from.height()));
    return {std::clamp(x, to.left(), to.right() + 1), std::clamp(y, to.top(), to.bottom() + 1)};
}

void ScreenCover::leave()
{
    if (windows_.empty()) return; // the windows close one another
    close();
    emit left();
}

void ScreenCover::showRectangle()
{
    for (CoverWindow* window : windows_) window->showRectangle(rectangle());
}

/// Deletes the windows after the event that one of them is handling.
void ScreenCover::close()
{
    for (CoverWindow* window : std::exchange(windows_, {})) {
        window->hide();
        window->deleteLater();
    }
}

Bits partOf(const Bits& bits, const QRect& rectangle)
{
    if (bits.isNull() || rectangle.isEmpty()) return {};
    Bits part(rectangle.width(), rectangle.height());
    const QRect inside = rectangle & QRect(0, 0, bits.width(), bits.height());
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        std::memcpy(part.row(y - rectangle.top()) + (inside.left() - rectangle.left()), bits.row(y) + inside.left(),
                    std::size_t(inside.width()) * sizeof(Pixel));
    return part;
}

} // namespace velara
