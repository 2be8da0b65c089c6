// velara-monkey: random actions on the whole editor, without a display, and checks of the resulting state. A fault is
// reported with the seed and the number of its action, which reproduce it as far as threads permit; the exit status is
// then 1.
//
//   velara-monkey [--seconds N | --actions N] [--seed N] [--journal FILE]
//
// The editor runs in a child process with home, program folder and working folder inside a scratch folder, and can
// write nowhere else.
#include "app/menus/fMenuStyle.h"
#include "tools/monkey/Monkey.h"
#include "tools/monkey/confine.h"
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTemporaryDir>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velara::monkey {

namespace {

constexpr int kLastActions = 25; // reported with a fault

/// Exceptions that no command has caught end here, as in the editor.
class Application final : public QApplication {
  public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception& failure) {
            std::fprintf(stderr, "an exception was dropped: %s\n", failure.what());
            return false;
        }
    }
};

/// Nothing of the user's own is accessible: no home, no desktop, no programs.
void moveInto(const QString& scratch)
{
    for (const char* folder : {"home", "run", "temporary", "here"}) QDir(scratch).mkdir(folder);
    QFile::setPermissions(scratch + "/run", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const auto set = [&](const char* name, const char* folder) {
        qputenv(name, (scratch + "/" + folder).toLocal8Bit());
    };
    set("HOME", "home");
    set("XDG_CONFIG_HOME", "home/.config");
    set("XDG_DATA_HOME", "home/.local");
    set("XDG_CACHE_HOME", "home/.cache");
    set("XDG_RUNTIME_DIR", "run");
    set("TMPDIR", "temporary");
    set("PATH", "no-programs");
    qputenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + scratch + "/no-bus").toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1");   // timers and events in a fixed order
    qputenv("QT_HASH_SEED", "0"); // and sets
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_CURRENT_DESKTOP", "QT_SCALE_FACTOR"}) qunsetenv(name);
    QDir::setCurrent(scratch + "/here");
}

int runChild(int argc, char** argv, const Plan& plan)
{
    moveInto(plan.scratch);
    mallopt(M_PERTURB, 0xA5); // fills freed memory, without sanitizers, too
    if (!writeOnlyBelow(plan.scratch.toLocal8Bit().constData()))
        std::fprintf(stderr, "no Landlock here: only the folders keep the monkey in\n");
    Application application(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    application.setQuitOnLastWindowClosed(false);
    application.setStyle(new fMenuStyle);
    Journal journal(plan.scratch + "/journal");
    return Monkey(plan, journal).run() > 0;
}

Plan planOf(const QCommandLineParser& line)
{
    const QByteArray seed = qgetenv("VELARA_SEED");
    Plan plan;
    plan.seed = line.isSet("seed") ? line.value("seed").toULongLong()
                : seed.isEmpty()   ? static_cast<std::uint64_t>(std::time(nullptr))
                                   : seed.toULongLong();
    plan.actions = line.value("actions").toULongLong();
    plan.seconds = line.value("seconds").toInt();
    plan.journal = line.value("journal");
    return plan;
}

int run(int argc, char** argv, Plan plan)
{
    const QTemporaryDir scratch;
    plan.scratch = QDir(scratch.path()).canonicalPath();
    std::printf("seed %llu\n", static_cast<unsigned long long>(plan.seed));
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        const int faults = runChild(argc, argv, plan);
        std::fflush(stdout);
        _exit(faults);
    }
    std::signal(SIGINT, SIG_IGN); // it is for the child
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) return 2;
    if (!plan.journal.isEmpty()) {
        QFile::remove(plan.journal);
        QFile::copy(plan.scratch + "/journal", plan.journal);
    }
    if (status == 0) return 0;
    std::fprintf(stderr, "FAULT with seed %llu: the editor %s %d\nthe last actions:%s\n",
                 static_cast<unsigned long long>(plan.seed), WIFSIGNALED(status) ? "died of signal" : "ended with",
                 WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status),
                 qUtf8Printable(Journal::tail(plan.scratch + "/journal", kLastActions)));
    return 1;
}

} // namespace

} // namespace velara::monkey

int main(int argc, char** argv)
{
    QCommandLineParser line;
    line.addHelpOption();
    line.addOptions({{"seconds", "how long", "N", "120"},
                     {"actions", "how many actions, whatever the time", "N", "0"},
                     {"journal", "where the list of the actions goes", "FILE"},
                     {"seed", "what the actions are rolled from; else VELARA_SEED, else the clock", "N"}});
    QStringList words;
    for (int i = 0; i < argc; ++i) words << QString::fromLocal8Bit(argv[i]);
    if (!line.parse(words) || line.isSet("help")) {
        std::fputs(qUtf8Printable(line.helpText()), stderr);
        return 2;
    }
    return velara::monkey::run(argc, argv, velara::monkey::planOf(line));
}
