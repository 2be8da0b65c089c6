#include "document/resizing.h"
#include "pixels/memory/checkSize.h"
#include "pixels/numbers.h"
#include <cmath>

namespace velara {

namespace {

/// An engine for intermediate steps: the same progress reports, another picture. Only the final result reaches the real
/// one.
cBitFilter workshop(const cBitFilter& filter, const Bits& bits)
{
    cBitFilter work;
    work.Progress = filter.Progress;
    work.clock = filter.clock;
    work.setBits(bits);
    return work;
}

void finish(Document& document, cBitFilter& filter, const Bits& result)
{
    document.takePicture(result);
    document.handTo(filter);
}

/// The picture on a black canvas of width by height, all of which is the working region.
cBitFilter onCanvas(const cBitFilter& filter, const Bits& picture, int width, int height, int left, int top)
{
    checkSize(width, height);
    cBitFilter work = workshop(filter, Bits(width, height));
    work.setBitsRegion(Region::rectangle(0, 0, width, height));
    work.setBits(work.TileMask(picture, left, top, false, 0, -1));
    return work;
}

void turn(Document& document, cBitFilter& filter, int degrees, bool smooth, int side, const Rect& part)
{
    cBitFilter work = workshop(filter, document.bits());
    work.turnOnSquare(work.bits(), degrees, smooth, side, part);
    finish(document, filter, work.bits());
}

std::int32_t times(int size, int factor)
{
    std::int32_t product = 0;
    if (__builtin_mul_overflow(size, factor, &product)) throw RuntimeError(Fault::Overflow);
    return product;
}

} // namespace

void zoomImage(Document& document, cBitFilter& filter, int factor, bool enlarge, bool quality)
{
    if (factor == 1) return; // a run of sizing words ends at its start, which the draft has
    const auto sized = [&](int size) { return enlarge ? times(size, factor) : roundEven(quotient(size, factor)); };
    resizeImage(document, filter, sized(document.PictureWidth()), sized(document.PictureHeight()), quality);
}

void rotateImage(Document& document, cBitFilter& filter, int degrees, bool quality)
{
    const Bits source = document.bits();
    if (source.isNull()) return;
    const double angle = degrees * 0.0174533;
    const double c = std::fabs(std::cos(angle)), s = std::fabs(std::sin(angle));
    const double w = source.width(), h = source.height();
    const int width = roundEven(h * s + c * w), height = roundEven(c * h + s * w);
    const int side = static_cast<int>(std::trunc(std::sqrt(h * h + w * w)));

    // The target is centred in the square in which the picture turns. The division truncates toward zero, so a target
    // one wider than the square loses that column.
    const int left = (side - width) / 2, top = (side - height) / 2;
    turn(document, filter, degrees, quality, side,
         Rect{left, top, left + width, top + height}.intersected({0, 0, side, side}));
}

void resizeImage(Document& document, cBitFilter& filter, int width, int height, bool smooth)
{
    const Bits source = document.bits();
    cBitFilter work = workshop(filter, source);
    smooth ? work.BitsResample(source, width, height) : work.BitsResize(source, width, height);
    finish(document, filter, work.bits());
}

void resizeCanvas(Document& document, cBitFilter& filter, int width, int height, int left, int top)
{
    finish(document, filter, onCanvas(filter, document.bits(), width, height, left, top).bits());
}

void orientImage(Document& document, cBitFilter& filter, int quarterTurns, bool flipVertical, bool flipHorizontal)
{
    cBitFilter work = workshop(filter, document.bits());
    for (int i = 0; i < quarterTurns; ++i) work.BitsRotate90(work.bits());
    if (flipVertical || flipHorizontal) work.setBits(work.Flip(flipHorizontal, flipVertical));
    finish(document, filter, work.bits());
}

void turnOnSquare(Document& document, cBitFilter& filter, int degrees, bool smooth)
{
    const double w = document.PictureWidth(), h = document.PictureHeight();
    const int side = roundEven(std::sqrt(w * w + h * h));
    turn(document, filter, degrees, smooth, side, {0, 0, side, side});
}

CropAnswer cropAnswer(const Document& document)
{
    int left = 0, top = 0, right = 0, bottom = 0;
    if (!document.Region.BoundRect(left, top, right, bottom)) return CropAnswer::NothingSelected;
    return right - left < 2 || bottom - top < 2 ? CropAnswer::TooSmall : CropAnswer::Possible;
}

void cropImage(Document& document, cBitFilter& filter)
{
    int left = 0, top = 0, right = 0, bottom = 0;
    if (cropAnswer(document) != CropAnswer::Possible) return;
    document.Region.BoundRect(left, top, right, bottom);
    cBitFilter work = workshop(filter, document.bits());
    work.BitsCrop(work.bits(), left, top, right, bottom);
    finish(document, filter, work.bits());
}

} // namespace velara
