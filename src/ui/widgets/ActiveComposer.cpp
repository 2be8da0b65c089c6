#include "ui/widgets/ActiveComposer.h"
#include <QPointer>
#include <QWidget>

namespace velara {

namespace {

struct Mark {
    Composer which = Composer::None;
    QPointer<QWidget> dialog;
};
Mark mark;

} // namespace

void ActiveComposer::take(Composer which, QWidget* dialog)
{
    if (mark.dialog == dialog) return;
    unload();
    mark = {which, dialog};
}

bool ActiveComposer::unload()
{
    const QPointer<QWidget> open = mark.dialog;
    if (open && !open->close()) return false;
    if (mark.dialog == open) mark = {};
    return true;
}

Composer ActiveComposer::current() { return mark.dialog && mark.dialog->isVisible() ? mark.which : Composer::None; }

} // namespace velara
