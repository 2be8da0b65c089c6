// The manual's pages name what there is, and F1 opens the right one, also over a modal dialog.
#include "app/frame/frameTest.h"
#include "app/help/fManual.h"
#include "app/help/manualPages.h"
#include "app/menus/fHelp.h"
#include "app/menus/menus.h"
#include "seams/text.h"
#include "support/files.h"
#include "support/places.h"
#include "tools/toolRows.h"
#include <QRegularExpression>
#include <QtTest>
#include <QtWidgets>

namespace velara {

namespace {

const QStringList kPageFiles = QDir(testsPath("../docs/manual")).entryList({"*.md"});

QString pagePath(const QString& name) { return testsPath("../docs/manual/" + name); }

QSet<QString> allOf(const QString& pattern, const QString& page)
{
    QSet<QString> found;
    const QRegularExpression expression(pattern);
    for (auto each = expression.globalMatch(page); each.hasNext();) found << each.next().captured(1).simplified();
    return found;
}

/// "File > Open ..." for each item and each menu.
QSet<QString> menuPaths()
{
    QSet<QString> paths;
    QStringList menus;
    for (const MenuRow& row : menuRows()) {
        const QString caption = text(row.caption).remove('&');
        if (row.kind == MenuKind::End) menus.removeLast();
        if (row.kind == MenuKind::Menu || row.kind == MenuKind::SubMenu) menus << caption;
        paths << (row.kind == MenuKind::Item ? menus + QStringList{caption} : menus).join(" > ");
    }
    return paths;
}

QString keyTables()
{
    QString page;
    for (const KeyGroup& group : keyGroups()) {
        page += "\n### " + group.caption + "\n\n| What to do | Mouse and keys |\n| --- | --- |\n";
        for (const auto& [does, key] : group.rows) page += "| " + does + " | " + key + " |\n";
    }
    return page;
}

struct ManualTest : FrameTest {
    fManual* manual() { return frame->findChild<fManual*>(); }
    /// The page that F1 opens with the keys at that place.
    QString pageAt(QWidget& place)
    {
        place.activateWindow();
        place.setFocus();
        QTest::keyClick(&place, Qt::Key_F1);
        return manual() ? manual()->page() : QString();
    }
    /// Clicks on a page of the list as the window system does it. \returns whether it was shown
    bool clicked(int row)
    {
        auto* pages = controlOf<QListWidget>(*manual(), "lstPages");
        const QString name = pages->item(row)->data(Qt::UserRole).toString();
        EXPECT_NE(manual()->page(), name);
        const QPoint at = pages->viewport()->mapTo(manual(), pages->visualItemRect(pages->item(row)).center());
        QTest::mouseClick(manual()->windowHandle(), Qt::LeftButton, {}, at);
        QCoreApplication::processEvents();
        return manual()->page() == name;
    }
};

} // namespace

TEST_F(ManualTest, LinksPicturesMenusAndKeysExist)
{
    const QSet<QString> paths = menuPaths();
    const QSet<QString> linked = allOf("\\]\\(([a-z]+\\.md)\\)", manualText(kFirstManualPage));
    QSet<QString> keys{"Enter", "Space", "Tab", "Ctrl", "Shift", "Alt", "W"}; // named by no table
    for (const QAction* action : frame->findChildren<QAction*>())
        for (const QKeySequence& key : action->shortcuts()) keys << key.toString(QKeySequence::NativeText);
    QTest::keyClick(frame.get(), Qt::Key_F1);
    for (const QAction* action : manual()->findChildren<QAction*>()) keys << action->shortcut().toString();
    EXPECT_GE(kPageFiles.size(), 20);
    for (const QString& name : kPageFiles) {
        const QString page = fileBytes(pagePath(name));
        EXPECT_EQ(manualText(name.chopped(3)), page) << "not in the resources: " << name.toStdString();
        EXPECT_TRUE(name == "index.md" || linked.contains(name)) << "not in the index: " << name.toStdString();
        for (const QString& target : allOf("\\]\\(([^)]+)\\)", page)) {
            EXPECT_TRUE(QFile::exists(pagePath(target))) << name.toStdString() << ": " << target.toStdString();
            EXPECT_TRUE(QFile::exists(":/manual/manual/" + target)) << "not in the resources: " << target.toStdString();
        }
        for (const QString& bold : allOf("\\*\\*([^*]+)\\*\\*", page)) {
            static const QRegularExpression kKey("^((Ctrl|Shift|Alt)(\\+|$))*([A-Z]|F\\d+|[A-Z][a-z]+)?$");
            const bool isKey = kKey.match(bold).hasMatch() && (bold.contains('+') || bold.size() < 4);
            EXPECT_TRUE(!bold.contains(" > ") || paths.contains(bold))
                << name.toStdString() << ": " << bold.toStdString();
            EXPECT_TRUE(!isKey || keys.contains(bold)) << name.toStdString() << ": " << bold.toStdString();
        }
    }
    for (const ToolRow& tool : toolRows())
        EXPECT_NE(manualPageOfTool(tool.name), kFirstManualPage) << "no page: " << tool.name;
}

/// Set VELARA_WRITE to write them anew.
TEST_F(ManualTest, ThePageOfKeysIsThatOfTheTables)
{
    const QString page = fileBytes(pagePath("keys.md")), head = "## All keys\n";
    const QString wanted = page.section(head, 0, 0) + head + keyTables();
    if (qEnvironmentVariableIsSet("VELARA_WRITE")) putFile(pagePath("keys.md"), wanted.toUtf8());
    EXPECT_EQ(page, wanted);
}

TEST_F(ManualTest, F1OpensThePageOfTheToolAndOfTheBox)
{
    EXPECT_EQ(pageAt(*frame), "index");
    open(randomBits(60, 40, 1));
    frame->toolClicked("Select");
    EXPECT_EQ(pageAt(*frame->GetActiveImage()), "selecting");
    frame->toolClicked("Brush");
    EXPECT_EQ(pageAt(*frame->GetActiveImage()), "painting");
    frame->boxes().showAll();
    EXPECT_EQ(pageAt(*frame->findChild<QWidget*>("fHistory")->findChild<QAbstractItemView*>()), "history");

    auto* search = controlOf<QLineEdit>(*manual(), "txtSearch");
    QTest::keyClicks(search, "flatbed FEEDER");
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(manual()->page(), "scanner");
    EXPECT_EQ(manual()->windowTitle(), "Manual: Scanning");
    EXPECT_EQ(controlOf<QListWidget>(*manual(), "lstPages")->currentItem()->text(), "Scanning");
    auto* browser = controlOf<QTextBrowser>(*manual(), "txtPage");
    EXPECT_TRUE(browser->document()
                    ->resource(QTextDocument::ImageResource,
                               browser->source().resolved(QUrl("../screenshots/dialog_ACQUIRETWAIN.png")))
                    .isValid());
    controlOf<QAction>(*manual(), "cmdBack")->trigger();
    EXPECT_EQ(manual()->page(), "history");
    const QPointer<fManual> window = manual();
    QTest::keyClick(browser, Qt::Key_Escape);
    EXPECT_TRUE(comes([&] { return !window; }));
}

TEST_F(ManualTest, IsUsedWhileADialogIsOpenAndStaysAfterIt)
{
    open(randomBits(60, 40, 1));
    for (const bool before : {true, false}) { // whether it is open before the dialog is
        if (before) QTest::keyClick(frame.get(), Qt::Key_F1);
        bool used = false, isRight = false;
        QTimer::singleShot(0, [&] {
            comes([] { return QApplication::activeModalWidget(); });
            QWidget& dialog = *QApplication::activeModalWidget();
            if (!before) isRight = pageAt(*dialog.findChild<QLineEdit*>()) == "size";
            comes([&] { return manual()->windowHandle()->transientParent() == dialog.windowHandle(); });
            used = clicked(3);
            dialog.close();
        });
        frame->run("IMAGESIZE");
        frame->workspace().wait();
        EXPECT_TRUE(used) << before;
        EXPECT_TRUE(isRight || before);
        ASSERT_TRUE(comes([&] { return manual()->windowHandle()->transientParent() == frame->windowHandle(); }));
        EXPECT_TRUE(manual()->isVisible() && clicked(4));
        delete manual();
    }
}

} // namespace velara
