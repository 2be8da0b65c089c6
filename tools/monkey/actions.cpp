// The monkey's actions, one row each, and what it does in windows.
#include "app/frame/fToolPane.h"
#include "app/menus/Bars.h"
#include "commands/vocabulary.h"
#include "seams/text.h"
#include "tools/monkey/Monkey.h"
#include "tools/toolRows.h"
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDropEvent>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTabBar>
#include <QTest>
#include <QUrl>

namespace velara::monkey {

namespace {

constexpr Qt::Key kKeys[] = {
    Qt::Key_Escape, Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space,     Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Up,
    Qt::Key_Down,   Qt::Key_Left,   Qt::Key_Right,  Qt::Key_PageUp,    Qt::Key_Home,  Qt::Key_End,     Qt::Key_Delete,
    Qt::Key_Plus,   Qt::Key_Minus,  Qt::Key_F1,     Qt::Key_Backspace, Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt};
constexpr Qt::KeyboardModifiers kModifiers[] = {Qt::NoModifier,
                                                Qt::NoModifier,
                                                Qt::NoModifier,
                                                Qt::ControlModifier,
                                                Qt::AltModifier,
                                                Qt::ShiftModifier,
                                                Qt::ControlModifier | Qt::ShiftModifier};
constexpr const char* kTexts[] = {"",    "0",     "1",   "7",    "31",
                                  "100", "255",   "640", "-5",   "1.5",
                                  "abc", "99999", "1e9", "%n\\", "a long text with blanks, quotes \" and \u00e4\u4e2d"};
constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                                        Qt::MiddleButton};

QString nameOf(const QObject& object)
{
    const QString name = object.objectName();
    return name.isEmpty() ? QString(object.metaObject()->className()) : name;
}

QPoint somewhere(Dice& dice, const QWidget& widget, int outside = 0)
{
    const QRect room = widget.rect().adjusted(-outside, -outside, outside, outside);
    if (room.isEmpty()) return {};
    return {dice.within(room.left(), room.right()), dice.within(room.top(), room.bottom())};
}

/// Items that can be chosen, in menu order.
void collect(const QList<QAction*>& actions, QList<QAction*>& found)
{
    for (QAction* action : actions) {
        if (action->menu())
            collect(action->menu()->actions(), found);
        else if (!action->isSeparator() && action->isEnabled() && action->isVisible())
            found << action;
    }
}

void hitKey(Monkey& monkey, Dice& dice)
{
    const Qt::KeyboardModifiers modifiers = dice.of(kModifiers);
    const bool letter = dice.oneIn(2);
    const Qt::Key key = letter ? Qt::Key(Qt::Key_A + dice.below(26)) : dice.of(kKeys);
    const QString text =
        letter && !(modifiers & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) ? QString(QChar(key | 32)) : "";
    monkey.say("key " + QKeySequence(modifiers | key).toString());
    Hands::key(key, modifiers, text);
}

void chooseFromMenus(Monkey& monkey, Dice& dice)
{
    QList<QAction*> items;
    collect(monkey.frame().menuBar()->actions(), items);
    QAction* const item = dice.of(items);
    monkey.say("menu " + nameOf(*item) + " " + item->text());
    item->trigger();
}

void runWord(Monkey& monkey, Dice& dice)
{
    const auto words = vocabulary();
    const CommandWord& word = dice.of(words);
    if (word.ofFrame()) return chooseFromMenus(monkey, dice);
    const auto text = velara::text(word.word);
    monkey.say("word " + text);
    monkey.frame().Mmenu(text);
}

void chooseTool(Monkey& monkey, Dice& dice)
{
    const auto rows = toolRows();
    const ToolRow& tool = dice.of(rows);
    monkey.say(QStringLiteral("tool ") + tool.name);
    if (QAbstractButton* button = monkey.frame().toolPane().button(tool.name)) button->click();
}

/// A press; moves and the release are actions of their own. One in four is a complete click.
void press(Monkey& monkey, Dice& dice)
{
    QWidget* const display = monkey.display();
    if (!display) return;
    const QPoint at = somewhere(dice, *display, dice.oneIn(6) ? 30 : 0);
    const Qt::MouseButton button = dice.of(kButtons);
    monkey.say(QStringLiteral("press of %1 at %2,%3").arg(button).arg(at.x()).arg(at.y()));
    monkey.hands().point(*display, at);
    monkey.beginStroke(*display, dice.oneIn(4) ? 1 : dice.within(2, 7));
    monkey.hands().press(button, dice.of(kModifiers));
}

void doubleClick(Monkey& monkey, Dice& dice)
{
    QWidget* const display = monkey.display();
    if (!display) return;
    monkey.say("double click");
    const QPointer<QWidget> stays = display;
    monkey.hands().point(*display, somewhere(dice, *display));
    monkey.hands().click();
    if (stays) monkey.hands().click();
}

void turnWheel(Monkey& monkey, Dice& dice)
{
    QWidget* const display = monkey.display();
    if (!display) return;
    monkey.say("wheel");
    monkey.hands().point(*display, somewhere(dice, *display));
    monkey.hands().wheel(dice.oneIn(2) ? 120 : -120, dice.of(kModifiers));
}

void useWindow(Monkey& monkey, Dice& dice)
{
    if (QWidget* window = monkey.anyWindow(dice)) actInWindow(monkey, dice, *window);
}

/// Opens a picture, and closes the oldest if there are many or one is large.
void openAnother(Monkey& monkey, Dice& dice)
{
    const QList<fImage*> images = monkey.frame().documents();
    for (fImage* image : images)
        if (images.size() > 6 || image->PictureWidth() * image->PictureHeight() > 3'000'000) {
            monkey.say("close " + image->Caption());
            image->parentWidget()->close();
            return;
        }
    const QString path = monkey.platform().anyFile(dice);
    monkey.say("open " + path.section('/', -1));
    monkey.frame().openPicture(path);
}

void dropFiles(Monkey& monkey, Dice& dice)
{
    QMimeData data;
    QList<QUrl> urls;
    for (int i = dice.within(1, 3); i > 0; --i) urls << QUrl::fromLocalFile(monkey.platform().anyFile(dice));
    data.setUrls(urls);
    QDropEvent drop({90, 90}, Qt::CopyAction, &data, Qt::LeftButton, {});
    monkey.say("drop");
    QCoreApplication::sendEvent(&monkey.frame(), &drop);
}

void changeDesktop(Monkey& monkey, Dice& dice)
{
    monkey.say("the desktop changes");
    monkey.platform().change(dice);
}

void moveWindows(Monkey& monkey, Dice& dice)
{
    const QList<fImage*> images = monkey.frame().documents();
    if (images.isEmpty()) return;
    auto* const window = qobject_cast<QMdiSubWindow*>(dice.of(images)->parentWidget());
    const int what = dice.below(6);
    monkey.say(QStringLiteral("window %1: %2").arg(window->windowTitle()).arg(what));
    switch (what) {
    case 0:
        return window->showMaximized();
    case 1:
        return window->showMinimized();
    case 2:
        return window->showNormal();
    case 3:
        return window->resize(dice.within(60, 700), dice.within(60, 600));
    case 4:
        return monkey.frame().resize(dice.within(300, 1100), dice.within(200, 800));
    default:
        return monkey.frame().area().setActiveSubWindow(window);
    }
}

void closeSomething(Monkey& monkey, Dice& dice)
{
    const QList<fImage*> images = monkey.frame().documents();
    if (images.isEmpty()) return;
    fImage* const image = dice.of(images);
    monkey.say("close " + image->Caption());
    image->parentWidget()->close();
}

/// Lets timers fire: outline, pop-ups, pending previews.
void waitAWhile(Monkey& monkey, Dice& dice)
{
    monkey.say("waits");
    QTest::qSleep(dice.within(10, 120));
}

struct ActionRow {
    void (*act)(Monkey&, Dice&);
    int weight, between; // at rest, and in a progress report
};
// clang-format off
constexpr ActionRow kActions[] = {
    {chooseFromMenus, 22,  8},
    {runWord,         10,  4},
    {press,           26, 12},
    {hitKey,          12, 14},
    {chooseTool,       8,  4},
    {useWindow,       14,  4},
    {doubleClick,      3,  2},
    {turnWheel,        3,  1},
    {openAnother,      6,  2},
    {moveWindows,      4,  4},
    {closeSomething,   2,  4},
    {changeDesktop,    2,  0},
    {dropFiles,        1,  1},
    {waitAWhile,       2,  0},
};
// clang-format on

void actBy(int ActionRow::*weight, Monkey& monkey, Dice& dice)
{
    int all = 0;
    for (const ActionRow& row : kActions) all += row.*weight;
    int left = dice.below(all);
    for (const ActionRow& row : kActions)
        if ((left -= row.*weight) < 0) return row.act(monkey, dice);
}

/// The window's usable controls, in order of creation.
QWidgetList controlsOf(const QWidget& window)
{
    QWidgetList found;
    for (QWidget* control : window.findChildren<QWidget*>())
        if (control->isVisible() && control->isEnabled() && control->window() == &window) found << control;
    return found;
}

void use(Monkey& monkey, Dice& dice, QWidget& control)
{
    if (auto* slider = qobject_cast<QAbstractSlider*>(&control); slider && !dice.oneIn(4))
        return slider->setValue(dice.within(slider->minimum(), slider->maximum()));
    if (auto* list = qobject_cast<QComboBox*>(&control); list && list->count() > 0 && !dice.oneIn(4)) {
        const QPointer<QComboBox> stays = list;
        const int index = dice.below(list->count());
        list->setCurrentIndex(index);
        if (stays) emit list->activated(index);
        return;
    }
    if (auto* line = qobject_cast<QLineEdit*>(&control); line && !line->isReadOnly()) {
        line->setFocus();
        line->selectAll();
        const QString text = QString::fromUtf8(dice.of(kTexts));
        Hands::key(Qt::Key_Delete);
        for (const QChar c : text) Hands::key(Qt::Key(c.toUpper().unicode()), {}, QString(c));
        return;
    }
    const QPointer<QWidget> stays = &control;
    monkey.hands().point(control, somewhere(dice, control));
    const Qt::MouseButton button = dice.oneIn(8) ? Qt::RightButton : Qt::LeftButton;
    if (!stays) return;
    if (dice.oneIn(4)) return monkey.beginStroke(control, dice.within(2, 5)), monkey.hands().press(button);
    monkey.hands().click(button);
    if (stays && dice.oneIn(6)) monkey.hands().click(button);
}

} // namespace

void actAtRandom(Monkey& monkey, Dice& dice)
{
    if (monkey.frame().documents().size() < 2 && dice.oneIn(2)) return openAnother(monkey, dice);
    actBy(&ActionRow::weight, monkey, dice);
}

void actInBetween(Monkey& monkey, Dice& dice) { actBy(&ActionRow::between, monkey, dice); }

void actInWindow(Monkey& monkey, Dice& dice, QWidget& window)
{
    if (dice.oneIn(6)) return hitKey(monkey, dice);
    QWidgetList controls = controlsOf(window);
    controls << &window;
    QWidget* const control = dice.of(controls);
    monkey.say("in " + nameOf(window) + ": " + nameOf(*control));
    use(monkey, dice, *control);
}

void leaveWindow(Monkey& monkey, Dice& dice, QWidget& window)
{
    const auto buttons = window.findChildren<QAbstractButton*>();
    const bool byButton = dice.oneIn(3);
    monkey.say("leaves " + nameOf(window));
    for (QAbstractButton* button : buttons)
        if (byButton && button->isEnabled() && button->isVisible() && button->objectName().toLower().contains("ok"))
            return button->click();
    if (dice.oneIn(2)) return Hands::key(Qt::Key_Escape);
    window.close();
}

} // namespace velara::monkey
