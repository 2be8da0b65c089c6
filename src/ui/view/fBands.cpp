#include "ui/view/fBands.h"
#include "ui/widgets/viewLayout.h"
#include <QPainter>

namespace velara {

fBand::fBand(QWidget* display, BandShape shape, const QString& name) : QWidget(display), shape_(shape)
{
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void fBand::setEnds(QPoint from, QPoint to)
{
    pictureFrom_ = from;
    pictureTo_ = to;
}

void fBand::place(QPoint scroll, int zoom)
{
    const Rect ends =
        viewRect({pictureFrom_.x(), pictureFrom_.y(), pictureTo_.x(), pictureTo_.y()}, scroll.x(), scroll.y(), zoom);
    const QPoint from(ends.left, ends.top), to(ends.right, ends.bottom);
    const int pen = shape_ == BandShape::Line ? 1 : 0; // a line includes both ends; the others lie inside their box
    const QPoint corner(std::min(from.x(), to.x()), std::min(from.y(), to.y()));
    const QPoint far(std::max(from.x(), to.x()), std::max(from.y(), to.y()));
    setGeometry(QRect(corner, QSize(far.x() - corner.x() + pen, far.y() - corner.y() + pen)));
    from_ = from - corner;
    to_ = to - corner;
    update();
    show();
}

void fBand::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // Dashes of black on white are visible on every picture.
    const QRect frame = rect().adjusted(0, 0, -1, -1);
    for (const QPen& pen : {QPen(Qt::white, 1, Qt::SolidLine), QPen(Qt::black, 1, Qt::DashLine)}) {
        painter.setPen(pen);
        switch (shape_) {
        case BandShape::Rectangle:
            painter.drawRect(frame);
            break;
        case BandShape::Ellipse:
            painter.drawEllipse(frame);
            break;
        case BandShape::Line:
            painter.drawLine(from_, to_);
            break;
        }
    }
}

fBands::fBands(QWidget* display)
    : display_(display), rectangle_(new fBand(display, BandShape::Rectangle, "shpRect")),
      ellipse_(new fBand(display, BandShape::Ellipse, "shpEllp"))
{
    addLine();
}

fBand* fBands::addLine()
{
    lines_.push_back(new fBand(display_, BandShape::Line, "shpLine_" + QString::number(lines_.size())));
    return lines_.back();
}

void fBands::show(BandShape shape, QPoint from, QPoint to, bool keep)
{
    switch (shape) {
    case BandShape::Rectangle:
        return place(*rectangle_, from, to);
    case BandShape::Ellipse:
        return place(*ellipse_, from, to);
    case BandShape::Line:
        place(*lines_.back(), from, to);
        if (keep) addLine();
    }
}

void fBands::place(fBand& band, QPoint from, QPoint to)
{
    band.setEnds(from, to);
    band.place(scroll_, zoom_);
}

void fBands::setSpot(QPoint scroll, int zoom)
{
    scroll_ = scroll;
    zoom_ = zoom;
    const auto follow = [this](fBand* band) {
        if (!band->isHidden()) band->place(scroll_, zoom_);
    };
    for (fBand* band : {rectangle_, ellipse_}) follow(band);
    for (fBand* line : lines_) follow(line);
}

void fBands::hide(BandShape shape)
{
    switch (shape) {
    case BandShape::Rectangle:
        return rectangle_->hide();
    case BandShape::Ellipse:
        return ellipse_->hide();
    case BandShape::Line:
        for (std::size_t i = 1; i < lines_.size(); ++i) delete lines_[i];
        lines_.resize(1);
        lines_.front()->hide();
    }
}

} // namespace velara
