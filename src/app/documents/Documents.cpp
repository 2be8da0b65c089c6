#include "app/documents/Documents.h"
#include "app/documents/fDocumentWindow.h"
#include "seams/printable.h"
#include "ui/widgets/inputs/named.h"
#include <QMenu>
#include <QTimer>
#include <algorithm>

namespace velara {

Documents::Documents(QWidget* parent) : QObject(parent), area_(new QMdiArea(parent))
{
    named(area_.data(), "documents", tr("Pictures"));
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->viewport()->setMouseTracking(true);
    area_->setActivationOrder(QMdiArea::ActivationHistoryOrder); // after a close comes the one that was used before
    connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
        fImage* image = active();
        if (image && window == image->parentWidget()) {
            for (fImage* other : viewsOf(image->document().handle()))
                if (other != image) other->giveWay();
            image->activate();
        }
        emit activated();
    });
}

void Documents::clear()
{
    delete area_; // the documents use the frame until they are destroyed
    for (const QPointer<QWidget>& widget : std::exchange(buried_, {})) delete widget;
}

QList<fImage*> Documents::images() const
{
    QList<fImage*> list;
    if (!area_) return list; // being destroyed
    for (QMdiSubWindow* window : area_->subWindowList(QMdiArea::CreationOrder))
        if (auto* document = qobject_cast<fDocumentWindow*>(window); document && document->image())
            list << document->image();
    return list;
}

fImage* Documents::active() const
{
    auto* window = area_ ? qobject_cast<fDocumentWindow*>(area_->currentSubWindow()) : nullptr;
    return window ? window->image() : nullptr;
}

QList<fImage*> Documents::viewsOf(const DocumentHandle& document) const
{
    QList<fImage*> views = images();
    views.removeIf([&](fImage* image) { return !document || image->document().handle() != document; });
    return views;
}

fImage* Documents::of(const DocumentHandle& document) const
{
    const QList<fImage*> views = viewsOf(document);
    return views.isEmpty() ? nullptr : views.contains(active()) ? active() : views.first();
}

/// Those of one document tell themselves apart by numbers, the only one has none.
void Documents::numberViews()
{
    for (fImage* image : images()) {
        const QList<fImage*> views = viewsOf(image->document().handle());
        image->setViewNumber(views.size() > 1 ? int(views.indexOf(image)) + 1 : 0);
    }
}

void Documents::show(std::unique_ptr<fImage> image, bool maximized)
{
    connect(image.get(), &fImage::shows, this, [this, from = image.get()](const Rect& part, bool outline) {
        for (fImage* view : viewsOf(from->document().handle()))
            if (view != from) view->follow(part, outline);
    });
    auto* window = new fDocumentWindow(*this, image.release());
    area_->addSubWindow(window);
    window->fit(area_->viewport()->rect());
    if (maximized)
        window->showMaximized();
    else
        window->show();
    numberViews();
}

void Documents::fitActive()
{
    if (auto* window = qobject_cast<fDocumentWindow*>(area_->currentSubWindow()))
        window->fit(area_->viewport()->rect());
}

void Documents::list(QMenu& menu)
{
    const QString prefix = "DOCUMENT_";
    for (QAction* item : menu.actions())
        if (item->objectName().startsWith(prefix)) delete item;
    int number = 0;
    for (fImage* image : images()) {
        if (number == 0) menu.addSeparator()->setObjectName(prefix + "line");
        const QString name = printable(image->name()).replace('&', "&&") + (image->isWindowModified() ? "*" : "");
        ++number;
        QAction* item = menu.addAction((number < 10 ? "&" : "") + QString::number(number) + " " + name);
        item->setObjectName(prefix + QString::number(number));
        item->setToolTip(printable(image->Tag()));
        item->setCheckable(true);
        item->setChecked(image == active());
        connect(item, &QAction::triggered, this, [this, image = QPointer(image)] {
            if (image) activate(*image);
        });
    }
}

void Documents::activate(fImage& image)
{
    auto* window = qobject_cast<QMdiSubWindow*>(image.parentWidget());
    if (window->isMinimized()) window->showNormal();
    area_->setActiveSubWindow(window);
}

/// QMdiArea's own tiling knows only a grid.
void Documents::arrange(Arrangement arrangement)
{
    if (arrangement == Arrangement::Cascade) return area_->cascadeSubWindows();
    QList<QMdiSubWindow*> windows = area_->subWindowList(QMdiArea::StackingOrder);
    windows.removeIf([](QMdiSubWindow* w) { return w->isHidden() || w->isMinimized(); });
    const int count = int(windows.size());
    const QRect all = area_->viewport()->rect();
    for (int i = 0; i < count; ++i) {
        const auto share = [&](int length) { return std::pair(length * i / count, length * (i + 1) / count); };
        const bool rows = arrangement == Arrangement::Rows; // each as wide as the area
        const auto [from, to] = share(rows ? all.height() : all.width());
        windows[i]->showNormal();
        windows[i]->setGeometry(rows ? QRect(0, from, all.width(), to - from)
                                     : QRect(from, 0, to - from, all.height()));
    }
}

/// The newest first. Each close may run events: others may close and open meanwhile.
bool Documents::closeAll()
{
    for (auto left = area_->subWindowList(); !left.isEmpty(); left = area_->subWindowList()) {
        const QPointer<QMdiSubWindow> window = left.last();
        area_->setActiveSubWindow(window); // the question and a save are about this one
        if (window && !window->close()) return false;
        if (window && area_->subWindowList().contains(window)) return false; // is being closed already
    }
    return true;
}

void Documents::bury(fDocumentWindow* window)
{
    fImage* image = qobject_cast<fImage*>(window->widget());
    area_->removeSubWindow(window);
    window->hide();
    buried_ << window;
    if (image) buried_ << image;
    QTimer::singleShot(0, this, &Documents::deleteBuried);
    numberViews();
    emit buried();
}

void Documents::deleteBuried()
{
    for (const QPointer<QWidget>& widget : std::exchange(buried_, {})) delete widget;
}

} // namespace velara
