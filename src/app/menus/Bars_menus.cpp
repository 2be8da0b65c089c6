// How menus and toolbars are made from their tables.
#include "app/menus/Bars.h"
#include "app/menus/menus.h"
#include "commands/vocabulary.h"
#include "platform/desktop/front.h"
#include "seams/text.h"
#include "ui/widgets/inputs/named.h"
#include <QHash>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

namespace velara {

namespace {

/// The access key that a caption names by an ampersand; null without one.
QChar keyIn(const QString& caption)
{
    for (qsizetype i = 0; i + 1 < caption.size(); ++i)
        if (caption[i] == '&') {
            if (caption[i + 1] != '&') return caption[i + 1].toUpper();
            ++i;
        }
    return {};
}

/// The items of a menu by access key; those that name their own keep it.
struct AccessKeys {
    QHash<QChar, QAction*> owner;

    /// Letters that a keyboard has; those of Chinese are typed by several keys.
    bool isFree(QChar key) const
    {
        return ((key.isLetterOrNumber() && key.script() != QChar::Script_Han) || key == u'%') && !owner.contains(key);
    }
    /// Gives the item the first letter of its caption that is free; if none is, that of another one which can take
    /// another letter of its own. tried: letters that have been looked at on the way.
    bool give(QAction* item, QSet<QChar>& tried)
    {
        const QString letters = item->text().toUpper();
        const auto yields = [&](QChar key) {
            QAction* other = owner.value(key);
            if (!other || tried.contains(key) || !keyIn(other->text()).isNull()) return false;
            tried << key;
            return give(other, tried);
        };
        auto key = std::ranges::find_if(letters, [this](QChar letter) { return isFree(letter); });
        if (key == letters.end()) key = std::ranges::find_if(letters, yields);
        if (key == letters.end()) return false;
        owner[*key] = item;
        return true;
    }
};

void giveAccessKeys(QMenu& menu)
{
    AccessKeys keys;
    for (QAction* item : menu.actions())
        if (const QChar key = keyIn(item->text()); !key.isNull()) keys.owner[key] = item;
    for (QAction* item : menu.actions()) {
        QSet<QChar> tried;
        if (!item->isSeparator() && keyIn(item->text()).isNull()) keys.give(item, tried);
    }
    for (const auto& [key, item] : keys.owner.asKeyValueRange())
        if (const QString caption = item->text(); keyIn(caption).isNull())
            item->setText(QString(caption).insert(caption.toUpper().indexOf(key), '&'));
}

QList<QKeySequence> sequencesOf(const QString& shortcuts)
{
    QList<QKeySequence> sequences;
    for (const QString& one : shortcuts.split(' ', Qt::SkipEmptyParts)) sequences << QKeySequence(one);
    return sequences;
}

} // namespace

void Bars::addItem(QMenu& menu, const MenuRow& row)
{
    QAction* item = menu.addAction(shown("Menus", row.caption));
    item->setObjectName(text(row.array) + "_" + QString::number(row.index));
    item->setShortcuts(sequencesOf(text(row.shortcuts)));
    makeTrigger(item, row.word, findCommandWord(row.word)->count > 1 ? row.index : 0, true);
    const QString about = shown("Menus", helpOf(row.word).about);
    if (!item->isEnabled()) item->setToolTip(tr("Not available yet"));
    if (item->isEnabled() && !about.isEmpty()) item->setToolTip(about);
    item->setCheckable(row.checkable);
}

void Bars::buildMenus()
{
    std::vector<QMenu*> open; // the menus containing the row, outermost first
    for (const MenuRow& row : menuRows()) {
        switch (row.kind) {
        case MenuKind::Menu:
        case MenuKind::SubMenu: {
            const QString caption = shown("Menus", row.caption);
            QMenu* menu = open.empty() ? window_.menuBar()->addMenu(caption) : open.back()->addMenu(caption);
            menu->setObjectName(text(row.array));
            menu->setToolTipsVisible(true);
            open.push_back(menu);
            break;
        }
        case MenuKind::End:
            if (open.back()->objectName() != "mnuRecent") giveAccessKeys(*open.back());
            open.pop_back();
            break;
        case MenuKind::Separator:
            open.back()->addSeparator();
            break;
        case MenuKind::Item:
            addItem(*open.back(), row);
            break;
        case MenuKind::Items:
        case MenuKind::Words:
        case MenuKind::Strengths:
            break; // menuRows() contains none
        }
    }
}

void Bars::buildToolbars()
{
    std::size_t index = 0;
    for (const BarRow& row : barRows()) {
        auto* bar = named(new QToolBar(shown("Menus", row.caption), &window_), text(row.name));
        bar->setIconSize({22, 22});
        bar->setFloatable(windowsCanBePlaced());
        fillToolbar(bar, row.buttons);
        bars_[index++] = bar;
    }
    // Three lines that fit into the smallest usual frame: Standard, Tools, Help; Effects, Image; Filters, Utilities.
    constexpr int kNewLine = -1;
    for (const int place : {0, 5, 4, kNewLine, 1, 2, kNewLine, 6, 3}) {
        if (place == kNewLine)
            window_.addToolBarBreak();
        else
            window_.addToolBar(bars_[std::size_t(place)]);
    }
}

void Bars::fillToolbar(QToolBar* bar, std::string_view buttons)
{
    int last = 0;
    for (const ButtonRow& row : buttonRows()) {
        if (row.bar != buttons) continue;
        if (last && row.number > last + 1) bar->addSeparator();
        last = row.number;
        const QString caption = shown("Menus", row.caption);
        QAction* action = bar->addAction(caption);
        action->setObjectName(text(row.bar) + "_" + QString::number(row.number));
        makeTrigger(action, row.word, 0, false);
        const QAction* inMenu = item(row.word);
        const QString hover = inMenu ? withKey(caption, *inMenu) : caption;
        action->setToolTip(action->isEnabled() ? hover : hover + tr(" (not available yet)"));
        auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action));
        named(button, action->objectName(), caption);
        addDrops(action, button, row);
    }
}

void Bars::addDrops(QAction* action, QToolButton* button, const ButtonRow& row)
{
    QMenu* drop = nullptr;
    int last = 0;
    for (const DropRow& item : dropRows()) {
        if (item.bar != row.bar || item.button != row.number) continue;
        if (!drop) drop = new QMenu(button);
        if (last && item.item > last + 1) drop->addSeparator();
        last = item.item;
        QAction* entry = drop->addAction(shown("Menus", item.caption));
        entry->setObjectName(action->objectName() + "_" + QString::number(item.item));
        makeTrigger(entry, item.word, 0, false);
    }
    if (!drop) return;
    giveAccessKeys(*drop);
    drop->setObjectName(action->objectName() + "_menu");
    action->setMenu(drop);
    button->setPopupMode(QToolButton::InstantPopup);
}

} // namespace velara
