#include "fileio/web/ColorReducer.h"
#include "engine/cBitFilter.h"
#include "fileio/writers/GifWriter.h"
#include "fileio/writers/pictureFiles.h"
#include <algorithm>

namespace velara {

bool ColorReducer::Convert(const Bits& Picture, const QString& FileName, int OutputKind, int ColorMode, int BitCount,
                           int PaletteWord, int DitherWord, int Left, int Top, int Right, int Bottom)
{
    return Begin(OutputKind, ColorMode, BitCount, PaletteWord, DitherWord) &&
           SetPicture(Picture, Left, Top, Right, Bottom) && Reduce() &&
           (OutputKind == kBitmapOutput ? WriteBitmap(FileName)
                                        : writeGifFile(FileName, OutputKind == kInterlacedGifOutput));
}

bool ColorReducer::Begin(int OutputKind, int ColorMode, int BitCount, int PaletteWord, int DitherWord)
{
    reduced_ = {};
    picture_ = {};
    turns_ = 0;
    if (PaletteWord == kCounted) PaletteWord |= 1 << BitCount;
    words_ = {ColorMode, BitCount, PaletteWord, DitherWord};
    const bool isBitmap = OutputKind == kBitmapOutput && (BitCount == 16 || BitCount == 24);
    return OutputKind >= kBitmapOutput && OutputKind <= kInterlacedGifOutput &&
           ((BitCount >= 1 && BitCount <= 8) || isBitmap);
}

bool ColorReducer::SetPicture(const Bits& Picture, int Left, int Top, int Right, int Bottom)
{
    picture_ = Picture;
    if (!picture_.isNull() && (Left != -1 || Top != -1 || Right != -1 || Bottom != -1)) {
        cBitFilter cut;
        cut.setBits(Picture);
        cut.BitsCrop(Picture, Left, Top, Right, Bottom);
        picture_ = cut.bits();
    }
    return !picture_.isNull();
}

bool ColorReducer::Transform(int Flags, int, int)
{
    const auto has = [Flags](int flag) { return (Flags & flag) == flag; };
    if (picture_.isNull()) return false;
    turns_ ^= Flags;
    // Not by the filters, which refuse a picture of one row.
    Bits turned(picture_.width(), picture_.height());
    const std::uint8_t mask = has(kInvert) ? 0xFF : 0;
    for (int y = 0; y < turned.height(); ++y) {
        const Pixel* from = picture_.row(has(kFlipVertically) ? picture_.maxY() - y : y);
        Pixel* to = turned.row(y);
        if (has(kFlipHorizontally))
            std::reverse_copy(from, from + turned.width(), to);
        else
            std::copy_n(from, turned.width(), to);
        for (int x = 0; x < turned.width(); ++x)
            for (int c = 0; c < 3; ++c) to[x].c[c] ^= mask;
    }
    picture_ = turned;
    return true;
}

bool ColorReducer::Reduce()
{
    BestPalette* known = Palettes ? &(*Palettes)[{turns_, words_.colorMode, words_.bitCount}] : nullptr;
    reduced_ = reduceColours(picture_, words_, Progress, known);
    return reduced_.bitCount > 0;
}

bool ColorReducer::WriteBitmap(const QString& FileName)
{
    if (reduced_.bitCount == 0) return false;
    OutputFile file(FileName, links);
    file.setGoOn(GoOn);
    const bool written = file.isOpen() && writeBmp(reduced_, file) && file.commit();
    error = file.error();
    return written;
}

bool ColorReducer::writeGifFile(const QString& name, bool interlaced)
{
    if (reduced_.bitCount < 1 || reduced_.bitCount > 8) return false;
    OutputFile file(name, links);
    file.setGoOn(GoOn);
    const bool written = writeGif(reduced_.indexed, file, interlaced, reduced_.bitCount) && file.commit();
    error = file.error();
    return written;
}

} // namespace velara
