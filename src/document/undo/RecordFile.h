// RecordFile: the record of one undo series on the disk, "b0003.rec" beside its snapshots.
//
// A new one takes the old one's name when it is complete, without waiting for the disk: that is enough for whatever
// ends the program. For a power cut a thread syncs snapshots, record and folder, in this order, when nothing has been
// written for a moment. The last record for which that was done is kept as "b0003.old" when the next one comes, and
// read where the next one is damaged. A snapshot that didn't reach the disk before its record is found by its checksum.
#pragma once
#include "document/undo/UndoFiles.h"
#include "document/undo/UndoRecord.h"
#include <atomic>
#include <memory>

namespace velara {

class RecordFile {
  public:
    /// Of these files, whose lock the caller holds while this is used.
    explicit RecordFile(const UndoFiles& files) : files_(files), written_(std::make_shared<Written>()) {}

    /// False, with errno: the record before it is intact.
    bool write(const UndoRecord& record);
    void remove();
    /// Where there is none that is whole the result says why, and record is unchanged.
    static RecordState read(const UndoFiles& files, UndoRecord& record);
    static bool isThere(const UndoFiles& files);

    /// How many were written, and which was synced last.
    struct Written {
        std::atomic<unsigned> count{0}, synced{0};
    };

  private:
    UndoFiles files_;
    std::shared_ptr<Written> written_;
};

} // namespace velara
