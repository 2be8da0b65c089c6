#include "batch/many/Worker.h"
#include "batch/BatchPlatform.h"
#include "batch/drawing.h"
#include "batch/fonts.h"
#include "batch/names/LateNames.h"
#include "batch/onePicture.h"
#include "fileio/disk/OutputFile.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "fileio/load/WarmReaders.h"
#include "pixels/BlockPool.h"
#include "pixels/threads/Workers.h"
#include <cerrno>
#include <chrono>
#include <deque>
#include <future>
#include <set>
#include <sys/socket.h>
#include <unistd.h>

namespace velara {

namespace {

/// Of a picture, the next one and two steps of other sizes, as far as they are free at the same time.
constexpr std::size_t kKeptBlocks = 4;

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

QStringList extensionsOf(const Plan& plan)
{
    std::set<QString> all;
    for (int i = 0; i < plan.size(); ++i)
        if (!plan.isSkipped(i)) all.insert(extensionOf(plan.input(i)).toLower());
    return {all.begin(), all.end()};
}

/// A picture that is read by another thread.
struct Reading {
    int picture;
    std::promise<void> done = {};
    LoadedPicture loaded = {};
    double milliseconds = 0;
};

class Worker {
  public:
    Worker(const CommandLine& line, const Plan& plan, int socket) : line_(line), plan_(plan), socket_(socket) {}

    void run()
    {
        for (;;) {
            if (!isReady_ && !readings_.empty() && !awaitPicture()) continue;
            WorkOrder order{};
            const ssize_t size = recv(socket_, &order, sizeof order, 0);
            if (size < 0 && errno == EINTR) continue;
            if (size != sizeof order) return;
            if (order.kind == WorkOrder::Read)
                begin(order.picture);
            else
                goOn();
        }
    }

  private:
    void begin(int picture)
    {
        readings_.push_back(std::make_unique<Reading>(Reading{picture}));
        reader_.start([this, reading = readings_.back().get()] {
            const auto from = Clock::now();
            const QString path = plan_.input(reading->picture);
            try {
                reading->loaded = platform_.loadPicture(path, extensionOf(path));
            } catch (const std::bad_alloc&) {
                reading->loaded.reason = QStringLiteral("there is not enough memory");
            }
            reading->milliseconds = millisecondsSince(from);
            reading->done.set_value();
        });
    }

    /// False when the picture can't be read.
    bool awaitPicture()
    {
        Reading& reading = *readings_.front();
        reading.done.get_future().wait();
        try {
            checkRead(reading.loaded.ok(), reading.loaded.reason, line_.partial);
        } catch (const Failure& failure) {
            end({Told::Failed}, failure.text);
            return false;
        }
        isReady_ = true;
        Told told{Told::Ready, reading.picture};
        told.pixels = std::int64_t{reading.loaded.bits.width()} * reading.loaded.bits.height();
        tell(told);
        return true;
    }

    void goOn()
    {
        if (!isReady_) return;
        const auto from = Clock::now();
        Told told{Told::Written};
        QString reason;
        try {
            told.kind = make(*readings_.front());
        } catch (const Failure& failure) {
            told.kind = Told::Failed;
            told.diskIsFull = failure.diskIsFull;
            reason = failure.text;
        } catch (const std::bad_alloc&) {
            told.kind = Told::Failed;
            reason = QStringLiteral("there is not enough memory");
        }
        if (told.kind == Told::Written) told.bytes = sizeOfFile(output_);
        told.milliseconds = millisecondsSince(from);
        end(told, reason);
    }

    Told::Kind make(Reading& reading)
    {
        output_ = plan_.output(reading.picture);
        session_.adopt(std::exchange(reading.loaded, {}), line_.partial, line_.lastGoingBack() >= 0);
        takeSteps(session_, line_);
        if (plan_.isLate && !isNamed(reading.picture)) return Told::Skipped;
        if (line_.many->existing == Existing::Skip && !line_.many->inPlace && isThere(output_)) return Told::Skipped;
        makeFolder(output_.left(output_.lastIndexOf(u'/')));
        writePictureOf(session_, line_, output_);
        return Told::Written;
    }

    /// Asks for the name, which has the size in it. False: what has it already is left.
    bool isNamed(int picture)
    {
        const Bits made = session_.picture();
        const QSize size = line_.icon ? line_.icon->size : QSize(made.width(), made.height());
        Told named{Told::Named, picture};
        named.width = size.width();
        named.height = size.height();
        tell(named);
        WorkOrder answer{};
        ssize_t got = 0;
        do got = recv(socket_, &answer, sizeof answer, 0);
        while (got < 0 && errno == EINTR);
        if (got != sizeof answer) _exit(0); // nobody waits for it
        output_ = lateOutput(*line_.many, plan_, named, answer);
        if (answer.kind == WorkOrder::Refuse) throw fileFault(lateRefusal(plan_, output_, answer));
        return answer.kind == WorkOrder::Write;
    }

    /// Each is looked at once.
    void makeFolder(const QString& folder)
    {
        if (folder.isEmpty() || folders_.contains(folder)) return;
        makeTargetFolder(folder);
        folders_.insert(folder);
    }

    /// The first picture is done.
    void end(Told told, const QString& reason)
    {
        told.picture = readings_.front()->picture;
        told.milliseconds += readings_.front()->milliseconds;
        readings_.pop_front();
        isReady_ = false;
        tell(told, reason);
    }

    void tell(Told told, const QString& reason = {})
    {
        const QByteArray text = reason.toUtf8().left(kMostReason);
        told.reasonBytes = static_cast<std::int32_t>(text.size());
        QByteArray message(reinterpret_cast<const char*>(&told), sizeof told);
        message += text;
        send(socket_, message.constData(), static_cast<std::size_t>(message.size()), MSG_NOSIGNAL);
    }

    const CommandLine& line_;
    const Plan& plan_;
    const int socket_;
    BatchPlatform platform_;
    WarmReaders warm_{extensionsOf(plan_)};
    Session session_{platform_};
    std::deque<std::unique_ptr<Reading>> readings_; // the first is worked on, or will be
    bool isReady_ = false;                          // that the first can be worked on was told
    QString output_;                                // of the picture that is worked on
    std::set<QString> folders_;                     // that are there
    Workers reader_;                                // last: it ends first
};

} // namespace

void work(const CommandLine& line, const Plan& plan, int socket)
{
    // Made in each worker: programs that share one by a fork share its ways to be woken, too.
    const auto application = makeApplication(drawsText(line));
    OutputFile::lookForStrays(false);
    BlockPool::instance().keepSeveral(kKeptBlocks);
    Worker worker(line, plan, socket);
    worker.run();
    _exit(0); // a reading that is under way ends with it
}

} // namespace velara
