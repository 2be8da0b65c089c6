#include "ui/utilities/PickerWindow.h"
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

namespace velara {

namespace {

constexpr int kAround = 7, kScale = 8;            // pixels on each side of the pointer's, and their size
constexpr int kLens = (2 * kAround + 1) * kScale; // side of the magnified square
constexpr int kBeside = 24;                       // from the pointer to the magnifier
constexpr int kLineWidth = 2;

/// A line of the rectangle: dashes of black and white, so that it is seen on everything.
class Line final : public QWidget {
  public:
    using QWidget::QWidget;

  protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.fillRect(rect(), QBrush(Qt::black, Qt::Dense4Pattern));
    }
};

} // namespace

Magnifier::Magnifier(const fCaptureRectangle& picker, QWidget* parent) : QWidget(parent), picker_(picker)
{
    setObjectName("shpFollow");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(std::max(kLens, fontMetrics().horizontalAdvance("00000, 00000   00000 x 00000")) + 8,
           kLens + fontMetrics().height() + 12);
}

void Magnifier::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    const QRect lens((width() - kLens) / 2, 4, kLens, kLens);
    const QPoint at = picker_.pointer();
    painter.fillRect(lens, Qt::black);
    const QRect around(at - QPoint(kAround, kAround), QSize(2 * kAround + 1, 2 * kAround + 1));
    const QRect inside = around & QRect(0, 0, picker_.picture().bits.width(), picker_.picture().bits.height());
    painter.drawImage(QRect(lens.topLeft() + (inside.topLeft() - around.topLeft()) * kScale, inside.size() * kScale),
                      picker_.image(), inside);
    painter.setPen(Qt::black);
    const QRect middle(lens.topLeft() + QPoint(kAround, kAround) * kScale, QSize(kScale, kScale));
    painter.drawRect(middle.adjusted(-1, -1, 0, 0));
    painter.setPen(Qt::white);
    painter.drawRect(middle.adjusted(-2, -2, 1, 1));
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect picked = picker_.rectangle();
    QString text = QString("%1, %2").arg(at.x()).arg(at.y());
    if (!picked.isEmpty()) text += QString("   %1 x %2").arg(picked.width()).arg(picked.height());
    painter.drawText(QRect(0, lens.bottom() + 2, width(), height() - lens.bottom() - 4), Qt::AlignCenter, text);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

PickerWindow::PickerWindow(fCaptureRectangle& picker, const ScreenPicture::Part& part)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint), picker_(picker), part_(part)
{
    setObjectName("fCaptureRectangle");
    setWindowTitle(tr("Capture Rectangle"));
    setAccessibleName(tr("Drag a rectangle; Esc leaves"));
    setCursor(Qt::CrossCursor);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        lines_[i] = new Line(this);
        lines_[i]->setObjectName(QString("Line%1").arg(i + 1));
        lines_[i]->setAttribute(Qt::WA_TransparentForMouseEvents);
        lines_[i]->hide();
    }
    shpFollow_ = new Magnifier(picker, this);
    shpFollow_->hide();
    setGeometry(part.logical);
    create();
    for (QScreen* screen : QGuiApplication::screens())
        if (screen->geometry() == part.logical) windowHandle()->setScreen(screen);
}

QPointF PickerWindow::toWindow(QPoint pixel) const
{
    return {double(pixel.x() - part_.device.left()) * width() / part_.device.width(),
            double(pixel.y() - part_.device.top()) * height() / part_.device.height()};
}

void PickerWindow::follow()
{
    const QRect picked = picker_.rectangle();
    const QRectF box(toWindow(picked.topLeft()), toWindow(picked.topLeft() + QPoint(picked.width(), picked.height())));
    const int left = qRound(box.left()), top = qRound(box.top()), right = qRound(box.right()),
              bottom = qRound(box.bottom());
    const QRect places[] = {{left - kLineWidth, top, kLineWidth, bottom - top},
                            {left - kLineWidth, top - kLineWidth, right - left + 2 * kLineWidth, kLineWidth},
                            {right, top, kLineWidth, bottom - top},
                            {left - kLineWidth, bottom, right - left + 2 * kLineWidth, kLineWidth}};
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        lines_[i]->setGeometry(places[i]);
        lines_[i]->setVisible(!picked.isEmpty());
    }
    shpFollow_->setVisible(part_.device.contains(picker_.pointer()));
    const QPoint pointer = toWindow(picker_.pointer()).toPoint();
    QPoint place = pointer + QPoint(kBeside, kBeside);
    if (place.x() + shpFollow_->width() > width()) place.setX(pointer.x() - kBeside - shpFollow_->width());
    if (place.y() + shpFollow_->height() > height()) place.setY(pointer.y() - kBeside - shpFollow_->height());
    shpFollow_->move(place);
    shpFollow_->raise();
    shpFollow_->update();
}

void PickerWindow::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawImage(QRectF(rect()), picker_.image(),
                      QRectF(part_.device)); // one device pixel for each of the picture's
}

void PickerWindow::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) picker_.press(event->globalPosition());
    if (event->button() == Qt::RightButton) picker_.leave();
}

void PickerWindow::mouseMoveEvent(QMouseEvent* event) { picker_.move(event->globalPosition()); }

void PickerWindow::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) picker_.release(event->globalPosition());
}

void PickerWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) picker_.leave();
}

void PickerWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    picker_.leave();
}

} // namespace velara
