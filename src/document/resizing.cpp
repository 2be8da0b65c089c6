#include "document/resizing.h"
#include "filters/numbers.h"
#include <cmath>

namespace velara {

namespace {

/// An engine for the steps in between: the same reports, another picture. Only the end result reaches the real one.
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

std::int32_t times(int size, int factor)
{
    std::int32_t product = 0;
    if (__builtin_mul_overflow(size, factor, &product)) throw RuntimeError(Fault::Overflow);
    return product;
}

} // namespace

bool zoomImage(Document& document, cBitFilter& filter, int factor, bool enlarge, bool quality)
{
    const bool steppedBack = document.Zoomed && document.UndoBits(filter);
    try {
        const Bits source = filter.bits();
        const auto sized = [&](int size) { return enlarge ? times(size, factor) : roundEven(quotient(size, factor)); };
        const int width = sized(source.width()), height = sized(source.height());
        cBitFilter work = workshop(filter, source);
        quality ? work.BitsResample(source, width, height) : work.BitsResize(source, width, height);
        finish(document, filter, work.bits());
        document.Zoomed = true;
        return document.SaveUndoBits();
    } catch (...) {
        if (steppedBack) document.RedoBits(filter);
        throw;
    }
}

void rotateImage(Document& document, cBitFilter& filter, int degrees, bool quality)
{
    const Bits source = document.Bits();
    if (source.isNull()) return;
    const double angle = degrees * 0.0174533;
    const double c = std::fabs(std::cos(angle)), s = std::fabs(std::sin(angle));
    const double w = source.width(), h = source.height();
    const int width = roundEven(h * s + c * w), height = roundEven(c * h + s * w);
    const int side = static_cast<int>(std::trunc(std::sqrt(h * h + w * w)));

    // The picture in the middle of a square that it can turn in, then the target cut out about the square's centre.
    // Halves are truncated toward zero, so a target one wider than the square loses that column.
    cBitFilter work = workshop(filter, Bits(side, side));
    work.setBitsRegion(Region::rectangle(0, 0, side, side));
    work.setBits(work.TileMask(source, (side - source.width()) / 2, (side - source.height()) / 2, false, 0, -1));
    work.setBits(quality ? work.RotateSmooth(degrees) : work.ROTATE(degrees, false));
    const int left = (side - width) / 2, top = (side - height) / 2;
    work.BitsCrop(work.bits(), left, top, left + width, top + height);
    finish(document, filter, work.bits());
}

CropAnswer cropImage(Document& document, cBitFilter& filter)
{
    int left = 0, top = 0, right = 0, bottom = 0;
    if (!document.Region.BoundRect(left, top, right, bottom)) return CropAnswer::NothingSelected;
    if (right - left < 2 || bottom - top < 2) return CropAnswer::TooSmall;
    cBitFilter work = workshop(filter, filter.bits());
    work.BitsCrop(work.bits(), left, top, right, bottom);
    finish(document, filter, work.bits());
    return CropAnswer::Done;
}

} // namespace velara
