// The browser, its preview and its thumbnails, with real folders and previews that arrive when the test says so.
#include "fileio/disk/nativeName.h"
#include "platform/desktop/dialogs/ThumbnailIcons.h"
#include "support/RecordingPlatform.h"
#include "support/ui/WindowTest.h"
#include "ui/browse/fAssociation.h"
#include "ui/browse/fBrowse.h"
#include "ui/browse/mBrowseFolder.h"
#include "ui/widgets/fFolderTree.h"
#include <fcntl.h>
#include <unistd.h>

namespace velara {

namespace {

Preview red(QSize size)
{
    Preview preview{QImage(40, 30, QImage::Format_RGB32), size, {}};
    preview.image.fill(Qt::red);
    return preview;
}

struct Browser : WindowTest {
    RecordingPlatform platform;
    QTemporaryDir top;
    std::unique_ptr<fBrowse> window;
    QStringList opened;

    void SetUp() override
    {
        QDir(top.path()).mkdir("folder.png");
        for (const char* name : {"a.png", "Loud.JPEG", "notes.txt", "bare", "c.cur"})
            QFile(at(name)).open(QFile::WriteOnly);
    }
    QString at(const QString& name) const { return top.path() + '/' + name; }
    RecordingPreviews& previews() { return platform.previews(); }
    void show(BrowseMode mode, const QString& start)
    {
        window = std::make_unique<fBrowse>(platform, mode, start, nullptr);
        QObject::connect(window.get(), &fBrowse::opened, [this](const QString& path) { opened << path; });
        window->show();
        used = window.get();
    }
    fFolderTree& tree() { return *find<fFolderTree>("BF"); }
    QColor middle()
    {
        const QImage shown = find("previewPicture")->grab().toImage();
        return shown.pixelColor(shown.rect().center());
    }
};

} // namespace

TEST_F(Browser, OpensPicturesOrFoldersAlone)
{
    constexpr std::tuple<BrowseMode, const char*, bool> rows[] = {
        {BrowseMode::Pictures, "a.png", true},           {BrowseMode::Pictures, "Loud.JPEG", true},
        {BrowseMode::Pictures, "folder.png", false},     {BrowseMode::Pictures, "notes.txt", false},
        {BrowseMode::Pictures, "bare", false},           {BrowseMode::Pictures, "c.cur", false},
        {BrowseMode::TextureFolder, "folder.png", true},
    };
    for (const auto& [mode, name, can] : rows) {
        show(mode, at(name));
        EXPECT_EQ(tree().path(), at(name));
        EXPECT_EQ(find("CmdOpen")->isEnabled(), can) << name;
        EXPECT_EQ(text("FileName"), can ? at(name) : QString());
    }
    EXPECT_EQ(window->windowTitle(), "Browse For Graphic Filles");
}

TEST_F(Browser, OpensNamesThatAreNotUtf8)
{
    const QString name = at(nameFrom("b\xe9.png"));
    ASSERT_GE(close(creat(nativeName(name).constData(), 0600)), 0);
    show(BrowseMode::Pictures, name);
    EXPECT_EQ(tree().path(), name);
    EXPECT_EQ(tree().currentIndex().data().toString(), "b\\xe9.png");
    ASSERT_TRUE(find("CmdOpen")->isEnabled());
    click("CmdOpen");
    EXPECT_EQ(opened, QStringList{name});
}

TEST_F(Browser, DoubleClickEnterAndTheButtonOpenOnceAndClose)
{
    for (const int way : {0, 1, 2}) {
        show(BrowseMode::Pictures, top.path());
        QTest::keyClicks(&tree(), "lou");
        ASSERT_EQ(tree().path(), at("Loud.JPEG"));
        const QPoint place = tree().visualRect(tree().currentIndex()).center();
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, place);
        if (way == 0) QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, place);
        if (way == 1) QTest::keyClick(&tree(), Qt::Key_Return);
        if (way == 2) click("CmdOpen");
        EXPECT_EQ(opened, QStringList(at("Loud.JPEG"))) << way;
        EXPECT_FALSE(window->isVisible());
        opened.clear();
    }
    show(BrowseMode::Pictures, at("notes.txt"));
    QTest::keyClick(&tree(), Qt::Key_Return);
    EXPECT_TRUE(window->isVisible());
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(opened.empty());
}

TEST_F(Browser, ShowsWhatIsSelectedAndForgetsWhatWas)
{
    show(BrowseMode::Pictures, at("a.png"));
    EXPECT_EQ(text("previewKind"), "Portable Network Group");
    EXPECT_TRUE(previews().answer(at("a.png"), red({4000, 3000})));
    EXPECT_EQ(text("previewSize"), "4000 x 3000 pixels");
    EXPECT_EQ(middle(), QColor(Qt::red));

    tree().select(at("Loud.JPEG")); // the other's answer comes too late
    EXPECT_FALSE(previews().answer(at("a.png"), red({1, 1})));
    EXPECT_EQ(text("previewSize"), "");
    EXPECT_TRUE(previews().answer(at("Loud.JPEG"), {{}, {}, "Loud.JPEG can't be read: it is broken"}));
    EXPECT_NE(middle(), QColor(Qt::red));
    EXPECT_EQ(text("previewKind"), "Independent JPEG group");

    tree().select(at("notes.txt"));
    EXPECT_EQ(text("previewKind"), "");
    EXPECT_EQ(previews().asked.back(), at("Loud.JPEG")) << "what is no picture is not read";
    tree().select(at("a.png"));
    tree().select(at("notes.txt"));
    EXPECT_FALSE(previews().answer(at("a.png"), red({1, 1}))) << "nor shown beside another's name";
    tree().select(at("a.png"));
    window.reset(); // with an answer pending
    EXPECT_FALSE(previews().answer(at("a.png"), red({1, 1})));
}

TEST_F(Browser, ThumbnailsStandBeforeTheNames)
{
    show(BrowseMode::Pictures, at("a.png"));
    window->grab();
    const auto icon = [&] {
        const auto shown = tree().currentIndex().data(Qt::DecorationRole).value<QIcon>();
        return shown.pixmap(32, 32).toImage().pixelColor(16, 16);
    };
    EXPECT_NE(icon(), QColor(Qt::red));
    EXPECT_TRUE(previews().answer("thumbnail " + at("a.png"), red({400, 300})));
    EXPECT_EQ(icon(), QColor(Qt::red));
    EXPECT_EQ(std::ranges::count(previews().asked, "thumbnail " + at("a.png")), 1);
    EXPECT_EQ(std::ranges::count(previews().asked, "thumbnail " + at("notes.txt")), 0);
}

TEST_F(Browser, TheGridShowsTheFolderAndLastFoldersAreKept)
{
    QFile(at("folder.png/inner.gif")).open(QFile::WriteOnly);
    show(BrowseMode::Pictures, at("a.png"));
    auto* grid = find<QListView>("grid");
    EXPECT_EQ(grid->rootIndex().data(), QFileInfo(top.path()).fileName());
    EXPECT_EQ(grid->currentIndex().data(), "a.png");
    QTest::keyClick(grid, Qt::Key_End);
    EXPECT_EQ(tree().path(), at("notes.txt")) << "the tree and the preview follow";
    tree().setFocus();
    tree().select(at("folder.png"));
    EXPECT_EQ(grid->rootIndex().data(), "folder.png");
    tree().select(at("a.png"));
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_Home);
    EXPECT_EQ(tree().path(), at("folder.png"));
    EXPECT_EQ(grid->rootIndex().data(), QFileInfo(top.path()).fileName()) << "arrows stay in the folder";
    emit grid->activated(grid->currentIndex());
    EXPECT_EQ(grid->rootIndex().data(), "folder.png");
    emit grid->activated(grid->model()->index(0, 0, grid->rootIndex()));
    EXPECT_EQ(opened, QStringList(at("folder.png/inner.gif")));

    show(BrowseMode::Pictures, at("a.png"));
    choose("cboLast", at("folder.png"));
    EXPECT_EQ(tree().path(), at("folder.png"));
    click("CmdHome");
    EXPECT_EQ(tree().path(), QDir::homePath());
}

TEST(ThumbnailIcons, WaitForNoMoreThanAScreenful)
{
    RecordingPreviews previews;
    ThumbnailIcons icons(previews, 32, nullptr);
    QStringList ready;
    QObject::connect(&icons, &ThumbnailIcons::ready, [&](const QString& path) { ready << path; });
    for (int i = 0; i < 500; ++i) icons.icon(QString("%1.png").arg(i));
    EXPECT_FALSE(previews.answer("thumbnail 0.png", red({4, 4})));
    EXPECT_TRUE(previews.answer("thumbnail 499.png", red({4, 4})));
    icons.icon("499.png");
    icons.icon("0.png"); // visible again, requested again
    EXPECT_TRUE(previews.answer("thumbnail 0.png", {{}, {}, "broken"}));
    EXPECT_EQ(ready, QStringList({"499.png", "0.png"}));
    EXPECT_EQ(previews.asked.size(), 501u);
}

TEST(ThumbnailIcons, AreSharpAtDoubleSizeAndKeepTheirColoursInAChosenRow)
{
    QImage stripes(124, 124, QImage::Format_RGB32); // as many as the box has pixels then, within its frame
    for (int i = 0; i < 124 * 124; ++i) stripes.setPixel(i % 124, i / 124, i % 2 ? 0xFFFFFF : 0);
    const QIcon icon = thumbnailIcon(stripes, {64, 64});
    const QImage twice = icon.pixmap(QSize(64, 64), 2).toImage();
    for (int x = 20; x < 100; ++x) EXPECT_EQ(twice.pixel(x, 60) & 1, x % 2);
    EXPECT_EQ(icon.pixmap(QSize(64, 64), 2, QIcon::Selected).toImage(), twice);
}

TEST_F(Browser, FolderDialogAnswersWithTextAndAssociationsDoNothing)
{
    auto* owner = new QWidget;
    platform.answers = {"/somewhere", std::nullopt};
    EXPECT_EQ(BrowseForFolder(platform, "Where", owner, "/"), "/somewhere");
    EXPECT_EQ(BrowseForFolder(platform, "Where", owner, "/"), "");
    EXPECT_TRUE(platform.logged("folder: Where"));
    delete owner;

    fAssociation list(nullptr);
    list.show();
    used = &list;
    EXPECT_EQ(find("picA")->findChildren<QCheckBox*>().size(), 28);
    EXPECT_EQ(text("cT_0"), "*.bmp; *.dib");
    click("Command1");
    EXPECT_TRUE(list.isVisible());
    click("Command2");
    EXPECT_FALSE(list.isVisible());
}

} // namespace velara
