// A picture that takes its reader over: each thing that it could do to the user is tried from inside the cage, by a
// build of velara-decode whose reader does what the file says; as whoever runs the tests and, for root, as an ordinary
// user.
#include "fileio/decode/Cage.h"
#include "fileio/load/PictureLoader.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/places.h"
#include <QDirIterator>
#include <QProcess>
#include <sys/stat.h>
#include <sys/wait.h>

namespace velara {

namespace {

constexpr uid_t kNobody = 65534;

struct Cage : FolderTest {
    Cage()
    {
        chmod(QFile::encodeName(folder.path()).constData(), 0777);
        EXPECT_TRUE(QFile::copy(builtPath("velara-decode-payload"), payload));
        putFile(victim, "precious");
        chmod(QFile::encodeName(victim).constData(), 0666);
    }
    /// What the payload says of an attempt from inside the cage that the extension names.
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
        if (text == "write") return attempt(name, font, cage);
        return attempt(name, text == "outlive" ? path("outlived") : victim, cage);
    }
    /// True when neither the file beside nor this process shows a trace of any attempt.
    bool untouched() const
    {
        return fileBytes(victim) == "precious" && target == 't' && !QFile::exists(victim + ".new") &&
               !QFile::exists(victim + ".link") && !QFile::exists(path("outlived"));
    }
    /// Runs the body in a process of an ordinary user too, when this one is root's; it fails by its exit code.
    template <class Body> void asEveryUser(Body body)
    {
        body();
        if (getuid() != 0) return;
        EXPECT_EQ(0, chown(QFile::encodeName(folder.path()).constData(), kNobody, kNobody));
        QFile::remove(path("attempt"));
        const pid_t child = fork();
        if (child == 0) {
            if (setgid(kNobody) != 0 || setuid(kNobody) != 0) _exit(2);
            body();
            _exit(HasFailure());
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0) << "as an ordinary user";
    }

    const QString payload = path("velara-decode"), victim = path("precious.txt");
    const QString font =
        QDirIterator("/usr/share/fonts", QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories).next();
    volatile char target = 't';
};

constexpr const char* kAttempts[] = {"read",   "create", "write", "truncate", "link",    "unlink",
                                     "list",   "map",    "shell", "outlive",  "connect", "display",
                                     "memory", "direct", "trace", "signal",   "code"};

} // namespace

#ifndef __SANITIZE_ADDRESS__ // the filter of system calls is open there

TEST_F(Cage, RefusesEverythingThatAPictureNeverNeeds)
{
    asEveryUser([&] {
        EXPECT_TRUE(answerTo("nothing", "plain").endsWith("it worked")) << "the payload doesn't answer";
        for (const char* name : kAttempts)
            EXPECT_TRUE(answerTo(name, "plain").endsWith("wanted what no picture needs"))
                << name << ": " << answerTo(name, "plain").toStdString();
        for (const char* name : kAttempts) // reading fonts is a little wider: some of it comes back as an error
            EXPECT_FALSE(answerTo(name, "fonts").endsWith("it worked")) << name;
        EXPECT_TRUE(untouched());
    });
}

#endif

// The layers hold one by one: without the filter the kernel's own rules for paths, ports and processes are left.
TEST_F(Cage, HoldsWithoutTheFilterOfSystemCalls)
{
    QProcess cage;
    cage.start(builtPath("velara-decode"), {"--cage"});
    ASSERT_TRUE(cage.waitForFinished());
    if (!cage.readAllStandardOutput().contains("Landlock: no path, no port: holds")) GTEST_SKIP();
    asEveryUser([&] {
        EXPECT_TRUE(answerTo("nothing", "nofilter").endsWith("it worked")) << "the payload doesn't answer";
        for (const char* name :
             {"read", "create", "write", "link", "unlink", "list", "map", "shell", "memory", "direct", "trace"})
            EXPECT_TRUE(answerTo(name, "nofilter").contains("refused: "))
                << name << ": " << answerTo(name, "nofilter").toStdString();
        EXPECT_TRUE(untouched());
    });
}

} // namespace velara
