#include "app/help/Manual.h"
#include "app/help/fManual.h"
#include "app/help/manualPages.h"
#include <QApplication>
#include <QKeyEvent>

namespace velara {

Manual::Manual(QWidget& frame, std::function<QString()> toolPage) : frame_(frame), toolPage_(std::move(toolPage))
{
    qApp->installEventFilter(this);
}

void Manual::open() { openAt(QApplication::focusWidget()); }

void Manual::openAt(const QWidget* place)
{
    QString page = place ? manualPageOf(*place) : QString();
    if (page.isEmpty()) page = toolPage_();
    if (!window_) window_ = new fManual(&frame_);
    window_->open(page);
}

/// In the frame F1 is the key of a menu's item; other windows have no menus.
bool Manual::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const auto* widget = static_cast<QWidget*>(watched);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier || QApplication::activePopupWidget())
        return false;
    openAt(widget);
    return true;
}

} // namespace velara
