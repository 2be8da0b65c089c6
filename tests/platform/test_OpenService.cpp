// What the desktop asks of the editor over a bus, and what velara-open asks over a socket.
#include "PrivateBus.h"
#include "fileio/disk/nativeName.h"
#include "platform/opening/OpenService.h"
#include "platform/opening/fileUri.h"
#include "platform/opening/places.h"
#include <unistd.h>

namespace velara {

namespace {

struct Recorded final : OpenRequests {
    QStringList log;
    std::vector<Done> answers;
    void activate(const ActivationToken& token) override { log << "activate " + token.startupId + '/' + token.wayland; }
    void open(const QStringList& uris, bool tells, Done done) override
    {
        log << "open " + uris.join(' ') + (tells ? " tells" : "");
        answers.push_back(std::move(done));
    }
    void act(const QString& action) override { log << "act " + action; }
};

/// A call by gdbus, as a desktop's programs make it; its output once it has ended.
QString gdbus(const QString& address, const QStringList& arguments)
{
    QProcess caller;
    caller.setProcessChannelMode(QProcess::MergedChannels);
    caller.start("gdbus", QStringList{"call", "--address", address, "--dest", kStudioService, "--object-path",
                                      kStudioPath, "--method"} +
                              arguments);
    EXPECT_TRUE(comes([&] { return caller.state() == QProcess::NotRunning; }));
    return QString::fromUtf8(caller.readAll()).trimmed();
}

} // namespace

TEST(OpenService, FilesSurviveAsUris)
{
    const QByteArray names[] = {"/a b.png", "/\xc3\xbc%41#?.png", "/old\xfc\xff.gif", "/line\nend"};
    for (const QByteArray& name : names) {
        const QString uri = uriOf(nameFrom(name));
        EXPECT_TRUE(QUrl(uri, QUrl::StrictMode).isValid()) << name.constData();
        EXPECT_EQ(nativeName(pathOf(uri).value_or("")), name);
    }
    EXPECT_EQ(pathOf("FILE://localhost/a%20b"), "/a b");
    EXPECT_EQ(pathOf("file:/a"), "/a");
    for (const char* none : {"http://x/a.png", "file://elsewhere/a", "a.png", "", "file:", "file:a", "file:///a%00b"})
        EXPECT_FALSE(pathOf(none)) << none;
}

TEST(OpenService, TheDesktopAsksOverTheBus)
{
    if (QStandardPaths::findExecutable("gdbus").isEmpty()) GTEST_SKIP() << "no gdbus here";
    PrivateBus bus;
    Recorded requests, later;
    auto service = std::make_unique<OpenService>(requests);
    ASSERT_TRUE(service->serve(bus.connection()));
    const QString call = kApplicationInterface + '.';
    EXPECT_EQ(gdbus(bus.address(), {call + "Activate", "{'activation-token': <'w1'>}"}), "()");
    EXPECT_EQ(gdbus(bus.address(),
                    {call + "Open", "['file:///a%20b.png', 'file:///%FF']", "{'desktop-startup-id': <'x_TIME5'>}"}),
              "()");
    EXPECT_EQ(gdbus(bus.address(), {call + "ActivateAction", "browse", "[<'unused'>]", "{}"}), "()");
    EXPECT_EQ(requests.log, QStringList({"activate /w1", "activate x_TIME5/",
                                         "open file:///a%20b.png file:///%FF tells", "activate /", "act browse"}));

    // The next editor has the name as soon as the first one has ended.
    OpenService next(later);
    QDBusConnection other = QDBusConnection::connectToBus(bus.address(), "other");
    ASSERT_TRUE(next.serve(other));
    service.reset();
    EXPECT_EQ(gdbus(bus.address(), {call + "Activate", "{}"}), "()");
    EXPECT_EQ(later.log, QStringList{"activate /"});
    QDBusConnection::disconnectFromBus("other");
}

TEST(OpenService, ASocketAnswersWhenTheFilesAreReadOrTheEditorEnds)
{
    const QTemporaryDir folder;
    const QString socket = folder.filePath("a ~b.socket"); // an address escapes some of it
    Recorded requests;
    auto service = std::make_unique<OpenService>(requests);
    ASSERT_TRUE(service->listen(socket));
    EXPECT_FALSE(OpenService(requests).listen("/proc/none/socket"));
    const QDBusConnection caller = QDBusConnection::connectToPeer(addressOf(socket), "caller");
    const auto ask = [&](const QString& uri) {
        auto call = QDBusMessage::createMethodCall({}, kStudioPath, kStudioInterface, "OpenFiles");
        call.setArguments({QStringList{uri, "file:///2"}, QVariantMap{{"activation-token", "t"}}});
        return caller.asyncCall(call);
    };
    const auto first = ask("file:///1"), second = ask("file:///3");
    ASSERT_TRUE(comes([&] { return requests.answers.size() == 2; }));
    EXPECT_EQ(requests.log,
              QStringList({"activate /t", "open file:///1 file:///2", "activate /t", "open file:///3 file:///2"}));
    EXPECT_FALSE(first.isFinished());
    requests.answers[0]({"", "it is damaged"});
    ASSERT_TRUE(comes([&] { return first.isFinished(); }));
    EXPECT_EQ(first.reply().arguments().value(0).toStringList(), QStringList({"", "it is damaged"}));
    service.reset();
    ASSERT_TRUE(comes([&] { return second.isFinished(); }));
    EXPECT_EQ(second.error().name(), kEnded);
    requests.answers[1]({"", ""}); // too late, and harmless
    EXPECT_FALSE(QFile::exists(socket));
    QDBusConnection::disconnectFromPeer("caller");
}

TEST(OpenService, SocketsOfTheDeadAreRemovedAndOthersLeftAlone)
{
    const QTemporaryDir run;
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(run.path()));
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", "7");
    QProcess dead;
    dead.start("true");
    const auto gone = pid_t(dead.processId());
    dead.waitForFinished();
    const QString ours = socketOf(getpid()), other = run.filePath("velara-studio-7-8-1.socket");
    for (const QString& name : {socketOf(gone), ours, other}) QFile(name).open(QIODevice::WriteOnly);
    EXPECT_EQ(sockets(), QStringList{ours});
    EXPECT_FALSE(QFile::exists(socketOf(gone)));
    EXPECT_TRUE(QFile::exists(other)) << "of the session \"7-8\"";
    display.isEmpty() ? qunsetenv("DISPLAY") : qputenv("DISPLAY", display);
}

} // namespace velara
