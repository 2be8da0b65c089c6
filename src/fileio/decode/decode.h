// Reads one picture file: from path and extension to size and pixels, or the reason why not. A pure function, but its
// libraries crash and loop on damaged files: the programs run it in velara-decode only.
#pragma once
#include "fileio/decode/FileBytes.h"
#include "fileio/decode/cage/Cage.h"
#include "fileio/load/Origin.h"
#include "pixels/Bits.h"
#include "seams/CameraData.h"
#include <QString>
#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace velara::decode {

/// What a file carries beside its pixels. The bytes are the file's own, not looked into by the reader.
struct Carried {
    int orientation = 0;                 // 1 to 8, as EXIF counts, where the container says it; 0: only exif may know
    std::vector<std::uint8_t> profile{}; // ICC
    double gamma = 0;                    // of a PNG, as its chunk has it (0.45455 is usual); 0: none
    std::array<double, 8> chromaticities{};  // of a PNG: x and y of white, red, green and blue; zeros: none
    std::vector<std::uint8_t> exif{};        // from the byte order mark ("II", "MM") on
    std::vector<std::uint8_t> xmp{}, iptc{}; // the packet; the records from the first 0x1c on
    std::string comment{};                   // UTF-8 or Latin-1
    double dotsAcross = 0, dotsDown = 0;     // per inch, where the container says it; 0: unknown
    int pages = 1;                           // pages or frames in the file
};

/// The samples of a file that `row` has lost some of: for the conversion into true colours.
struct Samples {
    int channels = 0; // 3: red, green, blue; 4: cyan, magenta, yellow, black, where 0 is no ink
    int bytes = 0;    // per sample; two are in the machine's order
    /// Writes the W times `channels` samples of row y (0 is the top one).
    std::function<void(int y, void* row)> row;
};

/// Damage that a reader can't go on after.
struct Damage : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A picture whose rows are produced on demand, so that it isn't in memory twice.
struct Decoded {
    int width = 0, height = 0;
    /// Writes the W pixels of row y (0 is the top one), fourth byte 0. Throws Damage where the pixels can't be read.
    std::function<void(int y, Pixel* row)> row;
    QString reason = {}; // why there is no picture, or why it is incomplete
    Origin origin = {};
    Carried carried = {};
    Samples samples = {};         // empty where row has them all
    CameraData camera = {};       // carried, made fit for the upright picture
    QString properties = {};      // for the user: lines of a name, a tab and a value
    std::string_view format = {}; // the extension of the format that the bytes are of, whatever the name says
    /// Asked after all rows: why they are incomplete, where that shows itself between them; empty when they are whole.
    std::function<QString()> lastWord = {};
    bool ok() const { return static_cast<bool>(row); }
};
inline Decoded refused(const QString& reason) { return {0, 0, {}, reason}; }

/// Called by readers with the size given by the header and the bits per pixel (0: unknown), before the pixels are read;
/// at most once per reader.
extern void (*sizeFound)(std::int64_t width, std::int64_t height, int bits);

/// The page or frame that is read, from 0; set before decodePicture. A reader of a format that has pages looks at it,
/// and those beyond the last are refused.
extern int wantedPage;

/// Whether this program has the readers of the extension (lower case, no dot) and of the mark of the first bytes, where
/// there are such readers.
bool readsHere(std::string_view extension, std::span<const std::uint8_t> bytes);

/// Loads what the readers of the extension (lower case, no dot) and of the mark that the bytes bear need from the disk,
/// before the cage closes. The bytes are only compared with the marks.
Needs prepareReaders(const QString& extension, std::span<const std::uint8_t> bytes);

/// What the one who asks for a picture wants of it.
struct Wanted {
    bool srgb = true;   // true colours, else those that the file stores
    bool facts = true;  // camera and properties
    bool table = false; // of a screen's colours, by its profile: no picture
};

/// The reader is chosen by the extension. One that finds no picture, or none for the extension, leaves the file to the
/// reader of the mark that it bears. Empty bytes: the file can't be opened. The picture is upright.
Decoded decodePicture(FileBytes&& file, const QString& extension, Wanted wanted = {});

} // namespace velara::decode
