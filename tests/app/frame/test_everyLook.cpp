// Every window in every palette: texts and icons stand out from what is around them, and so does the focus; with larger
// letters nothing is cut.
#include "app/frame/windowWalk.h"
#include "app/menus/fMenuStyle.h"
#include "app/settings/Appearance.h"
#include "ui/widgets/marks/FocusRing.h"
#include "ui/widgets/marks/contrast.h"
#include "ui/widgets/marks/motion.h"

namespace velara {

namespace {

struct EveryLook : WindowWalk, ::testing::WithParamInterface<Look> {
    FocusRing ring;
    const QFont font = QApplication::font();
    int seen = 0;
    QStringList bad;

    void SetUp() override
    {
        QApplication::setStyle(new fMenuStyle);
        showLook(GetParam(), {});
        useResources();
        useIconTheme();
        WindowWalk::SetUp();
    }
    void TearDown() override
    {
        WindowWalk::TearDown();
        QApplication::setFont(font);
        showLook(Look::Desktop, {});
        QApplication::setStyle(QStyleFactory::create("fusion"));
        EXPECT_EQ(bad.join('\n').toStdString(), "") << bad.size() << " of " << seen;
    }
    static QString nameOf(const QWidget& widget)
    {
        return widget.window()->objectName() + ": " + widget.metaObject()->className() + ' ' + widget.objectName();
    }
    static QImage shown(QWidget& widget, const QRect& part)
    {
        QWidget& window = *widget.window();
        return window.grab(part.translated(widget.mapTo(&window, QPoint())) & window.rect())
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    }
    /// The greatest contrast of a pixel with the colour that most have.
    static double contrastIn(const QImage& image)
    {
        QHash<QRgb, int> counts;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
        const auto ground = std::max_element(counts.begin(), counts.end());
        double most = 1;
        for (auto colour = counts.begin(); colour != counts.end(); ++colour)
            most = std::max(most, contrast(QColor(colour.key()), QColor(ground.key())));
        return most;
    }
    void check(QWidget& widget, const QRect& part, double least, const QString& what)
    {
        const QRect inside = part & widget.visibleRegion().boundingRect();
        if (inside != part || !widget.isEnabled() || part.isEmpty()) return;
        ++seen;
        const int frame = least == kReadableText ? 3 : 0; // around fields, often more pixels than any other colour has
        const QImage inner = shown(widget, part.adjusted(frame, frame, -frame, -frame));
        if (const double found = contrastIn(inner); found < least)
            bad << QString("%1, %2: contrast %3").arg(nameOf(widget), what).arg(found);
    }
    void checkParts(QWidget& widget)
    {
        if (auto* tabs = qobject_cast<QTabBar*>(&widget))
            for (int i = 0; i < tabs->count(); ++i) check(widget, tabs->tabRect(i), kReadableText, tabs->tabText(i));
        else if (qobject_cast<QMdiSubWindow*>(&widget) || qobject_cast<QDockWidget*>(&widget))
            check(widget, {0, 0, widget.width(), 20}, kReadableText, widget.windowTitle());
        else if (auto* bar = qobject_cast<QMenuBar*>(&widget))
            for (QAction* action : bar->actions())
                check(widget, bar->actionGeometry(action), kReadableText, action->text());
        else if (auto* view = qobject_cast<QAbstractItemView*>(&widget); view && view->model())
            for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
                if (const QModelIndex index = view->model()->index(row, 0, view->rootIndex());
                    index.flags() & Qt::ItemIsEnabled && index.data().toString().size() > 1) // not a lone, thin stroke
                    check(*view->viewport(), view->visualRect(index), kReadableText, index.data().toString());
    }
    /// Of its text, its icon, or its parts.
    void checkContrast(QWidget& widget)
    {
        const QString text = widget.property("text").toString() + widget.property("title").toString() +
                             widget.property("currentText").toString() + widget.property("placeholderText").toString();
        const auto* button = qobject_cast<const QAbstractButton*>(&widget);
        const auto* tool = qobject_cast<const QToolButton*>(&widget);
        const bool isIcon = button && !button->icon().isNull() &&
                            (text.isEmpty() || (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly));
        if (isIcon || !text.trimmed().isEmpty())
            check(widget, widget.rect(), isIcon ? kVisibleSign : kReadableText, text);
        checkParts(widget);
    }
    void checkMenu(QMenu& menu)
    {
        menu.popup({});
        for (QAction* item : menu.actions()) {
            if (item->isSeparator() || !item->isEnabled()) continue;
            menu.setActiveAction(nullptr);
            const QRect box = menu.actionGeometry(item);
            check(menu, box.adjusted(24, 0, 0, 0), kReadableText, item->text());
            if (!item->icon().isNull()) check(menu, {box.x(), box.y(), 22, box.height()}, kVisibleSign, item->text());
            if (item->menu()) continue;
            menu.setActiveAction(item);
            check(menu, box.adjusted(24, 0, 0, 0), kReadableText, "chosen: " + item->text());
        }
        menu.close();
    }
    /// The pixels that change with the focus, against the background.
    void checkFocus(QWidget& control)
    {
        QWidget* before = QApplication::focusWidget();
        if (before) before->clearFocus();
        const QRect around = control.rect().adjusted(-3, -3, 3, 3);
        const QImage without = shown(control, around);
        control.setFocus(Qt::TabFocusReason);
        if (!control.hasFocus()) return; // a proxy has it
        ++seen;
        const QImage with = shown(control, around);
        const QColor ground = control.window()->palette().color(QPalette::Window);
        int visible = 0;
        for (int y = 0; y < with.height(); ++y)
            for (int x = 0; x < with.width(); ++x)
                visible +=
                    with.pixel(x, y) != without.pixel(x, y) && contrast(with.pixelColor(x, y), ground) >= kVisibleSign;
        if (visible < std::min(with.width(), with.height()))
            bad << QString("%1: %2 pixels").arg(nameOf(control)).arg(visible);
    }
    static bool isCut(const QWidget& widget)
    {
        const bool isText = qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget);
        const bool isShortened = widget.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored; // and says so
        if (!isText || isShortened || widget.property("text").toString().isEmpty()) return false;
        if (widget.hasHeightForWidth()) return widget.heightForWidth(widget.width()) > widget.height();
        const QSize wanted = widget.minimumSizeHint();
        return wanted.width() > widget.width() || wanted.height() > widget.height();
    }
    template <class Check> void eachWidget(Check checkOne)
    {
        eachWindow([&](QWidget& window) {
            QApplication::setActiveWindow(&window);
            QCoreApplication::sendPostedEvents();
            for (QWidget* widget : window.findChildren<QWidget*>())
                if (widget->isVisible() && widget->window() == &window) checkOne(*widget);
        });
    }
};

} // namespace

TEST_P(EveryLook, TextsAndIconsCanBeRead)
{
    eachWidget([this](QWidget& widget) { checkContrast(widget); });
    for (QMenu* menu : frame->findChildren<QMenu*>())
        if (menu->menuAction()->isVisible()) checkMenu(*menu);
    EXPECT_GT(seen, 900);
}

TEST_P(EveryLook, FocusIsSeen)
{
    eachWidget([this](QWidget& widget) {
        if (widget.isEnabled() && widget.focusPolicy() & Qt::TabFocus && !widget.focusProxy() &&
            !widget.visibleRegion().isEmpty())
            checkFocus(widget);
    });
    EXPECT_GT(seen, 250);
}

INSTANTIATE_TEST_SUITE_P(All, EveryLook,
                         ::testing::Values(Look::Light, Look::Dark, Look::ContrastLight, Look::ContrastDark));

TEST_F(FrameTest, WhatTheDesktopAsksForIsShown)
{
    const auto asked = [](const Wishes& wishes, Look chosen = Look::Desktop) {
        showLook(chosen, wishes);
        QCoreApplication::processEvents();
        return QApplication::palette();
    };
    const QPalette desktop = QApplication::palette();
    for (const bool dark : {true, false}) {
        const QPalette sharp = asked({dark, true, false}), plain = asked({dark, false, false});
        EXPECT_TRUE(isHighContrast(sharp));
        EXPECT_FALSE(isHighContrast(plain));
        for (const QPalette& palette : {sharp, plain})
            EXPECT_EQ(palette.color(QPalette::Window).lightness() < 128, dark);
        EXPECT_EQ(asked({dark, true, false}, Look::Light).color(QPalette::Window),
                  paletteOf(Look::Light).color(QPalette::Window));
    }
    EXPECT_EQ(asked({}), desktop) << "it is let go";
    for (const bool less : {true, false}) {
        asked({{}, false, less});
        EXPECT_EQ(lessMotion(), less);
        EXPECT_EQ(frame->isAnimated(), !less);
    }
}

struct LargeLetters : EveryLook {
    void SetUp() override
    {
        QFont large = font;
        large.setPointSizeF(font.pointSizeF() * 1.5);
        QApplication::setFont(large);
        EveryLook::SetUp();
    }
};

TEST_P(LargeLetters, NothingIsCut)
{
    eachWidget([this](QWidget& widget) {
        ++seen;
        if (isCut(widget)) bad << nameOf(widget) + ": " + widget.property("text").toString();
    });
    EXPECT_GT(seen, 900);
}

INSTANTIATE_TEST_SUITE_P(Light, LargeLetters, ::testing::Values(Look::Light));

} // namespace velara
