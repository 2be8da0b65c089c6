#include "ui/widgets/ActiveComposer.h"
#include <QPointer>
#include <QWidget>
#include <utility>

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

void ActiveComposer::unload()
{
    const Mark open = std::exchange(mark, {});
    if (open.dialog) open.dialog->close();
}

Composer ActiveComposer::current() { return mark.dialog && mark.dialog->isVisible() ? mark.which : Composer::None; }

} // namespace velara
