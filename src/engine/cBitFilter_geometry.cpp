// The in-place operations that crop, rotate and take over the picture.
#include "engine/deform/kernels_warp.h"
#include "engine/passes.h"
#include "pixels/numbers.h"
#include "pixels/threads/parallelFor.h"

namespace velara {

namespace {

constexpr Pixel kMaskedOut = {{0, 0, 0, 255}};

} // namespace

void cBitFilter::BitsBlack()
{
    const Box box = insidePicture(GetBounds(0), bits_);
    if (box.isEmpty()) return;
    const Bits in = bits_;
    Bits out = Bits::uninitialized(in.width(), in.height());
    copyRows(in, out, -Bits::kMargin, box.ymin);
    const WrittenRows rows(out);
    parallelFor(box.ymax - box.ymin + 1, turnsTogether(in.width()), [&](int i) {
        const int y = box.ymin + i;
        Pixel* to = rows.row(y);
        int done = -Bits::kMargin;
        for (const Span s : region_.spans(y)) {
            const int x0 = std::max(s.x0, box.xmin), x1 = std::min(s.x1, box.xmax + 1);
            if (x0 >= x1) continue;
            copyPixels(in.row(y), to, done, x0);
            std::memset(to + x0, 0, sizeof(Pixel) * static_cast<std::size_t>(x1 - x0));
            done = x1;
        }
        copyPixels(in.row(y), to, done, in.width() + Bits::kMargin);
    });
    copyRows(in, out, box.ymax + 1, in.height() + Bits::kMargin);
    bits_ = out;
}

void cBitFilter::crop(const Bits& Source, const Rect& rectangle, bool masked)
{
    const Bits in = Source;
    const Rect& r = rectangle;
    if (r.isEmpty() || r.right > in.width() || r.bottom > in.height()) throw RuntimeError(Fault::OutOfRange);
    Bits out = Bits::uninitialized(r.width(), r.height());
    clearMargin(out);
    const WrittenRows rows(out);
    const auto copy = out.sizeInBytes() >= kPastTheCache ? streamPixels : copyPixels;
    parallelFor(r.height(), turnsTogether(r.width()), [&](int y) {
        const Pixel* from = in.row(y + r.top) + r.left;
        Pixel* to = rows.row(y);
        if (!masked) return copy(from, to, 0, r.width());
        int done = 0;
        for (const Span s : region_.spans(y + r.top)) {
            const int x0 = std::max(s.x0 - r.left, done), x1 = std::min(s.x1 - r.left, r.width());
            if (x0 >= x1) continue;
            std::fill(to + done, to + x0, kMaskedOut);
            copy(from, to, x0, x1);
            done = x1;
        }
        std::fill(to + done, to + r.width(), kMaskedOut);
    });
    bits_ = out;
    report(100);
}

void cBitFilter::BitsCrop(const Bits& Source, int Left, int Top, int Right, int Bottom)
{
    crop(Source, Rect{Left, Top, Right, Bottom}.intersected({0, 0, BitsWidth(), BitsHeight()}), false);
}

void cBitFilter::BitsCropMasked(const Bits& Source, int Left, int Top, int Right, int Bottom)
{
    crop(Source, Rect{Left, Top, Right, Bottom}.intersected({0, 0, Source.width(), Source.height()}), true);
}

void cBitFilter::BitsRotate90(const Bits& Source)
{
    const Bits in = Source;
    if (in.isNull()) throw RuntimeError(Fault::OutOfRange);
    Bits out = Bits::uninitialized(in.height(), in.width());
    clearMargin(out);
    const WrittenRows rows(out);
    eachPiece(0, in.height(), {kTurnRows}, in, [&](int y0, int y1) {
        for (int x0 = 0; x0 < in.width(); x0 += kTurnColumns)
            turnPixels(in, rows, x0, std::min(x0 + kTurnColumns, in.width()), y0, y1);
    });
    bits_ = out;
    report(100);
}

void cBitFilter::BitsTakeFromPicture(Bits Picture, int Width, int Height)
{
    if (Picture.isNull()) return;
    checkSize(Width, Height);
    Bits taken(Width, Height);
    const int columns = std::min(Width, Picture.width()), rows = std::min(Height, Picture.height());
    for (int y = 0; y < rows; ++y) {
        const Pixel* from = std::as_const(Picture).row(y);
        std::transform(from, from + columns, taken.row(y), [](const Pixel& p) {
            return Pixel{{p.c[0], p.c[1], p.c[2], 0}};
        });
    }
    bits_ = taken;
}

} // namespace velara
