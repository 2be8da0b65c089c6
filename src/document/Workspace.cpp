#include "document/Workspace.h"
#include "document/WorkspacePlaces.h"
#include "pixels/RuntimeError.h"
#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <algorithm>

namespace velara {

Workspace::Workspace(QString folder, PictureReader& reader, QObject* parent)
    : QObject(parent), folder_(std::move(folder)), reader_(reader),
      threads_(std::max(2U, std::thread::hardware_concurrency()))
{
}

Workspace::~Workspace()
{
    for (const auto& place : places_)
        if (place->running) place->running->cancelled = true;
    cancelOpening();
    for (Workers* workers : {&threads_, &reading_, &writing_, &removing_, &freeing_}) workers->finish();
}

/// Callable from any thread; the call runs on the window's thread, from the event loop.
void Workspace::later(std::function<void()> call)
{
    {
        const std::lock_guard lock(callsGuard_);
        calls_.push_back(std::move(call));
    }
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void Workspace::customEvent(QEvent*)
{
    std::function<void()> call;
    {
        const std::lock_guard lock(callsGuard_);
        call = std::move(calls_.front());
        calls_.pop_front();
    }
    QAbstractEventDispatcher::instance()->wakeUp(); // wait() looks again, however many events came at once
    call();
}

bool Workspace::hasCalls()
{
    const std::lock_guard lock(callsGuard_);
    return !calls_.empty();
}

Workspace::Place* Workspace::placeOf(const DocumentHandle& document) const
{
    const Document* wanted = document.get();
    const auto found = std::ranges::find_if(places_, [&](const auto& each) { return each->document.get() == wanted; });
    return wanted && found != places_.end() ? found->get() : nullptr;
}

// --- Documents

DocumentHandle Workspace::add(const Bits& picture, const FileFacts& file, Arrival arrival)
{
    auto document = std::make_shared<Document>(folder_, [this] { return nextNumber_++; });
    const DocumentHandle handle = take(document);
    document->file = file;
    document->file.isFile = arrival == Arrival::File;
    document->file.isBrought = arrival == Arrival::Brought;
    name(*document, file.path);
    if (!picture.isNull()) document->takePicture(picture);
    document->SaveUndoBits();
    return handle;
}

/// What the writing thread says of it comes as a signal.
DocumentHandle Workspace::take(std::shared_ptr<Document> document)
{
    const DocumentHandle handle = document->handle();
    const auto telling = [this, handle](auto signal) {
        return [this, handle, signal](const QString& reason) {
            later([this, handle, reason, signal] { emit(this->*signal)(handle, reason); });
        };
    };
    document->undo.onFailure(telling(&Workspace::stepLost));
    document->undo.onUnrecorded(telling(&Workspace::unrecorded));
    places_.push_back(std::make_unique<Place>());
    places_.back()->document = std::move(document);
    return handle;
}

std::shared_ptr<Document> Workspace::share(const DocumentHandle& document) const
{
    const Place* place = placeOf(document);
    return place ? place->document : nullptr;
}

void Workspace::close(const DocumentHandle& document)
{
    Place* place = placeOf(document);
    if (!place) return;
    if (place->running) place->running->cancelled = true;
    for (Item& item : place->waiting)
        if (item.then) later([then = std::move(item.then)] { then({Outcome::Gone}); });
    place->document->retire();
    ++removals_;
    removing_.start([this, remove = place->document->undo.deleteSeriesLater()] { // what is being written may take long
        remove();
        later([this] { --removals_; });
    });
    std::erase_if(places_, [&](const auto& each) { return each.get() == place; });
}

std::vector<DocumentHandle> Workspace::documents() const
{
    std::vector<DocumentHandle> handles;
    for (const auto& place : places_) handles.push_back(place->document->handle());
    return handles;
}

void Workspace::name(Document& document, const QString& path)
{
    // A picture without a file has only its name by which it can be told apart.
    const bool isFile = document.file.isFile;
    const FileFacts wanted{.path = path, .page = document.file.page, .pages = document.file.pages};
    const auto has = [&](const auto& place) {
        const FileFacts& file = place->document->file;
        if (place->document.get() == &document) return false;
        return file.Tag() == wanted.Tag() || (!isFile && file.caption() == wanted.caption());
    };
    document.file.mark = path.isEmpty() || std::ranges::none_of(places_, has) ? 0 : ++clashes_;
    document.file.path = path;
}

// --- Changes

int Workspace::change(const DocumentHandle& document, Step step, Then then)
{
    const int number = ++changes_;
    Place* place = placeOf(document);
    if (place) {
        place->waiting.push_back({std::move(step), std::move(then), {}, number});
        begin(*place);
    } else if (then) {
        later([then = std::move(then)] { then({Outcome::Gone}); });
    }
    return number;
}

void Workspace::finish(const DocumentHandle& document, const QString& name)
{
    if (!placeOf(document)) return;
    document->commit(name);
    emit changed(document);
}

void Workspace::step(const DocumentHandle& document, bool back, Then then)
{
    Place* place = placeOf(document);
    if (!place || !place->hasChange()) return void(change(document, {{}, back ? After::Back : After::Forward}, then));
    if (back) end(*place, [](const Item& item) { return item.isChange(); });
    if (then) later([then = std::move(then)] { then({Outcome::Cancelled}); });
}

void Workspace::goTo(const DocumentHandle& document, int state, Then then)
{
    change(document, {.job = {}, .after = After::Back, .state = state}, std::move(then));
}

void Workspace::inTurn(const DocumentHandle& document, std::function<void()> call)
{
    Place* place = placeOf(document);
    if (!place) return;
    if (!place->isBusy()) return call();
    place->waiting.push_back({{}, {}, std::move(call)});
}

/// Not from inside such a call: it can't be waited for there.
bool Workspace::closeAwaits(const DocumentHandle& document) const
{
    const Place* place = placeOf(document);
    if (!place || place->calling) return false;
    const bool onlySteps = place->isBusy() && !place->hasChange();
    return onlySteps || place->saves > 0 ||
           std::ranges::any_of(place->waiting, [](const Item& item) { return bool(item.call); });
}

/// Calls in the queue are no changes: they still run.
bool Workspace::cancel(const DocumentHandle& document, int change)
{
    Place* place = placeOf(document);
    return place && end(*place, [change](const Item& item) { return item.isMeant(change); });
}

/// Of the one that runs the outcome is told without its thread, which may be in the middle of a long row.
template <class Meant> bool Workspace::end(Place& place, Meant meant)
{
    const bool running = place.running && meant(place.running->item);
    if (running && !place.running->cancelled.exchange(true))
        later([this, run = place.running]() mutable { finished(std::move(run), {Outcome::Cancelled}); });
    const auto ends = [&](Item& item) {
        if (!meant(item)) return false;
        if (item.then) later([then = std::move(item.then)] { then({Outcome::Cancelled}); });
        return true;
    };
    return std::erase_if(place.waiting, ends) > 0 || running;
}

bool Workspace::isBusy(const DocumentHandle& document) const
{
    const Place* place = placeOf(document);
    return place && place->isBusy();
}

std::optional<QString> Workspace::underWay(const DocumentHandle& document) const
{
    const Place* place = placeOf(document);
    const bool any = place && place->hasChange();
    if (!any) return {};
    const auto newest = std::ranges::find_if(place->waiting.rbegin(), place->waiting.rend(), &Item::isChange);
    return newest != place->waiting.rend() ? newest->step.name : place->running->item.step.name;
}

void Workspace::goOn(const DocumentHandle& document)
{
    if (Place* place = placeOf(document)) begin(*place);
}

/// Starts the next entry of the queue, unless something is under way. May destroy the place: a call may close its
/// document.
void Workspace::begin(Place& place)
{
    if (place.running || place.calling || place.waiting.empty()) return;
    const DocumentHandle document = place.document->handle();
    if (held && held(*document)) return;
    Item item = std::move(place.waiting.front());
    place.waiting.pop_front();
    if (!item.call && !document->PictureExists()) {
        if (item.then) later([then = std::move(item.then)] { then({Outcome::Gone}); });
        return begin(place);
    }
    if (item.call) {
        place.calling = true;
        return later([this, document, call = std::move(item.call)] {
            if (Place* mine = placeOf(document)) {
                mine->inCall = true;
                call();
            }
            Place* still = placeOf(document);
            if (!still) return;
            still->calling = still->inCall = false;
            if (still->waiting.empty()) emit idle(document);
            goOn(document);
        });
    }
    // What a tool shows temporarily is not part of the picture: the engine has the committed one.
    const bool committed = engineHolds(*document) && engine_.BitsWidth() == document->PictureWidth() &&
                           engine_.BitsHeight() == document->PictureHeight();
    place.running = std::shared_ptr<Run>(
        new Run{document, std::move(item),
                Draft(*document, committed ? engine_.bits() : document->bits(), engine_, item.step.after)});
    if (const int state = place.running->item.step.state) place.running->draft.goTo(state);
    start(place.running);
    later([this, document] {
        if (isBusy(document)) emit busy(document);
    });
}

void Workspace::start(const std::shared_ptr<Run>& run)
{
    run->draft.filter().Progress = [this, of = run.get()](int percent) {
        if (of->cancelled) throw Cancelled();
        later([this, of, document = of->document, percent] {
            const Place* place = placeOf(document);
            if (place && place->running.get() == of) emit progress(document, percent);
        });
    };
    threads_.start([this, run] {
        const Outcome outcome = run->document ? run->draft.attempt(run->item.step.job) : Outcome{Outcome::Gone};
        later([this, run, outcome]() mutable { finished(std::move(run), outcome); });
    });
}

/// If the document was changed meanwhile after all, the job is run again on its present state.
void Workspace::finished(std::shared_ptr<Run> run, Outcome outcome)
{
    const DocumentHandle document = run->document;
    Then then;
    if (!std::exchange(run->isOver, true)) {
        Place* place = placeOf(document);
        if (!place) outcome = {Outcome::Gone};
        if (place && run->cancelled) outcome = {Outcome::Cancelled};
        if (place) {
            place->running.reset();
            if (outcome && !run->draft.wanted()) {
                place->waiting.push_front(std::move(run->item));
                begin(*place);
                return freeing_.start([run = std::move(run)] {});
            }
            if (outcome) {
                run->replaced = {document->bits(), engine_.bits()};
                run->draft.take({.name = run->item.step.name, .words = run->item.step.words});
                run->draft.handTo(engine_, engineHolds(*document));
                emit changed(document);
            }
        }
        then = std::move(run->item.then);
        goOn(document);
        if (place && !isBusy(document)) emit idle(document);
    }
    freeing_.start([run = std::move(run)] {});
    if (then) then(outcome);
}

void Workspace::wait(const DocumentHandle& document)
{
    const auto isUnderWay = [&] {
        const Place* place = placeOf(document);
        return place && !place->inCall && (place->isBusy() || place->saves > 0);
    };
    while (isUnderWay()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void Workspace::wait()
{
    const auto isUnderWay = [this] {
        return hasCalls() || writes_ + removals_ > 0 || !openings_.empty() ||
               std::ranges::any_of(places_, [](const auto& place) { return place->isBusy(); });
    };
    while (isUnderWay()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void Workspace::handOver(const Document& document)
{
    if (leaves && held_ && !engineHolds(document)) leaves(held_);
    document.handTo(engine_);
    held_ = document.handle();
}

} // namespace velara
