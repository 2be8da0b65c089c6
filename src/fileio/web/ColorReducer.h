// ColorReducer: takes a picture, turns it, reduces its colours and writes a bitmap or a GIF file. It stands above the
// rooms that reduce and that write, since it does both.
#pragma once
#include "fileio/OutputFile.h"
#include "reduce/reduceColours.h"
#include <QString>
#include <map>
#include <tuple>

namespace velara {

/// Which writer ends a conversion.
enum OutputKind { kBitmapOutput = 0, kGifOutput = 1, kInterlacedGifOutput = 2 };

/// The best palettes of one picture, by the flags of its turns, the colour mode and the bits a pixel.
using BestPalettes = std::map<std::tuple<int, int, int>, Palette>;

class ColorReducer {
  public:
    /// Flags of Transform, combined by or.
    static constexpr int kFlipVertically = 0x1010000, kFlipHorizontally = 0x1020000, kInvert = 0x3100000;

    // Every operation gives false for failure; what stood under a file's name is whole then. -1, -1, -1, -1 is the
    // whole picture; any other rectangle, right and bottom not included, is cut to it.
    bool Convert(const Bits& Picture, const QString& FileName, int OutputKind, int ColorMode, int BitCount,
                 int PaletteWord, int DitherWord, int Left, int Top, int Right, int Bottom);

    bool Begin(int OutputKind, int ColorMode, int BitCount, int PaletteWord, int DitherWord);
    bool SetPicture(const Bits& Picture, int Left, int Top, int Right, int Bottom);
    /// The two parameters have no meaning.
    bool Transform(int Flags, int Param1, int Param2);
    bool Reduce();
    /// Of 1, 4, 8, 16 or 24 bits a pixel; there is no bitmap of others.
    bool WriteBitmap(const QString& FileName);
    bool WriteGif(const QString& FileName) { return writeGifFile(FileName, false); }
    bool WriteInterlacedGif(const QString& FileName) { return writeGifFile(FileName, true); }

    const ReducedPicture& reduced() const { return reduced_; }
    /// What was given, turned and inverted.
    const Bits& picture() const { return picture_; }

    /// May throw Cancelled out of Reduce.
    ReduceProgress Progress;
    /// Asked now and then while a file is written; no ends it as a failure.
    std::function<bool()> GoOn;
    OutputFile::Links links = OutputFile::Links::Follow;
    /// Those that earlier reductions of the same picture have made.
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
