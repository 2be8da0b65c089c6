#include "engine/operationRows.h"

namespace velara {

namespace {

/// The valid part of a buffer as a picture, sharing its memory.
QImage asImage(const Bits& bits)
{
    if (bits.isNull()) return {};
    return {bits.row(0)->c, bits.width(), bits.height(), bits.stride() * qsizetype(sizeof(Pixel)),
            QImage::Format_RGB32};
}

} // namespace

// The object's own picture is the source.
// clang-format off
std::vector<Operation> geometryOperations()
{
    return {
        row("BitsBlack",      "",                      +[](cBitFilter& f) { f.BitsBlack(); }),
        row("BitsCrop",       "Left,Top,Right,Bottom", +[](cBitFilter& f, int l, int t, int r, int b) { f.BitsCrop(f.bits(), l, t, r, b); }),
        row("BitsCropMasked", "Left,Top,Right,Bottom", +[](cBitFilter& f, int l, int t, int r, int b) { f.BitsCropMasked(f.bits(), l, t, r, b); }),
        row("BitsResample",   "NewWidth,NewHeight",    +[](cBitFilter& f, int w, int h) { f.BitsResample(f.bits(), w, h); }),
        row("BitsResize",     "NewWidth,NewHeight",    +[](cBitFilter& f, int w, int h) { f.BitsResize(f.bits(), w, h); }),
        row("BitsRotate90",   "",                      +[](cBitFilter& f) { f.BitsRotate90(f.bits()); }),
        row("BitsTakeFromPicture", "Picture,Width,Height", +[](cBitFilter& f, Bits p, int w, int h) { f.BitsTakeFromPicture(asImage(p), w, h); }),
    };
}
// clang-format on

} // namespace velara
