#include "fileio/web/ColorReducer.h"
#include "engine/cBitFilter.h"
#include "fileio/FreeImageSaver.h"
#include "fileio/web/ReducedDib.h"
#include "fileio/writers/GifWriter.h"
#include <FreeImage.h>

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
    cBitFilter filter;
    filter.setBits(picture_);
    filter.setBitsRegion(Region::rectangle(0, 0, picture_.width(), picture_.height()));
    if (has(kFlipHorizontally)) filter.setBits(filter.Flip(true, false));
    if (has(kFlipVertically)) filter.setBits(filter.Flip(false, true));
    if (has(kInvert)) filter.setBits(filter.Invert());
    picture_ = filter.bits();
    return true;
}

bool ColorReducer::Reduce()
{
    Palette* known = Palettes ? &(*Palettes)[{turns_, words_.colorMode, words_.bitCount}] : nullptr;
    reduced_ = reduceColours(picture_, words_, Progress, known);
    return reduced_.bitCount > 0;
}

bool ColorReducer::WriteBitmap(const QString& FileName)
{
    const FreeImageStart library;
    const ReducedDib dib(reduced_);
    if (!dib.get()) return false;
    OutputFile file(FileName, links);
    file.setGoOn(GoOn);
    return saveDib(dib.get(), FIF_BMP, 0, file) && file.commit();
}

bool ColorReducer::writeGifFile(const QString& name, bool interlaced)
{
    if (reduced_.bitCount < 1 || reduced_.bitCount > 8) return false;
    OutputFile file(name, links);
    file.setGoOn(GoOn);
    return writeGif(reduced_.indexed, file, interlaced, reduced_.bitCount) && file.commit();
}

} // namespace velara
