#include "document/undo/UndoSeries.h"
#include "pixels/memory/MemoryBudget.h"
#include <QDateTime>
#include <cerrno>

namespace velara {

/// For the user, of an errno.
static QString whyNot(int reason)
{
    const bool noRoom = reason == ENOSPC || reason == EDQUOT || reason == EFBIG;
    return noRoom ? QStringLiteral("no room in the Temp folder")
                  : QStringLiteral("the Temp folder can't be written to");
}

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
        done = ours && writeState(count, bits);
        retireOldest(ours);
        --count;
    }
    done = done || (ours && writeState(count, bits));
    if (done) return count + 1;
    if (ours) files.remove(count); // the redo steps
    return hold(bits, count);
}

/// The oldest of a full series is no state any more. What the next one rests on stays.
void UndoStore::Series::retireOldest(bool ours)
{
    if (of(1).isTiles) {
        if (ours) files.move(0, UndoFiles::kGround + static_cast<int>(ground.size()));
        ground.push_back(of(0));
    } else {
        for (int i = 0; i < static_cast<int>(ground.size()) && ours; ++i) files.remove(UndoFiles::kGround + i);
        ground.clear();
    }
    if (ours) files.drop(0, kLimit);
    std::shift_left(states.begin(), states.end(), 1);
    states.back() = {};
}

bool UndoStore::Series::writeState(int index, const Bits& bits)
{
    State state;
    static_cast<KeptState&>(state) = of(index);
    state.sums = TileSums(TileGrid(bits, rules.side));
    state.isTiles = index > 0 && writeOver(index - 1, state, bits);
    if (!state.isTiles && !writeWhole(index, state, bits)) return false;
    state.file = files.identity(index);
    state.sum = state.sums.whole();
    state.side = rules.side;
    of(index) = std::move(state);
    return true;
}

/// The pages of the oldest file are reused where it is about to go. What of the sums isn't known yet is made on the
/// way.
bool UndoStore::Series::writeWhole(int index, State& state, const Bits& bits) const
{
    const auto sums = [&](std::size_t end) { state.sums.addUpTo(bits, end); };
    return index == kLimit && !of(1).isTiles ? files.writeOverOldest(index, bits, sums)
                                             : files.write(index, bits, sums);
}

/// Writes the tiles in which a picture differs from the state below. False where it is to be written whole: too much
/// differs, which shows after the first rows, or what it would rest on is not there.
bool UndoStore::Series::writeOver(int below, State& state, const Bits& bits) const
try {
    const State& base = of(below);
    if (bits.sizeInBytes() < rules.smallest || base.sums.grid() != state.sums.grid() || base.tileFiles >= rules.most)
        return false;
    std::vector<std::uint32_t> tiles;
    std::int64_t size = base.tileBytes + tileFileSize(state.sums.grid(), 0);
    while (state.sums.addSome(bits)) {
        tiles = state.sums.differing(base.sums);
        size = base.tileBytes + tileFileSize(state.sums.grid(), tiles.size());
        if (size > static_cast<std::int64_t>(bits.sizeInBytes()) / rules.share) return false;
    }
    const auto stands = [this](const LayerFile& layer) { return files.identity(layer.index) == layer.file; };
    if (!std::ranges::all_of(layersUpTo(below), stands)) return false;
    state.tileFiles = base.tileFiles + 1;
    state.tileBytes = size;
    return writeTiles(files, below + 1, bits, state.sums, base.sum, tiles);
} catch (const std::bad_alloc&) { // a whole picture needs no memory
    return false;
}

std::vector<LayerFile> UndoStore::Series::layersUpTo(int index) const
{
    const int beneath = static_cast<int>(ground.size());
    return layersOf(index, ground.size(), [&](int i) -> std::pair<const KeptState*, int> {
        if (i >= 0) return {&of(i), i};
        return {&ground[static_cast<std::size_t>(beneath + i)], UndoFiles::kGround + beneath + i};
    });
}

/// The reader of a state doesn't know what else has happened to its files.
std::optional<Bits> UndoStore::Series::pictureOf(int index) const
{
    const State& state = of(index);
    if (state.picture) return state.picture;
    std::optional<Bits> bits = readLayers(files, layersUpTo(index));
    if (bits && state.isInherited && !isPictureOf(state, *bits)) return {};
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
    now.ground = ground;
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
    State held;
    held.gap = of(index).gap;
    held.picture = bits;
    of(index) = std::move(held);
    everFailed = true;
    return index + 1;
}

void UndoStore::Series::tell(int reason) const
{
    if (told) told(whyNot(reason));
}

std::optional<UndoStore::Found> UndoStore::Series::find(int shown, bool back)
{
    const int way = back ? -1 : 1, nearest = shown + way;
    for (int i = nearest; i >= 0 && i < top; i += way)
        if (auto bits = pictureOf(i)) return Found{*bits, i + 1, i != nearest || of(back ? shown : i).gap};
    return {};
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

/// Waits for the writing thread, which has nothing to do with the files after it.
void UndoStore::Series::remove()
{
    abandoned = true;
    const auto lock = quiet();
    abandoned = false;
    if (!mark.stands() && mark.take(files.folder(), files.number()) != UndoMark::Answer::Ours) return;
    about = {};
    recorded = false;
    record.remove();
    files.removeAll();
    mark.release();
}

/// Those that can't be gone to any more have no picture.
void UndoStore::Series::noteStates()
{
    standing.clear();
    for (int i = 0; i < top; ++i) standing.push_back(of(i).note.number);
    for (StepNote& note : log)
        if (!isThere(note)) note.small = Bits();
}

} // namespace velara
