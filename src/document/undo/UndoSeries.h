// UndoSeries: the states of an undo series and what is done with them on the writing thread; private to UndoStore.
#pragma once
#include "document/undo/RecordFile.h"
#include "document/undo/TileSums.h"
#include "document/undo/UndoFiles.h"
#include "document/undo/UndoLayers.h"
#include "document/undo/UndoStore.h"
#include <algorithm>
#include <array>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>

namespace velara {

/// Between the owner, the writing thread and threads that read steps. While snapshots wait, the files, the mark and the
/// states are the writing thread's, but not before those that read have ended; else they are to be read by all. The
/// counters are read under the guard at any time.
struct UndoStore::Series {
    Series(QString folder, int number) : files(std::move(folder), number) {}

    /// One state of the series; without a picture it is in its file.
    struct State : KeptState {
        std::optional<Bits> picture = {}; // could not be written to disk
        bool isInherited = false;         // written by another program, which died: its checksum is to be looked at
        TileSums sums = {};               // of its tiles; none: not known, so nothing can rest on it
        int tileFiles = 0;                // that it is made of, over the whole picture beneath
        std::int64_t tileBytes = 0;       // of these, at most
    };
    const TileRules rules = tileRules;
    UndoFiles files;
    UndoMark mark;
    RecordFile record{files};
    std::function<void(const QString&)> told, toldUnrecorded;
    std::atomic<bool> abandoned{false};
    std::array<State, kLimit + 1> states; // by index
    std::vector<KeptState> ground;        // as in UndoRecord

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
    std::vector<LayerFile> layersUpTo(int index) const;

    std::optional<Found> find(int shown, bool back);
    void noteSave(StepNote& note);
    void noteStates();
    void noteShown() { current = step > 0 ? of(step - 1).note.number : 0; }
    bool isThere(const StepNote& note) const;
    void remove();

    // --- On the writing thread; count is the number of states.
    bool ready();
    int write(const Bits& bits);
    bool writeState(int index, const Bits& bits);
    bool writeWhole(int index, State& state, const Bits& bits) const;
    bool writeOver(int below, State& state, const Bits& bits) const;
    void retireOldest(bool ours);
    void keepRecord(int step, int top);
    void tryToRecord(int step, int top);
    int hold(const Bits& bits, int index);
    int keepOlder(int count, bool ours);
    int drop(int index, int count, bool ours);
    void tell(int reason) const;
};

} // namespace velara
