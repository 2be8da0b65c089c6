// UndoMark: marks a document number as used by a running program, so that no other touches its undo files.
#pragma once
#include <QString>
#include <utility>

namespace velara {

/// Makes the folder of the undo files, accessible to its owner only (its parent must exist), or restricts an existing
/// one. False when there is no such folder afterwards.
bool makePrivateFolder(const QString& folder);

/// A lock on a file beside the undo files ("b0003.lock"), which the system releases with the process that holds it,
/// however it ends. An unlocked file was left by a dead program.
class UndoMark {
  public:
    enum class Answer { Ours, Taken, Impossible }; // Impossible: no such folder, or it is not writable

    UndoMark() = default;
    ~UndoMark() { release(); }
    UndoMark(UndoMark&& other) noexcept { *this = std::move(other); }
    UndoMark& operator=(UndoMark&& other) noexcept;

    Answer take(const QString& folder, int number);
    /// False without a lock, and when its file was removed, so that another program could take the number.
    bool stands() const;
    /// Whether the file system has locks. Where it has none, a program that lives can't be told from one that died.
    bool isLock() const { return isLock_; }
    /// Removes the file, too.
    void release();
    /// Lets go of it and leaves the file.
    void leave();

  private:
    QByteArray path_;
    int file_ = -1;
    bool isLock_ = false;
};

} // namespace velara
