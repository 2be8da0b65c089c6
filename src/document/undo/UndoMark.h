// UndoMark: the sign that a living program uses a document number, so that no other touches its undo files.
#pragma once
#include <QString>

namespace velara {

/// Makes the folder of the undo files for its owner alone (its parent has to stand), or draws an older one in to that.
/// False when there is no such folder afterwards.
bool makePrivateFolder(const QString& folder);

/// A lock on a file beside the undo files ("b0003.lock"), which the system releases with the program that holds it,
/// however it ends. A file that nobody holds is what a dead program left.
class UndoMark {
  public:
    enum class Answer { Ours, Taken, Impossible }; // Impossible: no such folder, or none can be written there

    UndoMark() = default;
    ~UndoMark() { release(); }
    UndoMark(const UndoMark&) = delete;
    UndoMark& operator=(const UndoMark&) = delete;

    Answer take(const QString& folder, int number);
    /// False without one, and when its file was swept away, so that another program could take the number.
    bool stands() const;
    /// Takes the file away with it.
    void release();

  private:
    QByteArray path_;
    int file_ = -1;
};

} // namespace velara
