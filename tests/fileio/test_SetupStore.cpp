#include "fileio/SetupStore.h"
#include "fileio/disk/fileBytes.h"
#include "support/RecordingPlatform.h"
#include "support/files.h"
#include "support/fullDisk.h"
#include "support/seed.h"
#include <random>

namespace velara {
namespace {

using Record = velara::Setup; // the test class has a member of that name

struct SetupStore : ::testing::Test {
    RecordingPlatform platform;
    const QString file = platform.folder.filePath("Vlaera.dat");
};

QByteArray bytesOf(const Record& setup)
{
    const auto record = setupBytes(setup);
    return {reinterpret_cast<const char*>(record.data()), static_cast<int>(record.size())};
}

std::int32_t wordAt(const QByteArray& bytes, int offset, int width)
{
    std::int32_t word = 0;
    std::memcpy(&word, bytes.constData() + offset, static_cast<std::size_t>(width));
    return width == 2 ? static_cast<std::int16_t>(word) : word;
}

TEST_F(SetupStore, FieldsLieWhereTheFileHasThem)
{
    Record setup = LoadSetup(platform);
    setup.CurrentTool = "Airbrush";
    setup.Recent[7] = "/eight";
    setup.PaletteHue = 1;
    const QByteArray bytes = bytesOf(setup);
    ASSERT_EQ(3081, bytes.size());
    const struct {
        int offset, width, value;
    } kWords[] = {
        {0, 2, 9600},  {2, 2, 7200},        {4, 2, 0},           {264, 2, -1},          {268, 2, 1},
        {2318, 2, -1}, {2336, 2, -1},       {2340, 2, 0},        {2344, 4, 0x3F800000}, {2348, 4, 0xFFFFFF},
        {2356, 4, 0},  {2360, 4, 0x111111}, {2416, 4, 0xFFFFFF}, {2420, 2, -1},         {2449, 2, 2},
        {2459, 2, 25}, {2469, 2, 100},      {2483, 2, 3},        {2487, 4, 0},          {2493, 2, -1},
        {2497, 2, 50}, {3011, 2, 20},       {3017, 2, 0},        {3019, 2, 2},          {3021, 2, 100},
        {3031, 4, 0},  {3035, 4, 0xFFFFFF}, {3047, 2, 50},       {3049, 2, 1},          {3051, 2, -1},
        {3065, 2, -1}, {3075, 2, 10},       {3077, 2, 100},      {3079, 2, 0},
    };
    for (const auto& w : kWords) EXPECT_EQ(w.value, wordAt(bytes, w.offset, w.width)) << "at " << w.offset;
    const QByteArray images = platform.folder.path().toUtf8() + "/Images/";
    EXPECT_EQ(images + QByteArray(256 - images.size(), ' '), bytes.mid(8, 256));
    EXPECT_EQ("/eight " + QByteArray(249, ' '), bytes.mid(270 + 7 * 256, 256));
    EXPECT_EQ("Airbrush                 ", bytes.mid(2424, 25));
    EXPECT_EQ("1.0 ", bytes.mid(2499, 4));
    EXPECT_EQ("Arial ", bytes.mid(2755, 6));
}

TEST_F(SetupStore, WhatAFileLacksHasItsDefault)
{
    Record changed = LoadSetup(platform);
    const QByteArray defaults = bytesOf(changed);
    EXPECT_EQ(defaults, fileBytes(file)) << "a run that is killed leaves a good one";
    changed.AskToSave = changed.BarVisible[0] = changed.BarVisible[6] = false;
    changed.ImagesPath = "/pictures/";
    changed.FrameWidth = 300;
    const QByteArray bytes = bytesOf(changed);
    const std::pair<int, int> kCases[] = {// truncated to so many bytes, of which so many are used
                                          {0, 0},       {1, 0},       {263, 8},     {264, 264},
                                          {2325, 2324}, {2326, 2326}, {2337, 2336}, {3080, 3079}};
    for (const auto& [length, counted] : kCases) {
        QFile::remove(file);
        putFile(file, bytes.left(length));
        const Record read = LoadSetup(platform);
        EXPECT_EQ(bytes.left(counted) + defaults.mid(counted), bytesOf(read)) << length;
        EXPECT_EQ(bytesOf(read), fileBytes(file)) << length;
    }
    putFile(file, QByteArray(kSetupBytes, '\0')); // left by a power failure
    EXPECT_EQ(defaults, bytesOf(LoadSetup(platform)));
    EXPECT_TRUE(platform.log.empty());
}

TEST_F(SetupStore, AnyFileIsSurvived)
{
    std::mt19937 random(seedOf(1));
    for (const int length : {0, 1, 7, 263, 264, 2345, 3080, 3081, 5000}) {
        QByteArray bytes(length, '\0');
        for (char& c : bytes) c = static_cast<char>(random());
        putFile(file, bytes);
        const Record setup = LoadSetup(platform);
        if (length >= 4) {
            EXPECT_EQ(wordAt(bytes, 0, 2), setup.FrameWidth);
        }
        if (length >= 3081) {
            EXPECT_EQ(bytes.mid(3023, 8), bytesOf(setup).mid(3023, 8)) << "reserved bytes come back";
            EXPECT_EQ(bytes.mid(2422, 2), bytesOf(setup).mid(2422, 2));
        }
        ASSERT_TRUE(SaveSetup(platform, setup));
        EXPECT_EQ(bytes.mid(3081), fileBytes(file).mid(3081)) << "a longer file keeps its tail";
        EXPECT_EQ(bytesOf(setup), bytesOf(LoadSetup(platform))) << length;
    }
    QFile::remove(file);
    QDir().mkdir(file);
    EXPECT_EQ(9600, LoadSetup(platform).FrameWidth) << "a folder of that name";
    EXPECT_FALSE(SaveSetup(platform, Record()));
}

TEST_F(SetupStore, TextsOfAForeignCodePageSurviveARun)
{
    QByteArray bytes = bytesOf(LoadSetup(platform));
    const QByteArray greek = "/home/\xc5\xe9\xea\xfc\xed\xe5\xf2/";
    bytes.replace(8, 256, greek.leftJustified(256, ' '));
    bytes.replace(270, 256, ("/old" + greek).leftJustified(256, '\0'));
    putFile(file, bytes);
    Record setup = LoadSetup(platform);
    setup.ForeColor = 0x123456;
    ASSERT_TRUE(SaveSetup(platform, setup));
    const QByteArray after = fileBytes(file);
    EXPECT_EQ(bytes.mid(8, 256), after.mid(8, 256));
    EXPECT_EQ(bytes.mid(270, 256), after.mid(270, 256)) << "its padding too";
    EXPECT_EQ(0x123456, wordAt(after, 2348, 4));
    setup.ImagesPath = "/new/";
    ASSERT_TRUE(SaveSetup(platform, setup));
    EXPECT_EQ(QByteArray("/new/").leftJustified(256, ' '), fileBytes(file).mid(8, 256));
}

TEST_F(SetupStore, TheFileIsTheUsersAloneAndNoLink)
{
    const Record setup = LoadSetup(platform);
    ASSERT_TRUE(SaveSetup(platform, setup));
    EXPECT_FALSE(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup));
    const QString victim = platform.folder.filePath("victim");
    putFile(victim, "victim");
    QFile::remove(file);
    QFile::link(victim, file);
    EXPECT_EQ(9600, LoadSetup(platform).FrameWidth);
    ASSERT_TRUE(SaveSetup(platform, setup));
    EXPECT_EQ("victim", fileBytes(victim));
    EXPECT_EQ(bytesOf(setup), fileBytes(file));
}

TEST_F(SetupStore, NoHalfAFileStaysOnAFullDisk)
{
    const std::vector<std::uint8_t> bytes(5000, 1);
    const QString path = platform.folder.filePath("work");
    {
        const FullDisk full(1000);
        EXPECT_FALSE(overwriteFile(path, bytes));
    }
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(SetupStore, TextsAreCutAtAWholeCharacter)
{
    const struct {
        QString text;
        QByteArray inFile;
    } kCases[] = {
        {QString(25, u'a'), QByteArray(25, 'a')},
        {QString(26, u'a'), QByteArray(25, 'a')},
        {QString(24, u'a') + u'\u00e9', QByteArray(24, 'a') + ' '},
        {QString(23, u'a') + u'\u00e9', QByteArray(23, 'a') + "\xc3\xa9"},
        {QString(22, u'a') + QStringLiteral("\U0001F600"), QByteArray(22, 'a') + "   "},
        {QString(9, u'\u20ac'), QByteArray("\xe2\x82\xac").repeated(8) + ' '},
    };
    for (const auto& c : kCases) {
        Record setup;
        setup.CurrentTool = c.text;
        EXPECT_EQ(c.inFile, bytesOf(setup).mid(2424, 25)) << c.text.toStdString();
    }
}

TEST_F(SetupStore, TheRecentListKeepsPlacesUntilItIsFull)
{
    Record setup;
    const auto path = [](int i) { return QStringLiteral("/p/%1.png").arg(i); };
    for (int i = 0; i < 8; ++i) AddRecent(setup, path(i));
    EXPECT_EQ(path(7), setup.Recent[7]);
    setup.Recent[3] += "   ";
    AddRecent(setup, path(3));
    EXPECT_EQ(path(3), setup.Recent[3]) << "a repeat keeps its place, and blanks are cut";
    EXPECT_EQ(path(0), setup.Recent[0]);
    AddRecent(setup, path(8));
    EXPECT_EQ(path(8), setup.Recent[0]);
    EXPECT_EQ(path(0), setup.Recent[1]);
    EXPECT_EQ(path(6), setup.Recent[7]) << "the last one fell off";
}

TEST(FileFound, MatchesWildcardsInTheLastPart)
{
    const QTemporaryDir folder;
    putFile(folder.filePath("a[1].dat"), {});
    QDir(folder.path()).mkdir("Temp");
    const std::pair<const char*, bool> kCases[] = {
        {"a[1].dat", true}, {"Temp", true},    {"b.dat", false}, {"*.dat", true}, {"*.bmp", false},
        {"a?1?.dat", true}, {"a?.dat", false}, {"*.*", true},    {"T*.*", true},  {"a[1]*", true},
        {"a[?", false},     {"*1].d*", true},  {"no/*", false},
    };
    for (const auto& [name, found] : kCases) EXPECT_EQ(found, FileFound(folder.filePath(name))) << name;
}

} // namespace
} // namespace velara
