// Every window that the menus open, the panes and the boxes: controls have names and roles for screen readers and can
// be reached by keyboard, nothing shows raw markup, every window has a page of the manual, and every item of a menu an
// access key.
#include "app/frame/windowWalk.h"
#include "app/help/manualPages.h"
#include <QAccessible>
#include <QRegularExpression>

namespace velara {

namespace {

struct EveryWindow : WindowWalk {
    QStringList unnamed, marked, withoutRole, unreached, unexplained;

    static bool isControl(const QWidget& widget) // of our own, and not a part of one of Qt's
    {
        const QWidget* owner = widget.parentWidget();
        return (isA(&widget, {"QAbstractButton", "QAbstractSlider", "QAbstractItemView"}) ||
                (widget.focusPolicy() & Qt::TabFocus)) &&
               !widget.objectName().startsWith("qt_") && !(owner && owner->objectName().startsWith("qt_")) &&
               !isA(owner, {"QAbstractSpinBox", "QComboBox", "QLineEdit", "QTabBar", "QComboBoxPrivateContainer"}) &&
               !isA(&widget, {"QHeaderView", "QTabBar", "QComboBoxPrivateContainer"});
    }
    static bool isNamed(const QWidget& control)
    {
        const auto labels = control.window()->findChildren<QLabel*>();
        const bool isButton = qobject_cast<const QAbstractButton*>(&control);
        return !control.accessibleName().isEmpty() || !control.windowTitle().isEmpty() ||
               (isButton && !control.property("text").toString().isEmpty()) ||
               std::ranges::any_of(labels, [&](const QLabel* label) { return label->buddy() == &control; });
    }
    static bool takesMouse(const QWidget& widget)
    {
        return widget.testAttribute(Qt::WA_SetCursor) && !widget.testAttribute(Qt::WA_TransparentForMouseEvents) &&
               !widget.objectName().startsWith("qt_");
    }
    static bool hasRole(QWidget& control)
    {
        const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&control);
        return spoken && spoken->role() != QAccessible::Client && spoken->role() != QAccessible::NoRole;
    }
    /// By Tab, by an access key, or as one of a group that arrows walk.
    static bool isReached(const QWidget& control)
    {
        const auto* button = qobject_cast<const QAbstractButton*>(&control);
        const bool isOfGroup = button && (button->autoExclusive() || (button->group() && button->group()->exclusive()));
        return isOfGroup || !control.isEnabled() || !control.isVisible() || control.focusPolicy() & Qt::TabFocus ||
               isA(&control, {"QScrollBar"}) || (button && !button->shortcut().isEmpty());
    }
    void read(const QObject& object)
    {
        static const QRegularExpression markup("</?[a-zA-Z][^<>]*>|&(amp|lt|gt|nbsp);");
        const auto* label = qobject_cast<const QLabel*>(&object);
        if (label && label->textFormat() == Qt::RichText) return;
        for (const char* property : {"windowTitle", "text", "title", "toolTip", "placeholderText", "statusTip"})
            if (const QString shown = object.property(property).toString(); markup.match(shown).hasMatch())
                marked << object.objectName() + ": " + shown;
    }
    void look(QWidget& window)
    {
        if (&window != frame.get() && manualText(manualPageOf(window)).isEmpty()) unexplained << window.objectName();
        QList<QWidget*> all = window.findChildren<QWidget*>();
        all << &window;
        for (QWidget* widget : all) {
            read(*widget);
            for (const QAction* action : widget->actions()) read(*action);
            const QString shown =
                window.objectName() + ": " + widget->metaObject()->className() + ' ' + widget->objectName();
            if (isControl(*widget) && !isNamed(*widget)) unnamed << shown;
            if ((isControl(*widget) || takesMouse(*widget)) && !hasRole(*widget)) withoutRole << shown;
            if (window.isModal() && isControl(*widget) && !isReached(*widget)) unreached << shown;
        }
    }
};

} // namespace

TEST_F(EveryWindow, HasNamedControlsAndPlainTexts)
{
    eachWindow([this](QWidget& window) { look(window); });
    EXPECT_TRUE(unnamed.isEmpty()) << unnamed.join('\n').toStdString();
    EXPECT_TRUE(withoutRole.isEmpty()) << withoutRole.join('\n').toStdString();
    EXPECT_TRUE(unreached.isEmpty()) << unreached.join('\n').toStdString();
    EXPECT_TRUE(unexplained.isEmpty()) << "no page of the manual: " << unexplained.join('\n').toStdString();
    EXPECT_TRUE(marked.isEmpty()) << marked.join('\n').toStdString();
    for (const std::string& line : platform.log) EXPECT_EQ(line.find("</"), std::string::npos) << line;
}

TEST_F(EveryWindow, MenusHaveAKeyForEachItem)
{
    for (const QMenu* menu : frame->findChildren<QMenu*>()) {
        QSet<QKeySequence> keys;
        qsizetype items = 0;
        for (const QAction* item : menu->actions()) {
            if (item->isSeparator() || item->objectName().startsWith("RF_") || !menu->menuAction()->isVisible())
                continue;
            ++items;
            keys << QKeySequence::mnemonic(item->text());
        }
        keys.remove({});
        EXPECT_EQ(keys.size(), items) << menu->objectName().toStdString();
    }
}

} // namespace velara
