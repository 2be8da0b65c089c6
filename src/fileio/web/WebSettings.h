// What "Save for Web" offers and what is chosen: presets, palettes, dithers, colour modes and JPEG qualities by their
// texts. The dialog and velara-batch choose by the same rules.
#pragma once
#include "fileio/web/ColorReducer.h"
#include <optional>
#include <span>
#include <vector>

namespace velara {

/// What a reduced bitmap becomes afterwards.
enum FileKind { kBmp, kPng, kTga, kTif, kPcx };

struct WebPreset {
    const char* entry;
    int bitCount, paletteWord; // bitCount 0: JPEG
    int outputKind, fileKind;
    unsigned maps; // bit i: entry i of webMaps()
    const char* depthText;
};

/// An entry of a list and the word that it stands for.
struct WebEntry {
    const char* entry;
    int word;
};
constexpr int kUnchanged = -1; // an entry that leaves the word as it was

std::span<const WebPreset> webPresets();
std::span<const WebEntry> webMaps();
std::span<const WebEntry> webDithers();
std::span<const WebEntry> webModes();
std::span<const WebEntry> webJpegQualities();
constexpr int kGoodQuality = 3; // of webJpegQualities()

struct WebSettings {
    int preset = 0;
    int OutputKind = kGifOutput, ColorMode = 0, BitCount = 1, PaletteWord = kCounted, DitherWord = 0, FileKind = kBmp;
    int JpegQuality = 0x100; // a quality class or a percentage, as FreeImage takes it
    bool flipH = false, flipV = false, invert = false;
    bool takesDither = true;

    const WebPreset& row() const { return webPresets()[std::size_t(preset)]; }
    bool isJpeg() const { return row().bitCount == 0; }
    bool isGif() const { return !isJpeg() && row().outputKind == kGifOutput; }

    /// Everything back to what the preset begins with, but for the turns and the inversion.
    void choosePreset(int index, bool interlaced);
    /// The entries of webMaps() that the preset has.
    std::vector<int> maps() const;
    /// index of webMaps(). Mapped colours take no dither.
    void chooseMap(int index);
    /// The entry of webMaps() that is in force, or -1.
    int map() const;
    /// index of webDithers().
    void chooseDither(int index);
    void setInterlaced(bool on);
    int transformFlags() const;

    /// "GIF", "BMP", "PNG", "TGA", "TIF", "PCX" or "JPG".
    QString typeText() const;
    QString depthText() const { return QLatin1String(row().depthText); }
    /// The extension by which a reader knows the file.
    QString extension() const { return typeText().toLower(); }
    /// " KB", for JPEG " Kb"; nothing from 32 megabytes on, which a 16-bit number can't count.
    std::optional<QString> sizeText(std::int64_t bytes) const;
    /// Of the dialog that asks for a name; empty for an interlaced GIF.
    QString saveFilter() const;
};

} // namespace velara
