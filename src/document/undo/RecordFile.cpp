#include "document/undo/RecordFile.h"
#include "document/undo/UndoStore.h"
#include "fileio/disk/OutputFile.h"
#include "fileio/disk/fileBytes.h"
#include <QFile>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <fcntl.h>
#include <mutex>
#include <thread>
#include <unistd.h>
#include <vector>

namespace velara {

namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kCalm = std::chrono::seconds(2), kLongest = std::chrono::seconds(10);
constexpr std::int64_t kMostBytes = 64 << 20; // of a record: what a camera wrote is a part of it

QString recordOf(const UndoFiles& files) { return files.nameOf(QStringLiteral("rec")); }
QString olderOf(const UndoFiles& files) { return files.nameOf(QStringLiteral("old")); }

/// True also where there is no such file: then nothing is to be synced.
bool sync(const QString& path, int flags = 0)
{
    const int file = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | flags);
    if (file < 0) return errno == ENOENT;
    const bool done = fsync(file) == 0;
    close(file);
    return done;
}

/// The thread that syncs. At the end of the program it leaves what is left to the system.
class Settler {
  public:
    void add(const UndoFiles& files, const std::shared_ptr<RecordFile::Written>& written)
    {
        const std::lock_guard lock(guard_);
        last_ = Clock::now();
        if (waiting_.empty()) first_ = last_;
        const auto same = [&](const Item& item) { return item.written.lock() == written; };
        if (std::ranges::none_of(waiting_, same)) waiting_.push_back({files, written});
        try {
            if (!std::exchange(runs_, true)) std::thread(&Settler::run, this).detach();
        } catch (const std::system_error&) { // the system writes it some time
            runs_ = false;
        }
        changed_.notify_all();
    }

  private:
    struct Item {
        UndoFiles files;
        std::weak_ptr<RecordFile::Written> written;
    };

    void run()
    {
        std::unique_lock lock(guard_);
        for (;;) {
            changed_.wait(lock, [this] { return !waiting_.empty(); });
            while (Clock::now() < due()) changed_.wait_until(lock, due());
            const std::vector<Item> items = std::exchange(waiting_, {});
            lock.unlock();
            for (const Item& item : items) settle(item);
            lock.lock();
        }
    }
    Clock::time_point due() const { return std::min(last_ + kCalm, first_ + kLongest); }

    static void settle(const Item& item)
    {
        const auto written = item.written.lock();
        if (!written) return;
        const unsigned count = written->count;
        bool done = true;
        for (int i = 0; i < UndoFiles::kMost; ++i) done &= sync(item.files.name(i));
        done = done && sync(recordOf(item.files)) && sync(item.files.folder(), O_DIRECTORY);
        if (done && written->count == count) written->synced = count;
    }

    std::mutex guard_;
    std::condition_variable changed_;
    std::vector<Item> waiting_;
    Clock::time_point first_, last_;
    bool runs_ = false;
};

/// Never destroyed: snapshots may still be written while the program ends.
Settler& settler()
{
    static auto& settler = *new Settler;
    return settler;
}

RecordState readFrom(const QString& path, UndoRecord& record)
{
    FileReader file(path);
    if (file.size() < 0) return RecordState::Missing;
    if (file.size() > kMostBytes) return RecordState::Damaged;
    QByteArray bytes(static_cast<qsizetype>(file.size()), Qt::Uninitialized);
    if (!file.read({reinterpret_cast<std::uint8_t*>(bytes.data()), static_cast<std::size_t>(bytes.size())}))
        return RecordState::Damaged;
    return recordFrom(bytes, record);
}

} // namespace

bool RecordFile::write(const UndoRecord& record)
{
    const QByteArray bytes = bytesOf(record);
    OutputFile file(recordOf(files_), OutputFile::Links::Replace);
    const bool taken = file.write(bytes.constData(), static_cast<std::size_t>(bytes.size())) && file.seek(0, SEEK_CUR);
    if (!taken) return errno = file.error(), false;
    if (const unsigned count = written_->count; count > 0 && written_->synced == count)
        std::rename(QFile::encodeName(recordOf(files_)).constData(), QFile::encodeName(olderOf(files_)).constData());
    if (!file.commit()) return errno = file.error(), false;
    ++written_->count;
    settler().add(files_, written_);
    return true;
}

void RecordFile::remove()
{
    QFile::remove(recordOf(files_));
    QFile::remove(olderOf(files_));
}

RecordState RecordFile::read(const UndoFiles& files, UndoRecord& record)
{
    const RecordState newest = readFrom(recordOf(files), record);
    if (newest == RecordState::Whole || newest == RecordState::Newer) return newest;
    const RecordState older = readFrom(olderOf(files), record);
    return older == RecordState::Whole || newest == RecordState::Missing ? older : newest;
}

bool RecordFile::isThere(const UndoFiles& files)
{
    return QFile::exists(recordOf(files)) || QFile::exists(olderOf(files));
}

} // namespace velara
