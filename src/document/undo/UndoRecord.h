// UndoRecord: what the snapshots of a document don't say, and what is needed to open it again after the program died:
// the facts of its file, the texts that wait over it, and which states its series has.
#pragma once
#include "document/road/FileFacts.h"
#include "document/undo/StepNote.h"
#include "text/Layers.h"
#include <QByteArray>
#include <cstdint>
#include <optional>
#include <vector>

namespace velara {

/// Of a document, whatever state of its series is shown.
struct DocumentFacts {
    FileFacts file = {};
    bool isUnsaved = false;   // closing it would lose something
    Layers::State texts = {}; // that are not in the picture yet
};

/// A state of a series, as it is on the disk: a whole picture, or tiles over the state before it.
struct KeptState {
    StepNote note = {};     // of the change that led to it; a record has its name, its words and the size
    bool gap = false;       // the state before it is not in the series
    std::uint64_t file = 0; // UndoFiles::identity; 0: the state is not on the disk
    std::uint64_t sum = 0;  // of its picture; 0: not known
    int side = 0;           // of what sum is: TileSums::whole with tiles of this side; 0: checksumOf the block
    bool isTiles = false;
};

struct UndoRecord {
    DocumentFacts about = {};
    int step = 0; // states up to and including the one shown
    std::vector<KeptState> states = {};
    std::int64_t when = 0; // milliseconds since 1970, UTC
    // Beneath the first state: files that are no states any more, from index UndoFiles::kGround on, a whole one first.
    std::vector<KeptState> ground = {};
};

/// What is known of a record's bytes.
enum class RecordState {
    Whole,
    Missing,
    Damaged, // cut off, or changed
    Newer    // of a later version of the program
};

/// The bytes of a record: a mark, the version, a checksum, and a CBOR map. Unknown entries of the map are ignored,
/// missing ones have their defaults.
QByteArray bytesOf(const UndoRecord& record);
/// record is set only where the result is Whole.
RecordState recordFrom(const QByteArray& bytes, UndoRecord& record);

/// XXH3 of so many bytes.
std::uint64_t checksumOf(const void* bytes, std::size_t size);
/// Whether the picture has the checksum of the state, or this is not known: tells a snapshot from one that is half
/// overwritten.
bool isPictureOf(const KeptState& state, const Bits& bits);

} // namespace velara
