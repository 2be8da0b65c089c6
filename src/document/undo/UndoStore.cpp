// What the owner of a document asks of its series, and the thread that writes.
#include "document/undo/UndoSeries.h"
#include "pixels/threads/Workers.h"
#include <algorithm>

namespace velara {

/// One thread for all documents: it writes snapshots while the user goes on.
static Workers& snapshotWriter()
{
    static Workers writer;
    return writer;
}

/// Whether a dead program has left work under the number: a record, or steps without one.
static bool hasWork(const UndoFiles& files)
{
    return RecordFile::isThere(files) || (files.identity(0) != 0 && files.identity(1) != 0);
}

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
    series_->ground = std::move(inherited.record.ground);
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

bool UndoStore::hasFolder() const { return !series_->files.folder().isEmpty(); }

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

void UndoStore::deleteSeries() { series_->remove(); }

std::function<void()> UndoStore::deleteSeriesLater()
{
    series_->abandoned = true;
    return [series = std::exchange(series_, std::make_shared<Series>(QString(), number()))] { series->remove(); };
}

void UndoStore::onFailure(std::function<void(const QString&)> told) { series_->told = std::move(told); }

void UndoStore::onUnrecorded(std::function<void(const QString&)> told) { series_->toldUnrecorded = std::move(told); }

QString UndoStore::fileName(int index) const { return series_->files.name(index); }

} // namespace velara
