// ColorReducer: takes a picture, flips or inverts it, reduces its colours and writes a bitmap or a GIF file. It is
// above the folders that reduce and that write, since it does both.
#pragma once
#include "fileio/disk/OutputFile.h"
#include "reduce/reduceColours.h"
#include <QString>
#include <map>
#include <tuple>

namespace velara {

/// The writer at the end of a conversion.
enum OutputKind { kBitmapOutput = 0, kGifOutput = 1, kInterlacedGifOutput = 2 };

/// The best palettes of one picture, by the flags of its transforms, the colour mode and the bits per pixel.
using BestPalettes = std::map<std::tuple<int, int, int>, BestPalette>;

class ColorReducer {
  public:
    /// Flags of Transform, combined by or.
    static constexpr int kFlipVertically = 0x1010000, kFlipHorizontally = 0x1020000, kInvert = 0x3100000;

    // Every operation returns false for failure; an existing file is intact then. -1, -1, -1, -1 is the whole picture;
    // any other rectangle, right and bottom excluded, is clipped to it.
    bool Convert(const Bits& Picture, const QString& FileName, int OutputKind, int ColorMode, int BitCount,
                 int PaletteWord, int DitherWord, int Left, int Top, int Right, int Bottom);

    bool Begin(int OutputKind, int ColorMode, int BitCount, int PaletteWord, int DitherWord);
    bool SetPicture(const Bits& Picture, int Left, int Top, int Right, int Bottom);
    /// The two parameters are ignored.
    bool Transform(int Flags, int Param1, int Param2);
    bool Reduce();
    /// 1, 4, 8, 16 or 24 bits per pixel; fails for others.
    bool WriteBitmap(const QString& FileName);
    bool WriteGif(const QString& FileName) { return writeGifFile(FileName, false); }
    bool WriteInterlacedGif(const QString& FileName) { return writeGifFile(FileName, true); }

    const ReducedPicture& reduced() const { return reduced_; }
    /// The given picture, flipped and inverted.
    const Bits& picture() const { return picture_; }

    /// May throw Cancelled out of Reduce.
    ReduceProgress Progress;
    /// Called now and then while a file is written; false ends it as a failure.
    std::function<bool()> GoOn;
    OutputFile::Links links = OutputFile::Links::Follow;
    /// Palettes from earlier reductions of the same picture.
    BestPalettes* Palettes = nullptr;
    /// Why the last file was not written, as OutputFile::error().
    int error = 0;

  private:
    bool writeGifFile(const QString& name, bool interlaced);

    ReduceWords words_;
    int turns_ = 0;
    Bits picture_;
    ReducedPicture reduced_;
};

} // namespace velara
