// Pages as PDF files, rendered by another program, and sent to a private print server.
#include "PrivateBus.h"
#include "commands/printing.h"
#include "fileio/writers/pagePdf.h"
#include "platform/desktop/printing/CupsPrinters.h"
#include "support/RecordingPlatform.h"
#include "support/files.h"
#include "support/pictures.h"
#include <QtWidgets>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace velara {

namespace {

/// cupsd in a folder of its own: received jobs stay in the spool.
class PrintServer {
  public:
    PrintServer()
    {
        for (const char* name : {"root", "run", "cache", "spool", "tmp"}) QDir(path()).mkdir(name);
        write("refusing.ppd", "*PPD-Adobe: \"4.3\"\n*cupsFilter: \"application/pdf 0 nothing\"\n"
                              "*OpenUI *PageSize: PickOne\n*DefaultPageSize: A4\n*PageSize A5: \"\"\n"
                              "*PageSize A4: \"\"\n*CloseUI: *PageSize\n*ImageableArea A5: \"9 71 411 586\"\n"
                              "*ImageableArea A4: \"9 71 586 833\"\n*PaperDimension A5: \"420 595\"\n"
                              "*PaperDimension A4: \"595 842\"\n");
        write("cupsd.conf", "Listen " + path() +
                                "/run/sock\nBrowsing Off\nDefaultAuthType None\nMaxCopies 7\nDirtyCleanInterval 0\n" +
                                "<Location />\nAllow all\n</Location>\n<Location /admin>\nAllow all\n</Location>\n" +
                                "<Policy default>\n<Limit All>\nOrder allow,deny\n</Limit>\n</Policy>\n");
        write("files.conf", "ServerRoot " + path() + "/root\nStateDir " + path() + "/run\nCacheDir " + path() +
                                "/cache\nRequestRoot " + path() + "/spool\nTempDir " + path() +
                                "/tmp\nFileDevice Yes\nAccessLog /dev/null\nPageLog /dev/null\nErrorLog " + path() +
                                "/log\n");
        server_.start("/usr/sbin/cupsd", {"-f", "-c", path() + "/cupsd.conf", "-s", path() + "/files.conf"});
        qputenv("CUPS_SERVER", (path() + "/run/sock").toUtf8());
    }
    ~PrintServer()
    {
        kill();
        qunsetenv("CUPS_SERVER");
    }
    bool runs()
    {
        return comes([this] { return QFile::exists(path() + "/run/sock"); });
    }
    void kill()
    {
        server_.kill();
        server_.waitForFinished();
    }
    bool admin(const QStringList& arguments, const QString& program = "lpadmin")
    {
        return QProcess::execute("/usr/sbin/" + program, arguments) == 0;
    }
    /// All jobs that are finished, and those that are not.
    static QByteArray jobs(const QString& which)
    {
        QProcess lpstat;
        lpstat.start("lpstat", {"-W", which});
        lpstat.waitForFinished();
        return lpstat.readAllStandardOutput();
    }
    QString path() const { return folder_.path(); }
    QByteArray spooled(const QString& name) { return fileBytes(path() + "/spool/" + name); }

  private:
    void write(const QString& name, const QString& text) { putFile(folder_.filePath(name), text.toUtf8()); }
    QTemporaryDir folder_;
    QProcess server_;
};

/// Accepts connections and sends a byte now and then, so that no single step ever takes long.
class DrippingServer {
  public:
    DrippingServer()
    {
        sockaddr_in address{AF_INET, 0, {htonl(INADDR_LOOPBACK)}, {}};
        socklen_t size = sizeof address;
        bind(sockets_[0], reinterpret_cast<sockaddr*>(&address), size);
        listen(sockets_[0], 9);
        getsockname(sockets_[0], reinterpret_cast<sockaddr*>(&address), &size);
        qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(ntohs(address.sin_port)));
        QObject::connect(&drip_, &QTimer::timeout, [this] {
            for (qsizetype i = 1; i < sockets_.size(); ++i) send(sockets_[i], "H", 1, MSG_NOSIGNAL);
            if (const int client = accept(sockets_[0], nullptr, nullptr); client >= 0) sockets_ << client;
        });
        drip_.start(50);
    }
    ~DrippingServer()
    {
        qunsetenv("CUPS_SERVER");
        for (const int each : sockets_) close(each);
    }

  private:
    QList<int> sockets_{socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)}; // the first listens
    QTimer drip_;
};

struct CupsPrintersTest : FolderTest {
    RecordingPlatform platform;
    CupsPrinters printers{platform};
    Printers::Request request; // of the last question

    static PrintPage page(PageOrientation orientation, bool fit, QSize size = {96, 48})
    {
        PrintPage page;
        page.picture = flatBits(size.width(), size.height(), 200, 40, 20);
        page.title = "a picture";
        PrintPictureToFitPage(page, orientation, true, fit);
        return page;
    }
    /// The result of printing a page; empty: it is printed.
    QString toFile(const PrintPage& page, const QString& path)
    {
        return answerTo<PrintResult>([&](auto done) { request = printers.printToFile(path, page, done); }).fault;
    }
    PrintResult toPrinter(const QString& name, const PrintPage& page)
    {
        return answerTo<PrintResult>([&](auto done) { request = printers.print(name, page, done); });
    }
    /// What comes out of a printer that turns pages by an angle where they lie across the sheet, and that can't reach
    /// its margins; as viewed.
    static QImage printed(QImage page, const PrintPage& wanted, int angle)
    {
        const Paper& paper = wanted.paper;
        if ((page.width() > page.height()) != (paper.size.width() > paper.size.height()))
            page = page.transformed(QTransform().rotate(angle));
        QImage sheet = page.convertToFormat(QImage::Format_RGB32);
        sheet.fill(Qt::white);
        const QRectF reached = QRectF({0, 0}, paper.size).marginsRemoved(paper.margins);
        const QRect dots(reached.topLeft().toPoint() * 10, reached.size().toSize() * 10);
        QPainter(&sheet).drawImage(dots.topLeft(), page, dots);
        return wanted.paper.turned(wanted.orientation) ? sheet.transformed(QTransform().rotate(90)) : sheet;
    }
    PrinterFacts facts(const QString& name)
    {
        return answerTo<PrinterFacts>([&](auto done) { request = printers.facts(name, done); });
    }
    Printers::List list()
    {
        return answerTo<Printers::List>([&](auto done) { request = printers.list(done); });
    }
    /// The first page at ten dots per millimetre.
    static QImage rendered(const QString& pdf)
    {
        QProcess::execute("pdftoppm", {"-r", "254", "-png", "-singlefile", pdf, pdf});
        return QImage(pdf + ".png");
    }
    /// The bounding box of non-white pixels, in millimetres.
    static QRectF inked(const QImage& image)
    {
        QRect box;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qGray(image.pixel(x, y)) < 128) box |= QRect(x, y, 1, 1);
        return {box.left() / 10.0, box.top() / 10.0, box.width() / 10.0, box.height() / 10.0};
    }
    static void expectNear(const QRectF& got, const QRectF& wanted)
    {
        EXPECT_LE((got.topLeft() - wanted.topLeft()).manhattanLength(), 0.5) << got.x() << ' ' << got.y();
        EXPECT_NEAR(got.width(), wanted.width(), 0.3);
        EXPECT_NEAR(got.height(), wanted.height(), 0.3);
    }
};

} // namespace

TEST_F(CupsPrintersTest, AFileShowsThePictureInItsPlace)
{
    const QString pdf = path("page.pdf");
    for (const PageOrientation orientation : {PageOrientation::Portrait, PageOrientation::Landscape})
        for (const bool fit : {false, true}) {
            PrintPage wanted = page(orientation, fit);
            wanted.gray = fit;
            EXPECT_EQ(toFile(wanted, pdf), "");
            const QImage got = rendered(pdf);
            const QSizeF sheet = wanted.paper.sheet(orientation);
            EXPECT_NEAR(got.width() / 10.0, sheet.width(), 0.5);
            EXPECT_NEAR(got.height() / 10.0, sheet.height(), 0.5);
            expectNear(inked(got), wanted.place);
            const QPointF middle = wanted.place.center() * 10;
            EXPECT_EQ(got.pixel(middle.toPoint()), fit ? qRgb(64, 64, 64) : qRgb(20, 40, 200));
        }
}

TEST_F(CupsPrintersTest, WhicheverWayAPrinterTurnsNothingIsLost)
{
    for (const PageOrientation orientation : {PageOrientation::Portrait, PageOrientation::Landscape})
        for (const QSizeF size : {QSizeF(210, 297), QSizeF(90, 40)})
            for (const int angle : {90, -90}) {
                PrintPage wanted = page(orientation, true);
                for (int y = 0; y < 48; ++y) std::fill_n(wanted.picture.row(y) + 48, 48, Pixel{{255, 255, 255, 0}});
                wanted.paper = {{}, size, {3, 4, 5, 15}};
                PrintPictureToFitPage(wanted, orientation, false, true);
                EXPECT_EQ(writePagePdf(
                              path("page.pdf"), wanted, [] { return true; }, PageTurn::AsFed),
                          "");
                const QImage sheet = printed(rendered(path("page.pdf")), wanted, angle);
                SCOPED_TRACE(testing::Message() << angle << ' ' << sheet.width());
                EXPECT_EQ(sheet.width() > sheet.height(), orientation == PageOrientation::Landscape);
                const QRectF place = wanted.place;
                expectNear(inked(sheet), {place.topLeft(), QSizeF(place.width() / 2, place.height())});
            }
}

TEST_F(CupsPrintersTest, QualitySaysHowFineAPictureIsStored)
{
    const QString pdf = path("page.pdf");
    PrintPage fine = page(PageOrientation::Portrait, true, {3000, 3000}); // 200 mm wide: 381 dpi
    fine.picture = randomBits(3000, 3000, 1);
    qint64 last = 0;
    for (const PrintQuality quality : {PrintQuality::Draft, PrintQuality::Low, PrintQuality::Medium}) {
        fine.quality = quality;
        EXPECT_EQ(toFile(fine, pdf), "");
        EXPECT_GT(QFileInfo(pdf).size(), last * 3 / 2);
        last = QFileInfo(pdf).size();
    }
}

TEST_F(CupsPrintersTest, AFileThatCantBeWrittenStaysAsItWas)
{
    EXPECT_NE(toFile(page(PageOrientation::Portrait, true), path("no/such/folder.pdf")), "");
    request = printers.printToFile(path("out.pdf"), page(PageOrientation::Portrait, true),
                                   [](const PrintResult&) { ADD_FAILURE() << "nobody waits for it"; });
    request.reset();
    list(); // waits until it is processed
    EXPECT_TRUE(list().names.isEmpty() || !list().current.isEmpty());
}

TEST_F(CupsPrintersTest, AServerGetsThePageWithItsOptions)
{
    if (geteuid() != 0 || !QFile::exists("/usr/sbin/cupsd")) GTEST_SKIP() << "a print server of one's own wants root";
    PrintServer server;
    ASSERT_TRUE(server.runs());
    EXPECT_TRUE(list().names.isEmpty());
    ASSERT_TRUE(server.admin({"-p", "Attic", "-E", "-v", "file:///dev/null"}));
    ASSERT_TRUE(server.admin({"-p", "Lab", "-E", "-v", "file:///dev/null"}));
    EXPECT_EQ(list().names, (QStringList{"Attic", "Lab"}));
    EXPECT_EQ(list().current, "Attic"); // none has been chosen
    ASSERT_TRUE(server.admin({"-d", "Lab"}));
    EXPECT_EQ(list().current, "Lab");
    printers.setCurrent("Attic");
    EXPECT_EQ(list().current, "Attic"); // ours takes precedence over the system's
    printers.setCurrent("gone");
    EXPECT_EQ(list().current, "Lab");
    const auto options = [&](const QString& printer) {
        return answerTo<Printers::Options>([&](auto done) { request = printers.options(printer, done); });
    };
    const Paper a5 = options("").papers[3];
    printers.choose({"Lab", a5, true});
    EXPECT_EQ(options("Lab").papers.front().name, a5.name);
    EXPECT_TRUE(options("Lab").gray);
    printers.choose({"", a5, false});
    EXPECT_EQ(list().current, "") << "a file";
    EXPECT_EQ(printers.fileFacts().paper.size, a5.size);
    EXPECT_TRUE(options("Lab").gray) << "each printer keeps its choice";
    printers.setCurrent("Lab");

    PrintPage wanted = page(PageOrientation::Landscape, false);
    wanted.copies = 3;
    wanted.quality = PrintQuality::High;
    EXPECT_EQ(toPrinter("Lab", wanted).fault, "");
    const QImage spooled = rendered(put("spooled.pdf", server.spooled("d00001-001")));
    expectNear(inked(printed(spooled, wanted, 0)), wanted.place);
    QByteArray job; // written when the server gets round to it
    EXPECT_TRUE(comes([&] { return (job = server.spooled("c00001")).contains("a picture"); }));
    EXPECT_TRUE(job.contains(QByteArray("copies\0\4\0\0\0\3", 12)));
    EXPECT_TRUE(job.contains(QByteArray("print-quality\0\4\0\0\0\5", 19)));

    EXPECT_EQ(std::pair(facts("Lab").mostCopies, facts("Lab").gray), std::pair(7, true));

    ASSERT_TRUE(server.admin({"-x", "Lab"}));
    EXPECT_EQ(toPrinter("Lab", wanted).fault, "there is no printer Lab any more");
    server.kill();
    EXPECT_EQ(toPrinter("Attic", wanted).fault, "the print server does not answer");
    EXPECT_TRUE(list().names.isEmpty());
}

TEST_F(CupsPrintersTest, AJobIsFollowedUntilItIsTakenOrRefused)
{
    if (geteuid() != 0 || !QFile::exists("/usr/sbin/cupsd")) GTEST_SKIP() << "a print server of one's own wants root";
    PrintServer server;
    ASSERT_TRUE(server.runs());
    for (const char* name : {"Idle", "Refusing", "Holding"})
        ASSERT_TRUE(server.admin({"-p", name, "-E", "-v", "file:///dev/null"}));
    ASSERT_TRUE(server.admin({"-p", "Refusing", "-P", server.path() + "/refusing.ppd"}));
    ASSERT_TRUE(server.admin({"-p", "Holding", "-o", "job-hold-until-default=indefinite"}));
    ASSERT_TRUE(server.admin({"Idle"}, "cupsdisable"));
    const PrintPage wanted = page(PageOrientation::Portrait, false);
    EXPECT_EQ(facts("Refusing").paper.name, "iso_a4_210x297mm");
    EXPECT_NEAR(facts("Refusing").paper.margins.bottom(), 25, 0.1);
    EXPECT_EQ(toPrinter("Refusing", wanted).fault, "Refusing refused the page");
    EXPECT_EQ(server.jobs("not-completed"), "") << "nor will it be printed later";
    const PrintResult waiting = toPrinter("Idle", wanted);
    EXPECT_EQ(waiting.fault + waiting.notice, "The printer Idle is paused. The page waits in its queue.");
    EXPECT_TRUE(server.jobs("not-completed").contains("Idle-2"));
    ASSERT_TRUE(server.admin({"Idle"}, "cupsenable"));
    EXPECT_EQ(toPrinter("Idle", wanted).fault, "");
    request = printers.print("Holding", wanted, [](const PrintResult&) { ADD_FAILURE() << "nobody waits for it"; });
    EXPECT_TRUE(comes([&] { return server.jobs("not-completed").contains("Holding-4"); }));
    request.reset();
    EXPECT_TRUE(comes([&] { return server.jobs("completed").contains("Holding-4"); })) << "it is cancelled";
}

TEST_F(CupsPrintersTest, ADrippingServerCostsTenSecondsInAllAndNeverTheWindow)
{
    const DrippingServer server;
    QElapsedTimer timer;
    timer.start();
    std::optional<Printers::List> listed;
    std::optional<Printers::Options> known;
    qint64 inFile = 0;
    const Printers::Request asked[] = {
        printers.list([&](const Printers::List& list) { listed = list; }),
        printers.options("Lab", [&](const Printers::Options& options) { known = options; }),
        printers.printToFile(path("out.pdf"), page(PageOrientation::Portrait, true),
                             [&](const PrintResult&) { inFile = timer.elapsed(); })};
    qint64 last = 0, longest = 0;
    EXPECT_TRUE(comes([&] {
        longest = std::max(longest, timer.elapsed() - std::exchange(last, timer.elapsed()));
        return listed && known;
    }));
    EXPECT_EQ(listed->reason, "the print server does not answer");
    EXPECT_EQ(known->papers.size(), 5u) << "the usual ones";
    EXPECT_TRUE(inFile > 0 && inFile < 9000) << inFile << ": a file waits for no server";
    EXPECT_TRUE(timer.elapsed() > 9000 && timer.elapsed() < 15000) << timer.elapsed();
    EXPECT_LT(longest, 1000);
    RecordProperty("longest_pause_ms", static_cast<int>(longest));
}

} // namespace velara
