// A picture that takes over its reader: everything that it could do to the user is tried from inside the cage, by a
// build of velara-decode whose reader does what the file says; as the user who runs the tests and, if that is root, as
// an ordinary user.
#include "fileio/decode/cage/Cage.h"
#include "fileio/load/PictureLoader.h"
#include "support/childProcess.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/places.h"
#include <QDirIterator>
#include <QProcess>
#include <sys/stat.h>
#include <sys/syscall.h>

namespace velara {

namespace {

struct Cage : FolderTest {
    Cage()
    {
        chmod(QFile::encodeName(folder.path()).constData(), 0777);
        EXPECT_TRUE(QFile::copy(builtPath("velara-decode-payload"), payload));
        putFile(victim, "precious");
        chmod(QFile::encodeName(victim).constData(), 0666);
    }
    /// The payload's report of an attempt inside the cage selected by the extension.
    QString attempt(const char* name, const QString& on, const char* cage)
    {
        return loadThroughDecoder(put("attempt", QByteArray(name) + '\n' + on.toUtf8()), cage, payload).reason;
    }
    QString answerTo(const char* name, const char* cage)
    {
        const QString address = QString::number(reinterpret_cast<quintptr>(&target), 16);
        const std::string_view text = name;
        if (text == "memory" || text == "direct") return attempt(name, address, cage);
        if (text == "connect") return attempt(name, "9", cage);
        if (text == "write" || text == "font") return attempt(name, font, cage);
        return attempt(name, text == "outlive" ? path("outlived") : victim, cage);
    }
    /// True when neither the file beside nor this process shows a trace of any attempt.
    bool untouched() const
    {
        return fileBytes(victim) == "precious" && target == 't' && !QFile::exists(victim + ".new") &&
               !QFile::exists(victim + ".link") && !QFile::exists(path("outlived"));
    }
    /// Runs the body in a process of an ordinary user, too, if this one is root's; its exit status reports failures.
    template <class Body> void asEveryUser(Body body)
    {
        body();
        if (getuid() != 0) return;
        EXPECT_EQ(0, chown(QFile::encodeName(folder.path()).constData(), kNobody, kNobody));
        QFile::remove(path("attempt"));
        asAnOrdinaryUser(body);
    }

    const QString payload = path("velara-decode"), victim = path("precious.txt");
    const QString font =
        QDirIterator("/usr/share/fonts", QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories).next();
    volatile char target = 't';
};

constexpr const char* kAttempts[] = {"read",  "create",  "write",   "truncate", "link",   "unlink",  "list",  "map",
                                     "shell", "outlive", "connect", "display",  "memory", "direct",  "trace", "signal",
                                     "code",  "stat",    "exists",  "root",     "thread", "requeue", "advice"};

} // namespace

#ifndef __SANITIZE_ADDRESS__ // the filter of system calls is off there

TEST_F(Cage, RefusesEverythingThatAPictureNeverNeeds)
{
    asEveryUser([&] {
        EXPECT_TRUE(answerTo("nothing", "plain").endsWith("it worked")) << "the payload doesn't answer";
        for (const char* name : kAttempts)
            EXPECT_TRUE(answerTo(name, "plain").endsWith("wanted what no picture needs"))
                << name << ": " << answerTo(name, "plain").toStdString();
        for (const char* name : kAttempts) // the cage for fonts is a little wider: some calls return an error instead
            EXPECT_FALSE(answerTo(name, "fonts").endsWith("it worked")) << name;
        for (const char* name : {"list", "outlive", "connect", "direct", "thread", "requeue", "advice", "code"})
            EXPECT_TRUE(answerTo(name, "fonts").endsWith("no picture needs") || std::string_view(name) == "list")
                << name << ": " << answerTo(name, "fonts").toStdString();
        EXPECT_TRUE(answerTo("font", "fonts").endsWith("it worked")) << answerTo("font", "fonts").toStdString();
        EXPECT_TRUE(answerTo("font", "plain").endsWith("no picture needs"));
        DecoderLimits wide; // the reader's own limit
        wide.memory *= 4;
        for (const char* cage : {"plain", "fonts"})
            EXPECT_TRUE(loadThroughDecoder(put("attempt", "space\n"), cage, payload, wide)
                            .reason.endsWith("refused: Cannot allocate memory"))
                << cage;
        EXPECT_TRUE(untouched());
    });
}

#endif

// The layers work one by one: without the filter the kernel's own rules for paths, ports and processes remain.
TEST_F(Cage, HoldsWithoutTheFilterOfSystemCalls)
{
    QProcess cage;
    cage.start(builtPath("velara-decode"), {"--cage"});
    ASSERT_TRUE(cage.waitForFinished());
    if (!cage.readAllStandardOutput().contains("Landlock: no path, no port: holds")) GTEST_SKIP();
    asEveryUser([&] {
        EXPECT_TRUE(answerTo("nothing", "nofilter").endsWith("it worked")) << "the payload doesn't answer";
        for (const char* name : {"read", "create", "write", "link", "unlink", "list", "map", "shell", "memory",
                                 "direct", "trace", "root", "font"})
            EXPECT_TRUE(answerTo(name, "nofilter").contains("refused: "))
                << name << ": " << answerTo(name, "nofilter").toStdString();
        EXPECT_TRUE(untouched());
    });
}

// If a layer that the kernel supports can't be activated, nothing is read. A kernel without Landlock reads.
TEST(CageOfTheReader, ReadsNothingWhenALayerStaysOpen)
{
    const QTemporaryDir folder;
    const QString picture = folder.filePath("a.ppm");
    putFile(picture, "P6\n1 1\n255\n\1\2\3");
    const struct {
        long call;
        unsigned error;
        const char* reason;
    } kRows[] = {{SYS_landlock_restrict_self, EPERM, "Landlock"},
                 {SYS_landlock_create_ruleset, EPERM, "Landlock"},
                 {SYS_landlock_create_ruleset, ENOSYS, nullptr},
                 {SYS_capset, EPERM, "capabilities"},
#ifndef __SANITIZE_ADDRESS__ // without these two
                 {SYS_prlimit64, EPERM, "limits"},
                 {SYS_seccomp, EPERM, "seccomp"},
#endif
                 {SYS_prctl, EPERM, "no new privileges"}};
    for (const auto& row : kRows)
        inAChild(std::to_string(row.call), [&] {
            refuseCall(row.call, row.error);
            const QString wanted = row.reason ? QString("locked in (%1").arg(row.reason) : QString();
            const LoadedPicture read = loadThroughDecoder(picture, "ppm", builtPath("velara-decode"));
            EXPECT_EQ(read.ok(), !row.reason) << row.call;
            EXPECT_TRUE(read.reason.contains(wanted)) << read.reason.toStdString();
            QProcess cage;
            cage.start(builtPath("velara-decode"), {"--cage"});
            EXPECT_TRUE(cage.waitForFinished());
            EXPECT_EQ(cage.exitCode(), 1);
        });
}

} // namespace velara
