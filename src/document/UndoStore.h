// UndoStore: the undo and redo series of one document, whole-picture snapshots on disk. Knows two counters and a
// folder, and no window.
#pragma once
#include "pixels/Bits.h"
#include <QString>
#include <optional>

namespace velara {

class UndoStore {
  public:
    static constexpr int kLimit = 10; // snapshots that stand after a save

    /// folder is where the files lie ("Temp" under the program folder; empty: no step is kept); files are b + number
    /// "0000" + step "00" + .dat.
    UndoStore(QString folder, int documentNumber);

    int UndoStep() const { return step_; } // snapshots up to and including the state shown
    int UndoTop() const { return top_; }   // snapshots in the series
    bool canUndo() const { return step_ > 1; }
    bool canRedo() const { return step_ < top_; }

    /// Writes the picture as the next step and cuts what could be redone. On a failed write false, with counters and
    /// the files of the steps before as they were.
    bool save(const Bits& bits);
    /// The picture one step back or forward, and the counters moved; nothing, and nothing moved, when the file is
    /// missing, short or damaged.
    std::optional<Bits> undo();
    std::optional<Bits> redo();
    /// The picture one step back, the counters as they were; nothing when there is none or its file can't be read.
    std::optional<Bits> previous() const { return canUndo() ? load(step_ - 2) : std::nullopt; }
    /// The counters of undo(), for a picture that previous() gave.
    void stepBack() { step_ -= canUndo(); }
    /// Removes every file of the document.
    void deleteSeries();

    QString fileName(int index) const;

  private:
    void shiftSeries();
    std::optional<Bits> load(int index) const;

    QString folder_;
    int number_;
    int step_ = 0, top_ = 0;
};

} // namespace velara
