// UndoStore: the undo and redo series of one document, snapshots on disk. Knows two counters and a folder, and no
// window.
//
// A snapshot is the whole picture, or the tiles that differ from the state before it, where these are few and the
// picture is big (TileRules). They are found by checksums of all tiles, so that no change has to tell where it was.
// Such states rest on each other down to a whole one, which stays as long as it is needed, also when it is no state any
// more.
//
// Snapshots are written by a thread, in order, from shared picture values, so that an edit doesn't wait for the disk.
// The counters run ahead of it; whoever needs the files (undo, redo, the end) waits. A snapshot that can't be written
// stays in memory as a normal step: the one on screen always, older ones as long as they leave as much memory free as
// they take. Those dropped then are skipped.
//
// Beside them stands a record of what the series is (UndoRecord), as soon as something is unsaved; it is written after
// each snapshot and each step, and names what is on the disk then. document/recovery opens documents from it.
#pragma once
#include "document/undo/StepNote.h"
#include "document/undo/UndoMark.h"
#include "document/undo/UndoRecord.h"
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace velara {

/// When a state is kept as tiles.
struct TileRules {
    std::size_t smallest = 16 << 20; // bytes of the block: of a smaller picture every state is whole
    int side = 128;                  // of a tile, pixels
    int share = 4;                   // all files of tiles over a whole picture take at most its size divided by this,
    int most = 32;                   // and are at most so many
};

class UndoStore {
  public:
    static constexpr int kLimit = 10; // snapshots kept after a save

    inline static TileRules tileRules; // of series that are made from now on; others are for tests

    /// folder is where the files go ("Temp" under the program folder; empty: no steps are kept). It is made if its
    /// parent exists. A number that another program uses, or that has work of a dead one, is skipped: next is asked
    /// again.
    UndoStore(QString folder, const std::function<int()>& next);
    /// A number that the caller knows to be free; if it isn't, no steps are kept.
    UndoStore(QString folder, int documentNumber);
    /// A series that a dead program left, with its lock and its files: those of the record's states, all of them on the
    /// disk, from index 0 on.
    struct Inherited {
        QString folder;
        int number;
        UndoMark mark;
        UndoRecord record;
    };
    explicit UndoStore(Inherited inherited);
    ~UndoStore();
    UndoStore(const UndoStore&) = delete;
    UndoStore& operator=(const UndoStore&) = delete;

    int number() const;
    /// It was given a folder: where not, nothing can be seen of what is saved.
    bool hasFolder() const;
    int UndoStep() const; // snapshots up to and including the state shown
    int UndoTop() const;  // snapshots in the series
    bool canUndo() const;
    bool canRedo() const;
    /// The names, as given to save(), of the changes that a step back or forward takes away or brings; empty without
    /// one.
    QString undoName() const;
    QString redoName() const;
    /// True from the second snapshot on, and when one couldn't be written: there may be something to lose.
    bool mayHaveChanged() const;

    /// The picture becomes the next step, redo steps are dropped, and so is the oldest of a full series. name: of the
    /// change that led to it, for the user. Returns at once unless the snapshot before the last one is still being
    /// written.
    void save(const Bits& bits, const QString& name = {}) { save(bits, StepNote{.name = name}); }
    /// The same with all that is known of the change; its number is given here.
    void save(const Bits& bits, StepNote note);
    /// All that was done, oldest first, with what can be redone; the first is the state at the start. Only the last
    /// ones are in the series, and have a small picture.
    struct Listed {
        std::vector<StepNote> notes;
        std::vector<bool> stands; // of each: in the series, or still being written
        int shown = -1;           // index of the one on screen
    };
    Listed listed() const;
    /// For another thread: waits until save() returns at once.
    std::function<void()> roomLater() const;
    /// Waits for the writing, of the record, too. True when the state shown is on disk, or none was ever saved.
    bool stands() const;
    /// Waits. The picture shown before this one; counters are unchanged. Nothing when it is lost.
    std::optional<Bits> previous() const { return previousLater()(); }
    /// previous() for another thread; no save or step may happen meanwhile.
    std::function<std::optional<Bits>()> previousLater() const;
    /// Moves the counters like undo(), for a picture obtained from previous().
    void stepBack();
    /// A step back or forward: its picture, and the counters as they are then. Steps that are lost are passed over;
    /// nothing when there is none that can be read.
    struct Found {
        Bits picture;
        int step;
        bool passedOver;
    };
    /// Waits and reads. For another thread, as previousLater().
    std::function<std::optional<Found>()> stepLater(bool back) const;
    /// The same of the state with this number; nothing where it isn't in the series any more.
    std::function<std::optional<Found>()> stateLater(int number) const;
    /// What was found is shown now.
    void moveTo(const Found& found);
    /// Both in one.
    std::optional<Bits> undo() { return step(true); }
    std::optional<Bits> redo() { return step(false); }
    /// Whether the last undo or redo left or skipped a step that couldn't be written or read.
    bool passedOver() const;
    /// For the record of the series, from which the document can be opened again if the program dies; in the
    /// background, after the snapshots before it. While nothing is unsaved there need be none.
    void describe(DocumentFacts about);
    /// The same, for the record that the next save() writes.
    void willDescribe(DocumentFacts about);
    /// Removes every file of the document; queued snapshots are not written. Waits for what is being written.
    void deleteSeries();
    /// The same for another thread, which alone waits; from now on this one has no steps and keeps none.
    std::function<void()> deleteSeriesLater();
    /// No more is kept, nor a record; waits for what is being written. The files stay.
    void stop();

    /// Called on the writing thread when the state before a snapshot can be kept neither on disk nor in memory, so that
    /// the step can't be undone; the reason is for the user. Set it before the first save.
    void onFailure(std::function<void(const QString& reason)> told);

    /// Called on the writing thread when the record can't be written, the first time in a row.
    void onUnrecorded(std::function<void(const QString& reason)> told);

    QString fileName(int index) const;

  private:
    std::optional<Bits> step(bool back);

    struct Series;
    class Reading;
    std::shared_ptr<Series> series_; // shared with the queued jobs
};

} // namespace velara
