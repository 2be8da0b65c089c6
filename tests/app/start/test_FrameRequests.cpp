// What other programs ask for is done in the frame, in order, and not while a dialog stands.
#include "app/frame/frameTest.h"
#include "app/start/FrameRequests.h"
#include "platform/opening/actions.h"
#include "platform/opening/fileUri.h"
#include <QtTest>

namespace velara {

namespace {

struct FrameRequestsTest : FrameTest {
    FrameRequests requests;
    std::optional<QStringList> reasons;
    OpenRequests::Done taken()
    {
        return [this](const QStringList& found) { reasons = found; };
    }
    bool answered()
    {
        return comes([this] { return reasons.has_value(); });
    }
    QStringList captions()
    {
        QStringList found;
        for (const fImage* view : frame->documents()) found << view->Caption();
        return found;
    }
};

} // namespace

TEST_F(FrameRequestsTest, WaitsForTheFrameAndAnswersForEachFile)
{
    QFile(path("broken.png")).open(QIODevice::WriteOnly);
    QFile::rename(file("picture.png"), path("no ending"));
    QDir().mkdir(path("folder"));
    requests.open({uriOf(file("b.png")), "http://far/a.png", uriOf(path("gone.png")), uriOf(path("broken.png")),
                   uriOf(path("folder")), uriOf(path("no ending"))},
                  false, taken());
    QCoreApplication::processEvents();
    EXPECT_FALSE(reasons);
    requests.begin(*frame);
    ASSERT_TRUE(answered());
    EXPECT_EQ(captions(), QStringList({"b.png", "no ending"})); // and no empty one
    ASSERT_EQ(reasons->size(), 6);
    EXPECT_TRUE((*reasons)[0].isEmpty() && (*reasons)[5].isEmpty());
    EXPECT_TRUE((*reasons)[1].startsWith("http://far/a.png can't be read"));
    for (const int i : {2, 3, 4}) EXPECT_FALSE((*reasons)[i].isEmpty()) << i;
    EXPECT_TRUE(platform.log.empty()) << "the caller tells: " << platform.log[0];
    for (const char* name : {"b.png", "no ending"}) EXPECT_EQ(std::ranges::count(setup.Recent, path(name)), 1) << name;

    reasons.reset();
    requests.open({uriOf(path("gone.png")), uriOf(path("b.png"))}, true, taken());
    ASSERT_TRUE(answered());
    ASSERT_EQ(platform.log.size(), 1U) << "one message for all";
    const QString told = QString::fromStdString(platform.log[0]);
    EXPECT_EQ(told.count("can't be read"), 1) << platform.log[0];
}

TEST_F(FrameRequestsTest, ADialogIsNotDisturbed)
{
    requests.begin(*frame);
    const QString picture = file("late.png");
    {
        QDialog dialog(frame.get());
        dialog.open();
        requests.open({uriOf(picture)}, false, taken());
        EXPECT_FALSE(QTest::qWaitFor([&] { return reasons.has_value(); }, 500));
        EXPECT_TRUE(captions().isEmpty());
    }
    ASSERT_TRUE(answered());
    EXPECT_EQ(captions(), QStringList{"late.png"});
}

TEST_F(FrameRequestsTest, EachActionIsACommandOfTheFrame)
{
    for (const DesktopAction& row : kDesktopActions) EXPECT_TRUE(fMain::available(row.word)) << row.word;
    requests.begin(*frame);
    requests.act("no such");
    ASSERT_TRUE(comes([&] { return !platform.log.empty(); }));
    EXPECT_NE(platform.log[0].find("no such"), std::string::npos);
}

TEST_F(FrameRequestsTest, TheFrameComesOutOfItsIcon)
{
    requests.begin(*frame);
    frame->showMinimized();
    requests.activate({});
    EXPECT_FALSE(frame->isMinimized());
    EXPECT_TRUE(frame->isVisible());
}

} // namespace velara
