#include "app/menus/fSearch.h"
#include "seams/printable.h"
#include "ui/widgets/inputs/named.h"
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace velara {

namespace {

constexpr int kRow = Qt::UserRole; // of rows_

/// How well a row fits: 0 begins with what was typed, 1 has a word that does, 2 has all its words somewhere; -1: not.
int fit(const SearchRow& row, const QString& typed)
{
    const auto has = [](const QString& text, const QString& part) { return text.contains(part, Qt::CaseInsensitive); };
    const QString all = row.name + ' ' + row.path + ' ' + row.finds;
    for (const QString& word : typed.split(' ', Qt::SkipEmptyParts))
        if (!has(all, word)) return -1;
    return row.name.startsWith(typed, Qt::CaseInsensitive) ? 0 : has(' ' + row.name, ' ' + typed) ? 1 : 2;
}

/// Keeps the names in one column.
QIcon blank()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    return QIcon(pixmap);
}

} // namespace

fSearch::fSearch(std::vector<SearchRow> rows, QWidget* parent)
    : QDialog(parent), rows_(std::move(rows)), txtSearch_(named(new QLineEdit, "txtSearch", tr("Find a command"))),
      lstFound_(named(new QTreeWidget, "lstFound", tr("Commands")))
{
    constexpr QSize kSize(560, 420);
    setObjectName("fSearch");
    setWindowTitle(tr("Find a Command"));
    setAttribute(Qt::WA_DeleteOnClose);
    txtSearch_->setPlaceholderText(tr("A few letters of what you want to do"));
    txtSearch_->setClearButtonEnabled(true);
    txtSearch_->installEventFilter(this);
    lstFound_->setHeaderLabels({tr("Command"), tr("Menu"), tr("Key")});
    lstFound_->setRootIsDecorated(false);
    lstFound_->setUniformRowHeights(true);
    lstFound_->setAllColumnsShowFocus(true);
    lstFound_->header()->setStretchLastSection(false);
    lstFound_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (const int column : {1, 2}) lstFound_->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    auto* column = new QVBoxLayout(this);
    column->addWidget(txtSearch_);
    column->addWidget(lstFound_, 1);
    connect(txtSearch_, &QLineEdit::textChanged, this, &fSearch::fill);
    connect(lstFound_, &QTreeWidget::itemClicked, this, &fSearch::choose);
    connect(lstFound_, &QTreeWidget::itemActivated, this, &fSearch::choose);
    resize(kSize.boundedTo(parent->size()));
    move(parent->mapToGlobal(QPoint((parent->width() - width()) / 2, parent->height() / 10)));
    fill({});
}

void fSearch::fill(const QString& typed)
{
    lstFound_->clear();
    std::vector<std::pair<int, const SearchRow*>> found;
    for (const SearchRow& row : rows_)
        if (const int fits = row.action ? fit(row, typed.simplified()) : -1; fits >= 0) found.emplace_back(fits, &row);
    std::ranges::stable_sort(found, {}, &std::pair<int, const SearchRow*>::first);
    for (const auto& [fits, row] : found) add(*row);
    if (found.empty()) (new QTreeWidgetItem(lstFound_, {tr("Nothing has this name.")}))->setDisabled(true);
    for (int i = 0; i < lstFound_->topLevelItemCount() && !lstFound_->currentItem(); ++i)
        if (!lstFound_->topLevelItem(i)->isDisabled()) lstFound_->setCurrentItem(lstFound_->topLevelItem(i));
}

void fSearch::add(const SearchRow& row)
{
    const QString menu = row.lastUsed >= 0 ? row.path + tr(" · used lately") : row.path;
    auto* item = new QTreeWidgetItem(
        lstFound_, {printable(row.name), menu, row.action->shortcut().toString(QKeySequence::NativeText)});
    item->setIcon(0, row.action->icon().isNull() ? blank() : row.action->icon());
    item->setData(0, kRow, int(&row - rows_.data()));
    item->setDisabled(!row.action->isEnabled());
}

/// It runs after this window has closed: it may open another one.
void fSearch::choose(const QTreeWidgetItem* item)
{
    if (!item || item->isDisabled()) return;
    const QPointer<QAction> action = rows_[std::size_t(item->data(0, kRow).toInt())].action;
    close();
    QTimer::singleShot(0, qApp, [action] {
        if (action) action->trigger();
    });
}

/// The keys of the list work while the text is typed.
bool fSearch::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != txtSearch_ || event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose(lstFound_->currentItem());
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(lstFound_, event);
        return true;
    default:
        return false;
    }
}

/// A click elsewhere ends the search.
void fSearch::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ActivationChange && isVisible() && !isActiveWindow()) close();
    QDialog::changeEvent(event);
}

} // namespace velara
