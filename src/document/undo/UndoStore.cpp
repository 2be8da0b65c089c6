#include "document/undo/UndoStore.h"
#include "document/undo/RecordFile.h"
#include "document/undo/UndoFiles.h"
#include "pixels/memory/MemoryBudget.h"
#include "pixels/threads/Workers.h"
#include <QDateTime>
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <deque>
#include <mutex>

namespace velara {

/// One thread for all documents: it writes snapshots while the user goes on.
static Workers& snapshotWriter()
{
    static Workers writer;
    return writer;
}

/// For the user, of an errno.
static QString whyNot(int reason)
{
    const bool noRoom = reason == ENOSPC || reason == EDQUOT || reason == EFBIG;
    return noRoom ? QStringLiteral("no room in the Temp folder")
                  : QStringLiteral("the Temp folder can't be written to");
}

/// Whether a dead program has left work under the number: a record, or steps without one.
static bool hasWork(const UndoFiles& files)
{
    return RecordFile::isThere(files) || (files.identity(0) != 0 && files.identity(1) != 0);
}

/// Between the owner, the writing thread and threads that read steps. While snapshots wait, the files, the mark and the
/// states are the writing thread's, but not before those that read have ended; else they are to be read by all. The
/// counters are read under the guard at any time.
struct UndoStore::Series {
    Series(QString folder, int number) : files(std::move(folder), number) {}

    /// One state of the series; without a picture it is in its file.
    struct State : KeptState {
        std::optional<Bits> picture = {}; // could not be written to disk
        bool isInherited = false;         // written by another program, which died: its checksum is to be looked at
    };
    UndoFiles files;
    UndoMark mark;
    RecordFile record{files};
    std::function<void(const QString&)> told, toldUnrecorded;
    std::atomic<bool> abandoned{false};
    std::array<State, kLimit + 1> states; // by index

    mutable std::mutex guard;
    mutable std::condition_variable written;
    int waiting = 0;         // snapshots on their way
    mutable int reading = 0; // threads that read steps
    int step = 0, top = 0;
    std::vector<StepNote> log;    // all that was done, and what can be redone
    std::vector<int> standing;    // the numbers of the states, as the last snapshot left them
    std::deque<StepNote> pending; // of the snapshots on their way
    int numbers = 0, current = 0; // given so far; that of the state shown
    std::atomic<bool> everFailed{false};
    bool passedOver = false;
    DocumentFacts about;
    int records = 0;          // jobs that write the record without a snapshot
    bool recordWaits = false; // one of them has not begun: it will write what about says by then
    bool recorded = false;    // there is a record
    bool unrecorded = false;  // the last one could not be written

    std::unique_lock<std::mutex> settled() const
    {
        std::unique_lock lock(guard);
        written.wait(lock, [this] { return waiting == 0; });
        return lock;
    }
    /// The writing thread has nothing more to do with this series.
    std::unique_lock<std::mutex> quiet() const
    {
        std::unique_lock lock(guard);
        written.wait(lock, [this] { return waiting == 0 && records == 0; });
        return lock;
    }
    void awaitReaders() const
    {
        std::unique_lock lock(guard);
        written.wait(lock, [this] { return reading == 0; });
    }
    int shownStep() const { return std::min(step + waiting, kLimit); }
    const State& of(int index) const { return states[static_cast<std::size_t>(index)]; }
    State& of(int index) { return states[static_cast<std::size_t>(index)]; }
    std::optional<Bits> pictureOf(int index) const;

    std::optional<Found> find(int shown, bool back);
    void noteSave(StepNote& note);
    void noteStates();
    void noteShown() { current = step > 0 ? of(step - 1).note.number : 0; }
    bool isThere(const StepNote& note) const;

    // --- On the writing thread; count is the number of states.
    bool ready();
    int write(const Bits& bits);
    bool writeState(int index, const Bits& bits, bool overOldest = false);
    void keepRecord(int step, int top);
    void tryToRecord(int step, int top);
    int hold(const Bits& bits, int index);
    int keepOlder(int count, bool ours);
    int drop(int index, int count, bool ours);
    void tell(int reason) const;
};

/// Reads steps on any thread; the guard is free meanwhile, so that the counters can be read.
class UndoStore::Reading {
  public:
    explicit Reading(const Series& series) : series_(series)
    {
        const auto lock = series.settled();
        ++series.reading;
        step = series.step;
    }
    ~Reading()
    {
        const std::lock_guard lock(series_.guard);
        --series_.reading;
        series_.written.notify_all();
    }
    int step = 0;

  private:
    const Series& series_;
};

/// The folder may have been removed since the last step.
bool UndoStore::Series::ready()
{
    if (files.folder().isEmpty()) return errno = ENOENT, false;
    if (mark.stands()) return true;
    if (!makePrivateFolder(files.folder())) return false;
    return mark.take(files.folder(), files.number()) == UndoMark::Answer::Ours;
}

/// Removes a state for good and moves those above it down. The one that follows it, even one still to come, has a gap
/// before it.
int UndoStore::Series::drop(int index, int count, bool ours)
{
    if (ours) files.drop(index, count - 1);
    std::shift_left(states.begin() + index, states.begin() + count, 1);
    of(count - 1) = {};
    of(index).gap = true;
    return count - 1;
}

/// States held only in memory go to disk as soon as it has room. The rest may take as much memory as it leaves free;
/// beyond that the oldest is dropped.
int UndoStore::Series::keepOlder(int count, bool ours)
{
    std::int64_t kept = 0;
    for (int i = 0; i < count; ++i) {
        std::optional<Bits>& picture = of(i).picture;
        if (picture && ours && kept == 0 && writeState(i, *picture)) picture.reset();
        if (picture) kept += static_cast<std::int64_t>(picture->sizeInBytes());
    }
    if (kept == 0) return count;
    const int reason = errno; // of the last write
    const std::int64_t room = files.folder().isEmpty() ? 0 : MemoryBudget::available();
    for (int i = 0; kept > room; ++i)
        if (const std::optional<Bits>& picture = of(i).picture) {
            kept -= static_cast<std::int64_t>(picture->sizeInBytes());
            count = drop(i--, count, ours);
        }
    errno = reason;
    return count;
}

/// Writes one snapshot. The redo steps go first: the disk may need their room.
int UndoStore::Series::write(const Bits& bits)
{
    const bool ours = ready();
    for (int i = step + 1; i <= top && ours; ++i) files.remove(i);
    std::fill(states.begin() + step, states.end(), State());
    int count = keepOlder(step, ours);
    if (of(count).gap) tell(errno);
    bool done = false;
    if (count == kLimit) { // ten states exist, the one on screen is one of them
        done = ours && writeState(count, bits, true);
        if (ours) files.drop(0, count);
        std::shift_left(states.begin(), states.end(), 1);
        --count;
    }
    done = done || (ours && writeState(count, bits));
    if (done) return count + 1;
    if (ours) files.remove(count); // the redo steps
    return hold(bits, count);
}

bool UndoStore::Series::writeState(int index, const Bits& bits, bool overOldest)
{
    if (!(overOldest ? files.writeOverOldest(index, bits) : files.write(index, bits))) return false;
    State& state = of(index);
    state.file = files.identity(index);
    state.sum = checksumOf(bits.data(), bits.sizeInBytes());
    state.isInherited = false;
    return true;
}

/// The reader of a state doesn't know what else has happened to its file.
std::optional<Bits> UndoStore::Series::pictureOf(int index) const
{
    const State& state = of(index);
    if (state.picture) return state.picture;
    std::optional<Bits> bits = files.read(index);
    const bool isChecked = bits && state.isInherited && state.sum != 0;
    if (isChecked && state.sum != checksumOf(bits->data(), bits->sizeInBytes())) return {};
    return bits;
}

/// The number of the state shown and of all, as they are on the disk now. The guard is free.
void UndoStore::Series::keepRecord(int step, int top)
{
    UndoRecord now{.step = step, .when = QDateTime::currentMSecsSinceEpoch()};
    {
        const std::lock_guard lock(guard);
        if (abandoned || files.folder().isEmpty() || (!about.isUnsaved && !recorded)) return;
        now.about = about;
    }
    now.states.assign(states.begin(), states.begin() + top); // without their pictures
    const bool done = ready() && record.write(now);
    const int reason = errno;
    {
        const std::lock_guard lock(guard);
        if (done) recorded = true;
        if (std::exchange(unrecorded, !done)) return;
    }
    if (!done && toldUnrecorded) toldUnrecorded(whyNot(reason));
}

void UndoStore::Series::tryToRecord(int step, int top)
try {
    keepRecord(step, top);
} catch (const std::exception&) { // no memory: the record before it stands
}

/// Keeps the newest state in memory only.
int UndoStore::Series::hold(const Bits& bits, int index)
{
    of(index).picture = bits;
    everFailed = true;
    return index + 1;
}

void UndoStore::Series::tell(int reason) const
{
    if (told) told(whyNot(reason));
}

UndoStore::UndoStore(QString folder, const std::function<int()>& next)
{
    const bool kept = !folder.isEmpty() && makePrivateFolder(folder);
    const auto isFree = [&] {
        const auto answer = series_->mark.take(folder, series_->files.number());
        return answer != UndoMark::Answer::Taken && !hasWork(series_->files);
    };
    do series_ = std::make_shared<Series>(folder, next());
    while (kept && !isFree());
}

UndoStore::UndoStore(QString folder, int documentNumber)
    : series_(std::make_shared<Series>(std::move(folder), documentNumber))
{
    const QString& place = series_->files.folder();
    if (!place.isEmpty() && makePrivateFolder(place)) series_->mark.take(place, documentNumber);
}

UndoStore::UndoStore(Inherited inherited)
    : series_(std::make_shared<Series>(std::move(inherited.folder), inherited.number))
{
    series_->mark = std::move(inherited.mark);
    series_->recorded = true;
    series_->about = std::move(inherited.record.about);
    const auto count = std::min(inherited.record.states.size(), std::size_t(kLimit));
    for (std::size_t i = 0; i < count; ++i) {
        static_cast<KeptState&>(series_->states[i]) = std::move(inherited.record.states[i]);
        series_->states[i].isInherited = true;
    }
    series_->top = static_cast<int>(count);
    series_->step = std::min(inherited.record.step, series_->top);
    for (int i = 0; i < series_->top; ++i) {
        series_->of(i).note.number = ++series_->numbers;
        series_->log.push_back(series_->of(i).note);
    }
    series_->noteStates();
    series_->noteShown();
}

UndoStore::~UndoStore()
{
    series_->abandoned = true;
    const auto lock = series_->quiet();
    series_->mark.release(); // now: the last job may keep the series alive a moment longer
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

bool UndoStore::canUndo() const { return UndoStep() > 1; }

bool UndoStore::canRedo() const
{
    const std::lock_guard lock(series_->guard);
    return series_->waiting == 0 && series_->step < series_->top;
}

QString UndoStore::undoName() const
{
    const std::lock_guard lock(series_->guard);
    if (series_->shownStep() <= 1) return {};
    return series_->waiting > 0 ? series_->pending.back().name : series_->of(series_->step - 1).note.name;
}

QString UndoStore::redoName() const
{
    const std::lock_guard lock(series_->guard);
    return series_->waiting == 0 && series_->step < series_->top ? series_->of(series_->step).note.name : QString();
}

bool UndoStore::mayHaveChanged() const { return series_->everFailed || UndoStep() >= 2; }

void UndoStore::save(const Bits& bits, StepNote note)
{
    if (bits.isNull()) return;
    {
        std::unique_lock lock(series_->guard);
        series_->written.wait(lock, [this] { return series_->waiting < 2; });
        ++series_->waiting;
        series_->noteSave(note);
    }
    snapshotWriter().start([series = series_, picture = bits, note = std::move(note)]() mutable {
        series->awaitReaders();
        const bool wanted = !series->abandoned;
        int count = 0;
        try {
            if (wanted) count = series->write(picture);
        } catch (const std::exception&) { // no memory for a path
            count = series->hold(picture, std::min(series->step, kLimit - 1));
        }
        if (count > 0) series->of(count - 1).note = std::move(note);
        picture = Bits(); // before anybody is notified: then the next edit need not copy it
        if (wanted) series->tryToRecord(count, count);
        const std::lock_guard lock(series->guard);
        if (wanted) series->step = series->top = count;
        series->pending.pop_front();
        if (wanted) series->noteStates();
        --series->waiting;
        series->written.notify_all();
    });
}

/// What could be redone is gone.
void UndoStore::Series::noteSave(StepNote& note)
{
    const auto shown = std::ranges::find(log, current, &StepNote::number);
    if (shown != log.end()) log.erase(shown + 1, log.end());
    current = note.number = ++numbers;
    log.push_back(note);
    pending.push_back(note);
}

bool UndoStore::Series::isThere(const StepNote& note) const
{
    return std::ranges::count(standing, note.number) + std::ranges::count(pending, note.number, &StepNote::number) > 0;
}

/// Those that can't be gone to any more have no picture.
void UndoStore::Series::noteStates()
{
    standing.clear();
    for (int i = 0; i < top; ++i) standing.push_back(of(i).note.number);
    for (StepNote& note : log)
        if (!isThere(note)) note.small = Bits();
}

UndoStore::Listed UndoStore::listed() const
{
    const std::lock_guard lock(series_->guard);
    Listed all;
    all.notes = series_->log;
    for (const StepNote& note : all.notes) all.stands.push_back(series_->isThere(note));
    all.shown = static_cast<int>(std::ranges::find(all.notes, series_->current, &StepNote::number) - all.notes.begin());
    return all;
}

void UndoStore::willDescribe(DocumentFacts about)
{
    const std::lock_guard lock(series_->guard);
    series_->about = std::move(about);
}

void UndoStore::describe(DocumentFacts about)
{
    {
        const std::lock_guard lock(series_->guard);
        const bool wanted = about.isUnsaved || series_->about.isUnsaved || series_->recorded;
        series_->about = std::move(about);
        if (!wanted || series_->files.folder().isEmpty() || std::exchange(series_->recordWaits, true)) return;
        ++series_->records;
    }
    snapshotWriter().start([series = series_] {
        int step = 0, top = 0;
        {
            const std::lock_guard lock(series->guard);
            series->recordWaits = false;
            step = series->step, top = series->top;
        }
        series->tryToRecord(step, top);
        const std::lock_guard lock(series->guard);
        --series->records;
        series->written.notify_all();
    });
}

bool UndoStore::stands() const
{
    const auto lock = series_->quiet();
    return series_->step == 0 || !series_->of(series_->step - 1).picture;
}

std::function<void()> UndoStore::roomLater() const
{
    return [series = series_] {
        std::unique_lock lock(series->guard);
        series->written.wait(lock, [&] { return series->waiting < 2; });
    };
}

std::function<std::optional<Bits>()> UndoStore::previousLater() const
{
    return [series = series_]() -> std::optional<Bits> {
        const Reading reading(*series);
        const int step = reading.step;
        return step < 2 || series->of(step - 1).gap ? std::nullopt : series->pictureOf(step - 2);
    };
}

void UndoStore::stepBack()
{
    const auto lock = series_->settled();
    if (series_->step > 1) --series_->step;
    series_->noteShown();
}

std::optional<UndoStore::Found> UndoStore::Series::find(int shown, bool back)
{
    const int way = back ? -1 : 1, nearest = shown + way;
    for (int i = nearest; i >= 0 && i < top; i += way)
        if (auto bits = pictureOf(i)) return Found{*bits, i + 1, i != nearest || of(back ? shown : i).gap};
    return {};
}

std::function<std::optional<UndoStore::Found>()> UndoStore::stepLater(bool back) const
{
    return [series = series_, back] {
        const Reading reading(*series);
        return series->find(reading.step - 1, back);
    };
}

std::function<std::optional<UndoStore::Found>()> UndoStore::stateLater(int number) const
{
    return [series = series_, number]() -> std::optional<Found> {
        const Reading reading(*series);
        for (int i = 0; i < series->top; ++i)
            if (series->of(i).note.number == number)
                if (auto bits = series->pictureOf(i)) return Found{*bits, i + 1, false};
        return {};
    };
}

void UndoStore::moveTo(const Found& found)
{
    const auto lock = series_->settled();
    series_->step = found.step;
    series_->noteShown();
    series_->passedOver = found.passedOver;
}

std::optional<Bits> UndoStore::step(bool back)
{
    const auto found = stepLater(back)();
    if (!found) return {};
    moveTo(*found);
    return found->picture;
}

bool UndoStore::passedOver() const { return series_->passedOver; }

void UndoStore::stop()
{
    series_->abandoned = true;
    series_->quiet();
}

void UndoStore::deleteSeries()
{
    series_->abandoned = true;
    const auto lock = series_->quiet();
    series_->abandoned = false;
    UndoMark& mark = series_->mark;
    const UndoFiles& files = series_->files;
    if (!mark.stands() && mark.take(files.folder(), files.number()) != UndoMark::Answer::Ours) return;
    series_->about = {};
    series_->recorded = false;
    series_->record.remove();
    files.removeAll();
    mark.release();
}

void UndoStore::onFailure(std::function<void(const QString&)> told) { series_->told = std::move(told); }

void UndoStore::onUnrecorded(std::function<void(const QString&)> told) { series_->toldUnrecorded = std::move(told); }

QString UndoStore::fileName(int index) const { return series_->files.name(index); }

} // namespace velara
