// How a view shows its document: layout, repaint, zoom, scrolling, the marching outline and the rubber bands.
#include "document/road/Frame.h"
#include "ui/view/fCursors.h"
#include "ui/view/fDisplay.h"
#include "ui/view/fImage.h"
#include "ui/widgets/marks/motion.h"
#include <QGuiApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QResizeEvent>

namespace velara {

namespace {

QRect qrectOf(const Rect& r) { return {r.left, r.top, r.width(), r.height()}; }

} // namespace

QSize fImage::sizeHint() const
{
    QSize most(800, 600);
    if (const auto* window = qobject_cast<QMdiSubWindow*>(parentWidget()); window && window->mdiArea())
        most = window->mdiArea()->viewport()->size();
    const QSize zoomed(PictureWidth() * zoom_, PictureHeight() * zoom_);
    return zoomed.boundedTo(most).expandedTo({160, 120});
}

void fImage::resizeEvent(QResizeEvent*)
{
    if (!PictureExists()) return;
    layOutView();
}

void fImage::layOutView()
{
    if (!PictureExists()) return;
    if (!zoomFits(PictureWidth(), PictureHeight(), zoom_) && zoom_ > kLeastZoom) return setZoomFactor(kLeastZoom);
    const ViewLayout l = layOut({PictureWidth(), PictureHeight(), zoom_, width(), height(), barsWidth_});
    const float hValue = lastHValue_, vValue = lastVValue_;
    scrollGuard_ = true;
    const auto place = [&](QScrollBar* bar, const Rect& at, bool needed, int maximum, int page, float value,
                           float last) {
        bar->setGeometry(qrectOf(at));
        bar->setRange(0, maximum);
        bar->setPageStep(page);
        bar->setSingleStep(zoom_);
        bar->setValue(restoredValue(maximum, laidOut_, value, last));
        bar->setVisible(needed);
    };
    place(hSB_, l.hSB, l.needH, l.hMax, l.iDst.width(), hValue, lastHMax_);
    place(vSB_, l.vSB, l.needV, l.vMax, l.iDst.height(), vValue, lastVMax_);
    shp_->setGeometry(qrectOf(l.shp));
    shp_->setVisible(l.needH && l.needV);
    lastHValue_ = static_cast<float>(hSB_->value());
    lastVValue_ = static_cast<float>(vSB_->value());
    lastHMax_ = static_cast<float>(l.hMax);
    lastVMax_ = static_cast<float>(l.vMax);
    laidOut_ = true;
    laidOutSize_ = {PictureWidth(), PictureHeight()};
    spotChanged();
    iDst_->setGeometry(qrectOf(l.iDst));
    if (handScrolls())
        iDst_->setCursor(cRelease());
    else if (mouseScroll_)
        iDst_->unsetCursor();
    iDst_->show();
    if (!focusProxy()) takeFocus();
    scrollGuard_ = false;
    iDst_->update();
}

void fImage::barChanged()
{
    lastHValue_ = static_cast<float>(hSB_->value());
    lastVValue_ = static_cast<float>(vSB_->value());
    if (scrollGuard_) return;
    spotChanged();
    iDst_->update();
}

void fImage::spotChanged()
{
    iDst_->setSpot(hSB_->value(), vSB_->value(), zoom_);
    bands_.setSpot(GetSBV(), zoom_);
}

void fImage::Scroll(int x, int y)
{
    scrollGuard_ = true;
    hSB_->setValue(x);
    vSB_->setValue(y);
    scrollGuard_ = false;
    barChanged();
}

void fImage::pictureChanged()
{
    iDst_->showCross({});
    layOutView();
    tools_->pictureReplaced();
}

void fImage::UpdateImage()
{
    if (!PictureExists()) return;
    if (laidOutSize_ != QSize(PictureWidth(), PictureHeight())) pictureChanged();
    iDst_->setOutlineShown(tmrSelection_.isActive());
    iDst_->repaint();
    tellViews(whole());
}

void fImage::tellViews(const Rect& part)
{
    if (document_.views > 1) emit shows(part, iDst_->outlineShown());
}

/// Of many steps in a row one repaint comes: a stroke in the other view is not held up.
void fImage::follow(const Rect& part, bool outline)
{
    if (laidOutSize_ != QSize(PictureWidth(), PictureHeight())) pictureChanged();
    const bool turns = !tmrSelection_.isActive() && iDst_->outlineShown() != outline; // all along the selection's edge
    if (turns) iDst_->setOutlineShown(outline);
    followed_ = followed_.united(turns ? whole() : part);
    if (!tmrFollow_.isActive()) tmrFollow_.start();
}

QRect fImage::onDisplay(const Rect& part) const
{
    const QPoint scroll = GetSBV();
    return qrectOf(viewRect(part, scroll.x(), scroll.y(), zoom_)) & iDst_->rect();
}

void fImage::repaint(const Rect& part)
{
    if (!PictureExists()) return;
    if (iDst_->outlineShown() && !tmrSelection_.isActive()) { // a stopped outline disappears with the next repaint
        iDst_->setOutlineShown(false);
        iDst_->update();
        return tellViews(whole());
    }
    iDst_->update(onDisplay(part));
    tellViews(part);
}

void fImage::UpdateRegion()
{
    iDst_->setOutlineShown(true);
    iDst_->updateOutline();
    tellViews(whole());
}

void fImage::SetAutoRedraw(bool on)
{
    if (on) UpdateImage();
}

QString fImage::zoomText() const { return QString::number(zoom_) + " : 1"; }

void fImage::setZoomFactor(int factor)
{
    zoom_ = std::clamp(factor, kLeastZoom, kMostZoom);
    if (speaks_ && frame_.workspace().engineHolds(document_)) frame_.setStatus(Panel::Zoom, zoomText());
    layOutView();
}

void fImage::setBarsWidth(int width)
{
    barsWidth_ = width < kLeastBarsWidth + 1 ? kLeastBarsWidth : width;
    setMinimumSize(2 * barsWidth_, 2 * barsWidth_); // a smaller window is enlarged
    layOutView();
}

void fImage::zoomAbout(int factor, QPointF at)
{
    const double x = (at.x() + hSB_->value()) / zoom_, y = (at.y() + vSB_->value()) / zoom_;
    const QPointF inWindow = iDst_->mapToParent(at.toPoint());
    setZoomFactor(factor);
    const QPointF now = inWindow - QPointF(iDst_->pos());
    Scroll(qRound(x * zoom_ - now.x()), qRound(y * zoom_ - now.y()));
}

bool fImage::canScroll() const { return hSB_->maximum() > 0 || vSB_->maximum() > 0; }

bool fImage::handScrolls() const { return mouseScroll_ && canScroll(); }

void fImage::setMouseScroll(bool on)
{
    mouseScroll_ = on;
    if (handScrolls()) iDst_->setCursor(cRelease());
    showTool();
}

void fImage::scrollByHand(QPoint screen)
{
    const QPoint step = screen - grabLast_;
    grabLast_ = screen;
    Scroll(hSB_->value() - step.x(), vSB_->value() - step.y()); // limited by the bars
}

/// It marches in the active view alone; the others of the same document show it at rest.
void fImage::StartTimer()
{
    if (!isFront()) return;
    iDst_->setOutlineShown(true);
    tick();
    tmrSelection_.start();
    tellViews(whole());
}

void fImage::StopTimer() { tmrSelection_.stop(); }

void fImage::tick()
{
    if (document_.Region.IsEmptyRegion()) return;
    if (!lessMotion()) iDst_->march();
    iDst_->updateOutline();
}

void fImage::ShowShape(BandShape shape, int x1, int y1, int x2, int y2, bool keep)
{
    bands_.show(shape, {x1, y1}, {x2, y2}, keep);
}

void fImage::HideShape(BandShape shape) { bands_.hide(shape); }

void fImage::setPointer(Pointer pointer)
{
    if (handScrolls()) return;
    const bool rests = mouseScroll_ && pointer != Pointer::Waiting; // the hand has nothing to move
    iDst_->setCursor(cursorOf(rests ? Pointer::Default : pointer));
}

void fImage::showTool()
{
    tools_->showPointer();
    if (iDst_->underMouse()) showFootprint();
}

void fImage::setWaiting(bool on)
{
    if (on)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

void fImage::colourPicked() { frame_.showColors(); }

} // namespace velara
