// Reads picture files through velara-decode: one disposable child per file, with limits, so that a damaged file can
// ruin nothing but the child.
#pragma once
#include "fileio/load/Descriptor.h"
#include "fileio/load/Origin.h"
#include "seams/Platform.h"
#include <QImage>
#include <chrono>
#include <functional>

namespace velara {

constexpr unsigned kMostSeconds = 60; // of processor time, for any picture

struct DecoderLimits {
    std::size_t memory = std::size_t{4} << 30;  // bytes of address space
    unsigned cpuSeconds = 2;                    // processor time; some readers loop endlessly on damaged files
    unsigned mostSeconds = kMostSeconds;        // the most of it, for a picture that claims many pixels
    std::chrono::milliseconds idle{2000};       // asleep or stopped, in total
    std::chrono::milliseconds wallClock{90000}; // from start to the last row
};

/// The limits for a file of the given bytes: 2 seconds of processor time below a megabyte; otherwise 15 plus one for
/// each megabyte, up to a minute.
DecoderLimits limitsFor(std::int64_t fileSize);
/// Processor time for a picture of the given pixels, whatever its file's size: 2 to 60 seconds.
unsigned secondsFor(std::int64_t pixels);

/// A helper program's path: beside the running executable, or where an installation puts it. Empty when not found.
QString findHelper(const QString& name);
inline QString findDecoder() { return findHelper("velara-decode"); }

/// Whether pictures are read in true colours or in those that their files store, from now on; true ones at first. For
/// any thread.
void readInSrgb(bool on);

/// Told while a picture is read, in the thread that reads it: what is known of it, and how many of its rows are there.
/// The first time there are none, and nobody else holds the pixels yet: who keeps their WrittenRows may write to those
/// that came, and a copy of the pixels may be read that far by another thread.
using RowsCame = std::function<void(LoadedPicture& picture, int rows)>;

/// Reads path with the reader of the extension (any case, no dot). decoder is the helper's path. Never throws; the
/// page: from 1. reason names the file: "photo.png can't be read: it is damaged or not a PNG picture".
LoadedPicture loadThroughDecoder(const QString& path, const QString& extension, const QString& decoder,
                                 const DecoderLimits& limits = {}, const GoOn& goOn = {}, int page = 1,
                                 const RowsCame& came = {});
/// The same for a file already open for reading; name is used in the reason.
LoadedPicture loadThroughDecoder(const Descriptor& file, const QString& name, const QString& extension,
                                 const QString& decoder, const DecoderLimits& limits = {}, const GoOn& goOn = {},
                                 int page = 1, const RowsCame& came = {});

/// The table of a screen's colours (ColourTablePicture.h) by its profile. No picture: it needs none, or it is not
/// usable.
LoadedPicture loadColourTable(const Descriptor& profile, const QString& decoder, const GoOn& goOn = {});

/// A picture scaled down to fit a box, with its properties.
struct SmallPicture {
    QImage image; // 32 bits without alpha; null: it can't be read
    QSize size;   // of the picture itself
    Origin origin;
    QString reason; // as for loadThroughDecoder
};

/// Scales the picture down while it is read, so that it never exists at full size. Callable from any thread.
SmallPicture loadSmall(const QString& path, const QString& extension, const QString& decoder, QSize box,
                       const DecoderLimits& limits = {}, const GoOn& goOn = {});

} // namespace velara
