// Writes what "Save for Web" makes of a picture.
#pragma once
#include "fileio/web/WebSettings.h"

namespace velara {

struct WebFile {
    enum class Outcome {
        Written,
        Failed,   // what stood under the name is whole
        NoBitmap, // the format can't hold the picture
        Stopped,  // progress threw Cancelled; what stood under the name is whole
    } outcome = Outcome::Failed;
    QString reason = {}; // of a failure, in the system's words; empty where it has none
    std::int64_t bytes = 0;
    Bits source; // the picture as it was turned and inverted, which the file is to be held against
};

/// progress is told while colours are reduced and while the file is written.
/// known: palettes that were made for this picture before, so that a change of the dither alone is shown at once.
WebFile writeWebFile(const Bits& picture, const WebSettings& settings, const QString& name, OutputFile::Links links,
                     const ReduceProgress& progress = {}, BestPalettes* known = nullptr);

/// The best JPEG percentage, 1 to 100, whose file has at most so many bytes; nothing when none has, or when progress
/// threw Cancelled.
std::optional<int> bestJpegQuality(const Bits& picture, std::int64_t mostBytes, const ReduceProgress& progress = {});

/// How near two pictures of one size are, in decibels; infinite when their colours are equal.
double peakSignalToNoise(const Bits& a, const Bits& b);

} // namespace velara
