// Ends that the user didn't choose: the signals run the ordinary close, and an unanswered question has a time limit.
#include "app/frame/frameTest.h"
#include "app/start/SessionEnd.h"
#include <QtTest>
#include <csignal>

namespace velara {

namespace {

struct SessionEndTest : FrameTest {
    int left = 0;
    std::unique_ptr<SessionEnd> end;

    void begin(std::chrono::milliseconds patience)
    {
        for (const int signal : {SIGTERM, SIGHUP, SIGINT}) std::signal(signal, SIG_DFL); // ignored in the background
        end = std::make_unique<SessionEnd>(*frame, patience, [this] { ++left; });
        frame->adopt(randomBits(8, 8, 1), "Scan.bmp");
    }
    void TearDown() override
    {
        platform.onAsk = nullptr;
        end.reset();
        FrameTest::TearDown();
    }
    static void send(int signal)
    {
        std::raise(signal);
        QCoreApplication::processEvents();
    }
    long questions() const
    {
        return std::ranges::count_if(platform.log, [](const auto& line) { return line.starts_with("ask: "); });
    }
};

} // namespace

TEST_F(SessionEndTest, EachSignalAsksAndCancelKeepsTheProgram)
{
    begin(std::chrono::minutes(1));
    int asked = 0;
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        send(signal);
        EXPECT_EQ(questions(), ++asked);
        EXPECT_TRUE(frame->isVisible());
        EXPECT_FALSE(end->findChild<QTimer*>()->isActive()) << "it was answered";
    }
    platform.answers = {"no"};
    send(SIGTERM);
    EXPECT_FALSE(frame->isVisible());
    frame->workspace().wait();
    EXPECT_TRUE(QDir(path("Temp")).isEmpty());
}

TEST_F(SessionEndTest, WhileTheQuestionStandsNothingAsksASecondTime)
{
    begin(std::chrono::minutes(1));
    platform.onAsk = [&] {
        send(SIGTERM);
        frame->close();
        frame->GetActiveImage()->parentWidget()->close();
    };
    send(SIGTERM);
    EXPECT_EQ(questions(), 1);
    EXPECT_TRUE(frame->isVisible());

    // The question about one document alone is answered first; then the frame closes.
    const DocumentHandle other = frame->adopt(randomBits(8, 8, 2), "Other.bmp");
    platform.onAsk = [&] { send(SIGTERM); };
    platform.answers = {"no", "no"};
    frame->Mmenu("CLOSE");
    EXPECT_FALSE(other);
    EXPECT_TRUE(frame->isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(questions(), 3);
    EXPECT_FALSE(frame->isVisible());
}

TEST_F(SessionEndTest, WithoutAnAnswerItEndsAndLeavesTheSnapshots)
{
    begin(std::chrono::milliseconds(20));
    const QString snapshot = frame->active()->undo.fileName(0);
    platform.onAsk = [&] {
        EXPECT_TRUE(QTest::qWaitFor([&] { return left > 0; }, 20000));
        EXPECT_TRUE(QFile::exists(snapshot));
        EXPECT_TRUE(QFile::exists(path("Vlaera.dat")));
    };
    send(SIGTERM);
    EXPECT_EQ(left, 1);
}

} // namespace velara
