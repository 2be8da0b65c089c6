#include "app/menus/Bars.h"
#include "app/menus/fIcons.h"
#include "app/menus/fSearch.h"
#include "app/menus/menus.h"
#include "commands/vocabulary.h"
#include "seams/Machine.h"
#include "seams/Setup.h"
#include "seams/text.h"
#include <QMenu>
#include <QToolBar>
#include <algorithm>

namespace velara {

namespace {

constexpr const char* kSection = "VeStu";
constexpr int kLayoutVersion = 2; // raised when toolbars or boxes are added or removed
constexpr int kWithoutBoxes = 1;  // the version of layouts that know toolbars alone

} // namespace

QString withKey(const QString& text, const QAction& action)
{
    const QString key = action.shortcut().toString(QKeySequence::NativeText);
    return key.isEmpty() ? text : QString("%1 (%2)").arg(text, key);
}

Bars::Bars(QMainWindow& window, Machine& machine, Setup& setup, Run run, Available available)
    : QObject(&window), window_(window), machine_(machine), setup_(setup), run_(std::move(run)), available_(available)
{
    buildMenus();
    buildToolbars();
}

QAction* Bars::action(const QString& objectName) const
{
    const auto found =
        std::ranges::find_if(items_, [&](const Item& i) { return i.action->objectName() == objectName; });
    return found == items_.end() ? nullptr : found->action;
}

QAction* Bars::find(std::string_view word, int index, bool ofMenu) const
{
    const auto found = std::ranges::find_if(
        items_, [&](const Item& i) { return i.word == word && i.index == index && i.ofMenu == ofMenu; });
    return found == items_.end() ? nullptr : found->action;
}

void Bars::mark(std::string_view word, int index, bool on)
{
    if (QAction* marked = item(word, index)) marked->setChecked(on);
}

void Bars::nameStep(std::string_view word, const QString& step, bool exists)
{
    const bool isUndo = word == "UNDO";
    const QString what = isUndo ? tr("&Undo %1") : tr("&Redo %1");
    QAction *inMenu = item(word), *onBar = button(word);
    const QString bare = shown("Menus", isUndo ? "&Undo" : "&Redo");
    const QString whole = step.isEmpty() ? bare : what.arg(QString(step).replace('&', "&&"));
    inMenu->setText(whole);
    onBar->setToolTip(withKey(plainCaption(whole), *inMenu));
    for (QAction* action : {inMenu, onBar}) action->setEnabled(exists);
}

std::vector<SearchRow> Bars::searchRows() const
{
    std::vector<SearchRow> rows;
    for (const NamedItem& named : namedItems()) {
        const MenuRow& row = *named.row;
        QAction* action = item(row.word, findCommandWord(row.word)->count > 1 ? row.index : 0);
        const bool isFile = row.word == "@RECENT";
        if (row.word == "@SEARCH" || (isFile && (!action->isVisible() || !action->data().toBool()))) continue;
        if (std::ranges::any_of(rows, [action](const SearchRow& other) { return other.action == action; })) continue;
        const bool isStep = row.word == "UNDO" || row.word == "REDO";
        rows.push_back({action, isFile || isStep ? plainCaption(action->text()) : named.name, named.path,
                        shown("Search words", helpOf(row.word).finds), int(lastUsed_.indexOf(text(row.word)))});
    }
    std::ranges::stable_sort(rows, {}, [](const SearchRow& row) { return unsigned(row.lastUsed); }); // -1: never
    return rows;
}

void Bars::used(std::string_view word)
{
    constexpr qsizetype kMost = 8;
    if (word == "@SEARCH" || findCommandWord(word)->count > 1 || nameOf(word).isEmpty()) return;
    lastUsed_.removeAll(text(word));
    lastUsed_.prepend(text(word));
    lastUsed_ = lastUsed_.mid(0, kMost);
}

void Bars::loadLastUsed() { lastUsed_ = machine_.setting(kSection, "LastUsed", "").split(' ', Qt::SkipEmptyParts); }
void Bars::saveLastUsed() { machine_.setSetting(kSection, "LastUsed", lastUsed_.join(' ')); }

void Bars::makeTrigger(QAction* action, std::string_view word, int index, bool ofMenu)
{
    action->setIcon(iconOf(word));
    action->setEnabled(available_(word));
    connect(action, &QAction::triggered, this, [this, word, index] {
        used(word);
        run_(word, index);
    });
    items_.push_back({action, word, index, ofMenu});
}

void Bars::refreshIcons()
{
    useIconTheme();
    for (const Item& item : items_) item.action->setIcon(iconOf(item.word));
}

void Bars::showBars()
{
    for (std::size_t i = 0; i < bars_.size(); ++i) {
        bars_[i]->setVisible(setup_.BarVisible[i]);
        mark("@BAR", int(i), setup_.BarVisible[i]);
    }
}

void Bars::toggleBar(int index)
{
    bool& visible = setup_.BarVisible[std::size_t(index)];
    visible = !visible;
    bars_[std::size_t(index)]->setVisible(visible);
    mark("@BAR", index, visible);
}

bool Bars::loadLayout()
{
    const QByteArray stored = QByteArray::fromBase64(machine_.setting(kSection, "Layout", "").toLatin1());
    const bool isWhole = window_.restoreState(stored, kLayoutVersion);
    if (!isWhole) window_.restoreState(stored, kWithoutBoxes);
    for (QToolBar* bar : bars_) // stored on another desktop
        if (bar->isFloating() && !bar->isFloatable()) window_.addToolBar(bar);
    showBars(); // the configuration determines which bars are shown
    return isWhole;
}

void Bars::saveLayout()
{
    machine_.setSetting(kSection, "Layout", QString::fromLatin1(window_.saveState(kLayoutVersion).toBase64()));
}

QMenu* Bars::makePopup()
{
    auto* menu = new QMenu(&window_);
    for (int i = 0; i < int(bars_.size()); ++i) menu->addAction(item("@BAR", i));
    return menu;
}

} // namespace velara
