#include "app/menus/Bars.h"
#include "app/menus/fIcons.h"
#include "seams/Machine.h"
#include "seams/Setup.h"
#include <QMenu>
#include <QToolBar>
#include <algorithm>

namespace velara {

namespace {

constexpr const char* kSection = "VeStu";
constexpr int kLayoutVersion = 1; // raised when toolbars are added or removed: an old layout is not for new bars

} // namespace

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

void Bars::makeTrigger(QAction* action, std::string_view word, int index, bool ofMenu)
{
    action->setIcon(iconOf(word));
    action->setEnabled(available_(word));
    connect(action, &QAction::triggered, this, [this, word, index] { run_(word, index); });
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

void Bars::loadLayout()
{
    const QString stored = machine_.setting(kSection, "Layout", "");
    if (!stored.isEmpty()) window_.restoreState(QByteArray::fromBase64(stored.toLatin1()), kLayoutVersion);
    showBars(); // the configuration determines which bars are shown
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
