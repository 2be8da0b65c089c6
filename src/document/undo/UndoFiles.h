// UndoFiles: the files of one undo series, one whole picture each, by index. Knows no counters.
#pragma once
#include "pixels/Bits.h"
#include <QString>
#include <optional>

namespace velara {

class UndoFiles {
  public:
    /// Files are b + number "0000" + index "00" + .dat in the folder.
    UndoFiles(QString folder, int number) : folder_(std::move(folder)), number_(number) {}

    const QString& folder() const { return folder_; }
    int number() const { return number_; }
    QString name(int index) const;

    /// Over the file of the index, or a new one. False: an index that was there is whole or gone, others are as they
    /// were.
    bool write(int index, const Bits& bits) const;
    /// The same over the pages of the oldest, index 0, which is about to go: half the time of a new file.
    bool writeOverOldest(int index, const Bits& bits) const;
    /// Nothing when the file is missing, short or damaged.
    std::optional<Bits> read(int index) const;
    void remove(int index) const;
    /// Drops the index and moves those above it, up to last, down by one. Upward, so that no file is overwritten; one
    /// that fails does not stop the rest.
    void drop(int index, int last) const;
    void removeAll() const;

  private:
    QString folder_;
    int number_;
};

} // namespace velara
