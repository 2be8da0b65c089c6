#include "fileio/web/webFile.h"
#include "fileio/writers/PCX.h"
#include "fileio/writers/pictureFiles.h"
#include "pixels/RuntimeError.h"
#include <QFile>
#include <QFileInfo>
#include <cmath>
#include <limits>
#include <new>

namespace velara {

namespace {

using Outcome = WebFile::Outcome;

/// Reports progress from places where exceptions are not allowed; false once progress has thrown Cancelled. Keeps why a
/// file was not written.
class Teller {
  public:
    explicit Teller(const ReduceProgress& progress) : progress_(progress) {}
    bool operator()()
    try {
        if (!stopped_ && progress_) progress_(100);
        return !stopped_;
    } catch (const Cancelled&) {
        stopped_ = true;
        return false;
    }
    bool stopped() const { return stopped_; }
    int error = 0;

  private:
    const ReduceProgress& progress_;
    bool stopped_ = false;
};

template <class Write> bool saveAs(const QString& name, OutputFile::Links links, Teller& teller, const Write& write)
{
    OutputFile file(name, links);
    file.setGoOn(std::ref(teller));
    const bool written = file.isOpen() && write(file) && file.commit();
    teller.error = file.error();
    return written;
}

Outcome outcomeOf(bool written, const Teller& teller)
{
    return written ? Outcome::Written : teller.stopped() ? Outcome::Stopped : Outcome::Failed;
}

bool writePngKind(const ReducedPicture& reduced, OutputFile& file, const CameraData& camera)
{
    return reduced.bitCount <= 8 ? writePng(reduced.indexed, kBestEffort, file, camera)
                                 : writePng(reduced.full, kBestEffort, file, camera);
}

/// The formats that have a quality.
bool writeOfQuality(const Bits& picture, const WebSettings& settings, ByteSink& to)
{
    const int percent = percentOf(settings.JpegQuality);
    switch (settings.FileKind) {
    case kWebp:
        return writeWebp(picture, {percent}, to, settings.camera);
    case kAvif:
        return writeAvif(picture, percent, to, settings.camera);
    case kJxl:
        return writeJxl(picture, percent, to, settings.camera);
    default:
        return writeJpeg(picture, settings.JpegQuality, to, settings.camera);
    }
}

constexpr WebpForm kLosslessWebp{75, true};

/// Targa and TIFF always get 24 bits.
Outcome writeBitmapKind(const ReducedPicture& reduced, const WebSettings& settings, const QString& name,
                        OutputFile::Links links, Teller& teller)
{
    const int kind = settings.FileKind;
    const CameraData& camera = settings.camera;
    if (kind == kPcx) {
        if (links == OutputFile::Links::Replace) QFile::remove(name);
        PCX pcx;
        const bool written = pcx.SavePCXinFile(name, pictureOf(reduced), true, std::ref(teller));
        teller.error = pcx.error;
        return outcomeOf(written, teller);
    }
    const auto write = [&](OutputFile& file) {
        switch (kind) {
        case kPng:
            return writePngKind(reduced, file, camera);
        case kTga:
            return writeTga(pictureOf(reduced), file);
        case kTif:
            return writeTiff(pictureOf(reduced), file, camera);
        case kWebp:
            return writeWebp(reduced.full, kLosslessWebp, file, camera);
        default:
            return writeBmp(reduced, file);
        }
    };
    return outcomeOf(saveAs(name, links, teller, write), teller);
}

Outcome writeReduced(ColorReducer& reducer, const WebSettings& s, const Bits& picture, const QString& name,
                     Teller& teller)
{
    const int flags = s.transformFlags();
    const bool isReduced = reducer.Begin(s.OutputKind, s.ColorMode, s.BitCount, s.PaletteWord, s.DitherWord) &&
                           reducer.SetPicture(picture, -1, -1, -1, -1) &&
                           (flags == 0 || reducer.Transform(flags, 0, 0)) && reducer.Reduce();
    if (!isReduced) return s.OutputKind == kBitmapOutput ? Outcome::NoBitmap : Outcome::Failed;
    if (s.OutputKind == kBitmapOutput) return writeBitmapKind(reducer.reduced(), s, name, reducer.links, teller);
    const bool written =
        s.OutputKind == kInterlacedGifOutput ? reducer.WriteInterlacedGif(name) : reducer.WriteGif(name);
    teller.error = reducer.error;
    return outcomeOf(written, teller);
}

} // namespace

ReduceProgress untilGivenUp(const GoOn& goOn)
{
    return [&goOn](int) {
        if (!goOn({})) throw Cancelled();
    };
}

WebFile writeWebFile(const Bits& picture, const WebSettings& settings, const QString& name, OutputFile::Links links,
                     const ReduceProgress& progress, BestPalettes* known)
{
    WebFile file{.source = picture};
    Teller teller(progress);
    try {
        if (picture.isNull()) return file;
        if (settings.FileKind == kWebp && !fitsWebp(picture)) {
            file.outcome = Outcome::NoBitmap;
        } else if (settings.hasQuality()) {
            const auto write = [&](OutputFile& to) { return writeOfQuality(picture, settings, to); };
            file.outcome = outcomeOf(saveAs(name, links, teller, write), teller);
        } else {
            ColorReducer reducer;
            reducer.Progress = progress;
            reducer.GoOn = std::ref(teller);
            reducer.links = links;
            reducer.Palettes = known;
            file.outcome = writeReduced(reducer, settings, picture, name, teller);
            file.source = reducer.picture();
        }
    } catch (const Cancelled&) {
        file.outcome = Outcome::Stopped;
    } catch (const std::bad_alloc&) {
        file.outcome =
            settings.OutputKind == kBitmapOutput && !settings.hasQuality() ? Outcome::NoBitmap : Outcome::Failed;
    }
    if (file.outcome == Outcome::Failed && teller.error != 0) file.reason = qt_error_string(teller.error);
    if (file.outcome == Outcome::Written) file.bytes = QFileInfo(name).size();
    return file;
}

namespace {

std::optional<int> bestQuality(const Bits& picture, WebSettings settings, std::int64_t mostBytes,
                               const ReduceProgress& progress)
{
    Teller teller(progress);
    const auto fits = [&](int quality) {
        ByteCounter counter(std::ref(teller));
        settings.JpegQuality = quality;
        return teller() && writeOfQuality(picture, settings, counter) && counter.bytes <= mostBytes;
    };
    int good = 0, bad = 101;
    while (bad - good > 1) {
        const int middle = (good + bad) / 2;
        (fits(middle) ? good : bad) = middle;
    }
    for (int quality = bad; quality <= std::min(bad + 2, 100) && good > 0; ++quality) // sizes may waver a little
        if (fits(quality)) good = quality;
    return good > 0 && !teller.stopped() ? std::optional(good) : std::nullopt;
}

} // namespace

std::optional<WebSettings> fittedSettings(const Bits& picture, const WebSettings& settings, std::int64_t mostBytes,
                                          const QString& scratch, const ReduceProgress& progress, BestPalettes* known)
{
    if (settings.hasQuality()) {
        const auto quality = bestQuality(picture, settings, mostBytes, progress);
        if (!quality) return {};
        WebSettings best = settings;
        best.JpegQuality = *quality;
        return best;
    }
    for (const WebSettings& tried : settings.bySize()) {
        const WebFile file = writeWebFile(picture, tried, scratch, OutputFile::Links::Replace, progress, known);
        if (file.outcome != WebFile::Outcome::Written) return {};
        if (file.bytes <= mostBytes) return tried;
    }
    return {};
}

double peakSignalToNoise(const Bits& a, const Bits& b)
{
    std::int64_t sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        std::int64_t row = 0;
        for (int x = 0; x < a.width(); ++x)
            for (int c = 0; c < 3; ++c) {
                const int d = a.row(y)[x].c[c] - b.row(y)[x].c[c];
                row += d * d;
            }
        sum += row;
    }
    if (sum == 0) return std::numeric_limits<double>::infinity();
    return 10 * std::log10(255.0 * 255 * 3 * a.width() * a.height() / double(sum));
}

} // namespace velara
