// Definitions of the operations that crop, rotate and resize.
#include "pixels/numbers.h"
#include "tools/reference/definitions.h"

namespace velara {
namespace {

void checkSize(int width, int height)
{
    if (width < 1 || height < 1 || width > 32767 || height > 32767 || 1LL * width * height > 256 * 1024 * 1024)
        throw RuntimeError(Fault::OutOfRange);
}

Bits bitsBlack(const Bits& bits, const Region& region, const Given&)
{
    return eachPixel(bits, region, 0, [](Pixel& to, int, int) { to = {}; });
}

Rect cut(const Bits& bits, const Given& a)
{
    const Rect r{std::max(a.whole("Left"), 0), std::max(a.whole("Top"), 0), std::min(a.whole("Right"), bits.width()),
                 std::min(a.whole("Bottom"), bits.height())};
    if (r.right <= r.left || r.bottom <= r.top) throw RuntimeError(Fault::OutOfRange);
    return r;
}

template <class PixelAt> Bits filled(int width, int height, PixelAt pixelAt)
{
    Bits out(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) out.at(x, y) = pixelAt(x, y);
    return out;
}

Bits bitsCrop(const Bits& bits, const Region&, const Given& a)
{
    const Rect r = cut(bits, a);
    return filled(r.width(), r.height(), [&](int x, int y) { return bits.at(x + r.left, y + r.top); });
}

Bits bitsCropMasked(const Bits& bits, const Region& region, const Given& a)
{
    const Rect r = cut(bits, a);
    return filled(r.width(), r.height(), [&](int x, int y) {
        return region.contains(x + r.left, y + r.top) ? bits.at(x + r.left, y + r.top) : Pixel{{0, 0, 0, 255}};
    });
}

Bits bitsResample(const Bits& bits, const Region&, const Given& a)
{
    const int width = a.whole("NewWidth"), height = a.whole("NewHeight");
    checkSize(width, height);
    const float rx = static_cast<float>((bits.width() - 1.0) / width);
    const float ry = static_cast<float>((bits.height() - 1.0) / height);
    return filled(width, height, [&](int x, int y) {
        const double sx = static_cast<double>(x) * rx, sy = static_cast<double>(y) * ry;
        const int ix = static_cast<int>(std::floor(sx)), iy = static_cast<int>(std::floor(sy));
        const double fx = sx - ix, fy = sy - iy;
        Pixel p{};
        for (int c = 0; c < 3; ++c) {
            const int top = roundEven((1 - fy) * bits.at(ix, iy).c[c] + fy * bits.at(ix, iy + 1).c[c]);
            const int next = roundEven((1 - fy) * bits.at(ix + 1, iy).c[c] + fy * bits.at(ix + 1, iy + 1).c[c]);
            p.c[c] = clamp(roundEven((1 - fx) * top + fx * next));
        }
        return p;
    });
}

Bits bitsResize(const Bits& bits, const Region&, const Given& a)
{
    const int width = a.whole("NewWidth"), height = a.whole("NewHeight");
    checkSize(width, height);
    const float rx = static_cast<float>(static_cast<double>(bits.width()) / width);
    const float ry = static_cast<float>(static_cast<double>(bits.height()) / height);
    return filled(width, height, [&](int x, int y) {
        Pixel p = bits.at(static_cast<int>(std::floor(static_cast<double>(x) * rx)),
                          static_cast<int>(std::floor(static_cast<double>(y) * ry)));
        p.c[3] = 0;
        return p;
    });
}

Bits bitsRotate90(const Bits& bits, const Region&, const Given&)
{
    return filled(bits.height(), bits.width(), [&](int x, int y) {
        Pixel p = bits.at(bits.maxX() - y, x);
        p.c[3] = 0;
        return p;
    });
}

Bits bitsTakeFromPicture(const Bits&, const Region&, const Given& a)
{
    const Bits& picture = a.picture("Picture");
    const int width = a.whole("Width"), height = a.whole("Height");
    checkSize(width, height);
    return filled(width, height, [&](int x, int y) {
        if (x >= picture.width() || y >= picture.height()) return Pixel{};
        Pixel p = picture.at(x, y);
        p.c[3] = 0;
        return p;
    });
}

} // namespace

Definitions geometryDefinitions()
{
    return {
        {"BitsBlack", bitsBlack},           {"BitsCrop", bitsCrop},     {"BitsResample", bitsResample},
        {"BitsCropMasked", bitsCropMasked}, {"BitsResize", bitsResize}, {"BitsTakeFromPicture", bitsTakeFromPicture},
        {"BitsRotate90", bitsRotate90},
    };
}
} // namespace velara
