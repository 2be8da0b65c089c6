#include "app/frame/fToolPane.h"
#include "app/menus/fIcons.h"
#include "app/menus/menus.h"
#include "seams/text.h"
#include "tools/toolRows.h"
#include "ui/widgets/inputs/named.h"
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

namespace velara {

namespace {

constexpr int kColumns = 5;
constexpr int kWidth = 184;

/// A well: the colour with a thin contrasting frame.
QIcon wellIcon(int colour, qreal ratio)
{
    const QColor fill(colour & 255, colour >> 8 & 255, colour >> 16 & 255);
    QPixmap pixmap(QSize(36, 22) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    QPainter painter(&pixmap);
    painter.fillRect(QRect(0, 0, 36, 22), fill.lightness() > 127 ? fill.darker(180) : fill.lighter(220));
    painter.fillRect(QRect(1, 1, 34, 20), fill);
    return QIcon(pixmap);
}

} // namespace

fToolPane::fToolPane(QWidget* parent) : QFrame(parent), stack_(new QStackedWidget(this))
{
    setObjectName("cTools");
    setAccessibleName(tr("Tools"));
    setFrameStyle(QFrame::StyledPanel);
    setAutoFillBackground(true); // it floats over the documents when it is auto-hidden
    setFixedWidth(kWidth);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(makeStrip());
    column->addWidget(stack_, 1);
    column->addWidget(makeWells());
    stack_->setObjectName("toolPanes");
    stack_->addWidget(new QWidget);
    refreshIcons();
}

void fToolPane::refreshIcons()
{
    for (const auto& [key, button] : buttons_.asKeyValueRange()) button->setIcon(iconOf(key.toStdString()));
    swap_->setIcon(themeIcon("document-swap"));
}

QWidget* fToolPane::makeStrip()
{
    auto* strip = named(new QWidget(this), "tb_tools");
    auto* grid = new QGridLayout(strip);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    const auto add = [&](int number, const QString& key, const QString& caption, bool checkable) {
        auto* button = named(new QToolButton(strip), "tb_tools_" + QString::number(number), caption);
        button->setToolTip(caption);
        button->setIconSize({22, 22});
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setCheckable(checkable);
        connect(button, &QToolButton::clicked, this, [this, key] { emit clicked(key); });
        button->installEventFilter(this);
        const int place = static_cast<int>(strip_.size());
        grid->addWidget(button, place / kColumns, place % kColumns);
        strip_ << button;
        return buttons_[key] = button;
    };
    int number = 0;
    for (const ToolRow& tool : toolRows()) {
        QToolButton* button = add(++number, tool.name, shown("Tools", tool.caption), true);
        button->setToolTip(QString("%1 (%2)").arg(button->accessibleName()).arg(QLatin1Char(tool.key)));
        group_.addButton(button);
    }
    for (const StripRow& row : stripRows()) add(row.number, text(row.key), shown("Menus", row.caption), row.checkable);
    return strip;
}

QWidget* fToolPane::makeWells()
{
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    const char* const names[] = {"lblColF", "lblColB"};
    const QString captions[] = {tr("First color"), tr("Second color")};
    for (int i : {0, 1}) {
        wells_[i] = named(new QToolButton(box), names[i], captions[i]);
        wells_[i]->setToolTip(captions[i]);
        wells_[i]->setIconSize({36, 22});
        connect(wells_[i], &QToolButton::clicked, this, [this, i] { emit wellClicked(i); });
    }
    swap_ = named(new QToolButton(box), "iSwap", tr("Swap the colors"));
    swap_->setToolTip(swap_->accessibleName());
    swap_->setAutoRaise(true);
    connect(swap_, &QToolButton::clicked, this, &fToolPane::swapClicked);
    row->addWidget(wells_[0]);
    row->addWidget(swap_);
    row->addWidget(wells_[1]);
    row->addStretch();
    setTabOrder(wells_[0], swap_);
    setTabOrder(swap_, wells_[1]);
    return box;
}

/// The tab stops, from top to bottom.
QList<QWidget*> fToolPane::stops() const
{
    auto* current = qobject_cast<QToolButton*>(focusWidget());
    if (!strip_.contains(current)) current = qobject_cast<QToolButton*>(group_.checkedButton());
    QWidget* const first = current ? current : strip_.front();
    QList<QWidget*> settings, wells;
    for (QWidget* w = first->nextInFocusChain(); w != first; w = w->nextInFocusChain())
        if (isAncestorOf(w) && !strip_.contains(w) && w->isVisible() && w->isEnabled() && !w->focusProxy() &&
            (w->focusPolicy() & Qt::TabFocus))
            (stack_->isAncestorOf(w) ? settings : wells) << w;
    return QList<QWidget*>{first} + settings + wells;
}

bool fToolPane::enter(bool forward)
{
    const QList<QWidget*> all = stops();
    (forward ? all.front() : all.back())->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

bool fToolPane::focusNextPrevChild(bool next)
{
    const QList<QWidget*> all = stops();
    const qsizetype at = all.indexOf(focusWidget()) + (next ? 1 : -1);
    if (at >= 0 && at < all.size())
        all[at]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    else
        emit left();
    return true;
}

bool fToolPane::eventFilter(QObject* watched, QEvent* event)
{
    const qsizetype at = strip_.indexOf(qobject_cast<QToolButton*>(watched));
    if (event->type() != QEvent::KeyPress || at < 0) return QFrame::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    switch (isRightToLeft() && (key == Qt::Key_Left || key == Qt::Key_Right) ? Qt::Key_Left + Qt::Key_Right - key
                                                                             : key) {
    case Qt::Key_Left:
        strip_[std::max<qsizetype>(at - 1, 0)]->setFocus(Qt::BacktabFocusReason);
        return true;
    case Qt::Key_Right:
        strip_[std::min(at + 1, strip_.size() - 1)]->setFocus(Qt::TabFocusReason);
        return true;
    case Qt::Key_Up:
        if (at >= kColumns) strip_[at - kColumns]->setFocus(Qt::BacktabFocusReason);
        return true;
    case Qt::Key_Down:
        if (at + kColumns < strip_.size()) strip_[at + kColumns]->setFocus(Qt::TabFocusReason);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        strip_[at]->click();
        return true;
    case Qt::Key_Escape:
        emit left();
        return true;
    default:
        return false;
    }
}

void fToolPane::setTool(const QString& key)
{
    QToolButton* button = buttons_.value(key);
    if (button && group_.buttons().contains(button))
        button->setChecked(true);
    else
        releaseTools();
}

QString fToolPane::tool() const { return buttons_.key(qobject_cast<QToolButton*>(group_.checkedButton())); }

void fToolPane::releaseTools()
{
    group_.setExclusive(false);
    if (QAbstractButton* down = group_.checkedButton()) down->setChecked(false);
    group_.setExclusive(true);
}

void fToolPane::setPane(const QString& key, QWidget* pane)
{
    delete panes_.value(key);
    panes_[key] = pane;
    stack_->addWidget(pane);
}

void fToolPane::showPane(const QString& key)
{
    QWidget* pane = panes_.value(key);
    stack_->setCurrentWidget(pane ? pane : stack_->widget(0));
}

void fToolPane::setColors(int first, int second)
{
    wells_[0]->setIcon(wellIcon(first, devicePixelRatioF()));
    wells_[1]->setIcon(wellIcon(second, devicePixelRatioF()));
}

} // namespace velara
