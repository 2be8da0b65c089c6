// Leftover: a document whose program died with something unsaved in it: its record, its snapshots, and their lock,
// which this holds, so that no other program offers or takes it meanwhile.
#pragma once
#include "document/undo/TileFile.h"
#include "document/undo/UndoStore.h"
#include <memory>
#include <mutex>
#include <vector>

namespace velara {

class Leftover {
  public:
    /// Those in a folder of undo files. Removes the files of dead programs without unsaved work; those of living ones
    /// are left alone, and so are all where the file system has no locks. Any thread.
    static std::vector<std::shared_ptr<Leftover>> find(const QString& folder);

    const DocumentFacts& about() const { return record_.about; }
    /// Of its last change; milliseconds since 1970, UTC.
    std::int64_t when() const { return record_.when; }
    /// How many states are on the disk, the one shown among them.
    int states() const;
    /// The last state that can be read, at or before the one shown; else the next after it. Null when there is none.
    /// Also null after inherit() and discard(). Any thread.
    Bits read();
    /// What can't be had again, for the user, as far as known: more after read(). Empty: nothing. Any thread.
    QString trouble() const;

    /// For the new document, after read() has found a picture. Its files are put in order: renamed, not copied.
    UndoStore::Inherited inherit();
    /// Removes all of it.
    void discard();

  private:
    Leftover(const QString& folder, int number, UndoMark mark);
    bool hasWork();
    using Found = std::vector<std::optional<StateFile>>; // by index of a file
    Found lookForFiles() const;
    void locate(const Found& found);
    void guess(const Found& found);
    void takeRetired();
    void dropUnsupported(const Found& found);
    bool isReadable(int state, Bits& bits) const;

    mutable std::mutex reading_;
    bool isGone_ = false; // inherited or discarded
    UndoFiles files_;
    UndoMark mark_;
    UndoRecord record_;
    RecordState state_ = RecordState::Missing;
    std::vector<int> at_;       // of each state of the record: the index of its file; -1: lost
    std::vector<int> groundAt_; // the same of its ground
    int undone_ = 0;            // states after the one that is shown now, which was to be shown
    bool nothing_ = false;      // no state can be read
};

} // namespace velara
