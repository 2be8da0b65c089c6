#include "platform/desktop/dialogs/fPathLabel.h"
#include "seams/printable.h"
#include <QPainter>
#include <QStyle>

namespace velara {

fPathLabel::fPathLabel(const QString& objectName, QWidget* parent) : QLabel(parent)
{
    setObjectName(objectName);
    setTextFormat(Qt::PlainText); // a path may contain anything
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void fPathLabel::setPath(const QString& path)
{
    setText(path);
    setToolTip(printable(path).toHtmlEscaped());
}

QSize fPathLabel::minimumSizeHint() const { return {80, QLabel::minimumSizeHint().height()}; }

void fPathLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                          fontMetrics().elidedText(printable(text()), Qt::ElideMiddle, contentsRect().width()),
                          foregroundRole());
}

} // namespace velara
