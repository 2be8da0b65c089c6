// UndoFiles: the files of one undo series by index, and those that are a whole picture (others: TileFile). Knows no
// counters.
#pragma once
#include "pixels/Bits.h"
#include <QString>
#include <functional>
#include <optional>

namespace velara {

class UndoFiles {
  public:
    /// Files are b + number "0000" + index "00" + .dat in the folder.
    UndoFiles(QString folder, int number) : folder_(std::move(folder)), number_(number) {}

    const QString& folder() const { return folder_; }
    int number() const { return number_; }
    QString name(int index) const;
    /// Of what belongs to the whole series: b + number + "." + ending.
    QString nameOf(const QString& ending) const;

    /// Overwrites the file of the index, or creates it. False: a previous file of the index is intact or gone; others
    /// are unchanged.
    /// before(end) is called before the bytes of bits up to end are written.
    using Before = std::function<void(std::size_t end)>;
    bool write(int index, const Bits& bits, const Before& before = {}) const;
    /// The same, reusing the pages of the oldest file, index 0, which is about to be dropped and is gone either way:
    /// half the time of a new file.
    bool writeOverOldest(int index, const Bits& bits, const Before& before = {}) const;
    /// Nothing when the file is missing, short or damaged.
    std::optional<Bits> read(int index) const;
    void remove(int index) const;
    /// The number by which the file system knows a file under any name; 0: there is none.
    std::uint64_t identity(int index) const;
    /// Whether it has a valid header, and at least the bytes that this speaks of.
    bool isWhole(int index) const;
    /// Replaces what has the other index.
    bool move(int from, int to) const;
    /// Removes the index and moves those above it, up to last, down by one. In ascending order, so that no file is
    /// overwritten; a failure does not stop the rest.
    void drop(int index, int last) const;
    void removeAll() const;
    static constexpr int kMost = 100;  // indices
    static constexpr int kGround = 20; // the first of files that are no state any more, but that states rest on

  private:
    QString folder_;
    int number_;
};

} // namespace velara
