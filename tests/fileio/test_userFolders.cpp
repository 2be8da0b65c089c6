// Where an installed program keeps what is its user's, and what it takes over from earlier versions.
#include "fileio/disk/userFolders.h"
#include "support/files.h"
#include <QtCore>
#include <gtest/gtest.h>

namespace velara {

namespace {

struct UserFolders : ::testing::Test {
    QTemporaryDir home;
    static constexpr const char* kVariables[] = {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME",
                                                 "XDG_CACHE_HOME"};
    std::map<QByteArray, QByteArray> before;
    void SetUp() override
    {
        for (const char* name : kVariables) {
            before[name] = qgetenv(name);
            qunsetenv(name);
        }
        qputenv("HOME", QFile::encodeName(home.path()));
    }
    void TearDown() override
    {
        for (const auto& [name, value] : before)
            value.isEmpty() ? qunsetenv(name.constData()) : qputenv(name.constData(), value);
    }
    QString at(const QString& name) const { return home.filePath(name); }
    void put(const QString& name, const QByteArray& contents = "1")
    {
        QDir().mkpath(QFileInfo(at(name)).path());
        putFile(at(name), contents);
    }
    QByteArray kept(const QString& name) const { return fileBytes(at(name)); }
};

} // namespace

TEST_F(UserFolders, OfADesktopOrOfAPortableProgram)
{
    const QString program = installedFolder();
    EXPECT_EQ(program, at(".local/share/velara-studio"));
    qputenv("XDG_STATE_HOME", "relative"); // is ignored
    qputenv("XDG_CACHE_HOME", QFile::encodeName(at("my cache/")));
    EXPECT_EQ(userFolder(program, UserFolder::Settings), at(".config/velara-studio"));
    EXPECT_EQ(userFolder(program, UserFolder::Data), program);
    EXPECT_EQ(tempFolder(program), at(".local/state/velara-studio/Temp"));
    EXPECT_EQ(userFolder(program, UserFolder::Cache), at("my cache/velara-studio"));
    EXPECT_TRUE(QDir(at("my cache/velara-studio")).exists());
    for (const UserFolder kind : {UserFolder::Settings, UserFolder::Data, UserFolder::State, UserFolder::Cache})
        EXPECT_EQ(userFolder("/stick/velara", kind), "/stick/velara");
    EXPECT_EQ(tempFolder("/stick/velara"), "/stick/velara/Temp");
}

TEST_F(UserFolders, AnEarlierVersionsAreTakenOverOnce)
{
    const QString old = ".local/share/velara-studio/", program = installedFolder();
    put(old + "Vlaera.dat", "settings");
    put(old + "usercolors.cps", "colours");
    put(old + "Stamps/mine.bmp");
    put("bin/Vlaera.dat", "of another");
    takeOver(program, at("bin"));
    EXPECT_EQ(kept(".config/velara-studio/Vlaera.dat"), "settings");
    EXPECT_EQ(kept(".config/velara-studio/usercolors.cps"), "colours");
    EXPECT_EQ(kept(old + "Stamps/mine.bmp"), "1");
    EXPECT_FALSE(QFile::exists(at(old + "Vlaera.dat")));

    put(old + "Vlaera.dat", "an old version was started once more");
    put(old + "usercolors.cps", "by the old version");
    QFile::remove(at(".config/velara-studio/usercolors.cps"));
    takeOver(program, at("bin"));
    EXPECT_EQ(kept(".config/velara-studio/Vlaera.dat"), "settings");
    EXPECT_FALSE(QFile::exists(at(".config/velara-studio/usercolors.cps")));
}

TEST_F(UserFolders, ThoseBesideTheProgramAreCopied)
{
    put("bin/Vlaera.dat", "settings");
    put("bin/Stamps/a.bmp", "stamp");
    put("bin/Textures/t.bmp", "texture");
    put(".local/share/velara-studio/Stamps/b.bmp");
    takeOver(at("bin"), at("bin")); // portable: it is where it belongs
    EXPECT_FALSE(QFile::exists(at(".config")));
    takeOver(installedFolder(), at("bin"));
    EXPECT_EQ(kept(".config/velara-studio/Vlaera.dat"), "settings");
    EXPECT_EQ(kept("bin/Vlaera.dat"), "settings");
    EXPECT_EQ(kept(".local/share/velara-studio/Textures/t.bmp"), "texture");
    EXPECT_FALSE(QFile::exists(at(".local/share/velara-studio/Stamps/a.bmp"))) << "there are stamps already";
}

} // namespace velara
