// Writes the file of "Save for Web".
#pragma once
#include "fileio/web/WebSettings.h"
#include "seams/GoOn.h"

namespace velara {

struct WebFile {
    enum class Outcome {
        Written,
        Failed,   // the previous file is intact
        NoBitmap, // the format can't hold the picture
        Stopped,  // progress threw Cancelled; the previous file is intact
    } outcome = Outcome::Failed;
    QString reason = {}; // of a failure, in the system's words; empty where it has none
    std::int64_t bytes = 0;
    Bits source; // the picture after flips and inversion, to compare the file with
};

/// Progress that throws Cancelled when work in the background is given up; for as long as goOn stands.
ReduceProgress untilGivenUp(const GoOn& goOn);

/// progress is called while colours are reduced and while the file is written. known: palettes made earlier for this
/// picture, so that a change of the dither alone is shown at once.
WebFile writeWebFile(const Bits& picture, const WebSettings& settings, const QString& name, OutputFile::Links links,
                     const ReduceProgress& progress = {}, BestPalettes* known = nullptr);

/// The settings nearest to the given ones, of those that fitsASize(), whose file has at most the given bytes: the best
/// quality, 1 to 100, of a format that has one; otherwise the most colours, with the dither where that fits. Nothing
/// when none has, or when progress threw Cancelled. Leaves a file of the name scratch.
std::optional<WebSettings> fittedSettings(const Bits& picture, const WebSettings& settings, std::int64_t mostBytes,
                                          const QString& scratch, const ReduceProgress& progress = {},
                                          BestPalettes* known = nullptr);

/// The similarity of two pictures of one size, in decibels; infinite when their colours are equal.
double peakSignalToNoise(const Bits& a, const Bits& b);

} // namespace velara
