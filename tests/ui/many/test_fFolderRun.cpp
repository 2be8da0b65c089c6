// The window "Run on a Folder" with a program that reports like velara-batch: what it is asked, what is shown of its
// answers, and that it can be held and ended.
#include "support/RecordingPlatform.h"
#include "support/files.h"
#include "support/ui/controls.h"
#include "ui/many/fFolderRun.h"
#include <gtest/gtest.h>

namespace velara {
namespace {

struct FolderRunTest : FolderTest {
    RecordingPlatform platform;
    std::unique_ptr<fFolderRun> window;
    std::optional<QString> recipe = QStringLiteral("/r/a.recipe");

    /// A program that notes its arguments and its number, and then runs these lines.
    void show(const QByteArray& lines)
    {
        const QByteArray at = folder.path().toUtf8() + '/';
        const QString program = put("program", "#!/bin/sh\nprintf '%s\\n' \"$@\" >'" + at + "given'\necho $$ >'" + at +
                                                   "part'\nmv '" + at + "part' '" + at + "number'\n" + lines + "\n");
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        window = std::make_unique<fFolderRun>(platform, program, path("Logs"),
                                              std::vector<RecipeChoice>{{"one", [this] { return recipe; }}});
        window->addInput(path("in"));
        controlOf<QLineEdit>(*window, "txtInto")->setText("/out");
        window->show();
    }
    QAbstractButton* button(const char* name) const { return controlOf<QAbstractButton>(*window, name); }
    QString state() const { return controlOf<QLabel>(*window, "lblState")->text(); }
    QListWidget* failures() const { return controlOf<QListWidget>(*window, "lstFailures"); }
    bool ends() const
    {
        return comes([this] { return !window->isRunning(); });
    }
    QStringList given() const { return QString(content("given")).split('\n', Qt::SkipEmptyParts); }
    /// R, S or T as in /proc; 0: there is no such process.
    char stateOfProgram() const
    {
        const QByteArray number = fileBytes(path("number"), "none").trimmed();
        const QByteArray stat = fileBytes("/proc/" + number + "/stat", "");
        return stat.isEmpty() ? '\0' : stat[stat.lastIndexOf(')') + 2];
    }
};

TEST_F(FolderRunTest, ReportsAreShownAndFailuresLeadToTheirPictures)
{
    show(R"(echo '{"input":"/in/a.png","output":"/out/a.png","result":"done","bytes":9,"milliseconds":1.5,"reason":""}'
echo '{"input":"/in/b.png","output":"","result":"skipped","bytes":0,"milliseconds":0,"reason":"it is there"}'
echo '{"input":"/in/c\u0001.png","output":"","result":"failed","bytes":0,"milliseconds":3,"reason":"its end is missing"}'
echo '1 done, 1 skipped, 1 failed in 0:01' >&2
exit 1)");
    button("cmdRun")->click();
    EXPECT_FALSE(button("cmdRun")->isEnabled());
    ASSERT_TRUE(ends());
    EXPECT_EQ(given().join(' '),
              path("in") + " --report - --recipe /r/a.recipe --into /out --name {dir}/{name}.{ext} --existing skip");
    EXPECT_EQ(state(), "1 done, 1 skipped, 1 failed in 0:01");
    ASSERT_EQ(failures()->count(), 1);
    EXPECT_EQ(failures()->item(0)->text(), "c\\x01.png: its end is missing");
    QString wanted;
    QObject::connect(window.get(), &fFolderRun::openWanted, [&](const QString& picture) { wanted = picture; });
    emit failures()->itemActivated(failures()->item(0));
    EXPECT_EQ(wanted, "/in/c\u0001.png");
    const QStringList logs = QDir(path("Logs")).entryList(QDir::Files);
    ASSERT_EQ(logs.size(), 1);
    EXPECT_EQ(content("Logs/" + logs[0]).count("\"result\""), 3);
    EXPECT_TRUE(button("cmdRun")->isEnabled()) << "once more";
}

TEST_F(FolderRunTest, TheOriginalsAreReplacedOnlyWhenThatIsSaidTwice)
{
    show("exit 0");
    controlOf<QCheckBox>(*window, "chkOriginals")->click();
    controlOf<QCheckBox>(*window, "chkBelow")->click();
    EXPECT_FALSE(controlOf<QWidget>(*window, "txtInto")->isEnabled());
    button("cmdRun")->click(); // the question is cancelled
    EXPECT_FALSE(window->isRunning());
    ASSERT_FALSE(platform.log.empty());
    EXPECT_TRUE(platform.log.back().starts_with("ask: Run on a Folder: Every original is replaced"));
    platform.answers = {"&Replace the originals"};
    button("cmdRun")->click();
    ASSERT_TRUE(ends());
    EXPECT_EQ(given().join(' '), path("in") + " --report - --recipe /r/a.recipe --recursive --in-place --yes");
}

TEST_F(FolderRunTest, FormatQualityAndNamesAreGiven)
{
    show("exit 0");
    auto* format = controlOf<QComboBox>(*window, "cboFormat");
    auto* quality = controlOf<QSpinBox>(*window, "spnQuality");
    EXPECT_FALSE(quality->isEnabled());
    format->setCurrentIndex(format->findData("png"));
    EXPECT_FALSE(quality->isEnabled());
    format->setCurrentIndex(format->findData("jpg"));
    EXPECT_TRUE(quality->isEnabled());
    quality->setValue(70);
    controlOf<QLineEdit>(*window, "txtName")->setText("{name}-web.{ext}");
    auto* existing = controlOf<QComboBox>(*window, "cboExisting");
    existing->setCurrentIndex(existing->findData("number"));
    button("cmdRun")->click();
    ASSERT_TRUE(ends());
    EXPECT_TRUE(given().join(' ').contains("--name {name}-web.{ext} --existing number --format jpg --quality 70"));
    recipe.reset(); // the user thought better of it
    QFile::remove(path("given"));
    button("cmdRun")->click();
    EXPECT_FALSE(window->isRunning());
}

TEST_F(FolderRunTest, ItIsHeldLetGoOnAndEnded)
{
    show("trap 'echo stopped >&2; exit 130' TERM\nwhile :; do :; done");
    button("cmdRun")->click();
    ASSERT_TRUE(comes([this] { return stateOfProgram() != 0; }));
    button("cmdPause")->click();
    EXPECT_TRUE(comes([this] { return stateOfProgram() == 'T'; }));
    EXPECT_TRUE(state().endsWith("paused"));
    button("cmdPause")->click();
    EXPECT_TRUE(comes([this] { return stateOfProgram() != 'T'; }));
    button("cmdPause")->click(); // it can be ended while it is held, too
    window->close();
    EXPECT_TRUE(window->isVisible()) << "cancelled";
    platform.answers = {"&Stop it and close"};
    window->close();
    ASSERT_TRUE(ends());
    EXPECT_TRUE(comes([this] { return !window->isVisible(); }));
    EXPECT_EQ(stateOfProgram(), 0);
}

TEST_F(FolderRunTest, NobodyWaitsForAProgramThatGoesOnWhenTheEditorCloses)
{
    show("trap '' TERM\ncd '" + folder.path().toUtf8() + "'\n>deaf\nwhile :; do :; done");
    button("cmdRun")->click();
    ASSERT_TRUE(comes([this] { return QFile::exists(path("deaf")); }));
    button("cmdPause")->click();
    window.reset();
    EXPECT_TRUE(comes([this] { return stateOfProgram() == 'R'; })) << "it isn't held any more, and was not waited for";
    EXPECT_TRUE(comes([this] { return stateOfProgram() == 0; })) << "its time is over";
}

TEST_F(FolderRunTest, AProgramThatIsNotThereIsTold)
{
    show("exit 0");
    QFile::remove(path("program"));
    button("cmdRun")->click();
    ASSERT_TRUE(ends());
    EXPECT_TRUE(comes([this] { return state().contains("program can't be started"); })) << state().toStdString();
    EXPECT_TRUE(button("cmdRun")->isEnabled());
}

} // namespace
} // namespace velara
