#include "document/undo/UndoStore.h"
#include "document/undo/SnapshotWriter.h"
#include "document/undo/UndoFiles.h"
#include "document/undo/UndoMark.h"
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <mutex>

namespace velara {

/// Between the owner and the writing thread. While snapshots wait the files, the mark and the state are the thread's;
/// else they are the owner's. The counters are read under the guard at any time.
struct UndoStore::Series {
    Series(QString folder, int number) : files(std::move(folder), number) {}

    UndoFiles files;
    UndoMark mark;
    std::function<void(const QString&)> told;
    std::atomic<bool> abandoned{false};

    mutable std::mutex guard;
    mutable std::condition_variable written;
    int waiting = 0;       // snapshots on their way
    int step = 0, top = 0; // as the files have it
    bool everFailed = false;
    std::array<bool, kLimit + 1> gap{}; // by index: what was shown before this state is not in the series
    std::optional<Bits> unsaved;        // follows the state of the step at which it couldn't be written
    bool unsavedGap = false;            // and didn't follow it directly
    bool onUnsaved = false;             // it is what is shown
    bool passedOver = false;

    std::unique_lock<std::mutex> settled() const
    {
        std::unique_lock lock(guard);
        written.wait(lock, [this] { return waiting == 0; });
        return lock;
    }
    int shownStep() const { return std::min(step + waiting, kLimit); }

    // --- On the writing thread
    bool ready();
    bool put(const Bits& bits, bool follows);
    void write(const Bits& bits);
    void failed(const Bits& bits, bool follows, int reason);

    // --- Of the owner, settled
    std::optional<Bits> stepTo(int index);
};

/// The folder may have been swept away since the last step.
bool UndoStore::Series::ready()
{
    if (files.folder().isEmpty()) return errno = ENOENT, false;
    if (mark.stands()) return true;
    if (!makePrivateFolder(files.folder())) return false;
    return mark.take(files.folder(), files.number()) == UndoMark::Answer::Ours;
}

/// One snapshot into the series; follows: the state before it is the one of the step.
bool UndoStore::Series::put(const Bits& bits, bool follows)
{
    const bool full = step >= kLimit;
    if (!(full ? files.writeOverOldest(step, bits) : files.write(step, bits))) return false;
    if (full) files.shift(kLimit); // ten snapshots stand, the state on screen is one of them
    const std::lock_guard lock(guard);
    gap[static_cast<std::size_t>(step)] = !follows;
    if (full)
        std::shift_left(gap.begin(), gap.end(), 1);
    else
        ++step;
    top = step;
    return true;
}

void UndoStore::Series::write(const Bits& bits)
{
    const bool ours = ready(), hadToWait = unsaved && onUnsaved;
    bool follows = !hadToWait, done = false;
    if (ours) {
        for (int i = step + 1; i <= top; ++i) files.remove(i); // before the write: it may need the room
        if (hadToWait) follows = put(*unsaved, !unsavedGap);   // what stayed in memory may fit now
        done = put(bits, follows);
    }
    const int reason = errno;
    if (ours && !done) files.remove(step); // what could be redone
    if (!done) return failed(bits, follows, reason);
    const std::lock_guard lock(guard);
    unsaved.reset();
    onUnsaved = false;
}

void UndoStore::Series::failed(const Bits& bits, bool follows, int reason)
{
    {
        const std::lock_guard lock(guard);
        top = step;
        unsaved = bits;
        unsavedGap = !follows;
        onUnsaved = everFailed = true;
    }
    const bool noRoom = reason == ENOSPC || reason == EDQUOT || reason == EFBIG;
    if (told)
        told(noRoom ? QStringLiteral("no room in the Temp folder")
                    : QStringLiteral("the Temp folder can't be written to"));
}

UndoStore::UndoStore(QString folder, const std::function<int()>& next)
{
    const bool kept = !folder.isEmpty() && makePrivateFolder(folder);
    do series_ = std::make_shared<Series>(folder, next());
    while (kept && series_->mark.take(folder, series_->files.number()) == UndoMark::Answer::Taken);
}

UndoStore::UndoStore(QString folder, int documentNumber)
    : series_(std::make_shared<Series>(std::move(folder), documentNumber))
{
    const QString& place = series_->files.folder();
    if (!place.isEmpty() && makePrivateFolder(place)) series_->mark.take(place, documentNumber);
}

UndoStore::~UndoStore()
{
    series_->abandoned = true;
    const auto lock = series_->settled();
    series_->mark.release(); // here and now: the last job may hold the series a moment longer
}

int UndoStore::number() const { return series_->files.number(); }

int UndoStore::UndoStep() const
{
    const std::lock_guard lock(series_->guard);
    return series_->shownStep();
}

int UndoStore::UndoTop() const
{
    const std::lock_guard lock(series_->guard);
    return series_->waiting > 0 ? series_->shownStep() : series_->top;
}

bool UndoStore::canUndo() const
{
    const std::lock_guard lock(series_->guard);
    return series_->shownStep() > (series_->onUnsaved ? 0 : 1);
}

bool UndoStore::canRedo() const
{
    const std::lock_guard lock(series_->guard);
    const Series& s = *series_;
    return s.waiting == 0 && (s.step < s.top || (s.unsaved && !s.onUnsaved));
}

bool UndoStore::mayHaveChanged() const
{
    const std::lock_guard lock(series_->guard);
    return series_->everFailed || series_->shownStep() >= 2;
}

void UndoStore::save(const Bits& bits)
{
    if (bits.isNull()) return;
    {
        std::unique_lock lock(series_->guard);
        series_->written.wait(lock, [this] { return series_->waiting < 2; });
        ++series_->waiting;
    }
    SnapshotWriter::instance().add([series = series_, picture = bits]() mutable {
        try {
            if (!series->abandoned) series->write(picture);
        } catch (const std::exception&) { // no memory for a path
            series->failed(picture, false, ENOMEM);
        }
        picture = Bits(); // before anybody hears of it: the next edit need not copy it then
        const std::lock_guard lock(series->guard);
        --series->waiting;
        series->written.notify_all();
    });
}

bool UndoStore::stands() const
{
    const auto lock = series_->settled();
    return !series_->onUnsaved;
}

std::optional<Bits> UndoStore::previous() const
{
    const auto lock = series_->settled();
    const Series& s = *series_;
    const int index = s.onUnsaved ? s.step - 1 : s.step - 2;
    const bool lost = index < 0 || (s.onUnsaved ? s.unsavedGap : s.gap[static_cast<std::size_t>(s.step - 1)]);
    return lost ? std::nullopt : s.files.read(index);
}

void UndoStore::stepBack()
{
    const auto lock = series_->settled();
    if (series_->onUnsaved)
        series_->onUnsaved = false;
    else if (series_->step > 1)
        --series_->step;
}

/// The state of the index is shown now.
std::optional<Bits> UndoStore::Series::stepTo(int index)
{
    std::optional<Bits> bits = files.read(index);
    if (!bits) return {};
    step = index + 1;
    onUnsaved = false;
    return bits;
}

std::optional<Bits> UndoStore::undo()
{
    const auto lock = series_->settled();
    Series& s = *series_;
    const int nearest = s.onUnsaved ? s.step - 1 : s.step - 2;
    const bool leavesUnsaved = s.onUnsaved || (s.step > 0 && s.gap[static_cast<std::size_t>(s.step - 1)]);
    for (int i = nearest; i >= 0; --i)
        if (auto bits = s.stepTo(i)) {
            s.passedOver = leavesUnsaved || i < nearest;
            return bits;
        }
    return {};
}

std::optional<Bits> UndoStore::redo()
{
    const auto lock = series_->settled();
    Series& s = *series_;
    if (s.onUnsaved) return {};
    const int nearest = s.step;
    for (int i = nearest; i < s.top; ++i)
        if (auto bits = s.stepTo(i)) {
            s.passedOver = i > nearest || s.gap[static_cast<std::size_t>(i)];
            return bits;
        }
    if (!s.unsaved) return {};
    s.step = s.top;
    s.onUnsaved = true;
    s.passedOver = nearest < s.top || s.unsavedGap;
    return s.unsaved;
}

bool UndoStore::passedOver() const { return series_->passedOver; }

void UndoStore::deleteSeries()
{
    series_->abandoned = true;
    const auto lock = series_->settled();
    series_->abandoned = false;
    UndoMark& mark = series_->mark;
    const UndoFiles& files = series_->files;
    if (!mark.stands() && mark.take(files.folder(), files.number()) != UndoMark::Answer::Ours) return;
    files.removeAll();
    mark.release();
}

void UndoStore::onFailure(std::function<void(const QString&)> told) { series_->told = std::move(told); }

QString UndoStore::fileName(int index) const { return series_->files.name(index); }

} // namespace velara
