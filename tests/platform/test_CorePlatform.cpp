#include "platform/WindowlessPlatform.h"
#include "support/RecordingPlatform.h"
#include "support/places.h"
#include <QtCore>
#include <thread>

namespace velara {

namespace {

/// The rest of Platform, irrelevant here.
class HomePlatform : public WindowlessPlatform {
    void message(const QString&, const QString&, Icon) override {}
};

} // namespace

TEST(CorePlatform, ProgramFolderIsThePortableProgramsOwn)
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.filePath("data")));
    const QString installed = home.filePath("data/velara-studio");
    EXPECT_EQ(chooseProgramFolder(home.path()), installed); // even if it can be written to
    EXPECT_TRUE(QDir(installed).exists());
    QFile(home.filePath("portable")).open(QIODevice::WriteOnly);
    EXPECT_EQ(chooseProgramFolder(home.path()), home.path());
    EXPECT_EQ(chooseProgramFolder("/proc/self"), installed);
    qunsetenv("XDG_DATA_HOME");
    EXPECT_EQ(HomePlatform().programFolder() + "/", builtPath("")); // a build is portable
}

TEST(CorePlatform, KeepsSettingsAcrossRuns)
{
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    qputenv("HOME", QFile::encodeName(home.path()));
    HomePlatform().setSetting("Options", "RunOnce", "Ja, \"1\"; ü");
    EXPECT_EQ(HomePlatform().setting("Options", "RunOnce", "no"), "Ja, \"1\"; ü");
    EXPECT_EQ(HomePlatform().setting("Other", "RunOnce", "no"), "no");
}

TEST(CorePlatform, KnowsAnEarlierInstance)
{
    const QTemporaryDir home, run, open;
    QFile::setPermissions(open.path(),
                          QFile::Permissions(0x7777)); // a folder where others could take the lock is not used
    qputenv("XDG_SESSION_ID", "../one/session");
    qputenv("HOME", QFile::encodeName(home.path()));
    for (const QString& folder : {run.path(), open.path(), QString("relative"), QString()}) {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder));
        HomePlatform second;
        {
            HomePlatform first;
            EXPECT_FALSE(first.previousInstance());
            EXPECT_FALSE(first.previousInstance()); // it doesn't count as its own predecessor
            EXPECT_TRUE(second.previousInstance()) << qPrintable(folder);
        }
        EXPECT_FALSE(second.previousInstance()) << qPrintable(folder);
    }
    EXPECT_EQ(QDir(run.path()).entryList(QDir::Files).size(), 1);
    EXPECT_EQ(QDir(home.path() + "/.cache/velara-studio").entryList(QDir::Files).size(), 1);
    EXPECT_TRUE(QDir(open.path()).isEmpty());
    qputenv("HOME", "/proc/none"); // not found
    HomePlatform first, second;
    EXPECT_FALSE(first.previousInstance() || second.previousInstance());
}

TEST(CorePlatform, ClockAndChance)
{
    HomePlatform machine;
    const std::uint32_t before = machine.milliseconds();
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    const std::uint32_t passed = machine.milliseconds() - before;
    EXPECT_GE(passed, 29U);
    EXPECT_LT(passed, 10000U);
    double sum = 0;
    for (int i = 0; i < 10000; ++i) {
        const double value = machine.random();
        ASSERT_TRUE(value >= 0 && value < 1) << value;
        sum += value;
    }
    EXPECT_NEAR(sum / 10000, 0.5, 0.03);
    EXPECT_NE(machine.random(), HomePlatform().random());
}

} // namespace velara
