// The choices of "Save for Web": presets, palettes, dithers, colour modes and JPEG qualities by their texts. The dialog
// and velara-batch follow the same rules.
#pragma once
#include "fileio/web/ColorReducer.h"
#include "seams/CameraData.h"
#include <optional>
#include <span>
#include <vector>

namespace velara {

/// The format to which a reduced bitmap is converted.
enum FileKind { kBmp, kPng, kTga, kTif, kPcx, kWebp, kAvif, kJxl };

struct WebPreset {
    const char* entry;
    int bitCount, paletteWord; // bitCount 0: the file has a quality, and no reduction
    int outputKind, fileKind;
    unsigned maps; // bit i: entry i of webMaps()
    const char* depthText;
};

/// An entry of a list and its word.
struct WebEntry {
    const char* entry;
    int word;
};
constexpr int kUnchanged = -1; // an entry that leaves the word unchanged

std::span<const WebPreset> webPresets();
std::span<const WebEntry> webMaps();
std::span<const WebEntry> webDithers();
std::span<const WebEntry> webModes();
std::span<const WebEntry> webJpegQualities();
constexpr int kGoodQuality = 3; // of webJpegQualities()

struct WebSettings {
    int preset = 0;
    int OutputKind = kGifOutput, ColorMode = 0, BitCount = 1, PaletteWord = kCounted, DitherWord = 0, FileKind = kBmp;
    int JpegQuality = 0x100; // or of another format: a class or a percentage, as percentOf takes it
    bool flipH = false, flipV = false, invert = false;
    bool takesDither = true;
    CameraData camera = {}; // for the files that can hold it

    const WebPreset& row() const { return webPresets()[std::size_t(preset)]; }
    bool hasQuality() const { return row().bitCount == 0; }
    bool isJpeg() const { return hasQuality() && row().fileKind == kBmp; }
    /// Whether its files have a place for what the camera wrote.
    bool holdsCamera() const;
    bool isGif() const { return row().outputKind == kGifOutput; }

    /// Resets everything to the preset, except flips and inversion.
    void choosePreset(int index, bool interlaced);
    /// The entries of webMaps() offered by the preset.
    std::vector<int> maps() const;
    /// False where there is no choice, or where it has no effect.
    bool choosesMap() const;
    /// index into webMaps(). Mapped colours take no dither.
    void chooseMap(int index);
    /// The selected entry of webMaps(), or -1.
    int map() const;
    /// index into webDithers().
    void chooseDither(int index);
    void setInterlaced(bool on);
    /// Whether the size of the file can be chosen: by its quality, or of GIF and 8-bit PNG by colours and dither.
    bool fitsASize() const { return hasQuality() || isGif() || (FileKind == kPng && row().bitCount == 8); }
    /// For GIF and 8-bit PNG: from 256 colours down to 2, each with the dither and without.
    std::vector<WebSettings> bySize() const;
    int transformFlags() const;

    /// "GIF", "BMP", "PNG", "TGA", "TIF", "PCX", "WEBP", "AVIF", "JXL" or "JPG".
    QString typeText() const;
    QString depthText() const { return QLatin1String(row().depthText); }
    /// The extension that selects the file's reader.
    QString extension() const { return typeText().toLower(); }
    /// " KB", for JPEG " Kb"; nothing from 32 megabytes on, which a 16-bit number can't hold.
    std::optional<QString> sizeText(std::int64_t bytes) const;
    /// The filter of the dialog that asks for a name; empty for an interlaced GIF.
    QString saveFilter() const;
};

} // namespace velara
